/* Measuring images: reductions, norms, histograms; lookup tables. */
#ifndef TPXI_STATISTICS_H
#define TPXI_STATISTICS_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Sums and means: tpxiSum, tpxiMean ----------------------------------------------------------------
 * The sum of all samples of a channel, and the sum over the number of pixels. C1 stores one value, C3 and C4 an
 * array with an entry a channel. Sums of integers are exact up to 2^53. 32f samples are added in double
 * precision, rows that follow each other without a gap as one row, so that the last bits can depend on the
 * step; the hint is taken for all its values and changes nothing. The number of pixels of a mean is width x
 * height in 32 bits, wrapped around; C1 divides by it, C3 and C4 multiply by its reciprocal, so that their last
 * bits can differ. Steps are in bytes and are not tested: 0 and negative steps walk the memory as given.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxOk. */

TPX_API TpxStatus tpxiSum_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum);
TPX_API TpxStatus tpxiSum_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[3]);
TPX_API TpxStatus tpxiSum_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[4]);
TPX_API TpxStatus tpxiSum_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum);
TPX_API TpxStatus tpxiSum_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[3]);
TPX_API TpxStatus tpxiSum_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[4]);
TPX_API TpxStatus tpxiSum_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum);
TPX_API TpxStatus tpxiSum_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[3]);
TPX_API TpxStatus tpxiSum_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[4]);
TPX_API TpxStatus tpxiSum_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum,
                                  TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiSum_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[3],
                                  TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiSum_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[4],
                                  TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiMean_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean);
TPX_API TpxStatus tpxiMean_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[3]);
TPX_API TpxStatus tpxiMean_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[4]);
TPX_API TpxStatus tpxiMean_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean);
TPX_API TpxStatus tpxiMean_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[3]);
TPX_API TpxStatus tpxiMean_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[4]);
TPX_API TpxStatus tpxiMean_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean);
TPX_API TpxStatus tpxiMean_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[3]);
TPX_API TpxStatus tpxiMean_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[4]);
TPX_API TpxStatus tpxiMean_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean,
                                   TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiMean_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[3],
                                   TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiMean_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[4],
                                   TpxHintAlgorithm hint);

/* ---- Extremes: tpxiMin, tpxiMax, tpxiMinMax, tpxiMinIndx, tpxiMaxIndx --------------------------------------
 * The smallest and the largest sample of each channel; the index forms also tell the column x and the row y of
 * the first pixel, in row-major order, that holds it. C1 stores one value, C3 and AC4 arrays of 3, C4 of 4. NaN
 * samples are passed over; a channel of nothing else gives infinity (minus infinity for the maximum), at 0, 0.
 * Steps are in bytes and are not tested.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxOk. */

TPX_API TpxStatus tpxiMin_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMin);
TPX_API TpxStatus tpxiMin_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3]);
TPX_API TpxStatus tpxiMin_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[4]);
TPX_API TpxStatus tpxiMin_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3]);
TPX_API TpxStatus tpxiMin_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMin);
TPX_API TpxStatus tpxiMin_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3]);
TPX_API TpxStatus tpxiMin_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[4]);
TPX_API TpxStatus tpxiMin_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3]);
TPX_API TpxStatus tpxiMin_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMin);
TPX_API TpxStatus tpxiMin_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3]);
TPX_API TpxStatus tpxiMin_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[4]);
TPX_API TpxStatus tpxiMin_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3]);
TPX_API TpxStatus tpxiMin_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMin);
TPX_API TpxStatus tpxiMin_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3]);
TPX_API TpxStatus tpxiMin_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[4]);
TPX_API TpxStatus tpxiMin_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3]);
TPX_API TpxStatus tpxiMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMax);
TPX_API TpxStatus tpxiMax_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[3]);
TPX_API TpxStatus tpxiMax_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[4]);
TPX_API TpxStatus tpxiMax_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[3]);
TPX_API TpxStatus tpxiMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMax);
TPX_API TpxStatus tpxiMax_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[3]);
TPX_API TpxStatus tpxiMax_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[4]);
TPX_API TpxStatus tpxiMax_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[3]);
TPX_API TpxStatus tpxiMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMax);
TPX_API TpxStatus tpxiMax_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[3]);
TPX_API TpxStatus tpxiMax_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[4]);
TPX_API TpxStatus tpxiMax_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[3]);
TPX_API TpxStatus tpxiMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMax);
TPX_API TpxStatus tpxiMax_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[3]);
TPX_API TpxStatus tpxiMax_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[4]);
TPX_API TpxStatus tpxiMax_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[3]);
TPX_API TpxStatus tpxiMinMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMin, Tpx8u* pMax);
TPX_API TpxStatus tpxiMinMax_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3],
                                    Tpx8u pMax[3]);
