// Linear resize. Each source row is passed horizontally once into one of two row buffers, and destination rows
// are blends of the two. Positions whose taps reach outside the source lie in strips along the tile's sides and
// need one blend alone.
#include <stddef.h>

#include "frame/entry/entry.h"
#include "frame/runs/runs.h"
#include "frame/simd/simd.h"
#include "geometry/resize/tile.h"

namespace tpx {
namespace {

// What a horizontal pass keeps, and the type of the weights. 8u: 6 fraction bits, weights of 14 bits.
template <class T>
struct Linear {
    using Row = Tpx32f;
    using Weight = Tpx32f;
};
template <>
struct Linear<Tpx8u> {
    using Row = Tpx16s;
    using Weight = Tpx16s;
};
template <>
struct Linear<Tpx64f> {
    using Row = Tpx64f;
    using Weight = Tpx64f;
};
template <class T>
using RowOf = typename Linear<T>::Row;
template <class T>
using WeightOf = typename Linear<T>::Weight;

// The weights of an axis, whatever type the plan was made for; a caller who mixes types gets what they say.
template <class T>
const WeightOf<T>* weightsOf(const TpxiResizeAxis& axis) {
    const void* weights = axis.pCoef32f;
    if (!weights) weights = axis.pCoefQ14;
    if (!weights) weights = axis.pCoef64f;
    return static_cast<const WeightOf<T>*>(weights);
}

// The weight of the right-hand pixel at position j.
template <class T>
WeightOf<T> weightAlongX(const WeightOf<T>* weights, int64_t j) {
    return peek(std::is_same_v<T, Tpx8u> ? weights + 2 * j + 1 : weights + j);
}

// ---- One blend, as the strips do it -------------------------------------------------------------------

// Rounds with the thread's rounding mode, then saturates.
template <class T>
T toSample(RowOf<T> x) {
    if constexpr (std::is_floating_point_v<T>) {
        return x;
    } else {
        constexpr int kLeast = std::is_signed_v<T> ? -32768 : 0, kMost = kLeast + 65535;
        const int i = _mm_cvtss_si32(_mm_set_ss(x));
        return T(i < kLeast ? kLeast : i > kMost ? kMost : i);
    }
}

template <class T>
T blendOnce(T p0, T p1, WeightOf<T> weight) {
    if constexpr (std::is_same_v<T, Tpx8u>) {
        const int u = p0 * 16384 + (p1 - p0) * weight;
        return T((u + 8192 + ((u >> 14) & 1)) >> 14);
    } else {
        const RowOf<T> a = p0, b = p1;
        return toSample<T>(a + (b - a) * weight);
    }
}

template <class T, int N>
void blendPixel(const T* p0, const T* p1, WeightOf<T> weight, T* dst) {
    for (int c = 0; c < N; c++) poke(dst + c, blendOnce(peek(p0 + c), peek(p1 + c), weight));
}

// The same for `count` neighbours with the same taps.
template <class T, int N>
void blendRun(const T* p0, const T* p1, WeightOf<T> weight, T* dst, int64_t count) {
    T pixel[N];
    blendPixel<T, N>(p0, p1, weight, pixel);
    for (int64_t i = 0; i < count; i++)
        for (int c = 0; c < N; c++) poke(dst + i * N + c, pixel[c]);
}

// A destination row of the top or bottom strip: a blend along one source row. Where the tile has a strip at the
// side too, both taps fall on the outermost pixel.
template <class T, int N>
void blendStripRow(const Tile& tile, const Strips& strips, const T* src, T* dst) {
    const TpxiResizeAxis& axis = tile.plan.axisX;
    const WeightOf<T>* const weights = weightsOf<T>(axis);
    const int64_t end = tile.width - strips.right;
    if (strips.left > 0) blendRun<T, N>(src, src, 0, dst, strips.left);
    for (int64_t j = strips.left; j < end; j++) {
        const T* const p = src + int64_t(axis.pIndex[tile.x + j]) * N;
        blendPixel<T, N>(p, p + N, weightAlongX<T>(weights, tile.x + j), dst + j * N);
    }
    const T* const last = src + (int64_t(axis.srcLen) - 1) * N;
    if (strips.right > 0) blendRun<T, N>(last, last, 0, dst + end * N, strips.right);
}

// Rows [from, from + count) of the tile, which all see source row `srcRow` alone.
template <class T, int N>
void fillAcross(const Tile& tile, const Strips& strips, int64_t from, int64_t count, int64_t srcRow) {
    if (count == 0) return;
    T* const first = tile.dstRow<T>(from);
    blendStripRow<T, N>(tile, strips, tile.srcRow<T>(srcRow), first);
    for (int64_t i = 1; i < count; i++)
        __builtin_memcpy(tile.dstRow<T>(from + i), first, size_t(tile.width) * N * sizeof(T));
}

// ---- The horizontal pass of 8u ------------------------------------------------------------------------

// (p0 * (16384 - q) + p1 * q + 128) >> 8 in eight lanes, from byte pairs (p0, p1) and -2q. It is exact: the
// rounding product of 64 (p0 - p1) and -2q is (128 (p1 - p0) q + 16384) >> 15, and 64 p0 joins without
// rounding. The sign lets q = 16384 fit 16 bits.
inline V16s blendPairs(__m128i pairs, V16s minus2q) {
    const __m128i difference = _mm_maddubs_epi16(pairs, _mm_set1_epi16(short(0xC040))); // 64, -64
    const __m128i base = _mm_maddubs_epi16(pairs, _mm_set1_epi16(0x0040));              // 64, 0
    return V16s(_mm_add_epi16(base, _mm_mulhrs_epi16(difference, __m128i(minus2q))));
}

// Source rows are taken in groups of destination pixels whose samples fill one register as byte pairs. A group
// whose taps lie within 16 bytes is one load and one shuffle, prepared once for all rows. If some group is
// wider, or the row is shorter than a load, the pairs are gathered pixel by pixel.
template <int N>
class RowPass8u {
    static constexpr int kPixels = N == 1 ? 8 : 2, kSamples = kPixels * N;

