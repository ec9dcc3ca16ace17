// SPDX-License-Identifier: Apache-2.0
// Neighbourhood filters: masks, anchors, borders and kernels of any value, on sources that hold what may be
// read.
#include <algorithm>
#include <memory>

#include "fuzz/call.h"

namespace tpx::fuzz {
namespace {

const std::vector<const Export*>& filters() {
    static const auto list = [] {
        std::vector<const Export*> made;
        for (const Export& e : test::exports())
            if ((e.operation.starts_with("Filter") || e.operation.starts_with("SumWindow")) && e.from)
                made.push_back(&e);
        return made;
    }();
    return list;
}

class Filter {
 public:
    Filter(const Export& e, Bytes& bytes)
        : e_(e), bytes_(bytes), types_{e.types, e.types}, isGeneral_(e.operation == "FilterBorder") {
        // "8u16s" are two types.
        if (const size_t second = e.types.find_first_of("0123456789", e.types.find_first_of("usf"));
            second != std::string::npos)
            types_[0] = e.types.substr(0, second), types_[1] = e.types.substr(second);
        width_ = bytes.length();
        height_ = width_ > 100 ? 1 : bytes.between(1, 100);
        if (bytes.once(8)) std::swap(width_, height_);
        if (height_ > 10000) height_ = 10000;
        chooseMask();
        const Param* const border = e.param("border");
        constexpr unsigned kBorders[] = {tpxBorderReplicate, tpxBorderMirror, tpxBorderConstant};
        border_ = bytes.once(8)    ? Tpx32u(tpxBorderInMemAll)
                  : bytes.once(24) ? Tpx32u(bytes.hostile())
                                   : bytes.pick(kBorders) | unsigned(bytes.below(16)) << 4;
        const unsigned sides = isRefused_ ? 0 : border ? border_ : unsigned(tpxBorderInMemAll);
        left_ = sides & tpxBorderInMemLeft ? anchor_.x : 0;
        top_ = sides & tpxBorderInMemTop ? anchor_.y : 0;
        right_ = sides & tpxBorderInMemRight ? mask_.width - 1 - anchor_.x : 0;
        bottom_ = sides & tpxBorderInMemBottom ? mask_.height - 1 - anchor_.y : 0;
    }

    void run() {
        const int64_t srcPixel = int64_t(sampleBytes(types_[0])) * e_.from,
                      dstPixel = int64_t(sampleBytes(types_[1])) * e_.from;
        const int64_t srcRow = (int64_t(left_) + width_ + right_) * srcPixel,
                      srcRows = int64_t(top_) + height_ + bottom_;
        if (!Image::fits(srcRow, srcRows) || !Image::fits(width_ * dstPixel, height_)) return;
        Block* const work = buffer();
        // Large masks on large images take too long.
        const bool isSlow = e_.operation == "FilterMedianColor";
        if (!work ||
            (!isRefused_ && (std::max(mask_.width, mask_.height) > 300 ||
                             int64_t(width_) * height_ * mask_.width * mask_.height >> (isSlow ? 18 : 22))))
            return;
        Image src(bytes_, srcRow, srcRows, types_[0]), dst(bytes_, width_ * dstPixel, height_, types_[1]);
        uint8_t* const first = src.data() + top_ * src.step() + left_ * srcPixel;
        const bool isSame =
            bytes_.once(8) && (e_.operation == "FilterBoxBorder" || e_.operation == "FilterMedianBorder");
        Image& written = isSame ? src : dst;
        written.watch();
        uint64_t pixel[4];
        for (uint64_t& sample : pixel) sample = bytes_.take<uint64_t>();
        Arguments a(e_);
        a.image("pSrc", "srcStep", first, src.step());
        a.image("pDst", "dstStep", isSame ? first : dst.data(), written.step());
        a.size("roiSize", width_, bytes_.once(64) ? std::min(height_, bytes_.hostile()) : height_);
        a.integer("mask", maskWord_).point("anchor", anchor_.x, anchor_.y).integer("border", border_);
        if (e_.param("maskSize") && e_.param("maskSize")->type == "int")
            a.integer("maskSize", wordOf(mask_)).integer("anchor", wordOf({anchor_.x, anchor_.y}));
        else
            a.size("maskSize", mask_.width, mask_.height);
        a.bits("borderValue", pixel[0]).pointer("pBorderValue", pixel);
        a.integer("weight", bytes_.once(4) ? bytes_.hostile() : bytes_.below(12));
        a.pointer("pBuffer", work->data());
        if (spec_) a.pointer("pSpec", spec_->data());
        const TpxStatus status = a();
        require(status >= 0 || written.unchanged(), e_, "a refused call writes nothing");
        require(written.paddingIntact(), e_, "bytes between rows stay");
    }

 private:
    // Along the row or the column.
    int wordOf(TpxiSize v) const { return e_.operation.ends_with("Row") ? v.width : v.height; }

