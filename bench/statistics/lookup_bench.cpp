// SPDX-License-Identifier: Apache-2.0
// Lookup tables and palettes.
#include "../families.h"
#include "../frame/pointwise.h"
#include "models/models.h"

#include <algorithm>
#include <limits>

namespace bench {
namespace {

constexpr const char* kGroup = "Lookup tables";

// ---- Between levels --------------------------------------------------------------------------------------

// The spec of a function whose channels are alike, in memory that does not move.
template <typename L, typename Init>
std::shared_ptr<std::vector<Tpx8u>> makeSpec(Init init, TpxDataType type, TpxInterpolationType interpolation,
                                             int channels, const std::vector<L>& levels,
                                             const std::vector<L>& values) {
    const L *allLevels[4], *allValues[4];
    int counts[4], size = 0;
    std::fill_n(allLevels, 4, levels.data());
    std::fill_n(allValues, 4, values.data());
    std::fill_n(counts, 4, static_cast<int>(levels.size()));
    check(tpxiLUT_GetSize(interpolation, type, channels, {1, 1}, counts, &size));
    const auto memory = std::make_shared<std::vector<Tpx8u>>(size);
    check(init(interpolation, channels, {1, 1}, allValues, allLevels, counts,
               reinterpret_cast<TpxiLUT_Spec*>(memory->data())));
    return memory;
}
const TpxiLUT_Spec* specIn(const std::shared_ptr<std::vector<Tpx8u>>& memory) {
    return reinterpret_cast<const TpxiLUT_Spec*>(memory->data());
}

// Nearest, with steps through the whole of the type: the scalar form takes its table from them.
template <typename T, typename Init, typename Ours>
void addIntegers(const char* function, int channels, TpxDataType type, Init init, Ours ours, Sizes which) {
    using Limits = std::numeric_limits<T>;
    constexpr int kStep = (Limits::max() - Limits::min() + 1) / 64;
    std::vector<Tpx32s> levels, values;
    for (int k = 0; k <= 64; ++k) {
        levels.push_back(Limits::min() + k * kStep);
        values.push_back(Limits::min() + (k * 37 & 63) * kStep);
    }
    std::vector<T> table(Limits::max() - Limits::min() + 1);
    for (int x = Limits::min(); x <= Limits::max(); ++x)
        table[static_cast<std::make_unsigned_t<T>>(x)] = static_cast<T>(values[(x - Limits::min()) / kStep]);
    const std::vector<std::vector<T>> tables(channels, table);
    const auto spec = makeSpec(init, type, tpxInterpolationNearest, channels, levels, values);
    addPointwise<T>(
        {.group = kGroup,
         .function = function,
         .channels = channels,
         .low = Limits::min(),
         .high = Limits::max(),
         .sizes = which},
        [=](const T* src, int srcStep, T* dst, int dstStep, TpxiSize size) {
            return ours(src, srcStep, dst, dstStep, size, specIn(spec));
        },
        [=](const T* src, T* dst, size_t length) {
            tpx::model::lookup(src, dst, length, channels, tables.data());
        },
        {}, {Operand(tables[0], static_cast<int>(table.size()))});
}

// Levels at uneven distances; some samples lie beyond them.
template <typename Ours>
void addFloats(const char* function, int channels, int count, bool linear, Ours ours, Sizes which) {
    std::vector<Tpx32f> levels, values;
    for (int k = 0; k < count; ++k) {
        levels.push_back(static_cast<Tpx32f>(k * (k + count)) / static_cast<Tpx32f>(2 * count * count));
        values.push_back(static_cast<Tpx32f>(k * 37 % 64));
    }
    const auto spec =
        makeSpec(tpxiLUT_Init_32f, tpxDataType32f, linear ? tpxInterpolationLinear : tpxInterpolationNearest,
                 channels, levels, values);
    addPointwise<Tpx32f>(
        {.group = kGroup, .function = function, .channels = channels, .sizes = which},
        [=](const Tpx32f* src, int srcStep, Tpx32f* dst, int dstStep, TpxiSize size) {
            return ours(src, srcStep, dst, dstStep, size, specIn(spec));
        },
        [=](const Tpx32f* src, Tpx32f* dst, size_t length) {
            tpx::model::lookupBetween(src, dst, length, linear, levels, values);
        });
}

// ---- Palettes --------------------------------------------------------------------------------------------

template <typename T>
const std::vector<T>& palette() {
    static const std::vector<T> entries = [] {
        std::vector<T> made(size_t{1} << 16);
        for (size_t i = 0; i < made.size(); ++i) made[i] = static_cast<T>(i * 2654435761u >> 7);
        return made;
    }();
    return entries;
}

// To a destination with pixels of entryBytes. The copy moves half of what both images have.
template <int entryBytes, typename S, typename D, typename Ours>
void addPacked(const char* function, Ours ours) {
    for (const TpxiSize size : sizes(Sizes::middle, sizeof(S) + entryBytes)) {
        const double samples = static_cast<double>(size.width) * size.height;
        addJob({kGroup, function, text(size), samples, samples * (sizeof(S) + entryBytes)}, [=] {
            constexpr int kBits = 8 * sizeof(S);
            const auto src = std::make_shared<Image<S>>(size, 1, 0, (1 << kBits) - 1);
            const auto dst = std::make_shared<Image<Tpx8u>>(size, entryBytes);
            const TpxiSize half = {size.width * static_cast<int>(sizeof(S) + entryBytes) / 2, size.height};
            const auto from = std::make_shared<Image<Tpx8u>>(half, 1),
                       to = std::make_shared<Image<Tpx8u>>(half, 1);
            const Tpx8u* table = palette<Tpx8u>().data();
            static_assert(entryBytes << 8 <= 1 << 16 && (kBits == 8 || entryBytes == 1));
            const auto runOurs = [=](const Image<Tpx8u>& image) {
                return ours(src->data(), src->step(), reinterpret_cast<D*>(image.data()), image.step(), size,
                            reinterpret_cast<const D*>(table), kBits);
            };
            const auto runScalar = [=] {
                for (int y = 0; y < size.height; ++y)
                    tpx::model::lookupPacked<entryBytes>(src->row(y), dst->row(y), size.width, table);
            };
            const Image<Tpx8u> got(size, entryBytes);
            check(runOurs(got));
            runScalar();
            checkSame(got, *dst, 0);
            return std::vector<Contender>{
                {kOurs, [=] { runOurs(*dst); }}, {kCopy, [=] { copyImage(*from, *to); }}, {kScalar, runScalar}};
        });
    }
}

template <typename T, typename Ours>
void addPalette(const char* function, int channels, Ours ours) {
    constexpr int kBits = 8 * sizeof(T);
    addPointwise<T>(
        {.group = kGroup, .function = function, .channels = channels, .high = (1 << kBits) - 1},
        [=](const T* src, int srcStep, T* dst, int dstStep, TpxiSize size) {
            const T* table = palette<T>().data();
            const T* const tables[] = {table, table, table, table};
            return ours(src, srcStep, dst, dstStep, size, tables, kBits);
        },
        [=](const T* src, T* dst, size_t length) {
            static const std::vector<std::vector<T>> tables(4, palette<T>());
            tpx::model::lookup(src, dst, length, channels, tables.data());
        });
}

} // namespace

#define INTEGERS(T, L, channels, sizes)                                                       \
    addIntegers<Tpx##T>("tpxiLUT_" #T "_" #L "R", channels, tpxDataType##T, tpxiLUT_Init_##T, \
                        tpxiLUT_##T##_##L##R, Sizes::sizes);
#define FLOATS(L, channels, count, kind, sizes)                                  \
    addFloats("tpxiLUT_32f_" #L "R, " #count " levels, " #kind, channels, count, \
              std::string(#kind) == "linear", tpxiLUT_32f_##L##R, Sizes::sizes);
#define PALETTE(T, L, channels) \
    addPalette<Tpx##T>("tpxiLUTPalette_" #T "_" #L "R", channels, tpxiLUTPalette_##T##_##L##R);
#define PACKED(types, S, D, bytes) \
    addPacked<bytes, Tpx##S, Tpx##D>("tpxiLUTPalette_" #types "_C1R", tpxiLUTPalette_##types##_C1R);

void addLookups() {
    INTEGERS(8u, C1, 1, all)
    INTEGERS(8u, C3, 3, middle)
    INTEGERS(16u, C1, 1, withinCache)
    INTEGERS(16s, C1, 1, withinCache)
    INTEGERS(16s, C3, 3, middle)
    FLOATS(C1, 1, 5, nearest, withinCache)
    FLOATS(C1, 1, 5, linear, withinCache)
    FLOATS(C1, 1, 64, nearest, middle)
    FLOATS(C1, 1, 64, linear, middle)
    FLOATS(C3, 3, 5, linear, middle)
    PALETTE(8u, C4, 4)
    PALETTE(16u, C3, 3)
    PACKED(8u24u, 8u, 8u, 3)
    PACKED(8u32u, 8u, 32u, 4)
    PACKED(16u8u, 16u, 8u, 1)
}

} // namespace bench
