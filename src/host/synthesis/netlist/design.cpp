#include "design.h"

#include "tr.h"

#include <reading/limits.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Synthesis
{

namespace
{

QJsonValue entry(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key));
}

bool isWhole(double number, double least, double most)
{
    return number >= least && number <= most && number == std::floor(number);
}

bool readBit(const QJsonValue &json, Bit *bit)
{
    if (json.isString()) {
        const QString text = json.toString();
        if (text.size() != 1 || !QLatin1String("01xz").contains(text.at(0)))
            return false;
        bit->constant = text.at(0).toLatin1();
        return true;
    }
    bit->net = json.toInt();
    return json.isDouble() && isWhole(json.toDouble(), 0, std::numeric_limits<int>::max());
}

bool readBits(const QJsonValue &json, Bits *bits)
{
    const QJsonArray array = json.toArray();
    if (!json.isArray() || array.size() > Reading::Limits::portWidth)
        return false;
    bits->resize(array.size());
    for (int i = 0; i < array.size(); ++i) {
        if (!readBit(array.at(i), &(*bits)[i]))
            return false;
    }
    return true;
}

bool readDirection(const QJsonValue &json, QByteArray *direction)
{
    *direction = json.toString().toLatin1();
    return *direction == "input" || *direction == "output" || *direction == "inout";
}

// The bits of a port or net, and the range that they have.
bool readRange(const QJsonObject &json, Port *shape, Bits *bits)
{
    using Reading::Limits::bitOffset;
    const QJsonValue offset = entry(json, "offset");
    if (!readBits(entry(json, "bits"), bits) ||
        !(offset.isUndefined() ||
          (offset.isDouble() && isWhole(offset.toDouble(), -bitOffset, bitOffset))))
        return false;
    shape->width = bits->size();
    shape->lowest = offset.toInt();
    shape->isRising = entry(json, "upto").toInt() != 0;
    shape->isVector = shape->width != 1 || shape->lowest != 0 || shape->isRising;
    return true;
}

// A value is bits, or else a string; a string that looks like bits has a blank at its end.
ParameterValue readValue(const QJsonValue &json)
{
    const auto isBits = [](const QString &text) {
        return std::all_of(text.begin(), text.end(), [](QChar c) {
            return c == u'0' || c == u'1' || c == u'x' || c == u'z';
        });
    };
    QString value = json.toString();
    if (!value.isEmpty() && isBits(value))
        return {value.toLatin1(), {}};
    if (value.endsWith(u' ') && isBits(value.trimmed()))
        value.chop(1);
    return {{}, value.toUtf8()};
}

QVector<Design::Parameter> readParameters(const QJsonValue &json)
{
    QVector<Design::Parameter> result;
    const QJsonObject parameters = json.toObject();
    for (auto it = parameters.begin(); it != parameters.end(); ++it)
        result << Design::Parameter{it.key().toUtf8(), readValue(it.value())};
    return result;
}

// Of a module or net.
QByteArray readNote(const QJsonObject &json)
{
    return readValue(entry(entry(json, "attributes").toObject(), "note")).text;
}

// What follows reads one thing of a module and returns a clause on what makes no sense.

QString readThing(const QByteArray &name, const QJsonObject &json, Design::ModulePort *port)
{
    port->port.name = name;
    if (!readDirection(entry(json, "direction"), &port->port.direction))
        return Tr::tr("has no direction");
    if (entry(json, "bits").toArray().isEmpty())
        return Tr::tr("has no bits");
    return readRange(json, &port->port, &port->bits) ? QString() : Tr::tr("has bits that are none");
}

