// SPDX-License-Identifier: Apache-2.0
// What the general filter makes of its sums: which rule holds where, and the rules.
//
// Which one holds depends on the kernel, on the block's mode and on the width of the region that is worked on,
// strips at the borders included. That is the contract's doing and stands here alone.
#pragma once

#include "filters/general_block.h"
#include "filters/stencil.h"
#include "frame/simd/control.h"
#include "frame/simd/rounding.h"

namespace tpx {

// Sums of integers, in the order of the kernel's shapes.
enum class IntegerRule {
    Shift, // a power of two, ties to even
    Scale, // times the inverse, in the direction of the control register
    Whole, // the sum itself
    FlooredShift,
    UpwardShift, // a power of two, down; halves up
    Divide,      // by a float estimate that is put right, 8u alone
    Quotient,    // true, rounded by its mode
};

inline constexpr int64_t kWideForIntegers = 16, kWideForFloats = 8;

// Results that are made at once, of sums that may lie behind the last one.
inline constexpr ptrdiff_t kResultBlock = 16;

class IntegerRules {
 public:
    IntegerRules(const FilterBlock& b, int64_t regionWidth)
        : bytes_(b.kind == FilterKind::Integers8u),
          mode_(b.roundMode & 3),
          shift_(b.shift),
          divisor_(b.divisor),
          inverse_(b.inverse),
          offset_(b.offset),
          offsetF_(b.offsetF) {
        const bool exact = (b.roundMode & tpxRoundExactFlag) != 0, wide = regionWidth >= kWideForIntegers;
        const Shape shape = b.kernelWidth == 1    ? b.kernelHeight >= 3 && wide ? Shape::Line : Shape::Other
                            : b.kernelHeight == 1 ? Shape::Line
                            : b.kernelWidth >= 3 && wide && b.pairsUsable ? Shape::General
                                                                          : Shape::Other;
        const IntegerRule plain = shift_ != 0 ? IntegerRule::Shift : IntegerRule::Scale;
        direction_ = Rounding::Nearest;
        if (shape == Shape::Other ||
            (shape == Shape::General && !bytes_ && (exact || mode_ == tpxRoundHalfAway))) {
            rule_ = IntegerRule::Quotient;
        } else if (shape == Shape::Line) {
            rule_ = exact ? IntegerRule::Divide : plain;
            if (!exact) direction_ = Rounding::OfThread;
        } else if (!exact && mode_ != tpxRoundHalfAway) {
            rule_ = plain;
            if (mode_ == tpxRoundTowardZero) direction_ = Rounding::TowardZero;
        } else if (b.divisorClass == DivisorClass::PowerOfTwo) {
            rule_ = mode_ == tpxRoundTowardZero    ? IntegerRule::FlooredShift
                    : mode_ == tpxRoundNearestEven ? IntegerRule::Shift
                                                   : IntegerRule::UpwardShift;
        } else {
            rule_ = b.divisorClass == DivisorClass::One ? IntegerRule::Whole : IntegerRule::Divide;
        }
        if (b.sumWidth == SumWidth::Bits16) begin16BitSums(b);
    }

    // What the control register has to say meanwhile.
    Rounding direction() const { return direction_; }
    bool isQuotient() const { return rule_ == IntegerRule::Quotient; }
    // What sums in 16 bits begin with.
    Tpx32s start() const { return start_; }

    // Results of `len` sums, behind which a block's can be read.
    template <class Sum, class T>
    void make(const Sum* sums, T* dst, ptrdiff_t len) const {
        if (len >= kResultBlock) return makeBlocks(sums, dst, len);
        T block[kResultBlock];
        makeBlocks(sums, block, kResultBlock);
        copyBlock(dst, block, len * ptrdiff_t(sizeof(T)));
    }

    // The true quotient of whole numbers of at most 53 bits. Closer than 2^-31 to a tie or to an integer none
    // of 32 bits lies, so the double next to it is rounded as it would be itself.
    V32s quotient(V64f sums) const {
        const V64f q =
            clampTo(sums / splat<V64f>(divisor_), splat<V64f>(kMin<Tpx16s>), splat<V64f>(kMax<Tpx16s>));
        if (mode_ == tpxRoundTowardZero) return toIntegerTruncated(q);
        if (mode_ == tpxRoundNearestEven) return toInteger(roundNearest(q));
        const V64f half =
            bitsAs<V64f>(bitsAs<B64f>(splat<V64f>(0.5)) | (bitsAs<B64f>(q) & bitsAs<B64f>(splat<V64f>(-0.0))));
        return toIntegerTruncated(q + half);
    }

 private:
    enum class Shape { Line, General, Other };

