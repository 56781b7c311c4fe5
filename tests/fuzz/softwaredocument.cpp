#include "fuzz.h"

#include <software/softwaredocument.h>

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

using namespace Workbench;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool isOffscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments); // documents have fonts
    REQUIRE(isOffscreen);
    // The library tells of each number that it cannot read.
    static const auto before = qInstallMessageHandler([](auto, const auto &, const auto &) {});
    Q_UNUSED(before)

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
