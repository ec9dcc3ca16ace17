/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Box filters and window sums: the cost of a pixel does not grow with the mask. */
#ifndef TPXI_FILTERS_BOX_H
#define TPXI_FILTERS_BOX_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Mean over a mask, work buffer: tpxiFilterBoxBorderGetBufferSize
 * @{ */

/**
 * Tells the bytes of the work buffer that tpxiFilterBoxBorder needs for a region, a mask, a type and a number
 * of channels.
 *
 * @param roiSize     width and height of the region in pixels
 * @param maskSize    width and height of the mask in pixels
 * @param dataType    type of the samples: 8u, 16u, 16s or 32f
 * @param numChannels number of channels: 1, 3 or 4 (4 for AC4)
 * @param pBufferSize takes the size in bytes
 * @return The first of these that applies: tpxErrNullPointer; tpxErrSize (width or height below 1);
 *     tpxErrMaskSize (a side below 1); tpxErrDataType; tpxErrChannelCount; tpxErrSizeTooLarge (past 31 bits,
 *     and no size is told); tpxOk.
 */
TPX_API TpxStatus tpxiFilterBoxBorderGetBufferSize(TpxiSize roiSize, TpxiSize maskSize, TpxDataType dataType,
                                                   int numChannels, int* pBufferSize);

/** @} */

/** @name Mean over a mask: tpxiFilterBoxBorder
 * @{ */

/**
 * Stores the mean of the samples under a mask, channel by channel: their sum times 1 / (width x height) of
 * the mask. The mask is centred on the pixel; one of even side reaches one pixel further to the right and
 * below.
 *
 * Sums of integers are exact, as long as those of a column fit 31 bits; the mean is their product with the
 * reciprocal in single precision, rounded to nearest with ties to even, and so the same wherever the pixel
 * lies. Masks of 32f are summed in single precision; what has left a mask leaves no rounding errors along the
 * row, and down the column none that last longer than the mask is high, or 16 rows. AC4 keeps the
 * destination's fourth channel. pSrc may equal pDst, with equal steps.
 *
 * @param pSrc         first pixel of the source
 * @param srcStep      bytes from one row of the source to the next
 * @param pDst         first pixel of the destination
 * @param dstStep      bytes from one row of the destination to the next
 * @param roiSize      width and height of the region in pixels
 * @param maskSize     width and height of the mask in pixels
 * @param border       tpxBorderReplicate, tpxBorderMirror or tpxBorderConstant, with flags for sides on which
 *     the image goes on in memory and is read there, or tpxBorderInMemAll
 * @param pBorderValue pixel of a constant border: one sample for C1, three for C3 and AC4, four for C4; not
 *     read otherwise
 * @param pBuffer      work buffer of the bytes that tpxiFilterBoxBorderGetBufferSize tells, at any address
 * @return The first of these that applies: tpxErrNullPointer (an image or the buffer); tpxErrStep (a step
 *     below 1); tpxErrSize (width or height below 1); tpxErrMaskSize (a side below 1); tpxErrBorder;
 *     tpxErrNullPointer (no border value for a constant border); tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterBoxBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                               TpxiSize maskSize, TpxBorderType border, const Tpx8u* pBorderValue,
                               Tpx8u* pBuffer),
    tpxiFilterBoxBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                               TpxiSize maskSize, TpxBorderType border, const Tpx8u* pBorderValue,
                               Tpx8u* pBuffer),
    tpxiFilterBoxBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                               TpxiSize maskSize, TpxBorderType border, const Tpx8u* pBorderValue,
                               Tpx8u* pBuffer),
    tpxiFilterBoxBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx8u* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx16u* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx16u* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx16u* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                 TpxiSize maskSize, TpxBorderType border, const Tpx16u* pBorderValue,
                                 Tpx8u* pBuffer),
    tpxiFilterBoxBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx16s* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx16s* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx16s* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                 TpxiSize maskSize, TpxBorderType border, const Tpx16s* pBorderValue,
                                 Tpx8u* pBuffer),
    tpxiFilterBoxBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx32f* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx32f* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                TpxiSize maskSize, TpxBorderType border, const Tpx32f* pBorderValue,
                                Tpx8u* pBuffer),
    tpxiFilterBoxBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                 TpxiSize maskSize, TpxBorderType border, const Tpx32f* pBorderValue,
                                 Tpx8u* pBuffer);

/** @} */

/** @name Mean over a mask, all neighbours in memory: tpxiFilterBox
 * @{ */

/**
 * Stores the mean of the samples under a mask whose pixel `anchor` lies on the result's pixel. All that the
 * mask covers is read from memory, whatever the anchor is. Source and destination are different images.
 *
 * @param pSrc     first pixel of the source
 * @param srcStep  bytes from one row of the source to the next
 * @param pDst     first pixel of the destination
 * @param dstStep  bytes from one row of the destination to the next
 * @param roiSize  width and height of the region in pixels
 * @param maskSize width and height of the mask in pixels
 * @param anchor   pixel of the mask, counted from its upper left one, that lies on the result; it is not
 *     tested
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (a side of the region or
 *     of the mask below 1); tpxErrStep (srcStep below the bytes of width + mask width - 1 pixels, or dstStep
 *     below those of the width); tpxOk.
 */
TPX_API TpxStatus tpxiFilterBox_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                        TpxiSize roiSize, TpxiSize maskSize, TpxiPoint anchor);

