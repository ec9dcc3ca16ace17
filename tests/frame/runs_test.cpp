// SPDX-License-Identifier: Apache-2.0
// The run routines on memory, and on samples: every length and misalignment, nothing outside the run touched.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <limits>

#include "frame/runs/memory_runs.h"
#include "frame/runs/routines.h"
#include "frame/runs/streaming.h"
#include "tests/support/cache.h"
#include "tests/support/guarded.h"

using namespace tpx;
using namespace tpx::test;

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr uint8_t kAround = 0xA5;

std::vector<int64_t> shortLengths() {
    std::vector<int64_t> lengths;
    for (int n = 1; n <= 300; n++) lengths.push_back(n);
    for (int n : {511, 512, 513, 1024, 4095, 4097}) lengths.push_back(n);
    return lengths;
}

// A run of bytes on either side of which a byte written or read is noticed: at an unreadable page on one side,
// and within a margin of known bytes on the other.
class GuardedRun {
 public:
    static constexpr size_t kMargin = 64;

    GuardedRun(int64_t bytes, size_t misalign, Edge edge)
        : bytes_(size_t(bytes)),
          memory_(bytes_ + kMargin, misalign, edge),
          data_(memory_.data() + (edge == Edge::End ? kMargin : 0)) {
        memory_.fill(kAround);
    }
    uint8_t* data() { return data_; }
    template <class T>
    T* as() {
        return reinterpret_cast<T*>(data_);
    }
    GuardedRun& randomise(unsigned seed) {
        std::mt19937 random(seed);
        for (size_t i = 0; i < bytes_; i++) data_[i] = uint8_t(random());
        return *this;
    }
    std::vector<uint8_t> contents() const { return {data_, data_ + bytes_}; }
    ::testing::AssertionResult holds(const std::vector<uint8_t>& expected) const {
        for (size_t i = 0; i < bytes_; i++)
            if (data_[i] != expected[i])
                return ::testing::AssertionFailure() << "byte " << i << " of " << bytes_ << ": got "
                                                     << +data_[i] << ", expected " << +expected[i];
        const uint8_t* margin = data_ == memory_.data() ? data_ + bytes_ : memory_.data();
        for (size_t i = 0; i < kMargin; i++)
            if (margin[i] != kAround) return ::testing::AssertionFailure() << "a byte outside was written";
        return ::testing::AssertionSuccess();
    }

 private:
    size_t bytes_;
    GuardedBytes memory_;
    uint8_t* data_;
};

// Calls body(length, source misalignment, destination misalignment, edge).
template <class Body>
void sweep(const std::vector<int64_t>& lengths, int unit, Body body) {
    for (int64_t n : lengths)
        for (Edge edge : {Edge::End, Edge::Start})
            for (int k = 0; k < 32; k += n <= 100 ? 1 : 5)
                body(n, k * 11 % 32 / unit * unit, k / unit * unit, edge);
}

using Copier = void (*)(void*, const void*, int64_t);
using Filler = void (*)(void*, int64_t, const Pattern&);

void checkCopy(Copier copy, int64_t n, size_t srcMisalign, size_t dstMisalign, Edge edge) {
    GuardedRun src(n, srcMisalign, edge), dst(n, dstMisalign, edge == Edge::End ? Edge::Start : Edge::End);
    src.randomise(unsigned(n));
    copy(dst.data(), src.data(), n);
    ASSERT_TRUE(dst.holds(src.contents())) << n << " bytes at " << srcMisalign << " to " << dstMisalign;
}

// The call is made with the direction flag set, which it hands back as it found it.
template <class Call>
bool keepsDirectionFlag(Call call) {
    uint64_t flags;
    asm volatile("std" ::: "cc", "memory");
    call();
    flags = __builtin_ia32_readeflags_u64();
    asm volatile("cld" ::: "cc", "memory");
    return flags & 0x400;
}

template <class T>
std::vector<T> samplesOf(const std::vector<uint8_t>& bytes) {
    std::vector<T> samples(bytes.size() / sizeof(T));
    std::memcpy(samples.data(), bytes.data(), bytes.size());
    return samples;
}

