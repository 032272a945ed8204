#include "localForm/element/localFormLayoutDesignerElementWidget.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSizeGrip>

#include <algorithm>

#include "element/localFormFormula.h"
#include "localForm/element/localFormScope.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/grid/localVclTestWidgetValueTable200617.h"
#include "localVCL/picture/localVclImage.h"
#include "localVCL/text/localVclText.h"

namespace {

// Beyond any screen, and far from where the toolkit's sums of places overflow.
constexpr int farthest = 1000000;

QRect elementPlace(const QRect& carried) {
    const auto bound = [](int value) { return std::clamp(value, -farthest, farthest); };
    const int margin = localFormLayoutDesignerElementWidget::margin;
    return QRect(bound(carried.x()) - margin, bound(carried.y()) - margin,
                 std::max(bound(carried.width()), 0) + 2 * margin,
                 std::max(bound(carried.height()), 0) + 2 * margin);
}

// A line around, broken by the caption at its upper edge.
class CaptionedFrame final : public QWidget {
public:
    explicit CaptionedFrame(QWidget* parent) : QWidget(parent), frame_(new QFrame(this)) {
        constexpr int boxSunken = 49;
        frame_->setFrameStyle(boxSunken);
        frame_->setLineWidth(1);
        caption = new QLabel(this);
        caption->setTextFormat(Qt::PlainText);
        caption->setAutoFillBackground(true);
        caption->move(captionIndent, 0);
    }

    void captionShow(const QString& text) {
        caption->setText(text);
        caption->resize(text.isEmpty() ? QSize(0, 0) : caption->sizeHint());
        frameLay();
    }

    QLabel* caption;

protected:
    void resizeEvent(QResizeEvent*) override { frameLay(); }

private:
    static constexpr int captionIndent = 8;

    void frameLay() { frame_->setGeometry(rect().adjusted(0, caption->height() / 2, 0, 0)); }

    QFrame* frame_;
};

}  // namespace

localFormLayoutDesignerElementWidget::localFormLayoutDesignerElementWidget(
    localFormWidgetKind kind, const QRect& place, Mode mode, std::shared_ptr<localFormScope> scope,
    QWidget* parent)
    : QWidget(parent, mode == Mode::designer ? Qt::SubWindow : Qt::Widget),
      mode_(mode),
      scope_(std::move(scope)) {
    facts_.kind = kind;
    facts_.length = 0;
    setObjectName(QStringLiteral("localFormLayoutDesignerElementWidget"));
    carried_ = carriedOfKind();
    if (mode_ == Mode::designer) {
        gripsAdd();
    }
    setGeometry(elementPlace(place));
    if (kind == localFormWidgetKind::Frame) {
        lower();
    }
}

localFormLayoutDesignerElementWidget::~localFormLayoutDesignerElementWidget() {
    // What it carries looks at the scope to its end, and the scope ends with the turn.
    delete carried_;
    if (scope_ != nullptr) {
        const localTurn::Hold turn;
        scope_.reset();
    }
}

QWidget* localFormLayoutDesignerElementWidget::carriedOfKind() {
    switch (facts_.kind) {
        case localFormWidgetKind::Button: {
            auto* const button = new QPushButton(QStringLiteral("Button"), this);
            connect(button, &QPushButton::clicked, this,
                    &localFormLayoutDesignerElementWidget::userButtonClickedSlot);
            return button;
        }
        case localFormWidgetKind::Edit:
            return new QLineEdit(tr("Edit"), this);
        case localFormWidgetKind::Frame:
            return new CaptionedFrame(this);
        case localFormWidgetKind::Image:
            return new localVclImage(this);
        case localFormWidgetKind::Label: {
            auto* const label = new QLabel(QStringLiteral("Label"), this);
            label->setObjectName(QStringLiteral("localFormLayoutDesignerElementWidget::QLabel"));
            label->setTextFormat(Qt::PlainText);
            label->setWordWrap(true);
            return label;
        }
        case localFormWidgetKind::Table:
            return gridMade();
    }
    return new QLabel(QStringLiteral("unnknown"), this);
}

