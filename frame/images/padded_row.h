// SPDX-License-Identifier: Apache-2.0
// Rows with margins of any width: what a border copy writes, and what a filter or the edge strip of a resize
// reads around a row.
//
// A padded row is built around the place of its own pixels, which are moved there by the caller or lie there
// already. Pixels are bytes to be moved, so those of one size share their code.
#pragma once

#include "frame/images/border.h"
#include "frame/runs/memory_runs.h"
#include "frame/runs/reverse.h"

namespace tpx {

// ---- Registers of pixels ----------------------------------------------------------------------------------

inline constexpr int kRowRegister = sizeof(V8u);

// Where byte i of a register lies in its pixel, for registers that begin at a pixel and for those that end at
// one.
template <int PixelBytes>
struct PixelPhases {
    static constexpr int kPeriod = kRowRegister % PixelBytes ? 3 : 1; // until a pixel begins with one again
    alignas(16) Tpx8u ofPeriod[kPeriod * kRowRegister], toEnd[kRowRegister];
    constexpr PixelPhases() : ofPeriod{}, toEnd{} {
        for (int i = 0; i < kPeriod * kRowRegister; i++) ofPeriod[i] = Tpx8u(i % PixelBytes);
        for (int i = 0; i < kRowRegister; i++)
            toEnd[i] = Tpx8u((i + PixelBytes * kRowRegister - kRowRegister) % PixelBytes);
    }
};
template <int PixelBytes>
inline constexpr PixelPhases<PixelBytes> kPixelPhases;

// More than a register of one pixel, which begins at `offset` of the register that is given.
template <int PixelBytes>
inline void fillPixels(V8u v, int offset, Tpx8u* dst, ptrdiff_t bytes) {
    constexpr auto& phases = kPixelPhases<PixelBytes>;
    const auto filled = [&](const Tpx8u* phase) {
        return shuffleBytes(v, load(phase) + splat<V8u>(Tpx8u(offset)));
    };
    V8u of[phases.kPeriod];
    for (int k = 0; k < phases.kPeriod; k++) of[k] = filled(phases.ofPeriod + k * kRowRegister);
    ptrdiff_t i = 0;
    for (; i + 3 * kRowRegister <= bytes; i += 3 * kRowRegister)
        for (int k = 0; k < 3; k++) store(dst + i + k * kRowRegister, of[k % phases.kPeriod]);
    if (i + kRowRegister <= bytes) store(dst + i, of[0]);
    if (i + 2 * kRowRegister <= bytes) store(dst + i + kRowRegister, of[1 % phases.kPeriod]);
    store(dst + bytes - kRowRegister, filled(phases.toEnd));
}

// ---- One margin -------------------------------------------------------------------------------------------

enum class RowEnd { Left, Right };

// The margin of so many pixels at one end of every row of `width` pixels: `near` is what the rule fills from
// the row, `far` what it repeats of that.
template <Border B, int PixelBytes, RowEnd End>
class RowMargin {
 public:
    RowMargin(ptrdiff_t margin, ptrdiff_t width)
        : width_(width * PixelBytes), period_(borderPeriod<B>(width) * PixelBytes) {
        const ptrdiff_t reach =
            B == Border::Replicate && width_ >= kRowRegister ? margin : borderReach<B>(width);
        near_ = (margin < reach ? margin : reach) * PixelBytes;
        far_ = margin * PixelBytes - near_;
        order_ = edgeOrder(near_);
    }

