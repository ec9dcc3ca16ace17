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

// A side strip of a small mask is made in bands of rows on the stack, as many as have room but at least so
// many, whose rows have room for a register behind them.
inline constexpr int64_t kFewestRows = 32, kBandBytes = 16384, kSlack = 32, kLargestBandMask = 16;

template <int N, class S, class D, class Kernel>
class Cut {
 public:
    Cut(const FilterCall<S, D>& call, Kernel& kernel)
        : call_(call), kernel_(kernel), reach_(reachOf(call.mask)), inMemory_(call.border) {
        // Sides that need no neighbours count as in memory.
        inMemory_.left |= reach_.left == 0;
        inMemory_.right |= reach_.right == 0;
        inMemory_.top |= reach_.top == 0;
        inMemory_.bottom |= reach_.bottom == 0;
    }

    void wholeCopy() {
        if (inMemory_.allInMemory()) return direct(0, 0, call_.roi);
        fromCopy(0, 0, call_.roi, static_cast<S*>(call_.strips));
    }

    void strips() {
        if (inMemory_.allInMemory()) return direct(0, 0, call_.roi);
        const Pieces pieces = cut();
        const auto buffer = static_cast<S*>(call_.strips);
        for (int i = 0; i < pieces.count; i++) {
            const Piece& piece = pieces.at[i];
            if (piece.isSide)
                side(piece.x, piece.y, piece.size, buffer);
            else
                fromCopy(piece.x, piece.y, piece.size, buffer);
        }
        direct(pieces.interior.x, pieces.interior.y, pieces.interior.size);
    }

    // Source and destination are one image: all strips are copied before anything is written, one behind the
    // other, and the interior is done before them.
    void stripsInPlace() {
        if (inMemory_.allInMemory()) return direct(0, 0, call_.roi);
        const Pieces pieces = cut();
        ImageView<S> copies[4];
        auto buffer = static_cast<S*>(call_.strips);
        for (int i = 0; i < pieces.count; i++) {
            const Piece& piece = pieces.at[i];
            const int64_t width = piece.size.width + call_.mask.width - 1;
            copies[i] = {buffer, ptrdiff_t(width * N * int64_t(sizeof(S)))};
            makeCopy(piece.x, piece.y, piece.size, copies[i], width);
            buffer += width * (piece.size.height + call_.mask.height - 1) * N;
        }
        direct(pieces.interior.x, pieces.interior.y, pieces.interior.size);
        for (int i = 0; i < pieces.count; i++) {
            const Piece& piece = pieces.at[i];
            run(copies[i].from(reach_.left * N, reach_.top), piece.x, piece.y, piece.size, 0);
        }
    }

 private:
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
    Pieces cut() const {
        // Masks with a side of 2 reflect from a strip of two rows or columns.
        const bool mirror = call_.border.kind == Border::Mirror;
        Pieces pieces{};
        int64_t x0 = 0, y0 = 0, x1 = call_.roi.width, y1 = call_.roi.height;
        const auto add = [&](int64_t x, int64_t y, int64_t width, int64_t height, bool isSide) {
            pieces.at[pieces.count++] = {x, y, {width, height}, isSide};
        };
        if (!inMemory_.top) {
            add(0, 0, x1, reach_.top, false);
            y0 = reach_.top;
        }
        if (!inMemory_.bottom) {
            y1 -= reach_.bottom + (mirror && call_.mask.height == 2);
            add(0, y1, x1, call_.roi.height - y1, false);
        }
        if (!inMemory_.left) {
            add(0, y0, reach_.left, y1 - y0, true);
            x0 = reach_.left;
        }
        if (!inMemory_.right) {
            x1 -= reach_.right + (mirror && call_.mask.width == 2);
            add(x1, y0, call_.roi.width - x1, y1 - y0, true);
        }
        pieces.interior = {x0, y0, {x1 - x0, y1 - y0}, false};
        return pieces;
    }

