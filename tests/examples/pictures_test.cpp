// SPDX-License-Identifier: Apache-2.0
// Whatever a PNG file holds, the examples read it as 8-bit RGB, and the contact sheet can be made of it.
#include "examples/png_io.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <ostream>
#include <vector>

namespace {

namespace fs = std::filesystem;

// A file of a test: what it stores, and the 8-bit RGB that this stands for.
struct Picture {
    const char* name;
    TpxiSize size;
    int colourType = PNG_COLOR_TYPE_RGB;
    int depth = 8;
    bool interlaced = false;
    std::function<Tpx8u(int x, int y, int c)> sample;
};

void PrintTo(const Picture& picture, std::ostream* out) { *out << picture.name; }

Tpx8u ramp(int x, int y, int c) { return static_cast<Tpx8u>(x * 5 + y * 3 + c * 40); }

const Picture kPictures[] = {
    {.name = "black", .size = {40, 30}, .sample = [](int, int, int) { return Tpx8u(0); }},
    {.name = "red", .size = {40, 30}, .sample = [](int, int, int c) { return Tpx8u(c == 0 ? 255 : 0); }},
    {.name = "pixel", .size = {1, 1}, .sample = ramp},
    {.name = "column", .size = {1, 50}, .sample = ramp},
    {.name = "strip", .size = {50, 5}, .sample = ramp},
    {.name = "transparent",
     .size = {40, 30},
     .colourType = PNG_COLOR_TYPE_RGBA,
     .sample = [](int x, int y,
                  int c) { return c == 3  ? Tpx8u(x % 2 * 255)
                                  : x % 2 ? ramp(x, y, c)
                                          : Tpx8u(0); }},
    {.name = "grey",
     .size = {40, 30},
     .colourType = PNG_COLOR_TYPE_GRAY,
     .sample = [](int x, int y, int) { return ramp(x, y, 0); }},
    {.name = "bits",
     .size = {40, 30},
     .colourType = PNG_COLOR_TYPE_GRAY,
     .depth = 1,
     .sample = [](int x, int y, int) { return Tpx8u((x ^ y) & 1 ? 255 : 0); }},
    {.name = "deep", .size = {40, 30}, .depth = 16, .sample = ramp},
    {.name = "interlaced", .size = {41, 31}, .interlaced = true, .sample = ramp},
    {.name = "deep_interlaced", .size = {41, 31}, .depth = 16, .interlaced = true, .sample = ramp},
    {.name = "deep_grey_interlaced",
     .size = {41, 31},
     .colourType = PNG_COLOR_TYPE_GRAY,
     .depth = 16,
     .interlaced = true,
     .sample = [](int x, int y, int) { return ramp(x, y, 0); }},
};

// Eight bits more repeat the sample, so that the rounding of 16 bits to 8 leaves it as it was.
void write(const Picture& picture, const fs::path& path) {
    FILE* file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr);
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_init_io(png, file);
    const auto [width, height] = picture.size;
    png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), picture.depth,
                 picture.colourType, picture.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_packing(png);
    const int channels = png_get_channels(png, info);
    for (int passes = png_set_interlace_handling(png); passes > 0; --passes)
        for (int y = 0; y < height; ++y) {
            std::vector<png_byte> row;
            for (int x = 0; x < width; ++x)
                for (int c = 0; c < channels; ++c) {
                    const Tpx8u sample = picture.sample(x, y, c);
                    row.push_back(picture.depth == 1 ? sample & 1 : sample);
                    if (picture.depth == 16) row.push_back(sample);
                }
            png_write_row(png, row.data());
        }
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    std::fclose(file);
}

class Pictures : public ::testing::TestWithParam<Picture> {
 protected:
    void SetUp() override {
        directory_ = fs::temp_directory_path() / ("tpx_pictures_" + std::to_string(getpid()));
        fs::create_directories(directory_);
        path_ = directory_ / (std::string(GetParam().name) + ".png");
        write(GetParam(), path_);
    }
    void TearDown() override { fs::remove_all(directory_); }

    fs::path directory_, path_;
};

TEST_P(Pictures, AreReadAsRgb) {
    const Image8u read = readPng(path_, {.maxSide = 100, .maxPixels = 10000});
    ASSERT_EQ(read.size().width, GetParam().size.width);
    ASSERT_EQ(read.size().height, GetParam().size.height);
    for (int y = 0; y < read.size().height; ++y)
        for (int x = 0; x < read.size().width; ++x)
            for (int c = 0; c < kChannels; ++c)
                ASSERT_EQ(read.view().at(x, y)[c], GetParam().sample(x, y, c)) << x << ", " << y << ", " << c;
}

// Of those whose samples may be trouble: the sheet knows nothing of files.
using Sheets = Pictures;

TEST_P(Sheets, AreMade) {
    const fs::path sheet = directory_ / "sheet.png";
    const std::string command = CONTACT_SHEET " '" + path_.string() + "' '" + sheet.string() + "' >/dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_GT(readPng(sheet, {.maxSide = 32768, .maxPixels = 1 << 25}).size().height, 1000);
}

const auto kName = [](const auto& info) { return info.param.name; };
INSTANTIATE_TEST_SUITE_P(Examples, Pictures, ::testing::ValuesIn(kPictures), kName);
INSTANTIATE_TEST_SUITE_P(Examples, Sheets, ::testing::ValuesIn(kPictures, kPictures + 4), kName);

} // namespace