    const Tpx32s* index; // of all groups but the last
    Tpx32s lastIndex[kPixels];
    int64_t groups;
    int64_t firstByte = 0;
    bool prepared;
    // Per group: where its load begins, from `firstByte`; per sample: two shuffle positions, and -2q.
    Tpx32u* starts;
    Tpx8u* shuffles;
    Tpx16s* weights;

    static constexpr int64_t groupsOf(int64_t width) { return (width + kPixels - 1) / kPixels; }
    // A register that begins with the last group's samples may reach behind them.
    static constexpr int64_t bytesOf(int64_t width) { return 2 * kSamples * (groupsOf(width) - 1) + 16; }

    const Tpx32s* indexOf(int64_t group) const {
        return group < groups - 1 ? index + group * kPixels : lastIndex;
    }

    bool prepareLoads(int64_t width) {
        const int64_t rowBytes = (int64_t(index[width - 1]) - index[0] + 2) * N;
        if (rowBytes < 16 || rowBytes > 0x7fffffff) return false;
        for (int64_t g = 0; g < groups; g++) {
            const Tpx32s* const at = indexOf(g);
            if ((int64_t(at[kPixels - 1]) - at[0] + 2) * N > 16) return false;
            const int64_t start = minOf((int64_t(at[0]) - index[0]) * N, rowBytes - 16);
            starts[g] = Tpx32u(start);
            Tpx8u* shuffle = shuffles + 2 * kSamples * g;
            for (int k = 0; k < kPixels; k++) {
                const auto offset = Tpx8u((int64_t(at[k]) - index[0]) * N - start);
                for (int c = 0; c < N; c++, shuffle += 2) {
                    shuffle[0] = Tpx8u(offset + c);
                    shuffle[1] = Tpx8u(offset + c + N);
                }
            }
        }
        return true;
    }

