// SPDX-License-Identifier: Apache-2.0
// tpxiLUT: samples through functions of levels, from the tables of a spec or by searches in its levels.
#include "frame/entry/entry.h"
#include "frame/images/pixels.h"
#include "frame/images/pointwise.h"
#include "frame/simd/through_real.h"
#include "statistics/lookup_spec.h"

namespace tpx {
namespace {

// ---- Rules: what samples of given ranks become -----------------------------------------------------------

// Segments of interpolated curves, on four samples.
template <class Segment>
V64f onSegments(V64f x, const Segment* segments, const Tpx32s* ranks) {
    const auto gather = [&](ptrdiff_t offset) {
        const auto at = [&](int i) { return reinterpret_cast<const Tpx64f*>(segments + ranks[i]) + offset; };
        return loadPairsAt(at(0), at(1), at(2), at(3));
    };
    const Pair<V64f> start = gather(0), line = gather(2);
    const V64f t = x - start.low;
    V64f y = start.high + t * line.low;
    if constexpr (std::is_same_v<Segment, CubicSegment>) {
        const Pair<V64f> curve = gather(4);
        const V64f square = t * t;
        y = y + square * curve.low + square * t * curve.high;
    }
    return y;
}
template <class Segment>
V32f valuesOf(V32f x, const Segment* segments, const Tpx32s* ranks) {
    const Pair<V64f> wide = widen(x);
    return toFloat(
        Pair<V64f>{onSegments(wide.low, segments, ranks), onSegments(wide.high, segments, ranks + 4)});
}
V32f valuesOf(V32f, const Tpx32f* values, const Tpx32s* ranks) {
    Tpx32f picked[8];
    for (int i = 0; i < 8; i++) picked[i] = values[ranks[i]];
    return load(picked);
}

// Where a sample lies in an interval.
template <class Rank>
B32f isInside(V32f x, const LookupSearch& search, const Tpx32s*, const Rank&) {
    return (x >= splat<V32f>(search.levels[0])) & (x < splat<V32f>(search.levels[search.levelCount - 1]));
}
B32f isInside(V32f, const LookupSearch&, const Tpx32s* ranks, const FirstRanks&) {
    return toFloat(Pair<V32s>{load(ranks), load(ranks + 4)}) != V32f{};
}

// Samples outside all intervals stay. Whole registers are mapped in place.
template <class Segment, class Rank>
void mapRegisters(Tpx32f* samples, ptrdiff_t len, const LookupSearch& search, Rank rank) {
    const auto* segments = static_cast<const Segment*>(search.segments);
    for (ptrdiff_t i = 0; i < len; i += kLanes<Tpx32f>) {
        const V32f x = load(samples + i);
        Tpx32s ranks[8];
        rank(x, ranks);
        const B32f inside = isInside(x, search, ranks, rank);
        store(samples + i, select(inside, valuesOf(x, segments, ranks), x));
    }
}

void mapSearched(Tpx32f* samples, ptrdiff_t len, const LookupSearch& search, Curve curve) {
    withRanks(search.ranking, search.levels, search.levelCount, [&](auto rank) {
        if (curve == Curve::Nearest)
            mapRegisters<Tpx32f>(samples, len, search, rank);
        else if (curve == Curve::Linear)
            mapRegisters<LineSegment>(samples, len, search, rank);
        else
            mapRegisters<CubicSegment>(samples, len, search, rank);
    });
}

// ---- Images by searches: some pixels at a time, taken apart into channels of floats ----------------------

constexpr ptrdiff_t kChunk = 64; // pixels

// Between samples and floats, whole registers.
template <class T>
void toFloats(const T* samples, Tpx32f* floats, ptrdiff_t len) {
    for (ptrdiff_t i = 0; i < len; i += kLanes<Tpx32f>) store(floats + i, loadAs<Tpx32f>(samples + i));
}
void toFloats(const Tpx32f* samples, Tpx32f* floats, ptrdiff_t len) { copyBlock(floats, samples, len * 4); }
void fromFloats(const Tpx32f* floats, Tpx16s* samples, ptrdiff_t len) {
    for (ptrdiff_t i = 0; i < len; i += kLanes<Tpx16s>)
        store(samples + i, narrow<Tpx16s>(toInteger(load(floats + i))));
}
void fromFloats(const Tpx32f* floats, Tpx32f* samples, ptrdiff_t len) { copyBlock(samples, floats, len * 4); }

// Between pixels of C floats and channels, eight pixels at a time: what follows reads registers of floats,
// which would wait for ones that were written as two.
template <int C>
void takeApart(const Tpx32f* pixels, Tpx32f* channels, ptrdiff_t len) {
    const Interleaved<const Tpx32f, C> from(pixels, 0);
    for (ptrdiff_t i = 0; i < len; i += kLanes<Tpx32f>) {
        const Block<C> low = deinterleave<4>(from.load(i)), high = deinterleave<4>(from.load(i + 4));
        for (int c = 0; c < C; c++) store(channels + c * kChunk + i, joinHalves<V32f>(low.at[c], high.at[c]));
    }
}
template <int C>
void putTogether(const Tpx32f* channels, Tpx32f* pixels, ptrdiff_t len) {
    for (ptrdiff_t i = 0; i < len; i += kLanes<Tpx32f>) {
        Block<C> half[2];
        for (int c = 0; c < 2 * C; c++)
            __builtin_memcpy(&half[c / C].at[c % C], channels + c % C * kChunk + i + c / C * 4, kBlockBytes);
        for (auto& block : half) block = interleave<4>(block);
        for (int k = 0; k < C; k++)
            store(pixels + i * C + 8 * k,
                  joinHalves<V32f>(half[2 * k / C].at[2 * k % C], half[(2 * k + 1) / C].at[(2 * k + 1) % C]));
    }
}

template <Layout L, class T>
void searchImage(ImageView<const T> src, ImageView<T> dst, TpxiSizeL roi, const LookupSpec& spec) {
    constexpr int C = channelsOf(L);
    alignas(32) T samples[C * kChunk] = {}, kept[C * kChunk] = {};
    alignas(32) Tpx32f pixels[C * kChunk], apart[C * kChunk];
    Tpx32f* const channels = C == 1 ? pixels : apart;
    const auto row = [&](ptrdiff_t width, const T* s, T* d) {
        for (ptrdiff_t x = 0; x < width; x += C * kChunk) {
            // Whole registers of every channel: beyond the row's end lies what was there before.
            const ptrdiff_t len = width - x < C * kChunk ? width - x : C * kChunk;
            const ptrdiff_t whole = (len / C + 7) / 8 * 8, bytes = len * ptrdiff_t(sizeof(T));
            copyBlock(samples, s + x, bytes);
            if (L == Layout::AC4) copyBlock(kept, d + x, bytes);
            toFloats(samples, pixels, whole * C);
            if constexpr (C > 1) takeApart<C>(pixels, channels, whole);
            for (int c = 0; c < coloursOf(L); c++)
                mapSearched(channels + c * kChunk, whole, spec.searches[c], spec.curve);
            if constexpr (C > 1) putTogether<C>(channels, pixels, whole);
            fromFloats(pixels, samples, whole * C);
            for (ptrdiff_t i = 0; L == Layout::AC4 && i < whole * C; i += kLanes<T>)
                store(samples + i, keepAlpha<T>(load(kept + i), load(samples + i)));
            copyBlock(d + x, samples, bytes);
        }
    };
    walkJoined(samplesOf(roi, C), row, src, dst);
}

// ---- Images ----------------------------------------------------------------------------------------------

// Small images of 16s are not worth reading a table of 128 KB. A search finds what the table holds if levels
// rise.
constexpr int64_t kSearchedPixels = 4096;
template <Layout L>
bool prefersSearch(TpxiSizeL roi, const LookupSpec& spec) {
    bool rise = true;
    for (int c = 0; c < coloursOf(L); c++) rise &= spec.searches[c].ranking != Ranking::First;
    return rise && spec.curve == Curve::Nearest && roi.width * roi.height <= kSearchedPixels;
}

template <Layout L, class T>
TpxStatus lookup(ImageView<const T> src, ImageView<T> dst, TpxiSizeL roi, const TpxiLUT_Spec* memory) {
    if (anyNull(src.data, dst.data) || anyNull(memory)) return tpxErrNullPointer;
    if (src.step < 1 || dst.step < 1) return tpxErrStep;
    if (isEmpty(roi)) return tpxErrSize;
    const LookupCode code = peek(reinterpret_cast<const LookupCode*>(memory));
    constexpr LookupCode kCode = lookupCode<T>(L);
    if (code != kCode && code != kCode + kLookupCodeStep && code != kCode + 2 * kLookupCodeStep)
        return tpxErrBadArgument;
    const LookupSpec& spec = *lookupSpecIn(memory);
    constexpr bool kHasTable = tableBytes(kDataType<T>) != 0;
    if constexpr (hasSearch(kDataType<T>, Curve::Nearest))
        if (!kHasTable || prefersSearch<L>(roi, spec)) {
            searchImage<L>(src, dst, roi, spec);
            return tpxOk;
        }
    if constexpr (kHasTable) {
        using Index = std::make_unsigned_t<T>;
        const Tables tables{{spec.tables[0], spec.tables[1], spec.tables[2], spec.tables[3]}, ~Tpx64u(0)};
        const ImageView<const Index> indices{reinterpret_cast<const Index*>(src.data), src.step};
        mapImageByTables<L, sizeof(T)>(roi, tables, indices, dst.data, dst.step);
    }
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_LUT(T, L)                                                                                         \
    TPX_ENTRY(tpxiLUT_##T##_##L##R)                                                                           \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize,                            \
     const TpxiLUT_Spec* pSpec) {                                                                             \
        return lookup<Layout::L, Tpx##T>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), pSpec);             \
    }                                                                                                         \
    TPX_ENTRY(tpxiLUT_##T##_##L##IR)                                                                          \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec) {                         \
        return lookup<Layout::L, Tpx##T>({pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize), pSpec); \
    }
#define TPX_LUT_LAYOUTS(T) \
    TPX_LUT(T, C1)         \
    TPX_LUT(T, C3)         \
    TPX_LUT(T, C4)         \
    TPX_LUT(T, AC4)
TPX_LUT_LAYOUTS(8u)
TPX_LUT_LAYOUTS(16u)
TPX_LUT_LAYOUTS(16s)
TPX_LUT_LAYOUTS(32f)
#undef TPX_LUT
#undef TPX_LUT_LAYOUTS
