// SPDX-License-Identifier: Apache-2.0
// The median kernels of 16u.
#include "filters/median_of_mask.h"

namespace tpx {

template void withMedianOf<Layout::C1, Tpx16u>(TpxiSizeL, CallRef<RegionKernel<Tpx16u>>);
template void withMedianOf<Layout::C3, Tpx16u>(TpxiSizeL, CallRef<RegionKernel<Tpx16u>>);
template void withMedianOf<Layout::C4, Tpx16u>(TpxiSizeL, CallRef<RegionKernel<Tpx16u>>);
template void withMedianOf<Layout::AC4, Tpx16u>(TpxiSizeL, CallRef<RegionKernel<Tpx16u>>);

} // namespace tpx
