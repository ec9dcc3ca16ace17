// SPDX-License-Identifier: Apache-2.0
// tpxiCopy*Border: an image copied into a larger one, or lying in it already, and the margin around it filled.
//
// The rows of the image are built whole, margins included; the rows above and below are copies of them. Samples
// are only moved, so pixels of one size share their code.
#include "movement/borders.h"

#include "frame/entry/entry.h"
#include "frame/images/padded_row.h"
#include "frame/images/walk.h"

namespace tpx {
namespace {

// ---- Pixels and rows --------------------------------------------------------------------------------------

// A pixel's size; of four samples the last may be alpha, which is not written.
template <int Bytes, bool KeepsAlpha>
struct Pixel {
    static constexpr int kBytes = Bytes, kColourBytes = KeepsAlpha ? Bytes / 4 * 3 : Bytes;
    static constexpr bool kKeepsAlpha = KeepsAlpha;
};

// Padded rows whose alpha stays as it was. Const and Replicate alone come with alpha, and fill a margin with
// one pixel each.
template <Border B, class Px>
class PaddedRowKeepingAlpha {
 public:
    explicit PaddedRowKeepingAlpha(const RowShape& row, const Tpx8u* pixel = nullptr) : row_(row) {
        if (pixel) pixel_ = spread(pixel);
    }
    template <class Move>
    void build(const Tpx8u* src, Tpx8u* dst, Move move) const {
        constexpr bool own = B == Border::Const;
        fill(dst - row_.left * Px::kBytes, row_.left, own ? pixel_ : spread(src));
        move();
        fill(dst + row_.width * Px::kBytes, row_.right,
             own ? pixel_ : spread(src + (row_.width - 1) * Px::kBytes));
    }
    void fill(Tpx8u* dst) const { fill(dst - row_.left * Px::kBytes, row_.pixels(), pixel_); }

    static void move(Tpx8u* dst, const Tpx8u* src, ptrdiff_t pixels) {
        moveBy(dst, src, pixels, [](auto x) { return x; });
    }

 private:
    using Sample =
        std::conditional_t<Px::kBytes == 4, Tpx8u, std::conditional_t<Px::kBytes == 8, Tpx16u, Tpx32u>>;

    static V32f spread(const Tpx8u* pixel) {
        V8u v{};
        __builtin_memcpy(&v, pixel, Px::kBytes);
        v = shuffleBytes(v, load(kPixelPhases<Px::kBytes>.ofPeriod));
        return joinHalves<V32f>(v, v);
    }
    template <class Rule>
    [[gnu::noinline]] static void moveBy(Tpx8u* dst, const Tpx8u* src, ptrdiff_t pixels, Rule rule) {
        moveKeepingAlpha(reinterpret_cast<const Sample*>(src), reinterpret_cast<Sample*>(dst), pixels, rule);
    }
    static void fill(Tpx8u* dst, ptrdiff_t pixels, V32f with) {
        if (pixels) moveBy(dst, dst, pixels, [=](auto) { return with; });
    }

    RowShape row_;
    V32f pixel_{};
};

template <Border B, class Px>
using PaddedRow = std::conditional_t<
    Px::kKeepsAlpha, PaddedRowKeepingAlpha<B, Px>,
    std::conditional_t<B == Border::Const, ConstantPaddedRow<Px::kBytes>, RulePaddedRow<B, Px::kBytes>>>;

template <Border B, class Px>
inline void moveRow(Tpx8u* dst, const Tpx8u* src, ptrdiff_t pixels, bool stream) {
    if constexpr (Px::kKeepsAlpha)
        PaddedRowKeepingAlpha<B, Px>::move(dst, src, pixels);
    else if (stream)
        copyRowStreaming(dst, src, pixels * Px::kBytes);
    else
        copyRow(dst, src, pixels * Px::kBytes);
}

// ---- Images ------------------------------------------------------------------------------------------------

using Bytes = ImageView<Tpx8u>;
using ConstBytes = ImageView<const Tpx8u>;

// Rows above the image, of it and below it.
struct ColumnShape {
    ptrdiff_t top, height, bottom;

