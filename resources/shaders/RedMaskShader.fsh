uniform sampler2D texture;

varying vec2 texCoord;

void main()
{
    // Removed parts keep their colour under alpha 0, so they still show through the red.
    vec4 photo = sampled(texture, texCoord);
    float brightness = dot(photo.rgb, vec3(0.299, 0.587, 0.114));
    vec3 red = mix(vec3(0.36, 0.02, 0.05), vec3(1.0, 0.42, 0.40), brightness);
    gl_FragColor = vec4(mix(red, photo.rgb, photo.a), 1.0);
}
