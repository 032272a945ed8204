// Pictures as base64 text, and the pictures that came with the program. On the windows' thread
// only.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

// The picture that a base64 text holds, in any format the toolkit reads; null when it holds none.
QPixmap localVclPixmapFromBase64(QStringView text);
// The picture as base64 text of a PNG; empty for a null picture.
QString localVclPixmapToBase64(const QPixmap& pixmap);

// The folder of pictures that go before those built into the program: "E:\Work\4\lib\icons" if it
// is there, else the program's own.
QString localVclIconDirectory();
// A picture by its file name, from that folder or from the program.
QPixmap localVclPixmap(const QString& fileName);
// The program's own icon, "logoKV_3232.png".
QIcon localVclProgramIcon();
