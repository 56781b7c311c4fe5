#pragma once

#include <QByteArray>
#include <QString>

namespace Workbench
{

// How the text of a file stands on disk.
struct TextFormat {
    enum Encoding { Utf8, Latin1 };
    Encoding encoding = Utf8;
    bool byteOrderMark = false;
    bool carriageReturns = false; // lines end with CR LF

    // Finds out from the whole file. What is no UTF-8 is taken for Latin-1, which keeps every byte.
    static TextFormat of(const QByteArray &bytes);
    // Empty if the bytes can be shown as a text, else the reason as a clause.
    static QString mistakeOf(const QByteArray &bytes);

    // Lines of the text end with a line feed alone.
    QString decode(const QByteArray &bytes) const;
    QByteArray encode(const QString &text) const;
    // Whether encode() keeps every character of the text.
    bool canEncode(const QString &text) const;
};

} // namespace Workbench
