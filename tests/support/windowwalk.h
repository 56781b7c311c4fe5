#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

// Looks at a whole window as somebody without a mouse does.
namespace TestSupport
{

inline QString nameOf(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName() +
           (qobject_cast<const QAbstractButton *>(widget)
                ? QString(u' ' + qobject_cast<const QAbstractButton *>(widget)->text())
                : QString());
}

// What Tab reaches, in its order, and how the window looked at each stop.
struct TabWalk {
    QList<QWidget *> stops;
    QList<QImage> looks;
    QList<QRect> places; // in the window; views scroll

    // A view that walks among things of its own is one stop, with the look at the first of them.
    explicit TabWalk(QWidget *window, int limit = 200, bool looksToo = true)
    {
        QApplication::setCursorFlashTime(0);
        QApplication::setActiveWindow(window);
        if (!QTest::qWaitForWindowActive(window))
            qFatal("the window does not become active");
        for (int i = 0; i < limit; ++i) {
            QWidget *focus = QApplication::focusWidget();
            if (focus && focus != (stops.isEmpty() ? nullptr : stops.last())) {
                if (!stops.isEmpty() && focus == stops.first())
                    return;
                stops.append(focus);
                // Queued changes, such as views that follow the focus, first.
                QCoreApplication::processEvents();
                if (looksToo)
                    looks.append(window->grab().toImage());
                places.append(
                    QRect(focus->mapTo(window, QPoint()), focus->size()).adjusted(-3, -3, 3, 3));
            } else if (focus && stops.size() == 1 &&
                       i > (qobject_cast<QTextBrowser *>(focus) ? limit - 2 : 1)) {
                return; // the only one; its links come first
            }
            QTest::keyClick(focus ? focus : window, Qt::Key_Tab);
        }
        QStringList names;
        for (const QWidget *stop : qAsConst(stops))
            names.append(nameOf(stop));
        qFatal("Tab never comes back to where it began: %s",
               qPrintable(names.mid(0, 20).join(u'\n')));
    }

    // The stops at which the window looks the same about the widget as at the next stop.
    QStringList unseen() const
    {
        QStringList result;
        if (stops.size() < 2)
            return result; // nothing to compare with
        for (int i = 0; i < stops.size(); ++i) {
            const int other = (i + 1) % stops.size();
            const QRect &place = places.at(i);
            const qreal ratio = looks.at(i).devicePixelRatio();
            const QRect pixels(place.topLeft() * ratio, place.size() * ratio);
            if (looks.at(i).copy(pixels) == looks.at(other).copy(pixels))
                result.append(nameOf(stops.at(i)));
        }
        return result;
    }

    int indexOf(const QWidget *widget) const
    {
        return stops.indexOf(const_cast<QWidget *>(widget));
    }
};

// What assistive tools call the widget: on Linux a combo box is called what its label is.
inline QString spokenName(QWidget *widget)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
    QString name;
    if (interface && !qobject_cast<QComboBox *>(widget))
        name = interface->text(QAccessible::Name);
    if (!interface || !name.isEmpty())
        return name;
    for (const auto &relation : interface->relations(QAccessible::Label)) {
        if (relation.first && (relation.second & QAccessible::Label))
            name = relation.first->text(QAccessible::Name);
    }
    return name;
}

// Whether people do something with it, other than looking and scrolling.
inline bool isInteractive(const QWidget *widget)
{
    if (qobject_cast<const QScrollBar *>(widget) || qobject_cast<const QLabel *>(widget))
        return false;
    // Parts of others, which have name and keys for them.
    const QWidget *parent = widget->parentWidget();
    if (qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent) ||
        (widget->focusProxy() && parent) || parent->inherits("QComboBoxPrivateContainer"))
        return false;
    // A page that a click anywhere in it activates is no stop of its own.
    return (widget->focusPolicy() & Qt::TabFocus) != 0 ||
           qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) ||
           (qobject_cast<const QAbstractItemView *>(widget) &&
            !qobject_cast<const QHeaderView *>(widget)) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget);
}

// What can be used in the window as it is shown now.
inline QList<QWidget *> interactiveWidgets(const QWidget *window)
{
    QList<QWidget *> result;
    const auto widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && widget->window() == window && isInteractive(widget))
            result.append(widget);
    }
    return result;
}

