// SPDX-License-Identifier: Apache-2.0
// tpxiFilterMedianColor: of the colours under a mask the one that is nearest to all others.
#include "filters/fixed_masks.h"

namespace tpx {
namespace {

// ---- Vector medians ---------------------------------------------------------------------------------------

// Lanes that hold the samples' differences, and the sums of the distances under the largest mask.
template <class T>
using DistanceLane =
    std::conditional_t<sizeof(T) == 1, Tpx16s, std::conditional_t<sizeof(T) == 2, Tpx32s, Tpx32f>>;

inline V16s distance(V16s a, V16s b) { return V16s(magnitude(V16s(a - b))); }
inline V32s distance(V32s a, V32s b) { return V32s(magnitude(V32s(a - b))); }
inline V32f distance(V32f a, V32f b) { return absSat(a - b); }

// Tiles of columns are walked from the top. Every row's colours become registers of one channel, and its
// pixels' distances to those of the rows above that share a window with them are computed once; a window then
// only adds up distances.
template <class T, int K>
class VectorMedian {
    using Lane = DistanceLane<T>;
    using V = Vec<Lane>;
    static constexpr int kLane = kLanes<Lane>, kTile = 128 / int(sizeof(Lane)), kReach = K - 1;
    static constexpr int kColumns = (kTile + kReach + kLane - 1) / kLane * kLane;

    // The distances of a row's pixels to those of its own row on their right, and of the K - 1 rows above,
    // whose columns are higher by -kReach to kReach. A distance stands at the column of the pixel further left.
    static constexpr int kDistances = kReach + kReach * (2 * K - 1);
    static constexpr int numberOf(int rowsAbove, int columns) {
        return rowsAbove == 0 ? columns - 1 : kReach + (rowsAbove - 1) * (2 * K - 1) + columns + kReach;
    }
    struct Row {
        alignas(32) Lane colours[3][kColumns + kReach];
        alignas(32) Lane distances[kDistances][kColumns];
    };

 public:
    // Pixels of so many samples.
    explicit VectorMedian(int channels) : channels_(channels) {}

    void operator()(const Region<T, T>& region) const {
        Row rows[K] = {};
        ptrdiff_t offsets[K * K]; // in bytes, of a window's pixels from its first one
        for (int i = 0; i < K * K; i++)
            offsets[i] = i / K * region.src.step + i % K * channels_ * ptrdiff_t(sizeof(T));
        for (int64_t x = 0; x < region.size.width; x += kTile) {
            const int64_t left = region.size.width - x, tile = left < kTile ? left : kTile;
            const ImageView<const T> src = region.src.from((x - K / 2) * channels_, -(K / 2));
            for (int64_t y = 0; y < region.size.height + kReach; y++) {
                // The newest row is rows[y % K].
                take(src.row(y), tile + kReach, rows[y % K]);
                for (int above = 0; above <= (y < kReach ? y : kReach); above++)
                    measure(rows[(y - above) % K], rows[y % K], above);
                if (y < kReach) continue;
                const Row* window[K];
                for (int r = 0; r < K; r++) window[r] = &rows[(y - kReach + r) % K];
                Lane chosen[kTile];
                choose(window, chosen, tile);
                const T* const from = src.from(0, y - kReach).data;
                T* const to = region.dst.from(x * channels_, y - kReach).data;
                channels_ == 3 ? copyChosen<3>(chosen, offsets, from, to, tile)
                               : copyChosen<4>(chosen, offsets, from, to, tile);
            }
        }
    }

 private:
    void take(const T* src, int64_t pixels, Row& row) const {
        channels_ == 3 ? takeOf<3>(src, pixels, row) : takeOf<4>(src, pixels, row);
    }
    template <int N>
    static void takeOf(const T* src, int64_t pixels, Row& row) {
        for (int64_t i = 0; i < pixels; i++)
            for (int c = 0; c < 3; c++) row.colours[c][i] = Lane(peek(src + i * N + c));
    }

