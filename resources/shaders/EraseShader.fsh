uniform sampler2D texture;

varying vec2 texCoord;

void main()
{
    vec4 present = presentPixel();
    gl_FragColor = vec4(present.rgb, present.a * leftByStamps(texture, texCoord));
}
