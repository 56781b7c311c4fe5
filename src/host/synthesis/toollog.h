#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Synthesis
{

class SourceStage;

// What a tool printed, in a form for people: real paths in place of staged ones, the errors set
// apart.
class ToolLog
{
public:
    // Takes one line of output and returns it as it is to be shown.
    QString add(const QString &line, const SourceStage &sources);

    // "file:line: text", or only the text where the tool names no place; in order, none twice.
    const QStringList &errors() const { return m_errors; }
    const QByteArray &text() const { return m_text; }

private:
    QStringList m_errors;
    QByteArray m_text;
    QString m_reading; // the source that the tool opened last
};

} // namespace Synthesis
