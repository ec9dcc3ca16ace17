// SPDX-License-Identifier: Apache-2.0
// Sums, differences and products of two images; thresholds.
#include "gallery.h"

namespace {

// The photograph the other way round, as the second image.
Image8u turned(ConstPixels src) {
    Image8u image(src.size);
    const Pixels dst = image.view();
    for (int y = 0; y < src.size.height; ++y)
        for (int x = 0; x < src.size.width; ++x)
            std::copy_n(src.at(src.size.width - 1 - x, y), kChannels, dst.at(x, y));
    return image;
}

} // namespace

void twoImages(Gallery& gallery, const Image8u& source) {
    gallery.section("Two images: the photograph and itself turned round");
    const ConstPixels a = source.view();
    const Image8u other = turned(a);
    const ConstPixels b = other.view();
    Image8u result(a.size);
    const Pixels dst = result.view();

    using Combine = decltype(&tpxiAdd_8u_C3RSfs);
    const auto combine = [&](const char* name, const char* function, Combine run, int scaleFactor) {
        const double ms = bestTime([&] {
            check(run(a.data, a.step, b.data, b.step, dst.data, dst.step, a.size, scaleFactor), function);
        });
        gallery.show(dst, {name, function, a.size, a.size, 1, ms});
    };
    combine("Sum", "tpxiAdd_8u_C3RSfs", tpxiAdd_8u_C3RSfs, 0);
    combine("Mean: sum / 2", "tpxiAdd_8u_C3RSfs", tpxiAdd_8u_C3RSfs, 1);
    combine("Difference", "tpxiSub_8u_C3RSfs", tpxiSub_8u_C3RSfs, 0);
    combine("Product / 256", "tpxiMul_8u_C3RSfs", tpxiMul_8u_C3RSfs, 8);
}

void thresholds(Gallery& gallery, const Image8u& source) {
    gallery.section("Thresholds, a value for each channel");
    const ConstPixels src = source.view();
    Image8u result(src.size);
    const Pixels dst = result.view();
    const auto threshold = [&](const char* name, const char* function, auto run) {
        const double ms = bestTime([&] { check(run(), function); });
        gallery.show(dst, {name, function, src.size, src.size, 1, ms});
    };

    const Tpx8u low[kChannels] = {90, 60, 40}, high[kChannels] = {170, 120, 80};
    const Tpx8u black[kChannels] = {0, 0, 0}, white[kChannels] = {255, 255, 255};
    threshold("No brighter than", "tpxiThreshold_GT_8u_C3R",
              [&] { return tpxiThreshold_GT_8u_C3R(src.data, src.step, dst.data, dst.step, src.size, high); });
    threshold("No darker than", "tpxiThreshold_LT_8u_C3R",
              [&] { return tpxiThreshold_LT_8u_C3R(src.data, src.step, dst.data, dst.step, src.size, low); });
    threshold("Bright samples to white", "tpxiThreshold_GTVal_8u_C3R", [&] {
        return tpxiThreshold_GTVal_8u_C3R(src.data, src.step, dst.data, dst.step, src.size, high, white);
    });
    threshold("Dark to black, bright to white", "tpxiThreshold_LTValGTVal_8u_C3R", [&] {
        return tpxiThreshold_LTValGTVal_8u_C3R(src.data, src.step, dst.data, dst.step, src.size, low, black,
                                               high, white);
    });
}
