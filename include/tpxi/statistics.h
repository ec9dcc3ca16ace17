/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Measuring images: reductions, norms, histograms; lookup tables. */
#ifndef TPXI_STATISTICS_H
#define TPXI_STATISTICS_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Sums: tpxiSum
 * @{ */

/**
 * Stores the sum of all samples of each channel.
 *
 * Sums of integers are exact up to 2^53. 32f samples are added in double precision, rows that follow each
 * other without a gap as one row, so that the last bits can depend on the step. Steps are not tested: 0 and
 * negative ones walk the memory as given.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param roiSize width and height of the region in pixels
 * @param pSum    takes the sums: one for C1, an array of 3 for C3, of 4 for C4
 * @param hint    taken for all its values; changes nothing
 * @return The first of these that applies: tpxErrNullPointer (pSrc, pSum); tpxErrSize (width or height below
 *     1); tpxOk.
 */
TPX_API TpxStatus
    tpxiSum_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum),
    tpxiSum_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[3]),
    tpxiSum_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[4]),
    tpxiSum_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum),
    tpxiSum_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[3]),
    tpxiSum_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[4]),
    tpxiSum_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum),
    tpxiSum_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[3]),
    tpxiSum_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[4]),
    tpxiSum_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum, TpxHintAlgorithm hint),
    tpxiSum_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[3], TpxHintAlgorithm hint),
    tpxiSum_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pSum[4], TpxHintAlgorithm hint);

/** @} */

/** @name Means: tpxiMean
 * @{ */

/**
 * Stores the mean of all samples of each channel: their sum over the number of pixels.
 *
 * Sums of integers are exact up to 2^53. 32f samples are added in double precision, rows that follow each
 * other without a gap as one row, so that the last bits can depend on the step. The number of pixels is
 * width x height in 32 bits, wrapped around; C1 divides by it, C3 and C4 multiply by its reciprocal, so that
 * their last bits can differ. Steps are not tested: 0 and negative ones walk the memory as given.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param roiSize width and height of the region in pixels
 * @param pMean   takes the means: one for C1, an array of 3 for C3, of 4 for C4
 * @param hint    taken for all its values; changes nothing
 * @return The first of these that applies: tpxErrNullPointer (pSrc, pMean); tpxErrSize (width or height below
 *     1); tpxOk.
 */
TPX_API TpxStatus
    tpxiMean_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean),
    tpxiMean_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[3]),
    tpxiMean_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[4]),
    tpxiMean_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean),
    tpxiMean_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[3]),
    tpxiMean_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[4]),
    tpxiMean_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean),
    tpxiMean_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[3]),
    tpxiMean_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[4]),
    tpxiMean_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean, TpxHintAlgorithm hint),
    tpxiMean_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[3], TpxHintAlgorithm hint),
    tpxiMean_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pMean[4], TpxHintAlgorithm hint);

/** @} */

/** @name Extremes: tpxiMin, tpxiMax, tpxiMinMax, tpxiMinIndx, tpxiMaxIndx
 * @{ */

