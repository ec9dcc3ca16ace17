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
        return n < kFewest ? 0 : fineSteps(n) + n / 2 / fineSteps(n) + 1;
    }

    Roots(uint64_t n, Complex<double>* table) : n_(n) {
        const uint64_t entries = tableEntries(n), fine = fineSteps(n);
        for (uint64_t i = 0; i < entries; i++) table[i] = bySine(i < fine ? i : (i - fine) * fine);
        if (!entries) return;
        fineSteps_ = fine;
        table_ = table;
    }

    Complex<double> operator()(uint64_t k) const {
        const uint64_t quarter = 4 * k / n_;
        uint64_t part = 4 * k % n_; // of the quarter, in units of 1 / (4 n)
        const bool mirror = 2 * part > n_;
        if (mirror) part = n_ - part;
        Complex<double> root =
            table_ ? multiply(table_[fineSteps_ + part / fineSteps_], table_[part % fineSteps_]) : bySine(part);
        if (mirror) root = {-root.im, -root.re};
        if (quarter & 1) root = timesMinusI(root);
        return quarter & 2 ? Complex<double>{-root.re, -root.im} : root;
    }

 private:
    static constexpr uint64_t kFewest = 2048;
    static constexpr uint64_t fineSteps(uint64_t n) {
        uint64_t steps = 1;
        while (steps * steps < n / 2) steps *= 2;
        return steps;
    }
    // exp(-2 pi i part / (4 n)).
    Complex<double> bySine(uint64_t part) const {
        const double angle = 1.5707963267948966 * (double(part) / double(n_));
        return {TPXS(CosOne)(angle), -TPXS(SinOne)(angle)};
    }

    uint64_t n_, fineSteps_ = 0;
    const Complex<double>* table_ = nullptr;
};

} // namespace tpx
