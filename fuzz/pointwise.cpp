// SPDX-License-Identifier: Apache-2.0
// Every export that works on whole images, decided by its parameters: sizes, steps and modes of any value,
// images that end at unreadable pages; and image memory of any size.
#include <algorithm>
#include <cmath>
#include <memory>

#include "fuzz/call.h"
#include "tests/exports/call.h"

namespace tpx::fuzz {
namespace {

using namespace test;

bool isMalloc(const Export& e) { return e.operation == "Malloc"; }

const std::vector<const Export*>& fuzzedExports() {
    static const auto list = [] {
        std::vector<const Export*> made;
        for (const Export& e : exports())
            if (isCallable(e) || isMalloc(e)) made.push_back(&e);
        return made;
    }();
    return list;
}

// Room for arrays that arguments point at: palettes of 2^7 entries are the ones of tests/exports.
constexpr int kPaletteBits = 7;

class Pointwise {
 public:
    Pointwise(const Export& e, Bytes& bytes) : e_(e), bytes_(bytes), variant_(bytes.below(variantsOf(e))) {
        width_ = bytes.length();
        height_ = width_ > 100 ? 1 : bytes.between(1, 100);
        if (isBorder(e)) {
            for (int& margin : margins_) margin = bytes.once(16) ? bytes.below(300) : bytes.below(8);
            // The layout of the destination is that of a pointwise image of its size.
            dstWidth_ = width_ + margins_[0] + margins_[1];
            dstHeight_ = height_ + margins_[2] + margins_[3];
        }
    }

    void run() {
        Places places{};
        for (Side side : {kFirst, kSecond, kMask, kDst})
            if (const Param* p = imageParam(e_, side); p && !place(places, side, p->type.substr(3))) return;
        if (imageParam(e_, kFirst) && images_[kDst] && bytes_.once(8) && mayBeSame()) {
            places[kFirst] = places[kDst];
            isSame_ = true;
        }
        if (images_[kDst]) images_[kDst]->watch();
        Outs outs;
        isTame_ = !bytes_.once(2);
        const int channel = bytes_.below(e_.from ? e_.from : 1);
        const TpxStatus status = call(e_, places, width_, height_, variant_, &outs, channel, -1, [&](Value* v) {
            if (isBorder(e_)) border(v);
            if (!isTame_) spoil(v, bytes_.between(1, 3));
            show(e_, v);
        });
        if (!images_[kDst]) return;
        Image& dst = *images_[kDst];
        require(status >= 0 || dst.unchanged(), e_, "a refused call writes nothing");
        if (!stepSpoiled_) require(dst.paddingIntact(), e_, "bytes between rows stay");
    }

 private:
    bool place(Places& places, Side side, const std::string& type) {
        const bool larger = side == kDst && isBorder(e_);
        const int width = larger ? dstWidth_ : width_, height = larger ? dstHeight_ : height_;
        const int planes = planesOf(e_, side), bits = bitsPerPixel(e_, side);
        const ptrdiff_t rowBytes =
            bits == 1 ? (bitOffset(variant_) % 8 + width + 7) / 8 : ptrdiff_t(bits / 8) * width;
        if (!Image::fits(rowBytes, ptrdiff_t(height) * planes)) return false;
        images_[side] = std::make_unique<Image>(bytes_, rowBytes, ptrdiff_t(height) * planes, type);
        Image& image = *images_[side];
        places[side] = {image.data(), image.step(), image.step() * height};
        return true;
    }

    // Copies of another layout or size, and moved pixels, do not take one image for both.
    bool mayBeSame() const {
        return !isBorder(e_) && !e_.isInPlace() && e_.operation != "Copy" && e_.operation != "CopyManaged" &&
               e_.operation != "SwapChannels" && planesOf(e_, kFirst) == 1 && planesOf(e_, kDst) == 1 &&
               bitsPerPixel(e_, kFirst) == bitsPerPixel(e_, kDst);
    }

    void border(Value* values) {
        for (size_t i = 0; i < e_.params.size(); i++) {
            const Param& p = e_.params[i];
            const auto set = [&](int64_t v) {
                if (p.type == "TpxSizeL")
                    values[i] = TpxSizeL(v);
                else
                    values[i] = int(v);
            };
            if (p.name == "leftBorderWidth") set(margins_[0]);
            if (p.name == "topBorderHeight") set(margins_[2]);
            if (p.name == "dstRoiSize") {
                if (p.type == "TpxiSizeL")
                    values[i] = TpxiSizeL{dstWidth_, dstHeight_};
                else
                    values[i] = TpxiSize{dstWidth_, dstHeight_};
            }
            if (p.name == "pSrcDst")
                values[i] = static_cast<void*>(images_[kDst]->data() + margins_[2] * images_[kDst]->step() +
                                               margins_[0] * (bitsPerPixel(e_, kDst) / 8));
        }
    }

