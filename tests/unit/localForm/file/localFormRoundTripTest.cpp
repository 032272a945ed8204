// What is written is read back: random forms by both writers, and files that were damaged.
#include <QDir>

#include <cctype>

#include "support/formTest.h"

using namespace formTest;

namespace {

constexpr int formCount = 1000;

TEST(localFormRoundTripTest, withModule) {
    randomForms random(1);
    for (int i = 0; i < formCount; ++i) {
        const localFormMetadata form = random.next();
        const localFormMetadata again = byWriterWithModule(form);
        ASSERT_EQ(again.origin(), localFormMetadata::Origin::form) << i;
        ASSERT_EQ(facts(again), facts(form)) << i;
        std::u16string fault;
        ASSERT_EQ(localFormWriteWithModule(again, fault), localFormWriteWithModule(form, fault));
    }
}

TEST(localFormRoundTripTest, withoutModule) {
    randomForms random(2);
    for (int i = 0; i < formCount; ++i) {
        localFormMetadata form = random.next();
        const localFormMetadata again = byWriterWithoutModule(form);
        ASSERT_EQ(again.module, u"");
        form.module.clear();
        ASSERT_EQ(facts(again), facts(form)) << i;
        std::u16string fault;
        ASSERT_EQ(localFormWriteWithoutModule(again, fault),
                  localFormWriteWithoutModule(form, fault));
    }
}

QByteArray damaged(QByteArray bytes, randomForms& random) {
    static const QByteArray pieces[] = {"<Widget WidgetType=\"Edit\" w=\"-1\"/>",
                                        "</Form>",
                                        "<![CDATA[",
                                        "]]>",
                                        "&#0;",
                                        "&#x10FFFF;",
                                        "&a;",
                                        "<!DOCTYPE a [<!ENTITY a \"b\">]>",
                                        "\xD0",
                                        "\xFF",
                                        QByteArray("\0", 1),
                                        "<!--",
                                        "\"",
                                        "99999999999999999999",
                                        "-2147483648",
                                        "2147483647",
                                        "1e38",
                                        "inf",
                                        "nan",
                                        "<Module>",
                                        "="};
    for (int count = random.number(1, 4); count > 0 && !bytes.isEmpty(); --count) {
        const int at = random.number(0, int(bytes.size()) - 1);
        switch (random.number(0, 9)) {
            case 0:
                bytes[at] = static_cast<char>(random.number(0, 255));
                break;
            case 1:
                bytes.remove(at, random.number(1, 40));
                break;
            case 2:
                bytes.insert(at, pieces[random.number(0, int(std::size(pieces)) - 1)]);
                break;
            case 3:
                bytes.insert(random.number(0, int(bytes.size())),
                             bytes.mid(at, random.number(1, 300)));
                break;
            case 4:
                bytes.truncate(at);
                break;
            default:
                // Mostly another value of an attribute, or another name.
                if (std::isalnum(static_cast<unsigned char>(bytes[at])) != 0) {
                    bytes[at] = "019aZx"[random.number(0, 5)];
                }
        }
    }
    return bytes;
}

// What was read of a damaged file is a form like any other: it can be written and read back.
TEST(localFormRoundTripTest, damagedFiles) {
    const QDir folder(qEnvironmentVariable("KORVO_SOURCE") + "/tests/unit/localForm/corpus");
    const QStringList names = folder.entryList({"*.xml"}, QDir::Files);
    ASSERT_GE(names.size(), 6);
    randomForms random(3);
    int read = 0;
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        for (int i = 0; i < 400; ++i) {
            const toldErrors errors;
            const localFormMetadata form = formTest::read(damaged(whole, random));
            const std::string told = errors.text();
            if (form.origin() == localFormMetadata::Origin::broken) {
                ASSERT_EQ(told.rfind("form.xml: line ", 0), 0U) << told;
                ASSERT_EQ(form.widgets.size(), 0U);
                continue;
            }
            ++read;
            // The first writing may lose a colour that is none, and what a kind does not keep.
            const localFormMetadata once = byWriterWithModule(form);
            ASSERT_EQ(once.widgets.size(), form.widgets.size());
            ASSERT_EQ(once.module, form.module);
            ASSERT_EQ(facts(byWriterWithModule(once)), facts(once));
        }
    }
    EXPECT_GT(read, 100);
}

}  // namespace
