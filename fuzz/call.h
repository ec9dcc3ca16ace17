// SPDX-License-Identifier: Apache-2.0
// A call of any export with arguments by name, and the memory that it is handed: of exactly the size that was
// told or that the header says, between unreadable pages.
#pragma once

#include <sanitizer/asan_interface.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "fuzz/bytes.h"
#include "tests/exports/arguments.h"
#include "tests/support/guarded.h"

namespace tpx::fuzz {

using test::dataTypeOf;
using test::Export;
using test::findExport;
using test::Param;
using test::Value;

// What a target does with an input.
void run(Bytes& bytes);

// Ends the program if the library broke a promise.
void require(bool kept, const Export& e, const char* promise);
// Whether these bytes are the same samples. NaN is NaN: which of several comes out depends on their order.
bool sameSamples(const uint8_t* a, const uint8_t* b, size_t bytes, const std::string& type);

// The largest plan, and the largest image that is worked on.
constexpr size_t kMaxPlan = 4 << 20, kMaxImage = 1 << 20;

// Bytes to read: random bits, or samples of moderate size.
void fill(Bytes& bytes, uint8_t* to, size_t count, const std::string& type);

// Memory of exactly so many bytes, at any address.
class Block {
 public:
    Block(size_t size, size_t misalign) : memory_(size, misalign), after_(misalign) {
        // The page comes behind the misalignment. Before that, instrumented code may not go there either.
        ASAN_POISON_MEMORY_REGION(memory_.data() + size, after_);
        ASAN_POISON_MEMORY_REGION(memory_.data() - kBefore, kBefore);
    }
    Block(Bytes& bytes, size_t size) : Block(size, bytes.once(2) ? size_t(bytes.below(64)) : 0) {}
    ~Block() {
        ASAN_UNPOISON_MEMORY_REGION(memory_.data() + memory_.size(), after_);
        ASAN_UNPOISON_MEMORY_REGION(memory_.data() - kBefore, kBefore);
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    uint8_t* data() { return memory_.data(); }
    size_t size() const { return memory_.size(); }

 private:
    static constexpr size_t kBefore = 64;
    test::GuardedBytes memory_;
    size_t after_;
};

// The rows of an image and what lies between them, with a watch on what was there.
class Image {
 public:
    // Rows of so many bytes. Steps are whole samples, unless `anyStep`.
    Image(Bytes& bytes, ptrdiff_t rowBytes, ptrdiff_t rows, const std::string& type, bool anyStep = false);

    static bool fits(int64_t rowBytes, int64_t rows) {
        return rowBytes > 0 && rows > 0 && rowBytes <= int64_t(kMaxImage) &&
               (rowBytes + 2 * kMaxPadding) * rows <= int64_t(kMaxImage);
    }
    uint8_t* data() { return block_.data(); }
    ptrdiff_t step() const { return step_; }
    ptrdiff_t rowBytes() const { return rowBytes_; }
    ptrdiff_t rows() const { return rows_; }

    void watch() { before_.assign(block_.data(), block_.data() + block_.size()); }
    bool unchanged() { return std::memcmp(before_.data(), block_.data(), block_.size()) == 0; }
    bool paddingIntact();
    // After a call on all of the image.
    void requireKept(const Export& e, TpxStatus status) {
        require(status >= 0 || unchanged(), e, "a refused call writes nothing");
        require(paddingIntact(), e, "bytes between rows stay");
    }

 private:
    static constexpr ptrdiff_t kMaxPadding = 64;
    ptrdiff_t rowBytes_, rows_, step_;
    Block block_;
    std::vector<uint8_t> before_;
};

class Arguments : public test::NamedArguments<Arguments> {
 public:
    using NamedArguments::NamedArguments;

    // Calls it; the floating-point control has to be the same afterwards.
    TpxStatus operator()();
};

// Prints the call before it happens, if the environment has TPX_FUZZ_SHOW.
void show(const Export& e, Value* values);

inline size_t sampleBytes(const std::string& type) { return test::sizeOf("Tpx" + type); }

} // namespace tpx::fuzz
