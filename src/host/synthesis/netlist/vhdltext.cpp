#include "vhdltext.h"

#include "vhdlnames.h"

namespace Synthesis
{

char VhdlText::logicValue(char bit)
{
    return bit == 'x' ? 'X' : bit == 'z' ? 'Z' : bit;
}

QByteArray VhdlText::slice(int left, int right, bool isRising)
{
    return '(' + QByteArray::number(left) + (isRising ? " to " : " downto ") +
           QByteArray::number(right) + ')';
}

QByteArray VhdlText::typeOf(const Port &port)
{
    if (!port.isVector)
        return "std_logic";
    const int highest = port.lowest + port.width - 1;
    return "std_logic_vector" +
           (port.isRising ? slice(port.lowest, highest, true) : slice(highest, port.lowest, false));
}

QByteArray VhdlText::modeOf(const Port &port)
{
    return port.direction == "input" ? "in" : port.direction == "output" ? "out" : "inout";
}

QByteArray VhdlText::portClause(const QVector<Port> &ports)
{
    if (ports.isEmpty())
        return {};
    const QByteArrayList names = vhdlPortNames(ports);
    QByteArrayList lines;
    for (int i = 0; i < ports.size(); ++i)
        lines << "        " + names.at(i) + " : " + modeOf(ports.at(i)) + ' ' + typeOf(ports.at(i));
    return "    port (\n" + lines.join(";\n") + "\n    );\n";
}

QByteArray VhdlText::literal(char bit)
{
    return QByteArray("'") + logicValue(bit) + '\'';
}

QByteArray VhdlText::vectorLiteral(const QByteArray &bits)
{
    constexpr int digits = 64;
    const bool known =
        bits.size() % 4 == 0 && bits.size() > 4 && !bits.contains('x') && !bits.contains('z');
    QByteArray text;
    if (known) {
        for (int i = 0; i < bits.size(); i += 4)
            text += QByteArray::number(bits.mid(i, 4).toInt(nullptr, 2), 16).toUpper();
    } else {
        for (const char bit : bits)
            text += logicValue(bit);
    }
    QByteArrayList lines;
    for (int i = 0; i < text.size(); i += digits)
        lines << (known ? "X\"" : "\"") + text.mid(i, digits) + '"';
    return lines.join(" &\n            ");
}

QByteArray VhdlText::textLiteral(const QByteArray &text)
{
    QByteArrayList parts;
    QByteArray plain;
    for (const char c : text) {
        if (c >= ' ' && c <= '~') {
            plain += c == '"' ? QByteArray("\"\"") : QByteArray(1, c);
            continue;
        }
        if (!plain.isEmpty())
            parts << '"' + plain + '"';
        plain.clear();
        parts << "character'val(" + QByteArray::number(int(uchar(c))) + ')';
    }
    if (!plain.isEmpty() || parts.isEmpty())
        parts << '"' + plain + '"';
    // A single character would be no string.
    return parts.size() == 1 && !parts.first().startsWith('"') ? "\"\" & " + parts.first()
                                                               : parts.join(" & ");
}

QByteArray VhdlText::indented(const QByteArray &text, const QByteArray &by)
{
    QByteArray result;
    const QByteArrayList lines = text.split('\n');
    for (const QByteArray &line : lines)
        result += line.isEmpty() ? QByteArray("\n") : by + line + '\n';
    result.chop(1);
    return result;
}

} // namespace Synthesis
