// One element of a form: a button, field, frame, picture, label or table, as the designer draws it
// and as a running form uses it.
//
// The element is 5 pixels wider on every side than what it carries. In the designer grips stand
// there; in a running form nothing does, and clicks go to what lies below.
//
// In a running form labels and pictures show what their formula gives. It is evaluated by refresh()
// and behind a paint, never in it: a formula may open a box. Only what changed is painted.
#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "localForm/file/localFormMetadata.h"
#include "localVCL/window/localVclTurn.h"

class QLabel;
class localFormScope;
class localText;
class localVclTestWidgetValueTable200617;

class localFormLayoutDesignerElementWidget : public QWidget {
    Q_OBJECT

public:
    enum class Mode : std::int32_t { designer = 0, run = 1 };

    static constexpr int margin = 5;  // pixels around what it carries

    // `place` is that of what it carries. A running element evaluates in `scope`; a designer has
    // none.
    localFormLayoutDesignerElementWidget(localFormWidgetKind kind, const QRect& place, Mode mode,
                                         std::shared_ptr<localFormScope> scope, QWidget* parent);
    ~localFormLayoutDesignerElementWidget() override;

    localFormWidgetKind kind() const { return facts_.kind; }
    Mode mode() const { return mode_; }
    QWidget* carried() const { return carried_; }
    const std::u16string& formula() const { return facts_.formula; }

    // The facts of a file's record, as far as they mean something for the kind. Places stay.
    void describe(const localFormWidgetDescription& facts);
    // The facts as the file keeps them.
    localFormWidgetDescription description() const;

    // A label of the designer only keeps its caption.
    void captionSet(const std::u16string& caption);
    std::u16string caption() const;
    void fontSet(const QFont& font, const QColor& color);

    // Shows what the formula gives now, or as soon as the language's turn is free. A formula that
    // fails leaves what was shown last.
    void refresh();

signals:
    void varValueChanged();

public slots:
    // Runs the formula of a button.
    void userButtonClickedSlot();
    void emitVarValueChangedSlot();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* carriedOfKind();
    localVclTestWidgetValueTable200617* gridMade();
    // A layout that is none leaves the table as it was.
    void layoutSet(const std::u16string& details);
    void gripsAdd();
    bool isShownByFormula() const;
    void formulaShow();
    void textShow(const QString& text);
    QString designerText() const;

    Mode mode_;
    std::shared_ptr<localFormScope> scope_;
    localFormWidgetDescription facts_;  // but for places, and the caption of a button or frame
    QWidget* carried_ = nullptr;
    QLabel* frameCaption_ = nullptr;
    localVclTurnWork work_;
    bool refreshWaits_ = false;  // behind a paint
    bool paintIsOwn_ = false;    // the next paint is that of a text that was just shown
};
