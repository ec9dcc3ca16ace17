// SPDX-License-Identifier: Apache-2.0
// What all of tpxi.hpp stands on: errors, layouts, views and images, buffers.
#ifndef TPXI_HPP_IMAGE_HPP
#define TPXI_HPP_IMAGE_HPP

#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include "../frame.h"
#include "../status_text.h"
#include "../types.h"

namespace tpxi {

// ---- Errors --------------------------------------------------------------------------------------------
// A failed check of the library, as an exception: what() reads
// "resize: tpxErrStep (-14): a step below 1, or not accepted".
class Error : public std::runtime_error {
 public:
    Error(TpxStatus code, const char* where)
        : std::runtime_error(std::string(where) + (*where ? ": " : "") + tpxStatusName(code) + " (" +
                             std::to_string(code) + "): " + tpxStatusText(code)),
          code_(code) {}

    TpxStatus code() const noexcept { return code_; }
    const char* name() const noexcept { return tpxStatusName(code_); }
    const char* text() const noexcept { return tpxStatusText(code_); }

 private:
    TpxStatus code_;
};

namespace detail {
[[noreturn, gnu::cold, gnu::noinline]] inline void fail(TpxStatus status, const char* where) {
    throw Error(status, where);
}
} // namespace detail

// Throws on a negative status; returns 0 and the positive ones, which are warnings about a defined result.
// Every function of this header passes its status through here, and `tpxi::check(tpxi...())` does so for any
// function of the library.
inline TpxStatus check(TpxStatus status, const char* where = "") {
    if (status < 0) detail::fail(status, where);
    return status;
}

// ---- Layouts -------------------------------------------------------------------------------------------
// C1, C2, C3, C4: interleaved channels. AC4: four are stored, and the fourth of a destination is kept.
constexpr int C1 = 1;
constexpr int C2 = 2;
constexpr int C3 = 3;
constexpr int C4 = 4;
constexpr int AC4 = tpxChannelAC4;

constexpr int channelsOf(int layout) { return layout == AC4 ? 4 : layout; } // that are stored
constexpr int coloursOf(int layout) { return layout == AC4 ? 3 : layout; }  // that are worked on

// One value a colour, as the library takes and gives them: a plain value for C1, an array for the others.
template <class Value, int layout>
using Pixel = std::conditional_t<layout == C1, Value, std::array<Value, std::size_t{coloursOf(layout)}>>;

namespace detail {
template <class Sample>
constexpr TpxDataType dataTypeOf() {
    if constexpr (std::is_same_v<Sample, Tpx8u>) return tpxDataType8u;
    if constexpr (std::is_same_v<Sample, Tpx16u>) return tpxDataType16u;
    if constexpr (std::is_same_v<Sample, Tpx16s>) return tpxDataType16s;
    if constexpr (std::is_same_v<Sample, Tpx32f>) return tpxDataType32f;
    if constexpr (std::is_same_v<Sample, Tpx64f>) return tpxDataType64f;
    return 0;
}
} // namespace detail
// The TpxDataType of a sample type, as size queries take it.
template <class Sample>
constexpr TpxDataType dataType = detail::dataTypeOf<std::remove_const_t<Sample>>();

// ---- Views ---------------------------------------------------------------------------------------------
// A rectangle of pixels in memory of somebody else: a pointer to its first sample, the step in bytes from row
// to row, and the size. It is passed by value like a pointer; a View<const Sample, layout> only reads.
template <class Sample, int layout>
class View {
    static_assert(layout == C1 || layout == C2 || layout == C3 || layout == C4 || layout == AC4,
                  "the layout of a view is 1, 2, 3, 4 channels or AC4");

 public:
    static constexpr int channels = channelsOf(layout);

    View() = default;
    constexpr View(Sample* data, int step, TpxiSize size) noexcept : data_(data), step_(step), size_(size) {}
    template <class Other, std::enable_if_t<std::is_same_v<const Other, Sample>, int> = 0>
    constexpr View(View<Other, layout> other) noexcept : View(other.data(), other.step(), other.size()) {}

    constexpr Sample* data() const noexcept { return data_; }
    constexpr int step() const noexcept { return step_; }
    constexpr TpxiSize size() const noexcept { return size_; }
    constexpr int width() const noexcept { return size_.width; }
    constexpr int height() const noexcept { return size_.height; }

    Sample* row(int y) const noexcept {
        using Byte = std::conditional_t<std::is_const_v<Sample>, const char, char>;
        return reinterpret_cast<Sample*>(reinterpret_cast<Byte*>(data_) + std::ptrdiff_t{y} * step_);
    }
    Sample* pixel(int x, int y) const noexcept { return row(y) + std::ptrdiff_t{x} * channels; }

    // A rectangle of this one. Throws tpxErrRect if it is not inside.
    View sub(TpxiRect r) const {
        const bool inside = r.x >= 0 && r.y >= 0 && r.width >= 0 && r.height >= 0 && r.width <= width() - r.x &&
                            r.height <= height() - r.y;
        if (!inside) detail::fail(tpxErrRect, "sub");
        return {pixel(r.x, r.y), step_, {r.width, r.height}};
    }
    View sub(int x, int y, int width, int height) const { return sub({x, y, width, height}); }

