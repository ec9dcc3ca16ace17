/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Warps: an image mapped through an affine or a perspective transform. */
#ifndef TPXI_WARP_H
#define TPXI_WARP_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/**
 * A plan of a warp: the transform and, for each row of the destination, which of its pixels the source
 * covers. It serves any number of tiles of the destination, from any number of threads:
 *
 * 1. tpxiWarpAffineGetSize tells the bytes of the plan and of a temporary initialisation buffer.
 * 2. tpxiWarpAffineLinearInit and its like fill the plan.
 * 3. tpxiWarpGetBufferSize tells the bytes of the work buffer of a tile, one for each call running at a time.
 * 4. tpxiWarpAffineLinear_8u_C1R and its like do each tile: pSrc is the first pixel of the source image, pDst
 *    that of the tile, which lies at dstRoiOffset in the destination.
 *
 * The caller owns plan and buffers. They may start at any address; a plan is used where it was initialised,
 * and is not moved. Tiles give the same bytes as one call. Perspective warps and those between quadrangles go
 * the same way.
 *
 * coeffs: x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12, where whole numbers are centres of pixels.
 * direction 0: it maps the source to the destination; 1: the destination to the source. Either way a
 * destination pixel takes its value from its position in the source, which is computed in double precision
 * with its fractions as they are. Positions of axis-aligned maps by powers of two, and of whole shifts and
 * quarter turns, are exact, and so is what lies there.
 *
 * Interpolations:
 * - nearest: the pixel at (floor(x' + 0.5), floor(y' + 0.5))
 * - linear: of the 2 by 2 pixels around the position: with fractions fx, fy `a = p00 + (p10 - p00) fy`,
 *   `b = p01 + (p11 - p01) fy` (the first index is the row), then `a + (b - a) fx`
 * - cubic: of the 4 by 4 pixels around it, by the kernels with parameters B and C of D. Mitchell and A.
 *   Netravali, "Reconstruction Filters in Computer Graphics", 1988. Of the pixels at -1, 0, 1 and 2 from the
 *   one below the position, the weights are `(-B/6 - C) f^3 + (B/2 + 2C) f^2 - (B/2 + C) f + B/6`,
 *   `(2 - 1.5B - C) f^3 + (2B + C - 3) f^2 + 1 - B/3`, `-(2 - 1.5B - C) f^3 + (3 - 2.5B - 2C) f^2 + (B/2 + C)
 *   f + B/6`, `(B/6 + C) f^3 - C f^2`
 *
 * Fractions, weights and blends are in single precision (64f: double). Integers are rounded with the thread's
 * rounding mode and saturated. Cubic calls flush results too small for a normal number to zero, and leave the
 * thread's setting as it was.
 *
 * border: what becomes of destination pixels whose position lies outside the source, that is, outside 0 to
 * width - 1 and 0 to height - 1 (within rounding):
 * - tpxBorderTransparent, tpxBorderInMemAll: they stay as they were
 * - tpxBorderReplicate: taps outside take the nearest pixel of the source
 * - tpxBorderConstant: taps outside are the pixel of pBorderValue, numChannels doubles that are rounded and
 *   saturated to the type; pixels within half a pixel of the source are the source's in nearest
 *
 * Positions inside have cubic taps as far as one pixel outside. Those are read from memory on the sides with
 * an in-memory flag (tpxBorderTransparent with flags; tpxBorderInMemAll has all), and are the nearest pixel
 * of the source elsewhere. With replicate and constant borders the flags change nothing.
 *
 * smoothEdge 1 (transparent and in-memory borders): destination pixels outside, less than one pixel from the
 * edge of the mapped source, are blended with the destination's old value d: d + (s - d) w, s being the value
 * at the edge and w falling from 1 at the edge to 0 a destination pixel away from it (the product of both
 * axes' where a corner is passed).
 *
 * @code
 * TpxiSize size = {640, 480};
 * TpxiPoint origin = {0, 0};
 * Tpx64f coeffs[2][3], xShift, yShift;
 * const Tpx64f black[1] = {0};
 * int specSize = 0, initSize = 0, bufferSize = 0, step = 0;
 * TpxStatus status = tpxiGetRotateShift(320, 240, 30, &xShift, &yShift); // 30 degrees around the centre
 * if (!status) status = tpxiGetRotateTransform(30, xShift, yShift, coeffs);
 * const Tpx64f(*map)[3] = (const Tpx64f(*)[3])coeffs; // the cast is needed before C23
 * if (!status) status = tpxiWarpAffineGetSize(size, size, tpxDataType8u, map, tpxInterpolationLinear, 0,
 *                                             tpxBorderConstant, &specSize, &initSize);
 * TpxiWarpSpec* plan = malloc((size_t)specSize);
 * if (!status) status = tpxiWarpAffineLinearInit(size, size, tpxDataType8u, map, 0, 1, tpxBorderConstant,
 *                                                black, 0, plan);
 * if (!status) status = tpxiWarpGetBufferSize(plan, size, &bufferSize);
 * Tpx8u* buffer = malloc((size_t)bufferSize);
 * Tpx8u* image = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * Tpx8u* turned = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * tpxiSet_8u_C1R(100, image, step, size);
 * if (!status) status = tpxiWarpAffineLinear_8u_C1R(image, step, turned, step, origin, size, plan, buffer);
 * tpxiFree(turned);
 * tpxiFree(image);
 * free(buffer);
 * free(plan);
 * @endcode
 */
typedef struct TpxiWarpSpec TpxiWarpSpec;

/** @name Whole source: tpxiWarpGetRectInfinite
 * @{ */

/**
 * Gives the rectangle that stands for a whole source of a perspective or quadrangle warp.
 * @return the rectangle: x = y = -1073741824, width = height = 2147483647
 */
TPX_API TpxiRect tpxiWarpGetRectInfinite(void);

/** @} */

/** @name Work buffer of a warp's tile: tpxiWarpGetBufferSize
 * @{ */

/**
 * Tells the bytes of the work buffer for tiles of a warp, for any plan; TpxiWarpSpec has an example.
 *
 * @param pSpec    the plan
 * @param dstSize  width and height of the largest tile in pixels
 * @param pBufSize takes the size in bytes
 * @return The first of these that applies: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0;
 *     nothing is stored); tpxErrContext (no plan of a warp); tpxErrSize (below 1); tpxErrSizeTooLarge (more
 *     than 31 bits; nothing is stored); tpxWarnValueAdjusted (the tile is larger than the destination; the
 *     size is stored); tpxOk.
 */
TPX_API TpxStatus tpxiWarpGetBufferSize(const TpxiWarpSpec* pSpec, TpxiSize dstSize, int* pBufSize);

/** @} */

/** @name Affine warp plan, sizes: tpxiWarpAffineGetSize
 * @{ */

/**
 * Tells the bytes of a plan of an affine warp and of its initialisation buffer; TpxiWarpSpec has an example.
 *
 * @param srcSize       width and height of the source in pixels
 * @param dstSize       width and height of the destination in pixels
 * @param dataType      type of the samples: 8u, 16u, 16s, 32f or 64f
 * @param coeffs        the map: x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12
 * @param interpolation tpxInterpolationNearest, Linear or Cubic
 * @param direction     0: coeffs map the source to the destination; 1: the destination to the source
 * @param border        border word, as of the initialiser
 * @param pSpecSize     takes the bytes of the plan
 * @param pInitBufSize  takes the bytes of the initialisation buffer
 * @return The first of these that applies: tpxErrBorder; tpxErrNullPointer; tpxErrSize (below 1);
 *     tpxErrDataType; tpxErrInterpolation; tpxErrWarpDirection; tpxErrCoefficient (rows linearly dependent to
 *     1e-10, or not finite); tpxErrSize (a source of one row or column, or of more rows than memory has room
 *     for: 2^30 of 8u, 2^29 of 16 bits, 2^28 of 32f, 2^27 of 64f); tpxErrCoefficient (the mapped source is no
 *     quadrangle in double precision); tpxErrSize (a plan of more than 31 bits); tpxOk.
 */
TPX_API TpxStatus tpxiWarpAffineGetSize(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType,
                                        const Tpx64f coeffs[2][3], TpxInterpolationType interpolation,
                                        int direction, TpxBorderType border, int* pSpecSize, int* pInitBufSize);

/** @} */

/** @name Affine warp plan, initialisers: tpxiWarpAffine...Init of Nearest, Linear, Cubic
 * @{ */

/**
 * Makes the plan of an affine warp by the nearest pixel, linear or cubic interpolation; TpxiWarpSpec tells
 * what borders and smooth edges do, and has an example.
 *
 * @param srcSize      width and height of the source in pixels
 * @param dstSize      width and height of the destination in pixels
 * @param dataType     type of the samples: 8u, 16u, 16s, 32f or 64f
 * @param coeffs       the map: x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12
 * @param direction    0: coeffs map the source to the destination; 1: the destination to the source
 * @param numChannels  number of channels: 1, 3 or 4
 * @param border       tpxBorderTransparent (with flags for sides in memory), tpxBorderInMemAll,
 *     tpxBorderReplicate or tpxBorderConstant
 * @param pBorderValue pixel of a constant border, a double a channel; not read otherwise
 * @param smoothEdge   1 to blend at the mapped source's edge (transparent and in-memory borders), else 0
 * @param pSpec        the plan, of the bytes that tpxiWarpAffineGetSize tells, at any address
 * @param valueB       B of the cubic kernel
 * @param valueC       C of the cubic kernel
 * @param pInitBuf     initialisation buffer of the bytes that tpxiWarpAffineGetSize tells, at any address
 * @return The first of these that applies: tpxErrBorder; tpxErrNullPointer (plan, coefficients, the
 *     initialisation buffer of cubic); tpxErrSize (below 1); tpxErrDataType; tpxErrWarpDirection;
 *     tpxErrCoefficient; tpxErrNullPointer (no border value for a constant border); tpxErrChannelCount;
 *     tpxErrUnsupportedMode (smoothEdge with a replicate or constant border); tpxErrSize (a source of one row
 *     or column); tpxErrCoefficient (the mapped source is no quadrangle in double precision);
 *     tpxWarnNoQuadOverlap (the mapped source misses the destination and the border leaves pixels as they
 *     were; every processing call returns the same and writes nothing); tpxOk.
 */
TPX_API TpxStatus
    tpxiWarpAffineNearestInit(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType,
                              const Tpx64f coeffs[2][3], int direction, int numChannels, TpxBorderType border,
                              const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec),
    tpxiWarpAffineLinearInit(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType,
                             const Tpx64f coeffs[2][3], int direction, int numChannels, TpxBorderType border,
                             const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec),
    tpxiWarpAffineCubicInit(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[2][3],
                            int direction, int numChannels, Tpx64f valueB, Tpx64f valueC, TpxBorderType border,
                            const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec, Tpx8u* pInitBuf);

/** @} */

/** @name Affine warps: tpxiWarpAffineNearest, tpxiWarpAffineLinear, tpxiWarpAffineCubic
 * @{ */

/**
 * Computes one tile of an image that an affine map bends, by a plan; TpxiWarpSpec tells the rules and has an
 * example. Source and destination do not overlap. Tiles are cut to the destination, and give the same bytes
 * as one call.
 *
 * @param pSrc         first pixel of the source image, whatever the tile
 * @param srcStep      bytes from one row of the source to the next
 * @param pDst         first pixel of the tile
 * @param dstStep      bytes from one row of the destination to the next
 * @param dstRoiOffset place of the tile in the destination, in pixels
 * @param dstRoiSize   width and height of the tile in pixels
 * @param pSpec        the plan
 * @param pBuffer      work buffer of the bytes that tpxiWarpGetBufferSize tells for the tile, at any address
 * @return The first of these that applies: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0 and
 *     none below; nothing is written); tpxErrContext (a plan for another type, interpolation or number of
 *     channels); tpxErrSize (below 1); tpxErrStep (not a whole number of samples); tpxErrOutOfRange (an
 *     offset outside the destination); the plan's tpxWarnNoQuadOverlap, with nothing written; tpxErrBorder;
 *     tpxWarnNoQuadOverlap (no pixel of the tile takes anything from the source, as none lies in it, or with
 *     a constant border near enough to it; constant borders are written all the same); tpxWarnValueAdjusted
 *     (the tile was cut); tpxOk.
 */
TPX_API TpxStatus
    tpxiWarpAffineNearest_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineNearest_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineNearest_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineNearest_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_64f_C3R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineNearest_64f_C4R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                  TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                  Tpx8u* pBuffer),
    tpxiWarpAffineLinear_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineLinear_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineLinear_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineLinear_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_64f_C3R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineLinear_64f_C4R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                 TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                 Tpx8u* pBuffer),
    tpxiWarpAffineCubic_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstRoiOffset,
                               TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec, Tpx8u* pBuffer),
    tpxiWarpAffineCubic_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstRoiOffset,
                               TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec, Tpx8u* pBuffer),
    tpxiWarpAffineCubic_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstRoiOffset,
                               TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec, Tpx8u* pBuffer),
    tpxiWarpAffineCubic_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_64f_C3R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiWarpAffineCubic_64f_C4R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                Tpx8u* pBuffer);

