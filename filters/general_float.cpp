// Correlation with kernels of floats. Two rows of results share the loads of the rows between them. Each sum
// runs over the taps in raster order, from the first product on, whatever its place in the image.
#include "filters/general.h"

namespace tpx {
namespace {

// ---- Sums
// ----------------------------------------------------------------------------------------------------

template <int Registers>
struct TwoSums {
    V32f upper[Registers], lower[Registers];
};

// A register of samples as floats; none but the first `count` samples are read if Short.
template <bool Short, class T>
[[gnu::always_inline]] inline V32f loadFloats(const T* p, ptrdiff_t count) {
    T samples[kLanes<Tpx32f>] = {};
    if constexpr (Short) {
        copyShort(samples, p, count * ptrdiff_t(sizeof(T)));
        p = samples;
    }
    if constexpr (std::is_same_v<T, Tpx32f>)
        return load(p);
    else
        return loadAs<Tpx32f>(p);
}

// Each source row is one of both results' kernels' rows, but for the first and the last.
template <class T, int N, bool Short, int Registers>
[[gnu::always_inline]] inline TwoSums<Registers> sumsAt(const FilterBlock& b, const SourceRows<T>& rows,
                                                        ptrdiff_t i, ptrdiff_t count) {
    const ptrdiff_t width = b.kernelWidth, height = b.kernelHeight;
    TwoSums<Registers> sums;
    for (int k = 0; k < Registers; k++)
        sums.upper[k] = sums.lower[k] = splat<V32f>(-0.0f); // the number that changes no other
    // Coefficients from the last to the first.
    const Tpx32f* const first = b.kernel32 + width * height - 1;
    const auto addRow = [&]<bool Upper, bool Lower>(ptrdiff_t r) {
        const T* row = rows[r] + i;
        const Tpx32f *forUpper = first - r * width, *forLower = forUpper + width;
        for (ptrdiff_t x = 0; x < width; x++, row += N, forUpper--, forLower--)
            for (int k = 0; k < Registers; k++) {
                const V32f samples = loadFloats<Short>(row + k * kLanes<Tpx32f>, count);
                if constexpr (Upper) sums.upper[k] += samples * splat<V32f>(*forUpper);
                if constexpr (Lower) sums.lower[k] += samples * splat<V32f>(*forLower);
            }
    };
    addRow.template operator()<true, false>(0);
    for (ptrdiff_t r = 1; r < height; r++) addRow.template operator()<true, true>(r);
    addRow.template operator()<false, true>(height);
    return sums;
}

// ---- Rows of results
// -----------------------------------------------------------------------------------------

struct NoRules {
    NoRules(const FilterBlock&, int64_t) {}
};
template <class T>
using RulesOf = std::conditional_t<std::is_same_v<T, Tpx32f>, NoRules, FloatRules>;

// Eight results.
template <class T>
[[gnu::always_inline]] inline void storeResults(T* dst, V32f sum, const RulesOf<T>& rules) {
    if constexpr (std::is_same_v<T, Tpx32f>) {
        store(dst, sum);
    } else {
        const Pair<V32s> results = rules.template apply<T>(sum);
        if constexpr (sizeof(T) == 2) {
            store(dst, narrow<T>(results));
        } else {
            const V16s words = narrow<Tpx16s>(results);
            const V8u bytes = narrow<Tpx8u>(Pair<V16s>{words, words});
            __builtin_memcpy(dst, &bytes, 8);
        }
    }
}

template <class T, int N, bool Short, int Registers>
[[gnu::always_inline]] inline void resultsAt(const FilterBlock& b, const RulesOf<T>& rules,
                                             const SourceRows<T>& rows, T* upper, T* lower, ptrdiff_t i,
                                             ptrdiff_t count) {
    const TwoSums<Registers> sums = sumsAt<T, N, Short, Registers>(b, rows, i, count);
    for (int k = 0; k < Registers; k++) storeResults(upper + i + k * 8, sums.upper[k], rules);
    if (lower == nullptr) return;
    for (int k = 0; k < Registers; k++) storeResults(lower + i + k * 8, sums.lower[k], rules);
}

template <class T, int N>
void rowsOf(const FilterBlock& b, const RulesOf<T>& rules, const SourceRows<T>& rows, T* upper, T* lower,
            ptrdiff_t len, ptrdiff_t slack) {
    constexpr ptrdiff_t L = kLanes<Tpx32f>;
    if (len >= L) {
        ptrdiff_t i = 0;
        for (; i + 4 * L <= len; i += 4 * L) resultsAt<T, N, false, 4>(b, rules, rows, upper, lower, i, 0);
        for (; i + L <= len; i += L) resultsAt<T, N, false, 1>(b, rules, rows, upper, lower, i, 0);
        if (i < len) resultsAt<T, N, false, 1>(b, rules, rows, upper, lower, len - L, 0);
        return;
    }
    T one[L], other[L];
    if (slack >= L * ptrdiff_t(sizeof(T)))
        resultsAt<T, N, false, 1>(b, rules, rows, one, other, 0, 0);
    else
        resultsAt<T, N, true, 1>(b, rules, rows, one, other, 0, len);
    copyBlock(upper, one, len * ptrdiff_t(sizeof(T)));
    if (lower != nullptr) copyBlock(lower, other, len * ptrdiff_t(sizeof(T)));
}

} // namespace

template <class T, int N>
void correlateFloats(const FilterBlock& block, const Region<T, T>& region) {
    const RulesOf<T> rules(block, region.size.width);
    for (int64_t y = 0; y < region.size.height; y += 2)
        rowsOf<T, N>(block, rules, SourceRows<T>(region, y, block.kernelWidth, block.kernelHeight, N),
                     region.dst.row(y), y + 1 < region.size.height ? region.dst.row(y + 1) : nullptr,
                     region.size.width * N, region.slack);
}

#define TPX_FLOATS(T)                                                                            \
    template void correlateFloats<Tpx##T, 1>(const FilterBlock&, const Region<Tpx##T, Tpx##T>&); \
    template void correlateFloats<Tpx##T, 3>(const FilterBlock&, const Region<Tpx##T, Tpx##T>&); \
    template void correlateFloats<Tpx##T, 4>(const FilterBlock&, const Region<Tpx##T, Tpx##T>&);
TPX_FLOATS(8u)
TPX_FLOATS(16u)
TPX_FLOATS(16s)
TPX_FLOATS(32f)
#undef TPX_FLOATS

} // namespace tpx
