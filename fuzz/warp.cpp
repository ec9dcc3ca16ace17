// SPDX-License-Identifier: Apache-2.0
// Warps and remaps: plans from any coefficients, quadrangles and rectangles, tiles from sources that hold what
// may be read, and the helpers that make coefficients.
#include <algorithm>

#include "fuzz/call.h"

namespace tpx::fuzz {
namespace {

constexpr const char* kTypes[] = {"8u", "16u", "16s", "32f", "64f"};
constexpr int kChannels[] = {1, 3, 4};
constexpr TpxiRect kInfinite = {-1073741824, -1073741824, 2147483647, 2147483647};

// Memory for an array of real numbers that ends at an unreadable page.
class Reals {
 public:
    template <class Make>
    Reals(int count, Make make) : block_(size_t(count) * sizeof(double), 0) {
        for (int i = 0; i < count; i++) {
            const double v = make(i);
            std::memcpy(block_.data() + size_t(i) * sizeof v, &v, sizeof v);
        }
    }
    const void* data() { return block_.data(); }

 private:
    Block block_;
};

// Near a turn, a scale and a shift, or anything.
double coefficient(Bytes& bytes, int i, int columns) {
    if (bytes.once(24)) return bytes.real();
    const bool isShift = i % columns == columns - 1;
    if (columns == 3 && i >= 6) return isShift ? 1 : bytes.once(2) ? (bytes.below(256) - 128) / 16384.0 : 0;
    if (isShift) return bytes.once(2) ? (bytes.below(1000) - 500) / 7.0 : bytes.below(60);
    if (!bytes.once(2)) return i / columns == i % columns;
    return bytes.once(2) ? bytes.between(-4, 4) : (bytes.below(256) - 128) / 64.0;
}

double corner(Bytes& bytes, int i, const int64_t size[2]) {
    if (bytes.once(32)) return bytes.real();
    const int k = i / 2;
    const bool isFar = i % 2 ? k >= 2 : k == 1 || k == 2;
    const double at = isFar ? double(size[i % 2]) - 1 : 0;
    return bytes.once(2) ? at : at + bytes.between(-40, 40) / 4.0;
}

class Warp {
 public:
    explicit Warp(Bytes& bytes)
        : bytes_(bytes),
          map_(bytes.below(3)),
          type_(bytes.pick(kTypes)),
          channels_(bytes.pick(kChannels)),
          kind_(bytes.below(3)) {}

    void run() {
        constexpr const char* kKinds[] = {"Nearest", "Linear", "Cubic"};
        constexpr const char* kMaps[] = {"WarpAffine", "WarpPerspective", "WarpQuad"};
        const std::string stem = std::string("tpxi") + kMaps[map_];
        const Export* const call =
            findExport((map_ == 0 || (map_ == 2 && bytes_.once(4)) ? "tpxiWarpAffine" : "tpxiWarpPerspective") +
                       std::string(kKinds[kind_]) + "_" + type_ + "_C" + std::to_string(channels_) + "R");
        if (!call) return;
        for (int64_t* side : {&src_[0], &src_[1], &dst_[0], &dst_[1]})
            *side = bytes_.once(48) ? bytes_.hostile() : bytes_.length();
        Reals coeffs(9, [&](int i) { return coefficient(bytes_, i, 3); }),
            srcQuad(8, [&](int i) { return corner(bytes_, i, src_); }),
            dstQuad(8, [&](int i) { return corner(bytes_, i, dst_); });
        Reals six(6, [&](int i) { return coefficient(bytes_, i, 3); });
        Reals value(channels_, [&](int) { return bytes_.real(); });
        srcRoi_ = rect(src_, bytes_.once(2));
        const TpxiRect dstRoi = rect(dst_, false);
        constexpr unsigned kBorders[] = {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant};
        border_ = bytes_.once(8)    ? Tpx32u(tpxBorderInMemAll)
                  : bytes_.once(32) ? Tpx32u(bytes_.hostile())
                                    : bytes_.pick(kBorders) | unsigned(bytes_.below(16)) << 4;
        const int direction = bytes_.once(32) ? bytes_.hostile() : bytes_.below(2),
                  smoothEdge = bytes_.once(32) ? bytes_.hostile() : bytes_.below(2);
        const double B = bytes_.once(4) ? bytes_.real() : 0, C = bytes_.once(4) ? bytes_.real() : 0.5;
        const auto describe = [&](const std::string& name) {
            constexpr int kInterpolations[] = {tpxInterpolationNearest, tpxInterpolationLinear,
                                               tpxInterpolationCubic};
            Arguments a(*findExport(name));
            a.size("srcSize", src_[0], src_[1]).size("dstSize", dst_[0], dst_[1]);
            a.rect("srcRoi", srcRoi_).rect("dstRoi", dstRoi).pointer("srcQuad", srcQuad.data());
            a.pointer("dstQuad", dstQuad.data()).pointer("coeffs", map_ == 0 ? six.data() : coeffs.data());
            a.integer("dataType", dataTypeOf(type_)).integer("interpolation", kInterpolations[kind_]);
            a.integer("direction", direction).integer("transform", direction).integer("border", border_);
            a.integer("numChannels", channels_).pointer("pBorderValue", value.data());
            a.integer("smoothEdge", smoothEdge).real("valueB", B).real("valueC", C);
            return a;
        };
        int specBytes = 0, initBytes = 0;
        const TpxStatus told =
            describe(stem + "GetSize").pointer("pSpecSize", &specBytes).pointer("pInitBufSize", &initBytes)();
        if (told < 0 || size_t(specBytes) > kMaxPlan || size_t(initBytes) > kMaxPlan) return;
        Block plan(bytes_, size_t(specBytes)), init(bytes_, size_t(initBytes));
        fill(bytes_, plan.data(), plan.size(), "");
        spec_ = plan.data();
        const TpxStatus made =
            describe(stem + kKinds[kind_] + "Init").pointer("pSpec", spec_).pointer("pInitBuf", init.data())();
        if (made < 0) return;
        const std::vector<uint8_t> before(plan.data(), plan.data() + plan.size());
        // The destination of quadrangles is what lies up to the end of their rectangle.
        if (map_ == 2) dst_[0] = dstRoi.x + dstRoi.width, dst_[1] = dstRoi.y + dstRoi.height;
        for (int tiles = bytes_.between(1, 2); tiles > 0; tiles--) tile(*call);
        require(std::memcmp(before.data(), plan.data(), before.size()) == 0, *call, "plans are only read");
    }

