// SPDX-License-Identifier: Apache-2.0
#include "sheet.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "text.h"
#include "tiled_resize.h"

namespace {

// The grid, in pixels.
constexpr int kColumns = 4;
constexpr int kColumnWidth = 300;
constexpr int kPictureHeight = 400;
constexpr int kLeastRowHeight = 48;
constexpr int kGap = 24;
constexpr int kMargin = 32;
constexpr int kHeaderHeight = 68;
constexpr int kSectionHeight = 46;
constexpr int kCaptionHeight = 82;
constexpr int kContentWidth = kColumns * kColumnWidth + (kColumns - 1) * kGap;

constexpr Tpx8u kBackground[] = {22, 24, 29};
constexpr Tpx8u kPanel[] = {31, 34, 41};
constexpr Tpx8u kFrame[] = {58, 63, 74};

constexpr TextStyle kTitleStyle = {"DejaVu Sans", 24, true, {240, 242, 245}};
constexpr TextStyle kSubtitleStyle = {"DejaVu Sans", 13, false, {160, 167, 178}};
constexpr TextStyle kSectionStyle = {"DejaVu Sans", 16, true, {255, 190, 110}};
constexpr TextStyle kCaptionStyle = {"DejaVu Sans", 13, true, {232, 235, 240}};
constexpr TextStyle kFunctionStyle = {"DejaVu Sans Mono", 12, false, {138, 190, 255}};
constexpr TextStyle kDetailStyle = {"DejaVu Sans", 12, false, {176, 183, 194}};

void fill(Pixels area, const Tpx8u colour[kChannels]) {
    check(tpxiSet_8u_C3R(colour, area.data, area.step, area.size), "tpxiSet_8u_C3R");
}

void paste(ConstPixels picture, Pixels area) {
    check(tpxiCopy_8u_C3R(picture.data, picture.step, area.data, area.step, picture.size), "tpxiCopy_8u_C3R");
}

} // namespace

TpxiSize Sheet::box(int columns) { return {columns * kColumnWidth + (columns - 1) * kGap, kPictureHeight}; }

void Sheet::add(ConstPixels picture, Caption caption, int columns) {
    columns = std::clamp(columns, 1, kColumns);
    const TpxiSize room = box(columns);
    const double scale =
        std::min({1.0, double(room.width) / picture.size.width, double(room.height) / picture.size.height});
    const auto scaled = [scale](int length) {
        return std::max(1, static_cast<int>(std::lround(length * scale)));
    };
    Image8u shown({scaled(picture.size.width), scaled(picture.size.height)});
    if (scale < 1.0) {
        TiledResize(ResizeKind::linear, picture.size, shown.size(), 1).run(picture, shown.view());
        char note[32];
        const double percent = scale * 100;
        std::snprintf(note, sizeof note, "shown at %.*f %%", percent < 10 ? 1 : 0, percent);
        caption.note += (caption.note.empty() ? "" : ", ") + std::string(note);
    } else {
        paste(picture, shown.view());
    }
    sections_.back().cells.push_back({std::move(shown), std::move(caption), columns});
}

Image8u Sheet::render() const {
    struct Place {
        const Cell* cell;
        TpxiRect panel;
    };
    struct Heading {
        const std::string* title;
        int y;
    };
    std::vector<Place> places;
    std::vector<Heading> headings;
    int y = kMargin + kHeaderHeight;
    for (const Section& section : sections_) {
        headings.push_back({&section.title, y});
        y += kSectionHeight;
        for (size_t first = 0, next = 0; first < section.cells.size(); first = next) {
            int column = 0;
            int height = kLeastRowHeight;
            for (; next < section.cells.size() && column + section.cells[next].columns <= kColumns; ++next) {
                const Cell& cell = section.cells[next];
                places.push_back(
                    {&cell, {kMargin + column * (kColumnWidth + kGap), y, box(cell.columns).width, 0}});
                column += cell.columns;
                height = std::max(height, cell.picture.size().height);
            }
            for (size_t i = places.size() - (next - first); i < places.size(); ++i)
                places[i].panel.height = height;
            y += height + kCaptionHeight + kGap;
        }
    }

    Image8u sheet({kContentWidth + 2 * kMargin, y - kGap + kMargin});
    const Pixels all = sheet.view();
    fill(all, kBackground);
    drawText(all, kMargin, kMargin + 24, kContentWidth, title_, kTitleStyle);
    drawText(all, kMargin, kMargin + 48, kContentWidth, subtitle_, kSubtitleStyle);
    for (const Heading& heading : headings) {
        fill(all.crop({kMargin, heading.y, kContentWidth, 1}), kFrame);
        drawText(all, kMargin, heading.y + 28, kContentWidth, *heading.title, kSectionStyle);
    }
    for (const Place& place : places) {
        const TpxiRect panel = place.panel;
        fill(all.crop({panel.x - 1, panel.y - 1, panel.width + 2, panel.height + 2}), kFrame);
        fill(all.crop(panel), kPanel);
        paste(place.cell->picture.view(), all.crop(panel).centre(place.cell->picture.size()));
        int baseline = panel.y + panel.height + 22;
        const auto line = [&](const std::string& text, const TextStyle& style) {
            if (text.empty()) return;
            drawText(all, panel.x, baseline, panel.width, text, style);
            baseline += 18;
        };
        line(place.cell->caption.title, kCaptionStyle);
        line(place.cell->caption.function, kFunctionStyle);
        line(place.cell->caption.size, kDetailStyle);
        line(place.cell->caption.note, kDetailStyle);
    }
    return sheet;
}
