// tpxiHistogram: samples counted between levels.
//
// 8-bit samples, and 16-bit samples of images that are not small, are counted in a table with an entry for each
// value, whose sections are the bins. Other samples go as floats, in blocks of one channel, to a search among
// the levels.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/simd/through_real.h"
#include "frame/images/walk.h"
#include "statistics/levels.h"

namespace tpx {
namespace {

// ---- The spec --------------------------------------------------------------------------------------------

constexpr int kIdentity = 0x74736968; // "hist"

// The levels of all channels follow, back to back. Fields of absent channels are 0.
struct Spec {
    TpxDataType dataType;
    int nChannels, uniform, identity;
    int nLevels[4];
    Tpx8u* levels[4]; // integers of 32 bits or floats, at any address
    Tpx32f step[4];
};
static_assert(sizeof(Spec) == 80);

bool isDataType(TpxDataType type) {
    return type == tpxDataType8u || type == tpxDataType16u || type == tpxDataType16s || type == tpxDataType32f;
}
bool isChannelCount(int n) { return n == 1 || n == 3 || n == 4; }

// A level as an integer, limited to the type; NaN gives the smallest.
Tpx32s truncated(Tpx32f x) {
    constexpr Tpx32f kBeyond = 2147483648.0f;
    return x >= kBeyond ? kMax<Tpx32s> : x >= -kBeyond ? Tpx32s(x) : kMin<Tpx32s>;
}
Tpx32s ceiling(Tpx32f x) {
    const Tpx32s level = truncated(x);
    return level + (level != kMax<Tpx32s> && Tpx32f(level) < x);
}

// level(k) is the level to be stored.
template <class L, class Level>
void storeLevels(Tpx8u* storage, ptrdiff_t count, Level level) {
    for (ptrdiff_t k = 0; k < count; k++) {
        const L value = level(k);
        __builtin_memcpy(storage + k * ptrdiff_t(sizeof value), &value, sizeof value);
    }
}

// Checks, and stores the spec. channel(c, storage, &step) does so for the levels of a channel. The identity is
// 0 until all is done.
template <class Channel, class... Arrays>
TpxStatus initSpec(TpxHistogramSpec* pSpec, TpxDataType dataType, int nChannels, bool uniform,
                   const int* nLevels, Channel channel, const Arrays*... arrays) {
    Spec spec = {dataType, nChannels, uniform, 0, {}, {}, {}};
    auto at = reinterpret_cast<Tpx8u*>(pSpec);
    if (pSpec) __builtin_memset(at + offsetof(Spec, identity), 0, sizeof spec.identity);
    if (!isDataType(dataType)) return tpxErrDataType;
    if (anyNull(pSpec, nLevels, arrays...)) return tpxErrNullPointer;
    if (!isChannelCount(nChannels)) return tpxErrChannelCount;
    TpxStatus warning = tpxOk;
    Tpx8u* storage = at + sizeof spec;
    for (int c = 0; c < nChannels; c++) {
        const TpxStatus status = channel(c, storage, spec.step[c]);
        if (status < tpxOk) return status;
        if (status > tpxOk) warning = status;
        spec.nLevels[c] = nLevels[c];
        spec.levels[c] = storage;
        storage += 4 * ptrdiff_t(nLevels[c]);
    }
    spec.identity = kIdentity;
    __builtin_memcpy(at, &spec, sizeof spec);
    return warning;
}

TpxStatus initLevels(TpxDataType dataType, const Tpx32f* const* pLevels, const int* nLevels, int nChannels,
                     TpxHistogramSpec* pSpec) {
    const auto channel = [=](int c, Tpx8u* storage, Tpx32f&) -> TpxStatus {
        const Tpx32f* levels = pLevels[c];
        if (!levels) return tpxErrNullPointer;
        if (nLevels[c] < 2) return tpxErrHistogramLevels;
        for (ptrdiff_t k = 1; k < nLevels[c]; k++)
            if (!(peek(levels + k - 1) < peek(levels + k))) return tpxErrRange;
        if (dataType == tpxDataType32f)
            storeLevels<Tpx32f>(storage, nLevels[c], [=](ptrdiff_t k) { return peek(levels + k); });
        else
            storeLevels<Tpx32s>(storage, nLevels[c], [=](ptrdiff_t k) { return ceiling(peek(levels + k)); });
        return tpxOk;
    };
    return initSpec(pSpec, dataType, nChannels, false, nLevels, channel, pLevels);
}

TpxStatus initUniform(TpxDataType dataType, const Tpx32f* lowerLevel, const Tpx32f* upperLevel,
                      const int* nLevels, int nChannels, TpxHistogramSpec* pSpec) {
    const auto channel = [=](int c, Tpx8u* storage, Tpx32f& step) -> TpxStatus {
        const Tpx32f lower = peek(lowerLevel + c), upper = peek(upperLevel + c);
        const ptrdiff_t last = ptrdiff_t(nLevels[c]) - 1;
        if (last < 1) return tpxErrHistogramLevels;
        if (!(lower < upper)) return tpxErrRange;
        const Tpx32f distance = (upper - lower) / Tpx32f(last);
        const auto level = [=](ptrdiff_t k) { // rises, whatever is rounded; NaN comes of infinite bounds
            const Tpx32f x = k == last ? upper : lower + distance * Tpx32f(k);
            return x >= upper ? upper : x > lower ? x : lower;
        };
        step = distance;
        if (dataType == tpxDataType32f) {
            storeLevels<Tpx32f>(storage, last + 1, level);
            return tpxOk;
        }
        storeLevels<Tpx32s>(storage, last + 1, [=](ptrdiff_t k) { return truncated(level(k)); });
        return distance < 1 ? tpxWarnValueAdjusted : tpxOk;
    };
    return initSpec(pSpec, dataType, nChannels, true, nLevels, channel, lowerLevel, upperLevel);
}

// False if it is not ready.
bool readSpec(Spec& spec, const TpxHistogramSpec* pSpec) {
    __builtin_memcpy(&spec, pSpec, sizeof spec);
    return spec.identity == kIdentity;
}

// They rise, though they may repeat.
template <class L>
const L* levelsOf(const Spec& spec, int channel) {
    return reinterpret_cast<const L*>(spec.levels[channel]);
}

// ---- What is counted -------------------------------------------------------------------------------------

// A counter at any address.
typedef Tpx32u Counter __attribute__((aligned(1), may_alias));

template <class T>
inline constexpr TpxDataType kDataType = std::is_same_v<T, Tpx8u>    ? tpxDataType8u
                                         : std::is_same_v<T, Tpx16u> ? tpxDataType16u
                                         : std::is_same_v<T, Tpx16s> ? tpxDataType16s
                                                                     : tpxDataType32f;

template <class T, int C>
struct Image {
    const T* src;
    ptrdiff_t step, width, height;

