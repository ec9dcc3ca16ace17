// SPDX-License-Identifier: Apache-2.0
// Blocks that callers own: plans, specs and work buffers.
//
// A block lies at any address. What a call keeps in it is one function that takes its tables one behind the
// other from a BlockLayout: the size query runs it without memory and is told the bytes, the initialiser and
// the processing calls run it with the block and are given the tables. So the two cannot disagree. (A few sizes
// are fixed by contract; where they are, the formula says so and a test holds the layout below it.) Records at
// addresses of any alignment are read and written by peek and poke (frame/simd/core.h).
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "tpxi/types.h"

namespace tpx {

inline constexpr uintptr_t kBlockAlignment = 64; // a line of the caches

constexpr uint64_t roundUp(uint64_t n, uint64_t unit) { return (n + unit - 1) / unit * unit; }

// The next address that is a multiple of `alignment`. Callers' blocks have spare bytes for it.
template <class T>
inline T* alignUp(T* p, uintptr_t alignment = kBlockAlignment) {
    return reinterpret_cast<T*>((reinterpret_cast<uintptr_t>(p) + alignment - 1) & -alignment);
}

class BlockLayout {
 public:
    // Only counts.
    BlockLayout() = default;
    // Hands out memory from `start` on, which tells how far tables are aligned.
    explicit BlockLayout(void* start) : start_(static_cast<Tpx8u*>(start)) {}

    // The next table; null if only counted.
    template <class T>
    T* take(uint64_t count, uint64_t alignment = 1) {
        align(alignment);
        Tpx8u* const at = start_ ? start_ + bytes_ : nullptr;
        bytes_ += count * sizeof(T);
        return reinterpret_cast<T*>(at);
    }
    void align(uint64_t alignment) { bytes_ = roundUp(bytes_, alignment); }

    uint64_t bytes() const { return bytes_; }
    // The size that a caller is told of a block which may lie at any address.
    uint64_t bytesAnywhere(uint64_t alignment = kBlockAlignment) const { return bytes_ + alignment; }

 private:
    Tpx8u* start_ = nullptr;
    uint64_t bytes_ = 0;
};

// A size as the short forms tell it.
inline constexpr uint64_t kLongestBlock = 0x7FFFFFFF;

} // namespace tpx
