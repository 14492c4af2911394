// The kernels of vormQRBackSubst over the parts of a call: the factors, the buffer, right-hand side, solution, sizes.
#pragma once

#include "factor/qr/qr_back_subst.hpp"
#include "factor/qr/qr_solve.hpp"

namespace vorm::factor {

// The order's code is chosen once, outside the loop over the objects.
template <class T, class M, class B, class X>
VORM_INLINE VormStatus qrSolveArray(const M& matrix, const B& b, const X& dst, T* buffer, int width, int height,
                                    int count)
{
    const auto small = [&](auto n) VORM_INLINE_LAMBDA {
        if constexpr (M::isCommon)
            qrSolveVectors<n, T>(matrix, b, dst, count);
        else
            qrSolvePairs<n, T>(matrix, b, dst, buffer, count);
        return VormStatus{StatusOk};
    };
    if constexpr (inWhole<B>) switch (width == height ? width : 0) {
        case 3: return small(constant<3>);
        case 4: return small(constant<4>);
        case 5: return small(constant<5>);
        case 6: return small(constant<6>);
        default: break;
        }
    if constexpr (M::isCommon)
        qrSolveVectors<T>(matrix, b, dst, buffer, width, height, count);
    else
        qrSolvePairs<T>(matrix, b, dst, buffer, width, height, count);
    return StatusOk;
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& matrix, const auto& buffer, const auto& b, const auto& x, Size width,
                              Size height, Fit) VORM_INLINE_LAMBDA {
        qrSolveOne<T>(matrix, b, x, 0, width.value, height.value, buffer.p);
        return VormStatus{StatusOk};
    });
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const Call<T, TheTests, Parts>& call)
{
    return anyStrideKernel(call);
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& matrix, const auto& buffer, const auto& b, const auto& x, Size width,
                              Size height, Fit, Count count) VORM_INLINE_LAMBDA {
        return qrSolveArray<T>(matrix, b, x, buffer.p, width.value, height.value, count.value);
    });
}
template <class AnyCall>
VORM_INLINE VormStatus contiguousKernel(const AnyCall& call)
{
    return anyStrideKernel(withAdjacent(call));
}

template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& matrix, const auto& buffer, const auto& b, const auto& x, Size width,
                              Size height, Fit, Count count) VORM_INLINE_LAMBDA {
        const int w = width.value, h = height.value, objects = count.value;
        if (fitsBlock(w, h) && inPlanes(matrix) && inPlanes(b) && storableAsPlanes(x, w, 1, objects))
            return qrSolveArray<T>(asPlanes(matrix), asPlanes(b), asPlanes(x), buffer.p, w, h, objects);
        return qrSolveArray<T>(matrix, b, x, buffer.p, w, h, objects);
    });
}

}  // namespace vorm::factor
