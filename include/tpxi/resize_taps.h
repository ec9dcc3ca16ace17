/* Resizing with longer kernels: cubic, Lanczos and antialiasing. */
#ifndef TPXI_RESIZE_TAPS_H
#define TPXI_RESIZE_TAPS_H

#include "geometry.h"

TPX_EXTERN_C_BEGIN

/* ---- Resize: tpxiResizeCubic, tpxiResizeLanczos, tpxiResizeAntialiasing -----------------------------------
 * A destination pixel is a sum of source pixels weighted along x, 4 of them for cubic and for Lanczos of 2
 * lobes, 6 for Lanczos of 3 lobes, and such sums weighted along y. An antialiasing plan stretches its kernel
 * (linear, cubic or Lanczos) along an axis that becomes shorter, so that every source pixel has its part, and
 * takes twice plan.lobes pixels (tpxiResizeGetBorderSize tells the lobes). All is computed in single precision
 * in the order of the pixels, from the left and from the top; integers are rounded once, at the end, with the
 * thread's rounding mode (as a rule to nearest, ties to even), and saturated: these kernels overshoot at edges.
 * Lanczos and antialiasing keep constant images constant; cubic does for the usual values of B and C.
 *
 * A call fills the tile of dstSize pixels at dstOffset of the destination. pSrc points at the source pixel that
 * tpxiResizeGetSrcOffset tells, pDst at the tile's first pixel; steps are in bytes. border: tpxBorderReplicate,
 * where pixels outside the source are those of its edge, with flags for the sides on which the source goes on
 * in memory and is read there, or tpxBorderInMemAll. A tile away from the plan's edges reads its neighbourhood
 * whatever the border says. pBorderValue is not read. pBuffer holds what tpxiResizeGetBufferSize tells for the
 * tile; its address is free. Tiles may be computed in any order by any number of threads, each with its own
 * buffer, and give the same bytes as one call. A tile past the destination's edge is trimmed.
 *
 * Statuses, in order: tpxErrBorder; tpxErrNullPointer (pSrc, pDst, pSpec, pBuffer); tpxWarnNoOperation (a
 * length of 0); tpxErrContext (a plan of the other width of calls; _L forms: or of 64f); tpxErrSize;
 * tpxErrStep (steps of 16u, 16s and 32f are whole samples); tpxErrOutOfRange (the offset);
 * tpxErrUnsupportedMode (an antialiasing plan for tpxiResizeCubic or tpxiResizeLanczos, another plan for
 * tpxiResizeAntialiasing); tpxErrContext (a plan of another kind); tpxWarnValueAdjusted (the tile was larger
 * than the destination); tpxOk. */

TPX_API TpxStatus tpxiResizeCubic_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                         const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                         const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                         const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                           TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                           const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                           TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                           const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                           TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                           const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx16u* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx16u* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx16u* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx16s* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx16s* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx16s* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx32f* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx32f* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeCubic_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            TpxBorderType border, const Tpx32f* pBorderValue,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);

TPX_API TpxStatus tpxiResizeLanczos_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                            const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                             TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                             const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                             Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                             TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                             const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                             Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                             TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                             const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                             Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx16u* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx16u* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx16u* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx16s* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx16s* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx16s* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx32f* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx32f* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLanczos_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              TpxBorderType border, const Tpx32f* pBorderValue,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);

TPX_API TpxStatus tpxiResizeAntialiasing_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                                Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                                Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                                Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                 TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                                 const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                                 Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst,
                                                  TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                  TpxBorderType border, const Tpx8u* pBorderValue,
                                                  const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst,
                                                  TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                  TpxBorderType border, const Tpx8u* pBorderValue,
                                                  const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst,
                                                  TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                  TpxBorderType border, const Tpx8u* pBorderValue,
                                                  const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx16u* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx16u* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx16u* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx16s* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx16s* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx16s* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx32f* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx32f* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeAntialiasing_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                                   TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                                   TpxBorderType border, const Tpx32f* pBorderValue,
                                                   const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);

TPX_EXTERN_C_END

#endif
