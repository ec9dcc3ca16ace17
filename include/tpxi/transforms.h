/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Maps of the plane: what they make of rectangles, maps from rectangles to quadrangles, rotations.
 *
 * All positions are in pixels, with the centre of an image's first pixel at (0, 0) and y going down, in double
 * precision. A map takes (x, y) to (x', y'):
 *
 *     affine       coeffs[2][3]   x' = c00 x + c01 y + c02            y' = c10 x + c11 y + c12
 *     perspective  coeffs[3][3]   x' = (c00 x + c01 y + c02) / d      y' = (c10 x + c11 y + c12) / d
 *                                      with d = c20 x + c21 y + c22
 *     bilinear     coeffs[2][4]   x' = c00 x y + c01 x + c02 y + c03  y' = c10 x y + c11 x + c12 y + c13
 *
 * A quadrangle quad[4][2] has its corners (x, y) in the order of a rectangle's, which are the centres of its
 * outermost pixels: (x, y), (x + width - 1, y), (x + width - 1, y + height - 1), (x, y + height - 1). It is
 * well formed if it is convex, has no three corners on a line, and only finite numbers; it may run either way
 * round. A bound[2][2] is (least x, least y), (greatest x, greatest y).
 *
 * Before C23, an array of doubles that are not const goes to a const parameter with a cast:
 * `tpxiGetAffineQuad(roi, quad, (const Tpx64f(*)[3])coeffs)`. */
