// SPDX-License-Identifier: Apache-2.0
// Views, walks, border words, rings of rows and callers' blocks: what everything that reads neighbours stands
// on.
#include <gtest/gtest.h>

#include <vector>

#include "frame/images/border.h"
#include "frame/images/row_ring.h"
#include "frame/images/walk.h"
#include "frame/memory/caller_memory.h"

namespace tpx {
namespace {

TEST(ImageView, RowsAndRegionsFollowTheStepOfAnySign) {
    Tpx16s samples[6 * 4];
    for (int i = 0; i < 24; i++) samples[i] = Tpx16s(i);
    const ImageView<Tpx16s> image{samples, 12}, upsideDown{samples + 18, -12};
    EXPECT_EQ(*image.row(2), 12);
    EXPECT_EQ(*image.from(1, 2).row(1), 19);
    EXPECT_EQ(*upsideDown.from(2, 1).row(2), 2);
    EXPECT_TRUE(image.isGapless(6));
    EXPECT_FALSE(image.isGapless(5));
    EXPECT_FALSE(upsideDown.isGapless(6));
    EXPECT_EQ(wholeSteps(ImageView<Tpx16s>{samples, -5}).step, -6);
}

TEST(Walk, JoinsRowsOnlyIfEverySideIsGapless) {
    std::vector<std::pair<ptrdiff_t, ptrdiff_t>> rows; // width and offset of the second side
    Tpx8u a[64], b[64];
    const auto note = [&](ptrdiff_t width, Tpx8u*, Tpx8u* y) { rows.push_back({width, y - b}); };
    walkJoined({5, 3}, note, ImageView<Tpx8u>{a, 5}, ImageView<Tpx8u>{b, 7});
    EXPECT_EQ(rows, (decltype(rows){{5, 0}, {5, 7}, {5, 14}}));
    rows.clear();
    walkJoined({5, 3}, note, ImageView<Tpx8u>{a, 5}, ImageView<Tpx8u>{b, 5});
    EXPECT_EQ(rows, (decltype(rows){{15, 0}}));
    rows.clear();
    walkRows({5, 2}, note, ImageView<Tpx8u>{a, 5}, ImageView<Tpx8u>{b, 5});
    EXPECT_EQ(rows, (decltype(rows){{5, 0}, {5, 5}}));
}

TEST(BorderWord, ReadsEveryWord) {
    for (unsigned word = 0; word < 0x300; word++) {
        const BorderWord b = readBorder<Border::Replicate, Border::Mirror, Border::Const>(word);
        const unsigned kind = word & 15;
        EXPECT_EQ(b.valid, word == 0xF0 || (word < 0x100 && (kind == 1 || kind == 3 || kind == 6))) << word;
        if (!b.valid) continue;
        EXPECT_EQ(b.kind, kind == 1   ? Border::Replicate
                          : kind == 3 ? Border::Mirror
                          : kind == 6 ? Border::Const
                                      : Border::InMemory);
        EXPECT_EQ(b.top << 4 | b.bottom << 5 | b.left << 6 | b.right << 7, int(word & 0xF0)) << word;
        EXPECT_EQ(b.allInMemory(), (word & 0xF0) == 0xF0);
    }
    EXPECT_FALSE(readBorder<Border::Replicate>(tpxBorderMirror).valid);
    EXPECT_TRUE(readBorder<Border::Transparent>(tpxBorderTransparent).valid);
}

// Whatever the jumps, the window holds its rows, and each is computed once unless it had left.
TEST(RowRing, HoldsTheWindowAndComputesEachRowOnce) {
    for (int count = 1; count <= 7; count++)
        for (int seed = 0; seed < 20; seed++) {
            std::vector<int> memory(size_t(count) * 3), computed;
            RowRing<int> ring(memory.data(), 3, count);
            int64_t first = seed - 10;
            int expected = 0;
            int64_t end = -1000;
            for (int move = 0; move < 30; move++) {
                ring.moveTo(first, [&](int64_t y, int* row) {
                    computed.push_back(int(y));
                    row[0] = row[1] = row[2] = int(y);
                });
                expected += int(first + count - (first > end ? first : end));
                end = first + count;
                for (int k = 0; k < count; k++)
                    for (int i = 0; i < 3; i++) ASSERT_EQ(ring.at(k)[i], first + k);
                ASSERT_EQ(int(computed.size()), expected);
                first += (move * 7 + seed) % (2 * count + 1);
            }
            for (size_t i = 1; i < computed.size(); i++) ASSERT_LT(computed[i - 1], computed[i]);
        }
}

// What the size query counts is what the tables take, at every address.
TEST(BlockLayout, QueryAndTablesAgree) {
    const auto layOut = [](BlockLayout& block, Tpx64f** doubles, Tpx16s** shorts) {
        block.take<Tpx8u>(3);
        *doubles = block.take<Tpx64f>(5, 32);
        *shorts = block.take<Tpx16s>(7, 2);
    };
    Tpx64f* doubles;
    Tpx16s* shorts;
    BlockLayout query;
    layOut(query, &doubles, &shorts);
    EXPECT_EQ(doubles, nullptr);
    EXPECT_EQ(query.bytes(), 32u + 40 + 14);
    EXPECT_EQ(query.bytesAnywhere(), query.bytes() + 64);
    std::vector<Tpx8u> memory(query.bytesAnywhere() + 64);
    for (size_t at = 0; at < 64; at++) {
        Tpx8u* const start = alignUp(memory.data() + at);
        BlockLayout block(start);
        layOut(block, &doubles, &shorts);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(doubles) % 32, 0u);
        EXPECT_EQ(reinterpret_cast<Tpx8u*>(shorts + 7) - start, ptrdiff_t(query.bytes()));
        EXPECT_LE(start + block.bytes(), memory.data() + at + query.bytesAnywhere());
    }
}

} // namespace
} // namespace tpx
