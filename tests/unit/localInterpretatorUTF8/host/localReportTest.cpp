#include "localInterpretatorUTF8/host/localReport.h"

#include "support/language.h"

namespace {

std::string plain(const char16_t* text, localReport::Form form = localReport::Form::html) {
    return utf8(localReport{.text = text, .form = form}.plainText());
}

TEST(localReport, aReportHasOneButtonUnlessToldOtherwise) {
    const localReport report;
    EXPECT_EQ(report.buttons, std::vector{localReport::Button::ok});
    EXPECT_EQ(report.defaultButton, localReport::Button::ok);
    EXPECT_EQ(report.form, localReport::Form::plain);
}

TEST(localReport, aPlainTextStaysAsItIs) {
    EXPECT_EQ(plain(u"a<BR/>b &lt; c\n", localReport::Form::plain), "a<BR/>b &lt; c\n");
}

TEST(localReport, breaksOfHtmlAreLineEnds) {
    EXPECT_EQ(plain(u"func: f<BR/> file: x<br> line: 7<Br /><BR/>Ёж"),
              "func: f\n file: x\n line: 7\n\nЁж");
    EXPECT_EQ(plain(u"one<p>two</p>"), "one\ntwo");
    EXPECT_EQ(plain(u"one<brx>two"), "onetwo");
}

TEST(localReport, otherTagsOfHtmlGo) {
    EXPECT_EQ(plain(u"<B>field</B> <a href=\"#main\">link</a>"), "field link");
}

TEST(localReport, whatIsNoTagStays) {
    EXPECT_EQ(plain(u"a < b > c"), "a < b > c");
    EXPECT_EQ(plain(u"id<5>3"), "id<5>3");
    EXPECT_EQ(plain(u"a <b"), "a <b");
    EXPECT_EQ(plain(u"<"), "<");
    EXPECT_EQ(plain(u"</"), "</");
    EXPECT_EQ(plain(u"<>"), "<>");
}

TEST(localReport, namedLettersOfHtmlAreWrittenOut) {
    EXPECT_EQ(plain(u"&lt;b&gt;&nbsp;&amp;&quot; &other; &lt"), "<b> &\" &other; &lt");
    EXPECT_EQ(plain(u"&amp;lt;"), "&lt;");
}

}  // namespace