/** @} */

/** @name Perspective warp plan, sizes: tpxiWarpPerspectiveGetSize
 * @{ */

/**
 * Tells the bytes of a plan of a perspective warp and of its initialisation buffer.
 * tpxiWarpPerspectiveLinearInit and its like have an example.
 *
 * @param srcSize       width and height of the source in pixels
 * @param srcRoi        rectangle of the source in pixels, or that of tpxiWarpGetRectInfinite for all of it
 * @param dstSize       width and height of the destination in pixels
 * @param dataType      type of the samples: 8u, 16u, 16s or 32f
 * @param coeffs        the map: x' = (c00 x + c01 y + c02) / d, y' = (c10 x + c11 y + c12) / d, d = c20 x +
 *     c21 y + c22
 * @param interpolation tpxInterpolationNearest, Linear or Cubic
 * @param direction     0: coeffs map the source to the destination; 1: the destination to the source
 * @param border        border word, as of the initialiser
 * @param pSpecSize     takes the bytes of the plan
 * @param pInitBufSize  takes the bytes of the initialisation buffer
 * @return The first of these that applies: tpxErrBorder; tpxErrNullPointer (coefficients or a result);
 *     tpxErrSize (below 1); tpxErrRect (a rectangle that begins outside the source, or of a size below 1);
 *     tpxErrDataType; tpxErrInterpolation; tpxErrWarpDirection; tpxErrSize (a source of one row or column);
 *     tpxErrCoefficient (not finite; the affine part singular to 1e-10 with no divisor that makes up for it;
 *     c22 of 1e-200 or less); tpxErrSize (a source of more rows than memory has room for: 2^30 of 8u, 2^29 of
 *     16 bits, 2^28 of 32f); tpxErrCoefficient (the mapped source is no quadrangle in double precision, as
 *     for a rectangle of one row or column); tpxErrSize (a plan of more than 31 bits); tpxOk.
 */