localVclTestWidgetValueTable200617* localFormLayoutDesignerElementWidget::gridMade() {
    constexpr int columnWidth = 100;
    const localTurn::Hold turn;
    if (scope_ == nullptr) {
        // In the designer the grid's table is a variable of nobody's.
        scope_ = std::make_shared<localFormScope>();
    }
    localValueDescription table;
    auto* const empty = new localValueTable;
    table.objectBind(empty, localValueTable::classDeclaration());
    empty->columnAdd(u"column");
    auto* const grid = new localVclTestWidgetValueTable200617(table, &scope_->context, this);
    auto column = std::make_unique<localVclGridColumn>();
    column->caption = QStringLiteral("Column1");
    column->width = columnWidth;
    grid->addColumn(std::move(column));
    connect(grid, &localVclTestWidgetValueTable200617::dataSousceIdChanged, this,
            &localFormLayoutDesignerElementWidget::emitVarValueChangedSlot);
    return grid;
}

void localFormLayoutDesignerElementWidget::layoutSet(const std::u16string& details) {
    facts_.details = details;
    const localTurn::Hold turn;
    localValueDescription layout;
    layout.setVal(localText(details));
    static_cast<localVclTestWidgetValueTable200617*>(carried_)->layoutReconfigureByJson(layout);
}

void localFormLayoutDesignerElementWidget::gripsAdd() {
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const int outer : {0, 2}) {
        layout->setColumnMinimumWidth(outer, margin);
        layout->setRowMinimumHeight(outer, margin);
    }
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);
    // The carried widget may become as small as the element, whatever it would like.
    carried_->setMinimumSize(1, 1);
    carried_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    layout->addWidget(carried_, 1, 1);
    QPalette transparent;
    transparent.setColor(QPalette::Window, Qt::transparent);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            if (row == 1 && column == 1) {
                continue;
            }
            auto* const grip = new QSizeGrip(this);
            grip->setObjectName(objectName() + QStringLiteral("::QSizeGrip.") +
                                QString::number(row) + QString::number(column));
            grip->setFixedSize(margin, margin);
            grip->setEnabled(false);
            grip->setPalette(transparent);
            layout->addWidget(grip, row, column, Qt::AlignCenter);
        }
    }
}

void localFormLayoutDesignerElementWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (mode_ == Mode::run) {
        const QRect inner = rect().adjusted(margin, margin, -margin, -margin);
        carried_->setGeometry(inner);
        if (!inner.isEmpty()) {
            setMask(inner);
        }
    }
}

void localFormLayoutDesignerElementWidget::describe(const localFormWidgetDescription& facts) {
    facts_.identifier = facts.identifier;
    const std::uint32_t mask = localFormPropertyMask(facts_.kind);
    if ((mask & localFormPropertyFORMULA) != 0) {
        facts_.formula = facts.formula;
    }
    if ((mask & localFormPropertyCAPTION) != 0) {
        captionSet(facts.caption);
    }
    if ((mask & localFormPropertyFONT) != 0) {
        fontSet(facts.font, facts.fontColor);
    }
    if (facts_.kind == localFormWidgetKind::Edit) {
        facts_.valueType = facts.valueType;
        facts_.length = facts.length;
        facts_.decimals = facts.decimals;
        facts_.unlimited = facts.unlimited;
        facts_.multiline = facts.multiline;
    }
    if (facts_.kind == localFormWidgetKind::Table) {
        layoutSet(facts.details);
    }
}

localFormWidgetDescription localFormLayoutDesignerElementWidget::description() const {
    localFormWidgetDescription facts = facts_;
    facts.x = x() + margin;
    facts.y = y() + margin;
    facts.width = width() - 2 * margin;
    facts.height = height() - 2 * margin;
    facts.caption = caption();
    if ((localFormPropertyMask(facts_.kind) & localFormPropertyFONT) != 0) {
        facts.font = carried_->font();
        facts.fontColor = carried_->palette().color(carried_->foregroundRole());
    }
    return facts;
}

void localFormLayoutDesignerElementWidget::captionSet(const std::u16string& caption) {
    facts_.caption = caption;
    const QString text = localVclQString(caption);
    switch (facts_.kind) {
        case localFormWidgetKind::Button:
            static_cast<QPushButton*>(carried_)->setText(text);
            break;
        case localFormWidgetKind::Frame:
            static_cast<CaptionedFrame*>(carried_)->captionShow(text);
            break;
        case localFormWidgetKind::Label:
            if (mode_ == Mode::run) {
                textShow(text);
            }
            break;
        default:
            break;
    }
}

