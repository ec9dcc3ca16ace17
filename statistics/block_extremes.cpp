// SPDX-License-Identifier: Apache-2.0
// tpxiBlockMinMax: the smallest and the largest sample of every block of an image.
//
// Rows of a band of blocks are folded into one row of running extremes, in pieces that stay in the first-level
// cache; then the columns of each block are folded into one sample. A sample that is folded in twice changes
// nothing, so cut rows, columns and registers overlap their neighbours.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "statistics/extremes.h"

namespace tpx {
namespace {

// What any sample takes the place of.
template <class Side, class T>
Vec<T> noneOf() {
    return splat<Vec<T>>(Side::template kStart<T>);
}

// ---- Pairs of registers to one, each of whose lanes is folded from two -----------------------------------

// Of neighbours, in their order.
template <class Side, class T>
Vec<T> foldNeighbours(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, Tpx32f>) {
        const V32f low = lowHalves(a, b), high = highHalves(a, b);
        return Side::pick(evenLanes(low, high), oddLanes(low, high));
    } else if constexpr (sizeof(T) == 2) {
        const V32u x = bitsAs<V32u>(a), y = bitsAs<V32u>(b);
        return Side::pick(bitsAs<Vec<T>>(narrow<Tpx16u>(Pair<V32s>{V32s(x & 0xFFFF), V32s(y & 0xFFFF)})),
                          bitsAs<Vec<T>>(narrow<Tpx16u>(Pair<V32s>{V32s(x >> 16), V32s(y >> 16)})));
    } else {
        const V16u x = V16u(a), y = V16u(b);
        return Side::pick(narrow<Tpx8u>(Pair<V16s>{V16s(x & 0xFF), V16s(y & 0xFF)}),
                          narrow<Tpx8u>(Pair<V16s>{V16s(x >> 8), V16s(y >> 8)}));
    }
}

// Of lanes half a register apart, N lanes of either register in turn.
template <class Side, int N, class T>
Vec<T> foldHalves(Vec<T> a, Vec<T> b) {
    if constexpr (!std::is_same_v<T, Tpx32f>) {
        const V8u x = bitsAs<V8u>(a), y = bitsAs<V8u>(b);
        return Side::pick(bitsAs<Vec<T>>(interleaveUnits<N* int(sizeof(T)), false>(x, y)),
                          bitsAs<Vec<T>>(interleaveUnits<N* int(sizeof(T)), true>(x, y)));
    } else if constexpr (N == 4) {
        return Side::pick(lowHalves(a, b), highHalves(a, b));
    } else if constexpr (N == 2) {
        return Side::pick(firstPairs(a, b), lastPairs(a, b));
    } else { // within the register's halves
        return Side::pick(interleaveLow(a, b), interleaveHigh(a, b));
    }
}

// A register of results from N registers of blocks of `Lanes` samples.
template <class Side, int Lanes, int N, class T>
Vec<T> foldBlocks(const T* blocks) {
    if constexpr (N == 1) {
        return load(blocks);
    } else {
        const Vec<T> a = foldBlocks<Side, Lanes, N / 2>(blocks);
        const Vec<T> b = foldBlocks<Side, Lanes, N / 2>(blocks + N / 2 * kLanes<T>);
        if constexpr (Lanes == kLanes<T>)
            return foldHalves<Side, N / 2, T>(a, b);
        else
            return foldNeighbours<Side, T>(a, b);
    }
}

// ---- One row of extremes ---------------------------------------------------------------------------------

template <class T>
inline constexpr ptrdiff_t kPiece = 4096 / sizeof(T);

// The extremes of one side: where they go to, those of the whole image, and the row that is folded.
template <class T, class S>
struct Extremes {
    using Side = S;

