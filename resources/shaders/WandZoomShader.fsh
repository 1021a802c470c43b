uniform sampler2D texture;

varying vec2 texCoord;  // on the photo
varying vec2 texCoord2; // 0 to 1 across the magnifier

void main()
{
    // A round glass: a white rim with a dark seam on both sides, so that it stands out from any
    // photo, and a cross-hair that leaves the very centre free.
    vec2 fromCentre = (texCoord2 - 0.5) * 2.0;
    float radius = length(fromCentre);
    float pixel = pixelWidth(fromCentre.x);

    vec2 inside = step(vec2(0.0), texCoord) * step(texCoord, vec2(1.0));
    vec4 photo = sampled(texture, texCoord);
    vec3 glass = mix(vec3(0.0627, 0.0667, 0.0745), mix(checker(), photo.rgb, photo.a),
                     inside.x * inside.y);

    vec2 away = abs(fromCentre);
    float along = max(away.x, away.y);
    float across = min(away.x, away.y);
    float arm = step(0.07, along) * step(along, 0.24);
    float halo = arm * (1.0 - smoothstep(2.0 * pixel, 3.0 * pixel, across));
    float line = arm * (1.0 - smoothstep(0.6 * pixel, 1.6 * pixel, across));
    glass = mix(glass, vec3(0.0), 0.45 * halo);
    glass = mix(glass, vec3(1.0), line);

    float rim = 6.0 * pixel;
    float seam = smoothstep(1.0 - rim - 2.0 * pixel, 1.0 - rim - pixel, radius);
    float ring = smoothstep(1.0 - rim, 1.0 - rim + pixel, radius);
    float outerSeam = smoothstep(1.0 - 2.5 * pixel, 1.0 - 1.5 * pixel, radius);
    vec3 color = mix(glass, vec3(0.06), 0.6 * seam);
    color = mix(color, vec3(1.0), ring);
    color = mix(color, vec3(0.06), 0.55 * outerSeam);

    float outside = smoothstep(1.0 - pixel, 1.0, radius);
    gl_FragColor = vec4(mix(color, presentPixel().rgb, outside), 1.0);
}
