#include "designports.h"

#include "tr.h"

#include <algorithm>

namespace Synthesis
{

namespace
{

QVector<Port> portsOf(const Design::Module &module)
{
    QVector<Design::ModulePort> ports = module.ports;
    // Without contents every bit is a net of its own, numbered in the order of declaration.
    std::sort(ports.begin(), ports.end(),
              [](const Design::ModulePort &a, const Design::ModulePort &b) {
                  return a.bits.first().net < b.bits.first().net;
              });
    QVector<Port> result;
    for (const Design::ModulePort &port : qAsConst(ports))
        result << port.port;
    return result;
}

} // namespace

QString DesignPorts::read(const QByteArray &outline, const QByteArray &cells)
{
    Design design;
    QString mistake = readDesign(outline, &m_outline);
    if (mistake.isEmpty())
        mistake = readDesign(cells, &design);
    if (!mistake.isEmpty()) {
        m_outline = {};
        return mistake;
    }
    for (const Design::Module &module : qAsConst(design.modules)) {
        for (const Design::Cell &cell : module.cells) {
            Usage &usage = m_usage[cell.type];
            for (auto it = cell.connections.begin(); it != cell.connections.end(); ++it) {
                int &width = usage.widths[it.key()];
                width = std::max(width, it.value().size());
            }
            for (const Design::Parameter &parameter : cell.parameters) {
                if (!usage.parameters.contains(parameter.name))
                    usage.parameters << parameter.name;
            }
        }
    }
    return m_outline.modules.isEmpty() ? Tr::tr("it holds no modules") : QString();
}

QByteArray DesignPorts::note(const QByteArray &module) const
{
    const Design::Module *found = m_outline.find(module);
    return found ? found->note : QByteArray();
}

QVector<Port> DesignPorts::ports(const QByteArray &module) const
{
    const Design::Module *found = m_outline.find(module);
    return found ? portsOf(*found) : QVector<Port>();
}

QVector<BlackBox> DesignPorts::blackBoxes(const QByteArrayList &except) const
{
    QVector<BlackBox> result;
    for (const Design::Module &module : m_outline.modules) {
        if (except.contains(module.name))
            continue;
        BlackBox box{module.name, {}, portsOf(module)};
        const Usage usage = m_usage.value(box.name);
        QByteArrayList declared;
        for (const Design::Parameter &parameter : module.defaults) {
            box.parameters << BlackBox::Parameter{parameter.name, parameter.value, true};
            declared << parameter.name;
        }
        for (const QByteArray &name : usage.parameters) {
            if (!declared.contains(name))
                box.parameters << BlackBox::Parameter{name, {"0", {}}, false};
        }
        for (Port &port : box.ports) {
            const int connected = usage.widths.value(port.name);
            if (module.widthsVary && connected > port.width) {
                port.width = connected;
                port.isVector = true;
            }
        }
        result << box;
    }
    return result;
}

} // namespace Synthesis
