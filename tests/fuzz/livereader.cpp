#include "fuzz.h"

#include <simulation/livereader.h>

using Workbench::LiveEvent;
using Workbench::LiveReader;

namespace
{

QByteArray written(const QVector<LiveEvent> &events)
{
    QByteArray text;
    for (const LiveEvent &event : events) {
        REQUIRE(event.text.size() <= LiveReader::textLimit + 1);
        REQUIRE(event.lines.size() <= LiveReader::linesLimit);
        REQUIRE((event.levels | event.driven) <= 0xffff);
        text += QByteArray::number(event.kind) + ' ' + QByteArray::number(event.number) + ' ' +
                event.bytes.toHex() + ' ' + event.text.toUtf8() + ' ' +
                QByteArray::number(event.levels) + ' ' + QByteArray::number(event.driven) + ' ' +
                QByteArray::number(event.clockCycles) + ' ' + event.file.toUtf8() + ' ' +
                QByteArray::number(event.line) + ' ' + event.lines.join(u'|').toUtf8() + '\n';
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    LiveReader whole;
    QVector<LiveEvent> expected = whole.take(bytes);
    expected += whole.finish();
    // However the bytes come.
    const int length = 1 + (size > 0 ? data[size / 2] : 0);
    LiveReader pieces;
    QVector<LiveEvent> events;
    for (int at = 0; at < bytes.size(); at += length)
        events += pieces.take(bytes.mid(at, length));
    events += pieces.finish();
    REQUIRE(written(events) == written(expected));
    REQUIRE(expected.size() <= Fuzz::lineCount(bytes));
    return 0;
}
