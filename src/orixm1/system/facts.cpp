#include "facts.h"

#include "config/latin1literal.h"

#include <QHash>

namespace TARVOORIXM1
{

namespace
{

QString hex(quint32 address)
{
    return "0x"_l1 + QString::number(address, 16).toUpper().rightJustified(8, u'0');
}

// Leaves out what is empty.
class Details
{
public:
    Details &add(QLatin1String name, const QString &text)
    {
        if (!text.isEmpty())
            m_list.append({name, text});
        return *this;
    }
    Details &addIf(bool applies, QLatin1String name, const QString &text)
    {
        return applies ? add(name, text) : *this;
    }
    QVector<QPair<QString, QString>> list() const { return m_list; }

private:
    QVector<QPair<QString, QString>> m_list;
};

QVector<Fact> deviceFacts(const DEV::DeviceArg &device)
{
    QVector<Fact> facts;
    const auto add = [&facts](QLatin1String name, const QString &text) {
        facts.append({name, Details().add("value"_l1, text).list()});
    };
    const auto addNumber = [&add](QLatin1String name, int number) {
        if (number >= 0)
            add(name, QString::number(number));
    };
    add("id"_l1, device.id());
    add("name"_l1, device.device());
    add("package"_l1, device.package());
    add("speed grade"_l1, device.speed());
    add("part number"_l1, device.partNumber());
    const DEV::DeviceResources has = device.resources();
    addNumber("LUT4"_l1, has.lut4);
    addNumber("flip-flops"_l1, has.flipFlops);
    addNumber("carry bits"_l1, has.carry);
    addNumber("block RAM"_l1, has.blockRam);
    return facts;
}

QVector<Fact> portFacts(const QVector<Port> &ports)
{
    QVector<Fact> facts;
    for (const Port &port : ports) {
        const QString range = QStringLiteral("[%1:%2]").arg(port.left).arg(port.right);
        facts.append({port.name, Details()
                                     .add("direction"_l1, directionName(port.direction))
                                     .addIf(port.isVector(), "range"_l1, range)
                                     .add("role"_l1, roleName(port.role))
                                     .add("block"_l1, port.block)
                                     .add("bus"_l1, port.bus)
                                     .addIf(port.isActiveLow, "active"_l1, "low"_l1)
                                     .addIf(port.needsPullUp, "pull-up"_l1, "needed"_l1)
                                     .add("clock"_l1, port.clock)
                                     .add("synchronizer"_l1, port.synchronizer)
                                     .add("text"_l1, port.text)
                                     .list()});
    }
    return facts;
}

QVector<Fact> regionFacts(const QVector<Region> &regions)
{
    QVector<Fact> facts;
    for (const Region &region : regions) {
        facts.append({region.name, Details()
                                       .add("base"_l1, hex(region.base))
                                       .add("last"_l1, hex(region.last))
                                       .add("kind"_l1, regionKindName(region.kind))
                                       .add("bus"_l1, region.bus)
                                       .add("text"_l1, region.text)
                                       .list()});
    }
    return facts;
}

QString registerAccess(const Register &row)
{
    QStringList names;
    for (const RegisterField &field : row.fields) {
        if (!names.contains(accessName(field.access)))
            names.append(accessName(field.access));
    }
    return names.join(", "_l1);
}

// Each field as "name[high:low]=reset".
QString registerFields(const Register &row)
{
    QStringList fields;
    for (const RegisterField &field : row.fields) {
        QString text = field.name + QStringLiteral("[%1:%2]").arg(field.high).arg(field.low);
        if (field.hasReset)
            text += "=0x"_l1 + QString::number(field.reset, 16).toUpper();
        fields.append(text);
    }
    return fields.join(u' ');
}

QVector<Fact> registerFacts(const QVector<Peripheral> &peripherals)
{
    QVector<Fact> facts;
    for (const Peripheral &peripheral : peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            for (const Register &row : peripheral.registers) {
                facts.append({instance.name + u'.' + row.name,
                              Details()
                                  .add("address"_l1, hex(instance.base + row.offset))
                                  .add("access"_l1, registerAccess(row))
                                  .add("fields"_l1, registerFields(row))
                                  .list()});
            }
        }
    }
    return facts;
}

QVector<Fact> interruptFacts(const QVector<InterruptLine> &lines)
{
    QVector<Fact> facts;
    for (const InterruptLine &line : lines) {
        const QString number = line.number == InterruptLine::nonMaskable
                                   ? QStringLiteral("NMI")
                                   : QString::number(line.number);
        facts.append({line.name, Details()
                                     .add("number"_l1, number)
                                     .add("source"_l1, line.source)
                                     .add("lost"_l1, line.lost)
                                     .list()});
    }
    return facts;
}

QVector<Fact> blackBoxFacts(const QVector<BlackBox> &boxes)
{
    QVector<Fact> facts;
    for (const BlackBox &box : boxes) {
        facts.append(
            {box.module, Details().add("region"_l1, box.region).add("text"_l1, box.text).list()});
    }
    return facts;
}

QVector<Fact> resourceFacts(const std::optional<ResourceFigures> &figures)
{
    QVector<Fact> facts;
    if (!figures)
        return facts;
    for (const ResourceLine &line : figures->lines)
        facts.append({line.name, Details()
                                     .add("used"_l1, QString::number(line.used))
                                     .addIf(line.available >= 0, "available"_l1,
                                            QString::number(line.available))
                                     .list()});
    return facts;
}

} // namespace

