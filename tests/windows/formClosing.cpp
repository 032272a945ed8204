// The end of forms: questions, forms that are told to close while they work, the console's end.
#include <QEventLoop>

#include "formTest.h"
#include "localForm/run/localFormExtension.h"
#include "localInterpretatorUTF8/library/localExtension.h"

namespace {

// What a call of that function does in place of its work; events are served meanwhile, as in a box.
std::function<void()> meanwhile;

bool actMeanwhile(localCall& call) {
    if (meanwhile) {
        meanwhile();
    }
    const localTurn::Pause pause;
    QEventLoop().processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return call.done();
}

constexpr localExtensionFunction functions[] = {{u"PIXMAPASBASE64SHOW", actMeanwhile}};
constexpr localExtension waiting = {.name = u"formClosing", .functions = functions};

}  // namespace

class formClosing : public formTest {
    Q_OBJECT

private slots:
    void theWindowAsks() {
        const QPointer<localForm> form = open(edit(0, "a"));
        host_.answers = {Button::no, Button::yes};
        QVERIFY(!form->window()->close());
        QCOMPARE(host_.calls, std::vector<std::string>(
                                  {"question [localForm::closeEventBefor()] [Close?] *yes no"}));
        QVERIFY(form->context() != nullptr);
        QVERIFY(form->window()->close());
        QVERIFY(localForm::of(form) == nullptr);
        QVERIFY(form->findChildren<QWidget*>().isEmpty());
        QTRY_VERIFY(form == nullptr);
        QVERIFY(localForm::opened().empty());
    }

    // A scope that a value still names is known to have gone.
    void aHandleOfAFormThatHasGone() {
        localForm* const form = open(button(0, "handle = CONTEXTGET();"), {});
        QVERIFY(form != nullptr);
        press(form);
        void* const scope = form->context();
        QCOMPARE(localForm::of(scope), form);
        host_.answers = {Button::yes};
        form->window()->close();
        QVERIFY(localForm::of(scope) == nullptr);
        QVERIFY(localForm::of(form) == nullptr);
    }

    void aButtonMayCloseItsForm() {
        localExtensionAdd(waiting);
        const QPointer<localForm> form = open(
            button(0, "PIXMAPASBASE64SHOW(\"\"); a = 5; b = REFRESH();") + label(1, "a"), "a = 1;");
        host_.answers = {Button::yes};
        meanwhile = [&] { QVERIFY(!form->window()->close()); };
        press(form);
        meanwhile = nullptr;
        QVERIFY(form != nullptr);
        QCOMPARE(value(form, "a"), "5");
        QTRY_VERIFY(form == nullptr);
        QCOMPARE(host_.calls.size(), std::size_t{1});
    }
    void aModuleMayCloseItsForm() {
        QPointer<localForm> form;
        meanwhile = [&] {
            form = lastForm();
            form->closeUnasked();
        };
        write("form.xml", edit(0, "a"), "PIXMAPASBASE64SHOW(\"\"); a = \"later\";");
        QVERIFY(run("FORMOPEN(\"form.xml\");"));
        meanwhile = nullptr;
        QCOMPARE(line(form)->text(), "later");
        QTRY_VERIFY(form == nullptr);
    }
    void aFormulaMayCloseItsForm() {
        int calls = 0;
        const QPointer<localForm> form = open(label(0, "PIXMAPASBASE64SHOW(\"\")") + label(1, "2"));
        meanwhile = [&] {
            ++calls;
            form->closeUnasked();
        };
        form->refresh();
        meanwhile = nullptr;
        QCOMPARE(calls, 1);
        QTRY_VERIFY(form == nullptr);
    }
    // Nobody takes a form away so, but then nothing of it is touched.
    void aFormTakenAwayByForce() {
        for (const QString& element : {button(0, "PIXMAPASBASE64SHOW(\"\"); a = 5;"),
                                       label(0, "PIXMAPASBASE64SHOW(\"\")")}) {
            const QPointer<localForm> form = open(element + label(1, "2") + edit(2, "a"));
            meanwhile = [&] {
                if (form != nullptr) {
                    delete form->window();
                }
            };
            if (element.contains("Button")) {
                press(form);
            } else {
                form->refresh();
            }
            meanwhile = nullptr;
            QVERIFY(form == nullptr);
        }
    }

    void formsThatOpenThemselvesComeToAnEnd() {
        write("form.xml", edit(0, "a"), "FORMOPEN(\"form.xml\");");
        QVERIFY(run("FORMOPEN(\"form.xml\");"));
        QCOMPARE(localForm::opened().size(), std::size_t{16});
        QVERIFY(lines().contains("Forms open each other without end."));
    }

    void aFormClosedWhileItAsksAgain() {
        const QPointer<localForm> form = open({});
        // The host's box closes the window a second time.
        struct : localVclHost {
            localForm* asked = nullptr;
            int questions = 0;
            localReport::Button report(const localReport&) override {
                ++questions;
                asked->window()->close();
                return localReport::Button::yes;
            }
        } host;
        host.asked = form;
        localHost& before = localHost::current();
        localHost::install(&host);
        QVERIFY(form->window()->close());
        localHost::install(&before);
        QCOMPARE(host.questions, 1);
        QTRY_VERIFY(form == nullptr);
    }

    // The program closes when every form may; the first No keeps all.
    void theConsoleAsksEveryForm() {
        QVERIFY(localFormCloseAll());
        QVERIFY(host_.calls.empty());
        open(edit(0, "a"));
        open(edit(0, "b"));
        host_.answers = {Button::no};
        QVERIFY(!localFormCloseAll());
        QCOMPARE(host_.calls.back(), "question [Выход] [Вы уверены, что хотите выйти?] *yes no");
        host_.answers = {Button::yes, Button::yes, Button::no};
        QVERIFY(!localFormCloseAll());
        QCOMPARE(localForm::opened().size(), std::size_t{2});
        QVERIFY(localForm::opened()[0]->context() != nullptr);
        host_.answers = {Button::yes, Button::no, Button::yes};
        QVERIFY(!localFormCloseAll());
        QCOMPARE(host_.answers.size(), std::size_t{1});
        host_.answers = {Button::yes, Button::yes, Button::yes};
        QVERIFY(localFormCloseAll());
        QTRY_VERIFY(localForm::opened().empty());
        QCOMPARE(host_.answers.size(), std::size_t{0});
    }
};

QTEST_MAIN(formClosing)
#include "formClosing.moc"
