// Correlation with kernels of 16-bit integers. Two rows of results are worked on side by side: each pair of
// source rows is interleaved, and one multiplication with addition of neighbours takes two taps of a column for
// eight or four samples.
#include "filters/general.h"

namespace tpx {
namespace {

// ---- Sums
// ----------------------------------------------------------------------------------------------------

// Samples that are worked on at once.
inline constexpr ptrdiff_t kBlock = 16;

// Registers of samples from an address on; none but the first `count` samples are read if Short.
template <bool Short, class T, int Registers>
[[gnu::always_inline]] inline void loadBlock(const T* p, ptrdiff_t count, Vec<T> (&out)[Registers]) {
    constexpr ptrdiff_t L = kLanes<T>;
    for (int k = 0; k < Registers; k++) {
        if constexpr (Short) {
            const ptrdiff_t left = count - k * L;
            out[k] = left >= L ? load(p + k * L) : loadAtMost(p + k * L, left > 0 ? left : 0);
        } else {
            out[k] = load(p + k * L);
        }
    }
}

// Columns of two rows one behind the other, as registers of 16 bits.
[[gnu::always_inline]] inline void interleaveRows(const V8u (&a)[1], const V8u (&b)[1], V16s (&out)[4]) {
    const Pair<V16u> low = widen(interleaveLow(a[0], b[0])), high = widen(interleaveHigh(a[0], b[0]));
    out[0] = V16s(low.low), out[1] = V16s(low.high), out[2] = V16s(high.low), out[3] = V16s(high.high);
}
[[gnu::always_inline]] inline void interleaveRows(const V16s (&a)[2], const V16s (&b)[2], V16s (&out)[4]) {
    out[0] = interleaveLow(a[0], b[0]), out[1] = interleaveHigh(a[0], b[0]);
    out[2] = interleaveLow(a[1], b[1]), out[3] = interleaveHigh(a[1], b[1]);
}

// body(row, next row, weights) for each pair of source rows and each column, all three moved to it.
template <int N, class T, class Body>
[[gnu::always_inline]] inline void forTaps(const FilterBlock& b, const SourceRows<T>& rows, ptrdiff_t i,
                                           Body body) {
    const Tpx32s* weights = rowPairTable(b);
    const ptrdiff_t pairs = rowPairsOf(b.kernelHeight), width = b.kernelWidth;
    for (ptrdiff_t pair = 0; pair < pairs; pair++) {
        const T *row = rows[2 * pair] + i, *next = rows[2 * pair + 1] + i;
        for (ptrdiff_t x = 0; x < width; x++, row += N, next += N, weights += 2) body(row, next, weights);
    }
}

// One weight in every lane. Not from a register: as a load it costs nothing.
[[gnu::always_inline]] inline V32s loadWeight(const Tpx32s* p) {
    return V32s(_mm_castps_si128(_mm_broadcast_ss(reinterpret_cast<const float*>(p))));
}

// Sums of two rows of results in 32 bits, for 16 samples of the upper one and then of the lower one.
template <class T, int N, bool Short>
struct WordSums {
    static constexpr ptrdiff_t kSamples = kBlock;
    static constexpr int kPairs = 4;

    [[gnu::always_inline]] static WordSums at(const FilterBlock& b, const SourceRows<T>& rows, ptrdiff_t i,
                                              ptrdiff_t count) {
        V32s upper[4] = {}, lower[4] = {};
        forTaps<N>(b, rows, i, [&](const T* row, const T* next, const Tpx32s* weights) {
            Vec<T> first[kBlock / kLanes<T>], second[kBlock / kLanes<T>];
            loadBlock<Short>(row, count, first);
            loadBlock<Short>(next, count, second);
            V16s columns[4];
            interleaveRows(first, second, columns);
            const V16s forUpper = V16s(loadWeight(weights)), forLower = V16s(loadWeight(weights + 1));
            for (int k = 0; k < 4; k++) {
                upper[k] += multiplyAddPairs(columns[k], forUpper);
                lower[k] += multiplyAddPairs(columns[k], forLower);
            }
        });
        return {{{upper[0], upper[1]}, {upper[2], upper[3]}, {lower[0], lower[1]}, {lower[2], lower[3]}}};
    }
    [[gnu::always_inline]] Pair<V32s> pair(int k) const { return pairs[k]; }

