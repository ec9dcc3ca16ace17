// SPDX-License-Identifier: Apache-2.0
#include "png_io.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

// libpng's record, released on every way out.
struct Png : png_image {
    Png() : png_image{} { version = PNG_IMAGE_VERSION; }
    ~Png() { png_image_free(this); }
    Png(const Png&) = delete;
    Png& operator=(const Png&) = delete;
};

[[noreturn]] void fail(const std::string& path, const std::string& reason) {
    throw std::runtime_error(path + ": " + reason);
}

std::string text(long long width, long long height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

} // namespace

Image8u readPng(const std::string& path, const SizeLimits& limits) {
    Png png;
    if (!png_image_begin_read_from_file(&png, path.c_str())) fail(path, png.message);
    const long long width = png.width;
    const long long height = png.height;
    if (width < limits.minSide || height < limits.minSide)
        fail(path,
             "the image is " + text(width, height) + ", the least is " + text(limits.minSide, limits.minSide));
    if (width > limits.maxSide || height > limits.maxSide || width * height > limits.maxPixels)
        fail(path, "the image is " + text(width, height) + ", the most is " + std::to_string(limits.maxSide) +
                       " on a side and " + std::to_string(limits.maxPixels) + " pixels");

    png.format = PNG_FORMAT_RGB;
    png.flags |= PNG_IMAGE_FLAG_16BIT_sRGB; // 16-bit files that do not tell are taken as 8-bit ones are
    Image8u image({static_cast<int>(width), static_cast<int>(height)});
    const png_color black = {0, 0, 0};
    const Pixels pixels = image.view();
    if (!png_image_finish_read(&png, &black, pixels.data, pixels.step, nullptr)) fail(path, png.message);
    return image;
}

void writePng(const std::string& path, ConstPixels image, bool overwrite) {
    FILE* file = std::fopen(path.c_str(), overwrite ? "wb" : "wbx");
    if (!file) fail(path, std::strerror(errno));
    Png png;
    png.width = image.size.width;
    png.height = image.size.height;
    png.format = PNG_FORMAT_RGB;
    std::string reason;
    if (!png_image_write_to_stdio(&png, file, 0, image.data, image.step, nullptr)) reason = png.message;
    if (std::fclose(file) != 0 && reason.empty()) reason = std::strerror(errno);
    if (reason.empty()) return;
    if (!overwrite) std::remove(path.c_str()); // the file is this call's own
    fail(path, reason);
}
