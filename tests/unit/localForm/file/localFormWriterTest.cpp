// Form files as they are written, and what cannot be written.
#include "localForm/file/localFormLayout.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "support/formTest.h"

using namespace formTest;

namespace {

localFormMetadata formOf(localFormWidgetKind kind) {
    localFormMetadata form;
    form.w = 320;
    form.h = 240;
    form.module = u"? 1;";
    auto widget = std::make_unique<localFormWidgetDescription>();
    widget->kind = kind;
    widget->x = 1;
    widget->y = 2;
    widget->width = 3;
    widget->height = 4;
    widget->identifier = u"Имя";
    widget->caption = u"Заголовок";
    widget->formula = u"a<b";
    widget->font = QFont(QStringLiteral("Arial"));
    widget->font.setPointSizeF(8.25);
    widget->fontColor = Qt::red;
    widget->details = u"{}";
    widget->valueType = u"Число";
    widget->length = 12;
    widget->decimals = 3;
    widget->unlimited = true;
    form.widgets.push_back(std::move(widget));
    return form;
}

std::string withModule(const localFormMetadata& form) {
    std::u16string fault;
    return narrow(localFormWriteWithModule(form, fault).value_or(u"refused: " + fault));
}
std::string withoutModule(const localFormMetadata& form) {
    std::u16string fault;
    return localFormWriteWithoutModule(form, fault).value_or("refused: " + narrow(fault));
}

// The document around a widget.
std::string document(const std::string& widget, const std::string& module) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE localForm>\n<FormMd>\n"
           " <Form Name=\"Проба\" w=\"320\" h=\"240\">\n  <Widgets>\n   " +
           widget + "\n  </Widgets>\n </Form>\n" + module + "</FormMd>\n";
}

TEST(localFormWriterTest, whatEachKindHas) {
    const std::string font =
        " fontFamily=\"Arial\" fontPixelSize=\"-1\" fontPointSizeF=\"8.25000\" fontBold=\"0\" "
        "fontItalic=\"0\" fontColor=\"#ff0000\"";
    const std::string place = " x=\"1\" y=\"2\" w=\"3\" h=\"4\"";
    const auto widget = [](std::string attributes) { return "<Widget" + attributes + "/>"; };
    const struct {
        localFormWidgetKind kind;
        std::string attributes;
    } rows[] = {
        {localFormWidgetKind::Button, "Button"}, {localFormWidgetKind::Edit, "Edit"},
        {localFormWidgetKind::Frame, "Frame"},   {localFormWidgetKind::Image, "Image"},
        {localFormWidgetKind::Label, "Label"},   {localFormWidgetKind::Table, "Table"},
    };
    for (const auto& row : rows) {
        const std::uint32_t mask = localFormPropertyMask(row.kind);
        const std::string text = withModule(formOf(row.kind));
        const auto has = [&](const std::string& attribute, bool wanted) {
            EXPECT_EQ(text.find(" " + attribute) != std::string::npos, wanted) << attribute << text;
        };
        has("WidgetType=\"" + row.attributes + "\"", true);
        has("Identifier=\"Имя\"", true);
        const bool edit = row.kind == localFormWidgetKind::Edit;
        for (const char* attribute :
             {"Type=\"Число\"", "Len=\"12\"", "Dec=\"3\"", "Unlimited=\"1\"", "Multiline=\"0\""}) {
            has(attribute, edit);
        }
        has("details=\"{}\"", row.kind == localFormWidgetKind::Table);
        has("Caption=", (mask & localFormPropertyCAPTION) != 0);
        has("Caption=\"\"", row.kind == localFormWidgetKind::Image);
        has("Formula=\"a&lt;b\"", (mask & localFormPropertyFORMULA) != 0);
        has("font", (mask & localFormPropertyFONT) != 0);
        EXPECT_THAT(text, testing::HasSubstr(place + "/>"));
    }
    EXPECT_EQ(withModule(formOf(localFormWidgetKind::Label)),
              document(widget(" WidgetType=\"Label\" Identifier=\"Имя\" Caption=\"Заголовок\"" +
                              font + " Formula=\"a&lt;b\"" + place),
                       " <Module>? 1;</Module>\n"));
    EXPECT_EQ(
        withoutModule(formOf(localFormWidgetKind::Table)),
        document(widget(" WidgetType=\"Table\" details=\"{}\" Identifier=\"Имя\"" + place), ""));
}

TEST(localFormWriterTest, lengthsAreUnsigned) {
    localFormMetadata form = formOf(localFormWidgetKind::Edit);
    form.widgets[0]->length = -1;
    EXPECT_THAT(withModule(form), testing::HasSubstr(" Len=\"4294967295\""));
    EXPECT_EQ(byWriterWithModule(form).widgets[0]->length, 0);
}