QVector<FactGroup> factsOf(const SystemMap &map)
{
    return {{"device"_l1, "Device"_l1, deviceFacts(map.device)},
            {"regions"_l1, "Address map"_l1, regionFacts(map.regions)},
            {"interrupts"_l1, "Interrupts"_l1, interruptFacts(map.interrupts)},
            {"ports"_l1, "Ports"_l1, portFacts(map.ports)},
            {"registers"_l1, "Registers"_l1, registerFacts(map.peripherals)},
            {"blackBoxes"_l1, "Black boxes"_l1, blackBoxFacts(map.blackBoxes)},
            {"resources"_l1, "Resources"_l1, resourceFacts(map.resources)}};
}

QVector<FactChanges> factChanges(const QVector<FactGroup> &before, const QVector<FactGroup> &after)
{
    QVector<FactChanges> result;
    for (int i = 0; i < qMin(before.size(), after.size()); ++i) {
        const QVector<Fact> &old = before.at(i).facts;
        const QVector<Fact> &now = after.at(i).facts;
        QHash<QString, int> oldPlaces;
        QHash<QString, int> nowPlaces;
        for (int k = 0; k < old.size(); ++k)
            oldPlaces.insert(old.at(k).name, k);
        for (int k = 0; k < now.size(); ++k)
            nowPlaces.insert(now.at(k).name, k);

        FactChanges group = {after.at(i).id, after.at(i).title, {}};
        int told = 0; // of the old facts
        const auto tellRemoved = [&](int upTo) {
            for (; told < upTo; ++told) {
                if (!nowPlaces.contains(old.at(told).name))
                    group.changes.append(
                        {FactChange::Removed, old.at(told), {old.at(told).name, {}}});
            }
        };
        for (const Fact &fact : now) {
            const auto found = oldPlaces.constFind(fact.name);
            if (found == oldPlaces.cend()) {
                group.changes.append({FactChange::Added, {fact.name, {}}, fact});
                continue;
            }
            const int place = *found;
            tellRemoved(place);
            if (!(old.at(place) == fact))
                group.changes.append({FactChange::Changed, old.at(place), fact});
        }
        tellRemoved(old.size());
        if (!group.changes.isEmpty())
            result.append(group);
    }
    return result;
}

} // namespace TARVOORIXM1
