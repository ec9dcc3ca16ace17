// SPDX-License-Identifier: Apache-2.0
// Histograms and lookup tables between levels: levels and values of any bits.
#include <algorithm>
#include <memory>

#include "fuzz/call.h"

namespace tpx::fuzz {
namespace {

constexpr const char* kTypes[] = {"8u", "16u", "16s", "32f"};
constexpr const char* kLayouts[] = {"C1", "C3", "C4", "AC4"};

// Four arrays of numbers for a call, each ending at an unreadable page, and the array of their addresses.
class Arrays {
 public:
    // `count` entries of four bytes from entry(channel, i).
    template <class Entry>
    Arrays(int channels, const int* count, Entry entry) {
        for (int c = 0; c < channels; c++) {
            const size_t entries = size_t(std::clamp(count[c], 0, kMaxEntries));
            blocks_[c] = std::make_unique<Block>(entries * 4, 0);
            for (size_t i = 0; i < entries; i++) {
                const auto v = entry(c, int(i));
                static_assert(sizeof v == 4);
                std::memcpy(blocks_[c]->data() + 4 * i, &v, 4);
            }
            addresses_[c] = blocks_[c]->data();
        }
    }
    const void* addresses() const { return addresses_; }
    const void* first() const { return addresses_[0]; }

    static constexpr int kMaxEntries = 3000;

 private:
    std::unique_ptr<Block> blocks_[4];
    void* addresses_[4] = {};
};

class Tables {
 public:
    explicit Tables(Bytes& bytes)
        : bytes_(bytes),
          type_(bytes.pick(kTypes)),
          layout_(bytes.pick(kLayouts)),
          channels_(layout_ == "C4"   ? 4
                    : layout_ == "C1" ? 1
                                      : 3),
          samples_(layout_ == "AC4" ? 4 : channels_) {
        for (int& n : levels_)
            n = bytes.once(16) ? bytes.between(1, Arrays::kMaxEntries) : bytes.between(2, 20);
        if (bytes.once(32)) levels_[bytes.below(4)] = bytes.hostile();
        isTooLong_ = *std::max_element(levels_, levels_ + channels_) > Arrays::kMaxEntries;
        width_ = bytes.length();
        height_ = width_ > 100 ? 1 : bytes.between(1, 100);
    }

    void histogram() {
        if (layout_ == "AC4") return;
        const Export& e = *findExport("tpxiHistogram_" + type_ + "_" + layout_ + "R");
        const bool isUniform = bytes_.once(2);
        const TpxDataType type = dataTypeOf(type_);
        int specBytes = 0, workBytes = 0;
        const TpxStatus told = Arguments(*findExport("tpxiHistogramGetBufferSize"))
                                   .integer("dataType", type)
                                   .size("roiSize", width_, height_)
                                   .pointer("nLevels", counts())
                                   .integer("nChannels", channels_)
                                   .integer("uniform", isUniform)
                                   .pointer("pSpecSize", &specBytes)
                                   .pointer("pBufferSize", &workBytes)();
        if (told != tpxOk || size_t(specBytes) > kMaxPlan || size_t(workBytes) > kMaxPlan || isTooLong_) return;
        Block spec(bytes_, size_t(specBytes)), work(bytes_, size_t(workBytes));
        float lower[4], upper[4];
        for (int c = 0; c < 4; c++) {
            lower[c] = float(bytes_.real());
            upper[c] = bytes_.once(2) ? float(bytes_.real()) : lower[c] + float(bytes_.below(70000));
        }
        // Levels that rise, more or less.
        float last = 0;
        const Arrays levels(channels_, levels_, [&](int, int i) {
            last = i == 0 ? float(bytes_.real()) : last + float(1 + bytes_.below(20)) / 4;
            return bytes_.once(256) ? float(bytes_.real()) : last;
        });
        const TpxStatus made = isUniform ? Arguments(*findExport("tpxiHistogramUniformInit"))
                                               .integer("dataType", type)
                                               .pointer("lowerLevel", lower)
                                               .pointer("upperLevel", upper)
                                               .pointer("nLevels", counts())
                                               .integer("nChannels", channels_)
                                               .pointer("pSpec", spec.data())()
                                         : Arguments(*findExport("tpxiHistogramInit"))
                                               .integer("dataType", type)
                                               .pointer("pLevels", levels.addresses())
                                               .pointer("nLevels", counts())
                                               .integer("nChannels", channels_)
                                               .pointer("pSpec", spec.data())();
        const Arrays given(channels_, levels_, [](int, int) { return 0; });
        const TpxStatus levelsTold = Arguments(*findExport("tpxiHistogramGetLevels"))
                                         .pointer("pSpec", spec.data())
                                         .pointer("pLevels", given.addresses())();
        int bins[4];
        for (int c = 0; c < 4; c++) bins[c] = levels_[c] - 1;
        const Arrays counters(channels_, bins, [](int, int) { return 0; });
        const int64_t rowBytes = width_ * int64_t(samples_) * int64_t(sampleBytes(type_));
        if (!Image::fits(rowBytes, height_)) return;
        Image src(bytes_, rowBytes, height_, type_);
        const TpxStatus status = Arguments(e)
                                     .image("pSrc", "srcStep", src.data(), src.step())
                                     .size("roiSize", width_, height_)
                                     .pointer("pHist", channels_ == 1 ? counters.first() : counters.addresses())
                                     .pointer("pSpec", spec.data())
                                     .pointer("pBuffer", work.data())();
        require((made < 0) == (status < 0) && (made < 0) == (levelsTold < 0), e,
                "a spec that is ready is taken");
    }

