#version 440

layout(location = 0) in vec4 placeAndLengths; // position, arc length within parts 0 and 1
layout(location = 1) in vec4 lengths; // arc length within parts 2 to 5
layout(location = 2) in vec4 edges0; // signed distances to the edges of part 0
layout(location = 3) in vec4 edges1;
layout(location = 4) in vec4 edges2;
layout(location = 5) in vec4 edges3;
layout(location = 6) in vec4 edges4;
layout(location = 7) in vec4 edges5;

layout(location = 0) out vec2 leftFirst; // arc length left before the stroke end
layout(location = 1) out vec4 left;
layout(location = 2) out vec4 within0;
layout(location = 3) out vec4 within1;
layout(location = 4) out vec4 within2;
layout(location = 5) out vec4 within3;
layout(location = 6) out vec4 within4;
layout(location = 7) out vec4 within5;

layout(std140, binding = 0) uniform Layer
{
    mat4 qt_Matrix;
    vec4 color; // premultiplied
    float end; // arc length that is drawn
};

void main()
{
    leftFirst = end - placeAndLengths.zw;
    left = end - lengths;
    within0 = edges0;
    within1 = edges1;
    within2 = edges2;
    within3 = edges3;
    within4 = edges4;
    within5 = edges5;
    gl_Position = qt_Matrix * vec4(placeAndLengths.xy, 0.0, 1.0);
}
