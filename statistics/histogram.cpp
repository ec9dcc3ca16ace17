// SPDX-License-Identifier: Apache-2.0
// tpxiHistogram: samples counted between levels.
//
// 8-bit samples, and 16-bit samples of images that are not small, are counted in a table with an entry for each
// value. Other samples go as floats, in blocks of one channel, to a search among the levels.
#include "frame/entry/checks.h"
#include "frame/entry/entry.h"
#include "statistics/histogram_counting.h"

namespace tpx {
namespace {

// An image as it is counted: its rows joined where they can be, and its pixels.
template <class T, int C>
struct Counted {
    ImageView<const T> src;
    Extent samples, pixels;

    Counted(ImageView<const T> image, Extent extent)
        : src(image), samples(joinRows(extent, image)), pixels{samples.width / C, samples.height} {}
    uint64_t pixelCount() const { return uint64_t(pixels.width) * uint64_t(pixels.height); }
};

// ---- Images of bytes -------------------------------------------------------------------------------------

template <int C>
void countImage(const Counted<Tpx8u, C>& image, const HistogramSpec& spec, Counter* const* hist, Tpx8u*) {
    ByteTables<C> tables;
    walkRows(
        image.samples, [&](ptrdiff_t len, const Tpx8u* row) { tables.run(row, len); }, image.src);
    for (int c = 0; c < C; c++)
        sumBins<Tpx8u>(tables.merge(c), levelsOf<Tpx32s>(spec, c), spec.nLevels[c], hist[c]);
}

// ---- Images of floats ------------------------------------------------------------------------------------

// part(src, pixels) for parts that stay in the cache while the channels are read one after another.
template <int C, class Part>
void forParts(const Counted<Tpx32f, C>& image, Part part) {
    constexpr ptrdiff_t kPixels = 524288 / (ptrdiff_t(sizeof(Tpx32f)) * C);
    const auto [width, height] = image.pixels;
    const ptrdiff_t rows = width < kPixels ? kPixels / width : 1;
    for (ptrdiff_t y = 0; y < height; y += rows)
        for (ptrdiff_t x = 0; x < width; x += kPixels)
            part(image.src.from(x * C, y),
                 Extent{width - x < kPixels ? width - x : kPixels, height - y < rows ? height - y : rows});
}

template <int C>
void countImage(const Counted<Tpx32f, C>& image, const HistogramSpec& spec, Counter* const* hist, Tpx8u*) {
    Ranking rankings[C];
    for (int c = 0; c < C; c++) {
        clearBins(hist[c], ptrdiff_t(spec.nLevels[c]) - 1);
        rankings[c] = rankingOf(levelsOf<Tpx32f>(spec, c), spec.nLevels[c], image.pixelCount());
    }
    forParts(image, [&](ImageView<const Tpx32f> src, Extent pixels) {
        for (int c = 0; c < C; c++)
            withRanks(rankings[c], levelsOf<Tpx32f>(spec, c), spec.nLevels[c], [&](const auto& rank) {
                countRanks(channelOf<C>(src, pixels, c), rank, spec.nLevels[c], hist[c]);
            });
    });
}

// ---- Images of 16-bit samples ----------------------------------------------------------------------------

// A channel of a small image of 16-bit samples; false if it is better counted in a table.
template <class T, int C>
bool countSmall(const Counted<T, C>& image, int c, const HistogramSpec& spec, Counter* hist, Tpx8u* buffer) {
    constexpr uint64_t kSmall = 65536;
    const uint64_t pixels = image.pixelCount();
    if (pixels >= kSmall) return false;
    const auto levels = levelsOf<Tpx32s>(spec, c);
    const ptrdiff_t last = ptrdiff_t(spec.nLevels[c]) - 1;
    const Tpx32s lowest = peek(levels), highest = peek(levels + last);
    if (spec.uniform && (Tpx64s(highest) - lowest) % last == 0) {
        clearBins(hist, last);
        const DividedRanks rank = {Tpx32f(lowest), Tpx32f(highest), spec.step[c], Tpx32s(last)};
        countRanks(channelOf<C>(image.src, image.pixels, c), rank, last + 1, hist);
        return true;
    }
    // The table costs as much as to rank so many pixels in a fast way, or an eighth of them by a search.
    const auto worth = uint64_t(entryOf<T>(highest) - entryOf<T>(lowest)) / 2;
    if (pixels > worth || last >= ptrdiff_t(kSmall)) return false;
    const auto real = reinterpret_cast<Tpx32f*>(buffer);
    for (ptrdiff_t k = 0; k <= last; k++) poke(real + k, Tpx32f(entryOf<T>(peek(levels + k)) + kMin<T>));
    const Ranking ranking = rankingOf(real, last + 1, pixels);
    if (ranking == Ranking::Halved && pixels > worth / 8) return false;
    clearBins(hist, last);
    withRanks(ranking, real, last + 1, [&](const auto& rank) {
        countRanks(channelOf<C>(image.src, image.pixels, c), rank, last + 1, hist);
    });
    return true;
}

template <class T, int C>
void countImage(const Counted<T, C>& image, const HistogramSpec& spec, Counter* const* hist, Tpx8u* buffer) {
    BlockLayout block(buffer);
    Counter* tables[C];
    layOutTables(block, spec.dataType, C, tables);
    bool done[C], allDone = true;
    for (int c = 0; c < C; c++) {
        done[c] = countSmall(image, c, spec, hist[c], buffer);
        allDone &= done[c];
    }
    if (allDone) return;
    // What lies beyond the levels is counted into entries that nobody clears or reads.
    for (int c = 0; c < C; c++) {
        const auto levels = levelsOf<Tpx32s>(spec, c);
        const Tpx32s begin = entryOf<T>(peek(levels)), end = entryOf<T>(peek(levels + spec.nLevels[c] - 1));
        __builtin_memset(tables[c] + begin, 0, size_t(end - begin) * sizeof(Counter));
    }
    walkRows(
        image.samples, [&](ptrdiff_t len, const T* row) { countSamples<C>(row, len, tables); }, image.src);
    for (int c = 0; c < C; c++)
        if (!done[c]) sumBins<T>(tables[c], levelsOf<Tpx32s>(spec, c), spec.nLevels[c], hist[c]);
}

// ---- Checks ----------------------------------------------------------------------------------------------

template <Layout L, class T>
TpxStatus histogram(ImageView<const T> src, TpxiSizeL roi, Tpx32u* const* pHist, const TpxHistogramSpec* pSpec,
                    Tpx8u* buffer) {
    constexpr int C = channelsOf(L);
    if (anyNull(src.data) || anyNull(pHist) || anyNull(pSpec) || (!std::is_same_v<T, Tpx32f> && !buffer))
        return tpxErrNullPointer;
    Counter* hist[C];
    for (int c = 0; c < C; c++) {
        hist[c] = pHist[c];
        if (!hist[c]) return tpxErrNullPointer;
    }
    if (isEmpty(roi)) return tpxErrSize;
    const Extent samples = samplesOf(roi, C);
    if (src.step < samples.width * ptrdiff_t(sizeof(T))) return tpxErrStep;
    const HistogramSpec spec = peek(reinterpret_cast<const HistogramSpec*>(pSpec));
    if (spec.identity != kHistogramIdentity || spec.dataType != kDataType<T> || spec.nChannels != C)
        return tpxErrBadArgument;
    countImage(Counted<T, C>(src, samples), spec, hist, buffer);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_HISTOGRAM(T, L)                                                                                 \
    TPX_ENTRY(tpxiHistogram_##T##_##L##R)                                                                   \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Given<Layout::L, Tpx32u*> pHist,                    \
     const TpxHistogramSpec* pSpec, Tpx8u* pBuffer) {                                                       \
        return histogram<Layout::L, Tpx##T>({pSrc, srcStep}, wide(roiSize), arrayOf<Tpx32u*>(pHist), pSpec, \
                                            pBuffer);                                                       \
    }
#define TPX_HISTOGRAM_LAYOUTS(T) \
    TPX_HISTOGRAM(T, C1)         \
    TPX_HISTOGRAM(T, C3)         \
    TPX_HISTOGRAM(T, C4)
TPX_HISTOGRAM_LAYOUTS(8u)
TPX_HISTOGRAM_LAYOUTS(16u)
TPX_HISTOGRAM_LAYOUTS(16s)
TPX_HISTOGRAM_LAYOUTS(32f)
#undef TPX_HISTOGRAM
#undef TPX_HISTOGRAM_LAYOUTS