    // Makes arguments what nobody would pass: lengths below 1, null pointers, steps that do not reach to the
    // next row, anything for modes and constants. All that the call may use by the header is there.
    void spoil(Value* values, int count) {
        for (; count > 0; count--) {
            const size_t i = size_t(bytes_.below(int(e_.params.size())));
            const Param& p = e_.params[i];
            Value& value = values[i];
            if (p.points) {
                if (bytes_.once(4))
                    value = static_cast<void*>(nullptr);
                else
                    array(p, value);
            } else if (p.type == "TpxiSize") {
                TpxiSize size = value.as<TpxiSize>();
                int& side = bytes_.once(2) ? size.width : size.height;
                side = std::min(side, bytes_.hostile());
                value = size;
            } else if (p.type == "TpxiSizeL") {
                TpxiSizeL size = value.as<TpxiSizeL>();
                TpxSizeL& side = bytes_.once(2) ? size.width : size.height;
                side = std::min(side, TpxSizeL(bytes_.hostile<int64_t>()));
                value = size;
            } else if (p.name.ends_with("Step")) {
                step(p, value);
            } else if (p.name.ends_with("BitOffset")) {
                value = std::min(-1, bytes_.hostile());
            } else if (p.name == "nBitSize") {
                const int n = bytes_.hostile();
                value = n > kPaletteBits && n <= 16 ? kPaletteBits : n;
            } else if (p.name == "topBorderHeight" || p.name == "leftBorderWidth") {
                // In place the margins say where the destination begins.
                const int64_t v = p.type == "TpxSizeL" ? bytes_.hostile<int64_t>() : bytes_.hostile();
                const int64_t wanted = e_.isInPlace() && v >= 0 ? ~v : v;
                if (p.type == "TpxSizeL")
                    value = TpxSizeL(wanted);
                else
                    value = int(wanted);
            } else if (p.type.starts_with("Tpx") && p.name != "hint" && p.type != "TpxRoundMode" &&
                       p.type != "TpxCmpOp") {
                value = bytes_.take<uint64_t>(); // a sample
            } else {
                value = bytes_.hostile();
            }
        }
    }
    void array(const Param& p, Value& value) {
        if (p.name == "dstOrder") {
            for (int& entry : order_) entry = bytes_.hostile();
            value = static_cast<void*>(order_);
        } else if (p.isConst && p.count && p.type != "TpxiLUT_Spec" && !p.name.starts_with("p")) {
            for (uint64_t& entry : constants_) entry = bytes_.take<uint64_t>();
            value = static_cast<void*>(constants_);
        }
    }
    // Steps of 0 and shorter ones stay in the image; one that leads out of it is for a single row.
    void step(const Param& p, Value& value) {
        const bool ofLong = p.type == "TpxSizeL";
        const int64_t old = ofLong ? value.as<TpxSizeL>() : value.as<int>();
        const bool hasRows =
            (isBorder(e_) ? dstHeight_ : height_) > 1 || planesOf(e_, kFirst) > 1 || planesOf(e_, kDst) > 1;
        const int64_t wanted = hasRows  ? old - bytes_.below(int(old) + 1)
                               : ofLong ? bytes_.hostile<int64_t>()
                                        : bytes_.hostile();
        if (ofLong)
            value = TpxSizeL(wanted);
        else
            value = int(wanted);
        stepSpoiled_ = true;
    }

    const Export& e_;
    Bytes& bytes_;
    int variant_, width_, height_, dstWidth_ = 0, dstHeight_ = 0;
    int margins_[4] = {}; // left, right, top, bottom
    bool isTame_ = true, isSame_ = false, stepSpoiled_ = false;
    std::unique_ptr<Image> images_[kSides];
    int order_[4];
    uint64_t constants_[4];
};

// All rows that the step tells are there, or nothing is.
template <class Int>
void allocate(const Export& e, Bytes& bytes) {
    const auto length = [&] { return bytes.once(2) ? bytes.hostile<Int>() : Int(bytes.length()); };
    const Int width = length(), height = length();
    const size_t pixel = sampleBytes(e.types) * size_t(e.toAC4 ? 4 : e.to);
    // Between them memory might be had, which is nobody's fault.
    constexpr double kModest = 16 << 20, kAbsurd = 0x1p50;
    const double wanted = std::ceil(double(width) * double(pixel) / 64) * 64 * double(height);
    const bool isEmpty = width <= 0 || height <= 0;
    if (!isEmpty && wanted > kModest && wanted < kAbsurd) return;
    Int step = 0;
    void* const image = reinterpret_cast<void* (*)(Int, Int, Int*)>(e.function)(width, height, &step);
    require(image ? !isEmpty && wanted <= kModest : isEmpty || wanted >= kAbsurd, e,
            "what can be had is given, and nothing else");
    if (!image) return;
    require(step >= width * Int(pixel) && step % 64 == 0 && uintptr_t(image) % 64 == 0, e, "rows are told");
    std::memset(image, 0xAA, size_t(step) * size_t(height));
    tpxiFree(image);
}

} // namespace

void run(Bytes& bytes) {
    const Export& e = *fuzzedExports()[size_t(bytes.below(int(fuzzedExports().size())))];
    if (!isMalloc(e))
        Pointwise(e, bytes).run();
    else if (e.isLong)
        allocate<TpxSizeL>(e, bytes);
    else
        allocate<int>(e, bytes);
}

} // namespace tpx::fuzz
