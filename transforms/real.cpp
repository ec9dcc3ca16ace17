// SPDX-License-Identifier: Apache-2.0
// Transforms of real images to packed spectra and back.
//
// Forward, columns come first. Sixteen neighbouring columns of a channel are eight complex sequences, column x
// with column x + 8; so rows are read by whole lines, and what a column gives does not depend on the layout.
// Between the passes the destination holds, of vertical frequency k, the real parts in row k and the imaginary
// ones in row H - k: a row pass takes both as a row of complex numbers and leaves the results of frequencies k
// and H - k there, as F(H - k, j) is the conjugate of F(k, W - j). Frequencies 0 and H / 2 have no imaginary
// parts between the passes, so both are the two parts of one row, taken apart afterwards. Columns 0 and W - 1
// are packed along y, so that their places belong to other rows: they wait in the work buffer.
//
// Inverse transforms take the same way back.
#include "frame/entry/entry.h"
#include "transforms/plan.h"

namespace tpx {
namespace {

// ---- Columns ---------------------------------------------------------------------------------------------

// Eight columns of samples, or one, and those that are 8 pixels further right; of so many groups, which are 16
// pixels apart.
template <int Channels, int Whole>
struct ColumnPairs {
    static constexpr int kGroups = Whole ? Whole : 1;
    B32f first, second; // if they are not whole: lanes that exist, and are not of an alpha that stays

    Pair<V32f> load(const float* p, int group) const {
        p += group * 16 * Channels;
        if constexpr (Whole) return {tpx::load(p), tpx::load(p + 8 * Channels)};
        return {loadLanes(p, first), loadLanes(p + 8 * Channels, second)};
    }
    void store(float* p, int group, V32f a, V32f b) const {
        p += group * 16 * Channels;
        if constexpr (Whole) {
            tpx::store(p, a);
            tpx::store(p + 8 * Channels, b);
        } else {
            storeLanes(p, first, a);
            storeLanes(p + 8 * Channels, second, b);
        }
    }
};

// Calls each(columns, x) for all columns of the image, x counting samples: blocks of 16 pixels, two at a time.
template <Layout L, class S, class Each>
void forColumnPairs(ptrdiff_t width, Each each) {
    constexpr int kChannels = channelsOf(L);
    constexpr ptrdiff_t kBlock = 16 * kChannels;
    const ptrdiff_t samples = width * kChannels;
    ptrdiff_t block = 0;
    if constexpr (L != Layout::AC4 && S::kLanes == 8) {
        const auto whole = [&]<int N>(std::integral_constant<int, N>) {
            for (; block + N * kBlock <= samples; block += N * kBlock)
                for (ptrdiff_t x = block; x < block + kBlock / 2; x += 8) each(ColumnPairs<kChannels, N>(), x);
        };
        whole(std::integral_constant<int, kGroups>());
        whole(std::integral_constant<int, 1>());
    }
    const auto lanes = [](ptrdiff_t n) {
        const B32f existing = firstLanes(minOf(n, ptrdiff_t(S::kLanes)));
        return L == Layout::AC4 ? existing & B32f{-1, -1, -1, 0, -1, -1, -1, 0} : existing;
    };
    for (; block < samples; block += kBlock)
        for (ptrdiff_t x = block; x < block + kBlock / 2 && x < samples; x += S::kLanes)
            if (L != Layout::AC4 || S::kLanes == 8 || x % 4 < 3)
                each(ColumnPairs<kChannels, 0>{lanes(samples - x), lanes(samples - x - kBlock / 2)}, x);
}

template <Layout L, class S>
void columnsForward(const Transform& plan, ImageView<const float> from, ImageView<float> to) {
    const ptrdiff_t n = plan.size.height;
    const float factor = scaleOf(*plan.columns, false);
    const V32f scale = splat<V32f>(factor), half = splat<V32f>(factor / 2);
    forColumnPairs<L, S>(plan.size.width, [&]<class Columns>(const Columns& columns, ptrdiff_t x) {
        const ImageView<const float> src = from.from(x, 0);
        const ImageView<float> dst = to.from(x, 0);
        SideBySide<S, Columns> groups(*plan.columns, plan.buffers);
        for (ptrdiff_t y = 0; y < n; y++)
            for (int g = 0; g < Columns::kGroups; g++) {
                const Pair<V32f> samples = columns.load(src.row(y), g);
                groups.of[g].store(y, {samples.low, samples.high});
            }
        for (S& sequences : groups.of) transform(*plan.columns, sequences);
        const auto storeReal = [&](ptrdiff_t k) {
            for (int g = 0; g < Columns::kGroups; g++) {
                const Lanes z = scaled(groups.of[g].load(k), scale);
                columns.store(dst.row(k), g, z.re, z.im);
            }
        };
        storeReal(0);
        for (ptrdiff_t k = 1; k < n - k; k++)
            for (int g = 0; g < Columns::kGroups; g++) {
                const Twins t = takeApart(groups.of[g].load(k), groups.of[g].load(n - k));
                columns.store(dst.row(k), g, t.first.re * half, t.second.re * half);
                columns.store(dst.row(n - k), g, t.first.im * half, t.second.im * half);
            }
        if (n % 2 == 0) storeReal(n / 2);
    });
}

template <Layout L, class S>
void columnsInverse(const Transform& plan, ImageView<float> image) {
    const ptrdiff_t n = plan.size.height;
    const V32f scale = splat<V32f>(scaleOf(*plan.columns, true));
    forColumnPairs<L, S>(plan.size.width, [&]<class Columns>(const Columns& columns, ptrdiff_t x) {
        const ImageView<float> strip = image.from(x, 0);
        SideBySide<S, Columns> groups(*plan.columns, plan.buffers);
        const auto putReal = [&](ptrdiff_t k) {
            for (int g = 0; g < Columns::kGroups; g++) {
                const Pair<V32f> re = columns.load(strip.row(k), g);
                groups.of[g].store(k, turned<true>(Lanes{re.low, re.high}));
            }
        };
        putReal(0);
        for (ptrdiff_t k = 1; k < n - k; k++)
            for (int g = 0; g < Columns::kGroups; g++) {
                const Pair<V32f> re = columns.load(strip.row(k), g), im = columns.load(strip.row(n - k), g);
                const Twins z = putTogether({re.low, im.low}, {re.high, im.high});
                groups.of[g].store(k, turned<true>(z.first));
                groups.of[g].store(n - k, turned<true>(z.second));
            }
        if (n % 2 == 0) putReal(n / 2);
        for (S& sequences : groups.of) transform(*plan.columns, sequences);
        for (ptrdiff_t y = 0; y < n; y++)
            for (int g = 0; g < Columns::kGroups; g++) {
                const Lanes z = turned<true>(scaled(groups.of[g].load(y), scale));
                columns.store(strip.row(y), g, z.re, z.im);
            }
    });
}

// ---- Rows ------------------------------------------------------------------------------------------------

// Vertical frequencies k and H - k in each lane; frequencies 0 and H / 2 in those that are `special`. Rows of
// odd images have none for H / 2, and 0 takes its place. Where there are too few, the last lane repeats.
struct RowPairs {
    ptrdiff_t k[8], mirror[8];
    B32f special;
    bool anySpecial;

