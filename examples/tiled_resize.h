// SPDX-License-Identifier: Apache-2.0
// Resize of a three-channel 8-bit image with one plan, its tiles shared out over threads.
#pragma once

#include <vector>

#include "image.h"

enum class ResizeKind { nearest, linear, cubic, lanczos, super, antialiasing };

// Plan and work buffers are made once; run() may then be called for any number of images of these sizes. An
// object serves one run() at a time, because its work buffers do.
class TiledResize {
 public:
    TiledResize(ResizeKind kind, TpxiSize srcSize, TpxiSize dstSize, int threads);
    // The plan points into its own memory.
    TiledResize(const TiledResize&) = delete;
    TiledResize& operator=(const TiledResize&) = delete;

    void run(ConstPixels src, Pixels dst);

    // One tile for each thread; fewer than asked for when the destination has fewer rows.
    int threads() const { return static_cast<int>(tiles_.size()); }
    static const char* function(ResizeKind kind);

 private:
    struct Tile {
        TpxiRect dst;
        TpxiRect src;
        std::vector<Tpx8u> buffer;
        TpxStatus status = tpxOk;
    };

    const TpxiResizeSpec* spec() const { return reinterpret_cast<const TpxiResizeSpec*>(plan_.data()); }
    void runTile(Tile& tile, ConstPixels src, Pixels dst) const;

    ResizeKind kind_;
    TpxiSize srcSize_;
    TpxiSize dstSize_;
    TpxiBorderSize border_{};
    std::vector<Tpx8u> plan_;
    std::vector<Tile> tiles_;
};
