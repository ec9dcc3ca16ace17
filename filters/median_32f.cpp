// SPDX-License-Identifier: Apache-2.0
// The median kernels of 32f.
#include "filters/median_of_mask.h"

namespace tpx {

template void withMedianOf<Layout::C1, Tpx32f>(TpxiSizeL, CallRef<RegionKernel<Tpx32f>>);
template void withMedianOf<Layout::C3, Tpx32f>(TpxiSizeL, CallRef<RegionKernel<Tpx32f>>);
template void withMedianOf<Layout::C4, Tpx32f>(TpxiSizeL, CallRef<RegionKernel<Tpx32f>>);

} // namespace tpx