/**
 * Stores the smallest or the largest sample of each channel, or both; the index forms (Indx) also tell the
 * column and the row of the first pixel, in row-major order, that holds it. NaN samples are passed over; a
 * channel of nothing else gives infinity (minus infinity for the maximum), at 0, 0. Steps are not tested.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param roiSize width and height of the region in pixels
 * @param pMin    takes the smallest samples: one for C1, an array of 3 for C3 and AC4, of 4 for C4
 * @param pMax    takes the largest samples: one for C1, an array of 3 for C3 and AC4, of 4 for C4
 * @param pIndexX takes the columns of those pixels: one for C1, an array of 3 for C3 and AC4, of 4 for C4
 * @param pIndexY takes their rows in the same way
 * @return The first of these that applies: tpxErrNullPointer (pSrc or a result); tpxErrSize (width or height
 *     below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiMin_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMin),
    tpxiMin_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3]),
    tpxiMin_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[4]),
    tpxiMin_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3]),
    tpxiMin_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMin),
    tpxiMin_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3]),
    tpxiMin_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[4]),
    tpxiMin_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3]),
    tpxiMin_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMin),
    tpxiMin_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3]),
    tpxiMin_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[4]),
    tpxiMin_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3]),
    tpxiMin_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMin),
    tpxiMin_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3]),
    tpxiMin_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[4]),
    tpxiMin_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3]),
    tpxiMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMax),
    tpxiMax_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[3]),
    tpxiMax_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[4]),
    tpxiMax_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[3]),
    tpxiMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMax),
    tpxiMax_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[3]),
    tpxiMax_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[4]),
    tpxiMax_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[3]),
    tpxiMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMax),
    tpxiMax_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[3]),
    tpxiMax_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[4]),
    tpxiMax_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[3]),
    tpxiMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMax),
    tpxiMax_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[3]),
    tpxiMax_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[4]),
    tpxiMax_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[3]),
    tpxiMinMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMin, Tpx8u* pMax),
    tpxiMinMax_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3], Tpx8u pMax[3]),
    tpxiMinMax_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[4], Tpx8u pMax[4]),
    tpxiMinMax_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3], Tpx8u pMax[3]),
    tpxiMinMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMin, Tpx16u* pMax),
    tpxiMinMax_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3], Tpx16u pMax[3]),
    tpxiMinMax_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[4], Tpx16u pMax[4]),
    tpxiMinMax_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3], Tpx16u pMax[3]),
    tpxiMinMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMin, Tpx16s* pMax),
    tpxiMinMax_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3], Tpx16s pMax[3]),
    tpxiMinMax_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[4], Tpx16s pMax[4]),
    tpxiMinMax_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3], Tpx16s pMax[3]),
    tpxiMinMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMin, Tpx32f* pMax),
    tpxiMinMax_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3], Tpx32f pMax[3]),
    tpxiMinMax_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[4], Tpx32f pMax[4]),
    tpxiMinMax_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3], Tpx32f pMax[3]),
    tpxiMinIndx_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMin, int* pIndexX,
                       int* pIndexY),
    tpxiMinIndx_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3], int pIndexX[3],
                       int pIndexY[3]),
    tpxiMinIndx_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[4], int pIndexX[4],
                       int pIndexY[4]),
    tpxiMinIndx_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMin[3], int pIndexX[3],
                        int pIndexY[3]),
    tpxiMinIndx_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMin, int* pIndexX,
                        int* pIndexY),
    tpxiMinIndx_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3], int pIndexX[3],
                        int pIndexY[3]),
    tpxiMinIndx_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[4], int pIndexX[4],
                        int pIndexY[4]),
    tpxiMinIndx_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMin[3], int pIndexX[3],
                         int pIndexY[3]),
    tpxiMinIndx_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMin, int* pIndexX,
                        int* pIndexY),
    tpxiMinIndx_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3], int pIndexX[3],
                        int pIndexY[3]),
    tpxiMinIndx_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[4], int pIndexX[4],
                        int pIndexY[4]),
    tpxiMinIndx_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMin[3], int pIndexX[3],
                         int pIndexY[3]),
    tpxiMinIndx_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMin, int* pIndexX,
                        int* pIndexY),
    tpxiMinIndx_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3], int pIndexX[3],
                        int pIndexY[3]),
    tpxiMinIndx_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[4], int pIndexX[4],
                        int pIndexY[4]),
    tpxiMinIndx_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMin[3], int pIndexX[3],
                         int pIndexY[3]),
    tpxiMaxIndx_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u* pMax, int* pIndexX,
                       int* pIndexY),
    tpxiMaxIndx_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[3], int pIndexX[3],
                       int pIndexY[3]),
    tpxiMaxIndx_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[4], int pIndexX[4],
                       int pIndexY[4]),
    tpxiMaxIndx_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx8u pMax[3], int pIndexX[3],
                        int pIndexY[3]),
    tpxiMaxIndx_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u* pMax, int* pIndexX,
                        int* pIndexY),
    tpxiMaxIndx_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[3], int pIndexX[3],
                        int pIndexY[3]),
    tpxiMaxIndx_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[4], int pIndexX[4],
                        int pIndexY[4]),
    tpxiMaxIndx_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx16u pMax[3], int pIndexX[3],
                         int pIndexY[3]),
    tpxiMaxIndx_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s* pMax, int* pIndexX,
                        int* pIndexY),
    tpxiMaxIndx_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[3], int pIndexX[3],
                        int pIndexY[3]),
    tpxiMaxIndx_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[4], int pIndexX[4],
                        int pIndexY[4]),
    tpxiMaxIndx_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx16s pMax[3], int pIndexX[3],
                         int pIndexY[3]),
    tpxiMaxIndx_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f* pMax, int* pIndexX,
                        int* pIndexY),
    tpxiMaxIndx_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[3], int pIndexX[3],
                        int pIndexY[3]),
    tpxiMaxIndx_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[4], int pIndexX[4],
                        int pIndexY[4]),
    tpxiMaxIndx_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32f pMax[3], int pIndexX[3],
                         int pIndexY[3]);

/** @} */

/** @name Extremes of blocks: tpxiBlockMinMax
 * @{ */

/**
 * Divides an image into blocks, of which the last column and row may be cut, and stores the smallest and the
 * largest sample of each block into two images of ceil(width / blockWidth) x ceil(height / blockHeight)
 * samples.
 *
 * 32f: NaN is passed over; a block of nothing else gives +infinity as its smallest sample and -infinity as
 * its largest; zeros of either sign are equal. Steps need not be whole samples.
 *
 * @param pSrc          first pixel of the source
 * @param srcStep       bytes from one row of the source to the next
 * @param srcSize       width and height of the source in pixels
 * @param pDstMin       takes the smallest samples of the blocks; may be null, if pDstMax is not
 * @param dstMinStep    bytes from one row of pDstMin to the next; not looked at for null
 * @param pDstMax       takes the largest samples of the blocks; may be null, if pDstMin is not
 * @param dstMaxStep    bytes from one row of pDstMax to the next; not looked at for null
 * @param blockSize     width and height of a block in pixels; may exceed the image
 * @param pDstGlobalMin takes the smallest sample of the image; may be null
 * @param pDstGlobalMax takes the largest sample of the image; may be null
 * @return The first of these that applies: tpxErrNullPointer (pSrc, or pDstMin and pDstMax); tpxErrSize (a
 *     width or height of the image or of the block below 1); tpxErrStep (srcStep less than a row's bytes, or
 *     the step of an image that is stored less than its row's); tpxOk.
 */
