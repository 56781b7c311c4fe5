#include "inifile.h"

#include "boundedfile.h"
#include "fileutils.h"
#include "tr.h"

#include <reading/inientries.h>

#include <QSettings>
#include <QTemporaryDir>

#include <cctype>

namespace Utils
{

namespace
{

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

// As QSettings has them in keys: all but these is a percent sign and digits.
QByteArray escapedKey(const QString &key)
{
    QByteArray text;
    for (const QChar c : key) {
        const ushort code = c.unicode();
        const bool plain = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') ||
                           (code >= '0' && code <= '9') || code == '_' || code == '-' ||
                           code == '.';
        const bool wide = code > 0xff;
        if (plain)
            text += char(code);
        else
            text += (wide ? "%U" : "%") +
                    QByteArray::number(code, 16).toUpper().rightJustified(wide ? 4 : 2, '0');
    }
    return text;
}

// A text as a value, or as one of several.
QByteArray escapedText(const QString &value)
{
    // A leading "@" begins a value of another type.
    QString full = value;
    if (value.contains(QChar(QChar::Null)))
        full = QLatin1String("@String(") + value + u')';
    else if (value.startsWith(u'@'))
        full.prepend(u'@');
    constexpr char letters[] = "abtnvfr"; // from 7
    bool quoted = full.startsWith(u' ') || full.endsWith(u' ');
    bool afterNumber = false;
    QByteArray text;
    for (const QChar c : full) {
        const ushort code = c.unicode();
        const bool digit = code < 0x80 && isxdigit(code);
        quoted = quoted || code == ';' || code == ',' || code == '=';
        if (code == 0) {
            text += "\\0";
        } else if (code >= 7 && code <= 13) {
            text += '\\';
            text += letters[code - 7];
        } else if (code == '"' || code == '\\') {
            text += '\\';
            text += char(code);
        } else if (code < 0x20 || code > 0x7e || (afterNumber && digit)) {
            // A digit would be taken for one of the number before it.
            text += "\\x" + QByteArray::number(code, 16);
        } else {
            text += char(code);
        }
        afterNumber = code == 0 || code < 7 || (code > 13 && code < 0x20) || code > 0x7e ||
                      (afterNumber && digit);
    }
    return quoted ? QByteArray('"' + text + '"') : text;
}

// False for a value that only QSettings can write.
bool escapedValue(const QVariant &value, QByteArray *text)
{
    switch (int(value.type())) {
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        *text = escapedText(value.toString());
        return true;
    case QMetaType::QStringList: {
        QByteArrayList texts;
        const QStringList list = value.toStringList();
        for (const QString &entry : list)
            texts << escapedText(entry);
        *text = texts.join(", ");
        return !list.isEmpty();
    }
    default:
        return false;
    }
}

bool appendSection(const QString &name, const QVariantMap &values, QByteArray *text)
{
    if (values.isEmpty())
        return true;
    if (!text->isEmpty())
        *text += '\n';
    *text += '[' + escapedKey(name) + "]\n";
    for (auto it = values.begin(); it != values.end(); ++it) {
        QByteArray value;
        // A slash in a key parts groups.
        if (it.key().isEmpty() || it.key().contains(u'/') || !escapedValue(it.value(), &value))
            return false;
        *text += escapedKey(it.key()) + '=' + value + '\n';
    }
    return true;
}

// The text of a file with values of all kinds. QSettings merges with what is on disk and caches per
// path, so it writes to a fresh file of its own.
Result<QByteArray> draftText(const QVariantMap &header, const QString &group,
                             const QVariantMap &values)
{
    const QTemporaryDir scratch;
    if (!scratch.isValid())
        return Failure{Tr::tr("no temporary folder: %1").arg(scratch.errorString())};
    const QString draft = scratch.filePath(QStringLiteral("draft.ini"));
    bool written = false;
    {
        QSettings settings(draft, QSettings::IniFormat);
        for (auto it = header.cbegin(); it != header.cend(); ++it)
            settings.setValue(it.key(), it.value());
        settings.beginGroup(group);
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            settings.setValue(it.key(), it.value());
        settings.endGroup();
        // Behind whatever else there is: the sections come in the order of their names.
        settings.setValue(QChar(0xffff) + QStringLiteral("/whole"), true);
        settings.sync();
        written = settings.status() == QSettings::NoError;
    }
    // QSettings takes a full disk for a success: only a draft with its end is whole.
    const QByteArray mark = "[%UFFFF]\nwhole=true\n";
    QByteArray bytes;
    if (!written || !FileUtils::readFile(draft, &bytes, nullptr) || !bytes.endsWith(mark)) {
        // It does not tell why it could not.
        QString reason;
        return Failure{FileUtils::writeFile(draft, QByteArray(1 << 16, 'x'), &reason)
                           ? Tr::tr("the temporary file \"%1\" could not be written").arg(draft)
                           : reason.chopped(1)};
    }
    bytes.chop(mark.size());
    if (bytes.endsWith("\n\n"))
        bytes.chop(1); // the blank line between sections
    return bytes;
}

} // namespace

Result<QByteArray> iniText(const QVariantMap &header, const QString &group,
                           const QVariantMap &values)
{
    QByteArray text;
    if (appendSection(QStringLiteral("General"), header, &text) &&
        appendSection(group, values, &text))
        return text;
    return draftText(header, group, values);
}

namespace
{

Result<void> placeIniText(const QString &path, const QByteArray &before,
                          const Result<QByteArray> &text)
{
    if (!text)
        return Failure{Tr::tr("Cannot write \"%1\": %2.").arg(path, text.reason())};
    QString error;
    return FileUtils::writeFile(path, Reading::withCommentsOf(before, *text), &error)
               ? Result<void>()
               : Failure{error};
}

} // namespace

Result<void> writeIniFile(const QString &path, const QVariantMap &header, const QString &group,
                          const QVariantMap &values)
{
    return placeIniText(path, {}, iniText(header, group, values));
}

Result<void> rewriteIniFile(const QString &path, const QVariantMap &header, const QString &group,
                            const QVariantMap &values)
{
    const Result<QByteArray> before = readConfigurationFile(path);
    return placeIniText(path, before ? *before : QByteArray(), iniText(header, group, values));
}

Result<void> checkIniText(const QByteArray &bytes)
{
    const auto fail = [](int line, const QString &reason) {
        return Failure{Tr::tr("line %1: %2").arg(QString::number(line), reason)};
    };
    int number = 0;
    LineEnd end;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray &line : lines) {
        ++number;
        for (const char c : line) {
            if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\r')
                return fail(number, Tr::tr("not a text file"));
        }
        const bool marked = number == 1 && line.startsWith("\xef\xbb\xbf");
        const QByteArray text = (marked ? line.mid(3) : line).trimmed();
        if (!end.continued) {
            if (text.isEmpty() || text.startsWith(';') || text.startsWith('#'))
                continue;
            if (text.startsWith('[')) {
                if (!text.contains(']'))
                    return fail(number, Tr::tr("the section name has no closing bracket"));
            } else if (text.indexOf('=') < 1) {
                return fail(number, Tr::tr("neither a section nor a key with a value"));
            }
        }
        end = endOf(text, end.quoted);
        if (end.quoted && (!end.continued || number == lines.size()))
            return fail(number, Tr::tr("a quoted value has no end"));
    }
    return {};
}

Result<void> checkConfigurationText(const QByteArray &bytes)
{
    if (const Result<void> checked = checkIniText(bytes); !checked)
        return checked;
    const QString foreign = Reading::foreignIniValue(bytes);
    return foreign.isEmpty() ? Result<void>() : Failure{foreign};
}

} // namespace Utils
