// SPDX-License-Identifier: Apache-2.0
// The same resizes by public libraries, on images of their own. Each is called from one thread with a plan
// made beforehand, where it has plans.
#pragma once

#include "../frame/race.h"

#include <tpxi.h>

#include <string>
#include <vector>

namespace bench {

enum class Kind { nearest, linear, cubic, lanczos3, area };
inline constexpr float kCubicB = 0, kCubicC = 0.5f;

struct Scaling {
    Kind kind;
    TpxDataType type; // 8u, 16u or 32f
    int channels;
    TpxiSize from;
    TpxiSize to;
};

// The contenders that take part in a scaling; none of a library that the build did not find.
std::vector<Contender> yardsticks(const Scaling& scaling);

// One line on the versions of the libraries.
std::string yardstickVersions();

// Holds the libraries to AVX, as far as they offer it; by default they choose what the processor has.
void limitYardsticksToAvx();

} // namespace bench
