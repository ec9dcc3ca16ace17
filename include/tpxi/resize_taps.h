/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Resizing with longer kernels: cubic, Lanczos and antialiasing. */
#ifndef TPXI_RESIZE_TAPS_H
#define TPXI_RESIZE_TAPS_H

#include "geometry.h"

TPX_EXTERN_C_BEGIN

/** @name Resize by longer kernels: tpxiResizeCubic, tpxiResizeLanczos, tpxiResizeAntialiasing
 * @{ */

/**
 * Computes one tile of a resized image, by the plan that an initialiser made (TpxiResizeSpec tells the
 * steps). A destination pixel is a sum of source pixels weighted along x, 4 of them for cubic and for Lanczos
 * of 2 lobes, 6 for Lanczos of 3 lobes, and such sums weighted along y. An antialiasing plan stretches its
 * kernel (linear, cubic or Lanczos) along an axis that becomes shorter, so that every source pixel has its
 * part, and takes twice plan.lobes pixels, where tpxiResizeGetBorderSize tells the lobes.
 *
 * All is computed in single precision in the order of the pixels, from the left and from the top; integers
 * are rounded once, at the end, with the thread's rounding mode (as a rule to nearest, ties to even), and
 * saturated: these kernels overshoot at edges. Lanczos and antialiasing keep constant images constant; cubic
 * does for the usual values of B and C.
 *
 * A tile away from the plan's edges reads its neighbourhood whatever the border says. Tiles may be computed
 * in any order by any number of threads, each with its own buffer, and give the same bytes as one call. A
 * tile past the destination's edge is trimmed. _L: sizes, steps and offsets of 64 bits.
 *
 * @code
 * TpxiSize src = {640, 480}, dst = {200, 150};
 * TpxiPoint origin = {0, 0};
 * int specSize = 0, initSize = 0, bufferSize = 0, srcStep = 0, dstStep = 0;
 * TpxStatus status = tpxiResizeGetSize_8u(src, dst, tpxInterpolationLanczos, 1, &specSize, &initSize);
 * TpxiResizeSpec* plan = malloc((size_t)specSize);
 * Tpx8u* initBuffer = malloc((size_t)initSize);
 * if (!status) status = tpxiResizeAntialiasingLanczosInit(src, dst, 3, plan, initBuffer);
 * free(initBuffer);
 * if (!status) status = tpxiResizeGetBufferSize_8u(plan, dst, 3, &bufferSize);
 * Tpx8u* buffer = malloc((size_t)bufferSize);
 * Tpx8u* image = tpxiMalloc_8u_C3(src.width, src.height, &srcStep);
 * Tpx8u* reduced = tpxiMalloc_8u_C3(dst.width, dst.height, &dstStep);
 * const Tpx8u colour[3] = {200, 100, 50};
 * tpxiSet_8u_C3R(colour, image, srcStep, src);
 * if (!status) status = tpxiResizeAntialiasing_8u_C3R(image, srcStep, reduced, dstStep, origin, dst,
 *                                                     tpxBorderReplicate, 0, plan, buffer);
 * tpxiFree(reduced);
 * tpxiFree(image);
 * free(buffer);
 * free(plan);
 * @endcode
 *
 * @param pSrc         source pixel that tpxiResizeGetSrcOffset tells for dstOffset
 * @param srcStep      bytes from one row of the source to the next
 * @param pDst         first pixel of the tile
 * @param dstStep      bytes from one row of the destination to the next
 * @param dstOffset    place of the tile in the destination, in pixels
 * @param dstSize      width and height of the tile in pixels
 * @param border       tpxBorderReplicate, where pixels outside the source are those of its edge, with flags
 *     for the sides on which the source goes on in memory and is read there, or tpxBorderInMemAll
 * @param pBorderValue not read; may be null
 * @param pSpec        the plan
 * @param pBuffer      work buffer of the bytes that tpxiResizeGetBufferSize tells for the tile, at any
 *     address
 * @return The first of these that applies: tpxErrBorder; tpxErrNullPointer (pSrc, pDst, pSpec, pBuffer);
 *     tpxWarnNoOperation (a length of 0; nothing is written); tpxErrContext (a plan of the other width of
 *     calls; _L forms: or of 64f); tpxErrSize (below 1); tpxErrStep (steps of 16u, 16s and 32f are whole
 *     samples); tpxErrOutOfRange (the offset); tpxErrUnsupportedMode (an antialiasing plan for
 *     tpxiResizeCubic or tpxiResizeLanczos, another plan for tpxiResizeAntialiasing); tpxErrContext (a plan
 *     of another kind); tpxWarnValueAdjusted (the tile was larger than the destination; the part that fits is
 *     done); tpxOk.
 */
TPX_API TpxStatus
    tpxiResizeCubic_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                           TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                           const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                           TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                           const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                           TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                           const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                             TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                             const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                             TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                             const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                             TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                             const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeCubic_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),

    tpxiResizeLanczos_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLanczos_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),

    tpxiResizeAntialiasing_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                                  TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                                  const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                                  TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                                  const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                                  TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                                  const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                   TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                   const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                    TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                    const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                    TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                    const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                    TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                    const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeAntialiasing_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                     TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                     const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);

/** @} */

TPX_EXTERN_C_END

#endif
