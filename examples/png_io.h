// SPDX-License-Identifier: Apache-2.0
// PNG files in and out, as 8-bit RGB. Failures are thrown as std::runtime_error with the file's name.
#pragma once

#include <string>

#include "image.h"

struct SizeLimits {
    int maxSide;
    long long maxPixels;
};

// Reads a file of any PNG colour type; transparency is laid over black. The limits are tested on the file's
// header, before memory is taken for the pixels.
Image8u readPng(const std::string& path, const SizeLimits& limits);

// Without `overwrite` the file must not exist, not even when it appears at the last moment.
void writePng(const std::string& path, ConstPixels image, bool overwrite);
