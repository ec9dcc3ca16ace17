// SPDX-License-Identifier: Apache-2.0
// Copy, set and zero: the vector kernels, the string instructions, and the switches between them.
//
// The library's own memcpy, memmove and memset stand on the kernels, so none of these may be compiled into a
// call of them. The copies are safe since no loop of theirs is a plain copy of adjacent pieces; the fill hides
// from the compiler what it stores.
#include "frame/runs/memory_runs.h"

#include "frame/runs/routines.h"
#include "frame/runs/streaming.h"

namespace tpx {
namespace {

using Block = Vec<Tpx32f>; // the widest register; its moves keep every bit
constexpr int64_t kBlock = sizeof(Block);

constexpr int64_t kCopySwitch = 0x8000;       // from here on copies use string moves
constexpr int64_t kZeroSwitch = 0x8000;       // up to here zeroing uses vector stores
constexpr int64_t kLongestPiece = 0x7FFFFFE0; // of a copy of samples wider than a byte
constexpr int64_t kLongestRun = 0x7FFFFFFF;

inline Block loadBlock(const char* p) {
    Block b;
    __builtin_memcpy(&b, p, sizeof b);
    return b;
}

inline void storeBlock(char* p, Block b) { __builtin_memcpy(p, &b, sizeof b); }

// N adjacent blocks, moved together.
template <int N>
struct Blocks {
    Block at[N];
    explicit Blocks(const char* p) {
        for (int i = 0; i < N; i++) at[i] = loadBlock(p + i * kBlock);
    }
    void storeTo(char* p) const {
        for (int i = 0; i < N; i++) storeBlock(p + i * kBlock, at[i]);
    }
};

// The ends of the row, N blocks of either side, are held in registers while the middle is copied.
template <int N>
inline void copyEnds(char* d, const char* s, int64_t bytes) {
    const Blocks<N> first(s), last(s + bytes - N * kBlock);
    first.storeTo(d);
    last.storeTo(d + bytes - N * kBlock);
}

constexpr int64_t kIteration = 4 * kBlock;

template <bool Backward>
inline void copyBlocks(char* d, const char* s, int64_t bytes) {
    if (bytes < kBlock) return copyShort(d, s, bytes);
    if (bytes <= 2 * kBlock) return copyEnds<1>(d, s, bytes);
    if (bytes <= kIteration) return copyEnds<2>(d, s, bytes);
    // Iterations store on the boundaries of registers. What they leave is less than one.
    const auto address = reinterpret_cast<uintptr_t>(d);
    if constexpr (Backward) {
        const Blocks<4> first(s);
        const Block last = loadBlock(s + bytes - kBlock);
        for (int64_t i = bytes - ((address + uintptr_t(bytes)) & (kBlock - 1)) - kIteration; i > 0;
             i -= kIteration)
            Blocks<4>(s + i).storeTo(d + i);
        storeBlock(d + bytes - kBlock, last);
        first.storeTo(d);
    } else {
        const Block first = loadBlock(s);
        const Blocks<4> last(s + bytes - kIteration);
        for (int64_t i = -address & (kBlock - 1); i < bytes - kIteration; i += kIteration)
            Blocks<4>(s + i).storeTo(d + i);
        last.storeTo(d + bytes - kIteration);
        storeBlock(d, first);
    }
}

} // namespace

void copyRow(void* dst, const void* src, int64_t bytes) {
    copyBlocks<false>(static_cast<char*>(dst), static_cast<const char*>(src), bytes);
}

void copyRowBackward(void* dst, const void* src, int64_t bytes) {
    copyBlocks<true>(static_cast<char*>(dst), static_cast<const char*>(src), bytes);
}

void copyRowStreaming(void* dst, const void* src, int64_t bytes) {
    if (bytes < 2 * kLineBytes) return copyRow(dst, src, bytes);
    mapRunStreaming(static_cast<const Tpx8u*>(src), static_cast<Tpx8u*>(dst), bytes, [](V8u x) { return x; });
}

// A pattern seen from any byte of a row.
struct PhasedPattern {
    const Pattern& pattern;

