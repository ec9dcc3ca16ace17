// SPDX-License-Identifier: Apache-2.0
// tpxiFilterBoxBorder: the mean over a mask.
//
// Sums of columns slide down by one row, those of masks are made of them along the row.
#include "filters/box_sums.h"
#include "filters/in_place.h"
#include "filters/stencil.h"
#include "frame/entry/entry.h"

namespace tpx {
namespace {

// ---- Means ------------------------------------------------------------------------------------------------

// Eight sums as floats, of which sumsAt(i) makes a register from the i-th on.
template <class Sum, class At>
[[gnu::always_inline]] inline V32f eightFloats(At sumsAt, ptrdiff_t i) {
    if constexpr (std::is_same_v<Sum, Tpx32f>) {
        return sumsAt(i);
    } else if constexpr (std::is_same_v<Sum, Tpx16u>) {
        const Pair<V32u> wide = widen(sumsAt(i));
        return toFloat(Pair<V32s>{V32s(wide.low), V32s(wide.high)});
    } else {
        return toFloat(Pair<V32s>{sumsAt(i), sumsAt(i + 4)});
    }
}

// Times the reciprocal in single precision, to nearest.
struct ByProduct {
    V32f reciprocal;

    explicit ByProduct(int64_t samples) : reciprocal(splat<V32f>(1.0f / float(samples))) {}

    // Of eight sums, samples of 16 bits.
    template <class D>
    Vec<D> ofSums(Pair<V32s> sums) const {
        return narrow<D>(toInteger(toFloat(sums) * reciprocal));
    }
    template <class D, class Sum, class At>
    [[gnu::always_inline]] Vec<D> means(At sumsAt, ptrdiff_t i) const {
        const auto eight = [&](ptrdiff_t at) __attribute__((always_inline)) {
            return eightFloats<Sum>(sumsAt, at) * reciprocal;
        };
        if constexpr (std::is_same_v<D, Tpx32f>)
            return eight(i);
        else if constexpr (sizeof(D) == 2)
            return narrow<D>(toInteger(eight(i)));
        else
            return narrow<D>(
                Pair<V16s>{narrow<Tpx16s>(toInteger(eight(i))), narrow<Tpx16s>(toInteger(eight(i + 8)))});
    }
};

// The same means of bytes from sums in 16 bits, in integers: (sum + samples / 2) x factor / 2^(16 + shift),
// rounded down. With an odd number of samples no mean is a tie, and the nearest one is 1 / (2 samples) away
// from it, more than the single-precision product is off. The integers' quotient is right while the factor's
// excess over 2^(16 + shift) / samples adds less than 1 / samples to it (Granlund and Montgomery 1994), which
// is tested.
struct ByShift {
    V16u bias, factor;
    int shift = 0;
    bool isExact = false;

    explicit ByShift(int64_t samples) {
        if (samples % 2 == 0 || samples < 3 || samples > 255) return;
        while (samples >> (shift + 1)) shift++;
        const int64_t one = int64_t(1) << (16 + shift), f = one / samples + 1, excess = f * samples - one,
                      largest = 255 * samples + samples / 2;
        isExact = largest * excess < one;
        bias = splat<V16u>(Tpx16u(samples / 2));
        factor = splat<V16u>(Tpx16u(f));
    }

    [[gnu::always_inline]] V16u ofBiased(V16u sums) const {
        return shiftRight(multiplyHigh(sums, factor), shift);
    }
};

// The same in one multiplication, sum x factor / 2^15 rounded, for a few small numbers of samples.
struct ByRounding {
    V16u bias{};
    V16s factor;
    bool isExact = false;

    explicit ByRounding(int64_t samples) {
        const int64_t one = 1 << 15, f = (one + samples / 2) / samples,
                      off = f * samples > one ? f * samples - one : one - f * samples;
        isExact = samples % 2 == 1 && samples >= 3 && samples <= 128 && 2 * samples * 255 * off < one;
        factor = splat<V16s>(Tpx16s(f));
    }

    [[gnu::always_inline]] V16u ofBiased(V16u sums) const { return V16u(multiplyRounded(V16s(sums), factor)); }
};

// Sixteen means of bytes by either.
template <class Mean>
struct OfWords : Mean {
    using Mean::Mean;

