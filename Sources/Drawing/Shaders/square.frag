#version 440

layout(location = 0) in vec2 leftFirst;
layout(location = 1) in vec4 left;
layout(location = 2) in vec4 within0;
layout(location = 3) in vec4 within1;
layout(location = 4) in vec4 within2;
layout(location = 5) in vec4 within3;
layout(location = 6) in vec4 within4;
layout(location = 7) in vec4 within5;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform Layer
{
    mat4 qt_Matrix;
    vec4 color;
    float end;
};

const float nowhere = -128.0; // less than the distances to any part

vec2 firstX, firstY;
vec4 leftX, leftY;
vec4 x0, x1, x2, x3, x4, x5;
vec4 y0, y1, y2, y3, y4, y5;

// The offset of a sample from the middle of the pixel.
vec2 sampleAt(int k)
{
    return fract(vec2(float(k) + 0.5, float(k) * float(latticeStep) + 0.5) / float(samples)) - 0.5;
}

// Signed distance of a sample to a part: less than 0 outside.
float within(vec4 edges, vec4 edgesX, vec4 edgesY, float left, vec2 offset)
{
    vec4 here = edges + offset.x * edgesX + offset.y * edgesY;
    float sides = min(min(here.x, here.y), min(here.z, here.w));
    float radius = here.w - float(discMarker);
    return min(radius > 0.0 ? radius * radius - dot(here.xy, here.xy) : sides, left);
}

float withinFirst(vec2 offset)
{
    vec2 first = leftFirst + offset.x * firstX + offset.y * firstY;
    float third = left.x + offset.x * leftX.x + offset.y * leftY.x;
    return max(max(within(within0, x0, y0, first.x, offset), within(within1, x1, y1, first.y, offset)),
               within(within2, x2, y2, third, offset));
}

float withinOthers(vec2 offset)
{
    vec3 others = left.yzw + offset.x * leftX.yzw + offset.y * leftY.yzw;
    return max(max(within(within3, x3, y3, others.x, offset), within(within4, x4, y4, others.y, offset)),
               within(within5, x5, y5, others.z, offset));
}

void main()
{
    firstX = dFdx(leftFirst), firstY = dFdy(leftFirst);
    leftX = dFdx(left), leftY = dFdy(left);
    x0 = dFdx(within0), y0 = dFdy(within0);
    x1 = dFdx(within1), y1 = dFdy(within1);
    x2 = dFdx(within2), y2 = dFdy(within2);
    x3 = dFdx(within3), y3 = dFdy(within3);
    x4 = dFdx(within4), y4 = dFdy(within4);
    x5 = dFdx(within5), y5 = dFdy(within5);

    // Few squares have more than three parts. Loops have constant ends, as GLSL ES 100 requires.
    bool hasManyParts = within3.x > nowhere;
    float covered = 0.0;
    for (int k = 0; k < samples; ++k) {
        if (hasManyParts)
            break;
        covered += step(0.0, withinFirst(sampleAt(k)));
    }
    for (int k = 0; k < samples; ++k) {
        if (!hasManyParts)
            break;
        vec2 offset = sampleAt(k);
        covered += step(0.0, max(withinFirst(offset), withinOthers(offset)));
    }
    fragColor = color * (covered / float(samples));
}
