// SPDX-License-Identifier: Apache-2.0
// What a histogram spec holds, and where it lies in the caller's memory.
#pragma once

#include "frame/memory/caller_memory.h"
#include "frame/simd/core.h"
#include "tpxi/statistics.h"

namespace tpx {

// Fields of absent channels are 0. The identity tells a spec that is ready.
struct HistogramSpec {
    TpxDataType dataType;
    int nChannels, uniform, identity;
    int nLevels[4];
    Tpx8u* levels[4]; // integers of 32 bits or floats, at any address; they rise, though they may repeat
    Tpx32f step[4];
};

inline constexpr int kHistogramIdentity = 0x74736968; // "hist"
inline constexpr ptrdiff_t kLevelBytes = 4;

template <class L>
inline const L* levelsOf(const HistogramSpec& spec, int channel) {
    static_assert(sizeof(L) == kLevelBytes);
    return reinterpret_cast<const L*>(spec.levels[channel]);
}

// A counter at any address.
typedef Tpx32u Counter __attribute__((aligned(1), may_alias));

// ---- Layout of the callers' blocks -----------------------------------------------------------------------

// A spec: the record, and the levels of all channels back to back.
//
// The size is fixed by contract to the byte, 80 + 4 * the count of all levels. So nothing is aligned or spare:
// the record, too, is read and written at any address.
struct HistogramParts {
    HistogramSpec* record;
    Tpx8u* levels[4];
};
static_assert(sizeof(HistogramSpec) == 80);

inline HistogramParts layOutHistogram(BlockLayout& block, int nChannels, const int* nLevels) {
    HistogramParts parts = {block.take<HistogramSpec>(1), {}};
    for (int c = 0; c < nChannels; c++) parts.levels[c] = block.take<Tpx8u>(uint64_t(nLevels[c]) * kLevelBytes);
    return parts;
}

// A work buffer: for each channel a table with a counter for every value of a sample. Its size is fixed by
// contract as well: floats need none, and bytes, though they have theirs, are counted in tables on the stack.
inline void layOutTables(BlockLayout& block, TpxDataType dataType, int nChannels, Counter** tables) {
    const uint64_t values = dataType == tpxDataType32f ? 0 : dataType == tpxDataType8u ? 256 : 65536;
    for (int c = 0; c < nChannels; c++) tables[c] = block.take<Tpx32u>(values);
}

} // namespace tpx
