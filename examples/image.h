// SPDX-License-Identifier: Apache-2.0
// Images of three interleaved channels in the library's memory, and views of their regions of interest.
#pragma once

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "tpxi.h"
#include "tpxi/status_text.h"

// Throws unless the call succeeded or ended with the one warning that the caller expects.
inline void check(TpxStatus status, const char* call, TpxStatus expectedWarning = tpxOk) {
    if (status != tpxOk && status != expectedWarning)
        throw std::runtime_error(std::string(call) + ": " + tpxStatusName(status) + ", " +
                                 tpxStatusText(status));
}

inline constexpr int kChannels = 3;

// A region of interest: where it starts, its step in bytes and its size in pixels. `margin` counts the pixels
// of the image around it, which a filter or a resize may read.
template <class T>
struct View {
    T* data;
    int step;
    TpxiSize size;
    TpxiBorderSize margin{};

    T* at(int x, int y) const {
        using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
        return reinterpret_cast<T*>(reinterpret_cast<Byte*>(data) + static_cast<std::ptrdiff_t>(y) * step) +
               static_cast<std::ptrdiff_t>(x) * kChannels;
    }

    View crop(TpxiRect r) const {
        return {at(r.x, r.y),
                step,
                {r.width, r.height},
                {margin.left + r.x, margin.top + r.y, margin.right + size.width - r.x - r.width,
                 margin.bottom + size.height - r.y - r.height}};
    }

    // The middle of the view, at most as large as `box`.
    View centre(TpxiSize box) const {
        const int width = box.width < size.width ? box.width : size.width;
        const int height = box.height < size.height ? box.height : size.height;
        return crop({(size.width - width) / 2, (size.height - height) / 2, width, height});
    }

    operator View<const T>() const { return {data, step, size, margin}; }
};

using Pixels = View<Tpx8u>;
using ConstPixels = View<const Tpx8u>;

template <class T>
class Image {
 public:
    explicit Image(TpxiSize size) : size_(size) {
        if constexpr (std::is_same_v<T, Tpx8u>)
            data_.reset(tpxiMalloc_8u_C3(size.width, size.height, &step_));
        else
            data_.reset(tpxiMalloc_32f_C3(size.width, size.height, &step_));
        if (!data_) throw std::bad_alloc();
    }

    View<T> view() { return {data_.get(), step_, size_}; }
    View<const T> view() const { return {data_.get(), step_, size_}; }
    TpxiSize size() const { return size_; }

 private:
    struct Free {
        void operator()(void* p) const { tpxiFree(p); }
    };

    TpxiSize size_;
    int step_ = 0;
    std::unique_ptr<T[], Free> data_;
};

using Image8u = Image<Tpx8u>;
using Image32f = Image<Tpx32f>;
