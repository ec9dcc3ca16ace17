// SPDX-License-Identifier: Apache-2.0
// Image memory. The companion's allocator is replaced here: what the library asks of it is recorded, and
// while these tests run, requests too large for them are refused.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <string.h>

#include <climits>
#include <cstdint>
#include <optional>
#include <random>
#include <vector>

#include "tpxcore.h"
#include "tpxi.h"

namespace {

constexpr TpxSizeL kMostGranted = 1 << 20;
bool refuseLarge = false;
std::optional<TpxSizeL> requested;
std::optional<void*> released;

} // namespace

extern "C" [[gnu::visibility("default")]] void* tpxMalloc_L(TpxSizeL length) {
    static const auto real = reinterpret_cast<void* (*)(TpxSizeL)>(dlsym(RTLD_NEXT, "tpxMalloc_L"));
    requested = length;
    return refuseLarge && length > kMostGranted ? nullptr : real(length);
}
extern "C" [[gnu::visibility("default")]] void* tpxMalloc(int length) { return tpxMalloc_L(length); }
extern "C" [[gnu::visibility("default")]] void tpxFree(void* p) {
    static const auto real = reinterpret_cast<void (*)(void*)>(dlsym(RTLD_NEXT, "tpxFree"));
    released = p;
    real(p);
}

