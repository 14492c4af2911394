// vormQRDecomp_ma: team-parallel drivers.

#include "factor/qr/qr_decomp.hpp"
#include "frame/driver.hpp"

using namespace vorm;
using namespace vorm::factor;

extern "C" {

VormStatus n8_ownOMP_vormQRDecomp_ma_32f(QR_DECOMP_MA_PARAMS(float))
{
    return team<StatusDivisionByZero>(qrDecompMa(QR_DECOMP_MA_ARGS), n8_ownvormQRDecomp_ma_32f,
                                      n8_ownvormQRDecomp_ma_32f_S2);
}
VormStatus n8_ownOMP_vormQRDecomp_ma_64f(QR_DECOMP_MA_PARAMS(double))
{
    return team<StatusDivisionByZero>(qrDecompMa(QR_DECOMP_MA_ARGS), n8_ownvormQRDecomp_ma_64f,
                                      n8_ownvormQRDecomp_ma_64f_S2);
}
VormStatus n8_ownOMP_vormQRDecomp_ma_32f_L(QR_DECOMP_MA_PARAMS_L(float))
{
    return team<StatusDivisionByZero>(qrDecompMaL(QR_DECOMP_MA_ARGS_L), n8_ownvormQRDecomp_ma_32f_L,
                                      n8_ownvormQRDecomp_ma_32f_LS2);
}
VormStatus n8_ownOMP_vormQRDecomp_ma_64f_L(QR_DECOMP_MA_PARAMS_L(double))
{
    return team<StatusDivisionByZero>(qrDecompMaL(QR_DECOMP_MA_ARGS_L), n8_ownvormQRDecomp_ma_64f_L,
                                      n8_ownvormQRDecomp_ma_64f_LS2);
}
VormStatus n8_ownOMP_vormQRDecomp_ma_32f_P(QR_DECOMP_MA_PARAMS_P(float))
{
    return team<StatusDivisionByZero>(qrDecompMaP(QR_DECOMP_MA_ARGS_P), n8_ownvormQRDecomp_ma_32f_P);
}
VormStatus n8_ownOMP_vormQRDecomp_ma_64f_P(QR_DECOMP_MA_PARAMS_P(double))
{
    return team<StatusDivisionByZero>(qrDecompMaP(QR_DECOMP_MA_ARGS_P), n8_ownvormQRDecomp_ma_64f_P);
}
}
