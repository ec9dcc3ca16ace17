// The newest rows of something that is computed row by row: filtered, widened or resized rows that several
// results read.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace tpx {

// `count` rows of consecutive numbers in a caller's memory. Rows are computed once, in rising order, while the
// window moves down; what it leaves is overwritten.
template <class T>
class RowRing {
 public:
    // Rows are `step` samples apart.
    RowRing(T* memory, ptrdiff_t step, ptrdiff_t count)
        : memory_(memory), step_(step), count_(count), length_(step * count) {}

    // Moves the window to the rows [first, first + count), which is not above where it was. compute(y, row)
    // makes each row that it did not hold.
    template <class Compute>
    void moveTo(int64_t first, Compute compute) {
        if (first + count_ == end_) return;
        ptrdiff_t held = 0;  // rows of the window that are there already
        if (first >= end_) { // none, or nothing has been computed yet
            oldest_ = 0;
            end_ = first;
        } else {
            held = ptrdiff_t(end_ - first);
            oldest_ = wrap(oldest_ + (count_ - held) * step_);
        }
        for (; held < count_; held++, end_++) compute(end_, at(held));
    }

    // The k-th row of the window, from 0.
    T* at(ptrdiff_t k) const { return memory_ + wrap(oldest_ + k * step_); }

 private:
    ptrdiff_t wrap(ptrdiff_t place) const { return place < length_ ? place : place - length_; }

    T* memory_;
    ptrdiff_t step_, count_, length_;
    ptrdiff_t oldest_ = 0;    // where the window's first row lies, in samples
    int64_t end_ = INT64_MIN; // the row behind the last one computed
};

} // namespace tpx
