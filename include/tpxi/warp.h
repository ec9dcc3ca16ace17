/* Warps: an image mapped through an affine or a perspective transform. */
#ifndef TPXI_WARP_H
#define TPXI_WARP_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- The protocol of warps -----------------------------------------------------------------------------
 * A plan (TpxiWarpSpec) holds the transform and, for each row of the destination, which of its pixels the
 * source covers. It serves any number of tiles of the destination, from any number of threads:
 *
 *   1. tpxiWarpAffineGetSize       bytes of the plan and of a temporary initialisation buffer
 *   2. tpxiWarpAffine<Kind>Init    fills the plan
 *   3. tpxiWarpGetBufferSize       bytes of the work buffer of a tile, one for each call running at a time
 *   4. tpxiWarpAffine<Kind>_...    for each tile: pSrc is the first pixel of the source image, pDst that of the
 *                                  tile, which lies at dstRoiOffset in the destination
 *
 * The caller owns plan and buffers. They may start at any address; a plan is used where it was initialised, and
 * is not moved. Tiles give the same bytes as one call.
 *
 * coeffs: x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12, where whole numbers are centres of pixels.
 * direction 0: it maps the source to the destination; 1: the destination to the source. Either way a
 * destination pixel takes its value from its position in the source, which is computed in double precision
 * with its fractions as they are. Positions of axis-aligned maps by powers of two, and of whole shifts and
 * quarter turns, are exact, and so is what lies there.
 *
 * Interpolations:
 *   nearest  the pixel at (floor(x' + 0.5), floor(y' + 0.5))
 *   linear   of the 2 by 2 pixels around the position: with fractions fx, fy a = p00 + (p10 - p00) fy,
 *            b = p01 + (p11 - p01) fy (the first index is the row), then a + (b - a) fx
 *   cubic    of the 4 by 4 pixels around it, by the kernels with parameters B and C of D. Mitchell and
 *            A. Netravali, "Reconstruction Filters in Computer Graphics", 1988. The weight of the pixel at -1,
 *            0, 1 or 2 from the one below the position is
 *              -1: (-B/6 - C) f^3 + (B/2 + 2C) f^2 - (B/2 + C) f + B/6
 *               0: (2 - 1.5B - C) f^3 + (2B + C - 3) f^2 + 1 - B/3
 *               1: -(2 - 1.5B - C) f^3 + (3 - 2.5B - 2C) f^2 + (B/2 + C) f + B/6
 *               2: (B/6 + C) f^3 - C f^2
 * Fractions, weights and blends are in single precision (64f: double). Integers are rounded with the thread's
 * rounding mode and saturated. Cubic calls flush results too small for a normal number to zero, and leave the
 * thread's setting as it was.
 *
 * border: what becomes of destination pixels whose position lies outside the source, that is, outside
 * 0 to width - 1 and 0 to height - 1 (within rounding):
 *   tpxBorderTransparent, tpxBorderInMemAll   they stay as they were
 *   tpxBorderReplicate   taps outside take the nearest pixel of the source
 *   tpxBorderConstant    taps outside are the pixel of pBorderValue, numChannels doubles that are rounded and
 *                        saturated to the type; pixels within half a pixel of the source are the source's in
 *                        nearest
 * Positions inside have cubic taps as far as one pixel outside. Those are read from memory on the sides with an
 * in-memory flag (tpxBorderTransparent with flags; tpxBorderInMemAll has all), and are the nearest pixel of the
 * source elsewhere. With replicate and constant borders the flags change nothing.
 *
 * smoothEdge 1 (transparent and in-memory borders): destination pixels outside, less than one pixel from the
 * edge of the mapped source, are blended with the destination's old value d: d + (s - d) w, s being the value
 * at the edge and w falling from 1 at the edge to 0 a destination pixel away from it (the product of both
 * axes' where a corner is passed). */

typedef struct TpxiWarpSpec TpxiWarpSpec;

/* The rectangle that stands for a whole source: x = y = -1073741824, width = height = 2147483647. */
TPX_API TpxiRect tpxiWarpGetRectInfinite(void);

/* Bytes of the work buffer for a tile of so many pixels, for any plan.
 *
 * Statuses, in order: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0, nothing stored);
 * tpxErrContext (no plan of a warp); tpxErrSize (below 1); tpxErrSizeTooLarge (more than 31 bits, nothing
 * stored); tpxWarnValueAdjusted (the tile is larger than the destination; the size is stored); tpxOk. */
TPX_API TpxStatus tpxiWarpGetBufferSize(const TpxiWarpSpec* pSpec, TpxiSize dstSize, int* pBufSize);

/* ---- Plans of affine warps -----------------------------------------------------------------------------
 * Sizes in bytes of a plan and of its initialisation buffer.
 *
 * Statuses, in order: tpxErrBorder; tpxErrNullPointer; tpxErrSize (below 1); tpxErrDataType;
 * tpxErrInterpolation (not nearest, linear or cubic); tpxErrWarpDirection; tpxErrCoefficient (rows linearly
 * dependent to 1e-10, or not finite); tpxErrSize (a source of one row or column, or of more rows than memory
 * has room for: 2^30 of 8u, 2^29 of 16 bits, 2^28 of 32f, 2^27 of 64f); tpxErrCoefficient (the mapped source is
 * no quadrangle in double precision); tpxErrSize (a plan of more than 31 bits); tpxOk. */
TPX_API TpxStatus tpxiWarpAffineGetSize(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType,
                                        const Tpx64f coeffs[2][3], TpxInterpolationType interpolation,
                                        int direction, TpxBorderType border, int* pSpecSize, int* pInitBufSize);

/* Initialisers. pBorderValue is read for tpxBorderConstant alone.
 *
 * Statuses, in order: tpxErrBorder; tpxErrNullPointer (plan, coefficients, the initialisation buffer of cubic);
 * tpxErrSize (below 1); tpxErrDataType; tpxErrWarpDirection; tpxErrCoefficient; tpxErrNullPointer (no border
 * value for a constant border); tpxErrChannelCount (not 1, 3 or 4); tpxErrUnsupportedMode (smoothEdge with a
 * replicate or constant border); tpxErrSize (a source of one row or column); tpxErrCoefficient (as above);
 * tpxWarnNoQuadOverlap (the mapped source misses the destination and the border leaves pixels as they were;
 * every processing call returns the same and writes nothing); tpxOk. */
TPX_API TpxStatus tpxiWarpAffineNearestInit(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType,
                                            const Tpx64f coeffs[2][3], int direction, int numChannels,
                                            TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
                                            TpxiWarpSpec* pSpec);
TPX_API TpxStatus tpxiWarpAffineLinearInit(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType,
                                           const Tpx64f coeffs[2][3], int direction, int numChannels,
                                           TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
                                           TpxiWarpSpec* pSpec);
TPX_API TpxStatus tpxiWarpAffineCubicInit(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType,
                                          const Tpx64f coeffs[2][3], int direction, int numChannels,
                                          Tpx64f valueB, Tpx64f valueC, TpxBorderType border,
                                          const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec,
                                          Tpx8u* pInitBuf);

/* ---- Processing ----------------------------------------------------------------------------------------
 * Source and destination do not overlap. Tiles are cut to the destination.
 *
 * Statuses, in order: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0 and none below); tpxErrContext
 * (a plan for another type, interpolation or number of channels); tpxErrSize (below 1); tpxErrStep (not a whole
 * number of samples); tpxErrOutOfRange (an offset outside the destination); the plan's tpxWarnNoQuadOverlap,
 * with nothing written; tpxErrBorder; tpxWarnNoQuadOverlap (no pixel of the tile takes anything from the
 * source, as none lies in it, or with a constant border near enough to it; constant borders are written all the
 * same); tpxWarnValueAdjusted (the tile was cut); tpxOk. */
TPX_API TpxStatus tpxiWarpAffineNearest_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_64f_C3R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineNearest_64f_C4R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_64f_C3R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineLinear_64f_C4R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                               TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                               const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                             const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                             const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                             TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                             const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_64f_C3R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpAffineCubic_64f_C4R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                              TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                              const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);