#ifndef TPXI_TRANSFORMS_H
#define TPXI_TRANSFORMS_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Rectangles through maps: tpxiGetAffineQuad, tpxiGetPerspectiveQuad, tpxiGetBilinearQuad
 * @{ */

/**
 * Tells where a map takes the corners of a rectangle: the centres of its outermost pixels. Positions are in
 * pixels, with the centre of an image's first pixel at (0, 0) and y going down.
 *
 * @param srcRoi rectangle in pixels
 * @param quad   takes the positions (x, y) of its corners, in the order (x, y), (x + width - 1, y),
 *     (x + width - 1, y + height - 1), (x, y + height - 1) of the rectangle's
 * @param coeffs the map: affine x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12; perspective with both
 *     over d = c20 x + c21 y + c22; bilinear x' = c00 x y + c01 x + c02 y + c03 and likewise y'
 * @return The first of these that applies: tpxErrNullPointer (quad, coeffs); tpxErrSize (x or y negative,
 *     width or height below 1); tpxErrCoefficient (the quadrangle is not well formed, as for a rectangle one
 *     pixel wide or high, a map that is not invertible or not finite, a perspective whose horizon crosses the
 *     rectangle; quad is stored all the same, and holds numbers as far as the corners are such); tpxOk.
 */
TPX_API TpxStatus
    tpxiGetAffineQuad(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[2][3]),
    tpxiGetPerspectiveQuad(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[3][3]),
    tpxiGetBilinearQuad(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[2][4]);

/** @} */

/** @name Bounds of mapped rectangles: tpxiGetAffineBound, tpxiGetPerspectiveBound, tpxiGetBilinearBound
 * @{ */

/**
 * Tells the rectangle around the corners that a map makes of a rectangle's. Positions are in pixels, with the
 * centre of an image's first pixel at (0, 0) and y going down.
 *
 * @param srcRoi rectangle in pixels
 * @param bound  takes (least x, least y), (greatest x, greatest y) of the mapped corners
 * @param coeffs the map: affine x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12; perspective with both
 *     over d = c20 x + c21 y + c22; bilinear x' = c00 x y + c01 x + c02 y + c03 and likewise y'
 * @return The first of these that applies: tpxErrNullPointer (bound, coeffs); tpxErrSize (x or y negative,
 *     width or height below 1); tpxErrCoefficient (the quadrangle is not well formed, as for a rectangle one
 *     pixel wide or high, a map that is not invertible or not finite, a perspective whose horizon crosses the
 *     rectangle; bound is stored all the same, and holds numbers as far as the corners are such); tpxOk.
 */
TPX_API TpxStatus
    tpxiGetAffineBound(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[2][3]),
    tpxiGetPerspectiveBound(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[3][3]),
    tpxiGetBilinearBound(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[2][4]);

/** @} */

/** @name Maps onto quadrangles: tpxiGetAffineTransform, tpxiGetPerspectiveTransform, tpxiGetBilinearTransform
 * @{ */

/**
 * Finds the map that takes the corners of a rectangle to those of a quadrangle. An affine map is settled by
 * the first three corners, and takes the fourth to where it makes a parallelogram. The perspective map (P.
 * Heckbert, "Fundamentals of Texture Mapping and Image Warping", 1989) has d = 1 at the rectangle's first
 * corner, so that c22 is 1 for a rectangle at the origin. A bilinear map has c00 = 0 if the x of the corners
 * are those of a parallelogram to within 1e-10 of the longest edge along x, and c10 = 0 likewise.
 *
 * @code
 * const Tpx64f corners[4][2] = {{10, 0}, {600, 40}, {639, 479}, {0, 400}};
 * TpxiRect page = {0, 0, 640, 480};
 * Tpx64f coeffs[3][3], bound[2][2];
 * TpxStatus status = tpxiGetPerspectiveTransform(page, corners, coeffs);
 * // the cast is needed before C23
 * if (!status) status = tpxiGetPerspectiveBound(page, bound, (const Tpx64f(*)[3])coeffs);
 * @endcode
 *
 * @param srcRoi rectangle in pixels
 * @param quad   corners (x, y) that the rectangle's (x, y), (x + width - 1, y), (x + width - 1,
 *     y + height - 1), (x, y + height - 1) go to
 * @param coeffs takes the map: affine x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12; perspective with
 *     both over d = c20 x + c21 y + c22; bilinear x' = c00 x y + c01 x + c02 y + c03 and likewise y'
 * @return The first of these that applies: tpxErrNullPointer (quad, coeffs); tpxErrSize (x or y negative,
 *     width or height below 1); tpxErrQuad (not well formed); tpxErrRect (width or height of 1); tpxErrQuad
 *     (the coefficients leave the range of numbers); tpxWarnNotParallelogram (affine: opposite edges are not
 *     parallel; the coefficients are stored); tpxOk.
 */
TPX_API TpxStatus
    tpxiGetAffineTransform(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[2][3]),
    tpxiGetPerspectiveTransform(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[3][3]),
    tpxiGetBilinearTransform(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[2][4]);

/** @} */

/** @name Shift that keeps a centre: tpxiGetRotateShift
 * @{ */

/**
 * Tells the shift with which a rotation by tpxiGetRotateTransform leaves a centre where it is. An angle that
 * is not finite stores NaN.
 *
 * @param xCenter column of the centre in pixels
 * @param yCenter row of the centre in pixels
 * @param angle   angle in degrees, counter-clockwise as seen on a screen
 * @param xShift  takes the shift along x in pixels
 * @param yShift  takes the shift along y in pixels
 * @return The first of these that applies: tpxErrNullPointer (xShift, yShift); tpxOk.
 */
TPX_API TpxStatus tpxiGetRotateShift(Tpx64f xCenter, Tpx64f yCenter, Tpx64f angle, Tpx64f* xShift,
                                     Tpx64f* yShift);

/** @} */

/** @name Rotation: tpxiGetRotateTransform
 * @{ */

/**
 * Makes the affine map that turns around (0, 0) and then shifts: x' = x cos + y sin + xShift, y' = -x sin + y
 * cos + yShift. Sines and cosines of multiples of 90 degrees are exact.
 *
 * @param angle  angle in degrees, counter-clockwise as seen on a screen
 * @param xShift shift along x in pixels
 * @param yShift shift along y in pixels
 * @param coeffs takes the map: x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12
 * @return The first of these that applies: tpxErrOutOfRange (an angle that is not finite); tpxErrNullPointer
 *     (coeffs); tpxOk.
 */
TPX_API TpxStatus tpxiGetRotateTransform(Tpx64f angle, Tpx64f xShift, Tpx64f yShift, Tpx64f coeffs[2][3]);

/** @} */

/** @name Source rectangle of a tile: tpxiGetAffineSrcRoi
 * @{ */

/**
 * Tells the pixels of a source between which the positions of a tile lie, with a pixel more on sides where a
 * position is within 1e-7 of one. The rectangle always lies in the source, and is at least as large as what a
 * tile of 2x2 pixels at the same place needs, if the source is; of a tile that lies beyond the source, it is
 * the part nearest to it.
 *
 * @param srcSize   width and height of the source in pixels
 * @param coeffs    the map: x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12
 * @param direction 0: coeffs map the source to the destination; 1: the destination to the source
 * @param dstRoi    tile of the destination in pixels
 * @param pSrcRoi   takes the rectangle of the source in pixels
 * @return The first of these that applies: tpxErrNullPointer (coeffs, pSrcRoi); tpxErrSize (dstRoi: x or y
 *     negative, width or height below 1; srcSize: below 1); tpxErrWarpDirection; tpxErrCoefficient (a
 *     determinant below 2^-52 in magnitude, or coefficients, of the map or of its inverse where that is
 *     needed, that are not finite); tpxOk.
 */
TPX_API TpxStatus tpxiGetAffineSrcRoi(TpxiSize srcSize, const Tpx64f coeffs[2][3], int direction,
                                      TpxiRect dstRoi, TpxiRect* pSrcRoi);

/** @} */

TPX_EXTERN_C_END

#endif
