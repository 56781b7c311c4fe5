#include "fuzz.h"

#include <config/ipcfile.h>
#include <config/ipctext.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <reading/inientries.h>
#include <rules/upgrade.h>
#include <utils/inifile.h>

#include <QSettings>

using namespace TARVOORIXM1;

namespace
{

const QString ipId = QStringLiteral("tarvo.tarvo_orix_m1");

// Each file has a name of its own: QSettings remembers what it read.
QVariantMap entriesOf(const QByteArray &bytes)
{
    static int serial = 0;
    const QString path = Fuzz::file(QStringLiteral("%1.ipc").arg(++serial), bytes);
    const QSettings settings(path, QSettings::IniFormat);
    QVariantMap entries;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        entries.insert(key, settings.value(key));
    QFile::remove(path);
    return entries;
}

QVariantMap together(const Upgraded &result)
{
    QVariantMap entries = result.frame;
    for (auto it = result.options.begin(); it != result.options.end(); ++it)
        entries.insert(IpcFile::configGroup + u'/' + it.key(), it.value());
    return entries;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    if (!Utils::checkConfigurationText(bytes) || !Reading::foreignIniValue(bytes).isEmpty())
        return 0;
    const DEV::DeviceDb &devices = DEV::DeviceDb::bundled();
    const QVariantMap entries = entriesOf(bytes);
    // Names that QSettings tells otherwise than it takes them, those with a backslash.
    for (const QVariant &value : entries) {
        if (!value.isValid())
            return 0;
    }
    const Upgraded result = upgraded(entries, ipId, devices, {});
    for (const Mend &mend : result.mends)
        REQUIRE(!mend.problem.isEmpty() && !mend.fix.isEmpty());
    // Nobody loses an entry that this program does not know.
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        const QString option = it.key().section(u'/', 1);
        const bool isLeft = result.frame.contains(it.key()) || result.options.contains(option);
        const auto told = [&it, &option](const Mend &mend) {
            return mend.key == it.key() || mend.key == option;
        };
        REQUIRE(isLeft || std::any_of(result.mends.begin(), result.mends.end(), told));
    }
    // What is mended needs no second time, neither as it is nor as it is written.
    const auto isSettled = [&devices](const QVariantMap &mended) {
        const Upgraded again = upgraded(mended, ipId, devices, {});
        return std::none_of(again.mends.begin(), again.mends.end(),
                            [](const Mend &mend) { return mend.isMade; });
    };
    REQUIRE(isSettled(together(result)));
    const Utils::Result<QByteArray> text = editedIpcText(bytes, result.frame, result.options);
    if (text && Utils::checkConfigurationText(*text))
        REQUIRE(isSettled(entriesOf(*text)));
    return 0;
}
