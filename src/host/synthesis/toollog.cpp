#include "toollog.h"

#include "sourcestage.h"

#include <QDir>
#include <QFile>
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
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray quoted = '"' + name.toUtf8() + '"';
    for (int number = 1; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine();
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
    m_text += shown.toUtf8() + '\n';

    if (m_open >= 0) {
        if (shown.startsWith(QLatin1String("    "))) {
            m_messages[m_open].text += u' ' + plainText(shown.trimmed());
            return shown;
        }
        m_open = -1;
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
    take(message);
    return shown;
}

void ToolLog::take(const Message &message)
{
    for (Message &known : m_messages) {
        if (known.severity == message.severity && known.line == message.line &&
            known.text == message.text && known.file == message.file) {
            ++known.count;
            return;
        }
    }
    m_messages << message;
    if (message.text.endsWith(u':'))
        m_open = m_messages.size() - 1;
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