    template <class D, class Sum, class At>
    [[gnu::always_inline]] Vec<D> means(At sumsAt, ptrdiff_t i) const {
        const auto eight = [&](ptrdiff_t at) __attribute__((always_inline)) {
            return this->ofBiased(sumsAt(at) + this->bias);
        };
        return narrow<D>(Pair<V16u>{eight(i), eight(i + 8)});
    }
};

// ---- Regions ----------------------------------------------------------------------------------------------

// The largest magnitude of a sample.
template <class S>
constexpr int64_t kLargest = std::is_signed_v<S> ? int64_t(kMax<S>) + 1 : int64_t(kMax<S>);

// What a kernel keeps from row to row, in the call's buffer.
struct BoxMemory {
    void* columns; // sums of all columns of the region and its neighbours, up to 32 bits each
    ptrdiff_t columnBytes;
};

// Means of 3x3 integers and of 5x5 bytes of one channel, without sums of columns: a row's sums of neighbours
// are shared by the output rows that see it, for a few rows at a time.
template <int Side, class S>
struct RowOfSums {
    using Sums = std::conditional_t<sizeof(S) == 1, V16s, V32s>;
    // Unsigned samples of 16 bits are lower by so much in sums.
    static constexpr int kLower = std::is_same_v<S, Tpx16u> ? 1 << 15 : 0;

    Sums even, odd; // those centred on the samples of even number, and of odd

    RowOfSums() = default;
    // Of a register of samples, whose neighbours begin at p.
    explicit RowOfSums(const S* p) {
        const auto first = samplesAt(p), last = samplesAt(p + Side - 1);
        even = addPairs(first) + evenOf(last);
        odd = oddOf(first) + addPairs(last);
        for (int k = 2; k < Side - 1; k += 2) {
            const Sums middle = addPairs(samplesAt(p + k));
            even += middle;
            odd += middle;
        }
    }

 private:
    static auto samplesAt(const S* p) {
        if constexpr (kLower)
            return V16s(load(p) ^ splat<Vec<S>>(S(kLower)));
        else
            return load(p);
    }
    static V16s evenOf(V8u x) { return V16s(V16u(x) & splat<V16u>(0xFF)); }
    static V16s oddOf(V8u x) { return V16s(V16u(x) >> 8); }
    static V32s evenOf(V16s x) { return multiplyAddPairs(x, V16s(splat<V32s>(1))); }
    static V32s oddOf(V16s x) { return V32s(x) >> 16; }
};

template <int Side, class S, class Mean>
void meansOfSquare(Region<S, S> region, Mean mean) {
    constexpr ptrdiff_t kBlock = kLanes<S>;
    using Row = RowOfSums<Side, S>;
    using Sums = typename Row::Sums;
    // Rows that lie multiples of 2048 bytes apart share a set or two of the first-level cache, which does not
    // hold a line of many of them.
    const bool share = region.src.step % 4096 == 0 || region.dst.step % 4096 == 0;
    const int64_t band = share ? 2 : Side == 3 ? 8 : 20;
    const ptrdiff_t width = ptrdiff_t(region.size.width);
    const auto src = region.src.from(-(Side / 2), -(Side / 2));
    for (int64_t y = 0; y < region.size.height; y += band) {
        const int64_t left = region.size.height - y, rows = left < band ? left : band;
        const auto column = [&](ptrdiff_t x, auto put) __attribute__((always_inline)) {
            const S* from = src.from(x, ptrdiff_t(y)).data;
            S* to = region.dst.from(x, ptrdiff_t(y)).data;
            Row ring[Side];
            Sums even; // of the rows above the lowest one
            if constexpr (sizeof(S) == 1)
                even = V16s(mean.bias);
            else
                even = splat<V32s>(Side * Side * Row::kLower);
            Sums odd = even;
            for (int k = 0; k < Side - 1; k++, from = addBytes(from, src.step)) {
                ring[k] = Row(from);
                even += ring[k].even;
                odd += ring[k].odd;
            }
            for (int64_t row = 0; row < rows; row += Side)
                unroll<Side>([&](auto k) __attribute__((always_inline)) {
                    if (row + k >= rows) return;
                    const Row below(from);
                    even += below.even;
                    odd += below.odd;
                    if constexpr (sizeof(S) == 1)
                        put(to, V8u(mean.ofBiased(V16u(even)) | mean.ofBiased(V16u(odd)) << 8));
                    else
                        put(to, inTurn(mean.template ofSums<S>({even, odd})));
                    even -= ring[k].even;
                    odd -= ring[k].odd;
                    ring[(k + Side - 1) % Side] = below;
                    from = addBytes(from, src.step);
                    to = addBytes(to, region.dst.step);
                });
        };
        const auto whole = [](S* to, Vec<S> means) { store(to, means); };
        if (width < kBlock) {
            column(0, [&](S* to, Vec<S> means) { copyShort(to, &means, width * ptrdiff_t(sizeof(S))); });
            continue;
        }
        for (ptrdiff_t x = 0; x + kBlock <= width; x += kBlock) column(x, whole);
        if (width % kBlock) column(width - kBlock, whole);
    }
}

template <Layout L, class S>
class BoxKernel {
    static constexpr int N = channelsOf(L);
    static constexpr ptrdiff_t kBlock = kLanes<S>;