    // `src` is the row, `dst` the place of its first pixel in the padded row.
    void writeNear(const Tpx8u* src, Tpx8u* dst) const {
        if (near_ == 0) return;
        Tpx8u* const to = kLeft ? dst - near_ : dst + width_;
        const Tpx8u* const edge = kLeft ? src : src + width_ - kRowRegister;
        if constexpr (B == Border::Wrap)
            copyRow(to, kLeft ? src + width_ - near_ : src, near_);
        else if (B == Border::Mirror && near_ >= PixelOrder<PixelBytes>::kBytes)
            reversePixels<PixelBytes, kLeft ? Neighbour::Before : Neighbour::After>(
                kLeft ? src + PixelBytes : src + width_ - PixelBytes - near_, to, near_ / PixelBytes);
        else if (width_ >= kRowRegister && near_ <= kRowRegister) // the other lanes hold the row's own values
            store(kLeft ? to : to + near_ - kRowRegister, shuffleBytes(load(edge), order_));
        else if constexpr (B == Border::Replicate)
            fillPixels<PixelBytes>(load(edge), kLeft ? 0 : kRowRegister - PixelBytes, to, near_);
        else // the whole row is narrower than a register
            for (ptrdiff_t i = PixelBytes; i <= near_; i += PixelBytes)
                __builtin_memcpy(kLeft ? dst - i : dst + width_ - PixelBytes + i,
                                 kLeft ? src + i : src + width_ - PixelBytes - i, PixelBytes);
    }

    // After the row's own pixels are in their place.
    void writeFar(Tpx8u* dst) const {
        if (far_) repeat(kLeft ? dst - near_ : dst + width_ + near_);
    }

 private:
    static constexpr bool kLeft = End == RowEnd::Left;

    // Which bytes of the first register of a row make the first register of the row with its margin, of up to a
    // register. On the right all runs backwards.
    static V8u edgeOrder(ptrdiff_t margin) {
        const V8u lane = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
        const V8u phase = load(kPixelPhases<PixelBytes>.ofPeriod);
        const V8u pixel = lane - phase - splat<V8u>(Tpx8u(margin));
        const V8u order = V8u(maxOf(V8s(pixel), B == Border::Mirror ? V8s(V8u{} - pixel) : V8s{})) + phase;
        return kLeft ? order : reverseLanes(splat<V8u>(kRowRegister - 1) - order);
    }

    // Goes on with what lies beside the gap. What has been copied is itself a source, so the pieces double.
    void repeat(Tpx8u* gap) const {
        ptrdiff_t bytes = far_, period = period_;
        for (ptrdiff_t piece; bytes > 0; bytes -= piece, period *= 2) {
            piece = bytes < period ? bytes : period;
            if constexpr (kLeft) {
                gap -= piece;
                copyRow(gap, gap + period, piece);
            } else {
                copyRow(gap, gap - period, piece);
                gap += piece;
            }
        }
    }

    ptrdiff_t width_, period_, near_, far_;
    V8u order_;
};

// ---- Padded rows -------------------------------------------------------------------------------------------

// Pixels of a padded row.
struct RowShape {
    ptrdiff_t left, width, right;

    ptrdiff_t pixels() const { return left + width + right; }
};

// Rows whose margins follow the rule of a border. Both kinds of padded rows are built alike: `src` is the row,
// `dst` the place of its first pixel in the padded row, and move() moves its pixels there, or does nothing
// where they are one.
template <Border B, int PixelBytes>
class RulePaddedRow {
 public:
    explicit RulePaddedRow(const RowShape& row) : left_(row.left, row.width), right_(row.right, row.width) {}

    template <class Move>
    void build(const Tpx8u* src, Tpx8u* dst, Move move) const {
        left_.writeNear(src, dst);
        right_.writeNear(src, dst);
        move();
        left_.writeFar(dst);
        right_.writeFar(dst);
    }

 private:
    RowMargin<B, PixelBytes, RowEnd::Left> left_;
    RowMargin<B, PixelBytes, RowEnd::Right> right_;
};

// Rows whose margins hold one pixel.
template <int PixelBytes>
class ConstantPaddedRow {
 public:
    ConstantPaddedRow(const RowShape& row, const Tpx8u* pixel)
        : left_(row.left * PixelBytes),
          width_(row.width * PixelBytes),
          right_(row.right * PixelBytes),
          pattern_(makePattern(pixel, PixelBytes)) {}

    template <class Move>
    void build(const Tpx8u*, Tpx8u* dst, Move move) const {
        fillRow(dst - left_, left_, pattern_);
        move();
        fillRow(dst + width_, right_, pattern_);
    }
    // A row of nothing else.
    void fill(Tpx8u* dst) const { fillRow(dst - left_, left_ + width_ + right_, pattern_); }

 private:
    ptrdiff_t left_, width_, right_;
    Pattern pattern_;
};

} // namespace tpx
