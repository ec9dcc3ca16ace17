// SPDX-License-Identifier: Apache-2.0
// What a job cannot be faster than: moving its bytes, or its operations.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "frame/race.h"

namespace bench {

struct Bound {
    std::string name; // of the yardstick, or "operations"; empty if none is known
    double seconds = 0;
};

// The larger one of those that are known. A resize has to write its destination, so a copy of that bounds it.
Bound boundOf(const Row& row);
// The bound's time over ours: 1 is all that there is to gain; 0 without a bound.
double ofBound(const Row& row);

// By family: how far its jobs are from their bounds at two sizes.
using Lines = std::vector<std::vector<std::string>>;
Lines boundsByGroup(const std::vector<Row>& rows);

} // namespace bench
