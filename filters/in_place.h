// Neighbourhood filters in place: the result overwrites its own source.
//
// The region is worked on in bands of rows. A band's source rows, extended to all sides, are copied into the
// caller's work buffer before any result is stored; those that the next band needs too, by then overwritten in
// the image, move to the front.
#pragma once

#include "filters/border_model.h"
#include "frame/runs/memory_runs.h"

namespace tpx {

namespace in_place {

// Source rows as far as a mask reaches.
template <int N, class T>
class ExtendedRows {
    static constexpr ptrdiff_t kPixel = N * sizeof(T);

 public:
    explicit ExtendedRows(const FilterCall<T, T>& call) : call_(call) {}

    // `count` pixels of row y from column x on; both may lie outside the region.
    void copy(int64_t x, int64_t y, int64_t count, Tpx8u* to) const {
        const int64_t height = call_.roi.height, width = call_.roi.width;
        const BorderWord& b = call_.border;
        if (y < 0 && !b.top) return beyond(x, 0, count, to);
        if (y >= height && !b.bottom) return beyond(x, height - 1, count, to);
        const int64_t from = x < 0 && !b.left ? 0 : x, end = x + count > width && !b.right ? width : x + count;
        const int64_t before = from - x < count ? from - x : count, within = end > from ? end - from : 0;
        fill(0, y, before, to);
        copyRow(to + before * kPixel, pixel(from, y), within * kPixel);
        fill(width - 1, y, count - before - within, to + (before + within) * kPixel);
    }

 private:
    const Tpx8u* pixel(int64_t x, int64_t y) const {
        return reinterpret_cast<const Tpx8u*>(call_.src.from(x * N, y).data);
    }
    // A row above or below.
    void beyond(int64_t x, int64_t y, int64_t count, Tpx8u* to) const {
        if (call_.border.kind == Border::Const) return fill(0, y, count, to);
        ExtendedRows inside(*this);
        inside.copy(x, y, count, to);
    }
    // The constant or a pixel of the edge, again and again.
    void fill(int64_t x, int64_t y, int64_t count, Tpx8u* to) const {
        if (count <= 0) return;
        const bool constant = call_.border.kind == Border::Const;
        const void* value = constant ? static_cast<const void*>(call_.value) : pixel(x, y);
        fillRow(to, count * kPixel, makePattern(value, int(kPixel)));
    }

    const FilterCall<T, T>& call_;
};

} // namespace in_place

// Runs kernel over a region whose destination is its source; borders replicate or are constant. `bytes` are the
// buffer's. Where it does not hold as many extended rows as the mask has, masks are rows, and are taken in
// pieces of a row.
template <int N, class T, class Kernel>
void filterInPlace(const FilterCall<T, T>& call, int64_t bytes, Kernel kernel) {
    constexpr ptrdiff_t kPixel = N * sizeof(T);
    const Reach reach = reachOf(call.mask);
    const TpxiSizeL roi = call.roi, mask = call.mask;
    const in_place::ExtendedRows<N, T> rows(call);
    const auto buffer = static_cast<Tpx8u*>(call.strips);
    const auto run = [&](Tpx8u* copy, ptrdiff_t step, int64_t x, int64_t y, TpxiSizeL size) {
        const ImageView<const T> src{reinterpret_cast<const T*>(copy), step};
        kernel(Region<T, T>{src.from(reach.left * N, reach.top), call.dst.from(x * N, y), size, 0});
    };

    const int64_t width = roi.width + mask.width - 1;
    const ptrdiff_t step = width * kPixel;
    if (const int64_t capacity = bytes / step; capacity >= mask.height) {
        const int64_t kept = mask.height - 1, band = capacity - kept;
        for (int64_t k = 0; k < kept; k++) rows.copy(-reach.left, k - reach.top, width, buffer + k * step);
        for (int64_t y = 0; y < roi.height; y += band) {
            const int64_t count = roi.height - y < band ? roi.height - y : band;
            for (int64_t k = 0; k < count; k++)
                rows.copy(-reach.left, y + k + reach.bottom, width, buffer + (kept + k) * step);
            run(buffer, step, 0, y, {roi.width, count});
            copyRow(buffer, buffer + count * step, kept * step);
        }
        return;
    }

    Tpx8u onStack[4096];
    const bool small = bytes < int64_t(sizeof onStack);
    Tpx8u* const memory = small && (mask.width * 2 * kPixel < int64_t(sizeof onStack)) ? onStack : buffer;
    const int64_t capacity = (memory == onStack ? int64_t(sizeof onStack) : bytes) / kPixel;
    const int64_t kept = mask.width - 1, piece = capacity - kept;
    for (int64_t y = 0; y < roi.height; y++) {
        rows.copy(-reach.left, y, kept, memory);
        for (int64_t x = 0; x < roi.width; x += piece) {
            const int64_t count = roi.width - x < piece ? roi.width - x : piece;
            rows.copy(x + reach.right, y, count, memory + kept * kPixel);
            run(memory, 0, x, y, {count, 1});
            copyRow(memory, memory + count * kPixel, kept * kPixel);
        }
    }
}

} // namespace tpx