    void lookup() {
        const Export& e = *findExport("tpxiLUT_" + type_ + "_" + layout_ + (bytes_.once(2) ? "IR" : "R"));
        const TpxChannelCode layout = layout_ == "AC4" ? tpxChannelAC4 : samples_;
        constexpr TpxInterpolationType kCurves[] = {tpxInterpolationNearest, tpxInterpolationLinear,
                                                    tpxInterpolationCubic};
        const int curve = bytes_.once(64) ? bytes_.hostile() : bytes_.pick(kCurves);
        int specBytes = 0;
        const TpxStatus told = Arguments(*findExport("tpxiLUT_GetSize"))
                                   .integer("interpolation", curve)
                                   .integer("dataType", dataTypeOf(type_))
                                   .integer("layout", layout)
                                   .size("roiSize", 1, 1)
                                   .pointer("nLevels", counts())
                                   .pointer("pSpecSize", &specBytes)();
        if (told != tpxOk || size_t(specBytes) > kMaxPlan || isTooLong_) return;
        Block spec(bytes_, size_t(specBytes));
        int64_t last = 0;
        const auto entry = [&](int, int i) {
            const bool isReal = type_ == "32f";
            if (bytes_.once(64)) {
                const float any = float(bytes_.real());
                return isReal ? bitsOf(any) : Tpx32s(bytes_.hostile());
            }
            last = i == 0 ? bytes_.between(-300, 300) : last + bytes_.below(20);
            return isReal ? bitsOf(float(last)) : Tpx32s(last);
        };
        const Arrays levels(channels_, levels_, entry), values(channels_, levels_, entry);
        const TpxStatus made = Arguments(*findExport("tpxiLUT_Init_" + type_))
                                   .integer("interpolation", curve)
                                   .integer("layout", layout)
                                   .size("roiSize", 1, 1)
                                   .pointer("pValues", values.addresses())
                                   .pointer("pLevels", levels.addresses())
                                   .pointer("nLevels", counts())
                                   .pointer("pSpec", spec.data())();
        require(made == tpxOk, e, "what has a size can be initialised");
        const int64_t rowBytes = width_ * int64_t(samples_) * int64_t(sampleBytes(type_));
        if (!Image::fits(rowBytes, height_)) return;
        Image src(bytes_, rowBytes, height_, type_), dst(bytes_, rowBytes, height_, type_);
        dst.watch();
        const TpxStatus status = Arguments(e)
                                     .image("pSrc", "srcStep", src.data(), src.step())
                                     .image("pDst", "dstStep", dst.data(), dst.step())
                                     .image("pSrcDst", "srcDstStep", dst.data(), dst.step())
                                     .size("roiSize", width_, height_)
                                     .pointer("pSpec", spec.data())();
        require(status == tpxOk, e, "a spec that is ready is taken");
        dst.requireKept(e, status);
    }

 private:
    static Tpx32s bitsOf(float v) {
        Tpx32s bits;
        std::memcpy(&bits, &v, sizeof bits);
        return bits;
    }
    // As many as there are channels.
    const int* counts() {
        if (!counts_) {
            counts_ = std::make_unique<Block>(size_t(channels_) * sizeof(int), 0);
            std::memcpy(counts_->data(), levels_, counts_->size());
        }
        return reinterpret_cast<const int*>(counts_->data());
    }

    Bytes& bytes_;
    std::string type_, layout_;
    int channels_, samples_;
    int levels_[4], width_, height_;
    bool isTooLong_;
    std::unique_ptr<Block> counts_;
};

} // namespace

void run(Bytes& bytes) {
    const bool isHistogram = bytes.once(2);
    Tables tables(bytes);
    isHistogram ? tables.histogram() : tables.lookup();
}

} // namespace tpx::fuzz
