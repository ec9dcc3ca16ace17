// SPDX-License-Identifier: Apache-2.0
// tpxiHistogramGetBufferSize, tpxiHistogramInit, tpxiHistogramUniformInit, tpxiHistogramGetLevels: the spec.
#include "statistics/histogram_spec.h"

#include "frame/entry/checks.h"
#include "frame/entry/entry.h"
#include "frame/images/view.h"

namespace tpx {
namespace {

bool isChannelCount(int n) { return n == 1 || n == 3 || n == 4; }

// ---- Levels ----------------------------------------------------------------------------------------------

// A level as an integer, limited to the type; NaN gives the smallest.
Tpx32s truncated(Tpx32f x) {
    constexpr Tpx32f kBeyond = 2147483648.0f;
    return x >= kBeyond ? kMax<Tpx32s> : x >= -kBeyond ? Tpx32s(x) : kMin<Tpx32s>;
}
Tpx32s ceiling(Tpx32f x) {
    const Tpx32s level = truncated(x);
    return level + (level != kMax<Tpx32s> && Tpx32f(level) < x);
}

// Levels at one distance, which rise, whatever is rounded; NaN comes of infinite bounds.
struct UniformLevels {
    Tpx32f lower, upper, distance;
    ptrdiff_t last;

    UniformLevels(Tpx32f lowerLevel, Tpx32f upperLevel, int count)
        : lower(lowerLevel),
          upper(upperLevel),
          distance((upper - lower) / Tpx32f(ptrdiff_t(count) - 1)),
          last(ptrdiff_t(count) - 1) {}