    Pair<V32s> pairs[kPairs];
};

// In 16 bits, as far above the least sum as they are; Blocks times 16 samples of either row.
template <int N, bool Short, int Blocks>
struct ByteSums {
    static constexpr ptrdiff_t kSamples = Blocks * kBlock;
    static constexpr int kPairs = 4 * Blocks;

    [[gnu::always_inline]] static ByteSums at(const FilterBlock& b, const SourceRows<Tpx8u>& rows, ptrdiff_t i,
                                              ptrdiff_t count) {
        V16s upper[2 * Blocks], lower[2 * Blocks];
        for (int k = 0; k < 2 * Blocks; k++) upper[k] = lower[k] = splat<V16s>(Tpx16s(b.sumBias));
        forTaps<N>(b, rows, i, [&](const Tpx8u* row, const Tpx8u* next, const Tpx32s* weights) {
            V8u first[Blocks], second[Blocks];
            loadBlock<Short>(row, count, first);
            loadBlock<Short>(next, count, second);
            const V8s forUpper = V8s(loadWeight(weights)), forLower = V8s(loadWeight(weights + 1));
            for (int k = 0; k < 2 * Blocks; k++) {
                const V8u columns = k % 2 ? interleaveHigh(first[k / 2], second[k / 2])
                                          : interleaveLow(first[k / 2], second[k / 2]);
                upper[k] += multiplyAddPairs(columns, forUpper);
                lower[k] += multiplyAddPairs(columns, forLower);
            }
        });
        ByteSums sums;
        sums.bias = splat<V32s>(b.sumBias);
        unroll<2 * Blocks>([&](auto k) {
            sums.biased[k] = upper[k];
            sums.biased[2 * Blocks + k] = lower[k];
        });
        return sums;
    }
    [[gnu::always_inline]] Pair<V32s> pair(int k) const {
        const Pair<V32u> wide = widen(V16u(biased[k]));
        return {V32s(wide.low) - bias, V32s(wide.high) - bias};
    }

