// SPDX-License-Identifier: Apache-2.0
// Halves a PNG picture, antialiased, and sharpens it: hello_cpp IN.png OUT.png
#include <png.h>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <tpxi.hpp>

using Photo = tpxi::Image<Tpx8u, 3>;

static Photo read(const char* path) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path))
        throw std::runtime_error(std::string(path) + ": " + png.message);
    png.format = PNG_FORMAT_RGB;
    Photo photo(static_cast<int>(png.width), static_cast<int>(png.height));
    if (!png_image_finish_read(&png, nullptr, photo.data(), photo.step(), nullptr))
        throw std::runtime_error(std::string(path) + ": " + png.message);
    return photo;
}

static void write(const char* path, const Photo& photo) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.format = PNG_FORMAT_RGB;
    png.width = static_cast<png_uint_32>(photo.width());
    png.height = static_cast<png_uint_32>(photo.height());
    if (!png_image_write_to_file(&png, path, 0, photo.data(), photo.step(), nullptr))
        throw std::runtime_error(std::string(path) + ": " + png.message);
}

int main(int argc, char** argv) try {
    if (argc != 3) {
        std::fprintf(stderr, "usage: hello_cpp IN.png OUT.png\n");
        return 2;
    }
    const Photo photo = read(argv[1]);
    Photo half((photo.width() + 1) / 2, (photo.height() + 1) / 2);
    const auto plan = tpxi::ResizePlan<Tpx8u>::antialiasingLanczos(photo.size(), half.size());
    plan(photo, half, plan.buffer(3));

    Photo sharp(half.size());
    const tpxi::Buffer buffer = filterSharpenBorderBuffer(half, sharp, 33);
    filterSharpenBorder(half, sharp, 33, tpxBorderReplicate, 0, buffer);
    write(argv[2], sharp);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
