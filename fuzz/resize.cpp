// SPDX-License-Identifier: Apache-2.0
// Resizes of every kind: plans of hostile parameters, and tiles that get the pixels that the queries tell and
// no others.
#include <algorithm>

#include "fuzz/call.h"

namespace tpx::fuzz {
namespace {

struct Kind {
    const char *init, *call; // of the names
    TpxInterpolationType interpolation;
    bool isSmooth, readsAround; // the latter: pixels around the source rectangle
};
constexpr Kind kKinds[] = {{"Nearest", "Nearest", tpxInterpolationNearest, false, false},
                           {"Linear", "Linear", tpxInterpolationLinear, false, true},
                           {"Cubic", "Cubic", tpxInterpolationCubic, false, true},
                           {"Lanczos", "Lanczos", tpxInterpolationLanczos, false, true},
                           {"Super", "Super", tpxInterpolationSuper, false, false},
                           {"AntialiasingLinear", "Antialiasing", tpxInterpolationLinear, true, true},
                           {"AntialiasingCubic", "Antialiasing", tpxInterpolationCubic, true, true},
                           {"AntialiasingLanczos", "Antialiasing", tpxInterpolationLanczos, true, true}};
constexpr const char* kTypes[] = {"8u", "16u", "16s", "32f", "64f"};
constexpr int kChannels[] = {1, 3, 4};
constexpr unsigned kSides[] = {tpxBorderInMemLeft, tpxBorderInMemTop, tpxBorderInMemRight,
                               tpxBorderInMemBottom};

struct Rect {
    int64_t x, y, width, height;
};

class Resize {
 public:
    explicit Resize(Bytes& bytes)
        : bytes_(bytes),
          kind_(bytes.pick(kKinds)),
          type_(bytes.pick(kTypes)),
          isLong_(bytes.once(2)),
          channels_(bytes.pick(kChannels)) {}

    void run() {
        const Export* const init = find(kind_.init + std::string("Init"), !kind_.isSmooth);
        const Export* const call = findExport("tpxiResize" + std::string(kind_.call) + "_" + type_ + "_C" +
                                              std::to_string(channels_) + (isLong_ ? "R_L" : "R"));
        if (!init || !call) return;
        for (int64_t* side : {&src_[0], &src_[1], &dst_[0], &dst_[1]})
            *side = !bytes_.once(32) ? bytes_.length() : isLong_ ? bytes_.hostile<int64_t>() : bytes_.hostile();
        if (bytes_.once(4)) dst_[0] = src_[0];
        if (kind_.interpolation == tpxInterpolationSuper && !bytes_.once(16))
            for (int i = 0; i < 2; i++)
                if (dst_[i] > src_[i]) std::swap(dst_[i], src_[i]);

        int64_t specBytes = 0, initBytes = 0;
        Arguments getSize = query("GetSize");
        const TpxInterpolationType asked = bytes_.once(64) ? bytes_.hostile() : kind_.interpolation;
        getSize.integer("interpolation", asked)
            .integer("antialiasing", kind_.isSmooth ? bytes_.between(1, 3) : 0)
            .pointer("pSpecSize", &specBytes)
            .pointer("pInitBufSize", &initBytes);
        if (sizes(getSize)() < 0 || asked != kind_.interpolation) return; // another kind's sizes
        if (specBytes < 1 || size_t(specBytes + initBytes) > kMaxPlan) return;

        Block plan(bytes_, size_t(specBytes)), work(bytes_, size_t(initBytes));
        fill(bytes_, plan.data(), plan.size(), "");
        spec_ = plan.data();
        Arguments initialise(*init);
        initialise.pointer("pSpec", spec_)
            .pointer("pInitBuf", work.data())
            .real("valueB", bytes_.once(4) ? bytes_.real() : 0)
            .real("valueC", bytes_.once(4) ? bytes_.real() : 0.5)
            .integer("numLobes", bytes_.once(16) ? bytes_.hostile() : bytes_.between(2, 3));
        if (sizes(initialise)() != tpxOk) return;
        // As it was made, the plan is only read.
        const std::vector<uint8_t> made(plan.data(), plan.data() + plan.size());
        for (int tiles = bytes_.between(1, 3); tiles > 0; tiles--) tile(*call);
        if (bytes_.once(8)) compareTiles(*call);
        require(std::memcmp(made.data(), plan.data(), made.size()) == 0, *call, "plans are only read");
    }

