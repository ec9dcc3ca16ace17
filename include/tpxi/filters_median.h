/* Neighbourhood filters by rank: medians of windows, vector medians of colours. */
#ifndef TPXI_FILTERS_MEDIAN_H
#define TPXI_FILTERS_MEDIAN_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Medians of any odd mask: tpxiFilterMedianBorder ----
 *
 * Every sample becomes the median of its channel over the mask, which is centred on the pixel: of the mask's
 * n = width x height samples in ascending order that of index n / 2. Sizes are in pixels, steps in bytes.
 *
 * border: tpxBorderReplicate or tpxBorderConstant (borderValue is the sample of every channel), with flags for
 * sides on which the image goes on in memory and is read there, or tpxBorderInMemAll. pSrc may be pDst, with
 * the same step; results are then what they are for two images. Images that overlap otherwise are not taken.
 * pBuffer holds as many bytes as GetBufferSize tells for this region, mask, type and number of channels; its
 * address is free. A mask of 1x1 copies, and does nothing in place.
 *
 * Floats: zeros of either sign are equal, and either may be the result. What a window with NaN gives is not
 * told.
 *
 * Statuses, in order: tpxErrNullPointer (pSrc, pDst, pBuffer); tpxErrSize (region below 1); tpxErrMaskSize (a
 * side below 1 or even); tpxErrBorder (no such word; mirrored borders of any flags); tpxOk.
 * Statuses of GetBufferSize: tpxErrNullPointer; tpxErrSize; tpxErrMaskSize; tpxErrChannelCount (not 1, 3, 4);
 * tpxErrDataType (not 8u, 16u, 16s, or 32f of one channel); tpxErrSizeTooLarge (past 31 bits, *pBufferSize is
 * 0); tpxOk. */

TPX_API TpxStatus tpxiFilterMedianBorderGetBufferSize(TpxiSize roiSize, TpxiSize maskSize, TpxDataType dataType,
                                                      int numChannels, int* pBufferSize);
TPX_API TpxStatus tpxiFilterMedianBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                 TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                 Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                 TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                 Tpx16u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                 TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                 Tpx16u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                 TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                 Tpx16u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                  TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                  Tpx16u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                 Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                 Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                 Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                  TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                  Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedianBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                                 Tpx32f borderValue, Tpx8u* pBuffer);

/* ---- Medians without a border: tpxiFilterMedian ----
 *
 * The same median; the mask's pixel `anchor`, counted from its upper left one, lies on the result. All pixels
 * under the mask are read from memory, also beyond the region. Source and destination are different images.
 * pBuffer as above.
 *
 * Statuses, in order: tpxErrNullPointer (pSrc, pDst, pBuffer); tpxErrSize; tpxErrStep (a step below 1; in
 * 32f_C3R also a source step below the 12 * (width + mask width - 1) bytes of a row); tpxErrMaskSize;
 * tpxErrAnchor (outside the mask); tpxOk. Statuses of GetBufferSize: tpxErrNullPointer; tpxErrSize;
 * tpxErrMaskSize; tpxErrChannelCount (not 3 or 4 of 32f, not 1 of 64f); tpxErrSizeTooLarge (past 31 bits,
 * *pBufferSize is 0); tpxOk. */

TPX_API TpxStatus tpxiFilterMedianGetBufferSize_32f(TpxiSize roiSize, TpxiSize maskSize, int numChannels,
                                                    int* pBufferSize);
TPX_API TpxStatus tpxiFilterMedianGetBufferSize_64f(TpxiSize roiSize, TpxiSize maskSize, int numChannels,
                                                    int* pBufferSize);
TPX_API TpxStatus tpxiFilterMedian_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, TpxiSize maskSize, TpxiPoint anchor,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedian_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, TpxiSize maskSize, TpxiPoint anchor,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterMedian_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                           TpxiSize roiSize, TpxiSize maskSize, TpxiPoint anchor,
                                           Tpx8u* pBuffer);

/* ---- Medians of a cross: tpxiFilterMedianCross ----
 *
 * The median of the middle row and the middle column of a mask of 3x3 (mask 33: 5 samples) or 5x5 (55: 9
 * samples). All pixels are read from memory, also beyond the region. Source and destination are different
 * images.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize; tpxErrStep (a step below 1); tpxErrMaskSize; tpxOk. */

TPX_API TpxStatus tpxiFilterMedianCross_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                               TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianCross_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                               TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianCross_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianCross_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianCross_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianCross_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianCross_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianCross_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianCross_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask);

/* ---- Vector medians of colours: tpxiFilterMedianColor ----
 *
 * Of the pixels under a mask of 3x3 (33) or 5x5 (55) the one whose distances to all others have the least sum;
 * all three channels come from it. The distance of two pixels is the sum of the absolute differences of their
 * three channels; alpha takes no part. Of several pixels with the least sum the first in the order of rows
 * wins. Sums of integers are exact; those of floats are rounded, so that of two pixels whose exact sums differ
 * by that little either may win. A pixel with NaN, or with distances past the largest float, wins only if all
 * do. All pixels are read from memory, also beyond the region. Source and destination are different images.
 * Source: Astola, Haavisto and Neuvo, Vector Median Filters, Proceedings of the IEEE 78 (4), 1990.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize; tpxErrStep (a step below 1); tpxErrMaskSize; tpxOk. */

TPX_API TpxStatus tpxiFilterMedianColor_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                               TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianColor_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianColor_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianColor_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianColor_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                TpxiSize roiSize, int mask);
TPX_API TpxStatus tpxiFilterMedianColor_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask);

/* ---- Medians of 3x3 with a weighted centre ----
 *
 * The median of 3x3 pixels of which the centre counts `weight` times. An even weight is lowered by 1 and told
 * by a warning; a weight of 9 or more copies. All pixels are read from memory, also beyond the region. Source
 * and destination are different images.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize; tpxErrStep (a step below 1); tpxErrWeight (below 1); then
 * tpxWarnEvenWeight or tpxOk. */

TPX_API TpxStatus tpxiFilterMedianWeightedCenter3x3_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst,
                                                           int dstStep, TpxiSize roiSize, int weight);

TPX_EXTERN_C_END

#endif
