// SPDX-License-Identifier: Apache-2.0
// The engine of warps: a tile of the destination from a source of coordinates, an interpolation, and what is to
// become of the pixels outside.
//
// A row of the tile has three spans, one in the other: the tile's own; the pixels that are `touched`; and those
// that are `plain`, all of whose taps may be read where their positions are, or after these have been limited
// to the image. Plain pixels are the kernel's, a stretch at a time; other touched ones are made of patches; of
// the rest becomes what the border says. Only the family knows why a span is what it is.
#pragma once

#include "geometry/warp/patches.h"

namespace tpx {

// What becomes of pixels that are not touched.
enum class Outside { Stay, BecomeConstant };

struct RowSpans {
    Span plain, touched;
};

// A part of the destination, as bytes, whose first pixel is (x, y) there.
struct DestinationTile {
    ImageView<Tpx8u> image;
    int64_t x, y, width, height;

    Span columns() const { return {x, x + width}; }
    Point middle() const { return {double(x) + double(width) / 2, double(y) + double(height) / 2}; }
    Tpx8u* at(int64_t px, int64_t py, int pixelBytes) const {
        return image.from((px - x) * pixelBytes, py - y).data;
    }
};

// Repeats a pixel.
inline void fillPixels(Tpx8u* dst, int64_t count, const Tpx8u* pixel, int bytes) {
    if (count <= 0) return;
    copyBlock(dst, pixel, bytes);
    // What is there already, twice as much each time.
    const int64_t all = count * bytes;
    for (int64_t done = bytes; done < all; done *= 2)
        __builtin_memcpy(dst + done, dst, size_t(minOf(done, all - done)));
}

// Edges of the image, and of what else cuts it; the same again if nothing does.
struct BothEdges {
    Edges of[2];
};

template <class Real, class Coordinates>
class TileWarp {
 public:
    TileWarp(const Interpolation<Real>& how, const Coordinates& coordinates, const Readable& from,
             const DestinationTile& tile)
        : how_(how),
          coordinates_(coordinates),
          from_(from),
          tile_(tile),
          grid_{windowOf(how.footprint, from.columns.begin, from.columns.end),
                windowOf(how.footprint, from.rows.begin, from.rows.end), double(how.pixelBytes),
                double(from.image.step)},
          first_(
              withoutBias(from.image.from(how.footprint.offset * how.pixelBytes, how.footprint.offset).data)),
          ahead_(aheadOf(coordinates, tile.middle(), from, how.pixelBytes)),
          patches_(how) {}

    // spans(y, row) gives the spans of a destination row, within the tile. Returns whether a pixel was touched.
    //
    // Where the source is walked across its rows, each pixel lies on a line of its own; columns of a stretch
    // are then done for a band of rows, whose pixels find the lines of the row above in the nearest cache.
    template <class Spans>
    bool run(Outside outside, const Tpx8u* constant, Spans spans) {
        constexpr int kBand = 64;
        const int64_t end = tile_.y + tile_.height;
        const int64_t block = coordinates_.goesAcrossRows(tile_.middle()) ? kStretch : tile_.width;
        bool any = false;
        for (int64_t y = tile_.y; y < end; y += kBand) {
            RowSpans band[kBand];
            const int rows = int(minOf<int64_t>(kBand, end - y));
            for (int i = 0; i < rows; i++) {
                band[i] = spans(y + i, coordinates_.row(y + i));
                any = any || !band[i].touched.isEmpty();
                if (outside == Outside::BecomeConstant) fillAround(band[i].touched, y + i, constant);
            }
            for (int64_t x = tile_.x; x < tile_.columns().end; x += block)
                for (int i = 0; i < rows; i++) fill(band[i], y + i, meet({x, x + block}, tile_.columns()));
        }
        return any;
    }

    // Blends the pixels around the touched ones that are less than one pixel from the mapped image's edge.
    template <class Spans>
    void smooth(const BothEdges& edges, TpxiPoint first, Spans spans) {
        for (int64_t y = tile_.y; y < tile_.y + tile_.height; y++) {
            const auto row = coordinates_.row(y);
            const Span touched = spans(y, row).touched;
            Span near = row.mapped(tile_.columns());
            near = y < first.y ? Span{0, 0} : meet(near, {first.x, near.end});
            for (const Edges& each : edges.of)
                for (const EdgeLine& edge : {each.left, each.right, each.top, each.bottom})
                    near = spanOf(edge.a, edge.b * double(y) + edge.c, {-1, __builtin_inf()}, near);
            if (touched.isEmpty()) {
                mix(edges, y, near);
            } else {
                mix(edges, y, {near.begin, minOf(near.end, touched.begin)});
                mix(edges, y, {maxOf(near.begin, touched.end), near.end});
            }
        }
    }

