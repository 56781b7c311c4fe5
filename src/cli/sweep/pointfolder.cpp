#include "pointfolder.h"

#include "../resultcache.h"
#include "../toolofrunner.h"

#include <config/ipcfile.h>
#include <config/optionkeys.h>
#include <config/optionvalue.h>
#include <sweep/workflow.h>
#include <utils/boundedfile.h>
#include <utils/fileutils.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

constexpr qint64 mostResult = 4 << 20; // bytes

namespace Member
{
const QString fingerprint = QStringLiteral("fingerprint");
const QString tool = QStringLiteral("tool");
const QString resources = QStringLiteral("resources");
const QString errors = QStringLiteral("errors");
} // namespace Member

// Empty unless the file is there, whole and belongs to the fingerprint and the tool.
QJsonObject readKept(const QString &path, const QString &fingerprint, PointTool &tool)
{
    if (!QFileInfo::exists(path))
        return {};
    const auto bytes = Utils::readBoundedFile(path, mostResult);
    const QJsonObject object = bytes ? QJsonDocument::fromJson(*bytes).object() : QJsonObject();
    const bool holds = object.value(Member::fingerprint).toString() == fingerprint &&
                       tool.matches(object.value(Member::tool).toString());
    return holds ? object : QJsonObject();
}

Utils::Result<void> replace(const QString &path, const QJsonObject &object, const QString &other)
{
    QString error;
    if (!Utils::FileUtils::writeFile(path, QJsonDocument(object).toJson(), &error))
        return Utils::Failure{error};
    QFile::remove(other);
    return {};
}

QByteArray digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

const ToolFacts &PointTool::facts()
{
    // No option of a point selects another one.
    if (!m_facts)
        m_facts = ResultCache(true, toolOfRunner(Tool::TarvoSynthesis)).toolFacts();
    return *m_facts;
}

QString PointTool::version()
{
    return facts().version;
}

bool PointTool::matches(const QString &version)
{
    return !facts().isInstalled || facts().version == version;
}

PointFolder::PointFolder(const QString &sweep, const QString &point, const QVariantMap &ipInfo)
    : m_path(sweep + u'/' + SweepFile::points + u'/' + point)
    , m_ipInfo(ipInfo)
{
}

QString PointFolder::configuration() const
{
    return IpcFile::path(m_path, m_ipInfo);
}

QString PointFolder::result() const
{
    return m_path + u'/' + SweepFile::result;
}

QString PointFolder::failure() const
{
    return m_path + u'/' + SweepFile::failure;
}

void PointFolder::take(const QString &fingerprint, PointTool &tool, SweepResult *result) const
{
    const QJsonObject kept = readKept(this->result(), fingerprint, tool);
    if (!kept.isEmpty()) {
        result->state = PointState::Done;
        const QJsonArray resources = kept.value(Member::resources).toArray();
        for (const QJsonValue &value : resources) {
            const QJsonObject object = value.toObject();
            result->resources.append({object.value(QLatin1String("resource")).toString(),
                                      object.value(QLatin1String("used")).toInt(),
                                      object.value(QLatin1String("available")).toInt(-1),
                                      object.value(QLatin1String("percent")).toInt(-1)});
        }
        return;
    }
    const QJsonObject failed = readKept(failure(), fingerprint, tool);
    if (failed.isEmpty())
        return;
    result->state = PointState::Failed;
    QStringList errors;
    const QJsonArray texts = failed.value(Member::errors).toArray();
    for (const QJsonValue &text : texts)
        errors.append(text.toString());
    result->reason = errors.join(QLatin1String("; "));
}

Utils::Result<void> PointFolder::keepResult(const QString &fingerprint, const QString &toolVersion,
                                            const QJsonArray &resources) const
{
    return replace(result(),
                   {{Member::fingerprint, fingerprint},
                    {Member::tool, toolVersion},
                    {Member::resources, resources}},
                   failure());
}

Utils::Result<void> PointFolder::keepFailure(const QString &fingerprint, const QString &toolVersion,
                                             const QStringList &errors) const
{
    return replace(failure(),
                   {{Member::fingerprint, fingerprint},
                    {Member::tool, toolVersion},
                    {Member::errors, QJsonArray::fromStringList(errors)}},
                   result());
}

void PointFolder::forget() const
{
    QFile::remove(result());
    QFile::remove(failure());
}

QString Fingerprints::of(const QByteArray &configuration, const OptionMap &options,
                         const DEV::DeviceArg &device)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](const QByteArray &bytes) { hash.addData(digestOf(bytes)); };
    add(ORIXM1_VERSION);
    add(configuration);
    add(device.id().toUtf8());
    const DEV::DeviceResources totals = device.resources();
    for (const int total : {totals.lut4, totals.flipFlops, totals.carry, totals.blockRam})
        add(QByteArray::number(total));
    add(ofFolder(m_ipInfo.value(isOn(options, Key::enableDebug) ? InfoKey::debug : InfoKey::noDebug)
                     .toString()));
    if (isOn(options, Key::initializeItcm)) {
        for (int lane = 0; lane < 4; ++lane) {
            const auto bytes =
                Utils::readBoundedFile(textOf(options, Key::itcmInitializationAbsolutePath) +
                                           QLatin1String("/itcm") + QString::number(lane),
                                       64 << 20);
            add(bytes ? *bytes : QByteArray());
        }
    }
    return QString::fromLatin1(hash.result().toHex());
}

QByteArray Fingerprints::ofFolder(const QString &path)
{
    // An empty name would be the current folder.
    if (path.isEmpty())
        return {};
    const auto known = m_folders.constFind(path);
    if (known != m_folders.constEnd())
        return *known;
    QByteArray digests;
    const QStringList names = QDir(path).entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const auto bytes = Utils::readBoundedFile(path + u'/' + name, 64 << 20);
        digests += name.toUtf8() + '\0' + (bytes ? digestOf(*bytes) : QByteArray());
    }
    m_folders.insert(path, digests);
    return digests;
}

} // namespace Cli
