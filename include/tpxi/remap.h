/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Remap: every destination pixel takes its value from a position that the caller gives. */
#ifndef TPXI_REMAP_H
#define TPXI_REMAP_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Remap: tpxiRemap
 * @{ */

/**
 * Takes every destination pixel from a position of the source that two maps hold: pxMap its x, pyMap its y,
 * where whole numbers are centres of pixels. Maps are 32f; those of 64f images are 64f. Nothing is allocated,
 * and no buffer is needed.
 *
 * srcRoi, cut to the image, says which positions count: those from x to x + width - 1 and y to
 * y + height - 1, ends included. A destination pixel whose position lies outside, or is NaN, stays as it was.
 * Interpolation takes pixels of the whole image around the rectangle; linear those of the rectangle alone,
 * unless that is one pixel wide or high. Of AC4 the fourth channel of the destination stays.
 *
 * Interpolations:
 * - tpxInterpolationNearest (1): the pixel at (floor(x + 0.5), floor(y + 0.5))
 * - tpxInterpolationLinear (2): of 2 by 2 pixels
 * - 4: of 4 by 4 pixels, by the cubic through four samples
 * - tpxInterpolationCubic (6): of 4 by 4 pixels, by Catmull-Rom splines; between the outermost two pixels of
 *   the image by the cubic through the outermost four
 * - tpxInterpolationLanczos (16): of 6 by 6 pixels, with 3 lobes: weights sinc(d) sinc(d / 3) are divided by
 *   their sum. At the image's edge these are the outermost six pixels, those 3 or more away without weight
 *
 * In images too small for it an interpolation becomes another one: Lanczos becomes cubic where a side is
 * below 6, both cubics become linear where one is below 4, and all become nearest where one is 1.
 *
 * Linear and cubic of 8u are integer arithmetic. Linear: with x0 = floor(x) (less 1 in the last column),
 * qx = floor((x - x0) * 16384) and likewise y0, qy, rows are r = (p0 (16384 - qx) + p1 qx) >> 8, and the
 * result is (r0 (16384 - qy) + r1 qy + 33) >> 20: it is rounded down. Cubic: weights are those of positions
 * cut to 1/512, in 14 bits; rows are sums of products >> 8, and the result is (sum of products + 2^19) >> 20,
 * saturated. Everything else has weights and sums in single precision (64f: double); integers are rounded to
 * nearest, ties to even, and saturated.
 *
 * Smooth edge: with bit 31 of `interpolation` set, positions up to one pixel outside the rectangle take
 * s + (d - s) f, where d is the destination's old value, s the source pixel at the position cut to the
 * rectangle and to whole numbers, and f the distance from the rectangle; beside a corner
 * f = 1 - (1 - fx)(1 - fy). Integers are rounded with the thread's rounding mode there.
 *
 * @code
 * TpxiSize size = {320, 200};
 * TpxiRect all = {0, 0, 320, 200};
 * int step = 0, xStep = 0, yStep = 0;
 * Tpx8u* image = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * Tpx8u* mirrored = tpxiMalloc_8u_C1(size.width, size.height, &step);
 * Tpx32f* xMap = tpxiMalloc_32f_C1(size.width, size.height, &xStep);
 * Tpx32f* yMap = tpxiMalloc_32f_C1(size.width, size.height, &yStep);
 * tpxiSet_8u_C1R(100, image, step, size);
 * for (int y = 0; y < size.height; y++) {
 *     for (int x = 0; x < size.width; x++) {
 *         xMap[y * (xStep / 4) + x] = (Tpx32f)(size.width - 1 - x);
 *         yMap[y * (yStep / 4) + x] = (Tpx32f)y;
 *     }
 * }
 * TpxStatus status = tpxiRemap_8u_C1R(image, size, step, all, xMap, xStep, yMap, yStep, mirrored, step, size,
 *                                     tpxInterpolationLinear);
 * tpxiFree(yMap);
 * tpxiFree(xMap);
 * tpxiFree(mirrored);
 * tpxiFree(image);
 * @endcode
 *
 * @param pSrc          first pixel of the source image, whatever srcRoi is
 * @param srcSize       width and height of the source in pixels
 * @param srcStep       bytes from one row of the source to the next
 * @param srcRoi        rectangle of the source whose positions count, in pixels
 * @param pxMap         column of each destination pixel's position in the source, in pixels
 * @param xMapStep      bytes from one row of pxMap to the next
 * @param pyMap         row of each destination pixel's position in the source, in pixels
 * @param yMapStep      bytes from one row of pyMap to the next
 * @param pDst          first pixel of the destination
 * @param dstStep       bytes from one row of the destination to the next
 * @param dstRoiSize    width and height of the destination and of the maps in pixels
 * @param interpolation one of the list above, with bit 31 for a smooth edge
 * @return The first of these that applies: tpxErrNullPointer; tpxErrSize (srcSize below 1, srcRoi begins
 *     below 0 or has a size below 1, dstRoiSize below 1); tpxErrInterpolation; tpxErrStep (below 1);
 *     tpxWarnNoRoiOverlap (srcRoi begins behind the image; nothing is written); tpxOk.
 */
TPX_API TpxStatus
    tpxiRemap_8u_C1R(const Tpx8u* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                     int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx8u* pDst, int dstStep,
                     TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_8u_C3R(const Tpx8u* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                     int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx8u* pDst, int dstStep,
                     TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_8u_C4R(const Tpx8u* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                     int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx8u* pDst, int dstStep,
                     TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_8u_AC4R(const Tpx8u* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx8u* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_16u_C1R(const Tpx16u* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx16u* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_16u_C3R(const Tpx16u* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx16u* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_16u_C4R(const Tpx16u* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx16u* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_16u_AC4R(const Tpx16u* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                       int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx16u* pDst, int dstStep,
                       TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_16s_C1R(const Tpx16s* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx16s* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_16s_C3R(const Tpx16s* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx16s* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_16s_C4R(const Tpx16s* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx16s* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_16s_AC4R(const Tpx16s* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                       int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx16s* pDst, int dstStep,
                       TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_32f_C1R(const Tpx32f* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx32f* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_32f_C3R(const Tpx32f* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx32f* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_32f_C4R(const Tpx32f* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                      int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx32f* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_32f_AC4R(const Tpx32f* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx32f* pxMap,
                       int xMapStep, const Tpx32f* pyMap, int yMapStep, Tpx32f* pDst, int dstStep,
                       TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_64f_C1R(const Tpx64f* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx64f* pxMap,
                      int xMapStep, const Tpx64f* pyMap, int yMapStep, Tpx64f* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_64f_C3R(const Tpx64f* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx64f* pxMap,
                      int xMapStep, const Tpx64f* pyMap, int yMapStep, Tpx64f* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_64f_C4R(const Tpx64f* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx64f* pxMap,
                      int xMapStep, const Tpx64f* pyMap, int yMapStep, Tpx64f* pDst, int dstStep,
                      TpxiSize dstRoiSize, int interpolation),
    tpxiRemap_64f_AC4R(const Tpx64f* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx64f* pxMap,
                       int xMapStep, const Tpx64f* pyMap, int yMapStep, Tpx64f* pDst, int dstStep,
                       TpxiSize dstRoiSize, int interpolation);

/** @} */

TPX_EXTERN_C_END

#endif