    // The pairs of a group by loads of no byte but theirs.
    static __m128i gather(const Tpx8u* src, const Tpx32s* at) {
        const auto word = [&](int k) { return peek(reinterpret_cast<const Tpx16s*>(src + at[k])); };
        const auto half = [&](int64_t from) { return peek(reinterpret_cast<const Tpx32s*>(src + from)); };
        const auto pixels = [&](int k) {
            return peek(reinterpret_cast<const Tpx64s*>(src + int64_t(at[k]) * 4));
        };
        if constexpr (N == 1) {
            return _mm_setr_epi16(word(0), word(1), word(2), word(3), word(4), word(5), word(6), word(7));
        } else if constexpr (N == 3) {
            const int64_t a = int64_t(at[0]) * 3, b = int64_t(at[1]) * 3;
            return _mm_shuffle_epi8(_mm_setr_epi32(half(a), half(a + 2), half(b), half(b + 2)),
                                    _mm_setr_epi8(0, 3, 1, 6, 2, 7, 8, 11, 9, 14, 10, 15, -1, -1, -1, -1));
        } else {
            return _mm_shuffle_epi8(_mm_set_epi64x(pixels(1), pixels(0)),
                                    _mm_setr_epi8(0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15));
        }
    }

 public:
    static constexpr int64_t rowBytes(int64_t width) { return bytesOf(width); }

    // `work` has room for two rows' bytes and 4 more for each group.
    RowPass8u(const TpxiResizeAxis& axis, int64_t x, int64_t width, Tpx8u* work)
        : index(axis.pIndex + x), groups(groupsOf(width)) {
        weights = reinterpret_cast<Tpx16s*>(work);
        shuffles = work + bytesOf(width);
        starts = reinterpret_cast<Tpx32u*>(alignUp(shuffles + bytesOf(width), 4));
        const Tpx16s* const fromPlan = weightsOf<Tpx8u>(axis);
        const int64_t lastGroup = (groups - 1) * kPixels;
        for (int k = 0; k < kPixels; k++) lastIndex[k] = index[minOf(lastGroup + k, width - 1)];
        Tpx16s* weight = weights;
        for (int64_t j = 0; j < groups * kPixels; j++) {
            const int q = weightAlongX<Tpx8u>(fromPlan, x + minOf(j, width - 1));
            for (int c = 0; c < N; c++) *weight++ = Tpx16s(-2 * q);
        }
        prepared = prepareLoads(width);
        firstByte = int64_t(index[0]) * N;
    }

