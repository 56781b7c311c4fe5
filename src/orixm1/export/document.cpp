#include "document.h"

#include "config/latin1literal.h"

#include <QStringList>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

using namespace Document;

bool isControl(ushort code)
{
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029;
}

// Without line ends and what else no document can hold.
QString shown(const QString &text)
{
    const bool isPlain = std::all_of(text.begin(), text.end(), [](QChar c) {
        return !isControl(c.unicode()) && !c.isSurrogate() && c.unicode() < 0xFFFE;
    });
    if (isPlain)
        return text.trimmed();
    QString line;
    line.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            line += c;
            line += text.at(++i);
        } else if (c.isSurrogate() || c.unicode() >= 0xFFFE) {
            line += QChar(QChar::ReplacementCharacter);
        } else {
            line += isControl(c.unicode()) ? QChar(u' ') : c;
        }
    }
    return line.trimmed();
}

// Characters that mean something anywhere in a line.
bool isMarkup(QChar c)
{
    switch (c.unicode()) {
    case u'\\':
    case u'`':
    case u'*':
    case u'_':
    case u'[':
    case u']':
    case u'<':
    case u'>':
    case u'|':
    case u'&':
    case u'~':
    case u'#':
        return true;
    default:
        return false;
    }
}

QString markdownText(const Text &content)
{
    const QString text = shown(content.text);
    if (text.isEmpty())
        return {};
    const bool canBeCode = std::none_of(
        text.begin(), text.end(), [](QChar c) { return c == u'`' || c == u'|' || c == u'\\'; });
    if (content.style == Text::Code && canBeCode)
        return u'`' + text + u'`';
    QString escaped;
    escaped.reserve(text.size() + 8);
    for (const QChar c : text) {
        if (isMarkup(c))
            escaped += u'\\';
        escaped += c;
    }
    // An address of the net would become a link.
    if (escaped.contains("://"_l1))
        escaped.replace("://"_l1, ":\\//"_l1);
    if (escaped.contains("www."_l1))
        escaped.replace("www."_l1, "www\\."_l1);
    if (content.style == Text::Strong)
        return "**"_l1 + escaped + "**"_l1;
    return escaped;
}

// What would begin a list or an underline as the first thing in a line.
QString markdownLine(QString line)
{
    int digits = 0;
    while (digits < line.size() && line.at(digits) >= u'0' && line.at(digits) <= u'9')
        ++digits;
    const bool isListItem =
        digits > 0 && digits < line.size() && (line.at(digits) == u'.' || line.at(digits) == u')');
    if (isListItem)
        line.insert(digits, u'\\');
    else if (!line.isEmpty() && QStringLiteral("+-=").contains(line.at(0)))
        line.prepend(u'\\');
    return line;
}

struct MarkdownWriter {
    QString out;

    void operator()(const Heading &heading)
    {
        out += QString(heading.level, u'#') + u' ' + markdownText(heading.text) + "\n\n"_l1;
    }
    void operator()(const Paragraph &paragraph)
    {
        QStringList texts;
        for (const Text &text : paragraph.texts)
            texts.append(markdownText(text));
        out += markdownLine(texts.join(u' ')) + "\n\n"_l1;
    }
    void operator()(const Table &table)
    {
        QString head;
        QString rule;
        for (const Table::Column &column : table.columns) {
            head += "| "_l1 + markdownText(column.title) + u' ';
            rule += column.isNumeric ? "|---:"_l1 : "|---"_l1;
        }
        out += head + "|\n"_l1 + rule + "|\n"_l1;
        for (const QVector<Text> &row : table.rows) {
            for (const Text &cell : row)
                out += "| "_l1 + markdownText(cell) + u' ';
            out += "|\n"_l1;
        }
        out += u'\n';
    }
    void operator()(const Picture &picture)
    {
        out += "!["_l1 + markdownText(picture.text) + "]("_l1 + picture.file + ")\n\n"_l1;
    }
};

