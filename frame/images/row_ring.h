// SPDX-License-Identifier: Apache-2.0
// The newest rows of something that is computed row by row: filtered, widened or resized rows that several
// results read.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace tpx {

// A window of `count` rows of consecutive numbers in a caller's memory. Rows are computed once, in rising
// order, while the window moves down; what it leaves is overwritten.
template <class T>
class RowRing {
 public:
    // The memory has the window's rows and `ahead` more, `step` samples apart.
    RowRing(T* memory, ptrdiff_t step, ptrdiff_t count, ptrdiff_t ahead = 0)
        : memory_(memory), step_(step), count_(count), ahead_(ahead), length_(step * (count + ahead)) {}

    // Moves the window to the rows [first, first + count), which is not above where it was. compute(y, row)
    // makes each row that it did not hold.
    template <class Compute>
    void moveTo(int64_t first, Compute compute) {
        if (first == first_) return;
        move(first);
        for (; end_ < first + count_; end_++) compute(end_, of(end_));
    }
    // The same for what computes several rows at a time: compute(y, n) makes the rows [y, y + n), whose places
    // of() tells. n is ahead + 1 but where the rows end, at `limit`.
    template <class Compute>
    void moveTo(int64_t first, int64_t limit, Compute compute) {
        if (first == first_) return;
        move(first);
        while (end_ < first + count_) {
            const int64_t n = limit - end_ < ahead_ + 1 ? limit - end_ : ahead_ + 1;
            compute(end_, n);
            end_ += n;
        }
    }

    // The k-th row of the window, from 0.
    T* at(ptrdiff_t k) const { return memory_ + wrap(oldest_ + k * step_); }
    // Row y, of the window or computed next.
    T* of(int64_t y) const { return at(ptrdiff_t(y - first_)); }

 private:
    ptrdiff_t wrap(ptrdiff_t place) const { return place < length_ ? place : place - length_; }
    void move(int64_t first) {
        if (first >= end_) { // none of its rows is held, or nothing has been computed yet
            oldest_ = 0;
            end_ = first;
        } else {
            oldest_ = wrap(oldest_ + ptrdiff_t(first - first_) * step_);
        }
        first_ = first;
    }

    T* memory_;
    ptrdiff_t step_, count_, ahead_, length_;
    ptrdiff_t oldest_ = 0;                        // where the window's first row lies, in samples
    int64_t first_ = INT64_MIN, end_ = INT64_MIN; // that row, and the one behind the last one computed
};

} // namespace tpx
