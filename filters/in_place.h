// SPDX-License-Identifier: Apache-2.0
// Neighbourhood filters in place: the result overwrites its own source.
//
// The region is worked on in bands of rows. A band's source rows, extended to all sides by the border copies,
// lie in the caller's work buffer before any result is stored; those that the next band needs too, by then
// overwritten in the image, move to the front. So a region kernel never works in place.
#pragma once

#include "filters/border_model.h"
#include "frame/runs/memory_runs.h"

namespace tpx {

namespace in_place {

// Neighbouring rows of a region and of what lies above and below it, with the neighbours of their columns.
template <int N, class T>
class ExtendedRows {
    static constexpr ptrdiff_t kPixel = N * sizeof(T);

 public:
    ExtendedRows(const FilterCall<T, T>& call, BorderWord readable)
        : call_(call),
          readable_(readable),
          reach_(reachOf(call.mask)),
          columns_(border_model::readableSpan(-reach_.left, call.roi.width + reach_.right, call.roi.width,
                                              readable.left, readable.right)),
          width_(call.roi.width + call.mask.width - 1) {}

    ptrdiff_t step() const { return ptrdiff_t(width_ * kPixel); }
    // Row y from the region's first column on.
    ImageView<const T> from(int64_t y) const {
        return ImageView<const T>{reinterpret_cast<const T*>(row(y)), step()}.from(reach_.left * N, 0);
    }

    // Holds the rows [first, end), which follow what it held; of that it keeps the rows from `first` on.
    void hold(int64_t first, int64_t end) {
        if (end_ > first)
            copyRow(call_.strips, row(first), (end_ - first) * step());
        else
            end_ = first;
        first_ = first;
        const int64_t low = readable_.top ? end_ : clampTo(int64_t(0), end_, end),
                      high = readable_.bottom ? end : clampTo(call_.roi.height, low, end);
        if (high > low)
            copyWithBorder(call_.border.kind, int(kPixel), bytesOf(call_.src.from(columns_.from * N, low)),
                           {columns_.count, high - low}, {row(low), step()}, {width_, high - low}, 0,
                           columns_.margin, call_.value);
        for (int64_t y = end_; y < low; y++) makeMargin(y);
        for (int64_t y = high; y < end; y++) makeMargin(y);
        end_ = end;
    }

 private:
    Tpx8u* row(int64_t y) const { return static_cast<Tpx8u*>(call_.strips) + (y - first_) * step(); }

    // A row above or below, of the rows that are held. Those in memory are the image's too.
    void makeMargin(int64_t y) const {
        if (call_.border.kind == Border::Const)
            return fillRow(row(y), step(), makePattern(call_.value, int(kPixel)));
        const int64_t above = readable_.top ? reach_.top : 0, below = readable_.bottom ? reach_.bottom : 0,
                      n = above + call_.roi.height + below;
        const int64_t from = call_.border.kind == Border::Mirror
                                 ? borderSource<Border::Mirror>(y + above, n)
                                 : borderSource<Border::Replicate>(y + above, n);
        copyRow(row(y), row(from - above), step());
    }

