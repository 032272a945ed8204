// A running form: built from its file, its module run in a scope of its own, its elements and
// fields bound to that scope. It is the object of class FORM, too, which a module sees as plain
// names.
//
// Whatever the form evaluates, a person may tell its window to close meanwhile, and another thread
// may have the language's turn. A window that cannot close yet closes as soon as it can. When it
// may, fields, elements and scope go at once, while the turn is there; what the toolkit destroys
// later is an empty widget.
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/value/localLiveObject.h"
#include "localVCL/window/localVclTurn.h"
#include "localVCL/window/localVclWindow.h"

class QAction;
class localClassDeclaration;
class localContextUTF8;
class localFormLayoutDesignerElementWidget;
class localFormMetadata;
class localFormScope;
class localValueList;
class localVclWidgetEdit;
struct localFormWidgetDescription;

class localForm : public QWidget, public localVclWindowContent {
    Q_OBJECT

public:
    // Opens a form file: runs its module, makes what stands in it and calls its event. Each item of
    // `parameters`, which may be null, becomes a variable first. On the windows' thread, with the
    // language's turn.
    localForm(std::u16string_view fileName, const localValueList* parameters);
    ~localForm() override;

    // The class FORM, which programs know as soon as a form was opened.
    static localClassDeclaration* classDeclaration();
    // The form that stands at an address, or to which the scope there belongs. Null for anything
    // else.
    static localForm* of(void* object);
    // Forms that stand, in the order of their opening. On the windows' thread.
    static const std::vector<localForm*>& opened();

    localContextUTF8* context() const;
    bool isModified() const { return modified_; }
    // Whether its module, a button, an event or a formula is at work.
    bool isInUse() const;

    // In the order of the file.
    const std::vector<localVclWidgetEdit*>& edits() const { return edits_; }
    const std::vector<localFormLayoutDesignerElementWidget*>& elements() const { return elements_; }

    // Shows the variables in the fields, and the formulas in labels and pictures.
    void refresh();

    // Asks whether the form may close.
    bool closeEventBefor();
    // Closes the window without a question.
    void closeUnasked();

    QList<QAction*> windowActions() override;
    bool windowMayClose() override;

signals:
    void varValueChanged();

public slots:
    void valueModifiedSlot();
    void userSettingsReadSlot();
    void userSettingsSaveSlot();

protected:
    virtual localVclWidgetEdit* editCreate(const std::u16string& name, localContextUTF8* context);
    // Calls the module's event, if it has one.
    virtual void afterCreateEvent();

    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void initParameters(const localValueList* parameters);
    void actionsMake();
    void moduleRun(const std::u16string& module);
    void widgetMake(const localFormWidgetDescription& record);
    void editMake(const localFormWidgetDescription& record);
    void variableMake(const localFormWidgetDescription& record);
    void tableDocumentMake(const std::u16string& name);
    void markModified();
    void leaveLanguage();
    void closeSoon();
    QWidget& ownWindow();

    // Keeps the form among those that stand.
    class Opened {
    public:
        explicit Opened(localForm* form);
        ~Opened();
        Opened(const Opened&) = delete;
        Opened& operator=(const Opened&) = delete;

    private:
        localForm* form_;
    };

    QAction* userSettingsSaveAct_ = nullptr;
    QAction* userSettingsReadAct_ = nullptr;
    std::shared_ptr<localFormScope> scope_;
    bool modified_ = false;
    bool asking_ = false;
    bool closeUnasked_ = false;
    bool closeWaits_ = false;
    std::vector<localVclWidgetEdit*> edits_;
    std::vector<localFormLayoutDesignerElementWidget*> elements_;
    localVclTurnWork closeWork_;
    std::optional<localLiveObject> alive_;
    std::optional<Opened> opened_;
};
