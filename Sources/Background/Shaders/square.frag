#version 440

layout(location = 0) in vec4 within0;
layout(location = 1) in vec4 within1;
layout(location = 2) in vec4 within2;
layout(location = 3) in vec4 within3;
layout(location = 4) in vec4 within4;
layout(location = 5) in vec4 left;
layout(location = 6) in float left4;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform Layer
{
    mat4 qt_Matrix;
    vec4 color;
    float end;
};

const int samples = 64;

float least(vec4 distances)
{
    return min(min(distances.x, distances.y), min(distances.z, distances.w));
}

const float disc = 512.0; // marks the radius of a disc

// How far a sample lies within a part; less than 0 is outside.
float within(vec4 edges, vec4 edgesX, vec4 edgesY, float left, vec2 offset)
{
    vec4 here = edges + offset.x * edgesX + offset.y * edgesY;
    return min(here.w > disc ? here.w - disc - length(here.xy) : least(here), left);
}

void main()
{
    vec4 x0 = dFdx(within0), y0 = dFdy(within0);
    vec4 x1 = dFdx(within1), y1 = dFdy(within1);
    vec4 x2 = dFdx(within2), y2 = dFdy(within2);
    vec4 x3 = dFdx(within3), y3 = dFdy(within3);
    vec4 x4 = dFdx(within4), y4 = dFdy(within4);
    vec4 leftX = dFdx(left), leftY = dFdy(left);
    float left4X = dFdx(left4), left4Y = dFdy(left4);

    float covered = 0.0;
    for (int k = 0; k < samples; ++k) {
        // A lattice in which all columns and all rows of samples differ.
        vec2 offset = fract(vec2(float(k) + 0.5, float(k) * 19.0 + 0.5) / float(samples)) - 0.5;
        vec4 leftHere = left + offset.x * leftX + offset.y * leftY;
        float left4Here = left4 + offset.x * left4X + offset.y * left4Y;
        float most = max(max(max(within(within0, x0, y0, leftHere.x, offset), within(within1, x1, y1, leftHere.y, offset)),
                             max(within(within2, x2, y2, leftHere.z, offset), within(within3, x3, y3, leftHere.w, offset))),
                         within(within4, x4, y4, left4Here, offset));
        covered += step(0.0, most);
    }
    fragColor = color * (covered / float(samples));
}
