#include "rundetails.h"

#include "config/latin1literal.h"
#include "program.h"
#include "registers/registerdocs.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

struct CauseRow {
    QLatin1String word; // of the statistics
    QLatin1String text;
};

constexpr CauseRow causeRows[] = {
    {"bus"_l1, "an access got a bus error"_l1},
    {"undefined"_l1, "there is no such instruction"_l1},
    {"misaligned"_l1, "an access was not aligned"_l1},
    {"state"_l1, "no instructions can come from there, or the address of a function was even"_l1},
    {"supervisor"_l1, "SVC was called where its handler cannot run"_l1},
    {"stacking"_l1, "the stack could not be written at the entry of an exception"_l1},
    {"unstacking"_l1, "the stack could not be read at the return from an exception"_l1},
    {"vector"_l1, "the vector table could not be read"_l1},
};

QString causeText(const QString &word)
{
    for (const CauseRow &row : causeRows) {
        if (word == row.word)
            return row.text;
    }
    return word;
}

class Details
{
public:
    Details(const SystemMap &map, const RunStatistics &run, const SourcePlaces &places,
            const QString &folder)
        : m_map(map)
        , m_run(run)
        , m_places(places)
        , m_folder(folder.isEmpty() ? folder : folder + u'/')
    {
    }

    RunDetails made() const
    {
        RunDetails details;
        details.instructions = m_run.instructions;
        details.asleep = m_run.asleep;
        details.starts = m_run.starts;
        details.end = placeAt(m_run.end);
        details.blocks = blocks();
        details.exceptions = exceptions();
        details.interruptsNeverTaken = interruptsNeverTaken();
        for (const RunStatistics::BusError &error : m_run.errors)
            details.errors.append({error.address, error.bytes, error.isWrite,
                                   blockAt(error.address), placeAt(error.programCounter)});
        for (const RunStatistics::Fault &fault : m_run.faults)
            details.faults.append({causeText(fault.cause), placeAt(fault.programCounter)});
        for (const RunStatistics::UnknownRead &read : m_run.unknownReads)
            details.unknownReads.append(
                {read.address, read.bits, blockAt(read.address), placeAt(read.programCounter)});
        for (const quint32 address : m_run.lockUps)
            details.lockUps.append(placeAt(address));
        details.errorCount = m_run.errorCount;
        details.faultCount = m_run.faultCount;
        details.unknownCount = m_run.unknownCount;
        details.lockUpCount = m_run.lockUpCount;
        details.problem = m_places.problem();
        return details;
    }

private:
    RunPlace placeAt(quint32 address) const
    {
        RunPlace place{address, m_places.at(address), false};
        QString &file = place.source.file;
        for (const QString &folder : {m_folder, programFolder()}) {
            if (!folder.isEmpty() && file.startsWith(folder)) {
                file.remove(0, folder.size());
                place.isMains = file == programEnding();
            }
        }
        return place;
    }

    QString blockAt(quint32 address) const
    {
        const Region *region = regionAt(m_map, address);
        return region ? region->name : QString();
    }

    static void add(RunDetails::Block &block, const RunStatistics::Counts &counts)
    {
        block.reads += counts.reads;
        block.writes += counts.writes;
    }

    QVector<RunDetails::Block> blocks() const
    {
        QVector<RunDetails::Block> list;
        for (const Region &region : m_map.regions) {
            if (region.kind != RegionKind::TightlyCoupledMemory)
                list.append(blockOf(region));
        }
        RunDetails::Block nowhere;
        for (auto it = m_run.words.begin(); it != m_run.words.end(); ++it) {
            if (!regionAt(m_map, it.key()))
                add(nowhere, *it);
        }
        for (auto it = m_run.pages.begin(); it != m_run.pages.end(); ++it) {
            if (!regionAt(m_map, it.key()))
                add(nowhere, *it);
        }
        add(nowhere, m_run.elsewhere);
        if (nowhere.reads + nowhere.writes != 0)
            list.append(nowhere);
        return list;
    }

    RunDetails::Block blockOf(const Region &region) const
    {
        RunDetails::Block block;
        block.name = region.name;
        for (auto it = m_run.words.lowerBound(region.base);
             it != m_run.words.end() && it.key() <= region.last; ++it)
            add(block, *it);
        // A page belongs to the region where it begins.
        for (auto it = m_run.pages.lowerBound(region.base & ~(RunStatistics::pageBytes - 1));
             it != m_run.pages.end() && it.key() <= region.last; ++it) {
            block.isComplete = false;
            if (it.key() >= region.base)
                add(block, *it);
        }
        block.isComplete = block.isComplete && m_run.elsewhere.reads + m_run.elsewhere.writes == 0;
        if (block.isComplete && block.reads + block.writes != 0)
            block.untouched = untouchedIn(region);
        return block;
    }

    QStringList untouchedIn(const Region &region) const
    {
        QStringList names;
        for (const Peripheral &peripheral : m_map.peripherals) {
            for (const PeripheralInstance &instance : peripheral.instances) {
                if (instance.name != region.name)
                    continue;
                for (const Register &entry : peripheral.registers) {
                    if (!m_run.words.contains(instance.base + entry.offset))
                        names.append(entry.name);
                }
            }
        }
        return names;
    }

    static int exceptionOf(const InterruptLine &line)
    {
        return line.number == InterruptLine::nonMaskable ? nonMaskableException
                                                         : firstInterruptException + line.number;
    }

    QVector<RunDetails::Exception> exceptions() const
    {
        QVector<RunDetails::Exception> list;
        for (auto it = m_run.exceptions.begin(); it != m_run.exceptions.end(); ++it) {
            const auto line = std::find_if(
                m_map.interrupts.begin(), m_map.interrupts.end(),
                [&](const InterruptLine &row) { return exceptionOf(row) == it.key(); });
            const QString name =
                it.key() < firstInterruptException ? exceptionName(it.key())
                : line != m_map.interrupts.end()
                    ? line->name
                    : QStringLiteral("interrupt %1").arg(it.key() - firstInterruptException);
            list.append({name, it.key(), *it});
        }
        return list;
    }

    QStringList interruptsNeverTaken() const
    {
        QStringList names;
        for (const InterruptLine &line : m_map.interrupts) {
            if (line.lost.isEmpty() && m_run.exceptions.value(exceptionOf(line)) == 0)
                names.append(line.name);
        }
        return names;
    }

    const SystemMap &m_map;
    const RunStatistics &m_run;
    const SourcePlaces &m_places;
    const QString m_folder;
};

} // namespace

QString RunPlace::text() const
{
    QString text = hexAddress(address);
    if (!source.function.isEmpty())
        text += ", "_l1 + source.function + "()"_l1;
    if (!source.file.isEmpty())
        text += QStringLiteral(" in %1:%2").arg(source.file).arg(source.line);
    return text;
}

RunDetails runDetails(const SystemMap &map, const RunStatistics &run, const SourcePlaces &places,
                      const QString &folder)
{
    return Details(map, run, places, folder).made();
}

} // namespace TARVOORIXM1
