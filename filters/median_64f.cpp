// SPDX-License-Identifier: Apache-2.0
// The median kernels of 64f.
#include "filters/median_of_mask.h"

namespace tpx {

template void withMedianOf<Layout::C1, Tpx64f>(TpxiSizeL, CallRef<RegionKernel<Tpx64f>>);

} // namespace tpx
