// SPDX-License-Identifier: Apache-2.0
// Correlation with kernels of floats. Two rows of results share the loads of the rows between them. Each sum
// runs over the taps in raster order, from the first product on, whatever its place in the image.
#include "filters/general.h"
#include "frame/images/row_ring.h"

namespace tpx {
namespace {

// ---- Sums -------------------------------------------------------------------------------------------------

inline constexpr ptrdiff_t kRegister = kLanes<Tpx32f>;

// Samples of any type in as many bytes as floats have.
template <class T>
inline constexpr ptrdiff_t kShortRoom = kRegister* ptrdiff_t(sizeof(Tpx32f) / sizeof(T));

template <int Registers>
struct TwoSums {
    V32f upper[Registers], lower[Registers];
};

// A register of samples as floats; none but the first `count` samples are read if Short.
template <bool Short, class T>
[[gnu::always_inline]] inline V32f loadFloats(const T* p, ptrdiff_t count) {
    T samples[kShortRoom<T>] = {};
    if constexpr (Short) {
        copyShort(samples, p, count * ptrdiff_t(sizeof(T)));
        p = samples;
    }
    V32f v;
    if constexpr (std::is_same_v<T, Tpx32f>)
        v = load(p);
    else
        v = loadAs<Tpx32f>(p);
    return inRegister(v); // from which both products take it
}

// Each source row is one of both results' kernels' rows, but for the first and the last. Rows tells where a row
// of the kernel over the upper result begins; pixels have so many channels.
template <bool Short, int Registers, class Rows>
[[gnu::always_inline]] inline TwoSums<Registers> sumsAt(const FilterBlock& b, const Rows& rows,
                                                        ptrdiff_t channels, ptrdiff_t i, ptrdiff_t count) {
    const ptrdiff_t width = b.kernelWidth, height = b.kernelHeight;
    TwoSums<Registers> sums;
    for (int k = 0; k < Registers; k++)
        sums.upper[k] = sums.lower[k] = splat<V32f>(-0.0f); // the number that changes no other
    // Coefficients from the last to the first.
    const Tpx32f* const first = b.kernel32 + width * height - 1;
    const auto addRow = [&]<bool Upper, bool Lower>(ptrdiff_t r) __attribute__((always_inline)) {
        auto row = rows[r] + i;
        const Tpx32f *forUpper = first - r * width, *forLower = forUpper + width;
        for (ptrdiff_t x = 0; x < width; x++, row += channels, forUpper--, forLower--)
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

// ---- Rows of results --------------------------------------------------------------------------------------

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

template <class T, bool Short, int Registers, class Rows>
[[gnu::always_inline]] inline void resultsAt(const FilterBlock& b, const RulesOf<T>& rules, const Rows& rows,
                                             ptrdiff_t channels, ResultRows<T> dst, ptrdiff_t i,
                                             ptrdiff_t count) {
    const TwoSums<Registers> sums = sumsAt<Short, Registers>(b, rows, channels, i, count);
    for (int k = 0; k < Registers; k++) storeResults(dst.upper + i + k * kRegister, sums.upper[k], rules);
    if (dst.lower == nullptr) return;
    for (int k = 0; k < Registers; k++) storeResults(dst.lower + i + k * kRegister, sums.lower[k], rules);
}

// Not inlined: the addresses of the loop over taps have the registers to themselves.
template <class T, class Rows>
[[gnu::noinline]] void longRows(const FilterBlock& b, const RulesOf<T>& rules, const Rows& rows,
                                ptrdiff_t channels, ResultRows<T> dst, ptrdiff_t len) {
    ptrdiff_t i = 0;
    for (; i + 4 * kRegister <= len; i += 4 * kRegister)
        resultsAt<T, false, 4>(b, rules, rows, channels, dst, i, 0);
    for (; i < len; i += kRegister)
        resultsAt<T, false, 1>(b, rules, rows, channels, dst, i + kRegister <= len ? i : len - kRegister, 0);
}

// Fewer samples than a register.
template <class T>
void shortRows(const FilterBlock& b, const RulesOf<T>& rules, const SourceRows<T>& rows, ptrdiff_t channels,
               ResultRows<T> dst, ptrdiff_t len, ptrdiff_t slack) {
    T upper[kShortRoom<T>], lower[kShortRoom<T>];
    if (slack >= kRegister * ptrdiff_t(sizeof(T)))
        resultsAt<T, false, 1>(b, rules, rows, channels, {upper, lower}, 0, 0);
    else
        resultsAt<T, true, 1>(b, rules, rows, channels, {upper, lower}, 0, len);
    copyBlock(dst.upper, upper, len * ptrdiff_t(sizeof(T)));
    if (dst.lower != nullptr) copyBlock(dst.lower, lower, len * ptrdiff_t(sizeof(T)));
}

// ---- Regions ----------------------------------------------------------------------------------------------

template <class T>
class FloatCorrelation {
 public:
    FloatCorrelation(const FilterBlock& block, const Region<T, T>& region, ptrdiff_t channels)
        : block_(block),
          region_(region),
          rules_(block, region.size.width),
          channels_(channels),
          len_(region.size.width * channels) {}

    void run() const {
        if constexpr (!std::is_same_v<T, Tpx32f>) {
            const ptrdiff_t room = roomOfRow();
            if (len_ >= kRegister && room >= 4 * kRegister) return throughFloats(room);
        }
        for (int64_t y = 0; y < region_.size.height; y += 2) {
            const SourceRows<T> rows(region_, y, block_, channels_);
            const ResultRows<T> results(region_, y, 0);
            if (len_ >= kRegister)
                longRows<T>(block_, rules_, rows, channels_, results, len_);
            else
                shortRows<T>(block_, rules_, rows, channels_, results, len_, region_.slack);
        }
    }

 private:
    static constexpr ptrdiff_t kRoom = 6144; // of floats, for the rows that two rows of results read

    ptrdiff_t reach() const { return (block_.kernelWidth - 1) * channels_; }
    // Results that a row of the ring has the samples for.
    ptrdiff_t roomOfRow() const { return kRoom / (block_.kernelHeight + ptrdiff_t(1)) - reach(); }

    // Integers are converted once, into a ring of rows, and the image is taken in bands of columns for which
    // the ring is small. Kernels that are too large for it convert at every tap.
    void throughFloats(ptrdiff_t room) const {
        alignas(32) Tpx32f memory[kRoom];
        const int64_t last = region_.size.height + block_.kernelHeight - 2;
        const SourceRows<T> source(region_, 0, block_, channels_);
        forBands(len_, room, 4 * kRegister, kRegister, [&](ptrdiff_t from, ptrdiff_t len) {
            RowRing<Tpx32f> ring(memory, len + reach(), block_.kernelHeight + 1);
            for (int64_t y = 0; y < region_.size.height; y += 2) {
                ring.moveTo(y, [&](int64_t row, Tpx32f* floats) {
                    toFloats(source[row < last ? row : last] + from, floats, len + reach());
                });
                longRows<T>(block_, rules_, RingRows{ring}, channels_, ResultRows<T>(region_, y, from), len);
            }
        });
    }
    struct RingRows {
        const RowRing<Tpx32f>& ring;
        const Tpx32f* operator[](ptrdiff_t r) const { return ring.at(r); }
    };
    // At least a register; the last one may overlap the one before it.
    static void toFloats(const T* src, Tpx32f* dst, ptrdiff_t len) {
        ptrdiff_t i = 0;
        for (; i + kRegister <= len; i += kRegister) store(dst + i, loadAs<Tpx32f>(src + i));
        if (i < len) store(dst + len - kRegister, loadAs<Tpx32f>(src + len - kRegister));
    }

    const FilterBlock& block_;
    const Region<T, T>& region_;
    RulesOf<T> rules_;
    ptrdiff_t channels_, len_;
};

} // namespace

template <class T>
void correlateFloats(const FilterBlock& block, const Region<T, T>& region, int channels) {
    FloatCorrelation<T>(block, region, channels).run();
}
template void correlateFloats(const FilterBlock&, const Region<Tpx8u, Tpx8u>&, int);
template void correlateFloats(const FilterBlock&, const Region<Tpx16u, Tpx16u>&, int);
template void correlateFloats(const FilterBlock&, const Region<Tpx16s, Tpx16s>&, int);
template void correlateFloats(const FilterBlock&, const Region<Tpx32f, Tpx32f>&, int);

} // namespace tpx
