/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Resizing by plans: nearest, linear and area means; resize_taps.h has the longer kernels. */
#ifndef TPXI_GEOMETRY_H
#define TPXI_GEOMETRY_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/**
 * A plan of a resize: for one pair of source and destination sizes, where every destination position lies in
 * the source and with which weights. It serves any number of tiles of the destination, from any number of
 * threads:
 *
 * 1. tpxiResizeGetSize tells the bytes of the plan and of a temporary initialisation buffer.
 * 2. tpxiResizeLinearInit and its like fill the plan (cubic, Lanczos and antialiasing use the temporary
 *    buffer).
 * 3. tpxiResizeGetBufferSize tells the bytes of the work buffer of a tile, one for each call running at a
 *    time.
 * 4. tpxiResizeGetBorderSize tells the pixels that a tile reads around its source rectangle.
 * 5. For each tile tpxiResizeGetSrcOffset or tpxiResizeGetSrcRoi tells the source rectangle; the processing
 *    call gets a pointer to its first pixel and one to the tile's first pixel.
 *
 * The caller owns plan and buffers; they may start at any address and need no release. Sizes are in
 * pixels, 0-based offsets too. Destination position i lies at c = (i + 0.5) * src / dst - 0.5 in the source;
 * nearest takes the pixel at src / dst * (i + 0.5), and the lower one where that is the boundary of two.
 *
 * The typed calls differ only in the type they plan for; a query takes any plan of its width (short calls
 * those of short initialisers, _L calls those of _L initialisers).
 *
 * @code
 * TpxiSize src = {640, 480}, dst = {320, 240}, tile = {160, 240};
 * TpxiPoint origin = {0, 0}, offset = {160, 0}, from = {0, 0};
 * int specSize = 0, initSize = 0, bufferSize = 0, srcStep = 0, dstStep = 0;
 * TpxStatus status = tpxiResizeGetSize_8u(src, dst, tpxInterpolationLinear, 0, &specSize, &initSize);
 * TpxiResizeSpec* plan = malloc((size_t)specSize);
 * if (!status) status = tpxiResizeLinearInit_8u(src, dst, plan);
 * if (!status) status = tpxiResizeGetBufferSize_8u(plan, tile, 1, &bufferSize);
 * Tpx8u* buffer = malloc((size_t)bufferSize);
 * Tpx8u* image = tpxiMalloc_8u_C1(src.width, src.height, &srcStep);
 * Tpx8u* half = tpxiMalloc_8u_C1(dst.width, dst.height, &dstStep);
 * tpxiSet_8u_C1R(100, image, srcStep, src);
 * // The left tile: its source goes on to the right. Then the right one.
 * if (!status) status = tpxiResizeLinear_8u_C1R(image, srcStep, half, dstStep, origin, tile,
 *                                               tpxBorderReplicate | tpxBorderInMemRight, 0, plan, buffer);
 * if (!status) status = tpxiResizeGetSrcOffset_8u(plan, offset, &from);
 * if (!status) status = tpxiResizeLinear_8u_C1R(image + from.y * srcStep + from.x, srcStep, half + offset.x,
 *                                               dstStep, offset, tile,
 *                                               tpxBorderReplicate | tpxBorderInMemLeft, 0, plan, buffer);
 * tpxiFree(half);
 * tpxiFree(image);
 * free(buffer);
 * free(plan);
 * @endcode
 */
typedef struct TpxiResizeSpec TpxiResizeSpec;

/** @name Resize plan, sizes: tpxiResizeGetSize
 * @{ */