 private:
    const Export* find(const std::string& stem, bool hasType) const {
        return findExport("tpxiResize" + stem + (isLong_ ? "_L" : hasType ? "_" + std::string(type_) : ""));
    }
    Arguments query(const char* name) const {
        Arguments arguments(*find(name, true));
        arguments.pointer("pSpec", spec_);
        return arguments;
    }
    Arguments& sizes(Arguments& arguments) const {
        return arguments.size("srcSize", src_[0], src_[1])
            .size("dstSize", dst_[0], dst_[1])
            .integer("dataType", dataTypeOf(type_));
    }
    // Two lengths of the width of the call.
    struct Pair {
        int64_t words[2] = {};
        int64_t at(int i, bool isLong) const {
            return isLong ? words[i] : reinterpret_cast<const int32_t*>(words)[i];
        }
    };

    Rect anyTile() {
        Rect t{bytes_.below(int(std::min<int64_t>(dst_[0], 70000))),
               bytes_.below(int(std::min<int64_t>(dst_[1], 70000))), bytes_.length(), bytes_.length()};
        if (bytes_.once(4)) t = {0, 0, dst_[0], dst_[1]};
        if (bytes_.once(16))
            for (int64_t* v : {&t.x, &t.y, &t.width, &t.height})
                if (bytes_.once(2)) *v = isLong_ ? bytes_.hostile<int64_t>() : bytes_.hostile();
        return t;
    }

    bool sourceOf(const Rect& t, Rect* from, Rect* reach) const {
        Pair at, size;
        int64_t border[4] = {};
        const TpxStatus status = query("GetSrcRoi")
                                     .point("dstRoiOffset", t.x, t.y)
                                     .size("dstRoiSize", t.width, t.height)
                                     .pointer("pSrcRoiOffset", &at)
                                     .pointer("pSrcRoiSize", &size)();
        if (status < 0) return false;
        Pair first;
        const Arguments offset =
            query("GetSrcOffset").point("dstOffset", t.x, t.y).pointer("pSrcOffset", &first);
        require(Arguments(offset)() == tpxOk, offset.function(), "a tile with a rectangle has an offset");
        query("GetBorderSize").pointer("pBorderSize", border)();
        const auto* shorts = reinterpret_cast<const Tpx32u*>(border);
        for (int i = 3; i >= 0 && !isLong_; i--) border[i] = int64_t(shorts[i]);
        *from = {at.at(0, isLong_), at.at(1, isLong_), size.at(0, isLong_), size.at(1, isLong_)};
        *reach = {border[0], border[1], border[2], border[3]};
        const Export& e = offset.function();
        require(first.at(0, isLong_) == from->x && first.at(1, isLong_) == from->y, e, "both queries agree");
        require(from->x >= 0 && from->y >= 0 && from->width >= 0 && from->height >= 0 &&
                    from->x + from->width <= src_[0] && from->y + from->height <= src_[1],
                e, "the rectangle lies in the source");
        // A tile whose positions all lie before the first pixel has a rectangle of no width; the pixel is
        // there.
        from->width = std::max<int64_t>(from->width, 1), from->height = std::max<int64_t>(from->height, 1);
        return true;
    }

    // Calls for a tile whose memory is `dst`, from a source whose rectangle begins at `first`.
    TpxStatus process(const Export& call, const Rect& t, const uint8_t* first, ptrdiff_t srcStep, Image& dst,
                      TpxBorderType border) {
        int64_t workBytes = 0;
        const TpxStatus told = query("GetBufferSize")
                                   .size("dstSize", t.width, t.height)
                                   .integer("numChannels", channels_)
                                   .pointer("pBufSize", &workBytes)();
        if (told >= 0 && size_t(workBytes) > kMaxPlan) return tpxErrSizeTooLarge;
        Block work(bytes_, told < 0 ? 0 : size_t(workBytes));
        dst.watch();
        const TpxStatus status = Arguments(call)
                                     .image("pSrc", "srcStep", first, srcStep)
                                     .image("pDst", "dstStep", dst.data(), dst.step())
                                     .point("dstOffset", t.x, t.y)
                                     .size("dstSize", t.width, t.height)
                                     .integer("border", border)
                                     .pointer("pSpec", spec_)
                                     .pointer("pBuffer", work.data())();
        dst.requireKept(call, status);
        return status;
    }

