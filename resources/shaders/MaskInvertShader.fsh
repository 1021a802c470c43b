void main()
{
    vec4 present = presentPixel();
    gl_FragColor = vec4(present.rgb, 1.0 - present.a);
}
