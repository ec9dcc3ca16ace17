/* SPDX-License-Identifier: Apache-2.0 */
/** @file
 * The one header to include: image-processing primitives for x86-64 processors with AVX.
 *
 * @mainpage libtpxie9
 *
 * Include tpxi.h and link libtpxie9. Every function works on memory that the caller owns; images are given as a
 * pointer to the first pixel, a step in bytes and a size in pixels. A family of functions has one text, which
 * tells what it does, its parameters, and its statuses in the order in which they are checked.
 *
 * Names read domain, operation, types, layout and flags, as in tpxiSqr_16s_C3IRSfs:
 * - types: 8u 16u 16s 32s 32f 64f ...; two codes are source then destination
 * - layout: C1 C3 C4 are interleaved channels; AC4 has four, of which the destination keeps the fourth; P3 P4
 *   are planes
 * - flags: I is in place, R a region of interest, M under a mask; with Sfs a scale factor n comes last, and the
 *   result is multiplied by 2^-n, rounded to nearest with ties to even (tpxiConvert: as roundMode says), and
 *   saturated
 * - _L: sizes, steps and offsets of 64 bits
 *
 * **Statuses.** Functions return a TpxStatus, but those of memory and version (frame.h, tpxMalloc, tpxFree) and
 * tpxiWarpGetRectInfinite. Checks run in the order that each family states, and the first that fails gives the
 * status; tpxi/status_text.h tells what it is called and what it means.
 * - Negative: an error. No pixel of the destination has been written. An initialiser that fails may have
 *   written to its plan, which then serves nothing, and a query may have stored some of its results; families
 *   say where.
 * - Positive: a warning. tpxWarnNoOperation and tpxWarnNoRoiOverlap say that nothing was done and nothing
 *   stored, tpxWarnNoQuadOverlap that its family tells what was written. After all others the work is complete.
 *
 * **Results** are the same on every processor. Logarithms, exponentials and Fourier transforms of floats are
 * within the errors that they tell, and the last bits of sums over an image of floats or of 32-bit integers can
 * depend on its step; all else is what its family's rule says, bit for bit.
 *
 * **Threads.** All functions are re-entrant. Plans and specs are only read by processing calls.
 *
 * **Arrays.** Planes are declared with const samples where they are read, and matrices that are computed want a
 * cast before C23, so that C compilers take them without a warning:
 *
 *     Tpx8u* planes[3] = {red, green, blue};            for a parameter Tpx8u* const pDst[3]
 *     const Tpx8u* sources[3] = {red, green, blue};     for a parameter const Tpx8u* const pSrc[3]
 *     (const Tpx64f(*)[3])coeffs, of Tpx64f[2][3]       for a parameter const Tpx64f coeffs[2][3]
 */
#ifndef TPXI_H
#define TPXI_H

#include "tpxi/types.h"

#include "tpxi/frame.h"

#include "tpxi/arithmetic.h"
#include "tpxi/borders.h"
#include "tpxi/convert.h"
#include "tpxi/copy.h"
#include "tpxi/filters_box.h"
#include "tpxi/filters_fixed.h"
#include "tpxi/filters_general.h"
#include "tpxi/filters_median.h"
#include "tpxi/fourier.h"
#include "tpxi/geometry.h"
#include "tpxi/remap.h"
#include "tpxi/resize_taps.h"
#include "tpxi/statistics.h"
#include "tpxi/threshold.h"
#include "tpxi/transforms.h"
#include "tpxi/warp.h"

#endif
