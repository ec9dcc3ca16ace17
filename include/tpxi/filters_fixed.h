/* Neighbourhood filters with masks of their own: derivatives, Laplacians, sharpening. */
#ifndef TPXI_FILTERS_FIXED_H
#define TPXI_FILTERS_FIXED_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Derivatives: tpxiFilterSobel*, tpxiFilterScharr*, tpxiFilterPrewitt*, tpxiFilterRoberts*
 * ---------------- The sum of the mask's weights times the samples under it, the mask centred on the pixel;
 * mask is 33 for 3x3 or 55 for 5x5 (Sobel alone). Weights as a column times a row: SobelVert          33: [1 2
 * 1] x [1 0 -1]         55: [1 4 6 4 1] x [1 2 0 -2 -1]    left minus right SobelNegVert       the negative of
 * SobelVert                                      right minus left SobelHoriz         33: [-1 0 1] x [1 2 1] 55:
 * [-1 -2 0 2 1] x [1 4 6 4 1]    bottom minus top SobelVertSecond    33: [1 2 1] x [1 -2 1]         55: [1 4 6
 * 4 1] x [1 0 -2 0 1] SobelHorizSecond   33: [1 -2 1] x [1 2 1]         55: [1 0 -2 0 1] x [1 4 6 4 1]
 *   ScharrVertMask     [3 10 3] x [-1 0 1]: right minus left, unlike Sobel and Prewitt
 *   ScharrHorizMask    [-1 0 1] x [3 10 3]: bottom minus top
 *   PrewittVert        [1 1 1] x [1 0 -1]: left minus right;  PrewittHoriz  [-1 0 1] x [1 1 1]: bottom minus
 * top RobertsUp          s(x, y) - s(x + 1, y - 1);  RobertsDown  s(x, y) - s(x - 1, y - 1) Sources: Sobel and
 * Feldman 1968; Scharr 2000; Prewitt 1970; Roberts 1963. Integer sums are exact, then saturated; those of 32f
 * are rounded product by product, in the order of the mask's rows.
 *
 * Sizes are in pixels, steps in bytes and not tested but as told. border: tpxBorderReplicate, tpxBorderMirror
 * or tpxBorderConstant (borderValue is the sample), with flags for sides on which the image goes on in memory
 * and is read there, or tpxBorderInMemAll. Source and destination are different images. pBuffer holds as many
 * bytes as GetBufferSize tells for a region of at least this size; its address is free.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxErrStepNotMultiple (an odd
 * dstStep of 16-bit results); tpxErrMaskSize; tpxErrBorder; tpxOk.
 * Statuses of GetBufferSize: tpxErrNullPointer; tpxErrSize; tpxErrMaskSize; tpxErrDataType (a pair of types
 * that the filter does not have: 8u to 16s, 16s to 16s, 32f to 32f); tpxErrChannelCount (not 1);
 * tpxErrSizeTooLarge (past 31 bits); tpxOk. */

TPX_API TpxStatus tpxiFilterSobelVertBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                         TpxDataType dstType, int numChannels,
                                                         int* pBufferSize);
TPX_API TpxStatus tpxiFilterSobelVertBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                      TpxiSize roiSize, int mask, TpxBorderType border,
                                                      Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelVertBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                    TpxiSize roiSize, int mask, TpxBorderType border,
                                                    Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelVertBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                    TpxiSize roiSize, int mask, TpxBorderType border,
                                                    Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelHorizBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                          TpxDataType dstType, int numChannels,
                                                          int* pBufferSize);
TPX_API TpxStatus tpxiFilterSobelHorizBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                       int dstStep, TpxiSize roiSize, int mask,
                                                       TpxBorderType border, Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelHorizBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                     TpxiSize roiSize, int mask, TpxBorderType border,
                                                     Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelHorizBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                     TpxiSize roiSize, int mask, TpxBorderType border,
                                                     Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelNegVertBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                            TpxDataType dstType, int numChannels,
                                                            int* pBufferSize);
TPX_API TpxStatus tpxiFilterSobelNegVertBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                         int dstStep, TpxiSize roiSize, int mask,
                                                         TpxBorderType border, Tpx8u borderValue,
                                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelNegVertBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                                       int dstStep, TpxiSize roiSize, int mask,
                                                       TpxBorderType border, Tpx32f borderValue,
                                                       Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelVertSecondBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                               TpxDataType dstType, int numChannels,
                                                               int* pBufferSize);
TPX_API TpxStatus tpxiFilterSobelVertSecondBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                            int dstStep, TpxiSize roiSize, int mask,
                                                            TpxBorderType border, Tpx8u borderValue,
                                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelVertSecondBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                                          int dstStep, TpxiSize roiSize, int mask,
                                                          TpxBorderType border, Tpx32f borderValue,
                                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelHorizSecondBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                                TpxDataType dstType, int numChannels,
                                                                int* pBufferSize);
TPX_API TpxStatus tpxiFilterSobelHorizSecondBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                             int dstStep, TpxiSize roiSize, int mask,
                                                             TpxBorderType border, Tpx8u borderValue,
                                                             Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSobelHorizSecondBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                                           int dstStep, TpxiSize roiSize, int mask,
                                                           TpxBorderType border, Tpx32f borderValue,
                                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterScharrVertMaskBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                              TpxDataType dstType, int numChannels,
                                                              int* pBufferSize);