    static void measure(const Row& upper, Row& lower, int above) {
        for (int columns = above == 0 ? 1 : -kReach; columns <= kReach; columns++) {
            // Columns are those by which the upper pixel is further right.
            const int upperAt = columns > 0 ? columns : 0, lowerAt = columns < 0 ? -columns : 0;
            Lane* const to = lower.distances[numberOf(above, columns)];
            for (int i = 0; i < kColumns; i += kLane) {
                const auto ofChannel = [&](int c) {
                    return distance(load(upper.colours[c] + upperAt + i), load(lower.colours[c] + lowerAt + i));
                };
                store(to + i, ofChannel(0) + ofChannel(1) + ofChannel(2));
            }
        }
    }

    // The distance between the window's pixels I and J, for a register of windows from column x on.
    template <int I, int J>
    [[gnu::always_inline]] static V between(const Row* const* window, int64_t x) {
        constexpr int upper = I < J ? I : J, lower = I < J ? J : I, above = lower / K - upper / K;
        constexpr int difference = upper % K - lower % K;
        constexpr int columns = above == 0 ? -difference : difference;
        constexpr int at = upper % K < lower % K ? upper % K : lower % K;
        return load(window[lower / K]->distances[numberOf(above, columns)] + x + at);
    }

    static void choose(const Row* const* window, Lane* chosen, int64_t pixels) {
        for (int64_t x = 0; x < pixels; x += kLane) {
            V least = splat<V>(std::is_floating_point_v<Lane> ? Lane(__builtin_inf()) : kMax<Lane>);
            V first{};
            unroll<K * K>([&](auto i) __attribute__((always_inline)) {
                V sum{};
                unroll<K * K>([&](auto j) __attribute__((always_inline)) {
                    if constexpr (i != j) sum += between<i, j>(window, x);
                });
                const auto less = sum < least;
                first = select(less, splat<V>(Lane(int(i))), first);
                least = select(less, sum, least);
            });
            store(chosen + x, first);
        }
    }
    // `src` are the windows' first pixels.
    template <int N>
    static void copyChosen(const Lane* chosen, const ptrdiff_t* offsets, const T* src, T* dst, int64_t pixels) {
        struct Colour {
            T samples[3];
        };
        for (int64_t x = 0; x < pixels; x++)
            poke(reinterpret_cast<Colour*>(dst + x * N),
                 peek(reinterpret_cast<const Colour*>(addBytes(src + x * N, offsets[int(chosen[x])]))));
    }

    int channels_;
};

template <Layout L, class T>
TpxStatus medianColour(ImageView<const T> src, ImageView<T> dst, TpxiSizeL roi, int mask) {
    if (anyNull(src.data) || anyNull(dst.data)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (src.step < 1 || dst.step < 1) return tpxErrStep;
    if (!isMask(mask, false)) return tpxErrMaskSize;
    const Region<T, T> region{src, dst, roi, 0};
    if (mask == 33)
        VectorMedian<T, 3>(channelsOf(L))(region);
    else
        VectorMedian<T, 5>(channelsOf(L))(region);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

#define TPX_MEDIAN_COLOR(T, L)                                                                         \
    TPX_ENTRY(tpxiFilterMedianColor_##T##_##L##R)                                                      \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, int mask) {         \
        return medianColour<Layout::L, Tpx##T>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), mask); \
    }
#define TPX_MEDIAN_COLOR_LAYOUTS(T) TPX_MEDIAN_COLOR(T, C3) TPX_MEDIAN_COLOR(T, AC4)

TPX_MEDIAN_COLOR_LAYOUTS(8u)
TPX_MEDIAN_COLOR_LAYOUTS(16s)
TPX_MEDIAN_COLOR_LAYOUTS(32f)
#undef TPX_MEDIAN_COLOR
#undef TPX_MEDIAN_COLOR_LAYOUTS
