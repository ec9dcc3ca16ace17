// SPDX-License-Identifier: Apache-2.0
// Sorting a run of floats: in place by comparison, and by the bits of the samples with a work buffer.
#include "frame/entry/checks.h"
#include "frame/runs/routines.h"

namespace tpx {
namespace {

// ---- By comparison --------------------------------------------------------------------------------------

constexpr int kSelectionCount = 9; // ranges up to here are finished by selection

template <class T>
inline void swap(T& a, T& b) {
    const T t = a;
    a = b;
    b = t;
}

inline void putInOrder(float& a, float& b) {
    if (b < a) swap(a, b);
}

void sortBySelection(float* p, int count) {
    for (; count > 1; count--) {
        int largest = 0;
        for (int i = 1; i < count; i++)
            if (p[i] > p[largest]) largest = i;
        swap(p[largest], p[count - 1]);
    }
}

// A range whose partitions have come out too uneven too often, as an input made for that can bring about.
void sortByHeap(float* p, int count) {
    const auto sink = [&](int64_t parent, int64_t end) {
        for (int64_t child; (child = 2 * parent + 1) < end; parent = child) {
            if (child + 1 < end && p[child] < p[child + 1]) child++;
            if (!(p[parent] < p[child])) return;
            swap(p[parent], p[child]);
        }
    };
    for (int i = count / 2; i-- > 0;) sink(i, count);
    for (int end = count; --end > 0;) {
        swap(p[0], p[end]);
        sink(0, end);
    }
}

// What is left to sort of a partitioned range: [0, lower) and [upper, count), both shorter than the range.
struct Split {
    int lower, upper;
};

// The pivot is the median of three samples. Neither scan leaves the range, whatever the samples are, since each
// is bounded by the other; a NaN stops both and is swapped like any mismatch, to a place that means nothing.
//
// Both parts come out shorter than the range. The upper one: the right scan gets no further than the middle,
// where the pivot stands, so the first sample is skipped by the left scan or swapped, and lies below the split.
// The lower one: a swap leaves a sample above the split; with none, the split is at the end only if no sample
// is above the pivot or a NaN, and then the last one, which the median is not above, equals it and drops out.
Split partition(float* p, int count) {
    float &first = p[0], &middle = p[count >> 1], &last = p[count - 1];
    putInOrder(first, middle);
    putInOrder(middle, last);
    putInOrder(first, middle);
    const float pivot = middle;

    int i = 0, j = count - 1;
    for (;;) {
        while (i <= j && p[i] <= pivot) i++;
        while (i <= j && p[j] > pivot) j--;
        if (i >= j) break;
        swap(p[i++], p[j--]);
    }
    // Equals of the pivot at the split are in place. If few samples lie above, there may be many equals, and
    // all are brought there: a run of few different values takes few partitions.
    int lower = i;
    while (lower > 0 && p[lower - 1] == pivot) lower--;
    if (count - i < count / 8)
        for (int k = lower; k-- > 0;)
            if (p[k] == pivot) swap(p[k], p[--lower]);
    return {lower, i};
}

// The longer part waits on the stack and the work goes on with the shorter, at most half as long as the range
// that was split. So with k ranges waiting, the one in hand has at most 2^(31-k) samples.
void sortByComparison(float* p, int count) {
    struct Range {
        float* first;
        int count;
        int partitions; // that may still follow one another before the heap takes over
    };
    constexpr int kLogOfLongest = 31;
    Range pending[kLogOfLongest];
    int waiting = 0;
    Range range{p, count, 2 * (kLogOfLongest - __builtin_clz(static_cast<unsigned>(count)))};
    for (;;) {
        while (range.count > kSelectionCount && range.partitions > 0) {
            const Split split = partition(range.first, range.count);
            Range shorter{range.first, split.lower, range.partitions - 1};
            Range longer{range.first + split.upper, range.count - split.upper, range.partitions - 1};
            if (longer.count < shorter.count) swap(shorter, longer);
            pending[waiting++] = longer;
            range = shorter;
        }
        if (range.count > kSelectionCount)
            sortByHeap(range.first, range.count);
        else
            sortBySelection(range.first, range.count);
        if (waiting == 0) return;
        range = pending[--waiting];
    }
}

// ---- By radix -------------------------------------------------------------------------------------------

constexpr uint32_t kTopBit = 0x80000000;

// Unsigned order of keys is the order of floats: negative ones have all bits inverted, others gain the top bit.
inline uint32_t keyOf(uint32_t bits) {
    return bits ^ (static_cast<uint32_t>(static_cast<int32_t>(bits) >> 31) | kTopBit);
}
inline uint32_t bitsOf(uint32_t key) { return key & kTopBit ? key ^ kTopBit : ~key; }

// 32-bit words at any address.
struct Words {
    void* base;

