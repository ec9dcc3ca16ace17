/* Moving samples: copy and set. */
#ifndef TPXI_MOVEMENT_H
#define TPXI_MOVEMENT_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Copy: tpxiCopy ----------------------------------------------------------------------------------
 * Copies the pixels of a region. Samples are moved as bits: a NaN arrives as it was. AC4 copies three
 * channels and keeps the destination's fourth; AC4C3 drops the source's fourth, C3AC4 keeps the
 * destination's. Source and destination must not overlap. Steps are in bytes and are not tested: 0 and
 * negative steps walk the memory as given.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxOk. */
TPX_API TpxStatus tpxiCopy_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_AC4C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C3AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiSize roiSize);

/* ---- Set: tpxiSet --------------------------------------------------------------------------------------
 * Fills a region with one pixel value: a sample for C1, an array of 3 for C3 and AC4 (the destination's
 * fourth channel is kept), of 4 for C4. The step is in bytes and is not tested.
 *
 * Statuses, in order: tpxErrNullPointer (destination, value array); tpxErrSize (width or height below 1);
 * tpxOk. */
TPX_API TpxStatus tpxiSet_8u_C1R(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_C3R(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_C4R(const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_AC4R(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_C1R(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_C3R(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_C4R(const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_AC4R(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_C1R(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_C3R(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_C4R(const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_AC4R(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_C1R(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_C3R(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_C4R(const Tpx32s value[4], Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_AC4R(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_C1R(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_C3R(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_C4R(const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_AC4R(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize);

TPX_EXTERN_C_END

#endif
