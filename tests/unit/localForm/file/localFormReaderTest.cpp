// Form files as they are read: attributes, defaults, files that are no forms.
#include <QDomDocument>

#include "support/formTest.h"

using namespace formTest;
using Origin = localFormMetadata::Origin;

namespace {

// A form file of these widgets.
QByteArray formOf(const QByteArray& widgets, const QByteArray& behind = {}) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE localForm>\n<FormMd>\n"
           " <Form h=\"240\" w=\"320\" Name=\"x\">\n  <Widgets>" +
           widgets + "</Widgets>\n </Form>\n" + behind + "</FormMd>\n";
}

struct Told {
    localFormMetadata form;
    std::string line;
};
Told told(const QByteArray& bytes) {
    const toldErrors errors;
    localFormMetadata form = read(bytes);
    return {std::move(form), errors.text()};
}

TEST(localFormReaderTest, kindsAndTheirMasks) {
    const struct {
        localFormWidgetKind kind;
        int number;
        const char16_t* name;
        std::uint32_t mask;
    } rows[] = {
        {localFormWidgetKind::Button, 0, u"Button", 0x123},
        {localFormWidgetKind::Edit, 1, u"Edit", 0x21},
        {localFormWidgetKind::Frame, 2, u"Frame", 0x3},
        {localFormWidgetKind::Image, 3, u"Image", 0x23},
        {localFormWidgetKind::Label, 4, u"Label", 0x123},
        {localFormWidgetKind::Table, 5, u"Table", 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(static_cast<int>(row.kind), row.number);
        EXPECT_EQ(localFormWidgetKindName(row.kind), row.name);
        EXPECT_EQ(localFormPropertyMask(row.kind), row.mask);
        const QByteArray name = QString::fromUtf16(row.name).toUtf8();
        EXPECT_EQ(read(formOf("<Widget WidgetType=\"" + name + "\"/>")).widgets.at(0)->kind,
                  row.kind);
    }
}

TEST(localFormReaderTest, everyAttributeOfAnEdit) {
    const localFormMetadata form = read(formOf(
        "<Widget WidgetType=\"Edit\" Type=\"Число\" Len=\"12\" Dec=\"3\" Unlimited=\"1\" "
        "Multiline=\"1\" Identifier=\"Цена\" Caption=\"none\" Formula=\"2+2\" fontFamily=\"none\" "
        "fontBold=\"1\" x=\"-5\" y=\"7\" w=\"100\" h=\"25\" details=\"kept\"/>"));
    EXPECT_EQ(form.origin(), Origin::form);
    EXPECT_THAT(facts(form),
                testing::ElementsAre("320x240", "", "Edit at -5,7 100x25", "Цена", "", "2+2",
                                     "kept", "Число", facts(form)[8], "12.3 unlimited multiline"));
    EXPECT_FALSE(form.widgets[0]->font.bold());
}

TEST(localFormReaderTest, everyAttributeOfALabel) {
    const localFormMetadata form = read(formOf(
        "<Widget WidgetType=\"Label\" Type=\"Число\" Len=\"12\" Dec=\"3\" Unlimited=\"1\" "
        "Multiline=\"1\" Identifier=\"L\" Caption=\"Цена №&#8470;\" Formula=\"Цена\" "
        "fontFamily=\"Arial\" fontPixelSize=\"77\" fontPointSizeF=\"8.25000\" fontBold=\"1\" "
        "fontItalic=\"1\" fontColor=\"#0a0B0c\" x=\"1\" y=\"2\" w=\"3\" h=\"4\"/>"));
    EXPECT_THAT(facts(form),
                testing::ElementsAre("320x240", "", "Label at 1,2 3x4", "L", "Цена №№", "Цена", "",
                                     "", "Arial 8.25000 bold italic #0a0b0c", "10.0"));
    EXPECT_EQ(form.widgets[0]->font.pixelSize(), -1);
}

TEST(localFormReaderTest, missingAttributesAreEmpty) {
    const localFormMetadata form =
        read(formOf("<Widget WidgetType=\"Edit\"/><Widget WidgetType=\"Label\"/>"));
    const localFormWidgetDescription& edit = *form.widgets.at(0);
    EXPECT_EQ(edit.height, 0);
    EXPECT_EQ(edit.length, 0);
    EXPECT_FALSE(edit.unlimited);
    const localFormWidgetDescription& label = *form.widgets.at(1);
    EXPECT_EQ(label.font.family(), "");
    EXPECT_EQ(label.font.pointSizeF(), QFont().pointSizeF());
    EXPECT_FALSE(label.fontColor.isValid());
    EXPECT_EQ(label.length, 10);
}

TEST(localFormReaderTest, numbersThatAreNone) {
    const localFormMetadata form = read(
        formOf("<Widget WidgetType=\"Edit\" x=\"a\" y=\"3000000000\" w=\" 7 \" h=\"1.5\" "
               "Unlimited=\"2\" Multiline=\"true\"/>"
               "<Widget WidgetType=\"Label\" fontPointSizeF=\"-3\" fontBold=\"yes\"/>"
               "<Widget WidgetType=\"Label\" fontPointSizeF=\"1e38\" fontColor=\"noColour\"/>"));
    EXPECT_EQ(facts(form)[2], "Edit at 0,0 7x0");
    EXPECT_FALSE(form.widgets[0]->unlimited);
    EXPECT_FALSE(form.widgets[0]->multiline);
    EXPECT_EQ(form.widgets[1]->font.pointSizeF(), QFont().pointSizeF());
    EXPECT_FALSE(form.widgets[1]->font.bold());
    EXPECT_EQ(form.widgets[2]->font.pointSizeF(), 1000);
    EXPECT_FALSE(form.widgets[2]->fontColor.isValid());
}

TEST(localFormReaderTest, unknownKindsAreLeftOut) {
    const Told got = told(formOf("<Widget WidgetType=\"Gauge\"/><Widget WidgetType=\"label\"/>"
                                 "<Widget/><Anything WidgetType=\"Frame\" Caption=\"f\"/>"));
    ASSERT_EQ(got.form.widgets.size(), 1U);
    EXPECT_EQ(got.form.widgets[0]->caption, u"f");
    EXPECT_EQ(got.line, "");
}

TEST(localFormReaderTest, aFormWithoutWidgetsHasItsSize) {
    EXPECT_THAT(facts(read("<FormMd><Form w=\"5\" h=\"6\"><Other/></Form></FormMd>")),
                testing::ElementsAre("5x6", ""));
}

TEST(localFormReaderTest, aFileWithoutFormHasItsModule) {
    EXPECT_THAT(facts(read("<FormMd><Module>? 1;</Module></FormMd>")),
                testing::ElementsAre("100x100", "? 1;"));
}

TEST(localFormReaderTest, theLastModuleCounts) {
    EXPECT_EQ(read(formOf("", "<Module>a</Module><Module>b<![CDATA[<c>]]></Module>")).module,
              u"b<c>");
}

TEST(localFormReaderTest, readingAgainForgetsWhatWas) {
    localFormMetadata form = read(formOf("<Widget WidgetType=\"Label\"/>", "<Module>a</Module>"));
    QDomDocument document;
    ASSERT_TRUE(document.setContent(QString("<FormMd/>")));
    form.read(document);
    EXPECT_EQ(facts(form), facts(localFormMetadata(document)));
    EXPECT_THAT(facts(form), testing::ElementsAre("100x100", ""));
}

TEST(localFormReaderTest, aBrokenFileIsEmptyAndTold) {
    const Told got = told("<FormMd>\n <Form w=\"5\" h=\"6\">\n  <Widgets/ >\n</FormMd>");
    EXPECT_EQ(got.form.origin(), Origin::broken);
    EXPECT_THAT(facts(got.form), testing::ElementsAre("100x100", ""));
    EXPECT_THAT(got.line, testing::MatchesRegex("form\\.xml: line 3, column 1[0-9]: .+\n"));
}

TEST(localFormReaderTest, aFileThatIsNotThereIsTold) {
    const toldErrors errors;
    const localFormMetadata form(u"нет такого.xml");
    EXPECT_EQ(errors.text(), "нет такого.xml: line 0, column 0: The file cannot be read.\n");
    EXPECT_EQ(form.origin(), Origin::broken);
}

TEST(localFormReaderTest, aForeignFileIsReadAndTold) {
    const Told got = told("<Other>\n<Form w=\"5\" h=\"6\"/></Other>");
    EXPECT_EQ(got.form.origin(), Origin::foreign);
    EXPECT_EQ(got.form.w, 5);
    EXPECT_THAT(got.line,
                testing::MatchesRegex("form\\.xml: line 1, column [0-9]+: This is no form: <Other>"
                                      "\n"));
}

TEST(localFormReaderTest, aFileOfManyLevelsIsBroken) {
    const int levels = 200000;
    const Told got = told("<FormMd>" + QByteArray("<a>").repeated(levels) +
                          QByteArray("</a>").repeated(levels) + "</FormMd>");
    EXPECT_EQ(got.form.origin(), Origin::broken);
}

TEST(localFormReaderTest, entitiesThatGrowAreRefused) {
    QByteArray entities = "<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 12; ++i) {
        const QByteArray lower = "&e" + QByteArray::number(i - 1) + ";";
        entities += "<!ENTITY e" + QByteArray::number(i) + " \"" + lower.repeated(10) + "\">";
    }
    const Told got = told("<!DOCTYPE localForm [" + entities +
                          "]><FormMd><Module>&e11;</Module>"
                          "</FormMd>");
    EXPECT_EQ(got.form.origin(), Origin::broken);
}

}  // namespace
