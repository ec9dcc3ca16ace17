// SPDX-License-Identifier: Apache-2.0
// Memory for the images of any export: content that does not depend on how an image lies, and the ways of
// lying.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "tests/exports/call.h"
#include "tests/support/guarded.h"

namespace tpx::test {

// One side of a call. The content is made once for the largest image; narrower images show the beginnings of
// its rows.
class Content {
 public:
    // Samples of moderate size, so that sums of floats are finite and thresholds are met from both sides.
    Content(const Export& e, Side side, int width, int height, int variant);

    Tpx8u* row(int y) { return &bytes_[size_t(y) * size_t(rowBytes_)]; }
    const Tpx8u* row(int y) const { return &bytes_[size_t(y) * size_t(rowBytes_)]; }
    int rows() const { return rows_; }
    int maxRowBytes() const { return rowBytes_; }
    Place place() { return {bytes_.data(), rowBytes_, ptrdiff_t(rowBytes_) * rows_ / planes_}; }

 private:
    std::vector<Tpx8u> bytes_;
    int rowBytes_, rows_, planes_;
};

inline constexpr Tpx8u kAround = 0xA5;

// Fills memory as Content does; not the same for every side.
void fillSamples(Tpx8u* bytes, size_t count, const std::string& type, Side side);

// The exports of an operation that call() can call, in the order of the headers.
std::vector<const Export*> callable(const std::string& operation);
// All operations of which some are.
std::vector<std::string> operations();

} // namespace tpx::test
