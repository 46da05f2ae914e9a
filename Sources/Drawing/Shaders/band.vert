#version 440

layout(location = 0) in vec2 place;
layout(location = 1) in vec3 distances;

layout(location = 0) out vec3 within; // signed distances to the left side, the right side and the stroke end

layout(std140, binding = 0) uniform Layer
{
    mat4 qt_Matrix;
    vec4 color; // premultiplied
    float end; // arc length that is drawn
};

void main()
{
    within = vec3(distances.xy, end - distances.z);
    gl_Position = qt_Matrix * vec4(place, 0.0, 1.0);
}
