#include "localVCL/grid/localVclGrid200123headButton.h"

#include <QResizeEvent>
#include <QSizeGrip>

namespace {

constexpr int gripWidth = 8;  // pixels

// Takes the mouse and shows nothing but the pointer.
class grip : public QSizeGrip {
public:
    explicit grip(QWidget* parent) : QSizeGrip(parent) {}

protected:
    void paintEvent(QPaintEvent*) override {}
    void moveEvent(QMoveEvent* event) override {
        // The toolkit's own pointer is that of a window's corner.
        QSizeGrip::moveEvent(event);
        setCursor(Qt::SizeHorCursor);
    }
};

}  // namespace

localVclGrid200123headButton::localVclGrid200123headButton(const QString& caption, int width,
                                                           int height, QWidget* grid)
    : QPushButton(caption, grid), grip_(new grip(this)) {
    setWindowFlags(Qt::SubWindow);
    setCursor(Qt::SizeHorCursor);
    setFocusPolicy(Qt::NoFocus);
    QPalette clear = palette();
    for (const QPalette::ColorRole role : {QPalette::Dark, QPalette::Light, QPalette::Window}) {
        clear.setColor(QPalette::All, role, Qt::transparent);
    }
    setPalette(clear);
    setAutoFillBackground(false);
    setSize(width, height);
}

void localVclGrid200123headButton::setSize(int width, int height) {
    isSetting_ = true;
    setMinimumSize(1, height);
    setMaximumHeight(height);
    resize(width, height);
    isSetting_ = false;
}

void localVclGrid200123headButton::resizeEvent(QResizeEvent* event) {
    QPushButton::resizeEvent(event);
    const int held = qMin(gripWidth, qMax(1, width() / 2));
    grip_->setGeometry(width() - held, 0, held, height());
    if (!isSetting_ && event->oldSize().width() != width()) {
        emit columnResized();
    }
}
