#include "localForm/edit/localVclWidgetEdit.h"

#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QPushButton>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localSxlVcl/sheet/localSxl.h"
#include "localVCL/edit/localVclEditWidgetNumeric.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr std::u16string_view tableDocumentClass = u"TABLEDOCUMENT";
constexpr int numberLength = 12;
constexpr int numberDecimals = 3;
constexpr double largestChosen = 2000000000;

QString asFixed(double number) {
    return QString::number(number, 'f', numberDecimals);
}

}  // namespace

localVclWidgetEdit::localVclWidgetEdit(const std::u16string& name, localContextUTF8* context,
                                       QWidget* parent)
    : QFrame(parent), context_(context), name_(trimBoth(name)) {
    constexpr int panelSunken = 50;
    setObjectName(QStringLiteral("localVclEditWidget ") + localVclQString(name_));
    setFrameStyle(panelSunken);
    setLineWidth(2);
    setMidLineWidth(2);
    // An editor lower than the field stands in the same white.
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    buttonEnable(Button::open, false);
    buttonEnable(Button::choose, false);
    if (context_ == nullptr) {
        traceLine(u"start context = 0 !!!", "localVclWidgetEdit");
        ownContext_ = std::make_unique<localContextUTF8>();
        context_ = ownContext_.get();
    }
    if (variable() == nullptr) {
        context_->varDeclare(name_).value->setVal(localText());
    }
    editorMake(variableFor(u"localVclWidgetEdit"));
}

localVclWidgetEdit::~localVclWidgetEdit() {
    // Their last signals find this object whole.
    delete dialog_;
    editor_->disconnect(this);
    if (ownContext_ != nullptr) {
        const localTurn::Hold turn;
        ownContext_.reset();
    }
}

void localVclWidgetEdit::editorMake(const localValueDescription& value) {
    if (isClass(value, tableDocumentClass)) {
        sheetShow(value);
        return;
    }
    if (value.type == localValueTypeNUMBER) {
        auto* const numeric = new localVclEditWidgetNumeric(numberLength, numberDecimals, true,
                                                            asFixed(value.num), this);
        numeric->setObjectName(QStringLiteral("localVclEditWidget::localVclLineEditNumeric ") +
                               localVclQString(name_));
        editor_ = numeric;
        buttonEnable(Button::choose, true);
    } else {
        auto* const edit = new QLineEdit(localVclQString(value.toString()), this);
        edit->setFrame(false);
        edit->setReadOnly(value.type != localValueTypeSTRING);
        edit->setObjectName(QStringLiteral("localVclEditWidget::QLineEdit ") +
                            localVclQString(name_));
        edit->setCursorPosition(0);
        editor_ = edit;
    }
    connect(line(), &QLineEdit::editingFinished, this,
            [this] { whenVariableStands([this] { editingFinishedSlot(); }); });
    static_cast<QHBoxLayout*>(layout())->insertWidget(0, editor_, 1);
    setFocusProxy(editor_);
}

void localVclWidgetEdit::sheetShow(const localValueDescription& value) {
    auto* const sheet = new localSxl(value, this);
    sheet->setFocusPolicy(Qt::StrongFocus);
    static_cast<QHBoxLayout*>(layout())->insertWidget(0, sheet, 1);
    setFocusProxy(sheet);
    if (editor_ != nullptr) {
        // It may be at work: a program took its sheet away at a key in it.
        editor_->hide();
        editor_->deleteLater();
    }
    editor_ = sheet;
    sheet_ = value.pointer;
}

QLineEdit* localVclWidgetEdit::line() const {
    return qobject_cast<QLineEdit*>(editor_);
}

localValueDescription* localVclWidgetEdit::variable() const {
    localVariableEntry* const entry = context_->varFind(name_);
    return entry == nullptr ? nullptr : entry->value.get();
}

localValueDescription& localVclWidgetEdit::variableFor(std::u16string_view operation) const {
    localValueDescription* const value = variable();
    if (value == nullptr) {
        exit_FAILURE(std::u16string(u" NULL==tmpVar in localVclWidgetEdit::")
                         .append(operation)
                         .append(u"()"));
    }
    return *value;
}

void localVclWidgetEdit::whenVariableStands(const std::function<void()>& work) {
    const localTurn::Hold turn;
    if (variable() != nullptr) {
        work();
    }
}

