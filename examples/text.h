// SPDX-License-Identifier: Apache-2.0
// Text drawn into an image.
#pragma once

#include <string>

#include "image.h"

struct TextStyle {
    const char* family;
    double size;
    bool bold;
    Tpx8u colour[kChannels];
};

// Draws one line of UTF-8 text from `x`, standing on `baseline`. A text wider than `width` pixels is cut and
// ends with an ellipsis.
void drawText(Pixels dst, int x, int baseline, int width, const std::string& text, const TextStyle& style);
