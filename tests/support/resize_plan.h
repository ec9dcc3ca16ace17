// SPDX-License-Identifier: Apache-2.0
// A plan in guarded memory, as a caller would make one.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/guarded.h"

namespace tpx::test {

// The plan of a linear or nearest resize in memory of exactly the size asked for, between unreadable pages,
// with the calls of one width. Names gives the functions of one sample type (see resize_test.cpp).
template <class Names>
class Plan {
 public:
    using T = typename Names::T;

    Plan(bool linear, TpxiSize src, TpxiSize dst, bool longForm = false, int misalign = 1)
        : linear_(linear), long_(longForm), src_(src), dst_(dst), misalign_(misalign) {
        const auto kind = linear ? tpxInterpolationLinear : tpxInterpolationNearest;
        const TpxiSizeL srcL{src.width, src.height}, dstL{dst.width, dst.height};
        int bytes = 0, init = 0;
        TpxSizeL bytesL = 0, initL = 0;
        if (longForm)
            EXPECT_EQ(tpxOk, tpxiResizeGetSize_L(srcL, dstL, Names::kType, kind, 0, &bytesL, &initL));
        else
            EXPECT_EQ(tpxOk, Names::getSize(src, dst, kind, 0, &bytes, &init));
        memory_ = std::make_unique<GuardedBytes>(size_t(bytes + bytesL), size_t(misalign));
        const TpxStatus status = longForm ? (linear ? tpxiResizeLinearInit_L : tpxiResizeNearestInit_L)(
                                                srcL, dstL, Names::kType, spec())
                                          : (linear ? Names::initLinear : Names::initNearest)(src, dst, spec());
        EXPECT_EQ(tpxOk, status);
    }

    TpxiResizeSpec* spec() const { return reinterpret_cast<TpxiResizeSpec*>(memory_->data()); }
    GuardedBytes& memory() const { return *memory_; }
    TpxiSize src() const { return src_; }
    TpxiSize dst() const { return dst_; }

    TpxiRect srcRect(TpxiRect tile) const {
        if (long_) {
            TpxiPointL at;
            TpxiSizeL size;
            const TpxStatus status =
                tpxiResizeGetSrcRoi_L(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &at, &size);
            EXPECT_GE(status, tpxOk);
            return {int(at.x), int(at.y), int(size.width), int(size.height)};
        }
        TpxiPoint at;
        TpxiSize size;
        EXPECT_GE(tpxiResizeGetSrcRoi_8u(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &at, &size),
                  tpxOk);
        return {at.x, at.y, size.width, size.height};
    }

    // Processes one tile with a work buffer of exactly the size asked for.
    TpxStatus run(int channels, const T* src, int srcStep, T* dst, int dstStep, TpxiRect tile,
                  TpxBorderType border) const {
        const int n = channels == 1 ? 0 : channels == 3 ? 1 : 2;
        if (long_) {
            const TpxiPointL at{tile.x, tile.y};
            const TpxiSizeL size{tile.width, tile.height};
            TpxSizeL bytes = 0;
            EXPECT_GE(tpxiResizeGetBufferSize_L(spec(), size, Tpx32u(channels), &bytes), tpxOk);
            GuardedBytes work{size_t(bytes), size_t(misalign_)};
            work.fill(0xFF);
            return linear_ ? Names::linearL()[n](src, srcStep, dst, dstStep, at, size, border, nullptr, spec(),
                                                 work.data())
                           : Names::nearestL()[n](src, srcStep, dst, dstStep, at, size, spec(), work.data());
        }
        const TpxiPoint at{tile.x, tile.y};
        const TpxiSize size{tile.width, tile.height};
        int bytes = 0;
        EXPECT_GE(tpxiResizeGetBufferSize_8u(spec(), size, Tpx32u(channels), &bytes), tpxOk);
        GuardedBytes work{size_t(bytes), size_t(misalign_)};
        work.fill(0xFF);
        return linear_ ? Names::linear()[n](src, srcStep, dst, dstStep, at, size, border, nullptr, spec(),
                                            work.data())
                       : Names::nearest()[n](src, srcStep, dst, dstStep, at, size, spec(), work.data());
    }

 private:
    bool linear_, long_;
    TpxiSize src_, dst_;
    int misalign_;
    std::unique_ptr<GuardedBytes> memory_;
};

} // namespace tpx::test