TPX_API TpxStatus tpxiWarpPerspectiveGetSize(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize,
                                             TpxDataType dataType, const Tpx64f coeffs[3][3],
                                             TpxInterpolationType interpolation, int direction,
                                             TpxBorderType border, int* pSpecSize, int* pInitBufSize);

/** @} */

/** @name Perspective warp plan, initialisers: tpxiWarpPerspective...Init of Nearest, Linear, Cubic
 * @{ */

/**
 * Makes the plan of a perspective warp by the nearest pixel, linear or cubic interpolation; TpxiWarpSpec
 * tells what interpolations, borders and smooth edges do. Any multiple of the coefficients is the same map.
 * Quotients are products with 1 / d in double precision; if c20 and c21 are 0 and c22 is a power of two,
 * positions are those of an affine warp.
 *
 * Horizon: the line d = 0, where the map goes to infinity. Its valid side is the one with the origin of the
 * coordinates that coeffs are applied to; or the other one, if the whole of the mapped source lies there. The
 * part of the source that lands there is written; pixels beyond the horizon stay as they were, whatever the
 * border, but that a constant border fills them as all others outside.
 *
 * With a rectangle of the source, the border becomes tpxBorderTransparent, with the sides in memory that were
 * given: pixels outside the rectangle's image stay as they were, and the rectangle's edges are treated as
 * those of an image. A rectangle may run past the source's end; the part inside is used.
 *
 * @code
 * const Tpx64f corners[4][2] = {{10, 0}, {600, 40}, {639, 479}, {0, 400}};
 * TpxiSize size = {640, 480};
 * TpxiRect page = {0, 0, 640, 480};
 * TpxiPoint origin = {0, 0};
 * Tpx64f coeffs[3][3];
 * int specSize = 0, initSize = 0, bufferSize = 0, step = 0;
 * TpxStatus status = tpxiGetPerspectiveTransform(page, corners, coeffs);
 * const Tpx64f(*map)[3] = (const Tpx64f(*)[3])coeffs; // the cast is needed before C23
 * if (!status) status = tpxiWarpPerspectiveGetSize(size, tpxiWarpGetRectInfinite(), size, tpxDataType8u, map,
 *                                                  tpxInterpolationCubic, 0, tpxBorderReplicate, &specSize,
 *                                                  &initSize);
 * TpxiWarpSpec* plan = malloc((size_t)specSize);
 * Tpx8u* initBuffer = malloc((size_t)initSize);
 * if (!status) status = tpxiWarpPerspectiveCubicInit(size, tpxiWarpGetRectInfinite(), size, tpxDataType8u,
 *                                                    map, 0, 1, 0, 0.5, tpxBorderReplicate, 0, 0, plan,
 *                                                    initBuffer);
 * free(initBuffer);
 * if (!status) status = tpxiWarpGetBufferSize(plan, size, &bufferSize);
 * Tpx8u* buffer = malloc((size_t)bufferSize);
 * Tpx8u* image = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * Tpx8u* bent = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * tpxiSet_8u_C1R(100, image, step, size);
 * if (!status) status = tpxiWarpPerspectiveCubic_8u_C1R(image, step, bent, step, origin, size, plan, buffer);
 * tpxiFree(bent);
 * tpxiFree(image);
 * free(buffer);
 * free(plan);
 * @endcode
 *
 * @param srcSize      width and height of the source in pixels
 * @param srcRoi       rectangle of the source in pixels, or that of tpxiWarpGetRectInfinite for all of it
 * @param dstSize      width and height of the destination in pixels
 * @param dataType     type of the samples: 8u, 16u, 16s or 32f
 * @param coeffs       the map: x' = (c00 x + c01 y + c02) / d, y' = (c10 x + c11 y + c12) / d, d = c20 x +
 *     c21 y + c22
 * @param direction    0: coeffs map the source to the destination; 1: the destination to the source
 * @param numChannels  number of channels: 1, 3 or 4
 * @param border       tpxBorderTransparent (with flags for sides in memory), tpxBorderInMemAll,
 *     tpxBorderReplicate or tpxBorderConstant
 * @param pBorderValue pixel of a constant border, a double a channel; not read otherwise
 * @param smoothEdge   1 to blend at the mapped source's edge (transparent and in-memory borders), else 0
 * @param pSpec        the plan, of the bytes that tpxiWarpPerspectiveGetSize tells, at any address
 * @param pInitBuf     initialisation buffer of the bytes that tpxiWarpPerspectiveGetSize tells, at any
 *     address; read for cubic
 * @param valueB       B of the cubic kernel
 * @param valueC       C of the cubic kernel
 * @return The first of these that applies: tpxErrBorder; tpxErrNullPointer (plan, coefficients, the
 *     initialisation buffer of cubic); tpxErrSize (below 1); tpxErrRect (a rectangle that begins outside the
 *     source, or of a size below 1); tpxErrDataType; tpxErrWarpDirection; tpxErrNullPointer (no border value
 *     for a constant border); tpxErrChannelCount; tpxErrUnsupportedMode (smoothEdge with a replicate or
 *     constant border, be there a rectangle or not); tpxErrSize (a source of one row or column);
 *     tpxErrCoefficient (as of tpxiWarpPerspectiveGetSize); tpxWarnNoQuadOverlap (the mapped source misses
 *     the destination and the border leaves pixels as they were; every processing call returns the same and
 *     writes nothing); tpxWarnValueAdjusted (the rectangle was cut; the plan is complete); tpxOk.
 */
