// Rows and columns of images as groups (transforms/line.h), and back.
#pragma once

#include "frame/images/view.h"
#include "frame/simd/gather.h"
#include "frame/simd/partial.h"
#include "transforms/butterflies.h"
#include "transforms/line.h"

namespace tpx {

// ---- Elements --------------------------------------------------------------------------------------------

inline float* elementAt(float* group, ptrdiff_t i) { return group + i * kGroupFloats; }
inline Lanes loadElement(const float* p) { return {load(p), load(p + 8)}; }
inline void storeElement(float* p, Lanes x) {
    store(p, x.re);
    store(p + 8, x.im);
}

inline Lanes conjugate(Lanes a) { return {a.re, -a.im}; }
inline Lanes scaled(Lanes a, V32f scale) { return {a.re * scale, a.im * scale}; }
// A transform forth with both parts exchanged before and after is one back.
template <bool Inverse>
inline Lanes turned(Lanes a) {
    return Inverse ? Lanes{a.im, a.re} : a;
}

// Two real sequences, one as the real parts and one as the imaginary ones, are one complex sequence. Its
// spectrum z, with `mirror` the value at the opposite frequency, is taken apart into twice those of both.
struct Twins {
    Lanes first, second;
};
inline Twins takeApart(Lanes z, Lanes mirror) {
    return {{z.re + mirror.re, z.im - mirror.im}, {z.im + mirror.im, mirror.re - z.re}};
}
// And z and its mirror from both.
inline Twins putTogether(Lanes a, Lanes b) { return {{a.re - b.im, a.im + b.re}, {a.re + b.im, b.re - a.im}}; }

// ---- Eight rows, one a lane ------------------------------------------------------------------------------

// Rows of pixels of so many channels, from the first sample of one channel on. A row may be there twice.
template <class T, int Channels>
struct EightRows {
    T* row[8];

    // The samples x to x + 3 of all rows.
    Several<V32f, 4> four(ptrdiff_t x) const {
        if constexpr (Channels != 1) return {{one(x), one(x + 1), one(x + 2), one(x + 3)}};
        return transpose(
            Several<V32f, 4>{{loadFours(row[0] + x, row[4] + x), loadFours(row[1] + x, row[5] + x),
                              loadFours(row[2] + x, row[6] + x), loadFours(row[3] + x, row[7] + x)}});
    }
    V32f one(ptrdiff_t x) const {
        x *= Channels;
        return V32f{peek(row[0] + x), peek(row[1] + x), peek(row[2] + x), peek(row[3] + x),
                    peek(row[4] + x), peek(row[5] + x), peek(row[6] + x), peek(row[7] + x)};
    }

    void putFour(ptrdiff_t x, const Several<V32f, 4>& samples) const {
        if constexpr (Channels != 1) {
            for (int i = 0; i < 4; i++) putOne(x + i, samples.at[i]);
        } else {
            const Several<V32f, 4> rows = transpose(samples);
            for (int i = 0; i < 4; i++) storeFours(row[i] + x, row[i + 4] + x, rows.at[i]);
        }
    }
    void putOne(ptrdiff_t x, V32f samples) const {
        for (int i = 0; i < 8; i++) poke(row[i] + x * Channels, float(samples[i]));
    }
};

// ---- Buffers of a call -----------------------------------------------------------------------------------

// A work buffer holds both buffers of a group and, of a real transform, the column 0 and the last column of a
// channel. Where all lines are short they are on the stack.
struct Work {
    float *data, *other, *edges[2];
};
inline constexpr uint64_t kShortFloats = (2 * kGroupFloats + 2) * kShortLine;

inline Work layOutWork(BlockLayout& block, uint64_t groupBytes, uint64_t edge) {
    Work work;
    work.data = block.take<float>(groupBytes / 2 / sizeof(float));
    work.other = block.take<float>(groupBytes / 2 / sizeof(float));
    for (float*& column : work.edges) column = block.take<float>(edge);
    return work;
}

} // namespace tpx
