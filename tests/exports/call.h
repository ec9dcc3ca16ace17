// SPDX-License-Identifier: Apache-2.0
// Calls an export that works on a region: its images are given, all else is made up from the parameters' names.
#pragma once

#include <functional>

#include "tests/exports/export.h"

namespace tpx::test {

enum Side { kFirst, kSecond, kMask, kDst, kSides };
inline constexpr Side kSources[] = {kFirst, kSecond, kMask};

// An image; of several planes the first one, and the distance to the next.
struct Place {
    Tpx8u* data;
    ptrdiff_t step, plane;
};
struct Places {
    Place of[kSides];
    Place& operator[](Side side) { return of[side]; }
    const Place& operator[](Side side) const { return of[side]; }
};

// Results that are no image: so many bytes for each.
inline constexpr size_t kOutBytes = 64;
struct Outs {
    Tpx8u bytes[4][kOutBytes];
};

// Scale factors, modes, offsets, orders: the number of different sets, and the set of a call.
int variantsOf(const Export& e);

// Whether the parameters are all of a kind that call() knows.
bool isCallable(const Export& e);

// The arguments of a call, and what pointers among them point at. A function of one channel is given the
// constants of `channel`; a row of bits begins at `bit`, if that is given.
class Call {
 public:
    Call(const Export& e, const Places& places, int width, int height, int variant, Outs* outs = nullptr,
         int channel = 0, int bit = -1);
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    Value values[16];

 private:
    Tpx8u* planes_[kSides][4];
    const void* tables_[4];
    int order_[4];
    alignas(8) Tpx8u constants_[4][4 * 8];
};

// Makes the arguments, which may be spoiled then, and calls.
TpxStatus call(const Export& e, const Places& places, int width, int height, int variant, Outs* outs = nullptr,
               int channel = 0, int bit = -1, const std::function<void(Value*)>& spoil = nullptr);
// Where a row of bits begins.
int bitOffset(int variant);

// ---- What the images of a call have to hold -------------------------------------------------------------

// Null if the export has none.
const Param* imageParam(const Export& e, Side side);
// Of one plane, if there are several; 0 if there is no such image.
int bitsPerPixel(const Export& e, Side side);
int planesOf(const Export& e, Side side);
// Rows of all planes, and the bytes of a row.
int rowsOf(const Export& e, Side side, int height);
int rowBytes(const Export& e, Side side, int width, int variant);

bool isBorder(const Export& e);

} // namespace tpx::test