TPX_API TpxStatus
    tpxiWarpPerspectiveNearestInit(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize, TpxDataType dataType,
                                   const Tpx64f coeffs[3][3], int direction, int numChannels,
                                   TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
                                   TpxiWarpSpec* pSpec, Tpx8u* pInitBuf),
    tpxiWarpPerspectiveLinearInit(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize, TpxDataType dataType,
                                  const Tpx64f coeffs[3][3], int direction, int numChannels,
                                  TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
                                  TpxiWarpSpec* pSpec, Tpx8u* pInitBuf),
    tpxiWarpPerspectiveCubicInit(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize, TpxDataType dataType,
                                 const Tpx64f coeffs[3][3], int direction, int numChannels, Tpx64f valueB,
                                 Tpx64f valueC, TpxBorderType border, const Tpx64f* pBorderValue,
                                 int smoothEdge, TpxiWarpSpec* pSpec, Tpx8u* pInitBuf);

/** @} */

/** @name Perspective warps: tpxiWarpPerspectiveNearest, tpxiWarpPerspectiveLinear, tpxiWarpPerspectiveCubic
 * @{ */

/**
 * Computes one tile of an image that a perspective map bends, by a plan of a perspective or an affine warp,
 * or of one between quadrangles. tpxiWarpPerspectiveLinearInit and its like have an example, TpxiWarpSpec
 * tells the rules. Source and destination do not overlap. Tiles are cut to the destination, and give the same
 * bytes as one call.
 *
 * @param pSrc         first pixel of the source image, whatever the tile and the plan's rectangle
 * @param srcStep      bytes from one row of the source to the next
 * @param pDst         first pixel of the tile
 * @param dstStep      bytes from one row of the destination to the next
 * @param dstRoiOffset place of the tile in the destination, in pixels
 * @param dstRoiSize   width and height of the tile in pixels
 * @param pSpec        the plan
 * @param pBuffer      work buffer of the bytes that tpxiWarpGetBufferSize tells for the tile, at any address
 * @return The first of these that applies: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0 and
 *     none below; nothing is written); tpxErrContext (a plan for another type, interpolation or number of
 *     channels); tpxErrSize (below 1); tpxErrStep (not a whole number of samples); tpxErrOutOfRange (an
 *     offset outside the destination); the plan's tpxWarnNoQuadOverlap, with nothing written; tpxErrBorder;
 *     tpxWarnNoQuadOverlap (no pixel of the tile takes anything from the source, as none lies in it, or with
 *     a constant border near enough to it; constant borders are written all the same); tpxWarnValueAdjusted
 *     (the tile was cut); tpxOk.
 */
