// SPDX-License-Identifier: Apache-2.0
// Histograms of noise and of images of one value, which every sample counts in the same place.
#include "../families.h"
#include "../frame/pointwise.h"
#include "../frame/reading.h"
#include "models/models.h"

#include <cmath>

namespace bench {
namespace {

template <typename T>
using Count = TpxStatus (*)(const T*, int, TpxiSize, Tpx32u* const*, const TpxHistogramSpec*, Tpx8u*);

struct What {
    const char* function;
    TpxDataType type;
    int channels;
    double range; // of samples and levels
    int levels = 257;
    bool even = true;
    bool flat = false;
    Sizes sizes = Sizes::middle;
};

// What a histogram needs, and its counters.
struct Prepared {
    std::vector<float> levels;
    std::vector<Tpx8u> spec, buffer;
    std::vector<std::vector<Tpx32u>> bins;
    std::vector<Tpx32u*> hist;

    Prepared(const What& what, TpxiSize size) : levels(static_cast<size_t>(what.levels)) {
        const double distance = what.range / (what.levels - 1);
        for (int k = 0; k < what.levels; ++k) {
            const double level = k * distance * (what.even ? 1 : 0.5 + 0.5 * k / (what.levels - 1));
            levels[static_cast<size_t>(k)] = static_cast<float>(level);
        }
        const std::vector<int> counts(4, what.levels);
        const std::vector<const float*> channels(4, levels.data());
        int specSize = 0, bufferSize = 0;
        check(tpxiHistogramGetBufferSize(what.type, size, counts.data(), what.channels, 0, &specSize,
                                         &bufferSize));
        spec.resize(static_cast<size_t>(specSize));
        buffer.resize(static_cast<size_t>(bufferSize));
        check(tpxiHistogramInit(what.type, channels.data(), counts.data(), what.channels, specAt()));
        bins.assign(static_cast<size_t>(what.channels), std::vector<Tpx32u>(std::max(what.levels, 257)));
        for (auto& channel : bins) hist.push_back(channel.data());
    }
    TpxHistogramSpec* specAt() { return reinterpret_cast<TpxHistogramSpec*>(spec.data()); }
};

template <typename T>
void addHistogram(const What& what, Count<T> ours) {
    for (const TpxiSize size : sizes(what.sizes, what.channels * sizeof(T))) {
        const double samples = static_cast<double>(size.width) * size.height * what.channels;
        const std::string name = std::string(what.function) + (what.even ? "" : " uneven") +
                                 (what.flat ? " one value" : "") + " " + std::to_string(what.levels) +
                                 " levels";
        addJob({"Histograms", name, text(size), samples, samples * sizeof(T)}, [=] {
            const double value = std::floor(what.range / 3);
            const auto src = std::make_shared<Image<T>>(size, what.channels, what.flat ? value : 0,
                                                        what.flat ? value : what.range - 1);
            const auto mine = std::make_shared<Prepared>(what, size),
                       plain = std::make_shared<Prepared>(what, size);
            const auto run = [=] {
                check(ours(src->data(), src->step(), size, mine->hist.data(), mine->specAt(),
                           mine->buffer.data()));
            };
            // 8 bits: the levels are all values.
            const auto runScalar = [=] {
                for (auto& channel : plain->bins) std::fill(channel.begin(), channel.end(), 0);
                for (int y = 0; y < size.height; ++y)
                    if constexpr (sizeof(T) == 1)
                        tpx::model::countBytes(src->row(y), plain->hist.size(), src->rowSamples(),
                                               plain->hist.data());
                    else
                        tpx::model::countBetween(src->row(y), plain->hist.size(), src->rowSamples(),
                                                 plain->levels, plain->hist.data());
            };
            if (src->bytes() < beyondCacheBytes() / 2) {
                run();
                runScalar();
                if (mine->bins != plain->bins) throw std::runtime_error("the scalar form differs");
            }
            std::vector<Contender> list = {
                {kOurs, run}, {kRead, [=] { readImage(*src); }}, {kScalar, runScalar}};
            const int counted = what.levels - 1, step = counted * static_cast<int>(sizeof(Tpx32u));
            joinOpencv(list, name, {*src, Operand(std::vector<double>{what.range}, 1)},
                       {Operand(mine->hist[0], step, {counted, 1}, 1)});
            return list;
        });
    }
}

} // namespace

#define HISTOGRAM(T, L, count, hist, ...)                                                                     \
    addHistogram<Tpx##T>(                                                                                     \
        {.function = "tpxiHistogram_" #T "_" #L "R", .type = tpxDataType##T, .channels = count, __VA_ARGS__}, \
        [](const Tpx##T* src, int step, TpxiSize size, Tpx32u* const* h, const TpxHistogramSpec* spec,        \
           Tpx8u* buffer) { return tpxiHistogram_##T##_##L##R(src, step, size, hist, spec, buffer); })

void addHistograms() {
    HISTOGRAM(8u, C1, 1, *h, .range = 256, .sizes = Sizes::all);
    HISTOGRAM(8u, C1, 1, *h, .range = 256, .flat = true);
    HISTOGRAM(8u, C3, 3, h, .range = 256);
    HISTOGRAM(8u, C4, 4, h, .range = 256);
    HISTOGRAM(16u, C1, 1, *h, .range = 65536, .sizes = Sizes::withinCache);
    HISTOGRAM(16u, C1, 1, *h, .range = 65536, .flat = true);
    HISTOGRAM(16u, C3, 3, h, .range = 65536);
    HISTOGRAM(32f, C1, 1, *h, .range = 1000, .levels = 9, .sizes = Sizes::withinCache);
    HISTOGRAM(32f, C1, 1, *h, .range = 1000, .sizes = Sizes::withinCache);
    HISTOGRAM(32f, C1, 1, *h, .range = 1000, .even = false);
    HISTOGRAM(32f, C3, 3, h, .range = 1000);
}

} // namespace bench
