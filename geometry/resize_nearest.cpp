// Nearest resize: a gather of whole pixels, so only the size of a pixel in bytes matters.
#include <stddef.h>

#include "frame/entry.h"
#include "frame/simd.h"
#include "geometry/resize_tile.h"

namespace tpx {
namespace {

// Copies the pixels of a row one by one.
template <int Bytes>
class PixelGather {
    // A pixel is moved as the next power of two, as long as pixels follow it on both sides.
    struct Piece {
        Tpx8u bytes[Bytes <= 2 ? Bytes : Bytes <= 4 ? 4 : Bytes <= 8 ? 8 : 16];
    };
    const Tpx32s* index;
    int64_t width, whole;

 public:
    PixelGather(const TpxiResizeAxis& axis, int64_t x, int64_t width, Tpx8u*)
        : index(axis.pIndex + x), width(width), whole(width) {
        if (sizeof(Piece) != Bytes)
            while (whole > 0 && index[whole - 1] == index[width - 1]) whole--;
    }

    void operator()(const Tpx8u* src, Tpx8u* dst) const {
        for (int64_t j = 0; j < whole; j++)
            poke(reinterpret_cast<Piece*>(dst + j * Bytes),
                 peek(reinterpret_cast<const Piece*>(src + int64_t(index[j]) * Bytes)));
        for (int64_t j = whole; j < width; j++)
            __builtin_memcpy(dst + j * Bytes, src + int64_t(index[j]) * Bytes, Bytes);
    }
};

template <int Bytes, class Gather>
void gatherRows(const Tile& tile, const Gather& gather) {
    const Tpx32s* const index = tile.plan.axisY.pIndex + tile.y;
    for (int64_t i = 0; i < tile.height; i++) {
        Tpx8u* const dst = tile.dstRow<Tpx8u>(i);
        if (i > 0 && index[i] == index[i - 1])
            __builtin_memcpy(dst, tile.dstRow<Tpx8u>(i - 1), size_t(tile.width) * Bytes);
        else
            gather(tile.srcRow<Tpx8u>(index[i]), dst);
    }
}

template <int N, class Form, class T>
TpxStatus resizeNearest(const TileCall<Form, T>& call) {
    const TpxStatus status = checkTile(call, tpxInterpolationNearest);
    if (status != tpxOk) return status;
    constexpr int kBytes = N * int(sizeof(T));
    const Tile tile = makeTile(call, N);
    gatherRows<kBytes>(tile, PixelGather<kBytes>(tile.plan.axisX, tile.x, tile.width, tile.buffer));
    return doneTile(call);
}

} // namespace
} // namespace tpx

using namespace tpx;

#define NEAREST_FORM(Form, name, T, N)                                                                  \
    TPX_ENTRY(name)                                                                                     \
    (const T* pSrc, Form::Length srcStep, T* pDst, Form::Length dstStep, Form::Point dstOffset,         \
     Form::Size dstSize, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer) {                                 \
        const TileCall<Form, T> call{pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer}; \
        return resizeNearest<N>(call);                                                                  \
    }
#define NEAREST(type, N)                                                      \
    NEAREST_FORM(ShortForm, tpxiResizeNearest_##type##_C##N##R, Tpx##type, N) \
    NEAREST_FORM(LongForm, tpxiResizeNearest_##type##_C##N##R_L, Tpx##type, N)
#define NEAREST_LAYOUTS(type) NEAREST(type, 1) NEAREST(type, 3) NEAREST(type, 4)

NEAREST_LAYOUTS(8u)
NEAREST_LAYOUTS(16u)
NEAREST_LAYOUTS(16s)
NEAREST_LAYOUTS(32f)