// Those without a name, with one that says nothing, or without a role.
inline QStringList unnamed(const QWidget *window)
{
    QStringList result;
    for (QWidget *widget : interactiveWidgets(window)) {
        const QString name = spokenName(widget).trimmed();
        const bool isNothing =
            name.isEmpty() || name == widget->objectName() || widget->inherits(qPrintable(name));
        const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        if (isNothing || !interface || interface->role() == QAccessible::NoRole)
            result.append(nameOf(widget));
        // The button appears with a text.
        const auto *edit = qobject_cast<QLineEdit *>(widget);
        const auto *clear =
            edit && edit->isClearButtonEnabled()
                ? edit->findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction"))
                : nullptr;
        if (clear && clear->text().isEmpty())
            result.append(QStringLiteral("the button that clears ") + nameOf(widget));
    }
    return result;
}

// Whether the menu bar of the window leads to the action.
inline bool isInMenuBar(const QWidget *window, const QAction *action)
{
    QList<QMenu *> menus;
    for (const QMenuBar *bar : window->findChildren<QMenuBar *>()) {
        for (const QAction *entry : bar->actions())
            menus.append(entry->menu());
    }
    for (int i = 0; i < menus.size(); ++i) {
        if (!menus.at(i))
            continue;
        for (const QAction *entry : menus.at(i)->actions()) {
            if (entry == action)
                return true;
            menus.append(entry->menu()); // the list grows
        }
    }
    return false;
}

// Whether keys alone trigger the action wherever the focus is in the window: nothing else there has
// the same ones.
inline bool hasKeyOfItsOwn(const QWidget *window, const QAction *action)
{
    if (action->shortcutContext() != Qt::WindowShortcut &&
        action->shortcutContext() != Qt::ApplicationShortcut)
        return false;
    const auto keys = action->shortcuts();
    const auto actions = window->findChildren<QAction *>();
    return std::any_of(keys.begin(), keys.end(), [&](const QKeySequence &key) {
        return std::none_of(actions.begin(), actions.end(), [&](const QAction *other) {
            return other != action && other->isEnabled() && other->shortcuts().contains(key) &&
                   other->shortcutContext() != Qt::WidgetShortcut;
        });
    });
}

// Whether a button of a tool bar does what a key or the menu bar does as well.
inline bool isShortWay(const QWidget *widget)
{
    const auto *button = qobject_cast<const QToolButton *>(widget);
    if (!button || !button->defaultAction() || !qobject_cast<QToolBar *>(button->parentWidget()))
        return false;
    return hasKeyOfItsOwn(button->window(), button->defaultAction()) ||
           isInMenuBar(button->window(), button->defaultAction());
}

// Those that can be used and the walk, which began in their window, does not come to, nor arrow
// keys from one of its stops.
inline QStringList unreached(const QWidget *window, const TabWalk &walk)
{
    QStringList result;
    for (QWidget *widget : interactiveWidgets(window)) {
        bool isReached = !widget->isEnabled() || walk.stops.contains(widget) || isShortWay(widget);
        // Its neighbour stands for all of a row that arrow keys walk along.
        for (const QWidget *stop : walk.stops)
            isReached = isReached || (stop->parentWidget() == widget->parentWidget() &&
                                      stop->metaObject() == widget->metaObject() &&
                                      (qobject_cast<QRadioButton *>(widget) ||
                                       widget->property("walkedByArrows").toBool()));
        // Tabs scroll, docks close and the text of a field goes by keys as well.
        const QWidget *parent = widget->parentWidget();
        isReached = isReached || qobject_cast<const QTabBar *>(parent) ||
                    qobject_cast<const QDockWidget *>(parent) ||
                    qobject_cast<const QLineEdit *>(parent);
        if (!isReached)
            result.append(nameOf(widget));
    }
    return result;
}

inline QChar mnemonicOf(const QString &text)
{
    const QKeySequence key = QKeySequence::mnemonic(text);
    return key.isEmpty() ? QChar() : QChar(key[0] & 0xffff).toUpper();
}

// The marks of the keys that two of the texts share.
inline QStringList sharedMnemonics(const QStringList &texts)
{
    QStringList shared;
    QHash<QChar, QString> owners;
    for (const QString &text : texts) {
        const QChar key = mnemonicOf(text);
        if (key.isNull())
            continue;
        if (owners.contains(key))
            shared.append(QStringLiteral("%1: \"%2\" and \"%3\"").arg(key).arg(owners[key], text));
        owners.insert(key, text);
    }
    return shared;
}

