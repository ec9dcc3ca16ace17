// SPDX-License-Identifier: Apache-2.0
// Roots of unity, computed in double precision.
#pragma once

#include "frame/runs/routines.h"
#include "frame/simd/complex.h"

namespace tpx {

// exp(-2 pi i k / n) for k from 0 to n - 1. Those of an eighth of the circle are computed, the others are their
// mirror images, so that 1, -i and the like are exact. Where there are many, those of the eighth are products
// of a coarse and a fine step, from tables in memory of the caller's.
class Roots {
 public:
    // The entries of the tables; small n need none.
    static constexpr uint64_t tableEntries(uint64_t n) {
        return n < kFewest ? 0 : (uint64_t(1) << fineBits(n)) + (n / 2 >> fineBits(n)) + 1;
    }

    // Fills a table of tableEntries(n).
    static void makeTable(uint64_t n, Complex<double>* table) {
        const Roots direct(n, nullptr);
        const uint64_t entries = tableEntries(n), fine = uint64_t(1) << fineBits(n);
        for (uint64_t i = 0; i < entries; i++) table[i] = direct.bySine(i < fine ? i : (i - fine) * fine);
    }

    // The table is one that was made for n; null costs time.
    Roots(uint64_t n, const Complex<double>* table)
        : n_(n), fineBits_(fineBits(n)), table_(tableEntries(n) ? table : nullptr) {}

    Complex<double> operator()(uint64_t k) const {
        k *= 4; // in units of 1 / (4 n): a quarter is n of them
        const bool half = k >= 2 * n_;
        if (half) k -= 2 * n_;
        const bool quarter = k >= n_;
        if (quarter) k -= n_;
        const bool mirror = 2 * k > n_;
        if (mirror) k = n_ - k;
        Complex<double> root = table_ ? byTable(k) : bySine(k);
        if (mirror) root = {-root.im, -root.re};
        if (quarter) root = timesMinusI(root);
        return half ? Complex<double>{-root.re, -root.im} : root;
    }

 private:
    static constexpr uint64_t kFewest = 2048;
    static constexpr int fineBits(uint64_t n) { // of about the root of n / 2
        int bits = 0;
        while (uint64_t(1) << 2 * bits < n / 2) bits++;
        return bits;
    }
    // exp(-2 pi i part / (4 n)), for an eighth of the circle.
    Complex<double> bySine(uint64_t part) const {
        const double angle = 1.5707963267948966 * (double(part) / double(n_));
        return {TPXS(CosOne)(angle), -TPXS(SinOne)(angle)};
    }
    Complex<double> byTable(uint64_t part) const {
        const uint64_t fine = uint64_t(1) << fineBits_;
        return multiply(table_[fine + (part >> fineBits_)], table_[part & (fine - 1)]);
    }

    uint64_t n_;
    int fineBits_;
    const Complex<double>* table_;
};

} // namespace tpx
