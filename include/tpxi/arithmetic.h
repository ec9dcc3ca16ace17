/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Pointwise arithmetic. */
#ifndef TPXI_ARITHMETIC_H
#define TPXI_ARITHMETIC_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Absolute value: tpxiAbs
 * @{ */

/**
 * Stores the absolute value of every sample. 16s: -32768 gives 32767. 32f: the sign bit is cleared, of NaN
 * and negative zero too.
 *
 * AC4 keeps the destination's fourth channel. Steps are rounded down to whole samples.
 *
 * @param pSrc       first pixel of the source
 * @param srcStep    bytes from one row of the source to the next
 * @param pDst       first pixel of the destination
 * @param dstStep    bytes from one row of the destination to the next
 * @param roiSize    width and height of the region in pixels
 * @param pSrcDst    first pixel of the image that is read and written
 * @param srcDstStep bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiAbs_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiAbs_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAbs_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiAbs_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAbs_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiAbs_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAbs_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiAbs_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAbs_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiAbs_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAbs_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiAbs_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAbs_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiAbs_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAbs_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiAbs_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/** @} */

/** @name Square: tpxiSqr
 * @{ */

/**
 * Stores the square of every sample. Integers (Sfs) give the exact square times 2^-scaleFactor, rounded to
 * nearest with ties to even and saturated. 32f: the product in single precision; NaN stays NaN.
 *
 * AC4 keeps the destination's fourth channel. Steps of 16- and 32-bit samples are rounded down to whole
 * samples.
 *
 * @param pSrc        first pixel of the source
 * @param srcStep     bytes from one row of the source to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param scaleFactor n: results are multiplied by 2^-n, for any number n
 * @param pSrcDst     first pixel of the image that is read and written
 * @param srcDstStep  bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiSqr_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiSqr_8u_C1IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiSqr_8u_C3IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_8u_C4RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiSqr_8u_C4IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_8u_AC4RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqr_8u_AC4IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqr_16u_C1IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqr_16u_C3IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_16u_C4RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqr_16u_C4IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_16u_AC4RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSqr_16u_AC4IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqr_16s_C1IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqr_16s_C3IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_16s_C4RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqr_16s_C4IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_16s_AC4RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSqr_16s_AC4IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqr_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSqr_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSqr_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSqr_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSqr_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSqr_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSqr_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSqr_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/** @} */

/** @name Square root: tpxiSqrt
 * @{ */

/**
 * Stores the square root of every sample. Integers (Sfs) give the exact root times 2^-scaleFactor, rounded to
 * nearest with ties to even and saturated. A negative sample gives 0 in 16s and NaN in 32f, and both then
 * warn; negative zero is its own root. NaN stays NaN.
 *
 * AC4 keeps the destination's fourth channel. Alpha goes through the function all the same and is dropped, so
 * that it can raise the warning; tpxiSqrt_32f_AC4R alone never looks at it. Steps of 16- and 32-bit samples
 * are rounded down to whole samples.
 *
 * @param pSrc        first pixel of the source
 * @param srcStep     bytes from one row of the source to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param scaleFactor n: results are multiplied by 2^-n, for any number n
 * @param pSrcDst     first pixel of the image that is read and written
 * @param srcDstStep  bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxWarnSqrtNegArg (a negative sample; the whole region is done);
 *     tpxOk.
 */
TPX_API TpxStatus
    tpxiSqrt_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqrt_8u_C1IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSqrt_8u_C3IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_8u_AC4RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSqrt_8u_AC4IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSqrt_16u_C1IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSqrt_16u_C3IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_16u_AC4RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                         int scaleFactor),
    tpxiSqrt_16u_AC4IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSqrt_16s_C1IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSqrt_16s_C3IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_16s_AC4RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                         int scaleFactor),
    tpxiSqrt_16s_AC4IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSqrt_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSqrt_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSqrt_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSqrt_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSqrt_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiSqrt_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSqrt_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/** @} */

/** @name Natural logarithm: tpxiLn
 * @{ */

