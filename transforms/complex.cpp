// Transforms of complex images: rows, then columns, eight at a time.
#include "frame/entry/entry.h"
#include "transforms/plan.h"

namespace tpx {
namespace {

// ---- Rows ------------------------------------------------------------------------------------------------

// Rows y to y + 7; where there are fewer, the last one fills the other lanes.
template <class T>
EightRows<T, 1> eightRows(ImageView<T> image, ptrdiff_t y, ptrdiff_t height) {
    EightRows<T, 1> rows;
    for (int i = 0; i < 8; i++) rows.row[i] = image.row(minOf(y + i, height - 1));
    return rows;
}

// A register holds the samples of eight rows, so two are an element.
template <bool Inverse>
void loadRows(const EightRows<const float, 1>& rows, ptrdiff_t n, float* group) {
    ptrdiff_t i = 0;
    for (; i + 2 <= n; i += 2) {
        const Several<V32f, 4> s = rows.four(2 * i);
        storeElement(elementAt(group, i), turned<Inverse>(Lanes{s.at[0], s.at[1]}));
        storeElement(elementAt(group, i + 1), turned<Inverse>(Lanes{s.at[2], s.at[3]}));
    }
    if (i < n) storeElement(elementAt(group, i), turned<Inverse>(Lanes{rows.one(2 * i), rows.one(2 * i + 1)}));
}

template <bool Inverse>
void storeRows(float* group, ptrdiff_t n, const EightRows<float, 1>& rows, V32f scale) {
    const auto element = [&](ptrdiff_t i) {
        return turned<Inverse>(scaled(loadElement(elementAt(group, i)), scale));
    };
    ptrdiff_t i = 0;
    for (; i + 2 <= n; i += 2) {
        const Lanes a = element(i), b = element(i + 1);
        rows.putFour(2 * i, {{a.re, a.im, b.re, b.im}});
    }
    if (i < n) {
        const Lanes a = element(i);
        rows.putOne(2 * i, a.re);
        rows.putOne(2 * i + 1, a.im);
    }
}

template <bool Inverse>
void transformRows(const Transform& plan, ImageView<const float> src, ImageView<float> dst) {
    const V32f scale = splat<V32f>(Transform::scaleOf(*plan.rows, Inverse));
    for (ptrdiff_t y = 0; y < plan.size.height; y += 8) {
        loadRows<Inverse>(eightRows(src, y, plan.size.height), plan.size.width, plan.work.data);
        float* const result = transform(*plan.rows, plan.work.data, plan.work.other);
        storeRows<Inverse>(result, plan.size.width, eightRows(dst, y, plan.size.height), scale);
    }
}

// ---- Columns ---------------------------------------------------------------------------------------------

// Eight complex columns are two registers a row; the last columns of an image may be fewer.
struct WholeColumns {
    static Pair<V32f> load(const float* p) { return {tpx::load(p), tpx::load(p + 8)}; }
    static void store(float* p, Pair<V32f> v) {
        tpx::store(p, v.low);
        tpx::store(p + 8, v.high);
    }
};
struct SomeColumns {
    B32f low, high;
    explicit SomeColumns(ptrdiff_t columns) : low(firstLanes(2 * columns)), high(firstLanes(2 * columns - 8)) {}
    Pair<V32f> load(const float* p) const { return {loadLanes(p, low), loadLanes(p + 8, high)}; }
    void store(float* p, Pair<V32f> v) const {
        storeLanes(p, low, v.low);
        storeLanes(p + 8, high, v.high);
    }
};

template <bool Inverse, class Columns>
void transformColumns(const Transform& plan, ImageView<float> image, const Columns& columns, V32f scale) {
    const ptrdiff_t n = plan.size.height;
    for (ptrdiff_t y = 0; y < n; y++) {
        const Pair<V32f> numbers = columns.load(image.row(y));
        storeElement(elementAt(plan.work.data, y), turned<Inverse>(toSplit(numbers.low, numbers.high)));
    }
    float* const result = transform(*plan.columns, plan.work.data, plan.work.other);
    for (ptrdiff_t y = 0; y < n; y++) {
        const Lanes element = scaled(loadElement(elementAt(result, y)), scale);
        columns.store(image.row(y), toInterleaved(turned<Inverse>(element)));
    }
}

template <bool Inverse>
void transformColumns(const Transform& plan, ImageView<float> image) {
    const V32f scale = splat<V32f>(Transform::scaleOf(*plan.columns, Inverse));
    ptrdiff_t x = 0;
    for (; x + 8 <= plan.size.width; x += 8)
        transformColumns<Inverse>(plan, image.from(2 * x, 0), WholeColumns(), scale);
    if (x < plan.size.width)
        transformColumns<Inverse>(plan, image.from(2 * x, 0), SomeColumns(plan.size.width - x), scale);
}

// ---- Calls -----------------------------------------------------------------------------------------------

template <bool Inverse, class Spec>
TpxStatus transformComplex(const Tpx32fc* src, int srcStep, Tpx32fc* dst, int dstStep, const Spec* spec,
                           Tpx8u* buffer) {
    const auto run = [](const Transform& plan, ImageView<const float> from, ImageView<float> to) {
        transformRows<Inverse>(plan, from, to);
        if (plan.size.height > 1) transformColumns<Inverse>(plan, to);
    };
    return runPlan(reinterpret_cast<const float*>(src), srcStep, reinterpret_cast<float*>(dst), dstStep, spec,
                   buffer, run);
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

using namespace tpx;

#define TPX_COMPLEX(name, Spec, inverse)                                                                \
    TPX_ENTRY(name##_C1R)                                                                               \
    (const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep, const Spec* pSpec, Tpx8u* pBuffer) { \
        return transformComplex<inverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);                 \
    }                                                                                                   \
    TPX_ENTRY(name##_C1IR)(Tpx32fc * pSrcDst, int srcDstStep, const Spec* pSpec, Tpx8u* pBuffer) {      \
        return transformComplex<inverse>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, pSpec, pBuffer);     \
    }

TPX_COMPLEX(tpxiFFTFwd_CToC_32fc, TpxiFFT2DSpec_C, false)
TPX_COMPLEX(tpxiFFTInv_CToC_32fc, TpxiFFT2DSpec_C, true)
TPX_COMPLEX(tpxiDFTFwd_CToC_32fc, TpxiDFT2DSpec_C, false)
TPX_COMPLEX(tpxiDFTInv_CToC_32fc, TpxiDFT2DSpec_C, true)

#undef TPX_COMPLEX