std::u16string localFormLayoutDesignerElementWidget::caption() const {
    switch (facts_.kind) {
        case localFormWidgetKind::Button:
            return static_cast<QPushButton*>(carried_)->text().toStdU16String();
        case localFormWidgetKind::Frame:
            return static_cast<CaptionedFrame*>(carried_)->caption->text().toStdU16String();
        default:
            return facts_.caption;
    }
}

void localFormLayoutDesignerElementWidget::fontSet(const QFont& font, const QColor& color) {
    QFont shown = font;
    if (shown.family().isEmpty()) {
        shown.setFamilies(QFont().families());
    }
    carried_->setFont(shown);
    if (color.isValid()) {
        QPalette palette = carried_->palette();
        palette.setColor(carried_->foregroundRole(), color);
        carried_->setPalette(palette);
    }
}

bool localFormLayoutDesignerElementWidget::isShownByFormula() const {
    return mode_ == Mode::run && scope_ != nullptr && !facts_.formula.empty() &&
           (facts_.kind == localFormWidgetKind::Image || facts_.kind == localFormWidgetKind::Label);
}

void localFormLayoutDesignerElementWidget::refresh() {
    if (isShownByFormula()) {
        work_.ask([this] { formulaShow(); });
    } else if (facts_.kind == localFormWidgetKind::Table) {
        // It looks anew at what its variable holds.
        static_cast<localVclTestWidgetValueTable200617*>(carried_)->refresh();
    }
}

void localFormLayoutDesignerElementWidget::formulaShow() {
    // The work may outlive this element.
    const QPointer<localFormLayoutDesignerElementWidget> stands(this);
    const std::optional<std::u16string> given = localFormFormulaValue(scope_, facts_.formula);
    if (stands && given) {
        textShow(localVclQString(*given));
    }
}

void localFormLayoutDesignerElementWidget::textShow(const QString& text) {
    if (auto* const image = qobject_cast<localVclImage*>(carried_)) {
        if (image->pictureAsBase64() != text) {
            image->pictureAsBase64Set(text);
            paintIsOwn_ = true;
        }
    } else if (auto* const label = qobject_cast<QLabel*>(carried_); label->text() != text) {
        label->setText(text);
        paintIsOwn_ = true;
    }
}

// What a label of the designer shows.
QString localFormLayoutDesignerElementWidget::designerText() const {
    if (!facts_.caption.empty()) {
        return localVclQString(facts_.caption);
    }
    if (!facts_.identifier.empty()) {
        return u'<' + localVclQString(facts_.identifier) + u'>';
    }
    return facts_.formula.empty()
               ? QString()
               : QStringLiteral("<<") + localVclQString(facts_.formula) + QStringLiteral(">>");
}

void localFormLayoutDesignerElementWidget::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (mode_ == Mode::designer) {
        if (facts_.kind == localFormWidgetKind::Label) {
            textShow(designerText());
        }
        return;
    }
    // Who paints because the text has just changed does not ask for the text again: a formula that
    // gives something else each time would be painted without end.
    if (!std::exchange(paintIsOwn_, false) && isShownByFormula() && !refreshWaits_) {
        refreshWaits_ = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                refreshWaits_ = false;
                refresh();
            },
            Qt::QueuedConnection);
    }
}

void localFormLayoutDesignerElementWidget::userButtonClickedSlot() {
    if (mode_ != Mode::run || scope_ == nullptr) {
        return;
    }
    const localTurn::Hold turn;
    const QPointer<localFormLayoutDesignerElementWidget> stands(this);
    const localFormScope::Use use(scope_);
    if (!localFormFormulaRun(scope_, facts_.formula) && stands) {
        static_cast<QPushButton*>(carried_)->setText(QStringLiteral("Error!!!"));
    }
    if (stands) {
        emit varValueChanged();
    }
}

void localFormLayoutDesignerElementWidget::emitVarValueChangedSlot() {
    emit varValueChanged();
}
