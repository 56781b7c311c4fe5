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

} // namespace

QString ToolLog::add(const QString &line, const SourceStage &sources)
{
    static const QRegularExpression frontend(
        QStringLiteral("Executing Verilog-\\d+ frontend: (.*)$"));
    static const QRegularExpression yosysError(QStringLiteral("^(?:(.+):(\\d+): )?ERROR: (.*)$"));
    static const QRegularExpression noInclude(QStringLiteral("Can't open include file `(.*)'"));
    static const QRegularExpression projectError(QStringLiteral(
        "^@E:\\s*[A-Z0-9]*\\s*:?\\s*(?:\"([^\"]*)\":(\\d+)(?::[\\d:]*)?\\s*\\|)?\\s*(.*)$"));

    QString shown = sources.restored(line);
    m_text += shown.toUtf8() + '\n';

    if (const auto match = frontend.match(shown); match.hasMatch())
        m_reading = match.captured(1);
    auto match = yosysError.match(shown);
    if (!match.hasMatch())
        match = projectError.match(shown);
    if (!match.hasMatch())
        return shown;

    QString file = match.captured(1);
    QString number = match.captured(2);
    const QString text = match.captured(3);
    if (number == QLatin1String("0")) // no line is known
        number.clear();
    if (file.isEmpty()) {
        if (const auto missing = noInclude.match(text); missing.hasMatch()) {
            file = m_reading;
            if (const int found = lineOfInclude(file, missing.captured(1)))
                number = QString::number(found);
        }
    }
    QString error;
    if (!file.isEmpty())
        error = absolutePath(file, sources) +
                (number.isEmpty() ? QString() : QString(u':' + number)) + QLatin1String(": ");
    error += plainQuotes(text);
    if (!m_errors.contains(error))
        m_errors << error;
    return shown;
}

} // namespace Synthesis
