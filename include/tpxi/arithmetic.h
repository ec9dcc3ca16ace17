/* Pointwise arithmetic. */
#ifndef TPXI_ARITHMETIC_H
#define TPXI_ARITHMETIC_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Unary math: tpxiAbs, tpxiSqr, tpxiSqrt, tpxiLn, tpxiExp -----------------------------------------
 * Applies one function f to every sample of a region, from a source to a destination or in place (I).
 * Steps are in bytes, sizes in pixels. Integer forms (Sfs) give f(a) * 2^-scaleFactor, rounded to nearest
 * with ties to even and saturated, exactly, for every scale factor. NaN passes through the float forms.
 *
 * AC4: the destination's fourth channel is kept. Unless said otherwise alpha goes through the function
 * and the result is dropped, so alpha can raise a warning.
 *
 * For 16- and 32-bit samples tpxiAbs, tpxiSqr and tpxiSqrt round a step down to a whole number of samples;
 * the other forms add it as it is.
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxErrStep (a step below 1);
 * the function's warning; tpxOk. */

/* Absolute value. 16s: -32768 gives 32767. 32f: the sign bit is cleared, of NaN and negative zero too. */
TPX_API TpxStatus tpxiAbs_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiAbs_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/* Square. */
TPX_API TpxStatus tpxiSqr_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                    int scaleFactor);
TPX_API TpxStatus tpxiSqr_8u_C1IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                    int scaleFactor);
TPX_API TpxStatus tpxiSqr_8u_C3IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_8u_C4RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                    int scaleFactor);
TPX_API TpxStatus tpxiSqr_8u_C4IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_8u_AC4RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                     int scaleFactor);
TPX_API TpxStatus tpxiSqr_8u_AC4IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16u_C1IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16u_C3IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16u_C4RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16u_C4IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16u_AC4RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16u_AC4IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16s_C1IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16s_C3IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16s_C4RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16s_C4IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16s_AC4RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_16s_AC4IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqr_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqr_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqr_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqr_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqr_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqr_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqr_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiSqr_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/* Square root. A negative sample gives 0 in 16s and NaN in 32f, and both then warn with tpxWarnSqrtNegArg;
 * negative zero is its own root. tpxiSqrt_32f_AC4R alone never looks at alpha. */
TPX_API TpxStatus tpxiSqrt_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                     int scaleFactor);
TPX_API TpxStatus tpxiSqrt_8u_C1IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                     int scaleFactor);
TPX_API TpxStatus tpxiSqrt_8u_C3IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_8u_AC4RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_8u_AC4IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16u_C1IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16u_C3IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16u_AC4RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                       TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16u_AC4IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16s_C1IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16s_C3IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16s_AC4RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                       TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_16s_AC4IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSqrt_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiSqrt_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqrt_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiSqrt_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqrt_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiSqrt_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSqrt_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/* Natural logarithm. Zero gives 0 in 8u and 16u, -32768 in 16s, -infinity in 32f (negative zero too);
 * a negative sample gives -32768 in 16s, NaN in 32f. Warnings: tpxWarnLnZeroArg, tpxWarnLnNegArg; the first
 * such sample in row-major order decides which. 32f: within 2 units in the last place, denormals included. */
TPX_API TpxStatus tpxiLn_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int scaleFactor);
TPX_API TpxStatus tpxiLn_8u_C1IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                   int scaleFactor);
TPX_API TpxStatus tpxiLn_8u_C3IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_16u_C1IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                    TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_16u_C3IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_16s_C1IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                    TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_16s_C3IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiLn_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiLn_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiLn_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiLn_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/* Exponential. 32f: within 2 units in the last place; overflow gives infinity, underflow denormals and 0. */
TPX_API TpxStatus tpxiExp_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                    int scaleFactor);
TPX_API TpxStatus tpxiExp_8u_C1IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                                    int scaleFactor);
TPX_API TpxStatus tpxiExp_8u_C3IRSfs(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_16u_C1IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_16u_C3IRSfs(Tpx16u* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_16s_C1IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_16s_C3IRSfs(Tpx16s* pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiExp_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiExp_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiExp_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiExp_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize);

/* ---- Scaled binary arithmetic: tpxiAdd, tpxiSub, tpxiMul ---------------------------------------------
 * Combines two images sample by sample: the sum, the second source less the first (in place: pSrcDst less
 * pSrc), the product. Integer forms (Sfs) give the exact result times 2^-scaleFactor, rounded to nearest with
 * ties to even and saturated, for every scale factor; float forms are the plain operations of single precision.
 * Unsigned differences below 0 give 0. AC4 keeps the destination's fourth channel. Steps are in bytes and are
 * not tested: 0 and negative steps walk the memory as given. In place each sample is read before it is written;
 * otherwise images do not overlap.
 *
 * Statuses of C1 and AC4, in order: tpxErrNullPointer; tpxErrSize (width or height below 1); tpxOk. C3 and C4:
 * the width first, tpxErrSize.
 *
 * _L: sizes and steps of 64 bits. A call whose steps and bytes are below 2^31 - 1 in magnitude has the statuses
 * of the short form. A larger one: tpxOk for a width or height below 1, whatever the pointers;
 * tpxErrNullPointer; tpxOk. The bytes of the image are counted in 64 bits: from 2^63 on the count wraps, and
 * sizes whose wrapped count is small are taken for those of a short call, cut to 32 bits. */

TPX_API TpxStatus tpxiAdd_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                     Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                      Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                      Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAdd_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiAdd_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAdd_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiAdd_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAdd_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiAdd_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                   Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiAdd_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiAdd_8u_C1RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C1IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C3RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C3IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_C4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_AC4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                       TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiAdd_8u_AC4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C1RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C1IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C3RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C3IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_C4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_AC4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                        TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                        int scaleFactor);
TPX_API TpxStatus tpxiAdd_16u_AC4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                         TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C1RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C1IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C3RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C3IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_C4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_AC4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                        TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                        int scaleFactor);
TPX_API TpxStatus tpxiAdd_16s_AC4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                         TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiAdd_32f_C1R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiAdd_32f_C1IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiAdd_32f_C3R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiAdd_32f_C3IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiAdd_32f_C4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiAdd_32f_C4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiAdd_32f_AC4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                     TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiAdd_32f_AC4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst,
                                      TpxSizeL srcDstStep, TpxiSizeL roiSize);