TPX_API TpxStatus
    tpxiBlockMinMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize srcSize, Tpx8u* pDstMin, int dstMinStep,
                           Tpx8u* pDstMax, int dstMaxStep, TpxiSize blockSize, Tpx8u* pDstGlobalMin,
                           Tpx8u* pDstGlobalMax),
    tpxiBlockMinMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize srcSize, Tpx16u* pDstMin, int dstMinStep,
                            Tpx16u* pDstMax, int dstMaxStep, TpxiSize blockSize, Tpx16u* pDstGlobalMin,
                            Tpx16u* pDstGlobalMax),
    tpxiBlockMinMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize srcSize, Tpx16s* pDstMin, int dstMinStep,
                            Tpx16s* pDstMax, int dstMaxStep, TpxiSize blockSize, Tpx16s* pDstGlobalMin,
                            Tpx16s* pDstGlobalMax),
    tpxiBlockMinMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize srcSize, Tpx32f* pDstMin, int dstMinStep,
                            Tpx32f* pDstMax, int dstMaxStep, TpxiSize blockSize, Tpx32f* pDstGlobalMin,
                            Tpx32f* pDstGlobalMax);

/** @} */

/** @name Extremes of two images: tpxiMinEvery, tpxiMaxEvery
 * @{ */

/**
 * Stores the smaller (MinEvery) or the larger (MaxEvery) of two samples, for every sample. AC4 keeps the
 * destination's fourth channel. 32f: where one of the two is NaN, and where both are zeros, the second
 * image's sample (in place: pSrcDst's) is the result.
 *
 * @param pSrc1      first pixel of the first source
 * @param src1Step   bytes from one of its rows to the next
 * @param pSrc2      first pixel of the second source
 * @param src2Step   bytes from one of its rows to the next
 * @param pDst       first pixel of the destination
 * @param dstStep    bytes from one row of the destination to the next
 * @param roiSize    width and height of the region in pixels
 * @param pSrc       first pixel of the other image
 * @param srcStep    bytes from one of its rows to the next
 * @param pSrcDst    first pixel of the image that is compared and takes the result
 * @param srcDstStep bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiMinEvery_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                        int dstStep, TpxiSize roiSize),
    tpxiMinEvery_8u_C1IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_8u_C3IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_8u_C4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_8u_AC4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                         int dstStep, TpxiSize roiSize),
    tpxiMinEvery_16u_C1IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_16u_C3IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_16u_C4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_16u_AC4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_16s_C1IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_16s_C3IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_16s_C4IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_16s_AC4IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                         int dstStep, TpxiSize roiSize),
    tpxiMinEvery_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMinEvery_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                        int dstStep, TpxiSize roiSize),
    tpxiMaxEvery_8u_C1IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_8u_C3IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_8u_C4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_8u_AC4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                         int dstStep, TpxiSize roiSize),
    tpxiMaxEvery_16u_C1IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_16u_C3IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_16u_C4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_16u_AC4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_16s_C1IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_16s_C3IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_16s_C4IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_16s_AC4IR(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                         int dstStep, TpxiSize roiSize),
    tpxiMaxEvery_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMaxEvery_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/** @} */

/** @name Dot products: tpxiDotProd
 * @{ */

/**
 * Stores the sum of the products of samples at the same place of two images, for each channel.
 *
 * Products of 8 and 16 bits are added exactly and rounded once; those of 32 bits are made and added in double
 * precision. 32f: tpxHintAccurate makes the products in double precision, any other hint in single precision;
 * both add them in double precision. Rows that follow each other without a gap are added as one row: the last
 * bits of sums that are rounded (32 bits, integers and floats) can depend on the steps. A negative step walks
 * the memory as given.
 *
 * @param pSrc1    first pixel of the first source
 * @param src1Step bytes from one of its rows to the next
 * @param pSrc2    first pixel of the second source
 * @param src2Step bytes from one of its rows to the next
 * @param roiSize  width and height of the region in pixels
 * @param pDp      takes the sums: one for C1, an array of 3 for C3 and AC4, of 4 for C4
 * @param hint     tpxHintAccurate, or any other value
 * @return The first of these that applies: tpxErrNullPointer (an image or pDp); tpxErrSize (width or height
 *     below 1, or a step of 0); tpxOk.
 */
TPX_API TpxStatus
    tpxiDotProd_8u64f_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                          Tpx64f* pDp),
    tpxiDotProd_8u64f_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                          Tpx64f pDp[3]),
    tpxiDotProd_8u64f_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                          Tpx64f pDp[4]),
    tpxiDotProd_8u64f_AC4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                           Tpx64f pDp[3]),
    tpxiDotProd_16u64f_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f* pDp),
    tpxiDotProd_16u64f_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[3]),
    tpxiDotProd_16u64f_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[4]),
    tpxiDotProd_16u64f_AC4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pDp[3]),
    tpxiDotProd_16s64f_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f* pDp),
    tpxiDotProd_16s64f_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[3]),
    tpxiDotProd_16s64f_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[4]),
    tpxiDotProd_16s64f_AC4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pDp[3]),
    tpxiDotProd_32u64f_C1R(const Tpx32u* pSrc1, int src1Step, const Tpx32u* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f* pDp),
    tpxiDotProd_32u64f_C3R(const Tpx32u* pSrc1, int src1Step, const Tpx32u* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[3]),
    tpxiDotProd_32u64f_C4R(const Tpx32u* pSrc1, int src1Step, const Tpx32u* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[4]),
    tpxiDotProd_32u64f_AC4R(const Tpx32u* pSrc1, int src1Step, const Tpx32u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pDp[3]),
    tpxiDotProd_32s64f_C1R(const Tpx32s* pSrc1, int src1Step, const Tpx32s* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f* pDp),
    tpxiDotProd_32s64f_C3R(const Tpx32s* pSrc1, int src1Step, const Tpx32s* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[3]),
    tpxiDotProd_32s64f_C4R(const Tpx32s* pSrc1, int src1Step, const Tpx32s* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[4]),
    tpxiDotProd_32s64f_AC4R(const Tpx32s* pSrc1, int src1Step, const Tpx32s* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pDp[3]),
    tpxiDotProd_32f64f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f* pDp, TpxHintAlgorithm hint),
    tpxiDotProd_32f64f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[3], TpxHintAlgorithm hint),
    tpxiDotProd_32f64f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                           TpxiSize roiSize, Tpx64f pDp[4], TpxHintAlgorithm hint),
    tpxiDotProd_32f64f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pDp[3], TpxHintAlgorithm hint);

