#include "components.h"

#include "tr.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

static void initResource()
{
    Q_INIT_RESOURCE(components);
}

namespace Workbench
{

namespace
{

// The purposes that the file names, to be translated.
constexpr const char *purposes[] = {
    QT_TRANSLATE_NOOP("Workbench", "plug-in mechanism, and everything on screen"),
    QT_TRANSLATE_NOOP("Workbench", "figures, diagram and pictures of documents"),
    QT_TRANSLATE_NOOP("Workbench", "the editor's colours"),
    QT_TRANSLATE_NOOP("Workbench", "arguments and help texts of the programs"),
    QT_TRANSLATE_NOOP("Workbench", "digests of files in the command line"),
    QT_TRANSLATE_NOOP("Workbench", "C library, mathematics, dynamic loading"),
    QT_TRANSLATE_NOOP("Workbench", "C++ library"),
    QT_TRANSLATE_NOOP("Workbench", "the processor's instructions in simulation"),
    QT_TRANSLATE_NOOP("Workbench", "programs in ELF form for the simulated processor"),
    QT_TRANSLATE_NOOP("Workbench", "stacks of simulated instructions that wait for the bus"),
    QT_TRANSLATE_NOOP("Workbench", "programs in ELF form in command line and plug-in"),
    QT_TRANSLATE_NOOP("Workbench", "lines of C of a program's addresses"),
    QT_TRANSLATE_NOOP("Workbench", "synthesis and proofs"),
    QT_TRANSLATE_NOOP("Workbench", "simulation; it loads the simulation component"),
    QT_TRANSLATE_NOOP("Workbench", "simulation of what it compiles"),
    QT_TRANSLATE_NOOP("Workbench", "proofs of VHDL netlists"),
    QT_TRANSLATE_NOOP("Workbench", "jobs of a sweep, and building"),
    QT_TRANSLATE_NOOP("Workbench", "shows waves"),
    QT_TRANSLATE_NOOP("Workbench", "compiles programs for the simulated processor"),
    QT_TRANSLATE_NOOP("Workbench", "C library of programs for the processor"),
    QT_TRANSLATE_NOOP("Workbench", "debugs programs in simulation; the user starts it"),
};

QString shownPurpose(const QString &purpose)
{
    for (const char *known : purposes) {
        if (purpose == QLatin1String(known))
            return Tr::tr(known);
    }
    return purpose;
}

} // namespace

QVector<Component> components()
{
    initResource();
    QFile file(QStringLiteral(":/workbench/components.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Component> result;
    const QJsonArray rows = QJsonDocument::fromJson(file.readAll())
                                .object()
                                .value(QLatin1String("components"))
                                .toArray();
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        const auto text = [&row](const char *key) { return row[QLatin1String(key)].toString(); };
        const QString use = text("use");
        if (use == QLatin1String("build") || use == QLatin1String("test"))
            continue;
        result.append({text("name"), shownPurpose(text("purpose")), text("licence"),
                       text("package"), text("program"), text("versionArgument")});
    }
    return result;
}

} // namespace Workbench