    const Tpx8u* bytesAt(int64_t i) const { return pattern.bytes + uint64_t(i) % Pattern::kPeriod; }
    Block at(int64_t i) const {
        Block b = loadBlock(reinterpret_cast<const char*>(bytesAt(i)));
        asm("" : "+x"(b)); // a compiler that knew it to be zero would call memset
        return b;
    }
};

// Three blocks, and so three lines, are a whole number of periods: an iteration stores the same three
// registers.
static_assert(3 * kBlock % Pattern::kPeriod == 0);

void fillRow(void* dst, int64_t bytes, const Pattern& pattern) {
    auto d = static_cast<char*>(dst);
    if (bytes < kBlock) return copyShort(d, pattern.bytes, bytes);
    const PhasedPattern p{pattern};
    int64_t i = -reinterpret_cast<uintptr_t>(d) & (kBlock - 1);
    storeBlock(d, p.at(0));
    if (bytes > 2 * kBlock) {
        const Block a = p.at(i), b = p.at(i + kBlock), c = p.at(i + 2 * kBlock);
        const auto period = [&] {
            storeBlock(d + i, a);
            storeBlock(d + i + kBlock, b);
            storeBlock(d + i + 2 * kBlock, c);
            i += 3 * kBlock;
        };
        while (i + 6 * kBlock <= bytes) {
            period();
            period();
        }
        if (i + 3 * kBlock <= bytes) period();
        if (i + kBlock <= bytes) storeBlock(d + i, a);
        if (i + 2 * kBlock <= bytes) storeBlock(d + i + kBlock, b);
    }
    storeBlock(d + bytes - kBlock, p.at(bytes - kBlock));
}

void fillRowStreaming(void* dst, int64_t bytes, const Pattern& pattern) {
    auto d = static_cast<char*>(dst);
    if (bytes < 2 * kLineBytes) return fillRow(d, bytes, pattern);
    const PhasedPattern p{pattern};
    int64_t i = bytesToLine(d);
    fillRow(d, i, pattern);
    const Block a = p.at(i), b = p.at(i + kBlock), c = p.at(i + 2 * kBlock);
    const auto line = [&](Block x, Block y) {
        streamStore(reinterpret_cast<float*>(d + i), x);
        streamStore(reinterpret_cast<float*>(d + i + kBlock), y);
        i += kLineBytes;
    };
    while (i + 3 * kLineBytes <= bytes) {
        line(a, b);
        line(c, a);
        line(b, c);
    }
    if (i + kLineBytes <= bytes) line(a, b);
    if (i + kLineBytes <= bytes) line(c, a);
    if (i + kBlock <= bytes) {
        storeBlock(d + i, p.at(i));
        i += kBlock;
    }
    copyShort(d + i, p.bytesAt(i), bytes - i);
}

namespace {

// ---- String instructions --------------------------------------------------------------------------------

// Runs string instructions upwards, and leaves the direction flag as the caller had it.
template <class Body>
inline void upwards(Body body) {
    constexpr uint64_t kDirectionFlag = 0x400;
    const bool downwards = __builtin_ia32_readeflags_u64() & kDirectionFlag;
    if (downwards) asm volatile("cld" ::: "cc", "memory");
    body();
    if (downwards) asm volatile("std" ::: "cc", "memory");
}

// Moves in the widest unit by which the two addresses are apart. The bytes before the destination's first
// whole unit, and those after the last, go singly.
void copyRowByString(char* d, const char* s, int64_t bytes) {
    const auto apart = (reinterpret_cast<uintptr_t>(d) - reinterpret_cast<uintptr_t>(s)) & 7;
    const int64_t unit = apart == 0 ? 8 : apart == 4 ? 4 : (apart & 1) == 0 ? 2 : 1;
    const int64_t leading = -reinterpret_cast<uintptr_t>(d) & uintptr_t(unit - 1);
    const int64_t trailing = (bytes - leading) & (unit - 1);
    int64_t count = (bytes - leading) / unit;
    upwards([&] {
        copyShort(d, s, leading);
        d += leading;
        s += leading;
        switch (unit) {
            case 8:
                asm volatile("rep movsq" : "+D"(d), "+S"(s), "+c"(count) : : "memory");
                break;
            case 4:
                asm volatile("rep movsl" : "+D"(d), "+S"(s), "+c"(count) : : "memory");
                break;
            case 2:
                asm volatile("rep movsw" : "+D"(d), "+S"(s), "+c"(count) : : "memory");
                break;
            default:
                asm volatile("rep movsb" : "+D"(d), "+S"(s), "+c"(count) : : "memory");
        }
        copyShort(d, s, trailing);
    });
}

void zeroRowByString(void* d, int64_t bytes) {
    upwards([&] { asm volatile("rep stosb" : "+D"(d), "+c"(bytes) : "a"(0) : "memory"); });
}

// ---- The switches ---------------------------------------------------------------------------------------

constexpr Pattern kZeros{};

void zeroRow(void* dst, int64_t bytes) { fillRow(dst, bytes, kZeros); }

// Fills with one sample. What exceeds the caches streams, if the sample's width allows it.
template <class T, bool MayStream = true>
inline void setRow(const T& val, void* dst, int64_t len) {
    const int64_t bytes = len * int64_t(sizeof(T));
    const Pattern pattern = makePattern(&val, sizeof(T));
    if (!MayStream || !goesPastCaches(kStreamRunFill, uint64_t(bytes))) return fillRow(dst, bytes, pattern);
    fillRowStreaming(dst, bytes, pattern);
    streamFence();
}

template <class T>
inline TpxStatus checkRun(const T* pDst, int len) {
    return anyNull(pDst) ? tpxErrNullPointer : len < 1 ? tpxErrSize : tpxOk;
}

} // namespace

void ownsCopy_8u(const Tpx8u* pSrc, Tpx8u* pDst, int64_t len) {
    if (len < kCopySwitch)
        copyRow(pDst, pSrc, len);
    else
        copyRowByString(reinterpret_cast<char*>(pDst), reinterpret_cast<const char*>(pSrc), len);
}

void ownsSet_8u(Tpx8u val, Tpx8u* pDst, int64_t len) { setRow(val, pDst, len); }
void ownsSet_16u(Tpx16u val, Tpx16u* pDst, int64_t len) { setRow(val, pDst, len); }
void ownsSet_32s(Tpx32s val, Tpx32s* pDst, int64_t len) {
    if (reinterpret_cast<uintptr_t>(pDst) % sizeof val == 0)
        setRow(val, pDst, len);
    else
        setRow<Tpx32s, false>(val, pDst, len);
}
void ownsSet_64s(Tpx64s val, Tpx64s* pDst, int64_t len) { setRow<Tpx64s, false>(val, pDst, len); }

void ownsZero_8u(Tpx8u* pDst, int64_t len) {
    if (len > kZeroSwitch)
        zeroRowByString(pDst, len);
    else
        zeroRow(pDst, len);
}

namespace {

// Copies of wider samples are copies of bytes, whose count is kept within the length of one run.
template <class T>
inline TpxStatus copySamples(const T* pSrc, T* pDst, int64_t len) {
    constexpr int64_t kSample = sizeof(T);
    auto src = reinterpret_cast<const Tpx8u*>(pSrc);
    auto dst = reinterpret_cast<Tpx8u*>(pDst);
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (len < 1) return tpxErrSize;
    for (; len > kLongestRun / kSample; len -= kLongestPiece / kSample) {
        TPXS(Copy_8u)(src, dst, kLongestPiece);
        src += kLongestPiece;
        dst += kLongestPiece;
    }
    return TPXS(Copy_8u)(src, dst, static_cast<int>(len * kSample));
}

template <class T>
inline TpxStatus zeroSamples(T* pDst, int len) {
    if (const TpxStatus status = checkRun(pDst, len); status != tpxOk) return status;
    const int64_t bytes = len * int64_t(sizeof(T));
    if (bytes > (sizeof(T) == 1 ? kZeroSwitch : int64_t(kStreamRunFill.floor)))
        ownsZero_8u(reinterpret_cast<Tpx8u*>(pDst), bytes);
    else
        zeroRow(pDst, bytes);
    return tpxOk;
}

// Fills by the worker of an integer as wide as the sample.
template <class Bits, class T>
inline TpxStatus setSamples(void (*worker)(Bits, Bits*, int64_t), T val, T* pDst, int len) {
    static_assert(sizeof(Bits) == sizeof(T));
    if (const TpxStatus status = checkRun(pDst, len); status != tpxOk) return status;
    worker(bitsAs<Bits>(val), reinterpret_cast<Bits*>(pDst), len);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

TpxStatus TPXS(Copy_8u)(const Tpx8u* pSrc, Tpx8u* pDst, int len) {
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (len < 1) return tpxErrSize;
    ownsCopy_8u(pSrc, pDst, len);
    return tpxOk;
}

#define COPY(type)                                                                 \
    TpxStatus TPXS(Copy_##type)(const Tpx##type* pSrc, Tpx##type* pDst, int len) { \
        return copySamples(pSrc, pDst, len);                                       \
    }
COPY(16s)
COPY(32s)
COPY(32f)
COPY(64f)

#define SET(type, bits)                                                    \
    TpxStatus TPXS(Set_##type)(Tpx##type val, Tpx##type * pDst, int len) { \
        return setSamples(ownsSet_##bits, val, pDst, len);                 \
    }
SET(8u, 8u)
SET(16s, 16u)
SET(32f, 32s)
SET(64f, 64s)
SET(32fc, 64s)

#define ZERO(type) \
    TpxStatus TPXS(Zero_##type)(Tpx##type * pDst, int len) { return zeroSamples(pDst, len); }
ZERO(8u)
ZERO(16s)
ZERO(32s)
ZERO(32f)
ZERO(64f)
ZERO(32fc)
