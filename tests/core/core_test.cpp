// SPDX-License-Identifier: Apache-2.0
// libtpxcore: memory, and the sizes of caches.
#include <errno.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <string.h>
#include <x86intrin.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/caches.h"
#include "tpxcore.h"

// The address sanitizer ends the program at an absurd length unless it is told to return null.
extern "C" [[gnu::weak, gnu::used]] const char* __asan_default_options() {
    return "allocator_may_return_null=1";
}

namespace {

using tpxcore::Caches;
using tpxcore::cachesOfProcessor;
using tpxcore::cachesOfSystem;
using tpxcore::CpuidRegisters;

TEST(CoreMemory, IsAlignedAndWholeAtEveryLength) {
    std::vector<std::pair<unsigned char*, size_t>> blocks;
    for (const int length : {1, 2, 63, 64, 65, 127, 1000, 4095, 4096, 4097, 1 << 20, (64 << 20) + 1}) {
        for (void* p : {tpxMalloc(length), tpxMalloc_L(length)}) {
            ASSERT_NE(p, nullptr) << length;
            EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u) << length;
            memset(p, static_cast<int>(blocks.size()), static_cast<size_t>(length));
            blocks.emplace_back(static_cast<unsigned char*>(p), length);
        }
    }
    // Had two blocks met, the later fill would show in the earlier one.
    for (size_t i = 0; i < blocks.size(); ++i) {
        const auto [p, length] = blocks[i];
        EXPECT_TRUE(p[0] == i && p[length - 1] == i) << length;
        tpxFree(p);
    }
}

TEST(CoreMemory, RefusesLengthsThatCannotBeHad) {
    errno = 0;
    for (const int length : {0, -1, -64, INT_MIN}) EXPECT_EQ(tpxMalloc(length), nullptr) << length;
    // Lengths that a rounding to 64, a header or a narrowing to 32 bits would turn into small ones.
    for (const TpxSizeL length :
         {TpxSizeL{0}, TpxSizeL{-1}, TpxSizeL{INT64_MIN}, -(TpxSizeL{1} << 32) + 64, TpxSizeL{INT64_MAX},
          TpxSizeL{INT64_MAX} - 63, TpxSizeL{INT64_MAX} - 64, (TpxSizeL{1} << 62) + 1, TpxSizeL{1} << 56}) {
        EXPECT_EQ(tpxMalloc_L(length), nullptr) << length;
    }
    EXPECT_EQ(errno, 0);
    tpxFree(nullptr);
}

TEST(CoreCaches, AgreeWithTheOperatingSystem) {
    int largest = -5, line = -5;
    ASSERT_EQ(tpxGetMaxCacheSizeB(&largest), tpxOk);
    ASSERT_EQ(tpx_get_cache_line_size(&line), tpxOk);
    EXPECT_GE(largest, 16 << 10);
    EXPECT_TRUE(line == 32 || line == 64 || line == 128) << line;

    const Caches told = cachesOfSystem("/sys/devices/system/cpu/cpu0/cache");
    if (told.largest > 0) {
        EXPECT_EQ(largest, told.largest);
    }
    if (told.line > 0) {
        EXPECT_EQ(line, told.line);
    }

    EXPECT_EQ(tpxGetMaxCacheSizeB(nullptr), tpxErrNullPointer);
    EXPECT_EQ(tpx_get_cache_line_size(nullptr), tpxErrNullPointer);
}

// Best of many, of which a busy machine leaves some alone.
template <class Call>
uint64_t cyclesOf(Call call) {
    uint64_t best = ~uint64_t(0);
    for (int i = 0; i < 2000; ++i) {
        const uint64_t start = __rdtsc();
        call();
        best = std::min<uint64_t>(best, __rdtsc() - start);
    }
    return best;
}

TEST(CoreCaches, AnswerWithoutAskingTheProcessorAgain) {
    int size = 0;
    tpxGetMaxCacheSizeB(&size);
    // A walk of the leaves asks a dozen times.
    const uint64_t asking = cyclesOf([] {
        unsigned a = 0, b, c = 0, d;
        asm volatile("cpuid" : "+a"(a), "=b"(b), "+c"(c), "=d"(d)); // what cpuid.h has may be left out
    });
    EXPECT_LT(cyclesOf([&] { tpxGetMaxCacheSizeB(&size); }), asking);
}

// Leaves as processors give them.
struct Processor {
    std::map<std::pair<uint32_t, uint32_t>, CpuidRegisters> leaves;
    CpuidRegisters operator()(uint32_t leaf, uint32_t subleaf) const {
        const auto found = leaves.find({leaf, subleaf});
        return found == leaves.end() ? CpuidRegisters{} : found->second;
    }
};

