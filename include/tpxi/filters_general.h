/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * The general filter: correlation with a rectangular kernel that the caller gives. */
#ifndef TPXI_FILTERS_GENERAL_H
#define TPXI_FILTERS_GENERAL_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/**
 * A general filter's kernel and mode, made ready for its calls, in a block of the caller's memory at any
 * address.
 *
 * A caller asks tpxiFilterBorderGetSize, fills a block of that many bytes with tpxiFilterBorderInit, may set
 * its mode by tpxiFilterBorderSetMode, and runs tpxiFilterBorder with a work buffer. The block holds pointers
 * into itself: it is not moved or copied. It is only read by calls, so threads may share it, each with a
 * buffer of its own.
 *
 * Kernels of 16-bit integers have a divisor. They stay integers for 8u, and for 16s of one channel from 3x2
 * on; for all other data they become float kernels, each coefficient times 1 / divisor.
 *
 * @code
 * Tpx16s kernel[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1}; // a small blur
 * TpxiSize kernelSize = {3, 3}, size = {640, 480};
 * int specSize = 0, bufferSize = 0, step = 0;
 * TpxStatus status = tpxiFilterBorderGetSize(kernelSize, size, tpxDataType8u, tpxDataType16s, 1, &specSize,
 *                                            &bufferSize);
 * TpxiFilterBorderBlock* filter = malloc((size_t)specSize);
 * Tpx8u* buffer = malloc((size_t)bufferSize);
 * Tpx8u* image = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * Tpx8u* blurred = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * tpxiSet_8u_C1R(100, image, step, size);
 * if (!status) status = tpxiFilterBorderInit_16s(kernel, kernelSize, 16, tpxDataType8u, 1,
 *                                                tpxRoundNearestEven, filter);
 * if (!status) status = tpxiFilterBorder_8u_C1R(image, step, blurred, step, size, tpxBorderReplicate, 0,
 *                                               filter, buffer);
 * tpxiFree(blurred);
 * tpxiFree(image);
 * free(buffer);
 * free(filter);
 * @endcode
 */
typedef struct TpxiFilterBorderBlock TpxiFilterBorderBlock;

/** @name General filter, sizes: tpxiFilterBorderGetSize
 * @{ */

/**
 * Tells the bytes of a general filter's block and of the work buffer of its calls; TpxiFilterBorderBlock has
 * an example.
 *
 * @param kernelSize  width and height of the kernel
 * @param roiSize     width and height in pixels of the regions that the buffer is to serve
 * @param dataType    type of the samples: 8u, 16u, 16s or 32f
 * @param kernelType  type of the coefficients: 16s or 32f
 * @param numChannels number of channels, 1 to 4
 * @param pSpecSize   takes the bytes of the block
 * @param pBufferSize takes the bytes of the work buffer
 * @return The first of these that applies: tpxErrSize (kernel or region below 1); tpxErrDataType (either
 *     type); tpxErrChannelIndex; tpxErrNullPointer; tpxErrSizeTooLarge (past 31 bits; the buffer's size told
 *     is 0); tpxOk.
 */
TPX_API TpxStatus tpxiFilterBorderGetSize(TpxiSize kernelSize, TpxiSize roiSize, TpxDataType dataType,
                                          TpxDataType kernelType, int numChannels, int* pSpecSize,
                                          int* pBufferSize);

/** @} */

/** @name General filter, initialisers: tpxiFilterBorderInit
 * @{ */

/**
 * Makes the block of a general filter from a kernel of 16-bit integers with a divisor, or of floats;
 * TpxiFilterBorderBlock has an example.
 *
 * @param pKernel     coefficients row by row, width x height of them
 * @param kernelSize  width and height of the kernel
 * @param divisor     sums are divided by it; not 0
 * @param dataType    type of the samples: 8u, 16u or 16s, and 32f for kernels of floats
 * @param numChannels number of channels, 1 to 4; there is no call for two
 * @param roundMode   tpxRoundTowardZero, tpxRoundNearestEven or tpxRoundHalfAway, with or without
 *     tpxRoundExactFlag; what they do is told at tpxiFilterBorder
 * @param pSpec       the block, of the bytes that tpxiFilterBorderGetSize tells, at any address
 * @return The first of these that applies: tpxErrNullPointer (kernel or block); tpxErrSize (kernel below 1);
 *     tpxErrDataType; tpxErrChannelIndex; tpxErrRoundMode; tpxErrDivisor (zero); tpxWarnExactIgnored (the
 *     block is complete, but the flag has no effect: it is taken for 8u, and for 16s of one channel, while
 *     the kernel stays one of integers); tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterBorderInit_16s(const Tpx16s* pKernel, TpxiSize kernelSize, int divisor, TpxDataType dataType,
                             int numChannels, TpxRoundMode roundMode, TpxiFilterBorderBlock* pSpec),
    tpxiFilterBorderInit_32f(const Tpx32f* pKernel, TpxiSize kernelSize, TpxDataType dataType, int numChannels,
                             TpxRoundMode roundMode, TpxiFilterBorderBlock* pSpec);

/** @} */

