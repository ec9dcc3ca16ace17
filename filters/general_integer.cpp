// SPDX-License-Identifier: Apache-2.0
// Correlation with kernels of 16-bit integers. Two rows of results are worked on side by side: each pair of
// source rows is interleaved, and one multiplication with addition of neighbours takes two taps of a column for
// four or eight samples.
#include "filters/general.h"
#include "frame/images/row_ring.h"

namespace tpx {
namespace {

// ---- Pairs of source rows ---------------------------------------------------------------------------------

// The least that is worked on at once.
inline constexpr ptrdiff_t kBlock = kResultBlock;

// Samples of two rows one behind the other, in lanes of 16 bits or, if sums fit, in bytes.
[[gnu::always_inline]] inline void interleave(V8u a, V8u b, V8u* out) {
    out[0] = interleaveLow(a, b);
    out[1] = interleaveHigh(a, b);
}
[[gnu::always_inline]] inline void interleave(V8u a, V8u b, V16s* out) {
    const Pair<V16u> low = widen(interleaveLow(a, b)), high = widen(interleaveHigh(a, b));
    out[0] = V16s(low.low);
    out[1] = V16s(low.high);
    out[2] = V16s(high.low);
    out[3] = V16s(high.high);
}
[[gnu::always_inline]] inline void interleave(V16s a, V16s b, V16s* out) {
    out[0] = interleaveLow(a, b);
    out[1] = interleaveHigh(a, b);
}
// Registers that a register of samples becomes.
template <class T, class Lane>
inline constexpr int kSpread = 2 * int(sizeof(Lane) / sizeof(T));

// Pairs that are interleaved at every tap; none but the first `count` samples from a tap on are read if Short.
template <class T, bool Short>
struct PairsAtTaps {
    const SourceRows<T>& rows;
    ptrdiff_t count;

    struct Place {
        const T *row, *next;
        ptrdiff_t count;

        template <class V, int Registers>
        [[gnu::always_inline]] void load(V (&out)[Registers]) const {
            constexpr int kSpreads = kSpread<T, LaneOf<V>>;
            for (int k = 0; k < Registers; k += kSpreads) {
                V spread[kSpreads];
                const ptrdiff_t from = k / kSpreads * kLanes<T>;
                interleave(samples(row, from), samples(next, from), spread);
                for (int j = 0; j < kSpreads && k + j < Registers; j++) out[k + j] = spread[j];
            }
        }
        [[gnu::always_inline]] Vec<T> samples(const T* p, ptrdiff_t at) const {
            if constexpr (!Short) return tpx::load(p + at);
            if (count - at >= kLanes<T>) return tpx::load(p + at);
            return loadAtMost(p + at, count > at ? count - at : 0);
        }
        void advance(ptrdiff_t n) { row += n, next += n; }
    };
    Place at(ptrdiff_t pair, ptrdiff_t i) const { return {rows[2 * pair] + i, rows[2 * pair + 1] + i, count}; }
};

// Pairs that have been interleaved.
template <class Lane>
struct PairsInRing {
    const RowRing<Lane>& ring;

    struct Place {
        const Lane* p;

        template <int Registers>
        [[gnu::always_inline]] void load(Vec<Lane> (&out)[Registers]) const {
            for (int k = 0; k < Registers; k++) out[k] = tpx::load(p + k * kLanes<Lane>);
        }
        void advance(ptrdiff_t n) { p += 2 * n; }
    };
    Place at(ptrdiff_t pair, ptrdiff_t i) const { return {ring.at(pair) + 2 * i}; }
};

// ---- Sums -------------------------------------------------------------------------------------------------

// Of an upper row of results and of the lower one: in 32 bits, or, of bytes, in 16 bits from the rules' start
// on. They are unsigned, since they wrap around: those in 16 bits on their way to where they fit, others past
// 32 bits.
template <class Lane>
struct TwoSums {
    static constexpr bool kBytes = sizeof(Lane) == 1;

    using Sum = std::conditional_t<kBytes, Tpx16u, Tpx32u>;
    using Weights = std::conditional_t<kBytes, V8s, V16s>;