/* ---- Perspective warps ---------------------------------------------------------------------------------
 * As affine warps, by the same protocol and rules, with coefficients of 3 by 3:
 *
 *   x' = (c00 x + c01 y + c02) / d    y' = (c10 x + c11 y + c12) / d    d = c20 x + c21 y + c22
 *
 * Any multiple of the coefficients is the same map. Quotients are products with 1 / d in double precision; if
 * c20 and c21 are 0 and c22 is a power of two, positions are those of an affine warp.
 *
 * Horizon: the line d = 0, where the map goes to infinity. Its valid side is the one with the origin of the
 * coordinates that coeffs are applied to; or the other one, if the whole of the mapped source lies there. The
 * part of the source that lands there is written; pixels beyond the horizon stay as they were, whatever the
 * border, but that a constant border fills them as all others outside.
 *
 * srcRoi: the rectangle of the source that there is, or that of tpxiWarpGetRectInfinite for all of it. pSrc is
 * the source's first pixel either way. With a rectangle, the border becomes tpxBorderTransparent, with the
 * sides in memory that were given: pixels outside the rectangle's image stay as they were, and the rectangle's
 * edges are treated as those of an image. A rectangle may run past the source's end; the part inside is used.
 *
 * Plans of affine maps (tpxiWarpAffine...Init, and tpxiWarpQuad...Init of two parallelograms) may be given to
 * the processing calls of perspective warps too.
 *
 * Statuses of tpxiWarpPerspectiveGetSize, in order: tpxErrBorder; tpxErrNullPointer (coefficients or a result);
 * tpxErrSize (below 1); tpxErrRect (a rectangle that begins outside the source, or of a size below 1);
 * tpxErrDataType (not 8u, 16u, 16s or 32f); tpxErrInterpolation; tpxErrWarpDirection; tpxErrSize (a source of
 * one row or column); tpxErrCoefficient (not finite; the affine part singular to 1e-10 with no divisor that
 * makes up for it; c22 of 1e-200 or less); tpxErrSize (a source too high, as above); tpxErrCoefficient (the
 * mapped source is no quadrangle in double precision, as for a rectangle of one row or column); tpxErrSize (a
 * plan of more than 31 bits); tpxOk.
 *
 * Of the initialisers: tpxErrBorder; tpxErrNullPointer (plan, coefficients, the initialisation buffer of
 * cubic); tpxErrSize; tpxErrRect; tpxErrDataType; tpxErrWarpDirection; tpxErrNullPointer (no border value for a
 * constant border); tpxErrChannelCount; tpxErrUnsupportedMode (smoothEdge with a replicate or constant border,
 * be there a rectangle or not); tpxErrSize (a source of one row or column); tpxErrCoefficient;
 * tpxWarnNoQuadOverlap (as for affine plans); tpxWarnValueAdjusted (the rectangle was cut; the plan is
 * complete); tpxOk. */