    Image(const T* src_, int step_, TpxiSize roi)
        : src(src_), step(step_), width(roi.width), height(roi.height) {
        joinRows(width, height, ptrdiff_t(sizeof(T)) * C, step);
    }
    // strip(image) for parts that stay in the cache while the channels are read one after another.
    template <class Strip>
    void forStrips(Strip strip) const {
        constexpr ptrdiff_t kPixels = 524288 / (ptrdiff_t(sizeof(T)) * C);
        const ptrdiff_t rows = width < kPixels ? kPixels / width : 1;
        for (ptrdiff_t y = 0; y < height; y += rows)
            for (ptrdiff_t x = 0; x < width; x += kPixels) {
                Image part = *this;
                part.src = addBytes(src, y * step) + x * C;
                part.width = width - x < kPixels ? width - x : kPixels;
                part.height = height - y < rows ? height - y : rows;
                strip(part);
            }
    }
    // row(samples) for each row.
    template <class Row>
    void forRows(Row row) const {
        for (ptrdiff_t y = 0; y < height; y++) row(addBytes(src, y * step));
    }
};

// ---- Tables of all values --------------------------------------------------------------------------------

// Equal samples must not wait for each other's count: neighbours are counted in tables of their own. These
// begin at different places within a page, lest their addresses be mistaken for each other's.
template <int C>
struct ByteTables {
    static constexpr int kTables = C == 1 ? 4 : 2 * C, kBlock = C == 3 ? 24 : 8;
    Tpx32u counts[kTables][256 + 16] = {};