namespace {

class ImageMemory : public testing::Test {
 protected:
    void SetUp() override { refuseLarge = true; }
    void TearDown() override { refuseLarge = false; }
};

struct Entry {
    const char* name;
    int pixelBytes;
    void* (*shortForm)(int, int, int*);
    void* (*longForm)(TpxSizeL, TpxSizeL, TpxSizeL*);
};

#define ENTRY(name, pixelBytes)                                                                \
    {                                                                                          \
#name, pixelBytes, [](int w, int h, int* s) -> void* { return tpxiMalloc_##name(w, h, s); }, \
     [](TpxSizeL w, TpxSizeL h, TpxSizeL* s) -> void* { return tpxiMalloc_##name##_L(w, h, s); } \
    }
#define ENTRIES(type, c1, c2, c3, c4)                                                       \
    ENTRY(type##_C1, c1), ENTRY(type##_C2, c2), ENTRY(type##_C3, c3), ENTRY(type##_C4, c4), \
        ENTRY(type##_AC4, c4)

const Entry kEntries[] = {ENTRIES(8u, 1, 2, 3, 4),     ENTRIES(16u, 2, 4, 6, 8),   ENTRIES(16s, 2, 4, 6, 8),
                          ENTRIES(32s, 4, 8, 12, 16),  ENTRIES(32f, 4, 8, 12, 16), ENTRIES(32sc, 8, 16, 24, 32),
                          ENTRIES(32fc, 8, 16, 24, 32)};

constexpr int kUntouched = -777;

// What a call is expected to leave. `request` is empty where the allocator must not be asked.
struct Outcome {
    TpxSizeL step;
    std::optional<TpxSizeL> request;
};
constexpr std::nullopt_t kNone = std::nullopt;

template <class Size, class Function>
void expectOutcome(Function function, Size width, Size height, const Outcome& expected) {
    Size step = kUntouched;
    requested.reset();
    void* p = function(width, height, &step);
    const bool granted = expected.request && *expected.request >= 1 && *expected.request <= kMostGranted;
    EXPECT_EQ(step, expected.step);
    EXPECT_EQ(requested, expected.request);
    EXPECT_EQ(p != nullptr, granted);
    if (p) {
        EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u);
        memset(p, 0x5A, static_cast<size_t>(*expected.request));
        tpxiFree(p);
        EXPECT_EQ(released, p);
    }
}

TEST_F(ImageMemory, StepAndBlockOfEveryEntry) {
    for (const Entry& e : kEntries) {
        SCOPED_TRACE(e.name);
        for (int width = 1; width <= 130; ++width) {
            const int height = 1 + width % 5;
            const int step = (width * e.pixelBytes + 63) / 64 * 64;
            SCOPED_TRACE(width);
            expectOutcome(e.shortForm, width, height, {step, step * height});
            expectOutcome(e.longForm, TpxSizeL{width}, TpxSizeL{height}, {step, step * height});
        }
        if (HasFailure()) break;
    }
}

TEST_F(ImageMemory, EmptySizesStoreZeroAndAskForNothing) {
    for (const Entry& e : kEntries) {
        SCOPED_TRACE(e.name);
        for (const int bad : {0, -1, -64, INT_MIN}) {
            expectOutcome(e.shortForm, bad, 5, {0, kNone});
            expectOutcome(e.shortForm, 5, bad, {0, kNone});
        }
        for (const TpxSizeL bad : {TpxSizeL{0}, TpxSizeL{-1}, TpxSizeL{INT64_MIN}, TpxSizeL{INT64_MIN} + 64}) {
            expectOutcome(e.longForm, bad, TpxSizeL{5}, {0, kNone});
            expectOutcome(e.longForm, TpxSizeL{5}, bad, {0, kNone});
        }
        requested.reset();
        EXPECT_EQ(e.shortForm(100, 100, nullptr), nullptr);
        EXPECT_EQ(e.shortForm(0, 100, nullptr), nullptr);
        EXPECT_EQ(e.longForm(100, 100, nullptr), nullptr);
        EXPECT_EQ(e.longForm(0, 100, nullptr), nullptr);
        EXPECT_EQ(requested, kNone);
    }
}

TEST_F(ImageMemory, FreeForwardsNull) {
    released.reset();
    tpxiFree(nullptr);
    EXPECT_EQ(released, nullptr);
}

TEST_F(ImageMemory, LimitsOfTheShortForm) {
    for (const Entry& e : kEntries) {
        SCOPED_TRACE(e.name);
        const int bytes = e.pixelBytes;
        // The longest row that keeps a positive step. One row of it is asked for and refused; two are too much.
        const int wide = 0x7FFFFFC0 / bytes;
        expectOutcome(e.shortForm, wide, 1, {0x7FFFFFC0, 0x7FFFFFC0});
        expectOutcome(e.shortForm, wide, 2, {0x7FFFFFC0, kNone});
        expectOutcome(e.shortForm, wide, INT_MAX, {0x7FFFFFC0, kNone});
        // The longest row at all rounds to a negative step, which no height rescues.
        const int widest = 0x7FFFFFFF / bytes;
        for (const int height : {1, 2, 3, 0x10000, INT_MAX})
            expectOutcome(e.shortForm, widest, height, {INT_MIN, kNone});
        if (bytes > 1) expectOutcome(e.shortForm, widest + 1, 1, {0, kNone});
        if (bytes > 1) expectOutcome(e.shortForm, INT_MAX, 1, {0, kNone});
        // A block of exactly 2^31 bytes, and the largest below.
        expectOutcome(e.shortForm, 64 / bytes, 0x2000000, {64, kNone});
        expectOutcome(e.shortForm, 64 / bytes, 0x1FFFFFF, {64, 0x7FFFFFC0});
        expectOutcome(e.shortForm, 64 / bytes, INT_MAX, {64, kNone});
    }
}

constexpr TpxSizeL power(int exponent) { return TpxSizeL{1} << exponent; }

// Worked by hand, one or two for each test of the _L form.
TEST_F(ImageMemory, LimitsOfTheLongForm) {
    const auto expect = [](auto function, TpxSizeL width, TpxSizeL height, const Outcome& expected) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        expectOutcome<TpxSizeL>(function, width, height, expected);
    };
    // Beyond 32 bits nothing is special.
    expect(tpxiMalloc_8u_C1_L, power(31), 1, {power(31), power(31)});
    expect(tpxiMalloc_16s_C3_L, power(32) + 5, 3, {6 * power(32) + 64, 18 * power(32) + 192});

    // The high half of the width overflows: told for pixels of 4 bytes and of multiples of 4.
    expect(tpxiMalloc_32f_C1_L, power(62), 1, {0, kNone});
    expect(tpxiMalloc_8u_AC4_L, power(62), 1, {0, kNone});
    expect(tpxiMalloc_32fc_C4_L, power(59), 1, {0, kNone});
    expect(tpxiMalloc_32sc_C3_L, 0x0AAAAAABLL << 32, 1, {0, kNone});
    // The carry of the low half is not seen: 12 times 0x1555555555555556 is 2^64 + 8.
    expect(tpxiMalloc_32f_C3_L, 0x1555555555555556, 2, {64, 128});
    // Nor are 3 and 6 bytes tested: 2^64 + 2, and 2^65 + 4.
    expect(tpxiMalloc_8u_C3_L, 0x5555555555555556, 1, {64, 64});
    expect(tpxiMalloc_16u_C3_L, 0x5555555555555556, 1, {64, 64});

    // Rounding up leaves the positive numbers.
    expect(tpxiMalloc_8u_C1_L, INT64_MAX - 63, 1, {INT64_MAX - 63, INT64_MAX - 63});
    expect(tpxiMalloc_8u_C1_L, INT64_MAX - 62, 1, {0, kNone});
    expect(tpxiMalloc_8u_C1_L, INT64_MAX, 1, {0, kNone});
    // A negative product is not below itself; -2 rounds to a step of 0.
    expect(tpxiMalloc_16s_C1_L, power(62), 1, {INT64_MIN, INT64_MIN});
    expect(tpxiMalloc_16s_C1_L, INT64_MAX, 1, {0, 0});

    // The block: high halves meet.
    expect(tpxiMalloc_8u_C1_L, power(48), power(48), {power(48), kNone});
    expect(tpxiMalloc_8u_C1_L, power(47), power(49), {power(47), kNone});
    // 2^64, but the product of the high halves is 1 and has no high half: it wraps to 0.
    expect(tpxiMalloc_8u_C1_L, power(32), power(32), {power(32), 0});
    // The row's high half meets the height's low half.
    expect(tpxiMalloc_8u_C1_L, power(40), power(24), {power(40), kNone});
    expect(tpxiMalloc_8u_C1_L, power(40), power(24) - 1, {power(40), -power(40)});
    // A low half from 2^31 counts as negative and passes: 2^64 + 2^37 wraps.
    expect(tpxiMalloc_8u_C1_L, power(33) + 64, power(31), {power(33) + 64, power(37)});
    // A negative step: its high half counts as a large number, so two rows are refused.
    expect(tpxiMalloc_16s_C1_L, power(62) + 32, 2, {INT64_MIN + 64, kNone});
    // The row's low half meets the height's high half. It still holds the 63 that are added for rounding, so
    // a row of 1 byte meets it as 64 and a row of 64 as 127.
    expect(tpxiMalloc_8u_C1_L, 1, 0x2040811LL << 32, {64, (0x2040811LL * 64 - power(32)) * power(32)});
    expect(tpxiMalloc_8u_C1_L, 64, 0x2040811LL << 32, {64, kNone});
    expect(tpxiMalloc_8u_C1_L, 1, power(58), {64, kNone});
}

// The rules in 128 bits, where nothing wraps unless told to.
Outcome modelOfLongForm(int pixelBytes, TpxSizeL width, TpxSizeL height) {
    using Wide = __int128;
    const Wide kWord = Wide{1} << 64, kHalf = Wide{1} << 32;
    const auto asSigned = [](Wide x, Wide modulus) { return x >= modulus / 2 ? x - modulus : x; };

    const bool threeChannels = pixelBytes % 3 == 0;
    const int sampleBytes = threeChannels ? pixelBytes / 3 : pixelBytes;
    const uint64_t mask = sampleBytes == 4    ? 0x3FFFFFFFC0000000
                          : sampleBytes == 8  ? 0x1FFFFFFFE0000000
                          : sampleBytes == 16 ? 0xFFFFFFFF0000000
                          : sampleBytes == 32 ? 0x7FFFFFFF8000000
                                              : 0;
    if (static_cast<uint64_t>(Wide{width} / kHalf * (threeChannels ? 3 : 1)) & mask) return {0, kNone};

    const Wide product = Wide{width} * pixelBytes % kWord;
    const Wide padded = (product + 63) % kWord;
    const Wide rounded = padded - padded % 64;
    if (asSigned(rounded, kWord) < asSigned(product, kWord)) return {0, kNone};

    const auto step = static_cast<TpxSizeL>(asSigned(rounded, kWord));
    const Wide rowHigh = padded / kHalf, rowLow = asSigned(padded % kHalf, kHalf);
    const Wide heightHigh = Wide{height} / kHalf, heightLow = asSigned(Wide{height} % kHalf, kHalf);
    for (const Wide partial : {rowHigh * heightHigh, rowHigh * heightLow, rowLow * heightHigh}) {
        if (partial >= kHalf) return {step, kNone};
    }
    const Wide block = static_cast<Wide>(static_cast<unsigned __int128>(rounded) *
                                         static_cast<uint64_t>(height) % static_cast<unsigned __int128>(kWord));
    return {step, static_cast<TpxSizeL>(asSigned(block, kWord))};
}

TEST_F(ImageMemory, LongFormFollowsTheRulesOverTheWholeRange) {
    std::mt19937_64 random(2017);
    std::vector<TpxSizeL> sizes = {INT64_MAX, INT64_MAX - 62, INT64_MAX - 63};
    for (int exponent = 0; exponent < 63; exponent += 3) {
        for (const TpxSizeL delta : {-1, 0, 1}) sizes.push_back(power(exponent) + delta);
        sizes.push_back(static_cast<TpxSizeL>(random() >> (63 - exponent)));
    }
    for (const Entry& e : kEntries) {
        SCOPED_TRACE(e.name);
        std::vector<TpxSizeL> widths = sizes;
        // Where the product passes 2^31, 2^32, 2^63, 2^64 and 2^65.
        for (const int exponent : {31, 32, 63, 64, 65}) {
            const auto edge = (static_cast<unsigned __int128>(1) << exponent) / e.pixelBytes;
            for (const int delta : {-64, -2, -1, 0, 1, 2, 64}) {
                if (edge + delta <= INT64_MAX) widths.push_back(static_cast<TpxSizeL>(edge + delta));
            }
        }
        for (const TpxSizeL width : widths) {
            for (const TpxSizeL height : sizes) {
                if (width < 1 || height < 1) continue;
                SCOPED_TRACE(testing::Message() << width << " x " << height);
                expectOutcome(e.longForm, width, height, modelOfLongForm(e.pixelBytes, width, height));
                if (HasFailure()) return;
            }
        }
    }
}

} // namespace
