// SPDX-License-Identifier: Apache-2.0
// A surface to put pictures, rectangles and text on.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "image.h"

struct TextStyle {
    const char* face;
    int size; // in pixels
    Tpx8u colour[kChannels];
};

// One line of text, which is cut with an ellipsis where it is too wide.
struct TextLine {
    std::string text;
    TextStyle style;
};

class Canvas {
 public:
    Canvas(TpxiSize size, const Tpx8u (&colour)[kChannels]);

    void fill(TpxiRect area, const Tpx8u (&colour)[kChannels]);
    void paste(ConstPixels picture, TpxiPoint at);
    // Lines below each other, from `at` on, in `width` pixels.
    void write(const std::vector<TextLine>& lines, TpxiPoint at, int width);
    // How many pixels they are high.
    static int height(const std::vector<TextLine>& lines, int width);

    Image8u image() const;

 private:
    struct Release {
        void operator()(void* surface) const;
    };

    TpxiSize size_;
    std::unique_ptr<void, Release>
        surface_; // Cairo's, whose pixels are blue, green, red and a byte without use
};
