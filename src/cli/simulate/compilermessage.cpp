#include "compilermessage.h"

#include <QRegularExpression>

namespace Cli
{

namespace
{

struct Word {
    const char *begin;
    Severity severity;
};

constexpr Word words[] = {{"fatal error:", Severity::Error}, {"internal error:", Severity::Error},
                          {"error:", Severity::Error},       {"sorry:", Severity::Error},
                          {"warning:", Severity::Warning},   {"note:", Severity::Note}};

// Takes the word off the text.
Severity severityOf(QString *text)
{
    for (const Word &word : words) {
        const QLatin1String begin(word.begin);
        if (text->startsWith(begin, Qt::CaseInsensitive)) {
            *text = text->mid(begin.size()).trimmed();
            return word.severity;
        }
    }
    return Severity::Error;
}

} // namespace

std::optional<CompilerMessage> compilerMessage(const QString &line)
{
    if (line.isEmpty() || line.front().isSpace() || line.endsWith(u':') || line.endsWith(u','))
        return std::nullopt;
    static const QRegularExpression place(QStringLiteral("^([^:]+):(\\d+):(?:\\d+:)? ?(.*)$"));
    static const QRegularExpression program(QStringLiteral("^[\\w./+-]+: (?=\\S)"));
    CompilerMessage message;
    // A linker's name stands before the place.
    const QString rest = line.contains(QLatin1String("/ld: "))
                             ? line.mid(line.indexOf(QLatin1String("ld: ")) + 4)
                             : line;
    if (const QRegularExpressionMatch match = place.match(rest); match.hasMatch()) {
        message.file = match.captured(1);
        message.line = match.captured(2).toInt();
        message.text = match.captured(3);
    } else {
        message.text = rest;
        message.text.remove(program);
    }
    message.severity = severityOf(&message.text);
    if (message.text.isEmpty())
        return std::nullopt;
    return message;
}

} // namespace Cli
