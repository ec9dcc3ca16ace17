// SPDX-License-Identifier: Apache-2.0
// tpx_walk: goes over all exports, by what the headers say of them.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <stdexcept>

#include "walk.h"

namespace {

using namespace bench::walk;

constexpr const char* kUsage =
    "usage: tpx_walk --compare=LIBRARY|--siblings|--try [options]\n"
    "  --compare=LIBRARY  race that build of the library against this one\n"
    "  --siblings         hold each function against those that are like it\n"
    "  --try              call each once\n"
    "  --filter=REGEX     functions whose names match somewhere\n"
    "  --sizes=WxH,...    of images\n"
    "  --seconds=S        of a trial (0.06)\n";

std::vector<TpxiSize> parseSizes(const char* text) {
    std::vector<TpxiSize> sizes;
    for (TpxiSize size; *text; text += *text == ',') {
        int length = 0;
        if (std::sscanf(text, "%dx%d%n", &size.width, &size.height, &length) != 2 || size.width < 1 ||
            size.height < 1)
            throw std::runtime_error("sizes look like 64x64,640x480");
        sizes.push_back(size);
        text += length;
    }
    return sizes;
}

int run(int argc, char** argv) {
    Options options;
    options.now = TPX_LIBRARY;
    bool (*walk)(const Options&) = nullptr;
    for (int i = 1; i < argc; ++i) {
        const auto value = [&](const char* name) -> const char* {
            const size_t length = std::strlen(name);
            return std::strncmp(argv[i], name, length) == 0 ? argv[i] + length : nullptr;
        };
        if (const char* library = value("--compare=")) {
            walk = compare;
            options.before = library;
        } else if (!std::strcmp(argv[i], "--siblings"))
            walk = compareSiblings;
        else if (!std::strcmp(argv[i], "--try"))
            walk = tryAll;
        else if (const char* filter = value("--filter="))
            options.filter = filter;
        else if (const char* sizes = value("--sizes="))
            options.sizes = parseSizes(sizes);
        else if (const char* seconds = value("--seconds="))
            options.seconds = std::atof(seconds);
        else
            walk = nullptr, i = argc;
    }
    if (!walk) {
        std::cerr << kUsage;
        return EXIT_FAILURE;
    }
    if (options.sizes.empty())
        options.sizes = walk == compare ? parseSizes("64x64,640x480,1920x1080")
                                        : parseSizes(walk == tryAll ? "40x30" : "640x480");
    return walk(options) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return EXIT_FAILURE;
    }
}
