// SPDX-License-Identifier: Apache-2.0
// The races as a table: aligned text for the terminal, Markdown for the documentation.
#pragma once

#include "frame/race.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace bench {

enum class Style { text, markdown };

// What stands above the figures: the machine, the libraries, the conditions.
using Facts = std::vector<std::string>;

void writeTable(std::ostream& out, Style style, const Facts& facts, const std::vector<Row>& rows);

// For the README: eight rows, and one sentence that they bear out.
void writeSummary(std::ostream& out, const Facts& facts, const std::vector<Row>& rows);
void writeSentence(std::ostream& out, const std::vector<Row>& rows);

// In the order of their first appearance.
std::vector<std::string> groups(const std::vector<Row>& rows);
std::vector<Row> inGroup(const std::vector<Row>& rows, const std::string& group);
std::vector<std::string> yardsticksOf(const std::vector<Row>& rows);

} // namespace bench
