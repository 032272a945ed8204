// The rows of a table, read from its start as far as somebody has looked.
//
// A statement that is left standing keeps the file from all who want to write, on other connections
// and in other programs, and a table from being dropped. So the model reads to the end of a
// statement: the first 255 rows, and each time more are wanted as many again as there are.
#pragma once

#include <QSqlError>
#include <QSqlQueryModel>

#include <string>

#include "localDbVcl/manager/localDbWindowFile.h"

class localDbtRowsModel : public QSqlQueryModel {
    Q_OBJECT

public:
    // Reads the first rows of a table on a connection of this thread.
    localDbtRowsModel(std::u16string_view connection, std::u16string_view tableWord,
                      QObject* parent = nullptr);

    // Valid when the last reading failed.
    QSqlError error() const;
    // Reads as many rows again as there are.
    void readAgain();
    const localDbWindowFile& file() const { return file_; }

    bool canFetchMore(const QModelIndex& parent = {}) const override;
    void fetchMore(const QModelIndex& parent = {}) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    // NULL and bytes by words; a text longer than that is cut.
    static QString shownText(const QVariant& value, qsizetype longest);
    // As the file holds it.
    QVariant value(const QModelIndex& index) const;

private:
    void read(int most);
    bool run(const QString& sql);

    std::u16string connection_;
    QString sql_;
    localDbWindowFile file_;
    bool isWhole_ = false;    // no row follows
    bool isReading_ = false;  // a statement is under way
};
