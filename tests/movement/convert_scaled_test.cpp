// SPDX-License-Identifier: Apache-2.0
// tpxiConvert with rounding modes and scale factors: every sample of up to 16 bits, and telling ones of the
// wider types, over all factors that matter.
#include <gtest/gtest.h>

#include "tests/support/convert_forms.h"

namespace {

using namespace tpx::test;

template <class S>
std::vector<int> factorsFor() {
    std::vector<int> factors = {INT_MIN, INT_MIN + 1, -1000000, -1100,       -1009,  -1008, -1007, -300, -191,
                                -190,    -189,        -182,     -181,        -151,   -150,  -149,  -129, -128,
                                -127,    -126,        -125,     -124,        -64,    -63,   64,    126,  127,
                                128,     129,         148,      149,         150,    151,   160,   161,  1021,
                                1022,    1023,        1100,     INT_MAX - 1, INT_MAX};
    for (int n = -40; n <= 45; n++) factors.push_back(n);
    return factors;
}

TEST(ConvertScaled, EverySampleEveryFactorEveryMode) {
    eachConvertForm([](const auto& form) {
        using Form = std::remove_cvref_t<decltype(form)>;
        if (form.channels != 1) return;
        SCOPED_TRACE(form.name);
        const auto values = tellingSamples<typename Form::S>();
        std::vector<typename Form::D> got(values.size());
        const auto check = [&](int mode, int n) {
            EXPECT_EQ(form.run(values.data(), 1, got.data(), 1, {int(values.size()), 1}, mode, n), tpxOk);
            for (size_t i = 0; i < values.size(); i++)
                ASSERT_TRUE(sameBits(got[i], form.model(values[i], mode, n)))
                    << +values[i] << ", mode " << mode << ", factor " << n << ": got " << +got[i]
                    << ", expected " << +form.model(values[i], mode, n);
        };
        if (form.kind != Kind::Scaled)
            for (int mode : {0, 1, 2, -1, 3, INT_MAX}) check(mode, 0);
        else
            for (int n : factorsFor<typename Form::S>())
                for (int mode : {0, 1, 2}) check(mode, n);
    });
}

// Any other mode is that of ties away from zero.
TEST(ConvertScaled, UnknownModes) {
    for (int mode : {-1, 3, 0x11, INT_MIN, INT_MAX}) {
        const Tpx32f real[3] = {2.5f, -2.5f, -0.4f};
        const Tpx32s integer[3] = {5, -5, -1};
        Tpx8s out[3];
        Tpx16s wide[3];
        EXPECT_EQ(tpxiConvert_32f8s_C1RSfs(real, 4, out, 4, {3, 1}, mode, 0), tpxOk);
        EXPECT_EQ(out[0], 3);
        EXPECT_EQ(out[1], -3);
        EXPECT_EQ(out[2], 0);
        EXPECT_EQ(tpxiConvert_32s16s_C1RSfs(integer, 4, wide, 4, {3, 1}, mode, 1), tpxOk);
        EXPECT_EQ(wide[0], 3);
        EXPECT_EQ(wide[1], -3);
        EXPECT_EQ(wide[2], -1);
    }
}

// Values that a reader may look up, each at an edge.
TEST(ConvertScaled, Edges) {
    const auto to32u = [](float x, int mode, int n) {
        Tpx32u bits;
        std::memcpy(&bits, &x, sizeof bits);
        EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(&bits, 4, {1, 1}, mode, n), tpxOk);
        return bits;
    };
    for (int mode : {0, 1, 2}) {
        EXPECT_EQ(to32u(0x1p32f, mode, 0), 0u);
        EXPECT_EQ(to32u(0x1p33f, mode, 1), 0u);
        EXPECT_EQ(to32u(std::nextafter(0x1p33f, INFINITY), mode, 1), UINT32_MAX);
        EXPECT_EQ(to32u(0.0f, mode, INT_MIN), 0u);
        EXPECT_EQ(to32u(INFINITY, mode, INT_MAX), UINT32_MAX);
        EXPECT_EQ(to32u(NAN, mode, 3), UINT32_MAX);
    }
    const Tpx32f reals[5] = {NAN, -1e30f, 255.5f, 0.49999997f, 1e30f};
    Tpx8u bytes[5];
    EXPECT_EQ(tpxiConvert_32f8u_C1R(reals, 20, bytes, 5, {5, 1}, 1), tpxOk);
    EXPECT_EQ((std::vector<int>(bytes, bytes + 5)), (std::vector<int>{255, 0, 255, 0, 255}));
    EXPECT_EQ(tpxiConvert_32f8u_C1R(reals, 20, bytes, 5, {5, 1}, 2), tpxOk);
    EXPECT_EQ(bytes[3], 0);
    const Tpx32f ties[4] = {0, 0.5f, 1.5f, 2.5f};
    EXPECT_EQ(tpxiConvert_32f8u_C1RSfs(ties, 16, bytes, 4, {4, 1}, 1, 0), tpxOk);
    EXPECT_EQ((std::vector<int>(bytes, bytes + 4)), (std::vector<int>{0, 0, 2, 2}));
    const Tpx32u words[3] = {0x80000000, 0x80000001, 0x7FFFFFFF};
    Tpx32s halves[3];
    EXPECT_EQ(tpxiConvert_32u32s_C1RSfs(words, 12, halves, 12, {3, 1}, 1, 32), tpxOk);
    EXPECT_EQ((std::vector<int>(halves, halves + 3)), (std::vector<int>{0, 1, 0}));
    EXPECT_EQ(tpxiConvert_32u32s_C1RSfs(words, 12, halves, 12, {3, 1}, 2, 32), tpxOk);
    EXPECT_EQ((std::vector<int>(halves, halves + 3)), (std::vector<int>{1, 1, 0}));
    const Tpx32u large[1] = {0xFFFFFFFF};
    EXPECT_EQ(tpxiConvert_32u8u_C1RSfs(large, 4, bytes, 1, {1, 1}, 2, 16), tpxOk);
    EXPECT_EQ(bytes[0], 0);
}

TEST(ConvertScaled, InPlace) {
    for (int width = 1; width < 40; width++)
        for (int misalign : {0, 4, 12, 13}) {
            GuardedImage<Tpx32f> image(width, 3, 1, {misalign % 8, Edge::End, misalign}), old(width, 3, 1);
            old.copySamplesFrom(image.fill([](int x, int y, int) { return x * 1.25f + y - 7; }));
            EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(reinterpret_cast<Tpx32u*>(image.data()), image.step(),
                                                 image.size(), 2, -1),
                      tpxOk);
            ASSERT_TRUE(matches(image, [&](int x, int y, int) {
                return fromBits<float>(tpx::model::real<Tpx32u>(old.at(x, y), 2, -1));
            }));
        }
}

} // namespace
