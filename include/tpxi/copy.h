/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Copying and setting samples, duplicating and reordering channels. */
#ifndef TPXI_COPY_H
#define TPXI_COPY_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Copy: tpxiCopy
 * @{ */

/**
 * Copies the pixels of a region. Samples are moved as bits: a NaN arrives as it was. AC4 copies three
 * channels and keeps the destination's fourth, which may be read and written back.
 *
 * Source and destination must not overlap. Steps are not tested: 0 and negative ones walk the memory as
 * given, and a step need not be a whole number of samples. _L: sizes and steps of 64 bits.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxOk.
 */
TPX_API TpxStatus
    tpxiCopy_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),

    tpxiCopy_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiCopy_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiCopy_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiCopy_8u_AC4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiCopy_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiCopy_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiCopy_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiCopy_32f_AC4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                        TpxiSizeL roiSize);

/** @} */

/** @name Copy between layouts: tpxiCopy
 * @{ */

/**
 * Copies the pixels of a region into another layout. AC4C3 drops the source's fourth channel, C3AC4 keeps the
 * destination's. Source and destination do not overlap.
 *
 * The other forms copy one channel. C3C and C4C: one channel of an interleaved image to one of another; C3C1,
 * C4C1: to a plane; C1C3, C1C4: from a plane. On an interleaved side the pointer addresses the sample of that
 * channel in the first pixel. The destination's other channels are not changed, but may be read and written
 * back: calls for different channels of one image must not run at the same time. Steps are not tested.
 *
 * @param pSrc    first pixel of the source, or its sample of the channel
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination, or its sample of the channel
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxOk.
 */
TPX_API TpxStatus
    tpxiCopy_8u_AC4C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_AC4C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_AC4C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_AC4C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_AC4C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C3AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C3AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C3AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C3AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C3AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C3CR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C3CR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C3CR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C3CR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C3CR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C4CR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C4CR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C4CR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C4CR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C4CR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C3C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C3C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C3C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C3C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C3C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C4C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C4C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C4C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C4C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C4C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C1C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C1C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C1C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C1C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C1C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C1C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C1C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C1C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C1C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C1C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);

/** @} */

/** @name Interleaved to planes and back: tpxiCopy
 * @{ */

/**
 * Copies an image of interleaved channels to one plane a channel (C3P3, C4P4), or planes to an interleaved
 * image (P3C3, P4C4). Source and destination do not overlap. Steps are not tested. The arrays are declared so
 * that a call compiles without a warning:
 *
 * @code
 * Tpx8u image[4 * 3], red[4], green[4], blue[4];
 * TpxiSize size = {2, 2};
 * Tpx8u* planes[3] = {red, green, blue}; // where planes are written
 * const Tpx8u* sources[3] = {red, green, blue}; // where they are read
 * TpxStatus status = tpxiSet_8u_C1R(7, image, 6, size);
 * if (!status) status = tpxiCopy_8u_C3P3R(image, 6, planes, 2, size);
 * if (!status) status = tpxiCopy_8u_P3C3R(sources, 2, image, 6, size);
 * @endcode
 *
 * @param pSrc    first pixel of the source, or an array of the first samples of its planes
 * @param srcStep bytes from one row of the source to the next, the same for all planes
 * @param pDst    first pixel of the destination, or an array of the first samples of its planes
 * @param dstStep bytes from one row of the destination to the next, the same for all planes
 * @param roiSize width and height of the region in pixels
 * @return The first of these that applies: tpxErrNullPointer (the array and the interleaved image, then each
 *     plane); tpxErrSize (width or height below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiCopy_8u_C3P3R(const Tpx8u* pSrc, int srcStep, Tpx8u* const pDst[3], int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C3P3R(const Tpx16u* pSrc, int srcStep, Tpx16u* const pDst[3], int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C3P3R(const Tpx16s* pSrc, int srcStep, Tpx16s* const pDst[3], int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C3P3R(const Tpx32s* pSrc, int srcStep, Tpx32s* const pDst[3], int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C3P3R(const Tpx32f* pSrc, int srcStep, Tpx32f* const pDst[3], int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_C4P4R(const Tpx8u* pSrc, int srcStep, Tpx8u* const pDst[4], int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_C4P4R(const Tpx16u* pSrc, int srcStep, Tpx16u* const pDst[4], int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_C4P4R(const Tpx16s* pSrc, int srcStep, Tpx16s* const pDst[4], int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_C4P4R(const Tpx32s* pSrc, int srcStep, Tpx32s* const pDst[4], int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_C4P4R(const Tpx32f* pSrc, int srcStep, Tpx32f* const pDst[4], int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_P3C3R(const Tpx8u* const pSrc[3], int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_P3C3R(const Tpx16u* const pSrc[3], int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_P3C3R(const Tpx16s* const pSrc[3], int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_P3C3R(const Tpx32s* const pSrc[3], int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_P3C3R(const Tpx32f* const pSrc[3], int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_8u_P4C4R(const Tpx8u* const pSrc[4], int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16u_P4C4R(const Tpx16u* const pSrc[4], int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_16s_P4C4R(const Tpx16s* const pSrc[4], int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32s_P4C4R(const Tpx32s* const pSrc[4], int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiCopy_32f_P4C4R(const Tpx32f* const pSrc[4], int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);

/** @} */

