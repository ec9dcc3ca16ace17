/* Thresholds. */
#ifndef TPXI_THRESHOLD_H
#define TPXI_THRESHOLD_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Thresholds: tpxiThreshold -----------------------------------------------------------------------
 * Clamps or replaces samples x against thresholds:
 *   GT           x > threshold ? threshold : x              LT           x < threshold ? threshold : x
 *   GTVal        x > threshold ? value : x                  LTVal        x < threshold ? value : x
 *   LTValGTVal   x < thresholdLT ? valueLT : x > thresholdGT ? valueGT : x
 * The forms without a word are GT or LT, and Val is GTVal or LTVal, by cmpOp: tpxCmpGreater or tpxCmpLess. A
 * sample equal to its threshold stays. C1 takes one threshold and value; C3 and AC4 arrays of 3, C4 of 4, an
 * entry a channel. AC4 keeps the destination's fourth channel. Source and destination may be the same image.
 * Steps are in bytes.
 *
 * 32f: a NaN sample gives the threshold in GT and LT, stays in GTVal, and gives the (lower) value in LTVal and
 * LTValGTVal. A NaN threshold is what GT and LT give.
 *
 * Statuses, in order: Val: tpxErrUnsupportedMode (cmpOp); tpxErrNullPointer (images); tpxErrSize (width or
 * height below 1); tpxErrStep (a step below 1); tpxErrNullPointer (arrays); the forms without a word:
 * tpxErrUnsupportedMode (cmpOp); LTValGTVal: tpxErrThresholdBounds (thresholdGT below thresholdLT in a
 * channel); tpxOk. */

TPX_API TpxStatus tpxiThreshold_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                       TpxiSize roiSize, Tpx8u threshold, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx8u threshold,
                                        TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                       TpxiSize roiSize, const Tpx8u threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                        const Tpx8u threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize, const Tpx8u threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                         const Tpx8u threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                        TpxiSize roiSize, Tpx16u threshold, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx16u threshold,
                                         TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                        TpxiSize roiSize, const Tpx16u threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                         const Tpx16u threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize, const Tpx16u threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                          const Tpx16u threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize, Tpx16s threshold, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx16s threshold,
                                         TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize, const Tpx16s threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                         const Tpx16s threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                         TpxiSize roiSize, const Tpx16s threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                          const Tpx16s threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize, Tpx32f threshold, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx32f threshold,
                                         TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize, const Tpx32f threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                         const Tpx32f threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize, const Tpx32f threshold[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                          const Tpx32f threshold[3], TpxCmpOp cmpOp);

TPX_API TpxStatus tpxiThreshold_GT_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, Tpx8u threshold);
TPX_API TpxStatus tpxiThreshold_GT_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx8u threshold);
TPX_API TpxStatus tpxiThreshold_GT_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, const Tpx8u threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                           const Tpx8u threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx8u threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx8u threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, Tpx16u threshold);
TPX_API TpxStatus tpxiThreshold_GT_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            Tpx16u threshold);
TPX_API TpxStatus tpxiThreshold_GT_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx16u threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx16u threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx16u threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx16u threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, Tpx16s threshold);
TPX_API TpxStatus tpxiThreshold_GT_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            Tpx16s threshold);
TPX_API TpxStatus tpxiThreshold_GT_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx16s threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx16s threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx16s threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx16s threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, Tpx32f threshold);
TPX_API TpxStatus tpxiThreshold_GT_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            Tpx32f threshold);
TPX_API TpxStatus tpxiThreshold_GT_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx32f threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx32f threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx32f threshold[3]);
TPX_API TpxStatus tpxiThreshold_GT_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx32f threshold[3]);