    uint32_t get(int64_t i) const {
        uint32_t word;
        __builtin_memcpy(&word, static_cast<const char*>(base) + 4 * i, sizeof word);
        return word;
    }
    void set(int64_t i, uint32_t word) const {
        __builtin_memcpy(static_cast<char*>(base) + 4 * i, &word, sizeof word);
    }
    uint32_t postIncrement(int64_t i) const {
        const uint32_t word = get(i);
        set(i, word + 1);
        return word;
    }
    Words from(int64_t i) const { return {static_cast<char*>(base) + 4 * i}; }
};

// A digit of the key, and the table of its counts, later of the places where its samples go.
template <int kShift, int kBits>
struct Digit {
    static constexpr int kValues = 1 << kBits;
    Words table;

    uint32_t placeOf(uint32_t key) const { return table.postIncrement((key >> kShift) & (kValues - 1)); }
    void countsToPlaces() const {
        uint32_t place = 0;
        for (int value = 0; value < kValues; value++) {
            const uint32_t count = table.get(value);
            table.set(value, place);
            place += count;
        }
    }
    template <class Finish>
    void distribute(Words from, Words to, int len, Finish finish) const {
        for (int i = 0; i < len; i++) {
            const uint32_t key = from.get(i);
            to.set(placeOf(key), finish(key));
        }
    }
};

constexpr int kLowValues = 2048, kMiddleValues = 2048, kHighValues = 1024;
constexpr int kCounters = kLowValues + kMiddleValues + kHighValues;

void sortByRadix(float* p, int len, Tpx8u* pBuffer) {
    const Words samples{p}, counters{pBuffer}, room = counters.from(kCounters);
    const Digit<0, 11> low{counters};
    const Digit<11, 11> middle{counters.from(kLowValues)};
    const Digit<22, 10> high{counters.from(kLowValues + kMiddleValues)};

    ownsZero_8u(pBuffer, kCounters * int64_t{sizeof(uint32_t)});
    for (int i = 0; i < len; i++) {
        const uint32_t key = keyOf(samples.get(i));
        samples.set(i, key);
        low.placeOf(key);
        middle.placeOf(key);
        high.placeOf(key);
    }
    low.countsToPlaces();
    middle.countsToPlaces();
    high.countsToPlaces();

    const auto same = [](uint32_t key) { return key; };
    low.distribute(samples, room, len, same);
    middle.distribute(room, samples, len, same);
    high.distribute(samples, room, len, bitsOf);
    TPXS(Copy_32f)(static_cast<const Tpx32f*>(room.base), p, len);
}

} // namespace
} // namespace tpx

using namespace tpx;

TpxStatus TPXS(SortAscend_32f_I)(Tpx32f* pSrcDst, int len) {
    if (anyNull(pSrcDst)) return tpxErrNullPointer;
    if (len < 1) return tpxErrSize;
    sortByComparison(pSrcDst, len);
    return tpxOk;
}

TpxStatus TPXS(SortRadixGetBufferSize)(int len, TpxDataType dataType, int* pSize) {
    constexpr TpxDataType kUnsigned32 = 9, kSigned32 = 11; // types that no exported function takes
    if (anyNull(pSize)) return tpxErrNullPointer;
    if (len < 1) return tpxErrSize;
    int64_t size = 0;
    switch (dataType) {
        case tpxDataType8u:
            size = int64_t{len} + 0x400;
            break;
        case tpxDataType16u:
        case tpxDataType16s:
            size = 2 * int64_t{len} + 0x800;
            break;
        case kUnsigned32:
        case kSigned32:
        case tpxDataType32f:
            size = 4 * int64_t{len} + 0x5000;
            break;
        case tpxDataType64f:
            size = 8 * int64_t{len} + 0xA000;
            break;
        default:
            *pSize = 0;
            return tpxErrDataType;
    }
    if (size > INT32_MAX) return tpxErrSizeTooLarge;
    *pSize = static_cast<int>(size);
    return tpxOk;
}

TpxStatus TPXS(SortRadixAscend_32f_I)(Tpx32f* pSrcDst, int len, Tpx8u* pBuffer) {
    if (!pSrcDst || !pBuffer) return tpxErrNullPointer;
    if (len < 1) return tpxErrSize;
    sortByRadix(pSrcDst, len, pBuffer);
    return tpxOk;
}
