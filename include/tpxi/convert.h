/* Changing the type of samples, images of bits included. */
#ifndef TPXI_CONVERT_H
#define TPXI_CONVERT_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Convert: tpxiConvert ----------------------------------------------------------------------------------
 * Changes the type of samples; names give the source's type, then the destination's. Steps are in bytes. AC4
 * converts three channels and keeps the destination's fourth. Results never depend on the thread's rounding
 * mode where a roundMode is given, and the thread's floating-point control and flags come back as they were.
 *
 * Widening: exact, but 32s32f and 32u32f, which round with the thread's rounding mode.
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxErrStep (a step below 1);
 * tpxOk. */
TPX_API TpxStatus tpxiConvert_8u16u_C1R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u16u_C3R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u16u_C4R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u16u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u16s_C3R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u16s_C4R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u16s_AC4R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u32s_C1R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u32s_C3R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u32s_C4R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u32s_AC4R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u32f_C1R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u32f_C3R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u32f_C4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8u32f_AC4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32s_C1R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32s_C3R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32s_C4R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32s_AC4R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32f_C1R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32f_C3R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32f_C4R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32f_AC4R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32s_C1R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32s_C3R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32s_C4R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32s_AC4R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                          TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32f_C1R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32f_C3R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32f_C4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32f_AC4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                          TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32s_C1R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32s_C3R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32s_C4R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                          TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32f_C1R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32f_C3R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32f_C4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32f_AC4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                          TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s16s_C1R(const Tpx8s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u32u_C1R(const Tpx16u* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s32f_C1R(const Tpx32s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32u32f_C1R(const Tpx32u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s64f_C1R(const Tpx8s* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                        TpxiSize roiSize);

/* Narrowing of integers: saturates. Statuses as above. */
TPX_API TpxStatus tpxiConvert_16u8u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u8u_C3R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u8u_C4R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16u8u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s8u_C1R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s8u_C3R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s8u_C4R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s8u_AC4R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s8u_C1R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s8u_C3R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s8u_C4R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s8u_AC4R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s8s_C1R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s8s_C3R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s8s_C4R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s8s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                         TpxiSize roiSize);

/* Float to small integers. roundMode is tpxRoundTowardZero, tpxRoundNearestEven, or any other value for ties
 * away from zero. Saturates; NaN gives the destination's maximum. Statuses as above. */
TPX_API TpxStatus tpxiConvert_32f8u_C1R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f8u_C3R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f8u_C4R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f8u_AC4R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f8s_C1R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                        TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f8s_C3R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                        TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f8s_C4R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                        TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f8s_AC4R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                         TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f16u_C1R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f16u_C3R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f16u_C4R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f16u_AC4R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f16s_C1R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                         TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f16s_C3R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                         TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f16s_C4R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                         TpxiSize roiSize, TpxRoundMode roundMode);
TPX_API TpxStatus tpxiConvert_32f16s_AC4R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiSize roiSize, TpxRoundMode roundMode);

/* Signed to unsigned: negative samples give 0.
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxOk. Steps are not tested. */
TPX_API TpxStatus tpxiConvert_8s8u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s16u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_8s32u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s16u_C1Rs(const Tpx16s* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_16s32u_C1Rs(const Tpx16s* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
                                          TpxiSize roiSize);
TPX_API TpxStatus tpxiConvert_32s32u_C1Rs(const Tpx32s* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
                                          TpxiSize roiSize);

/* With a scale factor: the sample times 2^-scaleFactor, rounded as roundMode says, saturated. From integers,
 * factors beyond a limit of each form give 0 (8u8s above 8, 16s8s 17, 16u8s 15, 16u16s 16, 32s16s 31, 32s16u
 * 31, 32u8s 15, 32u8u 15, 32u16s 31, 32u16u 33, 32u32s 32). NaN gives the destination's maximum, but in 32f32s
 * by its sign the largest or the smallest. 32f32u: a scaled sample of exactly 2^32 gives 0, a larger one the
 * maximum. Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxOk. Steps are not
 * tested. */
TPX_API TpxStatus tpxiConvert_8u8s_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                          TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_16s8s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                           TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_16u8s_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                           TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_16u16s_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32s16s_C1RSfs(const Tpx32s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32s16u_C1RSfs(const Tpx32s* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32u8s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                           TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32u8u_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32u16s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32u16u_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32u32s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32f8s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                           TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32f8u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32f16s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32f16u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32f32s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_32f32u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_64f8s_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
                                           TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_64f8u_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_64f16s_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPX_API TpxStatus tpxiConvert_64f16u_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, TpxRoundMode roundMode, int scaleFactor);

/* In place: the destination's samples stand where the source's stood. */
TPX_API TpxStatus tpxiConvert_32f32u_C1IRSfs(Tpx32u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                             TpxRoundMode roundMode, int scaleFactor);

/* Bit images: one bit a pixel, least significant bit first. Only the low three bits of a bit offset are used;
 * the pointer is not moved. tpxiBinToGray: a bit of 0 gives loVal, of 1 hiVal. tpxiGrayToBin: a sample greater
 * than the threshold gives 1; bits outside the row are kept. A NaN gives 1 where the bit offset is a multiple
 * of 8, and 0 elsewhere. Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1);
 * tpxErrStep (a step below 1); tpxErrSize (a negative bit offset); tpxOk. */
TPX_API TpxStatus tpxiBinToGray_1u8u_C1R(const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx8u* pDst,
                                         int dstStep, TpxiSize roiSize, Tpx8u loVal, Tpx8u hiVal);
TPX_API TpxStatus tpxiBinToGray_1u16u_C1R(const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx16u* pDst,
                                          int dstStep, TpxiSize roiSize, Tpx16u loVal, Tpx16u hiVal);
TPX_API TpxStatus tpxiBinToGray_1u16s_C1R(const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx16s* pDst,
                                          int dstStep, TpxiSize roiSize, Tpx16s loVal, Tpx16s hiVal);
TPX_API TpxStatus tpxiBinToGray_1u32f_C1R(const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx32f* pDst,
                                          int dstStep, TpxiSize roiSize, Tpx32f loVal, Tpx32f hiVal);
TPX_API TpxStatus tpxiGrayToBin_8u1u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         int dstBitOffset, TpxiSize roiSize, Tpx8u threshold);
TPX_API TpxStatus tpxiGrayToBin_16u1u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          int dstBitOffset, TpxiSize roiSize, Tpx16u threshold);
TPX_API TpxStatus tpxiGrayToBin_16s1u_C1R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          int dstBitOffset, TpxiSize roiSize, Tpx16s threshold);
TPX_API TpxStatus tpxiGrayToBin_32f1u_C1R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          int dstBitOffset, TpxiSize roiSize, Tpx32f threshold);

TPX_EXTERN_C_END

#endif
