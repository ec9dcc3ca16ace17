// SPDX-License-Identifier: Apache-2.0
// Runs what the library offers on a photograph, and writes one labelled sheet of the results.
//
//   contact_sheet [-f|--force] [INPUT.png [OUTPUT.png]]
//
// A new family gets a function like toneCurves(): a section, and for each picture one call of show().
#include <cstdio>
#include <filesystem>
#include <vector>

#include "gallery.h"
#include "png_io.h"

namespace {

namespace fs = std::filesystem;

// Four pixels leave two of them at half size, the least that linear resize takes.
constexpr SizeLimits kLimits = {.minSide = 6, .maxSide = 32768, .maxPixels = 1LL << 25};

constexpr char kUsage[] =
    "usage: contact_sheet [-f|--force] [INPUT.png [OUTPUT.png]]\n"
    "\n"
    "Runs the library's operations on INPUT.png (the photograph shipped with the example unless given) and\n"
    "writes a labelled sheet of the results to OUTPUT.png (contact_sheet.png in the working directory unless\n"
    "given). An existing file is replaced only with --force.\n";

struct Options {
    std::string input = CONTACT_SHEET_PHOTOGRAPH;
    std::string output = "contact_sheet.png";
    bool force = false;
    bool help = false;
};

struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

Options parse(int argc, char** argv) {
    Options options;
    std::vector<std::string> files;
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (optionsEnded || argument.empty() || argument[0] != '-')
            files.push_back(argument);
        else if (argument == "--")
            optionsEnded = true;
        else if (argument == "-f" || argument == "--force")
            options.force = true;
        else if (argument == "-h" || argument == "--help")
            options.help = true;
        else
            throw UsageError("unknown option " + argument);
    }
    if (files.size() > 2) throw UsageError("more than two files");
    if (!files.empty()) options.input = files[0];
    if (files.size() > 1) options.output = files[1];
    return options;
}

// ---- The program ----

void refuseUnsafeOutput(const Options& options) {
    std::error_code ignored; // of a file that does not exist
    if (fs::equivalent(options.input, options.output, ignored))
        throw std::runtime_error(options.output + ": the output is the input file");
    if (!options.force && fs::exists(fs::symlink_status(options.output, ignored)))
        throw std::runtime_error(options.output + ": the file exists; --force replaces it");
}

void makeSheet(const Options& options) {
    refuseUnsafeOutput(options);
    const Image8u source = readPng(options.input, kLimits);
    const std::string name = fs::path(options.input).filename().string();

    const TpxLibraryVersion& version = *tpxiGetLibVersion();
    Sheet sheet("Contact sheet", std::string(version.name) + " " + version.version + " \u00b7 " + name + ", " +
                                     text(source.size()) + " \u00b7 times are the best of " +
                                     std::to_string(kRuns) + " runs");
    Gallery gallery(sheet);
    sheet.section("The photograph, and linear resize");
    sheet.add(source.view(), {"Original", "", text(source.size()), ""}, 2);
    resizes(gallery, source);
    warps(gallery, source);
    toneCurves(gallery, source);
    channels(gallery, source);
    borders(gallery, source);
    twoImages(gallery, source);
    thresholds(gallery, source);
    filters(gallery, source);
    spectra(gallery, source);
    measuring(gallery, source);

    const Image8u picture = sheet.render();
    writePng(options.output, picture.view(), options.force);
    std::printf("%s, %s\n\n", options.input.c_str(), text(source.size()).c_str());
    gallery.print();
    std::printf("\nwrote %s, %s\n", options.output.c_str(), text(picture.size()).c_str());
}

} // namespace

int main(int argc, char** argv) {
    try {
        const Options options = parse(argc, argv);
        if (options.help)
            std::fputs(kUsage, stdout);
        else
            makeSheet(options);
        return 0;
    } catch (const UsageError& error) {
        std::fprintf(stderr, "contact_sheet: %s\n%s", error.what(), kUsage);
        return 2;
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "contact_sheet: not enough memory\n");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "contact_sheet: %s\n", error.what());
    }
    return 1;
}
