#include "commandprogram.h"

#include <QDir>
#include <QFileInfo>

namespace TARVOORIXM1
{

namespace
{

// Folders between an installation and the plug-in's data: PREFIX/share/tarvo/IP, or beside the
// plug-in in PREFIX/lib/ARCHITECTURE/tarvo/plugins/IP.
constexpr int maximumDepth = 5;

} // namespace

QString commandProgram(const QString &dataPath)
{
    QDir folder(dataPath);
    for (int depth = 0; depth <= maximumDepth; ++depth) {
        const QFileInfo program(folder.absoluteFilePath("bin/"_l1 + commandProgramName));
        if (program.isFile() && program.isExecutable())
            return QDir::cleanPath(program.absoluteFilePath());
        if (!folder.cdUp())
            break;
    }
    return {};
}

} // namespace TARVOORIXM1
