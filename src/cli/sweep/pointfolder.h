#pragma once

#include <config/optionmap.h>
#include <dev/devicearg.h>
#include <generate/state.h>
#include <sweep/table.h>
#include <utils/result.h>

#include <QByteArray>
#include <QHash>
#include <QJsonArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace Cli
{

// The tool that points are synthesised with. It is asked once, and only if that is needed.
class PointTool
{
public:
    // Empty: not installed, or it does not tell.
    QString version();
    // Whether a result of that version holds. Any does where the tool is not installed: that is a
    // machine that only collects.
    bool matches(const QString &version);

private:
    const TARVOORIXM1::ToolFacts &facts();

    std::optional<TARVOORIXM1::ToolFacts> m_facts;
};

// The folder of a point of a sweep, and what stands in it.
class PointFolder
{
public:
    // `sweep` is the sweep's folder; without a `/` at its end.
    PointFolder(const QString &sweep, const QString &point, const QVariantMap &ipInfo);

    QString path() const { return m_path; }
    QString configuration() const; // the .ipc file
    QString result() const;
    QString failure() const;

    // What stands in result() or failure() and belongs to `fingerprint` and the tool becomes the
    // state of a point that is open.
    void take(const QString &fingerprint, PointTool &tool, TARVOORIXM1::SweepResult *result) const;
    // Replaces one by the other. A failure is a sentence.
    Utils::Result<void> keepResult(const QString &fingerprint, const QString &toolVersion,
                                   const QJsonArray &resources) const;
    Utils::Result<void> keepFailure(const QString &fingerprint, const QString &toolVersion,
                                    const QStringList &errors) const;
    // Neither is there then.
    void forget() const;

private:
    QString m_path;
    const QVariantMap &m_ipInfo;
};

// Tells whether a result still belongs to what it would be made of: the configuration, the RTL, the
// contents of the instruction memory, the device and this program. The tool is PointTool's.
class Fingerprints
{
public:
    explicit Fingerprints(const QVariantMap &ipInfo)
        : m_ipInfo(ipInfo)
    {
    }

    // `configuration` is the text of the file.
    QString of(const QByteArray &configuration, const TARVOORIXM1::OptionMap &options,
               const DEV::DeviceArg &device);

private:
    QByteArray ofFolder(const QString &path);

    const QVariantMap &m_ipInfo;
    QHash<QString, QByteArray> m_folders;
};

} // namespace Cli