/**
 * Tells the bytes of a plan of a resize and of its initialisation buffer; TpxiResizeSpec has an example. _L:
 * sizes of 64 bits.
 *
 * @param srcSize       width and height of the source in pixels
 * @param dstSize       width and height of the destination in pixels
 * @param interpolation tpxInterpolationNearest, Linear, Cubic, Lanczos or Super
 * @param antialiasing  other than 0 for an antialiasing plan
 * @param pSpecSize     takes the bytes of the plan
 * @param pInitBufSize  takes the bytes of the initialisation buffer
 * @param dataType      type of the samples: 8u, 16u, 16s, 32f or 64f
 * @return The first of these that applies: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0;
 *     nothing is stored); tpxErrSize (below 1); tpxErrInterpolation; _L: tpxErrDataType, tpxErrSizeTooLarge
 *     (a length above 0x1FFFFFFF); tpxErrUnsupportedMode (selector 0, antialiasing or another kind than
 *     linear in 64f); tpxErrSize (source smaller than the kind needs: linear 2, cubic and Lanczos 4 each way,
 *     super-sampling the destination's); tpxErrSizeTooLarge (short form: above 0x7FFFFFFE bytes; nothing is
 *     stored); tpxWarnNoAntialiasing (asked for with nearest or super-sampling; the sizes are stored); tpxOk.
 */
TPX_API TpxStatus
    tpxiResizeGetSize_8u(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                         Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize),
    tpxiResizeGetSize_16u(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                          Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize),
    tpxiResizeGetSize_16s(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                          Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize),
    tpxiResizeGetSize_32f(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                          Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize),
    tpxiResizeGetSize_64f(TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation,
                          Tpx32u antialiasing, int* pSpecSize, int* pInitBufSize),
    tpxiResizeGetSize_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                        TpxInterpolationType interpolation, Tpx32u antialiasing, TpxSizeL* pSpecSize,
                        TpxSizeL* pInitBufSize);

/** @} */

/** @name Resize plan, initialisers: tpxiResize...Init of Nearest, Linear, Cubic, Lanczos, Super
 * @{ */

/**
 * Makes the plan of a resize by the nearest pixel, linear interpolation, area means (Super), cubic or Lanczos
 * kernels; TpxiResizeSpec has an example. Cubic takes the parameters B and C of its family of kernels (D.
 * Mitchell, A. Netravali, "Reconstruction Filters in Computer Graphics", 1988), Lanczos 2 or 3 lobes. _L:
 * sizes of 64 bits.
 *
 * The short Lanczos forms test lobes and source when they have begun the plan and set the thread's
 * floating-point control to flush results to zero with underflow masked: after these two errors the control
 * stays so, and the plan is partly written and serves nothing. Every other call leaves the control as it was.
 *
 * @param srcSize  width and height of the source in pixels
 * @param dstSize  width and height of the destination in pixels
 * @param pSpec    the plan, of the bytes that tpxiResizeGetSize tells, at any address
 * @param dataType type of the samples: 8u, 16u, 16s, 32f, and 64f for linear
 * @param valueB   B of the cubic kernel
 * @param valueC   C of the cubic kernel
 * @param pInitBuf initialisation buffer of the bytes that tpxiResizeGetSize tells, at any address
 * @param numLobes lobes of the Lanczos kernel: 2 or 3
 * @return The first of these that applies:
 * - tpxErrNullPointer (plan, initialisation buffer); tpxWarnNoOperation (a size of exactly 0; no plan is
 *   made); tpxErrSize (a size below 1); then
 * - Lanczos: tpxErrUnsupportedMode (lobes other than 2 or 3); _L: tpxErrDataType; tpxErrSize (a source
 *   smaller than twice the lobes); _L: tpxErrSizeTooLarge (a length from 0x20000000 up); tpxOk
 * - others: tpxErrSize (a source smaller than the kind needs: linear 2, cubic 4 each way, Super the
 *   destination's); _L: tpxErrDataType; tpxErrSizeTooLarge (a length from 0x20000000 up); tpxOk
 */
