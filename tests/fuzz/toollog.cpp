#include "fuzz.h"

#include <synthesis/run/sourcestage.h>
#include <synthesis/run/toollog.h>

#include <QSet>

using namespace Synthesis;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const SourceStage sources;
    ToolLog log;
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray &line : lines)
        log.add(QString::fromUtf8(line), sources);
    REQUIRE(log.text().count('\n') >= lines.size());
    REQUIRE(log.messages().size() <= lines.size());
    QSet<QString> seen;
    int said = 0;
    for (int i = 0; i < log.messages().size(); ++i) {
        const Message &message = log.messages().at(i);
        REQUIRE(message.count >= 1 && message.line >= 0);
        said += message.count;
        const QString text = QString::number(message.severity) + message.toString();
        // The last one may not be whole yet.
        REQUIRE(i + 1 == log.messages().size() || !seen.contains(text));
        seen.insert(text);
    }
    REQUIRE(said <= lines.size());
    REQUIRE(log.errors().size() <= log.messages().size());
    log.addError(QString::fromUtf8(bytes));
    REQUIRE(!log.errors().isEmpty());
    return 0;
}
