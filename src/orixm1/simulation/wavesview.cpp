#include "wavesview.h"

#include "config/latin1literal.h"
#include "registers/registerdocs.h"

#include <QStringList>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

// GTKWave replaces it when it saves.
constexpr QLatin1String firstLine = "[*] Made by \"orixm1 simulate\""_l1;

// How values of a signal are shown, in GTKWave's flags.
constexpr QLatin1String hexadecimal = "@22"_l1;
constexpr QLatin1String binary = "@28"_l1;
constexpr QLatin1String characters = "@820"_l1;

struct SignalRow {
    QLatin1String form;
    QLatin1String path;
};

constexpr SignalRow resetRows[] = {
    {binary, "board.clk"_l1},
    {binary, "board.power_good"_l1},
    {binary, "board.dut.u_core.PORRESETn"_l1},
    {binary, "board.dut.u_core.SYSRESETn"_l1},
    {binary, "board.dut.u_core.SYSRESETREQ"_l1},
};

constexpr SignalRow processorRows[] = {
    {characters, "board.dut.u_core.function_name[319:0]"_l1},
    {hexadecimal, "board.dut.u_core.pc[31:0]"_l1},
    {characters, "board.dut.u_core.register_name[319:0]"_l1},
    {hexadecimal, "board.dut.u_core.HADDR[31:0]"_l1},
    {hexadecimal, "board.dut.u_core.HTRANS[1:0]"_l1},
    {hexadecimal, "board.dut.u_core.HSIZE[2:0]"_l1},
    {binary, "board.dut.u_core.HWRITE"_l1},
    {hexadecimal, "board.dut.u_core.HWDATA[31:0]"_l1},
    {hexadecimal, "board.dut.u_core.HRDATA[31:0]"_l1},
    {binary, "board.dut.u_core.HREADY"_l1},
    {binary, "board.dut.u_core.HRESP"_l1},
    {binary, "board.dut.u_core.LOCKUP"_l1},
};

constexpr int interruptPins = 32; // IRQ[31:0]

class View
{
public:
    void add(QLatin1String form, const QString &path)
    {
        m_lines.append(form);
        m_lines.append(path);
    }

    template <typename Rows>
    void addGroup(const QString &name, const Rows &rows)
    {
        begin(name, true);
        for (const SignalRow &row : rows)
            add(row.form, row.path);
        end(name, true);
    }

    void begin(const QString &name, bool isOpen)
    {
        m_lines += {isOpen ? QStringLiteral("@800200") : QStringLiteral("@c00200"), u'-' + name};
    }

    void end(const QString &name, bool isOpen)
    {
        m_lines += {isOpen ? QStringLiteral("@1000200") : QStringLiteral("@1401200"), u'-' + name};
    }

    QStringList lines() const { return m_lines; }

private:
    QStringList m_lines;
};

// Where a port is shown; empty: nowhere.
QString groupOf(const Port &port)
{
    if (port.role == PortRole::Unused)
        return {};
    return port.bus.isEmpty() ? port.block : port.bus;
}

void addPort(View &view, const Port &port)
{
    const QString path = "board.p_"_l1 + port.name;
    if (port.isVector())
        view.add(hexadecimal, path + QStringLiteral("[%1:%2]").arg(port.left).arg(port.right));
    else
        view.add(binary, path);
}

void addInterrupts(View &view, const SystemMap &map)
{
    const QString name = QStringLiteral("Interrupts");
    view.begin(name, false);
    for (const InterruptLine &line : map.interrupts) {
        if (!line.lost.isEmpty())
            continue;
        const QString alias = "+{"_l1 + line.name + "} "_l1;
        if (line.number == InterruptLine::nonMaskable)
            view.add(binary, alias + "board.dut.u_core.NMI"_l1);
        else
            view.add(binary, alias + QStringLiteral("(%1)board.dut.u_core.IRQ[31:0]")
                                         .arg(interruptPins - 1 - line.number));
    }
    view.end(name, false);
}

void addBlocks(View &view, const SystemMap &map)
{
    QStringList groups;
    for (const Port &port : map.ports) {
        const QString group = groupOf(port);
        if (!group.isEmpty() && !groups.contains(group))
            groups.append(group);
    }
    for (const QString &group : qAsConst(groups)) {
        view.begin(group, false);
        for (const Port &port : map.ports) {
            if (groupOf(port) == group)
                addPort(view, port);
        }
        view.end(group, false);
    }
}

void addName(QString &text, QLatin1String kind, quint32 address, quint64 bytes, const QString &name)
{
    text += QStringLiteral("%1 %2 %3 %4\n").arg(kind, hexAddress(address)).arg(bytes).arg(name);
}

} // namespace

QByteArray wavesNames(const SystemMap &map, const QVector<FunctionSymbol> &functions)
{
    QString text;
    for (int i = 0; i < functions.size(); ++i) {
        const FunctionSymbol &function = functions.at(i);
        // Some are written in assembly language, without a size; they may lie within others.
        quint64 bytes = function.bytes;
        const quint64 next =
            i + 1 < functions.size() ? functions.at(i + 1).address : quint64(1) << 32;
        if (bytes == 0 || bytes > next - function.address)
            bytes = next - function.address;
        QString name = function.name;
        std::replace_if(
            name.begin(), name.end(), [](QChar c) { return c.unicode() < u' '; }, u'?');
        addName(text, "function"_l1, function.address, std::min<quint64>(bytes, 1u << 31), name);
    }
    for (const Region &region : map.regions) {
        bool hasRegisters = false;
        for (const Peripheral &peripheral : map.peripherals) {
            for (const PeripheralInstance &instance : peripheral.instances) {
                if (instance.name != region.name)
                    continue;
                hasRegisters = true;
                for (const Register &entry : peripheral.registers)
                    addName(text, "register"_l1, instance.base + entry.offset, 4,
                            instance.name + u'.' + entry.name);
            }
        }
        if (!hasRegisters && region.kind != RegionKind::TightlyCoupledMemory)
            addName(text, "register"_l1, region.base, std::min<quint64>(region.size(), 0xFFFFFFFFu),
                    region.name);
    }
    return text.toUtf8();
}

QByteArray wavesView(const SystemMap &map, const QString &waves, const QString &view)
{
    View groups;
    groups.addGroup(QStringLiteral("Clock and resets"), resetRows);
    groups.addGroup(QStringLiteral("Processor"), processorRows);
    addInterrupts(groups, map);
    addBlocks(groups, map);
    QStringList lines{firstLine};
    if (!waves.contains(u'\n') && !view.contains(u'\n'))
        lines += {"[dumpfile] \""_l1 + waves + u'"', "[savefile] \""_l1 + view + u'"'};
    lines += {// a few hundred clock cycles at a time
              QStringLiteral("*-20.000000 -1"),    QStringLiteral("[timestart] 0"),
              QStringLiteral("[size] 1600 900"),   QStringLiteral("[pos] -1 -1"),
              QStringLiteral("[treeopen] board."), QStringLiteral("[signals_width] 260")};
    lines += groups.lines();
    return lines.join(u'\n').toUtf8() + '\n';
}

bool isWavesView(const QByteArray &bytes)
{
    return bytes.startsWith(QByteArray(firstLine.data(), firstLine.size()) + '\n');
}

} // namespace TARVOORIXM1
