// Fields by themselves: their own scope, their buttons, and the halts of a missing variable.
#include "localForm/edit/localVclWidgetEdit.h"

#include <QPushButton>

#include "support/language.h"

namespace {

class localVclWidgetEditTest : public languageTest {
protected:
    localContextUTF8 scope_;

    // A field whose variable has gone.
    std::unique_ptr<localVclWidgetEdit> bare(double value = 1) {
        scope_.varDeclare(u"n").value->setVal(value);
        auto field = std::make_unique<localVclWidgetEdit>(u"n", &scope_);
        scope_.varRemoveAll();
        return field;
    }
};

TEST_F(localVclWidgetEditTest, aFieldWithoutContextHasItsOwn) {
    const std::int64_t contexts = localContextUTF8::counterStaticTotal;
    {
        const localVclWidgetEdit field(u" a ", nullptr);
        EXPECT_EQ(output.lines(), std::vector<std::string>{"start context = 0 !!!"});
        EXPECT_EQ(localContextUTF8::counterStaticTotal, contexts + 1);
        EXPECT_EQ(field.variableName(), u"a");
    }
    EXPECT_EQ(localContextUTF8::counterStaticTotal, contexts);
}

TEST_F(localVclWidgetEditTest, buttonsComeAndGo) {
    using Button = localVclWidgetEdit::Button;
    localVclWidgetEdit field(u"a", &scope_);
    field.buttonEnable(Button::open, true);
    field.buttonEnable(Button::choose, true);
    ASSERT_NE(field.button(Button::open), nullptr);
    EXPECT_EQ(field.button(Button::open)->text(), "0");
    EXPECT_EQ(field.button(Button::open)->objectName(), "localVclEditWidget::buttonOpena");
    EXPECT_EQ(field.button(Button::choose)->text(), "..");
    scope_.varRemoveAll();
    field.buttonEnable(Button::open, false);
    EXPECT_EQ(field.button(Button::open), nullptr);
}

TEST_F(localVclWidgetEditTest, operationsHaltWithoutTheirVariable) {
    const auto field = bare();
    EXPECT_HALT(field->varRead(), " NULL==tmpVar in localVclWidgetEdit::varRead()");
    EXPECT_HALT(field->editingFinishedSlot(),
                " NULL==tmpVar in localVclWidgetEdit::editingFinishedSlot()");
    EXPECT_HALT(field->choose(), " NULL==tmpVar in localVclWidgetEdit::choose()");
    EXPECT_HALT(field->SelectFormSignalAppliedSlot(),
                " NULL==tmpVar in localVclWidgetEdit::SelectFormSignalAppliedSlot()");
    EXPECT_HALT(field->buttonEnable(localVclWidgetEdit::Button::open, true),
                " NULL==tmpVar in localVclWidgetEdit::buttonEnable()");
}

TEST_F(localVclWidgetEditTest, bringingADialogBackHaltsWithoutItsVariable) {
    scope_.varDeclare(u"n");
    localVclWidgetEdit field(u"n", &scope_);
    field.choose();
    scope_.varRemoveAll();
    EXPECT_HALT(field.buttonOpenClickSlot(),
                " NULL==tmpVar in localVclWidgetEdit::buttonOpenClickSlot()");
}

TEST_F(localVclWidgetEditTest, aRefreshPassesOverAMissingVariable) {
    const auto field = bare();
    field->refresh();
    EXPECT_TRUE(host.calls.empty());
}

}  // namespace
