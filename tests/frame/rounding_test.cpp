// SPDX-License-Identifier: Apache-2.0
// Rounded and saturating shifts, and floating point to samples, against plain arithmetic.
#include <gtest/gtest.h>

#include "frame/simd/control.h"
#include "frame/simd/rounding.h"
#include "tests/frame/simd_lanes.h"

using namespace tpx;
using namespace tpx::test;

namespace {

// x * 2^-n in integers: the quotient toward zero, and what was left of the magnitude.
int64_t shiftModel(TpxRoundMode mode, int64_t x, int n) {
    const int64_t m = x < 0 ? -x : x, quotient = m >> n, twiceRest = 2 * (m - (quotient << n));
    const int64_t tie = int64_t{1} << n;
    const bool up = mode == tpxRoundHalfAway      ? twiceRest >= tie
                    : mode == tpxRoundNearestEven ? twiceRest > tie || (twiceRest == tie && quotient % 2)
                                                  : false;
    return x < 0 ? -(quotient + up) : quotient + up;
}

template <TpxRoundMode Mode, class T, Headroom H>
void checkRoundedShift(int n) {
    std::vector<T> values = allOf<T>();
    if (sizeof(T) == 4) // ties of this shift and their neighbours
        for (int64_t quotient : {0, 1, 2, 3, 1000, 1001})
            for (int64_t x = (quotient << n) + (int64_t{1} << n >> 1) - 2, end = x + 5; x < end; x++)
                if (x == int64_t{T(x)}) values.insert(values.end(), {T(x), T(-x)});
    if (H == Headroom::Half && sizeof(T) == 4)
        std::erase_if(values, [&](T x) {
            const int64_t half = int64_t{1} << (n - 1);
            return x + half > kMax<T>;
        });
    const RoundedShift<Mode, Vec<T>, H> shift(n);
    eachRegister(values, [&](Vec<T> x) {
        const Vec<T> r = shift(x);
        for (int i = 0; i < kLanes<T>; i++)
            ASSERT_EQ(int64_t{r[i]}, shiftModel(Mode, x[i], n))
                << +x[i] << " by " << n << ", mode " << Mode << ", " << sizeof(T) << " bytes";
    });
}

template <class T, Headroom H>
void checkRoundedShifts(int most) {
    for (int n = 1; n <= most; n++) {
        checkRoundedShift<tpxRoundTowardZero, T, H>(n);
        checkRoundedShift<tpxRoundNearestEven, T, H>(n);
        checkRoundedShift<tpxRoundHalfAway, T, H>(n);
    }
}

template <class T>
void checkHalvesUp(int most) {
    for (int n = 1; n <= most; n++)
        checkEach<T>("HalvesUp", HalvesUp<Vec<T>>(n),
                     [&](T x) { return (int64_t{x} + (int64_t{1} << (n - 1))) >> n; });
}

template <class T>
void checkShiftLeftSat() {
    for (int k = 1; k <= kValueBits<T>; k++)
        checkEach<T>(
            "shiftLeftSat", [&](auto x) { return shiftLeftSat(x, k); },
            [&](T x) { return saturate<T>(int64_t{x} * (int64_t{1} << k)); });
}

// Lanes of W that are narrowed to D: what is beyond D's range stays beyond it.
template <class D, class W>
void checkShiftLeftLimited() {
    for (int k = 1; k <= kValueBits<D>; k++)
        eachRegister(allOf<W>(), [&](Vec<W> x) {
            const Vec<W> r = shiftLeftLimited<D>(x, k);
            for (int i = 0; i < kLanes<W>; i++)
                ASSERT_EQ(saturate<D>(r[i]), saturate<D>(int64_t{x[i]} * (int64_t{1} << k)))
                    << +x[i] << ", " << k;
        });
}

// Numbers on and beside every tie and limit of T, and those that no integer has.
template <class T, class F>
std::vector<F> realsAround() {
    std::vector<F> values = {F(kNan),  -F(kNan), F(kInfinity), -F(kInfinity), F(3e38),      F(-3e38),
                             F(1e-40), F(-0.0f), F(0x1p31),    F(-0x1p31),    F(-0x1.8p31), F(0x1p32),
                             F(1e10),  F(-1e10), F(2e9),       F(0.49999997f)};
    for (int i = int{kMin<T>} - 3; i <= int{kMax<T>} + 3; i++)
        for (F part : {F(0), F(0.25), F(0.5), F(0.75)}) values.push_back(F(i) + part);
    return values;
}

template <class F>
F roundModel(F x, Rounding direction) {
    return direction == Rounding::TowardZero ? std::trunc(x)
           : direction == Rounding::Down     ? std::floor(x)
           : direction == Rounding::Up       ? std::ceil(x)
                                             : std::nearbyint(x); // the test runs in this mode
}

template <class T, class F, Rounding R, NanBecomes Nan>
void checkToSamples(Rounding direction) {
    constexpr int kParts = kLanes<T> / kLanes<F>;
    const std::vector<F> values = realsAround<T, F>();
    for (size_t i = 0; i < values.size(); i += kLanes<T>) {
        F x[kLanes<T>];
        Several<Vec<F>, kParts> parts;
        for (size_t k = 0; k < kLanes<T>; k++) x[k] = values[(i + k) % values.size()];
        for (int k = 0; k < kParts; k++) parts.at[k] = load(x + k * kLanes<F>);
        Vec<T> r;
        {
            // Directions in the instruction do not heed the register.
            const FloatControl control(roundingAs(R == Rounding::OfThread ? direction : Rounding::Up));
            asm volatile("" : "+m"(parts)); // nothing of this is done outside
            r = toSamples<T, R, Nan>(parts);
            asm volatile("" : "+m"(r));
        }
        for (int k = 0; k < kLanes<T>; k++) {
            const F whole = roundModel(x[k], direction);
            const T expected = std::isnan(whole) ? (Nan == NanBecomes::Most ? kMax<T> : kMin<T>)
                                                 : T(std::clamp<F>(whole, kMin<T>, kMax<T>));
            ASSERT_EQ(+r[k], +expected) << x[k];
            if (R == Rounding::Nearest && Nan == NanBecomes::Least)
                ASSERT_EQ(+toSample<T>(x[k]), +expected) << x[k];
        }
    }
}

template <class T, class F>
void checkDirections() {
    checkToSamples<T, F, Rounding::Nearest, NanBecomes::Least>(Rounding::Nearest);
    checkToSamples<T, F, Rounding::TowardZero, NanBecomes::Least>(Rounding::TowardZero);
    checkToSamples<T, F, Rounding::OfThread, NanBecomes::Most>(Rounding::Nearest);
    checkToSamples<T, F, Rounding::OfThread, NanBecomes::Least>(Rounding::TowardZero);
    checkToSamples<T, F, Rounding::OfThread, NanBecomes::Least>(Rounding::Down);
}

} // namespace

