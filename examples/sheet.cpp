// SPDX-License-Identifier: Apache-2.0
#include "sheet.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "tiled_resize.h"

namespace {

// The grid, in pixels.
constexpr int kColumns = 4;
constexpr int kColumnWidth = 300, kSmallColumnWidth = 200;
constexpr int kLeastRowHeight = 48;
constexpr int kGap = 24;
constexpr int kMargin = 32;
constexpr int kCaptionGap = 8; // between a picture and its caption

constexpr Tpx8u kBackground[] = {22, 24, 29};
constexpr Tpx8u kPanel[] = {31, 34, 41};
constexpr Tpx8u kFrame[] = {58, 63, 74};

constexpr TextStyle kTitleStyle = {"DejaVu Sans Bold", 24, {240, 242, 245}};
constexpr TextStyle kSubtitleStyle = {"DejaVu Sans", 13, {160, 167, 178}};
constexpr TextStyle kSectionStyle = {"DejaVu Sans Bold", 16, {255, 190, 110}};
constexpr TextStyle kCaptionStyle = {"DejaVu Sans Bold", 13, {232, 235, 240}};
constexpr TextStyle kFunctionStyle = {"DejaVu Sans Mono", 12, {138, 190, 255}};
constexpr TextStyle kDetailStyle = {"DejaVu Sans", 12, {176, 183, 194}};

} // namespace

TpxiSize Sheet::box(int columns) const {
    const int width = small_ ? kSmallColumnWidth : kColumnWidth;
    return {columns * width + (columns - 1) * kGap, width * 4 / 3};
}

TextStyle Sheet::style(const TextStyle& style) const {
    return {style.face,
            small_ ? style.size * 5 / 6 : style.size,
            {style.colour[0], style.colour[1], style.colour[2]}};
}

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
        TiledResize(ResizeKind::super, picture.size, shown.size(), 1).run(picture, shown.view());
        char note[32];
        const double percent = scale * 100;
        std::snprintf(note, sizeof note, "shown at %.*f %%", percent < 10 ? 1 : 0, percent);
        caption.note += (caption.note.empty() ? "" : ", ") + std::string(note);
    } else {
        const Pixels dst = shown.view();
        check(tpxiCopy_8u_C3R(picture.data, picture.step, dst.data, dst.step, picture.size), "tpxiCopy_8u_C3R");
    }
    sections_.back().cells.push_back({std::move(shown), std::move(caption), columns});
}

Image8u Sheet::render() const {
    struct Place {
        const Cell* cell;
        TpxiRect panel;
        std::vector<TextLine> caption;
    };
    struct Heading {
        std::vector<TextLine> title;
        int y;
    };
    const int content = box(kColumns).width;
    const std::vector<TextLine> head = {{title_, style(kTitleStyle)}, {subtitle_, style(kSubtitleStyle)}};
    std::vector<Place> places;
    std::vector<Heading> headings;
    int y = kMargin + Canvas::height(head, content) + kGap;
    for (const Section& section : sections_) {
        headings.push_back({{{section.title, style(kSectionStyle)}}, y});
        y += Canvas::height(headings.back().title, content) + kGap;
        for (size_t first = 0, next = 0; first < section.cells.size(); first = next) {
            int column = 0, height = kLeastRowHeight, below = 0;
            for (; next < section.cells.size() && column + section.cells[next].columns <= kColumns; ++next) {
                const Cell& cell = section.cells[next];
                const int width = box(cell.columns).width;
                std::vector<TextLine> caption;
                const auto line = [&](const std::string& text, const TextStyle& kind) {
                    if (!text.empty()) caption.push_back({text, style(kind)});
                };
                line(cell.caption.title, kCaptionStyle);
                line(cell.caption.function, kFunctionStyle);
                line(cell.caption.size, kDetailStyle);
                line(cell.caption.note, kDetailStyle);
                below = std::max(below, Canvas::height(caption, width));
                places.push_back({&cell, {kMargin + column * (box().width + kGap), y, width, 0}, caption});
                column += cell.columns;
                height = std::max(height, cell.picture.size().height);
            }
            for (size_t i = places.size() - (next - first); i < places.size(); ++i)
                places[i].panel.height = height;
            y += height + kCaptionGap + below + kGap;
        }
    }

    Canvas sheet({content + 2 * kMargin, y - kGap + kMargin}, kBackground);
    sheet.write(head, {kMargin, kMargin}, content);
    for (const Heading& heading : headings) {
        sheet.fill({kMargin, heading.y, content, 1}, kFrame);
        sheet.write(heading.title, {kMargin, heading.y + kGap / 2}, content);
    }
    for (const Place& place : places) {
        const TpxiRect panel = place.panel;
        const TpxiSize size = place.cell->picture.size();
        sheet.fill({panel.x - 1, panel.y - 1, panel.width + 2, panel.height + 2}, kFrame);
        sheet.fill(panel, kPanel);
        sheet.paste(place.cell->picture.view(),
                    {panel.x + (panel.width - size.width) / 2, panel.y + (panel.height - size.height) / 2});
        sheet.write(place.caption, {panel.x, panel.y + panel.height + kCaptionGap}, panel.width);
    }
    return sheet.image();
}
