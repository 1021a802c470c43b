uniform sampler2D texture;

varying vec2 texCoord;

void main()
{
    // Brought back is what alpha lacks.
    vec4 present = presentPixel();
    gl_FragColor = vec4(present.rgb, 1.0 - (1.0 - present.a) * leftByStamps(texture, texCoord));
}