/** @} */

/** @name Sums along one direction: tpxiSumWindowRow, tpxiSumWindowColumn
 * @{ */

/**
 * Stores the sum of maskSize samples of a channel along the row or along the column. The sum is exact, and
 * rounded once to 32f. All samples that are summed are read from memory, also outside the region; images do
 * not overlap. A region without pixels is no error, and steps are not tested.
 *
 * @param pSrc     first pixel of the source
 * @param srcStep  bytes from one row of the source to the next
 * @param pDst     first pixel of the destination
 * @param dstStep  bytes from one row of the destination to the next
 * @param roiSize  width and height of the region in pixels
 * @param maskSize number of samples that are summed
 * @param anchor   which of them, counted from 0, is the result's pixel
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrMaskSize (below 1);
 *     tpxErrAnchor (not 0 to maskSize - 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiSumWindowRow_8u32f_C1R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                               int maskSize, int anchor),
    tpxiSumWindowRow_8u32f_C3R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                               int maskSize, int anchor),
    tpxiSumWindowRow_8u32f_C4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                               int maskSize, int anchor),
    tpxiSumWindowRow_16u32f_C1R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                int maskSize, int anchor),
    tpxiSumWindowRow_16u32f_C3R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                int maskSize, int anchor),
    tpxiSumWindowRow_16u32f_C4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                int maskSize, int anchor),
    tpxiSumWindowRow_16s32f_C1R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                int maskSize, int anchor),
    tpxiSumWindowRow_16s32f_C3R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                int maskSize, int anchor),
    tpxiSumWindowRow_16s32f_C4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                int maskSize, int anchor),
    tpxiSumWindowColumn_8u32f_C1R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                  int maskSize, int anchor),
    tpxiSumWindowColumn_8u32f_C3R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                  int maskSize, int anchor),
    tpxiSumWindowColumn_8u32f_C4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                  int maskSize, int anchor),
    tpxiSumWindowColumn_16u32f_C1R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int maskSize, int anchor),
    tpxiSumWindowColumn_16u32f_C3R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int maskSize, int anchor),
    tpxiSumWindowColumn_16u32f_C4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int maskSize, int anchor),
    tpxiSumWindowColumn_16s32f_C1R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int maskSize, int anchor),
    tpxiSumWindowColumn_16s32f_C3R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int maskSize, int anchor),
    tpxiSumWindowColumn_16s32f_C4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int maskSize, int anchor);

/** @} */

TPX_EXTERN_C_END

#endif
