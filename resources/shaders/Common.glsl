// Put before every fragment shader, after the lines that name extensions.

#ifdef GL_FRAGMENT_PRECISION_HIGH
precision highp float;
#else
precision mediump float;
#endif

// The pixel that this fragment is about to replace. Blending is never on: a shader that keeps
// something of what is there reads it and writes the whole pixel.
#ifdef FRAMEBUFFER_FETCH
vec4 presentPixel() { return gl_LastFragData[0]; }
#else
uniform sampler2D destination; // a copy of the touched rectangle
uniform vec4 destinationArea;  // its origin in target pixels; 1 / size of the copy's texture
vec4 presentPixel()
{
    return texture2D(destination, (gl_FragCoord.xy - destinationArea.xy) * destinationArea.zw);
}
#endif

#ifdef GL_OES_standard_derivatives
// How much a value changes from one pixel to the next, the same in every direction.
float pixelWidth(float value) { return max(length(vec2(dFdx(value), dFdy(value))), 1e-5); }

#else
float pixelWidth(float value) { return 0.02; }
#endif

// What a linear sample should be where alpha varies: each of the four texels counts by its own.
// What is transparent in a photo is mostly black there, and would darken its edge. Premultiplied.
uniform vec2 imageSize; // pixels
vec4 weighted(sampler2D image, vec2 at)
{
    vec2 texel = at * imageSize - 0.5;
    vec2 first = floor(texel);
    vec4 sum = vec4(0.0);
    for (int i = 0; i < 4; ++i) {
        vec2 corner = vec2(mod(float(i), 2.0), floor(float(i) * 0.5));
        vec4 color = texture2D(image, (first + corner + 0.5) / imageSize);
        vec2 share = mix(1.0 - (texel - first), texel - first, corner);
        sum += share.x * share.y * vec4(color.rgb * color.a, color.a);
    }
    return sum;
}

bool isOfOnePiece(float alpha) { return alpha < 0.001 || alpha > 0.999; }
vec4 straight(vec4 premultiplied)
{
    return vec4(premultiplied.rgb / max(premultiplied.a, 0.001), premultiplied.a);
}

#ifndef GL_FRAGMENT_PRECISION_HIGH
// Half precision can't tell the texels of a large photo apart.
vec4 sampled(sampler2D image, vec2 at) { return texture2D(image, at); }
#elif defined(GL_OES_standard_derivatives)
// The mean over the area that this fragment covers. A photo of many megapixels is shown much
// smaller than it is, where a single sample would shimmer.
vec4 sampled(sampler2D image, vec2 at)
{
    vec2 across = dFdx(at) * 0.25;
    vec2 down = dFdy(at) * 0.25;
    vec4 mean =
        0.25 * (texture2D(image, at + across + down) + texture2D(image, at + across - down) +
                texture2D(image, at - across + down) + texture2D(image, at - across - down));
    if (isOfOnePiece(mean.a))
        return mean;
    return straight(0.25 * (weighted(image, at + across + down) +
                            weighted(image, at + across - down) +
                            weighted(image, at - across + down) +
                            weighted(image, at - across - down)));
}
#else
vec4 sampled(sampler2D image, vec2 at)
{
    vec4 sample = texture2D(image, at);
    return isOfOnePiece(sample.a) ? sample : straight(weighted(image, at));
}
#endif

#ifndef FRAMEBUFFER_FETCH
// Where the target must be copied to be read, one draw does the work of several stamps, evenly
// spaced: their coverages multiply, so one copy serves them all.
uniform vec2 stampStep; // from one stamp to the next, in stamp coordinates
uniform int stampCount;
#endif

float coverage(sampler2D stamp, vec2 at)
{
    vec2 inside = step(vec2(0.0), at) * step(at, vec2(1.0));
    return texture2D(stamp, at).a * inside.x * inside.y;
}

// What the stamps leave of what they lie upon: each takes its share of the rest.
float leftByStamps(sampler2D stamp, vec2 at)
{
    float rest = 1.0 - coverage(stamp, at);
#ifndef FRAMEBUFFER_FETCH
    for (int i = 1; i < STAMPS_PER_DRAW; ++i) {
        if (i < stampCount)
            rest *= 1.0 - coverage(stamp, at - float(i) * stampStep);
    }
#endif
    return rest;
}

// A checker fixed to the screen: transparency.
vec3 checker()
{
    vec2 cell = floor(gl_FragCoord.xy / 16.0);
    return vec3(mod(cell.x + cell.y, 2.0) < 0.5 ? 0.42 : 0.52);
}

// How far a point lies out from the centre of a regular polygon whose corners touch the unit
// square's inscribed circle: 0 at the centre, 1 on the edge. At angle 0 one side faces along +y,
// and the angle turns it the other way round. `at` runs 0 to 1 across the square.
float polygonRadius(vec2 at, int numSides, float angle)
{
    vec2 p = at - 0.5;
    if (dot(p, p) < 1e-8)
        return 0.0;
    float sector = 6.2831853 / float(numSides);
    float turned = atan(p.y, p.x) + angle - 1.5707963;
    float apothem = cos(floor(0.5 + turned / sector) * sector - turned) * length(p);
    return apothem / (0.5 * cos(0.5 * sector));
}
