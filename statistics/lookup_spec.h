// What a lookup spec holds, and the identity code that tells its type, layout and interpolation.
#pragma once

#include "frame/images/walk.h"
#include "statistics/levels.h"
#include "tpxi/statistics.h"

namespace tpx {

// How the values between two levels run.
enum class Curve { Nearest, Linear, Cubic };

// What a channel has besides its table of integers, for searches: an entry for each rank among the levels, of
// which the first and the last stand for samples outside all intervals, which stay, and are not used.
struct LookupSearch {
    const Tpx32f* levels;
    ptrdiff_t levelCount;
    const void* segments; // Tpx32f for the nearest, else LineSegment or CubicSegment
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

// In the caller's memory on a boundary of 64 bytes, behind the code. What it points at follows it.
struct LookupSpec {
    const Tpx8u* tables[4];   // results by the bits of a sample; integers only
    LookupSearch searches[4]; // floats, and 16s nearest
    Curve curve;              // of the tables and searches, not of the code: cubic ones may be linear
};

inline constexpr uint64_t kLine = 64;
inline uint64_t roundToLines(uint64_t bytes) { return (bytes + kLine - 1) / kLine * kLine; }

inline LookupSpec* lookupSpecIn(const TpxiLUT_Spec* memory) {
    return reinterpret_cast<LookupSpec*>(roundToLines(reinterpret_cast<uintptr_t>(memory) + sizeof(int)));
}

// Whether there is a table, and whether there are searches.
template <class T>
inline constexpr bool kHasTable = std::is_integral_v<T>;
template <class T>
constexpr bool hasSearch(Curve curve) {
    return !kHasTable<T> || (std::is_same_v<T, Tpx16s> && curve == Curve::Nearest);
}

// Of the nearest interpolation; the other curves add a step each.
inline constexpr int kLookupCodeStep = 0x10;
template <class T>
constexpr int lookupCode(Layout layout) {
    const int type = std::is_same_v<T, Tpx8u> ? 0 : std::is_same_v<T, Tpx16u> ? 1 : kHasTable<T> ? 2 : 3;
    return 0x1234567 + 4 * type + int(layout);
}

} // namespace tpx
