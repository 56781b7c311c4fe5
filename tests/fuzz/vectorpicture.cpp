#include "display.h"

#include <widgets/vectorpicture.h>

#include <QImage>
#include <QPainter>

using Workbench::VectorPicture;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Fuzz::needDisplay();

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
