// Counts allocations per frame while the block diagram is panned and zoomed, against a plain
// graphics view of as many stock items, and memory that stays allocated; then the allocations of
// the items' own painting, which must be none but for dashed hairlines, whose pattern Qt's
// rasterizer copies each time. bench_frames [FRAMES]

#include "barescene.h"

#include <diagram/ipview.h>
#include <diagram/lineitem.h>

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QScrollBar>
#include <QStyleOptionGraphicsItem>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <malloc.h>

namespace
{
long allocations = 0;
bool counting = false;
} // namespace

// Every allocation of the process passes here.
extern "C" void *__libc_malloc(size_t size);
extern "C" void *__libc_realloc(void *block, size_t size);
extern "C" void *malloc(size_t size)
{
    allocations += counting;
    return __libc_malloc(size);
}
extern "C" void *realloc(void *block, size_t size)
{
    allocations += counting;
    return __libc_realloc(block, size);
}

namespace
{

struct Result {
    double allocationsPerFrame;
    double microsecondsPerFrame;
    long bytesKept;
};

// One frame: a step, and everything that it makes the view paint.
Result measure(int frames, const std::function<void(int)> &step)
{
    for (int i = 0; i < 200; ++i) { // fills caches of glyphs and the like
        step(i);
        QCoreApplication::processEvents();
    }
    const long before = long(mallinfo2().uordblks);
    allocations = 0;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < frames; ++i) {
        counting = true;
        step(i);
        QCoreApplication::processEvents();
        counting = false;
    }
    const std::chrono::duration<double, std::micro> spent =
        std::chrono::steady_clock::now() - start;
    return {double(allocations) / frames, spent.count() / frames,
            long(mallinfo2().uordblks) - before};
}

Result pan(QGraphicsView &view, int frames)
{
    view.setTransform(QTransform::fromScale(2, 2));
    return measure(frames, [&view](int i) {
        view.horizontalScrollBar()->setValue(100 + (i % 200) * 3);
        view.verticalScrollBar()->setValue(50 + (i % 50) * 2);
    });
}

Result zoom(QGraphicsView &view, int frames)
{
    return measure(frames, [&view](int i) {
        const qreal scale = 0.5 + (i % 20) * 0.1;
        view.setTransform(QTransform::fromScale(scale, scale));
    });
}

void print(const char *what, const Result &plain, const Result &diagram)
{
    std::printf("%s: plain view %.0f allocations, %.0f us a frame; diagram %.0f, %.0f us\n", what,
                plain.allocationsPerFrame, plain.microsecondsPerFrame, diagram.allocationsPerFrame,
                diagram.microsecondsPerFrame);
    std::printf("%s: ratio of allocations %.2f, of time %.2f; bytes kept %ld\n", what,
                diagram.allocationsPerFrame / plain.allocationsPerFrame,
                diagram.microsecondsPerFrame / plain.microsecondsPerFrame, diagram.bytesKept);
}

bool isDashed(const QGraphicsItem *item)
{
    const auto *line = qgraphicsitem_cast<const TARVOORIXM1::LineItem *>(item);
    return line && line->isDashed();
}

// Allocations that painting all dashed lines of the scene once makes, or all other items, at a
// scale painted before.
long ownAllocations(const QGraphicsView &view, qreal scale, bool dashed)
{
    QImage image(825, 550, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setFont(view.viewport()->font());
    QStyleOptionGraphicsItem option;
    const QList<QGraphicsItem *> items = view.scene()->items();
    const auto paintAll = [&] {
        for (QGraphicsItem *item : items) {
            if (isDashed(item) != dashed)
                continue;
            const QPointF at = item->scenePos();
            painter.setTransform(QTransform(scale, 0, 0, scale, scale * at.x(), scale * at.y()));
            item->paint(&painter, &option, nullptr);
        }
    };
    paintAll();
    paintAll();
    allocations = 0;
    counting = true;
    paintAll();
    counting = false;
    return allocations;
}

} // namespace

int main(int argc, char *argv[])
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    const int frames = argc > 1 ? std::atoi(argv[1]) : 1000;

    QGraphicsScene scene;
    fillBareScene(scene);
    QGraphicsView plain(&scene);
    plain.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    TARVOORIXM1::OptionMap options;
    TARVOORIXM1::IPView diagram(&options);
    for (QGraphicsView *view : {&plain, static_cast<QGraphicsView *>(&diagram)}) {
        view->resize(825, 550);
        view->show();
    }

    const Result plainPan = pan(plain, frames);
    const Result diagramPan = pan(diagram, frames);
    print("panning", plainPan, diagramPan);
    const Result plainZoom = zoom(plain, frames);
    const Result diagramZoom = zoom(diagram, frames);
    print("zooming", plainZoom, diagramZoom);

    long own = 0;
    for (const qreal scale : {0.5, 1.0, 1.5, 2.0}) {
        const long made = ownAllocations(diagram, scale, false);
        std::printf("the items' painting at %.1f: %ld allocations, dashed lines %ld\n", scale, made,
                    ownAllocations(diagram, scale, true));
        own += made;
    }
    return own == 0 ? 0 : 1;
}
