// The least that a Qt program needs to show a dialog with a view of 60 items; ends at its first
// paint.

#include "barescene.h"
#include "firstpaint.h"

#include <QDialog>
#include <QVBoxLayout>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    FirstPaint watcher;
    application.installEventFilter(&watcher);

    QGraphicsScene scene;
    fillBareScene(scene);
    QDialog dialog;
    auto *view = new QGraphicsView(&scene);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(view);
    dialog.resize(847, 755);
    return dialog.exec();
}
