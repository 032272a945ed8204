// A window with one text, plain or HTML, whose links lead to text files.
//
// Files are read in CP1251 and shown in the place of the text before. A link to a name that was
// shown already, "#name", moves inside the present text.
#pragma once

#include <QStringList>
#include <QTextBrowser>
#include <QUrl>

class localVclTextBrowser : public QTextBrowser {
    Q_OBJECT

public:
    // Shows its start page, which names the ways to help.
    explicit localVclTextBrowser(QWidget* parent = nullptr);

    // Names of the files that were shown, in order.
    const QStringList& names() const { return names_; }
    // The present one's place in names(); -1 as long as no file was shown.
    qsizetype current() const { return current_; }

public slots:
    // Follows a link. A file that cannot be read gives the text "Ошибка чтения файла!" and is no
    // name.
    void onAnchorClicked(const QUrl& link);

private:
    QStringList names_;
    qsizetype current_ = -1;
};
