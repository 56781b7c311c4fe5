#include "generatepreview.h"

#include "generatecheck.h"
#include "output.h"

#include <preview/previewforms.h>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

QJsonObject objectOf(const PreviewFile &file, bool withDiff)
{
    QJsonObject object{{QStringLiteral("path"), file.path},
                       {QStringLiteral("state"), stateName(file.state)},
                       {QStringLiteral("madeByTool"), file.isTools},
                       {QStringLiteral("notes"), QJsonArray::fromStringList(file.notes)}};
    if (withDiff) {
        if (const QStringList lines = diffOf(file); !lines.isEmpty())
            object.insert(QStringLiteral("difference"), QJsonArray::fromStringList(lines));
    }
    return object;
}

} // namespace

int printPreview(const Preview &preview, const QString &folder, const GenerateArguments &arguments)
{
    if (!preview.error.isEmpty()) {
        printProblem({preview.error});
        return Failed;
    }
    if (arguments.json) {
        QJsonArray files;
        for (const PreviewFile &file : preview.files)
            files.append(objectOf(file, arguments.diff));
        QJsonArray differences;
        for (const PreviewDifference &difference : preview.differences)
            differences.append(QJsonObject{{QStringLiteral("kind"), QString(difference.kind)},
                                           {QStringLiteral("text"), difference.text}});
        printJson({{QStringLiteral("folder"), folder},
                   {QStringLiteral("changes"), !preview.changesNothing()},
                   {QStringLiteral("files"), files},
                   {QStringLiteral("differences"), differences},
                   {QStringLiteral("notes"), QJsonArray::fromStringList(preview.notes)}});
    } else {
        const QStringList lines = previewLines(preview, arguments.diff);
        for (const QString &line : lines)
            printLine(line);
    }
    return preview.changesNothing() ? Done : Failed;
}

} // namespace Cli
