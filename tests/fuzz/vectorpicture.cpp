#include "fuzz.h"

#include <widgets/vectorpicture.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

using Workbench::VectorPicture;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool isOffscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments); // drawings have texts
    REQUIRE(isOffscreen);
    // The library tells of each number that it cannot read.
    static const auto before = qInstallMessageHandler([](auto, const auto &, const auto &) {});
    Q_UNUSED(before)

    const auto picture = VectorPicture::read(Fuzz::bytesOf(data, size));
    if (!picture) {
        REQUIRE(!picture.reason().isEmpty());
        return 0;
    }
    const QSizeF shown = (*picture)->size();
    REQUIRE(shown.width() >= 1 && shown.width() <= 10000);
    REQUIRE(shown.height() >= 1 && shown.height() <= 10000);
    QImage paper(100, 80, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    (*picture)->paint(&painter, QRectF(10, 10, 80, 60));
    painter.end();
    return 0;
}
