#include "textfile.h"

#include "tr.h"

#include <algorithm>

namespace Workbench
{

namespace
{

const QByteArray byteOrder = QByteArrayLiteral("\xEF\xBB\xBF");

constexpr const char *lineEnds[] = {"\n", "\r\n", "\r"};
constexpr const char *lineEndNames[] = {"LF", "CRLF", "CR"};

struct Range {
    uint first;
    uint last;
};

// Characters that would not be seen, that would reorder what is seen, that the editor takes for
// something else, or that are stand-ins here.
constexpr Range notOrdinary[] = {
    {0x00, 0x08},     {0x0A, 0x1F},     {0x7F, 0x9F},     {0xAD, 0xAD},
    {0x061C, 0x061C}, {0x180E, 0x180E}, {0x200B, 0x200F}, {0x2028, 0x202E},
    {0x2060, 0x206F}, {0xD800, 0xDFFF}, {0xF400, 0xF5FF}, {0xFDD0, 0xFDEF},
    {0xFEFF, 0xFEFF}, {0xFFF0, 0xFFFC}, {0xFFFE, 0xFFFF}, {0xE0000, 0xE0FFF},
};

struct Character {
    uint code = 0;
    int length = 0; // in bytes; 0: no UTF-8 here
};

// The UTF-8 character at the start: in its shortest form, no surrogate, at most U+10FFFF.
Character utf8At(const uchar *at, const uchar *end)
{
    if (*at < 0x80)
        return {*at, 1};
    const int length = *at < 0xC2 ? 0 : *at < 0xE0 ? 2 : *at < 0xF0 ? 3 : *at < 0xF5 ? 4 : 0;
    if (length == 0 || end - at < length)
        return {};
    uint code = *at & (0x7Fu >> length);
    for (int i = 1; i < length; ++i) {
        if ((at[i] & 0xC0) != 0x80)
            return {};
        code = code << 6 | (at[i] & 0x3Fu);
    }
    const bool tooLong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    if (tooLong || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        return {};
    return {code, length};
}

bool endsLine(QChar c)
{
    return c == u'\n' || c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
}

} // namespace

bool TextFormat::isOrdinary(uint code)
{
    return std::none_of(std::begin(notOrdinary), std::end(notOrdinary), [code](const Range &range) {
        return code >= range.first && code <= range.last;
    });
}

TextFormat TextFormat::of(const QByteArray &bytes)
{
    TextFormat format;
    format.byteOrderMark = bytes.startsWith(byteOrder);
    const auto *const begin = reinterpret_cast<const uchar *>(bytes.constData());
    const uchar *const end = begin + bytes.size();
    int lf = 0;
    int crLf = 0;
    int cr = 0;
    bool hasUtf8 = false;
    bool hasOther = false;
    for (const uchar *at = begin; at < end;) {
        if (*at == '\n')
            ++(at > begin && at[-1] == '\r' ? crLf : lf);
        else if (*at == '\r')
            ++cr;
        const int length = utf8At(at, end).length;
        hasUtf8 = hasUtf8 || length > 1;
        hasOther = hasOther || length == 0;
        at += qMax(1, length);
    }
    format.encoding = hasOther && !hasUtf8 ? Latin1 : Utf8;
    format.lineEnd = crLf > lf ? CrLf : lf + crLf > 0 || cr == 0 ? Lf : Cr;
    return format;
}

QString TextFormat::mistakeOf(const QByteArray &bytes)
{
    if (bytes.contains('\0'))
        return Tr::tr("it is not a text file");
    return {};
}

QString TextFormat::decode(const QByteArray &bytes) const
{
    const auto *at = reinterpret_cast<const uchar *>(bytes.constData());
    const uchar *const end = at + bytes.size();
    if (byteOrderMark && bytes.startsWith(byteOrder))
        at += byteOrder.size();
    QString shown;
    shown.reserve(int(end - at));
    const auto endLine = [&](LineEnd kind) {
        if (kind != lineEnd)
            shown += mark(kind);
        shown += u'\n';
    };
    while (at < end) {
        if (*at == '\n') {
            endLine(Lf);
            ++at;
        } else if (*at == '\r' && at + 1 < end && at[1] == '\n') {
            endLine(CrLf);
            at += 2;
        } else if (*at == '\r' && lineEnd == Cr) {
            endLine(Cr);
            ++at;
        } else if ((*at >= 0x20 && *at < 0x7F) || *at == '\t') {
            shown += QLatin1Char(char(*at++));
        } else {
            const Character c = encoding == Utf8 ? utf8At(at, end) : Character{*at, 1};
            if (c.length == 0 || !isOrdinary(c.code)) {
                for (int i = qMax(1, c.length); i > 0; --i)
                    shown += standIn(*at++);
                continue;
            }
            if (QChar::requiresSurrogates(c.code)) {
                shown += QChar(QChar::highSurrogate(c.code));
                shown += QChar(QChar::lowSurrogate(c.code));
            } else {
                shown += QChar(ushort(c.code));
            }
            at += c.length;
        }
    }
    return shown;
}

QByteArray TextFormat::encode(const QString &shown) const
{
    QByteArray bytes = byteOrderMark ? byteOrder : QByteArray();
    bytes.reserve(shown.size() + shown.size() / 16);
    const QChar *const begin = shown.constData();
    const QChar *const end = begin + shown.size();
    LineEnd kind = lineEnd;
    for (const QChar *at = begin; at < end;) {
        if (endsLine(*at)) {
            bytes += lineEnds[kind];
            kind = lineEnd;
            ++at;
        } else if (isMark(*at)) {
            kind = LineEnd(at->unicode() - firstMark.unicode());
            ++at;
        } else if (isStandIn(*at)) {
            bytes += char(byteOf(*at));
            ++at;
        } else {
            const QChar *stop = at;
            while (stop < end && !endsLine(*stop) && !isMark(*stop) && !isStandIn(*stop))
                ++stop;
            const QString run = QString::fromRawData(at, int(stop - at));
            bytes += encoding == Latin1 ? run.toLatin1() : run.toUtf8();
            at = stop;
        }
    }
    return bytes;
}

int TextFormat::firstMissing(const QString &shown) const
{
    if (encoding == Utf8)
        return -1;
    const auto missing = std::find_if(shown.begin(), shown.end(), [](QChar c) {
        return c.unicode() > 0xFF && !isStandIn(c) && !isMark(c) && !endsLine(c);
    });
    return missing == shown.end() ? -1 : int(missing - shown.begin());
}

QString TextFormat::name() const
{
    const QString characters = encoding == Latin1 ? Tr::tr("Latin-1")
                               : byteOrderMark    ? Tr::tr("UTF-8 with mark")
                                                  : Tr::tr("UTF-8");
    return Tr::tr("%1, %2").arg(characters, QLatin1String(lineEndNames[lineEnd]));
}

QString TextFormat::toShown(const QString &text)
{
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines.replace(u'\r', u'\n');
    return TextFormat().decode(lines.toUtf8());
}

QString TextFormat::fromShown(const QString &shown)
{
    QString text;
    QByteArray bytes;
    const auto flush = [&] {
        text += QString::fromUtf8(bytes);
        bytes.clear();
    };
    for (const QChar c : shown) {
        if (isStandIn(c)) {
            bytes += char(byteOf(c));
        } else if (!isMark(c)) {
            flush();
            text += endsLine(c) ? QChar(u'\n') : c;
        }
    }
    flush();
    return text;
}

QString TextFormat::label(QChar c)
{
    if (isMark(c))
        return QLatin1String(lineEndNames[c.unicode() - firstMark.unicode()]);
    return QStringLiteral("%1").arg(uint(byteOf(c)), 2, 16, QLatin1Char('0')).toUpper();
}

QString TextFormat::explanation(const QString &line, int position)
{
    const QChar c = position >= 0 && position < line.size() ? line.at(position) : QChar();
    if (isMark(c))
        return Tr::tr("This line ends with %1, which is not how most lines of the file end.")
            .arg(label(c));
    if (!isStandIn(c))
        return {};
    // The character that the byte is a part of.
    for (int start = qMax(0, position - 3); start <= position; ++start) {
        QByteArray bytes;
        for (int i = start; i < line.size() && i < start + 4 && isStandIn(line.at(i)); ++i)
            bytes += char(byteOf(line.at(i)));
        if (bytes.isEmpty())
            continue;
        const auto *at = reinterpret_cast<const uchar *>(bytes.constData());
        const Character found = utf8At(at, at + bytes.size());
        if (found.length > 0 && start + found.length > position)
            return Tr::tr("Byte %1 of the character U+%2, which would not be seen.")
                .arg(label(c),
                     QStringLiteral("%1").arg(found.code, 4, 16, QLatin1Char('0')).toUpper());
    }
    return Tr::tr("Byte %1, which is no UTF-8 here.").arg(label(c));
}

} // namespace Workbench