    ptrdiff_t rows() const { return top + height + bottom; }
};

// `dst` begins with the place of the image's first pixel; in place `src` is the same view. `pixel` is that of a
// constant border.
template <Border B, class Px>
inline void extend(bool inPlace, ConstBytes src, Bytes dst, const RowShape& row, const ColumnShape& column,
                   const Tpx8u* pixel) {
    const Extent padded = {row.pixels() * Px::kBytes, column.rows()};
    const bool stream =
        !Px::kKeepsAlpha && !inPlace && goesPastCaches(kStreamPointwise, trafficOf(padded, dst, src));
    const auto rows = [&] {
        if constexpr (B == Border::Const)
            return PaddedRow<B, Px>(row, pixel);
        else
            return PaddedRow<B, Px>(row);
    }();
    walkRows(
        Extent{row.width, column.height},
        [&](ptrdiff_t width, Tpx8u* d, const Tpx8u* s) {
            rows.build(s, d, [&] {
                if (!inPlace) moveRow<B, Px>(d, s, width, stream);
            });
        },
        dst, src);

    const auto margin = [&](ptrdiff_t y) {
        if constexpr (B == Border::Const) {
            rows.fill(dst.row(y));
        } else {
            const Bytes whole = {dst.data - row.left * Px::kBytes, dst.step};
            moveRow<B, Px>(whole.row(y), whole.row(borderSource<B>(y, column.height)), row.pixels(), stream);
        }
    };
    for (ptrdiff_t y = -column.top; y < 0; y++) margin(y);
    for (ptrdiff_t y = column.height; y < column.height + column.bottom; y++) margin(y);
    if (stream) streamFence();
}

// ---- Checks ---------------------------------------------------------------------------------------------

// Sizes are 1 at least. Their difference cannot overflow; the sum with a margin may.
inline bool fits(TpxSizeL margin, TpxSizeL src, TpxSizeL dst) { return margin >= 0 && margin <= dst - src; }

// All checks but those of the image pointers. In place `src` and `dst` are the image's first pixel; otherwise
// `dst` is the destination's.
template <Border B, class Px>
[[gnu::noinline]] TpxStatus checkAndExtend(bool inPlace, ConstBytes src, TpxiSizeL srcRoi, Bytes dst,
                                           TpxiSizeL dstRoi, TpxSizeL top, TpxSizeL left, const void* value) {
    if (src.step < 1 || dst.step < 1) return tpxErrStep;
    if (isEmpty(srcRoi) || isEmpty(dstRoi)) return tpxErrSize;
    if (!fits(left, srcRoi.width, dstRoi.width) || !fits(top, srcRoi.height, dstRoi.height)) return tpxErrSize;
    Tpx8u pixel[Px::kBytes] = {};
    if constexpr (B == Border::Const) {
        if (anyNull(value)) return tpxErrNullPointer;
        __builtin_memcpy(pixel, value, Px::kColourBytes);
    }
    extend<B, Px>(inPlace, src, inPlace ? dst : dst.from(left * Px::kBytes, top),
                  {left, srcRoi.width, dstRoi.width - srcRoi.width - left},
                  {top, srcRoi.height, dstRoi.height - srcRoi.height - top}, pixel);
    return tpxOk;
}

template <Layout L, class T>
using PixelOf = Pixel<channelsOf(L) * int(sizeof(T)), L == Layout::AC4>;

template <Border B, Layout L, class T>
inline TpxStatus extendInPlace(ImageView<T> image, TpxiSizeL srcRoi, TpxiSizeL dstRoi, TpxSizeL top,
                               TpxSizeL left, const T* value = nullptr) {
    if (anyNull(image.data)) return tpxErrNullPointer;
    return checkAndExtend<B, PixelOf<L, T>>(true, bytesOf(image), srcRoi, bytesOf(image), dstRoi, top, left,
                                            value);
}

// Equal pointers are the in-place form, but with a constant.
template <Border B, Layout L, class T>
inline TpxStatus copyExtended(ImageView<const T> src, TpxiSizeL srcRoi, ImageView<T> dst, TpxiSizeL dstRoi,
                              TpxSizeL top, TpxSizeL left, const T* value = nullptr) {
    if (B != Border::Const && src.data == dst.data)
        return extendInPlace<B, L, T>(dst, srcRoi, dstRoi, top, left);
    if (anyNull(src.data, dst.data)) return tpxErrNullPointer;
    return checkAndExtend<B, PixelOf<L, T>>(false, bytesOf(src), srcRoi, bytesOf(dst), dstRoi, top, left,
                                            value);
}

// ---- For the filters ---------------------------------------------------------------------------------------

template <int PixelBytes>
[[gnu::noinline]] void copyPixels(Border kind, ConstBytes src, Bytes dst, const RowShape& row,
                                  const ColumnShape& column, const Tpx8u* pixel) {
    using Px = Pixel<PixelBytes, false>;
    if (kind == Border::Const)
        extend<Border::Const, Px>(false, src, dst, row, column, pixel);
    else if (kind == Border::Mirror)
        extend<Border::Mirror, Px>(false, src, dst, row, column, nullptr);
    else
        extend<Border::Replicate, Px>(false, src, dst, row, column, nullptr);
}

} // namespace

void copyWithBorder(Border kind, int pixelBytes, ImageView<const Tpx8u> src, TpxiSizeL srcSize,
                    ImageView<Tpx8u> dst, TpxiSizeL dstSize, int64_t top, int64_t left, const void* pixel) {
    const auto copy = pixelBytes == 1    ? copyPixels<1>
                      : pixelBytes == 2  ? copyPixels<2>
                      : pixelBytes == 3  ? copyPixels<3>
                      : pixelBytes == 4  ? copyPixels<4>
                      : pixelBytes == 6  ? copyPixels<6>
                      : pixelBytes == 8  ? copyPixels<8>
                      : pixelBytes == 12 ? copyPixels<12>
                                         : copyPixels<16>;
    copy(kind, src, dst.from(left * pixelBytes, top),
         {left, srcSize.width, dstSize.width - srcSize.width - left},
         {top, srcSize.height, dstSize.height - srcSize.height - top}, static_cast<const Tpx8u*>(pixel));
}

} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

