/* Geometric transforms. */
#ifndef TPXI_GEOMETRY_H
#define TPXI_GEOMETRY_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Resize plan ---------------------------------------------------------------------------------------
 * A plan (TpxiResizeSpec) holds, for one pair of source and destination sizes, where every destination
 * position lies in the source and with which weights. It serves any number of tiles of the destination, from
 * any number of threads:
 *
 *   1. tpxiResizeGetSize        bytes of the plan and of a temporary initialisation buffer
 *   2. tpxiResize<Kind>Init     fills the plan (cubic and Lanczos use the temporary buffer)
 *   3. tpxiResizeGetBufferSize  bytes of the work buffer of a tile, one for each call running at a time
 *   4. tpxiResizeGetBorderSize  pixels that a tile reads around its source rectangle
 *   5. for each tile tpxiResizeGetSrcOffset or tpxiResizeGetSrcRoi tells the source rectangle; the
 *      processing call gets a pointer to its first pixel and one to the tile's first pixel
 *
 * The caller owns plan and buffers; they may start at any address and need no release. Sizes are in pixels,
 * 0-based offsets too. Destination position i lies at c = (i + 0.5) * src / dst - 0.5 in the source; nearest
 * takes the pixel at src / dst * (i + 0.5).
 *
 * The typed calls differ only in the type they plan for; a query takes any plan of its width (short calls
 * those of short initialisers, _L calls those of _L initialisers). */

typedef struct TpxiResizeSpec TpxiResizeSpec;

/* Sizes in bytes of a plan and of its initialisation buffer. `interpolation` is a TpxInterpolationType;
 * `antialiasing` other than 0 asks for an antialiasing plan.
 *
 * Statuses, in order: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0, nothing stored);
 * tpxErrSize (below 1); tpxErrInterpolation; _L: tpxErrDataType, tpxErrSizeTooLarge (a length above
 * 0x1FFFFFFF); tpxErrUnsupportedMode (selector 0, antialiasing or another kind than linear in 64f);
 * tpxErrSize (source smaller than the kind needs: linear 2, cubic and Lanczos 4 each way, super-sampling
 * the destination's); tpxErrSizeTooLarge (short form: above 0x7FFFFFFE bytes, nothing stored);
 * tpxWarnNoAntialiasing (asked for with nearest or super-sampling; the sizes are stored); tpxOk. */
TPX_API TpxStatus tpxiResizeGetSize_8u(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                                       Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize);
TPX_API TpxStatus tpxiResizeGetSize_16u(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                                        Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize);
TPX_API TpxStatus tpxiResizeGetSize_16s(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                                        Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize);
TPX_API TpxStatus tpxiResizeGetSize_32f(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                                        Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize);
TPX_API TpxStatus tpxiResizeGetSize_64f(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                                        Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize);
TPX_API TpxStatus tpxiResizeGetSize_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                      TpxInterpolationType interpolation, Tpx32u antialiasing,
                                      TpxSizeL* pSpecSize, TpxSizeL* pInitBufSize);

/* Initialisers. Cubic takes the parameters B and C of its family of kernels (D. Mitchell, A. Netravali,
 * "Reconstruction Filters in Computer Graphics", 1988), Lanczos 2 or 3 lobes.
 *
 * Statuses of the short forms, in order: tpxErrNullPointer (plan, initialisation buffer);
 * tpxWarnNoOperation (a size of exactly 0); tpxErrSize (a size below 1, or a source smaller than the kind
 * needs: linear 2, cubic 4, Lanczos twice the lobes, super-sampling the destination's);
 * tpxErrUnsupportedMode (lobes other than 2 or 3); tpxOk.
 * The short Lanczos forms test lobes and source last, when they have begun the plan and set the thread's
 * floating-point control to flush results to zero with underflow masked: after these two errors the control
 * stays so, and the plan is partly written and serves nothing. Every other call leaves the control as it was.
 * _L forms: after tpxErrSize come tpxErrDataType and tpxErrSizeTooLarge (a length from 0x20000000 up);
 * tpxiResizeLanczosInit_L tests the lobes right after the sizes below 1, then the type, then the source. */
