#include "ipchead.h"

#include "tr.h"

#include <core/idecore.h>
#include <dev/devicedb.h>

#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace Workbench
{

namespace
{

constexpr qint64 sizeLimit = 4 << 20;

// A value without its quotation marks and escapes.
QString plain(QByteArray value)
{
    value = value.trimmed();
    if (value.size() >= 2 && value.startsWith('"') && value.endsWith('"'))
        value = value.mid(1, value.size() - 2);
    QString text;
    for (int i = 0; i < value.size(); ++i) {
        if (value.at(i) != '\\' || i + 1 == value.size()) {
            text += QLatin1Char(value.at(i));
            continue;
        }
        ++i;
        if (value.at(i) != 'x') {
            text += QLatin1Char(value.at(i));
            continue;
        }
        int digits = 0;
        while (digits < 4 && i + 1 + digits < value.size() &&
               isxdigit(uchar(value.at(i + 1 + digits))))
            ++digits;
        text += QChar(value.mid(i + 1, digits).toUShort(nullptr, 16));
        i += digits;
    }
    return text;
}

} // namespace

IpcHead IpcHead::of(const QByteArray &text)
{
    QHash<QByteArray, QString> values; // "section/key"
    QByteArray section = "General";
    int start = text.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    while (start < text.size()) {
        const int end = text.indexOf('\n', start);
        const QByteArray line = text.mid(start, (end < 0 ? text.size() : end) - start).trimmed();
        start = end < 0 ? text.size() : end + 1;
        if (line.startsWith('[')) {
            section = line.mid(1, line.indexOf(']') - 1);
            continue;
        }
        const int equals = line.indexOf('=');
        if (equals > 0 && (section == "General" || section == "device"))
            values.insert(section + '/' + line.left(equals).trimmed(), plain(line.mid(equals + 1)));
    }
    IpcHead head;
    head.type = values.value("General/type");
    const DEV::DeviceDb &devices = *Core::IdeCore::deviceDataBase();
    if (values.contains("General/target_device")) {
        head.deviceName = values.value("General/target_device");
        head.device = devices.findDevice(head.deviceName);
        return head;
    }
    DEV::ChipFilter filter;
    filter.id = values.value("device/id");
    filter.package = values.value("device/package");
    filter.speed = values.value("device/speed");
    if (filter.id.isEmpty())
        return head;
    QStringList names{filter.id};
    for (const QString &part : {filter.package, filter.speed}) {
        if (!part.isEmpty())
            names.append(part);
    }
    head.deviceName = names.join(QLatin1String(", "));
    head.device = devices.filterDevice(filter).value(0);
    return head;
}

IpcHead IpcHead::read(const QString &path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.size() > sizeLimit || !file.open(QIODevice::ReadOnly))
        return {};
    return of(file.read(sizeLimit));
}

QString IpcHead::words(const DEV::DeviceArg &device)
{
    return QStringList{device.device(), device.package(), device.speed()}.join(QLatin1String(", "));
}

QString IpcHead::deviceWords() const
{
    return device.isNull() ? deviceName : words(device);
}

QString IpcHead::difference(const DEV::DeviceArg &project) const
{
    if (hasUnknownDevice())
        return Tr::tr("for the unknown device %1").arg(deviceName);
    if (device.isNull() || project.isNull() || device.id() == project.id())
        return {};
    // The whole names only where the first parts are the same.
    return device.device() == project.device()
               ? Tr::tr("for %1; project: %2").arg(words(device), words(project))
               : Tr::tr("for %1; project: %2").arg(device.device(), project.device());
}

QString IpcHead::differenceSentence(const DEV::DeviceArg &project) const
{
    if (hasUnknownDevice())
        return Tr::
            tr("This IP is made for the device \"%1\", which the device database does not know.")
                .arg(deviceName);
    if (device.isNull() || project.isNull() || device.id() == project.id())
        return {};
    return Tr::tr("This IP is made for the device %1, and the project is for %2.")
        .arg(words(device), words(project));
}

} // namespace Workbench