    const FilterCall<T, T>& call_;
    BorderWord readable_;
    Reach reach_;
    border_model::Span columns_;
    int64_t width_;
    int64_t first_ = INT64_MIN, end_ = INT64_MIN;
};

// Bands of rows; the rows that a band keeps for the next are those that its first results need too, and one
// above for kernels that go on where they were.
template <int N, class T, class Kernel>
void inBands(const FilterCall<T, T>& call, BorderWord readable, bool byStrips, int64_t capacity,
             Kernel& kernel) {
    constexpr int64_t kBandBytes = 65536; // that stay in the caches; a row may have more
    const Reach reach = reachOf(call.mask);
    ExtendedRows<N, T> rows(call, readable);
    const bool goesOn = capacity > call.mask.height;
    const int64_t kept = call.mask.height - !goesOn, most = capacity - kept,
                  large = maxOf(4 * kept, kBandBytes / rows.step()),
                  band = maxOf(minOf(most, large), int64_t(1));
    // Regions are those of the other mechanism, since what a kernel keeps may show in its results.
    const auto region = [&](int64_t from, int64_t end) {
        for (int64_t y = from, count; y < end; y += count) {
            count = minOf(end - y, band);
            const bool isNext = goesOn && y > from;
            rows.hold(y - reach.top - isNext, y + count + reach.bottom);
            kernel(Region<T, T>{
                rows.from(y), call.dst.from(0, y), {call.roi.width, count}, 0, isNext ? y - from : 0});
        }
    };
    if (!byStrips) return region(0, call.roi.height);
    const auto interior = border_model::cut(call.roi, call.mask, readable).interior;
    region(0, interior.y);
    region(interior.y, interior.y + interior.size.height);
    region(interior.y + interior.size.height, call.roi.height);
}

// Masks that are rows, in pieces of a row. Borders replicate or are constant, so that a piece with its margins
// is an image of its own.
template <int N, class T, class Kernel>
void inPieces(const FilterCall<T, T>& call, BorderWord readable, int64_t bytes, Kernel& kernel) {
    constexpr ptrdiff_t kPixel = N * sizeof(T);
    const Reach reach = reachOf(call.mask);
    const int64_t width = call.roi.width, kept = call.mask.width - 1;
    Tpx8u onStack[4096];
    const bool small =
        bytes < int64_t(sizeof onStack) && call.mask.width * 2 * kPixel < int64_t(sizeof onStack);
    Tpx8u* const memory = small ? onStack : static_cast<Tpx8u*>(call.strips);
    const int64_t most = (small ? int64_t(sizeof onStack) : bytes) / kPixel - kept;
    const ImageView<const T> held = {reinterpret_cast<const T*>(memory), 0};
    for (int64_t y = 0; y < call.roi.height; y++)
        for (int64_t x = 0, count; x < width; x += count) {
            count = minOf(width - x, most);
            // The last piece has a pixel of which the margin is made.
            if (const int64_t rest = width - x - count; rest > 0 && rest <= reach.right) count -= reach.right;
            const int64_t from = x == 0 ? -reach.left : x + reach.right, end = x + count + reach.right;
            const auto columns = border_model::readableSpan(from, end, width, readable.left, readable.right);
            Tpx8u* const to = x == 0 ? memory : memory + kept * kPixel;
            copyWithBorder(call.border.kind, int(kPixel), bytesOf(call.src.from(columns.from * N, y)),
                           {columns.count, 1}, {to, 0}, {end - from, 1}, 0, columns.margin, call.value);
            kernel(Region<T, T>{held.from(reach.left * N, 0), call.dst.from(x * N, y), {count, 1}, 0});
            copyRow(memory, memory + count * kPixel, kept * kPixel);
        }
}

} // namespace in_place

// Runs kernel over all of a call's region, whose destination may be its source. `bytes` are those of
// call.strips; where they do not hold as many extended rows as the mask has, masks are rows, and borders not
// mirrored.
template <int N, class T, class Kernel>
void filterAnywhere(const FilterCall<T, T>& call, int64_t bytes, Kernel kernel) {
    const bool byStrips = isSmallerThanRegion(call.mask, call.roi);
    if (call.src.data != call.dst.data) return filterRegion<N>(call, byStrips, kernel);
    const BorderWord readable = border_model::readableSides(call.border, call.mask);
    const int64_t capacity = bytes / ((call.roi.width + call.mask.width - 1) * N * int64_t(sizeof(T)));
    if (capacity >= call.mask.height)
        in_place::inBands<N>(call, readable, byStrips, capacity, kernel);
    else
        in_place::inPieces<N>(call, readable, bytes, kernel);
}

} // namespace tpx
