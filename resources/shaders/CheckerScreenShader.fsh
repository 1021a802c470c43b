uniform sampler2D texture;

varying vec2 texCoord;

void main()
{
    vec4 photo = sampled(texture, texCoord);
    gl_FragColor = vec4(mix(checker(), photo.rgb, photo.a), 1.0);
}
