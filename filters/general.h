// SPDX-License-Identifier: Apache-2.0
// The region kernels of the general filter, and the parts that those of integers and of floats share.
#pragma once

#include "filters/general_rules.h"
#include "frame/runs/runs.h"

namespace tpx {

// Kernels of 16-bit integers, on 8u and 16s. Pixels have so many channels.
template <class T>
void correlateIntegers(const FilterBlock& block, const Region<T, T>& region, int channels);

// Kernels of floats, on every type.
template <class T>
void correlateFloats(const FilterBlock& block, const Region<T, T>& region, int channels);

// ---- Rows -------------------------------------------------------------------------------------------------

// The rows of a source that a row of results and the next one read. Rows behind the last that can be read have
// no weight, or are of a result that is not stored: the last one stands for them.
template <class T>
class SourceRows {
 public:
    SourceRows(const Region<T, T>& region, int64_t y, const FilterBlock& block, ptrdiff_t channels)
        : first_(
              region.src.from(-((block.kernelWidth - 1) >> 1) * channels, y - ((block.kernelHeight - 1) >> 1))),
          last_(region.size.height - y + block.kernelHeight - 2) {}

    // Row r of the kernel over the upper result, from its first column on.
    const T* operator[](int64_t r) const { return first_.row(r < last_ ? r : last_); }

 private:
    ImageView<const T> first_;
    int64_t last_;
};

// Two rows of results; lower is null if there is one.
template <class T>
struct ResultRows {
    T *upper, *lower;

    ResultRows(T* first, T* second) : upper(first), lower(second) {}
    // Row y of a region and the next, from a sample on.
    ResultRows(const Region<T, T>& region, int64_t y, ptrdiff_t from)
        : upper(region.dst.row(y) + from),
          lower(y + 1 < region.size.height ? region.dst.row(y + 1) + from : nullptr) {}
};

// A row of `all` samples in bands of columns: band(from, len). They are as long as `longest` allows in whole
// steps, and none is shorter than `least`, of which a row and a step have at least so many and two.
template <class Band>
void forBands(ptrdiff_t all, ptrdiff_t longest, ptrdiff_t step, ptrdiff_t least, Band band) {
    longest -= longest % step;
    for (ptrdiff_t from = 0, len; from < all; from += len) {
        len = all - from < longest ? all - from : longest;
        const ptrdiff_t rest = all - from - len;
        if (rest > 0 && rest < least) len -= least;
        band(from, len);
    }
}

// ---- Ends of rows -----------------------------------------------------------------------------------------

// A register of samples of a row, or, at the end of what can be read, as many as there are.
template <class T>
[[gnu::always_inline]] inline Vec<T> loadAtMost(const T* p, ptrdiff_t count) {
    Vec<T> v{};
    copyShort(&v, p, count * ptrdiff_t(sizeof(T)));
    return v;
}

} // namespace tpx
