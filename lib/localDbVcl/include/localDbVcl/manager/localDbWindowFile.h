// The file that a window was opened on, by the connection it works on.
#pragma once

#include <QString>

#include <string>

class localDbWindowFile {
public:
    explicit localDbWindowFile(std::u16string connection);

    // Whether the connection is not open for another file now.
    bool stands() const;
    // The same; a box tells when it is.
    bool check() const;

private:
    QString fileNow() const;

    std::u16string connection_;
    QString file_;
};
