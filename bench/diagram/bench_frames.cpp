// Counts allocations per frame while the block diagram is panned and zoomed, against a plain
// graphics view of as many stock items, and memory that stays allocated. bench_frames [FRAMES]

#include "barescene.h"

#include <diagram/ipview.h>

#include <QApplication>
#include <QGraphicsView>
#include <QScrollBar>

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
    return 0;
}
