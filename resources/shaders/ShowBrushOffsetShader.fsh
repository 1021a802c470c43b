varying vec2 texCoord;

void main()
{
    // A small disc where the finger rests: blue, with a white rim.
    float radius = length(texCoord - 0.5) * 2.0;
    float pixel = pixelWidth(texCoord.x) * 2.0;
    float disc = 1.0 - smoothstep(1.0 - pixel, 1.0, radius);
    float rim = smoothstep(1.0 - 3.0 * pixel, 1.0 - 2.0 * pixel, radius);
    vec3 color = mix(vec3(0.0, 0.69, 0.94), vec3(1.0), rim);
    gl_FragColor = vec4(mix(presentPixel().rgb, color, disc), 1.0);
}
