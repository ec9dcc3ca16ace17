// SPDX-License-Identifier: Apache-2.0
// Histograms, tables made from them, and figures of images.
#include <array>
#include <numeric>

#include "canvas.h"
#include "gallery.h"

namespace {

constexpr int kValues = 256;
constexpr int kLevels = kValues + 1; // a bin for each value

using Counts = std::array<std::array<Tpx32u, kValues>, kChannels>;

// A spec with a bin for each value of 8 bits, and the work buffer of one thread.
class Histogram {
 public:
    explicit Histogram(TpxiSize size) {
        const int levels[kChannels] = {kLevels, kLevels, kLevels};
        const Tpx32f lower[kChannels] = {0, 0, 0}, upper[kChannels] = {kValues, kValues, kValues};
        int specSize = 0, bufferSize = 0;
        check(tpxiHistogramGetBufferSize(tpxDataType8u, size, levels, kChannels, 1, &specSize, &bufferSize),
              "tpxiHistogramGetBufferSize");
        spec_.resize(static_cast<size_t>(specSize));
        buffer_.resize(static_cast<size_t>(bufferSize));
        check(tpxiHistogramUniformInit(tpxDataType8u, lower, upper, levels, kChannels, spec()),
              "tpxiHistogramUniformInit");
    }

    void count(ConstPixels src, Counts& counts) {
        Tpx32u* const bins[kChannels] = {counts[0].data(), counts[1].data(), counts[2].data()};
        check(tpxiHistogram_8u_C3R(src.data, src.step, src.size, bins, spec(), buffer_.data()),
              "tpxiHistogram_8u_C3R");
    }

 private:
    TpxHistogramSpec* spec() { return reinterpret_cast<TpxHistogramSpec*>(spec_.data()); }

    std::vector<Tpx8u> spec_, buffer_;
};

// A column for each value; a channel adds its own colour up to its count.
Image8u plot(const Counts& counts) {
    constexpr int kHeight = 200;
    Image8u image({kValues, kHeight});
    const Pixels dst = image.view();
    Tpx32u most = 1;
    for (const auto& channel : counts)
        most = std::max(most, *std::max_element(channel.begin() + 1, channel.end() - 1)); // but for the ends
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kValues; ++x)
            for (size_t c = 0; c < kChannels; ++c) {
                const bool filled = static_cast<std::uint64_t>(counts[c][x]) * kHeight >=
                                    static_cast<std::uint64_t>(kHeight - y) * most;
                dst.at(x, y)[c] = filled ? 225 : 40;
            }
    return image;
}

// A lookup table of 8-bit values in the library's form: a level for each value, and one past the last.
class Table {
 public:
    Table(TpxiSize size, const std::array<std::array<Tpx32s, kLevels>, kChannels>& values) {
        std::array<Tpx32s, kLevels> levels;
        std::iota(levels.begin(), levels.end(), 0);
        const int counts[kChannels] = {kLevels, kLevels, kLevels};
        const Tpx32s* const allLevels[kChannels] = {levels.data(), levels.data(), levels.data()};
        const Tpx32s* const allValues[kChannels] = {values[0].data(), values[1].data(), values[2].data()};
        int specSize = 0;
        check(tpxiLUT_GetSize(tpxInterpolationNearest, tpxDataType8u, tpxChannelC3, size, counts, &specSize),
              "tpxiLUT_GetSize");
        spec_.resize(static_cast<size_t>(specSize));
        check(
            tpxiLUT_Init_8u(tpxInterpolationNearest, tpxChannelC3, size, allValues, allLevels, counts, spec()),
            "tpxiLUT_Init_8u");
    }
    TpxiLUT_Spec* spec() { return reinterpret_cast<TpxiLUT_Spec*>(spec_.data()); }

 private:
    std::vector<Tpx8u> spec_;
};

// Histogram equalisation: a value becomes the share of samples that are not above it.
Table equalising(TpxiSize size, const Counts& counts) {
    std::array<std::array<Tpx32s, kLevels>, kChannels> values{};
    const double pixels = static_cast<double>(size.width) * size.height;
    for (size_t c = 0; c < kChannels; ++c) {
        double below = 0;
        for (size_t x = 0; x < kValues; ++x)
            values[c][x] = static_cast<Tpx32s>(std::lround(255 * (below += counts[c][x]) / pixels));
    }
    return {size, values};
}

// From black over violet and orange to white, three bytes an entry.
std::array<Tpx8u, kChannels * kValues> heat() {
    std::array<Tpx8u, kChannels * kValues> palette;
    for (int x = 0; x < kValues; ++x) {
        const double t = x / 255.0;
        const double colour[kChannels] = {std::sqrt(t), t * t * t, std::max(0.0, std::sin(6.2832 * t))};
        const double light = std::max(0.0, (t - 0.75) * 4); // the last quarter goes to white
        for (int c = 0; c < kChannels; ++c) {
            const double value = colour[c] + (1 - colour[c]) * light;
            palette[static_cast<size_t>(kChannels * x + c)] = static_cast<Tpx8u>(std::lround(255 * value));
        }
    }
    return palette;
}

std::string line(const char* format, const double (&values)[kChannels]) {
    char buffer[96];
    std::snprintf(buffer, sizeof buffer, format, values[0], values[1], values[2]);
    return buffer;
}

