// A field of a form, bound to a variable of the language by its name.
//
// What the field is follows from the variable's value when the field is made: a number has an
// editor for numbers and a button to choose, a text a line; anything else is shown and cannot be
// changed.
//
// The operations halt the program where their variable is missing, " NULL==tmpVar in …": who made
// the field made the variable. A program may take it away later; so whatever a person or the form
// does looks first whether it stands, and a field without its variable rests.
#pragma once

#include <QFrame>
#include <QInputDialog>
#include <QPointer>

#include <functional>
#include <memory>
#include <string>

#include "localVCL/window/localVclTurn.h"

class QLineEdit;
class QPushButton;
class localContextUTF8;
class localValueDescription;

class localVclWidgetEdit : public QFrame {
    Q_OBJECT

public:
    enum class Button { open, choose };

    // The variable is made as an empty text where there is none. Without a context the field has
    // one of its own. Whoever makes a field has the language's turn.
    localVclWidgetEdit(const std::u16string& name, localContextUTF8* context,
                       QWidget* parent = nullptr);
    ~localVclWidgetEdit() override;

    const std::u16string& variableName() const { return name_; }
    QWidget* editor() const { return editor_; }
    QPushButton* button(Button button) const {
        return button == Button::open ? buttonOpen_ : buttonChoose_;
    }
    QInputDialog* selectionDialog() const { return dialog_; }

    // Makes the button, or takes it away; nothing is looked up for that.
    void buttonEnable(Button button, bool on);
    // Shows a text variable in the line, unless the person is in it, and the table document that a
    // variable holds now. Numbers are shown by their editor alone, also when a program has changed
    // them. Meant.
    void varRead();
    // As varRead, for the field of a variable that may have gone; when the turn can be had.
    void refresh();

    virtual void choose();
    virtual void open();

signals:
    void varValueChanged();

public slots:
    void buttonChooseClickSlot();
    void buttonOpenClickSlot();
    // Stores what was typed.
    void editingFinishedSlot();
    void SelectFormSignalAppliedSlot();
    void SelectFormSignalDestroyedSlot();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    localValueDescription* variable() const;
    // The variable's value; halts under the name of an operation.
    localValueDescription& variableFor(std::u16string_view operation) const;
    // Does what a person asks for, when the language's turn is there and the variable stands.
    void whenVariableStands(const std::function<void()>& work);
    void editorMake(const localValueDescription& value);
    // The sheet that a table document is, in place of the one before.
    void sheetShow(const localValueDescription& value);
    // Null in a field of a sheet.
    QLineEdit* line() const;

    std::unique_ptr<localContextUTF8> ownContext_;
    localContextUTF8* context_;
    std::u16string name_;
    QPointer<QInputDialog> dialog_;
    QPushButton* buttonOpen_ = nullptr;
    QPushButton* buttonChoose_ = nullptr;
    QWidget* editor_ = nullptr;
    const void* sheet_ = nullptr;  // the table document shown, only compared
    localVclTurnWork work_;
};
