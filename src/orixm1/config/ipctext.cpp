#include "ipctext.h"

#include "ipcfile.h"
#include "latin1literal.h"

#include <reading/inientries.h>
#include <utils/inifile.h>

#include <QByteArrayList>
#include <QHash>
#include <QSet>

namespace TARVOORIXM1
{

namespace
{

// Sections and entries are told apart, and of a name that comes twice the last one counts.
QString anchorOf(const Reading::IniPart &part)
{
    return (part.kind == Reading::IniPart::Section ? u'[' : u'=') + part.name;
}

} // namespace

Utils::Result<QByteArray> editedIpcText(const QByteArray &before, const QVariantMap &frame,
                                        const OptionMap &options)
{
    using Reading::IniPart;
    const Utils::Result<QByteArray> fresh =
        Utils::iniText(frame, QString(IpcFile::configGroup), options);
    if (!fresh)
        return fresh;
    const QVector<IniPart> old = Reading::iniParts(before);
    const QVector<IniPart> now = Reading::iniParts(*fresh);
    QHash<int, QString> anchors; // by line of the new text
    QSet<QString> present;
    for (const IniPart &part : now) {
        anchors.insert(part.line, anchorOf(part));
        present.insert(anchorOf(part));
    }

    QHash<QString, QByteArrayList> comments;
    QByteArrayList waiting;
    QString last; // what stands in the line
    int lastLine = 0;
    for (const IniPart &part : old) {
        if (part.kind == IniPart::Comment) {
            if (part.line == lastLine && present.contains(last))
                comments[last].append(part.text);
            else
                waiting.append(part.text);
            continue;
        }
        last = anchorOf(part);
        lastLine = part.line;
        if (present.contains(last)) {
            comments[last] += waiting;
            waiting.clear();
        }
    }
    if (comments.isEmpty() && waiting.isEmpty())
        return fresh;

    QByteArray text;
    const QList<QByteArray> lines = fresh->split('\n');
    for (int i = 0; i + 1 < lines.size(); ++i) {
        const QByteArrayList above = comments.take(anchors.value(i + 1));
        for (const QByteArray &comment : above)
            text += comment + '\n';
        text += lines.at(i) + '\n';
    }
    for (const QByteArray &comment : qAsConst(waiting))
        text += comment + '\n';
    return text;
}

} // namespace TARVOORIXM1
