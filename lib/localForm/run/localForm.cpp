#include "localForm/run/localForm.h"

#include <QAction>
#include <QFocusEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include <algorithm>

#include "localForm/edit/localVclWidgetEdit.h"
#include "localForm/element/localFormLayoutDesignerElementWidget.h"
#include "localForm/element/localFormScope.h"
#include "localForm/file/localFormMetadata.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/picture/localVclPicture.h"
#include "localVCL/text/localVclText.h"
#include "run/localDialogFormSettingsSave.h"

namespace {

constexpr std::u16string_view tableDocumentClass = u"TABLEDOCUMENT";
constexpr std::u16string_view tableDocumentType = u"Табличный документ";

std::vector<localForm*> openedForms;

localValueDescription& variableOf(localContextUTF8& context, std::u16string_view name) {
    localContextUTF8* holder = nullptr;
    localVariableEntry* const entry = context.varFind(name, &holder);
    return entry != nullptr && holder == &context ? *entry->value : *context.varDeclare(name).value;
}

}  // namespace

localForm::localForm(std::u16string_view fileName, const localValueList* parameters)
    : scope_(std::make_shared<localFormScope>()),
      alive_(std::in_place, this, localLiveObject::Kind::form),
      opened_(std::in_place, this) {
    scope_->left = [this] {
        if (std::exchange(closeWaits_, false)) {
            closeSoon();
        }
    };
    const std::shared_ptr<localFormScope> scope = scope_;
    const localFormScope::Use use(scope);
    const localFormMetadata metadata(fileName);
    scope->context.ceatorSet(this);
    scope->context.methodsImport(*classDeclaration());
    initParameters(parameters);
    actionsMake();
    resize(200, 200);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    moduleRun(metadata.module);
    for (const auto& record : metadata.widgets) {
        widgetMake(*record);
    }
    const QSize desktop = screen()->availableSize();
    resize(std::int64_t{metadata.w} * metadata.h != 0
               ? QSize(metadata.w, metadata.h).boundedTo(desktop * 4)
               : desktop / 2);
    // The window that is active now gets the mark, and this form's own, which there is not yet,
    // never does. Meant.
    markModified();
    refresh();
    update();
    resize(size());
    // A derived form has no say in its making yet.
    localForm::afterCreateEvent();
}

localForm::~localForm() {
    leaveLanguage();
}

localForm::Opened::Opened(localForm* form) : form_(form) {
    openedForms.push_back(form);
}

localForm::Opened::~Opened() {
    std::erase(openedForms, form_);
}

// The elements first: their grids have scopes inside the form's.
void localForm::leaveLanguage() {
    if (scope_ == nullptr) {
        return;
    }
    const localTurn::Hold turn;
    scope_->left = nullptr;
    for (localVclWidgetEdit* const edit : std::exchange(edits_, {})) {
        delete edit;
    }
    for (localFormLayoutDesignerElementWidget* const element : std::exchange(elements_, {})) {
        delete element;
    }
    alive_.reset();
    opened_.reset();
    scope_.reset();
}

localForm* localForm::of(void* object) {
    if (localContextUTF8::isAlive(object)) {
        object = static_cast<localContextUTF8*>(object)->creator();
    }
    return localLiveObject::stands(object, localLiveObject::Kind::form)
               ? static_cast<localForm*>(object)
               : nullptr;
}

const std::vector<localForm*>& localForm::opened() {
    return openedForms;
}

localContextUTF8* localForm::context() const {
    return scope_ == nullptr ? nullptr : &scope_->context;
}

bool localForm::isInUse() const {
    return scope_ != nullptr && scope_->isInUse();
}

void localForm::initParameters(const localValueList* parameters) {
    if (parameters == nullptr) {
        return;
    }
    for (const auto& [name, value] : parameters->items()) {
        traceLine({name, u" = ", value.toString()}, "initParameters");
        variableOf(scope_->context, name).assign(value);
    }
}

void localForm::actionsMake() {
    constexpr int side = 16;
    const QPixmap icons = localVclPixmap(QStringLiteral("204.bmp"));
    const auto icon = [&](int x) { return QIcon(icons.copy(x, 0, side, side)); };
    userSettingsSaveAct_ = new QAction(icon(side), QStringLiteral("&userSettingsSave"), this);
    userSettingsSaveAct_->setStatusTip(QStringLiteral("userSettingsSavegrid"));
    connect(userSettingsSaveAct_, &QAction::triggered, this, &localForm::userSettingsSaveSlot);
    userSettingsReadAct_ = new QAction(icon(0), QStringLiteral("&userSettingsReadAct"), this);
    userSettingsReadAct_->setStatusTip(QStringLiteral("userSettingsReadActgrid"));
    connect(userSettingsReadAct_, &QAction::triggered, this, &localForm::userSettingsReadSlot);
}

QList<QAction*> localForm::windowActions() {
    return {userSettingsSaveAct_, userSettingsReadAct_};
}

void localForm::moduleRun(const std::u16string& module) {
    writeLine(u"Начинаю выполнять!!!");
    int status = localErrorTypeOK;
    const bool ran = textExec(status, module, &scope_->context);
    writeLine(ran ? u"Выполнил!!!" : u"НЕ Выполнил!!!");
}

void localForm::widgetMake(const localFormWidgetDescription& record) {
    if (record.kind == localFormWidgetKind::Edit) {
        editMake(record);
        return;
    }
    auto* const element = new localFormLayoutDesignerElementWidget(
        record.kind, QRect(record.x, record.y, record.width, record.height),
        localFormLayoutDesignerElementWidget::Mode::run, scope_, this);
    connect(element, &localFormLayoutDesignerElementWidget::varValueChanged, this,
            &localForm::valueModifiedSlot);
    element->describe(record);
    elements_.push_back(element);
}

