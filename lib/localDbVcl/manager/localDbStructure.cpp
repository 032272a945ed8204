// A table is built anew with other fields, and gets back what went with the old one.

#include <QApplication>
#include <QRegularExpression>

#include "localDbVcl/manager/localDbManager.h"
#include "localDbVcl/manager/localDbtQTableView.h"
#include "localDbVcl/manager/localModiStruDialog.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localVCL/text/localVclText.h"

namespace {

using Button = localReport::Button;
using Fields = localDb::Fields;

bool areSameColumns(const Fields& before, const Fields& wanted) {
    return std::equal(before.begin(), before.end(), wanted.begin(), wanted.end(),
                      [](const localDbFieldDescription& old, const localDbFieldDescription& field) {
                          return old.sqlName == field.sqlName;
                      });
}

// What stands in a declaration and is lost, since a table is built from names, types and lengths.
QStringList lostWords(const std::u16string& declaration) {
    static const QRegularExpression decimals(QStringLiteral("\\(\\s*\\d+\\s*,\\s*\\d+\\s*\\)"));
    const QString text = localVclQString(declaration).simplified();
    QStringList lost;
    if (text.contains(decimals)) {
        lost.append(QStringLiteral("decimals"));
    }
    for (const char* const words : {"NOT NULL", "DEFAULT", "UNIQUE", "CHECK", "REFERENCES",
                                    "COLLATE", "GENERATED", "STRICT", "WITHOUT ROWID"}) {
        const QRegularExpression found(QStringLiteral("\\b%1\\b").arg(QLatin1String(words)),
                                       QRegularExpression::CaseInsensitiveOption);
        if (text.contains(found)) {
            lost.append(QLatin1String(words));
        }
    }
    return lost;
}

// What goes with a table: statements that make some of it anew, names of all.
struct Companions {
    std::vector<std::u16string> statements;
    QStringList returning;
    QStringList lost;
};

bool companionsOf(std::u16string_view connection, const localDbObject& table, const Fields& wanted,
                  Companions& companions) {
    std::vector<localDbObject> objects;
    if (!localDb::dbObjectsGet(connection, objects)) {
        return false;
    }
    for (const localDbObject& object : objects) {
        if (object.table != table.name || (object.type != u"index" && object.type != u"trigger")) {
            continue;
        }
        std::u16string statement = localDb::dbObjectStatement(connection, object, wanted);
        const QString words = localVclQString(object.type + u" " + object.name);
        (statement.empty() ? companions.lost : companions.returning).append(words);
        if (!statement.empty()) {
            companions.statements.push_back(std::move(statement));
        }
    }
    return true;
}

// Tells what a rebuild costs. Cancel: no rebuild; No: what could be made anew is not.
Button ask(const localDbObject& table, const Companions& companions) {
    const QStringList words = lostWords(table.sql);
    if (companions.returning.isEmpty() && companions.lost.isEmpty() && words.isEmpty()) {
        return Button::yes;
    }
    const QString name = localVclQString(table.name);
    const QString lineEnd = QStringLiteral("\n");
    QString text = QStringLiteral("Table %1 will be built anew.\n").arg(name);
    if (!words.isEmpty()) {
        text += QStringLiteral("\nNot kept of its declaration: %1\n")
                    .arg(words.join(QStringLiteral(", ")));
    }
    if (!companions.lost.isEmpty()) {
        text += QStringLiteral("\nGone for good:\n%1\n").arg(companions.lost.join(lineEnd));
    }
    localReport question{.kind = localReport::Kind::question,
                         .title = u"dbtAlter",
                         .buttons = {Button::ok, Button::cancel},
                         .defaultButton = Button::cancel};
    if (!companions.returning.isEmpty()) {
        text += QStringLiteral("\nThese go with the old table:\n%1\n\nMake them anew?")
                    .arg(companions.returning.join(lineEnd));
        question.buttons = {Button::yes, Button::no, Button::cancel};
        question.defaultButton = Button::yes;
    }
    question.text = text.toStdU16String();
    return localHost::current().report(question);
}

// As they stand in statements. A new field has no column to take its values from.
Fields asWords(const Fields& fields) {
    Fields words = fields;
    for (localDbFieldDescription& field : words) {
        field.name = localDb::nameWord(field.name);
        field.sqlName =
            field.sqlName.empty() ? std::u16string(u"NULL") : localDb::nameWord(field.sqlName);
    }
    return words;
}

void rebuild(std::u16string_view connection, const localDbObject& table, const Fields& wanted) {
    Companions companions;
    if (!companionsOf(connection, table, wanted, companions)) {
        return;
    }
    const Button answer = ask(table, companions);
    if (answer == Button::cancel) {
        return;
    }
    if (localDb::dbtAlter(connection, localDb::nameWord(table.name), asWords(wanted)) &&
        answer != Button::no) {
        for (const std::u16string& statement : companions.statements) {
            localDb::dbObjectMake(connection, statement);
        }
    }
    localDbtQTableView::tableChanged(connection, table.name);
}

}  // namespace

void dbStructureModify(std::u16string_view connection, const localDbObject& object) {
    const Fields before =
        localDb::dbtFieldsDescriptionsGet(connection, localDb::nameWord(object.name));
    localModiStruDialog dialog(connection, object, before, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted || !localModiStruDialog::canChange(object)) {
        return;
    }
    // Fields taken out or put in another order are changes, too.
    const Fields wanted = dialog.fields();
    if (!localDbFieldDescription::areUnchanged(wanted) || !areSameColumns(before, wanted)) {
        rebuild(connection, object, wanted);
    }
}
