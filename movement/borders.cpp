// tpxiCopy*Border: an image copied into a larger one, or lying in it already, and the margin around it filled.
//
// The rows of the image are built whole, margins included; the rows above and below are copies of them. Samples
// are only moved, so pixels of one size share their code.
#include "frame/images/border.h"

#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/runs/reverse.h"

namespace tpx {
namespace {

// Below this many bytes read and written a copy stays in the caches without asking for their size.
constexpr uint64_t kStreamingFloor = 4194304;

enum class Side { Left, Right };

// A pixel's size; of four samples the last may be alpha, which is not written.
template <int Bytes, bool KeepsAlpha>
struct Pixel {
    static constexpr int kBytes = Bytes;
    static constexpr bool kKeepsAlpha = KeepsAlpha;
    using Sample = std::conditional_t<Bytes == 4, Tpx8u, std::conditional_t<Bytes == 8, Tpx16u, Tpx32u>>;
};

// ---- Margins of a row from its own pixels ---------------------------------------------------------------

inline constexpr int kRegister = sizeof(V8u);

// Where byte i of a register lies in its pixel, for registers that begin at a pixel and for those that end at
// one.
template <int P>
struct Phases {
    static constexpr int kPeriod = kRegister % P ? 3 : 1; // registers until a pixel begins with one again
    alignas(16) Tpx8u ofPeriod[kPeriod * kRegister], toEnd[kRegister];
    constexpr Phases() : ofPeriod{}, toEnd{} {
        for (int i = 0; i < kPeriod * kRegister; i++) ofPeriod[i] = Tpx8u(i % P);
        for (int i = 0; i < kRegister; i++) toEnd[i] = Tpx8u((i + P * kRegister - kRegister) % P);
    }
};
template <int P>
inline constexpr Phases<P> kPhases;

inline V8u shuffle(V8u v, V8u order) {
    Table16<Tpx8u> table;
    table.bytes = v;
    return lookup(table, order);
}

// Which bytes of the first register of an image's row make the first register of the row with its margin, of up
// to a register. On the right all runs backwards.
template <Border B, int P, Side S>
inline V8u edgeOrder(ptrdiff_t margin) {
    const V8u lane = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    const V8u phase = load(kPhases<P>.ofPeriod);
    const V8u pixel = lane - phase - splat<V8u>(Tpx8u(margin));
    const V8u order = V8u(maxOf(V8s(pixel), B == Border::Mirror ? V8s(V8u{} - pixel) : V8s{})) + phase;
    return S == Side::Left ? order : reverseLanes(splat<V8u>(kRegister - 1) - order);
}

// More than a register of one pixel, which begins at `offset` of the register that is given.
template <int P>
inline void fillPixels(V8u v, int offset, Tpx8u* dst, ptrdiff_t bytes) {
    const auto filled = [&](const Tpx8u* phases) {
        return shuffle(v, load(phases) + splat<V8u>(Tpx8u(offset)));
    };
    constexpr int period = kPhases<P>.kPeriod;
    V8u of[period];
    for (int k = 0; k < period; k++) of[k] = filled(kPhases<P>.ofPeriod + k * kRegister);
    ptrdiff_t i = 0;
    for (; i + 3 * kRegister <= bytes; i += 3 * kRegister)
        for (int k = 0; k < 3; k++) store(dst + i + k * kRegister, of[k % period]);
    if (i + kRegister <= bytes) store(dst + i, of[0]);
    if (i + 2 * kRegister <= bytes) store(dst + i + kRegister, of[1 % period]);
    store(dst + bytes - kRegister, filled(kPhases<P>.toEnd));
}

// Goes on with what lies beside the gap. What has been copied is itself a source, so the pieces double.
template <Side S>
inline void repeat(Tpx8u* gap, ptrdiff_t bytes, ptrdiff_t period) {
    for (ptrdiff_t piece; bytes > 0; bytes -= piece, period *= 2) {
        piece = bytes < period ? bytes : period;
        if constexpr (S == Side::Left) {
            gap -= piece;
            copyRow(gap, gap + period, piece);
        } else {
            copyRow(gap, gap - period, piece);
            gap += piece;
        }
    }
}

// One margin of every row: `near` is what the rule fills from the image's row, `far` what it repeats of that.
template <Border B, int P, Side S>
class Margin {
 public:
    Margin(ptrdiff_t margin, ptrdiff_t width) : width_(width * P), period_(borderPeriod<B>(width) * P) {
        const ptrdiff_t reach = B == Border::Replicate && width_ >= kRegister ? margin : borderReach<B>(width);
        near_ = (margin < reach ? margin : reach) * P;
        far_ = margin * P - near_;
        order_ = edgeOrder<B, P, S>(near_);
    }