    // Sums for as many samples as so many registers of pairs hold. Pixels have so many channels.
    template <int Registers, class Pairs>
    [[gnu::always_inline]] static void make(const FilterBlock& b, Tpx32s start, const Pairs& source,
                                            ptrdiff_t channels, ptrdiff_t i, Sum* toUpper, Sum* toLower) {
        Vec<Sum> upper[Registers], lower[Registers];
        for (int k = 0; k < Registers; k++) upper[k] = lower[k] = splat<Vec<Sum>>(Sum(kBytes ? start : 0));
        const Tpx32s* weights = rowPairTable(b);
        const ptrdiff_t pairs = rowPairsOf(b.kernelHeight), width = b.kernelWidth;
        for (ptrdiff_t pair = 0; pair < pairs; pair++) {
            auto place = source.at(pair, i);
            for (ptrdiff_t x = 0; x < width; x++, place.advance(channels), weights += 2) {
                Vec<Lane> columns[Registers];
                place.load(columns);
                for (Vec<Lane>& column : columns) column = inRegister(column); // for both products
                const Weights forUpper = Weights(loadSplat(weights)),
                              forLower = Weights(loadSplat(weights + 1));
                for (int k = 0; k < Registers; k++) {
                    upper[k] += Vec<Sum>(multiplyAddPairs(columns[k], forUpper));
                    lower[k] += Vec<Sum>(multiplyAddPairs(columns[k], forLower));
                }
            }
        }
        for (int k = 0; k < Registers; k++) {
            store(toUpper + k * kLanes<Sum>, upper[k]);
            store(toLower + k * kLanes<Sum>, lower[k]);
        }
    }
};

// ---- Regions ----------------------------------------------------------------------------------------------

template <class T>
class IntegerCorrelation {
 public:
    IntegerCorrelation(const FilterBlock& block, const Region<T, T>& region, ptrdiff_t channels)
        : block_(block),
          region_(region),
          rules_(block, region.size.width),
          channels_(channels),
          len_(region.size.width * channels) {}

    void run() const {
        const FloatControl control(roundingAs(rules_.direction()));
        if constexpr (sizeof(T) == 2) {
            if (block_.sumWidth == SumWidth::Bits64 && rules_.isQuotient()) return largeSums();
        } else {
            if (block_.sumWidth == SumWidth::Bits16) return inLanesOf<Tpx8u>();
        }
        inLanesOf<Tpx16s>();
    }

 private:
    static constexpr ptrdiff_t kRoomBytes = 24576; // for the pairs of rows that two rows of results read
    static constexpr ptrdiff_t kStretch = 512;     // of samples whose sums wait for their rule

    // Registers of lanes that a block takes.
    template <class Lane>
    static constexpr int kBlockRegisters = 2 * int(kBlock) / kLanes<Lane>;

    SourceRows<T> source(int64_t y) const { return {region_, y, block_, channels_}; }
    ResultRows<T> results(int64_t y, ptrdiff_t from) const { return {region_, y, from}; }
    ptrdiff_t reach() const { return (block_.kernelWidth - 1) * channels_; }

    template <class Lane>
    void inLanesOf() const {
        const ptrdiff_t room =
            kRoomBytes / (2 * ptrdiff_t(sizeof(Lane)) * rowPairsOf(block_.kernelHeight)) - reach();
        // Narrow kernels would not gain by it.
        if (len_ >= kBlock && room >= 4 * kBlock && block_.kernelWidth >= 3) return throughRing<Lane>(room);
        for (int64_t y = 0; y < region_.size.height; y += 2) {
            const SourceRows<T> rows = source(y);
            if (len_ >= kBlock)
                longRows<Lane>(PairsAtTaps<T, false>{rows, 0}, results(y, 0), len_);
            else if (region_.slack < kBlock * ptrdiff_t(sizeof(T)))
                shortRows<Lane, kBlockRegisters<Lane>>(PairsAtTaps<T, true>{rows, len_}, results(y, 0));
            else if (len_ > kBlock / 2)
                shortRows<Lane, kBlockRegisters<Lane>>(PairsAtTaps<T, false>{rows, 0}, results(y, 0));
            else
                shortRows<Lane, kBlockRegisters<Lane> / 2>(PairsAtTaps<T, false>{rows, 0}, results(y, 0));
        }
    }

    // Fewer samples than a block. Those of half a block have their results with those of the lower row.
    template <class Lane, int Registers, class Pairs>
    [[gnu::noinline]] void shortRows(const Pairs& pairs, ResultRows<T> dst) const {
        using Sums = TwoSums<Lane>;
        constexpr ptrdiff_t kSamples = Registers * kLanes<Lane> / 2, kBlocks = 2 * kSamples / kBlock;
        typename Sums::Sum sums[2 * kSamples];
        T results[2 * kSamples];
        Sums::template make<Registers>(block_, rules_.start(), pairs, channels_, 0, sums, sums + kSamples);
        rules_.make(sums, results, kBlocks * kBlock);
        copyBlock(dst.upper, results, len_ * ptrdiff_t(sizeof(T)));
        if (dst.lower != nullptr) copyBlock(dst.lower, results + kSamples, len_ * ptrdiff_t(sizeof(T)));
    }

