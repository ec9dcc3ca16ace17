// The region kernels of the general filter.
#pragma once

#include "filters/general_rules.h"
#include "frame/runs/runs.h"

namespace tpx {

// Kernels of 16-bit integers, on 8u and 16s.
template <class T, int N>
void correlateIntegers(const FilterBlock& block, const Region<T, T>& region);

// Kernels of floats, on every type.
template <class T, int N>
void correlateFloats(const FilterBlock& block, const Region<T, T>& region);

// The rows of a source that a row of results and the next one read. Rows behind the last that can be read have
// no weight, or are of a result that is not stored: the last one stands for them.
template <class T>
class SourceRows {
 public:
    SourceRows(const Region<T, T>& region, int64_t y, int64_t kernelWidth, int64_t kernelHeight, int channels)
        : first_(region.src.from(-((kernelWidth - 1) >> 1) * channels, y - ((kernelHeight - 1) >> 1))),
          last_(region.size.height - y + kernelHeight - 2) {}

    // Row r of the kernel over the upper result, from its first column on.
    const T* operator[](int64_t r) const { return first_.row(r < last_ ? r : last_); }

 private:
    ImageView<const T> first_;
    int64_t last_;
};

// A register of samples of a row, or, at the end of what can be read, as many as there are.
template <class T>
[[gnu::always_inline]] inline Vec<T> loadAtMost(const T* p, ptrdiff_t count) {
    Vec<T> v{};
    copyShort(&v, p, count * ptrdiff_t(sizeof(T)));
    return v;
}

} // namespace tpx
