/* The general filter: correlation with a rectangular kernel that the caller gives. */
#ifndef TPXI_FILTERS_GENERAL_H
#define TPXI_FILTERS_GENERAL_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- The general filter: tpxiFilterBorder* ----
 *
 * With aX = (width - 1) / 2 and aY = (height - 1) / 2 of the kernel, the result at (x, y) is the sum over rows
 * r and columns c of K[r * width + c] * src(x + c - aX, y + r - aY): the kernel as it stands, in raster order;
 * even sides have one more tap on the right and below.
 *
 * A caller asks GetSize, fills a block of that many bytes with an Init, may set its mode, and runs calls with a
 * work buffer. Block and buffer lie at any address. The block holds pointers into itself: it is not moved or
 * copied. It is only read by calls, so threads may share it, each with a buffer of its own. The buffer suits
 * regions of the size that GetSize was asked for.
 *
 * Kernels of 16-bit integers have a divisor. They stay integers for 8u, and for 16s of one channel from 3x2 on;
 * for all other data they become float kernels, each coefficient times 1 / divisor. Sums of integers are exact
 * in 32 bits (in 64 for 16s in regions narrower than 16); sums of floats are taken tap by tap in raster order,
 * each product and sum rounded, from the first product on.
 *
 * Rounding of the quotient: roundMode is tpxRoundTowardZero, tpxRoundNearestEven or tpxRoundHalfAway, with or
 * without tpxRoundExactFlag. "Region" below is the part that is worked on as one: the strips along the sides
 * that need a border (see there) are as narrow as the kernel's reach.
 * - Kernels of integers at least 3 wide and 2 high, regions at least 16 wide, no coefficient outside
 *   -32767..32766: with mode 0 or 1 and no flag, a divisor that is a power of two rounds to nearest with ties
 *   to even; any other multiplies by its float reciprocal and rounds as the mode says. With mode 2 or the flag,
 *   8u divides exactly but for the last bit of large quotients, a power of two rounding down in mode 0; 16s
 *   rounds the true quotient as the mode says. An offset is added to the quotient.
 * - Kernels one row high; also those one column wide and at least 3 high in regions at least 16 wide: without
 *   the flag as above, but in the direction of the thread's control register whatever the mode; with it by the
 *   exact division.
 * - All other kernels of integers and regions round the true quotient as the mode says. An offset, times the
 *   divisor (or divided by it, if that is a power of two), is added to the sum before, and a fraction cut off.
 * - Kernels of floats: regions at least 8 wide round by the thread's control register, to nearest unless it has
 *   been changed; narrower ones as the mode says. An offset is added before. 32f is not rounded.
 * Results saturate.
 *
 * border: tpxBorderReplicate, tpxBorderMirror or tpxBorderConstant (pBorderValue is a pixel, read for this kind
 * alone), with flags for sides on which the image goes on in memory and is read there, or tpxBorderInMemAll.
 * Strips are worked on first: the top and the bottom one as wide as the region, then the left and the right
 * one; then what remains. Where the kernel is as wide or as high as the region, all of it is one region. Source
 * and destination are different images.
 *
 * Statuses of GetSize, in order: tpxErrSize (kernel or region below 1); tpxErrDataType (dataType not 8u, 16u,
 * 16s, 32f; kernelType not 16s, 32f); tpxErrChannelIndex (not 1 to 4); tpxErrNullPointer; tpxErrSizeTooLarge
 * (past 31 bits; *pBufferSize is 0); tpxOk.
 * Of Init: tpxErrNullPointer; tpxErrSize; tpxErrDataType (Init_16s takes 8u, 16u, 16s, Init_32f also 32f);
 * tpxErrChannelIndex (not 1 to 4; there is no call for two); tpxErrRoundMode; tpxErrDivisor (zero);
 * tpxWarnExactIgnored (the block is complete, but the flag has no effect: it is taken for 8u, and for 16s of
 * one channel, while the kernel stays one of integers); tpxOk.
 * Of SetMode: tpxErrNullPointer; tpxErrUnsupportedMode (an offset for 16s or 32f); tpxOk. tpxHintAccurate sets
 * the exact flag where it is taken, any other hint clears it.
 * Of calls: tpxErrNullPointer (source, destination, block, buffer; then the border's pixel); tpxErrSize (width
 * or height below 1); tpxErrStep (srcStep below 1, or dstStep below width samples: channels do not count);
 * tpxErrBorder; tpxOk. */

typedef struct TpxiFilterBorderBlock TpxiFilterBorderBlock;

TPX_API TpxStatus tpxiFilterBorderGetSize(TpxiSize kernelSize, TpxiSize roiSize, TpxDataType dataType,
                                          TpxDataType kernelType, int numChannels, int* pSpecSize,
                                          int* pBufferSize);
TPX_API TpxStatus tpxiFilterBorderInit_16s(const Tpx16s* pKernel, TpxiSize kernelSize, int divisor,
                                           TpxDataType dataType, int numChannels, TpxRoundMode roundMode,
                                           TpxiFilterBorderBlock* pSpec);
TPX_API TpxStatus tpxiFilterBorderInit_32f(const Tpx32f* pKernel, TpxiSize kernelSize, TpxDataType dataType,
                                           int numChannels, TpxRoundMode roundMode,
                                           TpxiFilterBorderBlock* pSpec);
TPX_API TpxStatus tpxiFilterBorderSetMode(TpxHintAlgorithm hint, int offset, TpxiFilterBorderBlock* pSpec);

TPX_API TpxStatus tpxiFilterBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, TpxBorderType border, const Tpx8u* pBorderValue,
                                          const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, TpxBorderType border, const Tpx8u* pBorderValue,
                                          const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiSize roiSize, TpxBorderType border, const Tpx8u* pBorderValue,
                                          const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx16u* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx16u* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx16u* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx16s* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx16s* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx16s* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx32f* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx32f* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiFilterBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiSize roiSize, TpxBorderType border, const Tpx32f* pBorderValue,
                                           const TpxiFilterBorderBlock* pSpec, Tpx8u* pBuffer);

TPX_EXTERN_C_END

#endif