TPX_API TpxStatus
    tpxiWarpPerspectiveNearest_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveNearest_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                       TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                       Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveLinear_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                      TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                      Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                    Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                    Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                    TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                    Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer),
    tpxiWarpPerspectiveCubic_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
                                     TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, const TpxiWarpSpec* pSpec,
                                     Tpx8u* pBuffer);

/** @} */

/** @name Quadrangle warp plan, sizes: tpxiWarpQuadGetSize
 * @{ */

/**
 * Tells the bytes of a plan of a warp between quadrangles and of its initialisation buffer.
 * tpxiWarpQuadLinearInit and its like have an example.
 *
 * @param srcSize       width and height of the source in pixels
 * @param srcRoi        rectangle of the source in pixels, or that of tpxiWarpGetRectInfinite for all of it
 * @param srcQuad       corners (x, y) of the quadrangle in the source, in order, either way round
 * @param dstRoi        rectangle of the destination in pixels, outside of which nothing is written
 * @param dstQuad       corners (x, y) that those of srcQuad go to
 * @param transform     1: the perspective map by the four corners; 0: the affine map by the first three
 * @param dataType      type of the samples: 8u, 16u, 16s or 32f
 * @param interpolation tpxInterpolationNearest, Linear or Cubic
 * @param border        border word, as of the initialiser
 * @param pSpecSize     takes the bytes of the plan
 * @param pInitBufSize  takes the bytes of the initialisation buffer
 * @return The first of these that applies: tpxErrBorder; tpxErrNullPointer (a quadrangle or a result);
 *     tpxErrSize (a source below 1); tpxErrRect (a srcRoi that begins outside the source, or of a size below
 *     1; a dstRoi of a negative origin, a size below 1, or an end beyond 31 bits); tpxErrDataType;
 *     tpxErrInterpolation; tpxErrWarpTransform (transform neither 0 nor 1); tpxErrSize (a source of one row
 *     or column, or of more rows than memory has room for: 2^30 of 8u, 2^29 of 16 bits, 2^28 of 32f);
 *     tpxErrRect (one row or column of the source); tpxErrQuad; tpxErrSize (a plan of more than 31 bits);
 *     tpxOk.
 */
