/* Box filters and window sums: the cost of a pixel does not grow with the mask. */
#ifndef TPXI_FILTERS_BOX_H
#define TPXI_FILTERS_BOX_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Mean over a mask: tpxiFilterBoxBorder ---------------------------------------------------------
 * The sum of the samples under the mask times 1 / (width x height). A mask of even side reaches one pixel
 * further to the right and below. Sums of integers are exact, as long as those of a column fit 31 bits; the
 * mean is their product with the reciprocal in single precision, rounded to nearest with ties to even, and so
 * the same wherever the pixel lies. Masks of 32f are summed in single precision; what has left a mask leaves no
 * rounding errors along the row, and down the column none that last longer than the mask is high, or 16 rows.
 * AC4 keeps the destination's fourth channel.
 *
 * Sizes are in pixels, steps in bytes; steps are not compared with the rows. border: tpxBorderReplicate,
 * tpxBorderMirror or tpxBorderConstant (pBorderValue is the pixel: one sample of C1, three of C3 and AC4, four
 * of C4; not read otherwise), with flags for sides on which the image goes on in memory and is read there, or
 * tpxBorderInMemAll. pSrc may equal pDst (with equal steps). pBuffer holds as many bytes as GetBufferSize
 * tells for the region, the mask, the type and the channels (4 for AC4); its address is free.
 *
 * Statuses, in order: tpxErrNullPointer (an image or the buffer); tpxErrStep (a step below 1); tpxErrSize
 * (width or height below 1); tpxErrMaskSize (a side below 1); tpxErrBorder; tpxErrNullPointer (no border value
 * for a constant border); tpxOk.
 * Statuses of GetBufferSize: tpxErrNullPointer; tpxErrSize; tpxErrMaskSize; tpxErrDataType (not 8u, 16u, 16s
 * or 32f); tpxErrChannelCount (not 1, 3 or 4); tpxErrSizeTooLarge (past 31 bits, and no size is told); tpxOk.
 */

TPX_API TpxStatus tpxiFilterBoxBorderGetBufferSize(TpxiSize roiSize, TpxiSize maskSize, TpxDataType dataType,
                                                   int numChannels, int* pBufferSize);
TPX_API TpxStatus tpxiFilterBoxBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                             const Tpx8u* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                             const Tpx8u* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                             const Tpx8u* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx8u* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx16u* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx16u* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx16u* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                               TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                               const Tpx16u* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx16s* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx16s* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx16s* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                               TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                               const Tpx16s* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx32f* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx32f* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                              const Tpx32f* pBorderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBoxBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                               TpxiSize roiSize, TpxiSize maskSize, TpxBorderType border,
                                               const Tpx32f* pBorderValue, Tpx8u* pBuffer);

/* ---- Mean over a mask, all neighbours in memory: tpxiFilterBox -------------------------------------
 * The mean over the mask whose pixel `anchor` lies on the result's pixel. All that the mask covers is read from
 * memory, whatever the anchor is; source and destination are different images.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (a side of the region or of the mask below 1); tpxErrStep
 * (srcStep below a row of width + mask width - 1, or dstStep below a row of the width); tpxOk. */

TPX_API TpxStatus tpxiFilterBox_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                        TpxiSize roiSize, TpxiSize maskSize, TpxiPoint anchor);

/* ---- Sums along one direction: tpxiSumWindowRow, tpxiSumWindowColumn -------------------------------
 * The sum of maskSize samples of a channel along the row or the column, of which the one numbered `anchor` is
 * the result's pixel. The sum is exact, and rounded once to 32f. All samples that are summed are read from
 * memory, also outside the region; images do not overlap. A region without pixels is no error, and steps are
 * taken as they are.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrMaskSize (below 1); tpxErrAnchor (not 0 to maskSize - 1);
 * tpxOk. */

TPX_API TpxStatus tpxiSumWindowRow_8u32f_C1R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowRow_8u32f_C3R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowRow_8u32f_C4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowRow_16u32f_C1R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowRow_16u32f_C3R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowRow_16u32f_C4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowRow_16s32f_C1R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowRow_16s32f_C3R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowRow_16s32f_C4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_8u32f_C1R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_8u32f_C3R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_8u32f_C4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_16u32f_C1R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_16u32f_C3R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_16u32f_C4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_16s32f_C1R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_16s32f_C3R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int maskSize, int anchor);
TPX_API TpxStatus tpxiSumWindowColumn_16s32f_C4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int maskSize, int anchor);

TPX_EXTERN_C_END

#endif