TEST(Rounding, ShiftsRightOfAnyValue) {
    checkRoundedShifts<Tpx16u, Headroom::None>(20);
    checkRoundedShifts<Tpx16s, Headroom::None>(20);
    checkRoundedShifts<Tpx32u, Headroom::None>(36);
    checkRoundedShifts<Tpx32s, Headroom::None>(36);
}

TEST(Rounding, ShiftsRightWithHeadroom) {
    checkRoundedShifts<Tpx16s, Headroom::Half>(15);
    checkRoundedShifts<Tpx32s, Headroom::Half>(30);
}

TEST(Rounding, HalvesUp) {
    checkHalvesUp<Tpx16u>(20);
    checkHalvesUp<Tpx16s>(15);
    checkHalvesUp<Tpx32u>(36);
}

TEST(Rounding, ShiftsLeft) {
    checkShiftLeftSat<Tpx8u>();
    checkShiftLeftSat<Tpx16u>();
    checkShiftLeftSat<Tpx16s>();
    checkShiftLeftLimited<Tpx8s, Tpx16u>();
    checkShiftLeftLimited<Tpx8u, Tpx16s>();
    checkShiftLeftLimited<Tpx16s, Tpx32s>();
    checkShiftLeftLimited<Tpx16u, Tpx32u>();
    checkShiftLeftLimited<Tpx32s, Tpx32u>();
}

TEST(Rounding, SamplesFromFloatingPoint) {
    checkDirections<Tpx8u, float>();
    checkDirections<Tpx8s, float>();
    checkDirections<Tpx16u, float>();
    checkDirections<Tpx16s, float>();
    checkDirections<Tpx8u, double>();
    checkDirections<Tpx16u, double>();
    checkDirections<Tpx16s, double>();
}
