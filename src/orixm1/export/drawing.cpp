#include "drawing.h"

#include "config/latin1literal.h"
#include "document.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

struct InkRow {
    Ink ink;
    QLatin1String name;
    QLatin1String light;
    QLatin1String dark;
};

constexpr InkRow inkRows[] = {
    {Ink::Nothing, ""_l1, "none"_l1, "none"_l1},
    {Ink::Page, "page"_l1, "#ffffff"_l1, "#16191d"_l1},
    {Ink::Text, "text"_l1, "#1b1f24"_l1, "#e6e9ed"_l1},
    {Ink::Soft, "soft"_l1, "#57606a"_l1, "#a0a8b2"_l1},
    {Ink::Line, "line"_l1, "#57606a"_l1, "#8b949e"_l1},
    {Ink::Bus, "bus"_l1, "#2f5d9b"_l1, "#7fb0f0"_l1},
    {Ink::Lost, "lost"_l1, "#b3261e"_l1, "#ff8a80"_l1},
    {Ink::On, "on"_l1, "#dbe9fb"_l1, "#1f3a5f"_l1},
    {Ink::TightMemory, "tight"_l1, "#cfe3ff"_l1, "#1f3a5f"_l1},
    {Ink::ExternalMemory, "external"_l1, "#d5f0df"_l1, "#1a402e"_l1},
    {Ink::MemoryDevice, "device"_l1, "#e8defb"_l1, "#3d2f5e"_l1},
    {Ink::Window, "window"_l1, "#fdf0c4"_l1, "#4a4016"_l1},
    {Ink::Registers, "registers"_l1, "#eef1f5"_l1, "#2b3138"_l1},
    {Ink::BlackBox, "blackbox"_l1, "#dfe2e6"_l1, "#383c42"_l1},
    {Ink::Port, "port"_l1, "#fbe2d5"_l1, "#562f1d"_l1},
};

const InkRow &row(Ink ink)
{
    return *std::find_if(std::begin(inkRows), std::end(inkRows),
                         [ink](const InkRow &candidate) { return candidate.ink == ink; });
}

QString number(int value)
{
    return QString::number(value);
}

QString classes(Ink fill, Ink stroke)
{
    QStringList names;
    if (fill != Ink::Nothing)
        names.append("f-"_l1 + row(fill).name);
    if (stroke != Ink::Nothing)
        names.append("s-"_l1 + row(stroke).name);
    return names.isEmpty() ? QString() : " class=\""_l1 + names.join(u' ') + u'"';
}

QString dashes(bool isDashed)
{
    return isDashed ? QStringLiteral(" stroke-dasharray=\"4 3\"") : QString();
}

// In thousandths of the letters' size.
int advance(QChar c, const Letters &letters)
{
    if (letters.isFixed)
        return c.unicode() < 0x2000 ? 605 : 1100;
    const ushort code = c.unicode();
    int width = 640;
    if (QStringLiteral("iljI.,:;|!'()[]/ -").contains(c))
        width = 400;
    else if (QStringLiteral("mwMW@%").contains(c))
        width = 1000;
    else if (c.isUpper())
        width = 740;
    else if (code >= 0x2000)
        width = 1100;
    return letters.isBold ? width * 11 / 10 : width;
}

} // namespace

int textWidth(const QString &text, const Letters &letters)
{
    int width = 0;
    for (const QChar c : text)
        width += advance(c, letters);
    return (width * letters.size + 999) / 1000;
}

QStringList wrapped(const QString &text, const Letters &letters, int width)
{
    QStringList lines;
    QString line;
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QString longer = line.isEmpty() ? word : line + u' ' + word;
        if (textWidth(longer, letters) <= width) {
            line = longer;
            continue;
        }
        if (!line.isEmpty())
            lines.append(line);
        line.clear();
        for (const QChar c : word) {
            if (!line.isEmpty() && textWidth(line + c, letters) > width) {
                lines.append(line);
                line.clear();
            }
            line += c;
        }
    }
    if (!line.isEmpty())
        lines.append(line);
    return lines;
}

Drawing::Drawing(const QString &title, Paper paper)
    : m_title(escapedXml(title))
    , m_paper(paper)
{
}

