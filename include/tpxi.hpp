// SPDX-License-Identifier: Apache-2.0
// libtpxie9 for C++17 and later: header-only, over tpxi.h.
//
//   tpxi::Image<Tpx8u, 3> photo(640, 480), small(320, 240);
//   const auto plan = tpxi::ResizePlan<Tpx8u>::antialiasingLanczos(photo.size(), small.size());
//   plan(photo, small, plan.buffer(3));
//   tpxi::thresholdGT(small.sub(0, 0, 320, 20), {235, 235, 235});
//
// Names are those of C without prefix, sample type and layout, which come from the images: tpxiSqr_8u_C3RSfs is
// tpxi::sqr(src, dst, scaleFactor), tpxiSqr_8u_C3IRSfs is tpxi::sqr(image, scaleFactor). Arguments are an Image
// or a View, then those of the C function in its order; its comment in the C header of the family holds here
// too. What the library has no function for is refused by the compiler; tpxi::offers asks.
//
// Each function is one call of C, and nothing else: no copies, no conversions, no memory but that of images,
// plans and buffers that are made by name. Images that share a size in C have to have the same here
// (tpxErrSize). A negative status is thrown as tpxi::Error, others are returned. Plans and buffers are values
// that move.
#ifndef TPXI_HPP
#define TPXI_HPP

#include "tpxi.h"

#include "tpxi/hpp/image.hpp" // Error, check, View, Image, Buffer

#include "tpxi/hpp/call.hpp" // offers

#include "tpxi/hpp/arithmetic.hpp"
#include "tpxi/hpp/convert.hpp"
#include "tpxi/hpp/copy.hpp"
#include "tpxi/hpp/filters.hpp"
#include "tpxi/hpp/fourier.hpp"
#include "tpxi/hpp/resize.hpp"
#include "tpxi/hpp/statistics.hpp"
#include "tpxi/hpp/threshold.hpp"
#include "tpxi/hpp/warp.hpp"

#undef TPXI_NAME
#undef TPXI_NAMES_13
#undef TPXI_NAMES_134
#undef TPXI_NAMES_13A
#undef TPXI_NAMES_134A
#undef TPXI_8U_16U_16S
#undef TPXI_8U_16U_16S_32F
#undef TPXI_8U_16U_16S_32S_32F
#undef TPXI_TYPED_NAME

#endif
