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
template <Layout L, int Whole>
struct ColumnPairs {
    static constexpr int kChannels = channelsOf(L), kGroups = Whole ? Whole : 1;
    B32f first, second; // if they are not whole: lanes that exist, and are not of an alpha that stays

    Pair<V32f> load(const float* p, int group) const {
        p += group * 16 * kChannels;
        if constexpr (Whole) return {tpx::load(p), tpx::load(p + 8 * kChannels)};
        return {loadLanes(p, first), loadLanes(p + 8 * kChannels, second)};
    }
    void store(float* p, int group, V32f a, V32f b) const {
        p += group * 16 * kChannels;
        if constexpr (Whole && L == Layout::AC4) {
            tpx::store(p, keepAlpha<float>(tpx::load(p), a));
            tpx::store(p + 8 * kChannels, keepAlpha<float>(tpx::load(p + 8 * kChannels), b));
        } else if constexpr (Whole) {
            tpx::store(p, a);
            tpx::store(p + 8 * kChannels, b);
        } else {
            storeLanes(p, first, a);
            storeLanes(p + 8 * kChannels, second, b);
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
    if constexpr (S::kLanes == 8) {
        const auto whole = [&]<int N>(Count<N>) {
            for (; block + N * kBlock <= samples; block += N * kBlock)
                for (ptrdiff_t x = block; x < block + kBlock / 2; x += 8) each(ColumnPairs<L, N>(), x);
        };
        whole(Count<kColumnGroups>());
        whole(Count<1>());
    }
    const auto lanes = [](ptrdiff_t n) {
        const B32f existing = firstLanes(minOf(n, ptrdiff_t(S::kLanes)));
        return L == Layout::AC4 ? existing & B32f{-1, -1, -1, 0, -1, -1, -1, 0} : existing;
    };
    for (; block < samples; block += kBlock)
        for (ptrdiff_t x = block; x < block + kBlock / 2 && x < samples; x += S::kLanes)
            if (L != Layout::AC4 || S::kLanes == 8 || x % 4 < 3)
                each(ColumnPairs<L, 0>{lanes(samples - x), lanes(samples - x - kBlock / 2)}, x);
}

template <Layout L, class S>
void columnsForward(const Transform& plan, ImageView<const float> from, ImageView<float> to) {
    const ptrdiff_t n = plan.size.height;
    const float factor = scaleOf(*plan.columns, false);
    const V32f scale = splat<V32f>(factor), half = splat<V32f>(factor / 2);
    forColumnPairs<L, S>(plan.size.width, [&]<class Columns>(const Columns& columns, ptrdiff_t x) {
        const ImageView<const float> src = from.from(x, 0);
        const ImageView<float> dst = to.from(x, 0);
        SideBySide<S, Columns::kGroups> groups(*plan.columns, plan.buffers);
        for (ptrdiff_t y = 0; y < n; y++)
            for (int g = 0; g < Columns::kGroups; g++) {
                const Pair<V32f> samples = columns.load(src.row(y), g);
                groups.of[g].store(y, {samples.low, samples.high});
            }
        groups.transform(*plan.columns);
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
        SideBySide<S, Columns::kGroups> groups(*plan.columns, plan.buffers);
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
        groups.transform(*plan.columns);
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

template <class S, Layout L, class T>
auto rowsAt(ImageView<T> image, int channel, const ptrdiff_t (&rowOfLane)[8]) {
    return rowsOf<S, L>(image.from(channel, 0), [&](int i) { return rowOfLane[i]; });
}

// Rows of one channel, or of as many from there on as the sequences take at a time.
template <Layout L, class S>
void rowPairsForward(const Transform& plan, ImageView<float> image, const RowPairs& pairs, int channel) {
    constexpr int kChannels = kChannelsOf<S, L>;
    const ptrdiff_t n = plan.size.width, pairsOfColumns = (n - 1) / 2;
    const auto rows = rowsAt<S, L>(image, channel, pairs.k),
               mirrors = rowsAt<S, L>(image, channel, pairs.mirror);
    SideBySide<S, kChannels> groups(*plan.rows, plan.buffers);
    inSteps<4>(n, [&]<int N>(ptrdiff_t x, Count<N>) {
        rows.template load<N>(x, [&](int i, int c, V32f re) { groups.of[c].store(x + i, false, re); });
        mirrors.template load<N>(x, [&](int i, int c, V32f im) { groups.of[c].store(x + i, true, im); });
    });

    groups.transform(*plan.rows);
    const float factor = scaleOf(*plan.rows, false);
    const V32f scale = splat<V32f>(factor), half = splat<V32f>(factor / 2);
    for (int c = 0; c < kChannels; c++) {
        const auto packEdge = [&](bool last, ptrdiff_t j) {
            storeEdge(plan.edge(channel + c, last), plan.size.height, pairs,
                      scaled(groups.of[c].load(j), scale));
        };
        packEdge(false, 0);
        if (n % 2 == 0) packEdge(true, n / 2);
    }
    const auto spectra = [&](int c, ptrdiff_t j) {
        const Lanes z = groups.of[c].load(j), mirror = groups.of[c].load(n - j);
        Twins t = {scaled(z, scale), scaled(conjugate(mirror), scale)};
        if (pairs.anySpecial) {
            const Twins s = takeApart(z, mirror);
            t.first = chosen(pairs.special, scaled(s.first, half), t.first);
            t.second = chosen(pairs.special, scaled(s.second, half), t.second);
        }
        return t;
    };
    inSteps<2>(pairsOfColumns, [&]<int N>(ptrdiff_t before, Count<N>) {
        const ptrdiff_t j = before + 1;
        Twins t[N][kChannels];
        for (int i = 0; i < N; i++)
            for (int c = 0; c < kChannels; c++) t[i][c] = spectra(c, j + i);
        const auto part = [](Lanes z, int i) { return i % 2 ? z.im : z.re; };
        mirrors.template store<2 * N>(2 * j - 1, [&](int i, int c) { return part(t[i / 2][c].second, i); });
        rows.template store<2 * N>(2 * j - 1, [&](int i, int c) { return part(t[i / 2][c].first, i); });
    });
}

template <Layout L, class S>
void rowPairsInverse(const Transform& plan, ImageView<const float> src, ImageView<float> dst,
                     const RowPairs& pairs, int channel) {
    constexpr int kChannels = kChannelsOf<S, L>;
    const ptrdiff_t n = plan.size.width, pairsOfColumns = (n - 1) / 2;
    SideBySide<S, kChannels> groups(*plan.rows, plan.buffers);
    const auto rows = rowsAt<S, L>(src, channel, pairs.k), mirrors = rowsAt<S, L>(src, channel, pairs.mirror);
    const auto put = [&](int c, ptrdiff_t j, Lanes z) { groups.of[c].store(j, turned<true>(z)); };
    const auto putSpectra = [&](int c, ptrdiff_t j, Lanes a, Lanes b) {
        Twins z = {a, conjugate(b)};
        if (pairs.anySpecial) {
            const Twins s = putTogether(a, b);
            z = {chosen(pairs.special, s.first, z.first), chosen(pairs.special, s.second, z.second)};
        }
        put(c, j, z.first);
        put(c, n - j, z.second);
    };
    inSteps<2>(pairsOfColumns, [&]<int N>(ptrdiff_t before, Count<N>) {
        const ptrdiff_t j = before + 1;
        V32f a[2 * N][kChannels], b[2 * N][kChannels];
        rows.template load<2 * N>(2 * j - 1, [&](int i, int c, V32f part) { a[i][c] = part; });
        mirrors.template load<2 * N>(2 * j - 1, [&](int i, int c, V32f part) { b[i][c] = part; });
        for (int i = 0; i < 2 * N; i += 2)
            for (int c = 0; c < kChannels; c++)
                putSpectra(c, j + i / 2, {a[i][c], a[i + 1][c]}, {b[i][c], b[i + 1][c]});
    });
    for (int c = 0; c < kChannels; c++) {
        put(c, 0, loadEdge(plan.edge(channel + c, false), plan.size.height, pairs));
        if (n % 2 == 0) put(c, n / 2, loadEdge(plan.edge(channel + c, true), plan.size.height, pairs));
    }

    groups.transform(*plan.rows);
    const V32f scale = splat<V32f>(scaleOf(*plan.rows, true));
    const auto dstRows = rowsAt<S, L>(dst, channel, pairs.k),
               dstMirrors = rowsAt<S, L>(dst, channel, pairs.mirror);
    inSteps<4>(n, [&]<int N>(ptrdiff_t x, Count<N>) {
        dstMirrors.template store<N>(x, [&](int i, int c) { return groups.of[c].load(x + i, false) * scale; });
        dstRows.template store<N>(x, [&](int i, int c) { return groups.of[c].load(x + i, true) * scale; });
    });
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

// Calls each(pairs, channel) for all rows and channels, as many at a time as the sequences take.
template <Layout L, class S, class Each>
void forRowPairs(ptrdiff_t height, Each each) {
    for (ptrdiff_t k = 0; k <= (height - 1) / 2; k += S::kLanes)
        for (int channel = 0; channel < coloursOf(L); channel += kChannelsOf<S, L>)
            each(RowPairs(k, S::kLanes, height), channel);
}

template <Layout L, class S>
void rowsForward(const Transform& plan, ImageView<float> image) {
    forRowPairs<L, S>(plan.size.height, [&](const RowPairs& pairs, int channel) {
        rowPairsForward<L, S>(plan, image, pairs, channel);
    });
    forEdges<L>(plan, [&](ptrdiff_t y, ptrdiff_t x, float value) { poke(image.row(y) + x, value); });
}

template <Layout L, class S>
void rowsInverse(const Transform& plan, ImageView<const float> src, ImageView<float> dst) {
    forEdges<L>(plan, [&](ptrdiff_t y, ptrdiff_t x, float& value) { value = peek(src.row(y) + x); });
    forRowPairs<L, S>(plan.size.height, [&](const RowPairs& pairs, int channel) {
        rowPairsInverse<L, S>(plan, src, dst, pairs, channel);
    });
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
