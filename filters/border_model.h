// SPDX-License-Identifier: Apache-2.0
// The border model of the neighbourhood filters: which neighbours a region has, where missing ones come from,
// and how the region is cut so that only its rim is copied.
//
// A region kernel sees a source whose neighbours can all be read, and knows nothing of borders:
//   kernel(const Region<S, D>&)
// It is run on the rim first, strip by strip (top, bottom, left, right), from copies that the border copies
// make; then on the interior, straight from the image. Strips have their own widths. Where the mask is as large
// as the region in one dimension, the whole extended region is one copy. Sides that the caller declares in
// memory are read there.
#pragma once

#include "frame/images/border.h"
#include "frame/images/padded_row.h"
#include "frame/images/view.h"
#include "frame/memory/caller_memory.h"
#include "movement/borders.h"

namespace tpx {

// How far a mask reaches from its pixel. Even sides have one more tap on the right and below.
struct Reach {
    int64_t left, top, right, bottom;
};
constexpr Reach reachOf(TpxiSizeL mask) {
    const int64_t left = (mask.width - 1) >> 1, top = (mask.height - 1) >> 1;
    return {left, top, mask.width - 1 - left, mask.height - 1 - top};
}

// What a region kernel works on. Views begin at the region's first pixel.
template <class S, class D>
struct Region {
    ImageView<const S> src;
    ImageView<D> dst;
    TpxiSizeL size;
    // Bytes that can be read behind the last neighbour of every row, whatever they hold: a strip of a few
    // columns is then worked on by whole registers.
    ptrdiff_t slack;
    // Rows above in the same columns that the kernel has just worked on. If there are any, what it keeps from
    // row to row still holds, and one row more can be read above the first one's neighbours.
    int64_t done = 0;
};

// A call whose arguments have passed their checks.
template <class S, class D>
struct FilterCall {
    ImageView<const S> src;
    ImageView<D> dst;
    TpxiSizeL roi, mask;
    BorderWord border;
    const S* value; // a pixel; of a constant border
    void* strips;   // the caller's memory for the largest strip, or the whole copy
};

// The samples of the largest strip or of the whole copy, in pixels.
constexpr int64_t stripPixels(TpxiSizeL roi, TpxiSizeL mask) {
    const Reach r = reachOf(mask);
    const int64_t across = (roi.width + mask.width - 1) * (mask.height - 1 + r.bottom + (mask.height == 2)),
                  along = (roi.height + mask.height - 1) * (mask.width - 1 + r.right + (mask.width == 2));
    return across > along ? across : along;
}

namespace border_model {

// The sides on which neighbours are in memory, or are not needed.
constexpr BorderWord readableSides(BorderWord border, TpxiSizeL mask) {
    const Reach reach = reachOf(mask);
    border.left |= reach.left == 0;
    border.right |= reach.right == 0;
    border.top |= reach.top == 0;
    border.bottom |= reach.bottom == 0;
    return border;
}

struct Piece {
    int64_t x, y;
    TpxiSizeL size;
    bool isSide;
};
struct Pieces {
    Piece at[4];
    int count;
    Piece interior;
};
// The strips in their order, and what they leave.
constexpr Pieces cut(TpxiSizeL roi, TpxiSizeL mask, BorderWord readable) {
    // Masks with a side of 2 reflect from a strip of two rows or columns.
    const bool mirror = readable.kind == Border::Mirror;
    const Reach reach = reachOf(mask);
    Pieces pieces{};
    int64_t x0 = 0, y0 = 0, x1 = roi.width, y1 = roi.height;
    const auto add = [&](int64_t x, int64_t y, int64_t width, int64_t height, bool isSide) {
        pieces.at[pieces.count++] = {x, y, {width, height}, isSide};
    };
    if (!readable.top) {
        add(0, 0, x1, reach.top, false);
        y0 = reach.top;
    }
    if (!readable.bottom) {
        y1 -= reach.bottom + (mirror && mask.height == 2);
        add(0, y1, x1, roi.height - y1, false);
    }
    if (!readable.left) {
        add(0, y0, reach.left, y1 - y0, true);
        x0 = reach.left;
    }
    if (!readable.right) {
        x1 -= reach.right + (mirror && mask.width == 2);
        add(x1, y0, roi.width - x1, y1 - y0, true);
    }
    pieces.interior = {x0, y0, {x1 - x0, y1 - y0}, false};
    return pieces;
}

// Of the columns or rows from low to high of a region of n, those that can be read, and how many others there
// are before them.
struct Span {
    int64_t from, count, margin;
};
constexpr Span readableSpan(int64_t low, int64_t high, int64_t n, bool lowInMemory, bool highInMemory) {
    const int64_t from = low < 0 && !lowInMemory ? 0 : low, to = high > n && !highInMemory ? n : high;
    return {from, to - from, from - low};
}

// A side strip of a small mask is made in bands of rows on the stack, as many as have room but at least so
// many, whose rows have room for a register behind them.
inline constexpr int64_t kFewestRows = 32, kBandBytes = 16384, kSlack = 32, kLargestBandMask = 16;

template <int N, class S, class D, class Kernel>
class Cut {
    static constexpr int64_t kPixel = N * sizeof(S);