TPX_API TpxStatus tpxiMinMax_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[4],
                                    Tpx8u pMax[4]);
TPX_API TpxStatus tpxiMinMax_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3],
                                     Tpx8u pMax[3]);
TPX_API TpxStatus tpxiMinMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMin,
                                     Tpx16u* pMax);
TPX_API TpxStatus tpxiMinMax_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3],
                                     Tpx16u pMax[3]);
TPX_API TpxStatus tpxiMinMax_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[4],
                                     Tpx16u pMax[4]);
TPX_API TpxStatus tpxiMinMax_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3],
                                      Tpx16u pMax[3]);
TPX_API TpxStatus tpxiMinMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMin,
                                     Tpx16s* pMax);
TPX_API TpxStatus tpxiMinMax_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3],
                                     Tpx16s pMax[3]);
TPX_API TpxStatus tpxiMinMax_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[4],
                                     Tpx16s pMax[4]);
TPX_API TpxStatus tpxiMinMax_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3],
                                      Tpx16s pMax[3]);
TPX_API TpxStatus tpxiMinMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMin,
                                     Tpx32f* pMax);
TPX_API TpxStatus tpxiMinMax_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3],
                                     Tpx32f pMax[3]);
TPX_API TpxStatus tpxiMinMax_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[4],
                                     Tpx32f pMax[4]);
TPX_API TpxStatus tpxiMinMax_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3],
                                      Tpx32f pMax[3]);
TPX_API TpxStatus tpxiMinIndx_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMin,
                                     int* pIndexX, int* pIndexY);
TPX_API TpxStatus tpxiMinIndx_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3],
                                     int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMinIndx_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[4],
                                     int pIndexX[4], int pIndexY[4]);
TPX_API TpxStatus tpxiMinIndx_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3],
                                      int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMinIndx_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMin,
                                      int* pIndexX, int* pIndexY);
TPX_API TpxStatus tpxiMinIndx_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3],
                                      int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMinIndx_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[4],
                                      int pIndexX[4], int pIndexY[4]);
TPX_API TpxStatus tpxiMinIndx_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3],
                                       int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMinIndx_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMin,
                                      int* pIndexX, int* pIndexY);
TPX_API TpxStatus tpxiMinIndx_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3],
                                      int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMinIndx_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[4],
                                      int pIndexX[4], int pIndexY[4]);
TPX_API TpxStatus tpxiMinIndx_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3],
                                       int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMinIndx_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMin,
                                      int* pIndexX, int* pIndexY);
TPX_API TpxStatus tpxiMinIndx_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3],
                                      int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMinIndx_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[4],
                                      int pIndexX[4], int pIndexY[4]);
TPX_API TpxStatus tpxiMinIndx_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3],
                                       int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMaxIndx_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMax,
                                     int* pIndexX, int* pIndexY);
TPX_API TpxStatus tpxiMaxIndx_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[3],
                                     int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMaxIndx_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[4],
                                     int pIndexX[4], int pIndexY[4]);
TPX_API TpxStatus tpxiMaxIndx_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[3],
                                      int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMaxIndx_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMax,
                                      int* pIndexX, int* pIndexY);
TPX_API TpxStatus tpxiMaxIndx_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[3],
                                      int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMaxIndx_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[4],
                                      int pIndexX[4], int pIndexY[4]);