void expectCaches(const Caches& caches, int64_t largest, int64_t line) {
    EXPECT_EQ(caches.largest, largest);
    EXPECT_EQ(caches.line, line);
}

TEST(CoreCaches, AreReadFromTheLeavesOfEveryVendor) {
    // 32 KiB, 32 KiB, 256 KiB, 8 MiB in leaf 4. Leaf 0x80000006 tells the second level only.
    expectCaches(cachesOfProcessor(Processor{{{{0, 0}, {0xD, 0, 0, 0}},
                                              {{0x80000000, 0}, {0x80000008, 0, 0, 0}},
                                              {{4, 0}, {0x1C004121, 0x01C0003F, 0x0000003F, 0}},
                                              {{4, 1}, {0x1C004122, 0x01C0003F, 0x0000003F, 0}},
                                              {{4, 2}, {0x1C004143, 0x01C0003F, 0x000001FF, 0}},
                                              {{4, 3}, {0x1C03C163, 0x03C0003F, 0x00001FFF, 6}},
                                              {{0x80000006, 0}, {0, 0, 0x01006040, 0}}}}),
                 8 << 20, 64);

    // Leaf 4 is empty: 32 KiB, 32 KiB, 512 KiB, 16 MiB in leaf 0x8000001D. The older leaves count the third
    // levels of all groups of cores together, 32 MiB, and serve where the extension is missing.
    Processor extended{{{{0, 0}, {0x10, 0, 0, 0}},
                        {{0x80000000, 0}, {0x80000020, 0, 0, 0}},
                        {{0x80000001, 0}, {0, 0, 1u << 22, 0}},
                        {{0x80000005, 0}, {0xFF40FF40, 0xFF40FF40, 0x20080140, 0x20080140}},
                        {{0x80000006, 0}, {0x48006400, 0x68006400, 0x02006140, 0x01009140}},
                        {{0x8000001D, 0}, {0x00004121, 0x01C0003F, 0x0000003F, 0}},
                        {{0x8000001D, 1}, {0x00004122, 0x01C0003F, 0x0000003F, 0}},
                        {{0x8000001D, 2}, {0x00004143, 0x01C0003F, 0x000003FF, 2}},
                        {{0x8000001D, 3}, {0x0001C163, 0x03C0003F, 0x00003FFF, 1}}}};
    expectCaches(cachesOfProcessor(extended), 16 << 20, 64);
    extended.leaves[{0x80000001, 0}].ecx = 0;
    expectCaches(cachesOfProcessor(extended), 32 << 20, 64);
    extended.leaves[{0x80000006, 0}].edx = 0;
    expectCaches(cachesOfProcessor(extended), 512 << 10, 64);

    // Leaves above the last one told are never believed.
    extended.leaves[{0x80000000, 0}].eax = 0x80000004;
    expectCaches(cachesOfProcessor(extended), 0, 0);

    // An instruction cache does not count, and a list without its closing entry ends.
    expectCaches(cachesOfProcessor([](uint32_t leaf, uint32_t subleaf) -> CpuidRegisters {
                     if (leaf == 0) return {4, 0, 0, 0};
                     if (leaf != 4) return {};
                     return subleaf == 0 ? CpuidRegisters{0x22, 0xFFFFF07F, 0xFFFF, 0}
                                         : CpuidRegisters{0x21, 0x3F, 63, 0};
                 }),
                 4096, 64);
}

TEST(CoreCaches, AreReadFromTheSystemsFiles) {
    const std::filesystem::path root = testing::TempDir() + "tpxcore-caches";
    std::filesystem::remove_all(root);
    expectCaches(cachesOfSystem(root.c_str()), 0, 0);

    const auto add = [&](const char* index, const char* type, const char* size, const char* line) {
        std::filesystem::create_directories(root / index);
        std::ofstream(root / index / "type") << type << "\n";
        std::ofstream(root / index / "size") << size << "\n";
        std::ofstream(root / index / "coherency_line_size") << line << "\n";
    };
    add("index0", "Instruction", "900M", "256");
    add("index1", "Data", "48K", "64");
    add("index2", "Unified", "1280K", "128");
    expectCaches(cachesOfSystem(root.c_str()), 1280 << 10, 64);
    add("index3", "Unified", "30M", "128");
    expectCaches(cachesOfSystem(root.c_str()), 30 << 20, 64);
    std::filesystem::remove(root / "index3" / "size");
    expectCaches(cachesOfSystem(root.c_str()), 1280 << 10, 64);
    std::filesystem::remove_all(root);
}

} // namespace
