#version 440

layout(location = 0) in vec2 place;
layout(location = 1) in vec3 distances;

layout(location = 0) out vec3 within; // of the left side, of the right side, of the length of the line

layout(std140, binding = 0) uniform Layer
{
    mat4 qt_Matrix;
    vec4 color; // premultiplied
    float end; // the length of the line that is drawn
};

void main()
{
    within = vec3(distances.xy, end - distances.z);
    gl_Position = qt_Matrix * vec4(place, 0.0, 1.0);
}
