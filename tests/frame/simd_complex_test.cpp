// SPDX-License-Identifier: Apache-2.0
// Complex numbers in both forms, against the four products and two sums written out.
#include <gtest/gtest.h>

#include "frame/simd/complex.h"
#include "tests/frame/simd_lanes.h"

using namespace tpx;
using namespace tpx::test;

namespace {

template <class T>
struct Number {
    T re, im;
};

// The bits, and any NaN for NaN.
template <class T>
bool same(Number<T> want, T re, T im) {
    const auto one = [](T a, T b) { return std::isnan(a) ? std::isnan(b) : sameBits(a, b); };
    return one(want.re, re) && one(want.im, im);
}

// Both forms of an operation on all pairs of numbers are the model's.
template <class T, class Operation, class Model>
void checkComplex(const char* name, Operation operation, Model model) {
    constexpr int L = kLanes<T>;
    std::vector<T> parts;
    for (Tpx32f x : allOf<Tpx32f>()) parts.push_back(T(x));
    std::mt19937 random(1);
    for (int i = 0; i < 20; i++) parts.push_back(T(random() / 3e9 - 0.7) * T(1.0 / 3));
    for (int n = 0; n < 20000; n++) {
        Number<T> a[L], b[L];
        for (int i = 0; i < L; i++) {
            const auto part = [&] { return parts[random() % parts.size()]; };
            a[i] = {part(), part()};
            b[i] = {part(), part()};
        }
        const auto lanes = [](const Number<T>* numbers) { return load(&numbers->re); };
        const Vec<T> r[2] = {operation(lanes(a), lanes(b)), operation(lanes(a + L / 2), lanes(b + L / 2))};
        const Complex<Vec<T>> split =
            operation(toSplit(lanes(a), lanes(a + L / 2)), toSplit(lanes(b), lanes(b + L / 2)));
        const Pair<Vec<T>> back = toInterleaved(split);
        for (int i = 0; i < L; i++) {
            const Number<T> want = model(a[i], b[i]);
            const int at = 2 * i % L;
            ASSERT_TRUE(same(want, r[2 * i / L][at], r[2 * i / L][at + 1]))
                << name << " of " << a[i].re << ", " << a[i].im << " and " << b[i].re << ", " << b[i].im;
            ASSERT_TRUE(same(want, lane(back, 2 * i), lane(back, 2 * i + 1)))
                << name << ", split, of " << a[i].re << ", " << a[i].im << " and " << b[i].re << ", "
                << b[i].im;
        }
    }
}

template <class T>
void checkAll() {
    using N = Number<T>;
    checkComplex<T>(
        "product", [](auto a, auto b) { return multiply(a, b); },
        [](N a, N b) {
            const T rr = a.re * b.re, ii = a.im * b.im, ri = a.re * b.im, ir = a.im * b.re;
            return N{rr - ii, ri + ir};
        });
    checkComplex<T>(
        "product by the conjugate", [](auto a, auto b) { return multiplyConjugate(a, b); },
        [](N a, N b) {
            const T rr = a.re * b.re, ii = a.im * b.im, ri = a.re * b.im, ir = a.im * b.re;
            return N{rr + ii, ir - ri};
        });
    checkComplex<T>(
        "times i", [](auto a, auto) { return timesI(a); },
        [](N a, N) {
            return N{-a.im, a.re};
        });
    checkComplex<T>(
        "times -i", [](auto a, auto) { return timesMinusI(a); },
        [](N a, N) {
            return N{a.im, -a.re};
        });
    checkComplex<T>(
        "sum", [](auto a, auto b) { return a + b; },
        [](N a, N b) {
            return N{a.re + b.re, a.im + b.im};
        });
    checkComplex<T>(
        "difference", [](auto a, auto b) { return a - b; },
        [](N a, N b) {
            return N{a.re - b.re, a.im - b.im};
        });
}

} // namespace

TEST(Simd, ComplexNumbers) {
    checkAll<Tpx32f>();
    checkAll<Tpx64f>();
}
