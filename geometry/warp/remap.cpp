// SPDX-License-Identifier: Apache-2.0
// Remap: positions come from the caller's maps. Pixels whose position lies in the rectangle are the kernels', a
// stretch of a row at a time; all others stay, or are blended at smooth edges.
#include "tpxi/remap.h"
#include "frame/entry/checks.h"
#include "frame/entry/entry.h"
#include "frame/memory/caller_memory.h"
#include "frame/simd/control.h"
#include "geometry/warp/results.h"

namespace tpx {
namespace {

// ---- What a call is asked for ----------------------------------------------------------------------------

template <class Map>
struct Maps {
    ImageView<const Map> x, y;
};

template <class T, class Map = RealOf<T>>
struct RemapCall {
    ImageView<const T> src;
    TpxiSize srcSize;
    TpxiRect roi;
    Maps<Map> maps;
    ImageView<T> dst;
    TpxiSize size;
    int interpolation;

    bool hasSmoothEdge() const { return interpolation < 0; }
    int selector() const { return interpolation & 0x7FFFFFFF; }
    RemapCall<Tpx8u, Map> inBytes() const {
        return {bytesOf(src), srcSize, roi, maps, bytesOf(dst), size, interpolation};
    }
};

constexpr int kNearest = tpxInterpolationNearest, kLinear = tpxInterpolationLinear, kThroughSamples = 4,
              kCatmullRom = tpxInterpolationCubic, kLanczos = tpxInterpolationLanczos;

template <class T>
inline TpxStatus checkRemap(const RemapCall<T>& call) {
    const TpxiSize srcSize = call.srcSize;
    const TpxiRect roi = call.roi;
    if (anyNull(call.src.data, call.dst.data) || anyNull(call.maps.x.data, call.maps.y.data))
        return tpxErrNullPointer;
    if (isEmpty(srcSize) || roi.x < 0 || roi.y < 0 || isEmpty(roi) || isEmpty(call.size)) return tpxErrSize;
    switch (call.selector()) {
        case kNearest:
        case kLinear:
        case kThroughSamples:
        case kCatmullRom:
        case kLanczos:
            break;
        default:
            return tpxErrInterpolation;
    }
    if (call.src.step < 1 || call.dst.step < 1 || call.maps.x.step < 1 || call.maps.y.step < 1)
        return tpxErrStep;
    if (roi.x >= srcSize.width || roi.y >= srcSize.height) return tpxWarnNoRoiOverlap;
    return tpxOk;
}

// What an image has enough pixels for.
inline int fitting(int selector, TpxiSize image) {
    const int least = minOf(image.width, image.height);
    if (selector == kLanczos && least < 6) selector = kThroughSamples;
    if ((selector == kThroughSamples || selector == kCatmullRom) && least < 4) selector = kLinear;
    return least == 1 ? kNearest : selector;
}

// ---- Positions -------------------------------------------------------------------------------------------

// Along one axis: positions from low to high are inside. Of the taps, the pixel below the position lies in
// first to last; fractions are the position's distances from the pixel so far behind that one.
//
// Positions are worked on as floats where these hold all pixels, and the halves between them, as doubles else.
template <class Work>
struct MapAxis {
    Work low, high, first, last, origin;
};

constexpr int kFloatPixels = 1 << 23;

template <class Work>
struct MapGrid {
    MapAxis<Work> x, y;
    double pixelBytes, step;
};

template <class Work>
inline MapAxis<Work> axisOf(Footprint footprint, int64_t begin, int64_t length, int64_t image, int origin) {
    const int64_t high = minOf(begin + length, image) - 1;
    // Two taps lie in the rectangle.
    const int64_t last = footprint.size == 2 ? maxOf<int64_t>(high - 1, 0) : image - 1 - footprint.last();
    return {Work(begin), Work(high), Work(-footprint.offset), Work(last), Work(origin)};
}

// A bit for each position of a stretch.
struct Inside {
    Tpx8u bits[kStretch / 8] = {};

