#include "localDbVcl/manager/localModiStruDialog.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "localDbVcl/manager/localDbManager.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localVCL/text/localVclText.h"
#include "manager/localDbFieldsTab.h"
#include "manager/localDbIndexesTab.h"

namespace {

constexpr QSize dialogSize{600, 460};  // pixels

std::vector<std::u16string> namesOf(const localDb::Fields& fields) {
    std::vector<std::u16string> names;
    for (const localDbFieldDescription& field : fields) {
        names.push_back(field.getName());
    }
    return names;
}

}  // namespace

bool localModiStruDialog::canChange(const localDbObject& object) {
    return object.type == u"table" && !object.name.starts_with(u"sqlite_");
}

localModiStruDialog::localModiStruDialog(std::u16string_view connection,
                                         const localDbObject& object, const localDb::Fields& fields,
                                         QWidget* parent)
    : QDialog(parent),
      object_(object),
      tabs_(new QTabWidget),
      fieldsTab_(new localDbFieldsTab(fields, canChange(object))),
      declaration_(new QTextBrowser) {
    const QString name = localVclQString(object.name);
    setWindowTitle(localDbFieldDescription::areUnchanged(fields) ? name
                                                                 : QStringLiteral("[ * ] ") + name);
    tabs_->addTab(fieldsTab_, QStringLiteral("Fields"));
    tabs_->addTab(new localDbIndexesTab(connection, object, namesOf(fields), canChange(object)),
                  QStringLiteral("Indexes"));
    tabs_->addTab(declaration_, QStringLiteral("Table"));
    connect(tabs_, &QTabWidget::currentChanged, this, &localModiStruDialog::declarationShow);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &localModiStruDialog::slotOk);
    connect(buttons, &QDialogButtonBox::rejected, this, &localModiStruDialog::slotCancel);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    layout->addWidget(buttons);
    resize(dialogSize);
    fieldsTab_->setFocus();
}

localDb::Fields localModiStruDialog::fields() const {
    return fieldsTab_->fields();
}

void localModiStruDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    for (auto* const button : findChildren<QPushButton*>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }
}

// Return presses the button that has the focus and no other: a rebuild is not begun by a slip in a
// list.
void localModiStruDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
    } else if (auto* const button = qobject_cast<QPushButton*>(focusWidget())) {
        button->click();
    }
}

void localModiStruDialog::declarationShow() {
    declaration_->setHtml(
        localVclQString(dbFieldsDump(fields())) +
        QStringLiteral("<P STYLE=\"white-space: pre-wrap; font-family: monospace\">") +
        localVclQString(object_.sql).toHtmlEscaped() + QStringLiteral("</P>"));
}

void localModiStruDialog::slotOk() {
    // What is being typed into a cell belongs to it.
    fieldsTab_->setFocus();
    const QString fault = canChange(object_) ? fieldsTab_->fault() : QString();
    if (fault.isEmpty()) {
        accept();
        return;
    }
    tabs_->setCurrentWidget(fieldsTab_);
    localHost::current().report({.kind = localReport::Kind::warning,
                                 .title = object_.name,
                                 .text = fault.toStdU16String()});
}

void localModiStruDialog::slotCancel() {
    reject();
}