 public:
    Cut(const FilterCall<S, D>& call, Kernel& kernel)
        : call_(call),
          kernel_(kernel),
          reach_(reachOf(call.mask)),
          readable_(readableSides(call.border, call.mask)) {}

    void wholeCopy() {
        if (readable_.allInMemory()) return direct(0, 0, call_.roi);
        fromCopy(0, 0, call_.roi);
    }

    void strips() {
        if (readable_.allInMemory()) return direct(0, 0, call_.roi);
        const Pieces pieces = cut(call_.roi, call_.mask, readable_);
        for (int i = 0; i < pieces.count; i++) {
            const Piece& piece = pieces.at[i];
            if (piece.isSide)
                side(piece.x, piece.y, piece.size);
            else
                fromCopy(piece.x, piece.y, piece.size);
        }
        direct(pieces.interior.x, pieces.interior.y, pieces.interior.size);
    }

 private:
    // By value: as far as compilers know, results could be stored over a region that is shared.
    void run(Region<S, D> region) {
        if (region.size.width > 0 && region.size.height > 0) kernel_(region);
    }
    void direct(int64_t x, int64_t y, TpxiSizeL size) {
        run({call_.src.from(x * N, y), call_.dst.from(x * N, y), size, 0});
    }

    // A part of the region from a copy of it with its neighbours, in the caller's memory.
    void fromCopy(int64_t x, int64_t y, TpxiSizeL part) {
        const int64_t width = part.width + call_.mask.width - 1;
        const ImageView<S> copy{static_cast<S*>(call_.strips), ptrdiff_t(width * kPixel)};
        makeCopy(columnsOf(x, part.width), width, y, part.height, copy);
        run({copy.from(reach_.left * N, reach_.top), call_.dst.from(x * N, y), part, 0});
    }

    void side(int64_t x, int64_t y, TpxiSizeL part) {
        if (call_.mask.width > kLargestBandMask || call_.mask.height > kLargestBandMask)
            return fromCopy(x, y, part);
        constexpr int64_t kWidest = 2 * kLargestBandMask * kPixel + kRowRegister;
        constexpr int64_t kLeast = (kFewestRows + kLargestBandMask) * (kWidest + kSlack);
        alignas(32) Tpx8u band[kLeast > kBandBytes ? kLeast : kBandBytes];
        // Rows of the copies that are registers at least get their margins by one shuffle.
        Span columns = columnsOf(x, part.width);
        const int64_t missing = (kRowRegister + kPixel - 1) / kPixel - columns.count,
                      wanted = missing > 0 ? missing : 0;
        const int64_t behind = call_.roi.width - columns.from - columns.count, after = wanted < behind ? wanted
                                                                                       : behind > 0    ? behind
                                                                                                       : 0;
        const int64_t before = wanted - after < columns.from ? wanted - after
                               : columns.from > 0            ? columns.from
                                                             : 0;
        columns.from -= before;
        columns.count += before + after;
        const int64_t width = part.width + call_.mask.width - 1 + before + after;
        const ImageView<S> copy{reinterpret_cast<S*>(band),
                                ptrdiff_t(roundUp(uint64_t(width * kPixel + kSlack), kRowRegister))};
        const int64_t bandRows = int64_t(sizeof band) / copy.step - call_.mask.height;
        for (int64_t done = 0, rows; done < part.height; done += rows) {
            rows = part.height - done < bandRows ? part.height - done : bandRows;
            const int64_t above = done > 0;
            makeCopy(columns, width, y + done - above, rows + above, copy);
            run({copy.from((before + reach_.left) * N, above + reach_.top),
                 call_.dst.from(x * N, y + done),
                 {part.width, rows},
                 kSlack,
                 done});
        }
    }

    Span columnsOf(int64_t x, int64_t width) const {
        return readableSpan(x - reach_.left, x + width + reach_.right, call_.roi.width, readable_.left,
                            readable_.right);
    }
    // Rows and their neighbours.
    void makeCopy(Span columns, int64_t width, int64_t y, int64_t height, ImageView<S> copy) {
        const Span rows = readableSpan(y - reach_.top, y + height + reach_.bottom, call_.roi.height,
                                       readable_.top, readable_.bottom);
        copyWithBorder(call_.border.kind, int(kPixel), bytesOf(call_.src.from(columns.from * N, rows.from)),
                       {columns.count, rows.count}, bytesOf(copy), {width, height + call_.mask.height - 1},
                       rows.margin, columns.margin, call_.value);
    }

    const FilterCall<S, D>& call_;
    Kernel& kernel_;
    Reach reach_;
    BorderWord readable_;
};

} // namespace border_model

inline bool isSmallerThanRegion(TpxiSizeL mask, TpxiSizeL roi) {
    return mask.width < roi.width && mask.height < roi.height;
}

// Runs kernel over all of a call's region, strip by strip or as one copy. N channels.
template <int N, class S, class D, class Kernel>
void filterRegion(const FilterCall<S, D>& call, bool byStrips, Kernel kernel) {
    border_model::Cut<N, S, D, Kernel> cut(call, kernel);
    if (byStrips)
        cut.strips();
    else
        cut.wholeCopy();
}

// The words that filters take.
constexpr BorderWord readFilterBorder(TpxBorderType word) {
    return readBorder<Border::Replicate, Border::Mirror, Border::Const>(word);
}

} // namespace tpx