/** @} */

/** @name Norms of an image: tpxiNorm
 * @{ */

/**
 * Stores a norm of each channel: Inf is the largest |x| of its samples, L1 the sum of |x|, L2 the square root
 * of the sum of x^2.
 *
 * Sums over integers are exact up to 2^53. 32f L1 and L2: tpxHintAccurate works in double precision
 * throughout, any other hint makes terms and short sums of them in single precision, which overflow and lose
 * digits earlier. Rows that follow each other without a gap are added as one row: the last bits of 32f L1 and
 * L2 can depend on the steps. NaN samples are passed over by Inf.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param roiSize width and height of the region in pixels
 * @param pValue  takes the norms: one for C1, an array of 3 for C3, of 4 for C4
 * @param hint    tpxHintAccurate, or any other value
 * @return The first of these that applies: tpxErrNullPointer (pSrc, pValue); tpxErrSize (width or height
 *     below 1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiNorm_Inf_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_Inf_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_Inf_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_Inf_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_Inf_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_Inf_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_Inf_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_Inf_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_Inf_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_Inf_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_Inf_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_Inf_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_L1_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_L1_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_L1_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_L1_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_L1_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_L1_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_L1_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_L1_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_L1_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_L1_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue,
                        TpxHintAlgorithm hint),
    tpxiNorm_L1_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3],
                        TpxHintAlgorithm hint),
    tpxiNorm_L1_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4],
                        TpxHintAlgorithm hint),
    tpxiNorm_L2_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_L2_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_L2_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_L2_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_L2_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_L2_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_L2_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue),
    tpxiNorm_L2_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNorm_L2_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNorm_L2_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pValue,
                        TpxHintAlgorithm hint),
    tpxiNorm_L2_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[3],
                        TpxHintAlgorithm hint),
    tpxiNorm_L2_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx64f pValue[4],
                        TpxHintAlgorithm hint);

/** @} */

/** @name Norms of a difference: tpxiNormDiff
 * @{ */

/**
 * Stores a norm of the difference of two images, for each channel: with x the difference of two samples
 * (exact of integers, rounded to single precision of 32f but for L1 and L2 with tpxHintAccurate), Inf is the
 * largest |x|, L1 the sum of |x|, L2 the square root of the sum of x^2.
 *
 * Sums over integers are exact up to 2^53. 32f L1 and L2: tpxHintAccurate works in double precision
 * throughout, any other hint makes terms and short sums of them in single precision, which overflow and lose
 * digits earlier. Rows that follow each other without a gap are added as one row: the last bits of 32f L1 and
 * L2 can depend on the steps. NaN samples are passed over by Inf.
 *
 * @param pSrc1    first pixel of the first source
 * @param src1Step bytes from one of its rows to the next
 * @param pSrc2    first pixel of the second source
 * @param src2Step bytes from one of its rows to the next
 * @param roiSize  width and height of the region in pixels
 * @param pValue   takes the norms: one for C1, an array of 3 for C3, of 4 for C4
 * @param hint     tpxHintAccurate, or any other value
 * @return The first of these that applies: tpxErrNullPointer (an image, pValue); tpxErrSize (width or height
 *     below 1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiNormDiff_Inf_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormDiff_Inf_8u_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormDiff_Inf_8u_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormDiff_Inf_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormDiff_Inf_16u_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormDiff_Inf_16u_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormDiff_Inf_16s_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormDiff_Inf_16s_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormDiff_Inf_16s_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormDiff_Inf_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormDiff_Inf_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormDiff_Inf_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                             TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormDiff_L1_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                           Tpx64f* pValue),
    tpxiNormDiff_L1_8u_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                           Tpx64f pValue[3]),
    tpxiNormDiff_L1_8u_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                           Tpx64f pValue[4]),
    tpxiNormDiff_L1_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormDiff_L1_16u_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormDiff_L1_16u_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormDiff_L1_16s_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormDiff_L1_16s_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormDiff_L1_16s_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormDiff_L1_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint),
    tpxiNormDiff_L1_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[3], TpxHintAlgorithm hint),
    tpxiNormDiff_L1_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[4], TpxHintAlgorithm hint),
    tpxiNormDiff_L2_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                           Tpx64f* pValue),
    tpxiNormDiff_L2_8u_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                           Tpx64f pValue[3]),
    tpxiNormDiff_L2_8u_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, TpxiSize roiSize,
                           Tpx64f pValue[4]),
    tpxiNormDiff_L2_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormDiff_L2_16u_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormDiff_L2_16u_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormDiff_L2_16s_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormDiff_L2_16s_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormDiff_L2_16s_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormDiff_L2_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint),
    tpxiNormDiff_L2_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[3], TpxHintAlgorithm hint),
    tpxiNormDiff_L2_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                            TpxiSize roiSize, Tpx64f pValue[4], TpxHintAlgorithm hint);

/** @} */

