#include "findbar.h"

#include "textfile.h"
#include "widgets/assistance.h"
#include "widgets/focusforward.h"
#include "widgets/symbolicon.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

namespace Workbench
{

FindBar::FindBar(QPlainTextEdit *editor, QWidget *parent)
    : QWidget(parent)
    , m_editor(editor)
    , m_text(new QLineEdit)
    , m_matchCase(new QCheckBox(tr("Match case")))
    , m_state(new QLabel)
{
    m_text->setObjectName(QStringLiteral("findEdit"));
    m_text->setPlaceholderText(tr("Find"));
    m_text->setAccessibleName(tr("Find"));
    addClearButton(m_text);
    connect(m_text, &QLineEdit::textEdited, this, [this] { find({}, true); });
    connect(m_matchCase, &QCheckBox::toggled, this, [this] { find({}, true); });

    const auto button = [](const QString &icon, const QString &text) {
        auto *result = new QToolButton;
        result->setIcon(symbolIcon(icon));
        result->setToolTip(text);
        result->setAccessibleName(text);
        result->setAutoRaise(true);
        result->setFocusPolicy(Qt::TabFocus);
        return result;
    };
    auto *previous = button(QStringLiteral("up"), tr("Previous match (Shift+F3)"));
    auto *next = button(QStringLiteral("down"), tr("Next match (F3)"));
    auto *close = button(QStringLiteral("close"), tr("Close (Escape)"));
    connect(previous, &QToolButton::clicked, this, &FindBar::findPrevious);
    connect(next, &QToolButton::clicked, this, &FindBar::findNext);
    connect(close, &QToolButton::clicked, this, &FindBar::leave);

    m_state->setObjectName(QStringLiteral("findState"));
    m_text->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(m_text, 1);
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addWidget(m_matchCase);
    layout->addWidget(m_state, 1);
    layout->addWidget(close);
    forwardFocus(this, m_text);
    hide();
}

void FindBar::start()
{
    const QString selected = TextFormat::fromShown(m_editor->textCursor().selectedText());
    if (!selected.isEmpty() && !selected.contains(u'\n') &&
        !selected.contains(QChar::ReplacementCharacter))
        m_text->setText(selected);
    show();
    m_text->setFocus();
    m_text->selectAll();
    m_state->clear();
}

void FindBar::findNext()
{
    find({}, false);
}

void FindBar::findPrevious()
{
    find(QTextDocument::FindBackward, false);
}

void FindBar::find(QTextDocument::FindFlags direction, bool fromSelectionStart)
{
    m_state->clear();
    // The search takes the text's no-break spaces for blanks.
    const QString wanted =
        TextFormat::toShown(m_text->text()).replace(QChar(QChar::Nbsp), QChar(QChar::Space));
    if (wanted.isEmpty())
        return;
    if (m_matchCase->isChecked())
        direction |= QTextDocument::FindCaseSensitively;
    QTextCursor start = m_editor->textCursor();
    if (fromSelectionStart)
        start.setPosition(start.selectionStart());
    QTextCursor found = m_editor->document()->find(wanted, start, direction);
    if (found.isNull()) {
        QTextCursor end(m_editor->document());
        end.movePosition(direction & QTextDocument::FindBackward ? QTextCursor::End
                                                                 : QTextCursor::Start);
        found = m_editor->document()->find(wanted, end, direction);
        m_state->setText(found.isNull() ? tr("Not found") : tr("Continued at the other end"));
    }
    if (!found.isNull())
        m_editor->setTextCursor(found);
}

void FindBar::leave()
{
    hide();
    m_editor->setFocus();
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        leave();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (event->modifiers() & Qt::ShiftModifier)
            findPrevious();
        else
            findNext();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace Workbench
