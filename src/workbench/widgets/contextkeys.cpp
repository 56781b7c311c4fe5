#include "contextkeys.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace Workbench
{

namespace
{

class ContextKeys : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isMenuKey = key->key() == Qt::Key_Menu ||
                               (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier);
        if (!isMenuKey)
            return false;
        auto *widget = static_cast<QWidget *>(watched);
        // Of a list, what is selected in it.
        const QPoint place = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, place, widget->mapToGlobal(place),
                               key->modifiers());
        QCoreApplication::sendEvent(widget, &menu);
        return true;
    }
};

} // namespace

void openContextMenuByKeys(QWidget *widget)
{
    widget->installEventFilter(new ContextKeys(widget));
}

} // namespace Workbench
