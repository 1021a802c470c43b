uniform sampler2D texture;
uniform vec3 backgroundColor;

varying vec2 texCoord;

void main()
{
    vec4 photo = sampled(texture, texCoord);
    gl_FragColor = vec4(mix(backgroundColor, photo.rgb, photo.a), 1.0);
}
