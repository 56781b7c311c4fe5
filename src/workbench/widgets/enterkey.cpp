#include "enterkey.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

namespace Workbench
{

bool pressFocusedButton(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QPointer<QAbstractButton> button =
        qobject_cast<QAbstractButton *>(QApplication::focusWidget());
    if (!isEnter || !button || (event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    event->accept();
    if (event->isAutoRepeat())
        return true;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        if (button)
            QCoreApplication::sendEvent(button, &space);
    }
    return true;
}

} // namespace Workbench