TPX_API TpxStatus tpxiMaxIndx_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[3],
                                       int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMaxIndx_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMax,
                                      int* pIndexX, int* pIndexY);
TPX_API TpxStatus tpxiMaxIndx_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[3],
                                      int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMaxIndx_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[4],
                                      int pIndexX[4], int pIndexY[4]);
TPX_API TpxStatus tpxiMaxIndx_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[3],
                                       int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMaxIndx_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMax,
                                      int* pIndexX, int* pIndexY);
TPX_API TpxStatus tpxiMaxIndx_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[3],
                                      int pIndexX[3], int pIndexY[3]);
TPX_API TpxStatus tpxiMaxIndx_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[4],
                                      int pIndexX[4], int pIndexY[4]);
TPX_API TpxStatus tpxiMaxIndx_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[3],
                                       int pIndexX[3], int pIndexY[3]);

/* ---- Extremes of blocks: tpxiBlockMinMax ------------------------------------------------------------------
 * Divides an image into blocks of blockSize pixels, the last column and row of which may be cut, and stores the
 * smallest and the largest sample of each into images of ceil(width / blockWidth) x ceil(height / blockHeight)
 * samples. Either of these images may be null, not both: it is not stored, and its step is not looked at. Each
 * extreme of the whole image is stored if its pointer is not null. 32f: NaN is passed over; a block of nothing
 * else gives +infinity as its smallest sample and -infinity as its largest; zeros of either sign are equal.
 * blockSize may exceed the image. Steps are in bytes and need not be whole samples.
 *
 * Statuses, in order: tpxErrNullPointer (pSrc, or pDstMin and pDstMax); tpxErrSize (a width or height of the
 * image or of the block below 1); tpxErrStep (srcStep less than a row's bytes, or the step of an image that is
 * stored less than its row's); tpxOk. */

TPX_API TpxStatus tpxiBlockMinMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize srcSize, Tpx8u* pDstMin,
                                         int dstMinStep, Tpx8u* pDstMax, int dstMaxStep, TpxiSize blockSize,
                                         Tpx8u* pDstGlobalMin, Tpx8u* pDstGlobalMax);
TPX_API TpxStatus tpxiBlockMinMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize srcSize, Tpx16u* pDstMin,
                                          int dstMinStep, Tpx16u* pDstMax, int dstMaxStep, TpxiSize blockSize,
                                          Tpx16u* pDstGlobalMin, Tpx16u* pDstGlobalMax);
TPX_API TpxStatus tpxiBlockMinMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize srcSize, Tpx16s* pDstMin,
                                          int dstMinStep, Tpx16s* pDstMax, int dstMaxStep, TpxiSize blockSize,
                                          Tpx16s* pDstGlobalMin, Tpx16s* pDstGlobalMax);
TPX_API TpxStatus tpxiBlockMinMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcSize, Tpx32f* pDstMin,
                                          int dstMinStep, Tpx32f* pDstMax, int dstMaxStep, TpxiSize blockSize,
                                          Tpx32f* pDstGlobalMin, Tpx32f* pDstGlobalMax);

/* ---- Extremes of two images: tpxiMinEvery, tpxiMaxEvery ----------------------------------------------------
 * The smaller or the larger of two samples, for every sample. AC4 keeps the destination's fourth channel. 32f:
 * where one of the two is NaN, and where both are zeros, the second image's sample (in place: pSrcDst's) is the
 * result.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxErrStep (a step below 1);
 * tpxOk. */

TPX_API TpxStatus tpxiMinEvery_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                      Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_8u_C1IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_8u_C3IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_8u_C4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_8u_AC4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                       Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16u_C1IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16u_C3IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16u_C4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16u_AC4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16s_C1IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16s_C3IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16s_C4IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_16s_AC4IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                       Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMinEvery_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                      Tpx8u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_8u_C1IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_8u_C3IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_8u_C4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_8u_AC4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                       Tpx16u* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16u_C1IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16u_C3IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16u_C4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16u_AC4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16s_C1IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16s_C3IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16s_C4IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_16s_AC4IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                         TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                       Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                        TpxiSize roiSize);
TPX_API TpxStatus tpxiMaxEvery_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                         TpxiSize roiSize);