 private:
    TpxiRect rect(const int64_t size[2], bool infinite) {
        if (infinite) return kInfinite;
        TpxiRect r{0, 0, int(size[0]), int(size[1])};
        if (bytes_.once(2))
            r = {bytes_.below(50), bytes_.below(50), bytes_.between(1, 100), bytes_.between(1, 100)};
        if (bytes_.once(32))
            for (int* v : {&r.x, &r.y, &r.width, &r.height})
                if (bytes_.once(2)) *v = bytes_.hostile();
        return r;
    }

    void tile(const Export& call) {
        int64_t t[4] = {bytes_.below(int(std::clamp<int64_t>(dst_[0], 1, 70000))),
                        bytes_.below(int(std::clamp<int64_t>(dst_[1], 1, 70000))), bytes_.length(),
                        bytes_.length()};
        if (bytes_.once(2)) t[0] = t[1] = 0, t[2] = dst_[0], t[3] = dst_[1];
        if (bytes_.once(16)) t[bytes_.below(4)] = bytes_.hostile();
        const int64_t width = std::min(t[2], dst_[0] - t[0]), height = std::min(t[3], dst_[1] - t[1]);
        const bool isEmpty = t[0] < 0 || t[1] < 0 || width < 1 || height < 1;

        // A rectangle of the source, and of cubic one pixel more on sides in memory.
        const bool isPart = map_ != 0 && std::memcmp(&srcRoi_, &kInfinite, sizeof kInfinite) != 0;
        int64_t x = 0, y = 0, xEnd = src_[0], yEnd = src_[1];
        if (isPart) {
            x = srcRoi_.x, y = srcRoi_.y;
            xEnd = std::min<int64_t>(xEnd, x + srcRoi_.width),
            yEnd = std::min<int64_t>(yEnd, y + srcRoi_.height);
        }
        const bool leaves = isPart || border_ == tpxBorderInMemAll || (border_ & 15) == tpxBorderTransparent;
        const auto further = [&](unsigned side) { return kind_ == 2 && leaves && (border_ & side) != 0; };
        x -= further(tpxBorderInMemLeft), y -= further(tpxBorderInMemTop);
        xEnd += further(tpxBorderInMemRight), yEnd += further(tpxBorderInMemBottom);

        const int64_t pixel = int64_t(sampleBytes(type_)) * channels_;
        if (!Image::fits((xEnd - x) * pixel, yEnd - y)) return;
        if (!isEmpty && !Image::fits(width * pixel, height)) return;
        Image src(bytes_, (xEnd - x) * pixel, yEnd - y, type_),
            dst(bytes_, isEmpty ? pixel : width * pixel, isEmpty ? 1 : height, type_);
        const auto first =
            reinterpret_cast<const void*>(uintptr_t(src.data()) - uintptr_t(y * src.step() + x * pixel));
        if (isEmpty) {
            require(process(call, t, first, src.step(), dst) != tpxOk, call, "no tile, no success");
            return;
        }
        if (!bytes_.once(4) || !Image::fits(dst_[0] * pixel, dst_[1])) {
            process(call, t, first, src.step(), dst);
            return;
        }
        // Tiles have the pixels of one call.
        Image all(bytes_, dst_[0] * pixel, dst_[1], type_);
        const auto rows = [&](auto visit) {
            for (int64_t row = 0; row < height; row++)
                visit(dst.data() + row * dst.step(), all.data() + (t[1] + row) * all.step() + t[0] * pixel,
                      size_t(width * pixel));
        };
        rows([](uint8_t* tile, const uint8_t* whole, size_t n) { std::memcpy(tile, whole, n); });
        const int64_t whole[4] = {0, 0, dst_[0], dst_[1]};
        if (process(call, t, first, src.step(), dst) < 0 || process(call, whole, first, src.step(), all) < 0)
            return;
        rows([&](const uint8_t* tile, const uint8_t* whole, size_t n) {
            require(sameSamples(tile, whole, n, type_), call, "tiles have the pixels of one call");
        });
    }