// An instance has the short and the 64-bit form of its name, and those in place. Const has no short form in
// place.
#define TPX_CONST_BORDER(T, L, name)                                                                       \
    TPX_ENTRY(name##_##T##_##L##R)                                                                         \
    (const Tpx##T* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx##T* pDst, int dstStep, TpxiSize dstRoiSize, \
     int topBorderHeight, int leftBorderWidth, Given<Layout::L, Tpx##T> value) {                           \
        return copyExtended<Border::Const, Layout::L, Tpx##T>(                                             \
            {pSrc, srcStep}, wide(srcRoiSize), {pDst, dstStep}, wide(dstRoiSize), topBorderHeight,         \
            leftBorderWidth, arrayOf(value));                                                              \
    }                                                                                                      \
    TPX_ENTRY(name##_##T##_##L##R_L)                                                                       \
    (const Tpx##T* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize, Tpx##T* pDst, TpxSizeL dstStep,           \
     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth,                             \
     Given<Layout::L, Tpx##T> value) {                                                                     \
        return copyExtended<Border::Const, Layout::L, Tpx##T>(                                             \
            {pSrc, srcStep}, wide(srcRoiSize), {pDst, dstStep}, wide(dstRoiSize), topBorderHeight,         \
            leftBorderWidth, arrayOf(value));                                                              \
    }                                                                                                      \
    TPX_ENTRY(name##_##T##_##L##IR_L)                                                                      \
    (Tpx##T * pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,                    \
     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth, Given<Layout::L, Tpx##T> value) {                 \
        return extendInPlace<Border::Const, Layout::L, Tpx##T>({pSrcDst, srcDstStep}, wide(srcRoiSize),    \
                                                               wide(dstRoiSize), topBorderHeight,          \
                                                               leftBorderWidth, arrayOf(value));           \
    }
