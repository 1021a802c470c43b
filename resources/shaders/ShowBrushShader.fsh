uniform int numSides;
uniform float angle;

varying vec2 texCoord;

void main()
{
    // A white line with a dark seam on both sides, seen on any photo; the rest stays as it is.
    float radius = polygonRadius(texCoord, numSides, angle);
    // From the coordinates, which change evenly: the radius itself has a crease at each corner.
    float pixel = pixelWidth(texCoord.x) / (0.5 * cos(3.1415927 / float(numSides)));
    float fromLine = abs(radius - 1.0 + 2.5 * pixel) / pixel;
    float seam = 0.5 * (1.0 - smoothstep(1.5, 2.5, fromLine));
    float line = 1.0 - smoothstep(0.5, 1.25, fromLine);
    vec3 color = mix(presentPixel().rgb, vec3(0.0), seam);
    gl_FragColor = vec4(mix(color, vec3(1.0), line), 1.0);
}
