// SPDX-License-Identifier: Apache-2.0
// Fourier transforms: plans of hostile orders, sides and flags, and transforms of every layout.
#include <algorithm>

#include "fuzz/call.h"

namespace tpx::fuzz {
namespace {

const std::vector<const Export*>& transforms() {
    static const auto list = [] {
        std::vector<const Export*> made;
        for (const Export& e : test::exports())
            if ((e.operation.starts_with("FFT") || e.operation.starts_with("DFT")) && e.from)
                made.push_back(&e);
        return made;
    }();
    return list;
}

} // namespace

void run(Bytes& bytes) {
    const Export& e = *transforms()[size_t(bytes.below(int(transforms().size())))];
    const bool isFft = e.operation.starts_with("FFT");
    const std::string stem = "tpxi" + e.operation.substr(0, 3),
                      suffix = (e.types == "32fc" ? "_C_" : "_R_") + e.types;

    int orders[2] = {bytes.below(9), bytes.below(9)}, sides[2] = {bytes.between(1, 100), bytes.between(1, 100)};
    if (bytes.once(32)) sides[0] = bytes.between(1, 5000), sides[1] = 1;
    if (bytes.once(32)) std::swap(sides[0], sides[1]);
    const bool isHostile = bytes.once(16);
    if (isHostile) {
        orders[bytes.below(2)] = bytes.hostile();
        sides[bytes.below(2)] = bytes.hostile();
    }
    const int flag = bytes.once(32) ? bytes.hostile() : 1 << bytes.below(4);
    const auto describe = [&](Arguments arguments) {
        return arguments.integer("orderX", orders[0])
            .integer("orderY", orders[1])
            .size("roiSize", sides[0], sides[1])
            .integer("flag", flag)
            .integer("hint", bytes.hostile());
    };
    int specBytes = 0, initBytes = 0, workBytes = 0;
    const TpxStatus told = describe(Arguments(*findExport(stem + "GetSize" + suffix)))
                               .pointer("pSpecSize", &specBytes)
                               .pointer("pInitBufSize", &initBytes)
                               .pointer("pWorkSize", &workBytes)();
    if (told != tpxOk || size_t(specBytes) > kMaxPlan || size_t(initBytes) > kMaxPlan ||
        size_t(workBytes) > kMaxPlan)
        return;
    const auto pointer = [&](Block& block) { return block.size() || bytes.once(2) ? block.data() : nullptr; };
    Block spec(bytes, size_t(specBytes)), init(bytes, size_t(initBytes)), work(bytes, size_t(workBytes));
    fill(bytes, spec.data(), spec.size(), "");
    const TpxStatus made = describe(Arguments(*findExport(stem + "Init" + suffix)))
                               .pointer("pSpec", spec.data())
                               .pointer("pInitBuf", pointer(init))();
    require(made == tpxOk, e, "what has a size can be initialised");

    const int64_t width = isFft ? int64_t(1) << orders[0] : sides[0],
                  height = isFft ? int64_t(1) << orders[1] : sides[1];
    const int64_t rowBytes = width * e.from * int64_t(sampleBytes(e.types));
    if (!Image::fits(rowBytes, height)) return;
    Image src(bytes, rowBytes, height, "32f"), dst(bytes, rowBytes, height, "32f");
    dst.watch();
    const std::vector<uint8_t> before(spec.data(), spec.data() + spec.size());
    const TpxStatus status = Arguments(e)
                                 .pointer("pSpec", spec.data())
                                 .pointer("pBuffer", pointer(work))
                                 .image("pSrc", "srcStep", src.data(), src.step())
                                 .image("pDst", "dstStep", dst.data(), dst.step())
                                 .image("pSrcDst", "srcDstStep", dst.data(), dst.step())();
    require(status == tpxOk, e, "a good call succeeds");
    dst.requireKept(e, status);
    require(std::memcmp(before.data(), spec.data(), before.size()) == 0, e, "plans are only read");
}

} // namespace tpx::fuzz
