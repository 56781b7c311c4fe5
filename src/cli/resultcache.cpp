#include "resultcache.h"

#include <config/optionkeys.h>
#include <synthesis/toolversion.h>
#include <utils/fileutils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

#include <algorithm>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

const QString filesKey = QStringLiteral("files");
const QString nameKey = QStringLiteral("name");
const QString sizeKey = QStringLiteral("size");
const QString reportKey = QStringLiteral("report");

// By their names; nothing if some lie deeper, which is so only with tools that are no part of this.
struct Names {
    QStringList always;
    QStringList all;
};
std::optional<Names> resultNames(const GenerationPlan &plan)
{
    Names names;
    const ResultPaths paths = resultPaths(plan.outputs);
    const QStringList all = paths.always + paths.sometimes;
    for (const QString &path : all) {
        if (!path.startsWith(plan.folder + u'/'))
            continue;
        const QString name = path.mid(plan.folder.size() + 1);
        if (name.contains(u'/'))
            return std::nullopt;
        names.all.append(name);
        if (paths.always.contains(path))
            names.always.append(name);
    }
    return names;
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// Whether the inputs are all that the results depend on: each is there, and the contents of the
// instruction memory are among them if it has any.
bool isWhole(const Origin &origin)
{
    int lanes = 0;
    for (const DigestedFile &file : origin.inputs) {
        if (file.sha256.isEmpty())
            return false;
        lanes += file.role == QLatin1String("memory") ? 1 : 0;
    }
    const QString key = Key::initializeItcm;
    return lanes > 0 || !origin.options[key].toBool();
}

} // namespace

ResultCache::ResultCache(bool isEnabled, Synthesis::Tool tool)
    : m_cache(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                  QLatin1String("/tarvo/generate"),
              mostEntries, mostBytes)
    , m_isEnabled(isEnabled)
    , m_tool(tool)
{
}

QByteArray ResultCache::keyOf(const GenerationPlan &plan, const Origin &origin) const
{
    const QString program = Synthesis::toolProgram(m_tool);
    if (program.isEmpty() || !isWhole(origin))
        return {};
    QByteArray key = "synthesis 1\n" + origin.program.toUtf8() + '\n';
    // The flow around the tool, and what the tool calls.
    key += BuildCache::stampOf(QCoreApplication::applicationFilePath());
    key += BuildCache::stampOf(QCoreApplication::applicationDirPath() +
                               QLatin1String("/" ORIXM1_SYNTHESIS_LIBRARY));
    key += BuildCache::stampOf(program);
    key += BuildCache::stampOf(QFileInfo(program).absolutePath() + QLatin1String("/yosys-abc"));
    const SynthesisRequest &request = plan.request;
    QVariantMap job = request.options;
    job.remove(QStringLiteral("source_files"));
    key += compact(QJsonObject::fromVariantMap(job)) + '\n';
    const DEV::DeviceResources totals = request.device.resources();
    const QStringList texts = {request.ipName,
                               request.targetName,
                               origin.device,
                               QString::number(totals.lut4),
                               QString::number(totals.flipFlops),
                               QString::number(totals.carry),
                               QString::number(totals.blockRam)};
    key += texts.join(u'\n').toUtf8() + '\n';
    // An option that changes nothing that is read changes no result.
    for (const DigestedFile &file : origin.inputs) {
        if (file.role != QLatin1String("configuration"))
            key += file.role.toUtf8() + ' ' + file.name.toUtf8() + ' ' + file.sha256 + '\n';
    }
    return key;
}

// An entry is a line of JSON and the files one after the other.
std::optional<ResultCache::Results> ResultCache::find(const GenerationInput &input,
                                                      const GenerationPlan &plan,
                                                      const Origin &origin, QString *note) const
{
    const std::optional<Names> names = resultNames(plan);
    const QByteArray key = m_isEnabled && names ? keyOf(plan, origin) : QByteArray();
    if (key.isEmpty())
        return std::nullopt;
    const QByteArray entry = m_cache.find(key, note);
    if (entry.isEmpty())
        return std::nullopt;
    const int end = entry.indexOf('\n');
    const QJsonObject head = QJsonDocument::fromJson(entry.left(end)).object();
    Results results;
    results.report = withPaths(head.value(reportKey).toObject(), input);
    QStringList found;
    qint64 at = end + 1;
    const QJsonArray files = head.value(filesKey).toArray();
    bool isSound = end >= 0 && head.value(reportKey).isObject();
    for (const QJsonValue &value : files) {
        const QString name = value.toObject().value(nameKey).toString();
        const double size = value.toObject().value(sizeKey).toDouble(-1);
        isSound = isSound && names->all.contains(name) && !found.contains(name) && size >= 0 &&
                  size <= double(entry.size() - at);
        if (!isSound)
            break;
        found.append(name);
        results.files.append({name, entry.mid(int(at), int(size))});
        at += qint64(size);
    }
    isSound = isSound && at == entry.size() &&
              std::all_of(names->always.begin(), names->always.end(),
                          [&found](const QString &name) { return found.contains(name); });
    if (isSound)
        return results;
    m_cache.drop(key, note);
    return std::nullopt;
}

void ResultCache::keep(const GenerationInput &input, const GenerationPlan &plan,
                       const Origin &origin, const QJsonObject &report) const
{
    const std::optional<Names> names = resultNames(plan);
    const QByteArray key = m_isEnabled && names ? keyOf(plan, origin) : QByteArray();
    if (key.isEmpty())
        return;
    QByteArray contents;
    QJsonArray files;
    for (const QString &name : names->all) {
        const QString path = plan.folder + u'/' + name;
        if (!names->always.contains(name) && !QFileInfo::exists(path))
            continue;
        QByteArray bytes;
        if (!Utils::FileUtils::readFile(path, &bytes, nullptr))
            return;
        files.append(QJsonObject{{nameKey, name}, {sizeKey, bytes.size()}});
        contents += bytes;
    }
    m_cache.keep(key, compact({{filesKey, files}, {reportKey, withoutPaths(report, input)}}) +
                          '\n' + contents);
}

ToolFacts ResultCache::toolFacts() const
{
    const QString program = Synthesis::toolProgram(m_tool);
    ToolFacts facts{Synthesis::toolName(m_tool), QString(), !program.isEmpty()};
    if (program.isEmpty())
        return facts;
    const QByteArray key = "version\n" + BuildCache::stampOf(program);
    if (m_isEnabled)
        facts.version = QString::fromUtf8(m_cache.find(key));
    if (!facts.version.isEmpty())
        return facts;
    facts.version = Synthesis::toolVersion(m_tool);
    if (m_isEnabled && !facts.version.isEmpty())
        m_cache.keep(key, facts.version.toUtf8());
    return facts;
}

} // namespace Cli
