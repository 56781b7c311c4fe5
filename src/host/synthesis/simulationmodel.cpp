#include "simulationmodel.h"

#include "netlist/languages.h"
#include "netlist/library.h"
#include "netlist/verilogoutputs.h"
#include "netlist/verilogscan.h"
#include "tr.h"

#include <utils/fileutils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Synthesis
{

namespace
{

int fail(QString *message, const QString &text)
{
    if (message)
        *message = text;
    return 1;
}

} // namespace

QString primitiveLibrary(Language language)
{
    // The build tree and an installation are laid out alike.
    const QString path = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                         QLatin1String("/../share/tarvo/primitives/") +
                                         QLatin1String(languageRow(language).primitives));
    return QFileInfo(path).isFile() ? path : QString();
}

int writeSimulationModel(const QString &netlist, const QString &destination, QString *message)
{
    using Utils::FileUtils;

    QByteArray text;
    QString error;
    if (!FileUtils::readFile(netlist, &text, &error))
        return fail(message, error);

    const QString shown = QDir::toNativeSeparators(netlist);
    const VerilogOutline outline = scanVerilog(text);
    if (outline.modules.isEmpty() || !outline.complete)
        return fail(message, Tr::tr("\"%1\" is not a complete Verilog netlist.").arg(shown));

    QStringList unknown;
    const QMap<QByteArray, int> instances = outline.instances();
    for (auto it = instances.begin(); it != instances.end(); ++it) {
        if (!outline.defines(it.key()) && Library::model(it.key()).isEmpty())
            unknown << QString::fromUtf8('"' + it.key() + '"');
    }
    if (!unknown.isEmpty())
        return fail(
            message,
            Tr::tr("The netlist \"%1\" instantiates %2, for which there is no simulation model.")
                .arg(shown, unknown.join(QLatin1String(", "))));

    if (!text.endsWith('\n'))
        text += '\n';
    if (!text.contains("`timescale"))
        text.prepend(verilogTimeScale());
    text = withVerilogStandIns(text);
    const QByteArrayList known = Library::primitives();
    for (const QByteArray &primitive : known) {
        if (instances.contains(primitive) && !outline.defines(primitive))
            text += '\n' + Library::model(primitive);
    }
    if (!FileUtils::writeFile(destination, text, &error))
        return fail(message, error);
    return 0;
}

} // namespace Synthesis