template <class T>
std::vector<uint8_t> bytesOf(const std::vector<T>& samples) {
    std::vector<uint8_t> bytes(samples.size() * sizeof(T));
    std::memcpy(bytes.data(), samples.data(), bytes.size());
    return bytes;
}

} // namespace

// ---- Rows -----------------------------------------------------------------------------------------------

TEST(Rows, CopiesMoveExactlyTheRow) {
    for (Copier copy : {copyRow, copyRowBackward, copyRowStreaming}) {
        sweep(shortLengths(), 1, [&](int64_t n, int srcMisalign, int dstMisalign, Edge edge) {
            checkCopy(copy, n, size_t(srcMisalign), size_t(dstMisalign), edge);
        });
        for (int64_t n : {16383, 16384 + 64, 4 * 16384 + 127, 100003}) checkCopy(copy, n, 3, 29, Edge::End);
        copy(nullptr, nullptr, 0);
    }
    streamFence();
}

TEST(Rows, CopiesMayOverlapInTheirDirection) {
    for (int64_t n : shortLengths())
        for (int64_t distance : {0, 1, 7, 31, 32, 33, 100, 129}) {
            GuardedRun run(n + distance, 5, Edge::End);
            auto expected = run.randomise(unsigned(n)).contents();
            std::memmove(expected.data(), expected.data() + distance, size_t(n));
            copyRow(run.data(), run.data() + distance, n);
            ASSERT_TRUE(run.holds(expected)) << n << " down by " << distance;
            std::memmove(expected.data() + distance, expected.data(), size_t(n));
            copyRowBackward(run.data() + distance, run.data(), n);
            ASSERT_TRUE(run.holds(expected)) << n << " up by " << distance;
        }
}