    ImageView<T> dst;
    T* global;
    Vec<T> whole;
    // A register of results is made from at most as many registers as it has lanes, and loads are whole.
    alignas(32) T row[kPiece<T> + kLanes<T> * kLanes<T> + kLanes<T>];
};

// Folds G rows into columns of the row of extremes; the first ones begin it.
template <int G, bool First, class T, class... E>
[[gnu::noinline]] void foldGroup(ImageView<const T> src, ptrdiff_t len, E&... extremes) {
    constexpr ptrdiff_t L = kLanes<T>;
    const auto foldColumns = [&](ptrdiff_t i) {
        Vec<T> x[G];
        for (int g = 0; g < G; g++) x[g] = inRegister(load(src.row(g) + i)); // once for both sides
        const auto into = [&]<class S>(Extremes<T, S>& e) {
            Vec<T> folded = First ? noneOf<S, T>() : load(e.row + i);
            for (int g = 0; g < G; g++) folded = S::pick(x[g], folded);
            store(e.row + i, folded);
        };
        (into(extremes), ...);
    };
    for (ptrdiff_t i = 0; i + L <= len; i += L) foldColumns(i);
    if (len % L != 0) foldColumns(len - L);
}

template <int G, class T, class... E>
void foldGroups(ImageView<const T> src, ptrdiff_t rows, ptrdiff_t len, bool first, E&... extremes) {
    if (first)
        foldGroup<G, true>(src, len, extremes...);
    else
        foldGroup<G, false>(src, len, extremes...);
    for (ptrdiff_t y = G; y < rows; y += G)
        foldGroup<G, false>(src.from(0, y + G <= rows ? y : rows - G), len, extremes...);
}

// Rows that do not fill a register.
template <class T, class... E>
void foldShort(ImageView<const T> src, ptrdiff_t rows, ptrdiff_t len, bool first, E&... extremes) {
    for (ptrdiff_t y = 0; y < rows; y++) {
        const Vec<T> x = loadShort(src.row(y), len);
        const auto into = [&]<class S>(Extremes<T, S>& e) {
            store(e.row, S::pick(x, first && y == 0 ? noneOf<S, T>() : load(e.row)));
        };
        (into(extremes), ...);
    }
}

template <class T, class... E>
void foldRows(ImageView<const T> src, ptrdiff_t rows, ptrdiff_t len, bool first, E&... extremes) {
    if (len < kLanes<T>)
        foldShort(src, rows, len, first, extremes...);
    else if (rows >= 8)
        foldGroups<8>(src, rows, len, first, extremes...);
    else if (rows >= 4)
        foldGroups<4>(src, rows, len, first, extremes...);
    else if (rows >= 2)
        foldGroups<2>(src, rows, len, first, extremes...);
    else
        foldGroups<1>(src, rows, len, first, extremes...);
}

// The row's blocks of `width` columns to one sample each, at the row's begin. Blocks are first folded to as
// many lanes as fit, a power of two.
template <class Side, int Lanes, class T>
[[gnu::noinline]] void foldRowOfBlocks(T* row, ptrdiff_t blocks, ptrdiff_t width) {
    constexpr ptrdiff_t L = kLanes<T>;
    if constexpr (Lanes > 1)
        if (width < Lanes) return foldRowOfBlocks<Side, Lanes / 2>(row, blocks, width);
    if (width > Lanes) {
        for (ptrdiff_t k = 0; k < blocks; k++) {
            const T* const block = row + k * width;
            Vec<T> folded = Side::pick(load(block + width - Lanes), load(block));
            for (ptrdiff_t i = Lanes; i + Lanes < width; i += Lanes)
                folded = Side::pick(load(block + i), folded);
            __builtin_memcpy(row + k * Lanes, &folded, Lanes * sizeof(T));
        }
    }
    if constexpr (Lanes > 1)
        for (ptrdiff_t k = 0; k < blocks; k += L)
            store(row + k, foldBlocks<Side, Lanes, Lanes>(row + k * Lanes));
}

// ---- Walk ------------------------------------------------------------------------------------------------

// Of `len` columns, folded, the blocks from column `x` of the image on: to the destination and the whole
// image's extremes.
template <class T, class S>
void finishBlocks(Extremes<T, S>& e, ptrdiff_t by, ptrdiff_t bx, ptrdiff_t blocks, ptrdiff_t width,
                  ptrdiff_t len) {
    constexpr ptrdiff_t L = kLanes<T>;
    for (ptrdiff_t i = len; i < blocks * width; i += L) store(e.row + i, noneOf<S, T>());
    foldRowOfBlocks<S, kLanes<T>>(e.row, blocks, width);
    if (e.dst.data) copyRow(e.dst.row(by) + bx, e.row, blocks * ptrdiff_t(sizeof(T)));
    store(e.row + blocks, noneOf<S, T>());
    for (ptrdiff_t i = 0; i < blocks; i += L) e.whole = S::pick(load(e.row + i), e.whole);
}

template <class T, class S>
void storeWhole(const Extremes<T, S>& e) {
    if (!e.global) return;
    T lanes[kLanes<T>];
    store(lanes, e.whole);
    T extreme = lanes[0];
    for (T x : lanes) extreme = S::pick(splat<Vec<T>>(x), splat<Vec<T>>(extreme))[0];
    __builtin_memcpy(e.global, &extreme, sizeof extreme);
}

template <class T, class... E>
void walkBlocks(ImageView<const T> src, TpxiSizeL size, TpxiSizeL block, E&... extremes) {
    // Blocks that are narrower than a piece are folded side by side, wider ones piece upon piece.
    const ptrdiff_t width = block.width, span = width < kPiece<T> ? kPiece<T> / width * width : width;
    const ptrdiff_t columns = width < kPiece<T> ? width : kPiece<T>;
    for (ptrdiff_t y = 0, by = 0; y < size.height; y += block.height, by++) {
        const ptrdiff_t rows = size.height - y < block.height ? size.height - y : block.height;
        for (ptrdiff_t x = 0; x < size.width; x += span) {
            const ptrdiff_t end = size.width - x < span ? size.width : x + span;
            for (ptrdiff_t piece = x; piece < end; piece += kPiece<T>)
                foldRows(src.from(piece, y), rows, end - piece < kPiece<T> ? end - piece : kPiece<T>,
                         piece == x, extremes...);
            const ptrdiff_t blocks = (end - x + width - 1) / width;
            const ptrdiff_t len = end - x < kPiece<T> ? end - x : kPiece<T>;
            (finishBlocks(extremes, by, x / width, blocks, columns, len), ...);
        }
    }
    (storeWhole(extremes), ...);
}

// ---- Operation -------------------------------------------------------------------------------------------

// One side's results; either may be missing.
template <class T>
struct Output {
    ImageView<T> dst;
    T* global;