    V16s biased[kPairs];
    V32s bias;
};

// ---- Rows of results
// -----------------------------------------------------------------------------------------

[[gnu::always_inline]] inline void storeBlock(Tpx8u* dst, V16s first, V16s second) {
    store(dst, narrow<Tpx8u>(Pair<V16s>{first, second}));
}
[[gnu::always_inline]] inline void storeBlock(Tpx16s* dst, V16s first, V16s second) {
    store(dst, first);
    store(dst + 8, second);
}

// Two rows of results, or one.
template <class T>
struct ResultRows {
    T *upper, *lower; // lower is null if there is one
};

template <class Sums, class T>
[[gnu::always_inline]] inline void blocksAt(const FilterBlock& b, const IntegerRules& rules,
                                            const SourceRows<T>& rows, ResultRows<T> dst, ptrdiff_t i,
                                            ptrdiff_t count) {
    const Sums sums = Sums::at(b, rows, i, count);
    V16s results[Sums::kPairs];
    rules.apply([&](auto k) { return sums.pair(k); }, results);
    constexpr int kBlocks = Sums::kSamples / kBlock;
    for (int k = 0; k < kBlocks; k++)
        storeBlock(dst.upper + i + k * kBlock, results[2 * k], results[2 * k + 1]);
    if (dst.lower == nullptr) return;
    for (int k = 0; k < kBlocks; k++)
        storeBlock(dst.lower + i + k * kBlock, results[2 * (kBlocks + k)], results[2 * (kBlocks + k) + 1]);
}

// Large steps first; the last block may overlap the one before it.
template <class Large, class Small, class T>
void longRows(const FilterBlock& b, const IntegerRules& rules, const SourceRows<T>& rows, ResultRows<T> dst,
              ptrdiff_t len) {
    ptrdiff_t i = 0;
    for (; i + Large::kSamples <= len; i += Large::kSamples) blocksAt<Large>(b, rules, rows, dst, i, 0);
    for (; i + kBlock <= len; i += kBlock) blocksAt<Small>(b, rules, rows, dst, i, 0);
    if (i < len) blocksAt<Small>(b, rules, rows, dst, len - kBlock, 0);
}

// Fewer samples than a block.
template <class Sums, class T>
void shortRows(const FilterBlock& b, const IntegerRules& rules, const SourceRows<T>& rows, ResultRows<T> dst,
               ptrdiff_t len) {
    T upper[kBlock], lower[kBlock];
    blocksAt<Sums>(b, rules, rows, ResultRows<T>{upper, lower}, 0, len);
    copyBlock(dst.upper, upper, len * ptrdiff_t(sizeof(T)));
    if (dst.lower != nullptr) copyBlock(dst.lower, lower, len * ptrdiff_t(sizeof(T)));
}

template <class T, int N>
void rowsOf(const FilterBlock& b, const IntegerRules& rules, const SourceRows<T>& rows, ResultRows<T> dst,
            ptrdiff_t len, ptrdiff_t slack) {
    constexpr ptrdiff_t kBlockBytes = kBlock * ptrdiff_t(sizeof(T));
    if constexpr (sizeof(T) == 1) {
        if (b.sumWidth == SumWidth::Bits16) {
            if (len >= kBlock)
                return longRows<ByteSums<N, false, 2>, ByteSums<N, false, 1>>(b, rules, rows, dst, len);
            if (slack >= kBlockBytes) return shortRows<ByteSums<N, false, 1>>(b, rules, rows, dst, len);
            return shortRows<ByteSums<N, true, 1>>(b, rules, rows, dst, len);
        }
    }
    if (len >= kBlock) return longRows<WordSums<T, N, false>, WordSums<T, N, false>>(b, rules, rows, dst, len);
    if (slack >= kBlockBytes) return shortRows<WordSums<T, N, false>>(b, rules, rows, dst, len);
    return shortRows<WordSums<T, N, true>>(b, rules, rows, dst, len);
}

// Sums that need 64 bits, one by one: seldom, and never but under the true quotient.
template <class T, int N>
void largeSums(const FilterBlock& b, const IntegerRules& rules, const SourceRows<T>& rows, T* dst,
               ptrdiff_t len) {
    for (ptrdiff_t i = 0; i < len; i++) {
        Tpx64s sum = 0;
        const Tpx16s* weight = b.kernel16 + int64_t(b.kernelWidth) * b.kernelHeight;
        for (int y = 0; y < b.kernelHeight; y++) {
            const T* row = rows[y] + i;
            for (int x = 0; x < b.kernelWidth; x++, row += N) sum += Tpx64s(*--weight) * peek(row);
        }
        poke(dst + i, T(rules.quotient(splat<V64f>(Tpx64f(sum)))[0]));
    }
}

} // namespace

template <class T, int N>
void correlateIntegers(const FilterBlock& block, const Region<T, T>& region) {
    const IntegerRules rules(block, region.size.width);
    const FloatControl control(roundingAs(rules.direction()));
    const ptrdiff_t len = region.size.width * N;
    const bool large = block.sumWidth == SumWidth::Bits64 && rules.isQuotient();
    for (int64_t y = 0; y < region.size.height; y += 2) {
        const SourceRows<T> rows(region, y, block.kernelWidth, block.kernelHeight, N);
        T *const upper = region.dst.row(y), *const lower =
                                                y + 1 < region.size.height ? region.dst.row(y + 1) : nullptr;
        if constexpr (sizeof(T) == 2) {
            if (large) {
                largeSums<T, N>(block, rules, rows, upper, len);
                if (lower != nullptr)
                    largeSums<T, N>(block, rules,
                                    SourceRows<T>(region, y + 1, block.kernelWidth, block.kernelHeight, N),
                                    lower, len);
                continue;
            }
        }
        rowsOf<T, N>(block, rules, rows, {upper, lower}, len, region.slack);
    }
}
template void correlateIntegers<Tpx8u, 1>(const FilterBlock&, const Region<Tpx8u, Tpx8u>&);
template void correlateIntegers<Tpx8u, 3>(const FilterBlock&, const Region<Tpx8u, Tpx8u>&);
template void correlateIntegers<Tpx8u, 4>(const FilterBlock&, const Region<Tpx8u, Tpx8u>&);
template void correlateIntegers<Tpx16s, 1>(const FilterBlock&, const Region<Tpx16s, Tpx16s>&);

} // namespace tpx
