#pragma once

#include <QString>

class QWidget;

// Saves a picture of a widget as <name>.png for a person to look at. False when it cannot be
// written.
bool saveScreenshot(QWidget& widget, const QString& name);