    ptrdiff_t pixelBytes() const { return ptrdiff_t(sampleBytes(type_)) * channels_; }

    void tile(const Export& call) {
        const Rect t = anyTile();
        TpxBorderType border = tpxBorderReplicate | unsigned(bytes_.below(16)) << 4;
        if (bytes_.once(8)) border = bytes_.once(2) ? Tpx32u(bytes_.hostile()) : Tpx32u(tpxBorderInMemAll);
        Rect from, reach;
        if (!sourceOf(t, &from, &reach)) {
            // Nothing is worked on then.
            Image one(bytes_, pixelBytes(), 1, type_);
            require(process(call, t, one.data(), one.step(), one, border) != tpxOk, call,
                    "no tile, no success");
            return;
        }
        // Around the rectangle lies what the border says, and what the source has.
        const int64_t rest[] = {from.x, from.y, src_[0] - from.x - from.width, src_[1] - from.y - from.height};
        int64_t more[] = {reach.x, reach.y, reach.width, reach.height};
        for (int i = 0; i < 4; i++)
            more[i] = !kind_.readsAround ? 0 : border & kSides[i] ? more[i] : std::min(more[i], rest[i]);
        const int64_t rows = more[1] + from.height + more[3];
        const int64_t rowBytes = (more[0] + from.width + more[2]) * pixelBytes();
        const int64_t width = std::min(t.width, dst_[0] - t.x), height = std::min(t.height, dst_[1] - t.y);
        if (!Image::fits(rowBytes, rows) || !Image::fits(width * pixelBytes(), height)) return;
        Image src(bytes_, rowBytes, rows, type_), dst(bytes_, width * pixelBytes(), height, type_);
        process(call, t, src.data() + more[1] * src.step() + more[0] * pixelBytes(), src.step(), dst, border);
    }

    // Tiles have the pixels of one call.
    void compareTiles(const Export& call) {
        if (src_[0] * src_[1] > 40000 || dst_[0] * dst_[1] > 40000) return;
        Image src(bytes_, src_[0] * pixelBytes(), src_[1], type_),
            all(bytes_, dst_[0] * pixelBytes(), dst_[1], type_);
        if (process(call, {0, 0, dst_[0], dst_[1]}, src.data(), src.step(), all, tpxBorderReplicate) != tpxOk)
            return;
        const int64_t x0 = bytes_.below(int(dst_[0])), y0 = bytes_.below(int(dst_[1]));
        const Rect t{x0, y0, bytes_.between(1, int(dst_[0] - x0)), bytes_.between(1, int(dst_[1] - y0))};
        Rect from, reach;
        require(sourceOf(t, &from, &reach), call, "a tile has a source");
        const int64_t rest[] = {from.x, from.y, src_[0] - from.x - from.width, src_[1] - from.y - from.height};
        const int64_t wanted[] = {reach.x, reach.y, reach.width, reach.height};
        TpxBorderType border = tpxBorderReplicate;
        for (int i = 0; i < 4; i++)
            if (rest[i] >= wanted[i]) border |= kSides[i];
        Image dst(bytes_, t.width * pixelBytes(), t.height, type_);
        const uint8_t* const first = src.data() + from.y * src.step() + from.x * pixelBytes();
        require(process(call, t, first, src.step(), dst, border) == tpxOk, call, "a tile succeeds");
        for (int64_t y = 0; y < t.height; y++)
            require(sameSamples(dst.data() + y * dst.step(),
                                all.data() + (t.y + y) * all.step() + t.x * pixelBytes(),
                                size_t(dst.rowBytes()), type_),
                    call, "tiles have the pixels of one call");
    }

    Bytes& bytes_;
    const Kind& kind_;
    const char* type_;
    bool isLong_;
    int channels_;
    int64_t src_[2], dst_[2];
    const void* spec_ = nullptr;
};

} // namespace

void run(Bytes& bytes) { Resize(bytes).run(); }

} // namespace tpx::fuzz