/* ---- Dot products: tpxiDotProd ------------------------------------------------------------------------------
 * The sum of the products of samples at the same place, for each channel: C1 stores one value, C3 and AC4
 * arrays of 3, C4 of 4. Products of 8 and 16 bits are added exactly and rounded once; those of 32 bits are made
 * and added in double precision. 32f: hint tpxHintAccurate makes the products in double precision, any other
 * hint in single precision; both add them in double precision. Rows that follow each other without a gap are
 * added as one row: the last bits of sums that are rounded (32 bits, integers and floats) can depend on the
 * steps.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1, or a step of 0); tpxOk. A
 * negative step walks the memory as given. */

TPX_API TpxStatus tpxiDotProd_8u64f_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                        TpxiSize roiSize, Tpx64f* pDp);
TPX_API TpxStatus tpxiDotProd_8u64f_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                        TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_8u64f_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                        TpxiSize roiSize, Tpx64f pDp[4]);
TPX_API TpxStatus tpxiDotProd_8u64f_AC4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_16u64f_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f* pDp);
TPX_API TpxStatus tpxiDotProd_16u64f_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_16u64f_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[4]);
TPX_API TpxStatus tpxiDotProd_16u64f_AC4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_16s64f_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f* pDp);
TPX_API TpxStatus tpxiDotProd_16s64f_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_16s64f_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[4]);
TPX_API TpxStatus tpxiDotProd_16s64f_AC4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_32u64f_C1R(const Tpx32u* pSrc1, int src1Step, const Tpx32u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f* pDp);
TPX_API TpxStatus tpxiDotProd_32u64f_C3R(const Tpx32u* pSrc1, int src1Step, const Tpx32u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_32u64f_C4R(const Tpx32u* pSrc1, int src1Step, const Tpx32u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[4]);
TPX_API TpxStatus tpxiDotProd_32u64f_AC4R(const Tpx32u* pSrc1, int src1Step, const Tpx32u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_32s64f_C1R(const Tpx32s* pSrc1, int src1Step, const Tpx32s* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f* pDp);
TPX_API TpxStatus tpxiDotProd_32s64f_C3R(const Tpx32s* pSrc1, int src1Step, const Tpx32s* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_32s64f_C4R(const Tpx32s* pSrc1, int src1Step, const Tpx32s* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[4]);
TPX_API TpxStatus tpxiDotProd_32s64f_AC4R(const Tpx32s* pSrc1, int src1Step, const Tpx32s* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pDp[3]);
TPX_API TpxStatus tpxiDotProd_32f64f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f* pDp, TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiDotProd_32f64f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[3], TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiDotProd_32f64f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pDp[4], TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiDotProd_32f64f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pDp[3], TpxHintAlgorithm hint);

/* ---- Norms: tpxiNorm, tpxiNormDiff, tpxiNormRel -------------------------------------------------------
 * For each channel: Inf is the largest |x|, L1 the sum of |x|, L2 the square root of the sum of x^2; x is a
 * sample of the image, or for NormDiff the exact difference of two images' samples. NormRel is the norm of
 * pSrc - pSrcRef over the norm of pSrcRef; L2 takes one root, of the ratio of the sums. C1 stores one value, C3
 * and C4 an array.
 *
 * Sums over integers are exact up to 2^53. 32f L1 and L2: hint tpxHintAccurate works in double precision
 * throughout, any other hint makes terms and short sums of them in single precision, which overflow and lose
 * digits earlier. Rows that follow each other without a gap are added as one row: the last bits of 32f L1 and
 * L2 can depend on the steps. NaN samples are passed over by Inf.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxErrStep (a step below 1);
 * NormRel: tpxWarnDivByZero (the reference of a channel is zero, for 32f below the smallest normal double: the
 * value is infinity, or minus NaN if the difference is zero too; other channels have their ratios); tpxOk. */

TPX_API TpxStatus tpxiNorm_Inf_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_Inf_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_Inf_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_Inf_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_Inf_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_Inf_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_Inf_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_Inf_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_Inf_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_Inf_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_Inf_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_Inf_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_L1_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_L1_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_L1_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_L1_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_L1_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_L1_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_L1_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_L1_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_L1_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_L1_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue,
                                      TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNorm_L1_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3],
                                      TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNorm_L1_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4],
                                      TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNorm_L2_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_L2_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_L2_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_L2_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_L2_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_L2_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_L2_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNorm_L2_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNorm_L2_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNorm_L2_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue,
                                      TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNorm_L2_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3],
                                      TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNorm_L2_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4],
                                      TpxHintAlgorithm hint);

