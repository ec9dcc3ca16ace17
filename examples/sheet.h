// SPDX-License-Identifier: Apache-2.0
// A contact sheet: titled sections of pictures with captions, in rows that fill from left to right.
#pragma once

#include <string>
#include <vector>

#include "canvas.h"

// One line each, under the picture; empty ones are left out.
struct Caption {
    std::string title;
    std::string function;
    std::string size;
    std::string note;
};

class Sheet {
 public:
    // Small sheets have narrow columns and small letters.
    Sheet(std::string title, std::string subtitle, bool small)
        : small_(small), title_(std::move(title)), subtitle_(std::move(subtitle)) {}

    // The room for a picture that spans so many columns.
    TpxiSize box(int columns = 1) const;

    void section(std::string title) { sections_.push_back({std::move(title), {}}); }

    // Adds a copy of the picture to the last section. One that is larger than its box is reduced to fit, and
    // the caption then says so.
    void add(ConstPixels picture, Caption caption, int columns = 1);

    // Draws everything on a sheet that is as high as it needs to be.
    Image8u render() const;

 private:
    struct Cell {
        Image8u picture;
        Caption caption;
        int columns;
    };
    struct Section {
        std::string title;
        std::vector<Cell> cells;
    };

    TextStyle style(const TextStyle& style) const;

    bool small_;
    std::string title_;
    std::string subtitle_;
    std::vector<Section> sections_;
};
