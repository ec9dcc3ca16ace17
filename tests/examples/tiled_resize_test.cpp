// SPDX-License-Identifier: Apache-2.0
// Tiles of a resize must join without a seam, whatever the sizes, and a region of interest must be read with
// the pixels around it.
#include "examples/tiled_resize.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

void fillWithNoise(Pixels image) {
    unsigned state = 1;
    for (int y = 0; y < image.size.height; ++y)
        for (int x = 0; x < image.size.width * kChannels; ++x)
            image.at(0, y)[x] = static_cast<Tpx8u>((state = state * 1664525u + 1013904223u) >> 24);
}

Image8u resized(ResizeKind kind, ConstPixels src, TpxiSize dstSize, int threads) {
    Image8u dst(dstSize);
    TiledResize(kind, src.size, dstSize, threads).run(src, dst.view());
    return dst;
}

::testing::AssertionResult same(ConstPixels a, ConstPixels b) {
    for (int y = 0; y < a.size.height; ++y)
        for (int x = 0; x < a.size.width; ++x)
            if (std::memcmp(a.at(x, y), b.at(x, y), kChannels) != 0)
                return ::testing::AssertionFailure() << "at " << x << ", " << y;
    return ::testing::AssertionSuccess();
}

// Longer kernels want a source of as many pixels; super-sampling only makes smaller.
bool takes(ResizeKind kind, TpxiSize src, TpxiSize dst) {
    const int least = std::min(src.width, src.height);
    switch (kind) {
        case ResizeKind::cubic:
            return least >= 4;
        case ResizeKind::lanczos:
        case ResizeKind::antialiasing:
            return least >= 6;
        case ResizeKind::super:
            return src.width >= dst.width && src.height >= dst.height;
        default:
            return true;
    }
}

} // namespace

// With few source rows the zone that repeats the edge spans a seam; the many threads make tiles of one row.
TEST(TiledResize, TilesJoinWithoutSeam) {
    for (const auto kind : {ResizeKind::nearest, ResizeKind::linear, ResizeKind::cubic, ResizeKind::lanczos,
                            ResizeKind::super, ResizeKind::antialiasing})
        for (const TpxiSize srcSize : {TpxiSize{2, 2}, {5, 3}, {31, 8}, {40, 37}}) {
            Image8u src(srcSize);
            fillWithNoise(src.view());
            for (const TpxiSize dstSize : {TpxiSize{1, 1}, {3, 2}, {16, 13}, {33, 37}, {70, 100}})
                for (const int threads : {2, 3, 7, 100}) {
                    if (!takes(kind, srcSize, dstSize)) continue;
                    SCOPED_TRACE(::testing::Message()
                                 << TiledResize::function(kind) << " " << srcSize.width << " x "
                                 << srcSize.height << " to " << dstSize.width << " x " << dstSize.height << ", "
                                 << threads << " threads");
                    const Image8u whole = resized(kind, src.view(), dstSize, 1);
                    EXPECT_TRUE(same(resized(kind, src.view(), dstSize, threads).view(), whole.view()));
                }
        }
}

// An enlarged region looks like its part of the enlarged image, because the pixels around it are read. Only
// where the region ends with the image is its edge repeated, as the image's is.
TEST(TiledResize, RegionReadsItsSurroundings) {
    constexpr int kZoom = 4;
    const TpxiSize srcSize = {24, 18};
    Image8u src(srcSize);
    fillWithNoise(src.view());
    const Image8u whole =
        resized(ResizeKind::linear, src.view(), {srcSize.width * kZoom, srcSize.height * kZoom}, 1);
    for (const TpxiRect r : {TpxiRect{5, 4, 9, 7}, {0, 0, 10, 18}, {14, 11, 10, 7}, {0, 5, 24, 6}}) {
        SCOPED_TRACE(::testing::Message() << "region at " << r.x << ", " << r.y);
        const ConstPixels region = ConstPixels(src.view()).crop(r);
        const ConstPixels expected =
            ConstPixels(whole.view()).crop({r.x * kZoom, r.y * kZoom, r.width * kZoom, r.height * kZoom});
        const Image8u enlarged = resized(ResizeKind::linear, region, expected.size, 2);
        EXPECT_TRUE(same(enlarged.view(), expected));
    }
}
