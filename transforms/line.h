// SPDX-License-Identifier: Apache-2.0
// The one-dimensional transform, of eight sequences at a time.
//
// A *group* is eight sequences of complex numbers in the lanes of registers: an element of all of them is 16
// floats, eight real parts and eight imaginary ones. Rows and columns of images are brought into groups and
// back by transforms/groups.h; a Line transforms a group and knows nothing of images.
//
// Lengths whose prime factors are up to 50 take Stockham autosort passes (the formulation with decimation in
// frequency of C. Van Loan, "Computational Frameworks for the Fast Fourier Transform", 1992), from one buffer
// to another and back, with no reordering of elements anywhere. Other lengths are a convolution with a chirp
// (L. I. Bluestein, IEEE Transactions on Audio and Electroacoustics 18, 1970) by transforms of a power of two.
//
// Long lines, whose groups would leave the caches, and lines that are alone are taken one by one. Their
// elements are a matrix, whose columns and then rows are transformed in groups (D. H. Bailey, "FFTs in External
// or Hierarchical Memory", 1989).
#pragma once

#include "frame/memory/caller_memory.h"
#include "transforms/butterflies.h"
#include "transforms/roots.h"

namespace tpx {

// ---- Sequences -------------------------------------------------------------------------------------------

// Eight sequences, in one of two buffers.
struct Group {
    static constexpr int kLanes = 8;
    static constexpr int kFloats = 16; // of an element

    float *data, *other;

    Lanes load(ptrdiff_t i) const { return {tpx::load(data + i * kFloats), tpx::load(data + i * kFloats + 8)}; }
    void store(ptrdiff_t i, Lanes x) const {
        tpx::store(data + i * kFloats, x.re);
        tpx::store(data + i * kFloats + 8, x.im);
    }
    // The real parts alone, or the imaginary ones.
    V32f load(ptrdiff_t i, bool imaginary) const { return tpx::load(data + i * kFloats + 8 * imaginary); }
    void store(ptrdiff_t i, bool imaginary, V32f x) const { tpx::store(data + i * kFloats + 8 * imaginary, x); }
};

// One sequence, which stands in every lane that is loaded. The group is for its parts.
struct LongLine {
    static constexpr int kLanes = 1;

    float *data, *other;
    Group group;

    Lanes load(ptrdiff_t i) const { return {splat<V32f>(data[2 * i]), splat<V32f>(data[2 * i + 1])}; }
    void store(ptrdiff_t i, Lanes x) const {
        data[2 * i] = x.re[0];
        data[2 * i + 1] = x.im[0];
    }
    V32f load(ptrdiff_t i, bool imaginary) const { return splat<V32f>(data[2 * i + imaginary]); }
    void store(ptrdiff_t i, bool imaginary, V32f x) const { data[2 * i + imaginary] = x[0]; }
};

// ---- Plans -----------------------------------------------------------------------------------------------

struct Line;

struct Chirp {
    const Line* inner;     // the transform of the convolution
    const float* chirp;    // exp(-pi i k^2 / n)
    const float* spectrum; // the transform of its conjugate, divided by that transform's length
};

struct Split {
    const Line *columns, *rows; // may be the same
    const Complex<double>* roots;
    const Lanes* laneRoots; // for each row, those of columns 0 to 7
};

// A one-dimensional plan. It lies in the caller's block, with its tables behind it.
struct Line {
    Tpx32s tag;
    Tpx32s length; // its logarithm in power-of-two plans
    Tpx32s doFwdScale, doInvScale;
    Tpx32f scale;
    Tpx32s hint;
    Tpx32s bufSize; // of the buffers of a group or a long line; 0 if they fit the stack

    Tpx32s elements, passes;
    // One of them has the tables.
    const float* twiddles; // of the passes, one behind the other
    const Chirp* chirp;
    const Split* split;
    Tpx8u isLong, radix[31];
};

// Short lines have their tables within this room, and their groups on the stack.
inline constexpr uint64_t kLineBytes1D = 208;
inline constexpr ptrdiff_t kShortLine = 16;
static_assert(sizeof(Line) + 2 * 14 * sizeof(float) <= kLineBytes1D);

// What a line's method depends on.
struct LineKind {
    uint64_t length;
    bool isLong;

    // A side of an image, of which there are so many.
    static LineKind of(uint64_t length, uint64_t count);
    bool isChirp() const;
    uint64_t elements() const; // those of the convolution, if there is one
    // Those of so many groups, which share the buffer that each is transformed into, or of one long line.
    uint64_t bufferBytes(int groups) const;
};

// Takes a plan and its tables from the block; null if only counted. One that shares tables is lent them later.
Line* layOutLine(BlockLayout& block, LineKind kind, bool sharesTables);
// The bytes that making the tables needs beside.
uint64_t lineInitBytes(LineKind kind);
// Makes the tables of a plan that layOutLine took, in memory of so many bytes.
void initLine(Line* line, LineKind kind, void* memory);
void lendTables(const Line& from, Line* to);

// ---- Transforms ------------------------------------------------------------------------------------------

// Sequences in buffers of a line's bufferBytes: at one place, and with the other buffer at another.
template <class S>
S sequencesOf(const Line& line, float* buffers, int place = 0, int other = 1);

// The inverse is the same with real and imaginary parts exchanged, before and after.
void transform(const Line& line, Group& group);
void transform(const Line& line, LongLine& sequence);

} // namespace tpx
