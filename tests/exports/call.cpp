// SPDX-License-Identifier: Apache-2.0
#include "tests/exports/call.h"

#include <map>
#include <memory>
#include <random>

namespace tpx::test {
namespace {

constexpr int kTop = 2, kLeft = 3, kMoreRows = 4, kMoreColumns = 5; // of borders
constexpr int kPaletteBits = 7;

// ---- What is no image -----------------------------------------------------------------------------------

// A number for each channel, small enough for every type.
struct Constants {
    const char* name;
    double of[4];
};
constexpr Constants kConstants[] = {{"threshold", {60, 40, 90, 70}},
                                    {"value", {3, 53, 103, 119}},
                                    {"thresholdLT", {50, 30, 20, 60}},
                                    {"valueLT", {5, 15, 25, 35}},
                                    {"thresholdGT", {101, 90, 111, 122}},
                                    {"valueGT", {124, 77, 99, 66}},
                                    {"val", {77, 77, 77, 77}},
                                    {"loVal", {3, 3, 3, 3}},
                                    {"hiVal", {102, 102, 102, 102}}};

// A number for each variant.
struct Modes {
    const char* name;
    int of[4];
};
constexpr Modes kModes[] = {
    {"scaleFactor", {0, 2, -1, 100}},
    {"roundMode", {tpxRoundNearestEven, tpxRoundTowardZero, tpxRoundHalfAway, tpxRoundNearestEven}},
    {"cmpOp", {tpxCmpLess, tpxCmpGreater, tpxCmpLess, tpxCmpGreater}},
    {"flags", {0, 3, 1, 2}},
    {"hint", {tpxHintFast, tpxHintAccurate, 0, 0}},
    {"nBitSize", {kPaletteBits, kPaletteBits, kPaletteBits, kPaletteBits}},
    {"topBorderHeight", {kTop, kTop, kTop, kTop}},
    {"leftBorderWidth", {kLeft, kLeft, kLeft, kLeft}}};

struct Sides {
    const char* name;
    Side side;
};
constexpr Sides kSideNames[] = {{"pSrc", kFirst}, {"pSrc1", kFirst}, {"pSrc2", kSecond}, {"pSrcRef", kSecond},
                                {"pMask", kMask}, {"pDst", kDst},    {"pSrcDst", kDst}};

template <class Row, size_t N>
const Row* find(const Row (&rows)[N], const std::string& name) {
    for (const Row& row : rows)
        if (name == row.name) return &row;
    return nullptr;
}

void storeSample(const std::string& type, double v, void* p) {
    const auto put = [=](auto sample) { std::memcpy(p, &sample, sizeof sample); };
    if (type == "Tpx64f")
        put(v);
    else if (type == "Tpx32f")
        put(float(v));
    else if (const Tpx32s integer = Tpx32s(v); true)
        std::memcpy(p, &integer, sizeOf(type)); // the low bytes
}

// Orders without and, where the form allows it, with entries that keep the destination.
void makeOrder(const Export& e, int variant, int order[4]) {
    const int bound = e.param("val") ? 5 : e.from == 4 && !e.fromAC4 ? 4 : 3;
    for (int k = 0; k < 4; k++) order[k] = (2 * k + 1 + variant) % bound;
}

const void* palette(int channel) {
    static const std::vector<Tpx8u> entries = [] {
        std::mt19937 random(5);
        std::vector<Tpx8u> made(4 * 4 << kPaletteBits);
        for (Tpx8u& v : made) v = Tpx8u(random());
        return made;
    }();
    return &entries[size_t(channel) * 4 << kPaletteBits];
}

// A table between levels that differ from channel to channel.
TpxiLUT_Spec* lookupSpec(const Export& e, int channel) {
    static std::map<std::string, std::vector<Tpx8u>> made;
    std::vector<Tpx8u>& memory = made[e.types + e.layout + char('0' + channel)];
    if (!memory.empty()) return reinterpret_cast<TpxiLUT_Spec*>(memory.data());
    Tpx32s integers[2][4][4];
    Tpx32f reals[2][4][4];
    const void* arrays[2][4];
    const bool isReal = e.types == "32f";
    for (int c = 0; c < 4; c++)
        for (int i = 0; i < 2; i++) {
            for (int k = 0; k < 4; k++) {
                integers[i][c][k] = i ? 9 * (c + channel) + 55 * k : (250 - 7 * (c + channel) + 101 * k) % 256;
                reals[i][c][k] = Tpx32f(integers[i][c][k]);
            }
            arrays[i][c] = isReal ? static_cast<void*>(reals[i][c]) : integers[i][c];
        }
    const int nLevels[] = {4, 4, 4, 4};
    const TpxChannelCode layout = e.fromAC4 ? tpxChannelAC4 : e.from;
    const Export* const init = findExport("tpxiLUT_Init_" + e.types);
    int bytes = 0;
    if (tpxiLUT_GetSize(tpxInterpolationLinear, dataTypeOf(e.types), layout, {1, 1}, nLevels, &bytes) != tpxOk)
        return nullptr;
    memory.resize(size_t(bytes));
    Value values[7];
    values[0] = TpxInterpolationType(tpxInterpolationLinear);
    values[1] = layout;
    values[2] = TpxiSize{1, 1};
    values[3] = static_cast<const void*>(arrays[0]);
    values[4] = static_cast<const void*>(arrays[1]);
    values[5] = static_cast<const void*>(nLevels);
    values[6] = memory.data();
    init->invoke(init->function, values);
    return reinterpret_cast<TpxiLUT_Spec*>(memory.data());
}

// ---- Arguments ------------------------------------------------------------------------------------------

// What an argument is made from.
struct Source {
    enum Kind {
        Unknown,
        Image,
        Step,
        Offset,
        Size,
        BorderSize,
        Mode,
        Order,
        Table,
        Lookup,
        Constant,
        Out
    } kind;
    const Param* param;
    Side side;
    const int* modes;
    const double* constants;
};

std::vector<Source> makeSources(const Export& e) {
    std::vector<Source> list;
    Side side = kFirst; // of the image that was named last
    for (const Param& p : e.params) {
        Source s{Source::Unknown, &p, side, nullptr, nullptr};
        if (const Sides* found = find(kSideNames, p.name)) {
            s.kind = Source::Image;
            s.side = side = found->side;
        } else if (p.name.ends_with("Step") && !p.points) {
            s.kind = Source::Step;
        } else if (p.name.ends_with("BitOffset")) {
            s.kind = Source::Offset;
        } else if (p.name == "roiSize" || p.name == "srcRoiSize") {
            s.kind = Source::Size;
        } else if (p.name == "dstRoiSize") {
            s.kind = Source::BorderSize;
        } else if (const Modes* modes = find(kModes, p.name)) {
            s.kind = Source::Mode;
            s.modes = modes->of;
        } else if (p.name == "dstOrder") {
            s.kind = Source::Order;
        } else if (p.name == "pTable") {
            s.kind = Source::Table;
        } else if (p.name == "pSpec" && p.type == "TpxiLUT_Spec") {
            s.kind = Source::Lookup;
        } else if (const Constants* constants = find(kConstants, p.name)) {
            s.kind = Source::Constant;
            s.constants = constants->of;
        } else if (p.points && !p.isConst && (p.name.starts_with("pIndex") || p.type.starts_with("Tpx")) &&
                   p.count < 5 && !p.type.ends_with("Spec") && !p.name.ends_with("Buffer") &&
                   p.name != "pHist" && !p.name.ends_with("Buf") && !p.name.ends_with("Levels")) {
            s.kind = Source::Out;
        }
        list.push_back(s);
    }
    return list;
}
const std::vector<Source>& sourcesOf(const Export& e) {
    static const auto all = [] {
        std::vector<std::vector<Source>> made;
        for (const Export& each : exports()) made.push_back(makeSources(each));
        return made;
    }();
    return all[size_t(&e - exports().data())];
}

void setInteger(Value& value, const std::string& type, TpxSizeL v) {
    if (type == "TpxSizeL")
        value = v;
    else
        value = int(v);
}
void setSize(Value& value, const std::string& type, int width, int height) {
    if (type == "TpxiSizeL")
        value = TpxiSizeL{width, height};
    else
        value = TpxiSize{width, height};
}

} // namespace

int bitOffset(int variant) { return (const int[]){0, 3, 15, 8}[variant]; }

int variantsOf(const Export& e) {
    if (e.param("scaleFactor") || e.operation == "BinToGray" || e.operation == "GrayToBin") return 4;
    for (const char* name : {"roundMode", "cmpOp", "flags", "dstOrder", "hint"})
        if (e.param(name)) return name == std::string("hint") ? 2 : 3;
    return 1;
}

bool isCallable(const Export& e) {
    bool hasImage = false;
    for (const Source& s : sourcesOf(e)) {
        if (s.kind == Source::Unknown) return false;
        hasImage = hasImage || s.kind == Source::Image;
    }
    return e.invoke && e.from && hasImage;
}

Call::Call(const Export& e, const Places& places, int width, int height, int variant, Outs* outs, int channel,
           int bit) {
    Value* next = values;
    int nOuts = 0, nConstants = 0;
    for (const Source& s : sourcesOf(e)) {
        Value& value = *next++;
        const Param& p = *s.param;
        switch (s.kind) {
            case Source::Image: {
                const Place& place = places[s.side];
                for (int k = 0; k < 4; k++) planes_[s.side][k] = place.data + k * place.plane;
                value = planesOf(e, s.side) > 1 ? static_cast<void*>(planes_[s.side]) : place.data;
                break;
            }
            case Source::Step:
                setInteger(value, p.type, places[s.side].step);
                break;
            case Source::Offset:
                value = bit < 0 ? bitOffset(variant) : bit;
                break;
            case Source::Size:
                setSize(value, p.type, width, height);
                break;
            case Source::BorderSize:
                setSize(value, p.type, width + kMoreColumns, height + kMoreRows);
                break;
            case Source::Mode:
                setInteger(value, p.type, s.modes[variant]);
                break;
            case Source::Order:
                makeOrder(e, variant, order_);
                value = static_cast<int*>(order_);
                break;
            case Source::Table:
                for (int c = 0; c < 4; c++) tables_[c] = palette(c);
                value = p.count ? static_cast<const void*>(tables_) : palette(channel);
                break;
            case Source::Lookup:
                value = lookupSpec(e, channel);
                break;
            case Source::Constant: {
                Tpx8u* const array = constants_[nConstants++];
                for (int c = 0; c < 4; c++) storeSample(p.type, s.constants[c], array + c * sizeOf(p.type));
                if (p.count)
                    value = static_cast<void*>(array);
                else
                    storeSample(p.type, s.constants[channel], value.bytes());
                break;
            }
            case Source::Out:
                if (outs) value = static_cast<void*>(outs->bytes[nOuts++]);
                break;
            case Source::Unknown:
                break;
        }
    }
}

TpxStatus call(const Export& e, const Places& places, int width, int height, int variant, Outs* outs,
               int channel, int bit, const std::function<void(Value*)>& spoil) {
    Call made(e, places, width, height, variant, outs, channel, bit);
    if (spoil) spoil(made.values);
    return e.invoke(e.function, made.values);
}

const Param* imageParam(const Export& e, Side wanted) {
    for (const Source& s : sourcesOf(e))
        if (s.kind == Source::Image && s.side == wanted) return s.param;
    return nullptr;
}

int planesOf(const Export& e, Side side) {
    return side == kDst && e.toPlanes ? e.to : side == kFirst && e.fromPlanes ? e.from : 1;
}

int bitsPerPixel(const Export& e, Side side) {
    const Param* const p = imageParam(e, side);
    if (!p) return 0;
    if (side == kMask) return 8;
    if (side == kDst && e.types.ends_with("1u") && e.operation == "GrayToBin") return 1;
    if (side == kFirst && e.operation == "BinToGray") return 1;
    if (side == kDst && e.types.ends_with("24u")) return 24;
    return int(8 * sizeOf(p->type)) * (planesOf(e, side) > 1 ? 1 : side == kDst ? e.to : e.from);
}

int rowsOf(const Export& e, Side side, int height) {
    return planesOf(e, side) * (height + (side == kDst && isBorder(e) ? kMoreRows : 0));
}

int rowBytes(const Export& e, Side side, int width, int variant) {
    const int bits = bitsPerPixel(e, side);
    if (bits == 1) return (bitOffset(variant) % 8 + width + 7) / 8;
    return bits / 8 * (width + (side == kDst && isBorder(e) ? kMoreColumns : 0));
}

bool isBorder(const Export& e) { return e.operation.ends_with("Border"); }

} // namespace tpx::test
