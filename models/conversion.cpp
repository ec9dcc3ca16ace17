// SPDX-License-Identifier: Apache-2.0
#include "conversion.h"

#include "models.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tpx::model {

template <typename S, typename D>
void convertInteger(const S* src, D* dst, size_t length) {
    if constexpr (std::is_floating_point_v<D> || sizeof(D) > sizeof(S)) {
        for (size_t i = 0; i < length; ++i) dst[i] = static_cast<D>(src[i]);
    } else {
        for (size_t i = 0; i < length; ++i) dst[i] = saturate<D>(int64_t{src[i]});
    }
}

template <typename S, typename D>
void convertRounded(const S* src, D* dst, size_t length, int mode, int scaleFactor) {
    using Limits = std::numeric_limits<D>;
    if constexpr (std::is_floating_point_v<S>) {
        const S factor = std::ldexp(S{1}, -scaleFactor);
        for (size_t i = 0; i < length; ++i) {
            const S value = src[i] * factor;
            const S rounded = mode == 0 ? std::trunc(value) : mode == 1 ? std::rint(value) : std::round(value);
            dst[i] = static_cast<D>(std::clamp<double>(rounded, Limits::min(), Limits::max()));
        }
    } else {
        const int64_t belowHalf = (int64_t{1} << (scaleFactor - 1)) - 1;
        for (size_t i = 0; i < length; ++i) {
            const int64_t value = src[i];
            const int64_t rounded = (value + belowHalf + ((value >> scaleFactor) & 1)) >> scaleFactor;
            dst[i] = static_cast<D>(std::clamp<int64_t>(rounded, Limits::min(), Limits::max()));
        }
    }
}

template <typename T>
void unpackBits(const Tpx8u* src, T* dst, size_t length, T low, T high) {
    for (size_t i = 0; i < length; ++i) dst[i] = src[i / 8] >> (i % 8) & 1 ? high : low;
}

template <typename T>
void packBits(const T* src, Tpx8u* dst, size_t length, T threshold) {
    for (size_t i = 0; i < length; ++i) {
        const Tpx8u bit = static_cast<Tpx8u>(1 << (i % 8));
        dst[i / 8] = static_cast<Tpx8u>(src[i] > threshold ? dst[i / 8] | bit : dst[i / 8] & ~bit);
    }
}

#define INTEGER(S, D) template void convertInteger(const S*, D*, size_t);
#define ROUNDED(S, D) template void convertRounded(const S*, D*, size_t, int, int);
#define BITS(T)                                               \
    template void unpackBits(const Tpx8u*, T*, size_t, T, T); \
    template void packBits(const T*, Tpx8u*, size_t, T);
INTEGER(Tpx8u, Tpx16s)
INTEGER(Tpx8u, Tpx16u)
INTEGER(Tpx8u, Tpx32s)
INTEGER(Tpx8u, Tpx32f)
INTEGER(Tpx16s, Tpx32f)
INTEGER(Tpx16u, Tpx32f)
INTEGER(Tpx32u, Tpx32f)
INTEGER(Tpx16u, Tpx8u)
INTEGER(Tpx32s, Tpx8u)
ROUNDED(Tpx32f, Tpx8u)
ROUNDED(Tpx32f, Tpx16u)
ROUNDED(Tpx32f, Tpx16s)
ROUNDED(Tpx32f, Tpx32u)
ROUNDED(Tpx64f, Tpx16u)
ROUNDED(Tpx32s, Tpx16s)
ROUNDED(Tpx16u, Tpx8s)
BITS(Tpx8u)
BITS(Tpx32f)

} // namespace tpx::model
