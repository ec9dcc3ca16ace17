/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Neighbourhood filters with masks of their own: derivatives, Laplacians, sharpening. */
#ifndef TPXI_FILTERS_FIXED_H
#define TPXI_FILTERS_FIXED_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Derivatives, work buffer: tpxiFilter...BorderGetBufferSize
 * @{ */

/**
 * Tells the bytes of the work buffer that the derivative of the same name needs for a region, a mask and a
 * pair of types.
 *
 * @param roiSize     width and height of the region in pixels
 * @param mask        33 for 3x3, or 55 for 5x5 where the filter has it
 * @param srcType     type of the source's samples
 * @param dstType     type of the results: the pairs are 8u to 16s, 16s to 16s, 32f to 32f, where the filter
 *     has them
 * @param numChannels number of channels: 1
 * @param pBufferSize takes the size in bytes
 * @return The first of these that applies: tpxErrNullPointer; tpxErrSize (width or height below 1);
 *     tpxErrMaskSize; tpxErrDataType (a pair that the filter does not have); tpxErrChannelCount;
 *     tpxErrSizeTooLarge (past 31 bits); tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterSobelVertBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType, TpxDataType dstType,
                                           int numChannels, int* pBufferSize),
    tpxiFilterSobelHorizBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                            TpxDataType dstType, int numChannels, int* pBufferSize),
    tpxiFilterSobelNegVertBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                              TpxDataType dstType, int numChannels, int* pBufferSize),
    tpxiFilterSobelVertSecondBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                 TpxDataType dstType, int numChannels, int* pBufferSize),
    tpxiFilterSobelHorizSecondBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                  TpxDataType dstType, int numChannels, int* pBufferSize),
    tpxiFilterScharrVertMaskBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                TpxDataType dstType, int numChannels, int* pBufferSize),
    tpxiFilterScharrHorizMaskBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                 TpxDataType dstType, int numChannels, int* pBufferSize),
    tpxiFilterPrewittVertBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                             TpxDataType dstType, int numChannels, int* pBufferSize),
    tpxiFilterPrewittHorizBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                              TpxDataType dstType, int numChannels, int* pBufferSize),
    tpxiFilterRobertsUpBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType, TpxDataType dstType,
                                           int numChannels, int* pBufferSize),
    tpxiFilterRobertsDownBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                             TpxDataType dstType, int numChannels, int* pBufferSize);

/** @} */

/** @name Derivatives: tpxiFilterSobel, tpxiFilterScharr, tpxiFilterPrewitt, tpxiFilterRoberts
 * @{ */

/**
 * Stores the sum of a mask's weights times the samples under it, the mask centred on the pixel. The weights,
 * as a column times a row:
 * - SobelVert: 33: `[1 2 1] x [1 0 -1]`, 55: `[1 4 6 4 1] x [1 2 0 -2 -1]`; left minus right
 * - SobelNegVert: the negative of SobelVert; right minus left
 * - SobelHoriz: 33: `[-1 0 1] x [1 2 1]`, 55: `[-1 -2 0 2 1] x [1 4 6 4 1]`; bottom minus top
 * - SobelVertSecond: 33: `[1 2 1] x [1 -2 1]`, 55: `[1 4 6 4 1] x [1 0 -2 0 1]`
 * - SobelHorizSecond: 33: `[1 -2 1] x [1 2 1]`, 55: `[1 0 -2 0 1] x [1 4 6 4 1]`
 * - ScharrVertMask: `[3 10 3] x [-1 0 1]`; right minus left, unlike Sobel and Prewitt
 * - ScharrHorizMask: `[-1 0 1] x [3 10 3]`; bottom minus top
 * - PrewittVert: `[1 1 1] x [1 0 -1]`; left minus right
 * - PrewittHoriz: `[-1 0 1] x [1 1 1]`; bottom minus top
 * - RobertsUp: `s(x, y) - s(x + 1, y - 1)`
 * - RobertsDown: `s(x, y) - s(x - 1, y - 1)`
 *
 * Sources: Sobel and Feldman 1968; Scharr 2000; Prewitt 1970; Roberts 1963. Integer sums are exact, then
 * saturated; those of 32f are rounded product by product, in the order of the mask's rows. Source and
 * destination are different images. Steps are not tested, but as told below.
 *
 * @param pSrc        first pixel of the source
 * @param srcStep     bytes from one row of the source to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param mask        33 for 3x3, or 55 for 5x5 (Sobel alone)
 * @param border      tpxBorderReplicate, tpxBorderMirror or tpxBorderConstant, with flags for sides on which
 *     the image goes on in memory and is read there, or tpxBorderInMemAll
 * @param borderValue sample of a constant border
 * @param pBuffer     work buffer, at any address, of the bytes that GetBufferSize of the same name tells for
 *     a region of at least this size
 * @return The first of these that applies: tpxErrNullPointer (source, destination, buffer); tpxErrSize (width
 *     or height below 1); tpxErrStepNotMultiple (an odd dstStep of 16-bit results); tpxErrMaskSize;
 *     tpxErrBorder; tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterSobelVertBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize, int mask, TpxBorderType border, Tpx8u borderValue,
                                        Tpx8u* pBuffer),
    tpxiFilterSobelVertBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                      Tpx8u* pBuffer),
    tpxiFilterSobelVertBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                      Tpx8u* pBuffer),
    tpxiFilterSobelHorizBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                         TpxiSize roiSize, int mask, TpxBorderType border, Tpx8u borderValue,
                                         Tpx8u* pBuffer),
    tpxiFilterSobelHorizBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                       TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                       Tpx8u* pBuffer),
    tpxiFilterSobelHorizBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                       TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                       Tpx8u* pBuffer),
    tpxiFilterSobelNegVertBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, int mask, TpxBorderType border, Tpx8u borderValue,
                                           Tpx8u* pBuffer),
    tpxiFilterSobelNegVertBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                         Tpx8u* pBuffer),
    tpxiFilterSobelVertSecondBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, int mask, TpxBorderType border,
                                              Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterSobelVertSecondBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiSize roiSize, int mask, TpxBorderType border,
                                            Tpx32f borderValue, Tpx8u* pBuffer),
    tpxiFilterSobelHorizSecondBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                               TpxiSize roiSize, int mask, TpxBorderType border,
                                               Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterSobelHorizSecondBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                             TpxiSize roiSize, int mask, TpxBorderType border,
                                             Tpx32f borderValue, Tpx8u* pBuffer),
    tpxiFilterScharrVertMaskBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                             TpxiSize roiSize, int mask, TpxBorderType border,
                                             Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterScharrVertMaskBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                           Tpx8u* pBuffer),
    tpxiFilterScharrVertMaskBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                           Tpx8u* pBuffer),
    tpxiFilterScharrHorizMaskBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiSize roiSize, int mask, TpxBorderType border,
                                              Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterScharrHorizMaskBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiSize roiSize, int mask, TpxBorderType border,
                                            Tpx16s borderValue, Tpx8u* pBuffer),
    tpxiFilterScharrHorizMaskBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiSize roiSize, int mask, TpxBorderType border,
                                            Tpx32f borderValue, Tpx8u* pBuffer),
    tpxiFilterPrewittVertBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiSize roiSize, int mask, TpxBorderType border, Tpx8u borderValue,
                                          Tpx8u* pBuffer),
    tpxiFilterPrewittVertBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                        Tpx8u* pBuffer),
    tpxiFilterPrewittVertBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                        Tpx8u* pBuffer),
    tpxiFilterPrewittHorizBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, int mask, TpxBorderType border, Tpx8u borderValue,
                                           Tpx8u* pBuffer),
    tpxiFilterPrewittHorizBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                         TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                         Tpx8u* pBuffer),
    tpxiFilterPrewittHorizBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                         TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                         Tpx8u* pBuffer),
    tpxiFilterRobertsUpBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize, int mask, TpxBorderType border, Tpx8u borderValue,
                                        Tpx8u* pBuffer),
    tpxiFilterRobertsUpBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                      Tpx8u* pBuffer),
    tpxiFilterRobertsUpBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                      Tpx8u* pBuffer),
    tpxiFilterRobertsDownBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiSize roiSize, int mask, TpxBorderType border, Tpx8u borderValue,
                                          Tpx8u* pBuffer),
    tpxiFilterRobertsDownBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                        TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                        Tpx8u* pBuffer),
    tpxiFilterRobertsDownBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                        TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                        Tpx8u* pBuffer);

/** @} */

/** @name Differences from the surroundings, work buffer: tpxiFilter...BorderGetBufferSize
 * @{ */

/**
 * Tells the bytes of the work buffer that the filter of the same name needs for a region, a mask, a type and
 * a number of channels.
 *
 * @param roiSize     width and height of the region in pixels
 * @param mask        33 for 3x3, or 55 for 5x5 where the filter has it
 * @param srcType     type of the samples: 8u, 16s or 32f
 * @param dstType     the same type
 * @param numChannels number of channels: 1, 3 or 4 (4 for AC4)
 * @param pBufferSize takes the size in bytes
 * @return The first of these that applies: tpxErrNullPointer; tpxErrSize (width or height below 1);
 *     tpxErrMaskSize; tpxErrDataType; tpxErrChannelCount; tpxErrSizeTooLarge (past 31 bits); tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterLaplaceBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType, TpxDataType dstType,
                                         int numChannels, int* pBufferSize),
    tpxiFilterHipassBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType, TpxDataType dstType,
                                        int numChannels, int* pBufferSize),
    tpxiFilterSharpenBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType, TpxDataType dstType,
                                         int numChannels, int* pBufferSize);

/** @} */

/** @name Differences from the surroundings: tpxiFilterLaplace, tpxiFilterHipass, tpxiFilterSharpen
 * @{ */

/**
 * Stores how far a pixel is above its surroundings (Laplace, Hipass), or the pixel with that difference added
 * (Sharpen).
 * - Laplace 33: 9 times the centre less the sum of the nine samples
 * - Laplace 55: `[0 0 -1 0 0; 0 -1 -2 -1 0; -1 -2 16 -2 -1; 0 -1 -2 -1 0; 0 0 -1 0 0]`, the Laplacian of a
 *   Gaussian (Gonzalez and Woods, Digital Image Processing)
 * - Hipass 33: as Laplace
 * - Hipass 55: 25 times the centre less the sum of the twenty-five samples
 * - Sharpen 33: 17 times the centre less the sum of the nine samples, over 8, rounded to nearest with ties to
 *   even
 *
 * Integer sums are exact, then saturated; those of 32f are rounded. AC4 keeps the destination's fourth
 * channel. Source and destination are different images. Steps are not tested.
 *
 * @param pSrc        first pixel of the source
 * @param srcStep     bytes from one row of the source to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param mask        33 for 3x3, or 55 for 5x5 (not for Sharpen)
 * @param border      tpxBorderReplicate, tpxBorderMirror or tpxBorderConstant, with flags for sides on which
 *     the image goes on in memory and is read there, or tpxBorderInMemAll
 * @param borderValue sample of a constant border, the same for every channel
 * @param pBuffer     work buffer, at any address, of the bytes that GetBufferSize of the same name tells for
 *     a region of at least this size
 * @return The first of these that applies: tpxErrNullPointer (source, destination, buffer); tpxErrSize (width
 *     or height below 1); tpxErrMaskSize; tpxErrBorder; tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterLaplaceBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                    int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                     Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterLaplaceBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                     Tpx8u* pBuffer),
    tpxiFilterHipassBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx16s borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx16s borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx16s borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterHipassBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx32f borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx32f borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx32f borderValue, Tpx8u* pBuffer),
    tpxiFilterHipassBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                    int mask, TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize, int mask, TpxBorderType border, Tpx16s borderValue,
                                     Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                    Tpx8u* pBuffer),
    tpxiFilterSharpenBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiSize roiSize, int mask, TpxBorderType border, Tpx32f borderValue,
                                     Tpx8u* pBuffer);

/** @} */

TPX_EXTERN_C_END

#endif