void localForm::editMake(const localFormWidgetDescription& record) {
    variableMake(record);
    localVclWidgetEdit* const edit = localForm::editCreate(record.identifier, &scope_->context);
    edit->setParent(this);
    connect(edit, &localVclWidgetEdit::varValueChanged, this, &localForm::valueModifiedSlot);
    edit->setGeometry(record.x, record.y, record.width, record.height);
    edits_.push_back(edit);
}

void localForm::variableMake(const localFormWidgetDescription& record) {
    const std::u16string& name = record.identifier;
    localContextUTF8& context = scope_->context;
    const localVariableEntry* const entry = context.varFind(name);
    if (record.valueType == tableDocumentType) {
        const localClassDeclaration* const document = context.classFind(tableDocumentClass);
        const bool isDocument = entry != nullptr && document != nullptr &&
                                entry->value->typeName() == document->nameRus;
        if (!isDocument) {
            tableDocumentMake(name);
        }
    } else if (entry == nullptr && record.valueType == u"Строка") {
        context.varDeclare(name).value->setVal(localText());
    } else if (entry == nullptr && record.valueType == u"Число") {
        context.varDeclare(name).value->setVal(0.0);
    }
}

// Where the class is not there nothing is made.
void localForm::tableDocumentMake(const std::u16string& name) {
    int status = localErrorTypeOK;
    localSlot document;
    if (scope_->context.createObj(status, tableDocumentClass, document.asResult())) {
        localVariableEntry* const entry = scope_->context.varFind(name);
        (entry == nullptr ? scope_->context.varDeclare(name) : *entry).value->assign(*document);
    }
}

localVclWidgetEdit* localForm::editCreate(const std::u16string& name, localContextUTF8* context) {
    return new localVclWidgetEdit(name, context);
}

void localForm::afterCreateEvent() {
    for (const std::u16string_view event : {u"СОБЫТИЕФОРМАПРИОТКРЫТИИ", u"EVENTFORMAFTERCREATE"}) {
        int steps = 0;
        if (scope_->context.funcFind(event, steps) == nullptr) {
            continue;
        }
        int status = localErrorTypeOK;
        localSlot result;
        localHost::current().setCursor(localHost::Cursor::wait);
        scope_->context.funcExec(status, event, {}, result.asResult());
        localHost::current().setCursor(localHost::Cursor::restored);
        return;
    }
}

void localForm::refresh() {
    // A formula may bring the form to its end.
    const QPointer<localForm> stands(this);
    for (localVclWidgetEdit* const edit : edits_) {
        edit->refresh();
    }
    for (std::size_t i = 0; stands && i < elements_.size(); ++i) {
        elements_[i]->refresh();
    }
}

void localForm::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    for (localVclWidgetEdit* const edit : edits_) {
        edit->refresh();
    }
}

void localForm::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    // Who comes from the first field backwards goes on backwards.
    focusNextPrevChild(event->reason() != Qt::BacktabFocusReason);
}

bool localForm::focusNextPrevChild(bool next) {
    return QWidget::focusNextPrevChild(next);
}

void localForm::valueModifiedSlot() {
    markModified();
    refresh();
}

void localForm::markModified() {
    if (std::exchange(modified_, true)) {
        return;
    }
    const QMdiArea* const area = localMdiAreaFind();
    QWidget* const marked = area == nullptr ? window() : area->activeSubWindow();
    if (marked != nullptr) {
        marked->setWindowTitle(QStringLiteral("[!] ") + marked->windowTitle());
    }
}

bool localForm::closeEventBefor() {
    return localHost::current().report(
               {.kind = localReport::Kind::question,
                .title = u"localForm::closeEventBefor()",
                .text = u"Close?",
                .buttons = {localReport::Button::yes, localReport::Button::no},
                .defaultButton = localReport::Button::yes}) == localReport::Button::yes;
}

void localForm::closeUnasked() {
    closeUnasked_ = true;
    // A form that is being opened has no window yet.
    if (isInUse()) {
        closeWaits_ = true;
    } else {
        ownWindow().close();
    }
}

void localForm::closeSoon() {
    QMetaObject::invokeMethod(
        this, [this] { ownWindow().close(); }, Qt::QueuedConnection);
}

QWidget& localForm::ownWindow() {
    QWidget* widget = this;
    while (!widget->isWindow() && qobject_cast<QMdiSubWindow*>(widget) == nullptr) {
        widget = widget->parentWidget();
    }
    return *widget;
}

bool localForm::windowMayClose() {
    if (scope_ == nullptr) {
        return true;
    }
    if (isInUse()) {
        closeWaits_ = true;
        return false;
    }
    if (asking_) {
        return false;
    }
    if (!closeUnasked_) {
        asking_ = true;
        const QPointer<localForm> stands(this);
        const bool yes = closeEventBefor();
        if (!stands) {
            return true;
        }
        asking_ = false;
        if (!yes) {
            return false;
        }
        closeUnasked_ = true;
    }
    // While another thread is in the language the form stays, and goes when that is through.
    const localTurn::Attempt turn;
    if (!turn) {
        closeWork_.ask([this] { closeSoon(); });
        return false;
    }
    if (isInUse()) {
        closeWaits_ = true;
        return false;
    }
    leaveLanguage();
    return true;
}

void localForm::userSettingsReadSlot() {
    traceLine(u"", "userSettingsReadSlot");
    localDialogFormSettingsSave(this).exec();
}

void localForm::userSettingsSaveSlot() {
    traceLine(u"", "userSettingsSaveSlot");
    localDialogFormSettingsSave(this).exec();
}