    // The first position from i on whose bit is that; kStretch if there is none.
    int find(int i, bool bit) const {
        for (; i < kStretch; i = (i | 63) + 1) {
            const Tpx64u word = peek(reinterpret_cast<const Tpx64u*>(bits) + i / 64);
            const Tpx64u left = (bit ? word : ~word) >> i % 64;
            if (left) return i + __builtin_ctzll(left);
        }
        return kStretch;
    }
};

template <class Work, class Map>
inline Vec<Work> loadPositions(const Map* p) {
    if constexpr (std::is_same_v<Work, Map>)
        return load(p);
    else
        return toDouble(loadFour(p));
}

inline void storePlaces(Tpx64s* to, V64f x, V64f y, double pixelBytes, double step) {
    store(reinterpret_cast<Tpx64f*>(to),
          x * splat<V64f>(pixelBytes) + y * splat<V64f>(step) + splat<V64f>(kPlaceMagic));
}
inline void storePlaces(Tpx64s* to, V32f x, V32f y, double pixelBytes, double step) {
    const Pair<V64f> wideX = widen(x), wideY = widen(y);
    storePlaces(to, wideX.low, wideY.low, pixelBytes, step);
    storePlaces(to + 4, wideX.high, wideY.high, pixelBytes, step);
}

// The sites from i on of a register of positions, and a bit for each that is inside. Those outside may be read
// like any other.
template <bool HasFractions, class Work, class Map, class Real>
inline Tpx32u locateRegister(const Map* mapX, const Map* mapY, const MapGrid<Work>& grid, Sites<Real>& sites,
                             int i) {
    using V = Vec<Work>;
    const auto isWithin = [](V s, const MapAxis<Work>& axis) {
        return bitsAs<VecBits<Work>>(lessOrEqual(splat<V>(axis.low), s)) &
               bitsAs<VecBits<Work>>(lessOrEqual(s, splat<V>(axis.high)));
    };
    const auto below = [](V s, const MapAxis<Work>& axis) {
        const V whole = rounded<Rounding::Down>(HasFractions ? s : s + splat<V>(Work(0.5)));
        return minOf(maxOf(whole, splat<V>(axis.first)), splat<V>(axis.last));
    };
    V x = loadPositions<Work>(mapX), y = loadPositions<Work>(mapY);
    const VecBits<Work> inside = isWithin(x, grid.x) & isWithin(y, grid.y);
    x = masked(inside, x);
    y = masked(inside, y);
    const V x0 = below(x, grid.x), y0 = below(y, grid.y);
    storePlaces(sites.place + i, x0, y0, grid.pixelBytes, grid.step);
    if constexpr (HasFractions) {
        storeFractions(sites.fx + i, x - (x0 - splat<V>(grid.x.origin)));
        storeFractions(sites.fy + i, y - (y0 - splat<V>(grid.y.origin)));
    }
    return laneBits(inside);
}

// The sites of a stretch of positions. The grid is a copy, since none of it changes while sites are stored.
template <bool HasFractions, class Work, class Map, class Real>
inline Inside locate(const Map* mapX, const Map* mapY, int count, const MapGrid<Work> grid,
                     Sites<Real>& sites) {
    const auto unit = [&](const Map* x, const Map* y, int i) {
        Tpx32u bits = 0;
        for (int k = 0; k < kSitesUnit; k += kLanes<Work>)
            bits |= locateRegister<HasFractions>(x + k, y + k, grid, sites, i + k) << k;
        return Tpx8u(bits);
    };
    Inside inside;
    int i = 0;
    for (; i + kSitesUnit <= count; i += kSitesUnit) inside.bits[i / 8] = unit(mapX + i, mapY + i, i);
    if (i < count) {
        Map x[kSitesUnit], y[kSitesUnit];
        padRun(x, mapX + i, count - i);
        padRun(y, mapY + i, count - i);
        inside.bits[i / 8] = Tpx8u(unit(x, y, i) & ((1 << (count - i)) - 1));
    }
    return inside;
}

// ---- Rows ------------------------------------------------------------------------------------------------

// Rounding of integers is to nearest, and nothing traps.
constexpr FloatSettings kNearestEven = {
    FloatSettings::kNoTraps | FloatSettings::kDirection, FloatSettings::kNoTraps,
    FloatSettings::kFlags | FloatSettings::kNoTraps | FloatSettings::kDirection};

// What a call's type, layout and interpolation come to.
template <class Map, class Real>
struct MapKernel {
    Interpolation<Real> how;
    int origin; // fractions are measured from the pixel so far before the one below the position
    // As in Interpolation, with the precision of the samples.
    void (*mix)(const Tpx8u* src, const Map* share, Tpx8u* dst, int count);
    void (*storePixels)(const Tpx8u* src, Tpx8u* dst, int count); // null if all samples are stored
};

template <class Work, class Map, class Real>
class MapWarp {
 public:
    MapWarp(const MapKernel<Map, Real>& kernel, const RemapCall<Tpx8u, Map>& call)
        : kernel_(kernel),
          how_(kernel.how),
          call_(call),
          grid_{axisOf<Work>(how_.footprint, call.roi.x, call.roi.width, call.srcSize.width, kernel.origin),
                axisOf<Work>(how_.footprint, call.roi.y, call.roi.height, call.srcSize.height, kernel.origin),
                double(how_.pixelBytes), double(call.src.step)} {}