    void chooseMask() {
        const auto side = [&] { return bytes_.once(8) ? bytes_.between(1, 40) : bytes_.between(1, 9); };
        const auto spoil = [&](int& v) {
            if (bytes_.once(48)) v = bytes_.hostile();
        };
        mask_ = {side(), side()};
        if (e_.operation.starts_with("FilterMedian") && !bytes_.once(8)) mask_.width |= 1, mask_.height |= 1;
        if (e_.param("mask")) {
            maskWord_ = bytes_.once(2) ? 55 : 33;
            spoil(maskWord_);
            const bool isFive = maskWord_ == 55;
            mask_ = {isFive ? 5 : 3, isFive ? 5 : 3};
        }
        if (e_.param("weight")) mask_ = {3, 3};
        if (e_.param("anchor")) anchor_ = {bytes_.below(mask_.width), bytes_.below(mask_.height)};
        if (!e_.param("mask") && !e_.param("weight")) spoil(mask_.width), spoil(mask_.height);
        // FilterBox goes wherever its anchor leads.
        if (e_.param("anchor") && e_.operation != "FilterBox")
            spoil(anchor_.x), spoil(anchor_.y);
        else if (!e_.param("anchor"))
            anchor_ = {(mask_.width - 1) / 2, (mask_.height - 1) / 2};
        if (e_.operation.starts_with("SumWindow")) { // which know one direction
            const bool isRow = e_.operation.ends_with("Row");
            (isRow ? mask_.height : mask_.width) = 1;
            (isRow ? anchor_.y : anchor_.x) = 0;
        }
        // What is refused needs no memory around it.
        const bool isOutside =
            anchor_.x < 0 || anchor_.y < 0 || anchor_.x >= mask_.width || anchor_.y >= mask_.height;
        isRefused_ = mask_.width < 1 || mask_.height < 1 || (isOutside && e_.operation != "FilterBox");
    }

    // The work buffer, and of the general filter the block too; null if there is none to be had.
    Block* buffer() {
        if (isGeneral_) return general();
        const Export* query = findExport("tpxi" + e_.operation + "GetBufferSize");
        if (!query) query = findExport("tpxi" + e_.operation + "GetBufferSize_" + types_[0]);
        int bytes = 0;
        if (query) {
            const TpxStatus told = Arguments(*query)
                                       .size("roiSize", width_, height_)
                                       .size("maskSize", mask_.width, mask_.height)
                                       .integer("mask", maskWord_)
                                       .integer("dataType", dataTypeOf(types_[0]))
                                       .integer("srcType", dataTypeOf(types_[0]))
                                       .integer("dstType", dataTypeOf(types_[1]))
                                       .integer("numChannels", e_.from)
                                       .pointer("pBufferSize", &bytes)();
            if (told == tpxErrSizeTooLarge || size_t(bytes) > kMaxPlan) return nullptr;
        }
        work_ = std::make_unique<Block>(bytes_, size_t(bytes));
        return work_.get();
    }

    Block* general() {
        if (int64_t(mask_.width) * mask_.height > 1600) return nullptr;
        const bool isReal = types_[0] == "32f" || bytes_.once(4);
        int specBytes = 0, workBytes = 0;
        const TpxStatus told = Arguments(*findExport("tpxiFilterBorderGetSize"))
                                   .size("kernelSize", mask_.width, mask_.height)
                                   .size("roiSize", width_, height_)
                                   .integer("dataType", dataTypeOf(types_[0]))
                                   .integer("kernelType", isReal ? tpxDataType32f : tpxDataType16s)
                                   .integer("numChannels", e_.from)
                                   .pointer("pSpecSize", &specBytes)
                                   .pointer("pBufferSize", &workBytes)();
        if (told < 0 || size_t(specBytes) > kMaxPlan || size_t(workBytes) > kMaxPlan) return nullptr;
        spec_ = std::make_unique<Block>(bytes_, size_t(specBytes));
        work_ = std::make_unique<Block>(bytes_, size_t(workBytes));
        const size_t taps = size_t(mask_.width) * size_t(mask_.height);
        Block kernel(taps * (isReal ? 4 : 2), 0);
        fill(bytes_, kernel.data(), kernel.size(), isReal ? "32f" : "16s");
        constexpr int kRoundModes[] = {0, 1, 2, 0x10, 0x11, 0x12};
        const TpxStatus made =
            Arguments(*findExport(isReal ? "tpxiFilterBorderInit_32f" : "tpxiFilterBorderInit_16s"))
                .pointer("pKernel", kernel.data())
                .size("kernelSize", mask_.width, mask_.height)
                .integer("divisor", bytes_.once(2) ? bytes_.hostile() : 1 << bytes_.below(31))
                .integer("dataType", dataTypeOf(types_[0]))
                .integer("numChannels", e_.from)
                .integer("roundMode", bytes_.once(32) ? bytes_.hostile() : bytes_.pick(kRoundModes))
                .pointer("pSpec", spec_->data())();
        if (made < 0) return nullptr;
        if (bytes_.once(2))
            Arguments(*findExport("tpxiFilterBorderSetMode"))
                .integer("hint", bytes_.below(4))
                .integer("offset", bytes_.hostile())
                .pointer("pSpec", spec_->data())();
        return work_.get();
    }

    const Export& e_;
    Bytes& bytes_;
    std::string types_[2];
    bool isGeneral_, isRefused_ = false;
    int width_, height_, maskWord_ = 0;
    TpxiSize mask_;
    TpxiPoint anchor_;
    TpxBorderType border_;
    int left_, top_, right_, bottom_;
    std::unique_ptr<Block> spec_, work_;
};

} // namespace

void run(Bytes& bytes) {
    const Export& e = *filters()[size_t(bytes.below(int(filters().size())))];
    Filter(e, bytes).run();
}

} // namespace tpx::fuzz
