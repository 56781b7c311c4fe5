#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QMenu)

namespace Workbench
{

// Undo, Cut and their kin for whatever widget of the window has the focus. Each is enabled only
// where it would do something.
class EditActions : public QObject
{
    Q_OBJECT

public:
    // Adds the actions to the menu. The window must outlive the object.
    EditActions(QWidget *window, QMenu *menu);

    // The widget that an edit command goes to: from the focus outwards the nearest that knows
    // `method`, a slot without arguments; null if none does.
    static QWidget *receiver(QWidget *focus, const char *method);
    // For changes that no widget tells of, as that a text may be edited from now on.
    void refresh();

private:
    struct Command {
        QAction *action;
        const char *method;
    };

    void follow(QWidget *focus);
    void lookAtClipboard();
    // Whether the command would change or give anything there.
    bool isPossible(const QWidget *receiver, const char *method) const;
    template <class Text>
    bool isPossibleInText(const Text &text, const char *method) const;

    QWidget *m_window;
    QPointer<QWidget> m_focus; // in the window, menus left out
    QList<Command> m_commands;
    QList<QMetaObject::Connection> m_followed;
    bool m_hasClip = false; // asking the desktop takes a while, too long for every move of a cursor
};

} // namespace Workbench
