// Files in the folder of a test.
#pragma once

#include <QtTest>

#include <QByteArray>
#include <QFile>
#include <QString>

namespace testFiles {

inline void write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

inline QByteArray read(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

}  // namespace testFiles
