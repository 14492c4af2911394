// vormAffineTransform3DH_mva: team-parallel driver.

#include "frame/driver.hpp"
#include "math3d/transforms/affine_3dh.hpp"

using namespace vorm;
using namespace vorm::math3d;

extern "C" {

VormStatus n8_ownOMP_vormAffineTransform3DH_mva_32f(AFFINE_3DH_PARAMS)
{
    return team<Kernels::canFail>(affine3DH(AFFINE_3DH_ARGS), n8_ownvormAffineTransform3DH_mva_32f,
                                  n8_ownvormAffineTransform3DH_mva_32f_S2);
}
}