    RowPairs(ptrdiff_t first, ptrdiff_t lanes, ptrdiff_t height) {
        anySpecial = first == 0;
        for (int i = 0; i < 8; i++) {
            k[i] = minOf(first + i % lanes, (height - 1) / 2);
            mirror[i] = k[i] ? height - k[i] : height % 2 ? 0 : height / 2;
            special[i] = k[i] ? 0 : -1;
        }
    }
};

// Columns 0 and W - 1 of a spectrum, packed along y: where they belong in `edge`.
void storeEdge(float* edge, ptrdiff_t height, const RowPairs& pairs, Lanes z) {
    for (int i = 0; i < 8; i++) {
        const ptrdiff_t k = pairs.k[i];
        edge[k ? 2 * k - 1 : 0] = z.re[i];
        if (k || height % 2 == 0) edge[k ? 2 * k : height - 1] = z.im[i];
    }
}
Lanes loadEdge(const float* edge, ptrdiff_t height, const RowPairs& pairs) {
    Lanes z;
    for (int i = 0; i < 8; i++) {
        const ptrdiff_t k = pairs.k[i];
        z.re[i] = edge[k ? 2 * k - 1 : 0];
        z.im[i] = edge[k ? 2 * k : height % 2 ? 0 : height - 1];
    }
    return z;
}
inline Lanes chosen(B32f special, Lanes a, Lanes b) {
    return {select(special, a.re, b.re), select(special, a.im, b.im)};
}

template <int Channels, class S>
void rowsForward(const Transform& plan, ImageView<float> image, const RowPairs& pairs, int channel) {
    const ptrdiff_t n = plan.size.width, pairsOfColumns = (n - 1) / 2;
    const auto rows = rowsOf<S, Channels>(image, channel, [&](int i) { return pairs.k[i]; });
    const auto mirrors = rowsOf<S, Channels>(image, channel, [&](int i) { return pairs.mirror[i]; });
    S sequences = sequencesOf<S>(*plan.rows, plan.buffers);
    ptrdiff_t x = 0;
    for (; x + 4 <= n; x += 4) {
        const Several<V32f, 4> re = rows.four(x), im = mirrors.four(x);
        for (int i = 0; i < 4; i++) sequences.store(x + i, {re.at[i], im.at[i]});
    }
    for (; x < n; x++) sequences.store(x, {rows.one(x), mirrors.one(x)});

    transform(*plan.rows, sequences);
    const float factor = scaleOf(*plan.rows, false);
    const V32f scale = splat<V32f>(factor), half = splat<V32f>(factor / 2);
    const auto spectra = [&](ptrdiff_t j) {
        const Lanes z = sequences.load(j), mirror = sequences.load(n - j);
        Twins t = {scaled(z, scale), scaled(conjugate(mirror), scale)};
        if (pairs.anySpecial) {
            const Twins s = takeApart(z, mirror);
            t.first = chosen(pairs.special, scaled(s.first, half), t.first);
            t.second = chosen(pairs.special, scaled(s.second, half), t.second);
        }
        return t;
    };
    storeEdge(plan.edge(channel, false), plan.size.height, pairs, scaled(sequences.load(0), scale));
    if (n % 2 == 0)
        storeEdge(plan.edge(channel, true), plan.size.height, pairs, scaled(sequences.load(n / 2), scale));
    ptrdiff_t j = 1;
    for (; j + 1 <= pairsOfColumns; j += 2) {
        const Twins a = spectra(j), b = spectra(j + 1);
        mirrors.putFour(2 * j - 1, {{a.second.re, a.second.im, b.second.re, b.second.im}});
        rows.putFour(2 * j - 1, {{a.first.re, a.first.im, b.first.re, b.first.im}});
    }
    if (j <= pairsOfColumns) {
        const Twins a = spectra(j);
        mirrors.putOne(2 * j - 1, a.second.re);
        mirrors.putOne(2 * j, a.second.im);
        rows.putOne(2 * j - 1, a.first.re);
        rows.putOne(2 * j, a.first.im);
    }
}

template <int Channels, class S>
void rowsInverse(const Transform& plan, ImageView<const float> src, ImageView<float> dst, const RowPairs& pairs,
                 int channel) {
    const ptrdiff_t n = plan.size.width, pairsOfColumns = (n - 1) / 2;
    S sequences = sequencesOf<S>(*plan.rows, plan.buffers);
    const auto put = [&](ptrdiff_t j, Lanes z) { sequences.store(j, turned<true>(z)); };
    const auto putSpectra = [&](ptrdiff_t j, Lanes a, Lanes b) {
        Twins z = {a, conjugate(b)};
        if (pairs.anySpecial) {
            const Twins s = putTogether(a, b);
            z = {chosen(pairs.special, s.first, z.first), chosen(pairs.special, s.second, z.second)};
        }
        put(j, z.first);
        put(n - j, z.second);
    };
    put(0, loadEdge(plan.edge(channel, false), plan.size.height, pairs));
    if (n % 2 == 0) put(n / 2, loadEdge(plan.edge(channel, true), plan.size.height, pairs));
    const auto rows = rowsOf<S, Channels>(src, channel, [&](int i) { return pairs.k[i]; });
    const auto mirrors = rowsOf<S, Channels>(src, channel, [&](int i) { return pairs.mirror[i]; });
    ptrdiff_t j = 1;
    for (; j + 1 <= pairsOfColumns; j += 2) {
        const Several<V32f, 4> a = rows.four(2 * j - 1), b = mirrors.four(2 * j - 1);
        putSpectra(j, {a.at[0], a.at[1]}, {b.at[0], b.at[1]});
        putSpectra(j + 1, {a.at[2], a.at[3]}, {b.at[2], b.at[3]});
    }
    if (j <= pairsOfColumns)
        putSpectra(j, {rows.one(2 * j - 1), rows.one(2 * j)}, {mirrors.one(2 * j - 1), mirrors.one(2 * j)});

    transform(*plan.rows, sequences);
    const V32f scale = splat<V32f>(scaleOf(*plan.rows, true));
    const auto element = [&](ptrdiff_t x) { return turned<true>(scaled(sequences.load(x), scale)); };
    const auto dstRows = rowsOf<S, Channels>(dst, channel, [&](int i) { return pairs.k[i]; });
    const auto dstMirrors = rowsOf<S, Channels>(dst, channel, [&](int i) { return pairs.mirror[i]; });
    ptrdiff_t x = 0;
    for (; x + 4 <= n; x += 4) {
        const Lanes z[4] = {element(x), element(x + 1), element(x + 2), element(x + 3)};
        dstMirrors.putFour(x, {{z[0].im, z[1].im, z[2].im, z[3].im}});
        dstRows.putFour(x, {{z[0].re, z[1].re, z[2].re, z[3].re}});
    }
    for (; x < n; x++) {
        dstMirrors.putOne(x, element(x).im);
        dstRows.putOne(x, element(x).re);
    }
}

// Calls move(y, x, value in the work buffer) for columns 0 and W - 1 of a packed spectrum, x counting samples.
template <Layout L, class Move>
void forEdges(const Transform& plan, Move move) {
    const ptrdiff_t last = (plan.size.width - 1) * channelsOf(L);
    for (ptrdiff_t y = 0; y < plan.size.height; y++)
        for (int channel = 0; channel < coloursOf(L); channel++) {
            move(y, channel, plan.edge(channel, false)[y]);
            if (plan.size.width % 2 == 0) move(y, last + channel, plan.edge(channel, true)[y]);
        }
}

// ---- Calls -----------------------------------------------------------------------------------------------

template <Layout L, class S>
void rowsForward(const Transform& plan, ImageView<float> image) {
    constexpr int kChannels = channelsOf(L);
    for (ptrdiff_t k = 0; k <= (plan.size.height - 1) / 2; k += S::kLanes)
        for (int channel = 0; channel < coloursOf(L); channel++)
            rowsForward<kChannels, S>(plan, image, RowPairs(k, S::kLanes, plan.size.height), channel);
    forEdges<L>(plan, [&](ptrdiff_t y, ptrdiff_t x, float value) { poke(image.row(y) + x, value); });
}

template <Layout L, class S>
void rowsInverse(const Transform& plan, ImageView<const float> src, ImageView<float> dst) {
    constexpr int kChannels = channelsOf(L);
    forEdges<L>(plan, [&](ptrdiff_t y, ptrdiff_t x, float& value) { value = peek(src.row(y) + x); });
    for (ptrdiff_t k = 0; k <= (plan.size.height - 1) / 2; k += S::kLanes)
        for (int channel = 0; channel < coloursOf(L); channel++)
            rowsInverse<kChannels, S>(plan, src, dst, RowPairs(k, S::kLanes, plan.size.height), channel);
}

template <Layout L>
void forward(const Transform& plan, ImageView<const float> src, ImageView<float> dst) {
    (plan.columns->isLong ? columnsForward<L, LongLine> : columnsForward<L, Group>)(plan, src, dst);
    (plan.rows->isLong ? rowsForward<L, LongLine> : rowsForward<L, Group>)(plan, dst);
}

template <Layout L>
void inverse(const Transform& plan, ImageView<const float> src, ImageView<float> dst) {
    (plan.rows->isLong ? rowsInverse<L, LongLine> : rowsInverse<L, Group>)(plan, src, dst);
    (plan.columns->isLong ? columnsInverse<L, LongLine> : columnsInverse<L, Group>)(plan, dst);
}

template <Layout L, bool Inverse, class Spec>
TpxStatus transformReal(const float* src, int srcStep, float* dst, int dstStep, const Spec* spec,
                        Tpx8u* buffer) {
    return runPlan(src, srcStep, dst, dstStep, spec, buffer, Inverse ? inverse<L> : forward<L>);
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

using namespace tpx;

#define TPX_REAL(name, Spec, layout, inverse)                                                             \
    TPX_ENTRY(name##_##layout##R)                                                                         \
    (const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, const Spec* pSpec, Tpx8u* pBuffer) {     \
        return transformReal<Layout::layout, inverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);      \
    }                                                                                                     \
    TPX_ENTRY(name##_##layout##IR)(Tpx32f * pSrcDst, int srcDstStep, const Spec* pSpec, Tpx8u* pBuffer) { \
        return transformReal<Layout::layout, inverse>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, pSpec,    \
                                                      pBuffer);                                           \
    }
#define TPX_LAYOUTS(name, Spec, inverse) \
    TPX_REAL(name, Spec, C1, inverse)    \
    TPX_REAL(name, Spec, C3, inverse)    \
    TPX_REAL(name, Spec, C4, inverse)    \
    TPX_REAL(name, Spec, AC4, inverse)

TPX_LAYOUTS(tpxiFFTFwd_RToPack_32f, TpxiFFT2DSpec_R, false)
TPX_LAYOUTS(tpxiFFTInv_PackToR_32f, TpxiFFT2DSpec_R, true)
TPX_LAYOUTS(tpxiDFTFwd_RToPack_32f, TpxiDFT2DSpec_R, false)
TPX_LAYOUTS(tpxiDFTInv_PackToR_32f, TpxiDFT2DSpec_R, true)

#undef TPX_LAYOUTS
#undef TPX_REAL