TPX_API TpxStatus tpxiNormDiff_Inf_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_Inf_8u_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_Inf_8u_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_Inf_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_Inf_16u_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_Inf_16u_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_Inf_16s_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_Inf_16s_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_Inf_16s_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_Inf_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_Inf_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_Inf_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                           TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_L1_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_L1_8u_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_L1_8u_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_L1_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_L1_16u_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_L1_16u_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_L1_16s_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_L1_16s_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_L1_16s_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_L1_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormDiff_L1_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[3], TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormDiff_L1_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[4], TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormDiff_L2_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_L2_8u_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_L2_8u_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                         TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_L2_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_L2_16u_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_L2_16u_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_L2_16s_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormDiff_L2_16s_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormDiff_L2_16s_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormDiff_L2_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormDiff_L2_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[3], TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormDiff_L2_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                          TpxiSize roiSize, Tpx64f pValue[4], TpxHintAlgorithm hint);

TPX_API TpxStatus tpxiNormRel_Inf_8u_C1R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_Inf_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_Inf_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_Inf_16u_C1R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_Inf_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_Inf_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_Inf_16s_C1R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_Inf_16s_C3R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_Inf_16s_C4R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_Inf_32f_C1R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_Inf_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_Inf_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef,
                                          int srcRefStep, TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_L1_8u_C1R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                        TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_L1_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                        TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_L1_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                        TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_L1_16u_C1R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_L1_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_L1_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_L1_16s_C1R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_L1_16s_C3R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_L1_16s_C4R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_L1_32f_C1R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormRel_L1_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[3], TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormRel_L1_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[4], TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormRel_L2_8u_C1R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                        TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_L2_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                        TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_L2_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                                        TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_L2_16u_C1R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_L2_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_L2_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_L2_16s_C1R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f* pValue);
TPX_API TpxStatus tpxiNormRel_L2_16s_C3R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[3]);
TPX_API TpxStatus tpxiNormRel_L2_16s_C4R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[4]);
TPX_API TpxStatus tpxiNormRel_L2_32f_C1R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormRel_L2_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[3], TpxHintAlgorithm hint);
TPX_API TpxStatus tpxiNormRel_L2_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                                         TpxiSize roiSize, Tpx64f pValue[4], TpxHintAlgorithm hint);

