#pragma once

#include <config/optionmap.h>
#include <dev/devicearg.h>
#include <sweep/table.h>
#include <utils/result.h>

#include <QByteArray>
#include <QHash>
#include <QJsonArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Cli
{

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

    // What stands in result() or failure() and belongs to `fingerprint` becomes the state of a
    // point that is open.
    void take(const QString &fingerprint, TARVOORIXM1::SweepResult *result) const;
    // Replaces one by the other. A failure is a sentence.
    Utils::Result<void> keepResult(const QString &fingerprint, const QJsonArray &resources) const;
    Utils::Result<void> keepFailure(const QString &fingerprint, const QStringList &errors) const;
    // Neither is there then.
    void forget() const;

private:
    QString m_path;
    const QVariantMap &m_ipInfo;
};

// Tells whether a result still belongs to what it would be made of: the configuration, the RTL, the
// contents of the instruction memory, the device and this program.
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
