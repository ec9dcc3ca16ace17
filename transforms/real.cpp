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

// Eight columns of samples and eight that are 8 pixels further right.
template <int Channels, bool Whole>
struct ColumnPairs {
    B32f first, second, firstStored, secondStored; // lanes that exist; those that are no alpha

    // `samples` are left from the first one on.
    ColumnPairs(ptrdiff_t samples, bool keepsAlpha) {
        first = firstStored = firstLanes(samples);
        second = secondStored = firstLanes(samples - 8 * Channels);
        if (keepsAlpha) {
            const B32f colours = {-1, -1, -1, 0, -1, -1, -1, 0};
            firstStored &= colours;
            secondStored &= colours;
        }
    }
    Pair<V32f> load(const float* p) const {
        if constexpr (Whole) return {tpx::load(p), tpx::load(p + 8 * Channels)};
        return {loadLanes(p, first), loadLanes(p + 8 * Channels, second)};
    }
    void store(float* p, V32f a, V32f b) const {
        if constexpr (Whole) {
            tpx::store(p, a);
            tpx::store(p + 8 * Channels, b);
        } else {
            storeLanes(p, firstStored, a);
            storeLanes(p + 8 * Channels, secondStored, b);
        }
    }
};

template <class Columns>
void columnsForward(const Transform& plan, ImageView<const float> src, ImageView<float> dst,
                    const Columns& columns) {
    const ptrdiff_t n = plan.size.height;
    for (ptrdiff_t y = 0; y < n; y++) {
        const Pair<V32f> samples = columns.load(src.row(y));
        storeElement(elementAt(plan.work.data, y), {samples.low, samples.high});
    }
    float* const result = transform(*plan.columns, plan.work.data, plan.work.other);
    const float factor = Transform::scaleOf(*plan.columns, false);
    const V32f scale = splat<V32f>(factor), half = splat<V32f>(factor / 2);
    const auto storeReal = [&](ptrdiff_t k) {
        const Lanes z = scaled(loadElement(elementAt(result, k)), scale);
        columns.store(dst.row(k), z.re, z.im);
    };
    storeReal(0);
    for (ptrdiff_t k = 1; k < n - k; k++) {
        const Twins t = takeApart(loadElement(elementAt(result, k)), loadElement(elementAt(result, n - k)));
        columns.store(dst.row(k), t.first.re * half, t.second.re * half);
        columns.store(dst.row(n - k), t.first.im * half, t.second.im * half);
    }
    if (n % 2 == 0) storeReal(n / 2);
}

template <class Columns>
void columnsInverse(const Transform& plan, ImageView<float> image, const Columns& columns) {
    const ptrdiff_t n = plan.size.height;
    const auto put = [&](ptrdiff_t k, Lanes z) { storeElement(elementAt(plan.work.data, k), turned<true>(z)); };
    const auto putReal = [&](ptrdiff_t k) {
        const Pair<V32f> re = columns.load(image.row(k));
        put(k, {re.low, re.high});
    };
    putReal(0);
    for (ptrdiff_t k = 1; k < n - k; k++) {
        const Pair<V32f> re = columns.load(image.row(k)), im = columns.load(image.row(n - k));
        const Twins z = putTogether({re.low, im.low}, {re.high, im.high});
        put(k, z.first);
        put(n - k, z.second);
    }
    if (n % 2 == 0) putReal(n / 2);
    float* const result = transform(*plan.columns, plan.work.data, plan.work.other);
    const V32f scale = splat<V32f>(Transform::scaleOf(*plan.columns, true));
    for (ptrdiff_t y = 0; y < n; y++) {
        const Lanes z = turned<true>(scaled(loadElement(elementAt(result, y)), scale));
        columns.store(image.row(y), z.re, z.im);
    }
}

