// SPDX-License-Identifier: Apache-2.0
#include "models.h"

#include <algorithm>

namespace tpx::model {

template <typename T>
void lookup(const T* src, T* dst, size_t length, size_t channels, const std::vector<T>* tables) {
    for (size_t i = 0; i < length; i += channels)
        for (size_t c = 0; c < channels; ++c)
            dst[i + c] = tables[c][static_cast<std::make_unsigned_t<T>>(src[i + c])];
}
template void lookup(const Tpx8u*, Tpx8u*, size_t, size_t, const std::vector<Tpx8u>*);
template void lookup(const Tpx16u*, Tpx16u*, size_t, size_t, const std::vector<Tpx16u>*);
template void lookup(const Tpx16s*, Tpx16s*, size_t, size_t, const std::vector<Tpx16s>*);

template <int entryBytes, typename S>
void lookupPacked(const S* src, Tpx8u* dst, size_t length, const Tpx8u* table) {
    struct Entry {
        Tpx8u bytes[entryBytes];
    };
    for (size_t i = 0; i < length; ++i)
        reinterpret_cast<Entry*>(dst)[i] = reinterpret_cast<const Entry*>(table)[src[i]];
}
template void lookupPacked<3>(const Tpx8u*, Tpx8u*, size_t, const Tpx8u*);
template void lookupPacked<4>(const Tpx8u*, Tpx8u*, size_t, const Tpx8u*);
template void lookupPacked<1>(const Tpx16u*, Tpx8u*, size_t, const Tpx8u*);

void lookupBetween(const Tpx32f* src, Tpx32f* dst, size_t length, bool linear,
                   const std::vector<Tpx32f>& levels, const std::vector<Tpx32f>& values) {
    for (size_t i = 0; i < length; ++i) {
        const Tpx32f x = src[i];
        if (!(levels.front() <= x && x < levels.back())) {
            dst[i] = x;
            continue;
        }
        const size_t k = std::upper_bound(levels.begin(), levels.end(), x) - levels.begin() - 1;
        const double slope = (double{values[k + 1]} - values[k]) / (double{levels[k + 1]} - levels[k]);
        dst[i] = linear ? static_cast<Tpx32f>((x - double{levels[k]}) * slope + values[k]) : values[k];
    }
}

} // namespace tpx::model
