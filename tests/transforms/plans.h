// SPDX-License-Identifier: Apache-2.0
// Plans of transforms in guarded memory, as callers make them.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <memory>
#include <string_view>

#include "tests/support/guarded.h"

namespace tpx::test {

struct PlanSizes {
    int spec, init, work;
};

template <class Spec>
using RealCall = TpxStatus (*)(const Tpx32f*, int, Tpx32f*, int, const Spec*, Tpx8u*);
template <class Spec>
using RealCallInPlace = TpxStatus (*)(Tpx32f*, int, const Spec*, Tpx8u*);

#define TPX_REAL_CALLS(F)                                                                             \
    using T = Tpx32f;                                                                                 \
    static constexpr RealCall<Tpxi##F##2DSpec_R> kCall[2][4] = {                                      \
        {tpxi##F##Fwd_RToPack_32f_C1R, tpxi##F##Fwd_RToPack_32f_C3R, tpxi##F##Fwd_RToPack_32f_C4R,    \
         tpxi##F##Fwd_RToPack_32f_AC4R},                                                              \
        {tpxi##F##Inv_PackToR_32f_C1R, tpxi##F##Inv_PackToR_32f_C3R, tpxi##F##Inv_PackToR_32f_C4R,    \
         tpxi##F##Inv_PackToR_32f_AC4R}};                                                             \
    static constexpr RealCallInPlace<Tpxi##F##2DSpec_R> kInPlace[2][4] = {                            \
        {tpxi##F##Fwd_RToPack_32f_C1IR, tpxi##F##Fwd_RToPack_32f_C3IR, tpxi##F##Fwd_RToPack_32f_C4IR, \
         tpxi##F##Fwd_RToPack_32f_AC4IR},                                                             \
        {tpxi##F##Inv_PackToR_32f_C1IR, tpxi##F##Inv_PackToR_32f_C3IR, tpxi##F##Inv_PackToR_32f_C4IR, \
         tpxi##F##Inv_PackToR_32f_AC4IR}};
#define TPX_COMPLEX_CALLS(F)                                                                                 \
    using T = Tpx32fc;                                                                                       \
    static constexpr decltype(&tpxi##F##Fwd_CToC_32fc_C1R) kCall[2][1] = {{tpxi##F##Fwd_CToC_32fc_C1R},      \
                                                                          {tpxi##F##Inv_CToC_32fc_C1R}};     \
    static constexpr decltype(&tpxi##F##Fwd_CToC_32fc_C1IR) kInPlace[2][1] = {{tpxi##F##Fwd_CToC_32fc_C1IR}, \
                                                                              {tpxi##F##Inv_CToC_32fc_C1IR}};
#define TPX_ORDERS(type)                                                                                      \
    static constexpr int kTag = std::string_view(#type) == "R_32f" ? 26 : 25;                                 \
    static TpxStatus getSizes(TpxiSize s, int flag, PlanSizes& to) {                                          \
        return tpxiFFTGetSize_##type(order(s.width), order(s.height), flag, 0, &to.spec, &to.init, &to.work); \
    }                                                                                                         \
    template <class S>                                                                                        \
    static TpxStatus init(TpxiSize s, int flag, S* spec, Tpx8u* buffer) {                                     \
        return tpxiFFTInit_##type(order(s.width), order(s.height), flag, 0, spec, buffer);                    \
    }                                                                                                         \
    static int order(int length) { return std::bit_width(unsigned(length)) - 1; }
#define TPX_LENGTHS(type)                                                       \
    static constexpr int kTag = std::string_view(#type) == "R_32f" ? 28 : 27;   \
    static TpxStatus getSizes(TpxiSize s, int flag, PlanSizes& to) {            \
        return tpxiDFTGetSize_##type(s, flag, 0, &to.spec, &to.init, &to.work); \
    }                                                                           \
    template <class S>                                                          \
    static TpxStatus init(TpxiSize s, int flag, S* spec, Tpx8u* buffer) {       \
        return tpxiDFTInit_##type(s, flag, 0, spec, buffer);                    \
    }

// The calls of a kind of plan, by lengths in any case.
struct RealOrders {
    using Spec = TpxiFFT2DSpec_R;
    TPX_REAL_CALLS(FFT)
    TPX_ORDERS(R_32f)
};
struct RealLengths {
    using Spec = TpxiDFT2DSpec_R;
    TPX_REAL_CALLS(DFT)
    TPX_LENGTHS(R_32f)
};
struct ComplexOrders {
    using Spec = TpxiFFT2DSpec_C;
    TPX_COMPLEX_CALLS(FFT)
    TPX_ORDERS(C_32fc)
};
struct ComplexLengths {
    using Spec = TpxiDFT2DSpec_C;
    TPX_COMPLEX_CALLS(DFT)
    TPX_LENGTHS(C_32fc)
};

#undef TPX_REAL_CALLS
#undef TPX_COMPLEX_CALLS
#undef TPX_ORDERS
#undef TPX_LENGTHS

enum Direction { kForward, kInverse };
enum Channels { kC1, kC3, kC4, kAC4 };

// Plan and buffers have exactly the sizes told, and end at unreadable pages, or start behind them if misaligned
// by an odd number; those of size 0 are null.
template <class Calls>
class FourierPlan {
 public:
    using Spec = typename Calls::Spec;
    using T = typename Calls::T;

    explicit FourierPlan(TpxiSize size, int flag = tpxFftNoDivide, size_t misalign = 0) : size_(size) {
        EXPECT_EQ(Calls::getSizes(size, flag, sizes_), tpxOk);
        const Edge edge = misalign % 2 ? Edge::Start : Edge::End;
        spec_ = std::make_unique<GuardedBytes>(size_t(sizes_.spec), misalign, edge);
        work_ = std::make_unique<GuardedBytes>(size_t(sizes_.work), misalign, edge);
        GuardedBytes init{size_t(sizes_.init), misalign, edge};
        spec_->fill(0xFF);
        work_->fill(0xFF);
        init.fill(0xFF);
        EXPECT_EQ(Calls::init(size, flag, spec(), sizes_.init ? init.data() : nullptr), tpxOk);
    }

    Spec* spec() const { return reinterpret_cast<Spec*>(spec_->data()); }
    Tpx8u* work() const { return sizes_.work ? work_->data() : nullptr; }
    const PlanSizes& sizes() const { return sizes_; }
    TpxiSize size() const { return size_; }
    // A 32-bit field of the record.
    int field(int i) const {
        const auto at = (reinterpret_cast<uintptr_t>(spec()) + 63) / 64 * 64;
        return reinterpret_cast<const int*>(at)[i];
    }

    // Samples of complex images are pairs.
    void run(Direction d, const GuardedImage<float>& src, GuardedImage<float>& dst, Channels c = kC1) const {
        ASSERT_EQ(Calls::kCall[d][c](reinterpret_cast<const T*>(src.data()), src.step(),
                                     reinterpret_cast<T*>(dst.data()), dst.step(), spec(), work()),
                  tpxOk);
    }
    void runInPlace(Direction d, GuardedImage<float>& image, Channels c = kC1) const {
        ASSERT_EQ(Calls::kInPlace[d][c](reinterpret_cast<T*>(image.data()), image.step(), spec(), work()),
                  tpxOk);
    }

 private:
    TpxiSize size_;
    PlanSizes sizes_{};
    std::unique_ptr<GuardedBytes> spec_, work_;
};

} // namespace tpx::test