// Colours stand once for light and once for dark. On paper it is light.
constexpr QLatin1String styleSheet =
    ":root { color-scheme: light dark; --text: #1b1f24; --page: #ffffff; --soft: #57606a;\n"
    "  --line: #c9d1d9; --head: #eef1f5; --link: #1f5fae; }\n"
    "@media screen and (prefers-color-scheme: dark) {\n"
    "  :root { --text: #e6e9ed; --page: #16191d; --soft: #a0a8b2; --line: #3b434c;\n"
    "    --head: #232930; --link: #7fb0f0; }\n"
    "}\n"
    "body { margin: 0 auto; padding: 1.5rem; max-width: 66rem; color: var(--text);\n"
    "  background: var(--page); font: 1rem/1.5 system-ui, \"DejaVu Sans\", Arial, sans-serif; }\n"
    "h1, h2, h3 { line-height: 1.25; overflow-wrap: anywhere; }\n"
    "h2 { margin-top: 2.5rem; padding-bottom: 0.3rem; border-bottom: 1px solid var(--line); }\n"
    "h3 { margin-top: 2rem; }\n"
    "p { max-width: 50rem; overflow-wrap: anywhere; }\n"
    "p.contents, p.picture { max-width: none; }\n"
    "a { color: var(--link); }\n"
    "code { font: 0.9em \"DejaVu Sans Mono\", Consolas, monospace; white-space: nowrap; }\n"
    "img { max-width: 100%; height: auto; }\n"
    "div.table { overflow-x: auto; margin: 1rem 0; }\n"
    "table { border-collapse: collapse; font-size: 0.9rem; }\n"
    "th, td { padding: 0.3rem 0.6rem; border: 1px solid var(--line); text-align: left;\n"
    "  vertical-align: top; }\n"
    "th { background: var(--head); }\n"
    "th.number, td.number { text-align: right; white-space: nowrap; }\n"
    "@media print {\n"
    "  @page { margin: 15mm; }\n"
    "  :root { color-scheme: light; }\n"
    "  body { max-width: none; padding: 0; font-size: 9.5pt; }\n"
    "  table { font-size: 8pt; }\n"
    "  th, td { padding: 0.15rem 0.35rem; }\n"
    "  code { white-space: normal; overflow-wrap: break-word; }\n"
    "  th { print-color-adjust: exact; -webkit-print-color-adjust: exact; }\n"
    "  div.table { overflow: visible; }\n"
    "  thead { display: table-header-group; }\n"
    "  tr, img { break-inside: avoid; }\n"
    "  img { max-height: 24cm; }\n"
    "  h1, h2, h3 { break-after: avoid; }\n"
    "}\n"_l1;

// Pixels of 96 an inch that a page of A4 has between its margins.
constexpr int printedWidth = 640;

class HtmlWriter
{
public:
    HtmlWriter(const Parts &parts, HtmlStyle style)
        : m_isPrinted(style == HtmlStyle::Printed)
    {
        QString title;
        for (const Part &part : parts) {
            const Heading *heading = std::get_if<Heading>(&part);
            if (heading && heading->level == 1 && title.isEmpty())
                title = escapedXml(heading->text);
            if (heading && heading->level == 2)
                m_chapters.append(escapedXml(heading->text));
        }
        m_out = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"_l1;
        if (!m_isPrinted)
            m_out += "<meta name=\"viewport\" content=\"width=device-width, "
                     "initial-scale=1\"/>\n"_l1;
        m_out += "<title>"_l1 + title + "</title>\n"_l1;
        if (!m_isPrinted)
            m_out += "<style>\n"_l1 + styleSheet + "</style>\n"_l1;
        m_out +=
            m_isPrinted ? "</head>\n<body style=\"font-size: 9pt\">\n"_l1 : "</head>\n<body>\n"_l1;
    }

    QByteArray page() { return (m_out + "</body>\n</html>\n"_l1).toUtf8(); }

