// SPDX-License-Identifier: Apache-2.0
#include "tiled_resize.h"

#include <algorithm>
#include <thread>

namespace {

constexpr Tpx32f kB = 0, kC = 0.5f; // Catmull and Rom's cubic
constexpr Tpx32u kLobes = 3;

// What the kinds of resize differ in. Nearest and super-sampling never read beyond a tile's source rectangle,
// so they take no border.
struct Kind {
    TpxInterpolationType interpolation;
    Tpx32u antialiasing;
    TpxStatus (*init)(TpxiSize, TpxiSize, TpxiResizeSpec*, Tpx8u* temporary);
    const char* name;
    TpxStatus (*run)(const Tpx8u*, int, Tpx8u*, int, TpxiPoint, TpxiSize, TpxBorderType, const Tpx8u*,
                     const TpxiResizeSpec*, Tpx8u*);
};

const Kind kKinds[] = {
    {tpxInterpolationNearest, 0,
     [](TpxiSize src, TpxiSize dst, TpxiResizeSpec* plan, Tpx8u*) {
         return tpxiResizeNearestInit_8u(src, dst, plan);
     },
     "tpxiResizeNearest_8u_C3R",
     [](const Tpx8u* src, int srcStep, Tpx8u* dst, int dstStep, TpxiPoint offset, TpxiSize size, TpxBorderType,
        const Tpx8u*, const TpxiResizeSpec* plan, Tpx8u* buffer) {
         return tpxiResizeNearest_8u_C3R(src, srcStep, dst, dstStep, offset, size, plan, buffer);
     }},
    {tpxInterpolationLinear, 0,
     [](TpxiSize src, TpxiSize dst, TpxiResizeSpec* plan, Tpx8u*) {
         return tpxiResizeLinearInit_8u(src, dst, plan);
     },
     "tpxiResizeLinear_8u_C3R", tpxiResizeLinear_8u_C3R},
    {tpxInterpolationCubic, 0,
     [](TpxiSize src, TpxiSize dst, TpxiResizeSpec* plan, Tpx8u* temporary) {
         return tpxiResizeCubicInit_8u(src, dst, kB, kC, plan, temporary);
     },
     "tpxiResizeCubic_8u_C3R", tpxiResizeCubic_8u_C3R},
    {tpxInterpolationLanczos, 0,
     [](TpxiSize src, TpxiSize dst, TpxiResizeSpec* plan, Tpx8u* temporary) {
         return tpxiResizeLanczosInit_8u(src, dst, kLobes, plan, temporary);
     },
     "tpxiResizeLanczos_8u_C3R", tpxiResizeLanczos_8u_C3R},
    {tpxInterpolationSuper, 0,
     [](TpxiSize src, TpxiSize dst, TpxiResizeSpec* plan, Tpx8u*) {
         return tpxiResizeSuperInit_8u(src, dst, plan);
     },
     "tpxiResizeSuper_8u_C3R",
     [](const Tpx8u* src, int srcStep, Tpx8u* dst, int dstStep, TpxiPoint offset, TpxiSize size, TpxBorderType,
        const Tpx8u*, const TpxiResizeSpec* plan, Tpx8u* buffer) {
         return tpxiResizeSuper_8u_C3R(src, srcStep, dst, dstStep, offset, size, plan, buffer);
     }},
    {tpxInterpolationLanczos, 1,
     [](TpxiSize src, TpxiSize dst, TpxiResizeSpec* plan, Tpx8u* temporary) {
         return tpxiResizeAntialiasingLanczosInit(src, dst, kLobes, plan, temporary);
     },
     "tpxiResizeAntialiasing_8u_C3R", tpxiResizeAntialiasing_8u_C3R},
};

const Kind& of(ResizeKind kind) { return kKinds[static_cast<size_t>(kind)]; }

} // namespace

