#pragma once

#include <QByteArray>
#include <QString>

namespace Workbench
{

// How the text of a file stands on disk, and a mapping between its bytes and the text that an
// editor shows which loses nothing: encode(decode(bytes)) gives the bytes again, for every byte
// sequence, and a line whose text was not changed gives the bytes that it had.
//
// The shown text has "\n" between lines. A byte that is no part of an ordinary character (a control
// character, a line separator, a character without a shape, no UTF-8 at all) is shown by a stand-in
// of its own, a character of a private range; where a file's own text has a character of that
// range, its bytes are shown by stand-ins too. A line that does not end as most lines of the file
// do has a mark at its end.
struct TextFormat {
    enum Encoding { Utf8, Latin1 };
    enum LineEnd { Lf, CrLf, Cr };
    Encoding encoding = Utf8;
    bool byteOrderMark = false;
    LineEnd lineEnd = Lf; // of the lines without a mark, and so of new ones

    // Finds out from the whole file. Without a single UTF-8 character beyond ASCII, what is no
    // UTF-8 is taken for Latin-1. A CR alone ends lines only in a file without any LF.
    static TextFormat of(const QByteArray &bytes);
    // Empty if the bytes can be shown as a text, else the reason as a clause.
    static QString mistakeOf(const QByteArray &bytes);

    QString decode(const QByteArray &bytes) const;
    // A mark says how its line ends wherever it stands in it; the last one counts. Paragraph and
    // line separators, which an editor makes, end lines as "\n" does. Characters that the encoding
    // does not have become "?".
    QByteArray encode(const QString &shown) const;
    // The place of the first character that the encoding does not have; -1 if it has them all.
    int firstMissing(const QString &shown) const;
    bool canEncode(const QString &shown) const { return firstMissing(shown) < 0; }
    // "UTF-8, LF"
    QString name() const;

    // Text from elsewhere, as it is shown: its line ends, whatever they are, become "\n".
    static QString toShown(const QString &text);
    // Shown text for elsewhere: without marks, and with U+FFFD for bytes that are no UTF-8.
    static QString fromShown(const QString &shown);

    static bool isStandIn(QChar c) { return c >= firstByte && c < firstMark; }
    static bool isMark(QChar c) { return c >= firstMark && c <= lastMark; }
    // What a stand-in or mark is drawn as: hexadecimal digits or the name of a line end.
    static QString label(QChar c);
    // What the stand-in or mark at a place of a line is, in words; empty if there is none.
    static QString explanation(const QString &line, int position);

private:
    static constexpr QChar firstByte = u'\uF400';
    static constexpr QChar firstMark = u'\uF500'; // in the order of LineEnd
    static constexpr QChar lastMark = u'\uF502';

    static QChar standIn(uchar byte) { return QChar(firstByte.unicode() + byte); }
    static uchar byteOf(QChar standIn) { return uchar(standIn.unicode() - firstByte.unicode()); }
    static QChar mark(LineEnd end) { return QChar(firstMark.unicode() + int(end)); }
    static bool isOrdinary(uint code);
};

} // namespace Workbench