/** @name Relative norms: tpxiNormRel
 * @{ */

/**
 * Stores the norm of pSrc - pSrcRef over the norm of pSrcRef, for each channel: with x a difference or a
 * sample, Inf is the largest |x|, L1 the sum of |x|, L2 the square root of the sum of x^2. L2 takes one root,
 * of the ratio of the sums.
 *
 * Sums over integers are exact up to 2^53. 32f L1 and L2: tpxHintAccurate works in double precision
 * throughout, any other hint makes terms and short sums of them in single precision, which overflow and lose
 * digits earlier. Rows that follow each other without a gap are added as one row: the last bits of 32f L1 and
 * L2 can depend on the steps. NaN samples are passed over by Inf.
 *
 * @param pSrc       first pixel of the source
 * @param srcStep    bytes from one row of the source to the next
 * @param pSrcRef    first pixel of the reference
 * @param srcRefStep bytes from one row of the reference to the next
 * @param roiSize    width and height of the region in pixels
 * @param pValue     takes the ratios: one for C1, an array of 3 for C3, of 4 for C4
 * @param hint       tpxHintAccurate, or any other value
 * @return The first of these that applies: tpxErrNullPointer (an image, pValue); tpxErrSize (width or height
 *     below 1); tpxErrStep (a step below 1); tpxWarnDivByZero (the reference of a channel is zero, for 32f
 *     below the smallest normal double: the value is infinity, or minus NaN if the difference is zero too;
 *     other channels have their ratios); tpxOk.
 */
TPX_API TpxStatus
    tpxiNormRel_Inf_8u_C1R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_Inf_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_Inf_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_Inf_16u_C1R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_Inf_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_Inf_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_Inf_16s_C1R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_Inf_16s_C3R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_Inf_16s_C4R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_Inf_32f_C1R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_Inf_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_Inf_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                            TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_L1_8u_C1R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                          TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_L1_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                          TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_L1_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                          TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_L1_16u_C1R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_L1_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_L1_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_L1_16s_C1R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_L1_16s_C3R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_L1_16s_C4R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_L1_32f_C1R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint),
    tpxiNormRel_L1_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[3], TpxHintAlgorithm hint),
    tpxiNormRel_L1_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[4], TpxHintAlgorithm hint),
    tpxiNormRel_L2_8u_C1R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                          TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_L2_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                          TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_L2_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx8u* pSrcRef, int srcRefStep,
                          TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_L2_16u_C1R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_L2_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_L2_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx16u* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_L2_16s_C1R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f* pValue),
    tpxiNormRel_L2_16s_C3R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[3]),
    tpxiNormRel_L2_16s_C4R(const Tpx16s* pSrc, int srcStep, const Tpx16s* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[4]),
    tpxiNormRel_L2_32f_C1R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f* pValue, TpxHintAlgorithm hint),
    tpxiNormRel_L2_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[3], TpxHintAlgorithm hint),
    tpxiNormRel_L2_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f* pSrcRef, int srcRefStep,
                           TpxiSize roiSize, Tpx64f pValue[4], TpxHintAlgorithm hint);

/** @} */

/**
 * The levels of a histogram, made ready for counting, in a block of the caller's memory at any address.
 *
 * It has the size that tpxiHistogramGetBufferSize tells, is made by tpxiHistogramInit or
 * tpxiHistogramUniformInit, and points into itself: it must not be moved. Calls only read it, so that several
 * threads may share one, each with a work buffer of its own (32f needs none, and takes a null pointer).
 *
 * nLevels, lowerLevel, upperLevel and pLevels have an entry a channel. Levels are given as floats, which rise
 * strictly; integer types store their ceilings, limited to 32 bits, which may repeat and which
 * tpxiHistogramGetLevels gives back. Uniform levels are lower + i * (upper - lower) / (nLevels - 1) in single
 * precision, the last one upper itself, truncated for integer types.
 *
 * @code
 * TpxiSize size = {640, 480};
 * int nLevels[1] = {257}, specSize = 0, bufferSize = 0, step = 0;
 * Tpx32f lower[1] = {0}, upper[1] = {256};
 * Tpx32u counts[256];
 * TpxStatus status = tpxiHistogramGetBufferSize(tpxDataType8u, size, nLevels, 1, 1, &specSize, &bufferSize);
 * TpxHistogramSpec* levels = malloc((size_t)specSize);
 * Tpx8u* buffer = malloc((size_t)bufferSize);
 * Tpx8u* image = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * tpxiSet_8u_C1R(100, image, step, size);
 * if (!status) status = tpxiHistogramUniformInit(tpxDataType8u, lower, upper, nLevels, 1, levels);
 * // counts[100] is 640 * 480
 * if (!status) status = tpxiHistogram_8u_C1R(image, step, size, counts, levels, buffer);
 * tpxiFree(image);
 * free(buffer);
 * free(levels);
 * @endcode
 */
typedef struct TpxHistogramSpec TpxHistogramSpec;

/** @name Histograms, sizes: tpxiHistogramGetBufferSize
 * @{ */