TPX_API TpxStatus tpxiSub_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                     Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                      Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                      Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSub_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiSub_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSub_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiSub_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSub_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiSub_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                   Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiSub_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiSub_8u_C1RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C1IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C3RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C3IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_C4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_AC4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                       TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiSub_8u_AC4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C1RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C1IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C3RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C3IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_C4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_AC4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                        TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                        int scaleFactor);
TPX_API TpxStatus tpxiSub_16u_AC4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                         TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C1RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C1IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C3RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C3IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_C4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_AC4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                        TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                        int scaleFactor);
TPX_API TpxStatus tpxiSub_16s_AC4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                         TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiSub_32f_C1R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiSub_32f_C1IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiSub_32f_C3R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiSub_32f_C3IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiSub_32f_C4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiSub_32f_C4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiSub_32f_AC4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                     TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiSub_32f_AC4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst,
                                      TpxSizeL srcDstStep, TpxiSizeL roiSize);

TPX_API TpxStatus tpxiMul_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                    Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                     TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
                                     Tpx8u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                     Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
                                      Tpx16u* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                     Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                      TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
                                      Tpx16s* pDst, int dstStep, TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep,
                                       TpxiSize roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMul_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiMul_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMul_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiMul_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                  Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMul_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                   TpxiSize roiSize);
TPX_API TpxStatus tpxiMul_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
                                   Tpx32f* pDst, int dstStep, TpxiSize roiSize);
TPX_API TpxStatus tpxiMul_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep,
                                    TpxiSize roiSize);
TPX_API TpxStatus tpxiMul_8u_C1RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C1IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C3RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C3IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                      TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                      int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_C4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst, TpxSizeL srcDstStep,
                                       TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_AC4RSfs_L(const Tpx8u* pSrc1, TpxSizeL src1Step, const Tpx8u* pSrc2,
                                       TpxSizeL src2Step, Tpx8u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiMul_8u_AC4IRSfs_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C1RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C1IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C3RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C3IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                       TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_C4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_AC4RSfs_L(const Tpx16u* pSrc1, TpxSizeL src1Step, const Tpx16u* pSrc2,
                                        TpxSizeL src2Step, Tpx16u* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                        int scaleFactor);
TPX_API TpxStatus tpxiMul_16u_AC4IRSfs_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pSrcDst,
                                         TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C1RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C1IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C3RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C3IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                       TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                       int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_C4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                        TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_AC4RSfs_L(const Tpx16s* pSrc1, TpxSizeL src1Step, const Tpx16s* pSrc2,
                                        TpxSizeL src2Step, Tpx16s* pDst, TpxSizeL dstStep, TpxiSizeL roiSize,
                                        int scaleFactor);
TPX_API TpxStatus tpxiMul_16s_AC4IRSfs_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pSrcDst,
                                         TpxSizeL srcDstStep, TpxiSizeL roiSize, int scaleFactor);
TPX_API TpxStatus tpxiMul_32f_C1R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiMul_32f_C1IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiMul_32f_C3R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiMul_32f_C3IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiMul_32f_C4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                    TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiMul_32f_C4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst, TpxSizeL srcDstStep,
                                     TpxiSizeL roiSize);
TPX_API TpxStatus tpxiMul_32f_AC4R_L(const Tpx32f* pSrc1, TpxSizeL src1Step, const Tpx32f* pSrc2,
                                     TpxSizeL src2Step, Tpx32f* pDst, TpxSizeL dstStep, TpxiSizeL roiSize);
TPX_API TpxStatus tpxiMul_32f_AC4IR_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pSrcDst,
                                      TpxSizeL srcDstStep, TpxiSizeL roiSize);

TPX_EXTERN_C_END

#endif
