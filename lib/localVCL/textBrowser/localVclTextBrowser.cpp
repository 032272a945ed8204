#include "localVCL/textBrowser/localVclTextBrowser.h"

#include "localInterpretatorUTF8/file/localFile.h"
#include "localVCL/picture/localVclPicture.h"
#include "localVCL/text/localVclText.h"

namespace {

const QString startPage = QStringLiteral(
    "<BR/> <B>Это главная страница помощи по интерпретатору.</B><BR/> <BR/> <BR/>"
    " F1 или команда HELP выведет краткую помощь по основным командам.\t<BR/>"
    " Alt+F1 или команда MANUAL откроет интерактивную систему помощи (данное окно).\t<BR/> <BR/>");

// A name may hold letters that a URL writes as numbers.
QString fileNameOf(const QUrl& link) {
    return link.isLocalFile() ? link.toLocalFile() : QUrl::fromPercentEncoding(link.toEncoded());
}

}  // namespace

localVclTextBrowser::localVclTextBrowser(QWidget* parent) : QTextBrowser(parent) {
    setWindowIcon(localVclProgramIcon());
    // The base class moves to places inside the text; texts themselves are changed here, before it
    // looks.
    setOpenLinks(true);
    setOpenExternalLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &localVclTextBrowser::onAnchorClicked);
    setText(startPage);
}

void localVclTextBrowser::onAnchorClicked(const QUrl& link) {
    const QString name = fileNameOf(link);
    if (name.startsWith(u'#')) {
        for (const QString& shown : {name, name.mid(1)}) {
            if (names_.contains(shown, Qt::CaseInsensitive)) {
                return;
            }
        }
    }
    std::u16string text;
    if (!fileRead(localVclText(name), text, localString::codePageCP1251)) {
        setText(QStringLiteral("Ошибка чтения файла!"));
        return;
    }
    setText(localVclQString(text));
    names_.append(name);
    current_ = names_.size() - 1;
}