 public:
    BoxKernel(TpxiSizeL mask, BoxMemory memory)
        : mask_(mask),
          reach_(reachOf(mask)),
          memory_(memory),
          byProduct_(mask.width * mask.height),
          byShift_(mask.width * mask.height),
          byRounding_(mask.width * mask.height) {}

    void operator()(const Region<S, S>& region) const {
        if constexpr (L == Layout::C1 && std::is_integral_v<S>) {
            if (mask_.width == mask_.height &&
                (region.size.width >= kBlock || region.slack >= ptrdiff_t(sizeof(Vec<S>)))) {
                if constexpr (sizeof(S) == 1) {
                    if (mask_.width == 3) return meansOfSquare<3>(region, byRounding_);
                    if (mask_.width == 5) return meansOfSquare<5>(region, byShift_);
                } else if (mask_.width == 3) { // five rows of wider sums do not fit the registers
                    return meansOfSquare<3>(region, byProduct_);
                }
            }
        }
        if constexpr (std::is_integral_v<S>) {
            if (sizeof(S) == 1 && mask_.height * kLargest<S> <= kMax<Tpx16u>)
                return run<std::conditional_t<sizeof(S) == 1, Tpx16u, Tpx32s>>(region);
            if (mask_.height * kLargest<S> <= kMax<Tpx32s>) return run<Tpx32s>(region);
        }
        run<Tpx32f>(region);
    }

 private:
    // Row by row: `Column` holds the sum of a column.
    template <class Column>
    void run(const Region<S, S>& region) const {
        const ptrdiff_t length = ptrdiff_t(region.size.width) * N;
        ptrdiff_t count = length + ptrdiff_t(mask_.width - 1) * N;
        // Narrow strips are worked on by whole registers.
        if (const ptrdiff_t whole = ptrdiff_t(roundUp(uint64_t(count), uint64_t(kBlock)));
            (whole - count) * ptrdiff_t(sizeof(S)) <= region.slack &&
            whole * ptrdiff_t(sizeof(Column)) <= memory_.columnBytes)
            count = whole;
        const ColumnSums<Column, S> columns(static_cast<Column*>(memory_.columns), count);
        const auto src = region.src.from(-ptrdiff_t(reach_.left) * N, -ptrdiff_t(reach_.top));
        for (int64_t y = 0; y < region.size.height; y++) {
            if (isFormed<Column>(region.done + y))
                columns.form(src.from(0, ptrdiff_t(y)), mask_.height);
            else
                columns.slide(src.row(ptrdiff_t(y + mask_.height - 1)), src.row(ptrdiff_t(y - 1)));
            meansOfRow(columns.data(), length, region.dst.row(ptrdiff_t(y)));
        }
    }

    // Whether the sums at a row are made anew. Those of floats are, at least every few rows, to be rid of
    // errors.
    template <class Column>
    bool isFormed(int64_t y) const {
        if constexpr (std::is_same_v<Column, Tpx32f>) {
            constexpr int64_t kSmallMask = 5, kShortestSlide = 16;
            if (mask_.height <= kSmallMask) return true;
            return y % (mask_.height < kShortestSlide ? kShortestSlide : mask_.height) == 0;
        }
        return y == 0;
    }

