// SPDX-License-Identifier: Apache-2.0
// Calls that take a plan or a spec, handed blocks that hold none: garbage, zeros, one of another kind, one
// whose beginning was written over. Filter blocks are not among them, whose calls take every block as it is.
#include <algorithm>
#include <map>
#include <memory>

#include "fuzz/call.h"

namespace tpx::fuzz {
namespace {

constexpr size_t kBlock = 16384;
constexpr TpxiSize kSize = {9, 7}; // of the images that plans are for

bool isSpec(const Param& p) { return p.points && p.name == "pSpec" && p.type != "TpxiFilterBorderBlock"; }

const std::vector<const Export*>& takers() {
    static const auto list = [] {
        std::vector<const Export*> made;
        for (const Export& e : test::exports())
            if (std::any_of(e.params.begin(), e.params.end(),
                            [](const Param& p) { return isSpec(p) && p.isConst; }))
                made.push_back(&e);
        return made;
    }();
    return list;
}

// An initialiser of anything, called with arguments that are good for it.
TpxStatus initialise(const Export& init, Bytes& bytes, void* spec) {
    constexpr int kTypes[] = {tpxDataType8u, tpxDataType16u, tpxDataType16s, tpxDataType32f};
    constexpr int kCodes[] = {tpxChannelC1, tpxChannelC3, tpxChannelC4, tpxChannelAC4};
    constexpr int kLevels[] = {5, 6, 7, 8}, kChannels[] = {1, 3, 4};
    constexpr double kCoeffs[] = {1, 0.25, 1, 0.125, 1, 0.5, 0, 0, 1}, kBorder[] = {1, 2, 3, 4},
                     kQuad[] = {
                         0, 0, kSize.width - 1, 0, kSize.width - 1, kSize.height - 1, 0, kSize.height - 1};
    static const Tpx32s integers[8] = {0, 20, 40, 60, 80, 100, 120, 140};
    static const Tpx32f reals[8] = {0, 20, 40, 60, 80, 100, 120, 140};
    const void* const arrays[] = {integers, integers, integers, integers};
    const void* const realArrays[] = {reals, reals, reals, reals};
    static uint8_t work[kBlock];
    const bool isReal = init.param("pLevels") && init.param("pLevels")->type == "Tpx32f";
    Arguments a(init);
    a.size("srcSize", kSize.width, kSize.height).size("dstSize", kSize.width, kSize.height);
    a.size("roiSize", kSize.width, kSize.height).rect("srcRoi", {0, 0, kSize.width, kSize.height});
    a.rect("dstRoi", {0, 0, kSize.width, kSize.height}).pointer("srcQuad", kQuad).pointer("dstQuad", kQuad);
    a.pointer("coeffs", kCoeffs).integer("dataType", bytes.pick(kTypes)).integer("transform", 1);
    a.integer("direction", bytes.below(2))
        .integer("border", tpxBorderTransparent)
        .pointer("pBorderValue", kBorder);
    a.integer("numChannels", bytes.pick(kChannels))
        .real("valueB", 0)
        .real("valueC", 0.5)
        .integer("numLobes", 2);
    a.integer("interpolation", tpxInterpolationLinear).integer("layout", bytes.pick(kCodes));
    a.pointer("pValues", isReal ? realArrays : arrays).pointer("pLevels", isReal ? realArrays : arrays);
    a.pointer("nLevels", kLevels).integer("nChannels", bytes.pick(kChannels));
    a.pointer("lowerLevel", reals).pointer("upperLevel", reals + 4);
    a.integer("orderX", 3).integer("orderY", 2).integer("flag", tpxFftNoDivide);
    a.pointer("pSpec", spec).pointer("pInitBuf", work);
    return a();
}

// Tables of all samples of 16 bits.
bool isLarge(const Export& e) { return e.name == "tpxiLUT_Init_16u" || e.name == "tpxiLUT_Init_16s"; }

const std::vector<const Export*>& initialisers(const std::string& specType) {
    static std::map<std::string, std::vector<const Export*>> lists;
    std::vector<const Export*>& list = lists[specType];
    if (list.empty())
        for (const Export& e : test::exports())
            for (const Param& p : e.params)
                if (isSpec(p) && !p.isConst && (specType.empty() || p.type == specType) && !isLarge(e))
                    list.push_back(&e);
    return list;
}

// Bytes of 0 and from 128 up, of which no mark of a spec is made.
void fillWithGarbage(Bytes& bytes, uint8_t* to, size_t count) {
    fill(bytes, to, count, "");
    for (size_t i = 0; i < count; i++) to[i] = to[i] & 1 ? uint8_t(to[i] | 128) : 0;
}

} // namespace

void run(Bytes& bytes) {
    const Export& e = *takers()[size_t(bytes.below(int(takers().size())))];
    const std::string specType = e.param("pSpec")->type;
    Block spec(bytes, kBlock);
    bool isNone = true;
    switch (bytes.below(4)) {
        case 0:
            std::memset(spec.data(), 0, kBlock);
            break;
        case 1:
            fillWithGarbage(bytes, spec.data(), kBlock);
            break;
        case 2: { // its beginning written over
            const auto& list = initialisers(specType);
            std::memset(spec.data(), 0, kBlock);
            initialise(*list[size_t(bytes.below(int(list.size())))], bytes, spec.data());
            fillWithGarbage(bytes, spec.data(), size_t(bytes.between(256, 1024)));
            break;
        }
        default: { // of any kind, perhaps the right one
            const auto& list = initialisers("");
            std::memset(spec.data(), 0, kBlock);
            isNone = false;
            initialise(*list[size_t(bytes.below(int(list.size())))], bytes, spec.data());
        }
    }
    // A buffer size is told for any block whose kind is 0, that of affine warps.
    if (e.name == "tpxiWarpGetBufferSize") isNone = false;

    // Room for the image of any plan.
    constexpr ptrdiff_t kRow = 512, kRows = 16;
    Image src(bytes, kRow, kRows, ""), dst(bytes, kRow, kRows, "");
    // Histograms of 16 bits count all samples.
    Block work(bytes, e.operation == "Histogram" && e.types != "8u" ? kBlock << 7 : kBlock);
    uint64_t results[2][16] = {};
    uint32_t counters[4][64];
    void* const arrays[] = {counters[0], counters[1], counters[2], counters[3]};
    dst.watch();
    Arguments a(e);
    a.image("pSrc", "srcStep", src.data() + 4 * src.step() + 64, src.step());
    a.image("pDst", "dstStep", dst.data(), dst.step()).image("pSrcDst", "srcDstStep", dst.data(), dst.step());
    // What is refused for its block is refused at any size, though one of 0 may be told first.
    const bool isTame = !isNone || !bytes.once(3);
    const int width = isTame ? bytes.between(1, kSize.width) : bytes.hostile(),
              height = isTame ? bytes.between(1, kSize.height) : bytes.hostile();
    a.size("dstSize", width, height).size("dstRoiSize", width, height).size("roiSize", width, height);
    a.integer("border", tpxBorderReplicate).integer("numChannels", 1).pointer("pBuffer", work.data());
    for (const char* name : {"pBufSize", "pBorderSize", "pSrcOffset", "pSrcRoiOffset"})
        a.pointer(name, results[0]);
    a.pointer("pSrcRoiSize", results[1]).pointer("pLevels", arrays).pointer("pSpec", spec.data());
    a.pointer("pHist", e.from == 1 ? arrays[0] : static_cast<const void*>(arrays));
    const TpxStatus status = a();
    require(!isNone || status < 0 || (!isTame && status > 0), e, "what is no plan is refused");
    require((status >= 0 && isTame) || dst.unchanged(), e, "a refused call writes nothing");
}

} // namespace tpx::fuzz