    // Sums in 16 bits begin with the magnitude of the least one, and are unsigned then. Where the rule is a
    // shift to nearest or the sum itself, they begin so that they fit signed lanes, and stay there: less a
    // number of which the quotient, even and whole, is given back behind the shift.
    void begin16BitSums(const FilterBlock& b) {
        start_ = b.sumBias;
        const bool whole = rule_ == IntegerRule::Whole || (rule_ == IntegerRule::Scale && divisor_ == 1);
        if (!whole && (rule_ != IntegerRule::Shift || shift_ > kBits<Tpx16s> - 2)) return;
        int64_t start = 0;
        if (b.sumBias > -kMin<Tpx16s> || b.sumMost > kMax<Tpx16s>) {
            const int64_t unit = int64_t(2) << shift_;
            start = (kMin<Tpx16s> + b.sumBias + unit - 1) & -unit;
            if (start + b.sumMost > kMax<Tpx16s>) return;
        }
        const int64_t less = (start >> shift_) - offset_;
        if (less < kMin<Tpx16s> || less > kMax<Tpx16s>) return;
        start_ = Tpx32s(start);
        less_ = Tpx16s(less);
        stays16Bits_ = true;
    }

    // A block or more; the last one may overlap the one before it. eight(i) makes results of the sums from the
    // i-th on, saturated to 16 bits.
    template <class T, class Eight>
    [[gnu::always_inline]] static void forBlocks(T* dst, ptrdiff_t len, Eight eight) {
        for (ptrdiff_t i = 0; i < len; i += kResultBlock) {
            const ptrdiff_t at = i + kResultBlock <= len ? i : len - kResultBlock;
            const V16s first = eight(at), second = eight(at + 8);
            if constexpr (sizeof(T) == 1) {
                store(dst + at, narrow<T>(Pair<V16s>{first, second}));
            } else {
                store(dst + at, first);
                store(dst + at + 8, second);
            }
        }
    }

    template <class T>
    void makeBlocks(const Tpx32u* sums, T* dst, ptrdiff_t len) const {
        makeOf(
            [=](ptrdiff_t i) {
                return Pair<V32s>{V32s(load(sums + i)), V32s(load(sums + i + 4))};
            },
            dst, len);
    }
    template <class T>
    void makeBlocks(const Tpx16u* sums, T* dst, ptrdiff_t len) const {
        const V16s less = splat<V16s>(less_);
        if (stays16Bits_ && shift_ != 0) {
            const RoundedShift<tpxRoundNearestEven, V16s, Headroom::Half> shifted(shift_);
            return forBlocks(dst, len,
                             [=](ptrdiff_t i) { return subSat(shifted(V16s(load(sums + i))), less); });
        }
        if (stays16Bits_)
            return forBlocks(dst, len, [=](ptrdiff_t i) { return subSat(V16s(load(sums + i)), less); });
        const V32u start = splat<V32u>(Tpx32u(start_));
        makeOf(
            [=](ptrdiff_t i) {
                const Pair<V32u> wide = widen(load(sums + i));
                return Pair<V32s>{V32s(wide.low - start), V32s(wide.high - start)};
            },
            dst, len);
    }
    // Whole numbers of at most 24 bits. A shift to nearest and a product round them once.
    template <class T>
    void makeBlocks(const Tpx32f* sums, T* dst, ptrdiff_t len) const {
        if (rule_ == IntegerRule::Shift || rule_ == IntegerRule::Scale) {
            const V32f inverse = splat<V32f>(inverse_);
            return forBlocks(dst, len,
                             [=](ptrdiff_t i) { return narrow<Tpx16s>(toInteger(load(sums + i) * inverse)); });
        }
        makeOf([=](ptrdiff_t i) { return toIntegerTruncated(load(sums + i)); }, dst, len);
    }

