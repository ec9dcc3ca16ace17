// SPDX-License-Identifier: Apache-2.0
// Fourier transforms: fourier.h.
#ifndef TPXI_HPP_FOURIER_HPP
#define TPXI_HPP_FOURIER_HPP

#include "../fourier.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

struct FftReal {
    using Spec = TpxiFFT2DSpec_R;
    static constexpr auto getSize = &tpxiFFTGetSize_R_32f;
    static constexpr auto init = &tpxiFFTInit_R_32f;
    struct Forward {
        TPXI_NAMES_134A(tpxiFFTFwd_RToPack_, 32f, R)
        struct InPlace {
            TPXI_NAMES_134A(tpxiFFTFwd_RToPack_, 32f, IR)
        };
    };
    struct Inverse {
        TPXI_NAMES_134A(tpxiFFTInv_PackToR_, 32f, R)
        struct InPlace {
            TPXI_NAMES_134A(tpxiFFTInv_PackToR_, 32f, IR)
        };
    };
};
struct FftComplex {
    using Spec = TpxiFFT2DSpec_C;
    static constexpr auto getSize = &tpxiFFTGetSize_C_32fc;
    static constexpr auto init = &tpxiFFTInit_C_32fc;
    struct Forward {
        TPXI_NAME(tpxiFFTFwd_CToC_, 32fc, C1, R)
        struct InPlace {
            TPXI_NAME(tpxiFFTFwd_CToC_, 32fc, C1, IR)
        };
    };
    struct Inverse {
        TPXI_NAME(tpxiFFTInv_CToC_, 32fc, C1, R)
        struct InPlace {
            TPXI_NAME(tpxiFFTInv_CToC_, 32fc, C1, IR)
        };
    };
};
struct DftReal {
    using Spec = TpxiDFT2DSpec_R;
    static constexpr auto getSize = &tpxiDFTGetSize_R_32f;
    static constexpr auto init = &tpxiDFTInit_R_32f;
    struct Forward {
        TPXI_NAMES_134A(tpxiDFTFwd_RToPack_, 32f, R)
        struct InPlace {
            TPXI_NAMES_134A(tpxiDFTFwd_RToPack_, 32f, IR)
        };
    };
    struct Inverse {
        TPXI_NAMES_134A(tpxiDFTInv_PackToR_, 32f, R)
        struct InPlace {
            TPXI_NAMES_134A(tpxiDFTInv_PackToR_, 32f, IR)
        };
    };
};
struct DftComplex {
    using Spec = TpxiDFT2DSpec_C;
    static constexpr auto getSize = &tpxiDFTGetSize_C_32fc;
    static constexpr auto init = &tpxiDFTInit_C_32fc;
    struct Forward {
        TPXI_NAME(tpxiDFTFwd_CToC_, 32fc, C1, R)
        struct InPlace {
            TPXI_NAME(tpxiDFTFwd_CToC_, 32fc, C1, IR)
        };
    };
    struct Inverse {
        TPXI_NAME(tpxiDFTInv_CToC_, 32fc, C1, R)
        struct InPlace {
            TPXI_NAME(tpxiDFTInv_CToC_, 32fc, C1, IR)
        };
    };
};

} // namespace op

// ---- Fourier transforms: tpxiFFT, tpxiDFT --------------------------------------------------------------
// What the plans have in common. Real images go to packed spectra of their shape and back, complex images to
// complex ones; from a source to a destination, or in place. A plan serves any number of channels and threads,
// each call at a time with a work buffer of its own.
template <class Names>
class FourierPlan {
 public:
    TpxiSize size() const noexcept { return size_; }
    Buffer buffer() const { return Buffer(workBytes_); }

    template <class Src, class Dst, detail::Images<Src, Dst> = 0>
    TpxStatus forward(const Src& src, Dst&& dst, const Buffer& buffer) const {
        return run<typename Names::Forward>("FourierPlan::forward", src, dst, buffer);
    }
    template <class SrcDst, detail::Images<SrcDst> = 0>
    TpxStatus forward(SrcDst&& srcDst, const Buffer& buffer) const {
        return runInPlace<typename Names::Forward>("FourierPlan::forward", srcDst, buffer);
    }
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>
    TpxStatus inverse(const Src& src, Dst&& dst, const Buffer& buffer) const {
        return run<typename Names::Inverse>("FourierPlan::inverse", src, dst, buffer);
    }
    template <class SrcDst, detail::Images<SrcDst> = 0>
    TpxStatus inverse(SrcDst&& srcDst, const Buffer& buffer) const {
        return runInPlace<typename Names::Inverse>("FourierPlan::inverse", srcDst, buffer);
    }

 protected:
    // Size and orders are what the C functions take before the flag.
    template <class... Extent>
    explicit FourierPlan(TpxFftFlag flag, Extent... extent) {
        int bytes = 0;
        int initBytes = 0;
        check(Names::getSize(extent..., flag, tpxHintFast, &bytes, &initBytes, &workBytes_), "FourierPlan");
        spec_ = Buffer(bytes);
        const Buffer temporary(initBytes);
        check(Names::init(extent..., flag, tpxHintFast, spec(), temporary.data()), "FourierPlan");
    }

    TpxiSize size_{};

 private:
    template <class Operation, class Src, class Dst>
    TpxStatus run(const char* where, const Src& src, Dst&& dst, const Buffer& buffer) const {
        const auto from = detail::readable(src);
        const auto to = detail::writable(dst);
        detail::expectSameSize(from.size(), size_, where);
        detail::expectSameSize(to.size(), size_, where);
        const auto function = detail::find<Operation, detail::KeyOf<Src, Dst>>();
        return check(function(from.data(), from.step(), to.data(), to.step(), spec(), buffer.data()), where);
    }
    template <class Operation, class SrcDst>
    TpxStatus runInPlace(const char* where, SrcDst&& srcDst, const Buffer& buffer) const {
        const auto image = detail::writable(srcDst);
        detail::expectSameSize(image.size(), size_, where);
        const auto function = detail::find<typename Operation::InPlace, detail::KeyOfOne<SrcDst>>();
        return check(function(image.data(), image.step(), spec(), buffer.data()), where);
    }
    typename Names::Spec* spec() const { return reinterpret_cast<typename Names::Spec*>(spec_.data()); }

    Buffer spec_;
    int workBytes_ = 0;
};

// Sides that are powers of two, given as orders: Fft<op::FftReal>, called FftReal.
template <class Names>
class Fft : public FourierPlan<Names> {
 public:
    Fft(int orderX, int orderY, TpxFftFlag flag = tpxFftDivInverse) : FourierPlan<Names>(flag, orderX, orderY) {
        this->size_ = {1 << orderX, 1 << orderY};
    }
};
using FftReal = Fft<op::FftReal>;
using FftComplex = Fft<op::FftComplex>;

// Any sides.
template <class Names>
class Dft : public FourierPlan<Names> {
 public:
    explicit Dft(TpxiSize size, TpxFftFlag flag = tpxFftDivInverse) : FourierPlan<Names>(flag, size) {
        this->size_ = size;
    }
};
using DftReal = Dft<op::DftReal>;
using DftComplex = Dft<op::DftComplex>;

} // namespace tpxi

#endif
