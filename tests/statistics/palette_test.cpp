// SPDX-License-Identifier: Apache-2.0
// tpxiLUTPalette through the exported names.
#include <gtest/gtest.h>

#include <climits>
#include <memory>

#include "tests/support/checks.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;

// A function, its images seen as bytes.
struct Form {
    const char* name;
    int channels, tables, srcBytes, entryBytes;
    TpxStatus (*run)(const void* src, int srcStep, void* dst, int dstStep, TpxiSize, const void* const* tables,
                     int bits);
    bool alpha() const { return tables < channels; }
};

// tables is one pointer for C1 and an array for the others.
#define FORM(types, L, S, D, channels, tables, entryBytes, T, convert)                                       \
    {                                                                                                        \
#types "_" #L, channels, tables, sizeof(Tpx##S), entryBytes,                                               \
     [](const void* s, int ss, void* d, int ds, TpxiSize z, [[maybe_unused]] const void* const* t, int bits) { \
         return tpxiLUTPalette_##types##_##L##R(static_cast<const Tpx##S*>(s), ss, static_cast<Tpx##D*>(d), ds, \
                                                z, convert(t, Tpx##D), bits);                                   \
     } \
    }
#define ONE(t, D) t ? static_cast<const D*>(*t) : nullptr
#define ALL(t, D) reinterpret_cast<const D* const*>(t)
#define PACKED(types, S, D, bytes) FORM(types, C1, S, D, 1, 1, bytes, , ONE)
#define LAYOUTS(T, bytes)                                                                                 \
    PACKED(T, T, T, bytes), FORM(T, C3, T, T, 3, 3, bytes, , ALL), FORM(T, C4, T, T, 4, 4, bytes, , ALL), \
        FORM(T, AC4, T, T, 4, 3, bytes, , ALL)
const Form kForms[] = {LAYOUTS(8u, 1),
                       LAYOUTS(16u, 2),
                       PACKED(8u24u, 8u, 8u, 3),
                       PACKED(8u32u, 8u, 32u, 4),
                       PACKED(16u8u, 16u, 8u, 1),
                       PACKED(16u24u, 16u, 8u, 3),
                       PACKED(16u32u, 16u, 32u, 4)};

// Tables of exactly 2^bits entries between unreadable pages, at any address.
class Palettes {
 public:
    Palettes(const Form& form, int bits, size_t misalign, Edge edge) {
        std::mt19937 random{unsigned(bits)};
        for (int c = 0; c < form.tables; c++) {
            memory_[c] = std::make_unique<GuardedBytes>(size_t(form.entryBytes) << bits, misalign, edge);
            for (size_t i = 0; i < memory_[c]->size(); i++) memory_[c]->data()[i] = uint8_t(random());
            tables_[c] = memory_[c]->data();
        }
    }
    const void* const* tables() const { return tables_; }
    const uint8_t* entry(const Form& form, int c, unsigned index) const {
        return memory_[c]->data() + size_t(index) * size_t(form.entryBytes);
    }

 private:
    std::unique_ptr<GuardedBytes> memory_[4];
    const void* tables_[4] = {};
};

void checkImage(const Form& form, int width, int height, int bits, Lie srcLie, Lie dstLie) {
    const Palettes palettes(form, bits, size_t(width % 3), width % 2 ? Edge::End : Edge::Start);
    GuardedImage<uint8_t> src(width * form.srcBytes, height, form.channels, srcLie);
    GuardedImage<uint8_t> dst(width * form.entryBytes, height, form.channels, dstLie);
    src.randomise(unsigned(width * 17 + bits));
    const auto before = [](int x, int y, int c) { return uint8_t(5 * x + 3 * y + c); };
    dst.fill(before);
    const auto run = [&](const void* from, int step, GuardedImage<uint8_t>& to) {
        ASSERT_EQ(form.run(from, step, to.data(), to.step(), {width, height}, palettes.tables(), bits), tpxOk);
    };
    const auto expected = [&](const GuardedImage<uint8_t>& old, int x, int y, int c) {
        const int byte = x * form.channels + c, sample = byte / form.entryBytes,
                  channel = sample % form.channels;
        if (form.alpha() && channel == 3) return old.at(x, y, c);
        unsigned index = 0;
        for (int i = 0; i < form.srcBytes; i++) {
            const int at = sample * form.srcBytes + i;
            index |= unsigned(src.at(at / form.channels, y, at % form.channels)) << (8 * i);
        }
        return palettes.entry(form, channel, index % (1u << bits))[byte % form.entryBytes];
    };
    GuardedImage<uint8_t> old(width * form.entryBytes, height, form.channels);
    old.fill(before);
    run(src.data(), src.step(), dst);
    ASSERT_TRUE(matches(dst, [&](int x, int y, int c) { return expected(old, x, y, c); }))
        << form.name << ", " << bits << " bits";
    if (form.srcBytes != form.entryBytes) return;
    dst.copySamplesFrom(src);
    run(dst.data(), dst.step(), dst);
    ASSERT_TRUE(matches(dst, [&](int x, int y, int c) { return expected(src, x, y, c); }))
        << form.name << " onto itself";
}

TEST(Palette, StepsAndAddressesThatAreNotWholeSamples) {
    for (const Form& form : kForms)
        for (int width : {1, 2, 5, 16, 17, 33, 50})
            checkImage(form, width, 4, 5, Lie{3, Edge::End, 1}, Lie{5, Edge::Start, 3});
}

// Bits above the index are ignored; the last entry is reached and nothing behind it.
TEST(Palette, EveryBitCount) {
    for (const Form& form : kForms)
        for (int bits = 1; bits <= 8 * form.srcBytes; bits++)
            checkImage(form, 97, 40, bits, Lie{}, Lie{0, Edge::End, 0});
}

struct Call {
    bool src = true, dst = true, array = true;
    int missing = -1; // the channel without a table
    TpxiSize size = {2, 2};
    int bits = 4, srcShort = 0, dstShort = 0;
};

TEST(Palette, OrderOfChecks) {
    for (const Form& form : kForms) {
        std::vector<Fault<Call>> faults = {{"source", [](Call& c) { c.src = false; }, tpxErrNullPointer},
                                           {"destination", [](Call& c) { c.dst = false; }, tpxErrNullPointer},
                                           {"table", [](Call& c) { c.array = false; }, tpxErrNullPointer}};
        for (int i = 0; i < form.tables; i++)
            faults.push_back({"table", [=](Call& c) { c.missing = i; }, tpxErrNullPointer});
        faults.push_back({"size", [](Call& c) { c.size.width = 0; }, tpxErrSize});
        faults.push_back({"size", [](Call& c) { c.size.height = -5; }, tpxErrSize});
        for (int bits : {0, -1, 8 * form.srcBytes + 1, INT_MIN, INT_MAX})
            faults.push_back({"bits", [=](Call& c) { c.bits = bits; }, tpxErrOutOfRange});
        faults.push_back({"step", [](Call& c) { c.srcShort = 1; }, tpxErrStep});
        faults.push_back({"step", [](Call& c) { c.dstShort = 1; }, tpxErrStep});
        faults.push_back({"step", [](Call& c) { c.size.width = INT_MAX; }, tpxErrStep});
        expectCheckOrder(Call{}, faults, [&](const Call& call) {
            const Palettes palettes(form, 4, 0, Edge::End);
            const void* tables[4];
            for (int c = 0; c < 4; c++) tables[c] = c == call.missing ? nullptr : palettes.tables()[c];
            uint8_t src[64] = {}, dst[64] = {};
            const TpxStatus status =
                form.run(call.src ? src : nullptr, 2 * form.channels * form.srcBytes - call.srcShort,
                         call.dst ? dst : nullptr, 2 * form.channels * form.entryBytes - call.dstShort,
                         call.size, call.array ? tables : nullptr, call.bits);
            for (uint8_t byte : dst) EXPECT_EQ(byte, 0) << form.name << ", status " << status;
            return status;
        });
        // A row's bytes are enough for a step, the range of bits is whole.
        const Palettes palettes(form, 8 * form.srcBytes, 0, Edge::End);
        uint8_t src[64] = {}, dst[64] = {};
        EXPECT_EQ(form.run(src, 2 * form.channels * form.srcBytes, dst, 2 * form.channels * form.entryBytes,
                           {2, 2}, palettes.tables(), 8 * form.srcBytes),
                  tpxOk);
    }
}

} // namespace