void localVclWidgetEdit::buttonEnable(Button button, bool on) {
    QPushButton*& pointer = button == Button::open ? buttonOpen_ : buttonChoose_;
    delete std::exchange(pointer, nullptr);
    if (!on) {
        return;
    }
    variableFor(u"buttonEnable");
    const bool isOpen = button == Button::open;
    pointer = new QPushButton(isOpen ? QStringLiteral("0") : QStringLiteral(".."), this);
    pointer->setObjectName(QStringLiteral("localVclEditWidget::button") +
                           (isOpen ? QStringLiteral("Open") : QStringLiteral("Choose")) +
                           localVclQString(name_));
    // A click leaves the line first, so that what was typed there is stored.
    pointer->setFocusPolicy(Qt::ClickFocus);
    pointer->setFixedWidth(pointer->fontMetrics().horizontalAdvance(pointer->text()) +
                           pointer->fontMetrics().height());
    pointer->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    if (isOpen) {
        connect(pointer, &QPushButton::pressed, this,
                [this] { whenVariableStands([this] { buttonOpenClickSlot(); }); });
    } else {
        connect(pointer, &QPushButton::pressed, this,
                [this] { whenVariableStands([this] { buttonChooseClickSlot(); }); });
    }
    layout()->addWidget(pointer);
}

void localVclWidgetEdit::varRead() {
    const localValueDescription& value = variableFor(u"varRead");
    if (sheet_ != nullptr && isClass(value, tableDocumentClass) && value.pointer != sheet_) {
        sheetShow(value);
    }
    if (line() == nullptr || value.type != localValueTypeSTRING || line()->hasFocus() ||
        name_.empty()) {
        return;
    }
    const QString text = localVclQString(value.wStr);
    if (line()->text() != text) {
        line()->setText(text);
        line()->setCursorPosition(0);
    }
}

void localVclWidgetEdit::refresh() {
    work_.ask([this] {
        if (variable() != nullptr) {
            varRead();
        }
    });
}

void localVclWidgetEdit::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    refresh();
}

void localVclWidgetEdit::editingFinishedSlot() {
    localValueDescription& value = variableFor(u"editingFinishedSlot");
    if (line() == nullptr) {
        return;
    }
    const QString text = line()->text();
    if (value.type == localValueTypeNUMBER) {
        const double number = text.toDouble();
        // A number of more decimals than the field shows stays whole when nobody has changed it.
        if (number != value.num && number != asFixed(value.num).toDouble()) {
            value.setVal(number);
            emit varValueChanged();
        }
    } else if (value.type == localValueTypeSTRING) {
        if (!name_.empty()) {
            value.setVal(localText(localVclText(text)));
        }
        emit varValueChanged();
    }
}

void localVclWidgetEdit::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn) {
        const QPointer<localVclWidgetEdit> stands(this);
        emit varValueChanged();
        if (stands) {
            whenVariableStands([this] { editingFinishedSlot(); });
        }
    } else if (event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier) {
        whenVariableStands([this] { buttonChooseClickSlot(); });
    } else {
        QFrame::keyPressEvent(event);
    }
}

void localVclWidgetEdit::buttonChooseClickSlot() {
    choose();
}

void localVclWidgetEdit::buttonOpenClickSlot() {
    if (dialog_ == nullptr) {
        open();
        return;
    }
    const localValueDescription& value = variableFor(u"buttonOpenClickSlot");
    dialog_->setDoubleValue(value.toNumber());
    dialog_->show();
    dialog_->activateWindow();
}

void localVclWidgetEdit::choose() {
    const localValueDescription& value = variableFor(u"choose");
    if (value.type != localValueTypeNUMBER) {
        return;
    }
    if (dialog_ != nullptr) {
        // It has been forgotten behind another window.
        dialog_->activateWindow();
        return;
    }
    dialog_ = new QInputDialog(this);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    dialog_->setInputMode(QInputDialog::DoubleInput);
    dialog_->setDoubleDecimals(numberDecimals);
    dialog_->setDoubleRange(-largestChosen, largestChosen);
    dialog_->setDoubleValue(value.num);
    dialog_->setWindowTitle(QStringLiteral("Проба QInputDialog"));
    dialog_->setLabelText(QStringLiteral("Ввести число:"));
    connect(dialog_, &QInputDialog::accepted, this,
            [this] { whenVariableStands([this] { SelectFormSignalAppliedSlot(); }); });
    connect(dialog_, &QInputDialog::destroyed, this,
            &localVclWidgetEdit::SelectFormSignalDestroyedSlot);
    dialog_->setFocus();
    dialog_->show();
}

void localVclWidgetEdit::open() {
    traceLine(localVclText(objectName()), "open");
}

void localVclWidgetEdit::SelectFormSignalAppliedSlot() {
    const localValueDescription& value = variableFor(u"SelectFormSignalAppliedSlot");
    if (line() == nullptr) {
        return;
    }
    if (value.type == localValueTypeNUMBER) {
        if (auto* const numeric = qobject_cast<localVclEditWidgetNumeric*>(editor_)) {
            // Six digits, whatever was chosen. Meant.
            numeric->numberShow(QString::number(dialog_->doubleValue(), 'g', 6));
        }
    } else if (value.type == localValueTypeSTRING) {
        line()->setText(dialog_->textValue());
    }
    line()->selectAll();
    line()->setFocus();
    editingFinishedSlot();
}

void localVclWidgetEdit::SelectFormSignalDestroyedSlot() {
    dialog_ = nullptr;
}
