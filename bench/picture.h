// SPDX-License-Identifier: Apache-2.0
// The races as bars, which bench/picture.gp draws.
#pragma once

#include "frame/race.h"

#include <iosfwd>
#include <vector>

namespace bench {

void writeBars(std::ostream& out, const std::vector<Row>& rows);

} // namespace bench