// Figures of the photograph and of what became of it.
std::vector<std::string> figures(ConstPixels a, ConstPixels b) {
    std::vector<std::string> lines = {"                 red    green     blue"};
    double values[kChannels];
    check(tpxiMean_8u_C3R(a.data, a.step, a.size, values), "tpxiMean_8u_C3R");
    lines.push_back(line("mean        %8.2f %8.2f %8.2f", values));
    Tpx8u least[kChannels], most[kChannels];
    check(tpxiMinMax_8u_C3R(a.data, a.step, a.size, least, most), "tpxiMinMax_8u_C3R");
    lines.push_back(
        line("least       %8.0f %8.0f %8.0f", {double(least[0]), double(least[1]), double(least[2])}));
    lines.push_back(line("most        %8.0f %8.0f %8.0f", {double(most[0]), double(most[1]), double(most[2])}));
    int x[kChannels], y[kChannels];
    check(tpxiMaxIndx_8u_C3R(a.data, a.step, a.size, most, x, y), "tpxiMaxIndx_8u_C3R");
    lines.push_back(line("  first at x%8.0f %8.0f %8.0f", {double(x[0]), double(x[1]), double(x[2])}));
    lines.push_back(line("           y%8.0f %8.0f %8.0f", {double(y[0]), double(y[1]), double(y[2])}));
    check(tpxiNorm_L2_8u_C3R(a.data, a.step, a.size, values), "tpxiNorm_L2_8u_C3R");
    lines.push_back(line("L2 norm     %8.0f %8.0f %8.0f", values));
    lines.push_back("equalised, and its difference:");
    check(tpxiMean_8u_C3R(b.data, b.step, b.size, values), "tpxiMean_8u_C3R");
    lines.push_back(line("mean        %8.2f %8.2f %8.2f", values));
    check(tpxiNormDiff_Inf_8u_C3R(a.data, a.step, b.data, b.step, a.size, values), "tpxiNormDiff_Inf_8u_C3R");
    lines.push_back(line("largest     %8.0f %8.0f %8.0f", values));
    // Relative to a channel of zeros it is infinite, or not a number if the other one is zeros too.
    check(tpxiNormRel_L2_8u_C3R(b.data, b.step, a.data, a.step, a.size, values), "tpxiNormRel_L2_8u_C3R",
          tpxWarnDivByZero);
    lines.push_back(line("relative L2 %8.3f %8.3f %8.3f", values));
    return lines;
}

Image8u printed(const std::vector<std::string>& lines) {
    constexpr int kMargin = 10, kWidth = 300;
    constexpr TextStyle kStyle = {"DejaVu Sans Mono", 12, {226, 230, 236}};
    constexpr Tpx8u kGround[kChannels] = {40, 40, 40};
    std::vector<TextLine> text;
    for (const std::string& one : lines) text.push_back({one, kStyle});
    const int width = kWidth - 2 * kMargin;
    Canvas canvas({kWidth, Canvas::height(text, width) + 2 * kMargin}, kGround);
    canvas.write(text, {kMargin, kMargin}, width);
    return canvas.image();
}

} // namespace

void measuring(Gallery& gallery, const Image8u& source) {
    gallery.section("Measuring: histograms, tables made from them, and figures");
    const ConstPixels src = source.view();
    Image8u result(src.size);
    const Pixels dst = result.view();

    Histogram histogram(src.size);
    Counts counts{};
    double ms = bestTime([&] { histogram.count(src, counts); });
    const Image8u plotted = plot(counts);
    gallery.show(plotted.view(), {"Histogram", "tpxiHistogram_8u_C3R", src.size, src.size, 1, ms});

    Table table = equalising(src.size, counts);
    ms = bestTime([&] {
        check(tpxiLUT_8u_C3R(src.data, src.step, dst.data, dst.step, src.size, table.spec()), "tpxiLUT_8u_C3R");
    });
    gallery.show(dst, {"Equalised", "tpxiLUT_8u_C3R", src.size, src.size, 1, ms});

    const auto lines = figures(src, dst);
    const Image8u figured = printed(lines);

    ms = bestTime([&] { histogram.count(dst, counts); });
    const Image8u equalised = plot(counts);
    gallery.show(equalised.view(), {"Histogram, equalised", "tpxiHistogram_8u_C3R", src.size, src.size, 1, ms});

    ms = bestTime([&] {
        double norms[kChannels];
        check(tpxiNorm_L2_8u_C3R(src.data, src.step, src.size, norms), "tpxiNorm_L2_8u_C3R");
    });
    gallery.show(figured.view(), {"Figures", "tpxiNorm_L2_8u_C3R", src.size, src.size, 1, ms});
    gallery.note(lines);

    // The second channel as an image of one, seen through a palette.
    int step = 0;
    const std::unique_ptr<Tpx8u, void (*)(void*)> grey(tpxiMalloc_8u_C1(src.size.width, src.size.height, &step),
                                                       tpxiFree);
    if (!grey) throw std::bad_alloc();
    check(tpxiCopy_8u_C3C1R(src.data + 1, src.step, grey.get(), step, src.size), "tpxiCopy_8u_C3C1R");
    const auto palette = heat();
    ms = bestTime([&] {
        check(tpxiLUTPalette_8u24u_C1R(grey.get(), step, dst.data, dst.step, src.size, palette.data(), 8),
              "tpxiLUTPalette_8u24u_C1R");
    });
    gallery.show(dst, {"Green through a palette", "tpxiLUTPalette_8u24u_C1R", src.size, src.size, 1, ms});
}