/**
 * Tells the bytes of a histogram's spec and of its work buffer; TpxHistogramSpec has an example.
 *
 * @param dataType    type of the samples: 8u, 16u, 16s or 32f
 * @param roiSize     width and height of the region in pixels
 * @param nLevels     number of levels of each channel, at least 2: one more than bins
 * @param nChannels   number of channels: 1, 3 or 4
 * @param uniform     other than 0 for levels at equal distances; changes nothing
 * @param pSpecSize   takes the bytes of the spec
 * @param pBufferSize takes the bytes of the work buffer
 * @return The first of these that applies: tpxErrNullPointer; tpxErrSize (width or height below 1);
 *     tpxErrChannelCount; tpxErrHistogramLevels (fewer than 2 in a channel); tpxErrSizeTooLarge (2 GB or
 *     more); tpxErrDataType (the spec's size is stored before); tpxOk.
 */
TPX_API TpxStatus tpxiHistogramGetBufferSize(TpxDataType dataType, TpxiSize roiSize, const int nLevels[],
                                             int nChannels, int uniform, int* pSpecSize, int* pBufferSize);

/** @} */

/** @name Histograms, initialiser: tpxiHistogramInit
 * @{ */

/**
 * Makes a histogram's spec of the caller's levels; TpxHistogramSpec tells more. A failed call leaves a spec
 * that every later call refuses. The array of arrays is declared so that a call compiles without a warning:
 *
 * @code
 * Tpx32f dark[2] = {0, 128}, all[3] = {0, 128, 256};
 * const Tpx32f* levels[3] = {dark, dark, all};
 * int nLevels[3] = {2, 2, 3}, specSize = 0, bufferSize = 0;
 * TpxiSize size = {640, 480};
 * TpxStatus status = tpxiHistogramGetBufferSize(tpxDataType16u, size, nLevels, 3, 0, &specSize, &bufferSize);
 * TpxHistogramSpec* spec = malloc((size_t)specSize);
 * if (!status) status = tpxiHistogramInit(tpxDataType16u, levels, nLevels, 3, spec);
 * free(spec);
 * @endcode
 *
 * @param dataType  type of the samples: 8u, 16u, 16s or 32f
 * @param pLevels   array of nLevels floats for each channel, which rise strictly
 * @param nLevels   number of levels of each channel, at least 2: one more than bins
 * @param nChannels number of channels: 1, 3 or 4
 * @param pSpec     the spec, of the bytes that tpxiHistogramGetBufferSize tells, at any address
 * @return The first of these that applies: tpxErrDataType; tpxErrNullPointer; tpxErrChannelCount; for each
 *     channel tpxErrNullPointer (its levels), tpxErrHistogramLevels (fewer than 2), tpxErrRange (levels that
 *     do not rise, NaN among them); tpxOk.
 */
TPX_API TpxStatus tpxiHistogramInit(TpxDataType dataType, const Tpx32f* const pLevels[], const int nLevels[],
                                    int nChannels, TpxHistogramSpec* pSpec);

/** @} */

/** @name Histograms, initialiser of uniform levels: tpxiHistogramUniformInit
 * @{ */

/**
 * Makes a histogram's spec of levels at equal distances; TpxHistogramSpec tells more and has an example. A
 * failed call leaves a spec that every later call refuses.
 *
 * @param dataType   type of the samples: 8u, 16u, 16s or 32f
 * @param lowerLevel first level of each channel
 * @param upperLevel last level of each channel, above the first
 * @param nLevels    number of levels of each channel, at least 2: one more than bins
 * @param nChannels  number of channels: 1, 3 or 4
 * @param pSpec      the spec, of the bytes that tpxiHistogramGetBufferSize tells, at any address
 * @return The first of these that applies: tpxErrDataType; tpxErrNullPointer; tpxErrChannelCount; for each
 *     channel tpxErrHistogramLevels (fewer than 2), tpxErrRange (upper not above lower, NaN among them);
 *     tpxWarnValueAdjusted (an integer type with a step below 1, so that levels may repeat; the spec is
 *     complete); tpxOk.
 */
TPX_API TpxStatus tpxiHistogramUniformInit(TpxDataType dataType, const Tpx32f lowerLevel[],
                                           const Tpx32f upperLevel[], const int nLevels[], int nChannels,
                                           TpxHistogramSpec* pSpec);

/** @} */

/** @name Histograms, levels: tpxiHistogramGetLevels
 * @{ */

/**
 * Tells the levels that a histogram's spec holds: those of integer types as the integers that they were made.
 *
 * @param pSpec   the spec
 * @param pLevels array for each channel, which takes its levels
 * @return The first of these that applies: tpxErrNullPointer; tpxErrBadArgument (not a spec that is ready);
 *     tpxErrNullPointer (a channel's array); tpxOk.
 */
TPX_API TpxStatus tpxiHistogramGetLevels(const TpxHistogramSpec* pSpec, Tpx32f* const pLevels[]);

/** @} */

/** @name Histograms: tpxiHistogram
 * @{ */

