// SPDX-License-Identifier: Apache-2.0
#include "models.h"

#include <algorithm>

namespace tpx::model {

// The second stays where samples do not compare.
template <typename T>
void minEvery(const T* src1, const T* src2, T* dst, size_t length) {
    for (size_t i = 0; i < length; ++i) dst[i] = src1[i] < src2[i] ? src1[i] : src2[i];
}
template <typename T>
void maxEvery(const T* src1, const T* src2, T* dst, size_t length) {
    for (size_t i = 0; i < length; ++i) dst[i] = src1[i] > src2[i] ? src1[i] : src2[i];
}
template <typename T>
void maxEveryKeepAlpha(const T* src1, const T* src2, T* dst, size_t length) {
    for (size_t i = 0; i < length; i += 4) maxEvery(src1 + i, src2 + i, dst + i, 3);
}

template <typename T>
void blockMinMax(const T* src, ptrdiff_t srcStep, TpxiSize size, TpxiSize block, T* min, T* max) {
    for (int top = 0; top < size.height; top += block.height)
        for (int left = 0; left < size.width; left += block.width) {
            const int bottom = std::min(size.height, top + block.height);
            const int right = std::min(size.width, left + block.width);
            T least = src[top * srcStep + left], most = least;
            for (int y = top; y < bottom; ++y)
                for (const T* x = src + y * srcStep + left; x < src + y * srcStep + right; ++x) {
                    least = *x < least ? *x : least;
                    most = *x > most ? *x : most;
                }
            *min++ = least;
            *max++ = most;
        }
}

#define EXTREMES(T)                                                  \
    template void minEvery(const T*, const T*, T*, size_t);          \
    template void maxEvery(const T*, const T*, T*, size_t);          \
    template void maxEveryKeepAlpha(const T*, const T*, T*, size_t); \
    template void blockMinMax(const T*, ptrdiff_t, TpxiSize, TpxiSize, T*, T*);
EXTREMES(Tpx8u)
EXTREMES(Tpx16u)
EXTREMES(Tpx16s)
EXTREMES(Tpx32f)

} // namespace tpx::model
