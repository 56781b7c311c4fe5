#include "editactions.h"

#include "widgets/shortcuts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace Workbench
{

namespace
{

bool is(const char *method, const char *name)
{
    return qstrcmp(method, name) == 0;
}

bool isPossibleInLine(const QLineEdit &line, const char *method, bool hasClip)
{
    const bool editable = !line.isReadOnly() && line.isEnabled();
    if (is(method, "undo"))
        return editable && line.isUndoAvailable();
    if (is(method, "redo"))
        return editable && line.isRedoAvailable();
    if (is(method, "cut"))
        return editable && line.hasSelectedText();
    if (is(method, "copy"))
        return line.hasSelectedText();
    if (is(method, "paste"))
        return editable && hasClip;
    return !line.text().isEmpty();
}

} // namespace

EditActions::EditActions(QWidget *window, QMenu *menu)
    : QObject(window)
    , m_window(window)
{
    const auto add = [&](const QString &text, QKeySequence::StandardKey key, const char *method) {
        auto *action = new QAction(text, window);
        // A text field takes its keys itself before the window does, where the desktop knows them.
        action->setShortcuts(keysOf(key));
        connect(action, &QAction::triggered, this, [this, method] {
            if (QWidget *target = receiver(m_focus, method))
                QMetaObject::invokeMethod(target, method);
            refresh();
        });
        menu->addAction(action);
        m_commands.append({action, method});
    };
    add(tr("&Undo"), QKeySequence::Undo, "undo");
    add(tr("&Redo"), QKeySequence::Redo, "redo");
    menu->addSeparator();
    add(tr("Cu&t"), QKeySequence::Cut, "cut");
    add(tr("&Copy"), QKeySequence::Copy, "copy");
    add(tr("&Paste"), QKeySequence::Paste, "paste");
    add(tr("Select &All"), QKeySequence::SelectAll, "selectAll");

    connect(menu, &QMenu::aboutToShow, this, &EditActions::lookAtClipboard);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { follow(now); });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &EditActions::lookAtClipboard);
    lookAtClipboard();
    follow(QApplication::focusWidget());
}

QWidget *EditActions::receiver(QWidget *focus, const char *method)
{
    const QByteArray signature = QByteArray(method) + "()";
    for (QWidget *widget = focus; widget; widget = widget->parentWidget()) {
        if (widget->metaObject()->indexOfMethod(signature) >= 0)
            return widget;
    }
    return nullptr;
}

template <class Text>
bool EditActions::isPossibleInText(const Text &text, const char *method) const
{
    const bool editable = !text.isReadOnly();
    if (is(method, "undo"))
        return editable && text.document()->isUndoAvailable();
    if (is(method, "redo"))
        return editable && text.document()->isRedoAvailable();
    if (is(method, "cut"))
        return editable && text.textCursor().hasSelection();
    if (is(method, "copy"))
        return text.textCursor().hasSelection();
    if (is(method, "paste"))
        return editable && m_hasClip;
    return !text.document()->isEmpty();
}

bool EditActions::isPossible(const QWidget *receiver, const char *method) const
{
    if (!receiver)
        return false;
    if (const auto *line = qobject_cast<const QLineEdit *>(receiver))
        return isPossibleInLine(*line, method, m_hasClip);
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(receiver))
        return isPossibleInText(*text, method);
    if (const auto *text = qobject_cast<const QTextEdit *>(receiver))
        return isPossibleInText(*text, method);
    if (const auto *view = qobject_cast<const QAbstractItemView *>(receiver))
        return view->model() && view->model()->rowCount() > 0 &&
               view->selectionMode() != QAbstractItemView::NoSelection &&
               view->selectionMode() != QAbstractItemView::SingleSelection;
    // A view of our own that has something to give.
    const auto *inner = receiver->findChild<QAbstractItemView *>();
    return !inner || (inner->model() && inner->model()->rowCount() > 0);
}

void EditActions::follow(QWidget *focus)
{
    // A menu has the focus only while it leads to a command for the widget behind it.
    if (qobject_cast<QMenuBar *>(focus) || qobject_cast<QMenu *>(focus))
        return;
    if (focus && focus->window() != m_window)
        focus = nullptr;
    m_focus = focus;
    for (const QMetaObject::Connection &connection : qAsConst(m_followed))
        disconnect(connection);
    m_followed.clear();
    if (auto *line = qobject_cast<QLineEdit *>(focus)) {
        m_followed << connect(line, &QLineEdit::selectionChanged, this, &EditActions::refresh)
                   << connect(line, &QLineEdit::textChanged, this, &EditActions::refresh);
    } else if (auto *text = qobject_cast<QPlainTextEdit *>(focus)) {
        m_followed << connect(text, &QPlainTextEdit::undoAvailable, this, &EditActions::refresh)
                   << connect(text, &QPlainTextEdit::redoAvailable, this, &EditActions::refresh)
                   << connect(text, &QPlainTextEdit::copyAvailable, this, &EditActions::refresh)
                   << connect(text, &QPlainTextEdit::textChanged, this, &EditActions::refresh)
                   << connect(text, &QPlainTextEdit::cursorPositionChanged, this,
                              &EditActions::refresh);
    } else if (auto *view = qobject_cast<QAbstractItemView *>(focus); view && view->model()) {
        m_followed << connect(view->model(), &QAbstractItemModel::modelReset, this,
                              &EditActions::refresh)
                   << connect(view->model(), &QAbstractItemModel::rowsInserted, this,
                              &EditActions::refresh);
    }
    refresh();
}

void EditActions::lookAtClipboard()
{
    const QMimeData *clip = QGuiApplication::clipboard()->mimeData();
    m_hasClip = clip && clip->hasText();
    refresh();
}

void EditActions::refresh()
{
    for (const Command &command : qAsConst(m_commands))
        command.action->setEnabled(isPossible(receiver(m_focus, command.method), command.method));
}

} // namespace Workbench
