// SPDX-License-Identifier: Apache-2.0
// Runs what the library offers on a photograph, and writes one labelled sheet of the results.
//
//   contact_sheet [-f|--force] [-s|--small] [INPUT.png [OUTPUT.png]]
//
// A new family gets a function like toneCurves(): a section, and for each picture one call of show().
#include <getopt.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "gallery.h"
#include "png_io.h"
#include "tiled_resize.h"

namespace {

namespace fs = std::filesystem;

constexpr SizeLimits kLimits = {.maxSide = 32768, .maxPixels = 1LL << 25};
constexpr int kLeastSide = 6; // of the source of a Lanczos resize with 3 lobes

constexpr char kUsage[] =
    "usage: contact_sheet [-f|--force] [-s|--small] [INPUT.png [OUTPUT.png]]\n"
    "\n"
    "Runs the library's operations on INPUT.png (the photograph shipped with the example unless given) and\n"
    "writes a labelled sheet of the results to OUTPUT.png (contact_sheet.png in the working directory unless\n"
    "given). An existing file is replaced only with --force. --small makes a sheet of narrow columns.\n";

struct Options {
    std::string input = CONTACT_SHEET_PHOTOGRAPH;
    std::string output = "contact_sheet.png";
    bool force = false;
    bool small = false;
};

// Ends the program after --help, and where the arguments are wrong.
Options parse(int argc, char** argv) {
    const option known[] = {{"force", no_argument, nullptr, 'f'},
                            {"small", no_argument, nullptr, 's'},
                            {"help", no_argument, nullptr, 'h'},
                            {}};
    Options options;
    for (int letter; (letter = getopt_long(argc, argv, "fsh", known, nullptr)) != -1;) switch (letter) {
            case 'f':
                options.force = true;
                break;
            case 's':
                options.small = true;
                break;
            case 'h':
                std::fputs(kUsage, stdout);
                std::exit(0);
            default: // which getopt_long has told
                std::fputs(kUsage, stderr);
                std::exit(2);
        }
    const std::vector<std::string> files(argv + optind, argv + argc);
    if (files.size() > 2) {
        std::fprintf(stderr, "contact_sheet: more than two files\n%s", kUsage);
        std::exit(2);
    }
    if (!files.empty()) options.input = files[0];
    if (files.size() > 1) options.output = files[1];
    return options;
}

// A picture that is too small for the longer kernels, with every pixel repeated as often as it takes.
Image8u largeEnough(Image8u picture) {
    const auto times = [](int length) { return length < kLeastSide ? (kLeastSide + length - 1) / length : 1; };
    const TpxiSize size = picture.size();
    const TpxiSize enough = {size.width * times(size.width), size.height * times(size.height)};
    if (enough.width == size.width && enough.height == size.height) return picture;
    Image8u enlarged(enough);
    TiledResize(ResizeKind::nearest, size, enough, 1).run(picture.view(), enlarged.view());
    return enlarged;
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
    Progress progress;
    Image8u picture = readPng(options.input, kLimits);
    const std::string size = text(picture.size());
    const Image8u source = largeEnough(std::move(picture));
    const std::string name = fs::path(options.input).filename().string();

    const TpxLibraryVersion& version = *tpxiGetLibVersion();
    Sheet sheet("Contact sheet",
                std::string(version.name) + " " + version.version + " \u00b7 " + name + ", " + size +
                    " \u00b7 times are the best of " + std::to_string(kRuns) + " runs",
                options.small);
    Gallery gallery(sheet, progress);
    gallery.section("The photograph, and linear resize");
    sheet.add(source.view(), {"Original", "", size, ""}, 2);
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

    progress.at("drawing the sheet");
    const Image8u drawn = sheet.render();
    progress.at("writing " + options.output);
    writePng(options.output, drawn.view(), options.force);
    std::printf("%s, %s\n\n", options.input.c_str(), size.c_str());
    gallery.print();
    std::printf("\nwrote %s, %s\n", options.output.c_str(), text(drawn.size()).c_str());
}

} // namespace

int main(int argc, char** argv) {
    const Options options = parse(argc, argv);
    try {
        makeSheet(options);
        return 0;
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "contact_sheet: not enough memory\n");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "contact_sheet: %s\n", error.what());
    }
    return 1;
}
