// SPDX-License-Identifier: Apache-2.0
// The races as a picture, drawn by gnuplot.
#pragma once

#include "frame/race.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace bench {

// Writes a script, data included, that draws all rows into a PNG file.
void writeScript(std::ostream& out, const std::string& png, const std::string& subtitle,
                 const std::vector<Row>& rows);

} // namespace bench
