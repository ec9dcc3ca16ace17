// SPDX-License-Identifier: Apache-2.0
// Loops over runs of pixels whose samples change places: between layouts, channels and planes.
//
// A run is worked on in blocks of as many pixels as a register holds samples, so that a block of any layout is
// a few whole registers and a rule turns registers into registers. The last block of a run may overlap the one
// before. It is computed before anything is stored, and stored last, so that runs may be in place. A run
// shorter than a block goes through a block of its own.
#pragma once

#include "frame/images/walk.h"
#include "frame/runs/runs.h"

namespace tpx {

inline constexpr int kBlockBytes = sizeof(V8u); // of one channel

template <class T>
inline constexpr int kBlockPixels = kBlockBytes / int(sizeof(T));

// What a rule takes and gives: registers seen as bytes.
template <int N>
using Block = Several<V8u, N>;

// The unsigned integer of a sample's width: types of one width share the code that only moves their bits.
template <class T>
using UnsignedOf =
    std::conditional_t<sizeof(T) == 1, Tpx8u, std::conditional_t<sizeof(T) == 2, Tpx16u, Tpx32u>>;

// ---- Sides of a run: an image as a source or a destination of blocks ------------------------------------

// Pixels of N samples; a block is Pixels of them. Of a single channel of theirs, which the pointer addresses,
// a run ends with the last pixel's sample. The last register of a block ends with the block, and so may overlap
// the one before.
template <class T, int N, int Pixels = kBlockPixels<T>, bool OneChannel = false>
struct Interleaved {
    using Writable = Interleaved<std::remove_const_t<T>, N, Pixels, OneChannel>;
    static constexpr int kRegisters = N, kPixels = Pixels;
    static constexpr ptrdiff_t kSample = sizeof(T), kPixel = N * kSample,
                               kUnitBytes = OneChannel ? kSample : kPixel;

    ByteLike<T>* p;
    ptrdiff_t step;

    // The pixels of a type of the same width.
    template <class U>
    Interleaved(U* pixels, ptrdiff_t stepBytes) : p(reinterpret_cast<ByteLike<T>*>(pixels)), step(stepBytes) {
        static_assert(sizeof(U) == sizeof(T));
    }

    static constexpr ptrdiff_t bytes(ptrdiff_t pixels) {
        return pixels * kPixel - (OneChannel ? kPixel - kSample : 0);
    }
    static constexpr ptrdiff_t offset(int k) {
        return k + 1 < N || bytes(Pixels) < kBlockBytes ? k * kBlockBytes : bytes(Pixels) - kBlockBytes;
    }

    Interleaved row(ptrdiff_t y) const {
        Interleaved moved = *this;
        moved.p = addBytes(p, y * step);
        return moved;
    }
    Interleaved from(ptrdiff_t x) const {
        Interleaved moved = *this;
        moved.p = p + x * kPixel;
        return moved;
    }
    bool isGapless(ptrdiff_t width) const { return step == width * kPixel; }

    Block<N> load(ptrdiff_t x) const {
        constexpr int kLoaded = bytes(Pixels) < kBlockBytes ? bytes(Pixels) : kBlockBytes;
        Block<N> b;
        for (int k = 0; k < N; k++) b.at[k] = loadFront<kLoaded>(p + x * kPixel + offset(k));
        return b;
    }
    void store(ptrdiff_t x, const Block<N>& b) const {
        for (int k = 0; k < N; k++) tpx::store(p + x * kPixel + offset(k), b.at[k]);
    }

    // Asks for what so many pixels will need soon; the address may lie outside the image.
    void fetch(ptrdiff_t x, ptrdiff_t pixels) const { fetchAhead(p + x * kPixel, pixels * kPixel); }

    // Fewer pixels than a block, from or to memory that holds one.
    static Writable over(Tpx8u* memory, ptrdiff_t) {
        return {reinterpret_cast<std::remove_const_t<T>*>(memory), 0};
    }
    template <class To>
    void copyShort(To to, ptrdiff_t pixels) const {
        tpx::copyBlock(to.p, p, bytes(pixels));
    }