    void operator()(const Tpx8u* src, Tpx16s* out) const {
        if (prepared) {
            const Tpx8u* const first = src + firstByte;
            for (int64_t g = 0; g < groups; g++) {
                const V8u pixels = load(first + starts[g]), shuffle = load(shuffles + 2 * kSamples * g);
                const __m128i pairs = _mm_shuffle_epi8(__m128i(pixels), __m128i(shuffle));
                store(out + kSamples * g, blendPairs(pairs, load(weights + kSamples * g)));
            }
        } else {
            for (int64_t g = 0; g < groups; g++)
                store(out + kSamples * g, blendPairs(gather(src, indexOf(g)), load(weights + kSamples * g)));
        }
    }
};

// ---- The horizontal pass in floating point ------------------------------------------------------------

template <class R>
struct QuadOf {
    typedef R type __attribute__((vector_size(4 * sizeof(R))));
};
template <class T>
using Quad = typename QuadOf<RowOf<T>>::type;

inline Quad<Tpx32f> loadQuad(const Tpx32f* p) { return Quad<Tpx32f>(_mm_loadu_ps(p)); }
inline Quad<Tpx64f> loadQuad(const Tpx64f* p) { return Quad<Tpx64f>(_mm256_loadu_pd(p)); }
template <class T>
inline Quad<T> loadQuad(const T* p) {
    const __m128i samples = _mm_cvtsi64_si128(peek(reinterpret_cast<const Tpx64s*>(p)));
    return Quad<T>(
        _mm_cvtepi32_ps(std::is_signed_v<T> ? _mm_cvtepi16_epi32(samples) : _mm_cvtepu16_epi32(samples)));
}

// The left-hand and the right-hand pixels of a register of one-channel positions, by loads of no sample but
// theirs.
inline Pair<V64f> loadPairs(const Tpx64f* src, const Tpx32s* at) {
    const auto two = [&](int k) {
        const __m256d low = _mm256_castpd128_pd256(_mm_loadu_pd(src + at[k]));
        return _mm256_insertf128_pd(low, _mm_loadu_pd(src + at[k + 2]), 1);
    };
    const __m256d a = two(0), b = two(1);
    return {V64f(_mm256_unpacklo_pd(a, b)), V64f(_mm256_unpackhi_pd(a, b))};
}
inline Pair<V32f> loadPairs(const Tpx32f* src, const Tpx32s* at) {
    const auto pair = [&](int k) { return peek(reinterpret_cast<const double*>(src + at[k])); };
    const auto two = [&](int k) { return _mm_castpd_ps(_mm_set_pd(pair(k + 1), pair(k))); };
    const auto four = [&](int k) {
        return _mm256_insertf128_ps(_mm256_castps128_ps256(two(k)), two(k + 4), 1);
    };
    const __m256 a = four(0), b = four(2);
    return {V32f(_mm256_shuffle_ps(a, b, 0x88)), V32f(_mm256_shuffle_ps(a, b, 0xDD))};
}
// Sample pairs of 16 bits in 32-bit lanes.
template <class T>
inline Pair<V32f> splitPairs(__m128i low, __m128i high) {
    using Lanes = std::conditional_t<std::is_signed_v<T>, V32s, V32u>;
    const auto a = Lanes(low), b = Lanes(high);
    return {toFloat({V32s(a << 16 >> 16), V32s(b << 16 >> 16)}), toFloat({V32s(a >> 16), V32s(b >> 16)})};
}
template <class T>
inline Pair<V32f> loadPairs(const T* src, const Tpx32s* at) {
    static_assert(sizeof(T) == 2);
    const auto pair = [&](int k) { return peek(reinterpret_cast<const Tpx32s*>(src + at[k])); };
    return splitPairs<T>(_mm_setr_epi32(pair(0), pair(1), pair(2), pair(3)),
                         _mm_setr_epi32(pair(4), pair(5), pair(6), pair(7)));
}

// One channel of 16 bits or single precision: positions whose taps lie within 16 bytes are a load and a
// shuffle, prepared once for all rows. A register of eight positions takes two loads, or one in large
// magnifications.
template <class T>
class EightByShuffle {
    static constexpr bool kSingle = std::is_same_v<T, Tpx32f>;
    // The first and the last position of a load lie this far apart at most. Single precision loads the
    // right-hand pixels a second time, from one sample further.
    static constexpr int kReach = kSingle ? 3 : 6, kSpan = kSingle ? 5 : 8;

 public:
    static bool fits(const Tpx32s* at) { return at[3] - at[0] <= kReach && at[7] - at[4] <= kReach; }
    static bool fitsOneLoad(const Tpx32s* at) { return at[7] - at[0] <= kReach; }
    // Whether the loads end before `end`.
    static bool endsBefore(const Tpx32s* at, int64_t end) { return int64_t(at[4]) + kSpan <= end; }

    // 32 bytes.
    static void prepare(const Tpx32s* at, bool oneLoad, Tpx8u* shuffle) {
        for (int k = 0; k < 8; k++, shuffle += 4) {
            const int offset = at[k] - (oneLoad || k < 4 ? at[0] : at[4]);
            if constexpr (kSingle)
                poke(reinterpret_cast<Tpx32s*>(shuffle), offset);
            else
                for (int b = 0; b < 4; b++) shuffle[b] = Tpx8u(2 * offset + b);
        }
    }

