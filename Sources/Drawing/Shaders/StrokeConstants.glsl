// Read by the shaders and, as C++, by Sources/Drawing/StrokeConstants.h.

const int samples = 64; // of one pixel
const int latticeStep = 19; // sample k lies in column k and in row k * latticeStep, modulo samples
const int discMarker = 512; // added to the radius of a disc; distances to edges are smaller