#define TPX_RULE_BORDER(T, L, name, B)                                                                         \
    TPX_ENTRY(name##_##T##_##L##R)                                                                             \
    (const Tpx##T* pSrc, int srcStep, TpxiSize srcRoiSize, Tpx##T* pDst, int dstStep, TpxiSize dstRoiSize,     \
     int topBorderHeight, int leftBorderWidth) {                                                               \
        return copyExtended<Border::B, Layout::L, Tpx##T>({pSrc, srcStep}, wide(srcRoiSize), {pDst, dstStep},  \
                                                          wide(dstRoiSize), topBorderHeight, leftBorderWidth); \
    }                                                                                                          \
    TPX_ENTRY(name##_##T##_##L##R_L)                                                                           \
    (const Tpx##T* pSrc, TpxSizeL srcStep, TpxiSizeL srcRoiSize, Tpx##T* pDst, TpxSizeL dstStep,               \
     TpxiSizeL dstRoiSize, TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth) {                               \
        return copyExtended<Border::B, Layout::L, Tpx##T>({pSrc, srcStep}, wide(srcRoiSize), {pDst, dstStep},  \
                                                          wide(dstRoiSize), topBorderHeight, leftBorderWidth); \
    }                                                                                                          \
    TPX_ENTRY(name##_##T##_##L##IR)                                                                            \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize srcRoiSize, TpxiSize dstRoiSize, int topBorderHeight,          \
     int leftBorderWidth) {                                                                                    \
        return extendInPlace<Border::B, Layout::L, Tpx##T>(                                                    \
            {pSrcDst, srcDstStep}, wide(srcRoiSize), wide(dstRoiSize), topBorderHeight, leftBorderWidth);      \
    }                                                                                                          \
    TPX_ENTRY(name##_##T##_##L##IR_L)                                                                          \
    (Tpx##T * pSrcDst, TpxSizeL srcDstStep, TpxiSizeL srcRoiSize, TpxiSizeL dstRoiSize,                        \
     TpxSizeL topBorderHeight, TpxSizeL leftBorderWidth) {                                                     \
        return extendInPlace<Border::B, Layout::L, Tpx##T>(                                                    \
            {pSrcDst, srcDstStep}, wide(srcRoiSize), wide(dstRoiSize), topBorderHeight, leftBorderWidth);      \
    }
#define TPX_TYPES(INSTANCE, L, ...) \
    INSTANCE(8u, L, __VA_ARGS__)    \
    INSTANCE(16u, L, __VA_ARGS__)   \
    INSTANCE(16s, L, __VA_ARGS__)   \
    INSTANCE(32s, L, __VA_ARGS__)   \
    INSTANCE(32f, L, __VA_ARGS__)
TPX_TYPES(TPX_CONST_BORDER, C1, tpxiCopyConstBorder)
TPX_TYPES(TPX_CONST_BORDER, C3, tpxiCopyConstBorder)
TPX_TYPES(TPX_CONST_BORDER, C4, tpxiCopyConstBorder)
TPX_TYPES(TPX_CONST_BORDER, AC4, tpxiCopyConstBorder)
TPX_TYPES(TPX_RULE_BORDER, C1, tpxiCopyReplicateBorder, Replicate)
TPX_TYPES(TPX_RULE_BORDER, C3, tpxiCopyReplicateBorder, Replicate)
TPX_TYPES(TPX_RULE_BORDER, C4, tpxiCopyReplicateBorder, Replicate)
TPX_TYPES(TPX_RULE_BORDER, AC4, tpxiCopyReplicateBorder, Replicate)
TPX_TYPES(TPX_RULE_BORDER, C1, tpxiCopyMirrorBorder, Mirror)
TPX_TYPES(TPX_RULE_BORDER, C3, tpxiCopyMirrorBorder, Mirror)
TPX_TYPES(TPX_RULE_BORDER, C4, tpxiCopyMirrorBorder, Mirror)
TPX_RULE_BORDER(32s, C1, tpxiCopyWrapBorder, Wrap)
TPX_RULE_BORDER(32f, C1, tpxiCopyWrapBorder, Wrap)
#undef TPX_CONST_BORDER
#undef TPX_RULE_BORDER
#undef TPX_TYPES
