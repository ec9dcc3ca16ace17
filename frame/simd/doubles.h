// SPDX-License-Identifier: Apache-2.0
// Four doubles, and four floats beside them.
#pragma once

#include "frame/simd/simd.h"

namespace tpx {

inline V64f toDouble(Four<float> a) { return V64f(_mm256_cvtps_pd(__m128(a))); }
inline Four<float> toFloat(V64f a) { return Four<float>(_mm256_cvtpd_ps(a)); }

// The bits of a comparison's lanes.
inline Tpx32u laneBits(B64f mask) { return Tpx32u(_mm256_movemask_pd(bitsAs<__m256d>(mask))); }

} // namespace tpx
