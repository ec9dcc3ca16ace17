// SPDX-License-Identifier: Apache-2.0
// Short transforms of registers: what a pass does with as many elements as its radix.
//
// X[k] = sum of x[n] exp(-2 pi i n k / R), in place.
#pragma once

#include "frame/simd/complex.h"

namespace tpx {

using Lanes = Complex<V32f>; // an element of eight sequences

// Radix 2, 4, 8.
template <int R>
struct EvenButterfly {
    static constexpr int kMost = R;
    static constexpr int radix() { return R; }

    static void run(Lanes (&x)[R]) {
        Lanes even[R / 2], odd[R / 2];
        for (int k = 0; k < R / 2; k++) {
            even[k] = x[k] + x[k + R / 2];
            odd[k] = x[k] - x[k + R / 2];
        }
        if constexpr (R == 4) {
            odd[1] = timesMinusI(odd[1]);
        } else if constexpr (R == 8) { // roots of order 8: (1 - i) / sqrt(2), -i and their product
            const V32f r = splat<V32f>(0.70710678f);
            odd[1] = {(odd[1].re + odd[1].im) * r, (odd[1].im - odd[1].re) * r};
            odd[2] = timesMinusI(odd[2]);
            odd[3] = {(odd[3].im - odd[3].re) * r, (odd[3].re + odd[3].im) * -r};
        }
        if constexpr (R > 2) {
            EvenButterfly<R / 2>::run(even);
            EvenButterfly<R / 2>::run(odd);
        }
        for (int k = 0; k < R / 2; k++) {
            x[2 * k] = even[k];
            x[2 * k + 1] = odd[k];
        }
    }
};

// Odd numbers. x[j] and x[R - j] go into every result with the same cosine, and with the same sine but for its
// sign. `roots` holds the roots of order R from the second on. Radix 0 is any other, told when it is made.
inline constexpr int kLargestRadix = 50;

template <int R>
class OddButterfly {
 public:
    static constexpr int kMost = R ? R : kLargestRadix;

    explicit OddButterfly(const float* roots, int radix = R) : roots_(roots), radix_(radix) {}
    int radix() const { return R ? R : radix_; }

    void run(Lanes (&x)[kMost]) const {
        Lanes sums[kMost / 2], differences[kMost / 2];
        const int r = radix(), half = r / 2;
        Lanes total = x[0];
#pragma GCC unroll 8
        for (int j = 0; j < half; j++) {
            sums[j] = x[j + 1] + x[r - 1 - j];
            differences[j] = x[j + 1] - x[r - 1 - j];
            total = total + sums[j];
        }
#pragma GCC unroll 8
        for (int k = 1; k <= half; k++) {
            Lanes even = x[0], odd{};
            int at = 0; // of the root j k
#pragma GCC unroll 8
            for (int j = 0; j < half; j++) {
                at += k;
                if (at >= r) at -= r;
                const V32f cosine = splat<V32f>(roots_[2 * at - 2]), sine = splat<V32f>(roots_[2 * at - 1]);
                even = {even.re + sums[j].re * cosine, even.im + sums[j].im * cosine};
                odd = {odd.re - differences[j].im * sine, odd.im + differences[j].re * sine};
            }
            x[k] = even + odd;
            x[r - k] = even - odd;
        }
        x[0] = total;
    }

 private:
    const float* roots_;
    int radix_;
};

} // namespace tpx
