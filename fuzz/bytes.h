// SPDX-License-Identifier: Apache-2.0
// The fuzzer's bytes, taken as numbers and choices. Beyond the end all bytes are 0, and 0 is the tame choice.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

namespace tpx::fuzz {

class Bytes {
 public:
    Bytes(const uint8_t* data, size_t size) : at_(data), end_(data + size) {}

    template <class T>
    T take() {
        T v{};
        const size_t there = size_t(end_ - at_) < sizeof v ? size_t(end_ - at_) : sizeof v;
        std::memcpy(&v, at_, there);
        at_ += there;
        return v;
    }
    // From 0 to n - 1.
    int below(int n) { return n <= 256 ? take<uint8_t>() % n : int(take<uint32_t>() % unsigned(n)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    // Once in n.
    bool once(int n) { return below(n) == n - 1; }
    template <class T, size_t N>
    const T& pick(const T (&list)[N]) {
        return list[below(int(N))];
    }

    // A length that a call may be given with all that it takes: mostly short, now and then of a long row.
    int length() { return once(64) ? between(1, 70000) : between(1, 100); }

    // What breaks sums, products and comparisons.
    template <class Int = int>
    Int hostile() {
        using Limits = std::numeric_limits<Int>;
        switch (below(6)) {
            case 0:
                return Int(below(3) - 1);
            case 1:
                return Int(below(256) - 64);
            case 2:
                return Int(Limits::max() - Int(below(64)));
            case 3:
                return Int(Limits::min() + Int(below(64)));
            case 4: {
                const Int power = Int(Int(1) << below(Limits::digits));
                return Int(power + Int(below(3) - 1) - (below(2) ? 2 * power : 0));
            }
            default:
                return take<Int>();
        }
    }
    double real() {
        switch (below(5)) {
            case 0:
                return below(200) / 16.0;
            case 1:
                return between(-1000, 1000) / 7.0;
            case 2: {
                constexpr double kSpecial[] = {-0.0,
                                               1,
                                               -1,
                                               1e-10,
                                               1e-200,
                                               1e300,
                                               -1e300,
                                               0x1p-52,
                                               0x1p31,
                                               0x1p52,
                                               5e-324,
                                               __builtin_inf(),
                                               -__builtin_inf(),
                                               __builtin_nan("")};
                return pick(kSpecial);
            }
            case 3:
                return take<float>();
            default:
                return take<double>();
        }
    }

 private:
    const uint8_t *at_, *end_;
};

} // namespace tpx::fuzz