/* ---- Histograms: tpxiHistogram ------------------------------------------------------------------------
 * For each channel, bin k of nLevels - 1 counts the samples with levels[k] <= x < levels[k + 1]. Samples
 * outside all levels, and NaN, are not counted.
 *
 * A spec holds the levels. It lies in memory of the caller, at any address, of the size that
 * tpxiHistogramGetBufferSize gives, and points into itself: it must not be moved. Calls only read it, so that
 * several threads may share one, each with a work buffer of its own (32f needs none, and takes a null pointer).
 *
 * nLevels, lowerLevel, upperLevel and pLevels have an entry a channel. Levels are given as floats, which rise
 * strictly; integer types store their ceilings, limited to 32 bits, which may repeat and which
 * tpxiHistogramGetLevels gives back. Uniform levels are lower + i * (upper - lower) / (nLevels - 1) in single
 * precision, the last one upper itself, truncated for integer types. 16-bit samples of images below 65536
 * pixels are counted by dividing their distance from the first level by that step, if the levels are uniform
 * and the distance of the last one is a multiple of nLevels - 1: where bounds are no integers, that may differ
 * from the levels. pHist is an array of nLevels - 1 counters for C1, and an array of such arrays for C3 and C4;
 * counters wrap. What a call leaves in the work buffer has no meaning.
 *
 * Statuses, in order.
 * GetBufferSize: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxErrChannelCount (not 1, 3 or 4);
 * tpxErrHistogramLevels (fewer than 2 in a channel); tpxErrSizeTooLarge (2 GB or more); tpxErrDataType (the
 * spec's size is stored before); tpxOk. Init, UniformInit: tpxErrDataType; tpxErrNullPointer;
 * tpxErrChannelCount; for each channel tpxErrNullPointer (its levels), tpxErrHistogramLevels, tpxErrRange
 * (levels that do not rise, or upper not above lower, NaN among them); UniformInit: tpxWarnValueAdjusted (an
 * integer type with a step below 1, so that levels may repeat); tpxOk. A failed call leaves a spec that every
 * later call refuses. GetLevels: tpxErrNullPointer; tpxErrBadArgument (not a spec that is ready);
 * tpxErrNullPointer (a channel's array); tpxOk. Histogram: tpxErrNullPointer (a channel's counters, too);
 * tpxErrSize; tpxErrStep (less than a row's bytes); tpxErrBadArgument (not a spec that is ready, or one of
 * another type or number of channels); tpxOk. */

typedef struct TpxHistogramSpec TpxHistogramSpec;

TPX_API TpxStatus tpxiHistogramGetBufferSize(TpxDataType dataType, TpxiSize roiSize, const int nLevels[],
                                             int nChannels, int uniform, int* pSpecSize, int* pBufferSize);
TPX_API TpxStatus tpxiHistogramInit(TpxDataType dataType, const Tpx32f* const pLevels[], const int nLevels[],
                                    int nChannels, TpxHistogramSpec* pSpec);
TPX_API TpxStatus tpxiHistogramUniformInit(TpxDataType dataType, const Tpx32f lowerLevel[],
                                           const Tpx32f upperLevel[], const int nLevels[], int nChannels,
                                           TpxHistogramSpec* pSpec);
TPX_API TpxStatus tpxiHistogramGetLevels(const TpxHistogramSpec* pSpec, Tpx32f* const pLevels[]);
TPX_API TpxStatus tpxiHistogram_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* pHist,
                                       const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[3],
                                       const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[4],
                                       const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* pHist,
                                        const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize,
                                        Tpx32u* const pHist[3], const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize,
                                        Tpx32u* const pHist[4], const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* pHist,
                                        const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize,
                                        Tpx32u* const pHist[3], const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize,
                                        Tpx32u* const pHist[4], const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* pHist,
                                        const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize,
                                        Tpx32u* const pHist[3], const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiHistogram_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize,
                                        Tpx32u* const pHist[4], const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);

