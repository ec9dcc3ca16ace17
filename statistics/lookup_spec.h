// SPDX-License-Identifier: Apache-2.0
// What a lookup spec holds, and the identity code that tells its type, layout and interpolation.
#pragma once

#include "frame/entry/checks.h"
#include "frame/memory/caller_memory.h"
#include "statistics/levels.h"
#include "tpxi/statistics.h"

namespace tpx {

// How the values between two levels run.
enum class Curve { Nearest, Linear, Cubic };

// What a channel has besides its table of integers, for searches: an entry for each rank among the levels, of
// which the first and the last stand for samples outside all intervals, which stay, and are not used.
struct LookupSearch {
    Tpx32f* levels;
    ptrdiff_t levelCount;
    void* segments; // Tpx32f for the nearest, else LineSegment or CubicSegment
    Ranking ranking;
};

// value + t * slope, and with the cubic's members + t^2 * square + t^3 * cube, where t = x - origin. Doubles
// lie in pairs, which are read as such.
struct LineSegment {
    Tpx64f origin, value, slope, unused;
};
struct CubicSegment {
    LineSegment line;
    Tpx64f square, cube;
};

// What it points at follows it.
struct LookupSpec {
    Tpx8u* tables[4];         // results by the bits of a sample; integers only
    LookupSearch searches[4]; // floats, and 16s nearest
    Curve curve;              // of the tables and searches, not of the code: cubic ones may be linear
};

// A table's bytes, 0 if there is none; and whether there are searches.
constexpr uint64_t tableBytes(TpxDataType type) {
    return type == tpxDataType32f ? 0 : type == tpxDataType8u ? 256 : 2 * 65536;
}
constexpr bool hasSearch(TpxDataType type, Curve curve) {
    return type == tpxDataType32f || (type == tpxDataType16s && curve == Curve::Nearest);
}

// ---- Layout of the caller's block ------------------------------------------------------------------------

// The identity code stands at the block's begin, which lies at any address, and the record on the next line.
using LookupCode = int;
inline LookupSpec* lookupSpecIn(const TpxiLUT_Spec* block) {
    return alignUp(reinterpret_cast<LookupSpec*>(reinterpret_cast<uintptr_t>(block) + sizeof(LookupCode)));
}

constexpr uint64_t segmentBytes(Curve curve) {
    return curve == Curve::Nearest  ? sizeof(Tpx32f)
           : curve == Curve::Linear ? sizeof(LineSegment)
                                    : sizeof(CubicSegment);
}

struct LookupParts {
    LookupSpec spec; // the record's members
    uint64_t size;   // of a block at any address
};

// Lays out, each on a line, the record and the tables and searches of all channels. `asked` is the curve that
// the caller names.
inline LookupParts layOutLookup(BlockLayout block, TpxDataType type, Curve asked, int channels,
                                const int* nLevels) {
    LookupSpec spec{};
    block.take<LookupSpec>(1);
    spec.curve = asked;
    for (int c = 0; c < channels && asked == Curve::Cubic; c++)
        if (nLevels[c] < 4) spec.curve = Curve::Linear;
    for (int c = 0; c < channels; c++) {
        if (const uint64_t bytes = tableBytes(type)) spec.tables[c] = block.take<Tpx8u>(bytes, kBlockAlignment);
        if (!hasSearch(type, asked)) continue;
        const uint64_t levels = uint64_t(nLevels[c]);
        LookupSearch& search = spec.searches[c];
        search.levelCount = nLevels[c];
        search.levels = block.take<Tpx32f>(levels, kBlockAlignment);
        search.segments = block.take<Tpx8u>((levels + 1) * segmentBytes(spec.curve), kBlockAlignment);
    }
    block.align(kBlockAlignment);
    return {spec, sizeof(LookupCode) + kBlockAlignment - 1 + block.bytes()};
}

// ---- Identity --------------------------------------------------------------------------------------------

// Of the nearest interpolation; the other curves add a step each.
inline constexpr int kLookupCodeStep = 0x10;
template <class T>
constexpr LookupCode lookupCode(Layout layout) {
    const int type = std::is_same_v<T, Tpx8u>    ? 0
                     : std::is_same_v<T, Tpx16u> ? 1
                     : std::is_same_v<T, Tpx16s> ? 2
                                                 : 3;
    return 0x1234567 + 4 * type + int(layout);
}

} // namespace tpx
