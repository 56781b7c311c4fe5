#include "keptconfigurations.h"

#include "project/ipchead.h"

#include <utils/fileutils.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace Workbench
{

namespace
{

const QString originFile = QStringLiteral("origin.json");
const QString pathKey = QStringLiteral("path");
const QString kindKey = QStringLiteral("kind");
const QString timeKey = QStringLiteral("time");
const QString newKey = QStringLiteral("new");
const QString stepsKey = QStringLiteral("steps");
const QString replacedKind = QStringLiteral("replaced");
const QString droppedKind = QStringLiteral("dropped");

// That are told of a draft; the first ones are the oldest.
constexpr int stepsShown = 3;

// Larger files are no configurations.
constexpr qint64 sizeLimit = 16 << 20;

bool readPlain(const QString &path, QByteArray *bytes, QString *error)
{
    const QFileInfo info(path);
    return info.isFile() && info.size() <= sizeLimit &&
           Utils::FileUtils::readFile(path, bytes, error);
}

} // namespace

QString KeptConfigurations::Item::description() const
{
    const QString when = QLocale().toString(time, QLocale::ShortFormat);
    const QString what =
        kind == Dropped ? tr("Left without OK, %1").arg(when) : tr("Replaced %1").arg(when);
    return device.isEmpty() ? what : tr("%1; for %2").arg(what, device);
}

QString KeptConfigurations::Item::stepWords() const
{
    const int hidden = steps.size() - stepsShown;
    if (hidden <= 0)
        return steps.join(QLatin1String(", "));
    return tr("%1, and %n more before", nullptr, hidden)
        .arg(steps.mid(hidden).join(QLatin1String(", ")));
}

KeptConfigurations::KeptConfigurations(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
{
}

bool KeptConfigurations::keep(Kind kind, const QString &origin, const QByteArray &bytes,
                              QString *error)
{
    return store(kind, origin, bytes, {}, {}, error);
}

bool KeptConfigurations::keepDraft(const QString &origin, const QByteArray &bytes,
                                   const QStringList &steps, QString *id, QString *error)
{
    if (!store(Dropped, origin, bytes, steps, *id, error))
        return false;
    *id = m_newest;
    return true;
}

// What is replaced goes when the new one is whole.
bool KeptConfigurations::store(Kind kind, const QString &origin, const QByteArray &bytes,
                               const QStringList &steps, const QString &replaced, QString *error)
{
    const QString path = QDir::cleanPath(QFileInfo(origin).absoluteFilePath());
    if (!Utils::FileUtils::makePath(m_folder, error))
        return false;
    const QList<Item> before = read();
    // The names sort by time.
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QString id;
    for (int n = 0; id.isEmpty(); ++n) {
        const QString name = now.toString(QStringLiteral("yyyyMMdd-HHmmss-zzz-")) +
                             QStringLiteral("%1").arg(n, 3, 10, QLatin1Char('0'));
        if (QDir(m_folder).mkdir(name))
            id = name;
        else if (n == 999 || !QFileInfo::exists(m_folder + u'/' + name))
            return Utils::FileUtils::makePath(m_folder + u'/' + name, error) && false;
    }
    const QString folder = m_folder + u'/' + id;
    QJsonObject about{{pathKey, path},
                      {kindKey, kind == Dropped ? droppedKind : replacedKind},
                      {timeKey, now.toString(Qt::ISODateWithMs)},
                      {newKey, kind == Dropped && !QFileInfo::exists(path)}};
    if (!steps.isEmpty())
        about.insert(stepsKey, QJsonArray::fromStringList(steps));
    // A folder without the second file is none of a copy.
    if (!Utils::FileUtils::writeFile(folder + u'/' + QFileInfo(path).fileName(), bytes, error) ||
        !Utils::FileUtils::writeFile(folder + u'/' + originFile, QJsonDocument(about).toJson(),
                                     error)) {
        drop(id);
        return false;
    }
    for (const Item &item : before) {
        QByteArray old;
        if (item.kind == kind && item.origin == path && readPlain(item.copy, &old, nullptr) &&
            old == bytes)
            drop(item.id);
    }
    drop(replaced);
    m_newest = id;
    thinOut();
    Q_EMIT changed();
    return true;
}

bool KeptConfigurations::keepFile(const QString &path, QString *error)
{
    if (!QFileInfo(path).isFile())
        return true;
    QByteArray bytes;
    if (QFileInfo(path).size() > sizeLimit) {
        *error = tr("\"%1\" is too large for a configuration; no copy is kept.")
                     .arg(QDir::toNativeSeparators(path));
        return false;
    }
    return Utils::FileUtils::readFile(path, &bytes, error) && keep(Replaced, path, bytes, error);
}

KeptConfigurations::Item KeptConfigurations::read(const QString &id) const
{
    const QString folder = m_folder + u'/' + id;
    QByteArray text;
    if (id.contains(u'/') || !readPlain(folder + u'/' + originFile, &text, nullptr))
        return {};
    const QJsonObject about = QJsonDocument::fromJson(text).object();
    Item item;
    item.origin = about.value(pathKey).toString();
    item.kind = about.value(kindKey).toString() == droppedKind ? Dropped : Replaced;
    item.time =
        QDateTime::fromString(about.value(timeKey).toString(), Qt::ISODateWithMs).toLocalTime();
    item.isNew = about.value(newKey).toBool();
    item.steps = about.value(stepsKey).toVariant().toStringList();
    item.copy = folder + u'/' + QFileInfo(item.origin).fileName();
    if (item.origin.isEmpty() || !QFileInfo(item.copy).isFile())
        return {};
    item.device = IpcHead::read(item.copy).deviceWords();
    item.id = id;
    return item;
}

QList<KeptConfigurations::Item> KeptConfigurations::read() const
{
    QList<Item> found;
    const QStringList names =
        QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed);
    for (const QString &name : names) {
        const Item item = read(name);
        if (!item.id.isEmpty())
            found.append(item);
    }
    return found;
}

QList<KeptConfigurations::Item> KeptConfigurations::items() const
{
    QList<Item> result;
    const QList<Item> all = read();
    for (const Item &item : all) {
        QByteArray kept;
        QByteArray present;
        if (!readPlain(item.copy, &kept, nullptr))
            continue;
        if (!readPlain(item.origin, &present, nullptr) || present != kept)
            result.append(item);
    }
    return result;
}

KeptConfigurations::Item KeptConfigurations::item(const QString &id) const
{
    return id.isEmpty() ? Item() : read(id);
}

bool KeptConfigurations::restore(const QString &id, QString *error)
{
    const Item wanted = item(id);
    QByteArray bytes;
    if (wanted.id.isEmpty()) {
        *error = tr("The copy is gone.");
        return false;
    }
    if (!Utils::FileUtils::readFile(wanted.copy, &bytes, error) ||
        !Utils::FileUtils::makePath(QFileInfo(wanted.origin).absolutePath(), error) ||
        !keepFile(wanted.origin, error) ||
        !Utils::FileUtils::writeFile(wanted.origin, bytes, error))
        return false;
    forget(id);
    return true;
}

void KeptConfigurations::forget(const QString &id)
{
    if (id.isEmpty())
        return;
    drop(id);
    Q_EMIT changed();
}

// The origin first: what is left after an interruption counts for nothing.
void KeptConfigurations::drop(const QString &id)
{
    if (id.isEmpty() || id.contains(u'/'))
        return;
    QDir folder(m_folder + u'/' + id);
    folder.remove(originFile);
    folder.removeRecursively();
}

void KeptConfigurations::thinOut()
{
    const QList<Item> all = read();
    QHash<QString, int> counts;
    int count = 0;
    for (const Item &item : all) {
        if (++counts[item.origin] > limitForOneFile || ++count > limit)
            drop(item.id);
    }
}

} // namespace Workbench
