// The widget that shows a table document: headers, grid, cells, a cursor.
//
// A person scrolls, finds texts, changes the widths of columns and copies; cells are not edited
// here. A program reacts to Enter by a procedure. The sheet itself, its cells and sizes, is an
// object of the language that the widget holds a link on; it may be shown by many widgets at a
// time, and what changes it shows in all of them.
//
// Only what is in view is looked at and painted. While another thread is in the language, the
// widget shows what it showed last.
#pragma once

#include <QPixmap>
#include <QString>
#include <QTextDocument>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "localSxl/sheet/localSxlSheet.h"
#include "localVCL/window/localVclTurn.h"

class localSxlLink;
struct localSxlBand;
struct localSxlBandSizes;

class localSxl : public QWidget {
    Q_OBJECT

public:
    // `sheet` holds an object of the class TABLEDOCUMENT. Made under the language's turn.
    explicit localSxl(const localValueDescription& sheet, QWidget* parent = nullptr);
    ~localSxl() override;

    // With row 0 the number of a column, with column 0 that of a row, else a cell's text. Called
    // under the language's turn.
    virtual QString cellText(std::uint32_t row, std::uint32_t column) const;

    // The cell under the cursor.
    localSxlPlace current() const;
    // Moves the cursor to a cell and brings it into view.
    void currentSet(localSxlPlace place);
    localSxlPlace firstInView() const { return {topRow_, leftColumn_}; }

    // In percent of the sheet's own pixels.
    int zoom() const { return zoom_; }
    void zoomSet(int percent);

    QSize sizeHint() const override;

public slots:
    // Asks for a text and goes to the first cell that holds it.
    void findString();
    // The same without asking. A text that is nowhere is told of in a box and a line.
    void findText(const QString& text, Qt::CaseSensitivity sensitivity);
    // Calls the procedure СОБЫТИЕЯЧЕЙКААКТИВИРОВАТЬ, or EVENTCELLACTIVATE, with the sheet and the
    // numbers of the current row and column, when there is one in the sheet's context.
    void gridEventCellActivate();
    // Asks for the width of a column.
    void columnWidthAsk(std::uint32_t column);
    // Puts the text of the current cell on the clipboard.
    void cellCopy();
    // Shows the sheet's pages, which a person may print then.
    void sheetPrint();
    // Asks for a file, and exports the sheet there in the format of its name.
    void sheetExportAsk();
    // The same without asking. What cannot be is told in a box and a line.
    void sheetExport(const QString& fileName);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class localSxlPainting;

    // A column whose right border is under the mouse's button.
    struct Drawn {
        std::uint32_t column;
        int from;  // where the border was taken, in the sheet's pixels
        int width;
    };

    const localSxlSheet& sheet() const;
    localSxlSheet& sheet();
    // Goes back to the beginning when the sheet was cleared since it was last looked at.
    void clearedFollow();

    localSxlBandSizes rowSizes() const;
    localSxlBandSizes columnSizes() const;
    // Room for cells in the sheet's pixels, beside the headers.
    QSize room() const;
    int headerHeight() const;
    int headerWidth() const;
    // A point of the widget in the sheet's pixels.
    QPoint inSheet(QPoint point) const;
    std::optional<std::uint32_t> columnAt(int x) const;
    std::optional<std::uint32_t> rowAt(int y) const;
    bool inHeader(QPoint point) const;
    // The column whose right border is near, where the pointer is in the header.
    std::optional<std::uint32_t> borderAt(QPoint point) const;

    // Acts on a key that moves the cursor; false for any other.
    bool moves(int key, bool isControl);
    // Moves the cursor, and what is in view no more than that takes.
    void moveInto(localSxlPlace place);
    // Moves what is in view by rows and columns; the cursor stays on its cell where that shows.
    void scroll(std::int64_t rows, std::int64_t columns);
    void rowsMove(bool isDown);
    void columnsMove(bool isRight);
    void pageMove(bool isDown);
    void moveToMiddle(localSxlPlace place);

    // Does work in the language, now if it can be, else as soon as it can be.
    void inTurn(std::function<void()> work);

    std::unique_ptr<localSxlLink> link_;
    std::uint32_t currentRow_ = 1;     // counted from the top row
    std::uint32_t currentColumn_ = 1;  // counted from the left column
    std::uint32_t topRow_ = 1;
    std::uint32_t leftColumn_ = 1;
    int lineWidth_ = 1;     // of the grid, in pixels
    int headerWidth_ = 30;  // of the row numbers, in pixels; more where a number needs it
    int zoom_ = 100;
    QPoint wheelRest_;  // what of the wheel's way was too little for a row or column
    std::int64_t clearedSeen_ = 0;
    std::optional<Drawn> drawn_;
    std::vector<std::u16string> findHistory_;
    QTextDocument::FindFlags findFlags_;
    QPixmap shown_;
    localVclTurnWork paintWork_;
    localVclTurnWork work_;
};