    template <class Column>
    void meansOfRow(const Column* columns, ptrdiff_t length, S* dst) const {
        const int64_t samples = mask_.width * mask_.height;
        if constexpr (std::is_same_v<Column, Tpx16u>) {
            if (samples * kLargest<S> <= kMax<Tpx16u>) {
                if (byRounding_.isExact) return means<Tpx16u>(columns, length, dst, byRounding_);
                if (byShift_.isExact) return means<Tpx16u>(columns, length, dst, byShift_);
                return means<Tpx16u>(columns, length, dst, byProduct_);
            }
        }
        if constexpr (std::is_same_v<Column, Tpx32f>) {
            if (WindowTile<Tpx32f>::canSum(mask_.width, N))
                return means<Tpx32f>(columns, length, dst, byProduct_);
        } else {
            if (samples * kLargest<S> <= kMax<Tpx32s>) return means<Tpx32s>(columns, length, dst, byProduct_);
        }
        slidingMeans(columns, length, dst);
    }

    template <class Sum, class Column, class Mean>
    void means(const Column* columns, ptrdiff_t length, S* dst, Mean mean) const {
        if (mask_.width == 1) return meansOfTaps<Sum, 1>(columns, length, dst, mean);
        if (mask_.width == 3) return meansOfTaps<Sum, 3>(columns, length, dst, mean);
        if (mask_.width == 5) return meansOfTaps<Sum, 5>(columns, length, dst, mean);
        meansOfTiles<Sum>(columns, length, dst, mean);
    }

    template <class Sum, int Taps, class Column, class Mean>
    static void meansOfTaps(const Column* columns, ptrdiff_t length, S* dst, Mean mean) {
        // A row shorter than a block reads on behind the columns, in the buffer.
        put<Sum>(
            [&](ptrdiff_t i) __attribute__((always_inline)) {
                Vec<Sum> sum = sumsFrom<Sum>(columns + i);
                for (int k = 1; k < Taps; k++) sum += sumsFrom<Sum>(columns + i + k * N);
                return sum;
            },
            length, dst, mean);
    }

    template <class Sum, class Column, class Mean>
    [[gnu::noinline]] void meansOfTiles(const Column* columns, ptrdiff_t length, S* dst, Mean mean) const {
        if constexpr (std::is_integral_v<Sum>) {
            using Window = IntegerWindow<Sum, N, Column>;
            Window window(columns, mask_.width);
            alignas(64) Sum sums[Window::kRoom];
            forTiles<Window::kTile>(length, [&](ptrdiff_t x, ptrdiff_t part) {
                window.next(sums, part);
                put<Sum>(
                    [&](ptrdiff_t i) __attribute__((always_inline)) { return load(sums + i); }, part, dst + x,
                    mean);
            });
        } else {
            WindowTile<Sum> tile;
            forTiles<WindowTile<Sum>::kLength>(length, [&](ptrdiff_t x, ptrdiff_t part) {
                tile.sumPadded(columns + x, part, mask_.width, N); // more of the buffer lies behind them
                put<Sum>(
                    [&](ptrdiff_t i) __attribute__((always_inline)) { return load(tile.sums + i); }, part,
                    dst + x, mean);
            });
        }
    }

    template <class Column>
    [[gnu::noinline]] void slidingMeans(const Column* columns, ptrdiff_t length, S* dst) const {
        SlidingWindow<Column> window(columns, length, mask_.width, N);
        constexpr ptrdiff_t kTile = 240; // whole pixels
        Tpx32f sums[kTile + 16] = {};
        forTiles<kTile>(length, [&](ptrdiff_t x, ptrdiff_t part) {
            window.next(sums, part);
            put<Tpx32f>([&](ptrdiff_t i) { return load(sums + i); }, part, dst + x, byProduct_);
        });
    }

    template <ptrdiff_t Tile, class Body>
    static void forTiles(ptrdiff_t length, Body body) {
        // A tile is of whole pixels.
        constexpr ptrdiff_t kTile = Tile / N * N;
        for (ptrdiff_t x = 0; x < length; x += kTile) body(x, length - x < kTile ? length - x : kTile);
    }

