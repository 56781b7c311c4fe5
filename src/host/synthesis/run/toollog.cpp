#include "toollog.h"

#include "sourcestage.h"
#include "tr.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace Synthesis
{

namespace
{

// `quoted' names of hierarchy objects, which begin with a backslash.
QString plainQuotes(QString text)
{
    static const QRegularExpression quoted(QStringLiteral("`\\\\?([^'`]*)'"));
    return text.replace(quoted, QStringLiteral("\"\\1\""));
}

int lineOfInclude(const QString &path, const QString &name)
{
    QByteArray text;
    QString ignored;
    if (!Reading::readPlainFile(path, Reading::Limits::anyFile, &text, &ignored))
        return 0;
    const QByteArray quoted = '"' + name.toUtf8() + '"';
    int number = 0;
    for (int from = 0, end = 0; end >= 0; from = end + 1) {
        ++number;
        end = text.indexOf('\n', from);
        const QByteArray line = text.mid(from, end < 0 ? -1 : end - from);
        if (line.contains("`include") && line.contains(quoted))
            return number;
    }
    return 0;
}

// A file found through the output folder is named relative to it.
QString absolutePath(const QString &path, const SourceStage &sources)
{
    const QString inOutput = sources.originalDirs().value(0) + u'/' + path;
    return QDir::isRelativePath(path) && QFileInfo::exists(inOutput) ? inOutput : path;
}

// Equal for equal messages, whatever their count.
QString keyOf(const Message &message)
{
    const QChar gap(0);
    return QString::number(message.severity) + gap + QString::number(message.line) + gap +
           message.file + gap + message.text;
}

// Netlist names as the sources have them: "top.\a" is "top.a".
QString plainText(const QString &text)
{
    static const QRegularExpression escape(QStringLiteral("\\\\(?=[A-Za-z_])"));
    return plainQuotes(text).remove(escape);
}

} // namespace

QString ToolLog::add(const QString &line, const SourceStage &sources)
{
    static const QRegularExpression frontend(
        QStringLiteral("Executing Verilog-\\d+ frontend: (.*)$"));
    static const QRegularExpression yosys(
        QStringLiteral("^(?:(.+):(\\d+): )?(ERROR|Warning): (.*)$"));
    static const QRegularExpression place(QStringLiteral("^(.*) \\(([^()]+):(\\d+)[\\d.:-]*\\)$"));
    static const QRegularExpression noInclude(QStringLiteral("Can't open include file `(.*)'"));
    static const QRegularExpression project(QStringLiteral(
        "^@([EW]):\\s*[A-Z0-9]*\\s*:?\\s*(?:\"([^\"]*)\":(\\d+)(?::[\\d:]*)?\\s*\\|)?\\s*(.*)$"));

    QString shown = sources.restored(line);
    keep(shown);
    if (m_open) {
        if (shown.startsWith(QLatin1String("    "))) {
            m_messages.last().text += u' ' + plainText(shown.trimmed());
            return shown;
        }
        close();
    }
    if (const auto match = frontend.match(shown); match.hasMatch())
        m_reading = match.captured(1);

    Message message;
    QString text;
    if (const auto match = yosys.match(shown); match.hasMatch()) {
        message.file = match.captured(1);
        message.line = match.captured(2).toInt();
        message.severity =
            match.captured(3) == QLatin1String("ERROR") ? Message::Error : Message::Warning;
        text = match.captured(4);
    } else if (const auto other = project.match(shown); other.hasMatch()) {
        message.severity =
            other.captured(1) == QLatin1String("E") ? Message::Error : Message::Warning;
        message.file = other.captured(2);
        message.line = other.captured(3).toInt();
        text = other.captured(4);
    } else {
        return shown;
    }
    if (message.file.isEmpty()) {
        if (const auto missing = noInclude.match(text); missing.hasMatch()) {
            message.file = m_reading;
            message.line = lineOfInclude(message.file, missing.captured(1));
        } else if (const auto behind = place.match(text); behind.hasMatch()) {
            message.file = behind.captured(2);
            message.line = behind.captured(3).toInt();
            text = behind.captured(1);
        }
    }
    if (!message.file.isEmpty())
        message.file = absolutePath(message.file, sources);
    message.text = plainText(text);
    take(message, false);
    return shown;
}

void ToolLog::addError(const QString &error)
{
    static const QRegularExpression placed(QStringLiteral("\\A(.+?):(?:(\\d+):)? (.*)\\z"),
                                           QRegularExpression::DotMatchesEverythingOption);
    keep(error);
    close();
    Message message;
    message.severity = Message::Error;
    message.text = error;
    if (const auto match = placed.match(error); match.hasMatch()) {
        message.file = match.captured(1);
        message.line = match.captured(2).toInt();
        message.text = match.captured(3);
    }
    take(message, true);
}

void ToolLog::keep(const QString &line)
{
    using Reading::Limits::toolLog;
    if (m_text.size() >= toolLog)
        return;
    m_text += line.toUtf8() + '\n';
    if (m_text.size() >= toolLog)
        m_text += Tr::tr("The log ends here: it is larger than %1.")
                      .arg(Reading::sizeText(toolLog))
                      .toUtf8() +
                  '\n';
}

// `whole`: nothing that follows belongs to the message.
void ToolLog::take(const Message &message, bool whole)
{
    const QString key = keyOf(message);
    if (const auto known = m_known.constFind(key); known != m_known.constEnd()) {
        ++m_messages[known.value()].count;
        return;
    }
    const bool isError = message.severity == Message::Error;
    int &taken = isError ? m_errors : m_warnings;
    if (taken < Reading::Limits::toolMessages) {
        ++taken;
        m_open = !whole && message.text.endsWith(u':');
        if (!m_open)
            m_known.insert(key, m_messages.size());
        m_messages << message;
    } else {
        // Counted in one message of its own.
        const QString text = isError ? Tr::tr("There are more errors; the log has them.")
                                     : Tr::tr("There are more warnings; the log has them.");
        const Message rest{message.severity, {}, 0, text, 1};
        const auto place = m_known.constFind(keyOf(rest));
        if (place != m_known.constEnd()) {
            ++m_messages[place.value()].count;
        } else {
            m_known.insert(keyOf(rest), m_messages.size());
            m_messages << rest;
        }
    }
}

// Only a message that is whole can be compared with the others.
void ToolLog::close()
{
    if (!m_open)
        return;
    m_open = false;
    const Message whole = m_messages.takeLast();
    --(whole.severity == Message::Error ? m_errors : m_warnings);
    take(whole, true);
}

QStringList ToolLog::errors() const
{
    QStringList result;
    for (const Message &message : m_messages) {
        if (message.severity == Message::Error)
            result << message.toString();
    }
    return result;
}

} // namespace Synthesis
