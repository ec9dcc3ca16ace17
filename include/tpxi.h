/*
 * libtpxie9: image-processing primitives for x86-64 processors with AVX.
 *
 * Include this one header and link libtpxie9. Every function works on memory that the caller owns; images
 * are given as a pointer to the first pixel, a step in bytes and a size in pixels.
 *
 * Names read <domain><Operation>[_<Variant>]_<types>_<layout><flags>[_L]:
 *   types    8u 16u 16s 32s 32f 64f ...; two codes are source then destination
 *   layout   C1 C3 C4: interleaved channels; AC4: four stored, the fourth of the destination is kept
 *   flags    I: in place, R: region of interest, Sfs: a scale factor n comes last and the result is
 *            multiplied by 2^-n, rounded to nearest with ties to even, and saturated
 *   _L       sizes, steps and offsets of 64 bits
 *
 * Functions return a TpxStatus (tpxi/types.h). Checks run in the order each family states, the first that
 * fails gives the status, and nothing has been written then. All functions are re-entrant.
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
