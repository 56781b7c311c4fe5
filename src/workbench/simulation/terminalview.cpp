#include "terminalview.h"

#include "widgets/fixedfont.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTextCursor>

namespace Workbench
{

TerminalView::TerminalView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(lineCountLimit);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setWordWrapMode(QTextOption::WrapAnywhere);
    setFont(fixedFont());
    setTabStopDistance(8 * fontMetrics().horizontalAdvance(u' '));
    setMinimumHeight(fontMetrics().height() * 3);
}

void TerminalView::take(const QByteArray &bytes)
{
    const TerminalText::Step step = m_reader.take(bytes);
    QScrollBar *bar = verticalScrollBar();
    const bool follows = bar->value() == bar->maximum();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    for (int i = 0; i < step.takenBack; ++i)
        cursor.deletePreviousChar();
    cursor.insertText(step.text);
    if (follows)
        bar->setValue(bar->maximum());
}

void TerminalView::clearAll()
{
    m_reader.clear();
    clear();
}

bool TerminalView::isInput(const QKeyEvent &event) const
{
    const auto chords =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (!m_isListened || chords != 0)
        return false;
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
           event.key() == Qt::Key_Backspace ||
           (!event.text().isEmpty() && event.text().at(0).isPrint());
}

// A key that the program gets is no short cut.
bool TerminalView::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isInput(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void TerminalView::keyPressEvent(QKeyEvent *event)
{
    if (!isInput(*event)) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT typed("\n");
    else if (event->key() == Qt::Key_Backspace)
        Q_EMIT typed("\b");
    else
        Q_EMIT typed(event->text().toUtf8());
}

} // namespace Workbench
