uniform float borderSize;
uniform int numSides;
uniform float angle;

varying vec2 texCoord;

void main()
{
    // Even the hardest brush keeps a border of about two texels: it is what smooths its edge.
    float border = clamp(3.0 * borderSize, 0.02, 1.0);
    float radius = polygonRadius(texCoord, numSides, angle);
    float coverage = 1.0 - smoothstep(1.0 - border, 1.0, radius);
    gl_FragColor = vec4(coverage);
}
