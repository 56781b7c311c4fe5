#pragma once

#include "runreport.h"

#include <QByteArray>
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
    // Takes one line of output and returns it as it is to be shown.
    QString add(const QString &line, const SourceStage &sources);

    // Errors and warnings, in order, none twice.
    const QList<Message> &messages() const { return m_messages; }
    // The errors as text.
    QStringList errors() const;
    const QByteArray &text() const { return m_text; }

private:
    void take(const Message &message);

    QList<Message> m_messages;
    int m_open = -1; // the message that goes on in the lines that follow
    QByteArray m_text;
    QString m_reading; // the source that the tool opened last
};

} // namespace Synthesis