/**
 * Stores the natural logarithm of every sample. Zero gives 0 in 8u and 16u, -32768 in 16s, and -infinity in
 * 32f (negative zero too). A negative sample gives -32768 in 16s and NaN in 32f. Both warn.
 *
 * Integers (Sfs) give the logarithm times 2^-scaleFactor, rounded to nearest with ties to even and saturated.
 * 32f: within 2 units in the last place, denormals included; NaN stays NaN. Steps are added as they are.
 *
 * @param pSrc        first pixel of the source
 * @param srcStep     bytes from one row of the source to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param scaleFactor n: results are multiplied by 2^-n, for any number n
 * @param pSrcDst     first pixel of the image that is read and written
 * @param srcDstStep  bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxWarnLnZeroArg or tpxWarnLnNegArg (a zero or a negative sample: the
 *     first one in row-major order decides which; the whole region is done); tpxOk.
 */
TPX_API TpxStatus
    tpxiLn_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                     int scaleFactor),
    tpxiLn_8u_C1IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiLn_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                     int scaleFactor),
    tpxiLn_8u_C3IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiLn_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiLn_16u_C1IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiLn_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiLn_16u_C3IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiLn_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiLn_16s_C1IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiLn_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiLn_16s_C3IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiLn_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiLn_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiLn_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiLn_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/** @} */

/** @name Exponential: tpxiExp
 * @{ */

/**
 * Stores e to the power of every sample. Integers (Sfs) give the power times 2^-scaleFactor, rounded to
 * nearest with ties to even and saturated. 32f: within 2 units in the last place; overflow gives infinity,
 * underflow denormals and 0; NaN stays NaN. Steps are added as they are.
 *
 * @param pSrc        first pixel of the source
 * @param srcStep     bytes from one row of the source to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param scaleFactor n: results are multiplied by 2^-n, for any number n
 * @param pSrcDst     first pixel of the image that is read and written
 * @param srcDstStep  bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiExp_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiExp_8u_C1IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiExp_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                      int scaleFactor),
    tpxiExp_8u_C3IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiExp_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiExp_16u_C1IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiExp_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiExp_16u_C3IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiExp_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiExp_16s_C1IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiExp_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiExp_16s_C3IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor),
    tpxiExp_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiExp_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiExp_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiExp_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/** @} */

/** @name Sums, differences, products: tpxiAdd, tpxiSub, tpxiMul
 * @{ */

