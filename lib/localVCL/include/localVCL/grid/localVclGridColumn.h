// A column of a grid, as its maker describes it.
#pragma once

#include <QString>

#include <string>

class localVclGrid200123headButton;

// The maker fills it; the grid that it is added to owns it. A source that keeps more about a column
// derives from it.
struct localVclGridColumn {
    virtual ~localVclGridColumn() = default;

    std::u16string id = {};         // its variable in the grid's scope; empty where it has none
    QString caption = {};           // of the head button
    std::u16string formula = {};    // an expression of the language, computed for each row
    QString description = {};       // shown as a hint at the head button
    int width = 50;                 // pixels for the grid's own font; scaled to the font in use
    int alignment = Qt::AlignLeft;  // flags of the toolkit
    localVclGrid200123headButton* headButton = nullptr;  // made by the grid
    int dataBuferColumn = 0;                             // its number in a source of data
    std::u16string idxName = {};                         // of the index that sorts by this column
};
