#include "sourcestage.h"

#include "scratchfolder.h"
#include "tr.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace Synthesis
{

namespace
{

QString check(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    const QFileInfo info(path);
    const QString suffix = info.suffix().toLower();
    if (path.isEmpty())
        return Tr::tr("The list of source files holds an empty name.");
    if (!info.exists())
        return Tr::tr("The source file \"%1\" does not exist.").arg(shown);
    if (info.isDir())
        return Tr::tr("The source file \"%1\" is a folder.").arg(shown);
    // A tool would wait for ever for what a pipe has to say.
    if (!info.isFile())
        return Tr::tr("The source file \"%1\" is not a plain file.").arg(shown);
    if (suffix == QLatin1String("vhd") || suffix == QLatin1String("vhdl"))
        return Tr::tr("The source file \"%1\" is VHDL, which cannot be read; only Verilog can.")
            .arg(shown);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Tr::tr("The source file \"%1\" cannot be read: %2.").arg(shown, file.errorString());
    return {};
}

bool isPlain(const QString &fileName)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_][A-Za-z0-9_.-]*\\z"));
    return plain.match(fileName).hasMatch();
}

QString link(const QString &target, const QString &name)
{
    if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(name).constData()) == 0)
        return {};
    return Tr::tr("Cannot make the link \"%1\": %2.")
        .arg(QDir::toNativeSeparators(name), QString::fromLocal8Bit(std::strerror(errno)));
}

} // namespace

QString SourceStage::prepare(const QStringList &files, const ScratchFolder &scratch)
{
    if (files.isEmpty())
        return Tr::tr("There are no source files.");
    m_originalDirs = QStringList{scratch.outputDir()};
    m_includeDirs = QStringList{QStringLiteral(".")};
    QStringList folders;
    QSet<QString> seen;
    for (const QString &file : files) {
        if (QString error = check(file); !error.isEmpty())
            return error;
        const QString path = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
        if (seen.contains(path))
            continue;
        seen.insert(path);
        const QFileInfo info(path);
        int number = folders.indexOf(info.absolutePath());
        if (number < 0) {
            number = folders.size();
            folders << info.absolutePath();
            const QString name = QLatin1String("dir") + QString::number(number);
            if (QString error = link(info.absolutePath(), scratch.absolute(name)); !error.isEmpty())
                return error;
            m_realPaths.insert(ScratchFolder::relative(name), info.absolutePath());
            m_includeDirs << ScratchFolder::relative(name);
            m_originalDirs << info.absolutePath();
        }
        QString staged = ScratchFolder::relative(QLatin1String("dir") + QString::number(number) +
                                                 u'/' + info.fileName());
        if (!isPlain(info.fileName())) {
            const QString suffix = isPlain(info.suffix()) ? info.suffix() : QStringLiteral("v");
            const QString name =
                QLatin1String("file") + QString::number(m_originals.size()) + u'.' + suffix;
            if (QString error = link(path, scratch.absolute(name)); !error.isEmpty())
                return error;
            staged = ScratchFolder::relative(name);
            m_realPaths.insert(staged, path);
        }
        m_originals << path;
        m_staged << staged;
    }
    return {};
}

QString SourceStage::restored(const QString &text) const
{
    static const QRegularExpression links(
        QRegularExpression::escape(ScratchFolder::name()) +
        QLatin1String("/(dir\\d+|file\\d+\\.[A-Za-z0-9_.-]*[A-Za-z0-9_])"));
    QString result;
    int from = 0;
    auto match = links.globalMatch(text);
    while (match.hasNext()) {
        const auto found = match.next();
        const QString real = m_realPaths.value(found.captured());
        if (real.isEmpty())
            continue;
        result += text.midRef(from, found.capturedStart() - from) + real;
        from = found.capturedEnd();
    }
    return result + text.midRef(from);
}

} // namespace Synthesis