QString readThing(const QByteArray &name, const QJsonObject &json, Design::Cell *cell)
{
    cell->name = name;
    cell->isHidden = entry(json, "hide_name").toInt() != 0;
    cell->isCrossing =
        entry(json, "attributes").toObject().contains(QLatin1String(crossingAttribute));
    cell->type = entry(json, "type").toString().toUtf8();
    cell->parameters = readParameters(entry(json, "parameters"));
    const QJsonObject directions = entry(json, "port_directions").toObject();
    for (auto it = directions.begin(); it != directions.end(); ++it) {
        Design::CellPort port{it.key().toUtf8(), {}};
        if (!readDirection(it.value(), &port.direction))
            return Tr::tr("has the port \"%1\" without a direction").arg(it.key());
        cell->ports << port;
    }
    const QJsonObject connections = entry(json, "connections").toObject();
    for (auto it = connections.begin(); it != connections.end(); ++it) {
        if (!readBits(it.value(), &cell->connections[it.key().toUtf8()]))
            return Tr::tr("has something at \"%1\" that are no bits").arg(it.key());
    }
    return {};
}

QString readThing(const QByteArray &name, const QJsonObject &json, Design::Net *net)
{
    net->shape.name = name;
    net->shape.note = readNote(json);
    net->isHidden = entry(json, "hide_name").toInt() != 0;
    return readRange(json, &net->shape, &net->bits) ? QString() : Tr::tr("has bits that are none");
}

// `text` is of a thing with its name and its module's.
template <class Thing>
QString readThings(const QJsonObject &module, const char *key, const QString &moduleName,
                   const char *text, QVector<Thing> *things)
{
    const QJsonObject object = entry(module, key).toObject();
    things->reserve(object.size());
    for (auto it = object.begin(); it != object.end(); ++it) {
        things->append(Thing());
        const QString mistake =
            readThing(it.key().toUtf8(), it.value().toObject(), &things->last());
        if (!mistake.isEmpty())
            return Tr::tr(text).arg(it.key(), moduleName) + mistake;
    }
    return {};
}

QString readModule(const QString &name, const QJsonObject &json, Design::Module *module)
{
    module->name = name.toUtf8();
    module->note = readNote(json);
    module->widthsVary = entry(json, "attributes").toObject().contains(QLatin1String("dynports"));
    module->defaults = readParameters(entry(json, "parameter_default_values"));
    QString mistake =
        readThings(json, "ports", name,
                   QT_TRANSLATE_NOOP("Synthesis", "the port \"%1\" of \"%2\" "), &module->ports);
    if (mistake.isEmpty())
        mistake = readThings(json, "cells", name,
                             QT_TRANSLATE_NOOP("Synthesis", "the cell \"%1\" in \"%2\" "),
                             &module->cells);
    if (mistake.isEmpty())
        mistake =
            readThings(json, "netnames", name,
                       QT_TRANSLATE_NOOP("Synthesis", "the net \"%1\" in \"%2\" "), &module->nets);
    QHash<QByteArray, QByteArray> notes;
    for (const Design::Net &net : qAsConst(module->nets)) {
        if (!net.shape.note.isEmpty())
            notes.insert(net.shape.name, net.shape.note);
    }
    for (Design::ModulePort &port : module->ports)
        port.port.note = notes.value(port.port.name);
    return mistake;
}

} // namespace

QByteArray Port::range() const
{
    if (!isVector)
        return {};
    const QByteArray low = QByteArray::number(lowest);
    const QByteArray high = QByteArray::number(lowest + width - 1);
    return isRising ? '[' + low + ':' + high + ']' : '[' + high + ':' + low + ']';
}

const Design::Module *Design::find(const QByteArray &module) const
{
    const auto found = std::find_if(modules.begin(), modules.end(),
                                    [&](const Module &other) { return other.name == module; });
    return found == modules.end() ? nullptr : &*found;
}

QString readDesign(const QByteArray &json, Design *design, const QByteArray &only)
{
    design->modules.clear();
    const QJsonObject modules = entry(QJsonDocument::fromJson(json).object(), "modules").toObject();
    for (auto it = modules.begin(); it != modules.end(); ++it) {
        if (!only.isEmpty() && it.key().toUtf8() != only)
            continue;
        design->modules << Design::Module();
        const QString mistake =
            readModule(it.key(), it.value().toObject(), &design->modules.last());
        if (!mistake.isEmpty()) {
            design->modules.clear();
            return mistake;
        }
    }
    return {};
}

} // namespace Synthesis