    // `src` is the image's row, `dst` the place of its first pixel in the destination.
    void writeNear(const Tpx8u* src, Tpx8u* dst) const {
        constexpr bool left = S == Side::Left;
        if (near_ == 0) return;
        Tpx8u* const to = left ? dst - near_ : dst + width_;
        const Tpx8u* const edge = left ? src : src + width_ - kRegister;
        if constexpr (B == Border::Wrap)
            copyRow(to, left ? src + width_ - near_ : src, near_);
        else if (B == Border::Mirror && near_ >= PixelOrder<P>::kBytes)
            reversePixels<P, left ? Neighbour::Before : Neighbour::After>(
                left ? src + P : src + width_ - P - near_, to, near_ / P);
        else if (width_ >= kRegister && near_ <= kRegister)
            store(left ? to : to + near_ - kRegister, shuffle(load(edge), order_));
        else if constexpr (B == Border::Replicate)
            fillPixels<P>(load(edge), left ? 0 : kRegister - P, to, near_);
        else // the whole image is narrower than a register
            for (ptrdiff_t i = P; i <= near_; i += P)
                __builtin_memcpy(left ? dst - i : dst + width_ - P + i, left ? src + i : src + width_ - P - i,
                                 P);
    }

    void writeFar(Tpx8u* dst) const {
        if (far_) repeat<S>(S == Side::Left ? dst - near_ : dst + width_ + near_, far_, period_);
    }

 private:
    ptrdiff_t width_, period_, near_, far_;
    V8u order_;
};

// ---- Rows -----------------------------------------------------------------------------------------------

// Sizes and margins in pixels.
struct Frame {
    ptrdiff_t width, height; // of the image
    ptrdiff_t left, top, right, bottom;

    ptrdiff_t rowPixels() const { return left + width + right; }
    ptrdiff_t rows() const { return top + height + bottom; }
};

// Builds rows whose margins follow the rule; `pixel` is that of a constant border.
template <Border B, class Px>
class RowBuilder {
 public:
    RowBuilder(const Frame& f, const Tpx8u*) : left_(f.left, f.width), right_(f.right, f.width) {}
    template <class Move>
    void operator()(const Tpx8u* src, Tpx8u* dst, Move move) const {
        left_.writeNear(src, dst);
        right_.writeNear(src, dst);
        move();
        left_.writeFar(dst);
        right_.writeFar(dst);
    }

