// What the tests of grids share: the language without a console, a grid that tells how it was
// painted, columns, pixels.
#pragma once

#include <QtTest>

#include <QApplication>
#include <QPaintEvent>

#include <clocale>
#include <memory>
#include <optional>
#include <string>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localVCL/grid/localVclGrid200123.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/window/localVclTurn.h"
#include "madeOf.h"
#include "screenshot.h"
#include "support/recordingHost.h"
#include "windowTest.h"

namespace gridTest {

// A grid of any kind, with what its tests look at.
template <class Grid>
class watched : public Grid {
public:
    using Grid::Grid;

    using Grid::colGap;
    using Grid::columns;
    using Grid::context;
    using Grid::firstCol;
    using Grid::firstRow;
    using Grid::fixedCols;
    using Grid::fixedColWidth;
    using Grid::headRows;
    using Grid::mCurCol;
    using Grid::mCurRow;
    using Grid::rowGap;
    using Grid::rowHeight;
    using Grid::searchText;

    QRegion painted;    // since the test emptied it
    QStringList words;  // that were looked for
    bool findsAll = true;

    std::pair<unsigned, unsigned> cursor() const { return {this->mCurRow, this->mCurCol}; }

    bool find(const QString& text) override {
        words.append(text);
        return findsAll;
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        painted += event->region();
        Grid::paintEvent(event);
    }
};

using anyGrid = watched<localVclGrid200123>;

inline std::unique_ptr<localVclGridColumn> column(const QString& caption, int width = 50,
                                                  const std::u16string& id = {},
                                                  const std::u16string& formula = {}) {
    auto made = std::make_unique<localVclGridColumn>();
    made->caption = caption;
    made->width = width;
    made->id = id;
    made->formula = formula;
    return made;
}

// Shows a window and waits until it is painted with the texts in view.
inline void show(QWidget& widget) {
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}
// Everything that waits in the event loop is done.
inline void settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

// The colour most common in a part of a picture.
inline QColor ground(const QImage& picture, const QRect& part) {
    QHash<QRgb, int> counts;
    QRgb most = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            const QRgb color = picture.pixel(x, y);
            if (++counts[color] > counts[most]) {
                most = color;
            }
        }
    }
    return QColor::fromRgb(most);
}
// Whether anything is drawn there.
inline bool hasInk(const QImage& picture, const QRect& part) {
    const QRgb first = picture.pixel(part.topLeft());
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (picture.pixel(x, y) != first) {
                return true;
            }
        }
    }
    return false;
}

inline void keys(QWidget& widget, std::initializer_list<Qt::Key> pressed,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (const Qt::Key key : pressed) {
        QTest::keyClick(&widget, key, modifiers);
    }
}

// Nobody is in the language while events are served, as in the program: a test that enters it takes
// a localTurn::Hold.
class test : public QObject {
    Q_OBJECT

protected:
    std::optional<boxRecordingHost<localVclHost>> host_;
    std::optional<localTurn::Pause> pause_;
    std::unique_ptr<localContextUTF8> scope_;

    // Grids are made under the turn.
    template <class Grid = anyGrid, class... Arguments>
    static std::unique_ptr<Grid> made(Arguments&&... arguments) {
        const localTurn::Hold turn;
        return std::make_unique<Grid>(std::forward<Arguments>(arguments)...);
    }
    template <class Grid>
    static void add(Grid& shown, std::unique_ptr<localVclGridColumn> described) {
        const localTurn::Hold turn;
        shown.addColumn(std::move(described));
    }
    template <class Grid>
    static QString text(Grid& shown, unsigned row, unsigned column) {
        const localTurn::Hold turn;
        return shown.cellText(row, column);
    }

protected slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
        addWhatKorvoIsMadeOf();
        localVclTurnInstall();
    }
    void init() {
        if (localContextUTF8::globalContext == nullptr) {
            static_cast<void>(new localContextUTF8);  // lives to the end of the process
        }
        scope_ = std::make_unique<localContextUTF8>();
        host_.emplace();
        pause_.emplace();
    }
    void cleanup() {
        pause_.reset();
        scope_.reset();
        host_.reset();
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }
};

}  // namespace gridTest
