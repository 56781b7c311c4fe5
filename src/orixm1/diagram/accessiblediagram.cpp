#include "accessiblediagram.h"

#include "config/latin1literal.h"
#include "config/tr.h"
#include "ipitem.h"
#include "ipview.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QGraphicsScene>

namespace TARVOORIXM1
{

namespace
{

// A box of the diagram. Goes with its item; without a view, as while that is being deleted, it is
// nowhere and can do nothing.
class AccessibleBox : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit AccessibleBox(IPItem *item)
        : QAccessibleObject(item)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface && isClickable()
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }

    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(view());
    }
    QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }
    QWindow *window() const override
    {
        const QAccessibleInterface *parent = this->parent();
        return parent ? parent->window() : nullptr;
    }

    QAccessible::Role role() const override
    {
        if (!isClickable())
            return QAccessible::StaticText;
        return view()->hasSwitch(item()) ? QAccessible::CheckBox : QAccessible::Button;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        const IPView *view = this->view();
        if (!view) {
            state.invalid = true;
            return state;
        }
        state.invisible = !item()->isVisible() || !view->isVisible();
        state.offscreen =
            !view->viewport()->rect().intersects(view->placeOf(item())) && !state.invisible;
        state.disabled = !view->isEnabled() || !item()->isVisible();
        if (!isClickable())
            return state;
        state.focusable = true;
        state.focused = view->hasFocus() && view->focusedBlock() == item();
        state.checkable = view->hasSwitch(item());
        state.checked = state.checkable && view->isSwitchedOn(item());
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        const IPView *view = this->view();
        switch (kind) {
        case QAccessible::Name:
            return item()->text();
        case QAccessible::Value:
            return view ? view->stateText(item()) : QString();
        case QAccessible::Description:
            return view ? view->remarkOn(item()) : QString();
        default:
            return {};
        }
    }
    void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override {}

    QRect rect() const override
    {
        const IPView *view = this->view();
        if (!view)
            return {};
        const QRect place = view->placeOf(item());
        return {view->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }

    QStringList actionNames() const override
    {
        QStringList names;
        const IPView *view = this->view();
        if (!isClickable() || !view->isEnabled())
            return names;
        if (view->hasSwitch(item()))
            names << toggleAction();
        names << pressAction() << showMenuAction() << setFocusAction();
        return names;
    }

    QString localizedActionDescription(const QString &action) const override
    {
        if (action == pressAction())
            return Tr::tr("Opens the dialog of the block");
        if (action == toggleAction())
            return Tr::tr("Switches the block on or off");
        return QAccessibleActionInterface::localizedActionDescription(action);
    }

    void doAction(const QString &action) override
    {
        IPView *view = this->view();
        if (!actionNames().contains(action))
            return;
        if (action != setFocusAction())
            view->focusOn(item());
        // A tool waits for its answer, and the dialog stays.
        if (action == pressAction())
            QMetaObject::invokeMethod(item(), &IPItem::doubleClicked, Qt::QueuedConnection);
        else if (action == toggleAction())
            view->toggle(item());
        else if (action == showMenuAction())
            view->popUpMenu(item());
        else
            view->focusOn(item());
    }

    QStringList keyBindingsForAction(const QString &action) const override
    {
        if (action == pressAction())
            return {QStringLiteral("Return")};
        if (action == toggleAction())
            return {QStringLiteral("Space")};
        if (action == showMenuAction())
            return {QStringLiteral("Menu")};
        return {};
    }

private:
    IPItem *item() const { return static_cast<IPItem *>(object()); }
    IPView *view() const
    {
        const QGraphicsScene *scene = item()->scene();
        return scene && !scene->views().isEmpty() ? qobject_cast<IPView *>(scene->views().first())
                                                  : nullptr;
    }
    bool isClickable() const { return item()->isClickable() && view(); }
};

// The view: its boxes, and then its other widgets. While the view is being deleted it is a widget
// like others.
class AccessibleDiagram : public QAccessibleWidget
{
public:
    explicit AccessibleDiagram(IPView *view)
        : QAccessibleWidget(view, QAccessible::Canvas)
    {
    }

    int childCount() const override { return boxes().size() + others().size(); }
    QAccessibleInterface *child(int index) const override
    {
        const QList<IPItem *> boxes = this->boxes();
        return index < boxes.size() ? QAccessible::queryAccessibleInterface(boxes.value(index))
                                    : others().value(index - boxes.size());
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const QList<IPItem *> boxes = this->boxes();
        const int index = child ? boxes.indexOf(qobject_cast<IPItem *>(child->object())) : -1;
        if (index >= 0)
            return index;
        const int other = others().indexOf(const_cast<QAccessibleInterface *>(child));
        return other < 0 ? other : other + boxes.size();
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        // Buttons and the like lie over the boxes.
        QList<QAccessibleInterface *> children = others();
        const QList<IPItem *> boxes = this->boxes();
        for (IPItem *box : boxes)
            children.append(QAccessible::queryAccessibleInterface(box));
        for (QAccessibleInterface *child : qAsConst(children)) {
            if (!child->state().invisible && child->rect().contains(x, y))
                return child;
        }
        return nullptr;
    }
    QAccessibleInterface *focusChild() const override
    {
        if (view() && view()->hasFocus() && view()->focusedBlock())
            return QAccessible::queryAccessibleInterface(view()->focusedBlock());
        return QAccessibleWidget::focusChild();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = state.focused && !(view() && view()->focusedBlock());
        return state;
    }

private:
    IPView *view() const { return qobject_cast<IPView *>(object()); }
    // All but the viewport, which the boxes stand for.
    QList<QAccessibleInterface *> others() const
    {
        QList<QAccessibleInterface *> children;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            QAccessibleInterface *child = QAccessibleWidget::child(i);
            if (child && !(view() && child->object() == view()->viewport()))
                children.append(child);
        }
        return children;
    }
    QList<IPItem *> boxes() const { return view() ? view()->shownBoxes() : QList<IPItem *>(); }
};

QAccessibleInterface *makeInterface(const QString &name, QObject *object)
{
    // Qt asks for each base class as well.
    if (name == QLatin1String(IPView::staticMetaObject.className())) {
        if (auto *view = qobject_cast<IPView *>(object))
            return new AccessibleDiagram(view);
    } else if (name == QLatin1String(IPItem::staticMetaObject.className())) {
        if (auto *item = qobject_cast<IPItem *>(object))
            return new AccessibleBox(item);
    }
    return nullptr;
}

// Ends with the library.
class Installation
{
public:
    // At once, so that Qt's list of factories outlives this.
    Installation() { QAccessible::installFactory(&makeInterface); }
    ~Installation() { QAccessible::removeFactory(&makeInterface); }
    Q_DISABLE_COPY(Installation)
};

} // namespace

void installAccessibleDiagram()
{
    static const Installation installation;
    QAccessible::installFactory(&makeInterface); // an application forgets it when it ends
}

} // namespace TARVOORIXM1
