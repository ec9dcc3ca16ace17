// SPDX-License-Identifier: Apache-2.0
// The sizes of the processor's caches: as the processor tells them, and as the operating system does.
#pragma once

#include <fcntl.h>
#include <stdint.h>
#include <unistd.h>

namespace tpxcore {

// In bytes; 0 is unknown.
struct Caches {
    int64_t largest = 0;
    int64_t line = 0;

    // Caches are offered from the innermost outwards. The line is that of the innermost that tells one.
    void add(int64_t size, int64_t lineSize) {
        if (size > largest) largest = size;
        if (line == 0) line = lineSize;
    }
};

struct CpuidRegisters {
    uint32_t eax, ebx, ecx, edx;
};

// Asks by what the leaves hold, not by the vendor's name, so that a vendor unheard of is served as well.
// cpuid(leaf, subleaf) returns CpuidRegisters.
template <class Cpuid>
Caches cachesOfProcessor(Cpuid cpuid) {
    const auto bits = [](uint32_t word, int low, int count) -> int64_t {
        return (word >> low) & ((1u << count) - 1);
    };
    const uint32_t lastBasic = cpuid(0u, 0u).eax;
    const uint32_t lastExtended = cpuid(0x80000000u, 0u).eax;
    Caches caches;

    // Both leaves of cache descriptors have one format: a subleaf for each cache, closed by one of type 0.
    const auto addDescriptors = [&](uint32_t leaf) {
        constexpr uint32_t kMostCaches = 16; // a hypervisor may forget the closing one
        constexpr int64_t kClosing = 0, kInstructions = 2;
        for (uint32_t i = 0; i < kMostCaches; ++i) {
            const CpuidRegisters r = cpuid(leaf, i);
            const int64_t type = bits(r.eax, 0, 5);
            if (type == kClosing) break;
            if (type == kInstructions) continue;
            const int64_t line = bits(r.ebx, 0, 12) + 1;
            const int64_t partitions = bits(r.ebx, 12, 10) + 1;
            const int64_t ways = bits(r.ebx, 22, 10) + 1;
            const int64_t sets = int64_t{r.ecx} + 1;
            caches.add(line * partitions * ways * sets, line);
        }
    };
    if (lastBasic >= 4) addDescriptors(4);
    if (caches.largest > 0) return caches;

    constexpr int kTopologyExtensions = 22;
    if (lastExtended >= 0x8000001D && lastExtended < 0x80010000 &&
        bits(cpuid(0x80000001u, 0u).ecx, kTopologyExtensions, 1)) {
        addDescriptors(0x8000001D);
    }
    if (caches.largest > 0) return caches;

    // The older leaves tell the first two levels in KiB and the third in units of 512 KiB.
    if (lastExtended >= 0x80000006 && lastExtended < 0x80010000) {
        const CpuidRegisters first = cpuid(0x80000005u, 0u);
        const CpuidRegisters outer = cpuid(0x80000006u, 0u);
        caches.add(bits(first.ecx, 24, 8) << 10, bits(first.ecx, 0, 8));
        caches.add(bits(outer.ecx, 16, 16) << 10, bits(outer.ecx, 0, 8));
        caches.add(bits(outer.edx, 18, 14) << 19, bits(outer.edx, 0, 8));
    }
    return caches;
}

// The first number of a small text file, with a suffix K, M or G; 0 if there is none.
inline int64_t numberInFile(int directory, const char* name) {
    char text[32];
    const int file = openat(directory, name, O_RDONLY | O_CLOEXEC);
    if (file < 0) return 0;
    const ssize_t length = read(file, text, sizeof text - 1);
    close(file);
    text[length > 0 ? length : 0] = 0;

    int64_t number = 0;
    const char* p = text;
    for (; *p >= '0' && *p <= '9' && number < int64_t{1} << 40; ++p) number = number * 10 + (*p - '0');
    return *p == 'K' ? number << 10 : *p == 'M' ? number << 20 : *p == 'G' ? number << 30 : number;
}

// `root` holds a directory index0, index1, ... for each cache of a processor.
inline Caches cachesOfSystem(const char* root) {
    Caches caches;
    const int rootDirectory = open(root, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (rootDirectory < 0) return caches;
    char name[] = "index0";
    for (; name[5] <= '9'; ++name[5]) {
        const int directory = openat(rootDirectory, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (directory < 0) break;
        char type = 0;
        const int file = openat(directory, "type", O_RDONLY | O_CLOEXEC);
        const bool known = file >= 0 && read(file, &type, 1) == 1;
        if (file >= 0) close(file);
        if (known && type != 'I') { // "Instruction"
            caches.add(numberInFile(directory, "size"), numberInFile(directory, "coherency_line_size"));
        }
        close(directory);
    }
    close(rootDirectory);
    return caches;
}

} // namespace tpxcore