// ` fill="#ffffff"` and the like; `attribute` is "fill" or "stroke".
QString Drawing::paint(QLatin1String attribute, Ink ink) const
{
    const InkRow &colours = row(ink);
    QString text = u' ' + attribute + "=\""_l1 +
                   (m_paper == Paper::Dark ? colours.dark : colours.light) + u'"';
    return text;
}

void Drawing::box(int x, int y, int width, int height, Ink fill, Ink edge, bool isDashed)
{
    m_out += "<rect x=\""_l1 + number(x) + "\" y=\""_l1 + number(y) + "\" width=\""_l1 +
             number(width) + "\" height=\""_l1 + number(height) + "\" rx=\"3\""_l1 +
             paint("fill"_l1, fill) + paint("stroke"_l1, edge) + dashes(isDashed) +
             classes(fill, edge) + "/>\n"_l1;
}

void Drawing::line(int x1, int y1, int x2, int y2, Ink ink, bool isDashed)
{
    m_out += "<line x1=\""_l1 + number(x1) + "\" y1=\""_l1 + number(y1) + "\" x2=\""_l1 +
             number(x2) + "\" y2=\""_l1 + number(y2) + u'"' + paint("stroke"_l1, ink) +
             " stroke-width=\"2\""_l1 + dashes(isDashed) + classes(Ink::Nothing, ink) + "/>\n"_l1;
}

void Drawing::tip(int x, int y, int fromX, int fromY, Ink ink)
{
    constexpr int length = 8;
    constexpr int half = 4;
    const int alongX = (fromX > x) - (fromX < x);
    const int alongY = (fromY > y) - (fromY < y);
    const auto point = [](int px, int py) -> QString { return number(px) + u',' + number(py); };
    m_out += "<polygon points=\""_l1 + point(x, y) + u' ' +
             point(x + alongX * length + alongY * half, y + alongY * length + alongX * half) +
             u' ' +
             point(x + alongX * length - alongY * half, y + alongY * length - alongX * half) +
             u'"' + paint("fill"_l1, ink) + classes(ink, Ink::Nothing) + "/>\n"_l1;
}

void Drawing::text(int x, int y, const QString &text, const Letters &letters, Anchor anchor)
{
    QLatin1String place;
    if (anchor != Anchor::Start)
        place = anchor == Anchor::Middle ? " text-anchor=\"middle\""_l1 : " text-anchor=\"end\""_l1;
    m_out += "<text x=\""_l1 + number(x) + "\" y=\""_l1 + number(y) + "\" font-size=\""_l1 +
             number(letters.size) + u'"';
    if (letters.isBold)
        m_out += " font-weight=\"bold\""_l1;
    if (letters.isFixed)
        m_out += " font-family=\"'DejaVu Sans Mono', Consolas, monospace\""_l1;
    m_out += place + paint("fill"_l1, letters.ink) + classes(letters.ink, Ink::Nothing) + u'>' +
             escapedXml(text) + "</text>\n"_l1;
}

QByteArray Drawing::svg(int width, int height) const
{
    QString text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                   "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\""_l1 +
                   number(width) + "\" height=\""_l1 + number(height) + "\" viewBox=\"0 0 "_l1 +
                   number(width) + u' ' + number(height) +
                   "\" font-family=\"'DejaVu Sans', Verdana, Arial, sans-serif\" role=\"img\">\n"
                   "<title>"_l1 +
                   m_title + "</title>\n"_l1;
    if (m_paper == Paper::Light) {
        text += "<style>\n@media screen and (prefers-color-scheme: dark) {\n"_l1;
        for (const InkRow &ink : inkRows) {
            if (ink.ink != Ink::Nothing)
                text += ".f-"_l1 + ink.name + " { fill: "_l1 + ink.dark + "; } .s-"_l1 + ink.name +
                        " { stroke: "_l1 + ink.dark + "; }\n"_l1;
        }
        text += "}\n</style>\n"_l1;
    }
    text += "<rect x=\"0\" y=\"0\" width=\""_l1 + number(width) + "\" height=\""_l1 +
            number(height) + u'"' + paint("fill"_l1, Ink::Page) + classes(Ink::Page, Ink::Nothing) +
            "/>\n"_l1 + m_out + "</svg>\n"_l1;
    return text.toUtf8();
}

} // namespace TARVOORIXM1
