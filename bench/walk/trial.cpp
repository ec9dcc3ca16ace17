// SPDX-License-Identifier: Apache-2.0
#include "trial.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

#include "canvas.h"
#include "tests/exports/call.h"

namespace bench::walk {
namespace {

using namespace tpx::test;

// ---- What names say --------------------------------------------------------------------------------------

// Of the source and of the destination: "8u16s" are two types.
struct Types {
    std::string from, to;
};
Types typesOf(const Export& e) {
    const size_t second = e.types.find_first_of("0123456789", e.types.find_first_of("usf"));
    if (second == std::string::npos) return {e.types, e.types};
    return {e.types.substr(0, second), e.types.substr(second)};
}
size_t sampleBytes(const std::string& type) { return sizeOf("Tpx" + type); }

bool isInit(const Export& e) {
    return e.operation.ends_with("Init") || e.operation.find("Init_") != std::string::npos;
}

Range rangeOfType(const std::string& type) {
    if (type.ends_with("f") || type.ends_with("fc")) return {-100, 300};
    if (type == "1u") return {0, 255};
    const double values = std::ldexp(1, std::atoi(type.c_str()));
    return type.ends_with("u") ? Range{0, values - 1} : Range{-values / 2, values / 2 - 1};
}

// Samples over the range of the type, as far as an operation has ordinary results for them.
Range rangeOf(const Export& e, Side side, const std::string& type) {
    const bool isReal = type.ends_with("f");
    Range range = rangeOfType(type);
    if (e.operation == "Ln" || e.operation == "Sqrt") range = {isReal ? 0.001 : 1, isReal ? 1000 : range.high};
    if (e.operation == "Exp") range = {range.low < 0 ? isReal ? -10. : -1. : 0, type == "8u" ? 5. : 10.};
    // Products and squares in place neither vanish nor become infinite.
    if (isReal && e.isInPlace() && (e.operation == "Sqr" || e.operation == "Mul")) range = {1, 1};
    // Extremes are looked for until the largest or smallest that there is.
    if (e.operation.ends_with("Indx")) range = {range.low + 1, range.high - 1};
    if (side == kMask) range = {0, 1};
    return range;
}

// ---- Pieces ----------------------------------------------------------------------------------------------

struct Plan {
    Call init;
    Block spec;
};

class Base : public Trial {
 public:
    Base(const Export& e, TpxiSize size) : e_(e), size_(size), types_(typesOf(e)) {}

 protected:
    // Two images without a mask.
    void makeImages(TpxiSize from, TpxiSize to, size_t gap = 0) {
        const auto pixel = [&](const std::string& type, int channels) {
            return sampleBytes(type) * static_cast<size_t>(channels);
        };
        const size_t srcRow = pixel(types_.from, e_.from) * static_cast<size_t>(from.width),
                     dstRow = pixel(types_.to, e_.to) * static_cast<size_t>(to.width);
        src_ = std::make_unique<Canvas>(srcRow, from.height, gap);
        src_->fill(types_.from, rangeOfType(types_.from));
        dst_ = std::make_unique<Canvas>(dstRow, to.height, gap);
        dst_->fill(types_.to, rangeOfType(types_.to));
        bytes = src_->bytes() + dst_->bytes();
        samples = static_cast<double>(to.width) * to.height * e_.to;
    }
    Call& giveImages(Call& call) const {
        return call.image("pSrc", "srcStep", src_->data(), src_->step())
            .image("pDst", "dstStep", dst_->data(), dst_->step())
            .image("pSrcDst", "srcDstStep", dst_->data(), dst_->step());
    }
    // A plan is initialised once; where the initialiser is what is tried, it is the call.
    Call runOrInit(const Library& library, Plan plan) const {
        plan.init.make();
        if (isInit(e_)) return plan.init;
        Call call(library, e_.name);
        call.keepAllOf(plan.init).pointer("pSpec", plan.spec.get());
        return call;
    }

