#include "livereader.h"

#include "catalogue/answers.h"
#include "tr.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace Workbench
{

namespace
{

constexpr double largestNumber = 9007199254740992.0; // that a number of JSON holds exactly

bool takeNumber(const QJsonObject &object, const char *key, double limit, quint64 *number)
{
    const QJsonValue value = object.value(QLatin1String(key));
    const double given = value.toDouble(-1);
    if (!value.isDouble() || !(given >= 0) || given > limit || std::floor(given) != given)
        return false;
    *number = quint64(given);
    return true;
}

bool takePins(const QJsonObject &object, const char *key, quint32 *pins)
{
    quint64 number = 0;
    if (!takeNumber(object, key, 0xffff, &number))
        return false;
    *pins = quint32(number);
    return true;
}

// A line for a list.
QString plainText(const QJsonValue &value)
{
    QString text = value.toString().left(LiveReader::textLimit);
    for (QChar &c : text) {
        if (!c.isPrint() && !c.isSurrogate())
            c = u' ';
    }
    return text;
}

bool takeUart(const QJsonObject &object, LiveEvent *event)
{
    quint64 number = 0;
    const QJsonValue text = object.value(QLatin1String("text"));
    event->bytes = text.toString().toLatin1();
    const bool isSound = takeNumber(object, "number", 15, &number) && text.isString();
    event->number = int(number);
    return isSound;
}

bool takeMessage(const QJsonObject &object, LiveEvent *event)
{
    const QString severity = object.value(QLatin1String("severity")).toString();
    event->severity = severity == QLatin1String("error")     ? LiveEvent::Error
                      : severity == QLatin1String("warning") ? LiveEvent::Warning
                                                             : LiveEvent::Note;
    event->text = plainText(object.value(QLatin1String("text")));
    const QString file = object.value(QLatin1String("file")).toString();
    quint64 line = 0;
    if (QDir::isAbsolutePath(file) && Answers::isPlain(file) && file.size() < 4096) {
        event->file = file;
        if (takeNumber(object, "line", 1 << 30, &line))
            event->line = int(line);
    }
    return !event->text.isEmpty();
}

bool takeEnd(const QJsonObject &object, LiveEvent *event)
{
    const QString result = object.value(QLatin1String("result")).toString();
    event->result = result == QLatin1String("passed")       ? LiveEvent::Passed
                    : result == QLatin1String("time limit") ? LiveEvent::TimeLimit
                    : result == QLatin1String("cancelled")  ? LiveEvent::Cancelled
                                                            : LiveEvent::Failed;
    quint64 status = 1;
    takeNumber(object, "status", 255, &status);
    event->status = int(status);
    takeNumber(object, "clockCycles", largestNumber, &event->clockCycles);
    event->text = plainText(object.value(QLatin1String("reason")));
    const QJsonArray lines = object.value(QLatin1String("lines")).toArray();
    for (const QJsonValue &line : lines) {
        if (event->lines.size() < LiveReader::linesLimit)
            event->lines.append(plainText(line));
    }
    return true;
}

// False for what is not known or not sound.
bool takeEvent(const QJsonObject &object, LiveEvent *event)
{
    const QString kind = object.value(QLatin1String("event")).toString();
    if (kind == QLatin1String("uart")) {
        event->kind = LiveEvent::Uart;
        return takeUart(object, event);
    }
    if (kind == QLatin1String("gpio")) {
        event->kind = LiveEvent::Pins;
        return takePins(object, "levels", &event->levels) &&
               takePins(object, "driven", &event->driven);
    }
    if (kind == QLatin1String("time")) {
        event->kind = LiveEvent::Time;
        return takeNumber(object, "clockCycles", largestNumber, &event->clockCycles);
    }
    if (kind == QLatin1String("stage") || kind == QLatin1String("text")) {
        const bool isStage = kind == QLatin1String("stage");
        event->kind = isStage ? LiveEvent::Stage : LiveEvent::Text;
        event->text = plainText(object.value(QLatin1String(isStage ? "stage" : "text")));
        return object.value(QLatin1String(isStage ? "stage" : "text")).isString();
    }
    if (kind == QLatin1String("message")) {
        event->kind = LiveEvent::Message;
        return takeMessage(object, event);
    }
    event->kind = LiveEvent::End;
    return kind == QLatin1String("end") && takeEnd(object, event);
}

QByteArray lineOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

QVector<LiveEvent> LiveReader::take(const QByteArray &bytes)
{
    QVector<LiveEvent> events;
    int from = 0;
    while (from < bytes.size()) {
        const int end = bytes.indexOf('\n', from);
        const int to = end < 0 ? bytes.size() : end;
        // What is too long is not kept.
        if (!m_isTooLong && m_line.size() + to - from > lineLimit) {
            m_isTooLong = true;
            m_line.truncate(200);
        }
        if (!m_isTooLong)
            m_line.append(bytes.constData() + from, to - from);
        from = to + 1;
        if (end >= 0)
            events += finish();
    }
    return events;
}

QVector<LiveEvent> LiveReader::finish()
{
    QVector<LiveEvent> events;
    if (m_isTooLong) {
        LiveEvent event;
        event.text = Tr::tr("a line of more than %1 bytes").arg(lineLimit);
        events.append(event);
    } else if (!m_line.trimmed().isEmpty()) {
        takeLine(m_line, &events);
    }
    m_line.clear();
    m_isTooLong = false;
    return events;
}

void LiveReader::takeLine(const QByteArray &line, QVector<LiveEvent> *events)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    LiveEvent event;
    if (!document.isObject()) {
        event.text = plainText(QString::fromUtf8(line.left(200)));
        events->append(event);
    } else if (takeEvent(document.object(), &event)) {
        events->append(event);
    }
}

QByteArray LiveReader::input(int uart, const QByteArray &bytes)
{
    return lineOf(
        {{QStringLiteral("uart"), uart}, {QStringLiteral("text"), QString::fromLatin1(bytes)}});
}

QByteArray LiveReader::pins(quint32 mask, quint32 levels)
{
    return lineOf({{QStringLiteral("gpio"), QJsonObject{{QStringLiteral("mask"), int(mask)},
                                                        {QStringLiteral("levels"), int(levels)}}}});
}

QByteArray LiveReader::stop()
{
    return lineOf({{QStringLiteral("stop"), true}});
}

} // namespace Workbench