/* ---- Lookup tables between levels: tpxiLUT ----------------------------------------------------------------
 * Maps samples through a function of levels and values, for each channel. x in levels[k] <= x < levels[k + 1]
 * becomes
 *   nearest  values[k]
 *   linear   the line through (levels[k], values[k]) and (levels[k + 1], values[k + 1])
 *   cubic    the polynomial through points k - 1 to k + 2, or at the ends through the first or last four
 * and is limited to the type. Integers come from lines and polynomials by adding 0.5 and truncating toward
 * zero, but for the value of an interval of one sample on a line, which is taken as it is. 32f works in double
 * precision and rounds once. A channel with fewer than 4 levels makes all channels of a cubic spec linear;
 * where two of the four levels are equal, an interval has its line. Samples outside all levels, and NaN, stay.
 * AC4 keeps the destination's fourth channel.
 *
 * pValues, pLevels and nLevels have an entry a channel, three for AC4. Levels should rise. They are not
 * tested: of intervals that overlap, the last one counts for integers, the first one for 32f.
 *
 * A spec holds the tables. It lies in memory of the caller, at any address, of the size that tpxiLUT_GetSize
 * gives for the same interpolation, type, layout and numbers of levels, and points into itself: it must not be
 * moved. Calls only read it, so that threads may share one. The size of the region that GetSize and Init take
 * does not matter. Steps are in bytes and may be less than a row.
 *
 * Statuses, in order. GetSize: tpxErrInterpolation; tpxErrNullPointer; tpxErrSize (width or height below 1);
 * tpxErrLutLevels (fewer than 2 in a channel; of an unknown layout the first is read); tpxErrChannelIndex (the
 * layout); tpxErrDataType; tpxErrSizeTooLarge (2 GB or more); tpxOk. Init: tpxErrInterpolation; tpxErrSize;
 * tpxErrNullPointer (an array of a channel too); tpxErrLutLevels; tpxErrChannelIndex; tpxErrSizeTooLarge;
 * tpxOk. A failed call leaves a spec that every later call refuses. LUT: tpxErrNullPointer; tpxErrStep (a step
 * below 1); tpxErrSize; tpxErrBadArgument (not a spec that is ready, or one of another type or layout);
 * tpxOk. */

typedef struct TpxiLUT_Spec TpxiLUT_Spec;

TPX_API TpxStatus tpxiLUT_GetSize(TpxInterpolationType interpolation, TpxDataType dataType,
                                  TpxChannelCode layout, TpxiSize roiSize, const int nLevels[], int* pSpecSize);
TPX_API TpxStatus tpxiLUT_Init_8u(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
                                  const Tpx32s* const pValues[], const Tpx32s* const pLevels[],
                                  const int nLevels[], TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_Init_16u(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
                                   const Tpx32s* const pValues[], const Tpx32s* const pLevels[],
                                   const int nLevels[], TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_Init_16s(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
                                   const Tpx32s* const pValues[], const Tpx32s* const pLevels[],
                                   const int nLevels[], TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_Init_32f(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
                                   const Tpx32f* const pValues[], const Tpx32f* const pLevels[],
                                   const int nLevels[], TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                 const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                 const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                 const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                    const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                    const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                  const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                                   const TpxiLUT_Spec* pSpec);
TPX_API TpxStatus tpxiLUT_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize,
                                    const TpxiLUT_Spec* pSpec);

/* ---- Palettes: tpxiLUTPalette -----------------------------------------------------------------------------
 * Replaces a sample by the entry of a table of 2^nBitSize entries that its low nBitSize bits name. C3 and C4
 * have a table a channel, AC4 has three and keeps the destination's fourth channel. 8u24u and 16u24u store
 * three bytes a pixel from a table of three bytes an entry. Nothing is read behind a table's last entry.
 * Source and destination may be the same where their samples have the same size.
 *
 * Statuses, in order: tpxErrNullPointer (a table of a channel too); tpxErrSize (width or height below 1);
 * tpxErrOutOfRange (nBitSize outside 1..8 for 8u, 1..16 for 16u sources); tpxErrStep (a step less than its
 * row's bytes); tpxOk. */

TPX_API TpxStatus tpxiLUTPalette_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize, const Tpx8u* pTable, int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize, const Tpx8u* const pTable[3], int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                        TpxiSize roiSize, const Tpx8u* const pTable[4], int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiSize roiSize, const Tpx8u* const pTable[3], int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize, const Tpx16u* pTable, int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize, const Tpx16u* const pTable[3], int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                         TpxiSize roiSize, const Tpx16u* const pTable[4], int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiSize roiSize, const Tpx16u* const pTable[3], int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_8u24u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx8u* pTable, int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_8u32u_C1R(const Tpx8u* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx32u* pTable, int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_16u8u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiSize roiSize, const Tpx8u* pTable, int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_16u24u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx8u* pTable, int nBitSize);
TPX_API TpxStatus tpxiLUTPalette_16u32u_C1R(const Tpx16u* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
                                            TpxiSize roiSize, const Tpx32u* pTable, int nBitSize);

TPX_EXTERN_C_END

#endif
