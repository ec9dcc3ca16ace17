// SPDX-License-Identifier: Apache-2.0
// Moving samples: planes, channels, bit images, borders.
#include "gallery.h"

namespace {

// A plane of one channel, as the library's single-channel forms take it.
class Plane {
 public:
    explicit Plane(TpxiSize size) : size_(size), data_(tpxiMalloc_8u_C1(size.width, size.height, &step_)) {
        if (!data_) throw std::bad_alloc();
    }
    Plane(const Plane&) = delete;
    Plane& operator=(const Plane&) = delete;
    ~Plane() { tpxiFree(data_); }

    Tpx8u* data() const { return data_; }
    int step() const { return step_; }

    // The plane in all three channels, to be looked at.
    Image8u shown() const {
        Image8u image(size_);
        const Pixels dst = image.view();
        check(tpxiDup_8u_C1C3R(data_, step_, dst.data, dst.step, size_), "tpxiDup_8u_C1C3R");
        return image;
    }

 private:
    TpxiSize size_;
    int step_ = 0;
    Tpx8u* data_;
};

} // namespace

void channels(Gallery& gallery, const Image8u& source) {
    const ConstPixels src = source.view();
    const TpxiSize size = src.size;

    gallery.section("Planes, channels, bits");
    const Plane red(size), green(size), blue(size);
    Tpx8u* const planes[kChannels] = {red.data(), green.data(), blue.data()};
    const double split = bestTime(
        [&] { check(tpxiCopy_8u_C3P3R(src.data, src.step, planes, red.step(), size), "tpxiCopy_8u_C3P3R"); });
    gallery.show(red.shown().view(), {"The plane of red", "tpxiCopy_8u_C3P3R", size, size, 1, split});
    gallery.show(blue.shown().view(), {"The plane of blue", "tpxiCopy_8u_C3P3R", size, size, 1, split});

    Image8u swapped(size);
    const Pixels dst = swapped.view();
    const int order[kChannels] = {2, 1, 0};
    const double swap = bestTime([&] {
        check(tpxiSwapChannels_8u_C3R(src.data, src.step, dst.data, dst.step, size, order),
              "tpxiSwapChannels_8u_C3R");
    });
    gallery.show(dst, {"Red and blue exchanged", "tpxiSwapChannels_8u_C3R", size, size, 1, swap});

    // Packed to one bit a pixel, and unpacked again to be looked at.
    const Plane bits({(size.width + 7) / 8, size.height}), unpacked(size);
    constexpr Tpx8u kThreshold = 90, kDark = 20, kBright = 235;
    const double pack = bestTime([&] {
        check(tpxiGrayToBin_8u1u_C1R(green.data(), green.step(), bits.data(), bits.step(), 0, size, kThreshold),
              "tpxiGrayToBin_8u1u_C1R");
        check(tpxiBinToGray_1u8u_C1R(bits.data(), bits.step(), 0, unpacked.data(), unpacked.step(), size, kDark,
                                     kBright),
              "tpxiBinToGray_1u8u_C1R");
    });
    gallery.show(unpacked.shown().view(),
                 {"Green to bits and back", "tpxiBinToGray_1u8u_C1R", size, size, 1, pack});
}

void borders(Gallery& gallery, const Image8u& source) {
    gallery.section("Borders around a detail");
    const TpxiSize box = {300, 200};
    const ConstPixels detail = source.view().centre({box.width * 2 / 3, box.height * 2 / 3});
    const TpxiSize inner = detail.size;
    const TpxiSize outer = {inner.width * 3 / 2, inner.height * 3 / 2};
    const int top = (outer.height - inner.height) / 2, left = (outer.width - inner.width) / 2;
    Image8u result(outer);
    const Pixels dst = result.view();
    const auto border = [&](const char* name, const char* function, auto copy, auto... constant) {
        const double ms = bestTime([&] {
            check(copy(detail.data, detail.step, inner, dst.data, dst.step, outer, top, left, constant...),
                  function);
        });
        gallery.show(dst, {name, function, inner, outer, 1, ms});
    };
    static constexpr Tpx8u kColour[kChannels] = {60, 90, 140};
    border("Constant", "tpxiCopyConstBorder_8u_C3R", tpxiCopyConstBorder_8u_C3R, kColour);
    border("Replicated", "tpxiCopyReplicateBorder_8u_C3R", tpxiCopyReplicateBorder_8u_C3R);
    border("Mirrored", "tpxiCopyMirrorBorder_8u_C3R", tpxiCopyMirrorBorder_8u_C3R);

    // Wrapping is offered for samples of 32 bits: a plane of floats, as in a periodic pattern.
    const auto pixels = [](TpxiSize size) {
        return static_cast<size_t>(size.width) * static_cast<size_t>(size.height);
    };
    std::vector<Tpx32f> plane(pixels(inner)), wrapped(pixels(outer));
    for (int y = 0; y < inner.height; ++y)
        for (int x = 0; x < inner.width; ++x)
            plane[static_cast<size_t>(y) * static_cast<size_t>(inner.width) + static_cast<size_t>(x)] =
                detail.at(x, y)[1];
    const int innerStep = inner.width * int(sizeof(Tpx32f)), outerStep = outer.width * int(sizeof(Tpx32f));
    const double ms = bestTime([&] {
        check(tpxiCopyWrapBorder_32f_C1R(plane.data(), innerStep, inner, wrapped.data(), outerStep, outer, top,
                                         left),
              "tpxiCopyWrapBorder_32f_C1R");
    });
    const Plane gray(outer);
    check(
        tpxiConvert_32f8u_C1R(wrapped.data(), outerStep, gray.data(), gray.step(), outer, tpxRoundNearestEven),
        "tpxiConvert_32f8u_C1R");
    gallery.show(gray.shown().view(),
                 {"Wrapped, one channel", "tpxiCopyWrapBorder_32f_C1R", inner, outer, 1, ms});
}
