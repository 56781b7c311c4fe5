#include "exportsoftware.h"

#include "config/latin1literal.h"
#include "config/nameprefix.h"
#include "configuration.h"
#include "export/format.h"
#include "export/prefixed.h"

namespace TARVOORIXM1
{

namespace
{

QVariantMap answer(const QString &error, const QVariantList &files = {},
                   const QString &manifest = exportManifest)
{
    return {{QStringLiteral("error"), error},
            {QStringLiteral("files"), files},
            {QStringLiteral("manifest"), manifest}};
}

// The formats with these names, in the table's order; those that are not known in `*unknown`.
QVector<const Format *> chosen(const QStringList &names, QStringList *unknown)
{
    QVector<const Format *> result;
    for (const Format &format : formats()) {
        if (names.isEmpty() || names.contains(format.name))
            result.append(&format);
    }
    for (const QString &name : names) {
        if (!findFormat(name))
            unknown->append(u'"' + name + u'"');
    }
    return result;
}

} // namespace

QVariantList softwareFormats()
{
    QVariantList list;
    for (const Format &format : formats())
        list.append(QVariantMap{{QStringLiteral("name"), QString(format.name)},
                                {QStringLiteral("title"), QString(format.title)},
                                {QStringLiteral("purpose"), QString(format.purpose)},
                                {QStringLiteral("standard"), QString(format.standard)},
                                {QStringLiteral("files"), QString(format.file)},
                                {QStringLiteral("checkedBy"), QString(format.checkedBy)}});
    return list;
}

QVariantMap exportSoftware(const QString &ipcFile, const QStringList &formats, const QString &ipId,
                           const QString &dataPath, const DEV::DeviceDb &devices)
{
    QStringList unknown;
    const QVector<const Format *> wanted = chosen(formats, &unknown);
    if (!unknown.isEmpty())
        return answer("There is no format "_l1 + unknown.join(", "_l1) + u'.');
    const Utils::Result<SystemMap> map = readSystem(ipcFile, ipId, dataPath, devices);
    if (!map)
        return answer(map.reason());
    const SystemMap own = prefixed(*map, prefixOf(map->options));
    QVariantList files;
    for (const Format *format : wanted) {
        const QVector<ExportedFile> made = format->files(own);
        for (const ExportedFile &file : made)
            files.append(QVariantMap{{QStringLiteral("path"), file.path},
                                     {QStringLiteral("format"), QString(format->name)},
                                     {QStringLiteral("bytes"), file.bytes}});
    }
    return answer(QString(), files, exportManifestOf(own));
}

} // namespace TARVOORIXM1
