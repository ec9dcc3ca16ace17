/* Maps of the plane: what they make of rectangles, maps from rectangles to quadrangles, rotations. */
#ifndef TPXI_TRANSFORMS_H
#define TPXI_TRANSFORMS_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* All positions are in pixels, with the centre of an image's first pixel at (0, 0) and y going down, in double
 * precision. A map takes (x, y) to (x', y'):
 *
 *   affine       coeffs[2][3]   x' = c00 x + c01 y + c02            y' = c10 x + c11 y + c12
 *   perspective  coeffs[3][3]   x' = (c00 x + c01 y + c02) / d      y' = (c10 x + c11 y + c12) / d
 *                                    with d = c20 x + c21 y + c22
 *   bilinear     coeffs[2][4]   x' = c00 x y + c01 x + c02 y + c03  y' = c10 x y + c11 x + c12 y + c13
 *
 * A quadrangle quad[4][2] has its corners (x, y) in the order of a rectangle's, which are the centres of its
 * outermost pixels: (x, y), (x + width - 1, y), (x + width - 1, y + height - 1), (x, y + height - 1). It is
 * well formed if it is convex, has no three corners on a line, and only finite numbers; it may run either way
 * round. A bound[2][2] is (least x, least y), (greatest x, greatest y). */

/* ---- Rectangles through maps: tpxiGet<Map>Quad, tpxiGet<Map>Bound -----------------------------------------
 * Where the corners of srcRoi go, and the rectangle around them.
 *
 * Statuses, in order: tpxErrNullPointer (quad or bound, coeffs); tpxErrSize (x or y negative, width or height
 * below 1); tpxErrCoefficient (the quadrangle is not well formed, as for a rectangle one pixel wide or high, a
 * map that is not invertible or not finite, a perspective whose horizon crosses the rectangle; quad and bound
 * are stored all the same, and hold numbers as far as the corners are such); tpxOk. */
TPX_API TpxStatus tpxiGetAffineQuad(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[2][3]);
TPX_API TpxStatus tpxiGetPerspectiveQuad(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[3][3]);
TPX_API TpxStatus tpxiGetBilinearQuad(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[2][4]);

TPX_API TpxStatus tpxiGetAffineBound(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[2][3]);
TPX_API TpxStatus tpxiGetPerspectiveBound(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[3][3]);
TPX_API TpxStatus tpxiGetBilinearBound(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[2][4]);

/* ---- Maps onto quadrangles: tpxiGet<Map>Transform ---------------------------------------------------------
 * The map that takes the corners of srcRoi to those of quad. An affine map is settled by the first three
 * corners, and takes the fourth to where it makes a parallelogram. The perspective map (P. Heckbert,
 * "Fundamentals of Texture Mapping and Image Warping", 1989) has d = 1 at the rectangle's first corner, so
 * that c22 is 1 for a rectangle at the origin. A bilinear map has c00 = 0 if the x of the corners are those of
 * a parallelogram to within 1e-10 of the longest edge along x, and c10 = 0 likewise.
 *
 * Statuses, in order: tpxErrNullPointer (quad, coeffs); tpxErrSize (x or y negative, width or height below 1);
 * tpxErrQuad (not well formed); tpxErrRect (width or height of 1); tpxErrQuad (the coefficients leave the range
 * of numbers); tpxWarnNotParallelogram (affine: opposite edges are not parallel; the coefficients are stored);
 * tpxOk. */
TPX_API TpxStatus tpxiGetAffineTransform(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[2][3]);
TPX_API TpxStatus tpxiGetPerspectiveTransform(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[3][3]);
TPX_API TpxStatus tpxiGetBilinearTransform(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[2][4]);

/* ---- Rotation: tpxiGetRotateTransform, tpxiGetRotateShift -------------------------------------------------
 * The affine map that turns by `angle` degrees around (0, 0), counter-clockwise as seen on a screen, and then
 * shifts: x' = x cos + y sin + xShift, y' = -x sin + y cos + yShift. Multiples of 90 degrees are exact. The
 * shift with which the centre (xCenter, yCenter) stays where it is comes from tpxiGetRotateShift.
 *
 * Statuses, in order: tpxErrOutOfRange (tpxiGetRotateTransform: an angle that is not finite); tpxErrNullPointer
 * (coeffs; xShift, yShift); tpxOk. tpxiGetRotateShift of an angle that is not finite stores NaN. */
TPX_API TpxStatus tpxiGetRotateShift(Tpx64f xCenter, Tpx64f yCenter, Tpx64f angle, Tpx64f* xShift,
                                     Tpx64f* yShift);
TPX_API TpxStatus tpxiGetRotateTransform(Tpx64f angle, Tpx64f xShift, Tpx64f yShift, Tpx64f coeffs[2][3]);

/* ---- Source rectangle of a tile: tpxiGetAffineSrcRoi ------------------------------------------------------
 * The pixels of a source of srcSize between which the positions of the tile dstRoi lie, with a pixel more on
 * sides where a position is within 1e-7 of one. `direction` 0: coeffs map source to destination, 1: destination
 * to source. The rectangle always lies in the source, and is at least as large as what a tile of 2x2 pixels at
 * the same place needs, if the source is; of a tile that lies beyond the source, it is the part nearest to it.
 *
 * Statuses, in order: tpxErrNullPointer (coeffs, pSrcRoi); tpxErrSize (dstRoi: x or y negative, width or height
 * below 1; srcSize: below 1); tpxErrWarpDirection; tpxErrCoefficient (a determinant below 2^-52 in magnitude,
 * or coefficients, of the map or of its inverse where that is needed, that are not finite); tpxOk. */
TPX_API TpxStatus tpxiGetAffineSrcRoi(TpxiSize srcSize, const Tpx64f coeffs[2][3], int direction,
                                      TpxiRect dstRoi, TpxiRect* pSrcRoi);

TPX_EXTERN_C_END

#endif