TPX_API TpxStatus tpxiThreshold_LT_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, Tpx8u threshold);
TPX_API TpxStatus tpxiThreshold_LT_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx8u threshold);
TPX_API TpxStatus tpxiThreshold_LT_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, const Tpx8u threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                           const Tpx8u threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx8u threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx8u threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, Tpx16u threshold);
TPX_API TpxStatus tpxiThreshold_LT_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            Tpx16u threshold);
TPX_API TpxStatus tpxiThreshold_LT_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx16u threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx16u threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx16u threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx16u threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, Tpx16s threshold);
TPX_API TpxStatus tpxiThreshold_LT_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            Tpx16s threshold);
TPX_API TpxStatus tpxiThreshold_LT_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx16s threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx16s threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx16s threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx16s threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, Tpx32f threshold);
TPX_API TpxStatus tpxiThreshold_LT_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            Tpx32f threshold);
TPX_API TpxStatus tpxiThreshold_LT_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx32f threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx32f threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx32f threshold[3]);
TPX_API TpxStatus tpxiThreshold_LT_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx32f threshold[3]);

TPX_API TpxStatus tpxiThreshold_Val_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, Tpx8u threshold, Tpx8u value, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx8u threshold,
                                            Tpx8u value, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3],
                                           TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                            const Tpx8u threshold[3], const Tpx8u value[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3],
                                            TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx8u threshold[3], const Tpx8u value[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, Tpx16u threshold, Tpx16u value, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             Tpx16u threshold, Tpx16u value, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx16u threshold[3], const Tpx16u value[3],
                                            TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx16u threshold[3], const Tpx16u value[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                             TpxiSize roiSize, const Tpx16u threshold[3], const Tpx16u value[3],
                                             TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                              const Tpx16u threshold[3], const Tpx16u value[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, Tpx16s threshold, Tpx16s value, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             Tpx16s threshold, Tpx16s value, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx16s threshold[3], const Tpx16s value[3],
                                            TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx16s threshold[3], const Tpx16s value[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                             TpxiSize roiSize, const Tpx16s threshold[3], const Tpx16s value[3],
                                             TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                              const Tpx16s threshold[3], const Tpx16s value[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiSize roiSize, Tpx32f threshold, Tpx32f value, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             Tpx32f threshold, Tpx32f value, TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx32f threshold[3], const Tpx32f value[3],
                                            TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             const Tpx32f threshold[3], const Tpx32f value[3], TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             TpxiSize roiSize, const Tpx32f threshold[3], const Tpx32f value[3],
                                             TpxCmpOp cmpOp);
TPX_API TpxStatus tpxiThreshold_Val_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                              const Tpx32f threshold[3], const Tpx32f value[3], TpxCmpOp cmpOp);

TPX_API TpxStatus tpxiThreshold_GTVal_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, Tpx8u threshold, Tpx8u value);
TPX_API TpxStatus tpxiThreshold_GTVal_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx8u threshold,
                                              Tpx8u value);
TPX_API TpxStatus tpxiThreshold_GTVal_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                              const Tpx8u threshold[3], const Tpx8u value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx8u threshold[3], const Tpx8u value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, const Tpx8u threshold[4], const Tpx8u value[4]);
TPX_API TpxStatus tpxiThreshold_GTVal_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                              const Tpx8u threshold[4], const Tpx8u value[4]);
TPX_API TpxStatus tpxiThreshold_GTVal_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, Tpx16u threshold, Tpx16u value);
TPX_API TpxStatus tpxiThreshold_GTVal_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               Tpx16u threshold, Tpx16u value);
TPX_API TpxStatus tpxiThreshold_GTVal_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx16u threshold[3],
                                              const Tpx16u value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx16u threshold[3], const Tpx16u value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                               TpxiSize roiSize, const Tpx16u threshold[3],
                                               const Tpx16u value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                const Tpx16u threshold[3], const Tpx16u value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx16u threshold[4],
                                              const Tpx16u value[4]);
TPX_API TpxStatus tpxiThreshold_GTVal_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx16u threshold[4], const Tpx16u value[4]);
TPX_API TpxStatus tpxiThreshold_GTVal_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, Tpx16s threshold, Tpx16s value);
TPX_API TpxStatus tpxiThreshold_GTVal_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               Tpx16s threshold, Tpx16s value);
TPX_API TpxStatus tpxiThreshold_GTVal_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx16s threshold[3],
                                              const Tpx16s value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx16s threshold[3], const Tpx16s value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                               TpxiSize roiSize, const Tpx16s threshold[3],
                                               const Tpx16s value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                const Tpx16s threshold[3], const Tpx16s value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx16s threshold[4],
                                              const Tpx16s value[4]);