TiledResize::TiledResize(ResizeKind kind, TpxiSize srcSize, TpxiSize dstSize, int threads)
    : kind_(kind), srcSize_(srcSize), dstSize_(dstSize) {
    int planBytes = 0;
    int initBytes = 0; // only the longer kernels need a buffer to be made
    check(tpxiResizeGetSize_8u(srcSize, dstSize, of(kind).interpolation, of(kind).antialiasing, &planBytes,
                               &initBytes),
          "tpxiResizeGetSize_8u");
    plan_.resize(planBytes);
    auto* plan = reinterpret_cast<TpxiResizeSpec*>(plan_.data());
    std::vector<Tpx8u> temporary(static_cast<size_t>(initBytes) + 1);
    check(of(kind).init(srcSize, dstSize, plan, temporary.data()), "the initialiser of a resize");
    check(tpxiResizeGetBorderSize_8u(plan, &border_), "tpxiResizeGetBorderSize_8u");

    // Bands of whole rows: neighbouring threads then share no cache line but at the seam.
    const int bands = std::clamp(threads, 1, dstSize.height);
    for (int i = 0; i < bands; ++i) {
        const int top = static_cast<int>(static_cast<TpxSizeL>(dstSize.height) * i / bands);
        const int bottom = static_cast<int>(static_cast<TpxSizeL>(dstSize.height) * (i + 1) / bands);
        Tile tile{.dst = {0, top, dstSize.width, bottom - top}, .src = {}, .buffer = {}};
        const TpxiSize size = {tile.dst.width, tile.dst.height};
        TpxiPoint srcOffset;
        TpxiSize srcRoi;
        check(tpxiResizeGetSrcRoi_8u(plan, {0, top}, size, &srcOffset, &srcRoi), "tpxiResizeGetSrcRoi_8u");
        tile.src = {srcOffset.x, srcOffset.y, srcRoi.width, srcRoi.height};
        int bufferBytes = 0;
        check(tpxiResizeGetBufferSize_8u(plan, size, kChannels, &bufferBytes), "tpxiResizeGetBufferSize_8u");
        tile.buffer.resize(bufferBytes);
        tiles_.push_back(std::move(tile));
    }
}

const char* TiledResize::function(ResizeKind kind) { return of(kind).name; }

void TiledResize::run(ConstPixels src, Pixels dst) {
    const auto same = [](TpxiSize a, TpxiSize b) { return a.width == b.width && a.height == b.height; };
    if (!same(src.size, srcSize_) || !same(dst.size, dstSize_))
        throw std::logic_error("an image is not of the size that the resize was planned for");
    {
        // The calling thread takes the first tile; leaving the block joins the others.
        std::vector<std::jthread> others;
        for (size_t i = 1; i < tiles_.size(); ++i)
            others.emplace_back([this, i, src, dst] { runTile(tiles_[i], src, dst); });
        runTile(tiles_[0], src, dst);
    }
    for (const Tile& tile : tiles_) check(tile.status, function(kind_));
}

void TiledResize::runTile(Tile& tile, ConstPixels src, Pixels dst) const {
    const TpxiPoint offset = {tile.dst.x, tile.dst.y};
    const TpxiSize size = {tile.dst.width, tile.dst.height};
    const Tpx8u* from = src.at(tile.src.x, tile.src.y);
    Tpx8u* to = dst.at(offset.x, offset.y);
    // A side is in memory when the image really goes on beyond the tile's source rectangle, as far as the
    // plan reads: at a seam between tiles, and where the source is itself a region of a larger image.
    const TpxiBorderSize margin = src.crop(tile.src).margin;
    TpxBorderType border = tpxBorderReplicate;
    if (margin.left >= border_.left) border |= tpxBorderInMemLeft;
    if (margin.top >= border_.top) border |= tpxBorderInMemTop;
    if (margin.right >= border_.right) border |= tpxBorderInMemRight;
    if (margin.bottom >= border_.bottom) border |= tpxBorderInMemBottom;
    tile.status =
        of(kind_).run(from, src.step, to, dst.step, offset, size, border, nullptr, spec(), tile.buffer.data());
}