    // Sums, of which sumsAt(i) makes a register from the i-th on and which may be taken up to a block's end, to
    // means.
    template <class Sum, class At, class Mean>
    [[gnu::always_inline]] static void put(At sumsAt, ptrdiff_t length, S* dst, Mean mean) {
        const auto at = [&](ptrdiff_t i) __attribute__((always_inline)) {
            return mean.template means<S, Sum>(sumsAt, i);
        };
        if (length < kBlock) {
            const Vec<S> block = at(0);
            if constexpr (L == Layout::AC4) {
                const Vec<S> all = keepAlpha<S>(loadShort(dst, length), block);
                copyShort(dst, &all, length * ptrdiff_t(sizeof(S)));
            } else {
                copyShort(dst, &block, length * ptrdiff_t(sizeof(S)));
            }
            return;
        }
        const auto one = [&](ptrdiff_t i) __attribute__((always_inline)) {
            if constexpr (L == Layout::AC4)
                store(dst + i, keepAlpha<S>(load(dst + i), at(i)));
            else
                store(dst + i, at(i));
        };
        ptrdiff_t i = 0;
        for (; i + kBlock <= length; i += kBlock) one(i);
        if (i < length) one(length - kBlock);
    }

    TpxiSizeL mask_;
    Reach reach_;
    BoxMemory memory_;
    ByProduct byProduct_;
    OfWords<ByShift> byShift_;
    OfWords<ByRounding> byRounding_;
};

// ---- Work buffers -----------------------------------------------------------------------------------------

// Sizes of areas, as far as they can be told: what is past any buffer stays there.
constexpr int64_t kPastAll = int64_t(1) << 48;
constexpr int64_t product(int64_t a, int64_t b) {
    int64_t p = 0;
    return __builtin_mul_overflow(a, b, &p) || p > kPastAll ? kPastAll : p;
}

// The areas of the buffer, whose sizes are contract: strips, sums of columns, a ring of rows and its pointers.
struct BoxAreas {
    int64_t strips, columns, ring, pointers;
    int64_t all() const { return strips + columns + ring + pointers; }
};

template <int SampleBytes>
constexpr int64_t ringStep(TpxiSizeL roi, int N) {
    return int64_t(roundUp(uint64_t(roi.width * N * SampleBytes), 32));
}

template <int SampleBytes, bool Floats>
constexpr BoxAreas boxAreas(TpxiSizeL roi, TpxiSizeL mask, int N) {
    const Reach reach = reachOf(mask);
    const int64_t width = roi.width + mask.width - 1, height = roi.height + mask.height - 1;
    BoxAreas areas{};
    areas.ring = product(reach.top + 1, ringStep<SampleBytes>(roi, N)) + 64;
    areas.pointers = 8 * reach.top + 8;
    if (2 * mask.width <= roi.width && 2 * mask.height <= roi.height) {
        if (Floats && N == 1) {
            areas.pointers = 0;
            areas.ring = product(4 * mask.height, int64_t(roundUp(uint64_t(roi.width), 8))) + 64;
        }
    } else if (const int64_t whole = product(width, height) * SampleBytes * N; whole > areas.ring) {
        areas.ring = whole;
    }
    const int64_t across = product(width, mask.height - 1 + reach.bottom),
                  along = product(height, mask.width - 1 + reach.right);
    areas.strips =
        4 * N * (2 * across + (mask.height == 2 ? width : 0) + 2 * along + (mask.width == 2 ? height : 0));
    const int64_t columns = mask.width + roi.width + 3;
    if (N > 1)
        areas.columns = 16 * columns;
    else if (SampleBytes != 2)
        areas.columns = 4 * columns;
    else if (mask.width == 3 && mask.height == 3)
        areas.columns = ((8 * roi.width + 62) & ~int64_t(63)) + 64;
    else if (mask.width == 5 && mask.height == 5)
        areas.columns = ((16 * roi.width + 124) & ~int64_t(127)) + 64;
    else
        areas.columns = 4 * (columns + mask.width + roi.width) + 140;
    return areas;
}

template <class S>
constexpr BoxAreas boxAreasOf(TpxiSizeL roi, TpxiSizeL mask, int N) {
    return boxAreas<int(sizeof(S)), std::is_floating_point_v<S>>(roi, mask, N);
}

TpxStatus boxBufferSize(TpxiSizeL roi, TpxiSizeL mask, TpxDataType type, int N, int* pBufferSize) {
    if (anyNull(pBufferSize)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (isEmpty(mask)) return tpxErrMaskSize;
    const auto areasOf = type == tpxDataType8u                              ? boxAreasOf<Tpx8u>
                         : type == tpxDataType16u || type == tpxDataType16s ? boxAreasOf<Tpx16u>
                         : type == tpxDataType32f                           ? boxAreasOf<Tpx32f>
                                                                            : nullptr;
    if (areasOf == nullptr) return tpxErrDataType;
    if (N != 1 && N != 3 && N != 4) return tpxErrChannelCount;
    const int64_t bytes = areasOf(roi, mask, N).all();
    if (bytes > int64_t(kLongestBlock)) return tpxErrSizeTooLarge;
    *pBufferSize = int(bytes);
    return tpxOk;
}

// ---- Calls ------------------------------------------------------------------------------------------------

template <class S>
struct BoxCall {
    ImageView<const S> src;
    ImageView<S> dst;
    TpxiSizeL roi, mask;
    TpxBorderType border;
    const S* value;
    Tpx8u* buffer;
};

template <class S>
TpxStatus checkBox(const BoxCall<S>& call, BorderWord border) {
    if (anyNull(call.src.data) || anyNull(call.dst.data, call.buffer)) return tpxErrNullPointer;
    if (call.src.step < 1 || call.dst.step < 1) return tpxErrStep;
    if (isEmpty(call.roi)) return tpxErrSize;
    if (isEmpty(call.mask)) return tpxErrMaskSize;
    if (!border.valid) return tpxErrBorder;
    return border.kind == Border::Const && anyNull(call.value) ? tpxErrNullPointer : tpxOk;
}

template <Layout L, class S>
TpxStatus boxFilter(const BoxCall<S>& call) {
    constexpr int N = channelsOf(L);
    const BorderWord border = readFilterBorder(call.border);
    if (const TpxStatus status = checkBox(call, border); status != tpxOk) return status;

    // The sums of columns come first, then the strips; the whole copy of a small region, and in place the
    // bands, have all that follows.
    const BoxAreas areas = boxAreasOf<S>(call.roi, call.mask, N);
    Tpx8u* const strips = call.buffer + areas.columns;
    S value[N] = {};
    if (border.kind == Border::Const)
        for (int c = 0; c < coloursOf(L); c++) value[c] = peek(call.value + c);
    const FilterCall<S, S> filter = {call.src, call.dst, call.roi, call.mask, border, value, strips};
    filterAnywhere<N>(filter, areas.all() - areas.columns,
                      BoxKernel<L, S>(call.mask, {call.buffer, ptrdiff_t(areas.columns)}));
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiFilterBoxBorderGetBufferSize)
(TpxiSize roiSize, TpxiSize maskSize, TpxDataType dataType, int numChannels, int* pBufferSize) {
    return boxBufferSize(wide(roiSize), wide(maskSize), dataType, numChannels, pBufferSize);
}

#define TPX_BOX(T, L)                                                                                         \
    TPX_ENTRY(tpxiFilterBoxBorder_##T##_##L##R)                                                               \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, TpxiSize maskSize,         \
     TpxBorderType border, const Tpx##T* pBorderValue, Tpx8u* pBuffer) {                                      \
        return boxFilter<Layout::L>(BoxCall<Tpx##T>{                                                          \
            {pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), wide(maskSize), border, pBorderValue, pBuffer}); \
    }
#define TPX_BOX_LAYOUTS(T) TPX_BOX(T, C1) TPX_BOX(T, C3) TPX_BOX(T, C4) TPX_BOX(T, AC4)

TPX_BOX_LAYOUTS(8u)
TPX_BOX_LAYOUTS(16u)
TPX_BOX_LAYOUTS(16s)
TPX_BOX_LAYOUTS(32f)
#undef TPX_BOX
#undef TPX_BOX_LAYOUTS
