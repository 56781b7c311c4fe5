#include "display.h"

#include <software/softwaredocument.h>

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>

using namespace Workbench;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Fuzz::needDisplay();

    const SoftwareFile file{QStringLiteral("sheet/a.html"), QStringLiteral("sheet"),
                            Fuzz::bytesOf(data, size)};
    SoftwareDocument document({file}, file.path);
    if (!document.mistake().isEmpty())
        return 0;
    document.setTextWidth(300);
    REQUIRE(document.size().height() >= 0);
    QImage paper(300, 200, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    document.drawContents(&painter, paper.rect());
    painter.end();
    return 0;
}
