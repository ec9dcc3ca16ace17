// SPDX-License-Identifier: Apache-2.0
// Pixels whose taps lie in part outside the image. Their taps are copied together, outside ones by the border's
// rule, into a small image of patches, which the interpolation's own kernel works on.
#pragma once

#include "frame/images/border.h"
#include "frame/images/view.h"
#include "frame/runs/runs.h"
#include "geometry/warp/interpolate.h"

namespace tpx {

// The pixels of an image that may be read: columns and rows, and what is taken beyond them.
struct Readable {
    ImageView<const Tpx8u> image; // as bytes; pixel 0, 0 need not be among the columns and rows
    Span columns, rows;
    const Tpx8u* outside; // the pixel of a constant border; null if the nearest pixel is taken
};

template <class Real>
class Patches {
 public:
    static constexpr int kMost = 16, kMostTaps = kFourTaps.size;

    explicit Patches(const Interpolation<Real>& how) : how_(how) {}

    // Interpolates the pixels x to x + count - 1 of a row, kMost at most. `row` is that of the kernels.
    template <class Row>
    void interpolate(const Row& row, int64_t x, int count, const Readable& from, Tpx8u* dst) {
        const Footprint taps = how_.footprint;
        const int step = kMost * taps.size * how_.pixelBytes;
        for (int i = 0; i < count; i++) {
            const Position<double> at = row.at(double(x + i));
            int64_t left, top;
            place(at.x, from.columns, left, sites_.fx[i]);
            place(at.y, from.rows, top, sites_.fy[i]);
            const int offset = i * taps.size * how_.pixelBytes;
            sites_.place[i] = kPlaceBias + offset;
            copyTaps(from, left, top, step, pixels_ + offset);
        }
        for (int i = count; i < wholeUnits(count); i++) {
            sites_.place[i] = sites_.place[count - 1];
            sites_.fx[i] = sites_.fy[i] = 0;
        }
        how_.interpolate({withoutBias(static_cast<const Tpx8u*>(pixels_)), step, sites_, how_.cubic}, dst,
                         count);
    }

 private:
    // The first tap and the fraction of a coordinate. Where all taps lie on one side of the image it counts no
    // further.
    void place(double at, Span span, int64_t& first, Real& fraction) const {
        const int reach = how_.footprint.size;
        const double s = clampTo(at, double(span.begin - reach), double(span.end + reach));
        const double below = rounded<Rounding::Down>(s);
        first = int64_t(below) + how_.footprint.offset;
        fraction = Real(s - below);
    }

    // The taps of one position, from the pixel at x, y on, to rows that are `step` apart.
    void copyTaps(const Readable& from, int64_t x, int64_t y, int step, Tpx8u* to) const {
        const int bytes = how_.pixelBytes, size = how_.footprint.size;
        const auto nearest = [](int64_t at, Span span) {
            return span.begin + borderSource<Border::Replicate>(at - span.begin, span.end - span.begin);
        };
        int64_t column[kMostTaps];
        for (int k = 0; k < size; k++) column[k] = nearest(x + k, from.columns);
        const bool together = column[0] == x && column[size - 1] == x + size - 1;
        for (int r = 0; r < size; r++, to += step) {
            const int64_t nearestRow = nearest(y + r, from.rows);
            const Tpx8u* const row = from.image.row(nearestRow);
            if (together && (nearestRow == y + r || !from.outside)) {
                copyBlock(to, row + x * bytes, size * bytes);
                continue;
            }
            for (int k = 0; k < size; k++) {
                const bool isOutside = nearestRow != y + r || column[k] != x + k;
                copyBlock(to + k * bytes, isOutside && from.outside ? from.outside : row + column[k] * bytes,
                          bytes);
            }
        }
    }

    const Interpolation<Real>& how_;
    Sites<Real> sites_;
    alignas(32) Tpx8u pixels_[kMost * kMostTaps * kMostTaps * 4 * sizeof(Tpx64f)];
};

} // namespace tpx
