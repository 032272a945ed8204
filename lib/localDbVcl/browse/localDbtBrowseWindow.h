// The window of a browse.
#pragma once

#include <QString>

class localDbtBrowseWidget200123;

// Shows a browse in a window of its own, which owns it and grows no higher than it may.
void localDbtBrowseShow(localDbtBrowseWidget200123* browse, const QString& title,
                        bool modal = false);
