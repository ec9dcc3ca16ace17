// SPDX-License-Identifier: Apache-2.0
#include "tests/exports/export.h"

#include <cctype>
#include <map>
#include <utility>

namespace tpx::test {
namespace {

template <class... A>
TpxStatus invoke(void (*function)(), const Value* values) {
    return [&]<size_t... I>(std::index_sequence<I...>) {
        return reinterpret_cast<TpxStatus (*)(A...)>(function)(values[I].template as<A>()...);
    }
    (std::index_sequence_for<A...>{});
}
template <class... A>
constexpr auto invokerOf(TpxStatus (*)(A...)) {
    return invoke<A...>;
}
template <class R, class... A>
constexpr std::nullptr_t invokerOf(R (*)(A...)) {
    return nullptr;
}

const struct {
    const char *name, *params;
    void (*function)();
    TpxStatus (*invoke)(void (*)(), const Value*);
} kAll[] = {
#define EXPORT(name, params) {#name, params, reinterpret_cast<void (*)()>(name), invokerOf(name)},
#include "exports.inc"
#undef EXPORT
};

Param parseParam(std::string text) {
    Param p{};
    const size_t bracket = text.find('[');
    if (bracket != std::string::npos) {
        p.points = true;
        p.count = std::atoi(text.c_str() + bracket + 1);
        text.resize(bracket);
    }
    std::vector<std::string> words(1);
    for (char c : text)
        if (c == '*')
            p.points = true;
        else if (c != ' ')
            words.back() += c;
        else if (!words.back().empty())
            words.emplace_back();
    p.isConst = words[0] == "const";
    p.type = words[p.isConst];
    p.name = words.back();
    return p;
}

// Takes a layout such as C3 or AC4 from the front of `text`; 0 if there is none.
int takeLayout(std::string& text, bool& isAC4, bool& isPlanes) {
    isAC4 = text.starts_with("AC");
    isPlanes = text.starts_with("P");
    const size_t at = isAC4 ? 2 : 1;
    if (text.size() <= at || (!isAC4 && text[0] != 'C' && text[0] != 'P') || !std::isdigit(text[at])) return 0;
    const int channels = text[at] - '0';
    text.erase(0, at + 1);
    return channels;
}

Export parse(const std::string& name, const std::string& params) {
    Export e{};
    e.name = name;
    for (size_t at = 0; at < params.size();) {
        const size_t end = std::min(params.find(',', at), params.size());
        e.params.push_back(parseParam(params.substr(at + (params[at] == ' '), end - at - (params[at] == ' '))));
        at = end + 1;
    }
    std::string rest = name.substr(4);
    e.isLong = rest.ends_with("_L");
    if (e.isLong) rest.resize(rest.size() - 2);
    // The operation ends before the types, which begin with a digit.
    size_t at = 0;
    while ((at = rest.find('_', at)) != std::string::npos && !std::isdigit(rest[at + 1])) at++;
    e.operation = rest.substr(0, at);
    if (at == std::string::npos) return e;
    const size_t end = std::min(rest.find('_', at + 1), rest.size());
    e.types = rest.substr(at + 1, end - at - 1);
    if (end == rest.size()) return e;
    const std::string layouts = rest.substr(end + 1);
    rest = layouts;
    e.to = e.from = takeLayout(rest, e.fromAC4, e.fromPlanes);
    e.toAC4 = e.fromAC4;
    e.toPlanes = e.fromPlanes;
    bool isAC4, isPlanes;
    if (const int second = takeLayout(rest, isAC4, isPlanes)) {
        e.to = second;
        e.toAC4 = isAC4;
        e.toPlanes = isPlanes;
    }
    e.layout = layouts.substr(0, layouts.size() - rest.size());
    e.flags = rest;
    return e;
}

} // namespace

const Param* Export::param(const std::string& wanted) const {
    for (const Param& p : params)
        if (p.name == wanted) return &p;
    return nullptr;
}

const std::vector<Export>& exports() {
    static const std::vector<Export> list = [] {
        std::vector<Export> made;
        for (const auto& row : kAll) {
            made.push_back(parse(row.name, row.params));
            made.back().function = row.function;
            made.back().invoke = row.invoke;
        }
        return made;
    }();
    return list;
}

const Export* findExport(const std::string& name) {
    static const auto places = [] {
        std::map<std::string, const Export*> made;
        for (const Export& e : exports()) made[e.name] = &e;
        return made;
    }();
    const auto found = places.find(name);
    return found == places.end() ? nullptr : found->second;
}

size_t sizeOf(const std::string& type) {
    const int bits = type.starts_with("Tpx") ? std::atoi(type.c_str() + 3) : 0;
    return bits ? size_t(bits / 8) << type.ends_with('c') : type == "TpxSizeL" ? 8 : 4;
}

TpxDataType dataTypeOf(const std::string& type) {
    static const std::map<std::string, TpxDataType> types = {{"8u", tpxDataType8u},
                                                             {"16u", tpxDataType16u},
                                                             {"16s", tpxDataType16s},
                                                             {"32f", tpxDataType32f},
                                                             {"64f", tpxDataType64f}};
    const auto found = types.find(type);
    return found == types.end() ? 0 : found->second;
}

} // namespace tpx::test