    void run() {
        if (call_.hasSmoothEdge()) {
            forStretches([this](const Map* mapX, const Map* mapY, Tpx8u* dst, int count) {
                const Inside inside = interpolateToNearest(mapX, mapY, dst, count);
                for (int i = inside.find(0, false); i < count; i = inside.find(i + 1, false))
                    smoothen(double(peek(mapX + i)), double(peek(mapY + i)), dst + i * how_.pixelBytes);
            });
        } else {
            const FloatControl control(kNearestEven);
            forStretches([this](const Map* mapX, const Map* mapY, Tpx8u* dst, int count) {
                interpolate(mapX, mapY, dst, count);
            });
        }
    }

 private:
    template <class Fill>
    void forStretches(Fill fill) {
        for (int64_t y = 0; y < call_.size.height; y++)
            for (int64_t x = 0; x < call_.size.width; x += kStretch)
                fill(call_.maps.x.row(y) + x, call_.maps.y.row(y) + x, call_.dst.row(y) + x * how_.pixelBytes,
                     int(minOf<int64_t>(kStretch, call_.size.width - x)));
    }

    Inside interpolateToNearest(const Map* mapX, const Map* mapY, Tpx8u* dst, int count) {
        const FloatControl control(kNearestEven);
        return interpolate(mapX, mapY, dst, count);
    }

    Inside interpolate(const Map* mapX, const Map* mapY, Tpx8u* dst, int count) {
        const Footprint taps = how_.footprint;
        const Inside inside = taps.size == 1 ? locate<false>(mapX, mapY, count, grid_, sites_)
                                             : locate<true>(mapX, mapY, count, grid_, sites_);
        int begin = inside.find(0, true);
        if (begin == kStretch) return inside;
        const Tpx8u* const first =
            withoutBias(call_.src.from(int64_t(taps.offset) * how_.pixelBytes, taps.offset).data);
        const bool all = begin == 0 && !kernel_.storePixels && inside.find(0, false) >= count;
        how_.interpolate({first, call_.src.step, sites_, how_.cubic}, all ? dst : results_, count);
        if (all) return inside;
        while (begin < kStretch) {
            const int end = inside.find(begin, false);
            put(results_ + begin * how_.pixelBytes, dst + begin * how_.pixelBytes, end - begin);
            begin = inside.find(end, true);
        }
        return inside;
    }

    void put(const Tpx8u* src, Tpx8u* dst, int count) const {
        if (kernel_.storePixels)
            kernel_.storePixels(src, dst, count);
        else
            copyBlock(dst, src, count * how_.pixelBytes);
    }

    // The position cut to the rectangle, and how far it is outside.
    struct Cut {
        double at, distance;
        Cut(double s, const MapAxis<Work>& axis)
            : at(clampTo(s, double(axis.low), double(axis.high))),
              distance(maxOf(double(axis.low) - s, s - double(axis.high))) {}
    };

    // A pixel that is not inside.
    void smoothen(double x, double y, Tpx8u* dst) const {
        const Cut cx(x, grid_.x), cy(y, grid_.y);
        if (!(cx.distance < 1 && cy.distance < 1)) return;
        const double share = cx.distance <= 0   ? cy.distance
                             : cy.distance <= 0 ? cx.distance
                                                : 1 - (1 - cx.distance) * (1 - cy.distance);
        // What is mixed into a pixel of the source is the destination's.
        Tpx8u mixed[4 * sizeof(Tpx64f)];
        const Map shares[1] = {Map(share)};
        copyBlock(mixed, call_.src.row(int64_t(cy.at)) + int64_t(cx.at) * how_.pixelBytes, how_.pixelBytes);
        kernel_.mix(dst, shares, mixed, 1);
        put(mixed, dst, 1);
    }

