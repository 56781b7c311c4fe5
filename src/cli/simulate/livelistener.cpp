#include "livelistener.h"

#include "../output.h"
#include "compilermessage.h"
#include "simulationreport.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

namespace Cli
{

namespace
{

constexpr int gatherMs = 50;
constexpr int mostGathered = 4096; // bytes

struct Limit {
    const char *what;
    qint64 most; // bytes
};

// By kind.
constexpr Limit limits[] = {{"what the UARTs say", 16 << 20},
                            {"what the program says", 1 << 20},
                            {"the messages", 1 << 20}};

void print(const QJsonObject &object)
{
    printText(stdout, QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString() + '\n');
    // Somebody waits for it.
    std::fflush(stdout);
}

QJsonObject eventOf(const char *name)
{
    return {{QStringLiteral("event"), QLatin1String(name)}};
}

QLatin1String nameOf(Stage stage)
{
    switch (stage) {
    case Stage::Program:
        return QLatin1String("program");
    case Stage::Simulator:
        return QLatin1String("simulator");
    case Stage::Run:
        break;
    }
    return QLatin1String("run");
}

QLatin1String nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return QLatin1String("error");
    case Severity::Warning:
        return QLatin1String("warning");
    case Severity::Note:
        break;
    }
    return QLatin1String("note");
}

} // namespace

LiveListener::LiveListener()
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(gatherMs);
    connect(&m_timer, &QTimer::timeout, this, &LiveListener::flush);
    divertErrors([this](const QString &text) { told(Severity::Error, text); });
}

LiveListener::~LiveListener()
{
    divertErrors({});
}

void LiveListener::setFolder(const QString &folder, const QMap<QString, QString> &names)
{
    m_folder = folder;
    m_names = names;
}

QString LiveListener::placeOf(const QString &file) const
{
    if (const auto found = m_names.find(file); found != m_names.end())
        return *found;
    const QString path = QFileInfo(QDir(m_folder), file).canonicalFilePath();
    return path.startsWith(QFileInfo(m_folder).canonicalFilePath() + u'/') ? QString() : path;
}

bool LiveListener::isWithin(Kind kind, qint64 size)
{
    const Limit &limit = limits[kind];
    qint64 &count = m_counts[kind];
    const bool wasWithin = count <= limit.most;
    count += size;
    if (wasWithin && count > limit.most) {
        QJsonObject object = eventOf("message");
        object.insert(QStringLiteral("severity"), nameOf(Severity::Note));
        object.insert(QStringLiteral("text"),
                      QString(QLatin1String("The rest of ") + QLatin1String(limit.what) +
                              QLatin1String(" is cut off.")));
        print(object);
    }
    return count <= limit.most;
}

void LiveListener::flush()
{
    m_timer.stop();
    for (auto it = m_uarts.begin(); it != m_uarts.end(); ++it) {
        if (it->isEmpty())
            continue;
        QJsonObject object = eventOf("uart");
        object.insert(QStringLiteral("number"), it.key());
        object.insert(QStringLiteral("text"), QString::fromLatin1(it->constData(), it->size()));
        print(object);
    }
    m_uarts.clear();
    for (QJsonObject *object : {&m_pins, &m_time}) {
        if (!object->isEmpty())
            print(*object);
        *object = {};
    }
}

void LiveListener::uartSent(int number, char byte)
{
    if (!isWithin(Uarts, 1))
        return;
    QByteArray &bytes = m_uarts[number];
    bytes.append(byte);
    if (bytes.size() >= mostGathered)
        flush();
    else if (!m_timer.isActive())
        m_timer.start();
}

void LiveListener::said(const QString &text, bool endsLine)
{
    if (!isWithin(Texts, text.size() + 1))
        return;
    m_text += text;
    if (!endsLine && m_text.size() < mostGathered)
        return;
    flush();
    QJsonObject object = eventOf("text");
    object.insert(QStringLiteral("text"), m_text);
    m_text.clear();
    print(object);
}

void LiveListener::pinsChanged(quint32 levels, quint32 driven)
{
    m_pins = eventOf("gpio");
    m_pins.insert(QStringLiteral("levels"), qint64(levels));
    m_pins.insert(QStringLiteral("driven"), qint64(driven));
    if (!m_timer.isActive())
        m_timer.start();
}

void LiveListener::timePassed(quint64 cycles)
{
    m_time = eventOf("time");
    m_time.insert(QStringLiteral("clockCycles"), qint64(cycles));
    if (!m_timer.isActive())
        m_timer.start();
}

void LiveListener::stageBegun(Stage stage)
{
    flush();
    QJsonObject object = eventOf("stage");
    object.insert(QStringLiteral("stage"), nameOf(stage));
    print(object);
}

void LiveListener::tellMessage(Severity severity, const QString &text, const QString &file,
                               int line)
{
    if (severity == Severity::Error)
        m_lastError = text;
    if (m_hasEnded || !isWithin(Messages, text.size() + file.size() + 1))
        return;
    flush();
    QJsonObject object = eventOf("message");
    object.insert(QStringLiteral("severity"), nameOf(severity));
    object.insert(QStringLiteral("text"), text);
    if (const QString path = file.isEmpty() ? QString() : placeOf(file); !path.isEmpty()) {
        object.insert(QStringLiteral("file"), path);
        object.insert(QStringLiteral("line"), line);
    }
    print(object);
}

void LiveListener::compilerSaid(const QString &line)
{
    if (const auto message = compilerMessage(line))
        tellMessage(message->severity, message->text, message->file, message->line);
}

void LiveListener::toldAt(Severity severity, const QString &text, const QString &file, int line)
{
    tellMessage(severity, text, file, line);
}

void LiveListener::checkFailed(const ScriptFailure &failure)
{
    tellMessage(Severity::Error, failure.text, failure.file, failure.line);
}

void LiveListener::told(Severity severity, const QString &text)
{
    const QString trimmed = text.trimmed();
    if (!trimmed.isEmpty())
        tellMessage(severity, trimmed, {}, 0);
}

void LiveListener::ended(const Outcome &outcome)
{
    if (m_hasEnded)
        return;
    if (!m_text.isEmpty())
        said({}, true);
    flush();
    m_hasEnded = true;
    QJsonObject object = eventOf("end");
    object.insert(QStringLiteral("result"), nameOf(outcome.result));
    object.insert(QStringLiteral("status"), outcome.status);
    const bool isTold = outcome.status == Done || !outcome.reason.isEmpty();
    object.insert(QStringLiteral("reason"), isTold ? outcome.reason : m_lastError);
    object.insert(QStringLiteral("clockCycles"), qint64(outcome.cycles));
    object.insert(QStringLiteral("lines"), QJsonArray::fromStringList(outcome.lines));
    print(object);
}

void tellLiveMistake(int status, const QString &text)
{
    LiveListener listener;
    listener.told(Severity::Error, text);
    Outcome outcome;
    outcome.status = status;
    listener.ended(outcome);
}

} // namespace Cli
