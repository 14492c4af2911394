// What the filter calls: a function of the library for each shape, in whatever layout and type.
#pragma once

#include "kalman_bank/layouts.hpp"

namespace kalman {

// clang-format off
template <class Layout>
struct Members {
    static constexpr auto vormAdd_vava =
        Layout::member("vormAdd_vava", vormAdd_vava_32f, vormAdd_vava_64f, vormAdd_vava_32f_P, vormAdd_vava_64f_P);
    static constexpr auto vormAdd_mam =
        Layout::member("vormAdd_mam", vormAdd_mam_32f, vormAdd_mam_64f, vormAdd_mam_32f_P, vormAdd_mam_64f_P);
    static constexpr auto vormAdd_mama =
        Layout::member("vormAdd_mama", vormAdd_mama_32f, vormAdd_mama_64f, vormAdd_mama_32f_P, vormAdd_mama_64f_P);
    static constexpr auto vormSub_vava =
        Layout::member("vormSub_vava", vormSub_vava_32f, vormSub_vava_64f, vormSub_vava_32f_P, vormSub_vava_64f_P);
    static constexpr auto vormSub_mma =
        Layout::member("vormSub_mma", vormSub_mma_32f, vormSub_mma_64f, vormSub_mma_32f_P, vormSub_mma_64f_P);
    static constexpr auto vormMul_mava =
        Layout::member("vormMul_mava", vormMul_mava_32f, vormMul_mava_64f, vormMul_mava_32f_P, vormMul_mava_64f_P);
    static constexpr auto vormMul_mma =
        Layout::member("vormMul_mma", vormMul_mma_32f, vormMul_mma_64f, vormMul_mma_32f_P, vormMul_mma_64f_P);
    static constexpr auto vormMul_mat =
        Layout::member("vormMul_mat", vormMul_mat_32f, vormMul_mat_64f, vormMul_mat_32f_P, vormMul_mat_64f_P);
    static constexpr auto vormMul_mama =
        Layout::member("vormMul_mama", vormMul_mama_32f, vormMul_mama_64f, vormMul_mama_32f_P, vormMul_mama_64f_P);
    static constexpr auto vormMul_mata =
        Layout::member("vormMul_mata", vormMul_mata_32f, vormMul_mata_64f, vormMul_mata_32f_P, vormMul_mata_64f_P);
    static constexpr auto vormGaxpy_mva =
        Layout::member("vormGaxpy_mva", vormGaxpy_mva_32f, vormGaxpy_mva_64f, vormGaxpy_mva_32f_P, vormGaxpy_mva_64f_P);
    static constexpr auto vormLUDecomp_ma =
        Layout::member("vormLUDecomp_ma", vormLUDecomp_ma_32f, vormLUDecomp_ma_64f, vormLUDecomp_ma_32f_P, vormLUDecomp_ma_64f_P);
    static constexpr auto vormLUBackSubst_mava =
        Layout::member("vormLUBackSubst_mava", vormLUBackSubst_mava_32f, vormLUBackSubst_mava_64f, vormLUBackSubst_mava_32f_P, vormLUBackSubst_mava_64f_P);
};
// clang-format on

}  // namespace kalman
