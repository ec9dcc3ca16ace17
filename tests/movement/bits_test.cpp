// SPDX-License-Identifier: Apache-2.0
// tpxiBinToGray, tpxiGrayToBin.
#include <gtest/gtest.h>
#include <immintrin.h>

#include <climits>
#include <cmath>

#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;

struct Names8u {
    using T = Tpx8u;
    static constexpr auto unpack = tpxiBinToGray_1u8u_C1R;
    static constexpr auto pack = tpxiGrayToBin_8u1u_C1R;
};
struct Names16u {
    using T = Tpx16u;
    static constexpr auto unpack = tpxiBinToGray_1u16u_C1R;
    static constexpr auto pack = tpxiGrayToBin_16u1u_C1R;
};
struct Names16s {
    using T = Tpx16s;
    static constexpr auto unpack = tpxiBinToGray_1u16s_C1R;
    static constexpr auto pack = tpxiGrayToBin_16s1u_C1R;
};
struct Names32f {
    using T = Tpx32f;
    static constexpr auto unpack = tpxiBinToGray_1u32f_C1R;
    static constexpr auto pack = tpxiGrayToBin_32f1u_C1R;
};

template <class Names>
class Bits : public testing::Test {};
using AllNames = testing::Types<Names8u, Names16u, Names16s, Names32f>;
TYPED_TEST_SUITE(Bits, AllNames);

bool bitOf(const GuardedImage<Tpx8u>& image, int at, int y) { return image.at(at / 8, y) >> at % 8 & 1; }

// Widths, offsets and lies; the bit image is as narrow as the bits allow.
template <class Body>
void sweepBits(Body body) {
    for (int offset : {0, 1, 3, 7, 8, 9, 15, INT_MAX})
        for (int width = 1; width <= 300; width += width < 70 ? 1 : 37)
            for (const Lie& lie : {Lie{}, Lie{3, Edge::Start, 1}}) {
                const Lie samples = {width % 3 * 4, lie.edge == Edge::End ? Edge::Start : Edge::End,
                                     width % 5 * 4};
                body(width, offset, (offset % 8 + width + 7) / 8, lie, samples);
            }
}

TYPED_TEST(Bits, UnpackEveryShape) {
    using T = typename TypeParam::T;
    const T low = T(0.25), high = T(-77.5f);
    sweepBits([&](int width, int offset, int bytes, Lie bitLie, Lie lie) {
        GuardedImage<Tpx8u> src(bytes, 3, 1, bitLie);
        GuardedImage<T> dst(width, 3, 1, lie);
        src.randomise(unsigned(width));
        EXPECT_EQ(
            TypeParam::unpack(src.data(), src.step(), offset, dst.data(), dst.step(), dst.size(), low, high),
            tpxOk);
        ASSERT_TRUE(
            matches(dst, [&](int x, int y, int) { return bitOf(src, offset % 8 + x, y) ? high : low; }));
    });
}

TYPED_TEST(Bits, PackEveryShape) {
    using T = typename TypeParam::T;
    const std::vector<T> thresholds = {T(0), T(1), T(200), std::numeric_limits<T>::max(),
                                       std::numeric_limits<T>::lowest()};
    sweepBits([&](int width, int offset, int bytes, Lie bitLie, Lie lie) {
        GuardedImage<T> src(width, 3, 1, lie);
        GuardedImage<Tpx8u> dst(bytes, 3, 1, bitLie), old(bytes, 3, 1);
        old.copySamplesFrom(dst.randomise(3));
        src.randomise(unsigned(width));
        const T threshold = thresholds[size_t(width) % thresholds.size()];
        for (int x = 0; x < width; x += 3) src.set(x, x % 3, 0, threshold);
        EXPECT_EQ(
            TypeParam::pack(src.data(), src.step(), dst.data(), dst.step(), offset, src.size(), threshold),
            tpxOk);
        ASSERT_TRUE(matches(dst,
                            [&](int x, int y, int) {
                                int byte = 0;
                                for (int bit = 0; bit < 8; bit++) {
                                    const int at = x * 8 + bit - offset % 8;
                                    const bool set = at < 0 || at >= width ? bitOf(old, x * 8 + bit, y)
                                                                           : src.at(at, y) > threshold;
                                    byte |= set << bit;
                                }
                                return byte;
                            }))
            << "width " << width << ", offset " << offset;
    });
}

TYPED_TEST(Bits, EverySampleAgainstEveryThreshold) {
    using T = typename TypeParam::T;
    if constexpr (std::is_integral_v<T>) {
        std::vector<T> samples;
        for (int i = 0; i < 1 << 8 * sizeof(T); i++) samples.push_back(T(i));
        std::vector<Tpx8u> bits(samples.size() / 8);
        for (int t = 0; t < int(samples.size()); t += sizeof(T) == 1 ? 1 : 509) {
            const TpxiSize size = {int(samples.size()), 1};
            EXPECT_EQ(TypeParam::pack(samples.data(), 1, bits.data(), 1, 0, size, T(t)), tpxOk);
            for (size_t i = 0; i < samples.size(); i++)
                ASSERT_EQ(bits[i / 8] >> i % 8 & 1, samples[i] > T(t)) << +samples[i] << " above " << +T(t);
        }
    }
}

// At whole bytes what is not less or equal sets the bit, elsewhere what is greater. The caller's control word
// comes back with its flags, and denormals are numbers whatever it says.
TEST(BitsReal, NanAndTheCallersControl) {
    const unsigned callers = _mm_getcsr();
    const float quiet = NAN, tiny = 1e-42f;
    float samples[21];
    for (int i = 0; i < 21; i++) samples[i] = i % 3 == 0 ? quiet : i % 3 == 1 ? tiny : -1.0f;
    const unsigned signalling = 0x7FA00000;
    std::memcpy(&samples[6], &signalling, sizeof signalling);
    for (unsigned word : {0x9FC4u, 0x1F80u, 0x0001u})
        for (int offset : {0, 8, 1, 6, 7}) {
            for (const bool nanThreshold : {false, true}) {
                Tpx8u bits[5] = {};
                _mm_setcsr(word);
                const TpxStatus status =
                    tpxiGrayToBin_32f1u_C1R(samples, 84, bits, 5, offset, {21, 1}, nanThreshold ? quiet : 0.0f);
                const unsigned after = _mm_getcsr();
                _mm_setcsr(callers);
                EXPECT_EQ(status, tpxOk);
                EXPECT_EQ(after, word);
                for (int i = 0; i < 21; i++) {
                    const int at = offset % 8 + i;
                    const bool isAbove = nanThreshold || i % 3 == 0 ? offset % 8 == 0 : i % 3 == 1;
                    EXPECT_EQ(bits[at / 8] >> at % 8 & 1, isAbove) << "offset " << offset << ", sample " << i;
                }
            }
        }
}

} // namespace
