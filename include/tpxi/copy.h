/* Copying and setting samples, duplicating and reordering channels. */
#ifndef TPXI_COPY_H
#define TPXI_COPY_H

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

TPX_EXTERN_C_END

#endif