// Calls pairs(columns, x) for all columns of the image, x counting samples: blocks of 16 pixels.
template <int Channels, class Each>
void forColumnPairs(Extent size, bool keepsAlpha, Each each) {
    const ptrdiff_t samples = size.width * Channels;
    for (ptrdiff_t block = 0; block < samples; block += 16 * Channels)
        for (ptrdiff_t x = block; x < block + 8 * Channels && x < samples; x += 8) {
            if (!keepsAlpha && block + 16 * Channels <= samples)
                each(ColumnPairs<Channels, true>(samples - x, false), x);
            else
                each(ColumnPairs<Channels, false>(samples - x, keepsAlpha), x);
        }
}

// ---- Rows ------------------------------------------------------------------------------------------------

// Vertical frequencies k and H - k in each lane; frequencies 0 and H / 2 in those that are `special`. Rows of
// odd images have none for H / 2, and 0 takes its place. Where there are too few, the last lane repeats.
struct RowPairs {
    ptrdiff_t k[8], mirror[8];
    B32f special;
    bool anySpecial;

    RowPairs(ptrdiff_t first, ptrdiff_t height) {
        anySpecial = first == 0;
        for (int i = 0; i < 8; i++) {
            k[i] = minOf(first + i, (height - 1) / 2);
            mirror[i] = k[i] ? height - k[i] : height % 2 ? 0 : height / 2;
            special[i] = k[i] ? 0 : -1;
        }
    }
};

template <int Channels, class T>
EightRows<T, Channels> rowsOf(ImageView<T> image, const ptrdiff_t (&y)[8], int channel) {
    EightRows<T, Channels> rows;
    for (int i = 0; i < 8; i++) rows.row[i] = image.row(y[i]) + channel;
    return rows;
}

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