/**
 * Counts the samples between levels, for each channel: bin k of nLevels - 1 counts those with
 * levels[k] <= x < levels[k + 1]. Samples outside all levels, and NaN, are not counted. Counters start at 0,
 * and wrap. TpxHistogramSpec tells of levels and has an example.
 *
 * 16-bit samples of images below 65536 pixels are counted by dividing their distance from the first level by
 * the uniform levels' step, if the levels are uniform and the distance of the last one is a multiple of
 * nLevels - 1: where bounds are no integers, that may differ from the levels. What a call leaves in the work
 * buffer has no meaning.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param roiSize width and height of the region in pixels
 * @param pHist   takes the counters: an array of nLevels - 1 for C1, an array of such arrays (`Tpx32u*
 *     hist[3]`) for C3 and C4
 * @param pSpec   the spec
 * @param pBuffer work buffer of the bytes that tpxiHistogramGetBufferSize told, at any address; may be null
 *     for 32f
 * @return The first of these that applies: tpxErrNullPointer (a channel's counters, too); tpxErrSize (width
 *     or height below 1); tpxErrStep (less than a row's bytes); tpxErrBadArgument (not a spec that is ready,
 *     or one of another type or number of channels); tpxOk.
 */
TPX_API TpxStatus
    tpxiHistogram_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* pHist,
                         const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[3],
                         const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[4],
                         const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* pHist,
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[3],
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[4],
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* pHist,
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[3],
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[4],
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* pHist,
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[3],
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer),
    tpxiHistogram_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxiSize roiSize, Tpx32u* const pHist[4],
                          const TpxHistogramSpec* pSpec, Tpx8u* pBuffer);

/** @} */

/**
 * The tables of a function of levels and values, made ready for tpxiLUT, in a block of the caller's memory at
 * any address.
 *
 * It has the size that tpxiLUT_GetSize tells for the same interpolation, type, layout and numbers of levels,
 * is made by tpxiLUT_Init, and points into itself: it must not be moved. Calls only read it, so that threads
 * may share one.
 *
 * @code
 * TpxiSize size = {640, 480};
 * Tpx32s values[3] = {0, 192, 255}, levels[3] = {0, 128, 256};
 * const Tpx32s *valuesOf[1] = {values}, *levelsOf[1] = {levels};
 * int nLevels[1] = {3}, specSize = 0, step = 0;
 * TpxStatus status = tpxiLUT_GetSize(tpxInterpolationLinear, tpxDataType8u, tpxChannelC1, size, nLevels,
 *                                    &specSize);
 * TpxiLUT_Spec* curve = malloc((size_t)specSize);
 * Tpx8u* image = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * tpxiSet_8u_C1R(64, image, step, size);
 * if (!status) status = tpxiLUT_Init_8u(tpxInterpolationLinear, tpxChannelC1, size, valuesOf, levelsOf,
 *                                       nLevels, curve);
 * if (!status) status = tpxiLUT_8u_C1IR(image, step, size, curve); // 64 becomes 96
 * tpxiFree(image);
 * free(curve);
 * @endcode
 */
typedef struct TpxiLUT_Spec TpxiLUT_Spec;

/** @name Lookup tables between levels, sizes: tpxiLUT_GetSize
 * @{ */

/**
 * Tells the bytes of the spec of a lookup table; TpxiLUT_Spec has an example.
 *
 * @param interpolation tpxInterpolationNearest, Linear or Cubic
 * @param dataType      type of the samples: 8u, 16u, 16s or 32f
 * @param layout        tpxChannelC1, C3, C4 or AC4
 * @param roiSize       width and height of a region in pixels; nothing depends on it
 * @param nLevels       number of levels of each channel, at least 2; three numbers for AC4
 * @param pSpecSize     takes the bytes of the spec
 * @return The first of these that applies: tpxErrInterpolation; tpxErrNullPointer; tpxErrSize (width or
 *     height below 1); tpxErrLutLevels (fewer than 2 in a channel; of an unknown layout the first is read);
 *     tpxErrChannelIndex (the layout); tpxErrDataType; tpxErrSizeTooLarge (2 GB or more); tpxOk.
 */
TPX_API TpxStatus tpxiLUT_GetSize(TpxInterpolationType interpolation, TpxDataType dataType,
                                  TpxChannelCode layout, TpxiSize roiSize, const int nLevels[], int* pSpecSize);

/** @} */

/** @name Lookup tables between levels, initialisers: tpxiLUT_Init
 * @{ */

/**
 * Makes the spec of a lookup table from levels and values; TpxiLUT_Spec has an example, tpxiLUT tells the
 * function. A failed call leaves a spec that every later call refuses. Levels should rise. They are not
 * tested: of intervals that overlap, the last one counts for integers, the first one for 32f.
 *
 * @param interpolation tpxInterpolationNearest, Linear or Cubic
 * @param layout        tpxChannelC1, C3, C4 or AC4
 * @param roiSize       width and height of a region in pixels; nothing depends on it
 * @param pValues       array of values for each channel, one a level; three arrays for AC4
 * @param pLevels       array of levels for each channel; three arrays for AC4
 * @param nLevels       number of levels of each channel, at least 2; three numbers for AC4
 * @param pSpec         the spec, of the bytes that tpxiLUT_GetSize tells, at any address
 * @return The first of these that applies: tpxErrInterpolation; tpxErrSize (width or height below 1);
 *     tpxErrNullPointer (an array of a channel too); tpxErrLutLevels; tpxErrChannelIndex; tpxErrSizeTooLarge;
 *     tpxOk.
 */