    // Sums of a stretch, then its results. Large steps first; the last block may overlap the one before it.
    template <class Lane, class Pairs>
    void longRows(const Pairs& pairs, ResultRows<T> dst, ptrdiff_t len) const {
        using Sums = TwoSums<Lane>;
        constexpr ptrdiff_t kLarge = 4 * kLanes<Lane> / 2;
        alignas(32) typename Sums::Sum upper[kStretch], lower[kStretch];
        for (ptrdiff_t from = 0, n; from < len; from += n) {
            n = len - from < kStretch ? len - from : kStretch;
            if (n < kBlock) from = len - (n = kBlock);
            const auto sums = [&]<int Registers>(ptrdiff_t i) __attribute__((always_inline)) {
                Sums::template make<Registers>(block_, rules_.start(), pairs, channels_, from + i, upper + i,
                                               lower + i);
            };
            ptrdiff_t i = 0;
            for (; i + kLarge <= n; i += kLarge) sums.template operator()<4>(i);
            for (; i < n; i += kBlock)
                sums.template operator()<kBlockRegisters<Lane>>(i + kBlock <= n ? i : n - kBlock);
            rules_.make(upper, dst.upper + from, n);
            if (dst.lower != nullptr) rules_.make(lower, dst.lower + from, n);
        }
    }

    // Pairs are interleaved once, into a ring, and the image is taken in bands of columns for which the ring is
    // small. Kernels that are too large for it interleave at every tap.
    template <class Lane>
    void throughRing(ptrdiff_t room) const {
        alignas(32) Lane memory[kRoomBytes / sizeof(Lane)];
        const SourceRows<T> rows = source(0);
        forBands(len_, room, 2 * kBlock, kBlock, [&](ptrdiff_t from, ptrdiff_t len) {
            RowRing<Lane> ring(memory, 2 * (len + reach()), rowPairsOf(block_.kernelHeight));
            for (int64_t y = 0; y < region_.size.height; y += 2) {
                ring.moveTo(y / 2, [&](int64_t pair, Lane* lanes) {
                    interleaveRun(rows[2 * pair] + from, rows[2 * pair + 1] + from, lanes, len + reach());
                });
                longRows<Lane>(PairsInRing<Lane>{ring}, results(y, from), len);
            }
        });
    }
    template <class Lane>
    static void interleaveRun(const T* row, const T* next, Lane* dst, ptrdiff_t len) {
        const auto at = [&](ptrdiff_t i) {
            Vec<Lane> out[kSpread<T, Lane>];
            interleave(load(row + i), load(next + i), out);
            for (int k = 0; k < kSpread<T, Lane>; k++) store(dst + 2 * i + k * kLanes<Lane>, out[k]);
        };
        ptrdiff_t i = 0;
        for (; i + kLanes<T> <= len; i += kLanes<T>) at(i);
        if (i < len) at(len - kLanes<T>);
    }

    // Sums that need 64 bits, one by one: seldom, and never but under the true quotient.
    void largeSums() const {
        for (int64_t y = 0; y < region_.size.height; y++) {
            const SourceRows<T> rows = source(y);
            T* const dst = region_.dst.row(y);
            for (ptrdiff_t i = 0; i < len_; i++) {
                Tpx64s sum = 0;
                const Tpx16s* weight = block_.kernel16 + int64_t(block_.kernelWidth) * block_.kernelHeight;
                for (int r = 0; r < block_.kernelHeight; r++) {
                    const T* row = rows[r] + i;
                    for (int x = 0; x < block_.kernelWidth; x++, row += channels_)
                        sum += Tpx64s(*--weight) * peek(row);
                }
                poke(dst + i, T(rules_.quotient(splat<V64f>(Tpx64f(sum)))[0]));
            }
        }
    }

    const FilterBlock& block_;
    const Region<T, T>& region_;
    IntegerRules rules_;
    ptrdiff_t channels_, len_;
};

} // namespace

template <class T>
void correlateIntegers(const FilterBlock& block, const Region<T, T>& region, int channels) {
    IntegerCorrelation<T>(block, region, channels).run();
}
template void correlateIntegers(const FilterBlock&, const Region<Tpx8u, Tpx8u>&, int);
template void correlateIntegers(const FilterBlock&, const Region<Tpx16s, Tpx16s>&, int);

} // namespace tpx