template <int Channels>
void rowsForward(const Transform& plan, ImageView<float> image, const RowPairs& pairs, int channel) {
    const ptrdiff_t n = plan.size.width, pairsOfColumns = (n - 1) / 2;
    const auto rows = rowsOf<Channels>(image, pairs.k, channel);
    const auto mirrors = rowsOf<Channels>(image, pairs.mirror, channel);
    ptrdiff_t x = 0;
    for (; x + 4 <= n; x += 4) {
        const Several<V32f, 4> re = rows.four(x), im = mirrors.four(x);
        for (int i = 0; i < 4; i++) storeElement(elementAt(plan.work.data, x + i), {re.at[i], im.at[i]});
    }
    for (; x < n; x++) storeElement(elementAt(plan.work.data, x), {rows.one(x), mirrors.one(x)});

    float* const result = transform(*plan.rows, plan.work.data, plan.work.other);
    const float factor = Transform::scaleOf(*plan.rows, false);
    const V32f scale = splat<V32f>(factor), half = splat<V32f>(factor / 2);
    const auto spectra = [&](ptrdiff_t j) {
        const Lanes z = loadElement(elementAt(result, j)), mirror = loadElement(elementAt(result, n - j));
        Twins t = {scaled(z, scale), scaled(conjugate(mirror), scale)};
        if (pairs.anySpecial) {
            const Twins s = takeApart(z, mirror);
            t.first = chosen(pairs.special, scaled(s.first, half), t.first);
            t.second = chosen(pairs.special, scaled(s.second, half), t.second);
        }
        return t;
    };
    storeEdge(plan.work.edges[0], plan.size.height, pairs, scaled(loadElement(result), scale));
    if (n % 2 == 0)
        storeEdge(plan.work.edges[1], plan.size.height, pairs,
                  scaled(loadElement(elementAt(result, n / 2)), scale));
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

template <int Channels>
void rowsInverse(const Transform& plan, ImageView<const float> src, ImageView<float> dst, const RowPairs& pairs,
                 int channel) {
    const ptrdiff_t n = plan.size.width, pairsOfColumns = (n - 1) / 2;
    const auto put = [&](ptrdiff_t j, Lanes z) { storeElement(elementAt(plan.work.data, j), turned<true>(z)); };
    const auto putSpectra = [&](ptrdiff_t j, Lanes a, Lanes b) {
        Twins z = {a, conjugate(b)};
        if (pairs.anySpecial) {
            const Twins s = putTogether(a, b);
            z = {chosen(pairs.special, s.first, z.first), chosen(pairs.special, s.second, z.second)};
        }
        put(j, z.first);
        put(n - j, z.second);
    };
    put(0, loadEdge(plan.work.edges[0], plan.size.height, pairs));
    if (n % 2 == 0) put(n / 2, loadEdge(plan.work.edges[1], plan.size.height, pairs));
    const auto rows = rowsOf<Channels>(src, pairs.k, channel);
    const auto mirrors = rowsOf<Channels>(src, pairs.mirror, channel);
    ptrdiff_t j = 1;
    for (; j + 1 <= pairsOfColumns; j += 2) {
        const Several<V32f, 4> a = rows.four(2 * j - 1), b = mirrors.four(2 * j - 1);
        putSpectra(j, {a.at[0], a.at[1]}, {b.at[0], b.at[1]});
        putSpectra(j + 1, {a.at[2], a.at[3]}, {b.at[2], b.at[3]});
    }
    if (j <= pairsOfColumns)
        putSpectra(j, {rows.one(2 * j - 1), rows.one(2 * j)}, {mirrors.one(2 * j - 1), mirrors.one(2 * j)});

    float* const result = transform(*plan.rows, plan.work.data, plan.work.other);
    const V32f scale = splat<V32f>(Transform::scaleOf(*plan.rows, true));
    const auto element = [&](ptrdiff_t x) {
        return turned<true>(scaled(loadElement(elementAt(result, x)), scale));
    };
    const auto dstRows = rowsOf<Channels>(dst, pairs.k, channel);
    const auto dstMirrors = rowsOf<Channels>(dst, pairs.mirror, channel);
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

// Between columns 0 and W - 1 of a channel and the work buffer.
template <int Channels, class Move>
void moveEdges(const Transform& plan, Move move, int channel) {
    const ptrdiff_t last = (plan.size.width - 1) * Channels + channel;
    for (ptrdiff_t y = 0; y < plan.size.height; y++) {
        move(y, channel, plan.work.edges[0][y]);
        if (plan.size.width % 2 == 0) move(y, last, plan.work.edges[1][y]);
    }
}

// ---- Calls -----------------------------------------------------------------------------------------------

template <Layout L>
void forward(const Transform& plan, ImageView<const float> src, ImageView<float> dst) {
    constexpr int kChannels = channelsOf(L);
    forColumnPairs<kChannels>(plan.size, L == Layout::AC4, [&](const auto& columns, ptrdiff_t x) {
        columnsForward(plan, src.from(x, 0), dst.from(x, 0), columns);
    });
    for (int channel = 0; channel < coloursOf(L); channel++) {
        for (ptrdiff_t k = 0; k <= (plan.size.height - 1) / 2; k += 8)
            rowsForward<kChannels>(plan, dst, RowPairs(k, plan.size.height), channel);
        moveEdges<kChannels>(
            plan, [&](ptrdiff_t y, ptrdiff_t x, float value) { poke(dst.row(y) + x, value); }, channel);
    }
}

template <Layout L>
void inverse(const Transform& plan, ImageView<const float> src, ImageView<float> dst) {
    constexpr int kChannels = channelsOf(L);
    for (int channel = 0; channel < coloursOf(L); channel++) {
        moveEdges<kChannels>(
            plan, [&](ptrdiff_t y, ptrdiff_t x, float& value) { value = peek(src.row(y) + x); }, channel);
        for (ptrdiff_t k = 0; k <= (plan.size.height - 1) / 2; k += 8)
            rowsInverse<kChannels>(plan, src, dst, RowPairs(k, plan.size.height), channel);
    }
    forColumnPairs<kChannels>(plan.size, L == Layout::AC4, [&](const auto& columns, ptrdiff_t x) {
        columnsInverse(plan, dst.from(x, 0), columns);
    });
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
