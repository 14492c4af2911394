// vormIdentity and vormIsIdentity.

#include "math3d/matrices/matrix4.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_vormIdentity_m4_32f(float* pDst)
{
    return Matrix4{{row(1, 0, 0, 0), row(0, 1, 0, 0), row(0, 0, 1, 0), row(0, 0, 0, 1)}}.store(pDst);
}

// One column that agrees is enough, as the list says.
VormStatus n8_vormIsIdentity_m4_32f(const float* pSrc, int* pResult)
{
    bool agrees = elementAt(pSrc, 0) == 1;
    if (agrees) {
        const Matrix4 m = Matrix4::load(pSrc);
        agrees = any((m.rows[0] == row(1, 0, 0, 0)) & (m.rows[1] == row(0, 1, 0, 0)) & (m.rows[2] == row(0, 0, 1, 0)) &
                     (m.rows[3] == row(0, 0, 0, 1)));
    }
    elementAt(pResult, 0) = agrees;
    return StatusOk;
}
}