TPX_API TpxStatus tpxiThreshold_GTVal_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx16s threshold[4], const Tpx16s value[4]);
TPX_API TpxStatus tpxiThreshold_GTVal_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, Tpx32f threshold, Tpx32f value);
TPX_API TpxStatus tpxiThreshold_GTVal_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               Tpx32f threshold, Tpx32f value);
TPX_API TpxStatus tpxiThreshold_GTVal_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx32f threshold[3],
                                              const Tpx32f value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx32f threshold[3], const Tpx32f value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                               TpxiSize roiSize, const Tpx32f threshold[3],
                                               const Tpx32f value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                const Tpx32f threshold[3], const Tpx32f value[3]);
TPX_API TpxStatus tpxiThreshold_GTVal_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx32f threshold[4],
                                              const Tpx32f value[4]);
TPX_API TpxStatus tpxiThreshold_GTVal_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx32f threshold[4], const Tpx32f value[4]);

TPX_API TpxStatus tpxiThreshold_LTVal_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, Tpx8u threshold, Tpx8u value);
TPX_API TpxStatus tpxiThreshold_LTVal_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, Tpx8u threshold,
                                              Tpx8u value);
TPX_API TpxStatus tpxiThreshold_LTVal_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                              const Tpx8u threshold[3], const Tpx8u value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx8u threshold[3], const Tpx8u value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, const Tpx8u threshold[4], const Tpx8u value[4]);
TPX_API TpxStatus tpxiThreshold_LTVal_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                              const Tpx8u threshold[4], const Tpx8u value[4]);
TPX_API TpxStatus tpxiThreshold_LTVal_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, Tpx16u threshold, Tpx16u value);
TPX_API TpxStatus tpxiThreshold_LTVal_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               Tpx16u threshold, Tpx16u value);
TPX_API TpxStatus tpxiThreshold_LTVal_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx16u threshold[3],
                                              const Tpx16u value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx16u threshold[3], const Tpx16u value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                               TpxiSize roiSize, const Tpx16u threshold[3],
                                               const Tpx16u value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                const Tpx16u threshold[3], const Tpx16u value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx16u threshold[4],
                                              const Tpx16u value[4]);
TPX_API TpxStatus tpxiThreshold_LTVal_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx16u threshold[4], const Tpx16u value[4]);
TPX_API TpxStatus tpxiThreshold_LTVal_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, Tpx16s threshold, Tpx16s value);
TPX_API TpxStatus tpxiThreshold_LTVal_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               Tpx16s threshold, Tpx16s value);
TPX_API TpxStatus tpxiThreshold_LTVal_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx16s threshold[3],
                                              const Tpx16s value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx16s threshold[3], const Tpx16s value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                               TpxiSize roiSize, const Tpx16s threshold[3],
                                               const Tpx16s value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                const Tpx16s threshold[3], const Tpx16s value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx16s threshold[4],
                                              const Tpx16s value[4]);
TPX_API TpxStatus tpxiThreshold_LTVal_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx16s threshold[4], const Tpx16s value[4]);
TPX_API TpxStatus tpxiThreshold_LTVal_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, Tpx32f threshold, Tpx32f value);
TPX_API TpxStatus tpxiThreshold_LTVal_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               Tpx32f threshold, Tpx32f value);
TPX_API TpxStatus tpxiThreshold_LTVal_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx32f threshold[3],
                                              const Tpx32f value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx32f threshold[3], const Tpx32f value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                               TpxiSize roiSize, const Tpx32f threshold[3],
                                               const Tpx32f value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                const Tpx32f threshold[3], const Tpx32f value[3]);
TPX_API TpxStatus tpxiThreshold_LTVal_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, const Tpx32f threshold[4],
                                              const Tpx32f value[4]);
TPX_API TpxStatus tpxiThreshold_LTVal_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                               const Tpx32f threshold[4], const Tpx32f value[4]);