    const MapKernel<Map, Real>& kernel_;
    const Interpolation<Real>& how_;
    const RemapCall<Tpx8u, Map>& call_;
    const MapGrid<Work> grid_;
    Sites<Real> sites_;
    alignas(32) Tpx8u results_[kStretch * 4 * sizeof(Tpx64f)];
};

// ---- The kernels of a type -------------------------------------------------------------------------------

// With weights in the precision of sums.
template <class T, int N>
inline Interpolation<RealOf<T>> interpolationOf(int selector) {
    constexpr bool kBytes = sizeof(T) == 1;
    Interpolation<RealOf<T>> how = linearOf<T, N>();
    if (selector == kLinear) {
        if constexpr (kBytes) how.interpolate = interpolateLinearBytes<N>;
    } else if (selector == kLanczos) {
        how.footprint = kSixTaps;
        how.interpolate = interpolateLanczos<T, N>;
    } else {
        how.footprint = kFourTaps;
        if (selector == kCatmullRom)
            how.interpolate = interpolateCatmullRom<T, N>;
        else if constexpr (kBytes)
            how.interpolate = interpolateCubicBytes<N>;
        else
            how.interpolate = interpolateThroughSamples<T, N>;
    }
    return how;
}

// Pixels of four samples, the fourth of which stays.
template <class T>
void storeColours(const Tpx8u* src, Tpx8u* dst, int count) {
    if constexpr (sizeof(T) == 8)
        for (int i = 0; i < count; i++, src += 32, dst += 32) __builtin_memcpy(dst, src, 24);
    else
        moveKeepingAlpha<T>(reinterpret_cast<const T*>(src), reinterpret_cast<T*>(dst), count,
                            [](auto samples) { return samples; });
}

// Types and layouts share the work, which knows bytes and kernels alone.
template <class Work, class Map, class Real>
[[gnu::noinline]] void remapRows(const MapKernel<Map, Real>& kernel, const RemapCall<Tpx8u, Map>& call) {
    MapWarp<Work, Map, Real>(kernel, call).run();
}

template <Layout L, class T>
TpxStatus remap(const RemapCall<T>& call) {
    constexpr int N = channelsOf(L);
    const TpxStatus status = checkRemap(call);
    if (status != tpxOk) return status;
    const int selector = fitting(call.selector(), call.srcSize);
    const auto run = [&]<class Real>(const Interpolation<Real>& how) {
        using Map = RealOf<T>;
        const MapKernel<Map, Real> kernel = {how, sizeof(T) == 1 && selector == kThroughSamples,
                                             mixPixels<T, N, Map>,
                                             L == Layout::AC4 ? storeColours<T> : nullptr};
        if (maxOf(call.srcSize.width, call.srcSize.height) < kFloatPixels)
            remapRows<Map>(kernel, call.inBytes());
        else
            remapRows<double>(kernel, call.inBytes());
    };
    if (selector == kNearest)
        run(nearestOf<T, N>());
    else
        run(interpolationOf<T, N>(selector));
    return tpxOk;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_REMAP(T, M, L)                                                                                   \
    TPX_ENTRY(tpxiRemap_##T##_##L##R)                                                                        \
    (const Tpx##T* pSrc, TpxiSize srcSize, int srcStep, TpxiRect srcRoi, const Tpx##M* pxMap, int xMapStep,  \
     const Tpx##M* pyMap, int yMapStep, Tpx##T* pDst, int dstStep, TpxiSize dstRoiSize, int interpolation) { \
        return tpx::remap<tpx::Layout::L, Tpx##T>({{pSrc, srcStep},                                          \
                                                   srcSize,                                                  \
                                                   srcRoi,                                                   \
                                                   {{pxMap, xMapStep}, {pyMap, yMapStep}},                   \
                                                   {pDst, dstStep},                                          \
                                                   dstRoiSize,                                               \
                                                   interpolation});                                          \
    }
#define TPX_REMAP_ALL(T, M) TPX_REMAP(T, M, C1) TPX_REMAP(T, M, C3) TPX_REMAP(T, M, C4) TPX_REMAP(T, M, AC4)
TPX_REMAP_ALL(8u, 32f)
TPX_REMAP_ALL(16u, 32f)
TPX_REMAP_ALL(16s, 32f)
TPX_REMAP_ALL(32f, 32f)
TPX_REMAP_ALL(64f, 64f)
#undef TPX_REMAP
#undef TPX_REMAP_ALL