    const Export& e_;
    const TpxiSize size_;
    const Types types_;
    std::unique_ptr<Canvas> src_, dst_;
};

// ---- Pointwise functions, copies, reductions: what call.h knows --------------------------------------------

constexpr int kLevels = 17;

// Levels and values over the range of a type.
struct Tables {
    explicit Tables(const std::string& type) {
        const Range range = rangeOfType(type);
        for (int i = 0; i < kLevels; ++i) {
            const double level = range.low + (range.high + 1 - range.low) * i / (kLevels - 1);
            const double value = range.low + (range.high - range.low) * (i * 7 % kLevels) / (kLevels - 1);
            realLevels[i] = static_cast<Tpx32f>(level), realValues[i] = static_cast<Tpx32f>(value);
            levels[i] = static_cast<Tpx32s>(level), values[i] = static_cast<Tpx32s>(value);
        }
        const bool isReal = type == "32f";
        for (int c = 0; c < 4; ++c) {
            counts[c] = kLevels;
            levelArrays[c] = isReal ? static_cast<const void*>(realLevels) : levels;
            valueArrays[c] = isReal ? static_cast<const void*>(realValues) : values;
        }
    }
    Tpx32f realLevels[kLevels], realValues[kLevels];
    Tpx32s levels[kLevels], values[kLevels];
    int counts[4];
    const void *levelArrays[4], *valueArrays[4];
};

Plan planLookup(const Library& library, const Export& e, const Tables& tables) {
    const TpxChannelCode layout = !e.from ? tpxChannelC1 : e.fromAC4 ? tpxChannelAC4 : e.from;
    int bytes = 0;
    const auto describe = [&](const std::string& name) {
        Call call(library, name);
        call.integer("interpolation", tpxInterpolationLinear).integer("layout", layout);
        call.integer("dataType", dataTypeOf(e.types)).size("roiSize", 1, 1).pointer("nLevels", tables.counts);
        return call;
    };
    describe("tpxiLUT_GetSize").pointer("pSpecSize", &bytes).make();
    const Block spec = makeBlock(size_t(bytes));
    Call init = describe("tpxiLUT_Init_" + e.types);
    init.pointer("pValues", tables.valueArrays).pointer("pLevels", tables.levelArrays);
    init.pointer("pSpec", spec.get()).keep(spec);
    return {init, spec};
}

class Pointwise : public Base {
 public:
    Pointwise(const Export& e, TpxiSize size, int variant) : Base(e, size) {
        Places places{};
        for (Side side : {kFirst, kSecond, kMask, kDst}) {
            const Param* const p = imageParam(e, side);
            if (!p) continue;
            const std::string type = p->type.substr(3);
            const size_t row = static_cast<size_t>(rowBytes(e, side, size.width, variant));
            const int rows = rowsOf(e, side, size.height);
            images_[side] = std::make_unique<Canvas>(row, rows);
            Canvas& image = *images_[side];
            image.fill(type, rangeOf(e, side, type));
            places[side] = {image.data(), image.step(), ptrdiff_t(image.step()) * rows / planesOf(e, side)};
            bytes += image.bytes() * (side == kDst && e.isInPlace() ? 2 : 1);
        }
        const bool hasDst = images_[kDst] != nullptr;
        writes = hasDst;
        isPointwise = true;
        samples = static_cast<double>(size.width) * size.height * (hasDst ? e.to : e.from);
        call_ = std::make_unique<tpx::test::Call>(e, places, size.width, size.height, variant, &outs_);
        if (isBorder(e) && e.isInPlace()) placeInside();
        describe(variant);
        if (e.operation == "LUT") tables_ = std::make_unique<Tables>(e.types);
    }
    walk::Call bind(const Library& library) override {
        walk::Call call(library, e_.name);
        call.assign(call_->values);
        if (tables_) {
            const Plan plan = planLookup(library, e_, *tables_);
            plan.init.make();
            call.keepAllOf(plan.init).pointer("pSpec", plan.spec.get());
        }
        return call;
    }

