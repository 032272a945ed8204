#include "manualExample.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

using namespace manualExample;

const QString anyText = "...";
const QStringList sessionClasses = {"Команды", "Клавиши"};

QString contentOf(const QString& fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The book's texts are HTML.
QString plainText(QString text) {
    for (const auto& [entity, letter] : {std::pair{"&lt;", "<"},
                                         {"&gt;", ">"},
                                         {"&quot;", "\""},
                                         {"&nbsp;", " "},
                                         {"&amp;", "&"}}) {
        text.replace(entity, letter);
    }
    return text;
}

// Where the comment of a line begins; its length when there is none.
qsizetype commentStart(const QString& line) {
    QChar quote;
    for (qsizetype at = 0; at < line.size(); ++at) {
        const QChar letter = line[at];
        if (!quote.isNull()) {
            quote = letter == quote ? QChar() : quote;
        } else if (letter == '"' || letter == '\'') {
            quote = letter;
        } else if (line.mid(at, 2) == "//") {
            return at;
        }
    }
    return line.size();
}

bool isPrinting(const QString& statement) {
    static const QRegularExpression printing("^\\s*(\\?|(MESSAGE|СООБЩИТЬ)\\()",
                                             QRegularExpression::CaseInsensitiveOption);
    return printing.match(statement).hasMatch();
}

// What a comment on a line of its own tells. Comments of other forms are for the reader only.
void addComment(example& read, const QString& comment) {
    struct Form {
        const char* pattern;
        step::Kind kind;
    };
    static const Form forms[] = {
        {"^// окно ([^:]*)(?:: (.*))?$", step::Kind::window},
        {"^// видно: ()(.*)$", step::Kind::seen},
        {"^// строка (\\d+): (.*)$", step::Kind::editorLine},
        {"^// выделено: ()(.*)$", step::Kind::selected},
        {"^// развернуто: ()(.*)$", step::Kind::maximized},
        {"^// запущено: ()(.*)$", step::Kind::started},
        {"^// нажать ()(.*)$", step::Kind::type},
    };
    if (comment.startsWith("// ->")) {
        read.output.append(comment.mid(5).trimmed());
        return;
    }
    for (const Form& form : forms) {
        const auto found = QRegularExpression(form.pattern).match(comment);
        if (found.hasMatch()) {
            read.steps.push_back({form.kind, found.captured(2), found.captured(1)});
            return;
        }
    }
}

void readLine(example& read, const QString& line) {
    const qsizetype comment = commentStart(line);
    const QString statement = line.left(comment).trimmed();
    if (statement.isEmpty()) {
        addComment(read, line.trimmed());
        return;
    }
    if (comment < line.size() && isPrinting(statement)) {
        read.output.append(line.mid(comment + 2).trimmed());
    }
    if (read.isSession) {
        const bool endsWithKey = line.endsWith(']');
        read.steps.push_back({step::Kind::type, endsWithKey ? line : line + "[Ввод]", {}});
    }
}

// A trace tail counts only where it is told.
bool isLineAsTold(const QString& line, const QString& told) {
    static const QRegularExpression tail(" func: \\S* file: \\S+ line: \\d+\\s*$");
    return isAsTold(QString(line).remove(tail).trimmed(), told) || isAsTold(line.trimmed(), told);
}

}  // namespace

namespace manualExample {

std::vector<example> ofBook(const QString& fileName, int& total) {
    const QString mark =
        contentOf(qEnvironmentVariable("KORVO_SOURCE") + "/tests/support/manualWindowMark.txt");
    const QJsonObject classes =
        QJsonDocument::fromJson(contentOf(fileName).toUtf8())["class"].toObject();
    std::vector<example> examples;
    total = 0;
    for (const QString& className : classes.keys()) {
        const QJsonObject pages = classes[className].toObject()["method"].toObject();
        for (const QString& page : pages.keys()) {
            ++total;
            const QString text = plainText(pages[page].toObject()["example"].toString());
            if (!text.startsWith(mark)) {
                continue;
            }
            example read;
            read.place = className + ":" + page;
            read.text = text;
            read.isSession = sessionClasses.contains(className);
            for (const QString& line : text.split('\n')) {
                readLine(read, line);
            }
            examples.push_back(std::move(read));
        }
    }
    return examples;
}

bool isAsTold(const QString& text, const QString& told) {
    QStringList parts = told.split(anyText);
    for (QString& part : parts) {
        part = QRegularExpression::escape(part);
    }
    return QRegularExpression("^" + parts.join(".*") + "$").match(text).hasMatch();
}

QString difference(const QStringList& output, const QStringList& told) {
    qsizetype at = 0;
    for (qsizetype i = 0; i < told.size(); ++i) {
        if (told[i] == anyText) {
            // Up to the line that is told next.
            while (at < output.size() &&
                   (i + 1 == told.size() || !isLineAsTold(output[at], told[i + 1]))) {
                ++at;
            }
            continue;
        }
        if (at == output.size()) {
            return "behind the last line of output the example tells [" + told[i] + "]";
        }
        if (!isLineAsTold(output[at], told[i])) {
            return "the example tells [" + told[i] + "], the line is [" + output[at] + "]";
        }
        ++at;
    }
    return at == output.size() ? QString() : "the example does not tell [" + output[at] + "]";
}

}  // namespace manualExample
