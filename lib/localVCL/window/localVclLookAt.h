// Windows that a person looks at and types nothing into.
#pragma once

#include <QString>

class QWidget;

// Shows the widget in a window of its own, which Esc closes. On the windows' thread only.
void localVclLookAt(QWidget* widget, const QString& title);
