#version 440

layout(location = 0) in vec3 within;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform Layer
{
    mat4 qt_Matrix;
    vec4 color;
    float end;
};

void main()
{
    // Coverage by each edge, with the pixel approximated by a disc.
    vec3 size = sqrt(dFdx(within) * dFdx(within) + dFdy(within) * dFdy(within));
    vec3 covered = clamp(within / max(size, vec3(1e-6)) + 0.5, 0.0, 1.0);
    fragColor = color * (max(covered.x + covered.y - 1.0, 0.0) * covered.z);
}
