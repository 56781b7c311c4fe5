#include "fuzz.h"

#include <config/ipcfile.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <reading/inientries.h>
#include <rules/check.h>
#include <utils/inifile.h>

#include <QMap>
#include <QSettings>

using namespace TARVOORIXM1;

namespace
{

// Each file has a name of its own: QSettings remembers what it read.
QString fresh(const QByteArray &bytes)
{
    static int serial = 0;
    return Fuzz::file(QStringLiteral("%1.ipc").arg(++serial), bytes);
}

bool isText(const QVariant &value)
{
    if (value.type() == QVariant::List) {
        const QVariantList list = value.toList();
        return std::all_of(list.begin(), list.end(), isText);
    }
    return !value.isValid() || value.type() == QVariant::String ||
           value.type() == QVariant::StringList;
}

OptionMap optionsOf(const QString &path)
{
    OptionMap options;
    QSettings settings(path, QSettings::IniFormat);
    IpcFile::readOptions(settings, options);
    return options;
}

// What QSettings reads is what was looked at before: nothing but texts, and the same ones.
void compareReaders(const QByteArray &bytes, const QString &path)
{
    QMap<QString, QStringList> looked;
    const QVector<Reading::IniEntry> entries = Reading::iniEntries(bytes);
    for (const Reading::IniEntry &entry : entries) {
        REQUIRE(entry.line >= 1 && entry.line <= Fuzz::lineCount(bytes));
        looked.insert(entry.name(), entry.values);
    }
    const QSettings settings(path, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        REQUIRE(isText(settings.value(key)));
    // Names have rules of their own where they are not plain.
    const auto isPlain = [](const QString &name) {
        return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](QChar c) {
            return c.isLetterOrNumber() || c == u'_';
        });
    };
    if (bytes.startsWith("\xef\xbb\xbf") || settings.status() != QSettings::NoError)
        return;
    for (const Reading::IniEntry &entry : entries) {
        const QStringList &values = looked[entry.name()];
        if (!isPlain(entry.key) || (!entry.section.isNull() && !isPlain(entry.section)) ||
            values.join(QString()).contains(u'@'))
            continue;
        REQUIRE(settings.value(entry.name()).toStringList() == values);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const Utils::Result<void> checked = Utils::checkConfigurationText(bytes);
    const bool isConfiguration = bool(checked);
    const QString error = checked.reason();
    REQUIRE(isConfiguration == error.isEmpty());
    REQUIRE(isConfiguration ||
            (Fuzz::lineIn(error) >= 1 && Fuzz::lineIn(error) <= Fuzz::lineCount(bytes)));
    if (!Reading::foreignIniValue(bytes).isEmpty())
        return 0;
    const QString path = fresh(bytes);
    REQUIRE(IpcFile::danger(path).isEmpty());
    compareReaders(bytes, path);
    if (isConfiguration) {
        QSettings settings(path, QSettings::IniFormat);
        IpcFile::isVersionAccepted(settings);
        IpcFile::readDevice(settings, DEV::DeviceDb::bundled());
        OptionMap options = optionsOf(path);
        const QString copy =
            Fuzz::folder() + QLatin1String("/copy of ") + QFileInfo(path).fileName();
        REQUIRE(Utils::writeIniFile(copy, {}, IpcFile::configGroup, options));
        // The writer's settings would remember; a copy is parsed.
        QFile written(copy);
        REQUIRE(written.open(QIODevice::ReadOnly));
        const QString again = fresh(written.readAll());
        REQUIRE(optionsOf(again) == options);
        QFile::remove(copy);
        QFile::remove(again);
        options.remove(Key::initializeItcm); // would look at any file of this machine
        const QVector<Finding> findings = checkOptions(options, {}, QStringLiteral("/"));
        for (const Finding &finding : findings)
            REQUIRE(!finding.message.isEmpty());
    }
    QFile::remove(path);
    return 0;
}
