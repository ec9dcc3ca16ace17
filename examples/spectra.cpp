// SPDX-License-Identifier: Apache-2.0
// Fourier transforms: the photograph's spectrum, and what is left of the photograph without a part of it.
#include <complex>
#include <vector>

#include "gallery.h"

namespace {

// A plan for images of one size, and its work buffer.
class Fourier {
 public:
    explicit Fourier(TpxiSize size) {
        int specSize = 0, initSize = 0, workSize = 0;
        check(tpxiDFTGetSize_R_32f(size, tpxFftDivInverse, tpxHintFast, &specSize, &initSize, &workSize),
              "tpxiDFTGetSize_R_32f");
        spec_.resize(static_cast<size_t>(specSize));
        work_.resize(static_cast<size_t>(workSize));
        std::vector<Tpx8u> init(static_cast<size_t>(initSize));
        check(tpxiDFTInit_R_32f(size, tpxFftDivInverse, tpxHintFast,
                                reinterpret_cast<TpxiDFT2DSpec_R*>(spec_.data()), init.data()),
              "tpxiDFTInit_R_32f");
    }

    void forward(View<const Tpx32f> src, View<Tpx32f> dst) {
        check(tpxiDFTFwd_RToPack_32f_C3R(src.data, src.step, dst.data, dst.step, spec(), work_.data()),
              "tpxiDFTFwd_RToPack_32f_C3R");
    }
    void inverse(View<const Tpx32f> src, View<Tpx32f> dst) {
        check(tpxiDFTInv_PackToR_32f_C3R(src.data, src.step, dst.data, dst.step, spec(), work_.data()),
              "tpxiDFTInv_PackToR_32f_C3R");
    }

 private:
    const TpxiDFT2DSpec_R* spec() const { return reinterpret_cast<const TpxiDFT2DSpec_R*>(spec_.data()); }

    std::vector<Tpx8u> spec_, work_;
};

// Calls each(x, y, fx, fy) for every place of a packed spectrum, with the magnitudes of the frequencies that
// lie there, in periods an image. Columns 0 and, if the width is even, width - 1 are packed along y.
template <class Each>
void forFrequencies(TpxiSize size, Each each) {
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const bool alongY = x == 0 || (size.width % 2 == 0 && x == size.width - 1);
            each(x, y, (x + 1) / 2, alongY ? (y + 1) / 2 : std::min(y, size.height - y));
        }
}

// The spectrum with every frequency multiplied by response(distance from frequency 0, in periods a pixel).
template <class Response>
Image32f filtered(View<const Tpx32f> spectrum, Response response) {
    Image32f result(spectrum.size);
    const View<Tpx32f> dst = result.view();
    forFrequencies(spectrum.size, [&](int x, int y, int fx, int fy) {
        const float factor =
            response(std::hypot(static_cast<float>(fx) / static_cast<float>(spectrum.size.width),
                                static_cast<float>(fy) / static_cast<float>(spectrum.size.height)));
        for (int c = 0; c < kChannels; ++c) dst.at(x, y)[c] = spectrum.at(x, y)[c] * factor;
    });
    return result;
}

// The number of one channel at a frequency: those of the right half are the conjugates of the left.
std::complex<float> numberAt(View<const Tpx32f> spectrum, int channel, int fx, int fy) {
    const auto [width, height] = spectrum.size;
    if (2 * fx > width) return numberAt(spectrum, channel, width - fx, (height - fy) % height);
    if (fx != 0 && 2 * fx != width)
        return {spectrum.at(2 * fx - 1, fy)[channel], spectrum.at(2 * fx, fy)[channel]};
    const int column = fx == 0 ? 0 : width - 1, row = std::min(fy, height - fy);
    if (row == 0) return spectrum.at(column, 0)[channel];
    return {spectrum.at(column, 2 * row - 1)[channel],
            2 * row < height ? spectrum.at(column, 2 * row)[channel] : 0};
}

// Logarithms of the magnitudes, frequency 0 in the middle; black is 1/10000 of the largest.
Image8u picture(View<const Tpx32f> spectrum) {
    Image8u image(spectrum.size);
    const Pixels dst = image.view();
    const auto [width, height] = spectrum.size;
    const float most = std::max(std::abs(numberAt(spectrum, 0, 0, 0)), 1e-30f);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < kChannels; ++c) {
                const int fx = (x + (width + 1) / 2) % width, fy = (y + (height + 1) / 2) % height;
                const float part = std::abs(numberAt(spectrum, c, fx, fy)) / most;
                dst.at(x, y)[c] =
                    static_cast<Tpx8u>(std::clamp(255 + 51 * std::log10(std::max(part, 1e-9f)), 0.0f, 255.0f));
            }
    return image;
}

} // namespace

void spectra(Gallery& gallery, const Image8u& source) {
    gallery.section("Frequencies: what a Fourier transform makes of the photograph, and back");
    const TpxiSize size = source.size();
    const ConstPixels src = source.view();
    Image32f samples(size), spectrum(size);
    const View<Tpx32f> real = samples.view(), frequencies = spectrum.view();
    check(tpxiConvert_8u32f_C3R(src.data, src.step, real.data, real.step, size), "tpxiConvert_8u32f_C3R");
    Fourier fourier(size);
    const double there = bestTime([&] { fourier.forward(real, frequencies); });
    gallery.show(picture(frequencies).view(),
                 {"Logarithm of the spectrum", "tpxiDFTFwd_RToPack_32f_C3R", size, size, 1, there});

    const auto show = [&](const char* name, Tpx32f grey, auto response) {
        const Image32f changed = filtered(frequencies, response);
        const double back = bestTime([&] { fourier.inverse(changed.view(), real); });
        for (int y = 0; y < size.height; ++y)
            for (Tpx32f* p = real.at(0, y); p != real.at(size.width, y); ++p) *p += grey;
        Image8u result(size);
        const Pixels dst = result.view();
        check(tpxiConvert_32f8u_C3R(real.data, real.step, dst.data, dst.step, size, tpxRoundNearestEven),
              "tpxiConvert_32f8u_C3R");
        gallery.show(dst, {name, "tpxiDFTInv_PackToR_32f_C3R", size, size, 1, back});
    };
    const auto gaussian = [](float frequency) {
        constexpr float kWidth = 0.03f; // periods a pixel
        return std::exp(-frequency * frequency / (2 * kWidth * kWidth));
    };
    show("Low frequencies", 0, gaussian);
    show("High frequencies, on grey", 128, [=](float frequency) { return 1 - gaussian(frequency); });
}
