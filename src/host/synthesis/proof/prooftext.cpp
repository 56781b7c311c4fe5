#include "prooftext.h"

#include <QRegularExpression>

#include <functional>

namespace Synthesis
{

namespace
{

void forEachLine(const QByteArray &text, const std::function<void(const QByteArray &)> &take)
{
    for (int from = 0; from < text.size();) {
        int end = text.indexOf('\n', from);
        if (end < 0)
            end = text.size();
        take(QByteArray::fromRawData(text.constData() + from, end - from));
        from = end + 1;
    }
}

QByteArray lastWord(const QByteArray &line)
{
    return line.mid(line.lastIndexOf(' ') + 1);
}

// The word number `index`, from 0, of a line without strings before it; deep, since lines are raw.
QByteArray word(const QByteArray &line, int index)
{
    int from = 0;
    for (;;) {
        while (from < line.size() && line.at(from) == ' ')
            ++from;
        int end = line.indexOf(' ', from);
        if (end < 0)
            end = line.size();
        if (index-- == 0)
            return QByteArray(line.constData() + from, end - from);
        if (end == line.size())
            return {};
        from = end;
    }
}

// "  connect NET WIDTH'xz": a pin that is left open.
bool isLeftOpen(const QByteArray &line)
{
    const int quote = line.lastIndexOf('\'');
    if (quote < 0 || quote + 1 == line.size())
        return false;
    for (int i = quote + 1; i < line.size(); ++i) {
        if (line.at(i) != 'x' && line.at(i) != 'z')
            return false;
    }
    int start = quote;
    while (start > 0 && line.at(start - 1) >= '0' && line.at(start - 1) <= '9')
        --start;
    return start < quote && start == line.lastIndexOf(' ') + 1 &&
           line.count(' ') == 4; // two in front, one behind each of two words
}

// Strings are numbers of eight bits a character.
QByteArray valueOf(const QByteArray &text)
{
    if (text.size() < 2 || !text.startsWith('"') || !text.endsWith('"'))
        return QByteArray(text.constData(), text.size());
    QByteArray bits;
    for (int i = 1; i + 1 < text.size(); ++i) {
        for (int bit = 7; bit >= 0; --bit)
            bits += (uchar(text.at(i)) >> bit & 1) ? '1' : '0';
    }
    return QByteArray::number(bits.size()) + '\'' + bits;
}

// Of "parameter [signed] NAME VALUE", without the blanks in front.
void readParameter(const QByteArray &line, QByteArray *name, QByteArray *value)
{
    int from = line.indexOf("parameter ") + int(qstrlen("parameter "));
    if (line.mid(from, 7) == "signed ")
        from += 7;
    const int blank = line.indexOf(' ', from);
    *name = line.mid(from, blank < 0 ? -1 : blank - from);
    *value = blank < 0 ? QByteArray() : valueOf(line.mid(blank + 1));
}

bool isNameCharacter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

// Names are written \so\ by GHDL, where Verilog wants "\so ".
QByteArray withVerilogNames(const QByteArray &line)
{
    QByteArray result;
    int from = 0;
    for (int start = 0; (start = line.indexOf('\\', from)) >= 0;) {
        const int close = line.indexOf('\\', start + 1);
        const int blank = line.indexOf(' ', start + 1);
        if (close <= start + 1 || (blank >= 0 && blank < close))
            break;
        int end = close + 1;
        while (end < line.size() && isNameCharacter(line.at(end)))
            ++end;
        result += line.mid(from, start - from) + '\\' + line.mid(start + 1, close - start - 1) +
                  line.mid(close + 1, end - close - 1) + ' ';
        from = end;
    }
    return result + line.mid(from);
}

} // namespace

QSet<QByteArray> ProofText::listed(const QByteArray &list)
{
    QSet<QByteArray> names;
    forEachLine(list, [&names](const QByteArray &line) {
        const int slash = line.indexOf('/');
        if (!line.isEmpty())
            names.insert(QByteArray(line.constData() + slash + 1, line.size() - slash - 1));
    });
    return names;
}

QByteArray ProofText::cut(const QByteArray &design, const QSet<QByteArray> &shared,
                          const QSet<QByteArray> &pins)
{
    QSet<QByteArray> driven;
    for (const QByteArray &pin : pins)
        driven.insert('\\' + pin);
    forEachLine(design, [&driven](const QByteArray &line) {
        if (line.startsWith("  connect ") && !isLeftOpen(line))
            driven.insert(word(line, 1));
    });
    QByteArray result;
    result.reserve(design.size());
    forEachLine(design, [&](const QByteArray &line) {
        if (line.startsWith("  connect ") && isLeftOpen(line))
            return;
        if (line.startsWith("  cell \\STATE ")) {
            const QByteArray name = word(line, 2);
            result += (shared.contains(name.mid(1)) ? "  cell \\STATE " : "  cell \\OWN_STATE ") +
                      name + '\n';
            return;
        }
        const int at = line.startsWith("  wire ") ? line.indexOf(" inout ") : -1;
        if (at < 0)
            result += line;
        else
            result += line.left(at) + (driven.contains(lastWord(line)) ? " output " : " input ") +
                      line.mid(at + 7);
        result += '\n';
    });
    return result;
}

ProofText::Cells ProofText::cellsOf(const QByteArray &declarations, const QByteArray &design)
{
    QMap<QByteArray, QMap<QByteArray, QByteArray>> usual; // by type
    QByteArray module;
    forEachLine(declarations, [&](const QByteArray &line) {
        if (line.startsWith("module "))
            module = word(line, 1);
        if (!line.startsWith("  parameter "))
            return;
        QByteArray name;
        QByteArray value;
        readParameter(line, &name, &value);
        usual[module].insert(name, value);
    });
    Cells cells;
    Cell *open = nullptr;
    forEachLine(design, [&](const QByteArray &line) {
        if (line.startsWith("  cell ")) {
            const QByteArray type = word(line, 1);
            open = nullptr;
            if (type.startsWith('\\') && type != "\\OWN_STATE") {
                open = &cells[word(line, 2).mid(1)];
                open->type = type.mid(1);
            }
        } else if (line == "  end") {
            open = nullptr;
        } else if (open && line.startsWith("    parameter ")) {
            QByteArray name;
            QByteArray value;
            readParameter(line, &name, &value);
            const auto known = usual.constFind('\\' + open->type);
            if (known == usual.constEnd() || known->value(name) != value || !known->contains(name))
                open->parameters.insert(name.mid(1), value);
        }
    });
    return cells;
}

QMap<QByteArray, QByteArray> ProofText::portsOf(const QByteArray &design, const QByteArray &top)
{
    QMap<QByteArray, QByteArray> ports;
    bool isInside = false;
    forEachLine(design, [&](const QByteArray &line) {
        if (line.startsWith("module "))
            isInside = word(line, 1).mid(1) == top;
        if (!isInside || !line.startsWith("  wire "))
            return;
        QByteArray width = "1";
        QByteArray direction;
        const QByteArray name = lastWord(line);
        for (int i = 1;; ++i) {
            const QByteArray next = word(line, i);
            if (next.isEmpty() || next.startsWith('\\') || next.startsWith('$'))
                break;
            if (next == "width")
                width = word(line, i + 1);
            else if (next == "input" || next == "output" || next == "inout")
                direction = next;
        }
        if (!direction.isEmpty())
            ports.insert(name.mid(1), direction + ' ' + width);
    });
    return ports;
}

QByteArray ProofText::blackBoxes(const QByteArray &netlist)
{
    QByteArray boxes;
    bool isInside = false;
    forEachLine(netlist, [&](const QByteArray &line) {
        isInside = isInside || line == "(* blackbox *)";
        if (isInside)
            boxes += line + '\n';
        isInside = isInside && !line.startsWith("endmodule");
    });
    return boxes;
}

QByteArrayList ProofText::unnamedCells(const QByteArray &netlist)
{
    static const QRegularExpression cell(
        QStringLiteral("^  (?:TV_[A-Z0-9_]+|[)]) (_[0-9]+_) [(]$"));
    QByteArrayList names;
    forEachLine(netlist, [&names](const QByteArray &line) {
        if (!line.endsWith(" ("))
            return;
        const auto match = cell.match(QString::fromLatin1(line));
        if (match.hasMatch())
            names << match.captured(1).toLatin1();
    });
    return names;
}

QByteArray ProofText::calledAsInVerilog(const QByteArray &text, const QByteArrayList &unnamed,
                                        const QByteArray &top, QString *mistake)
{
    static const QRegularExpression open(QStringLiteral("assign [^ ]+ = [0-9]+'b[Z]+;"));
    static const QRegularExpression number(QStringLiteral(" u[0-9]+ \\($"));
    QByteArray result;
    int cells = 0;
    bool isInside = false;
    forEachLine(text, [&](const QByteArray &line) {
        if (line.startsWith("module "))
            isInside = word(line, 1) == top;
        if (!isInside)
            return;
        if (line.contains("'bZ") && open.match(QString::fromLatin1(line)).hasMatch())
            return;
        if (line.endsWith(" (")) {
            const auto match = number.match(QString::fromLatin1(line));
            if (match.hasMatch()) {
                result += withVerilogNames(line.left(match.capturedStart()) + ' ' +
                                           unnamed.value(cells++) + " (") +
                          '\n';
                return;
            }
        }
        result += withVerilogNames(line) + '\n';
    });
    mistake->clear();
    if (cells != unnamed.size())
        *mistake = QStringLiteral("it has %1 cells without a name, the Verilog netlist %2")
                       .arg(cells)
                       .arg(unnamed.size());
    return result;
}

QString ProofText::placeOf(QByteArray name)
{
    static const QRegularExpression state(QStringLiteral("^(.*)\\$_DFF\\w*_(?:\\.([DQ])(.*))?$"));
    static const QRegularExpression driver(QStringLiteral("^(.*)\\\\TV_TBUF(?:\\.(I|OE))?$"));
    while (name.startsWith('\\'))
        name.remove(0, 1);
    const QString text = QString::fromUtf8(name);
    if (const auto match = state.match(text); match.hasMatch()) {
        const QString of = QLatin1String("register ") + match.captured(1);
        return match.captured(2) == QLatin1String("D") ? of + QLatin1String(", next value") : of;
    }
    if (const auto match = driver.match(text); match.hasMatch()) {
        const QString of = QLatin1String("tri-state driver of ") + match.captured(1);
        return match.captured(2).isEmpty()                ? of
               : match.captured(2) == QLatin1String("OE") ? QString(of + QLatin1String(", enable"))
                                                          : QString(of + QLatin1String(", data"));
    }
    return text;
}

QString ProofText::withoutTimes(const QString &line)
{
    static const QRegularExpression number(
        QStringLiteral("\\s*\\b[\\w ]*[Tt]ime\\s*=\\s*[0-9.]+(?: sec)?|[0-9.]+ sec(?:onds)?\\b"));
    QString text = line;
    return text.remove(number);
}

} // namespace Synthesis