 private:
    // The pointer is to the first pixel inside the borders.
    void placeInside() {
        int top = 0, left = 0, at = -1;
        for (size_t i = 0; i < e_.params.size(); ++i) {
            const std::string& name = e_.params[i].name;
            if (name == "topBorderHeight") top = call_->values[i].as<int>();
            if (name == "leftBorderWidth") left = call_->values[i].as<int>();
            if (name == "pSrcDst") at = static_cast<int>(i);
        }
        const Canvas& image = *images_[kDst];
        call_->values[at] = image.data() + ptrdiff_t(top) * image.step() + left * bitsPerPixel(e_, kDst) / 8;
    }
    void describe(int variant) {
        if (e_.param("dstOrder")) text = "order " + std::to_string(variant);
        for (size_t i = 0; i < e_.params.size(); ++i) {
            const std::string& name = e_.params[i].name;
            for (const char* mode : {"scaleFactor", "roundMode", "cmpOp", "flags", "hint", "BitOffset"})
                if (name.ends_with(mode))
                    text = (name == "scaleFactor" ? "" : std::string(mode) + " ") +
                           std::to_string(call_->values[i].as<int>());
        }
    }

    std::unique_ptr<Canvas> images_[kSides];
    std::unique_ptr<tpx::test::Call> call_;
    std::unique_ptr<Tables> tables_;
    Outs outs_;
};

class LookupInit : public Base {
 public:
    LookupInit(const Export& e, TpxiSize size) : Base(e, size), tables_(e.types) {}
    walk::Call bind(const Library& library) override {
        return runOrInit(library, planLookup(library, e_, tables_));
    }

 private:
    Tables tables_;
};

// Scale factors of 100 give zeros; bits that begin in the middle of a byte do so alike; of comparisons there
// are two.
int pointwiseVariants(const Export& e) {
    const int all = variantsOf(e);
    return e.param("cmpOp") || e.param("hint") ? 2 : e.param("scaleFactor") ? 3 : std::min(all, 2 + (all == 3));
}

// ---- Extremes of blocks ------------------------------------------------------------------------------------

class Blocks : public Base {
 public:
    Blocks(const Export& e, TpxiSize size)
        : Base(e, size),
          count_{(size.width + kSide - 1) / kSide, (size.height + kSide - 1) / kSide},
          least_(static_cast<size_t>(count_.width) * sampleBytes(e.types), count_.height),
          most_(static_cast<size_t>(count_.width) * sampleBytes(e.types), count_.height) {
        makeImages(size, {1, 1});
        bytes = src_->bytes();
        samples = static_cast<double>(size.width) * size.height;
        writes = false;
    }
    walk::Call bind(const Library& library) override {
        walk::Call call(library, e_.name);
        giveImages(call).size("srcSize", size_.width, size_.height).size("blockSize", kSide, kSide);
        call.image("pDstMin", "dstMinStep", least_.data(), least_.step());
        call.image("pDstMax", "dstMaxStep", most_.data(), most_.step());
        return call.pointer("pDstGlobalMin", extremes_[0]).pointer("pDstGlobalMax", extremes_[1]);
    }

 private:
    static constexpr int kSide = 16;
    TpxiSize count_;
    Canvas least_, most_;
    Tpx8u extremes_[2][16];
};

// ---- Filters -----------------------------------------------------------------------------------------------

class Filter : public Base {
 public:
    Filter(const Export& e, TpxiSize size, int side) : Base(e, size), mask_{side, side} {
        if (e.operation == "SumWindowRow") mask_.height = 1;
        if (e.operation == "SumWindowColumn") mask_.width = 1;
        constexpr size_t kReach = 128; // more bytes than any mask reads beside a row
        if (!isInit(e)) makeImages(size, size, kReach);
        text = std::to_string(mask_.width) + "x" + std::to_string(mask_.height);
        for (int i = 0; i < side * side; ++i) {
            reals_[i] = static_cast<Tpx32f>(1 + i % 5) / 16;
            integers_[i] = static_cast<Tpx16s>(1 + i % 5);
        }
    }
    walk::Call bind(const Library& library) override {
        int workBytes = 0;
        if (e_.operation.starts_with("FilterBorder")) {
            walk::Call call = runOrInit(library, general(library, workBytes));
            return isInit(e_) ? call : arguments(call, workBytes);
        }
        const Export* query = findExport("tpxi" + e_.operation + "GetBufferSize");
        if (!query) query = findExport("tpxi" + e_.operation + "GetBufferSize_" + types_.from);
        if (query) describe(walk::Call(library, query->name)).pointer("pBufferSize", &workBytes).make();
        return arguments(walk::Call(library, e_.name), workBytes);
    }