    // Of sums, eight of which sumsAt(i) makes. Past 32 bits they wrap around, and with them what is added here.
    template <class T, class SumsAt>
    [[gnu::always_inline]] void makeOf(SumsAt sumsAt, T* dst, ptrdiff_t len) const {
        const auto each = [=](auto rule) __attribute__((always_inline)) {
            forBlocks(dst, len, [=](ptrdiff_t i) { return narrow<Tpx16s>(rule(sumsAt(i))); });
        };
        const auto eachWithOffset = [ =, this ](auto rule) __attribute__((always_inline)) {
            const V32u offset = splat<V32u>(Tpx32u(offset_));
            each([=](Pair<V32s> x) {
                const Pair<V32s> y = rule(x);
                return Pair<V32s>{V32s(V32u(y.low) + offset), V32s(V32u(y.high) + offset)};
            });
        };
        // With 1 more where the quotient is odd, for ties to even.
        const auto shifted = [&](Tpx32u addend, Tpx32u oddMask) {
            const V32u add = splat<V32u>(addend), odd = splat<V32u>(oddMask);
            const int shift = shift_;
            eachWithOffset([=](Pair<V32s> x) {
                const auto one = [=](V32s v) {
                    return shiftRight(V32s(V32u(v) + add + (V32u(shiftRight(v, shift)) & odd)), shift);
                };
                return Pair<V32s>{one(x.low), one(x.high)};
            });
        };
        const Tpx32u half = (Tpx32u(1) << shift_) >> 1;
        switch (rule_) {
            case IntegerRule::Shift:
                return shifted(half - 1, 1);
            case IntegerRule::FlooredShift:
                return shifted(0, 0);
            case IntegerRule::UpwardShift:
                return shifted(half, 0);
            case IntegerRule::Scale:
                return eachWithOffset([inverse = splat<V32f>(inverse_)](Pair<V32s> x) {
                    return toInteger(toFloat(x) * inverse);
                });
            case IntegerRule::Whole:
                return eachWithOffset([](Pair<V32s> x) { return x; });
            case IntegerRule::Divide:
                return eachWithOffset([rules = *this](Pair<V32s> x) { return rules.divided(x); });
            case IntegerRule::Quotient:
                return each([rules = *this](Pair<V32s> x) {
                    Pair<V64f> sums = {toDouble(x.low), toDouble(x.high)};
                    if (rules.bytes_) // the offset is a float, with which the sum may leave 32 bits
                        sums = widen(rounded<Rounding::TowardZero>(toFloat(x) + splat<V32f>(rules.offsetF_)));
                    return Pair<V32s>{rules.quotient(sums.low), rules.quotient(sums.high)};
                });
        }
    }

    // The truncated estimate is one too low at most, then what is left of an even divisor decides. Odd divisors
    // have no ties: their estimate is rounded at once.
    Pair<V32s> divided(Pair<V32s> x) const {
        const V32f estimate = toFloat(x) * splat<V32f>(inverse_);
        const bool odd = (divisor_ & 1) != 0;
        if (odd && mode_ == tpxRoundNearestEven) return toInteger(estimate);
        if (odd && mode_ == tpxRoundHalfAway) return toIntegerTruncated(estimate + splat<V32f>(0.5f));
        const Pair<V32s> q = toIntegerTruncated(estimate);
        return {putRight(x.low, V32u(q.low)), putRight(x.high, V32u(q.high))};
    }
    V32s putRight(V32s x, V32u q) const {
        const V32u d = V32u(splat<V32s>(divisor_)), half = V32u(splat<V32s>(divisor_ >> 1)),
                   one = splat<V32u>(1);
        q -= V32u(V32u(x) == q * d + d);
        if (mode_ == tpxRoundTowardZero) return V32s(q);
        const V32u limit = q * d + half - (mode_ == tpxRoundNearestEven ? q & one : one);
        return V32s(q) - V32s(x > V32s(limit));
    }

    bool bytes_;
    IntegerRule rule_;
    Rounding direction_;
    TpxRoundMode mode_;
    Tpx32s shift_, divisor_;
    Tpx32f inverse_;
    Tpx32s offset_;
    Tpx32f offsetF_;
    Tpx32s start_ = 0;
    bool stays16Bits_ = false;
    Tpx16s less_ = 0;
};

// Sums of floats, for integer samples.
class FloatRules {
 public:
    FloatRules(const FilterBlock& b, int64_t regionWidth)
        : offset_(b.offsetF), mode_(b.roundMode & 3), wide_(regionWidth >= kWideForFloats) {}

    // Results before they saturate at T's smallest.
    template <class T>
    [[gnu::always_inline]] Pair<V32s> apply(V32f sum) const {
        const V32f x = minOf(sum + splat<V32f>(offset_), splat<V32f>(kMax<T>));
        if (wide_) return toInteger(x);
        const V32f low = maxOf(x, splat<V32f>(kMin<T>));
        if (mode_ == tpxRoundTowardZero) return toIntegerTruncated(low);
        if (mode_ == tpxRoundNearestEven) return toInteger(roundNearest(low));
        // Halves away from zero: the fraction is exact, as adding a half to the sample would not be.
        const V32f whole = rounded<Rounding::TowardZero>(low), fraction = low - whole;
        const V32f up = masked(fraction >= splat<V32f>(0.5f), splat<V32f>(1)),
                   down = masked(fraction <= splat<V32f>(-0.5f), splat<V32f>(1));
        return toIntegerTruncated(whole + up - down);
    }

 private:
    Tpx32f offset_;
    TpxRoundMode mode_;
    bool wide_;
};

} // namespace tpx