    bool wanted() const { return dst.data || global; }
    bool tooNarrow(ptrdiff_t samples) const { return dst.data && dst.step < samples * ptrdiff_t(sizeof(T)); }
    template <class S>
    Extremes<T, S> extremes() const {
        Extremes<T, S> e;
        e.dst = dst;
        e.global = global;
        e.whole = noneOf<S, T>();
        return e;
    }
};

template <class T>
TpxStatus blockMinMax(ImageView<const T> src, TpxiSizeL size, TpxiSizeL block, const Output<T>& min,
                      const Output<T>& max) {
    if (!src.data || (!min.dst.data && !max.dst.data)) return tpxErrNullPointer;
    if (isEmpty(size) || isEmpty(block)) return tpxErrSize;
    // No block is larger than the image: the grid stays the same.
    if (block.width > size.width) block.width = size.width;
    if (block.height > size.height) block.height = size.height;
    const ptrdiff_t blocks = (size.width + block.width - 1) / block.width;
    if (src.step < size.width * ptrdiff_t(sizeof(T)) || min.tooNarrow(blocks) || max.tooNarrow(blocks))
        return tpxErrStep;
    if (min.wanted() && max.wanted()) {
        auto smallest = min.template extremes<Least>();
        auto largest = max.template extremes<Most>();
        walkBlocks(src, size, block, smallest, largest);
    } else if (min.wanted()) {
        auto smallest = min.template extremes<Least>();
        walkBlocks(src, size, block, smallest);
    } else {
        auto largest = max.template extremes<Most>();
        walkBlocks(src, size, block, largest);
    }
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_BLOCK_MIN_MAX(T)                                                                              \
    TPX_ENTRY(tpxiBlockMinMax_##T##_C1R)                                                                  \
    (const Tpx##T* pSrc, int srcStep, TpxiSize srcSize, Tpx##T* pDstMin, int dstMinStep, Tpx##T* pDstMax, \
     int dstMaxStep, TpxiSize blockSize, Tpx##T* pDstGlobalMin, Tpx##T* pDstGlobalMax) {                  \
        return blockMinMax<Tpx##T>({pSrc, srcStep}, wide(srcSize), wide(blockSize),                       \
                                   {{pDstMin, dstMinStep}, pDstGlobalMin},                                \
                                   {{pDstMax, dstMaxStep}, pDstGlobalMax});                               \
    }
TPX_BLOCK_MIN_MAX(8u)
TPX_BLOCK_MIN_MAX(16u)
TPX_BLOCK_MIN_MAX(16s)
TPX_BLOCK_MIN_MAX(32f)
#undef TPX_BLOCK_MIN_MAX