    Tpx32f operator()(ptrdiff_t k) const {
        const Tpx32f x = k == last ? upper : lower + distance * Tpx32f(k);
        return x >= upper ? upper : x > lower ? x : lower;
    }
};

// level(k) is the level to be stored.
template <class Level>
void storeLevels(Tpx8u* storage, ptrdiff_t count, Level level) {
    using L = decltype(level(0));
    for (ptrdiff_t k = 0; k < count; k++) poke(reinterpret_cast<L*>(storage) + k, level(k));
}

// ---- Initialisers ----------------------------------------------------------------------------------------

// Checks, then stores the spec: check(c) does so for a channel and may give a warning; store(c, levels, &step)
// stores a channel's levels. The identity is 0 until all is done.
template <class Check, class Store, class... Arrays>
TpxStatus init(TpxHistogramSpec* pSpec, TpxDataType dataType, int nChannels, bool uniform, const int* nLevels,
               Check check, Store store, const Arrays*... arrays) {
    if (pSpec) poke(reinterpret_cast<int*>(addBytes(pSpec, offsetof(HistogramSpec, identity))), 0);
    if (!isDataType(dataType)) return tpxErrDataType;
    if (anyNull(pSpec, nLevels, arrays...)) return tpxErrNullPointer;
    if (!isChannelCount(nChannels)) return tpxErrChannelCount;
    TpxStatus warning = tpxOk;
    for (int c = 0; c < nChannels; c++) {
        const TpxStatus status = check(c);
        if (status < tpxOk) return status;
        if (status > tpxOk) warning = status;
    }
    BlockLayout block(pSpec);
    const HistogramParts parts = layOutHistogram(block, nChannels, nLevels);
    HistogramSpec spec = {dataType, nChannels, uniform, kHistogramIdentity, {}, {}, {}};
    for (int c = 0; c < nChannels; c++) {
        spec.nLevels[c] = nLevels[c];
        spec.levels[c] = parts.levels[c];
        store(c, parts.levels[c], spec.step[c]);
    }
    poke(parts.record, spec);
    return warning;
}

TpxStatus initLevels(TpxDataType dataType, const Tpx32f* const* pLevels, const int* nLevels, int nChannels,
                     TpxHistogramSpec* pSpec) {
    const auto check = [=](int c) {
        const Tpx32f* levels = pLevels[c];
        if (!levels) return tpxErrNullPointer;
        if (nLevels[c] < 2) return tpxErrHistogramLevels;
        for (ptrdiff_t k = 1; k < nLevels[c]; k++)
            if (!(peek(levels + k - 1) < peek(levels + k))) return tpxErrRange;
        return tpxOk;
    };
    const auto store = [=](int c, Tpx8u* to, Tpx32f&) {
        const Tpx32f* levels = pLevels[c];
        if (dataType == tpxDataType32f)
            storeLevels(to, nLevels[c], [=](ptrdiff_t k) { return peek(levels + k); });
        else
            storeLevels(to, nLevels[c], [=](ptrdiff_t k) { return ceiling(peek(levels + k)); });
    };
    return init(pSpec, dataType, nChannels, false, nLevels, check, store, pLevels);
}

TpxStatus initUniform(TpxDataType dataType, const Tpx32f* lowerLevel, const Tpx32f* upperLevel,
                      const int* nLevels, int nChannels, TpxHistogramSpec* pSpec) {
    const auto levelsOf = [=](int c) {
        return UniformLevels(peek(lowerLevel + c), peek(upperLevel + c), nLevels[c]);
    };
    const auto check = [=](int c) {
        if (nLevels[c] < 2) return tpxErrHistogramLevels;
        const UniformLevels levels = levelsOf(c);
        if (!(levels.lower < levels.upper)) return tpxErrRange;
        return dataType != tpxDataType32f && levels.distance < 1 ? tpxWarnValueAdjusted : tpxOk;
    };
    const auto store = [=](int c, Tpx8u* to, Tpx32f& step) {
        const UniformLevels levels = levelsOf(c);
        step = levels.distance;
        if (dataType == tpxDataType32f)
            storeLevels(to, nLevels[c], levels);
        else
            storeLevels(to, nLevels[c], [&](ptrdiff_t k) { return truncated(levels(k)); });
    };
    return init(pSpec, dataType, nChannels, true, nLevels, check, store, lowerLevel, upperLevel);
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiHistogramGetBufferSize)
(TpxDataType dataType, TpxiSize roiSize, const int nLevels[], int nChannels, int, int* pSpecSize,
 int* pBufferSize) {
    if (anyNull(nLevels, pSpecSize, pBufferSize)) return tpxErrNullPointer;
    if (isEmpty(roiSize)) return tpxErrSize;
    if (!isChannelCount(nChannels)) return tpxErrChannelCount;
    for (int c = 0; c < nChannels; c++)
        if (nLevels[c] < 2) return tpxErrHistogramLevels;
    BlockLayout spec, buffer;
    layOutHistogram(spec, nChannels, nLevels);
    if (spec.bytes() > kLongestBlock) return tpxErrSizeTooLarge;
    *pSpecSize = int(spec.bytes());
    if (!isDataType(dataType)) return tpxErrDataType;
    Counter* tables[4];
    layOutTables(buffer, dataType, nChannels, tables);
    *pBufferSize = int(buffer.bytes());
    return tpxOk;
}

TPX_ENTRY(tpxiHistogramInit)
(TpxDataType dataType, const Tpx32f* const pLevels[], const int nLevels[], int nChannels,
 TpxHistogramSpec* pSpec) {
    return initLevels(dataType, pLevels, nLevels, nChannels, pSpec);
}

TPX_ENTRY(tpxiHistogramUniformInit)
(TpxDataType dataType, const Tpx32f lowerLevel[], const Tpx32f upperLevel[], const int nLevels[], int nChannels,
 TpxHistogramSpec* pSpec) {
    return initUniform(dataType, lowerLevel, upperLevel, nLevels, nChannels, pSpec);
}

TPX_ENTRY(tpxiHistogramGetLevels)(const TpxHistogramSpec* pSpec, Tpx32f* const pLevels[]) {
    if (anyNull(pSpec, pLevels)) return tpxErrNullPointer;
    const HistogramSpec spec = peek(reinterpret_cast<const HistogramSpec*>(pSpec));
    if (spec.identity != kHistogramIdentity) return tpxErrBadArgument;
    for (int c = 0; c < spec.nChannels; c++)
        if (!pLevels[c]) return tpxErrNullPointer;
    for (int c = 0; c < spec.nChannels; c++) {
        auto to = reinterpret_cast<Tpx8u*>(pLevels[c]);
        if (spec.dataType == tpxDataType32f)
            storeLevels(to, spec.nLevels[c], [&](ptrdiff_t k) { return peek(levelsOf<Tpx32f>(spec, c) + k); });
        else
            storeLevels(to, spec.nLevels[c],
                        [&](ptrdiff_t k) { return Tpx32f(peek(levelsOf<Tpx32s>(spec, c) + k)); });
    }
    return tpxOk;
}