TPX_API TpxStatus tpxiWarpPerspectiveGetSize(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize,
                                             TpxDataType dataType, const Tpx64f coeffs[3][3],
                                             TpxInterpolationType interpolation, int direction,
                                             TpxBorderType border, int* pSpecSize, int* pInitBufSize);
TPX_API TpxStatus tpxiWarpPerspectiveNearestInit(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize,
                                                 TpxDataType dataType, const Tpx64f coeffs[3][3], int direction,
                                                 int numChannels, TpxBorderType border,
                                                 const Tpx64f* pBorderValue, int smoothEdge,
                                                 TpxiWarpSpec* pSpec, Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiWarpPerspectiveLinearInit(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize,
                                                TpxDataType dataType, const Tpx64f coeffs[3][3], int direction,
                                                int numChannels, TpxBorderType border,
                                                const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec,
                                                Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiWarpPerspectiveCubicInit(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize,
                                               TpxDataType dataType, const Tpx64f coeffs[3][3], int direction,
                                               int numChannels, Tpx64f valueB, Tpx64f valueC,
                                               TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
                                               TpxiWarpSpec* pSpec, Tpx8u* pInitBuf);

/* Processing: as tpxiWarpAffine, with the same statuses. */
TPX_API TpxStatus tpxiWarpPerspectiveNearest_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveNearest_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveLinear_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                    const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                  const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                  const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                  const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);
TPX_API TpxStatus tpxiWarpPerspectiveCubic_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                                   TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                                                   const TpxiWarpSpec* pSpec, Tpx8u* pBuffer);

