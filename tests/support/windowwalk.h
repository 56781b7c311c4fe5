#pragma once

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
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
#include <QTabBar>
#include <QTest>

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
    explicit TabWalk(QWidget *window, int limit = 200)
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
                looks.append(window->grab().toImage());
                places.append(
                    QRect(focus->mapTo(window, QPoint()), focus->size()).adjusted(-3, -3, 3, 3));
            } else if (focus && stops.size() == 1 && i > 1) {
                return; // the only one
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
            if (!button->text().isEmpty())
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

// The part of a screen of 1366x768 that a window may use: a panel and a title bar take theirs.
inline QSize smallScreen()
{
    return {1366, 728 - 30};
}

} // namespace TestSupport