    void operator()(const Heading &heading)
    {
        const QString tag = u'h' + QString::number(heading.level);
        QString anchor;
        if (heading.level == 2)
            anchor = " id=\"chapter"_l1 + QString::number(++m_chapter) + u'"';
        m_out += u'<' + tag + anchor + u'>' + escapedXml(heading.text) + "</"_l1 + tag + ">\n"_l1;
        if (heading.level == 1)
            writeContents();
    }
    void operator()(const Paragraph &paragraph)
    {
        QStringList texts;
        for (const Text &text : paragraph.texts)
            texts.append(html(text));
        m_out += "<p>"_l1 + texts.join(u' ') + "</p>\n"_l1;
    }
    void operator()(const Table &table)
    {
        m_out +=
            m_isPrinted
                ? "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\" style=\"font-size: 7pt\">\n"_l1
                : "<div class=\"table\">\n<table>\n"_l1;
        m_out += "<thead>\n<tr>"_l1;
        for (const Table::Column &column : table.columns) {
            m_out += "<th"_l1;
            if (m_isPrinted)
                m_out += " bgcolor=\"#eef1f5\""_l1;
            m_out += alignment(column);
            m_out += u'>' + escapedXml(column.title) + "</th>"_l1;
        }
        m_out += "</tr>\n</thead>\n<tbody>\n"_l1;
        for (const QVector<Text> &row : table.rows) {
            m_out += "<tr>"_l1;
            for (int i = 0; i < row.size(); ++i) {
                m_out += "<td"_l1;
                if (table.columns.at(i).isNumeric)
                    m_out += alignment(table.columns.at(i));
                m_out += u'>' + html(row.at(i)) + "</td>"_l1;
            }
            m_out += "</tr>\n"_l1;
        }
        m_out += m_isPrinted ? "</tbody>\n</table>\n"_l1 : "</tbody>\n</table>\n</div>\n"_l1;
    }
    void operator()(const Picture &picture)
    {
        // Rich text does not make a picture fit by itself.
        const bool isTooWide = m_isPrinted && picture.width > printedWidth;
        const int width = isTooWide ? printedWidth : picture.width;
        const int height = picture.height * width / std::max(picture.width, 1);
        m_out += "<p class=\"picture\"><img src=\""_l1;
        if (m_isPrinted)
            m_out += escapedXml(picture.file);
        else
            m_out += "data:image/svg+xml;base64,"_l1 + QLatin1String(picture.svg.toBase64());
        m_out += "\" alt=\""_l1 + escapedXml(picture.text) + "\" width=\""_l1 +
                 QString::number(width) + "\" height=\""_l1 + QString::number(height) +
                 "\"/></p>\n"_l1;
    }

private:
    static QString html(const Text &content)
    {
        const QString text = escapedXml(content.text);
        if (text.isEmpty())
            return text;
        switch (content.style) {
        case Text::Plain:
            return text;
        case Text::Code:
            return "<code>"_l1 + text + "</code>"_l1;
        case Text::Strong:
            return "<strong>"_l1 + text + "</strong>"_l1;
        }
        return text;
    }

    QLatin1String alignment(const Table::Column &column) const
    {
        if (m_isPrinted)
            return column.isNumeric ? " align=\"right\""_l1 : " align=\"left\""_l1;
        return column.isNumeric ? " class=\"number\""_l1 : QLatin1String();
    }

    void writeContents()
    {
        if (m_chapters.isEmpty())
            return;
        QStringList links;
        for (int i = 0; i < m_chapters.size(); ++i)
            links.append("<a href=\"#chapter"_l1 + QString::number(i + 1) + "\">"_l1 +
                         m_chapters.at(i) + "</a>"_l1);
        m_out += "<p class=\"contents\">"_l1 + links.join(QStringLiteral(" \u00B7 ")) + "</p>\n"_l1;
    }

    bool m_isPrinted;
    QStringList m_chapters; // escaped
    int m_chapter = 0;
    QString m_out;
};

} // namespace

QString escapedXml(const QString &text)
{
    const QString line = shown(text);
    const bool isPlain = std::none_of(line.begin(), line.end(), [](QChar c) {
        return c == u'<' || c == u'>' || c == u'&' || c == u'"';
    });
    return isPlain ? line : line.toHtmlEscaped();
}

QByteArray markdownOf(const Parts &parts)
{
    MarkdownWriter writer;
    for (const Part &part : parts)
        std::visit(writer, part);
    writer.out.chop(1); // of the blank line at the end
    return writer.out.toUtf8();
}

QByteArray htmlOf(const Parts &parts, HtmlStyle style)
{
    HtmlWriter writer(parts, style);
    for (const Part &part : parts)
        std::visit(writer, part);
    return writer.page();
}

} // namespace TARVOORIXM1
