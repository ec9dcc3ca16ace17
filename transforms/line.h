// The one-dimensional transform of eight sequences at a time.
//
// A *group* is eight sequences of complex numbers in the lanes of registers: element i of all of them is 16
// floats, eight real parts and eight imaginary ones. Rows and columns of images are brought into groups and
// back by transforms/groups.h; a Line transforms a group and knows nothing of images.
//
// Lengths whose prime factors are up to 50 take Stockham autosort passes (the formulation with decimation in
// frequency of C. Van Loan, "Computational Frameworks for the Fast Fourier Transform", 1992), from one buffer
// to another and back, with no reordering of elements anywhere. Other lengths are a convolution with a chirp
// (L. I. Bluestein, IEEE Transactions on Audio and Electroacoustics 18, 1970) by transforms of a power of two.
#pragma once

#include "frame/memory/caller_memory.h"
#include "transforms/roots.h"

namespace tpx {

inline constexpr int kGroupFloats = 16; // of an element

// A one-dimensional plan. It lies in the caller's block, with its tables behind it.
struct Line {
    Tpx32s tag;
    Tpx32s length; // its logarithm in power-of-two plans
    Tpx32s doFwdScale, doInvScale;
    Tpx32f scale;
    Tpx32s hint;
    Tpx32s bufSize; // of both buffers of a group; 0 if they fit the stack

    Tpx32s passes;
    const float* twiddles; // of the passes, one behind the other
    // Of a chirp transform: the transform of its convolution, the chirp, and the transform of the chirp's
    // conjugate, divided by that transform's length. Else null.
    const Line* inner;
    const float *chirp, *spectrum;
    Tpx8u radix[32];
};

// Short lines have their tables within this room.
inline constexpr uint64_t kLineBytes1D = 208;
inline constexpr int kShortLine = 16;
static_assert(sizeof(Line) + 2 * 14 * sizeof(float) <= kLineBytes1D);

// The bytes of both buffers of a group; no less for shorter ones with the same kind of factors.
uint64_t groupBytes(uint64_t length);

// Takes a plan and its tables from the block; null if only counted. One that shares tables is lent them later.
Line* layOutLine(BlockLayout& block, uint64_t length, bool sharesTables);
// The bytes that making the tables needs beside; 0 up to 1024 if the length has no chirp.
uint64_t lineInitBytes(uint64_t length);
// Makes the tables of a plan that layOutLine took, in memory of so many bytes.
void initLine(Line* line, uint64_t length, void* memory);

// Transforms the group in `data` and tells which of the two buffers the result is in. The inverse is the same
// with real and imaginary parts exchanged, before and after.
float* transform(const Line& line, float* data, float* other);

} // namespace tpx
