// How often a widget is painted while its content changes fast.
//
// A program runs on the windows' thread, so a line that is not painted when it comes may stay
// unseen for as long as the program keeps silent afterwards; painting after each of many thousand
// lines, on the other hand, takes nearly all the time. So changes are painted at once as long as
// they come at the pace of a person, or in a burst of some screens, and beyond that as frames.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

class QWidget;

class localPaintRate {
public:
    // The widget is not owned and must stay.
    explicit localPaintRate(QWidget* widget);

    // Tells of a change, before the event loop runs.
    void changed();
    // Shows what there is before this returns.
    void paintNow();

private:
    QWidget* widget_;
    QTimer nextFrame_;
    QElapsedTimer sinceLastChange_;
    double framesAhead_;
};
