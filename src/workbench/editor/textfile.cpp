#include "textfile.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <algorithm>

namespace Workbench
{

namespace
{

const QByteArray mark = QByteArrayLiteral("\xEF\xBB\xBF");

bool isUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForMib(106)->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool isAscii(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; });
}

} // namespace

TextFormat TextFormat::of(const QByteArray &bytes)
{
    TextFormat format;
    format.byteOrderMark = bytes.startsWith(mark);
    format.encoding = isAscii(bytes) || isUtf8(bytes) ? Utf8 : Latin1;
    // Mixed line ends become those of the first line.
    const int lineEnd = bytes.indexOf('\n');
    format.carriageReturns = lineEnd > 0 && bytes.at(lineEnd - 1) == '\r';
    return format;
}

QString TextFormat::mistakeOf(const QByteArray &bytes)
{
    if (bytes.contains('\0'))
        return QCoreApplication::translate("Workbench::TextFormat", "it is not a text file");
    return {};
}

QString TextFormat::decode(const QByteArray &bytes) const
{
    const int start = byteOrderMark && bytes.startsWith(mark) ? mark.size() : 0;
    const char *data = bytes.constData() + start;
    const int size = bytes.size() - start;
    QString text =
        encoding == Utf8 ? QString::fromUtf8(data, size) : QString::fromLatin1(data, size);
    if (text.contains(u'\r'))
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text;
}

QByteArray TextFormat::encode(const QString &text) const
{
    QString lines = text;
    if (carriageReturns)
        lines.replace(u'\n', QLatin1String("\r\n"));
    if (encoding == Latin1)
        return lines.toLatin1();
    return byteOrderMark ? mark + lines.toUtf8() : lines.toUtf8();
}

bool TextFormat::canEncode(const QString &text) const
{
    return encoding == Utf8 ||
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x100; });
}

} // namespace Workbench