 private:
    Margin<B, Px::kBytes, Side::Left> left_;
    Margin<B, Px::kBytes, Side::Right> right_;
};

template <class Px>
requires(!Px::kKeepsAlpha) class RowBuilder<Border::Const, Px> {
 public:
    RowBuilder(const Frame& f, const Tpx8u* pixel)
        : left_(f.left * Px::kBytes),
          width_(f.width * Px::kBytes),
          right_(f.right * Px::kBytes),
          pattern_(makePattern(pixel, Px::kBytes)) {}
    template <class Move>
    void operator()(const Tpx8u*, Tpx8u* dst, Move move) const {
        fillRow(dst - left_, left_, pattern_);
        move();
        fillRow(dst + width_, right_, pattern_);
    }
    void fill(Tpx8u* row) const { fillRow(row, left_ + width_ + right_, pattern_); }

 private:
    ptrdiff_t left_, width_, right_;
    Pattern pattern_;
};

// Const and Replicate alone come with alpha, and fill their margins with one pixel.
template <Border B, class Px>
requires(Px::kKeepsAlpha) class RowBuilder<B, Px> {
 public:
    RowBuilder(const Frame& f, const Tpx8u* pixel) : frame_(f) {
        if constexpr (B == Border::Const) pixel_ = spread(pixel);
    }
    template <class Move>
    void operator()(const Tpx8u* src, Tpx8u* dst, Move move) const {
        constexpr bool own = B == Border::Const;
        fill(dst - frame_.left * Px::kBytes, frame_.left, own ? pixel_ : spread(src));
        move();
        fill(dst + frame_.width * Px::kBytes, frame_.right,
             own ? pixel_ : spread(src + (frame_.width - 1) * Px::kBytes));
    }
    void fill(Tpx8u* row) const { fill(row, frame_.rowPixels(), pixel_); }

 private:
    static V32f spread(const Tpx8u* pixel) {
        V8u v{};
        __builtin_memcpy(&v, pixel, Px::kBytes);
        v = shuffle(v, load(kPhases<Px::kBytes>.ofPeriod));
        return bitsAs<V32f>(__builtin_shufflevector(v, v, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
                                                    0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
    }
    [[gnu::noinline]] static void fill(Tpx8u* dst, ptrdiff_t pixels, V32f with) {
        auto d = reinterpret_cast<typename Px::Sample*>(dst);
        if (pixels) moveKeepingAlpha(d, d, pixels, [=](auto) { return with; });
    }

    Frame frame_;
    V32f pixel_{};
};

// ---- The walk -------------------------------------------------------------------------------------------

template <class Px>
[[gnu::noinline]] void moveRowKeepingAlpha(Tpx8u* dst, const Tpx8u* src, ptrdiff_t pixels) {
    using S = typename Px::Sample;
    moveKeepingAlpha(reinterpret_cast<const S*>(src), reinterpret_cast<S*>(dst), pixels,
                     [](auto x) { return x; });
}

template <class Px>
inline void moveRow(Tpx8u* dst, const Tpx8u* src, ptrdiff_t pixels, bool stream) {
    if constexpr (Px::kKeepsAlpha)
        moveRowKeepingAlpha<Px>(dst, src, pixels);
    else if (stream)
        copyRowStreaming(dst, src, pixels * Px::kBytes);
    else
        copyRow(dst, src, pixels * Px::kBytes);
}

// `dst` is the place of the image's first pixel. In place `src` is null.
template <Border B, class Px>
inline void extend(const Tpx8u* src, ptrdiff_t srcStep, Tpx8u* dst, ptrdiff_t dstStep, const Frame& f,
                   const Tpx8u* pixel) {
    const uint64_t traffic = 2 * uint64_t(f.rowPixels()) * uint64_t(f.rows()) * Px::kBytes;
    const bool stream = !Px::kKeepsAlpha && src && exceedsCache(traffic, kStreamingFloor);
    const RowBuilder<B, Px> build(f, pixel);
    walkRows(src ? src : dst, src ? srcStep : dstStep, dst, dstStep, f.height, [&](const Tpx8u* s, Tpx8u* d) {
        build(s, d, [&] {
            if (src) moveRow<Px>(d, s, f.width, stream);
        });
    });

    const auto row = [&](ptrdiff_t y) { return addBytes(dst, y * dstStep) - f.left * Px::kBytes; };
    const auto margin = [&](ptrdiff_t y) {
        if constexpr (B == Border::Const)
            build.fill(row(y));
        else
            moveRow<Px>(row(y), row(borderSource<B>(y, f.height)), f.rowPixels(), stream);
    };
    for (ptrdiff_t y = -f.top; y < 0; y++) margin(y);
    for (ptrdiff_t y = f.height; y < f.height + f.bottom; y++) margin(y);
    if (stream) streamFence();
}

// ---- Checks ---------------------------------------------------------------------------------------------

// Sizes are 1 at least. Their difference cannot overflow; the sum with a margin may.
inline bool fits(TpxSizeL margin, TpxSizeL src, TpxSizeL dst) { return margin >= 0 && margin <= dst - src; }

// All checks but those of the image pointers. In place `src` is null and `dst` the place of the image's first
// pixel; otherwise that of the destination's.
template <Border B, class Px>
[[gnu::noinline]] TpxStatus checkAndExtend(const void* src, TpxSizeL srcStep, TpxiSizeL srcRoi, void* dst,
                                           TpxSizeL dstStep, TpxiSizeL dstRoi, TpxSizeL top, TpxSizeL left,
                                           const void* value) {
    if (srcStep < 1 || dstStep < 1) return tpxErrStep;
    if (isEmpty(srcRoi) || isEmpty(dstRoi)) return tpxErrSize;
    if (!fits(left, srcRoi.width, dstRoi.width) || !fits(top, srcRoi.height, dstRoi.height)) return tpxErrSize;
    Tpx8u pixel[Px::kBytes] = {};
    if constexpr (B == Border::Const) {
        if (anyNull(value)) return tpxErrNullPointer;
        __builtin_memcpy(pixel, value, Px::kKeepsAlpha ? Px::kBytes / 4 * 3 : Px::kBytes);
    }
    const Frame f = {srcRoi.width,
                     srcRoi.height,
                     left,
                     top,
                     dstRoi.width - srcRoi.width - left,
                     dstRoi.height - srcRoi.height - top};
    auto first = static_cast<Tpx8u*>(dst);
    if (src) first = addBytes(first, top * dstStep) + left * Px::kBytes;
    extend<B, Px>(static_cast<const Tpx8u*>(src), srcStep, first, dstStep, f, pixel);
    return tpxOk;
}

template <Layout L, class T>
using PixelOf = Pixel<channelsOf(L) * int(sizeof(T)), L == Layout::AC4>;
inline TpxiSizeL wide(TpxiSize size) { return {size.width, size.height}; }
inline TpxiSizeL wide(TpxiSizeL size) { return size; }

template <Border B, Layout L, class T, class Size>
inline TpxStatus extendInPlace(T* pSrcDst, TpxSizeL step, Size srcRoi, Size dstRoi, TpxSizeL top, TpxSizeL left,
                               const T* value = nullptr) {
    if (anyNull(pSrcDst)) return tpxErrNullPointer;
    return checkAndExtend<B, PixelOf<L, T>>(nullptr, step, wide(srcRoi), pSrcDst, step, wide(dstRoi), top, left,
                                            value);
}

template <Border B, Layout L, class T, class Size>
inline TpxStatus copyExtended(const T* pSrc, TpxSizeL srcStep, Size srcRoi, T* pDst, TpxSizeL dstStep,
                              Size dstRoi, TpxSizeL top, TpxSizeL left, const T* value = nullptr) {
    if (B != Border::Const && pSrc == pDst)
        return extendInPlace<B, L>(pDst, dstStep, srcRoi, dstRoi, top, left);
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    return checkAndExtend<B, PixelOf<L, T>>(pSrc, srcStep, wide(srcRoi), pDst, dstStep, wide(dstRoi), top, left,
                                            value);
}

} // namespace
} // namespace tpx

// Int and Size are the records of the short or the 64-bit form. VALUE is what the constant is declared as, and
// PASS how it is handed on; both are empty but in Const forms.
#define TPX_BORDER_COPY(B, T, L, SUFFIX, Int, Size, VALUE, PASS)                                          \
    TPX_ENTRY(tpxiCopy##B##Border_##T##_##L##R##SUFFIX)                                                   \
    (const Tpx##T* pSrc, Int srcStep, Size srcRoiSize, Tpx##T* pDst, Int dstStep, Size dstRoiSize,        \
     Int topBorderHeight, Int leftBorderWidth VALUE) {                                                    \
        return tpx::copyExtended<tpx::Border::B, tpx::Layout::L>(                                         \
            pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth PASS); \
    }
#define TPX_BORDER_IN_PLACE(B, T, L, SUFFIX, Int, Size, VALUE, PASS)                                           \
    TPX_ENTRY(tpxiCopy##B##Border_##T##_##L##IR##SUFFIX)                                                       \
    (Tpx##T * pSrcDst, Int srcDstStep, Size srcRoiSize, Size dstRoiSize, Int topBorderHeight,                  \
     Int leftBorderWidth VALUE) {                                                                              \
        return tpx::extendInPlace<tpx::Border::B, tpx::Layout::L>(pSrcDst, srcDstStep, srcRoiSize, dstRoiSize, \
                                                                  topBorderHeight, leftBorderWidth PASS);      \
    }
#define TPX_COMMA ,

// Const has no short form in place.
#define TPX_CONST(T, L, VALUE, PASS)                                                       \
    TPX_BORDER_COPY(Const, T, L, , int, TpxiSize, TPX_COMMA VALUE, TPX_COMMA PASS)         \
    TPX_BORDER_COPY(Const, T, L, _L, TpxSizeL, TpxiSizeL, TPX_COMMA VALUE, TPX_COMMA PASS) \
    TPX_BORDER_IN_PLACE(Const, T, L, _L, TpxSizeL, TpxiSizeL, TPX_COMMA VALUE, TPX_COMMA PASS)
#define TPX_BORDER(B, T, L)                               \
    TPX_BORDER_COPY(B, T, L, , int, TpxiSize, , )         \
    TPX_BORDER_COPY(B, T, L, _L, TpxSizeL, TpxiSizeL, , ) \
    TPX_BORDER_IN_PLACE(B, T, L, , int, TpxiSize, , )     \
    TPX_BORDER_IN_PLACE(B, T, L, _L, TpxSizeL, TpxiSizeL, , )

#define TPX_BORDERS(T)                              \
    TPX_CONST(T, C1, Tpx##T value, &value)          \
    TPX_CONST(T, C3, const Tpx##T value[3], value)  \
    TPX_CONST(T, C4, const Tpx##T value[4], value)  \
    TPX_CONST(T, AC4, const Tpx##T value[3], value) \
    TPX_BORDER(Replicate, T, C1)                    \
    TPX_BORDER(Replicate, T, C3)                    \
    TPX_BORDER(Replicate, T, C4)                    \
    TPX_BORDER(Replicate, T, AC4)                   \
    TPX_BORDER(Mirror, T, C1)                       \
    TPX_BORDER(Mirror, T, C3)                       \
    TPX_BORDER(Mirror, T, C4)
TPX_BORDERS(8u)
TPX_BORDERS(16u)
TPX_BORDERS(16s)
TPX_BORDERS(32s)
TPX_BORDERS(32f)
TPX_BORDER(Wrap, 32s, C1)
TPX_BORDER(Wrap, 32f, C1)