// All texts that Alt and a letter reach in the window as it is shown now.
inline QStringList mnemonicTexts(const QWidget *window)
{
    QStringList texts;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisibleTo(window) || widget->window() != window)
            continue;
        if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
            for (const QAction *action : bar->actions())
                texts.append(action->text());
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                texts.append(tabs->tabText(i));
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            texts.append(button->text());
        } else if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
            texts.append(group->title());
        } else if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            if (label->buddy())
                texts.append(label->text());
        }
    }
    return texts;
}

// Of a window that is given `room` pixels at most: what does not fit. Nothing where its layout asks
// for no more, and every button outside of a scrolling view is whole.
inline QStringList cutOff(QWidget *window, const QSize &room)
{
    QStringList result;
    window->show();
    window->resize(window->size().boundedTo(room));
    QCoreApplication::processEvents();
    if (window->width() > room.width() || window->height() > room.height())
        result.append(QStringLiteral("the window: %1x%2, at least %3x%4")
                          .arg(window->width())
                          .arg(window->height())
                          .arg(window->minimumSizeHint().width())
                          .arg(window->minimumSizeHint().height()));
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (!button->isVisible() || button->window() != window)
            continue;
        // Tabs scroll too.
        bool scrolls = qobject_cast<const QTabBar *>(button->parentWidget());
        for (const QWidget *parent = button->parentWidget(); parent && parent != window;
             parent = parent->parentWidget())
            scrolls = scrolls || (qobject_cast<const QAbstractScrollArea *>(parent) &&
                                  button->parentWidget() != parent);
        if (scrolls)
            continue;
        const QRect whole(button->mapTo(window, QPoint()), button->size());
        if (!window->rect().contains(whole) ||
            button->visibleRegion().boundingRect().size() != button->size())
            result.append(nameOf(button));
    }
    return result;
}

// The texts of the program in a window that is shown which have less room than they need. Views
// shorten what they show of others' texts; their headers do not.
inline QStringList cutTexts(const QWidget *window)
{
    QStringList result;
    const auto tell = [&result](const QWidget *widget, const QString &text, int needed, int room) {
        if (needed > room)
            result.append(QStringLiteral("%1 \"%2\": %3 of %4")
                              .arg(nameOf(widget), text.left(60))
                              .arg(room)
                              .arg(needed));
    };
    const auto widthOf = [](const QWidget *widget, const QString &text) {
        return widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
    };
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisibleTo(window) || widget->window() != window)
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            if (label->text().isEmpty())
                continue;
            // What lies between lines may be missing.
            if (label->wordWrap())
                tell(label, label->text(),
                     label->heightForWidth(label->width()) - label->fontMetrics().height() / 8,
                     label->height());
            else
                tell(label, label->text(), label->sizeHint().width(), label->width());
        } else if (const auto *link = qobject_cast<const QCommandLinkButton *>(widget)) {
            tell(link, link->text(), widget->heightForWidth(link->width()), link->height());
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            const auto *tool = qobject_cast<const QToolButton *>(button);
            const bool isShown =
                !tool || tool->icon().isNull() || tool->toolButtonStyle() != Qt::ToolButtonIconOnly;
            if (isShown && !button->text().isEmpty())
                tell(button, button->text(), button->sizeHint().width(), button->width());
        } else if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
            tell(box, box->title(), widthOf(box, box->title()), box->width());
        } else if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
            const auto actions = bar->actions();
            for (QAction *action : actions)
                tell(bar, action->text(), widthOf(bar, action->text()),
                     bar->actionGeometry(action).intersected(bar->rect()).width());
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                tell(tabs, tabs->tabText(i), widthOf(tabs, tabs->tabText(i)),
                     tabs->tabRect(i).width());
        } else if (const auto *dock = qobject_cast<const QDockWidget *>(widget)) {
            tell(dock, dock->windowTitle(), widthOf(dock, dock->windowTitle()), dock->width());
        } else if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
            tell(edit, edit->placeholderText(), widthOf(edit, edit->placeholderText()),
                 edit->width());
        } else if (const auto *number = qobject_cast<const QAbstractSpinBox *>(widget)) {
            tell(number, number->text(), number->minimumSizeHint().width(), number->width());
        } else if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
            for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
                const QString text = header->model()->headerData(i, Qt::Horizontal).toString();
                if (!header->isSectionHidden(i))
                    tell(header, text, widthOf(header, text), header->sectionSize(i));
            }
        }
    }
    return result;
}