/**
 * Combines two images sample by sample. tpxiAdd stores pSrc1 + pSrc2, tpxiSub pSrc2 - pSrc1, tpxiMul
 * pSrc1 * pSrc2; in place (I) pSrcDst + pSrc, pSrcDst - pSrc, pSrcDst * pSrc.
 *
 * Integers (Sfs) give the exact result times 2^-scaleFactor, rounded to nearest with ties to even and
 * saturated, for every scale factor; unsigned differences below 0 give 0. Floats are the plain operations of
 * single precision. AC4 keeps the destination's fourth channel. Steps are not tested: 0 and negative ones
 * walk the memory as given. In place each sample is read before it is written; otherwise images do not
 * overlap.
 *
 * _L: sizes and steps of 64 bits. A call whose steps and bytes are below 2^31 - 1 in magnitude has the
 * statuses of the short form. A larger one: tpxOk for a width or height below 1, whatever the pointers;
 * tpxErrNullPointer; tpxOk. The bytes of the image are counted in 64 bits: from 2^63 on the count wraps, and
 * sizes from 1 on whose wrapped count is small are taken for those of a short call, cut to 32 bits.
 *
 * @param pSrc1       first pixel of the first source
 * @param src1Step    bytes from one of its rows to the next
 * @param pSrc2       first pixel of the second source
 * @param src2Step    bytes from one of its rows to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param scaleFactor n: results are multiplied by 2^-n, for any number n
 * @param pSrc        first pixel of the other operand
 * @param srcStep     bytes from one of its rows to the next
 * @param pSrcDst     first pixel of the image that is an operand and takes the result
 * @param srcDstStep  bytes from one of its rows to the next
 * @return The first of these that applies: C1 and AC4: tpxErrNullPointer (an image); tpxErrSize (width or
 *     height below 1); tpxOk. C3 and C4: tpxErrSize (a width below 1); tpxErrNullPointer; tpxErrSize (a
 *     height below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiAdd_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiAdd_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiAdd_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiAdd_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiAdd_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiAdd_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiAdd_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiAdd_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                        int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                         int scaleFactor),
    tpxiAdd_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiAdd_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiAdd_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiAdd_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                        int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiAdd_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                         int scaleFactor),
    tpxiAdd_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiAdd_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAdd_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiAdd_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAdd_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiAdd_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAdd_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                     int dstStep, TpxiSize roiSize),
    tpxiAdd_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiAdd_8u_C1RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_8u_C1IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_8u_C3RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_8u_C3IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_8u_C4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_8u_C4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_8u_AC4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                         Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_8u_AC4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16u_C1RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16u_C1IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16u_C3RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16u_C3IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16u_C4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16u_C4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16u_AC4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                          Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16u_AC4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                           TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16s_C1RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16s_C1IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16s_C3RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16s_C3IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16s_C4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16s_C4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16s_AC4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                          Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_16s_AC4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                           TpxiSizeL roiSize, int scaleFactor),
    tpxiAdd_32f_C1R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiAdd_32f_C1IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiAdd_32f_C3R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiAdd_32f_C3IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiAdd_32f_C4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiAdd_32f_C4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiAdd_32f_AC4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                       Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiAdd_32f_AC4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                        TpxiSizeL roiSize),

    tpxiSub_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSub_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSub_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiSub_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSub_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSub_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSub_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSub_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                        int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                         int scaleFactor),
    tpxiSub_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSub_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSub_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiSub_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                        int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiSub_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                         int scaleFactor),
    tpxiSub_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiSub_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSub_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiSub_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSub_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiSub_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSub_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                     int dstStep, TpxiSize roiSize),
    tpxiSub_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiSub_8u_C1RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_8u_C1IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_8u_C3RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_8u_C3IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_8u_C4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_8u_C4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_8u_AC4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                         Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_8u_AC4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16u_C1RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16u_C1IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16u_C3RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16u_C3IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16u_C4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16u_C4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16u_AC4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                          Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16u_AC4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                           TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16s_C1RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16s_C1IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16s_C3RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16s_C3IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16s_C4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16s_C4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16s_AC4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                          Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_16s_AC4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                           TpxiSizeL roiSize, int scaleFactor),
    tpxiSub_32f_C1R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiSub_32f_C1IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiSub_32f_C3R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiSub_32f_C3IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiSub_32f_C4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiSub_32f_C4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiSub_32f_AC4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                       Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiSub_32f_AC4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                        TpxiSizeL roiSize),

    tpxiMul_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiMul_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiMul_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                      int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                       int scaleFactor),
    tpxiMul_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiMul_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiMul_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiMul_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiMul_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst,
                        int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize,
                         int scaleFactor),
    tpxiMul_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiMul_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiMul_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                       int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                        int scaleFactor),
    tpxiMul_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst,
                        int dstStep, TpxiSize roiSize, int scaleFactor),
    tpxiMul_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize,
                         int scaleFactor),
    tpxiMul_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiMul_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMul_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiMul_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMul_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                    int dstStep, TpxiSize roiSize),
    tpxiMul_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMul_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst,
                     int dstStep, TpxiSize roiSize),
    tpxiMul_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize),
    tpxiMul_8u_C1RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_8u_C1IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_8u_C3RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_8u_C3IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_8u_C4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                        Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_8u_C4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                         TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_8u_AC4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2, TpxSizeL src2Step,
                         Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_8u_AC4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16u_C1RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16u_C1IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16u_C3RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16u_C3IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16u_C4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                         Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16u_C4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16u_AC4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2, TpxSizeL src2Step,
                          Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16u_AC4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst, TpxSizeL srcDstStep,
                           TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16s_C1RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16s_C1IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16s_C3RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16s_C3IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16s_C4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                         Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16s_C4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                          TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16s_AC4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2, TpxSizeL src2Step,
                          Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_16s_AC4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst, TpxSizeL srcDstStep,
                           TpxiSizeL roiSize, int scaleFactor),
    tpxiMul_32f_C1R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiMul_32f_C1IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiMul_32f_C3R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiMul_32f_C3IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiMul_32f_C4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                      Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiMul_32f_C4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                       TpxiSizeL roiSize),
    tpxiMul_32f_AC4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2, TpxSizeL src2Step,
                       Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize),
    tpxiMul_32f_AC4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                        TpxiSizeL roiSize);

/** @} */

TPX_EXTERN_C_END

#endif
