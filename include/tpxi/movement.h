/* Moving samples: copy, set, channels, conversion, borders. */
#ifndef TPXI_MOVEMENT_H
#define TPXI_MOVEMENT_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Copy: tpxiCopy ----------------------------------------------------------------------------------
 * Copies the pixels of a region. Samples are moved as bits: a NaN arrives as it was. AC4 copies three
 * channels and keeps the destination's fourth. Source and destination must not overlap. Steps are in bytes and
 * are not tested: 0 and negative steps walk the memory as given, and a step need not be a whole number of
 * samples.
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

/* 64-bit sizes and steps. Statuses as above. */
TPX_API TpxStatus tpxiCopy_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                    TpxiSizeL roiSize);
TPX_API TpxStatus tpxiCopy_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                    TpxiSizeL roiSize);
TPX_API TpxStatus tpxiCopy_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                    TpxiSizeL roiSize);
TPX_API TpxStatus tpxiCopy_8u_AC4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiCopy_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiCopy_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiCopy_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiCopy_32f_AC4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                      TpxiSizeL roiSize);

/* Between layouts. AC4C3 drops the source's fourth channel, C3AC4 keeps the destination's.
 *
 * One channel of interest: on the interleaved side the pointer addresses the sample of that channel in the
 * first pixel. C3C and C4C: one channel of an interleaved image to one of another; C3C1, C4C1: to a plane;
 * C1C3, C1C4: from a plane; the destination's other channels are not touched.
 * Where channels of the destination are kept, in these forms and the masked and AC4 ones, they may be read and
 * written back: calls for different channels of one image must not run at the same time.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxOk. */
TPX_API TpxStatus tpxiCopy_8u_AC4C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_AC4C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_AC4C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_AC4C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_AC4C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C3AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C3AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C3AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C3AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C3AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C3CR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C3CR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C3CR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C3CR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C3CR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C4CR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C4CR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C4CR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C4CR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C4CR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C3C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C3C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C3C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C3C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C3C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C4C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C4C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C4C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C4C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C4C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C1C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C1C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C1C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C1C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C1C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C1C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C1C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C1C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C1C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C1C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize);

/* Interleaved to planes and back. All planes have the one step.
 *
 * Statuses, in order: tpxErrNullPointer (the array and the interleaved image, then each plane);
 * tpxErrSize (width or height below 1); tpxOk. */