TPX_API TpxStatus
    tpxiLUT_Init_8u(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
                    const Tpx32s* const pValues[], const Tpx32s* const pLevels[], const int nLevels[],
                    TpxiLUT_Spec* pSpec),
    tpxiLUT_Init_16u(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
                     const Tpx32s* const pValues[], const Tpx32s* const pLevels[], const int nLevels[],
                     TpxiLUT_Spec* pSpec),
    tpxiLUT_Init_16s(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
                     const Tpx32s* const pValues[], const Tpx32s* const pLevels[], const int nLevels[],
                     TpxiLUT_Spec* pSpec),
    tpxiLUT_Init_32f(TpxInterpolationType interpolation, TpxChannelCode layout, TpxiSize roiSize,
                     const Tpx32f* const pValues[], const Tpx32f* const pLevels[], const int nLevels[],
                     TpxiLUT_Spec* pSpec);

/** @} */

/** @name Lookup tables between levels: tpxiLUT
 * @{ */

/**
 * Maps samples through a function of levels and values, for each channel. x in levels[k] <= x < levels[k + 1]
 * becomes what follows, limited to the type:
 * - nearest: values[k]
 * - linear: the line through (levels[k], values[k]) and (levels[k + 1], values[k + 1])
 * - cubic: the polynomial through points k - 1 to k + 2, or at the ends through the first or last four
 *
 * TpxiLUT_Spec has an example. Samples outside all levels, and NaN, stay. AC4 keeps the destination's fourth
 * channel. Steps may be less than a row.
 *
 * Integers come from lines and polynomials by adding 0.5 and truncating toward zero, but for the value of an
 * interval of one sample on a line, which is taken as it is. 32f works in double precision and rounds once. A
 * channel with fewer than 4 levels makes all channels of a cubic spec linear; where two of the four levels
 * are equal, an interval has its line.
 *
 * @param pSrc       first pixel of the source
 * @param srcStep    bytes from one row of the source to the next
 * @param pDst       first pixel of the destination
 * @param dstStep    bytes from one row of the destination to the next
 * @param roiSize    width and height of the region in pixels
 * @param pSpec      the spec
 * @param pSrcDst    first pixel of the image that is read and written
 * @param srcDstStep bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (an image or the spec); tpxErrStep (a step below
 *     1); tpxErrSize (width or height below 1); tpxErrBadArgument (not a spec that is ready, or one of
 *     another type or layout); tpxOk.
 */
TPX_API TpxStatus
    tpxiLUT_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                   const TpxiLUT_Spec* pSpec),
    tpxiLUT_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                   const TpxiLUT_Spec* pSpec),
    tpxiLUT_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                   const TpxiLUT_Spec* pSpec),
    tpxiLUT_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                     const TpxiLUT_Spec* pSpec),
    tpxiLUT_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                     const TpxiLUT_Spec* pSpec),
    tpxiLUT_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                    const TpxiLUT_Spec* pSpec),
    tpxiLUT_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec),
    tpxiLUT_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                     const TpxiLUT_Spec* pSpec),
    tpxiLUT_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize, const TpxiLUT_Spec* pSpec);

/** @} */

/** @name Palettes: tpxiLUTPalette
 * @{ */

/**
 * Replaces every sample by the entry of a table that its low nBitSize bits name. C3 and C4 have a table a
 * channel, AC4 has three and keeps the destination's fourth channel. 8u24u and 16u24u store three bytes a
 * pixel from a table of three bytes an entry. Nothing is read behind a table's last entry. Source and
 * destination may be the same where their samples have the same size.
 *
 * @param pSrc     first pixel of the source
 * @param srcStep  bytes from one row of the source to the next
 * @param pDst     first pixel of the destination
 * @param dstStep  bytes from one row of the destination to the next
 * @param roiSize  width and height of the region in pixels
 * @param pTable   table of 2^nBitSize entries, or an array of the tables (`const Tpx8u* tables[3]`)
 * @param nBitSize bits of a sample that name the entry: 1 to 8 of 8u, 1 to 16 of 16u
 * @return The first of these that applies: tpxErrNullPointer (a table of a channel too); tpxErrSize (width or
 *     height below 1); tpxErrOutOfRange (nBitSize); tpxErrStep (a step less than its row's bytes); tpxOk.
 */
TPX_API TpxStatus
    tpxiLUTPalette_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                          const Tpx8u* pTable, int nBitSize),
    tpxiLUTPalette_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                          const Tpx8u* const pTable[3], int nBitSize),
    tpxiLUTPalette_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                          const Tpx8u* const pTable[4], int nBitSize),
    tpxiLUTPalette_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                           const Tpx8u* const pTable[3], int nBitSize),
    tpxiLUTPalette_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                           const Tpx16u* pTable, int nBitSize),
    tpxiLUTPalette_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                           const Tpx16u* const pTable[3], int nBitSize),
    tpxiLUTPalette_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                           const Tpx16u* const pTable[4], int nBitSize),
    tpxiLUTPalette_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                            const Tpx16u* const pTable[3], int nBitSize),
    tpxiLUTPalette_8u24u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                             const Tpx8u* pTable, int nBitSize),
    tpxiLUTPalette_8u32u_C1R(const Tpx8u* pSrc, int srcStep, Tpx32u* pDst, int dstStep, TpxiSize roiSize,
                             const Tpx32u* pTable, int nBitSize),
    tpxiLUTPalette_16u8u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                             const Tpx8u* pTable, int nBitSize),
    tpxiLUTPalette_16u24u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                              const Tpx8u* pTable, int nBitSize),
    tpxiLUTPalette_16u32u_C1R(const Tpx16u* pSrc, int srcStep, Tpx32u* pDst, int dstStep, TpxiSize roiSize,
                              const Tpx32u* pTable, int nBitSize);

/** @} */

TPX_EXTERN_C_END

#endif