    void run(const Tpx8u* src, ptrdiff_t len) {
        ptrdiff_t i = 0;
        for (; i + kBlock <= len; i += kBlock) {
            fetchAhead(src + i, kBlock);
            for (int w = 0; w < kBlock; w += 8) {
                Tpx64u word;
                __builtin_memcpy(&word, src + i + w, sizeof word);
#pragma GCC unroll 8
                for (int j = 0; j < 8; j++) counts[(w + j) % kTables][Tpx8u(word >> 8 * j)]++;
            }
        }
        for (int table = 0; i < len; i++, table = (table + 1) % kTables) counts[table][src[i]]++;
    }
    // One table of a channel.
    const Tpx32u* merge(int channel) {
        for (int t = channel + C; t < kTables; t += C)
            for (int v = 0; v < 256; v += kLanes<Tpx32u>)
                store(&counts[channel][v], load(&counts[channel][v]) + load(&counts[t][v]));
        return counts[channel];
    }
};

template <class T>
constexpr Tpx32s entryOf(Tpx32s level) {
    return clampTo(level, kMin<T>, kMax<T> + 1) - kMin<T>;
}

Tpx32u sumEntries(const Counter* table, ptrdiff_t begin, ptrdiff_t end) {
    Tpx32u sum = 0;
    if (end - begin >= 16) {
        V32u sums[2] = {};
        for (; begin + 8 <= end; begin += 8)
            for (int j = 0; j < 2; j++) {
                V32u entries;
                __builtin_memcpy(&entries, table + begin + 4 * j, sizeof entries);
                sums[j] += entries;
            }
        sums[0] += sums[1];
        for (int j = 0; j < 4; j++) sum += sums[0][j];
    }
    for (; begin < end; begin++) sum += table[begin];
    return sum;
}

// The bins of levels that are integers.
template <class T>
void sumBins(const Counter* table, const Tpx32s* levels, ptrdiff_t count, Counter* hist) {
    Tpx32s begin = entryOf<T>(peek(levels));
    for (ptrdiff_t k = 0; k + 1 < count; k++) {
        const Tpx32s end = entryOf<T>(peek(levels + k + 1));
        hist[k] = end - begin == 1 ? table[begin] : sumEntries(table, begin, end);
        begin = end;
    }
}

// Counts 16-bit samples in a table for each channel. Where they are alike, a register of them is one count.
template <int C, class T>
void countSamples(const T* src, ptrdiff_t len, Counter* const* tables) {
    constexpr ptrdiff_t kStep = kLanes<T> * C;
    ptrdiff_t i = 0;
    for (; i + kStep <= len; i += kStep) {
        fetchAhead(src + i, kStep * int(sizeof(T)));
        if constexpr (C == 1) {
            const Vec<T> x = load(src + i);
            const T first = x[0];
            if (!any(x != splat<Vec<T>>(first))) {
                tables[0][first - kMin<T>] += kStep;
                continue;
            }
        }
#pragma GCC unroll 32
        for (int j = 0; j < kStep; j++) tables[j % C][peek(src + i + j) - kMin<T>]++;
    }
    for (; i < len; i += C)
#pragma GCC unroll 4
        for (int c = 0; c < C; c++) tables[c][peek(src + i + c) - kMin<T>]++;
}

// ---- Blocks of floats ------------------------------------------------------------------------------------

constexpr ptrdiff_t kBlock = 256;

// One channel of an image of any type: how far it has been read, and how the next block is.
struct Channel {
    const void* row;
    ptrdiff_t step, width, height, x;
    int channel;
    ptrdiff_t (*next)(Channel&, Tpx32f* block);
};

// The next block of a channel's samples, filled up to whole registers by NaN, which no level is below. Gives
// how many there are; 0 at the end.
template <class T, int C>
ptrdiff_t nextBlock(Channel& c, Tpx32f* block) {
    if (c.x == c.width) {
        if (--c.height == 0) return 0;
        c.x = 0;
        c.row = addBytes(static_cast<const T*>(c.row), c.step);
    }
    constexpr ptrdiff_t kPixels = 16 / sizeof(T);
    const ptrdiff_t left = c.width - c.x, len = left < kBlock ? left : kBlock;
    const T* src = static_cast<const T*>(c.row) + c.x * C;
    const auto takePixels = [&](const T* from, Tpx32f* to) {
        T samples[kPixels];
        if constexpr (C == 1) {
            __builtin_memcpy(samples, from, sizeof samples);
        } else {
            Several<V8u, C> pixels;
            __builtin_memcpy(&pixels, from, sizeof pixels);
            const Several<V8u, C> planes = deinterleave<int(sizeof(T))>(pixels);
            __builtin_memcpy(samples, &planes.at[c.channel], sizeof samples);
        }
        if constexpr (std::is_same_v<T, Tpx32f>)
            __builtin_memcpy(to, samples, sizeof samples);
        else
            store(to, loadAs<Tpx32f>(samples));
    };
    ptrdiff_t i = 0;
    for (; i + kPixels <= len; i += kPixels) {
        _mm_prefetch(reinterpret_cast<const char*>(addBytes(src, (i + kBlock) * C * ptrdiff_t(sizeof(T)))),
                     _MM_HINT_T0); // the next block's turn comes when this one has been counted
        takePixels(src + i * C, block + i);
    }
    if (i < len) {
        T pixels[kPixels * C] = {};
        copyBlock(pixels, src + i * C, (len - i) * C * ptrdiff_t(sizeof(T)));
        takePixels(pixels, block + i);
    }
    store(block + len, splat<V32f>(__builtin_nanf("")));
    c.x += len;
    return len;
}

template <class T, int C>
Channel channelOf(const Image<T, C>& image, int channel) {
    return {image.src, image.step, image.width, image.height, 0, channel, nextBlock<T, C>};
}

// Uniform levels of integers at an exact distance: the distance from the first by division. A quotient may be
// rounded up to the number of bins.
struct DividedRanks {
    Tpx32f first, last, step;
    Tpx32s bins;

