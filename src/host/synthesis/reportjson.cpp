#include "reportjson.h"

#include "flow/tools.h"

#include <QJsonArray>

namespace Synthesis
{

namespace
{

// An object of one value, entry by entry: the same functions write and read it, so that the two
// cannot differ.
class Writer
{
public:
    QJsonObject object;

    template <class Type>
    void entry(const char *key, const Type &value)
    {
        object.insert(QLatin1String(key), value);
    }
    void entry(const char *key, const qint64 &value)
    {
        object.insert(QLatin1String(key), double(value));
    }
    void entry(const char *key, const QStringList &value)
    {
        object.insert(QLatin1String(key), QJsonArray::fromStringList(value));
    }
    template <class Type, class Describe>
    void list(const char *key, const QList<Type> &values, const Describe &describe)
    {
        QJsonArray array;
        for (const Type &value : values) {
            Writer inner;
            Type copy = value;
            describe(inner, copy);
            array.append(inner.object);
        }
        object.insert(QLatin1String(key), array);
    }
};

class Reader
{
public:
    const QJsonObject object;

    void entry(const char *key, QString &value) const { value = at(key).toString(); }
    void entry(const char *key, bool &value) const { value = at(key).toBool(); }
    void entry(const char *key, int &value) const { value = at(key).toInt(); }
    void entry(const char *key, qint64 &value) const { value = qint64(at(key).toDouble()); }
    void entry(const char *key, QStringList &value) const
    {
        value.clear();
        const QJsonArray array = at(key).toArray();
        for (const QJsonValue &text : array)
            value.append(text.toString());
    }
    template <class Type, class Describe>
    void list(const char *key, QList<Type> &values, const Describe &describe) const
    {
        values.clear();
        const QJsonArray array = at(key).toArray();
        for (const QJsonValue &element : array) {
            Reader inner{element.toObject()};
            Type value;
            describe(inner, value);
            values.append(value);
        }
    }

private:
    QJsonValue at(const char *key) const { return object.value(QLatin1String(key)); }
};

struct DeviceTexts {
    QString device;
    QString deviceN;
    QString version;
    QString package;
    QString speed;
    QString partNumber;
};

template <class Archive>
void describe(Archive &archive, DeviceTexts &device)
{
    archive.entry("device", device.device);
    archive.entry("deviceN", device.deviceN);
    archive.entry("version", device.version);
    archive.entry("package", device.package);
    archive.entry("speed", device.speed);
    archive.entry("partNumber", device.partNumber);
}

template <class Archive>
void describe(Archive &archive, RunReport &report)
{
    archive.entry("ip", report.job.ipName);
    archive.entry("target", report.job.targetName);
    archive.entry("outputDir", report.job.outputDir);
    archive.entry("exitCode", report.exitCode);
    archive.entry("cancelled", report.cancelled);
    archive.entry("milliseconds", report.milliseconds);
    archive.entry("summary", report.summary);
    archive.list("messages", report.messages, [](auto &inner, Message &message) {
        bool isError = message.severity == Message::Error;
        inner.entry("error", isError);
        message.severity = isError ? Message::Error : Message::Warning;
        inner.entry("file", message.file);
        inner.entry("line", message.line);
        inner.entry("text", message.text);
        inner.entry("count", message.count);
    });
    archive.list("cells", report.cells, [](auto &inner, CellCount &cell) {
        inner.entry("cell", cell.cell);
        inner.entry("count", cell.count);
        inner.entry("blackBox", cell.isBlackBox);
    });
    archive.list("resources", report.resources, [](auto &inner, ResourceUse &use) {
        inner.entry("resource", use.resource);
        inner.entry("used", use.used);
        inner.entry("available", use.available);
    });
    archive.list("ports", report.ports, [](auto &inner, ReportPort &port) {
        inner.entry("name", port.name);
        inner.entry("direction", port.direction);
        inner.entry("msb", port.msb);
        inner.entry("lsb", port.lsb);
        inner.entry("vector", port.isVector);
    });
    archive.entry("files", report.files);
    archive.entry("log", report.logFile);
}

} // namespace

QJsonObject toJson(const RunReport &report)
{
    Writer writer;
    RunReport copy = report;
    describe(writer, copy);
    writer.entry("tool", int(report.tool));
    writer.entry("vhdl", report.job.language() == Language::Vhdl);
    const DEV::DeviceArg &device = report.job.device;
    DeviceTexts texts{device.device(),  device.deviceN(), device.deviceNVersion(),
                      device.package(), device.speed(),   device.partNumber()};
    Writer inner;
    describe(inner, texts);
    writer.object.insert(QLatin1String("device"), inner.object);
    return writer.object;
}

bool fromJson(const QJsonObject &object, RunReport *report)
{
    if (!object.value(QLatin1String("summary")).isString() ||
        !object.value(QLatin1String("exitCode")).isDouble())
        return false;
    const Reader reader{object};
    describe(reader, *report);
    int tool = 0;
    bool vhdl = false;
    reader.entry("tool", tool);
    reader.entry("vhdl", vhdl);
    report->tool = toolOf(tool);
    report->job.options = {{QStringLiteral("write_vhdl"), vhdl}};
    DeviceTexts texts;
    const Reader inner{object.value(QLatin1String("device")).toObject()};
    describe(inner, texts);
    report->job.device = DEV::DeviceArg(texts.device, texts.deviceN, texts.version, texts.package,
                                        texts.speed, texts.partNumber);
    return true;
}

} // namespace Synthesis