TPX_API TpxStatus tpxiThreshold_LTValGTVal_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                  TpxiSize roiSize, Tpx8u thresholdLT, Tpx8u valueLT,
                                                  Tpx8u thresholdGT, Tpx8u valueGT);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                   Tpx8u thresholdLT, Tpx8u valueLT, Tpx8u thresholdGT,
                                                   Tpx8u valueGT);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                  TpxiSize roiSize, const Tpx8u thresholdLT[3],
                                                  const Tpx8u valueLT[3], const Tpx8u thresholdGT[3],
                                                  const Tpx8u valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                   const Tpx8u thresholdLT[3], const Tpx8u valueLT[3],
                                                   const Tpx8u thresholdGT[3], const Tpx8u valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                   TpxiSize roiSize, const Tpx8u thresholdLT[3],
                                                   const Tpx8u valueLT[3], const Tpx8u thresholdGT[3],
                                                   const Tpx8u valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                    const Tpx8u thresholdLT[3], const Tpx8u valueLT[3],
                                                    const Tpx8u thresholdGT[3], const Tpx8u valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                   TpxiSize roiSize, Tpx16u thresholdLT, Tpx16u valueLT,
                                                   Tpx16u thresholdGT, Tpx16u valueGT);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                    Tpx16u thresholdLT, Tpx16u valueLT, Tpx16u thresholdGT,
                                                    Tpx16u valueGT);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                   TpxiSize roiSize, const Tpx16u thresholdLT[3],
                                                   const Tpx16u valueLT[3], const Tpx16u thresholdGT[3],
                                                   const Tpx16u valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                    const Tpx16u thresholdLT[3], const Tpx16u valueLT[3],
                                                    const Tpx16u thresholdGT[3], const Tpx16u valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                    TpxiSize roiSize, const Tpx16u thresholdLT[3],
                                                    const Tpx16u valueLT[3], const Tpx16u thresholdGT[3],
                                                    const Tpx16u valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                     const Tpx16u thresholdLT[3], const Tpx16u valueLT[3],
                                                     const Tpx16u thresholdGT[3], const Tpx16u valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                   TpxiSize roiSize, Tpx16s thresholdLT, Tpx16s valueLT,
                                                   Tpx16s thresholdGT, Tpx16s valueGT);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                    Tpx16s thresholdLT, Tpx16s valueLT, Tpx16s thresholdGT,
                                                    Tpx16s valueGT);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                   TpxiSize roiSize, const Tpx16s thresholdLT[3],
                                                   const Tpx16s valueLT[3], const Tpx16s thresholdGT[3],
                                                   const Tpx16s valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                    const Tpx16s thresholdLT[3], const Tpx16s valueLT[3],
                                                    const Tpx16s thresholdGT[3], const Tpx16s valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                    TpxiSize roiSize, const Tpx16s thresholdLT[3],
                                                    const Tpx16s valueLT[3], const Tpx16s thresholdGT[3],
                                                    const Tpx16s valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                     const Tpx16s thresholdLT[3], const Tpx16s valueLT[3],
                                                     const Tpx16s thresholdGT[3], const Tpx16s valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                   TpxiSize roiSize, Tpx32f thresholdLT, Tpx32f valueLT,
                                                   Tpx32f thresholdGT, Tpx32f valueGT);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                    Tpx32f thresholdLT, Tpx32f valueLT, Tpx32f thresholdGT,
                                                    Tpx32f valueGT);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                   TpxiSize roiSize, const Tpx32f thresholdLT[3],
                                                   const Tpx32f valueLT[3], const Tpx32f thresholdGT[3],
                                                   const Tpx32f valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                    const Tpx32f thresholdLT[3], const Tpx32f valueLT[3],
                                                    const Tpx32f thresholdGT[3], const Tpx32f valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                    TpxiSize roiSize, const Tpx32f thresholdLT[3],
                                                    const Tpx32f valueLT[3], const Tpx32f thresholdGT[3],
                                                    const Tpx32f valueGT[3]);
TPX_API TpxStatus tpxiThreshold_LTValGTVal_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                                     const Tpx32f thresholdLT[3], const Tpx32f valueLT[3],
                                                     const Tpx32f thresholdGT[3], const Tpx32f valueGT[3]);

TPX_EXTERN_C_END

#endif
