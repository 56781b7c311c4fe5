#include "workflow.h"

#include "config/latin1literal.h"

namespace TARVOORIXM1
{

namespace
{

// For a POSIX shell; what follows are the command's own arguments.
QString programCall()
{
    QString call = "\"${"_l1 + QLatin1String(programVariable) + ":-orixm1}\""_l1;
    const auto option = [&call](QLatin1String name, QLatin1String variable) {
        call += " ${"_l1 + variable + ":+--"_l1 + name + " \"$"_l1 + variable + "\"}"_l1;
    };
    option("data"_l1, QLatin1String(dataVariable));
    option("devices"_l1, QLatin1String(devicesVariable));
    return call + " sweep --out ."_l1;
}

QString inNinja(QString text)
{
    return text.replace("$"_l1, "$$"_l1).replace(" "_l1, "$ "_l1).replace(":"_l1, "$:"_l1);
}

// A text of Python in which Snakemake puts values for names in braces.
QString inSnakemake(QString text)
{
    return text.replace("\\"_l1, "\\\\"_l1)
        .replace("'"_l1, "\\'"_l1)
        .replace("{"_l1, "{{"_l1)
        .replace("}"_l1, "}}"_l1);
}

} // namespace

QByteArray ninjaFile(const QStringList &points, const QString &configuration)
{
    QString text = "# Made by \"orixm1 sweep\", which runs it; made anew with each run.\n"
                   "ninja_required_version = 1.8\n\n"
                   "rule point\n"
                   "  command = exec "_l1 +
                   programCall().replace("$"_l1, "$$"_l1) +
                   " --point $point\n"
                   "  description = $point\n"_l1;
    for (const QString &point : points) {
        const QString folder = SweepFile::points + u'/' + point + u'/';
        text += "\nbuild "_l1 + inNinja(folder + SweepFile::result) + ": point "_l1 +
                inNinja(folder + configuration) + "\n  point = "_l1 + point + u'\n';
    }
    return text.toUtf8();
}

QByteArray snakefile(const QString &configuration)
{
    const QString folder = SweepFile::points + "/{name}/"_l1;
    const QString result = folder + SweepFile::result;
    const QString call = inSnakemake(programCall());
    const QString table = u'\'' + call + " --table'"_l1;
    const QString text =
        "# Made by \"orixm1 sweep --snakemake\"; made anew with each run of that.\n"
        "# Start it in this folder: snakemake --cores 4 --keep-going, or with the profile of a "
        "site.\n"
        "# ORIXM1 names the program if it is not on PATH, ORIXM1_DATA and ORIXM1_DEVICES its "
        "folders.\n"
        "import json\n\n"
        "with open('"_l1 +
        SweepFile::index +
        "', encoding='utf-8') as index:\n"
        "    POINTS = [point['point'] for point in json.load(index)['points'] if 'reason' not in "
        "point]\n\n\n"
        "wildcard_constraints:\n    name='[^/]+'\n\n\n"
        "localrules: all\n\n\n"
        "rule all:\n    input: expand('"_l1 +
        result +
        "', name=POINTS)\n\n\n"
        "rule point:\n    input: '"_l1 +
        folder + inSnakemake(configuration) + "'\n    output: '"_l1 + result +
        "'\n    threads: 1\n    shell: '"_l1 + call +
        " --point {wildcards.name}'\n\n\n"
        "onsuccess:\n    shell("_l1 +
        table + ")\n\n\nonerror:\n    shell("_l1 + table.chopped(1) + " || true')\n"_l1;
    return text.toUtf8();
}

} // namespace TARVOORIXM1