TPX_API TpxStatus
    tpxiResizeNearestInit_8u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeNearestInit_16u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeNearestInit_16s(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeNearestInit_32f(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeNearestInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxiResizeSpec* pSpec),
    tpxiResizeLinearInit_8u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeLinearInit_16u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeLinearInit_16s(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeLinearInit_32f(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeLinearInit_64f(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeLinearInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxiResizeSpec* pSpec),
    tpxiResizeCubicInit_8u(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                           TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeCubicInit_16u(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                            TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeCubicInit_16s(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                            TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeCubicInit_32f(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                            TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeCubicInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, Tpx32f valueB,
                          Tpx32f valueC, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeLanczosInit_8u(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes, TpxiResizeSpec* pSpec,
                             Tpx8u* pInitBuf),
    tpxiResizeLanczosInit_16u(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes, TpxiResizeSpec* pSpec,
                              Tpx8u* pInitBuf),
    tpxiResizeLanczosInit_16s(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes, TpxiResizeSpec* pSpec,
                              Tpx8u* pInitBuf),
    tpxiResizeLanczosInit_32f(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes, TpxiResizeSpec* pSpec,
                              Tpx8u* pInitBuf),
    tpxiResizeLanczosInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, Tpx32u numLobes,
                            TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeSuperInit_8u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeSuperInit_16u(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeSuperInit_16s(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeSuperInit_32f(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec),
    tpxiResizeSuperInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxiResizeSpec* pSpec);

/** @} */

/** @name Antialiasing plan, initialisers: tpxiResizeAntialiasing...Init of Linear, Cubic, Lanczos
 * @{ */

/**
 * Makes an antialiasing plan of a resize, whose sizes tpxiResizeGetSize tells with `antialiasing` other than
 * 0; tpxiResizeAntialiasing has an example. Along an axis that is reduced, the kernel of linear, cubic or
 * Lanczos is stretched over the source pixels that a destination pixel stands for; along others it keeps its
 * width. The weights of a position sum to 1. A plan serves all sample types. _L: sizes of 64 bits.
 *
 * @param srcSize  width and height of the source in pixels
 * @param dstSize  width and height of the destination in pixels
 * @param pSpec    the plan, of the bytes that tpxiResizeGetSize tells, at any address
 * @param pInitBuf initialisation buffer of the bytes that tpxiResizeGetSize tells, at any address
 * @param dataType type of the samples: 8u, 16u, 16s or 32f
 * @param valueB   B of the cubic kernel
 * @param valueC   C of the cubic kernel
 * @param numLobes lobes of the Lanczos kernel: 2 or 3
 * @return The first of these that applies:
 * - tpxErrNullPointer (plan, initialisation buffer); tpxWarnNoOperation (a size of exactly 0; no plan is
 *   made); tpxErrSize (a size below 1); then
 * - Lanczos: tpxErrUnsupportedMode (lobes other than 2 or 3); _L: tpxErrDataType; tpxErrSize (a source
 *   smaller than 4 each way); _L: tpxErrSizeTooLarge (a length from 0x20000000 up); tpxOk
 * - others: tpxErrSize (a source smaller than 2 each way for linear, 4 for cubic); _L: tpxErrDataType;
 *   tpxErrSizeTooLarge (a length from 0x20000000 up); tpxOk
 */
TPX_API TpxStatus
    tpxiResizeAntialiasingLinearInit(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec,
                                     Tpx8u* pInitBuf),
    tpxiResizeAntialiasingLinearInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                       TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeAntialiasingCubicInit(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC,
                                    TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeAntialiasingCubicInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, Tpx32f valueB,
                                      Tpx32f valueC, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeAntialiasingLanczosInit(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes,
                                      TpxiResizeSpec* pSpec, Tpx8u* pInitBuf),
    tpxiResizeAntialiasingLanczosInit_L(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                        Tpx32u numLobes, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf);

/** @} */

/** @name Resize plan, work buffer of a tile: tpxiResizeGetBufferSize
 * @{ */

/**
 * Tells the bytes of the work buffer for tiles of a resize; TpxiResizeSpec has an example. _L: sizes of 64
 * bits.
 *
 * @param pSpec       the plan
 * @param dstSize     width and height of the largest tile in pixels
 * @param numChannels number of channels: 1, 3 or 4
 * @param pBufSize    takes the size in bytes
 * @return The first of these that applies: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0;
 *     nothing is stored); tpxErrContext (not a plan of this width); tpxErrChannelCount; tpxErrSize (below 1);
 *     tpxErrSizeTooLarge (short form, from 0x7FFFFFFF bytes; nothing is stored); tpxWarnValueAdjusted (the
 *     tile is larger than the plan's destination; the size for the part that fits is stored); tpxOk.
 */
TPX_API TpxStatus
    tpxiResizeGetBufferSize_8u(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                               int* pBufSize),
    tpxiResizeGetBufferSize_16u(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                int* pBufSize),
    tpxiResizeGetBufferSize_16s(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                int* pBufSize),
    tpxiResizeGetBufferSize_32f(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                int* pBufSize),
    tpxiResizeGetBufferSize_64f(const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels,
                                int* pBufSize),
    tpxiResizeGetBufferSize_L(const TpxiResizeSpec* pSpec, TpxiSizeL dstSize, Tpx32u numChannels,
                              TpxSizeL* pBufSize);

/** @} */

/** @name Resize plan, reach of a tile: tpxiResizeGetBorderSize
 * @{ */

/**
 * Tells the pixels that a tile of a resize reads on each side of its source rectangle where the source image
 * goes on: linear reads up to one pixel beyond the rectangle that tpxiResizeGetSrcRoi tells. _L: sizes of 64
 * bits.
 *
 * @param pSpec       the plan
 * @param pBorderSize takes the pixels on the left, above, on the right and below
 * @return The first of these that applies: tpxErrNullPointer; tpxErrContext (not a plan of this width);
 *     tpxOk.
 */
TPX_API TpxStatus
    tpxiResizeGetBorderSize_8u(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize),
    tpxiResizeGetBorderSize_16u(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize),
    tpxiResizeGetBorderSize_16s(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize),
    tpxiResizeGetBorderSize_32f(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize),
    tpxiResizeGetBorderSize_64f(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize),
    tpxiResizeGetBorderSize_L(const TpxiResizeSpec* pSpec, TpxiBorderSizeL* pBorderSize);

/** @} */

/** @name Resize plan, first source pixel of a tile: tpxiResizeGetSrcOffset
 * @{ */

/**
 * Tells the source pixel that a processing call of a resize wants pSrc to point at, for a tile at dstOffset.
 * _L: offsets of 64 bits.
 *
 * @param pSpec      the plan
 * @param dstOffset  place of the tile in the destination, in pixels
 * @param pSrcOffset takes the place of the pixel in the source, in pixels
 * @return The first of these that applies: tpxErrNullPointer; tpxErrContext (not a plan of this width);
 *     tpxErrOutOfRange (an offset outside the destination); tpxOk.
 */
TPX_API TpxStatus
    tpxiResizeGetSrcOffset_8u(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset, TpxiPoint* pSrcOffset),
    tpxiResizeGetSrcOffset_16u(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset, TpxiPoint* pSrcOffset),
    tpxiResizeGetSrcOffset_16s(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset, TpxiPoint* pSrcOffset),
    tpxiResizeGetSrcOffset_32f(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset, TpxiPoint* pSrcOffset),
    tpxiResizeGetSrcOffset_64f(const TpxiResizeSpec* pSpec, TpxiPoint dstOffset, TpxiPoint* pSrcOffset),
    tpxiResizeGetSrcOffset_L(const TpxiResizeSpec* pSpec, TpxiPointL dstOffset, TpxiPointL* pSrcOffset);

/** @} */

/** @name Resize plan, source rectangle of a tile: tpxiResizeGetSrcRoi
 * @{ */

/**
 * Tells the source rectangle of a tile of a resize. A tile past the destination's edge is trimmed first. On
 * sides where the source image goes on, up to as many pixels beyond the rectangle are read as
 * tpxiResizeGetBorderSize tells. A tile of the first positions of an enlargement alone, which lie before the
 * centre of the source's first pixel, is told a width or height of 0; that pixel is read all the same. _L:
 * sizes and offsets of 64 bits.
 *
 * @param pSpec         the plan
 * @param dstRoiOffset  place of the tile in the destination, in pixels
 * @param dstRoiSize    width and height of the tile in pixels
 * @param pSrcRoiOffset takes the place of the rectangle in the source, in pixels
 * @param pSrcRoiSize   takes its width and height in pixels
 * @return The first of these that applies: tpxErrNullPointer; tpxErrSize (below 1); tpxErrContext (not a plan
 *     of this width); tpxErrOutOfRange (an offset outside the destination); tpxWarnValueAdjusted (a tile
 *     larger than the plan's destination; the rectangle of the part that fits is stored); tpxOk.
 */
TPX_API TpxStatus
    tpxiResizeGetSrcRoi_8u(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                           TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize),
    tpxiResizeGetSrcRoi_16u(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                            TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize),
    tpxiResizeGetSrcRoi_16s(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                            TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize),
    tpxiResizeGetSrcRoi_32f(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                            TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize),
    tpxiResizeGetSrcRoi_64f(const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize,
                            TpxiPoint* pSrcRoiOffset, TpxiSize* pSrcRoiSize),
    tpxiResizeGetSrcRoi_L(const TpxiResizeSpec* pSpec, TpxiPointL dstRoiOffset, TpxiSizeL dstRoiSize,
                          TpxiPointL* pSrcRoiOffset, TpxiSizeL* pSrcRoiSize);

/** @} */

/** @name Resize: tpxiResizeNearest, tpxiResizeLinear
 * @{ */

/**
 * Computes one tile of a resized image by the nearest pixel or by linear interpolation; TpxiResizeSpec tells
 * the steps and has an example. With truthful border flags any tiling gives the same pixels as one call for
 * the whole image. _L: sizes, steps and offsets of 64 bits.
 *
 * Linear blends along rows first, then between rows. 8u: weights of 14 bits, the row blend rounded to 6
 * fraction bits, the result rounded to nearest with halves up; in the rows and columns next to a side without
 * the flag there is one blend u alone, rounded as (u + 8192 + ((u >> 14) & 1)) >> 14. 16u, 16s: single
 * precision, converted with the thread's rounding mode and saturated. 32f, 64f: no rounding beyond the
 * arithmetic's.
 *
 * @param pSrc         source pixel that tpxiResizeGetSrcOffset tells for dstOffset
 * @param srcStep      bytes from one row of the source to the next
 * @param pDst         first pixel of the tile
 * @param dstStep      bytes from one row of the destination to the next
 * @param dstOffset    place of the tile in the destination, in pixels
 * @param dstSize      width and height of the tile in pixels
 * @param pSpec        the plan
 * @param pBuffer      work buffer of the bytes that tpxiResizeGetBufferSize tells for the tile, at any
 *     address
 * @param border       tpxBorderReplicate, with a tpxBorderInMem flag for each side on which the source image
 *     goes on beyond the tile's source rectangle (by the pixels that tpxiResizeGetBorderSize tells), or
 *     tpxBorderInMemAll
 * @param pBorderValue not read; may be null
 * @return The first of these that applies: tpxErrBorder (linear); tpxErrNullPointer; tpxWarnNoOperation (a
 *     size of exactly 0; nothing is written); tpxErrContext (not a plan of this width; 64f: a plan of another
 *     type; _L: a plan of 64f given to another type. The short calls of other types do not look at the plan's
 *     type and take it); tpxErrSize (below 1); tpxErrStep (a step that is not a whole number of samples);
 *     tpxErrOutOfRange (an offset outside the destination); tpxErrUnsupportedMode (an antialiasing plan);
 *     tpxErrContext (a plan of another kind); tpxWarnValueAdjusted (a tile larger than the plan's
 *     destination: the part that fits is done); tpxOk.
 */
TPX_API TpxStatus
    tpxiResizeNearest_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                              TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeNearest_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                               Tpx8u* pBuffer),
    tpxiResizeNearest_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                               Tpx8u* pBuffer),
    tpxiResizeNearest_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                               Tpx8u* pBuffer),
    tpxiResizeNearest_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeNearest_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeNearest_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeNearest_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeNearest_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeNearest_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeNearest_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeNearest_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeNearest_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                                TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                                Tpx8u* pBuffer),
    tpxiResizeLinear_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, TpxBorderType border, const Tpx8u* pBorderValue,
                            const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx16u* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx16s* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx32f* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx64f* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_64f_C3R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx64f* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_64f_C4R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep, TpxiPoint dstOffset,
                             TpxiSize dstSize, TpxBorderType border, const Tpx64f* pBorderValue,
                             const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                              const Tpx8u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx16u* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx16s* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx32f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_64f_C1R_L(const Tpx64f* pSrc, TpxSizeL srcStep, Tpx64f* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx64f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_64f_C3R_L(const Tpx64f* pSrc, TpxSizeL srcStep, Tpx64f* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx64f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeLinear_64f_C4R_L(const Tpx64f* pSrc, TpxSizeL srcStep, Tpx64f* pDst, TpxSizeL dstStep,
                               TpxiPointL dstOffset, TpxiSizeL dstSize, TpxBorderType border,
                               const Tpx64f* pBorderValue, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer);

/** @} */

/** @name Resize by area means: tpxiResizeSuper
 * @{ */

/**
 * Computes one tile of a reduced image: every destination pixel is the mean of the source pixels that it
 * covers, weighted by how much of each it covers. TpxiResizeSpec tells the steps. The source is at least as
 * large as the destination, each way; equal sizes copy. _L: sizes, steps and offsets of 64 bits.
 *
 * Nothing outside the source rectangle that tpxiResizeGetSrcRoi tells is read, and any tiling gives the same
 * bytes as one call for the whole image. Sums are in single precision: each row along x from the left, then
 * the rows from the top; their product with the one factor of the plan is converted with the thread's
 * rounding mode and saturated (32f: stored as it is).
 *
 * @param pSrc      source pixel that tpxiResizeGetSrcOffset tells for dstOffset
 * @param srcStep   bytes from one row of the source to the next
 * @param pDst      first pixel of the tile
 * @param dstStep   bytes from one row of the destination to the next
 * @param dstOffset place of the tile in the destination, in pixels
 * @param dstSize   width and height of the tile in pixels
 * @param pSpec     the plan
 * @param pBuffer   work buffer of the bytes that tpxiResizeGetBufferSize tells for the tile, at any address
 * @return The first of these that applies: tpxErrNullPointer; tpxWarnNoOperation (a size of exactly 0;
 *     nothing is written); tpxErrContext (not a plan of this width; _L: a plan of 64f); tpxErrSize (below 1);
 *     tpxErrStep (a step that is not a whole number of samples); tpxErrOutOfRange (an offset outside the
 *     destination); tpxErrUnsupportedMode (an antialiasing plan); tpxErrContext (a plan of another kind);
 *     tpxWarnValueAdjusted (a tile larger than the plan's destination: the part that fits is done); tpxOk.
 */
TPX_API TpxStatus
    tpxiResizeSuper_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                           TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                           TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiPoint dstOffset,
                           TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiPoint dstOffset,
                            TpxiSize dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer),
    tpxiResizeSuper_8u_C1R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                             TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                             Tpx8u* pBuffer),
    tpxiResizeSuper_8u_C3R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                             TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                             Tpx8u* pBuffer),
    tpxiResizeSuper_8u_C4R_L(const Tpx8u* pSrc, TpxSizeL srcStep, Tpx8u* pDst, TpxSizeL dstStep,
                             TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                             Tpx8u* pBuffer),
    tpxiResizeSuper_16u_C1R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer),
    tpxiResizeSuper_16u_C3R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer),
    tpxiResizeSuper_16u_C4R_L(const Tpx16u* pSrc, TpxSizeL srcStep, Tpx16u* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer),
    tpxiResizeSuper_16s_C1R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer),
    tpxiResizeSuper_16s_C3R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer),
    tpxiResizeSuper_16s_C4R_L(const Tpx16s* pSrc, TpxSizeL srcStep, Tpx16s* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer),
    tpxiResizeSuper_32f_C1R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer),
    tpxiResizeSuper_32f_C3R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer),
    tpxiResizeSuper_32f_C4R_L(const Tpx32f* pSrc, TpxSizeL srcStep, Tpx32f* pDst, TpxSizeL dstStep,
                              TpxiPointL dstOffset, TpxiSizeL dstSize, const TpxiResizeSpec* pSpec,
                              Tpx8u* pBuffer);

/** @} */

TPX_EXTERN_C_END

#endif
