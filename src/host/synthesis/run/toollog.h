#pragma once

#include <synthesis/runreport.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace Synthesis
{

class SourceStage;

// What a tool printed, in a form for people: real paths in place of staged ones, errors and
// warnings set apart.
class ToolLog
{
public:
    // Takes one line of output and returns it as it is to be shown. The time for a line does not
    // depend on what was taken before. Of an endless output the first 64 MiB are kept.
    QString add(const QString &line, const SourceStage &sources);
    // Takes an error that no tool told: "file:line: text", "file: text" or a text alone.
    void addError(const QString &error);

    // Errors and warnings, in order, none twice; of each kind at most 10,000.
    const QList<Message> &messages() const { return m_messages; }
    // The errors as text.
    QStringList errors() const;
    const QByteArray &text() const { return m_text; }

private:
    void keep(const QString &line);
    void take(const Message &message, bool whole);
    void close();

    QList<Message> m_messages;
    QHash<QString, int> m_known; // messages by what makes them equal
    int m_errors = 0;            // different ones among the messages
    int m_warnings = 0;
    bool m_open = false; // the last message goes on in the lines that follow
    QByteArray m_text;
    QString m_reading; // the source that the tool opened last
};

} // namespace Synthesis
