// SPDX-License-Identifier: Apache-2.0
// A photograph, and three things made of it, side by side: the picture at the head of the README.
//
//   strip OUTPUT.png
#include <algorithm>
#include <cstdio>
#include <vector>

#include "canvas.h"
#include "png_io.h"
#include "tiled_resize.h"

namespace {

constexpr int kWidth = 1200, kGap = 12, kPictures = 4;
constexpr TpxiSize kSize = {(kWidth - (kPictures - 1) * kGap) / kPictures, 194};
constexpr Tpx8u kPaper[kChannels] = {255, 255, 255};

std::vector<Tpx8u> bytes(int count) { return std::vector<Tpx8u>(static_cast<size_t>(count) + 1); }

Image8u sharpened(ConstPixels src) {
    Image8u result(src.size);
    int size = 0;
    check(tpxiFilterSharpenBorderGetBufferSize(src.size, 33, tpxDataType8u, tpxDataType8u, kChannels, &size),
          "tpxiFilterSharpenBorderGetBufferSize");
    check(tpxiFilterSharpenBorder_8u_C3R(src.data, src.step, result.view().data, result.view().step, src.size,
                                         33, tpxBorderReplicate, 0, bytes(size).data()),
          "tpxiFilterSharpenBorder_8u_C3R");
    return result;
}

// The larger of what the upright and the level Sobel filter find in the green plane, dark on white.
Image8u edges(ConstPixels src) {
    const TpxiSize size = src.size;
    const size_t pixels = static_cast<size_t>(size.width) * static_cast<size_t>(size.height);
    std::vector<Tpx8u> green(pixels), grey(pixels);
    std::vector<Tpx16s> upright(pixels), level(pixels);
    check(tpxiCopy_8u_C3C1R(src.data + 1, src.step, green.data(), size.width, size), "tpxiCopy_8u_C3C1R");
    const int step = size.width * 2;
    int count = 0;
    check(tpxiFilterSobelVertBorderGetBufferSize(size, 33, tpxDataType8u, tpxDataType16s, 1, &count),
          "tpxiFilterSobelVertBorderGetBufferSize");
    auto buffer = bytes(count);
    check(tpxiFilterSobelVertBorder_8u16s_C1R(green.data(), size.width, upright.data(), step, size, 33,
                                              tpxBorderReplicate, 0, buffer.data()),
          "tpxiFilterSobelVertBorder_8u16s_C1R");
    check(tpxiFilterSobelHorizBorderGetBufferSize(size, 33, tpxDataType8u, tpxDataType16s, 1, &count),
          "tpxiFilterSobelHorizBorderGetBufferSize");
    buffer = bytes(count);
    check(tpxiFilterSobelHorizBorder_8u16s_C1R(green.data(), size.width, level.data(), step, size, 33,
                                               tpxBorderReplicate, 0, buffer.data()),
          "tpxiFilterSobelHorizBorder_8u16s_C1R");
    for (auto* gradient : {&upright, &level})
        check(tpxiAbs_16s_C1IR(gradient->data(), step, size), "tpxiAbs_16s_C1IR");
    check(tpxiMaxEvery_16s_C1IR(upright.data(), step, level.data(), step, size), "tpxiMaxEvery_16s_C1IR");
    std::transform(level.begin(), level.end(), grey.begin(),
                   [](Tpx16s gradient) { return static_cast<Tpx8u>(255 - std::min<int>(gradient, 255)); });
    Image8u result(size);
    check(tpxiDup_8u_C1C3R(grey.data(), size.width, result.view().data, result.view().step, size),
          "tpxiDup_8u_C1C3R");
    return result;
}

void make(const std::string& output) {
    const Image8u photo = readPng(CONTACT_SHEET_PHOTOGRAPH, {.maxSide = 32768, .maxPixels = 1 << 25});
    Image8u small(kSize);
    TiledResize resize(ResizeKind::antialiasing, photo.size(), kSize, 2);
    resize.run(photo.view(), small.view());
    Canvas canvas({kWidth, kSize.height + 30}, kPaper);
    int x = 0;
    const auto show = [&](ConstPixels picture, const char* title) {
        canvas.paste(picture.centre(kSize), {x, 0});
        canvas.write({{title, {"DejaVu Sans", 14, {60, 60, 60}}}}, {x, kSize.height + 6}, kSize.width);
        x += kSize.width + kGap;
    };
    show(photo.view(), "Original (a part)");
    show(small.view(), "Resized in tiles");
    show(sharpened(small.view()).view(), "Sharpened");
    show(edges(small.view()).view(), "Edges");
    writePng(output, canvas.image().view(), true);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: strip OUTPUT.png\n", stderr);
        return 2;
    }
    try {
        make(argv[1]);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "strip: %s\n", error.what());
        return 1;
    }
}