TPX_API TpxStatus tpxiCopy_8u_C3P3R(const Tpx8u* pSrc, int srcStep, Tpx8u* const pDst[3], int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C3P3R(const Tpx16u* pSrc, int srcStep, Tpx16u* const pDst[3], int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C3P3R(const Tpx16s* pSrc, int srcStep, Tpx16s* const pDst[3], int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C3P3R(const Tpx32s* pSrc, int srcStep, Tpx32s* const pDst[3], int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C3P3R(const Tpx32f* pSrc, int srcStep, Tpx32f* const pDst[3], int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_C4P4R(const Tpx8u* pSrc, int srcStep, Tpx8u* const pDst[4], int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_C4P4R(const Tpx16u* pSrc, int srcStep, Tpx16u* const pDst[4], int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_C4P4R(const Tpx16s* pSrc, int srcStep, Tpx16s* const pDst[4], int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_C4P4R(const Tpx32s* pSrc, int srcStep, Tpx32s* const pDst[4], int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_C4P4R(const Tpx32f* pSrc, int srcStep, Tpx32f* const pDst[4], int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_P3C3R(const Tpx8u* const pSrc[3], int srcStep, Tpx8u* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_P3C3R(const Tpx16u* const pSrc[3], int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_P3C3R(const Tpx16s* const pSrc[3], int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_P3C3R(const Tpx32s* const pSrc[3], int srcStep, Tpx32s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_P3C3R(const Tpx32f* const pSrc[3], int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_8u_P4C4R(const Tpx8u* const pSrc[4], int srcStep, Tpx8u* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16u_P4C4R(const Tpx16u* const pSrc[4], int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_16s_P4C4R(const Tpx16s* const pSrc[4], int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32s_P4C4R(const Tpx32s* const pSrc[4], int srcStep, Tpx32s* pDst, int dstStep,
                                     TpxiSize roiSize);
TPX_API TpxStatus tpxiCopy_32f_P4C4R(const Tpx32f* const pSrc[4], int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize);

/* Copies the pixels whose mask byte is not zero. The mask has one channel of 8u and a step of its own.
 *
 * Statuses, in order: tpxErrNullPointer (source, destination, mask); tpxErrSize (width or height below 1);
 * tpxOk. */
TPX_API TpxStatus tpxiCopy_8u_C1MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_8u_C3MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_8u_C4MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_8u_AC4MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                    const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_16u_C1MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_16u_C3MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_16u_C4MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_16u_AC4MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_16s_C1MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_16s_C3MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_16s_C4MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_16s_AC4MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_32s_C1MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_32s_C3MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_32s_C4MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_32s_AC4MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                     TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_32f_C1MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_32f_C3MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_32f_C4MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiCopy_32f_AC4MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize, const Tpx8u* pMask, int maskStep);

/* Copies with the caller's word on how: TpxCopyFlags, a set of bits; unknown ones are ignored. The memory of
 * non-temporal loads and stores is seen by whoever synchronises with the caller afterwards.
 *
 * Statuses as tpxiCopy. */
TPX_API TpxStatus tpxiCopyManaged_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiSize roiSize, int flags);

/* ---- Set: tpxiSet --------------------------------------------------------------------------------------
 * Fills a region with one pixel value: a sample for C1, an array of 3 for C3 and AC4 (the destination's
 * fourth channel is kept), of 4 for C4. C3C and C4C fill one channel, which the pointer addresses. The step is
 * in bytes and is not tested. Masked forms fill the pixels whose mask byte is not zero.
 *
 * Statuses, in order: tpxErrNullPointer (destination, value array, mask); tpxErrSize (width or height below
 * 1); tpxOk. */
TPX_API TpxStatus tpxiSet_8u_C1R(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_C3R(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_C4R(const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_AC4R(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_C3CR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_C4CR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_C1R(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_C3R(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_C4R(const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_AC4R(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_C3CR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16u_C4CR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_C1R(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_C3R(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_C4R(const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_AC4R(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_C3CR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_16s_C4CR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_C1R(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_C3R(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_C4R(const Tpx32s value[4], Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_AC4R(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_C3CR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32s_C4CR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_C1R(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_C3R(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_C4R(const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_AC4R(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_C3CR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_32f_C4CR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSet_8u_C1MR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                                  int maskStep);
TPX_API TpxStatus tpxiSet_8u_C3MR(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_8u_C4MR(const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_8u_AC4MR(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_16u_C1MR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_16u_C3MR(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_16u_C4MR(const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_16u_AC4MR(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                    const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_16s_C1MR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_16s_C3MR(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_16s_C4MR(const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_16s_AC4MR(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                    const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_32s_C1MR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_32s_C3MR(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_32s_C4MR(const Tpx32s value[4], Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_32s_AC4MR(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                                    const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_32f_C1MR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_32f_C3MR(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_32f_C4MR(const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   const Tpx8u* pMask, int maskStep);
TPX_API TpxStatus tpxiSet_32f_AC4MR(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                    const Tpx8u* pMask, int maskStep);

/* ---- Duplicate: tpxiDup ----------------------------------------------------------------------------------
 * Writes each source sample into every channel of the destination's pixel, the fourth included.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxOk. */
TPX_API TpxStatus tpxiDup_8u_C1C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiDup_8u_C1C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);

/* ---- Swap channels: tpxiSwapChannels ----------------------------------------------------------------------
 * Entry k of the order names the source channel that feeds destination channel k; channels may be named more
 * than once. C3, AC4 and C4C3 read three entries, C4 and C3C4 four. Source and destination of the 8u C3R form
 * may be the same image; otherwise they do not overlap.
 *
 * C3C4: an entry below 3 takes that source channel, 3 takes `val`, and a larger one leaves the destination's
 * channel as it was. AC4: in each row, the pixels of whole blocks (16 in 8u, 8 in 16 bits, 4 in 32 bits) get a
 * fourth channel of 0, and the pixels after the last whole block keep theirs.
 *
 * Statuses of C3R (but 32f), C3C4R, C4C3R, in order: tpxErrNullPointer (source, destination, order); tpxErrSize
 * (width or height below 1); tpxErrStep (a step of 0); tpxErrChannelOrder; tpxOk.
 * Statuses of C4R, AC4R and 32f_C3R, in order: tpxErrNullPointer (source, destination); tpxErrStep; tpxErrSize;
 * tpxErrNullPointer (order); tpxErrChannelOrder; tpxOk.
 * tpxErrChannelOrder: an entry that is no channel of the source; in C3C4 a negative one. */
TPX_API TpxStatus tpxiSwapChannels_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, const int dstOrder[4]);
TPX_API TpxStatus tpxiSwapChannels_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[4]);
TPX_API TpxStatus tpxiSwapChannels_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[4]);
TPX_API TpxStatus tpxiSwapChannels_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_32s_C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_32s_C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[4]);
TPX_API TpxStatus tpxiSwapChannels_32s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                            TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, const int dstOrder[4]);
TPX_API TpxStatus tpxiSwapChannels_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_8u_C3C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                            TpxiSize roiSize, const int dstOrder[4], Tpx8u val);
TPX_API TpxStatus tpxiSwapChannels_8u_C4C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                            TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_16u_C3C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                             TpxiSize roiSize, const int dstOrder[4], Tpx16u val);
TPX_API TpxStatus tpxiSwapChannels_16u_C4C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                             TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_16s_C3C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                             TpxiSize roiSize, const int dstOrder[4], Tpx16s val);
TPX_API TpxStatus tpxiSwapChannels_16s_C4C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                             TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_32s_C3C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                             TpxiSize roiSize, const int dstOrder[4], Tpx32s val);
TPX_API TpxStatus tpxiSwapChannels_32s_C4C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
                                             TpxiSize roiSize, const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_32f_C3C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             TpxiSize roiSize, const int dstOrder[4], Tpx32f val);
TPX_API TpxStatus tpxiSwapChannels_32f_C4C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             TpxiSize roiSize, const int dstOrder[3]);

/* In place. Statuses of C3IR, in order: tpxErrNullPointer (image); tpxErrStep (a step of 0); tpxErrSize;
 * tpxErrNullPointer (order); tpxErrChannelOrder; tpxOk. Of C4IR: tpxErrNullPointer (image, order); tpxErrStep;
 * tpxErrSize; tpxErrChannelOrder; tpxOk. */
TPX_API TpxStatus tpxiSwapChannels_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                           const int dstOrder[3]);
TPX_API TpxStatus tpxiSwapChannels_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                           const int dstOrder[4]);

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

/* ---- Borders: tpxiCopyConstBorder, tpxiCopyReplicateBorder, tpxiCopyMirrorBorder, tpxiCopyWrapBorder ----
 * Copies an image into a larger one and fills the margin around it: with a constant, with the nearest edge
 * pixel, with the image mirrored about its edge (the edge is not repeated), or with the image repeated. The
 * right and bottom margins are what the sizes leave; margins may be wider than the source. In place (I),
 * pSrcDst points at the source's first pixel inside the destination. A source and a destination pointer that
 * are equal mean the same, with the destination's step, in all kinds but Const. AC4 keeps the destination's
 * fourth channel everywhere.
 *
 * Statuses, in order: tpxErrNullPointer (an image); tpxErrStep (a step below 1); tpxErrSize (a size below 1, a
 * negative margin, or a source that does not fit into the destination with its margins); tpxErrNullPointer (the
 * constant's array); tpxOk. */
TPX_API TpxStatus tpxiCopyConstBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth, Tpx8u value);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth, const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth, const Tpx8u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                              int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, Tpx16u value);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx16u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth, const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, Tpx16s value);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx16s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth, const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, Tpx32s value);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx32s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_AC4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth, const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, Tpx32f value);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                              Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth, const Tpx32f value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth, const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth, Tpx8u value);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                               const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                               const Tpx8u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_AC4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                Tpx16u value);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx16u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_AC4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                 const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                Tpx16s value);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx16s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_AC4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                 const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C1R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                Tpx32s value);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C3R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx32s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_AC4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                 const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                Tpx32f value);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                const Tpx32f value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_AC4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,
                                                 const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C1IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth, Tpx8u value);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C3IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth, const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_C4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth, const Tpx8u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_8u_AC4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx8u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C1IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, Tpx16u value);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C3IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_C4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx16u value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16u_AC4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth, const Tpx16u value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C1IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, Tpx16s value);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C3IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_C4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx16s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_16s_AC4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth, const Tpx16s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C1IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, Tpx32s value);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C3IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_C4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx32s value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32s_AC4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth, const Tpx32s value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C1IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, Tpx32f value);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C3IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx32f value[3]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_C4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth, const Tpx32f value[4]);
TPX_API TpxStatus tpxiCopyConstBorder_32f_AC4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth, const Tpx32f value[3]);

TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                 Tpx8u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                 int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                 Tpx8u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                 int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                 Tpx8u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                 int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx8u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                   Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                                   int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                   Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                   int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_AC4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                   Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                                   int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                  Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                                   Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                                   int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                  TpxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                  TpxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                  TpxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                    TpxiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                    TpxiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C1IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C3IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C4IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_AC4IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                    TpxiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                   TpxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                    TpxiSize dstRoiSize, int topBorderHeight,
                                                    int leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                   Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                   TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                   Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                   TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                   Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                   TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_AC4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_AC4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                     Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_AC4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                     Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C1R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C3R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_AC4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                     Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                    Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                    TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_AC4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                     Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C1IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                    TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                    TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C3IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                    TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                    TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_C4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                    TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                    TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_8u_AC4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C1IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C3IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_C4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16u_AC4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                                                      TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,
                                                      TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C1IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C3IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_C4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_16s_AC4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                                                      TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,
                                                      TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C1IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C3IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_C4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32s_AC4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep,
                                                      TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,
                                                      TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C1IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C3IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_C4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                     TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyReplicateBorder_32f_AC4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                                      TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,
                                                      TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);

TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                              int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                              int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx8u* pDst,
                                              int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16u* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx16s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32s* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize,
                                               Tpx32f* pDst, int dstStep, TpxiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                               TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                               TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                               TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C1IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C3IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C4IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                                TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C1R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C3R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C4R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                                 Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                                 TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C1IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C3IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_8u_C4IR_L(Tpx8u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                 TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                 TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C1IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C3IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16u_C4IR_L(Tpx16u* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C1IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C3IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_16s_C4IR_L(Tpx16s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C1IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C3IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32s_C4IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C1IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C3IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyMirrorBorder_32f_C4IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                  TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                  TpxSizeL leftBorderWidth);

TPX_API TpxStatus tpxiCopyWrapBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx32s* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx32f* pDst,
                                             int dstStep, TpxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32s_C1IR(Tpx32s* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                              TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize srcRoiSize,
                                              TpxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32s_C1R_L(const Tpx32s* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx32s* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize,
                                               Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL dstRoiSize,
                                               TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32s_C1IR_L(Tpx32s* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth);
TPX_API TpxStatus tpxiCopyWrapBorder_32f_C1IR_L(Tpx32f* pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize,
                                                TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight,
                                                TpxSizeL leftBorderWidth);

TPX_EXTERN_C_END

#endif