 private:
    static constexpr int kMostSide = 5, kDivisor = 32;

    walk::Call describe(walk::Call call) const {
        call.size("roiSize", size_.width, size_.height).integer("mask", mask_.width == 5 ? 55 : 33);
        call.size("maskSize", mask_.width, mask_.height).size("kernelSize", mask_.width, mask_.height);
        call.integer("dataType", dataTypeOf(types_.from)).integer("numChannels", std::max(e_.from, 1));
        call.integer("srcType", dataTypeOf(types_.from)).integer("dstType", dataTypeOf(types_.to));
        call.point("anchor", (mask_.width - 1) / 2, (mask_.height - 1) / 2);
        if (call.function().param("anchor") && call.function().param("anchor")->type == "int") {
            const int length = std::max(mask_.width, mask_.height);
            call.integer("maskSize", length).integer("anchor", (length - 1) / 2);
        }
        return call;
    }
    walk::Call arguments(walk::Call call, int workBytes) const {
        const Block work = makeBlock(size_t(workBytes));
        call = describe(call);
        giveImages(call).integer("border", tpxBorderReplicate).pointer("pBorderValue", nothing_);
        return call.integer("weight", 3).pointer("pBuffer", work.get()).keep(work);
    }
    // Integers have an integer kernel.
    Plan general(const Library& library, int& workBytes) const {
        const bool isReal = types_.from == "32f";
        int specBytes = 0;
        describe(walk::Call(library, "tpxiFilterBorderGetSize"))
            .integer("kernelType", isReal ? tpxDataType32f : tpxDataType16s)
            .pointer("pSpecSize", &specBytes)
            .pointer("pBufferSize", &workBytes)
            .make();
        const Block spec = makeBlock(size_t(specBytes));
        walk::Call init =
            describe(walk::Call(library, isReal ? "tpxiFilterBorderInit_32f" : "tpxiFilterBorderInit_16s"));
        init.pointer("pKernel", isReal ? static_cast<const void*>(reals_) : integers_);
        init.integer("divisor", kDivisor).integer("roundMode", tpxRoundNearestEven);
        init.pointer("pSpec", spec.get()).keep(spec);
        return {init, spec};
    }

    TpxiSize mask_;
    Tpx32f reals_[kMostSide * kMostSide];
    Tpx16s integers_[kMostSide * kMostSide];
    alignas(8) Tpx8u nothing_[32] = {};
};

// Those of one mask.
bool isOfThree(const Export& e) {
    for (const char* stem : {"Roberts", "Sharpen", "Prewitt", "Scharr"})
        if (e.operation.find(stem) != std::string::npos) return true;
    return e.param("weight") != nullptr;
}
int filterVariants(const Export& e) { return isOfThree(e) ? 1 : 2; }

// ---- Resizes -----------------------------------------------------------------------------------------------

struct Scaling {
    const char* kernel; // of antialiasing ones
    int numerator, denominator;
};
constexpr Scaling kScalings[] = {{"Linear", 3, 2}, {"Linear", 2, 3}, {"Cubic", 1, 2}, {"Lanczos", 1, 3}};

class Resize : public Base {
 public:
    Resize(const Export& e, TpxiSize size, const Scaling& by)
        : Base(e, size),
          to_{size.width * by.numerator / by.denominator, size.height * by.numerator / by.denominator},
          isSmooth_(e.operation.starts_with("ResizeAntialiasing")) {
        kernel_ = e.operation.substr(6);
        if (isInit(e)) kernel_.resize(kernel_.size() - 4);
        if (isSmooth_) kernel_ = isInit(e) ? kernel_.substr(12) : by.kernel;
        if (!isInit(e)) makeImages(size, to_);
        text = "to " + std::to_string(to_.width) + "x" + std::to_string(to_.height);
    }
    walk::Call bind(const Library& library) override {
        const std::string type = types_.from.empty() ? "8u" : types_.from;
        const std::string ending = e_.isLong ? "_L" : "_" + type;
        int64_t specBytes = 0, initBytes = 0, workBytes = 0; // of either width
        const auto describe = [&](const std::string& name) {
            walk::Call call(library, name);
            call.size("srcSize", size_.width, size_.height).size("dstSize", to_.width, to_.height);
            call.integer("dataType", dataTypeOf(type)).integer("antialiasing", isSmooth_);
            call.integer("interpolation", kernel_ == "Nearest"  ? tpxInterpolationNearest
                                          : kernel_ == "Linear" ? tpxInterpolationLinear
                                          : kernel_ == "Cubic"  ? tpxInterpolationCubic
                                          : kernel_ == "Super"  ? tpxInterpolationSuper
                                                                : tpxInterpolationLanczos);
            return call.real("valueB", 0).real("valueC", 0.5).integer("numLobes", 3);
        };
        describe("tpxiResizeGetSize" + ending)
            .pointer("pSpecSize", &specBytes)
            .pointer("pInitBufSize", &initBytes)
            .make();
        const Block spec = makeBlock(size_t(specBytes)), initWork = makeBlock(size_t(initBytes));
        walk::Call init =
            describe(isInit(e_)  ? e_.name
                     : isSmooth_ ? "tpxiResizeAntialiasing" + kernel_ + "Init" + (e_.isLong ? "_L" : "")
                                 : "tpxiResize" + kernel_ + "Init" + ending);
        init.pointer("pSpec", spec.get()).pointer("pInitBuf", initWork.get()).keep(spec).keep(initWork);
        walk::Call call = runOrInit(library, {init, spec});
        if (isInit(e_)) return call;
        describe("tpxiResizeGetBufferSize" + ending)
            .pointer("pSpec", spec.get())
            .integer("numChannels", e_.from)
            .pointer("pBufSize", &workBytes)
            .make();
        const Block work = makeBlock(size_t(workBytes));
        giveImages(call).size("dstSize", to_.width, to_.height).integer("border", tpxBorderReplicate);
        return call.pointer("pBuffer", work.get()).keep(work);
    }

