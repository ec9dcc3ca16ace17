// SPDX-License-Identifier: Apache-2.0
#include "fuzz/call.h"

#include <xmmintrin.h>

#include <map>

#include "tests/exports/images.h"

namespace tpx::fuzz {
namespace {

constexpr unsigned kControlMask = ~unsigned(_MM_EXCEPT_MASK);
constexpr unsigned kDefaultControl = 0x1F80;

const std::vector<uint8_t>& samplesOf(const std::string& type) {
    static std::map<std::string, std::vector<uint8_t>> pools;
    std::vector<uint8_t>& pool = pools[type];
    if (pool.empty()) {
        pool.resize(kMaxImage);
        if (type.empty())
            test::fillSamples(pool.data(), pool.size(), "Tpx32u", test::kSecond);
        else
            test::fillSamples(pool.data(), pool.size(), "Tpx" + type, test::kFirst);
        uint32_t state = 1;
        if (type.empty())
            for (uint8_t& byte : pool) byte = uint8_t((state = state * 1664525 + 1013904223) >> 24);
    }
    return pool;
}

ptrdiff_t stepOf(Bytes& bytes, ptrdiff_t rowBytes, size_t sample, bool anyStep) {
    switch (bytes.below(anyStep ? 5 : 4)) {
        case 0:
            return rowBytes;
        case 1:
            return rowBytes + ptrdiff_t(sample);
        case 2:
            return rowBytes + bytes.below(8) * ptrdiff_t(sample);
        case 3:
            return (rowBytes + 63) & ~ptrdiff_t(63);
        default:
            return rowBytes + bytes.below(64);
    }
}

} // namespace

void require(bool kept, const Export& e, const char* promise) {
    if (kept) return;
    std::fprintf(stderr, "%s: %s\n", e.name.c_str(), promise);
    std::abort();
}

bool sameSamples(const uint8_t* a, const uint8_t* b, size_t bytes, const std::string& type) {
    const auto areSame = [&](auto x, auto y) {
        for (size_t i = 0; i < bytes; i += sizeof x) {
            std::memcpy(&x, a + i, sizeof x);
            std::memcpy(&y, b + i, sizeof y);
            const bool areNaN = x != x && y != y;
            if (!areNaN && std::memcmp(a + i, b + i, sizeof x) != 0) return false;
        }
        return true;
    };
    return type == "32f"   ? areSame(0.0f, 0.0f)
           : type == "64f" ? areSame(0.0, 0.0)
                           : std::memcmp(a, b, bytes) == 0;
}

void fill(Bytes& bytes, uint8_t* to, size_t count, const std::string& type) {
    const std::vector<uint8_t>& pool = samplesOf(bytes.once(2) ? "" : type);
    const size_t sample = type.empty() ? 1 : sampleBytes(type);
    size_t from = size_t(bytes.below(256)) * 4096 / sample * sample;
    while (count > 0) {
        const size_t part = std::min(count, pool.size() - from);
        std::memcpy(to, &pool[from], part);
        to += part;
        count -= part;
        from = 0;
    }
}

Image::Image(Bytes& bytes, ptrdiff_t rowBytes, ptrdiff_t rows, const std::string& type, bool anyStep)
    : rowBytes_(rowBytes),
      rows_(rows),
      step_(stepOf(bytes, rowBytes, type.empty() ? 1 : sampleBytes(type), anyStep)),
      block_(bytes, size_t(step_ * (rows - 1) + rowBytes)) {
    fill(bytes, block_.data(), block_.size(), type);
}

bool Image::paddingIntact() {
    for (ptrdiff_t y = 0; y + 1 < rows_; y++) {
        const ptrdiff_t gap = y * step_ + rowBytes_;
        if (std::memcmp(&before_[size_t(gap)], block_.data() + gap, size_t(step_ - rowBytes_)) != 0)
            return false;
    }
    return true;
}

void show(const Export& e, Value* values) {
    static const bool isWanted = std::getenv("TPX_FUZZ_SHOW");
    if (!isWanted) return;
    std::fprintf(stderr, "%s", e.name.c_str());
    for (size_t i = 0; i < e.params.size(); i++) {
        const Param& p = e.params[i];
        std::fprintf(stderr, " %s=", p.name.c_str());
        if (p.points)
            std::fprintf(stderr, "%p", values[i].as<void*>());
        else if (p.type.ends_with("64f"))
            std::fprintf(stderr, "%.17g", values[i].as<double>());
        else if (p.type.ends_with("32f"))
            std::fprintf(stderr, "%.9g", double(values[i].as<float>()));
        else if (p.type == "TpxiSizeL" || p.type == "TpxiPointL")
            std::fprintf(stderr, "%ldx%ld", values[i].as<TpxiSizeL>().width, values[i].as<TpxiSizeL>().height);
        else if (p.type == "TpxiSize" || p.type == "TpxiPoint")
            std::fprintf(stderr, "%dx%d", values[i].as<TpxiSize>().width, values[i].as<TpxiSize>().height);
        else if (p.type == "TpxiRect")
            std::fprintf(stderr, "%d,%d,%dx%d", values[i].as<TpxiRect>().x, values[i].as<TpxiRect>().y,
                         values[i].as<TpxiRect>().width, values[i].as<TpxiRect>().height);
        else if (p.type == "TpxSizeL")
            std::fprintf(stderr, "%ld", values[i].as<TpxSizeL>());
        else
            std::fprintf(stderr, "%d", values[i].as<int>());
    }
    std::fprintf(stderr, "\n");
}

TpxStatus Arguments::operator()() {
    show(*e_, values_);
    const unsigned control = _mm_getcsr() & kControlMask;
    const TpxStatus status = e_->invoke(e_->function, values_);
    const bool mayStayChanged = e_->operation.starts_with("ResizeLanczosInit") && status < 0;
    require(mayStayChanged || (_mm_getcsr() & kControlMask) == control, *e_, "the control register stays");
    return status;
}

} // namespace tpx::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace tpx::fuzz;
    Bytes bytes(data, size);
    // The thread's rounding mode and flushing are the caller's.
    const int control = bytes.below(64);
    _mm_setcsr(kDefaultControl | (control >= 48 ? unsigned(control & 3) << 13 : 0) |
               (control >= 56 ? _MM_FLUSH_ZERO_ON : 0));
    run(bytes);
    _mm_setcsr(kDefaultControl);
    return 0;
}
