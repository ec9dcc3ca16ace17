// Runs what the library offers on a photograph, and writes one labelled sheet of the results.
//
//   contact_sheet [-f|--force] [INPUT.png [OUTPUT.png]]
//
// A new family gets a function like toneCurves() below: a section, and for each picture one call of show().
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <vector>

#include "image.h"
#include "png_io.h"
#include "sheet.h"
#include "tiled_resize.h"

namespace {

namespace fs = std::filesystem;

constexpr int kThreads = 2;
constexpr int kRuns = 7;
// Four pixels leave two of them at half size, the least that linear resize takes.
constexpr SizeLimits kLimits = {.minSide = 4, .maxSide = 32768, .maxPixels = 1LL << 25};

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

std::string text(TpxiSize size) { return std::to_string(size.width) + " x " + std::to_string(size.height); }

// The least time of a few runs, in milliseconds: the one that other work on the machine disturbed least.
template <class Run>
double bestTime(Run run) {
    double best = HUGE_VAL;
    for (int i = 0; i < kRuns; ++i) {
        const auto start = std::chrono::steady_clock::now();
        run();
        best = std::min(
            best, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    return best;
}

struct Operation {
    std::string name;
    const char* function;
    TpxiSize src;
    TpxiSize dst;
    int threads;
    double ms;
};

// The sheet, and the table of what was run for it.
class Gallery {
 public:
    explicit Gallery(Sheet& sheet) : sheet_(sheet) {}

    void show(ConstPixels picture, Operation op) {
        char time[64];
        std::snprintf(time, sizeof time, "%d thread%s, %.3f ms", op.threads, op.threads == 1 ? "" : "s", op.ms);
        const bool resized = op.src.width != op.dst.width || op.src.height != op.dst.height;
        const std::string sizes = resized ? text(op.src) + " to " + text(op.dst) : text(op.dst);
        sheet_.add(picture, {op.name, op.function, sizes, time});
        operations_.push_back(std::move(op));
    }

    void print() const {
        std::printf("%-30s %-26s %15s %15s %8s %10s\n", "operation", "function", "source", "destination",
                    "threads", "time (ms)");
        for (const Operation& op : operations_)
            std::printf("%-30s %-26s %15s %15s %8d %10.3f\n", op.name.c_str(), op.function,
                        text(op.src).c_str(), text(op.dst).c_str(), op.threads, op.ms);
    }

    Sheet& sheet() { return sheet_; }

 private:
    Sheet& sheet_;
    std::vector<Operation> operations_;
};

// ---- Resize ----

struct Resized {
    Image8u image;
    Operation operation;
};

Resized resize(const char* name, ResizeKind kind, ConstPixels src, TpxiSize dstSize) {
    Image8u dst(dstSize);
    TiledResize plan(kind, src.size, dstSize, kThreads);
    const double ms = bestTime([&] { plan.run(src, dst.view()); });
    return {std::move(dst), {name, TiledResize::function(kind), src.size, dstSize, plan.threads(), ms}};
}

void resizes(Gallery& gallery, const Image8u& source) {
    const ConstPixels photo = source.view();
    const TpxiSize size = photo.size;

    const Resized larger = resize("Linear, 1.5 times, the middle", ResizeKind::linear, photo,
                                  {size.width * 3 / 2, size.height * 3 / 2});
    gallery.show(larger.image.view().centre(Sheet::box()), larger.operation);
    const Resized stretched = resize("Linear, to another shape", ResizeKind::linear, photo, {300, 400});
    gallery.show(stretched.image.view(), stretched.operation);

    gallery.sheet().section("Half the size, and a detail six times enlarged: nearest beside linear");
    const TpxiSize half = {size.width / 2, size.height / 2};
    // A region of interest is a pointer into the photograph and the photograph's step: nothing is copied.
    constexpr int kZoom = 6;
    const ConstPixels detail = photo.centre({300 / kZoom, 200 / kZoom});
    const TpxiSize enlarged = {detail.size.width * kZoom, detail.size.height * kZoom};
    for (const Resized& r : {resize("Nearest, one half", ResizeKind::nearest, photo, half),
                             resize("Linear, one half", ResizeKind::linear, photo, half),
                             resize("Nearest, detail, 6 times", ResizeKind::nearest, detail, enlarged),
                             resize("Linear, detail, 6 times", ResizeKind::linear, detail, enlarged)})
        gallery.show(r.image.view(), r.operation);
}

// ---- Tone curves ----

// dst = rule(src), sample by sample.
template <class From, class To, class Convert>
void convert(View<const From> src, View<To> dst, Convert rule) {
    for (int y = 0; y < src.size.height; ++y)
        std::transform(src.at(0, y), src.at(src.size.width, y), dst.at(0, y), rule);
}

void toneCurves(Gallery& gallery, const Image8u& source) {
    gallery.sheet().section("Tone curves");
    const ConstPixels src = source.view();
    Image8u result(src.size);
    const Pixels dst = result.view();

    using Curve = decltype(&tpxiSqr_8u_C3RSfs);
    const auto integerCurve = [&](const char* name, const char* function, Curve curve, int scaleFactor,
                                  TpxStatus expectedWarning) {
        const double ms = bestTime([&] {
            check(curve(src.data, src.step, dst.data, dst.step, src.size, scaleFactor), function,
                  expectedWarning);
        });
        gallery.show(dst, {name, function, src.size, src.size, 1, ms});
    };
    integerCurve("Square, a^2 / 256", "tpxiSqr_8u_C3RSfs", tpxiSqr_8u_C3RSfs, 8, tpxOk);
    integerCurve("Square root, 16 sqrt a", "tpxiSqrt_8u_C3RSfs", tpxiSqrt_8u_C3RSfs, -4, tpxOk);
    // A photograph has black samples, whose logarithm is given as 0 with a warning.
    integerCurve("Logarithm, 32 ln a", "tpxiLn_8u_C3RSfs", tpxiLn_8u_C3RSfs, -5, tpxWarnLnZeroArg);

    // In floating point: 0 to 255 becomes 0 to kRange, and the exponential's 1 to e^kRange becomes 0 to 255.
    constexpr float kRange = 3.0f;
    Image32f exponent(src.size);
    Image32f power(src.size);
    const View<Tpx32f> from = exponent.view();
    const View<Tpx32f> to = power.view();
    convert(src, from, [](Tpx8u a) { return a * (kRange / 255.0f); });
    const double ms = bestTime(
        [&] { check(tpxiExp_32f_C3R(from.data, from.step, to.data, to.step, src.size), "tpxiExp_32f_C3R"); });
    const float scale = 255.0f / std::expm1(kRange);
    convert(View<const Tpx32f>(to), dst,
            [scale](Tpx32f a) { return static_cast<Tpx8u>((a - 1.0f) * scale + 0.5f); });
    gallery.show(dst, {"Exponential, of 0 to 3", "tpxiExp_32f_C3R", src.size, src.size, 1, ms});
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
    toneCurves(gallery, source);

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