 private:
    TpxiSize to_;
    bool isSmooth_;
    std::string kernel_;
};

// Super only makes smaller. Initialisers are tried for one size.
int resizeVariants(const Export& e) { return isInit(e) ? 1 : e.operation == "ResizeSuper" ? 3 : 4; }
const Scaling& scalingOf(const Export& e, int variant) {
    return kScalings[e.operation.starts_with("ResizeSuper") ? variant + 1 : variant];
}

// ---- Warps -------------------------------------------------------------------------------------------------

// Turned by 15 degrees about the middle.
class Turn {
 public:
    explicit Turn(TpxiSize size) : x_(size.width / 2.), y_(size.height / 2.) {}
    double x(double x, double y) const { return x_ + kCos * (x - x_) + kSin * (y - y_); }
    double y(double x, double y) const { return y_ - kSin * (x - x_) + kCos * (y - y_); }
    static constexpr double kCos = 0.96592582628906829, kSin = 0.25881904510252076;

 private:
    double x_, y_;
};

class Warp : public Base {
 public:
    Warp(const Export& e, TpxiSize size) : Base(e, size) {
        if (!isInit(e)) makeImages(size, size);
        const Turn turn(size);
        const double corners[4][2] = {
            {0, 0}, {size.width - 1., 0}, {size.width - 1., size.height - 1.}, {0, size.height - 1.}};
        for (int i = 0; i < 4; ++i) {
            srcQuad_[i][0] = corners[i][0], srcQuad_[i][1] = corners[i][1];
            dstQuad_[i][0] = turn.x(corners[i][0], corners[i][1]);
            dstQuad_[i][1] = turn.y(corners[i][0], corners[i][1]);
        }
        const double coeffs[9] = {Turn::kCos,        Turn::kSin, turn.x(0, 0),
                                  -Turn::kSin,       Turn::kCos, turn.y(0, 0),
                                  1e-2 / size.width, 0,          1};
        std::copy(coeffs, coeffs + 9, coeffs_);
    }
    walk::Call bind(const Library& library) override {
        const std::string stem = e_.operation.starts_with("WarpAffine")        ? "WarpAffine"
                                 : e_.operation.starts_with("WarpPerspective") ? "WarpPerspective"
                                                                               : "WarpQuad";
        std::string kind = e_.operation.substr(stem.size());
        if (isInit(e_)) kind.resize(kind.size() - 4);
        const std::string type = types_.from.empty() ? "8u" : types_.from;
        int specBytes = 0, initBytes = 0, workBytes = 0;
        const TpxiRect all{0, 0, size_.width, size_.height};
        const auto describe = [&](const std::string& name) {
            walk::Call call(library, name);
            call.size("srcSize", size_.width, size_.height).size("dstSize", size_.width, size_.height);
            call.rect("srcRoi", all)
                .rect("dstRoi", all)
                .pointer("srcQuad", srcQuad_)
                .pointer("dstQuad", dstQuad_);
            call.pointer("coeffs", coeffs_).integer("dataType", dataTypeOf(type)).integer("transform", 1);
            call.integer("interpolation", kind == "Nearest"  ? tpxInterpolationNearest
                                          : kind == "Linear" ? tpxInterpolationLinear
                                                             : tpxInterpolationCubic);
            call.integer("direction", 1)
                .integer("border", tpxBorderTransparent)
                .pointer("pBorderValue", nothing_);
            call.integer("numChannels", std::max(e_.from, 1)).real("valueB", 0).real("valueC", 0.5);
            return call;
        };
        describe("tpxi" + stem + "GetSize")
            .pointer("pSpecSize", &specBytes)
            .pointer("pInitBufSize", &initBytes)
            .make();
        const Block spec = makeBlock(size_t(specBytes)), initWork = makeBlock(size_t(initBytes));
        walk::Call init = describe("tpxi" + stem + kind + "Init");
        init.pointer("pSpec", spec.get()).pointer("pInitBuf", initWork.get()).keep(spec).keep(initWork);
        walk::Call call = runOrInit(library, {init, spec});
        if (isInit(e_)) return call;
        describe("tpxiWarpGetBufferSize").pointer("pSpec", spec.get()).pointer("pBufSize", &workBytes).make();
        const Block work = makeBlock(size_t(workBytes));
        giveImages(call).size("dstRoiSize", size_.width, size_.height);
        return call.pointer("pBuffer", work.get()).keep(work);
    }

