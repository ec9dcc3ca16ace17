// SPDX-License-Identifier: Apache-2.0
// Sorting runs: order, permutation of the input, inputs that are hard on a partition, and NaN.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <functional>
#include <limits>

#include "frame/runs/routines.h"
#include "tests/support/guarded.h"

using namespace tpx::test;

namespace {

using Samples = std::vector<float>;
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

// The order of keys: by the bits, negative NaN first and positive NaN last.
bool belowByBits(float a, float b) {
    const auto key = [](float x) {
        const auto bits = std::bit_cast<int32_t>(x);
        return bits < 0 ? int64_t{INT32_MIN} - bits : int64_t{bits} + 1;
    };
    return key(a) < key(b);
}

bool sameSamples(const Samples& a, const Samples& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0;
}

// Runs the sort on memory that ends at an unreadable page.
Samples sortedInPlace(const Samples& in) {
    GuardedBytes memory(in.size() * sizeof(float));
    std::memcpy(memory.data(), in.data(), memory.size());
    EXPECT_EQ(TPXS(SortAscend_32f_I)(reinterpret_cast<float*>(memory.data()), int(in.size())), tpxOk);
    Samples out(in.size());
    std::memcpy(out.data(), memory.data(), memory.size());
    return out;
}

Samples sortedByRadix(const Samples& in, size_t misalign = 0) {
    int size = 0;
    EXPECT_EQ(TPXS(SortRadixGetBufferSize)(int(in.size()), tpxDataType32f, &size), tpxOk);
    GuardedBytes buffer(size_t(size), misalign), memory(in.size() * sizeof(float));
    buffer.fill(0x77);
    std::memcpy(memory.data(), in.data(), memory.size());
    EXPECT_EQ(
        TPXS(SortRadixAscend_32f_I)(reinterpret_cast<float*>(memory.data()), int(in.size()), buffer.data()),
        tpxOk);
    Samples out(in.size());
    std::memcpy(out.data(), memory.data(), memory.size());
    return out;
}

Samples make(int n, const std::function<float(int)>& at) {
    Samples s(static_cast<size_t>(n));
    for (int i = 0; i < n; i++) s[size_t(i)] = at(i);
    return s;
}

std::vector<Samples> shapes(int n) {
    std::mt19937 random(static_cast<unsigned>(n));
    const auto real = [&](int) { return std::uniform_real_distribution<float>(-1e3f, 1e3f)(random); };
    const auto few = [&](int values) {
        return [&random, values](int) { return float(int(random() % unsigned(values)) - values / 2); };
    };
    return {make(n, real),
            make(n, few(2)),
            make(n, few(17)),
            make(n, [](int) { return 3.5f; }),
            make(n, [](int i) { return float(i); }),
            make(n, [](int i) { return float(-i); }),
            make(n, [n](int i) { return float(std::min(i, n - i)); }),
            make(n, [](int i) { return i % 2 ? float(i) : -float(i); }),
            make(n, [n](int i) { return i + 1 == n ? -1.0f : float(i); }),
            make(n, [&](int i) { return i % 5 == 0   ? -kInfinity
                                        : i % 7 == 0 ? kInfinity
                                                     : real(i); })};
}

// The classic input against the median of three: level by level, the three samples looked at are nearly the
// smallest that are left.
Samples killer(int n) {
    Samples s(static_cast<size_t>(n));
    const int half = n / 2;
    for (int i = 0; i < half; i++) {
        s[size_t(i)] = float(i % 2 ? half + i + (half % 2) : i + 1);
        s[size_t(half + i)] = float(2 * (i + 1));
    }
    return s;
}

} // namespace

TEST(SortAscend, SortsEveryShapeAtEveryLength) {
    std::vector<int> lengths;
    for (int n = 1; n <= 70; n++) lengths.push_back(n);
    for (int n : {127, 128, 1000, 4099}) lengths.push_back(n);
    for (int n : lengths)
        for (const Samples& in : shapes(n)) {
            Samples expected = in;
            std::sort(expected.begin(), expected.end());
            ASSERT_TRUE(sameSamples(sortedInPlace(in), expected)) << "length " << n;
        }
}

