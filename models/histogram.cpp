// SPDX-License-Identifier: Apache-2.0
#include "models.h"

#include <algorithm>

namespace tpx::model {

void countBytes(const Tpx8u* src, size_t channels, size_t length, Tpx32u* const* tables) {
    for (size_t i = 0; i < length; i += channels)
        for (size_t c = 0; c < channels; ++c) tables[c][src[i + c]]++;
}

template <typename T>
void countBetween(const T* src, size_t channels, size_t length, const std::vector<float>& levels,
                  Tpx32u* const* hist) {
    for (size_t i = 0; i < length; i += channels)
        for (size_t c = 0; c < channels; ++c) {
            const auto above =
                std::upper_bound(levels.begin(), levels.end(), static_cast<float>(src[i + c])) - levels.begin();
            if (above > 0 && static_cast<size_t>(above) < levels.size()) hist[c][above - 1]++;
        }
}
template void countBetween(const Tpx16u*, size_t, size_t, const std::vector<float>&, Tpx32u* const*);
template void countBetween(const Tpx16s*, size_t, size_t, const std::vector<float>&, Tpx32u* const*);
template void countBetween(const Tpx32f*, size_t, size_t, const std::vector<float>&, Tpx32u* const*);

} // namespace tpx::model