    // The same pixels of four channels, as a destination that keeps its fourth.
    View<Sample, AC4> keepingAlpha() const noexcept {
        static_assert(layout == C4, "alpha is kept in images of four channels");
        return {data_, step_, size_};
    }

 private:
    Sample* data_ = nullptr;
    int step_ = 0;
    TpxiSize size_{};
};

// ---- Images --------------------------------------------------------------------------------------------
namespace detail {
// Memory for images is asked for by the size of a sample.
template <int bytes, int layout>
constexpr auto mallocOf() {
#define TPXI_MALLOC(size, type)                                     \
    if constexpr (bytes == size) {                                  \
        if constexpr (layout == C1) return &tpxiMalloc_##type##_C1; \
        if constexpr (layout == C2) return &tpxiMalloc_##type##_C2; \
        if constexpr (layout == C3) return &tpxiMalloc_##type##_C3; \
        if constexpr (layout == C4) return &tpxiMalloc_##type##_C4; \
    }
    TPXI_MALLOC(1, 8u)
    TPXI_MALLOC(2, 16u)
    TPXI_MALLOC(4, 32f)
    TPXI_MALLOC(8, 32fc)
#undef TPXI_MALLOC
}

struct Release {
    void operator()(void* block) const noexcept { tpxiFree(block); }
};
} // namespace detail

// Pixels in memory of its own, from tpxiMalloc: rows start on 64 bytes. What it holds at first is not told.
// Moves hand the memory over; whoever wants a copy says copy(). Throws tpxErrSize for a side below 1,
// tpxErrMemAlloc.
template <class Sample, int layout>
class Image {
    static_assert(layout != AC4, "an image of four channels is seen as AC4 through keepingAlpha()");

 public:
    static constexpr int channels = layout;

    Image() = default;
    explicit Image(TpxiSize size) : size_(size) {
        if (size.width < 1 || size.height < 1) detail::fail(tpxErrSize, "Image");
        data_.reset(detail::mallocOf<sizeof(Sample), layout>()(size.width, size.height, &step_));
        if (!data_) detail::fail(tpxErrMemAlloc, "Image");
    }
    Image(int width, int height) : Image(TpxiSize{width, height}) {}
    Image(Image&& other) noexcept { swap(other); }
    Image& operator=(Image&& other) noexcept {
        Image(std::move(other)).swap(*this);
        return *this;
    }

    void swap(Image& other) noexcept {
        data_.swap(other.data_);
        std::swap(step_, other.step_);
        std::swap(size_, other.size_);
    }

    View<Sample, layout> view() noexcept { return {data(), step_, size_}; }
    View<const Sample, layout> view() const noexcept { return {data(), step_, size_}; }
    operator View<Sample, layout>() noexcept { return view(); }
    operator View<const Sample, layout>() const noexcept { return view(); }

    Sample* data() noexcept { return static_cast<Sample*>(data_.get()); }
    const Sample* data() const noexcept { return static_cast<const Sample*>(data_.get()); }
    int step() const noexcept { return step_; }
    TpxiSize size() const noexcept { return size_; }
    int width() const noexcept { return size_.width; }
    int height() const noexcept { return size_.height; }
    Sample* row(int y) noexcept { return view().row(y); }
    const Sample* row(int y) const noexcept { return view().row(y); }
    View<Sample, layout> sub(int x, int y, int width, int height) { return view().sub(x, y, width, height); }
    View<const Sample, layout> sub(int x, int y, int width, int height) const {
        return view().sub(x, y, width, height);
    }
    View<Sample, AC4> keepingAlpha() noexcept { return view().keepingAlpha(); }

 private:
    std::unique_ptr<void, detail::Release> data_;
    int step_ = 0;
    TpxiSize size_{};
};

// ---- Buffers -------------------------------------------------------------------------------------------
// Bytes for a plan, or for the work of one call at a time. Of no bytes too there is an address, since a few
// functions want one.
class Buffer {
 public:
    Buffer() = default;
    explicit Buffer(TpxSizeL bytes) : bytes_(bytes) {
        TpxSizeL step = 0;
        data_.reset(tpxiMalloc_8u_C1_L(bytes == 0 ? 1 : bytes, 1, &step));
        if (!data_) detail::fail(tpxErrMemAlloc, "Buffer");
    }
    Buffer(Buffer&& other) noexcept { swap(other); }
    Buffer& operator=(Buffer&& other) noexcept {
        Buffer(std::move(other)).swap(*this);
        return *this;
    }

    void swap(Buffer& other) noexcept {
        data_.swap(other.data_);
        std::swap(bytes_, other.bytes_);
    }
    Tpx8u* data() const noexcept { return data_.get(); }
    TpxSizeL size() const noexcept { return bytes_; }

 private:
    std::unique_ptr<Tpx8u, detail::Release> data_;
    TpxSizeL bytes_ = 0;
};

} // namespace tpxi

#endif
