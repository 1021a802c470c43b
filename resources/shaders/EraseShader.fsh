uniform sampler2D texture;
#ifndef FRAMEBUFFER_FETCH
// Where the target must be copied to be read, one draw does the work of several stamps, evenly
// spaced: their coverages multiply, so one copy serves them all.
uniform vec2 stampStep; // from one stamp to the next, in stamp coordinates
uniform int stampCount;
#endif

varying vec2 texCoord;

float coverage(vec2 at)
{
    vec2 inside = step(vec2(0.0), at) * step(at, vec2(1.0));
    return texture2D(texture, at).a * inside.x * inside.y;
}

void main()
{
    // Each stamp takes its share of what is left of alpha.
    float remaining = 1.0 - coverage(texCoord);
#ifndef FRAMEBUFFER_FETCH
    for (int i = 1; i < STAMPS_PER_DRAW; ++i) {
        if (i < stampCount)
            remaining *= 1.0 - coverage(texCoord - float(i) * stampStep);
    }
#endif
    vec4 present = presentPixel();
    gl_FragColor = vec4(present.rgb, present.a * remaining);
}
