// The head of a grid's column: its caption, and at the right edge a grip that changes the width.
#pragma once

#include <QPushButton>

class QSizeGrip;

class localVclGrid200123headButton : public QPushButton {
    Q_OBJECT

public:
    // `width` and `height` in pixels.
    localVclGrid200123headButton(const QString& caption, int width, int height, QWidget* grid);

    // Sizes it for another font or layout, without a signal.
    void setSize(int width, int height);

signals:
    // A person has changed the width.
    void columnResized();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QSizeGrip* grip_;
    bool isSetting_ = false;
};
