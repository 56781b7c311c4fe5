#include "focusforward.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPointer>
#include <QWidget>

namespace Workbench
{

namespace
{

class Forwarder : public QObject
{
public:
    Forwarder(QWidget *outer, QWidget *inner)
        : QObject(outer)
        , m_inner(inner)
    {
        outer->setFocusPolicy(Qt::ClickFocus);
        outer->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn && m_inner)
            m_inner->setFocus(static_cast<QFocusEvent *>(event)->reason());
        return QObject::eventFilter(watched, event);
    }

private:
    QPointer<QWidget> m_inner;
};

} // namespace

void forwardFocus(QWidget *outer, QWidget *inner)
{
    new Forwarder(outer, inner);
}

} // namespace Workbench
