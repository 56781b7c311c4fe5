#include "simulationchoices.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

namespace Workbench
{

namespace
{

const QString settingsKey = QStringLiteral("simulations");
const QString ipKey = QStringLiteral("ip");
const QString inputKey = QStringLiteral("input");
const QString filesKey = QStringLiteral("files");
const QString engineKey = QStringLiteral("engine");
const QString wavesKey = QStringLiteral("waves");

// The last one first.
QJsonArray read(const QSettings &settings)
{
    return QJsonDocument::fromJson(settings.value(settingsKey).toString().toUtf8()).array();
}

} // namespace

SimulationChoice SimulationChoices::of(const QString &ipcFile) const
{
    SimulationChoice choice;
    const QJsonArray entries = read(m_settings);
    for (const QJsonValue &entry : entries) {
        const QJsonObject object = entry.toObject();
        if (object.value(ipKey).toString() != ipcFile)
            continue;
        choice.input = object.value(inputKey).toString();
        const QJsonArray files = object.value(filesKey).toArray();
        for (const QJsonValue &file : files)
            choice.files.append(file.toString());
        choice.engine = object.value(engineKey).toString();
        choice.hasWaves = object.value(wavesKey).toBool();
        break;
    }
    return choice;
}

void SimulationChoices::keep(const QString &ipcFile, const SimulationChoice &choice)
{
    QJsonArray entries;
    entries.append(QJsonObject{{ipKey, ipcFile},
                               {inputKey, choice.input},
                               {filesKey, QJsonArray::fromStringList(choice.files)},
                               {engineKey, choice.engine},
                               {wavesKey, choice.hasWaves}});
    const QJsonArray before = read(m_settings);
    for (const QJsonValue &entry : before) {
        if (entry.toObject().value(ipKey).toString() != ipcFile && entries.size() < limit)
            entries.append(entry);
    }
    m_settings.setValue(settingsKey,
                        QString::fromUtf8(QJsonDocument(entries).toJson(QJsonDocument::Compact)));
}

} // namespace Workbench