/** @name General filter, mode: tpxiFilterBorderSetMode
 * @{ */

/**
 * Sets an offset that is added to the results of a general filter, and its exact flag.
 *
 * @param hint   tpxHintAccurate sets the exact flag where it is taken, any other hint clears it
 * @param offset number that is added to results; 0 for 16s and 32f
 * @param pSpec  the block, which has been initialised
 * @return The first of these that applies: tpxErrNullPointer; tpxErrUnsupportedMode (an offset for 16s or
 *     32f); tpxOk.
 */
TPX_API TpxStatus tpxiFilterBorderSetMode(TpxHintAlgorithm hint, int offset, TpxiFilterBorderBlock* pSpec);

/** @} */

/** @name General filter: tpxiFilterBorder
 * @{ */

/**
 * Stores the correlation of the image with a kernel. With aX = (width - 1) / 2 and aY = (height - 1) / 2 of
 * the kernel, the result at (x, y) is the sum over rows r and columns c of K[r * width + c] * src(x + c - aX,
 * y + r - aY): the kernel as it stands, in raster order; even sides have one more tap on the right and below.
 * Results saturate. Source and destination are different images. TpxiFilterBorderBlock has an example.
 *
 * Sums of integers are exact in 32 bits (in 64 for 16s in regions narrower than 16); sums of floats are taken
 * tap by tap in raster order, each product and sum rounded, from the first product on.
 *
 * Rounding of the quotient, by the roundMode of the block. "Region" is the part that is worked on as one: the
 * strips along the sides that need a border are as narrow as the kernel's reach.
 * - Kernels of integers at least 3 wide and 2 high, regions at least 16 wide, no coefficient outside
 *   -32767..32766: with mode 0 or 1 and no flag, a divisor that is a power of two rounds to nearest with ties
 *   to even; any other multiplies by its float reciprocal and rounds as the mode says. With mode 2 or the
 *   flag, 8u divides exactly but for the last bit of large quotients, a power of two rounding down in mode 0;
 *   16s rounds the true quotient as the mode says. An offset is added to the quotient.
 * - Kernels one row high; also those one column wide and at least 3 high in regions at least 16 wide: without
 *   the flag as above, but in the direction of the thread's control register whatever the mode; with it by
 *   the exact division.
 * - All other kernels of integers and regions round the true quotient as the mode says. An offset, times the
 *   divisor (or divided by it, if that is a power of two), is added to the sum before, and a fraction cut
 *   off.
 * - Kernels of floats: regions at least 8 wide round by the thread's control register, to nearest unless it
 *   has been changed; narrower ones as the mode says. An offset is added before. 32f is not rounded.
 *
 * Strips are worked on first: the top and the bottom one as wide as the region, then the left and the right
 * one; then what remains. Where the kernel is as wide or as high as the region, all of it is one region.
 *
 * @param pSrc         first pixel of the source
 * @param srcStep      bytes from one row of the source to the next
 * @param pDst         first pixel of the destination
 * @param dstStep      bytes from one row of the destination to the next
 * @param roiSize      width and height of the region in pixels
 * @param border       tpxBorderReplicate, tpxBorderMirror or tpxBorderConstant, with flags for sides on which
 *     the image goes on in memory and is read there, or tpxBorderInMemAll
 * @param pBorderValue pixel of a constant border, a sample a channel; not read otherwise
 * @param pSpec        the block
 * @param pBuffer      work buffer, at any address, of the bytes that tpxiFilterBorderGetSize told for a
 *     region of this size
 * @return The first of these that applies: tpxErrNullPointer (source, destination, block, buffer; then the
 *     pixel of a constant border); tpxErrSize (width or height below 1); tpxErrStep (srcStep below 1, or
 *     dstStep below the bytes of width samples: channels do not count); tpxErrBorder; tpxOk.
 */
TPX_API TpxStatus
    tpxiFilterBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                            TpxBorderType border, const Tpx8u* pBorderValue, const TpxiFilterBorderBlock* pSpec,
                            Tpx8u* pBuffer),
    tpxiFilterBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                            TpxBorderType border, const Tpx8u* pBorderValue, const TpxiFilterBorderBlock* pSpec,
                            Tpx8u* pBuffer),
    tpxiFilterBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                            TpxBorderType border, const Tpx8u* pBorderValue, const TpxiFilterBorderBlock* pSpec,
                            Tpx8u* pBuffer),
    tpxiFilterBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx16u* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer),
    tpxiFilterBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx16u* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer),
    tpxiFilterBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx16u* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer),
    tpxiFilterBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx16s* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer),
    tpxiFilterBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx16s* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer),
    tpxiFilterBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx16s* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer),
    tpxiFilterBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx32f* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer),
    tpxiFilterBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx32f* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer),
    tpxiFilterBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize,
                             TpxBorderType border, const Tpx32f* pBorderValue,
                             const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);

/** @} */

TPX_EXTERN_C_END

#endif
