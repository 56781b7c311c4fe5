#include "inifile.h"

#include "fileutils.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

namespace Utils
{

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("Utils::IniFile", text);
}

} // namespace

bool writeIniFile(const QString &path, const QVariantMap &header, const QString &group,
                  const QVariantMap &values, QString *error)
{
    // QSettings merges with what is on disk and caches per path, so it writes to a fresh file of
    // its own and the finished text then replaces the target in one step.
    const QTemporaryDir scratch;
    if (!scratch.isValid()) {
        if (error)
            *error = tr("Cannot write \"%1\": no temporary folder: %2.")
                         .arg(path, scratch.errorString());
        return false;
    }
    const QString draft = scratch.filePath(QStringLiteral("draft.ini"));
    {
        QSettings settings(draft, QSettings::IniFormat);
        for (auto it = header.cbegin(); it != header.cend(); ++it)
            settings.setValue(it.key(), it.value());
        settings.beginGroup(group);
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            settings.setValue(it.key(), it.value());
        settings.endGroup();
        settings.sync();
        if (settings.status() != QSettings::NoError) {
            if (error)
                *error = tr("Cannot write \"%1\": the temporary file \"%2\" could not be written.")
                             .arg(path, draft);
            return false;
        }
    }
    QByteArray bytes;
    if (!FileUtils::readFile(draft, &bytes, error))
        return false;
    if (!bytes.endsWith('\n'))
        bytes += '\n'; // kind to line-based tools
    return FileUtils::writeFile(path, bytes, error);
}

bool checkIniText(const QByteArray &bytes, QString *error)
{
    const auto fail = [error](int line, const QString &reason) {
        if (error)
            *error = tr("line %1: %2").arg(QString::number(line), reason);
        return false;
    };
    int number = 0;
    bool continued = false;
    for (const QByteArray &line : bytes.split('\n')) {
        ++number;
        for (const char c : line) {
            if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\r')
                return fail(number, tr("not a text file"));
        }
        const QByteArray text = line.trimmed();
        const bool wasContinued = continued;
        continued = line.endsWith('\\') || line.endsWith("\\\r");
        if (wasContinued || text.isEmpty() || text.startsWith(';') || text.startsWith('#'))
            continue;
        if (text.startsWith('[')) {
            if (!text.endsWith(']'))
                return fail(number, tr("the section name has no closing bracket"));
            continue;
        }
        if (text.indexOf('=') < 1)
            return fail(number, tr("neither a section nor a key with a value"));
    }
    return true;
}

} // namespace Utils