 private:
    double coeffs_[9], srcQuad_[4][2], dstQuad_[4][2], nothing_[4] = {};
};

class Remap : public Base {
 public:
    Remap(const Export& e, TpxiSize size, int interpolation)
        : Base(e, size), interpolation_(interpolation), mapType_(e.param("pxMap")->type) {
        makeImages(size, size);
        const Turn turn(size);
        for (int i = 0; i < 2; ++i) {
            maps_[i] =
                std::make_unique<Canvas>(static_cast<size_t>(size.width) * sizeOf(mapType_), size.height);
            for (int y = 0; y < size.height; ++y)
                for (int x = 0; x < size.width; ++x) put(*maps_[i], x, y, i ? turn.y(x, y) : turn.x(x, y));
            bytes += maps_[i]->bytes();
        }
        text = "interpolation " + std::to_string(interpolation);
    }
    walk::Call bind(const Library& library) override {
        walk::Call call(library, e_.name);
        giveImages(call)
            .size("srcSize", size_.width, size_.height)
            .rect("srcRoi", {0, 0, size_.width, size_.height});
        call.image("pxMap", "xMapStep", maps_[0]->data(), maps_[0]->step());
        call.image("pyMap", "yMapStep", maps_[1]->data(), maps_[1]->step());
        return call.size("dstRoiSize", size_.width, size_.height).integer("interpolation", interpolation_);
    }

 private:
    void put(const Canvas& map, int x, int y, double v) const {
        Tpx8u* const row = map.data() + ptrdiff_t(y) * map.step();
        if (mapType_ == "Tpx64f")
            reinterpret_cast<double*>(row)[x] = v;
        else
            reinterpret_cast<float*>(row)[x] = static_cast<float>(v);
    }