TPX_API TpxStatus tpxiResizeNearestInit_8u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeNearestInit_16u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeNearestInit_16s(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeNearestInit_32f(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeNearestInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                          TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeLinearInit_8u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeLinearInit_16u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeLinearInit_16s(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeLinearInit_32f(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeLinearInit_64f(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeLinearInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                         TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeCubicInit_8u(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                                         TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeCubicInit_16u(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                                          TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeCubicInit_16s(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                                          TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeCubicInit_32f(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                                          TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeCubicInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                        Tpx32f valueB, Tpx32f valueC, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeLanczosInit_8u(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes,
                                           TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeLanczosInit_16u(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes,
                                            TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeLanczosInit_16s(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes,
                                            TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeLanczosInit_32f(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes,
                                            TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeLanczosInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                          Tpx32u numLobes, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeSuperInit_8u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeSuperInit_16u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeSuperInit_16s(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeSuperInit_32f(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec);
TPX_API TpxStatus tpxiResizeSuperInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                        TpxiResizeSpec* pSpec);

/* Initialisers of antialiasing plans, whose sizes tpxiResizeGetSize tells with `antialiasing` other than 0.
 * Along an axis that is reduced, the kernel of linear, cubic or Lanczos is stretched over the source pixels
 * that a destination pixel stands for; along others it keeps its width. The weights of a position sum to 1.
 * A plan serves all sample types.
 *
 * Statuses are those of the initialisers above, with these differences: tpxErrDataType for 64f too; Lanczos of
 * 3 lobes needs a source of 4, as that of 2; its short form tests lobes and source before it writes anything,
 * and leaves the floating-point control as it was. */
TPX_API TpxStatus tpxiResizeAntialiasingLinearInit(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec,
                                                   Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeAntialiasingLinearInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                                     TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeAntialiasingCubicInit(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB,
                                                  Tpx32f valueC, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeAntialiasingCubicInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                                    Tpx32f valueB, Tpx32f valueC, TpxiResizeSpec* pSpec,
                                                    Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeAntialiasingLanczosInit(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes,
                                                    TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiResizeAntialiasingLanczosInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize,
                                                      TpxDataType dataType, Tpx32u numLobes,
                                                      TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);

/* Size in bytes of the work buffer for tiles of up to `dstSize` pixels of 1, 3 or 4 channels.
 *
 * Statuses, in order: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0); tpxErrContext (not a
 * plan of this width); tpxErrChannelCount; tpxErrSize (below 1); tpxErrSizeTooLarge (short form, from
 * 0x7FFFFFFF bytes, nothing stored); tpxWarnValueAdjusted (the tile is larger than the plan's destination;
 * the size for the part that fits is stored); tpxOk. */
TPX_API TpxStatus tpxiResizeGetBufferSize_8u(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                             int* pBufSize);
TPX_API TpxStatus tpxiResizeGetBufferSize_16u(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                              int* pBufSize);
TPX_API TpxStatus tpxiResizeGetBufferSize_16s(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                              int* pBufSize);
TPX_API TpxStatus tpxiResizeGetBufferSize_32f(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                              int* pBufSize);
TPX_API TpxStatus tpxiResizeGetBufferSize_64f(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                              int* pBufSize);
TPX_API TpxStatus tpxiResizeGetBufferSize_L(const TpxiResizeSpec* pSpec, TpxiSizeL dstSize, Tpx32u numChannels,
                                            TpxSizeL* pBufSize);

/* Pixels that a tile reads on each side of its source rectangle where the source image goes on: linear reads
 * up to one pixel beyond the rectangle that tpxiResizeGetSrcRoi tells.
 * Statuses, in order: tpxErrNullPointer; tpxErrContext; tpxOk. */
TPX_API TpxStatus tpxiResizeGetBorderSize_8u(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize);
TPX_API TpxStatus tpxiResizeGetBorderSize_16u(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize);
TPX_API TpxStatus tpxiResizeGetBorderSize_16s(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize);
TPX_API TpxStatus tpxiResizeGetBorderSize_32f(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize);
TPX_API TpxStatus tpxiResizeGetBorderSize_64f(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize);
TPX_API TpxStatus tpxiResizeGetBorderSize_L(const TpxiResizeSpec* pSpec, TpxiBorderSizeL* pBorderSize);

/* The source pixel that a processing call wants `pSrc` to point at, for a tile at `dstOffset`.
 * Statuses, in order: tpxErrNullPointer; tpxErrContext; tpxErrOutOfRange (an offset outside the
 * destination); tpxOk. */
TPX_API TpxStatus tpxiResizeGetSrcOffset_8u(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset,
                                            TpxiPoint* pSrcOffset);
TPX_API TpxStatus tpxiResizeGetSrcOffset_16u(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset,
                                             TpxiPoint* pSrcOffset);
TPX_API TpxStatus tpxiResizeGetSrcOffset_16s(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset,
                                             TpxiPoint* pSrcOffset);
TPX_API TpxStatus tpxiResizeGetSrcOffset_32f(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset,
                                             TpxiPoint* pSrcOffset);
TPX_API TpxStatus tpxiResizeGetSrcOffset_64f(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset,
                                             TpxiPoint* pSrcOffset);
TPX_API TpxStatus tpxiResizeGetSrcOffset_L(const TpxiResizeSpec* pSpec, TpxiPointL dstOffset,
                                           TpxiPointL* pSrcOffset);

/* The source rectangle of a tile. A tile past the destination's edge is trimmed first. On sides where the
 * source image goes on, linear also reads the pixel next to the rectangle (tpxiResizeGetBorderSize).
 *
 * Statuses, in order: tpxErrNullPointer; tpxErrSize (below 1); tpxErrContext; tpxErrOutOfRange (an offset
 * outside the destination); tpxWarnValueAdjusted (a tile larger than the plan's destination); tpxOk. */
TPX_API TpxStatus tpxiResizeGetSrcRoi_8u(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset,
                                         TpxiSize dstRoiSize, TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize);
TPX_API TpxStatus tpxiResizeGetSrcRoi_16u(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset,
                                          TpxiSize dstRoiSize, TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize);
TPX_API TpxStatus tpxiResizeGetSrcRoi_16s(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset,
                                          TpxiSize dstRoiSize, TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize);
TPX_API TpxStatus tpxiResizeGetSrcRoi_32f(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset,
                                          TpxiSize dstRoiSize, TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize);
TPX_API TpxStatus tpxiResizeGetSrcRoi_64f(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset,
                                          TpxiSize dstRoiSize, TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize);
TPX_API TpxStatus tpxiResizeGetSrcRoi_L(const TpxiResizeSpec* pSpec, TpxiPointL dstRoiOffset,
                                        TpxiSizeL dstRoiSize, TpxiPointL* pSrcRoiOffset,
                                        TpxiSizeL* pSrcRoiSize);

/* ---- Resize: tpxiResizeNearest, tpxiResizeLinear --------------------------------------------------------
 * Computes one tile of the destination. `pSrc` points at the source pixel that tpxiResizeGetSrcOffset gives
 * for `dstOffset`, `pDst` at the tile's first pixel; steps are in bytes. `border` is tpxBorderReplicate, with a
 * tpxBorderInMem flag for each side on which the source image goes on beyond the tile's source rectangle (by
 * the pixels that tpxiResizeGetBorderSize tells), or tpxBorderInMemAll. With truthful flags any tiling gives
 * the same pixels as one call for the whole image. `pBorderValue` is not read and may be null.
 *
 * Linear blends along rows first, then between rows. 8u: weights of 14 bits, the row blend rounded to 6
 * fraction bits, the result rounded to nearest with halves up; in the rows and columns next to a side
 * without the flag there is one blend u alone, rounded as (u + 8192 + ((u >> 14) & 1)) >> 14. 16u, 16s: single
 * precision, converted with the thread's rounding mode and saturated. 32f, 64f: no rounding beyond the
 * arithmetic's.
 *
 * Statuses, in order: tpxErrBorder (linear); tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0);
 * tpxErrContext (not a plan of this width; 64f: a plan of another type; _L: a plan of 64f given to another
 * type. The short calls of other types do not look at the plan's type and take it); tpxErrSize (below 1);
 * tpxErrStep (a step that is not a whole number of samples); tpxErrOutOfRange (an offset outside the
 * destination); tpxErrUnsupportedMode (an antialiasing plan); tpxErrContext (a plan of another kind);
 * tpxWarnValueAdjusted (a tile larger than the plan's destination: the part that fits is done); tpxOk. */
TPX_API TpxStatus tpxiResizeNearest_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                            TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                             TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                             TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                             TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeNearest_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                              TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                              const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                          const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx64f* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_64f_C3R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx64f* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_64f_C4R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                           TpxiPoint dstOffset, TpxiSize dstSize, TpxBorderType border,
                                           const Tpx64f* pBorderValue, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                            TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                            const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                            TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                            const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                            TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                                            const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec,
                                            Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx16u* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx16u* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx16u* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx16s* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx16s* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx16s* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx32f* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx32f* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx32f* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_64f_C1R_L(const Tpx64f* pSrc, TpxSizeL srcStep, Tpx64f* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx64f* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_64f_C3R_L(const Tpx64f* pSrc, TpxSizeL srcStep, Tpx64f* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx64f* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeLinear_64f_C4R_L(const Tpx64f* pSrc, TpxSizeL srcStep, Tpx64f* pDst,
                                             TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                             TpxBorderType border, const Tpx64f* pBorderValue,
                                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);

/* ---- Resize: tpxiResizeSuper -----------------------------------------------------------------------------
 * Computes one tile of the destination as tpxiResizeNearest does: every destination pixel is the mean of the
 * source pixels that it covers, weighted by how much of each it covers. The source is at least as large as the
 * destination, each way. Nothing outside the source rectangle that tpxiResizeGetSrcRoi tells is read, and any
 * tiling gives the same bytes as one call for the whole image. Sums are in single precision: each row along x
 * from the left, then the rows from the top; their product with the one factor of the plan is converted with
 * the thread's rounding mode and saturated (32f: stored as it is). Equal sizes copy.
 *
 * Statuses, in order: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0); tpxErrContext (not a plan of
 * this width; _L: a plan of 64f); tpxErrSize (below 1); tpxErrStep (a step that is not a whole number of
 * samples); tpxErrOutOfRange (an offset outside the destination); tpxErrUnsupportedMode (an antialiasing plan);
 * tpxErrContext (a plan of another kind); tpxWarnValueAdjusted (a tile larger than the plan's destination: the
 * part that fits is done); tpxOk. */
TPX_API TpxStatus tpxiResizeSuper_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                         Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                          TpxiPoint dstOffset, TpxiSize dstSize, const TpxiResizeSpec* pSpec,
                                          Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                           TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                           TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                                           TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                           Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiResizeSuper_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst,
                                            TpxSizeL dstStep, TpxiPointL dstOffset, TpxiSizeL dstSize,
                                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);

TPX_EXTERN_C_END

#endif