    void operator()(V32f x, Tpx32s* ranks) const {
        const V32f quotient = (x - splat<V32f>(first)) / splat<V32f>(step);
        const __m256i bin = _mm256_cvttps_epi32(minOf(quotient, splat<V32f>(2147483520.0f)));
        const B32f inside = (splat<V32f>(first) <= x) & (x < splat<V32f>(last));
        const auto half = [&](__m128i b, __m128i mask) {
            return (minOf(V32s(b), splat<V32s>(bins - 1)) + splat<V32s>(1)) & V32s(mask);
        };
        storeRanks({half(_mm256_castsi256_si128(bin), _mm256_castsi256_si128(__m256i(inside))),
                    half(_mm256_extractf128_si256(bin, 1), _mm256_extractf128_si256(__m256i(inside), 1))},
                   ranks);
    }
};

void clearBins(Counter* hist, ptrdiff_t bins) {
    for (ptrdiff_t k = 0; k < bins; k++) hist[k] = 0;
}

// Counts a channel on by the ranks of its samples. As with bytes, neighbours are counted in tables of their
// own; these have an entry for each rank. Where there are too many levels for that, samples go straight to
// their bins.
template <class Rank>
void countRanks(Channel channel, const Rank& rank, ptrdiff_t nLevels, Counter* hist) {
    constexpr ptrdiff_t kEntries = 512;
    constexpr int kTables = 4;
    const ptrdiff_t bins = nLevels - 1;
    Tpx32f block[kBlock + 8];
    Tpx32s ranks[8];
    if (nLevels < kEntries) {
        Tpx32u counts[kTables][kEntries + 16];
        for (auto& table : counts)
            for (ptrdiff_t r = 0; r <= nLevels; r++) table[r] = 0;
        while (const ptrdiff_t len = channel.next(channel, block))
            for (ptrdiff_t i = 0; i < len; i += 8) {
                rank(load(block + i), ranks);
#pragma GCC unroll 8
                for (int j = 0; j < 8; j++) counts[j % kTables][ranks[j]]++;
            }
        for (ptrdiff_t k = 0; k < bins; k++)
            hist[k] += counts[0][k + 1] + counts[1][k + 1] + counts[2][k + 1] + counts[3][k + 1];
        return;
    }
    while (const ptrdiff_t len = channel.next(channel, block))
        for (ptrdiff_t i = 0; i < len; i += 8) {
            rank(load(block + i), ranks);
            for (int j = 0; j < 8; j++) {
                const ptrdiff_t bin = ptrdiff_t(ranks[j]) - 1;
                const bool inside = bin >= 0 && bin < bins;
                hist[inside ? bin : 0] += inside;
            }
        }
}

// ---- Histograms ------------------------------------------------------------------------------------------

template <int C>
void countImage(const Image<Tpx8u, C>& image, const Spec& spec, Counter* const* hist, Tpx8u*, uint64_t) {
    ByteTables<C> tables;
    image.forRows([&](const Tpx8u* row) { tables.run(row, image.width * C); });
    for (int c = 0; c < C; c++)
        sumBins<Tpx8u>(tables.merge(c), levelsOf<Tpx32s>(spec, c), spec.nLevels[c], hist[c]);
}

template <int C>
void countImage(const Image<Tpx32f, C>& image, const Spec& spec, Counter* const* hist, Tpx8u*,
                uint64_t pixels) {
    Ranking rankings[C];
    for (int c = 0; c < C; c++) {
        clearBins(hist[c], ptrdiff_t(spec.nLevels[c]) - 1);
        rankings[c] = rankingOf(levelsOf<Tpx32f>(spec, c), spec.nLevels[c], pixels);
    }
    image.forStrips([&](const Image<Tpx32f, C>& strip) {
        for (int c = 0; c < C; c++)
            withRanks(rankings[c], levelsOf<Tpx32f>(spec, c), spec.nLevels[c], [&](const auto& rank) {
                countRanks(channelOf(strip, c), rank, spec.nLevels[c], hist[c]);
            });
    });
}

// A channel of a small image of 16-bit samples; false if it is better counted in a table.
template <class T, int C>
bool countSmall(const Image<T, C>& image, int c, const Spec& spec, Counter* hist, Tpx8u* buffer,
                uint64_t pixels) {
    constexpr uint64_t kSmall = 65536;
    if (pixels >= kSmall) return false;
    const auto levels = levelsOf<Tpx32s>(spec, c);
    const ptrdiff_t last = ptrdiff_t(spec.nLevels[c]) - 1;
    const Tpx32s lowest = peek(levels), highest = peek(levels + last);
    if (spec.uniform && (Tpx64s(highest) - lowest) % last == 0) {
        clearBins(hist, last);
        const DividedRanks rank = {Tpx32f(lowest), Tpx32f(highest), spec.step[c], Tpx32s(last)};
        countRanks(channelOf(image, c), rank, last + 1, hist);
        return true;
    }
    // The table costs as much as to rank so many pixels in a fast way, or an eighth of them by a search.
    const auto worth = uint64_t(entryOf<T>(highest) - entryOf<T>(lowest)) / 2;
    if (pixels > worth || last >= ptrdiff_t(kSmall)) return false;
    const auto real = reinterpret_cast<Tpx32f*>(buffer);
    storeLevels<Tpx32f>(buffer, last + 1,
                        [=](ptrdiff_t k) { return Tpx32f(entryOf<T>(peek(levels + k)) + kMin<T>); });
    const Ranking ranking = rankingOf(real, last + 1, pixels);
    if (ranking == Ranking::Halved && pixels > worth / 8) return false;
    clearBins(hist, last);
    withRanks(ranking, real, last + 1,
              [&](const auto& rank) { countRanks(channelOf(image, c), rank, last + 1, hist); });
    return true;
}

template <class T, int C>
void countImage(const Image<T, C>& image, const Spec& spec, Counter* const* hist, Tpx8u* buffer,
                uint64_t pixels) {
    constexpr ptrdiff_t kEntries = 65536;
    Counter* tables[C];
    bool done[C], allDone = true;
    for (int c = 0; c < C; c++) {
        tables[c] = reinterpret_cast<Counter*>(buffer) + c * kEntries;
        done[c] = countSmall(image, c, spec, hist[c], buffer, pixels);
        allDone &= done[c];
    }
    if (allDone) return;
    // What lies beyond the levels is counted into entries that nobody clears or reads.
    for (int c = 0; c < C; c++) {
        const auto levels = levelsOf<Tpx32s>(spec, c);
        const Tpx32s begin = entryOf<T>(peek(levels)),
                     end = entryOf<T>(peek(levels + spec.nLevels[c] - 1));
        __builtin_memset(tables[c] + begin, 0, size_t(end - begin) * sizeof(Counter));
    }
    image.forRows([&](const T* row) { countSamples<C>(row, image.width * C, tables); });
    for (int c = 0; c < C; c++)
        if (!done[c]) sumBins<T>(tables[c], levelsOf<Tpx32s>(spec, c), spec.nLevels[c], hist[c]);
}

template <int C, class T>
TpxStatus histogram(const T* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const* pHist,
                    const TpxHistogramSpec* pSpec, Tpx8u* pBuffer) {
    if (anyNull(pSrc, pHist, pSpec) || (!std::is_same_v<T, Tpx32f> && !pBuffer)) return tpxErrNullPointer;
    Counter* hist[C];
    for (int c = 0; c < C; c++) {
        hist[c] = pHist[c];
        if (!hist[c]) return tpxErrNullPointer;
    }
    if (isEmpty(roiSize)) return tpxErrSize;
    if (srcStep < Tpx64s(roiSize.width) * C * Tpx64s(sizeof(T))) return tpxErrStep;
    Spec spec;
    if (!readSpec(spec, pSpec) || spec.dataType != kDataType<T> || spec.nChannels != C)
        return tpxErrBadArgument;
    countImage(Image<T, C>(pSrc, srcStep, roiSize), spec, hist, pBuffer,
               uint64_t(roiSize.width) * uint64_t(roiSize.height));
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

TPX_ENTRY(tpxiHistogramGetBufferSize)
(TpxDataType dataType, TpxiSize roiSize, const int nLevels[], int nChannels, int, int* pSpecSize,
 int* pBufferSize) {
    if (anyNull(nLevels, pSpecSize, pBufferSize)) return tpxErrNullPointer;
    if (isEmpty(roiSize)) return tpxErrSize;
    if (!isChannelCount(nChannels)) return tpxErrChannelCount;
    Tpx64s size = sizeof(Spec);
    for (int c = 0; c < nChannels; c++) {
        if (nLevels[c] < 2) return tpxErrHistogramLevels;
        size += 4 * Tpx64s(nLevels[c]);
    }
    if (size > kMax<Tpx32s>) return tpxErrSizeTooLarge;
    *pSpecSize = int(size);
    if (!isDataType(dataType)) return tpxErrDataType;
    *pBufferSize = nChannels * (dataType == tpxDataType8u ? 1024 : dataType == tpxDataType32f ? 0 : 262144);
    return tpxOk;
}

TPX_ENTRY(tpxiHistogramInit)
(TpxDataType dataType, const Tpx32f* const pLevels[], const int nLevels[], int nChannels,
 TpxHistogramSpec* pSpec) {
    return initLevels(dataType, pLevels, nLevels, nChannels, pSpec);
}

TPX_ENTRY(tpxiHistogramUniformInit)
(TpxDataType dataType, const Tpx32f lowerLevel[], const Tpx32f upperLevel[], const int nLevels[], int nChannels,
 TpxHistogramSpec* pSpec) {
    return initUniform(dataType, lowerLevel, upperLevel, nLevels, nChannels, pSpec);
}

TPX_ENTRY(tpxiHistogramGetLevels)(const TpxHistogramSpec* pSpec, Tpx32f* const pLevels[]) {
    if (anyNull(pSpec, pLevels)) return tpxErrNullPointer;
    Spec spec;
    if (!readSpec(spec, pSpec)) return tpxErrBadArgument;
    for (int c = 0; c < spec.nChannels; c++)
        if (!pLevels[c]) return tpxErrNullPointer;
    for (int c = 0; c < spec.nChannels; c++) {
        auto levels = reinterpret_cast<Tpx8u*>(pLevels[c]);
        if (spec.dataType == tpxDataType32f)
            __builtin_memcpy(levels, spec.levels[c], 4 * size_t(spec.nLevels[c]));
        else
            storeLevels<Tpx32f>(levels, spec.nLevels[c],
                                [&](ptrdiff_t k) { return Tpx32f(peek(levelsOf<Tpx32s>(spec, c) + k)); });
    }
    return tpxOk;
}

// C1 takes its counters as an array, the others as arrays of such.
#define ENTRY(T, L, channels, hist, bins)                                                    \
    TPX_ENTRY(tpxiHistogram_##T##_##L##R)                                                    \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, hist, const TpxHistogramSpec* pSpec, \
     [[maybe_unused]] Tpx8u* pBuffer) {                                                      \
        return histogram<channels>(pSrc, srcStep, roiSize, bins, pSpec, pBuffer);            \
    }
#define TYPE(T)                                    \
    ENTRY(T, C1, 1, Tpx32u* pHist, &pHist)         \
    ENTRY(T, C3, 3, Tpx32u* const pHist[3], pHist) \
    ENTRY(T, C4, 4, Tpx32u* const pHist[4], pHist)

TYPE(8u)
TYPE(16u)
TYPE(16s)
TYPE(32f)
