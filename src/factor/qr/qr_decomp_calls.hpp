// The kernels of vormQRDecomp over the parts of a call: the source, the buffer, the destination, the sizes.
#pragma once

#include "factor/qr/qr.hpp"
#include "factor/qr/qr_decomp.hpp"

namespace vorm::factor {

// The order's code is chosen once.
template <class T, class Src, class Dst>
VORM_INLINE VormStatus qrDecompArray(const Src& src, const Dst& dst, T* buffer, int width, int height, int count)
{
    if constexpr (inWhole<Src>) switch (width == height ? width : 0) {
        case 3: return qrArray<3, T>(src, dst, buffer, count);
        case 4: return qrArray<4, T>(src, dst, buffer, count);
        default: break;
        }
    return qrArray<T>(src, dst, buffer, width, height, count);
}

// One matrix.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with(
        [](const auto& src, const auto& buffer, const auto& dst, Size width, Size height, Fit)
            VORM_INLINE_LAMBDA { return qrOne<T>(src, dst, 0, width.value, height.value, buffer.p); });
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const Call<T, TheTests, Parts>& call)
{
    return anyStrideKernel(withAdjacent(call));
}
// As one object of an array, whose code it shares.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const Call<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& buffer, const auto& dst, Size width, Size height,
                              Fit) VORM_INLINE_LAMBDA {
        return qrOne<T>(MatrixArrayPointers{src.pp, src.shift, 0, width.value},
                        MatrixArrayPointers{dst.pp, dst.shift, 0, width.value}, 0, width.value, height.value, buffer.p);
    });
}

// Arrays of matrices.
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus anyStrideKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& buffer, const auto& dst, Size width, Size height, Fit,
                              Count count) VORM_INLINE_LAMBDA {
        return qrDecompArray<T>(src, dst, buffer.p, width.value, height.value, count.value);
    });
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus contiguousKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return anyStrideKernel(withAdjacent(call));
}
template <class T, class TheTests, class Parts>
VORM_INLINE VormStatus pointerKernel(const ArrayCall<T, TheTests, Parts>& call)
{
    return call.parts.with([](const auto& src, const auto& buffer, const auto& dst, Size width, Size height, Fit,
                              Count count) VORM_INLINE_LAMBDA {
        if (fitsBlock(width.value, height.value) && inPlanes(src) &&
            storableAsPlanes(dst, height.value, width.value, count.objects()))
            return qrDecompArray<T>(asPlanes(src), asPlanes(dst), buffer.p, width.value, height.value, count.value);
        return qrDecompArray<T>(src, dst, buffer.p, width.value, height.value, count.value);
    });
}

}  // namespace vorm::factor
