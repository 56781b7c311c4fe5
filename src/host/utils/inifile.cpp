#include "inifile.h"

#include "fileutils.h"

#include <reading/inientries.h>

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

// How a line of an INI file ends.
struct LineEnd {
    bool quoted = false;    // between quotation marks
    bool continued = false; // the next line belongs to it
};

// `quoted`: the line starts between quotation marks.
LineEnd endOf(const QByteArray &line, bool quoted)
{
    LineEnd end = {quoted, false};
    for (int i = 0; i < line.size(); ++i) {
        const char c = line.at(i);
        if (c == '\\') {
            ++i;
            end.continued = i == line.size();
        } else if (c == '"') {
            end.quoted = !end.quoted;
        } else if (c == ';' && !end.quoted) {
            break; // a comment up to the end of the line
        }
    }
    return end;
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
    const auto noDraft = [&] {
        if (error)
            *error = tr("Cannot write \"%1\": the temporary file \"%2\" could not be written.")
                         .arg(path, draft);
        return false;
    };
    {
        QSettings settings(draft, QSettings::IniFormat);
        for (auto it = header.cbegin(); it != header.cend(); ++it)
            settings.setValue(it.key(), it.value());
        settings.beginGroup(group);
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            settings.setValue(it.key(), it.value());
        settings.endGroup();
        settings.setValue(QStringLiteral("EndOfDraft/whole"), true);
        settings.sync();
        if (settings.status() != QSettings::NoError)
            return noDraft();
    }
    QByteArray bytes;
    // QSettings takes a full disk for a success: only a draft with its end is whole.
    const QByteArray mark = "[EndOfDraft]\nwhole=true\n";
    if (!FileUtils::readFile(draft, &bytes, nullptr) || !bytes.endsWith(mark))
        return noDraft();
    bytes.chop(mark.size());
    if (bytes.endsWith("\n\n"))
        bytes.chop(1); // the blank line between sections
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
    LineEnd end;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray &line : lines) {
        ++number;
        for (const char c : line) {
            if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\r')
                return fail(number, tr("not a text file"));
        }
        const bool marked = number == 1 && line.startsWith("\xef\xbb\xbf");
        const QByteArray text = (marked ? line.mid(3) : line).trimmed();
        if (!end.continued) {
            if (text.isEmpty() || text.startsWith(';') || text.startsWith('#'))
                continue;
            if (text.startsWith('[')) {
                if (!text.contains(']'))
                    return fail(number, tr("the section name has no closing bracket"));
            } else if (text.indexOf('=') < 1) {
                return fail(number, tr("neither a section nor a key with a value"));
            }
        }
        end = endOf(text, end.quoted);
        if (end.quoted && (!end.continued || number == lines.size()))
            return fail(number, tr("a quoted value has no end"));
    }
    return true;
}

bool checkConfigurationText(const QByteArray &bytes, QString *error)
{
    if (!checkIniText(bytes, error))
        return false;
    const QString foreign = Reading::foreignIniValue(bytes);
    if (!foreign.isEmpty() && error)
        *error = foreign;
    return foreign.isEmpty();
}

} // namespace Utils
