// SPDX-License-Identifier: Apache-2.0
// Transforms of complex images: rows, then columns, eight at a time.
#include "frame/entry/entry.h"
#include "transforms/plan.h"

namespace tpx {
namespace {

template <bool Inverse, class S>
void transformRows(const Transform& plan, ImageView<const float> src, ImageView<float> dst) {
    const V32f scale = splat<V32f>(scaleOf(*plan.rows, Inverse));
    for (ptrdiff_t y = 0; y < plan.size.height; y += S::kLanes) {
        S rows = sequencesOf<S>(*plan.rows, plan.buffers);
        loadRows<Inverse>(rowsFrom<S>(src, y, plan.size.height), plan.size.width, rows);
        transform(*plan.rows, rows);
        storeRows<Inverse>(rows, plan.size.width, rowsFrom<S>(dst, y, plan.size.height), scale);
    }
}

template <bool Inverse, class S>
void transformColumns(const Transform& plan, ImageView<float> image) {
    const V32f scale = splat<V32f>(scaleOf(*plan.columns, Inverse));
    forColumns<S, kColumnGroups>(plan.size.width, [&]<class Columns>(const Columns& columns, ptrdiff_t x) {
        const ImageView<float> strip = image.from(2 * x, 0);
        SideBySide<S, Columns::kGroups> groups(*plan.columns, plan.buffers);
        for (ptrdiff_t y = 0; y < plan.size.height; y++)
            for (int g = 0; g < Columns::kGroups; g++)
                groups.of[g].store(y, turned<Inverse>(columns.load(strip.row(y), g)));
        groups.transform(*plan.columns);
        for (ptrdiff_t y = 0; y < plan.size.height; y++)
            for (int g = 0; g < Columns::kGroups; g++) {
                const Lanes element = turned<Inverse>(scaled(groups.of[g].load(y), scale));
                columns.store(strip.row(y), g, toInterleaved(element));
            }
    });
}

template <bool Inverse, class Spec>
TpxStatus transformComplex(const Tpx32fc* src, int srcStep, Tpx32fc* dst, int dstStep, const Spec* spec,
                           Tpx8u* buffer) {
    const auto run = [](const Transform& plan, ImageView<const float> from, ImageView<float> to) {
        (plan.rows->isLong ? transformRows<Inverse, LongLine> : transformRows<Inverse, Group>)(plan, from, to);
        if (plan.size.height == 1) return;
        (plan.columns->isLong ? transformColumns<Inverse, LongLine> : transformColumns<Inverse, Group>)(plan,
                                                                                                        to);
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
