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

TPX_EXTERN_C_END

#endif
