#include "inientries.h"

#include "tr.h"

#include <QByteArrayList>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace Reading
{

namespace
{

bool isNewline(char c)
{
    return c == '\n' || c == '\r';
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

// A part of the text: `first` to before `last`.
struct Span {
    int first = 0;
    int last = 0;
};

// A line in the sense of the format: it ends at a line end, or a semicolon, that is neither quoted
// nor escaped.
struct Line {
    Span span;
    int equals = -1; // of the first one outside of quotation marks
};

class Scanner
{
public:
    explicit Scanner(const QByteArray &text)
        : m_text(text)
        , m_isUtf8(text.startsWith("\xef\xbb\xbf"))
    {
        m_at = m_isUtf8 ? 3 : 0;
    }

    QVector<IniEntry> scan()
    {
        QVector<IniEntry> entries;
        walk([&entries](const IniEntry &entry) { entries.append(entry); }, [](const IniPart &) {});
        return entries;
    }

    QVector<IniPart> parts()
    {
        QVector<IniPart> parts;
        walk(
            [&parts](const IniEntry &entry) {
                parts.append({IniPart::Entry, entry.line, entry.name(), {}});
            },
            [&parts](const IniPart &part) { parts.append(part); });
        return parts;
    }

private:
    template <class TakeEntry, class TakePart>
    void walk(const TakeEntry &takeEntry, const TakePart &takePart)
    {
        QString section;
        Line line;
        const auto takeComment = [this, &takePart](int first, int last) {
            takePart({IniPart::Comment,
                      lineNumber(first),
                      {},
                      m_text.mid(first, last - first).trimmed()});
        };
        while (next(&line, takeComment)) {
            if (m_text.at(line.span.first) == '[') {
                section = sectionName(line.span);
                takePart({IniPart::Section, lineNumber(line.span.first), section, {}});
            } else if (line.equals >= 0) {
                IniEntry entry;
                entry.line = lineNumber(line.span.first);
                entry.section = section;
                entry.key = name({line.span.first, line.equals});
                entry.values = values({line.equals + 1, line.span.last});
                entry.bytes = bytesOf(line.span);
                takeEntry(entry);
            } else if (m_text.at(line.span.first) == '#') {
                takeComment(line.span.first, line.span.last);
            }
        }
    }

    template <class TakeComment>
    bool next(Line *line, const TakeComment &takeComment)
    {
        for (;;) {
            while (m_at < m_text.size() && (isBlank(m_text.at(m_at)) || isNewline(m_text.at(m_at))))
                ++m_at;
            if (m_at == m_text.size())
                return false;
            if (m_text.at(m_at) != ';')
                break;
            const int first = m_at;
            while (m_at < m_text.size() && !isNewline(m_text.at(m_at)))
                ++m_at;
            takeComment(first, m_at);
        }
        *line = Line();
        line->span.first = m_at;
        bool quoted = false;
        for (; m_at < m_text.size(); ++m_at) {
            const char c = m_text.at(m_at);
            if (c == '\\') {
                m_at += escapeLength(m_at) - 1;
            } else if (c == '"') {
                quoted = !quoted;
            } else if (quoted) {
                continue;
            } else if (c == '=' && line->equals < 0) {
                line->equals = m_at;
            } else if (c == ';' || isNewline(c)) {
                break;
            }
        }
        m_at = std::min(m_at, m_text.size());
        line->span.last = m_at;
        return true;
    }

    // Of a backslash with what it protects from ending the line: one character, or a line end of
    // two.
    int escapeLength(int at) const
    {
        const int next = at + 1;
        if (next + 1 < m_text.size() && isNewline(m_text.at(next)) &&
            isNewline(m_text.at(next + 1)) && m_text.at(next) != m_text.at(next + 1))
            return 3;
        return 2;
    }

    int lineNumber(int position)
    {
        for (; m_counted < position; ++m_counted)
            m_lines += m_text.at(m_counted) == '\n';
        return m_lines;
    }

    QString text(int first, int last) const
    {
        const char *start = m_text.constData() + first;
        return m_isUtf8 ? QString::fromUtf8(start, last - first)
                        : QString::fromLatin1(start, last - first);
    }

    IniEntry::Bytes bytesOf(Span span) const
    {
        const auto first = m_text.begin() + span.first;
        const auto last = m_text.begin() + span.last;
        if (m_isUtf8 || std::all_of(first, last, [](char c) { return uchar(c) < 0x80; }))
            return IniEntry::Ascii;
        const QByteArray part = m_text.mid(span.first, span.last - span.first);
        return QString::fromUtf8(part).toUtf8() == part ? IniEntry::Utf8 : IniEntry::Latin1;
    }

    QString sectionName(Span span) const
    {
        const int end = m_text.indexOf(']', span.first);
        const bool closed = end >= 0 && end < span.last;
        const QString section = name({span.first + 1, closed ? end : span.last});
        if (section.compare(QLatin1String("general"), Qt::CaseInsensitive) == 0)
            return {};
        if (section.isEmpty())
            return QStringLiteral(""); // no name, but not the top level
        return section.compare(QLatin1String("%general"), Qt::CaseInsensitive) == 0
                   ? QStringLiteral("General")
                   : section;
    }

    // Without the blanks around it; "%20" and "%U20AC" are characters of their own.
    QString name(Span span) const
    {
        const auto isSpace = [](char c) { return isBlank(c) || isNewline(c); };
        while (span.first < span.last && isSpace(m_text.at(span.first)))
            ++span.first;
        while (span.last > span.first && isSpace(m_text.at(span.last - 1)))
            --span.last;
        QString result;
        for (int i = span.first; i < span.last; ++i) {
            const bool wide = m_text.at(i) == '%' && i + 1 < span.last && m_text.at(i + 1) == 'U';
            const int from = i + (wide ? 2 : 1);
            const int digits = wide ? 4 : 2;
            bool isCode = m_text.at(i) == '%' && from + digits <= span.last;
            ushort code = 0;
            for (int k = 0; isCode && k < digits; ++k) {
                const int digit = hexDigit(m_text.at(from + k));
                isCode = digit >= 0;
                code = ushort(16 * code + std::max(digit, 0));
            }
            if (isCode) {
                result += QChar(code);
                i = from + digits - 1;
            } else {
                result += QLatin1Char(m_text.at(i));
            }
        }
        return result;
    }

    QStringList values(Span span) const
    {
        QStringList list;
        QString value;
        bool quoted = false;
        bool wasQuoted = false; // blanks at the end belong to it
        int kept = 0;           // characters that stay, blanks or not
        int i = span.first;
        const auto skipBlanks = [&] {
            while (i < span.last && isBlank(m_text.at(i)))
                ++i;
        };
        const auto finish = [&] {
            while (!wasQuoted && value.size() > kept &&
                   (value.endsWith(u' ') || value.endsWith(u'\t')))
                value.chop(1);
            list.append(value);
            value.clear();
            wasQuoted = false;
            kept = 0;
        };
        skipBlanks();
        while (i < span.last) {
            const char c = m_text.at(i);
            if (c == '\\') {
                value += escape(&i, span.last);
                kept = value.size();
            } else if (c == '"') {
                ++i;
                wasQuoted = true;
                quoted = !quoted;
                if (!quoted)
                    skipBlanks();
            } else if (c == ',' && !quoted) {
                ++i;
                finish();
                skipBlanks();
            } else {
                const int first = i;
                while (i < span.last && m_text.at(i) != '\\' && m_text.at(i) != '"' &&
                       (quoted || m_text.at(i) != ','))
                    ++i;
                value += text(first, i);
            }
        }
        finish();
        return list;
    }

    // Steps over a backslash and what belongs to it.
    QString escape(int *i, int last) const
    {
        static constexpr char letters[] = "abfnrtv\"?'\\";
        static constexpr char meanings[] = "\a\b\f\n\r\t\v\"?'\\";
        if (++*i >= last)
            return {};
        const char c = m_text.at((*i)++);
        if (const char *letter = std::find(std::begin(letters), std::end(letters) - 1, c);
            letter != std::end(letters) - 1)
            return QString(QLatin1Char(meanings[letter - letters]));
        if (c == 'x') {
            if (*i >= last || hexDigit(m_text.at(*i)) < 0)
                return {};
            ushort code = 0;
            while (*i < last && hexDigit(m_text.at(*i)) >= 0)
                code = ushort((code << 4) + hexDigit(m_text.at((*i)++)));
            return QString(QChar(code));
        }
        if (isOctal(c)) {
            ushort code = ushort(c - '0');
            while (*i < last && isOctal(m_text.at(*i)))
                code = ushort((code << 3) + m_text.at((*i)++) - '0');
            return QString(QChar(code));
        }
        if (isNewline(c) && *i < last && isNewline(m_text.at(*i)) && m_text.at(*i) != c)
            ++*i;
        return {};
    }

    const QByteArray m_text;
    const bool m_isUtf8;
    int m_at = 0;
    int m_counted = 0;
    int m_lines = 1;
};

// The kind that QSettings would make of a value: "@Variant", say; empty for a text.
QString foreignKind(const QString &value)
{
    static const QString texts[] = {QStringLiteral("@String("), QStringLiteral("@Invalid(")};
    if (!value.startsWith(u'@') || !value.endsWith(u')'))
        return {};
    const int bracket = value.indexOf(u'(');
    const QString kind = value.left(bracket + 1);
    const bool isName = bracket > 1 && std::all_of(kind.begin() + 1, kind.end() - 1, [](QChar c) {
                            return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
                        });
    if (!isName || std::find(std::begin(texts), std::end(texts), kind) != std::end(texts))
        return {};
    return kind.chopped(1);
}

// Sections and entries are told apart, and of a name that comes twice the last one counts.
QString anchorOf(const IniPart &part)
{
    return (part.kind == IniPart::Section ? u'[' : u'=') + part.name;
}

} // namespace

QString IniEntry::name() const
{
    return section.isNull() ? key : QString(section + u'/' + key);
}

QVector<IniEntry> iniEntries(const QByteArray &text)
{
    return Scanner(text).scan();
}

QVector<IniPart> iniParts(const QByteArray &text)
{
    return Scanner(text).parts();
}

QByteArray withCommentsOf(const QByteArray &before, const QByteArray &after)
{
    const bool isText = std::none_of(before.begin(), before.end(), [](char c) {
        return uchar(c) < 0x20 && c != '\t' && c != '\r' && c != '\n';
    });
    if (!isText)
        return after;
    const QVector<IniPart> old = iniParts(before);
    const QVector<IniPart> now = iniParts(after);
    QHash<int, QString> anchors; // by line of the new text
    QSet<QString> present;
    for (const IniPart &part : now) {
        anchors.insert(part.line, anchorOf(part));
        present.insert(anchorOf(part));
    }

    QHash<QString, QByteArrayList> comments;
    QByteArrayList waiting;
    QString last; // what stands in the line
    int lastLine = 0;
    for (const IniPart &part : old) {
        if (part.kind == IniPart::Comment) {
            if (part.line == lastLine && present.contains(last))
                comments[last].append(part.text);
            else
                waiting.append(part.text);
            continue;
        }
        last = anchorOf(part);
        lastLine = part.line;
        if (present.contains(last)) {
            comments[last] += waiting;
            waiting.clear();
        }
    }
    if (comments.isEmpty() && waiting.isEmpty())
        return after;

    QByteArray text;
    const QList<QByteArray> lines = after.split('\n');
    for (int i = 0; i + 1 < lines.size(); ++i) {
        const QByteArrayList above = comments.take(anchors.value(i + 1));
        for (const QByteArray &comment : above)
            text += comment + '\n';
        text += lines.at(i) + '\n';
    }
    for (const QByteArray &comment : qAsConst(waiting))
        text += comment + '\n';
    return text;
}

QString foreignIniValue(const QByteArray &text)
{
    if (!text.contains('@') && !text.contains('\\'))
        return {};
    const QVector<IniEntry> entries = iniEntries(text);
    for (const IniEntry &entry : entries) {
        for (const QString &value : entry.values) {
            const QString kind = foreignKind(value);
            if (!kind.isEmpty())
                return Tr::tr("line %1: \"%2\" is no text but an object (\"%3\")")
                    .arg(QString::number(entry.line), entry.name(), kind);
        }
    }
    return {};
}

} // namespace Reading
