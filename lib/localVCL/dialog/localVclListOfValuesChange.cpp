#include "localVCL/dialog/localVclListOfValuesChange.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <limits>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr int fieldWidth = 240;    // pixels, at least
constexpr int captionWidth = 280;  // pixels, at most

QLabel* captionOf(const localText& presentation) {
    auto* const caption =
        new QLabel(QStringLiteral("<B>") + localVclQString(presentation).toHtmlEscaped() +
                   QStringLiteral("</B>"));
    caption->setTextFormat(Qt::RichText);
    if (caption->sizeHint().width() > captionWidth) {
        caption->setWordWrap(true);
        caption->setFixedWidth(captionWidth);
    }
    return caption;
}

// A number with a point; a comma, which a person may be used to, becomes one. A point typed before
// that of the old number takes all behind the cursor away, as in localVclEditWidgetNumeric: 7.99
// typed in front of 0.99 is 7.99.
class NumberValidator : public QDoubleValidator {
public:
    explicit NumberValidator(QObject* parent) : QDoubleValidator(parent) {
        QLocale plain = QLocale::c();
        plain.setNumberOptions(QLocale::RejectGroupSeparator);
        setLocale(plain);
    }

    State validate(QString& input, int& cursor) const override {
        input.replace(u',', u'.');
        const qsizetype point = input.indexOf(u'.');
        if (point >= 0 && point == cursor - 1 && input.indexOf(u'.', cursor) >= 0) {
            input.truncate(cursor);
        }
        return QDoubleValidator::validate(input, cursor);
    }
};

// The shortest text that is read back as the same number.
QString numberText(double number) {
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

}  // namespace

DemoDialogForListOfValuesChange::DemoDialogForListOfValuesChange(const QString& title,
                                                                 const localValueDescription& list,
                                                                 QWidget* parent)
    : QDialog(parent), list_(list) {
    setWindowTitle(title);
    auto* const rows = new QWidget;
    auto* const form = new QFormLayout(rows);
    QWidget* first = nullptr;
    if (const localValueList* const values = localValueList::of(list_)) {
        for (const localValueListItem& item : values->items()) {
            QWidget* const field = fieldOf(item.value, writes_.emplace_back());
            // No buddy: it would make "&" in a caption a sign for a key.
            form->addRow(captionOf(item.presentation), field);
            first = first == nullptr ? field : first;
        }
    }
    // A long list scrolls; the buttons stay in sight.
    auto* const scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(rows);
    // Rows are in sight as a whole, also beside the scroll bar.
    scroll->setMinimumWidth(rows->minimumSizeHint().width() +
                            scroll->verticalScrollBar()->sizeHint().width());

    auto* const buttons = new QDialogButtonBox(this);
    const auto addButton = [&](const QString& text, QDialogButtonBox::ButtonRole role) {
        return buttons->addButton(text, role);
    };
    QPushButton* const ok = addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &DemoDialogForListOfValuesChange::okSlot);
    connect(addButton(QStringLiteral("Apply"), QDialogButtonBox::ApplyRole), &QPushButton::clicked,
            this, &DemoDialogForListOfValuesChange::applied1Slot);
    addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(scroll);
    layout->addWidget(buttons);
    if (first != nullptr) {
        first->setFocus();
    }
}

QWidget* DemoDialogForListOfValuesChange::fieldOf(const localValueDescription& value,
                                                  Write& write) {
    switch (value.type) {
        case localValueTypeNUMBER:
            return lineOf(numberText(value.num), true, write);
        case localValueTypeSTRING:
            return lineOf(localVclQString(value.wStr), false, write);
        case localValueTypeBOOLEAN:
            return boxOf(value.num != 0, write);
        default: {
            auto* const line = new QLineEdit(localVclQString(value.toString()));
            line->setReadOnly(true);
            line->setMinimumWidth(fieldWidth);
            line->setCursorPosition(0);
            return line;
        }
    }
}

QWidget* DemoDialogForListOfValuesChange::lineOf(const QString& text, bool isNumber, Write& write) {
    auto* const line = new QLineEdit;
    // The line's own limit would cut a long text.
    line->setMaxLength(std::numeric_limits<int>::max());
    line->setText(text);
    line->setMinimumWidth(fieldWidth);
    if (isNumber) {
        line->setValidator(new NumberValidator(line));
        line->setAlignment(Qt::AlignRight);
    }
    write = [line, isNumber](localValueDescription& value) {
        if (!line->isModified()) {
            return;
        }
        const QString changed = line->text();
        if (isNumber) {
            value.setVal(numberFromText(localVclText(changed)));
        } else {
            value.setVal(localText(localVclText(changed)));
        }
        line->setModified(false);
    };
    return line;
}

QWidget* DemoDialogForListOfValuesChange::boxOf(bool ticked, Write& write) {
    auto* const box = new QCheckBox;
    box->setChecked(ticked);
    write = [box, before = ticked](localValueDescription& value) mutable {
        if (box->isChecked() != before) {
            before = box->isChecked();
            value.setBoolean(before);
        }
    };
    return box;
}

DemoDialogForListOfValuesChange::~DemoDialogForListOfValuesChange() {
    // The list may go with the dialog's link.
    const localTurn::Hold turn;
    list_.reset();
}

void DemoDialogForListOfValuesChange::applied1Slot() {
    traceLine(u"applied1Slot", NUME);
    writeChanges();
    emit applied();
    emit applied1(this);
}

void DemoDialogForListOfValuesChange::writeChanges() {
    const localTurn::Hold turn;
    localValueList* const values = localValueList::of(list_);
    // The list may have become shorter since.
    for (std::size_t i = 0; i < writes_.size() && i < values->size(); ++i) {
        if (writes_[i]) {
            writes_[i](values->valueAt(i + 1));
        }
    }
}

void DemoDialogForListOfValuesChange::okSlot() {
    applied1Slot();
    accept();
}