    int interpolation_;
    std::string mapType_;
    std::unique_ptr<Canvas> maps_[2];
};

constexpr int kRemapKinds[] = {tpxInterpolationNearest, tpxInterpolationLinear, tpxInterpolationCubic,
                               tpxInterpolationLanczos};

// ---- Fourier transforms ------------------------------------------------------------------------------------

class Fourier : public Base {
 public:
    Fourier(const Export& e, TpxiSize size)
        : Base(e, e.operation.starts_with("FFT") ? TpxiSize{1 << orderOf(size.width), 1 << orderOf(size.height)}
                                                 : size) {
        // Rows of whole pages would all begin in the same lines of the caches.
        constexpr size_t kGap = 64;
        if (!isInit(e)) makeImages(size_, size_, kGap);
        text = std::to_string(size_.width) + "x" + std::to_string(size_.height);
        if (text == std::to_string(size.width) + "x" + std::to_string(size.height)) text.clear();
    }
    walk::Call bind(const Library& library) override {
        const std::string stem = "tpxi" + e_.operation.substr(0, 3),
                          ending = e_.types == "32fc" ? "_C_32fc" : "_R_32f";
        int specBytes = 0, initBytes = 0, workBytes = 0;
        const auto describe = [&](const std::string& name) {
            walk::Call call(library, name);
            call.integer("orderX", orderOf(size_.width)).integer("orderY", orderOf(size_.height));
            // Transforms in place, one after another, neither grow nor vanish.
            return call.size("roiSize", size_.width, size_.height).integer("flag", tpxFftDivBySqrt);
        };
        describe(stem + "GetSize" + ending)
            .pointer("pSpecSize", &specBytes)
            .pointer("pInitBufSize", &initBytes)
            .pointer("pWorkSize", &workBytes)
            .make();
        const Block spec = makeBlock(size_t(specBytes)), initWork = makeBlock(size_t(initBytes)),
                    work = makeBlock(size_t(workBytes));
        walk::Call init = describe(stem + "Init" + ending);
        init.pointer("pSpec", spec.get()).pointer("pInitBuf", initWork.get()).keep(spec).keep(initWork);
        walk::Call call = runOrInit(library, {init, spec});
        if (isInit(e_)) return call;
        return giveImages(call).pointer("pBuffer", work.get()).keep(work);
    }

 private:
    static int orderOf(int length) { return static_cast<int>(std::log2(length)); }
};

// ---- Histograms --------------------------------------------------------------------------------------------

class Histogram : public Base {
 public:
    Histogram(const Export& e, TpxiSize size, bool isUniform)
        : Base(e, size), type_(e.types.empty() ? "8u" : e.types), isUniform_(isUniform) {
        const Range range = rangeOfType(type_);
        for (int i = 0; i < kCount; ++i)
            levels_[i] = static_cast<Tpx32f>(range.low + (range.high + 1 - range.low) * i / (kCount - 1));
        for (int c = 0; c < 4; ++c) {
            arrays_[c] = levels_, counts_[c] = kCount, counters_[c] = counts[c];
            lower_[c] = levels_[0], upper_[c] = levels_[kCount - 1];
        }
        text = isUniform ? "uniform" : "levels";
        if (isInit(e)) return;
        makeImages(size, {1, 1});
        bytes = src_->bytes();
        samples = static_cast<double>(size.width) * size.height * e.from;
        writes = false;
    }
    walk::Call bind(const Library& library) override {
        int specBytes = 0, workBytes = 0;
        const auto describe = [&](const std::string& name) {
            walk::Call call(library, name);
            call.integer("dataType", dataTypeOf(type_)).size("roiSize", size_.width, size_.height);
            call.pointer("nLevels", counts_).integer("nChannels", std::max(e_.from, 1));
            call.pointer("lowerLevel", lower_).pointer("upperLevel", upper_).pointer("pLevels", arrays_);
            return call.integer("uniform", isUniform_);
        };
        describe("tpxiHistogramGetBufferSize")
            .pointer("pSpecSize", &specBytes)
            .pointer("pBufferSize", &workBytes)
            .make();
        const Block spec = makeBlock(size_t(specBytes)), work = makeBlock(size_t(workBytes));
        walk::Call init = describe(isUniform_ ? "tpxiHistogramUniformInit" : "tpxiHistogramInit");
        init.pointer("pSpec", spec.get()).keep(spec);
        walk::Call call = runOrInit(library, {init, spec});
        if (isInit(e_)) return call;
        giveImages(call).size("roiSize", size_.width, size_.height).pointer("pBuffer", work.get()).keep(work);
        return call.pointer("pHist", e_.from == 1 ? counters_[0] : static_cast<const void*>(counters_));
    }

