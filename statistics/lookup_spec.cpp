// SPDX-License-Identifier: Apache-2.0
// tpxiLUT_GetSize, tpxiLUT_Init: tables and polynomials between levels.
#include "statistics/lookup_spec.h"

#include "frame/entry/entry.h"
#include "frame/simd/through_real.h"

namespace tpx {
namespace {

// ---- Polynomials -----------------------------------------------------------------------------------------

template <class L>
LineSegment lineThrough(const L* levels, const L* values, ptrdiff_t k) {
    const Tpx64f low = peek(levels + k), high = peek(levels + k + 1);
    const Tpx64f value = peek(values + k);
    return {low, value, (peek(values + k + 1) - value) / (high - low), 0};
}

// The cubic of interval k, through four levels of n: from the one before k on where there are four. Among them
// the second is the origin. Levels that repeat have no cubic; the interval's line takes its place.
template <class L>
CubicSegment cubicThrough(const L* levels, const L* values, ptrdiff_t k, ptrdiff_t n) {
    const ptrdiff_t j = k < 1 ? 0 : k - 1 < n - 4 ? k - 1 : n - 4;
    const Tpx64f origin = peek(levels + j + 1), value = peek(values + j + 1);
    const Tpx64f t0 = peek(levels + j) - origin, v0 = peek(values + j) - value;
    const Tpx64f t2 = peek(levels + j + 2) - origin, v2 = peek(values + j + 2) - value;
    const Tpx64f t3 = peek(levels + j + 3) - origin, v3 = peek(values + j + 3) - value;
    // Cramer's rule. All minors of the columns t, t^2, t^3 have a factor of this kind.
    const Tpx64f m23 = v0 * (t2 * t3 * (t3 - t2)), m03 = v2 * (t0 * t3 * (t3 - t0)),
                 m02 = v3 * (t0 * t2 * (t2 - t0));
    const Tpx64f determinant = t0 * t2 * t3 * ((t2 - t0) * (t3 - t0) * (t3 - t2));
    if (determinant == 0) return {lineThrough(levels, values, k), 0, 0};
    const Tpx64f slope = (m23 * (t2 * t3) - m03 * (t0 * t3) + m02 * (t0 * t2)) / determinant;
    const Tpx64f square = (m03 * (t0 + t3) - m23 * (t2 + t3) - m02 * (t0 + t2)) / determinant;
    const Tpx64f cube = (m23 - m03 + m02) / determinant;
    return {{origin, value, slope, 0}, square, cube};
}

// ---- Tables of integers ----------------------------------------------------------------------------------

// What the samples of interval k become before they are truncated.
CubicSegment segmentOf(Curve curve, const Tpx32s* levels, const Tpx32s* values, ptrdiff_t k, ptrdiff_t n) {
    if (curve == Curve::Cubic) {
        CubicSegment cubic = cubicThrough(levels, values, k, n);
        cubic.line.value += 0.5;
        return cubic;
    }
    LineSegment line = lineThrough(levels, values, k);
    if (curve == Curve::Nearest || Tpx64s(peek(levels + k + 1)) - peek(levels + k) == 1)
        line.slope = 0; // the value as it is, also a negative one
    else
        line = {0, line.value + 0.5 - line.origin * line.slope, line.slope, 0};
    return {line, 0, 0};
}

// table[x] for begin <= x < end.
template <class T>
void fillTable(T* table, int begin, int end, const CubicSegment& segment) {
    constexpr int kLanes4 = kLanes<Tpx64f>;
    const auto of = [](Tpx64f x) { return splat<V64f>(x); };
    for (int x = begin; x < end; x += kLanes4) {
        const V64f t = V64f{0, 1, 2, 3} + of(x) - of(segment.line.origin), square = t * t;
        const V64f curve = of(segment.line.value) + t * of(segment.line.slope) + square * of(segment.square) +
                           square * t * of(segment.cube);
        const V64f limited = minOf(maxOf(curve, of(kMin<T>)), of(kMax<T>));
        Tpx32s results[kLanes4];
        store(results, toIntegerTruncated(limited));
        for (int i = 0; i < kLanes4 && x + i < end; i++) table[std::make_unsigned_t<T>(x + i)] = T(results[i]);
    }
}

// Samples outside all intervals stay.
template <class T>
void buildTable(T* table, Curve curve, const Tpx32s* levels, const Tpx32s* values, ptrdiff_t n) {
    for (int x = 0; x <= int(std::make_unsigned_t<T>(~0)); x++) table[x] = T(x);
    const auto limited = [&](ptrdiff_t k) { return clampTo(peek(levels + k), kMin<T>, kMax<T> + 1); };
    for (ptrdiff_t k = 0; k + 1 < n; k++)
        if (limited(k) < limited(k + 1))
            fillTable(table, limited(k), limited(k + 1), segmentOf(curve, levels, values, k, n));
}

// ---- Searches --------------------------------------------------------------------------------------------

// Levels and values of 16s come limited to what a sample can be, and can meet.
template <class T, class L>
Tpx32f searchedLevel(const L* levels, ptrdiff_t k) {
    if constexpr (std::is_integral_v<T>)
        return Tpx32f(clampTo(peek(levels + k), kMin<T>, kMax<T> + 1));
    else
        return peek(levels + k);
}
template <class T, class L>
Tpx32f searchedValue(const L* values, ptrdiff_t k) {
    if constexpr (std::is_integral_v<T>)
        return Tpx32f(clampTo(peek(values + k), kMin<T>, kMax<T>));
    else
        return peek(values + k);
}

template <class T, class L>
void buildSearch(LookupSearch& search, Curve curve, const L* levels, const L* values) {
    const ptrdiff_t n = search.levelCount;
    for (ptrdiff_t k = 0; k < n; k++) search.levels[k] = searchedLevel<T>(levels, k);
    __builtin_memset(search.segments, 0, size_t(n + 1) * segmentBytes(curve));
    for (ptrdiff_t k = 0; k + 1 < n; k++) {
        if (curve == Curve::Nearest)
            static_cast<Tpx32f*>(search.segments)[k + 1] = searchedValue<T>(values, k);
        else if (curve == Curve::Linear)
            static_cast<LineSegment*>(search.segments)[k + 1] = lineThrough(levels, values, k);
        else
            static_cast<CubicSegment*>(search.segments)[k + 1] = cubicThrough(levels, values, k, n);
    }
    constexpr uint64_t kManySamples = UINT64_MAX; // all that will ever be searched
    search.ranking = rankingOf(search.levels, n, kManySamples);
}

// ---- Codes -----------------------------------------------------------------------------------------------

// The channels that have a level count; of an unknown layout nothing but the first is known to be there.
constexpr int levelChannels(TpxChannelCode layout) {
    return layout == tpxChannelC4 ? 4 : layout == tpxChannelC3 || layout == tpxChannelAC4 ? 3 : 1;
}
constexpr bool isLayout(TpxChannelCode layout) {
    return layout == tpxChannelC1 || layout == tpxChannelC3 || layout == tpxChannelC4 ||
           layout == tpxChannelAC4;
}
constexpr bool isInterpolation(TpxInterpolationType interpolation) {
    return interpolation == tpxInterpolationNearest || interpolation == tpxInterpolationLinear ||
           interpolation == tpxInterpolationCubic;
}
constexpr Curve curveOf(TpxInterpolationType interpolation) {
    return interpolation == tpxInterpolationNearest  ? Curve::Nearest
           : interpolation == tpxInterpolationLinear ? Curve::Linear
                                                     : Curve::Cubic;
}

TpxStatus checkLevels(TpxChannelCode layout, const int* nLevels) {
    for (int c = 0; c < levelChannels(layout); c++)
        if (nLevels[c] < 2) return tpxErrLutLevels;
    return isLayout(layout) ? tpxOk : tpxErrChannelIndex;
}

// ---- Operations ------------------------------------------------------------------------------------------

TpxStatus getSize(TpxInterpolationType interpolation, TpxDataType dataType, TpxChannelCode layout,
                  TpxiSize roiSize, const int* nLevels, int* specSize) {
    if (!isInterpolation(interpolation)) return tpxErrInterpolation;
    if (anyNull(nLevels, specSize)) return tpxErrNullPointer;
    if (isEmpty(roiSize)) return tpxErrSize;
    if (const TpxStatus status = checkLevels(layout, nLevels)) return status;
    if (!isDataType(dataType)) return tpxErrDataType;
    const LookupParts parts =
        layOutLookup(BlockLayout(), dataType, curveOf(interpolation), levelChannels(layout), nLevels);
    if (parts.size > kLongestBlock) return tpxErrSizeTooLarge;
    *specSize = int(parts.size);
    return tpxOk;
}

template <class T, class L>
TpxStatus init(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
               const L* const* values, const L* const* levels, const int* nLevels, TpxiLUT_Spec* memory) {
    auto code = reinterpret_cast<LookupCode*>(memory);
    if (code) poke(code, 0);
    if (!isInterpolation(interpolation)) return tpxErrInterpolation;
    if (isEmpty(roiSize)) return tpxErrSize;
    if (anyNull(values, levels, nLevels, memory)) return tpxErrNullPointer;
    const int channels = levelChannels(layout);
    for (int c = 0; c < channels; c++)
        if (anyNull(values[c], levels[c])) return tpxErrNullPointer;
    if (const TpxStatus status = checkLevels(layout, nLevels)) return status;

    LookupSpec* const record = lookupSpecIn(memory);
    const Curve curve = curveOf(interpolation);
    LookupParts parts = layOutLookup(BlockLayout(record), kDataType<T>, curve, channels, nLevels);
    if (parts.size > kLongestBlock) return tpxErrSizeTooLarge;
    LookupSpec& spec = parts.spec;
    for (int c = 0; c < channels; c++) {
        if constexpr (tableBytes(kDataType<T>) != 0)
            buildTable(reinterpret_cast<T*>(spec.tables[c]), spec.curve, levels[c], values[c], nLevels[c]);
        if (hasSearch(kDataType<T>, curve)) buildSearch<T>(spec.searches[c], spec.curve, levels[c], values[c]);
    }
    *record = spec;
    const Layout kind = layout == tpxChannelAC4  ? Layout::AC4
                        : layout == tpxChannelC1 ? Layout::C1
                        : layout == tpxChannelC3 ? Layout::C3
                                                 : Layout::C4;
    poke(code, lookupCode<T>(kind) + int(curve) * kLookupCodeStep);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiLUT_GetSize)
(TpxInterpolationType interpolation, TpxDataType dataType, TpxChannelCode layout, TpxiSize roiSize,
 const int nLevels[], int* pSpecSize) {
    return getSize(interpolation, dataType, layout, roiSize, nLevels, pSpecSize);
}

#define TPX_LUT_INIT(T, L)                                                                                     \
    TPX_ENTRY(tpxiLUT_Init_##T)                                                                                \
    (TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,                              \
     const Tpx##L* const pValues[], const Tpx##L* const pLevels[], const int nLevels[], TpxiLUT_Spec* pSpec) { \
        return init<Tpx##T>(interpolation, layout, roiSize, pValues, pLevels, nLevels, pSpec);                 \
    }
TPX_LUT_INIT(8u, 32s)
TPX_LUT_INIT(16u, 32s)
TPX_LUT_INIT(16s, 32s)
TPX_LUT_INIT(32f, 32f)
#undef TPX_LUT_INIT
