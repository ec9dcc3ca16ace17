// SPDX-License-Identifier: Apache-2.0
// The median kernels of 8u.
#include "filters/median_of_mask.h"

namespace tpx {

template void withMedianOf<Layout::C1, Tpx8u>(TpxiSizeL, CallRef<RegionKernel<Tpx8u>>);
template void withMedianOf<Layout::C3, Tpx8u>(TpxiSizeL, CallRef<RegionKernel<Tpx8u>>);
template void withMedianOf<Layout::C4, Tpx8u>(TpxiSizeL, CallRef<RegionKernel<Tpx8u>>);
template void withMedianOf<Layout::AC4, Tpx8u>(TpxiSizeL, CallRef<RegionKernel<Tpx8u>>);

} // namespace tpx