    void run(ImageView<const S> src, int64_t x, int64_t y, TpxiSizeL size, ptrdiff_t slack) {
        if (size.width > 0 && size.height > 0)
            kernel_(Region<S, D>{src, call_.dst.from(x * N, y), size, slack});
    }
    void direct(int64_t x, int64_t y, TpxiSizeL size) { run(call_.src.from(x * N, y), x, y, size, 0); }

    // A part of the region from a copy of it with its neighbours, in `memory`.
    void fromCopy(int64_t x, int64_t y, TpxiSizeL part, S* memory) {
        const int64_t width = part.width + call_.mask.width - 1;
        const ImageView<S> copy{memory, ptrdiff_t(width * N * sizeof(S))};
        makeCopy(x, y, part, copy, width);
        run(copy.from(reach_.left * N, reach_.top), x, y, part, 0);
    }

    void side(int64_t x, int64_t y, TpxiSizeL part, S* memory) {
        if (call_.mask.width > kLargestBandMask || call_.mask.height > kLargestBandMask)
            return fromCopy(x, y, part, memory);
        constexpr int64_t kPixel = N * sizeof(S);
        constexpr int64_t kLeast = (kFewestRows + kLargestBandMask) * (2 * kLargestBandMask * kPixel + kSlack);
        alignas(32) Tpx8u band[kLeast > kBandBytes ? kLeast : kBandBytes];
        const int64_t width = part.width + call_.mask.width - 1;
        const ImageView<S> copy{reinterpret_cast<S*>(band),
                                ptrdiff_t(roundUp(uint64_t(width * kPixel + kSlack), 16))};
        const int64_t bandRows = int64_t(sizeof band) / copy.step - (call_.mask.height - 1);
        for (int64_t done = 0; done < part.height; done += bandRows) {
            const int64_t rows = part.height - done < bandRows ? part.height - done : bandRows;
            makeCopy(x, y + done, {part.width, rows}, copy, width);
            run(copy.from(reach_.left * N, reach_.top), x, y + done, {part.width, rows}, kSlack);
        }
    }

    // Columns and rows of the region from before the part to behind it, as far as they are there.
    struct Span {
        int64_t from, count, margin;
    };
    static Span span(int64_t at, int64_t size, int64_t before, int64_t after, int64_t n, bool lowInMemory,
                     bool highInMemory) {
        const int64_t low = at - before, high = at + size + after;
        const int64_t from = low < 0 && !lowInMemory ? 0 : low, to = high > n && !highInMemory ? n : high;
        return {from, to - from, from - low};
    }
    void makeCopy(int64_t x, int64_t y, TpxiSizeL part, ImageView<S> copy, int64_t width) {
        const Span columns = span(x, part.width, reach_.left, reach_.right, call_.roi.width, inMemory_.left,
                                  inMemory_.right),
                   rows = span(y, part.height, reach_.top, reach_.bottom, call_.roi.height, inMemory_.top,
                               inMemory_.bottom);
        copyWithBorder(call_.border.kind, N * int(sizeof(S)),
                       bytesOf(call_.src.from(columns.from * N, rows.from)), {columns.count, rows.count},
                       bytesOf(copy), {width, part.height + call_.mask.height - 1}, rows.margin, columns.margin,
                       call_.value);
    }

    const FilterCall<S, D>& call_;
    Kernel& kernel_;
    Reach reach_;
    BorderWord inMemory_;
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

// The same where source and destination are one image, for kernels that take a region of which that is true, as
// the interior then is. call.strips has room for all strips at a time.
template <int N, class S, class Kernel>
void filterRegionInPlace(const FilterCall<S, S>& call, bool byStrips, Kernel kernel) {
    border_model::Cut<N, S, S, Kernel> cut(call, kernel);
    if (byStrips)
        cut.stripsInPlace();
    else
        cut.wholeCopy();
}

// The words that filters take.
constexpr BorderWord readFilterBorder(TpxBorderType word) {
    return readBorder<Border::Replicate, Border::Mirror, Border::Const>(word);
}

} // namespace tpx
