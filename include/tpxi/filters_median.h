/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Neighbourhood filters by rank: medians of windows, vector medians of colours. */
#ifndef TPXI_FILTERS_MEDIAN_H
#define TPXI_FILTERS_MEDIAN_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Medians of any odd mask, work buffer: tpxiFilterMedianBorderGetBufferSize
 * @{ */

/**
 * Tells the bytes of the work buffer that tpxiFilterMedianBorder needs for a region, a mask, a type and a
 * number of channels.
 *
 * @param roiSize     width and height of the region in pixels
 * @param maskSize    width and height of the mask in pixels, both odd
 * @param dataType    type of the samples: 8u, 16u, 16s, or 32f of one channel
 * @param numChannels number of channels: 1, 3 or 4 (4 for AC4)
 * @param pBufferSize takes the size in bytes
 * @return The first of these that applies: tpxErrNullPointer; tpxErrSize (region below 1); tpxErrMaskSize (a
 *     side below 1 or even); tpxErrChannelCount; tpxErrDataType; tpxErrSizeTooLarge (past 31 bits; the size
 *     told is 0); tpxOk.
 */
TPX_API TpxStatus tpxiFilterMedianBorderGetBufferSize(TpxiSize roiSize, TpxiSize maskSize, TpxDataType dataType,
                                                      int numChannels, int* pBufferSize);

/** @} */

/** @name Medians of any odd mask: tpxiFilterMedianBorder
 * @{ */

/**
 * Stores for every sample the median of its channel over a mask that is centred on the pixel: of the mask's
 * n = width x height samples in ascending order that of index n / 2.
 *
 * A mask of 1x1 copies, and does nothing in place. pSrc may be pDst, with the same step; results are then
 * what they are for two images. Images that overlap otherwise are not taken. AC4 keeps the destination's
 * fourth channel. Floats: zeros of either sign are equal, and either may be the result; what a window with
 * NaN gives is not told.
 *
 * @param pSrc        first pixel of the source
 * @param srcStep     bytes from one row of the source to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param maskSize    width and height of the mask in pixels, both odd
 * @param border      tpxBorderReplicate or tpxBorderConstant, with flags for sides on which the image goes on
 *     in memory and is read there, or tpxBorderInMemAll
 * @param borderValue sample of a constant border, the same for every channel
 * @param pBuffer     work buffer, at any address, of the bytes that tpxiFilterMedianBorderGetBufferSize tells
 *     for this region, mask, type and number of channels
 * @return The first of these that applies: tpxErrNullPointer (pSrc, pDst, pBuffer); tpxErrSize (region below
 *     1); tpxErrMaskSize (a side below 1 or even); tpxErrBorder (no such word; mirrored borders of any
 *     flags); tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterMedianBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  TpxiSize maskSize, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  TpxiSize maskSize, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  TpxiSize maskSize, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   TpxiSize maskSize, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                   TpxiSize maskSize, TpxBorderType border, Tpx16u borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                   TpxiSize maskSize, TpxBorderType border, Tpx16u borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                   TpxiSize maskSize, TpxBorderType border, Tpx16u borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                    Tpx16u borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   TpxiSize maskSize, TpxBorderType border, Tpx16s borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   TpxiSize maskSize, TpxBorderType border, Tpx16s borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   TpxiSize maskSize, TpxBorderType border, Tpx16s borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                    Tpx16s borderValue, Tpx8u* pBuffer),
    tpxiFilterMedianBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   TpxiSize maskSize, TpxBorderType border, Tpx32f borderValue, Tpx8u* pBuffer);

/** @} */

/** @name Medians without a border, work buffer: tpxiFilterMedianGetBufferSize
 * @{ */

/**
 * Tells the bytes of the work buffer that tpxiFilterMedian needs for a region, a mask and a number of
 * channels.
 *
 * @param roiSize     width and height of the region in pixels
 * @param maskSize    width and height of the mask in pixels, both odd
 * @param numChannels number of channels: 3 or 4 for 32f, 1 for 64f
 * @param pBufferSize takes the size in bytes
 * @return The first of these that applies: tpxErrNullPointer; tpxErrSize (region below 1); tpxErrMaskSize (a
 *     side below 1 or even); tpxErrChannelCount; tpxErrSizeTooLarge (past 31 bits; the size told is 0);
 *     tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterMedianGetBufferSize_32f(TpxiSize roiSize, TpxiSize maskSize, int numChannels, int* pBufferSize),
    tpxiFilterMedianGetBufferSize_64f(TpxiSize roiSize, TpxiSize maskSize, int numChannels, int* pBufferSize);

/** @} */

/** @name Medians without a border: tpxiFilterMedian
 * @{ */

/**
 * Stores for every sample the median of its channel over a mask, of which the pixel `anchor` lies on the
 * result: of the mask's n = width x height samples in ascending order that of index n / 2.
 *
 * All pixels under the mask are read from memory, also beyond the region. Source and destination are
 * different images. Zeros of either sign are equal, and either may be the result; what a window with NaN
 * gives is not told.
 *
 * @param pSrc     first pixel of the source
 * @param srcStep  bytes from one row of the source to the next
 * @param pDst     first pixel of the destination
 * @param dstStep  bytes from one row of the destination to the next
 * @param roiSize  width and height of the region in pixels
 * @param maskSize width and height of the mask in pixels, both odd
 * @param anchor   pixel of the mask, counted from its upper left one, that lies on the result
 * @param pBuffer  work buffer, at any address, of the bytes that tpxiFilterMedianGetBufferSize tells for this
 *     region, mask and number of channels
 * @return The first of these that applies: tpxErrNullPointer (pSrc, pDst, pBuffer); tpxErrSize (region below
 *     1); tpxErrStep (a step below 1; in 32f_C3R also a source step below the 12 * (width + mask width - 1)
 *     bytes of a row); tpxErrMaskSize (a side below 1 or even); tpxErrAnchor (outside the mask); tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterMedian_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                             TpxiSize maskSize, TpxiPoint anchor, Tpx8u* pBuffer),
    tpxiFilterMedian_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                             TpxiSize maskSize, TpxiPoint anchor, Tpx8u* pBuffer),
    tpxiFilterMedian_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep, TpxiSize roiSize,
                             TpxiSize maskSize, TpxiPoint anchor, Tpx8u* pBuffer);

/** @} */

/** @name Medians of a cross: tpxiFilterMedianCross
 * @{ */

/**
 * Stores for every sample the median of its channel over the middle row and the middle column of a mask that
 * is centred on the pixel.
 *
 * All pixels are read from memory, also beyond the region. Source and destination are different images. AC4
 * keeps the destination's fourth channel.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @param mask    33 for the cross of 3x3, of 5 samples, or 55 for that of 5x5, of 9
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (region below 1);
 *     tpxErrStep (a step below 1); tpxErrMaskSize; tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterMedianCross_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                 int mask),
    tpxiFilterMedianCross_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                 int mask),
    tpxiFilterMedianCross_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  int mask),
    tpxiFilterMedianCross_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                  int mask),
    tpxiFilterMedianCross_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                  int mask),
    tpxiFilterMedianCross_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                   int mask),
    tpxiFilterMedianCross_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                  int mask),
    tpxiFilterMedianCross_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                  int mask),
    tpxiFilterMedianCross_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   int mask);

/** @} */

/** @name Vector medians of colours: tpxiFilterMedianColor
 * @{ */

/**
 * Stores, of the pixels under a mask that is centred on the pixel, the one whose distances to all others have
 * the least sum; all three channels come from it. The distance of two pixels is the sum of the absolute
 * differences of their three channels; alpha takes no part, and AC4 keeps the destination's.
 *
 * Of several pixels with the least sum the first in the order of rows wins. Sums of integers are exact; those
 * of floats are rounded, so that of two pixels whose exact sums differ by that little either may win. A pixel
 * with NaN, or with distances past the largest float, wins only if all do. All pixels are read from memory,
 * also beyond the region. Source and destination are different images. Source: Astola, Haavisto and Neuvo,
 * Vector Median Filters, Proceedings of the IEEE 78 (4), 1990.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @param mask    33 for 3x3 or 55 for 5x5
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (region below 1);
 *     tpxErrStep (a step below 1); tpxErrMaskSize; tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterMedianColor_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                 int mask),
    tpxiFilterMedianColor_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  int mask),
    tpxiFilterMedianColor_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                  int mask),
    tpxiFilterMedianColor_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   int mask),
    tpxiFilterMedianColor_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                  int mask),
    tpxiFilterMedianColor_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int mask);

/** @} */

/** @name Medians of 3x3 with a weighted centre: tpxiFilterMedianWeightedCenter3x3
 * @{ */

/**
 * Stores for every sample the median of the 3x3 samples around it, of which the centre counts `weight` times.
 * A weight of 9 or more copies.
 *
 * All pixels are read from memory, also beyond the region. Source and destination are different images.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @param weight  how often the centre counts: odd; an even weight is lowered by 1
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (region below 1);
 *     tpxErrStep (a step below 1); tpxErrWeight (below 1); tpxWarnEvenWeight (the region is done); tpxOk.
 */
TPX_API TpxStatus tpxiFilterMedianWeightedCenter3x3_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst,
                                                           int dstStep, TpxiSize roiSize, int weight);

/** @} */

TPX_EXTERN_C_END

#endif