TEST(localFormWriterTest, fontsBySizeWeightAndStyle) {
    localFormMetadata form = formOf(localFormWidgetKind::Label);
    QFont& font = form.widgets[0]->font;
    font.setPixelSize(17);
    font.setWeight(QFont::Medium);
    font.setStyle(QFont::StyleOblique);
    form.widgets[0]->fontColor = QColor();
    const std::string text = withModule(form);
    EXPECT_THAT(text, testing::HasSubstr(
                          "fontPixelSize=\"17\" fontPointSizeF=\"-1.00000\" fontBold=\"1\""));
    EXPECT_THAT(text, testing::HasSubstr("fontItalic=\"1\" fontColor=\"#000000\""));
    const QFont again = byWriterWithModule(form).widgets[0]->font;
    EXPECT_EQ(again.pixelSize(), -1);
    EXPECT_EQ(again.pointSizeF(), QFont().pointSizeF());
    EXPECT_EQ(again.weight(), QFont::Bold);
    EXPECT_EQ(again.style(), QFont::StyleItalic);
    font.setWeight(QFont::Light);
    EXPECT_THAT(withModule(form), testing::HasSubstr("fontBold=\"0\""));
}

TEST(localFormWriterTest, lettersTheFileWriterCannotHoldAreReferences) {
    localFormMetadata form = formOf(localFormWidgetKind::Label);
    form.widgets[0]->caption = u"№ «ё» — 😀";
    form.module = u"? \"№\";\n";
    const std::string text = withModule(form);
    EXPECT_THAT(text, testing::HasSubstr(" Caption=\"&#8470; &#171;ё&#187; &#8212; &#128512;\""));
    EXPECT_THAT(text, testing::HasSubstr("<Module>? \"&#8470;\";\n</Module>"));
    EXPECT_THAT(withoutModule(form), testing::HasSubstr(" Caption=\"№ «ё» — 😀\""));
}

// A reader of XML takes blanks alone for no content.
TEST(localFormWriterTest, aModuleOfBlanksIsNone) {
    localFormMetadata form;
    form.module = u" \n\t\r\n ";
    EXPECT_EQ(byWriterWithModule(form).module, u"");
    form.module += u"? 1;\n";
    EXPECT_EQ(byWriterWithModule(form).module, form.module);
}

TEST(localFormWriterTest, whatXmlHasNoPlaceForIsRefused) {
    const struct {
        std::u16string text;
        const char* sign;
    } rows[] = {
        {u"a\x1", "0001"},        {std::u16string(1, u'\0'), "0000"},
        {u"\x1F", "001f"},        {u"\xFFFE", "fffe"},
        {u"\xFFFF", "ffff"},      {{0xD800}, "d800"},
        {{0xDC00, u'b'}, "dc00"}, {{u'a', 0xD83D, u'b'}, "d83d"},
    };
    for (const auto& row : rows) {
        localFormMetadata form = formOf(localFormWidgetKind::Label);
        form.widgets[0]->caption = row.text;
        const std::string fault =
            "refused: Caption: XML не может хранить символ U+" + std::string(row.sign);
        EXPECT_EQ(withModule(form), fault);
        EXPECT_EQ(withoutModule(form), fault);
        form.widgets[0]->caption.clear();
        form.module = row.text;
        EXPECT_EQ(withModule(form), "refused: Module" + fault.substr(16));
        EXPECT_EQ(withoutModule(form).rfind("refused", 0), std::string::npos);
    }
}

TEST(localFormWriterTest, everyTextIsLookedAt) {
    const std::u16string bad = u"\x1";
    for (const auto member :
         {&localFormWidgetDescription::identifier, &localFormWidgetDescription::valueType,
          &localFormWidgetDescription::formula}) {
        localFormMetadata form = formOf(localFormWidgetKind::Edit);
        (*form.widgets[0]).*member = bad;
        EXPECT_EQ(withModule(form).rfind("refused", 0), 0U);
    }
    localFormMetadata table = formOf(localFormWidgetKind::Table);
    table.widgets[0]->details = bad;
    EXPECT_EQ(withModule(table).rfind("refused", 0), 0U);
    localFormMetadata label = formOf(localFormWidgetKind::Label);
    label.widgets[0]->font.setFamily(localVclQString(bad));
    EXPECT_EQ(withModule(label).rfind("refused", 0), 0U);
}

TEST(localFormWriterTest, layoutsAreJson) {
    localMemoryManager::start();
    EXPECT_TRUE(layoutAsJsonTest(u"{\"grid\":{\"columns\":[]}}"));
    testing::internal::CaptureStdout();
    EXPECT_FALSE(layoutAsJsonTest(u"nothing"));
    EXPECT_THAT(testing::internal::GetCapturedStdout(),
                testing::HasSubstr("Error!!! Ошибка разбора формата JSON! func: layoutAsJsonTest"));
}

}  // namespace
