#include "icarus.h"

#include "buildcache.h"
#include "simulation.h"

#include <utils/boundedfile.h>

#include <QDir>
#include <QFileInfo>

namespace Cli
{

namespace
{

constexpr qint64 mostText = 16 << 20; // bytes of a file
constexpr int mostFiles = 500;

const QString compiledName = QStringLiteral("board.vvp");

// The texts of a folder that sources may include, with their names; false if they are too many, or
// too long, to be looked at each time.
bool addTexts(const QString &folder, QByteArray *key)
{
    const QFileInfoList files = QDir(folder).entryInfoList(
        {QStringLiteral("*.v"), QStringLiteral("*.vh")}, QDir::Files, QDir::Name);
    if (files.size() > mostFiles)
        return false;
    for (const QFileInfo &file : files) {
        const auto text = Utils::readBoundedFile(file.filePath(), mostText);
        if (!text)
            return false;
        *key += file.fileName().toUtf8() + '\0' + QByteArray::number(text->size()) + '\0' + *text;
    }
    return true;
}

} // namespace

Utils::Result<void> Icarus::findTools()
{
    const auto compiler = Simulation::findTool("iverilog", "iverilog");
    if (!compiler)
        return Utils::Failure{compiler.reason()};
    const auto player = Simulation::findTool("vvp", "iverilog");
    if (!player)
        return Utils::Failure{player.reason()};
    m_compiler = *compiler;
    m_player = *player;
    return {};
}

Utils::Result<void> Icarus::build(Simulation &simulation, const Design &design)
{
    m_hasWaves = design.hasWaves;
    const auto staged = simulation.stage(design);
    if (!staged)
        return Utils::Failure{staged.reason()};
    QStringList arguments = {QStringLiteral("-g2012"), QStringLiteral("-s"),
                             QStringLiteral("board"), QStringLiteral("-o"), compiledName};
    for (const QString &folder : staged->includeFolders)
        arguments.append(QLatin1String("-I") + folder);
    for (const QString &define : design.defines)
        arguments.append(QLatin1String("-D") + define);
    arguments += staged->sources;

    const BuildCache cache(BuildCache::usersFolder());
    const QByteArray key = keyOf(design, arguments);
    if (!key.isEmpty()) {
        const QByteArray compiled = cache.find(key);
        if (!compiled.isEmpty())
            return simulation.write(compiledName, compiled);
    }
    QString said;
    const auto result = simulation.runTool(
        {QStringLiteral("Icarus Verilog"), m_compiler, arguments}, [&said](const QString &line) {
            if (said.size() < 1 << 16)
                said += line + u'\n';
        });
    if (!result)
        return Utils::Failure{simulation.wasCancelled() ? QString() : said + result.reason()};
    if (!key.isEmpty()) {
        if (const auto compiled =
                Utils::readBoundedFile(simulation.folder() + u'/' + compiledName, mostText))
            cache.keep(key, *compiled);
    }
    return {};
}

// All that the compiler reads; empty: that is not known, since a board of the user's may include
// files from anywhere. `arguments`: the compiler's.
QByteArray Icarus::keyOf(const Design &design, const QStringList &arguments) const
{
    if (design.hasForeignBoard)
        return {};
    QByteArray key = "icarus " + BuildCache::stampOf(m_compiler) + arguments.join(u'\n').toUtf8() +
                     '\n' + design.board;
    QStringList folders = design.includeFolders;
    for (const QString &source : design.sources)
        folders.append(QFileInfo(source).absolutePath());
    folders.append(design.modelFolder);
    folders.removeDuplicates();
    for (const QString &folder : qAsConst(folders)) {
        if (!addTexts(folder, &key))
            return {};
    }
    return key;
}

Tool Icarus::run(const QStringList &plusArguments) const
{
    QStringList arguments = {QStringLiteral("-n"), QStringLiteral("-i"),
                             QStringLiteral("-M"), QStringLiteral("model"),
                             QStringLiteral("-m"), QStringLiteral("cortexm1core"),
                             compiledName};
    if (m_hasWaves)
        arguments.append(QStringLiteral("-fst"));
    for (const QString &argument : plusArguments)
        arguments.append(u'+' + argument);
    return {QStringLiteral("The simulation"), m_player, arguments};
}

} // namespace Cli
