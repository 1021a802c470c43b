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

// The mean over the area that this fragment covers. A photo of many megapixels is shown much
// smaller than it is, where a single sample would shimmer.
vec4 sampled(sampler2D image, vec2 at)
{
    vec2 across = dFdx(at) * 0.25;
    vec2 down = dFdy(at) * 0.25;
    return 0.25 * (texture2D(image, at + across + down) + texture2D(image, at + across - down) +
                   texture2D(image, at - across + down) + texture2D(image, at - across - down));
}
#else
float pixelWidth(float value) { return 0.02; }
vec4 sampled(sampler2D image, vec2 at) { return texture2D(image, at); }
#endif

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
