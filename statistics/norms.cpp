// SPDX-License-Identifier: Apache-2.0
// Norms of an image, of the difference of two, and of the difference relative to the second.
#include "frame/entry/entry.h"
#include "frame/runs/routines.h"
#include "statistics/extremes.h"
#include "statistics/lanes.h"

namespace tpx {
namespace {

// ---- Terms ----------------------------------------------------------------------------------------------

// |x|, and the exact |x - y|; of integers, as unsigned ones.
struct Magnitude {
    static V32f of(V32f x) { return absSat(x); }
    static V64f of(V64f x) { return absSat(x); }
    static V32f of(V32f x, V32f y) { return absSat(x - y); }
    static V64f of(V64f x, V64f y) { return absSat(x - y); }

    template <class V>
    static auto of(V x) {
        return magnitude(x);
    }
    static V8u of(V8u x, V8u y) { return subSat(x, y) | subSat(y, x); }
    static V16u of(V16u x, V16u y) { return subSat(x, y) | subSat(y, x); }
    static V16u of(V16s x, V16s y) { return V16u(maxOf(x, y)) - V16u(minOf(x, y)); }
};
struct Square {
    template <class V>
    static V of(V x) {
        return x * x;
    }
    template <class V>
    static V of(V x, V y) {
        return (x - y) * (x - y);
    }
};

// ---- Kinds of norms, by the type of samples and by their channels -----------------------------------------
//
//   OfImage, OfDifference   the lanes of one image and of the difference of two
//   norm(x)                 what comes of a channel's value
// Real is the type in which terms of floats are worked on and added; those of integers are exact.

// What |x| of T is in.
template <class T>
struct MagnitudeOf {
    using type = std::make_unsigned_t<T>;
};
template <>
struct MagnitudeOf<Tpx32f> {
    using type = Tpx32f;
};
template <class T>
using Magnitudes = typename MagnitudeOf<T>::type;

template <class T, int Channels>
struct NormOf {
    using Sample = T;
    static constexpr int C = Channels;
};

template <class T, int C, int N>
struct LargestMagnitude : TermLanes<T, Magnitude, ExtremeLanes<Magnitudes<T>, C, Most, N>> {
    auto values() const {
        const auto largest = ExtremeLanes<Magnitudes<T>, C, Most, N>::values();
        Values<C, Tpx64f> norms;
        for (int c = 0; c < C; c++)
            norms.of[c] = largest.of[c] > 0 ? Tpx64f(largest.of[c]) : 0; // nothing but NaN is 0
        return norms;
    }
};

template <class T, int C, class Real = T>
struct Inf : NormOf<T, C> {
    using OfImage = LargestMagnitude<T, C, kExtremeRegisters<T, C>>;
    using OfDifference = LargestMagnitude<T, C, C == 3 ? 3 : 4>;
    static Tpx64f norm(Tpx64f largest) { return largest; }
};

template <class T, int C, class Real = T>
struct L1 : NormOf<T, C> {
    template <class Lanes>
    using Magnified = TermLanes<T, Magnitude, Lanes>;
    using Halves = HalfLanes<Magnitudes<T>, C>;
    using OfImage = Magnified<std::conditional_t<std::is_signed_v<T>, Halves, SumLanes<Magnitudes<T>, C>>>;
    using OfDifference =
        std::conditional_t<std::is_same_v<T, Tpx8u> && C == 1, ByteDifferences, Magnified<Halves>>;
    static Tpx64f norm(Tpx64f sum) { return sum; }
};
template <int C, class Real>
struct L1<Tpx32f, C, Real> : NormOf<Tpx32f, C> {
    using OfImage = RealLanes<Tpx32f, C, Real, Real, Magnitude>;
    using OfDifference = OfImage;
    static Tpx64f norm(Tpx64f sum) { return sum; }
};

inline Tpx64f rootOf(Tpx64f sum) { return TPXS(SqrtOne)(sum); }

template <class T, int C, class Real = T>
struct L2 : NormOf<T, C> {
    using OfImage = SquareLanes<T, C>;
    using OfDifference = TermLanes<T, Magnitude, SquareLanes<Magnitudes<T>, C>>;
    static Tpx64f norm(Tpx64f sum) { return rootOf(sum); }
};
template <int C, class Real>
struct L2<Tpx32f, C, Real> : NormOf<Tpx32f, C> {
    using OfImage = RealLanes<Tpx32f, C, Real, Real, Square>;
    using OfDifference = OfImage;
    static Tpx64f norm(Tpx64f sum) { return rootOf(sum); }
};

// ---- Images ----------------------------------------------------------------------------------------------

template <class Norm>
using Source = ImageView<const typename Norm::Sample>;

template <class Norm>
TpxStatus norm(Source<Norm> src, TpxiSizeL size, Tpx64f* values) {
    if (anyNull(src.data) || anyNull(values)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;
    if (src.step < 1) return tpxErrStep;

    const auto sums = reduce<typename Norm::OfImage>(samplesOf(size, Norm::C), src);
    for (int c = 0; c < Norm::C; c++) values[c] = Norm::norm(sums.of[c]);
    return tpxOk;
}

// Of two images.
template <class T>
TpxStatus check(ImageView<const T> src1, ImageView<const T> src2, TpxiSizeL size, const Tpx64f* values) {
    if (anyNull(src1.data, src2.data) || anyNull(values)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;
    return src1.step < 1 || src2.step < 1 ? tpxErrStep : tpxOk;
}

template <class Norm>
TpxStatus normOfDifference(Source<Norm> src1, Source<Norm> src2, TpxiSizeL size, Tpx64f* values) {
    if (const TpxStatus status = check(src1, src2, size, values)) return status;

    const auto sums = reduce<typename Norm::OfDifference>(samplesOf(size, Norm::C), src1, src2);
    for (int c = 0; c < Norm::C; c++) values[c] = Norm::norm(sums.of[c]);
    return tpxOk;
}

// Of real numbers, those below the smallest normal one are taken for 0.
template <class T>
bool isZero(Tpx64f x) {
    return std::is_same_v<T, Tpx32f> ? x < 0x1p-1022 : x == 0;
}

// Runs are cut into pieces that stay in the first-level cache for the second pass, over the reference alone.
constexpr ptrdiff_t kPiece = 3072;

template <class Norm>
TpxStatus relativeNorm(Source<Norm> src, Source<Norm> ref, TpxiSizeL size, Tpx64f* values) {
    using T = typename Norm::Sample;
    if (const TpxStatus status = check(src, ref, size, values)) return status;

    Reduction<typename Norm::OfDifference> difference;
    Reduction<typename Norm::OfImage> reference;
    const auto run = [&](ptrdiff_t len, const T* x, const T* y) {
        for (ptrdiff_t i = 0; i < len; i += kPiece) {
            const ptrdiff_t piece = len - i < kPiece ? len - i : kPiece;
            difference.take(piece, x + i, y + i);
            reference.take(piece, y + i);
        }
    };
    walkJoined(samplesOf(size, Norm::C), run, src, ref);
    const auto overs = difference.values(), unders = reference.values();
    TpxStatus status = tpxOk;
    for (int c = 0; c < Norm::C; c++) {
        const Tpx64f over = overs.of[c], under = unders.of[c];
        if (isZero<T>(under)) {
            values[c] = isZero<T>(over) ? __builtin_bit_cast(Tpx64f, 0xFFF8000000000000) : __builtin_huge_val();
            status = tpxWarnDivByZero;
        } else {
            values[c] = Norm::norm(over / under);
        }
    }
    return status;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_NORMS(T, C, Kind)                                                                                  \
    TPX_ENTRY(tpxiNorm_##Kind##_##T##_C##C##R)                                                                 \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue) {                                      \
        return norm<Kind<Tpx##T, C>>({pSrc, srcStep}, wide(roiSize), pValue);                                  \
    }                                                                                                          \
    TPX_ENTRY(tpxiNormDiff_##Kind##_##T##_C##C##R)                                                             \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, TpxiSize roiSize, Tpx64f* pValue) { \
        return normOfDifference<Kind<Tpx##T, C>>({pSrc1, src1Step}, {pSrc2, src2Step}, wide(roiSize), pValue); \
    }                                                                                                          \
    TPX_ENTRY(tpxiNormRel_##Kind##_##T##_C##C##R)                                                              \
    (const Tpx##T* pSrc, int srcStep, const Tpx##T* pSrcRef, int srcRefStep, TpxiSize roiSize,                 \
     Tpx64f* pValue) {                                                                                         \
        return relativeNorm<Kind<Tpx##T, C>>({pSrc, srcStep}, {pSrcRef, srcRefStep}, wide(roiSize), pValue);   \
    }
// Sums of floats, in the precision that the hint asks for.
#define TPX_NORMS_HINTED(T, C, Kind)                                                                           \
    TPX_ENTRY(tpxiNorm_##Kind##_##T##_C##C##R)                                                                 \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint) {               \
        const auto f = hint == tpxHintAccurate ? norm<Kind<Tpx##T, C, Tpx64f>> : norm<Kind<Tpx##T, C>>;        \
        return f({pSrc, srcStep}, wide(roiSize), pValue);                                                      \
    }                                                                                                          \
    TPX_ENTRY(tpxiNormDiff_##Kind##_##T##_C##C##R)                                                             \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, TpxiSize roiSize, Tpx64f* pValue,   \
     TpxHintAlgorithm hint) {                                                                                  \
        const auto f = hint == tpxHintAccurate ? normOfDifference<Kind<Tpx##T, C, Tpx64f>>                     \
                                               : normOfDifference<Kind<Tpx##T, C>>;                            \
        return f({pSrc1, src1Step}, {pSrc2, src2Step}, wide(roiSize), pValue);                                 \
    }                                                                                                          \
    TPX_ENTRY(tpxiNormRel_##Kind##_##T##_C##C##R)                                                              \
    (const Tpx##T* pSrc, int srcStep, const Tpx##T* pSrcRef, int srcRefStep, TpxiSize roiSize, Tpx64f* pValue, \
     TpxHintAlgorithm hint) {                                                                                  \
        const auto f =                                                                                         \
            hint == tpxHintAccurate ? relativeNorm<Kind<Tpx##T, C, Tpx64f>> : relativeNorm<Kind<Tpx##T, C>>;   \
        return f({pSrc, srcStep}, {pSrcRef, srcRefStep}, wide(roiSize), pValue);                               \
    }
#define TPX_CHANNELS(INSTANCE, T, Kind) \
    INSTANCE(T, 1, Kind)                \
    INSTANCE(T, 3, Kind)                \
    INSTANCE(T, 4, Kind)
TPX_CHANNELS(TPX_NORMS, 8u, Inf)
TPX_CHANNELS(TPX_NORMS, 16u, Inf)
TPX_CHANNELS(TPX_NORMS, 16s, Inf)
TPX_CHANNELS(TPX_NORMS, 32f, Inf)
TPX_CHANNELS(TPX_NORMS, 8u, L1)
TPX_CHANNELS(TPX_NORMS, 16u, L1)
TPX_CHANNELS(TPX_NORMS, 16s, L1)
TPX_CHANNELS(TPX_NORMS_HINTED, 32f, L1)
TPX_CHANNELS(TPX_NORMS, 8u, L2)
TPX_CHANNELS(TPX_NORMS, 16u, L2)
TPX_CHANNELS(TPX_NORMS, 16s, L2)
TPX_CHANNELS(TPX_NORMS_HINTED, 32f, L2)
#undef TPX_NORMS
#undef TPX_NORMS_HINTED
#undef TPX_CHANNELS