TPX_API TpxStatus tpxiWarpQuadGetSize(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2],
                                      TpxiRect dstRoi, const Tpx64f dstQuad[4][2], int transform,
                                      TpxDataType dataType, TpxInterpolationType interpolation,
                                      TpxBorderType border, int* pSpecSize, int* pInitBufSize);

/** @} */

/** @name Quadrangle warp plan, initialisers: tpxiWarpQuad...Init of Nearest, Linear, Cubic
 * @{ */

/**
 * Makes a plan that takes the quadrangle srcQuad of the source to dstQuad of the destination, corner by
 * corner, and no pixel outside dstQuad or outside the rectangle dstRoi. Processing is by tpxiWarpPerspective,
 * and for plans of affine maps by tpxiWarpAffine too. TpxiWarpSpec tells what interpolations, borders and
 * smooth edges do.
 *
 * Quadrangles are given by their corners in order, either way round, in the coordinates of the images; they
 * must be convex with no three corners on a line, and may reach beyond the rectangles. srcRoi is a rectangle
 * of the source as for perspective warps. dstRoi lies in the destination, whose size counts as that up to its
 * last pixel; tiles lie at dstRoiOffset from the destination's first pixel, as ever.
 *
 * Borders are those of perspective warps: with tpxBorderReplicate and tpxBorderConstant (and all of the
 * source) pixels in dstQuad and dstRoi whose position lies outside the source take what the border says. All
 * pixels out of dstQuad stay as they were; a constant border fills those of the tile. Smooth edges are those
 * of the source and of dstQuad, and lie in dstRoi's columns and rows from its first ones on.
 *
 * @code
 * const Tpx64f from[4][2] = {{100, 80}, {540, 60}, {600, 420}, {60, 400}};
 * const Tpx64f onto[4][2] = {{0, 0}, {639, 0}, {639, 479}, {0, 479}};
 * TpxiSize size = {640, 480};
 * TpxiRect page = {0, 0, 640, 480};
 * TpxiPoint origin = {0, 0};
 * int specSize = 0, initSize = 0, bufferSize = 0, step = 0;
 * TpxStatus status = tpxiWarpQuadGetSize(size, tpxiWarpGetRectInfinite(), from, page, onto, 1, tpxDataType8u,
 *                                        tpxInterpolationLinear, tpxBorderTransparent, &specSize, &initSize);
 * TpxiWarpSpec* plan = malloc((size_t)specSize);
 * if (!status) status = tpxiWarpQuadLinearInit(size, tpxiWarpGetRectInfinite(), from, page, onto, 1,
 *                                              tpxDataType8u, 1, tpxBorderTransparent, 0, 0, plan, 0);
 * if (!status) status = tpxiWarpGetBufferSize(plan, size, &bufferSize);
 * Tpx8u* buffer = malloc((size_t)bufferSize);
 * Tpx8u* image = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * Tpx8u* straight = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * tpxiSet_8u_C1R(100, image, step, size);
 * if (!status) status = tpxiWarpPerspectiveLinear_8u_C1R(image, step, straight, step, origin, size, plan,
 *                                                        buffer);
 * tpxiFree(straight);
 * tpxiFree(image);
 * free(buffer);
 * free(plan);
 * @endcode
 *
 * @param srcSize      width and height of the source in pixels
 * @param srcRoi       rectangle of the source in pixels, or that of tpxiWarpGetRectInfinite for all of it
 * @param srcQuad      corners (x, y) of the quadrangle in the source
 * @param dstRoi       rectangle of the destination in pixels, outside of which nothing is written
 * @param dstQuad      corners (x, y) that those of srcQuad go to
 * @param transform    1: the perspective map by the four corners, which is affine if both are parallelograms
 *     (to 1e-10); 0: the affine map by the first three corners
 * @param dataType     type of the samples: 8u, 16u, 16s or 32f
 * @param numChannels  number of channels: 1, 3 or 4
 * @param border       tpxBorderTransparent (with flags for sides in memory), tpxBorderInMemAll,
 *     tpxBorderReplicate or tpxBorderConstant
 * @param pBorderValue pixel of a constant border, a double a channel; not read otherwise
 * @param smoothEdge   1 to blend at edges (transparent and in-memory borders), else 0
 * @param pSpec        the plan, of the bytes that tpxiWarpQuadGetSize tells, at any address
 * @param pInitBuf     initialisation buffer of the bytes that tpxiWarpQuadGetSize tells, at any address; read
 *     for cubic
 * @param valueB       B of the cubic kernel
 * @param valueC       C of the cubic kernel
 * @return The first of these that applies: tpxErrBorder; tpxErrNullPointer (plan, quadrangles, the
 *     initialisation buffer of cubic); tpxErrSize (a source below 1); tpxErrRect (as of tpxiWarpQuadGetSize);
 *     tpxErrDataType; tpxErrWarpTransform (transform neither 0 nor 1); tpxErrNullPointer (no border value for
 *     a constant border); tpxErrChannelCount; tpxErrUnsupportedMode (smoothEdge with a replicate or constant
 *     border); tpxErrSize (a source of one row or column); tpxErrRect (one row or column of the source);
 *     tpxErrQuad; tpxErrWarpTransform (the map's coefficients are not finite); tpxWarnNoQuadOverlap (no pixel
 *     is touched, and the border leaves pixels as they were); tpxWarnNotParallelogram (transform 0 of other
 *     quadrangles; the plan is complete); tpxWarnValueAdjusted (srcRoi was cut; the plan is complete); tpxOk.
 */
TPX_API TpxStatus
    tpxiWarpQuadNearestInit(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2], TpxiRect dstRoi,
                            const Tpx64f dstQuad[4][2], int transform, TpxDataType dataType, int numChannels,
                            TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
                            TpxiWarpSpec* pSpec, Tpx8u* pInitBuf),
    tpxiWarpQuadLinearInit(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2], TpxiRect dstRoi,
                           const Tpx64f dstQuad[4][2], int transform, TpxDataType dataType, int numChannels,
                           TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
                           TpxiWarpSpec* pSpec, Tpx8u* pInitBuf),
    tpxiWarpQuadCubicInit(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2], TpxiRect dstRoi,
                          const Tpx64f dstQuad[4][2], int transform, TpxDataType dataType, int numChannels,
                          Tpx64f valueB, Tpx64f valueC, TpxBorderType border, const Tpx64f* pBorderValue,
                          int smoothEdge, TpxiWarpSpec* pSpec, Tpx8u* pInitBuf);

/** @} */

TPX_EXTERN_C_END

#endif
