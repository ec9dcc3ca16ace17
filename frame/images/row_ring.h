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
    RowRing(T* memory, ptrdiff_t step, ptrdiff_t count) : memory_(memory), step_(step), count_(count) {}

    // Moves the window to the rows [first, first + count), which is not above where it was. compute(y, row)
    // makes each row that it did not hold.
    template <class Compute>
    void moveTo(int64_t first, Compute compute) {
        if (first >= end_) { // nothing stays, or nothing has been computed yet
            oldest_ = 0;
            end_ = first;
        } else {
            oldest_ = wrap(oldest_ + ptrdiff_t(first - (end_ - held_)));
        }
        held_ = ptrdiff_t(end_ - first);
        for (; held_ < count_; held_++, end_++) compute(end_, at(held_));
    }

    // The k-th row of the window, from 0.
    T* at(ptrdiff_t k) const { return memory_ + wrap(oldest_ + k) * step_; }

 private:
    ptrdiff_t wrap(ptrdiff_t slot) const { return slot < count_ ? slot : slot - count_; }

    T* memory_;
    ptrdiff_t step_, count_;
    ptrdiff_t oldest_ = 0, held_ = 0; // the slot of the window's first row; rows computed
    int64_t end_ = INT64_MIN;         // the row behind the last one computed
};

} // namespace tpx
