// SPDX-License-Identifier: Apache-2.0
// The border copies for those who have checked their arguments: the filters' copies of their rims.
#pragma once

#include "frame/images/border.h"
#include "frame/images/view.h"
#include "tpxi/types.h"

namespace tpx {

// Copies a source of so many pixels into a destination, `top` rows down and `left` pixels in, and fills the
// margins around it by the rule. Pixels are of 1, 2, 3, 4, 6, 8, 12 or 16 bytes; `pixel` is that of a constant
// border. The images do not overlap.
void copyWithBorder(Border kind, int pixelBytes, ImageView<const Tpx8u> src, TpxiSizeL srcSize,
                    ImageView<Tpx8u> dst, TpxiSizeL dstSize, int64_t top, int64_t left, const void* pixel);

} // namespace tpx
