// vormEigenValuesGetBufSize and vormEigenValuesVectorsGetBufSize: the work is done in the public layer.

#include "eigen/general/eigen_values.hpp"

using namespace vorm;
using namespace vorm::eigen;

extern "C" {

VormStatus n8_vormEigenValuesGetBufSize_32f(int order, int* bufSize) { return bufferSize<float>(order, bufSize, 1); }
VormStatus n8_vormEigenValuesGetBufSize_64f(int order, int* bufSize) { return bufferSize<double>(order, bufSize, 1); }
VormStatus n8_vormEigenValuesVectorsGetBufSize_32f(int order, int* bufSize)
{
    return bufferSize<float>(order, bufSize, 3);
}
VormStatus n8_vormEigenValuesVectorsGetBufSize_64f(int order, int* bufSize)
{
    return bufferSize<double>(order, bufSize, 3);
}
}
