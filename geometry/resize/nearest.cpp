// Nearest resize: a gather of whole pixels, so only the size of a pixel in bytes matters.
#include <stddef.h>

#include "frame/entry/entry.h"
#include "frame/simd/simd.h"
#include "geometry/resize/tile.h"

namespace tpx {
namespace {

// Gathers the pixels of rows. Small pixels are taken in groups that fill 8 bytes of the destination: where the
// sources of a group lie within 16 bytes they are one load and one shuffle, prepared once for all rows.
template <int Bytes>
class PixelGather {
    static constexpr int kPixels = Bytes > 4 ? 0 : 8 / Bytes; // of a group

    // A single pixel is moved as the next power of two while pixels follow it on both sides.
    struct Piece {
        Tpx8u bytes[Bytes <= 2 ? Bytes : Bytes <= 4 ? 4 : Bytes <= 8 ? 8 : 16];
    };

    const Tpx32s* index;
    int64_t width;
    int64_t shuffled = 0, pieces; // pixels before which shuffles, and then pieces, serve
    Tpx8u* shuffles;

    void prepareShuffles() {
        const int64_t end = (int64_t(index[width - 1]) + 1) * Bytes;
        Tpx8u* shuffle = shuffles;
        // Two pixels of three bytes are stored as eight. The last two never are: their load would not end in
        // time.
        for (; shuffled + kPixels <= width; shuffled += kPixels, shuffle += 8) {
            const Tpx32s* const at = index + shuffled;
            if ((int64_t(at[kPixels - 1]) - at[0] + 1) * Bytes > 16 || int64_t(at[0]) * Bytes + 16 > end) break;
            for (int k = 0; k < kPixels * Bytes; k++)
                shuffle[k] = Tpx8u((at[k / Bytes] - at[0]) * Bytes + k % Bytes);
        }
    }

 public:
    // `work` has room for 4 bytes for each pixel.
    PixelGather(const TpxiResizeAxis& axis, int64_t x, int64_t width, Tpx8u* work)
        : index(axis.pIndex + x), width(width), pieces(width), shuffles(work) {
        if constexpr (kPixels > 0) prepareShuffles();
        if (sizeof(Piece) != Bytes)
            while (pieces > shuffled && index[pieces - 1] == index[width - 1]) pieces--;
    }

    void operator()(const Tpx8u* src, Tpx8u* dst) const {
        // Kept apart from *this, which the compiler cannot tell from the destination.
        const Tpx32s* const at = index;
        const int64_t shufflesEnd = shuffled, piecesEnd = pieces, end = width;
        int64_t j = 0;
        if constexpr (kPixels > 0) {
            const Tpx8u* shuffle = shuffles;
            for (; j < shufflesEnd; j += kPixels, shuffle += 8) {
                const V8u pixels = load(src + int64_t(at[j]) * Bytes);
                const __m128i group = _mm_shuffle_epi8(__m128i(pixels), __m128i(load(shuffle)));
                poke(reinterpret_cast<Tpx64s*>(dst + j * Bytes), Tpx64s(_mm_cvtsi128_si64(group)));
            }
        }
        for (; j < piecesEnd; j++)
            poke(reinterpret_cast<Piece*>(dst + j * Bytes),
                 peek(reinterpret_cast<const Piece*>(src + int64_t(at[j]) * Bytes)));
        for (; j < end; j++) __builtin_memcpy(dst + j * Bytes, src + int64_t(at[j]) * Bytes, Bytes);
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