    template <bool OneLoad>
    static Pair<V32f> load(const T* src, const Tpx32s* at, const Tpx8u* shuffle) {
        const T *const low = src + at[0], *const high = src + at[4];
        if constexpr (kSingle) {
            const __m256i lanes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(shuffle));
            const auto tap = [=](int k) {
                const __m256 samples = OneLoad ? _mm256_broadcast_ps(reinterpret_cast<const __m128*>(low + k))
                                               : _mm256_loadu2_m128(high + k, low + k);
                return V32f(_mm256_permutevar_ps(samples, lanes));
            };
            return {tap(0), tap(1)};
        } else {
            const auto four = [](const T* from, const Tpx8u* bytes) {
                return _mm_shuffle_epi8(__m128i(tpx::load(from)), __m128i(tpx::load(bytes)));
            };
            return splitPairs<T>(four(low, shuffle), four(OneLoad ? low : high, shuffle + 16));
        }
    }
};

template <class T, int N>
class RowPass {
    using Row = RowOf<T>;
    static constexpr int L = kLanes<Row>;
    static constexpr bool kShuffles = N == 1 && sizeof(T) < 8;
    using Eight = EightByShuffle<T>;

    const Tpx32s* index;
    const Row* fractions;
    int64_t width;
    Tpx8u* shuffles;
    int64_t shuffled = 0; // positions of whole registers that are taken by shuffles
    bool oneLoad = true;

 public:
    // A pixel of three channels is stored as four.
    static constexpr int64_t rowBytes(int64_t width) { return (width * N + (N == 3)) * int64_t(sizeof(Row)); }

    // `work` has room for 4 bytes for each position.
    RowPass(const TpxiResizeAxis& axis, int64_t x, int64_t width, Tpx8u* work)
        : index(axis.pIndex + x), fractions(weightsOf<T>(axis) + x), width(width), shuffles(work) {
        if constexpr (kShuffles) {
            const int64_t end = int64_t(index[width - 1]) + 2;
            while (shuffled + L <= width && Eight::fits(index + shuffled) &&
                   Eight::endsBefore(index + shuffled, end)) {
                oneLoad = oneLoad && Eight::fitsOneLoad(index + shuffled);
                shuffled += L;
            }
            for (int64_t j = 0; j < shuffled; j += L) Eight::prepare(index + j, oneLoad, shuffles + 4 * j);
        }
    }