    // A tile whose first pixel is that of `dst`.
    TpxStatus process(const Export& call, const int64_t t[4], const void* first, ptrdiff_t srcStep,
                      Image& dst) {
        int workBytes = 0;
        const TpxStatus told = Arguments(*findExport("tpxiWarpGetBufferSize"))
                                   .pointer("pSpec", spec_)
                                   .size("dstSize", t[2], t[3])
                                   .pointer("pBufSize", &workBytes)();
        if (told >= 0 && size_t(workBytes) > kMaxPlan) return tpxErrSizeTooLarge;
        Block work(bytes_, size_t(told < 0 ? 0 : workBytes));
        dst.watch();
        const TpxStatus status = Arguments(call)
                                     .image("pSrc", "srcStep", first, srcStep)
                                     .image("pDst", "dstStep", dst.data(), dst.step())
                                     .point("dstRoiOffset", t[0], t[1])
                                     .size("dstRoiSize", t[2], t[3])
                                     .pointer("pSpec", spec_)
                                     .pointer("pBuffer", work.data())();
        dst.requireKept(call, status);
        return status;
    }

    Bytes& bytes_;
    int map_; // affine, perspective, quadrangles
    const char* type_;
    int channels_, kind_;
    int64_t src_[2], dst_[2];
    TpxiRect srcRoi_;
    TpxBorderType border_;
    const void* spec_ = nullptr;
};

void remap(Bytes& bytes) {
    constexpr const char* kLayouts[] = {"C1", "C3", "C4", "AC4"};
    const std::string type = bytes.pick(kTypes);
    const Export* const e = findExport("tpxiRemap_" + type + "_" + bytes.pick(kLayouts) + "R");
    if (!e) return;
    const std::string mapType = type == "64f" ? "64f" : "32f";
    const int width = bytes.length(), height = width > 100 ? 1 : bytes.between(1, 100);
    const int srcWidth = bytes.length(), srcHeight = srcWidth > 100 ? 1 : bytes.between(1, 100);
    const int64_t pixel = int64_t(sampleBytes(type)) * e->from, entry = int64_t(sampleBytes(mapType));
    if (!Image::fits(width * pixel, height) || !Image::fits(srcWidth * pixel, srcHeight) ||
        !Image::fits(width * entry, height))
        return;
    Image src(bytes, srcWidth * pixel, srcHeight, type), dst(bytes, width * pixel, height, type);
    Image maps[2] = {{bytes, width * entry, height, mapType}, {bytes, width * entry, height, mapType}};
    // Most positions lie in or beside the source; the rest are samples of any kind.
    const double scale = bytes.once(8) ? 0 : (1 + bytes.below(64)) / 32.0, slant = bytes.below(32) / 16.0 - 1;
    if (scale > 0)
        for (int i = 0; i < 2; i++) {
            const double from = bytes.between(-16, 100) / 4.0;
            for (int y = 0; y < height; y++)
                for (int x = 0; x < width; x++) {
                    if (bytes.once(200)) continue; // what was there
                    const double v = from + (i ? scale * y + slant * x / 8 : scale * x + slant * y);
                    uint8_t* const at = maps[i].data() + y * maps[i].step() + x * entry;
                    if (entry == 8)
                        std::memcpy(at, &v, 8);
                    else
                        *reinterpret_cast<float(*)[1]>(at)[0] = float(v);
                }
        }
    TpxiRect roi{0, 0, srcWidth, srcHeight};
    if (bytes.once(2)) roi = {bytes.below(50), bytes.below(50), bytes.between(1, 100), bytes.between(1, 100)};
    if (bytes.once(16))
        for (int* v : {&roi.x, &roi.y, &roi.width, &roi.height})
            if (bytes.once(2)) *v = bytes.hostile();
    constexpr int kInterpolations[] = {tpxInterpolationNearest, tpxInterpolationLinear, 4,
                                       tpxInterpolationCubic, tpxInterpolationLanczos};
    const int interpolation = bytes.once(32) ? bytes.hostile() : bytes.pick(kInterpolations);
    dst.watch();
    const TpxStatus status =
        Arguments(*e)
            .image("pSrc", "srcStep", src.data(), src.step())
            .size("srcSize", srcWidth, srcHeight)
            .rect("srcRoi", roi)
            .image("pxMap", "xMapStep", maps[0].data(), maps[0].step())
            .image("pyMap", "yMapStep", maps[1].data(), maps[1].step())
            .image("pDst", "dstStep", dst.data(), dst.step())
            .size("dstRoiSize", width, bytes.once(64) ? std::min(height, bytes.hostile()) : height)
            .integer("interpolation",
                     bytes.once(2) ? int(unsigned(interpolation) | 0x80000000) : interpolation)();
    dst.requireKept(*e, status);
}

// What makes coefficients, quadrangles and rectangles of each other.
void helpers(Bytes& bytes) {
    constexpr const char* kNames[] = {
        "tpxiGetAffineQuad",      "tpxiGetPerspectiveQuad",      "tpxiGetBilinearQuad",
        "tpxiGetAffineBound",     "tpxiGetPerspectiveBound",     "tpxiGetBilinearBound",
        "tpxiGetAffineTransform", "tpxiGetPerspectiveTransform", "tpxiGetBilinearTransform",
        "tpxiGetRotateShift",     "tpxiGetRotateTransform",      "tpxiGetAffineSrcRoi"};
    const std::string name = bytes.pick(kNames);
    const bool isBilinear = name.find("Bilinear") != std::string::npos,
               isPerspective = name.find("Perspective") != std::string::npos;
    const int64_t size[2] = {bytes.once(16) ? bytes.hostile() : bytes.length(),
                             bytes.once(16) ? bytes.hostile() : bytes.length()};
    const auto hostileOr = [&](int v) { return bytes.once(16) ? bytes.hostile() : v; };
    Reals coeffs(isBilinear      ? 8
                 : isPerspective ? 9
                                 : 6,
                 [&](int i) { return coefficient(bytes, i, isBilinear ? 4 : 3); });
    Reals quad(8, [&](int i) { return corner(bytes, i, size); }), bound(4, [](int) { return 0; }),
        shifts[2] = {{1, [](int) { return 0; }}, {1, [](int) { return 0; }}};
    const auto rect = [&] {
        return TpxiRect{hostileOr(bytes.below(50)), hostileOr(bytes.below(50)),
                        hostileOr(bytes.between(1, 100)), hostileOr(bytes.between(1, 100))};
    };
    TpxiRect result{};
    Arguments a(*findExport(name));
    a.rect("srcRoi", rect()).rect("dstRoi", rect()).size("srcSize", size[0], size[1]);
    a.pointer("quad", quad.data()).pointer("bound", bound.data()).pointer("coeffs", coeffs.data());
    a.integer("direction", hostileOr(bytes.below(2))).pointer("pSrcRoi", &result);
    for (const char* number : {"xCenter", "yCenter", "angle"}) a.real(number, bytes.real());
    if (name == "tpxiGetRotateShift")
        a.pointer("xShift", shifts[0].data()).pointer("yShift", shifts[1].data());
    else
        a.real("xShift", bytes.real()).real("yShift", bytes.real());
    const TpxStatus status = a();
    if (name == "tpxiGetAffineSrcRoi" && status >= 0)
        require(result.x >= 0 && result.y >= 0 && result.width > 0 && result.height > 0 &&
                    result.x + int64_t(result.width) <= size[0] && result.y + int64_t(result.height) <= size[1],
                a.function(), "the rectangle lies in the source");
}

} // namespace

void run(Bytes& bytes) {
    switch (bytes.below(8)) {
        case 0:
            return helpers(bytes);
        case 1:
        case 2:
            return remap(bytes);
        default:
            return Warp(bytes).run();
    }
}

} // namespace tpx::fuzz
