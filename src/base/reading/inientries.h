#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Reading
{

// An entry of an INI file in the dialect of QSettings.
struct IniEntry {
    int line = 0;    // from 1: where its key stands
    QString section; // null at the top level
    QString key;
    // As written, escapes and quotation marks resolved: more than one where commas part them.
    QStringList values;
    // Ascii also stands for everything in a text with a byte order mark, which is read as UTF-8.
    // Without one all is read as Latin-1, so that what was meant to be UTF-8 comes out as another
    // text.
    enum Bytes { Ascii, Latin1, Utf8 } bytes = Ascii;

    // "Config/ITCM_Size"; the section "General" is the top level.
    QString name() const;
};

// The entries in order. Lines that are no entry are left out. Bytes above ASCII are read as
// Latin-1, as QSettings does, or as UTF-8 in a text with a byte order mark.
QVector<IniEntry> iniEntries(const QByteArray &text);

// A piece of an INI file that a rewritten file may have, too.
struct IniPart {
    enum Kind { Section, Entry, Comment } kind = Entry;
    int line = 0;    // from 1
    QString name;    // of a section as written, of an entry as IniEntry::name() gives it
    QByteArray text; // of a comment: from its semicolon or number sign to the end of the line
};

// The parts in order. A comment that stands behind an entry has the entry's line. What is neither
// section nor entry nor comment is left out.
QVector<IniPart> iniParts(const QByteArray &text);

// The INI file `after` with the comments of `before`: each stays above what it stood above or
// behind, or above what comes next where that is gone. `after` ends with a line end and has no
// comments; a `before` that is no text has none either.
QByteArray withCommentsOf(const QByteArray &before, const QByteArray &after);

// QSettings also stores objects of other kinds than text, and decodes them while it opens a file:
// "@Variant(…)" may nest as deeply as the file is long. The first entry with a value of such a
// kind, as a clause with line, entry and kind; empty if there is none. A file is safe for QSettings
// only then.
QString foreignIniValue(const QByteArray &text);

} // namespace Reading