    // How many pixels lie before the next line of memory; none may begin there.
    ptrdiff_t pixelsToLine() const {
        ptrdiff_t n = 0;
        while (n < kLineBytes && bytesToLine(p + n * kPixel) != 0) n++;
        return n;
    }
    // Whole lines, from memory in which they lie one after the other.
    void stream(ptrdiff_t x, const Tpx8u* lines, ptrdiff_t bytesOfChannel) const {
        streamLines(p + x * kPixel, lines, N * bytesOfChannel);
    }
};

// One channel of pixels of N samples.
template <class T, int N>
using Channel = Interleaved<T, N, kBlockPixels<T>, true>;

// N planes with a common step; a block is a register of each.
template <class T, int N>
struct Planes {
    using Writable = Planes<std::remove_const_t<T>, N>;
    using Plane = Interleaved<T, 1>;
    static constexpr int kRegisters = N, kPixels = kBlockPixels<T>;
    static constexpr ptrdiff_t kUnitBytes = N * sizeof(T);

    ByteLike<T>* p[N];
    ptrdiff_t step;

    template <class U>
    Planes(U* const planes[], ptrdiff_t stepBytes) : step(stepBytes) {
        static_assert(sizeof(U) == sizeof(T));
        for (int k = 0; k < N; k++) p[k] = reinterpret_cast<ByteLike<T>*>(planes[k]);
    }

    Planes row(ptrdiff_t y) const {
        Planes moved = *this;
        for (auto& plane : moved.p) plane = addBytes(plane, y * step);
        return moved;
    }
    Planes from(ptrdiff_t x) const {
        Planes moved = *this;
        for (auto& plane : moved.p) plane += x * ptrdiff_t(sizeof(T));
        return moved;
    }
    bool isGapless(ptrdiff_t width) const { return step == width * ptrdiff_t(sizeof(T)); }

    Block<N> load(ptrdiff_t x) const {
        Block<N> b;
        for (int k = 0; k < N; k++) b.at[k] = tpx::load(p[k] + x * ptrdiff_t(sizeof(T)));
        return b;
    }
    void store(ptrdiff_t x, const Block<N>& b) const {
        for (int k = 0; k < N; k++) tpx::store(p[k] + x * ptrdiff_t(sizeof(T)), b.at[k]);
    }

    void fetch(ptrdiff_t x, ptrdiff_t pixels) const {
        for (const auto* plane : p) fetchAhead(plane + x * ptrdiff_t(sizeof(T)), pixels * ptrdiff_t(sizeof(T)));
    }

    static Writable over(Tpx8u* memory, ptrdiff_t bytesOfChannel) {
        std::remove_const_t<T>* planes[N];
        for (int k = 0; k < N; k++)
            planes[k] = reinterpret_cast<std::remove_const_t<T>*>(memory + k * bytesOfChannel);
        return {planes, 0};
    }
    template <class To>
    void copyShort(To to, ptrdiff_t pixels) const {
        for (int k = 0; k < N; k++) copyBlock(to.p[k], p[k], pixels * ptrdiff_t(sizeof(T)));
    }

