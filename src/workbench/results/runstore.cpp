#include "runstore.h"

#include "tr.h"

#include <synthesis/reportjson.h>
#include <utils/fileutils.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace Workbench
{

namespace
{

constexpr int formatNumber = 1;
constexpr qint64 sizeLimit = 16 << 20;   // bytes; a report has some hundred thousand at most
constexpr qint64 readAtOnce = 128 << 10; // bytes; some milliseconds

// Empty for what cannot be read.
QByteArray digestOf(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(&file);
    return hash.result();
}

QJsonObject jsonOf(const QMap<QString, int> &figures)
{
    QJsonObject object;
    for (auto it = figures.begin(); it != figures.end(); ++it)
        object.insert(it.key(), it.value());
    return object;
}

QMap<QString, int> figuresOf(const QJsonObject &object)
{
    QMap<QString, int> figures;
    for (auto it = object.begin(); it != object.end(); ++it)
        figures.insert(it.key(), it.value().toInt());
    return figures;
}

} // namespace

KeptRun KeptRun::of(const Synthesis::RunReport &report, const QStringList &delivered)
{
    KeptRun run;
    run.report = report;
    run.delivered = delivered;
    run.when = QDateTime::currentDateTime();
    for (const QStringList &files : {delivered, report.files}) {
        for (const QString &file : files)
            run.digests.insert(file, digestOf(file));
    }
    return run;
}

qint64 KeptRun::size() const
{
    qint64 sum = 0;
    for (auto it = digests.begin(); it != digests.end(); ++it)
        sum += QFileInfo(it.key()).size();
    return sum;
}

QStringList KeptRun::changedFiles() const
{
    QStringList changed;
    for (auto it = digests.begin(); it != digests.end(); ++it) {
        if (digestOf(it.key()) != it.value())
            changed.append(it.key());
    }
    return changed;
}

RunStore::RunStore(const QString &folder)
    : m_folder(folder)
{
}

QString RunStore::ipOf(const Synthesis::RunReport &report)
{
    return report.job.outputDir + u'/' + report.job.targetName;
}

QString RunStore::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QLatin1String("/tarvo-workbench/runs");
}

QString RunStore::pathOf(const QString &project) const
{
    const QString canonical = QFileInfo(project).canonicalFilePath();
    const QByteArray name = QCryptographicHash::hash(
        (canonical.isEmpty() ? project : canonical).toUtf8(), QCryptographicHash::Sha256);
    return m_folder + u'/' + QString::fromLatin1(name.toHex().left(32)) + QLatin1String(".json");
}

bool RunStore::has(const QString &project) const
{
    return !project.isEmpty() && QFileInfo(pathOf(project)).isFile();
}

bool RunStore::isLarge(const QString &project) const
{
    return QFileInfo(pathOf(project)).size() > readAtOnce;
}

bool RunStore::keep(const QString &project, const KeptRun &run, QString *error) const
{
    QJsonArray digests;
    for (auto it = run.digests.begin(); it != run.digests.end(); ++it)
        digests.append(
            QJsonObject{{QStringLiteral("file"), it.key()},
                        {QStringLiteral("sha256"), QString::fromLatin1(it.value().toHex())}});
    QJsonObject figures;
    for (auto it = run.figures.begin(); it != run.figures.end(); ++it)
        figures.insert(it.key(), jsonOf(it.value()));
    const QJsonObject object{
        {QStringLiteral("before"), jsonOf(run.before)},
        {QStringLiteral("figures"), figures},
        {QStringLiteral("format"), formatNumber},
        {QStringLiteral("project"), project},
        {QStringLiteral("when"), run.when.toUTC().toString(Qt::ISODate)},
        {QStringLiteral("delivered"), QJsonArray::fromStringList(run.delivered)},
        {QStringLiteral("digests"), digests},
        {QStringLiteral("report"), Synthesis::toJson(run.report)},
    };
    return Utils::FileUtils::makePath(m_folder, error) &&
           Utils::FileUtils::writeFile(pathOf(project), QJsonDocument(object).toJson(), error);
}

bool RunStore::load(const QString &project, KeptRun *run, QString *error) const
{
    const QString path = pathOf(project);
    const auto refuse = [&path, error](const QString &reason) {
        if (error)
            *error = Tr::tr("The last results cannot be shown: \"%1\" %2.")
                         .arg(QDir::toNativeSeparators(path), reason);
        return false;
    };
    if (QFileInfo(path).size() > sizeLimit)
        return refuse(Tr::tr("is too large"));
    QByteArray bytes;
    if (!Utils::FileUtils::readFile(path, &bytes, error))
        return false;
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    KeptRun result;
    if (object.value(QStringLiteral("format")).toInt() != formatNumber ||
        !Synthesis::fromJson(object.value(QStringLiteral("report")).toObject(), &result.report))
        return refuse(Tr::tr("is no report of a run"));
    result.when =
        QDateTime::fromString(object.value(QStringLiteral("when")).toString(), Qt::ISODate)
            .toLocalTime();
    const QJsonArray delivered = object.value(QStringLiteral("delivered")).toArray();
    for (const QJsonValue &file : delivered)
        result.delivered.append(file.toString());
    const QJsonArray digests = object.value(QStringLiteral("digests")).toArray();
    for (const QJsonValue &value : digests) {
        const QJsonObject digest = value.toObject();
        result.digests.insert(
            digest.value(QStringLiteral("file")).toString(),
            QByteArray::fromHex(digest.value(QStringLiteral("sha256")).toString().toLatin1()));
    }
    result.before = figuresOf(object.value(QStringLiteral("before")).toObject());
    const QJsonObject figures = object.value(QStringLiteral("figures")).toObject();
    for (auto it = figures.begin(); it != figures.end(); ++it)
        result.figures.insert(it.key(), figuresOf(it.value().toObject()));
    *run = result;
    return true;
}

} // namespace Workbench