/** @name Copy under a mask: tpxiCopy
 * @{ */

/**
 * Copies the pixels whose mask byte is not zero. AC4 keeps the destination's fourth channel. Where pixels or
 * channels of the destination are kept, they may be read and written back. Source and destination do not
 * overlap. Steps are not tested.
 *
 * @param pSrc     first pixel of the source
 * @param srcStep  bytes from one row of the source to the next
 * @param pDst     first pixel of the destination
 * @param dstStep  bytes from one row of the destination to the next
 * @param roiSize  width and height of the region in pixels
 * @param pMask    first byte of the mask, which has one channel of 8u
 * @param maskStep bytes from one row of the mask to the next
 * @return The first of these that applies: tpxErrNullPointer (source, destination, mask); tpxErrSize (width
 *     or height below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiCopy_8u_C1MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                     const Tpx8u* pMask, int maskStep),
    tpxiCopy_8u_C3MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                     const Tpx8u* pMask, int maskStep),
    tpxiCopy_8u_C4MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                     const Tpx8u* pMask, int maskStep),
    tpxiCopy_8u_AC4MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_16u_C1MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_16u_C3MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_16u_C4MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_16u_AC4MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                       const Tpx8u* pMask, int maskStep),
    tpxiCopy_16s_C1MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_16s_C3MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_16s_C4MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_16s_AC4MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                       const Tpx8u* pMask, int maskStep),
    tpxiCopy_32s_C1MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_32s_C3MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_32s_C4MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_32s_AC4MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                       const Tpx8u* pMask, int maskStep),
    tpxiCopy_32f_C1MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_32f_C3MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_32f_C4MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                      const Tpx8u* pMask, int maskStep),
    tpxiCopy_32f_AC4MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                       const Tpx8u* pMask, int maskStep);

/** @} */

/** @name Copy past the caches: tpxiCopyManaged
 * @{ */

/**
 * Copies the pixels of a region with the caller's word on how memory is moved. The memory of non-temporal
 * loads and stores is seen by whoever synchronises with the caller afterwards. Source and destination do not
 * overlap. Steps are not tested.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @param flags   set of TpxCopyFlags; unknown ones are ignored
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxOk.
 */
TPX_API TpxStatus tpxiCopyManaged_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiSize roiSize, int flags);

/** @} */

/** @name Set: tpxiSet
 * @{ */

/**
 * Fills a region with one pixel value. Masked forms (M) fill the pixels whose mask byte is not zero. AC4
 * keeps the destination's fourth channel. C3C and C4C fill one channel. Steps are not tested.
 *
 * @param value    sample for C1 and for one channel, an array of 3 for C3 and AC4, of 4 for C4
 * @param pDst     first pixel of the destination; for C3C and C4C its sample of the channel
 * @param dstStep  bytes from one row of the destination to the next
 * @param roiSize  width and height of the region in pixels
 * @param pMask    first byte of the mask, which has one channel of 8u
 * @param maskStep bytes from one row of the mask to the next
 * @return The first of these that applies: tpxErrNullPointer (destination, value array, mask); tpxErrSize
 *     (width or height below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiSet_8u_C1R(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_8u_C3R(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_8u_C4R(const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_8u_AC4R(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_8u_C3CR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_8u_C4CR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16u_C1R(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16u_C3R(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16u_C4R(const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16u_AC4R(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16u_C3CR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16u_C4CR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16s_C1R(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16s_C3R(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16s_C4R(const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16s_AC4R(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16s_C3CR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_16s_C4CR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32s_C1R(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32s_C3R(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32s_C4R(const Tpx32s value[4], Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32s_AC4R(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32s_C3CR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32s_C4CR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32f_C1R(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32f_C3R(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32f_C4R(const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32f_AC4R(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32f_C3CR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_32f_C4CR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSet_8u_C1MR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask, int maskStep),
    tpxiSet_8u_C3MR(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                    int maskStep),
    tpxiSet_8u_C4MR(const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                    int maskStep),
    tpxiSet_8u_AC4MR(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_16u_C1MR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_16u_C3MR(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_16u_C4MR(const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_16u_AC4MR(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                      int maskStep),
    tpxiSet_16s_C1MR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_16s_C3MR(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_16s_C4MR(const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_16s_AC4MR(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                      int maskStep),
    tpxiSet_32s_C1MR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_32s_C3MR(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_32s_C4MR(const Tpx32s value[4], Tpx32s* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_32s_AC4MR(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                      int maskStep),
    tpxiSet_32f_C1MR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_32f_C3MR(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_32f_C4MR(const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                     int maskStep),
    tpxiSet_32f_AC4MR(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,
                      int maskStep);

/** @} */