 private:
    static constexpr int kCount = 257;
    const std::string type_;
    bool isUniform_;
    Tpx32f levels_[kCount], lower_[4], upper_[4];
    const void* arrays_[4];
    int counts_[4];
    Tpx32u counts[4][kCount];
    void* counters_[4];
};

// ---- Which is which ----------------------------------------------------------------------------------------

enum class Family { None, Pointwise, LookupInit, Blocks, Filter, Resize, Warp, Remap, Fourier, Histogram };

Family familyOf(const Export& e) {
    const auto begins = [&](const char* stem) { return e.operation.starts_with(stem); };
    const bool works = e.invoke && (e.from || isInit(e));
    if (!works) return Family::None;
    if (begins("LUT_Init")) return Family::LookupInit;
    if (begins("Filter") || begins("SumWindow")) return Family::Filter;
    if (begins("Resize")) return Family::Resize;
    if (begins("Warp")) return Family::Warp;
    if (begins("Remap")) return Family::Remap;
    if (begins("FFT") || begins("DFT")) return Family::Fourier;
    if (begins("Histogram")) return Family::Histogram;
    if (begins("BlockMinMax")) return Family::Blocks;
    return isCallable(e) ? Family::Pointwise : Family::None;
}

std::unique_ptr<Trial> makeAny(const Export& e, int number, TpxiSize size) {
    switch (familyOf(e)) {
        case Family::None:
            return nullptr;
        case Family::Pointwise:
            return std::make_unique<Pointwise>(e, size, number);
        case Family::LookupInit:
            return std::make_unique<LookupInit>(e, size);
        case Family::Blocks:
            return std::make_unique<Blocks>(e, size);
        case Family::Filter:
            return std::make_unique<Filter>(e, size, number ? 5 : 3);
        case Family::Resize:
            return std::make_unique<Resize>(e, size, scalingOf(e, number));
        case Family::Warp:
            return std::make_unique<Warp>(e, size);
        case Family::Remap:
            return std::make_unique<Remap>(e, size, kRemapKinds[number]);
        case Family::Fourier:
            return std::make_unique<Fourier>(e, size);
        case Family::Histogram:
            return std::make_unique<Histogram>(e, size,
                                               isInit(e) ? e.operation == "HistogramUniformInit" : number == 0);
    }
    return nullptr;
}

} // namespace

Block makeBlock(size_t bytes) {
    constexpr size_t kLine = 64;
    void* const memory = std::aligned_alloc(kLine, (bytes + kLine) / kLine * kLine);
    if (!memory) throw std::bad_alloc();
    return Block(static_cast<Tpx8u*>(memory), std::free);
}

Call::Call(const Library& library, const std::string& name)
    : NamedArguments(*findExport(name)), function_(library.find(name)) {
    if (!function_) throw std::runtime_error(name + " is missing");
}

void Call::make() const {
    if (const TpxStatus status = (*this)(); status < tpxOk)
        throw std::runtime_error(e_->name + " gives status " + std::to_string(status));
}

int trialsOf(const Export& e) {
    switch (familyOf(e)) {
        case Family::None:
            return 0;
        case Family::Pointwise:
            return pointwiseVariants(e);
        case Family::Filter:
            return isInit(e) ? 1 : filterVariants(e);
        case Family::Resize:
            return resizeVariants(e);
        case Family::Remap:
            return static_cast<int>(std::size(kRemapKinds));
        case Family::Histogram:
            return isInit(e) ? 1 : 2;
        default:
            return 1;
    }
}

const char* whyNone(const Export& e) {
    const auto has = [&](const char* part) { return e.name.find(part) != std::string::npos; };
    if (has("Malloc") || has("Free")) return "memory";
    if (!e.invoke) return "gives no status";
    if (has("Size") || has("GetSrc") || has("GetLevels") || has("SetMode")) return "a query of a plan";
    return "a few numbers";
}

std::unique_ptr<Trial> makeTrial(const Export& e, int number, TpxiSize size) {
    std::unique_ptr<Trial> trial = makeAny(e, number, size);
    if (trial) trial->size = size, trial->number = number;
    return trial;
}

} // namespace bench::walk