    ptrdiff_t pixelsToLine() const {
        for (int k = 1; k < N; k++)
            if (bytesToLine(p[k]) != bytesToLine(p[0])) return kLineBytes;
        return bytesToLine(p[0]) % ptrdiff_t(sizeof(T)) ? kLineBytes : bytesToLine(p[0]) / ptrdiff_t(sizeof(T));
    }
    void stream(ptrdiff_t x, const Tpx8u* lines, ptrdiff_t bytesOfChannel) const {
        for (int k = 0; k < N; k++)
            streamLines(p[k] + x * ptrdiff_t(sizeof(T)), lines + k * bytesOfChannel, bytesOfChannel);
    }
};

// ---- Runs -----------------------------------------------------------------------------------------------

// dst[i...] = rule(src[i...], ...), a block each. A rule that keeps parts of the destination takes it as a
// source.
template <class Rule, class Dst, class... Src>
inline void mapPixelRun(ptrdiff_t pixels, Rule rule, Dst dst, Src... src) {
    constexpr ptrdiff_t P = Dst::kPixels;
    static_assert((... && (Src::kPixels == P)));
    if (pixels < P) {
        const auto loadShort = [&](auto side) {
            alignas(32) Tpx8u memory[side.kRegisters * kBlockBytes] = {};
            const auto block = side.over(memory, kBlockBytes);
            side.copyShort(block, pixels);
            return block.load(0);
        };
        alignas(32) Tpx8u memory[Dst::kRegisters * kBlockBytes];
        const auto block = Dst::over(memory, kBlockBytes);
        block.store(0, rule(loadShort(src)...));
        block.copyShort(dst, pixels);
        return;
    }
    const ptrdiff_t last = pixels - P;
    const auto end = rule(src.load(last)...);
    ptrdiff_t x = 0;
    for (; x + 3 * P < last; x += 4 * P) {
        (..., src.fetch(x, 4 * P));
        if constexpr (Dst::kRegisters == 1) {
            const auto a = rule(src.load(x)...), b = rule(src.load(x + P)...);
            const auto c = rule(src.load(x + 2 * P)...), d = rule(src.load(x + 3 * P)...);
            dst.store(x, a);
            dst.store(x + P, b);
            dst.store(x + 2 * P, c);
            dst.store(x + 3 * P, d);
        } else {
            for (int i = 0; i < 4; i++) dst.store(x + i * P, rule(src.load(x + i * P)...));
        }
    }
    for (; x < last; x += P) dst.store(x, rule(src.load(x)...));
    dst.store(last, end);
}

// The same past the caches, as mapRunStreaming does it: whole lines, at four places side by side, whose sources
// are fetched ahead. One line of each channel at a time is enough. Not in place. The caller fences once.
template <class Rule, class Dst, class... Src>
inline void mapPixelRunStreaming(ptrdiff_t pixels, Rule rule, Dst dst, Src... src) {
    constexpr ptrdiff_t P = Dst::kPixels, kIteration = kLineBytes / kBlockBytes * P;
    constexpr ptrdiff_t kPage = 4096 / kBlockBytes * P;
    const auto iterate = [&]<int Places>(std::integral_constant<int, Places>, ptrdiff_t at, ptrdiff_t apart) {
        alignas(kLineBytes) Tpx8u lines[Places][Dst::kRegisters * kLineBytes];
        for (int place = 0; place < Places; place++) (..., src.fetch(at + place * apart, kIteration));
        for (int place = 0; place < Places; place++)
            for (ptrdiff_t i = 0; i < kIteration; i += P)
                Dst::over(lines[place], kLineBytes).store(i, rule(src.load(at + place * apart + i)...));
        for (int place = 0; place < Places; place++) dst.stream(at + place * apart, lines[place], kLineBytes);
    };

    const ptrdiff_t head = dst.pixelsToLine();
    if (head == kLineBytes || pixels < head + kIteration) return mapPixelRun(pixels, rule, dst, src...);
    if (head) mapPixelRun(head, rule, dst, src...);
    ptrdiff_t x = head;
    x += walkFourStreams(pixels - head, kIteration, kPage, 16 * kPage, [&](ptrdiff_t at, ptrdiff_t apart) {
        iterate(std::integral_constant<int, 4>{}, head + at, apart);
    });
    for (; x + kIteration <= pixels; x += kIteration) iterate(std::integral_constant<int, 1>{}, x, 0);
    if (x < pixels) mapPixelRun(pixels - x, rule, dst.from(x), src.from(x)...);
}

// The same for every row of a region, in the caches or, where a call may `stream`, past them.
template <class Rule, class Dst, class... Src>
inline void mapPixels(TpxiSizeL roi, Rule rule, Dst dst, Src... src) {
    walkJoined(
        samplesOf(roi, 1), [&](ptrdiff_t width, Dst d, Src... s) { mapPixelRun(width, rule, d, s...); }, dst,
        src...);
}
template <class Rule, class Dst, class... Src>
inline void mapPixels(TpxiSizeL roi, bool stream, Rule rule, Dst dst, Src... src) {
    walkStreaming(
        stream, samplesOf(roi, 1), [&](ptrdiff_t width, Dst d, Src... s) { mapPixelRun(width, rule, d, s...); },
        [&](ptrdiff_t width, Dst d, Src... s) { mapPixelRunStreaming(width, rule, d, s...); }, dst, src...);
}

} // namespace tpx