TPX_API TpxStatus tpxiFilterScharrVertMaskBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                           int dstStep, TpxiSize roiSize, int mask,
                                                           TpxBorderType border, Tpx8u borderValue,
                                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterScharrVertMaskBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst,
                                                         int dstStep, TpxiSize roiSize, int mask,
                                                         TpxBorderType border, Tpx16s borderValue,
                                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterScharrVertMaskBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                                         int dstStep, TpxiSize roiSize, int mask,
                                                         TpxBorderType border, Tpx32f borderValue,
                                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterScharrHorizMaskBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                               TpxDataType dstType, int numChannels,
                                                               int* pBufferSize);
TPX_API TpxStatus tpxiFilterScharrHorizMaskBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                            int dstStep, TpxiSize roiSize, int mask,
                                                            TpxBorderType border, Tpx8u borderValue,
                                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterScharrHorizMaskBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst,
                                                          int dstStep, TpxiSize roiSize, int mask,
                                                          TpxBorderType border, Tpx16s borderValue,
                                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterScharrHorizMaskBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                                          int dstStep, TpxiSize roiSize, int mask,
                                                          TpxBorderType border, Tpx32f borderValue,
                                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterPrewittVertBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                           TpxDataType dstType, int numChannels,
                                                           int* pBufferSize);
TPX_API TpxStatus tpxiFilterPrewittVertBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                        int dstStep, TpxiSize roiSize, int mask,
                                                        TpxBorderType border, Tpx8u borderValue,
                                                        Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterPrewittVertBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst,
                                                      int dstStep, TpxiSize roiSize, int mask,
                                                      TpxBorderType border, Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterPrewittVertBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                                      int dstStep, TpxiSize roiSize, int mask,
                                                      TpxBorderType border, Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterPrewittHorizBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                            TpxDataType dstType, int numChannels,
                                                            int* pBufferSize);
TPX_API TpxStatus tpxiFilterPrewittHorizBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                         int dstStep, TpxiSize roiSize, int mask,
                                                         TpxBorderType border, Tpx8u borderValue,
                                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterPrewittHorizBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst,
                                                       int dstStep, TpxiSize roiSize, int mask,
                                                       TpxBorderType border, Tpx16s borderValue,
                                                       Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterPrewittHorizBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                                       int dstStep, TpxiSize roiSize, int mask,
                                                       TpxBorderType border, Tpx32f borderValue,
                                                       Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterRobertsUpBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                         TpxDataType dstType, int numChannels,
                                                         int* pBufferSize);
TPX_API TpxStatus tpxiFilterRobertsUpBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                      TpxiSize roiSize, int mask, TpxBorderType border,
                                                      Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterRobertsUpBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                    TpxiSize roiSize, int mask, TpxBorderType border,
                                                    Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterRobertsUpBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                    TpxiSize roiSize, int mask, TpxBorderType border,
                                                    Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterRobertsDownBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                           TpxDataType dstType, int numChannels,
                                                           int* pBufferSize);
TPX_API TpxStatus tpxiFilterRobertsDownBorder_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst,
                                                        int dstStep, TpxiSize roiSize, int mask,
                                                        TpxBorderType border, Tpx8u borderValue,
                                                        Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterRobertsDownBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst,
                                                      int dstStep, TpxiSize roiSize, int mask,
                                                      TpxBorderType border, Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterRobertsDownBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                                      int dstStep, TpxiSize roiSize, int mask,
                                                      TpxBorderType border, Tpx32f borderValue, Tpx8u* pBuffer);

/* ---- Differences from the surroundings: tpxiFilterLaplace, tpxiFilterHipass, tpxiFilterSharpen
 * ------------------ Laplace   33: 9 times the centre less the sum of the nine samples 55: [0 0 -1 0 0; 0 -1 -2
 * -1 0; -1 -2 16 -2 -1; 0 -1 -2 -1 0; 0 0 -1 0 0], the Laplacian of a Gaussian (Gonzalez and Woods, Digital
 * Image Processing) Hipass    33: as Laplace;  55: 25 times the centre less the sum of the twenty-five samples
 *   Sharpen   33: 17 times the centre less the sum of the nine samples, over 8, rounded to nearest with ties to
 * even Integer sums are exact, then saturated. AC4 keeps the destination's fourth channel. Arguments as for the
 * derivatives; borderValue is the sample of every channel.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxErrMaskSize; tpxErrBorder;
 * tpxOk. GetBufferSize: as above, with equal types 8u, 16s or 32f, and 1, 3 or 4 channels (4 for AC4). */

TPX_API TpxStatus tpxiFilterLaplaceBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                       TpxDataType dstType, int numChannels, int* pBufferSize);
TPX_API TpxStatus tpxiFilterLaplaceBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                   TpxiSize roiSize, int mask, TpxBorderType border,
                                                   Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterLaplaceBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                   TpxiSize roiSize, int mask, TpxBorderType border,
                                                   Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                      TpxDataType dstType, int numChannels, int* pBufferSize);
TPX_API TpxStatus tpxiFilterHipassBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiSize roiSize, int mask, TpxBorderType border,
                                                Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiSize roiSize, int mask, TpxBorderType border,
                                                Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiSize roiSize, int mask, TpxBorderType border,
                                                Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterHipassBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorderGetBufferSize(TpxiSize roiSize, int mask, TpxDataType srcType,
                                                       TpxDataType dstType, int numChannels, int* pBufferSize);
TPX_API TpxStatus tpxiFilterSharpenBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                 TpxiSize roiSize, int mask, TpxBorderType border,
                                                 Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx8u borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                   TpxiSize roiSize, int mask, TpxBorderType border,
                                                   Tpx16s borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                  TpxiSize roiSize, int mask, TpxBorderType border,
                                                  Tpx32f borderValue, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterSharpenBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                   TpxiSize roiSize, int mask, TpxBorderType border,
                                                   Tpx32f borderValue, Tpx8u* pBuffer);

TPX_EXTERN_C_END

#endif
