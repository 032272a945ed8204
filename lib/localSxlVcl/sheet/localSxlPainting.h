// One painting of what is in view of a sheet.
#pragma once

#include <vector>

#include "localSxl/paint/localSxlBands.h"
#include "localSxlVcl/sheet/localSxl.h"

class QPainter;

class localSxlPainting {
public:
    // Under the language's turn.
    localSxlPainting(const localSxl& widget, QPainter& painter);

    void paint();

private:
    void headers();
    void header(const QRect& box, std::uint32_t row, std::uint32_t column, bool isCurrent);
    void grid();
    void cursor(const QBrush& brush, int lineWidth);
    void cells();

    QRect boxOf(const localSxlBand& row, const localSxlBand& column) const;
    const localSxlBand* bandOf(const std::vector<localSxlBand>& bands, std::uint32_t number) const;

    const localSxl& widget_;
    const localSxlSheet& sheet_;
    QPainter& painter_;
    const int left_;  // where the cells begin
    const int top_;
    const std::vector<localSxlBand> rows_;
    const std::vector<localSxlBand> columns_;
};