/** @name Duplicate: tpxiDup
 * @{ */

/**
 * Writes each source sample into every channel of the destination's pixel, the fourth included. Steps are not
 * tested.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxOk.
 */
TPX_API TpxStatus
    tpxiDup_8u_C1C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiDup_8u_C1C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize);

/** @} */

/** @name Channels in another order: tpxiSwapChannels
 * @{ */

/**
 * Gives the destination's channels from the source's, in any order: entry k of dstOrder names the source
 * channel that feeds destination channel k. Channels may be named more than once. Source and destination of
 * 8u C3R may be the same image; otherwise they do not overlap, unless in place (I).
 *
 * C3C4: an entry below 3 takes that source channel, 3 takes val, and a larger one leaves the destination's
 * channel as it was. AC4: in each row, the pixels of whole blocks (16 in 8u, 8 in 16 bits, 4 in 32 bits) get
 * a fourth channel of 0, and the pixels after the last whole block keep theirs.
 *
 * @param pSrc       first pixel of the source
 * @param srcStep    bytes from one row of the source to the next
 * @param pDst       first pixel of the destination
 * @param dstStep    bytes from one row of the destination to the next
 * @param roiSize    width and height of the region in pixels
 * @param dstOrder   source channels, counted from 0: 3 entries for C3, AC4 and C4C3, 4 for C4 and C3C4
 * @param val        sample for channels whose entry is 3
 * @param pSrcDst    first pixel of the image that is read and written
 * @param srcDstStep bytes from one of its rows to the next
 * @return The first of these that applies:
 * - C3R (but 32f), C3C4R, C4C3R: tpxErrNullPointer (source, destination, order); tpxErrSize (width or height
 *   below 1); tpxErrStep (a step of 0); tpxErrChannelOrder; tpxOk
 * - C4R, AC4R and 32f_C3R: tpxErrNullPointer (source, destination); tpxErrStep; tpxErrSize; tpxErrNullPointer
 *   (order); tpxErrChannelOrder; tpxOk
 * - C3IR: tpxErrNullPointer (image); tpxErrStep; tpxErrSize; tpxErrNullPointer (order); tpxErrChannelOrder;
 *   tpxOk
 * - C4IR: tpxErrNullPointer (image, order); tpxErrStep; tpxErrSize; tpxErrChannelOrder; tpxOk
 *
 * tpxErrChannelOrder is an entry that is no channel of the source; in C3C4 a negative one.
 */
TPX_API TpxStatus
    tpxiSwapChannels_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                            const int dstOrder[3]),
    tpxiSwapChannels_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                            const int dstOrder[4]),
    tpxiSwapChannels_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[3]),
    tpxiSwapChannels_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[3]),
    tpxiSwapChannels_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[4]),
    tpxiSwapChannels_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                              const int dstOrder[3]),
    tpxiSwapChannels_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[3]),
    tpxiSwapChannels_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[4]),
    tpxiSwapChannels_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                              const int dstOrder[3]),
    tpxiSwapChannels_32s_C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[3]),
    tpxiSwapChannels_32s_C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[4]),
    tpxiSwapChannels_32s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                              const int dstOrder[3]),
    tpxiSwapChannels_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[3]),
    tpxiSwapChannels_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                             const int dstOrder[4]),
    tpxiSwapChannels_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                              const int dstOrder[3]),
    tpxiSwapChannels_8u_C3C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                              const int dstOrder[4], Tpx8u val),
    tpxiSwapChannels_8u_C4C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                              const int dstOrder[3]),
    tpxiSwapChannels_16u_C3C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                               const int dstOrder[4], Tpx16u val),
    tpxiSwapChannels_16u_C4C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                               const int dstOrder[3]),
    tpxiSwapChannels_16s_C3C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                               const int dstOrder[4], Tpx16s val),
    tpxiSwapChannels_16s_C4C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                               const int dstOrder[3]),
    tpxiSwapChannels_32s_C3C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                               const int dstOrder[4], Tpx32s val),
    tpxiSwapChannels_32s_C4C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                               const int dstOrder[3]),
    tpxiSwapChannels_32f_C3C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                               const int dstOrder[4], Tpx32f val),
    tpxiSwapChannels_32f_C4C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                               const int dstOrder[3]),

    tpxiSwapChannels_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const int dstOrder[3]),
    tpxiSwapChannels_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const int dstOrder[4]);

/** @} */

TPX_EXTERN_C_END

#endif
