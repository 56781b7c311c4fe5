#pragma once

#include <config/optionmap.h>
#include <dev/devicearg.h>
#include <generate/plan.h>
#include <reading/inientries.h>
#include <utils/result.h>

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace Cli
{

class Environment;

// What an .ipc file says.
struct IpcDocument {
    QString path;          // absolute
    QString type;          // the id of the IP
    QString deviceText;    // what the file says of its device, for messages
    QVariantMap others;    // entries that belong to neither identity nor options
    QVariantMap frame;     // every entry outside of the options, identity included
    QByteArray text;       // the file as it is
    DEV::DeviceArg device; // null when the file names none or an unknown one
    TARVOORIXM1::OptionMap options;
    QStringList unknownEntries;            // outside of what the file format knows
    QVector<Reading::IniEntry> oddEntries; // with bytes that are not ASCII

    QString folder() const;
    // The entries outside of the options for the same configuration on another device.
    QVariantMap movedHeader(const QString &deviceId) const;
    // What is wrong with the device and how to put it right ("unknown device …; …"); empty if
    // nothing is.
    QString deviceProblem() const;

    // A failure is a sentence with path and reason: the file cannot be read, is no INI file or has
    // a version that is not accepted.
    static Utils::Result<IpcDocument> read(const QString &path, const DEV::DeviceDb &devices);
};

// Where a run puts its results: the folder that the user names, or that of the file.
QString outputFolder(const IpcDocument &document, const QString &outDir);

// Writes a new configuration file and the folder that it is in. A failure is a sentence with path
// and reason.
Utils::Result<void> writeConfiguration(const QString &path, const QVariantMap &header,
                                       const TARVOORIXM1::OptionMap &options);

// Writes a document with other entries into its own file or another one, and the folder that this
// is in; its comments stay. A failure is a sentence with path and reason.
Utils::Result<void> writeEdited(const IpcDocument &document, const QString &path,
                                const QVariantMap &frame, const TARVOORIXM1::OptionMap &options);

// Every entry of a configuration file by its full key, whatever its version; `*text`: the file as
// it is. A failure is a sentence with path and reason.
Utils::Result<QVariantMap> readEntries(const QString &path, QByteArray *text);

// What a generation of the file is made from; `outDir` as above.
TARVOORIXM1::GenerationInput generationInput(const IpcDocument &document, const QVariantMap &ipInfo,
                                             const QString &outDir);

// Reads the file of a command with the environment's devices. False: a message has been printed.
bool openDocument(Environment &environment, const QString &path, IpcDocument *document);
// The same for commands that work for a device: one that the file lacks or that nobody knows is
// told, too.
bool openForDevice(Environment &environment, const QString &path, IpcDocument *document);

} // namespace Cli