// Pages that scroll sideways: what is on them breaks its lines instead.
inline QStringList sidewaysPages(const QWidget *window)
{
    QStringList result;
    const auto pages = window->findChildren<QScrollArea *>();
    for (const QScrollArea *page : pages) {
        const int hidden = page->horizontalScrollBar()->maximum();
        if (page->isVisible() && page->window() == window && hidden > 0)
            result.append(QStringLiteral("%1 scrolls sideways: %2 of %3")
                              .arg(nameOf(page))
                              .arg(page->viewport()->width())
                              .arg(page->viewport()->width() + hidden));
    }
    return result;
}

inline QList<QWidget *> widgetsIn(const QLayout *layout)
{
    QList<QWidget *> result;
    for (int i = 0; i < layout->count(); ++i) {
        if (QWidget *widget = layout->itemAt(i)->widget())
            result.append(widget);
        else if (const QLayout *inner = layout->itemAt(i)->layout())
            result += widgetsIn(inner);
    }
    return result;
}

// What a layout has put outside of its widget or over something else.
inline QStringList misplaced(const QWidget *window)
{
    QStringList result;
    QList<const QWidget *> parents{window};
    const auto children = window->findChildren<QWidget *>();
    for (const QWidget *child : children)
        parents.append(child);
    for (const QWidget *parent : qAsConst(parents)) {
        // The parts of a main window keep out of each other's way by themselves.
        if (!parent->isVisible() || parent->window() != window || !parent->layout() ||
            parent->inherits("QMainWindow"))
            continue;
        QList<QWidget *> placed;
        for (QWidget *widget : widgetsIn(parent->layout())) {
            if (widget->isVisible() && !widget->size().isEmpty())
                placed.append(widget);
        }
        for (int i = 0; i < placed.size(); ++i) {
            if (!parent->rect().contains(placed.at(i)->geometry()))
                result.append(nameOf(placed.at(i)) + QStringLiteral(" reaches out of ") +
                              nameOf(parent));
            for (int j = i + 1; j < placed.size(); ++j) {
                if (placed.at(i)->geometry().intersects(placed.at(j)->geometry()))
                    result.append(nameOf(placed.at(i)) + QStringLiteral(" lies over ") +
                                  nameOf(placed.at(j)));
            }
        }
    }
    return result;
}

// Buttons that stick to the field before them.
inline QStringList stuckButtons(const QWidget *window)
{
    QStringList result;
    const auto fields = window->findChildren<QLineEdit *>();
    for (const QLineEdit *field : fields) {
        const auto buttons = field->parentWidget()->findChildren<QPushButton *>(
            QString(), Qt::FindDirectChildrenOnly);
        for (const QPushButton *button : buttons) {
            const int gap = button->x() - field->geometry().right() - 1;
            const bool isBeside = button->geometry().top() <= field->geometry().center().y() &&
                                  button->geometry().bottom() >= field->geometry().center().y();
            if (field->isVisible() && button->isVisible() && isBeside && gap >= 0 && gap < 3)
                result.append(QStringLiteral("%1: %2").arg(nameOf(button)).arg(gap));
        }
    }
    return result;
}

// Tables and lists of a dialog of which a part is seen only after scrolling sideways.
inline QStringList sidewaysViews(const QWidget *window)
{
    QStringList result;
    const auto views = window->findChildren<QAbstractItemView *>();
    for (const QAbstractItemView *view : views) {
        const int hidden = view->horizontalScrollBar()->maximum();
        if (view->isVisible() && view->window() == window && hidden > 0)
            result.append(QStringLiteral("%1 scrolls sideways: %2 of %3")
                              .arg(nameOf(view))
                              .arg(view->viewport()->width())
                              .arg(view->viewport()->width() + hidden));
    }
    return result;
}

// What a window gets of a screen of 1366x768 on which everything is twice as large, 683x384, below
// a title bar.
inline QSize doubledSmallScreen()
{
    return {683, 384 - 28};
}

// The part of a screen of 1366x768 that a window may use: a panel and a title bar take theirs.
inline QSize smallScreen()
{
    return {1366, 728 - 30};
}

} // namespace TestSupport