TEST(Rows, FillsRepeatThePixel) {
    const uint8_t pixel[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    for (Filler fill : {fillRow, fillRowStreaming})
        for (int size : {1, 2, 3, 4, 6, 8, 12, 16}) {
            const Pattern pattern = makePattern(pixel, size);
            sweep(shortLengths(), 1, [&](int64_t n, int, int misalign, Edge edge) {
                GuardedRun dst(n, size_t(misalign), edge);
                std::vector<uint8_t> expected(static_cast<size_t>(n));
                for (size_t i = 0; i < expected.size(); i++) expected[i] = pixel[i % size_t(size)];
                fill(dst.data(), n, pattern);
                ASSERT_TRUE(dst.holds(expected)) << n << " bytes at " << misalign << ", pixels of " << size;
            });
        }
    streamFence();
}

// Lengths beyond 32 bits, in memory that shows one small window over and over.
TEST(Rows, LengthsBeyond32Bits) {
    constexpr int64_t kLength = (int64_t{1} << 32) + 77;
    void* const zeros =
        mmap(nullptr, size_t(kLength), PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    const int file = memfd_create("pages", 0);
    constexpr size_t kWindow = size_t{1} << 26;
    ASSERT_EQ(ftruncate(file, kWindow), 0);
    auto base = static_cast<uint8_t*>(mmap(nullptr, size_t(kLength) + kWindow, PROT_NONE,
                                           MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    ASSERT_NE(zeros, MAP_FAILED);
    ASSERT_NE(base, MAP_FAILED);
    for (int64_t at = 0; at < kLength; at += kWindow)
        ASSERT_NE(mmap(base + at, kWindow, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0),
                  MAP_FAILED);
    // Every window shows the same bytes. A length cut to 32 bits would leave most of them.
    const auto fillsWindow = [&](const std::function<void()>& call, uint8_t value) {
        std::memset(base, 1, kWindow);
        call();
        EXPECT_EQ(std::count(base, base + kWindow, value), int64_t(kWindow));
    };
    const uint8_t seven = 7;
    fillsWindow([&] { fillRow(base, kLength, makePattern(&seven, 1)); }, 7);
    fillsWindow([&] { ownsZero_8u(base, kLength); }, 0);
    fillsWindow([&] { copyRow(base, zeros, kLength); }, 0);
    fillsWindow([&] { ownsCopy_8u(static_cast<Tpx8u*>(zeros), base, kLength); }, 0);
    munmap(base, size_t(kLength) + kWindow);
    munmap(zeros, size_t(kLength));
    close(file);
}

// ---- Copy, set, zero ------------------------------------------------------------------------------------

namespace {

template <class T>
void checkCopySamples(TpxStatus (*copy)(const T*, T*, int)) {
    const auto body = [&](int64_t n, int srcMisalign, int dstMisalign, Edge edge) {
        const auto bytes = n * int64_t(sizeof(T));
        GuardedRun src(bytes, size_t(srcMisalign), edge), dst(bytes, size_t(dstMisalign), Edge::Start);
        src.randomise(unsigned(n));
        ASSERT_TRUE(keepsDirectionFlag([&] { copy(src.as<T>(), dst.as<T>(), int(n)); }));
        ASSERT_TRUE(dst.holds(src.contents())) << n << " samples at " << srcMisalign << " to " << dstMisalign;
    };
    sweep({1, 2, 3, 7, 31, 100}, 1, body);
    constexpr int64_t kSwitch = 0x8000 / sizeof(T);
    for (int64_t n : {kSwitch - 1, kSwitch, kSwitch + 1, kSwitch + 5, 3 * kSwitch + 2})
        for (int srcMisalign : {0, 1, 2, 3, 4, 5})
            for (int dstMisalign : {0, 1, 2, 4, 6, 7}) body(n, srcMisalign, dstMisalign, Edge::End);
    T sample{};
    EXPECT_EQ(copy(nullptr, &sample, 0), tpxErrNullPointer);
    EXPECT_EQ(copy(&sample, nullptr, 0), tpxErrNullPointer);
    EXPECT_EQ(copy(&sample, &sample, 0), tpxErrSize);
    EXPECT_EQ(copy(&sample, &sample, -1), tpxErrSize);
}

template <class T>
std::vector<int64_t> fillLengths() {
    std::vector<int64_t> lengths = {1, 2, 3, 7, 15, 16, 17, 31, 100};
    for (int64_t bytes : {0x8000, 0x200000})
        for (int64_t around : {-1, 0, 1, 2}) lengths.push_back(bytes / int64_t(sizeof(T)) + around);
    return lengths;
}

template <class T, class Fill>
void checkFill(T val, Fill fill) {
    const SmallCache cache; // everything above the floor streams
    sweep(fillLengths<T>(), 1, [&](int64_t n, int, int misalign, Edge edge) {
        GuardedRun dst(n * int64_t(sizeof(T)), size_t(misalign), edge);
        ASSERT_TRUE(keepsDirectionFlag([&] { fill(dst.as<T>(), int(n)); }));
        ASSERT_TRUE(dst.holds(bytesOf(std::vector<T>(size_t(n), val)))) << n << " samples at " << misalign;
    });
    T sample = val;
    EXPECT_EQ(fill(static_cast<T*>(nullptr), 0), tpxErrNullPointer);
    EXPECT_EQ(fill(&sample, 0), tpxErrSize);
}

template <class T>
void checkSet(TpxStatus (*set)(T, T*, int), T val) {
    checkFill(val, [&](T* p, int n) { return set(val, p, n); });
}

template <class T>
void checkZero(TpxStatus (*zero)(T*, int)) {
    checkFill(T{}, zero);
}

} // namespace

TEST(MemoryRuns, Copy) {
    checkCopySamples(TPXS(Copy_8u));
    checkCopySamples(TPXS(Copy_16s));
    checkCopySamples(TPXS(Copy_32s));
    checkCopySamples(TPXS(Copy_32f));
    checkCopySamples(TPXS(Copy_64f));
}

TEST(MemoryRuns, Set) {
    checkSet<Tpx8u>(TPXS(Set_8u), 0x91);
    checkSet<Tpx16s>(TPXS(Set_16s), 0x1234);
    checkSet<Tpx32f>(TPXS(Set_32f), std::bit_cast<float>(0x7FA12345)); // a signalling NaN keeps its bits
    checkSet<Tpx64f>(TPXS(Set_64f), 0.1);
    checkSet<Tpx32fc>(TPXS(Set_32fc), {1.5f, -0.0f});
}

TEST(MemoryRuns, Zero) {
    checkZero(TPXS(Zero_8u));
    checkZero(TPXS(Zero_16s));
    checkZero(TPXS(Zero_32s));
    checkZero(TPXS(Zero_32f));
    checkZero(TPXS(Zero_64f));
    checkZero(TPXS(Zero_32fc));
}

TEST(MemoryRuns, OnlyFillsAboveTheFloorAskForTheCache) {
    GuardedBytes memory(0x200004);
    const auto queries = [&](auto call) {
        const SmallCache cache(1 << 25);
        call();
        return cache.queries();
    };
    EXPECT_EQ(queries([&] { TPXS(Set_8u)(1, memory.data(), 0x200000); }), 0);
    EXPECT_EQ(queries([&] { TPXS(Set_8u)(1, memory.data(), 0x200001); }), 1);
    EXPECT_EQ(queries([&] { TPXS(Set_32f)(1, reinterpret_cast<Tpx32f*>(memory.data()), 0x80000); }), 0);
    EXPECT_EQ(queries([&] { TPXS(Set_32f)(1, reinterpret_cast<Tpx32f*>(memory.data()), 0x80001); }), 1);
    EXPECT_EQ(queries([&] { TPXS(Set_64f)(1, reinterpret_cast<Tpx64f*>(memory.data()), 0x40000); }), 0);
}

TEST(MemoryRuns, WhatExceedsTheCache) {
    struct {
        TpxStatus status;
        int size;
        uint64_t bytes;
        bool exceeds, fills;
    } const table[] = {
        {tpxOk, 100, 50, false, false},                   // at the floor
        {tpxOk, 10, 50, false, false},                    // at the floor, though beyond the cache
        {tpxOk, 10, 51, true, true},                      //
        {tpxOk, 100, 99, false, false},                   //
        {tpxOk, 100, 100, false, true},                   //
        {tpxOk, 100, 101, true, true},                    //
        {tpxOk, 0, 101, false, false},                    // not known
        {tpxErrUnsupportedMode, 10, 101, false, false},   //
        {tpxOk, INT32_MAX, uint64_t{1} << 40, true, true} //
    };
    for (const auto& row : table) {
        const SmallCache cache(row.size, 64, row.status);
        EXPECT_EQ(goesPastCaches({50}, row.bytes), row.exceeds) << row.bytes << " of " << row.size;
        EXPECT_EQ(goesPastCaches({50, 0, true}, row.bytes), row.fills) << row.bytes << " of " << row.size;
    }
    const auto exceeds = [](StreamRule rule, uint64_t bytes, ptrdiff_t row, int size, int line) {
        const SmallCache cache(size, line);
        return goesPastCaches(rule, bytes, row);
    };
    EXPECT_FALSE(exceeds({50}, 101, 0, 100, 128)); // lines that the kernels do not write whole
    // Whatever is told, one thread counts on its share.
    EXPECT_FALSE(exceeds({50}, kLargestShare, 0, INT32_MAX, 64));
    EXPECT_TRUE(exceeds({50}, kLargestShare + 1, 0, INT32_MAX, 64));
    EXPECT_TRUE(exceeds({50, 8}, 101, 8, 100, 64));
    EXPECT_FALSE(exceeds({50, 8}, 101, 7, 100, 64));
}

// ---- Runs of samples ------------------------------------------------------------------------------------

namespace {

template <class T>
void checkFlip(TpxStatus (*flip)(const T*, T*, int), TpxStatus (*flipInPlace)(T*, int)) {
    sweep(shortLengths(), 1, [&](int64_t n, int srcMisalign, int dstMisalign, Edge edge) {
        const int64_t bytes = n * int64_t(sizeof(T));
        GuardedRun src(bytes, size_t(srcMisalign), edge), dst(bytes, size_t(dstMisalign), edge);
        auto expected = samplesOf<T>(src.randomise(unsigned(n)).contents());
        std::reverse(expected.begin(), expected.end());
        ASSERT_EQ(flip(src.as<T>(), dst.as<T>(), int(n)), tpxOk);
        ASSERT_TRUE(dst.holds(bytesOf(expected))) << n;
        ASSERT_EQ(flipInPlace(src.as<T>(), int(n)), tpxOk);
        ASSERT_TRUE(src.holds(bytesOf(expected))) << n << " in place";
    });
    T sample = 3;
    EXPECT_EQ(flip(nullptr, &sample, 0), tpxErrNullPointer);
    EXPECT_EQ(flip(&sample, nullptr, 0), tpxErrNullPointer);
    EXPECT_EQ(flip(&sample, &sample, 0), tpxErrSize);
    EXPECT_EQ(flipInPlace(nullptr, 0), tpxErrNullPointer);
    EXPECT_EQ(flipInPlace(&sample, -1), tpxErrSize);
}

// rule(src, srcDst) is the expected sample.
template <class T, class Rule>
void checkEvery(TpxStatus (*every)(const T*, T*, int), Rule rule) {
    sweep(shortLengths(), 1, [&](int64_t n, int srcMisalign, int dstMisalign, Edge edge) {
        const int64_t bytes = n * int64_t(sizeof(T));
        GuardedRun src(bytes, size_t(srcMisalign), edge), dst(bytes, size_t(dstMisalign), edge);
        const auto a = samplesOf<T>(src.randomise(unsigned(n)).contents());
        const auto b = samplesOf<T>(dst.randomise(unsigned(n) + 1).contents());
        std::vector<T> expected(a.size());
        for (size_t i = 0; i < a.size(); i++) expected[i] = rule(a[i], b[i]);
        ASSERT_EQ(every(src.as<T>(), dst.as<T>(), int(n)), tpxOk);
        ASSERT_TRUE(dst.holds(bytesOf(expected))) << n;
    });
    T sample = 3;
    EXPECT_EQ(every(nullptr, &sample, 0), tpxErrNullPointer);
    EXPECT_EQ(every(&sample, nullptr, 0), tpxErrNullPointer);
    EXPECT_EQ(every(&sample, &sample, 0), tpxErrSize);
}

template <class T>
T slopeModel(float offset, float slope, int i) {
    volatile float product = slope * float(i);
    volatile float value = offset + product;
    if constexpr (std::is_same_v<T, float>) {
        return value;
    } else {
        using Limits = std::numeric_limits<T>;
        if (!(value > float(Limits::min()))) return Limits::min(); // NaN, too
        if (value >= float(Limits::max())) return Limits::max();
        return T(std::round(value));
    }
}

template <class T>
void checkSlope(TpxStatus (*write)(float, float, T*, int)) {
    const float offsets[] = {0,    0.49999997f, -0.5f, 2.5f,  300,  -300,      127.3f,
                             7e4f, -7e4f,       1e30f, -0.0f, kNan, kInfinity, -kInfinity};
    const float slopes[] = {0,      -0.0f, 1,     -1,     0.5f,  -0.5f, 0.25f,     0.1f,      -0.1f,
                            100.5f, -77,   3e38f, -3e38f, 1e-3f, kNan,  kInfinity, -kInfinity};
    for (float offset : offsets)
        for (float slope : slopes)
            for (int n : {1, 2, 5, 8, 9, 16, 17, 33, 70, 255, 256, 257, 300, 1000}) {
                GuardedRun dst(n * int64_t(sizeof(T)), size_t(n % 32), n % 2 ? Edge::End : Edge::Start);
                std::vector<T> expected(static_cast<size_t>(n));
                for (int i = 0; i < n; i++) expected[size_t(i)] = slopeModel<T>(offset, slope, i);
                ASSERT_EQ(write(offset, slope, dst.as<T>(), n), tpxOk);
                // The sign and the bits of a NaN are not told.
                if (std::is_same_v<T, float> && std::isnan(double(expected[0]) + double(expected.back())))
                    continue;
                ASSERT_TRUE(dst.holds(bytesOf(expected))) << offset << " + " << slope << " * i, " << n;
            }
    T sample{};
    EXPECT_EQ(write(0, 0, nullptr, 0), tpxErrNullPointer);
    EXPECT_EQ(write(0, 0, &sample, 0), tpxErrSize);
}

template <class T>
void checkLongSlope(TpxStatus (*write)(float, float, T*, int), float offset, float slope) {
    constexpr int kCount = (1 << 24) + 1001; // beyond the integers that a float holds
    std::vector<T> dst(kCount);
    ASSERT_EQ(write(offset, slope, dst.data(), kCount), tpxOk);
    for (int i = 0; i < kCount; i++) ASSERT_EQ(dst[size_t(i)], slopeModel<T>(offset, slope, i)) << i;
}

} // namespace

TEST(SampleRuns, Flip) {
    checkFlip(TPXS(Flip_8u), TPXS(Flip_8u_I));
    checkFlip(TPXS(Flip_16u), TPXS(Flip_16u_I));
    checkFlip(TPXS(Flip_32f), TPXS(Flip_32f_I));
}

TEST(SampleRuns, LargerAndSmaller) {
    // Random bits hold NaN of either sign now and then; the running sample stays where one is met.
    const auto larger = [](auto x, auto kept) { return x > kept ? x : kept; };
    const auto smaller = [](auto x, auto kept) { return x < kept ? x : kept; };
    checkEvery(TPXS(MaxEvery_8u_I), larger);
    checkEvery(TPXS(MaxEvery_16u_I), larger);
    checkEvery(TPXS(MaxEvery_16s_I), larger);
    checkEvery(TPXS(MaxEvery_32f_I), larger);
    checkEvery(TPXS(MinEvery_8u_I), smaller);
    checkEvery(TPXS(MinEvery_16u_I), smaller);
    checkEvery(TPXS(MinEvery_16s_I), smaller);
    checkEvery(TPXS(MinEvery_32f_I), smaller);

    for (int n : {1, 9}) {
        std::vector<float> nan(size_t(n), kNan), one(size_t(n), 1.0f);
        TPXS(MaxEvery_32f_I)(nan.data(), one.data(), n);
        TPXS(MinEvery_32f_I)(nan.data(), one.data(), n);
        EXPECT_EQ(one, std::vector<float>(size_t(n), 1.0f));
        TPXS(MaxEvery_32f_I)(one.data(), nan.data(), n);
        EXPECT_TRUE(std::all_of(nan.begin(), nan.end(), [](float x) { return std::isnan(x); }));
    }
}

TEST(SampleRuns, MultiplyByConstant) {
    for (float val : {0.1f, -3.0f, 0.0f, -0.0f, 1.0f})
        sweep({1, 2, 7, 8, 9, 15, 16, 17, 63, 64, 100}, 1, [&](int64_t n, int, int misalign, Edge edge) {
            GuardedRun run(n * 4, size_t(misalign), edge);
            std::vector<float> samples(static_cast<size_t>(n)), expected(samples.size());
            for (size_t i = 0; i < samples.size(); i++) {
                samples[i] = i % 5 == 3 ? kInfinity : float(i) * 0.7f - 20;
                expected[i] = val == 0 ? 0 : samples[i] * val;
            }
            const auto bytes = bytesOf(samples);
            std::memcpy(run.data(), bytes.data(), bytes.size());
            ASSERT_EQ(TPXS(MulC_32f_I)(val, run.as<float>(), int(n)), tpxOk);
            ASSERT_TRUE(run.holds(bytesOf(expected))) << val << ", " << n;
        });
    float nan[3] = {kNan, kNan, kNan};
    EXPECT_EQ(TPXS(MulC_32f_I)(0, nan, 3), tpxOk);
    EXPECT_TRUE(sameBits(nan[0], 0.0f) && sameBits(nan[2], 0.0f));
    EXPECT_EQ(TPXS(MulC_32f_I)(1, nullptr, 0), tpxErrNullPointer);
    EXPECT_EQ(TPXS(MulC_32f_I)(1, nan, 0), tpxErrSize);
}

TEST(SampleRuns, Slope) {
    checkSlope(TPXS(VectorSlope_8u));
    checkSlope(TPXS(VectorSlope_16u));
    checkSlope(TPXS(VectorSlope_16s));
    checkSlope(TPXS(VectorSlope_32f));
    checkLongSlope(TPXS(VectorSlope_16s), -30000.3f, 0.0035f);
    checkLongSlope(TPXS(VectorSlope_8u), 260, -1e-5f);
    checkLongSlope(TPXS(VectorSlope_32f), 1.5f, 0.75f);
}
