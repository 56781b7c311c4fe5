#include "sessionstore.h"

#include "settings/settingstable.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

#include <algorithm>

namespace Workbench
{

namespace
{

const QString lastKey = QStringLiteral("session/last");
const QString attemptsKey = QStringLiteral("session/attempts");
const QString splittersKey = QStringLiteral("session/splitters");
const QString recordsKey = QStringLiteral("session/projects");
const QString timesKey = QStringLiteral("session/times");
const QString sumKey = QStringLiteral("session/windowSum");
const QString geometryKey = QStringLiteral("window/geometry");
const QString panesKey = QStringLiteral("window/state");

constexpr int splitterLimit = 100;
constexpr int sizeLimit = 100000; // of a part, in pixels

QString nameOf(const QString &projectFile)
{
    if (projectFile.isEmpty())
        return QStringLiteral("none");
    const QString canonical = QFileInfo(projectFile).canonicalFilePath();
    const QByteArray bytes = (canonical.isEmpty() ? projectFile : canonical).toUtf8();
    return QString::fromLatin1(
        QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().left(32));
}

QString entry(const QString &group, const QString &name)
{
    return group + u'/' + name;
}

QByteArray sumOf(const SessionStore::WindowState &state)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::number(state.geometry.size()) + ' ' + state.geometry + state.panes);
    return hash.result().toHex();
}

} // namespace

SessionStore::SessionStore(QSettings &settings)
    : m_settings(settings)
{
}

void SessionStore::write(const QString &key, const QVariant &value)
{
    m_settings.setValue(key, value);
    m_settings.sync();
}

bool SessionStore::isWanted() const
{
    return Settings::isOn(m_settings, Settings::restoreSession);
}

void SessionStore::setWanted(bool wanted)
{
    write(QLatin1String(Settings::restoreSession), wanted);
}

QString SessionStore::last() const
{
    const QString path = m_settings.value(lastKey).toString();
    return QDir::isAbsolutePath(path) && !path.contains(QChar(0)) ? path : QString();
}

void SessionStore::setLast(const QString &projectFile)
{
    m_settings.sync();
    if (last() != projectFile)
        write(lastKey, projectFile);
}

void SessionStore::forget(const QString &projectFile)
{
    m_settings.sync();
    if (last() == projectFile)
        write(lastKey, QString());
}

SessionRecord SessionStore::record(const QString &projectFile) const
{
    m_settings.sync();
    const QString text = m_settings.value(entry(recordsKey, nameOf(projectFile))).toString();
    return SessionRecord::fromText(text).value_or(SessionRecord());
}

void SessionStore::keep(const QString &projectFile, const SessionRecord &record)
{
    const QString name = nameOf(projectFile);
    m_settings.beginGroup(recordsKey);
    QStringList names = m_settings.childKeys();
    m_settings.endGroup();
    if (!names.contains(name) && names.size() >= projectLimit) {
        const auto timeOf = [this](const QString &of) {
            return m_settings.value(entry(timesKey, of)).toLongLong();
        };
        std::sort(names.begin(), names.end(),
                  [&](const QString &a, const QString &b) { return timeOf(a) < timeOf(b); });
        const QStringList oldest = names.mid(0, names.size() - projectLimit + 1);
        for (const QString &old : oldest) {
            m_settings.remove(entry(recordsKey, old));
            m_settings.remove(entry(timesKey, old));
        }
    }
    m_settings.setValue(entry(timesKey, name), QDateTime::currentMSecsSinceEpoch());
    write(entry(recordsKey, name), record.toText());
}

QHash<QString, QList<int>> SessionStore::splitters() const
{
    QHash<QString, QList<int>> result;
    const QString text = m_settings.value(splittersKey).toString();
    if (text.size() > SessionRecord::sizeLimit)
        return result;
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    for (auto it = object.begin(); it != object.end() && result.size() < splitterLimit; ++it) {
        QList<int> sizes;
        const QJsonArray list = it.value().toArray();
        for (const QJsonValue &value : list) {
            const int size = value.toInt(-1);
            if (size < 0 || size > sizeLimit)
                break;
            sizes.append(size);
        }
        if (!sizes.isEmpty() && sizes.size() == list.size())
            result.insert(it.key(), sizes);
    }
    return result;
}

void SessionStore::setSplitters(const QHash<QString, QList<int>> &sizes)
{
    QJsonObject object;
    for (auto it = sizes.begin(); it != sizes.end(); ++it) {
        QJsonArray list;
        for (const int size : it.value())
            list.append(size);
        object.insert(it.key(), list);
    }
    write(splittersKey, QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

int SessionStore::attempts() const
{
    m_settings.sync();
    return qBound(0, m_settings.value(attemptsKey).toInt(), attemptLimit);
}

void SessionStore::setAttempts(int number)
{
    write(attemptsKey, number);
}

SessionStore::WindowState SessionStore::windowState() const
{
    const WindowState state{m_settings.value(geometryKey).toByteArray(),
                            m_settings.value(panesKey).toByteArray()};
    const bool isSound = m_settings.value(sumKey).toString().toLatin1() == sumOf(state);
    return isSound ? state : WindowState();
}

void SessionStore::setWindowState(const WindowState &state)
{
    m_settings.setValue(geometryKey, state.geometry);
    m_settings.setValue(panesKey, state.panes);
    write(sumKey, QString::fromLatin1(sumOf(state)));
}

} // namespace Workbench