TEST(SortAscend, StaysFastOnAMillion) {
    constexpr int kCount = 1000000;
    auto inputs = shapes(kCount);
    inputs.push_back(killer(kCount));
    for (size_t shape = 0; shape < inputs.size(); shape++) {
        Samples expected = inputs[shape];
        std::sort(expected.begin(), expected.end());
        const auto start = std::chrono::steady_clock::now();
        const Samples sorted = sortedInPlace(inputs[shape]);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        EXPECT_TRUE(sameSamples(sorted, expected)) << "shape " << shape;
        // A quadratic sort takes minutes.
        EXPECT_LT(taken.count(), 5) << "shape " << shape;
    }
}

// With NaN there is no order to expect, but the samples stay the same ones and the call ends.
TEST(SortAscend, KeepsTheSamplesWhenSomeAreNaN) {
    for (int n = 1; n <= 70; n++)
        for (int every = 1; every <= 11; every++)
            for (int phase = 0; phase < every; phase++) {
                std::mt19937 random(static_cast<unsigned>(n * every));
                Samples in = make(n, [&](int i) { return i % every == phase ? kNan : float(random() % 20); });
                Samples out = sortedInPlace(in);
                std::sort(in.begin(), in.end(), belowByBits);
                std::sort(out.begin(), out.end(), belowByBits);
                ASSERT_TRUE(sameSamples(in, out)) << "length " << n << ", every " << every;
            }
    sortedInPlace(make(300000, [](int i) { return i % 3 ? kNan : float(i); }));
    sortedInPlace(make(300000, [](int) { return kNan; }));
}

TEST(SortRadix, OrdersByBits) {
    std::mt19937 random(1);
    const auto anyBits = [&](int) { return std::bit_cast<float>(uint32_t(random())); };
    for (int n : {1, 2, 3, 11, 12, 13, 100, 5000, 300000})
        for (size_t misalign : {0, 1, 2}) {
            auto inputs = shapes(n);
            inputs.push_back(make(n, anyBits));
            for (const Samples& in : inputs) {
                Samples expected = in;
                std::sort(expected.begin(), expected.end(), belowByBits);
                ASSERT_TRUE(sameSamples(sortedByRadix(in, misalign), expected)) << "length " << n;
            }
        }
    const Samples out = sortedByRadix({0.0f, kNan, -0.0f, kInfinity, -kNan, -kInfinity, 1.0f, -1.0f});
    EXPECT_TRUE(sameSamples(out, {-kNan, -kInfinity, -1.0f, -0.0f, 0.0f, 1.0f, kInfinity, kNan}));
}

TEST(SortRadix, BufferSizes) {
    struct {
        TpxDataType type;
        int perSample, fixed;
    } const table[] = {{1, 1, 0x400},   {5, 2, 0x800},   {7, 2, 0x800},  {9, 4, 0x5000},
                       {11, 4, 0x5000}, {13, 4, 0x5000}, {19, 8, 0xA000}};
    for (const auto& row : table) {
        const int longest = (INT32_MAX - row.fixed) / row.perSample;
        for (int len : {1, 1000, longest}) {
            int size = -1;
            EXPECT_EQ(TPXS(SortRadixGetBufferSize)(len, row.type, &size), tpxOk);
            EXPECT_EQ(size, len * row.perSample + row.fixed) << "type " << row.type;
        }
        int size = -1;
        EXPECT_EQ(TPXS(SortRadixGetBufferSize)(longest + 1, row.type, &size), tpxErrSizeTooLarge);
        EXPECT_EQ(size, -1);
    }
    int size = -1;
    EXPECT_EQ(TPXS(SortRadixGetBufferSize)(0, 2, nullptr), tpxErrNullPointer);
    EXPECT_EQ(TPXS(SortRadixGetBufferSize)(0, 2, &size), tpxErrSize);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(TPXS(SortRadixGetBufferSize)(1, 2, &size), tpxErrDataType);
    EXPECT_EQ(size, 0);
}

TEST(Sort, Statuses) {
    float sample = 2;
    Tpx8u byte = 0;
    EXPECT_EQ(TPXS(SortAscend_32f_I)(nullptr, 0), tpxErrNullPointer);
    EXPECT_EQ(TPXS(SortAscend_32f_I)(&sample, 0), tpxErrSize);
    EXPECT_EQ(TPXS(SortRadixAscend_32f_I)(nullptr, 0, &byte), tpxErrNullPointer);
    EXPECT_EQ(TPXS(SortRadixAscend_32f_I)(&sample, 0, nullptr), tpxErrNullPointer);
    EXPECT_EQ(TPXS(SortRadixAscend_32f_I)(&sample, -1, &byte), tpxErrSize);
    EXPECT_EQ(sample, 2);
}
