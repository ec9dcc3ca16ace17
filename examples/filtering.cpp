// SPDX-License-Identifier: Apache-2.0
// Neighbourhoods: smoothing, sharpening, edges, and specks removed.
#include <random>
#include <vector>

#include "gallery.h"

namespace {

// The work buffer of a filter, whose size query is called with the arguments given and where to put the bytes.
template <class Query, class... Args>
std::vector<Tpx8u> bufferFor(const char* function, Query query, Args... args) {
    int bytes = 0;
    check(query(args..., &bytes), function);
    return std::vector<Tpx8u>(static_cast<size_t>(bytes) + 1);
}

// A gradient of 8-bit samples in all three channels: no change is mid-grey, `scale` that of the picture.
Image8u shown(const std::vector<Tpx16s>& gradient, TpxiSize size, int scale) {
    Image8u image(size);
    const Pixels dst = image.view();
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            std::fill_n(dst.at(x, y), kChannels,
                        static_cast<Tpx8u>(
                            std::clamp(128 + gradient[static_cast<size_t>(y) * static_cast<size_t>(size.width) +
                                                      static_cast<size_t>(x)] /
                                                 scale,
                                       0, 255)));
    return image;
}

// One pixel in twenty black or white.
void sprinkle(Pixels picture) {
    std::mt19937 random(7);
    for (int y = 0; y < picture.size.height; ++y)
        for (int x = 0; x < picture.size.width; ++x) {
            const auto draw = random() % 40;
            if (draw < 2) std::fill_n(picture.at(x, y), kChannels, static_cast<Tpx8u>(draw * 255));
        }
}

} // namespace

void filters(Gallery& gallery, const Image8u& source) {
    gallery.section("Neighbourhoods");
    const ConstPixels src = source.view();
    const TpxiSize size = src.size;
    Image8u result(size);
    const Pixels dst = result.view();

    const TpxiSize box = {9, 9};
    auto buffer = bufferFor("tpxiFilterBoxBorderGetBufferSize", tpxiFilterBoxBorderGetBufferSize, size, box,
                            tpxDataType8u, kChannels);
    const double smooth = bestTime([&] {
        check(tpxiFilterBoxBorder_8u_C3R(src.data, src.step, dst.data, dst.step, size, box, tpxBorderReplicate,
                                         nullptr, buffer.data()),
              "tpxiFilterBoxBorder_8u_C3R");
    });
    gallery.show(dst, {"Smoothed, mean of 9 x 9", "tpxiFilterBoxBorder_8u_C3R", size, size, 1, smooth});

    buffer = bufferFor("tpxiFilterSharpenBorderGetBufferSize", tpxiFilterSharpenBorderGetBufferSize, size, 33,
                       tpxDataType8u, tpxDataType8u, kChannels);
    const double sharpen = bestTime([&] {
        check(tpxiFilterSharpenBorder_8u_C3R(src.data, src.step, dst.data, dst.step, size, 33,
                                             tpxBorderReplicate, 0, buffer.data()),
              "tpxiFilterSharpenBorder_8u_C3R");
    });
    gallery.show(dst, {"Sharpened", "tpxiFilterSharpenBorder_8u_C3R", size, size, 1, sharpen});

    // Edges of the green plane.
    std::vector<Tpx8u> green(static_cast<size_t>(size.width) * static_cast<size_t>(size.height));
    check(tpxiCopy_8u_C3C1R(src.data + 1, src.step, green.data(), size.width, size), "tpxiCopy_8u_C3C1R");
    std::vector<Tpx16s> gradient(green.size());
    buffer = bufferFor("tpxiFilterSobelVertBorderGetBufferSize", tpxiFilterSobelVertBorderGetBufferSize, size,
                       33, tpxDataType8u, tpxDataType16s, 1);
    const auto edges = [&](const char* name, const char* function, auto sobel) {
        const double ms = bestTime([&] {
            check(sobel(green.data(), size.width, gradient.data(), size.width * 2, size, 33, tpxBorderReplicate,
                        Tpx8u(0), buffer.data()),
                  function);
        });
        gallery.show(shown(gradient, size, 2).view(), {name, function, size, size, 1, ms});
    };
    edges("Upright edges", "tpxiFilterSobelVertBorder_8u16s_C1R", tpxiFilterSobelVertBorder_8u16s_C1R);
    edges("Level edges", "tpxiFilterSobelHorizBorder_8u16s_C1R", tpxiFilterSobelHorizBorder_8u16s_C1R);

    Image8u specks(size);
    const Pixels specked = specks.view();
    check(tpxiCopy_8u_C3R(src.data, src.step, specked.data, specked.step, size), "tpxiCopy_8u_C3R");
    sprinkle(specked);
    gallery.sheet().add(specked, {"Salt and pepper", "", text(size), ""});
    const TpxiSize window = {3, 3};
    buffer = bufferFor("tpxiFilterMedianBorderGetBufferSize", tpxiFilterMedianBorderGetBufferSize, size, window,
                       tpxDataType8u, kChannels);
    const double median = bestTime([&] {
        check(tpxiFilterMedianBorder_8u_C3R(specked.data, specked.step, dst.data, dst.step, size, window,
                                            tpxBorderReplicate, 0, buffer.data()),
              "tpxiFilterMedianBorder_8u_C3R");
    });
    gallery.show(dst, {"Removed by a median of 3 x 3", "tpxiFilterMedianBorder_8u_C3R", size, size, 1, median});
}
