// SPDX-License-Identifier: Apache-2.0
// Ranks among levels: every way gives what the definition says.
#include "statistics/levels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "tests/support/guarded.h"

namespace {

using namespace tpx;
using namespace tpx::test;

// The first interval that holds x, plus 1; at or above all levels their count, if they rise.
Tpx32s model(const std::vector<float>& levels, float x, bool rise) {
    for (size_t k = 0; k + 1 < levels.size(); k++)
        if (levels[k] <= x && x < levels[k + 1]) return Tpx32s(k + 1);
    return rise && levels.back() <= x ? Tpx32s(levels.size()) : 0;
}

// Samples on both sides of every level, between them, and what is no number. Levels lie at an odd address that
// ends at an unreadable page.
void expectRanks(const std::vector<float>& levels, bool rise, uint64_t calls = 1 << 20) {
    GuardedBytes memory(levels.size() * 4, levels.size() % 4);
    std::memcpy(memory.data(), levels.data(), memory.size());
    const auto* at = reinterpret_cast<const float*>(memory.data());
    std::vector<float> samples = {NAN, -NAN, INFINITY, -INFINITY, 0.0f, -0.0f, 1e-45f, 3e38f, -3e38f};
    std::mt19937 random(unsigned(levels.size()));
    for (size_t k = 0; k < levels.size(); k++) {
        const float next = levels[(k + 1) % levels.size()];
        samples.insert(samples.end(), {levels[k], std::nextafter(levels[k], -INFINITY),
                                       std::nextafter(levels[k], INFINITY), (levels[k] + next) / 2,
                                       levels[k] + (next - levels[k]) * float(random() % 1000) / 1000});
    }
    while (samples.size() % 8) samples.push_back(samples[samples.size() / 2]);
    const auto n = ptrdiff_t(levels.size());
    const auto check = [&](auto rank) {
        for (size_t i = 0; i < samples.size(); i += 8) {
            Tpx32s got[8];
            rank(load(&samples[i]), got);
            for (int l = 0; l < 8; l++)
                ASSERT_EQ(got[l], model(levels, samples[i + size_t(l)], rise))
                    << samples[i + size_t(l)] << " among " << n;
        }
    };
    withRanks(rankingOf(at, n, calls), at, n, check);
    if (!rise) return;
    check(CountedRanks{at, n});
    check(HalvedRanks(at, n));
}

TEST(Levels, WaysAgreeAmongRisingLevels) {
    std::mt19937 random(1);
    for (int n = 2; n < 300; n += n < 40 ? 1 : 37) {
        std::vector<float> even, uneven, nearlyEven, repeated;
        float level = -50;
        for (int k = 0; k < n; k++) {
            even.push_back(-3.3f + 0.1f * float(k));
            uneven.push_back(level += float(random() % 1000 + 1) / 64);
            nearlyEven.push_back(float(k) + float(random() % 100) / 150);
            repeated.push_back(float(k / 3));
        }
        for (const auto& levels : {even, uneven, nearlyEven, repeated}) {
            expectRanks(levels, true);
            expectRanks(levels, true, 1);
        }
    }
}

// Distances that single precision does not tell apart, overflow in, or are denormal.
TEST(Levels, ExtremeDistances) {
    for (const auto& [first, step] : std::vector<std::pair<float, float>>{
             {1e8f, 0.7f}, {1e8f, 8}, {-3e38f, 5e36f}, {0, 1e-45f}, {-1e-38f, 1e-40f}, {1, 1.2e-7f}}) {
        std::vector<float> levels;
        for (int k = 0; k < 120; k++) levels.push_back(first + step * float(k));
        expectRanks(levels, true);
    }
    expectRanks({-INFINITY, 0, INFINITY}, true);
    expectRanks({-INFINITY, -9, -8, -7, -6, -5, -4, -3, 0, INFINITY}, true);
}

TEST(Levels, FirstMatchAmongOthers) {
    expectRanks({5, 3}, false);
    expectRanks({0, 5, 2, 8, 1, 9}, false);
    expectRanks({0, NAN, 4, 6}, false);
    expectRanks({NAN, NAN, NAN}, false);
    std::mt19937 random(2);
    std::vector<float> levels;
    for (int k = 0; k < 200; k++) levels.push_back(float(random() % 50));
    expectRanks(levels, false);
}

} // namespace
