// SPDX-License-Identifier: Apache-2.0
// Samples replaced by the entries of tables.
#pragma once

#include "frame/entry/checks.h"

namespace tpx {

// A table for each channel that is computed, of packed entries at any address. A mask repeated through the word
// picks the bits of samples that tell the entry.
struct Tables {
    const Tpx8u* at[4];
    Tpx64u mask;
};

// One row; len is in samples. Samples come by words of 8 bytes, so that there is one load for each entry and
// few others. Entries are stored one by one, as processors store as many as they load: nothing is to be put
// together, and alpha need not be read.
template <Layout L, class S, int EntryBytes>
inline void lookupRow(const S* src, Tpx8u* dst, ptrdiff_t len, const Tables& tables) {
    constexpr int kChannels = channelsOf(L), kWord = sizeof(Tpx64u) / sizeof(S), kBits = 8 * sizeof(S);
    constexpr int kWords = L == Layout::C3 ? 3 : 2, kBlock = kWords * kWord;
    const Tables t = tables; // in registers: results might lie over the caller's
    const auto put = [&](ptrdiff_t i, int k, Tpx64u masked) {
        const int channel = k % kChannels;
        if (L == Layout::AC4 && channel == 3) return;
        const S index = S(masked);
        __builtin_memcpy(dst + (i + k) * EntryBytes, t.at[channel] + ptrdiff_t(index) * EntryBytes, EntryBytes);
    };
    ptrdiff_t i = 0;
    for (; i + kBlock <= len; i += kBlock) {
#pragma GCC unroll 3
        for (int w = 0; w < kWords; w++) {
            Tpx64u word;
            __builtin_memcpy(&word, src + i + w * kWord, sizeof word);
            word &= t.mask;
#pragma GCC unroll 8
            for (int k = 0; k < kWord; k++) put(i, w * kWord + k, word >> (k * kBits));
        }
    }
    for (int k = 0; i + k < len; k++) {
        S sample;
        __builtin_memcpy(&sample, src + i + k, sizeof sample);
        put(i, k, sample & t.mask);
    }
}

} // namespace tpx
