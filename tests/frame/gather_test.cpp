// SPDX-License-Identifier: Apache-2.0
// Footprints of interpolations, and loads of neighbouring pixels at positions.
#include "frame/images/gather.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "tests/support/guarded.h"

using namespace tpx;
using namespace tpx::test;

namespace {

// A row of pixels with nothing readable behind its last sample or, of the other edge, before its first; all
// samples differ from their neighbours.
template <class T>
struct Row {
    static constexpr int kPixels = 41;
    GuardedImage<T> image;
    int channels;

    Row(int channels, Edge edge)
        : image(kPixels, 1, channels, {0, edge, edge == Edge::End ? 0 : 1}), channels(channels) {
        for (int i = 0; i < kPixels * channels; i++) poke(image.data() + i, T(i * 677 - 30000));
    }
    const T* data() { return image.data(); }

    // Random positions with `count` pixels each, the first and the last possible one among them.
    template <int L>
    void positions(Tpx32s (&at)[L], int count, std::mt19937& random) const {
        for (Tpx32s& position : at) position = Tpx32s(random() % unsigned(kPixels - count + 1));
        at[random() % L] = kPixels - count;
        at[random() % L] = 0;
    }
};

template <class T>
void checkNeighbours() {
    using F = RealOf<T>;
    constexpr int L = kLanes<F>;
    std::mt19937 random(1);
    for (Edge edge : {Edge::End, Edge::Start}) {
        Row<T> row(1, edge);
        const T* const samples = row.data();
        for (int n = 0; n < 500; n++) {
            Tpx32s at[L];
            row.positions(at, 2, random);
            const auto pairs = loadPairs(InRow<T>{samples, at});
            for (int i = 0; i < L; i++) {
                ASSERT_EQ(pairs.low[i], F(peek(samples + at[i]))) << at[i];
                ASSERT_EQ(pairs.high[i], F(peek(samples + at[i] + 1))) << at[i];
            }
            row.positions(at, 4, random);
            const auto quads = loadQuads(InRow<T>{samples, at});
            for (int i = 0; i < L; i++)
                for (int k = 0; k < 4; k++) ASSERT_EQ(quads.at[k][i], F(peek(samples + at[i] + k))) << at[i];
        }
    }
}

template <int N, int Count, class T>
void checkPixels() {
    for (Edge edge : {Edge::End, Edge::Start}) {
        Row<T> row(N, edge);
        for (int x = 0; x + Count <= row.kPixels; x++) {
            const T* const first = row.data() + x * N;
            const auto pixels = loadPixels<N, Count>(first);
            for (int k = 0; k < Count; k++)
                for (int c = 0; c < N; c++) ASSERT_EQ(pixels.at[k][c], RealOf<T>(peek(first + k * N + c))) << x;
        }
    }
}
// Two pixels are halves of a register; the second of three samples ends with its half.
template <int N, class T>
void checkTwoPixels() {
    for (Edge edge : {Edge::End, Edge::Start}) {
        Row<T> row(N, edge);
        for (int x = 0; x + 2 <= row.kPixels; x++) {
            const T* const first = row.data() + x * N;
            const V32f pixels = loadTwoPixels<N>(first);
            for (int c = 0; c < N; c++) {
                ASSERT_EQ(lowHalf(pixels)[c], Tpx32f(peek(first + c))) << x;
                ASSERT_EQ(highHalf(pixels)[c + (N == 3)], Tpx32f(peek(first + N + c))) << x;
            }
        }
    }
}
template <class T>
void checkAllPixels() {
    if constexpr (sizeof(T) < 8) {
        checkTwoPixels<3, T>();
        checkTwoPixels<4, T>();
    }
    checkPixels<3, 2, T>();
    checkPixels<3, 4, T>();
    checkPixels<4, 1, T>();
    checkPixels<4, 2, T>();
    checkPixels<4, 4, T>();
}

template <int N>
void checkBytePairs() {
    constexpr int P = kBytePairPixels<N>;
    std::mt19937 random(1);
    for (Edge edge : {Edge::End, Edge::Start}) {
        Row<Tpx8u> row(N, edge);
        for (int n = 0; n < 500; n++) {
            Tpx32s at[P];
            row.positions(at, 2, random);
            const V8u pairs = loadBytePairs<N>(row.data(), at);
            for (int i = 0; i < 16; i++) {
                const int pixel = i / (2 * N), channel = i / 2 % N;
                const Tpx8u want = pixel < P ? row.data()[(at[pixel] + i % 2) * N + channel] : Tpx8u(0);
                ASSERT_EQ(pairs[i], want) << N << " channels, byte " << i;
            }
        }
    }
}

} // namespace

// Against the pixels themselves: a position is within if each pixel that it reads is one of the image.
TEST(Gather, FootprintsTellWhichPixelsAreRead) {
    for (int lobes = 0; lobes <= 3; lobes++)
        for (int n = 1; n <= 9; n++)
            for (int below = -9; below <= 18; below++) {
                std::set<int> read;
                for (int x = below - 8; x <= below + 8; x++)
                    if (lobes == 0 ? x == below : x - below <= lobes && below - x < lobes) read.insert(x);
                const Footprint footprint = footprintOf(lobes);
                ASSERT_EQ(footprint.size, int(read.size()));
                ASSERT_EQ(below + footprint.offset, *read.begin());
                ASSERT_EQ(below + footprint.last(), *read.rbegin());
                ASSERT_EQ(footprint.isWithin(below, n), *read.begin() >= 0 && *read.rbegin() < n);
            }
}

TEST(Gather, NeighboursWithinTheirPixels) {
    checkNeighbours<Tpx8u>();
    checkNeighbours<Tpx16u>();
    checkNeighbours<Tpx16s>();
    checkNeighbours<Tpx32f>();
    checkNeighbours<Tpx64f>();
}

TEST(Gather, PixelsOfSeveralChannelsWithinTheirPixels) {
    checkAllPixels<Tpx8u>();
    checkAllPixels<Tpx16u>();
    checkAllPixels<Tpx16s>();
    checkAllPixels<Tpx32f>();
    checkAllPixels<Tpx64f>();
}

TEST(Gather, PairsOfBytesWithinTheirPixels) {
    checkBytePairs<1>();
    checkBytePairs<3>();
    checkBytePairs<4>();
}
