// SPDX-License-Identifier: Apache-2.0
#include "png_io.h"

#include <png.h>

#include <cerrno>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

[[noreturn]] void fail(const std::string& path, const std::string& reason) {
    throw std::runtime_error(path + ": " + reason);
}

std::string text(long long width, long long height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

// libpng's record for writing, released on every way out.
struct Png : png_image {
    Png() : png_image{} { version = PNG_IMAGE_VERSION; }
    ~Png() { png_image_free(this); }
    Png(const Png&) = delete;
    Png& operator=(const Png&) = delete;
};

// A file being read. libpng's png_image would be shorter, but its pixels of interlaced files of 16 bits are
// wrong. libpng leaves a failing call by a long jump to the member function that made it, so these hold nothing
// that has to be destroyed.
class Reader {
 public:
    explicit Reader(const std::string& path)
        : file_(std::fopen(path.c_str(), "rb")),
          png_(png_create_read_struct(
              PNG_LIBPNG_VER_STRING, this,
              [](png_structp png, png_const_charp message) {
                  auto* self = static_cast<Reader*>(png_get_error_ptr(png));
                  std::snprintf(self->message_, sizeof message_, "%s", message);
                  png_longjmp(png, 1);
              },
              [](png_structp, png_const_charp) {})),
          info_(png_ ? png_create_info_struct(png_) : nullptr) {
        if (!file_) std::snprintf(message_, sizeof message_, "%s", std::strerror(errno));
    }
    ~Reader() {
        png_destroy_read_struct(&png_, &info_, nullptr);
        if (file_) std::fclose(file_);
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    bool readHeader() {
        if (!file_ || !info_ || setjmp(png_jmpbuf(png_))) return false;
        png_init_io(png_, file_);
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX); // the caller's own are stricter
        png_read_info(png_, info_);
        return true;
    }
    // Rows of 8-bit RGB.
    bool readPixels(png_bytepp rows) {
        if (setjmp(png_jmpbuf(png_))) return false;
        png_color_16 black = {};
        png_set_expand(png_);
        png_set_gray_to_rgb(png_);
        png_set_gamma(png_, PNG_DEFAULT_sRGB, PNG_DEFAULT_sRGB); // files that do not tell are sRGB
        png_set_background(png_, &black, PNG_BACKGROUND_GAMMA_SCREEN, 0, 1);
        png_set_scale_16(png_);
        png_set_interlace_handling(png_);
        png_read_update_info(png_, info_);
        png_read_image(png_, rows);
        png_read_end(png_, nullptr);
        return true;
    }
    long long width() const { return png_get_image_width(png_, info_); }
    long long height() const { return png_get_image_height(png_, info_); }
    const char* message() const { return message_; }

 private:
    FILE* file_;
    char message_[128] = "not enough memory";
    png_structp png_;
    png_infop info_;
};

} // namespace

Image8u readPng(const std::string& path, const SizeLimits& limits) {
    Reader reader(path);
    if (!reader.readHeader()) fail(path, reader.message());
    const long long width = reader.width();
    const long long height = reader.height();
    if (width > limits.maxSide || height > limits.maxSide || width * height > limits.maxPixels)
        fail(path, "the image is " + text(width, height) + ", the most is " + std::to_string(limits.maxSide) +
                       " on a side and " + std::to_string(limits.maxPixels) + " pixels");

    Image8u image({static_cast<int>(width), static_cast<int>(height)});
    std::vector<png_bytep> rows;
    for (int y = 0; y < image.size().height; ++y) rows.push_back(image.view().at(0, y));
    if (!reader.readPixels(rows.data())) fail(path, reader.message());
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
