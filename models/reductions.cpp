// SPDX-License-Identifier: Apache-2.0
#include "models.h"

#include <cmath>

namespace tpx::model {

namespace {
template <typename T>
using Sum = std::conditional_t<std::is_floating_point_v<T>, double, long long>;
} // namespace

template <typename T>
double sum(const T* src, size_t length) {
    Sum<T> total = 0;
    for (size_t i = 0; i < length; ++i) total += src[i];
    return static_cast<double>(total);
}

template <typename T>
double sumOfProducts(const T* src1, const T* src2, size_t length) {
    Sum<T> total = 0;
    for (size_t i = 0; i < length; ++i) total += static_cast<Sum<T>>(src1[i]) * src2[i];
    return static_cast<double>(total);
}

template <typename T>
double sumOfMagnitudes(const T* src1, const T* src2, size_t length) {
    Sum<T> total = 0;
    for (size_t i = 0; i < length; ++i) {
        const Sum<T> x = static_cast<Sum<T>>(src1[i]) - (src2 ? src2[i] : 0);
        total += x < 0 ? -x : x;
    }
    return static_cast<double>(total);
}

template <typename T>
size_t least(const T* src, size_t length) {
    size_t at = 0;
    for (size_t i = 1; i < length; ++i)
        if (src[i] < src[at]) at = i;
    return at;
}

template <typename T>
T most(const T* src, size_t length) {
    T best = src[0];
    for (size_t i = 1; i < length; ++i) best = src[i] > best ? src[i] : best;
    return best;
}

#define TYPE(T)                                                  \
    template double sum(const T*, size_t);                       \
    template double sumOfProducts(const T*, const T*, size_t);   \
    template double sumOfMagnitudes(const T*, const T*, size_t); \
    template size_t least(const T*, size_t);                     \
    template T most(const T*, size_t);
TYPE(Tpx8u)
TYPE(Tpx16u)
TYPE(Tpx16s)
TYPE(Tpx32s)
TYPE(Tpx32f)

} // namespace tpx::model
