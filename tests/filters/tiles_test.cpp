// SPDX-License-Identifier: Apache-2.0
// Tiles that know their neighbours give what one call gives: a family of each kind, its border on the outside.
// (Medians have their own test, for what their tiles share.)
#include <gtest/gtest.h>

#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;

constexpr TpxiSize kWhole = {75, 50}, kFirst = {38, 21};
constexpr TpxBorderType kKinds[] = {tpxBorderReplicate, tpxBorderMirror, tpxBorderConstant};

// filter(source, step, destination, step, size, border) on the whole image and on four tiles of it.
template <class D, class S, class Filter>
void expectTilesAreTheWhole(int channels, const char* name, Filter filter) {
    for (const TpxBorderType kind : kKinds) {
        GuardedImage<S> src(kWhole.width, kWhole.height, channels);
        GuardedImage<D> whole(kWhole.width, kWhole.height, channels),
            tiled(kWhole.width, kWhole.height, channels);
        src.randomise(unsigned(kind) + 1);
        const auto run = [&](GuardedImage<D>& dst, int x, int y, TpxiSize size, TpxBorderType border) {
            const auto at = [=](auto* data, int step, int sampleBytes) {
                return reinterpret_cast<decltype(data)>(uintptr_t(data) +
                                                        uintptr_t(y * step + x * channels * sampleBytes));
            };
            ASSERT_EQ(tpxOk, filter(at(src.data(), src.step(), sizeof(S)), src.step(),
                                    at(dst.data(), dst.step(), sizeof(D)), dst.step(), size, border))
                << name;
        };
        run(whole, 0, 0, kWhole, kind);
        for (const bool right : {false, true})
            for (const bool lower : {false, true})
                run(tiled, right ? kFirst.width : 0, lower ? kFirst.height : 0,
                    {right ? kWhole.width - kFirst.width : kFirst.width,
                     lower ? kWhole.height - kFirst.height : kFirst.height},
                    kind | (right ? tpxBorderInMemLeft : tpxBorderInMemRight) |
                        (lower ? tpxBorderInMemTop : tpxBorderInMemBottom));
        ASSERT_TRUE(matches(tiled, [&](int x, int y, int c) { return whole.at(x, y, c); }))
            << name << ' ' << kind;
    }
}

// Asks for the buffer, then filters with it.
template <class Query, class Run>
TpxStatus withBuffer(Query query, Run run) {
    int bytes = 0;
    const TpxStatus status = query(&bytes);
    GuardedBytes buffer(size_t(bytes) + 1);
    return status == tpxOk ? run(buffer.data()) : status;
}

TEST(FilterTiles, FixedMasks) {
    for (const int mask : {33, 55}) {
        expectTilesAreTheWhole<Tpx16s, Tpx8u>(
            1, "Sobel",
            [=](auto* src, int srcStep, auto* dst, int dstStep, TpxiSize size, TpxBorderType border) {
                return withBuffer(
                    [=](int* bytes) {
                        return tpxiFilterSobelVertBorderGetBufferSize(size, mask, tpxDataType8u, tpxDataType16s,
                                                                      1, bytes);
                    },
                    [=](Tpx8u* buffer) {
                        return tpxiFilterSobelVertBorder_8u16s_C1R(src, srcStep, dst, dstStep, size, mask,
                                                                   border, 7, buffer);
                    });
            });
        expectTilesAreTheWhole<Tpx8u, Tpx8u>(
            3, "Laplace",
            [=](auto* src, int srcStep, auto* dst, int dstStep, TpxiSize size, TpxBorderType border) {
                return withBuffer(
                    [=](int* bytes) {
                        return tpxiFilterLaplaceBorderGetBufferSize(size, mask, tpxDataType8u, tpxDataType8u, 3,
                                                                    bytes);
                    },
                    [=](Tpx8u* buffer) {
                        return tpxiFilterLaplaceBorder_8u_C3R(src, srcStep, dst, dstStep, size, mask, border, 7,
                                                              buffer);
                    });
            });
    }
}

TEST(FilterTiles, Box) {
    for (const TpxiSize mask : {TpxiSize{3, 3}, {5, 5}, {9, 4}, {19, 17}}) {
        expectTilesAreTheWhole<Tpx8u, Tpx8u>(
            3, "box", [=](auto* src, int srcStep, auto* dst, int dstStep, TpxiSize size, TpxBorderType border) {
                const Tpx8u value[3] = {1, 90, 200};
                return withBuffer(
                    [=](int* bytes) {
                        return tpxiFilterBoxBorderGetBufferSize(size, mask, tpxDataType8u, 3, bytes);
                    },
                    [&](Tpx8u* buffer) {
                        return tpxiFilterBoxBorder_8u_C3R(src, srcStep, dst, dstStep, size, mask, border, value,
                                                          buffer);
                    });
            });
    }
}

TEST(FilterTiles, General) {
    const Tpx16s kernel[15] = {1, -2, 3, 4, -5, 6, 7, 8, -9, 10, 11, 12, 13, -14, 15};
    const TpxiSize kernelSize = {5, 3};
    expectTilesAreTheWhole<Tpx8u, Tpx8u>(
        3, "general", [&](auto* src, int srcStep, auto* dst, int dstStep, TpxiSize size, TpxBorderType border) {
            const Tpx8u value[3] = {1, 90, 200};
            int specBytes = 0, bytes = 0;
            EXPECT_EQ(tpxOk, tpxiFilterBorderGetSize(kernelSize, size, tpxDataType8u, tpxDataType16s, 3,
                                                     &specBytes, &bytes));
            GuardedBytes memory(static_cast<size_t>(specBytes)), buffer(static_cast<size_t>(bytes));
            const auto spec = reinterpret_cast<TpxiFilterBorderBlock*>(memory.data());
            EXPECT_EQ(tpxOk, tpxiFilterBorderInit_16s(kernel, kernelSize, 37, tpxDataType8u, 3,
                                                      tpxRoundNearestEven, spec));
            return tpxiFilterBorder_8u_C3R(src, srcStep, dst, dstStep, size, border, value, spec,
                                           buffer.data());
        });
}

} // namespace
