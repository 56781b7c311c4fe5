#include "resources.h"

#include "netlist/library.h"
#include "netlist/verilogscan.h"
#include "tr.h"

#include <utils/fileutils.h>

#include <QDir>
#include <QStringList>

#include <array>

namespace Synthesis
{

namespace
{

enum Resource { Lut, FlipFlop, Carry, TriState, BlockRam, ResourceCount };

struct Row {
    const char *primitives; // name, or the beginning of a name before "*"
    Resource resource;
    int each; // how much of it one instance takes
};

// The first matching row wins.
constexpr Row rows[] = {
    {"TV_LUT*", Lut, 1},      {"TV_RAMD", Lut, 4},    // 16 words of 4 bits in the tables' own cells
    {"TV_DFF*", FlipFlop, 1}, {"TV_DL", FlipFlop, 1}, // a latch takes the place of a flip-flop
    {"TV_CARRY", Carry, 1},   {"TV_TBUF", TriState, 1}, {"TV_RAMB_*", BlockRam, 1},
};

struct Kind {
    const char *name;
    int DEV::DeviceResources::*total; // null: a device has no number of them
};

constexpr std::array<Kind, ResourceCount> kinds{{{"LUT4", &DEV::DeviceResources::lut4},
                                                 {"Flip-flops", &DEV::DeviceResources::flipFlops},
                                                 {"Carry", &DEV::DeviceResources::carry},
                                                 {"Tri-state drivers", nullptr},
                                                 {"Block RAM", &DEV::DeviceResources::blockRam}}};

bool matches(const QByteArray &name, QByteArray pattern)
{
    if (!pattern.endsWith('*'))
        return name == pattern;
    pattern.chop(1);
    return name.startsWith(pattern);
}

} // namespace

QList<ResourceUse> resourceUse(const QMap<QByteArray, int> &instances,
                               const DEV::DeviceResources &totals)
{
    std::array<int, ResourceCount> used{};
    for (auto it = instances.begin(); it != instances.end(); ++it) {
        for (const Row &row : rows) {
            if (matches(it.key(), row.primitives)) {
                used.at(row.resource) += it.value() * row.each;
                break;
            }
        }
    }
    QList<ResourceUse> result;
    for (int i = 0; i < ResourceCount; ++i)
        result << ResourceUse{QLatin1String(kinds.at(i).name), used.at(i),
                              kinds.at(i).total ? totals.*kinds.at(i).total : -1};
    return result;
}

QStringList resourceNames()
{
    QStringList names;
    for (const Kind &kind : kinds)
        names << QLatin1String(kind.name);
    return names;
}

QString usedSentence(const QList<ResourceUse> &resources)
{
    QStringList parts;
    for (const ResourceUse &use : resources) {
        if (use.used == 0)
            continue;
        QString part = QString::number(use.used) + u' ' + use.resource;
        if (use.available >= 0)
            part += QStringLiteral(" (%1 %)").arg(use.percent());
        parts << part;
    }
    if (parts.isEmpty())
        return Tr::tr("Used no primitives.");
    return Tr::tr("Used %1.").arg(parts.join(QLatin1String(", ")));
}

QString notCountedSentence(const QList<CellCount> &cells)
{
    QStringList parts;
    for (const CellCount &cell : cells) {
        if (cell.isBlackBox)
            parts << QString::number(cell.count) + u' ' + cell.cell;
    }
    if (parts.isEmpty())
        return {};
    return Tr::tr("Not counted are the contents of black boxes: %1.")
        .arg(parts.join(QLatin1String(", ")));
}

NetlistUse netlistUse(const QMap<QByteArray, int> &instances, const DEV::DeviceResources &totals)
{
    const QByteArrayList primitives = Library::primitives();
    NetlistUse use;
    for (auto it = instances.begin(); it != instances.end(); ++it)
        use.cells << CellCount{QString::fromUtf8(it.key()), it.value(),
                               !primitives.contains(it.key())};
    use.resources = resourceUse(instances, totals);
    return use;
}

Utils::Result<NetlistUse> readNetlistUse(const QString &path, const QByteArray &top,
                                         const DEV::DeviceResources &totals)
{
    const auto fail = [&path](const QString &reason) {
        return Utils::Failure{
            Tr::tr("\"%1\" cannot be counted: %2.").arg(QDir::toNativeSeparators(path), reason)};
    };
    QByteArray text;
    QString error;
    if (!Utils::FileUtils::readFile(path, &text, &error))
        return Utils::Failure{error};
    const VerilogOutline outline = scanVerilog(text);
    if (!outline.defines(top))
        return fail(Tr::tr("it holds no module \"%1\" in Verilog").arg(QString::fromUtf8(top)));
    if (!outline.complete)
        return fail(Tr::tr("its end is missing"));
    const QMap<QByteArray, int> instances = outline.leavesOf(top, &error);
    if (!error.isEmpty())
        return fail(error);
    return netlistUse(instances, totals);
}

} // namespace Synthesis