    void operator()(const T* src, Row* out) const {
        int64_t j = 0;
        if constexpr (N == 1) {
            const auto blend = [&](Pair<Vec<Row>> p) {
                store(out + j, p.low + (p.high - p.low) * load(fractions + j));
            };
            if constexpr (kShuffles) {
                if (oneLoad)
                    for (; j < shuffled; j += L)
                        blend(Eight::template load<true>(src, index + j, shuffles + 4 * j));
                else
                    for (; j < shuffled; j += L)
                        blend(Eight::template load<false>(src, index + j, shuffles + 4 * j));
            }
            for (; j + L <= width; j += L) blend(loadPairs(src, index + j));
            for (; j < width; j++) {
                const Row a = peek(src + index[j]), b = peek(src + index[j] + 1);
                out[j] = a + (b - a) * peek(fractions + j);
            }
        } else {
            for (; j < width; j++) {
                const T* const p = src + int64_t(index[j]) * N;
                const Row f = peek(fractions + j);
                const Quad<T> a = loadQuad(p), fraction = {f, f, f, f};
                Quad<T> b;
                if constexpr (N == 4) {
                    b = loadQuad(p + 4);
                } else { // ends with the right-hand pixel
                    b = loadQuad(p + 2);
                    b = __builtin_shufflevector(b, b, 1, 2, 3, 3);
                }
                const Quad<T> blend = a + (b - a) * fraction;
                __builtin_memcpy(out + j * N, &blend, sizeof blend);
            }
        }
    }
};

template <class T, int N>
using PassOf = std::conditional_t<std::is_same_v<T, Tpx8u>, RowPass8u<N>, RowPass<T, N>>;

// ---- The vertical blend -------------------------------------------------------------------------------

// at(i) makes a register of samples from position i on of the two rows. Positions at both ends may be made
// twice.
template <class T, class At>
inline void storeBlend(T* dst, int64_t count, const T* below, At at) {
    constexpr int64_t L = kLanes<T>;
    if (count < L) {
        const Vec<T> all = at(0);
        copyShort(dst, &all, count * int64_t(sizeof(T)));
        return;
    }
    store(dst, at(0));
    int64_t i = samplesToBoundary(dst);
    for (; i + 2 * L <= count; i += 2 * L) {
        _mm_prefetch(below + i, _MM_HINT_T0);
        store(dst + i, at(i));
        store(dst + i + L, at(i + L));
    }
    if (i + L <= count) store(dst + i, at(i));
    store(dst + count - L, at(count - L));
}

// (r0 * (16384 - q) + r1 * q + 524288) >> 20. The sum is that of the nearer row and the other's share, which
// can be floored alone, as the rest of the sum is whole: base + ((other - base) * q >> 14), then rounded to
// nearest by 6 bits. As q is at most 8192 then, -4q fits 16 bits and the high half of a product is the floored
// share.
inline void blendRows(const Tpx16s* r0, const Tpx16s* r1, Tpx16s weight, Tpx8u* dst, int64_t count,
                      const Tpx8u* below) {
    int q = weight;
    if (q > 8192) {
        q = 16384 - q;
        const Tpx16s* const nearer = r1;
        r1 = r0;
        r0 = nearer;
    }
    const __m128i minus4q = _mm_set1_epi16(short(-4 * q)), roundBy6Bits = _mm_set1_epi16(512);
    storeBlend(dst, count, below, [=](int64_t i) {
        const auto eight = [=](int64_t k) {
            const __m128i base = __m128i(load(r0 + k)), other = __m128i(load(r1 + k));
            const __m128i share = _mm_mulhi_epi16(_mm_sub_epi16(base, other), minus4q);
            return V16s(_mm_mulhrs_epi16(_mm_add_epi16(base, share), roundBy6Bits));
        };
        return narrow<Tpx8u>(Pair<V16s>{eight(i), eight(i + 8)});
    });
}

template <class T>
inline void blendRows(const RowOf<T>* r0, const RowOf<T>* r1, RowOf<T> fraction, T* dst, int64_t count,
                      const T* below) {
    using V = Vec<RowOf<T>>;
    const V f = splat<V>(fraction);
    storeBlend(dst, count, below, [=](int64_t i) {
        const V a = load(r0 + i), blend = a + (load(r1 + i) - a) * f;
        if constexpr (std::is_floating_point_v<T>)
            return blend;
        else
            return narrow<T>(toInteger(blend));
    });
}

// ---- The tile -----------------------------------------------------------------------------------------

// The rows between the top and bottom strips.
template <class T, int N>
void fillMiddle(const Tile& tile, const Strips& strips) {
    using Row = RowOf<T>;
    const int64_t width = tile.width - strips.left - strips.right;
    const int64_t height = tile.height - strips.top - strips.bottom;
    if (height <= 0) return;

    const Tpx32s* const index = tile.plan.axisY.pIndex + tile.y + strips.top;
    const WeightOf<T>* const weights = weightsOf<T>(tile.plan.axisY) + tile.y + strips.top;
    const int64_t lastColumn = (int64_t(tile.plan.axisX.srcLen) - 1) * N;
    // A row's part of the left and of the right strip, whose pixels all see one source column.
    const auto fillSides = [&](int64_t i) {
        const T *const p0 = tile.srcRow<T>(index[i]), *const p1 = tile.srcRow<T>(int64_t(index[i]) + 1);
        T *const left = tile.dstRow<T>(strips.top + i), *const right = left + (tile.width - strips.right) * N;
        const WeightOf<T> weight = peek(weights + i);
        if (strips.left > 0) blendRun<T, N>(p0, p1, weight, left, strips.left);
        if (strips.right > 0) blendRun<T, N>(p0 + lastColumn, p1 + lastColumn, weight, right, strips.right);
    };
    if (width <= 0) {
        for (int64_t i = 0; i < height; i++) fillSides(i);
        return;
    }

    // The work buffer: two rows, then what the pass prepares. Its size allows 4 bytes for each sample of a row,
    // and for each position; rows of 8u take 2. The vertical blend reads whole registers, so a short row has
    // room for one, and defined samples in it.
    constexpr int64_t kRegister = 32, kAlignment = sizeof(T) == 1 ? 16 : 32;
    const int64_t rowBytes = PassOf<T, N>::rowBytes(width);
    const int64_t rowStep = ((rowBytes < kRegister ? kRegister : rowBytes) + kAlignment - 1) & -kAlignment;
    Tpx8u* const work = alignUp(tile.buffer, kAlignment);
    auto newer = reinterpret_cast<Row*>(work), older = reinterpret_cast<Row*>(work + rowStep);
    __builtin_memset(newer, 0, kRegister);
    __builtin_memset(older, 0, kRegister);
    const PassOf<T, N> pass(tile.plan.axisX, tile.x + strips.left, width, work + 2 * rowStep);

    int64_t current = int64_t(index[0]) - 2; // the row in `older`; the next one is in `newer`
    for (int64_t i = 0; i < height; i++) {
        const int64_t row = index[i];
        if (row > current) {
            Row* const spent = older;
            older = newer;
            newer = spent;
            if (row > current + 1) pass(tile.srcRow<T>(row), older);
            pass(tile.srcRow<T>(row + 1), newer);
            current = row;
        }
        blendRows(older, newer, peek(weights + i), tile.dstRow<T>(strips.top + i) + strips.left * N, width * N,
                  tile.dstRow<T>(strips.top + i + 1) + strips.left * N);
        fillSides(i);
    }
}

template <class T, int N, class Form>
TpxStatus resizeLinear(const TileCall<Form, T>& call, TpxBorderType border) {
    if (!isResizeBorder(border)) return tpxErrBorder;
    const TpxStatus status = checkTile(call, tpxInterpolationLinear);
    if (status != tpxOk) return status;

    const Tile tile = makeTile(call, N);
    const Strips strips = stripsOf(tile, border);
    fillAcross<T, N>(tile, strips, 0, strips.top, 0);
    fillMiddle<T, N>(tile, strips);
    fillAcross<T, N>(tile, strips, tile.height - strips.bottom, strips.bottom,
                     int64_t(tile.plan.axisY.srcLen) - 1);
    return doneTile(call);
}

} // namespace
} // namespace tpx

using namespace tpx;

#define LINEAR_FORM(Form, name, T, N)                                                                   \
    TPX_ENTRY(name)                                                                                     \
    (const T* pSrc, Form::Length srcStep, T* pDst, Form::Length dstStep, Form::Point dstOffset,         \
     Form::Size dstSize, TpxBorderType border, const T*, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer) { \
        const TileCall<Form, T> call{pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer}; \
        return resizeLinear<T, N>(call, border);                                                        \
    }
#define LINEAR(type, N)                                                     \
    LINEAR_FORM(ShortForm, tpxiResizeLinear_##type##_C##N##R, Tpx##type, N) \
    LINEAR_FORM(LongForm, tpxiResizeLinear_##type##_C##N##R_L, Tpx##type, N)
#define LINEAR_LAYOUTS(type) LINEAR(type, 1) LINEAR(type, 3) LINEAR(type, 4)

LINEAR_LAYOUTS(8u)
LINEAR_LAYOUTS(16u)
LINEAR_LAYOUTS(16s)
LINEAR_LAYOUTS(32f)
LINEAR_LAYOUTS(64f)
