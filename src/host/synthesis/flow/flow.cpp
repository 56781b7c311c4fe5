#include "flow.h"

#include "netlist/languages.h"
#include "tr.h"

#include <utils/fileutils.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace Synthesis
{

Flow::Flow(const ToolRow &tool, const Job &job)
    : m_tool(tool)
    , m_job(job)
{
}

QString Flow::prepare(const std::shared_ptr<Utils::FolderLock> &lock)
{
    static const QRegularExpression identifier(QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_$]*\\z"));

    if (m_job.targetName.isEmpty() || m_job.targetName.contains(u'/'))
        return Tr::tr("\"%1\" cannot be the name of the output files.").arg(m_job.targetName);
    if (!identifier.match(topModule()).hasMatch())
        return Tr::tr("\"%1\" cannot be the name of the top module.").arg(topModule());
    if (QString error = m_scratch.create(m_job.outputDir, lock); !error.isEmpty())
        return error;
    const QStringList files = m_job.options.value(QStringLiteral("source_files")).toStringList();
    if (QString error = m_sources.prepare(files, m_scratch); !error.isEmpty())
        return error;
    return prepareTool();
}

QString Flow::commandDone(int)
{
    return {};
}

QString Flow::explained(const QString &) const
{
    return {};
}

QString Flow::option(const char *key) const
{
    return m_job.options.value(QLatin1String(key)).toString();
}

QString Flow::templatePath() const
{
    return outputPath(languageRow(language()).templateSuffix);
}

QByteArray Flow::instantiationTemplate(const DesignPorts &design) const
{
    const QByteArray top = topModule().toUtf8();
    return languageRow(language()).instanceTemplate(top, design.ports(top), design.note(top));
}

QString Flow::outputPath(const QString &suffix) const
{
    return m_scratch.outputDir() + u'/' + m_job.targetName + suffix;
}

QString Flow::addCommand(const ToolRow &tool, const QStringList &arguments)
{
    const QString name = QLatin1String(tool.name);
    const QString program = QLatin1String(tool.program);
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return Tr::tr("%1 is not installed: no program \"%2\" was found on PATH.")
            .arg(name, program);
    m_commands << Command{name, QFileInfo(path).absoluteFilePath(), arguments, tool.usersHome};
    return {};
}

QString Flow::writeScratch(const QString &file, const QByteArray &bytes) const
{
    QString error;
    Utils::FileUtils::writeFile(m_scratch.absolute(file), bytes, &error);
    return error;
}

QString Flow::readResult(const QString &file, const QString &shown, QByteArray *bytes) const
{
    const QString path = m_scratch.absolute(file);
    if (!QFileInfo(path).isFile())
        return notWritten(m_commands.last().name, shown);
    QString error;
    Utils::FileUtils::readFile(path, bytes, &error);
    return error;
}

QString Flow::notWritten(const QString &tool, const QString &path)
{
    return Tr::tr("%1 reported success but did not write \"%2\".")
        .arg(tool, QDir::toNativeSeparators(path));
}

QString Flow::notComplete(const QString &tool, const QString &path)
{
    return Tr::tr("%1 reported success but what it wrote for \"%2\" is not complete.")
        .arg(tool, QDir::toNativeSeparators(path));
}

QString Flow::unusable(const QString &path, const QString &reason) const
{
    return Tr::tr("What %1 wrote for \"%2\" cannot be used: %3.")
        .arg(m_commands.last().name, QDir::toNativeSeparators(path), reason);
}

QByteArray Flow::title(const char *what) const
{
    QStringList words{QLatin1String(what), topModule()};
    const QString ip = QString(m_job.ipName + u' ' + option("ip_version")).trimmed();
    return (words.join(u' ') +
            (ip.isEmpty() ? QString() : QString(QLatin1String(" (") + ip + u')')))
        .toUtf8();
}

} // namespace Synthesis
