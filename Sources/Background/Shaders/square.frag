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

const int samples = 64;
const float disc = 512.0; // marks the radius of a disc

// How far a sample lies within a part; less than 0 is outside.
float within(vec4 edges, vec4 edgesX, vec4 edgesY, float left, vec2 offset)
{
    vec4 here = edges + offset.x * edgesX + offset.y * edgesY;
    float sides = min(min(here.x, here.y), min(here.z, here.w));
    return min(here.w > disc ? here.w - disc - length(here.xy) : sides, left);
}

void main()
{
    vec2 firstX = dFdx(leftFirst), firstY = dFdy(leftFirst);
    vec4 leftX = dFdx(left), leftY = dFdy(left);
    vec4 x0 = dFdx(within0), y0 = dFdy(within0);
    vec4 x1 = dFdx(within1), y1 = dFdy(within1);
    vec4 x2 = dFdx(within2), y2 = dFdy(within2);
    vec4 x3 = dFdx(within3), y3 = dFdy(within3);
    vec4 x4 = dFdx(within4), y4 = dFdy(within4);
    vec4 x5 = dFdx(within5), y5 = dFdy(within5);

    float covered = 0.0;
    for (int k = 0; k < samples; ++k) {
        // A lattice in which all columns and all rows of samples differ.
        vec2 offset = fract(vec2(float(k) + 0.5, float(k) * 19.0 + 0.5) / float(samples)) - 0.5;
        vec2 first = leftFirst + offset.x * firstX + offset.y * firstY;
        vec4 others = left + offset.x * leftX + offset.y * leftY;
        float most = within(within0, x0, y0, first.x, offset);
        most = max(most, within(within1, x1, y1, first.y, offset));
        most = max(most, within(within2, x2, y2, others.x, offset));
        most = max(most, within(within3, x3, y3, others.y, offset));
        most = max(most, within(within4, x4, y4, others.z, offset));
        most = max(most, within(within5, x5, y5, others.w, offset));
        covered += step(0.0, most);
    }
    fragColor = color * (covered / float(samples));
}
