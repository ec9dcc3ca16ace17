// SPDX-License-Identifier: Apache-2.0
// tpxiFilterBorder: correlation with a kernel that the caller gives.
#include "filters/general.h"

#include "frame/entry/entry.h"

namespace tpx {
namespace {

template <class T>
struct Call {
    ImageView<const T> src;
    ImageView<T> dst;
    TpxiSize roi;
    TpxBorderType border;
    const T* value;
    const TpxiFilterBorderBlock* spec;
    Tpx8u* buffer;
};

// Channels take no part in the check of the destination's step.
template <class T>
TpxStatus check(const Call<T>& call) {
    if (anyNull(call.src.data) || anyNull(call.dst.data) || anyNull(call.spec) || anyNull(call.buffer))
        return tpxErrNullPointer;
    if ((call.border & 0xF) == tpxBorderConstant && anyNull(call.value)) return tpxErrNullPointer;
    if (isEmpty(call.roi)) return tpxErrSize;
    if (call.src.step < 1 || call.dst.step < ptrdiff_t(sizeof(T)) * call.roi.width) return tpxErrStep;
    return readFilterBorder(call.border).valid ? tpxOk : tpxErrBorder;
}

template <class T, int N>
TpxStatus filter(const Call<T>& call) {
    const TpxStatus status = check(call);
    if (status != tpxOk) return status;
    const FilterBlock& block = *blockIn(call.spec);
    const TpxiSizeL roi = wide(call.roi), mask = {block.kernelWidth, block.kernelHeight};
    filterRegion<N>(FilterCall<T, T>{call.src, call.dst, roi, mask, readFilterBorder(call.border), call.value,
                                     alignUp(call.buffer, 32)},
                    isSmallerThanRegion(mask, roi), [&](const Region<T, T>& region) {
                        if constexpr (std::is_same_v<T, Tpx8u> || (std::is_same_v<T, Tpx16s> && N == 1)) {
                            if (block.kind == FilterKind::Integers8u || block.kind == FilterKind::Integers16s)
                                return correlateIntegers(block, region, N);
                        }
                        correlateFloats(block, region, N);
                    });
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

#define TPX_FILTER(T, L)                                                                                 \
    TPX_ENTRY(tpxiFilterBorder_##T##_##L##R)                                                             \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, TpxBorderType border, \
     const Tpx##T* pBorderValue, const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer) {                   \
        return filter<Tpx##T, channelsOf(Layout::L)>(                                                    \
            {{pSrc, srcStep}, {pDst, dstStep}, roiSize, border, pBorderValue, pSpec, pBuffer});          \
    }
#define TPX_FILTER_LAYOUTS(T) TPX_FILTER(T, C1) TPX_FILTER(T, C3) TPX_FILTER(T, C4)
TPX_FILTER_LAYOUTS(8u)
TPX_FILTER_LAYOUTS(16u)
TPX_FILTER_LAYOUTS(16s)
TPX_FILTER_LAYOUTS(32f)
#undef TPX_FILTER
#undef TPX_FILTER_LAYOUTS
