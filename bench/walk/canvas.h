// SPDX-License-Identifier: Apache-2.0
// Memory of an image whose samples are of a type that is known by its name alone.
#pragma once

#include <tpxi.h>

#include <memory>
#include <string>

namespace bench::walk {

struct Range {
    double low, high;
};

class Canvas {
 public:
    // Rows are whole lines apart, and further by `gap` bytes, which also lie around the image.
    Canvas(size_t rowBytes, int rows, size_t gap = 0);

    Tpx8u* data() const { return data_; }
    int step() const { return step_; }
    double bytes() const { return static_cast<double>(rowBytes_) * rows_; }
    // Noise of a type such as "8u"; all of the memory, so that neighbours beyond the edges are noise too.
    void fill(const std::string& type, Range range);

 private:
    struct Free {
        void operator()(void* p) const;
    };
    size_t rowBytes_, all_;
    int rows_, step_;
    std::unique_ptr<Tpx8u, Free> memory_;
    Tpx8u* data_;
};

} // namespace bench::walk