 private:
    using Row = decltype(std::declval<const Coordinates&>().row(0));

    // Large sources that are walked across their rows are fetched some rows of the destination ahead, as the
    // processor finds no pattern in the lines that are read. Serves speed alone; 0 if nothing is fetched.
    static ptrdiff_t aheadOf(const Coordinates& coordinates, Point middle, const Readable& from,
                             int pixelBytes) {
        constexpr int kRows = 4;
        constexpr double kNearBytes = 1 << 19;
        const auto step = double(from.image.step);
        const double bytes = step * double(from.rows.end);
        if (!coordinates.goesAcrossRows(middle) || (bytes < kNearBytes && bytes > -kNearBytes)) return 0;
        const auto pixels = [](double perRow) { return int64_t(clampTo(kRows * perRow, -1e4, 1e4)); };
        const Position<double> down = coordinates.down(middle);
        return pixels(down.x) * pixelBytes + pixels(down.y) * from.image.step;
    }

    // Nearest takes the pixel below the position moved by half a pixel.
    Row kernelRow(int64_t y) const {
        const Row row = coordinates_.row(y);
        return how_.footprint.size == 1 ? row.moved(0.5) : row;
    }
    Tpx8u* at(int64_t x, int64_t y) const { return tile_.at(x, y, how_.pixelBytes); }

    void fillAround(Span touched, int64_t y, const Tpx8u* pixel) const {
        const Span all = tile_.columns();
        if (touched.isEmpty()) return fillPixels(at(all.begin, y), all.end - all.begin, pixel, how_.pixelBytes);
        fillPixels(at(all.begin, y), touched.begin - all.begin, pixel, how_.pixelBytes);
        fillPixels(at(touched.end, y), all.end - touched.end, pixel, how_.pixelBytes);
    }

    void fill(const RowSpans& spans, int64_t y, Span block) {
        const Span touched = meet(spans.touched, block), plain = meet(spans.plain, touched);
        if (touched.isEmpty()) return;
        const Row row = kernelRow(y);
        if (plain.isEmpty()) return fillByPatches(row, y, touched);
        fillByPatches(row, y, {touched.begin, plain.begin});
        for (int64_t x = plain.begin; x < plain.end; x += kStretch) {
            const int count = int(minOf<int64_t>(kStretch, plain.end - x));
            if (how_.footprint.size == 1)
                locate<false>(row, x, count, grid_, sites_);
            else
                locate<true>(row, x, count, grid_, sites_);
            if (ahead_ != 0)
                for (int i = 0; i < count; i += 4) prefetch(addBytes(first_, sites_.place[i] + ahead_));
            how_.interpolate({first_, from_.image.step, sites_, how_.cubic}, at(x, y), count);
        }
        fillByPatches(row, y, {plain.end, touched.end});
    }

    void fillByPatches(const Row& row, int64_t y, Span span) {
        constexpr int kMost = Patches<Real>::kMost;
        for (int64_t x = span.begin; x < span.end; x += kMost)
            patches_.interpolate(row, x, int(minOf<int64_t>(kMost, span.end - x)), from_, at(x, y));
    }

    // How much of the value at the edge a pixel gets that lies outside opposite edges.
    static double share(const BothEdges& edges, EdgeLine Edges::*one, EdgeLine Edges::*other, double x,
                        double y) {
        double least = 0;
        for (const Edges& each : edges.of)
            for (const EdgeLine& edge : {each.*one, each.*other})
                least = minOf(least, edge.a * x + (edge.b * y + edge.c));
        return clampTo(1 + least, 0.0, 1.0);
    }

    void mix(const BothEdges& edges, int64_t y, Span span) {
        constexpr int kMost = Patches<Real>::kMost;
        for (int64_t x = span.begin; x < span.end; x += kMost) {
            const int count = int(minOf<int64_t>(kMost, span.end - x));
            Real shares[kMost];
            for (int i = 0; i < count; i++) {
                const double px = double(x + i), py = double(y);
                shares[i] = Real(share(edges, &Edges::left, &Edges::right, px, py) *
                                 share(edges, &Edges::top, &Edges::bottom, px, py));
            }
            Tpx8u values[kMost * 4 * sizeof(Tpx64f)];
            patches_.interpolate(kernelRow(y), x, count, from_, values);
            how_.mix(values, shares, at(x, y), count);
        }
    }

    const Interpolation<Real>& how_;
    const Coordinates& coordinates_;
    const Readable& from_;
    const DestinationTile& tile_;
    const Grid grid_;
    const Tpx8u* const first_;
    const ptrdiff_t ahead_;
    Patches<Real> patches_;
    Sites<Real> sites_;
};

} // namespace tpx
