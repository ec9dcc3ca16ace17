// SPDX-License-Identifier: Apache-2.0
// tpxiConvert of floating point to integers, with a rounding mode and a scale factor.
#include "movement/convert_round.h"

namespace tpx {
namespace {

// ---- Rules of 32-bit results: Half is as in movement/convert_round.h -------------------------------------

// What is out of range converts to 0x80000000; that is inverted above the range, where the sample has no sign.
template <bool Half, class Scale>
struct To32s {
    Scale scale;
    V32f operator()(const Tpx32f* p) const {
        const V32f x = scale(load(p));
        const B32f bits = toIntegerJoined(Half ? addHalf(x) : x);
        const B32f above = ~B32f(x < splat<V32f>(0x1p31f)); // NaN too
        return select(bitsAs<B32f>(x), bitsAs<V32f>(bits), bitsAs<V32f>(bits ^ above));
    }
};

// From 2^31 on a sample converts to 0x80000000, and what is left of it without 2^31, which is an integer, to
// the other bits. Above 2^32 and for NaN the largest value; exactly 2^32 has two of 0x80000000, and gives 0.
template <bool Half, class Scale>
struct To32u {
    Scale scale;
    V32f operator()(const Tpx32f* p) const {
        const V32f x = scale(load(p));
        const B32f above = ~B32f(x <= splat<V32f>(0x1p32f)); // NaN too
        const V32f positive = maxOf(x, V32f{});
        const B32f bits = toIntegerJoined(Half ? positive + splat<V32f>(0.5f) : positive);
        const B32f others = toIntegerJoined(positive - splat<V32f>(0x1p31f));
        return bitsAs<V32f>(bitsAs<B32f>(select(bits, bitsAs<V32f>(bits ^ others), bitsAs<V32f>(bits))) |
                            above);
    }
};

// ---- Factors --------------------------------------------------------------------------------------------

// A factor of 1 is nothing beside the narrowing of results, but two are felt.
struct Unscaled {
    V32f operator()(V32f x) const { return x; }
};
struct TimesTwice {
    Tpx32f first, second;
    V32f operator()(V32f x) const { return x * splat<V32f>(first) * splat<V32f>(second); }
};

// 1 halved n times or doubled -n times: 0 or infinite past the numbers that there are.
template <class F>
F scale(int n) {
    if constexpr (sizeof(F) == 8) {
        return powerOfTwo<F>(-clampTo(n, -1008, 1022)); // numbers, all of them
    } else {
        if (n > 149) return 0;
        if (n > 126) return __builtin_bit_cast(F, Tpx32u(1) << (149 - n)); // denormal
        return n < -127 ? __builtin_inff() : powerOfTwo<F>(-n);
    }
}

// ---- Calls ----------------------------------------------------------------------------------------------

template <class S, class D, bool Half, class Scale>
auto ruleTo(Scale scale) {
    if constexpr (sizeof(D) < 4)
        return ToSmall<S, D, Half, Scale>{scale};
    else if constexpr (std::is_signed_v<D>)
        return To32s<Half, Scale>{scale};
    else
        return To32u<Half, Scale>{scale};
}

template <Steps K, Layout L, class S, class D>
TpxStatus convertReal(ImageView<const S> src, ImageView<D> dst, TpxiSizeL roi, TpxRoundMode mode, int n = 0) {
    // Rules to 32 bits make registers of floats, which have their bits.
    using Lane = std::conditional_t<sizeof(D) == 4, Tpx32f, D>;
    const ImageView<Lane> lanes{reinterpret_cast<Lane*>(dst.data), dst.step};
    return withRounding(mode, denormalsGiveZero<S>(n), [=](auto half) {
        const auto run = [=](auto scale) {
            return convert<K, L>(src, lanes, roi, ruleTo<S, D, decltype(half)::value>(scale));
        };
        if constexpr (std::is_same_v<D, Tpx32u>) {
            if (n == 0) return run(Unscaled{});
            // Samples are scaled exactly, in two steps that no factor of a sample in range leaves: beyond these
            // limits any number is less than a half, or denormals too are above 2^32. Zero stays 0.
            const int m = clampTo(n, -190, 160);
            return run(TimesTwice{scale<S>(m / 2), scale<S>(m - m / 2)});
        } else {
            return run(Times<S>{scale<S>(n)});
        }
    });
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_CONVERT_REAL(D, L)                                                                               \
    TPX_ENTRY(tpxiConvert_32f##D##_##L##R)                                                                   \
    (const Tpx32f* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize, TpxRoundMode roundMode) { \
        return convertReal<Steps::Tested, Layout::L, Tpx32f, Tpx##D>({pSrc, srcStep}, {pDst, dstStep},       \
                                                                     wide(roiSize), roundMode);              \
    }
#define TPX_CONVERT_REAL_LAYOUTS(D) \
    TPX_CONVERT_REAL(D, C1)         \
    TPX_CONVERT_REAL(D, C3)         \
    TPX_CONVERT_REAL(D, C4)         \
    TPX_CONVERT_REAL(D, AC4)
TPX_CONVERT_REAL_LAYOUTS(8u)
TPX_CONVERT_REAL_LAYOUTS(8s)
TPX_CONVERT_REAL_LAYOUTS(16u)
TPX_CONVERT_REAL_LAYOUTS(16s)
#undef TPX_CONVERT_REAL
#undef TPX_CONVERT_REAL_LAYOUTS

#define TPX_CONVERT_REAL_SFS(S, D)                                                                          \
    TPX_ENTRY(tpxiConvert_##S##D##_C1RSfs)                                                                  \
    (const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize, TpxRoundMode roundMode,  \
     int scaleFactor) {                                                                                     \
        return convertReal<Steps::Free, Layout::C1, Tpx##S, Tpx##D>({pSrc, srcStep}, {pDst, dstStep},       \
                                                                    wide(roiSize), roundMode, scaleFactor); \
    }
TPX_CONVERT_REAL_SFS(32f, 8s)
TPX_CONVERT_REAL_SFS(32f, 8u)
TPX_CONVERT_REAL_SFS(32f, 16s)
TPX_CONVERT_REAL_SFS(32f, 16u)
TPX_CONVERT_REAL_SFS(32f, 32s)
TPX_CONVERT_REAL_SFS(32f, 32u)
TPX_CONVERT_REAL_SFS(64f, 8s)
TPX_CONVERT_REAL_SFS(64f, 8u)
TPX_CONVERT_REAL_SFS(64f, 16s)
TPX_CONVERT_REAL_SFS(64f, 16u)
#undef TPX_CONVERT_REAL_SFS

TPX_ENTRY(tpxiConvert_32f32u_C1IRSfs)
(Tpx32u* pSrcDst, int srcDstStep, TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor) {
    return convertReal<Steps::Free, Layout::C1, Tpx32f, Tpx32u>(
        {reinterpret_cast<const Tpx32f*>(pSrcDst), srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize), roundMode,
        scaleFactor);
}
