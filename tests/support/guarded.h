// SPDX-License-Identifier: Apache-2.0
// Memory and images that catch every byte read or written outside what a call was handed.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "tpxi.h"

namespace tpx::test {

// Which end of the memory lies at an unreadable page.
enum class Edge { End, Start };

// Pages between two unreadable ones. Tests ask for very many of few sizes, so they are kept for the next.
class GuardedPages {
 public:
    explicit GuardedPages(size_t pages) : pages_(pages) {
        if (pages < kKept && !spare()[pages].empty()) {
            base_ = spare()[pages].back();
            spare()[pages].pop_back();
            std::memset(data(), 0, pages * kPage);
            return;
        }
        base_ = static_cast<uint8_t*>(
            mmap(nullptr, total(pages), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        if (base_ == MAP_FAILED) throw std::bad_alloc();
        mprotect(base_, kPage, PROT_NONE);
        mprotect(base_ + kPage * (pages + 1), kPage, PROT_NONE);
    }
    ~GuardedPages() {
        if (pages_ < kKept)
            spare()[pages_].push_back(base_);
        else
            munmap(base_, total(pages_));
    }
    GuardedPages(const GuardedPages&) = delete;
    GuardedPages& operator=(const GuardedPages&) = delete;

    static constexpr size_t kPage = 4096;
    uint8_t* data() { return base_ + kPage; }
    uint8_t* end() { return data() + pages_ * kPage; }

 private:
    static constexpr size_t kKept = 64; // larger ones are rare
    using Spare = std::array<std::vector<uint8_t*>, kKept>;
    static size_t total(size_t pages) { return (pages + 2) * kPage; }
    static Spare& spare() {
        thread_local Spare pages;
        return pages;
    }
    size_t pages_;
    uint8_t* base_;
};

// `bytes` of memory between unreadable pages: it ends directly at one, or starts `misalign` bytes behind one.
class GuardedBytes {
 public:
    explicit GuardedBytes(size_t bytes, size_t misalign = 0, Edge edge = Edge::End)
        : pages_((bytes + misalign + GuardedPages::kPage - 1) / GuardedPages::kPage),
          data_(edge == Edge::End ? pages_.end() - bytes - misalign : pages_.data() + misalign),
          size_(bytes) {}

    uint8_t* data() { return data_; }
    const uint8_t* data() const { return data_; }
    size_t size() const { return size_; }
    void fill(uint8_t value) { std::memset(data_, value, size_); }

 private:
    GuardedPages pages_;
    uint8_t* data_;
    size_t size_;
};

// How an image lies in memory: bytes between rows, where the unreadable page is, and an odd start.
struct Lie {
    int padding = 0;
    Edge edge = Edge::End;
    int misalign = 0;
};

// An image whose last row ends (or whose first row starts) at an unreadable page. The bytes between rows
// carry a pattern; paddingIntact() tells whether they still do.
template <class T>
class GuardedImage {
 public:
    GuardedImage(int width, int height, int channels, Lie lie = {})
        : width_(width),
          height_(height),
          channels_(channels),
          step_(width * channels * int(sizeof(T)) + lie.padding),
          bytes_(size_t(step_) * size_t(height - 1) + size_t(rowBytes()), size_t(lie.misalign), lie.edge) {
        bytes_.fill(kPattern);
    }

    T* data() { return reinterpret_cast<T*>(bytes_.data()); }
    const T* data() const { return reinterpret_cast<const T*>(bytes_.data()); }
    int step() const { return step_; }
    int width() const { return width_; }
    int height() const { return height_; }
    int channels() const { return channels_; }
    TpxiSize size() const { return {width_, height_}; }

    T at(int x, int y, int c = 0) const {
        T v;
        std::memcpy(&v, address(x, y, c), sizeof v);
        return v;
    }
    void set(int x, int y, int c, T v) { std::memcpy(const_cast<uint8_t*>(address(x, y, c)), &v, sizeof v); }

    // Every sample from make(x, y, c).
    template <class Make>
    GuardedImage& fill(Make make) {
        for (int y = 0; y < height_; y++)
            for (int x = 0; x < width_; x++)
                for (int c = 0; c < channels_; c++) set(x, y, c, T(make(x, y, c)));
        return *this;
    }
    // Random bits, except that floats are finite and of moderate size.
    GuardedImage& randomise(unsigned seed) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<double> real(-1000, 1000);
        return fill([&](int, int, int) {
            if constexpr (std::is_floating_point_v<T>)
                return T(real(random));
            else
                return T(random());
        });
    }
    void copySamplesFrom(const GuardedImage& other) {
        fill([&](int x, int y, int c) { return other.at(x, y, c); });
    }

    bool paddingIntact() const {
        for (int y = 0; y + 1 < height_; y++)
            for (int i = rowBytes(); i < step_; i++)
                if (bytes_.data()[size_t(y) * size_t(step_) + size_t(i)] != kPattern) return false;
        return true;
    }

 private:
    static constexpr uint8_t kPattern = 0xA5;
    int rowBytes() const { return width_ * channels_ * int(sizeof(T)); }
    const uint8_t* address(int x, int y, int c) const {
        return bytes_.data() + ptrdiff_t(y) * step_ + (ptrdiff_t(x) * channels_ + c) * ptrdiff_t(sizeof(T));
    }

    int width_, height_, channels_, step_;
    GuardedBytes bytes_;
};

// Samples are compared as bits, so that NaN equals itself and the zeros differ.
template <class T>
bool sameBits(T a, T b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// Fails at the first sample of `image` that is not expected(x, y, c), and if a byte between rows changed.
template <class T, class Expected>
::testing::AssertionResult matches(const GuardedImage<T>& image, Expected expected) {
    for (int y = 0; y < image.height(); y++)
        for (int x = 0; x < image.width(); x++)
            for (int c = 0; c < image.channels(); c++) {
                const T want = T(expected(x, y, c)), got = image.at(x, y, c);
                if (!sameBits(want, got))
                    return ::testing::AssertionFailure()
                           << "at x " << x << ", y " << y << ", channel " << c << " of " << image.width()
                           << " x " << image.height() << ": got " << +got << ", expected " << +want;
            }
    if (!image.paddingIntact()) return ::testing::AssertionFailure() << "bytes between rows were written";
    return ::testing::AssertionSuccess();
}

} // namespace tpx::test
