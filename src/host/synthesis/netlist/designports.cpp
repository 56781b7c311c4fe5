#include "designports.h"

#include "designcheck.h"
#include "tr.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace Synthesis
{

namespace
{

bool isBits(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c == u'0' || c == u'1' || c == u'x' || c == u'z'; });
}

QByteArray verilogValue(const QJsonValue &json)
{
    const ParameterValue value = ParameterValue::read(json);
    if (!value.bits.isEmpty())
        return QByteArray::number(value.bits.size()) + "'b" + value.bits;
    QByteArray text = value.text;
    text.replace('\\', "\\\\").replace('"', "\\\"").replace('\n', "\\n").replace('\t', "\\t");
    return '"' + text + '"';
}

// Of a module or net.
QByteArray noteIn(const QJsonObject &object)
{
    const QJsonObject attributes = object.value(QLatin1String("attributes")).toObject();
    return ParameterValue::read(attributes.value(QLatin1String("note"))).text;
}

QVector<Port> readPorts(const QJsonObject &module)
{
    struct Row {
        int firstBit;
        Port port;
    };
    QVector<Row> rows;
    const QJsonObject ports = module.value(QLatin1String("ports")).toObject();
    const QJsonObject nets = module.value(QLatin1String("netnames")).toObject();
    for (auto it = ports.begin(); it != ports.end(); ++it) {
        const QJsonObject json = it.value().toObject();
        const QJsonArray bits = json.value(QLatin1String("bits")).toArray();
        Port port;
        port.name = it.key().toUtf8();
        port.direction = json.value(QLatin1String("direction")).toString().toLatin1();
        port.width = bits.size();
        port.lowest = json.value(QLatin1String("offset")).toInt();
        port.isRising = json.value(QLatin1String("upto")).toInt() != 0;
        port.isVector = port.width != 1 || port.lowest != 0 || port.isRising;
        port.note = noteIn(nets.value(it.key()).toObject());
        rows << Row{bits.isEmpty() ? 0 : bits.first().toInt(), port};
    }
    // Without contents every bit is a net of its own, numbered in the order of declaration.
    std::sort(rows.begin(), rows.end(),
              [](const Row &a, const Row &b) { return a.firstBit < b.firstBit; });
    QVector<Port> result;
    for (const Row &row : qAsConst(rows))
        result << row.port;
    return result;
}

} // namespace

// A value is bits, or else a string; a string that looks like bits has a blank at its end.
ParameterValue ParameterValue::read(const QJsonValue &json)
{
    QString value = json.toString();
    if (!value.isEmpty() && isBits(value))
        return {value.toLatin1(), {}};
    if (value.endsWith(u' ') && isBits(value.trimmed()))
        value.chop(1);
    return {{}, value.toUtf8()};
}

QByteArray Port::range() const
{
    if (!isVector)
        return {};
    const QByteArray low = QByteArray::number(lowest);
    const QByteArray high = QByteArray::number(lowest + width - 1);
    return isRising ? '[' + low + ':' + high + ']' : '[' + high + ':' + low + ']';
}

QString DesignPorts::read(const QByteArray &outline, const QByteArray &cells)
{
    const QLatin1String modulesKey("modules");
    m_modules = QJsonDocument::fromJson(outline).object().value(modulesKey).toObject();
    const QJsonObject designs =
        QJsonDocument::fromJson(cells).object().value(modulesKey).toObject();
    for (const QJsonObject &modules : {m_modules, designs}) {
        if (QString mistake = designMistake(modules); !mistake.isEmpty()) {
            m_modules = {};
            return mistake;
        }
    }
    for (const QJsonValue &module : designs) {
        const QJsonObject instances = module.toObject().value(QLatin1String("cells")).toObject();
        for (const QJsonValue &instance : instances) {
            const QJsonObject json = instance.toObject();
            Usage &usage = m_usage[json.value(QLatin1String("type")).toString().toUtf8()];
            const QJsonObject connections = json.value(QLatin1String("connections")).toObject();
            for (auto it = connections.begin(); it != connections.end(); ++it) {
                int &width = usage.widths[it.key().toUtf8()];
                width = std::max(width, it.value().toArray().size());
            }
            const QJsonObject parameters = json.value(QLatin1String("parameters")).toObject();
            for (auto it = parameters.begin(); it != parameters.end(); ++it) {
                if (!usage.parameters.contains(it.key().toUtf8()))
                    usage.parameters << it.key().toUtf8();
            }
        }
    }
    return m_modules.isEmpty() ? Tr::tr("it holds no modules") : QString();
}

bool DesignPorts::contains(const QByteArray &module) const
{
    return m_modules.contains(QString::fromUtf8(module));
}

QByteArray DesignPorts::note(const QByteArray &module) const
{
    return noteIn(m_modules.value(QString::fromUtf8(module)).toObject());
}

QVector<Port> DesignPorts::ports(const QByteArray &module) const
{
    return readPorts(m_modules.value(QString::fromUtf8(module)).toObject());
}

QVector<BlackBox> DesignPorts::blackBoxes(const QByteArrayList &except) const
{
    QVector<BlackBox> result;
    for (auto it = m_modules.begin(); it != m_modules.end(); ++it) {
        BlackBox box;
        box.name = it.key().toUtf8();
        if (except.contains(box.name))
            continue;
        const QJsonObject module = it.value().toObject();
        const Usage usage = m_usage.value(box.name);

        const QJsonObject defaults =
            module.value(QLatin1String("parameter_default_values")).toObject();
        for (auto parameter = defaults.begin(); parameter != defaults.end(); ++parameter) {
            const ParameterValue value = ParameterValue::read(parameter.value());
            box.parameters << BlackBox::Parameter{parameter.key().toUtf8(),
                                                  verilogValue(parameter.value()), value.bits,
                                                  value.text, true};
        }
        for (const QByteArray &name : usage.parameters) {
            if (!defaults.contains(QString::fromUtf8(name)))
                box.parameters << BlackBox::Parameter{name, "0", "0", {}, false};
        }

        const QJsonObject attributes = module.value(QLatin1String("attributes")).toObject();
        const bool widthsVary = attributes.contains(QLatin1String("dynports"));
        box.ports = readPorts(module);
        for (Port &port : box.ports) {
            const int connected = usage.widths.value(port.name);
            if (widthsVary && connected > port.width) {
                port.width = connected;
                port.isVector = true;
            }
        }
        result << box;
    }
    return result;
}

} // namespace Synthesis