/* ---- Plans of warps between quadrangles ----------------------------------------------------------------
 * A plan that takes the quadrangle srcQuad of the source to dstQuad of the destination, corner by corner, and
 * no pixel outside dstQuad or outside the rectangle dstRoi. Quadrangles are given by their corners in order,
 * either way round, in the coordinates of the images; they must be convex with no three corners on a line, and
 * may reach beyond the rectangles. srcRoi is a rectangle of the source as for perspective warps. dstRoi lies in
 * the destination, whose size counts as that up to its last pixel; tiles lie at dstRoiOffset from the
 * destination's first pixel, as ever. Processing is by tpxiWarpPerspective, and for plans of affine maps by
 * tpxiWarpAffine too.
 *
 * transform 1: the perspective map by the four corners, which is affine if both are parallelograms (to 1e-10).
 * transform 0: the affine map by the first three corners.
 *
 * Borders as for perspective warps: with tpxBorderReplicate and tpxBorderConstant (and all of the source)
 * pixels in dstQuad and dstRoi whose position lies outside the source take what the border says. All pixels out
 * of dstQuad stay as they were; a constant border fills those of the tile. Smooth edges are those of the source
 * and of dstQuad, and lie in dstRoi's columns and rows from its first ones on.
 *
 * Statuses of tpxiWarpQuadGetSize, in order: tpxErrBorder; tpxErrNullPointer (a quadrangle or a result);
 * tpxErrSize (a source below 1); tpxErrRect (srcRoi as for perspective warps; dstRoi of a negative origin, a
 * size below 1, or an end beyond 31 bits); tpxErrDataType (not 8u, 16u, 16s or 32f); tpxErrInterpolation;
 * tpxErrWarpTransform (transform neither 0 nor 1); tpxErrSize (a source of one row or column, or too high);
 * tpxErrRect (one row or column of the source); tpxErrQuad; tpxErrSize (a plan of more than 31 bits); tpxOk.
 *
 * Of the initialisers: tpxErrBorder; tpxErrNullPointer (plan, quadrangles, the initialisation buffer of cubic);
 * tpxErrSize; tpxErrRect; tpxErrDataType; tpxErrWarpTransform; tpxErrNullPointer (no border value for a
 * constant border); tpxErrChannelCount; tpxErrUnsupportedMode (smoothEdge with a replicate or constant border);
 * tpxErrSize (a source of one row or column); tpxErrRect; tpxErrQuad; tpxErrWarpTransform (the map's
 * coefficients are not finite); tpxWarnNoQuadOverlap (no pixel is touched, and the border leaves pixels as they
 * were); tpxWarnNotParallelogram (transform 0 of other quadrangles; the plan is complete); tpxWarnValueAdjusted
 * (srcRoi was cut; the plan is complete); tpxOk. */
TPX_API TpxStatus tpxiWarpQuadGetSize(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2],
                                      TpxiRect dstRoi, const Tpx64f dstQuad[4][2], int transform,
                                      TpxDataType dataType, TpxInterpolationType interpolation,
                                      TpxBorderType border, int* pSpecSize, int* pInitBufSize);
TPX_API TpxStatus tpxiWarpQuadNearestInit(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2],
                                          TpxiRect dstRoi, const Tpx64f dstQuad[4][2], int transform,
                                          TpxDataType dataType, int numChannels, TpxBorderType border,
                                          const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec,
                                          Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiWarpQuadLinearInit(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2],
                                         TpxiRect dstRoi, const Tpx64f dstQuad[4][2], int transform,
                                         TpxDataType dataType, int numChannels, TpxBorderType border,
                                         const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec,
                                         Tpx8u* pInitBuf);
TPX_API TpxStatus tpxiWarpQuadCubicInit(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2],
                                        TpxiRect dstRoi, const Tpx64f dstQuad[4][2], int transform,
                                        TpxDataType dataType, int numChannels, Tpx64f valueB, Tpx64f valueC,
                                        TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
                                        TpxiWarpSpec* pSpec, Tpx8u* pInitBuf);

TPX_EXTERN_C_END

#endif
