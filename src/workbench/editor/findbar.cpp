#include "findbar.h"

#include "codeeditor.h"
#include "textfile.h"
#include "widgets/assistance.h"
#include "widgets/focusforward.h"
#include "widgets/symbolicon.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QTextBlock>
#include <QToolButton>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

constexpr int atOnce = 16;     // milliseconds that nobody notices
constexpr int oneSlice = 8;    // milliseconds, then the window gets its turn
constexpr int atOneLine = 1;   // to be marked while it is painted
constexpr int mostSeen = 1000; // lines whose marks are remembered
constexpr int afterChange = 200;
constexpr int longestHistory = 30;

// What was looked for in this run, in any file; the newest first.
QStringList &history()
{
    static QStringList texts;
    return texts;
}

QString number(int value)
{
    return QLocale().toString(value);
}

// A text as an expression that finds it.
QString escaped(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (QLatin1String("\\^$.|?*+()[]{}").contains(c))
            result += u'\\';
        result += c;
    }
    return result;
}

} // namespace

FindBar::FindBar(CodeEditor *editor, QWidget *parent)
    : QWidget(parent)
    , m_editor(editor)
    , m_text(new QLineEdit)
    , m_newText(new QLineEdit)
    , m_newRow(new QWidget)
    , m_replace(new QPushButton(tr("&Replace")))
    , m_replaceAll(new QPushButton(tr("Replace All")))
    , m_matchCase(new QCheckBox(tr("Match case")))
    , m_wholeWords(new QCheckBox(tr("Whole words")))
    , m_isExpression(new QCheckBox(tr("Regular expression")))
    , m_state(new QLabel)
    , m_message(new QLabel)
{
    buildRows();
    connect(m_text, &QLineEdit::textEdited, this, [this] {
        m_recalled = -1;
        jump(Here);
    });
    for (const QCheckBox *box : {m_matchCase, m_wholeWords, m_isExpression})
        connect(box, &QCheckBox::toggled, this, [this] {
            jump(Here);
            Q_EMIT choicesChanged();
        });
    m_editor->setMarkedPlaces([self = QPointer<FindBar>(this)](int from, int to) {
        return self ? self->placesWithin(from, to) : QVector<CodeEditor::Place>();
    });
    connect(m_replace, &QPushButton::clicked, this, &FindBar::replace);
    connect(m_replaceAll, &QPushButton::clicked, this, &FindBar::replaceAll);
    connect(m_editor, &QPlainTextEdit::cursorPositionChanged, this, &FindBar::showState);
    connect(m_editor, &QPlainTextEdit::selectionChanged, this, &FindBar::showMarks);
    m_goOn.setInterval(0);
    connect(&m_goOn, &QTimer::timeout, this, [this] {
        if (isReplacing())
            replaceSome(oneSlice);
        else
            goOn(oneSlice);
    });
    m_changed.setSingleShot(true);
    m_changed.setInterval(afterChange);
    connect(&m_changed, &QTimer::timeout, this, [this] {
        if (!isHidden() && !isReplacing()) {
            search();
            goOn(oneSlice);
        }
    });
    connect(m_editor->document(), &QTextDocument::contentsChanged, this, [this] {
        if (isHidden() || isReplacing() || m_editor->document()->revision() == m_revision)
            return;
        m_changed.start();
    });
    setEditable(false);
    forwardFocus(this, m_text);
    hide();
}

void FindBar::buildRows()
{
    const auto name = [](QWidget *widget, const char *objectName, const QString &accessibleName) {
        widget->setObjectName(QLatin1String(objectName));
        widget->setAccessibleName(accessibleName);
    };
    name(m_text, "findEdit", tr("Find"));
    m_text->setPlaceholderText(tr("Find"));
    m_text->setToolTip(tr("Up and Down bring back what was looked for before"));
    addClearButton(m_text);
    m_text->installEventFilter(this);
    name(m_newText, "replaceEdit", tr("Replace with"));
    m_newText->setPlaceholderText(tr("Replace with"));
    m_newText->setToolTip(tr("With a regular expression: $1 or \\1 is its first group, $0 all of "
                             "it, \\n a line end, \\t a tab"));
    addClearButton(m_newText);
    m_newText->installEventFilter(this);
    name(m_replace, "replaceButton", tr("Replace"));
    name(m_replaceAll, "replaceAllButton", tr("Replace All"));
    name(m_matchCase, "matchCaseBox", m_matchCase->text());
    name(m_wholeWords, "wholeWordsBox", m_wholeWords->text());
    name(m_isExpression, "expressionBox", m_isExpression->text());
    m_state->setObjectName(QStringLiteral("findState"));
    m_message->setObjectName(QStringLiteral("findMessage"));
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_message->hide();

    const auto button = [&name](const QString &icon, const char *objectName, const QString &text) {
        auto *result = new QToolButton;
        result->setIcon(symbolIcon(icon));
        result->setToolTip(text);
        name(result, objectName, text);
        result->setAutoRaise(true);
        result->setFocusPolicy(Qt::TabFocus);
        return result;
    };
    auto *previous =
        button(QStringLiteral("up"), "findPreviousButton", tr("Previous match (Shift+F3)"));
    auto *next = button(QStringLiteral("down"), "findNextButton", tr("Next match (F3)"));
    auto *close = button(QStringLiteral("close"), "findCloseButton", tr("Close (Escape)"));
    connect(previous, &QToolButton::clicked, this, &FindBar::findPrevious);
    connect(next, &QToolButton::clicked, this, &FindBar::findNext);
    connect(close, &QToolButton::clicked, this, &FindBar::leave);

    const int narrowest = fontMetrics().averageCharWidth() * 16;
    for (QLineEdit *edit : {m_text, m_newText})
        edit->setMinimumWidth(narrowest);
    auto *findRow = new QHBoxLayout;
    findRow->addWidget(m_text, 1);
    findRow->addWidget(previous);
    findRow->addWidget(next);
    findRow->addWidget(m_state, 1);
    findRow->addWidget(close);
    auto *newRow = new QHBoxLayout(m_newRow);
    newRow->setContentsMargins(0, 0, 0, 0);
    newRow->addWidget(m_newText, 1);
    newRow->addWidget(m_replace);
    newRow->addWidget(m_replaceAll);
    newRow->addStretch(1);
    auto *choices = new QHBoxLayout;
    for (QCheckBox *box : {m_matchCase, m_wholeWords, m_isExpression})
        choices->addWidget(box);
    choices->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(3);
    layout->addLayout(findRow);
    layout->addWidget(m_newRow);
    layout->addLayout(choices);
    layout->addWidget(m_message);
    m_newRow->hide();

    QWidget *order[] = {m_text, m_newText,   m_replace,    m_replaceAll,   previous,
                        next,   m_matchCase, m_wholeWords, m_isExpression, close};
    for (size_t i = 1; i < sizeof order / sizeof *order; ++i)
        setTabOrder(order[i - 1], order[i]);
}

void FindBar::start()
{
    const QString selected = TextFormat::fromShown(m_editor->textCursor().selectedText());
    if (!selected.isEmpty() && !selected.contains(u'\n') &&
        !selected.contains(QChar::ReplacementCharacter))
        m_text->setText(m_isExpression->isChecked() ? escaped(selected) : selected);
    else if (m_text->text().isEmpty() && !history().isEmpty())
        m_text->setText(history().constFirst());
    show();
    m_text->setFocus();
    m_text->selectAll();
    m_wrapped = false;
    tell({});
    search();
    goOn(atOnce);
    showMarks();
}

void FindBar::startReplacing()
{
    m_newRow->show();
    start();
}

void FindBar::setEditable(bool isEditable)
{
    m_isEditable = isEditable;
    for (QWidget *widget : {static_cast<QWidget *>(m_newText), static_cast<QWidget *>(m_replace),
                            static_cast<QWidget *>(m_replaceAll)})
        widget->setEnabled(isEditable);
    tell({});
}

FindChoices FindBar::choices() const
{
    return {m_matchCase->isChecked(), m_wholeWords->isChecked(), m_isExpression->isChecked()};
}

void FindBar::setChoices(const FindChoices &choices)
{
    const std::pair<QCheckBox *, bool> boxes[] = {{m_matchCase, choices.matchCase},
                                                  {m_wholeWords, choices.wholeWords},
                                                  {m_isExpression, choices.isExpression}};
    for (const auto &[box, isChecked] : boxes) {
        const QSignalBlocker blocker(box);
        box->setChecked(isChecked);
    }
}

// A search of the whole text knows them exactly once it has come here. Before that, and of a text
// that has changed since, what is seen is searched by itself: that is only a few lines.
QVector<CodeEditor::Place> FindBar::placesWithin(int from, int to)
{
    QVector<CodeEditor::Place> result;
    const SearchFor now = wanted();
    if (isHidden() || isReplacing() || now.text.isEmpty())
        return result;
    const int revision = m_editor->document()->revision();
    const bool isKnown = m_search && m_searched == now && m_revision == revision &&
                         (m_search->state() == Search::Done || m_search->knownUpTo() >= to);
    if (isKnown) {
        const QVector<Search::Place> &places = m_search->places();
        // One may begin before.
        for (int i = qMax(0, m_search->lastBefore(from)); i < places.size(); ++i) {
            if (places.at(i).position > to)
                break;
            if (places.at(i).position + places.at(i).length >= from)
                result.append({places.at(i).position, places.at(i).length});
        }
        return result;
    }
    if (m_seenRevision != revision || !(m_seenFor == now) || m_seen.size() > mostSeen)
        m_seen.clear();
    if (m_seen.isEmpty())
        m_isSeenSlow = false;
    m_seenRevision = revision;
    m_seenFor = now;
    const auto seen = m_seen.constFind({from, to});
    if (seen != m_seen.constEnd())
        return *seen;
    if (now.mistake().isEmpty() && !m_isSeenSlow) {
        QTextCursor part(m_editor->document());
        part.setPosition(from);
        part.setPosition(to, QTextCursor::KeepAnchor);
        Search search(part.selectedText(), now);
        search.advance(atOneLine);
        for (const Search::Place &place : search.places())
            result.append({from + place.position, place.length});
        m_isSeenSlow = search.state() == Search::TooSlow;
    }
    m_seen.insert({from, to}, result);
    return result;
}

SearchFor FindBar::wanted() const
{
    return {m_text->text(), m_matchCase->isChecked(), m_wholeWords->isChecked(),
            m_isExpression->isChecked()};
}

void FindBar::findNext()
{
    go(Next);
}

void FindBar::findPrevious()
{
    go(Previous);
}

void FindBar::go(Jump direction)
{
    if (m_text->text().isEmpty()) {
        start();
        return;
    }
    show(); // it tells where the search has come to
    remember();
    jump(direction);
}

void FindBar::remember()
{
    const QString text = m_text->text();
    if (text.isEmpty())
        return;
    history().removeAll(text);
    history().prepend(text);
    while (history().size() > longestHistory)
        history().removeLast();
    m_recalled = -1;
}

void FindBar::recall(int step)
{
    // What is typed now is newer than all of them.
    const int wanted = qBound(-1, m_recalled + step, history().size() - 1);
    if (wanted < 0 || wanted == m_recalled)
        return;
    m_recalled = wanted;
    m_text->setText(history().at(wanted));
    jump(Here);
}

void FindBar::jump(Jump jump, int from)
{
    if (isReplacing())
        return;
    m_jump = jump;
    m_from = from >= 0 ? from : m_editor->textCursor().selectionStart();
    m_wrapped = false;
    m_wantsAll = false;
    tell({});
    if (search())
        goOn(atOnce);
    else
        m_jump = Nowhere;
    showState();
    showMarks();
}

Search *FindBar::search()
{
    const SearchFor now = wanted();
    const QString mistake = now.text.isEmpty() ? QString() : now.mistake();
    if (now.text.isEmpty() || !mistake.isEmpty()) {
        m_search.reset();
        m_goOn.stop();
        tell(mistake);
        showState();
        return nullptr;
    }
    const int revision = m_editor->document()->revision();
    if (!m_search || !(m_searched == now) || m_revision != revision) {
        m_search = std::make_unique<Search>(std::make_unique<TextCopy>(m_editor->document()), now);
        m_searched = now;
        m_revision = revision;
    }
    return m_search.get();
}

void FindBar::goOn(int milliseconds)
{
    if (!m_search)
        return;
    const bool isOver = m_search->advance(milliseconds) != Search::Running;
    settleJump();
    if (isOver) {
        m_goOn.stop();
        showMarks();
    } else {
        m_goOn.start();
    }
    if (isOver && m_search->state() == Search::TooSlow)
        tell(tr("The search ends at line %1: there the expression takes too many steps.")
                 .arg(m_editor->document()->findBlock(m_search->stoppedAt()).blockNumber() + 1));
    if (isOver && m_wantsAll)
        beginReplacing();
    showState();
}

void FindBar::settleJump()
{
    if (m_jump == Nowhere)
        return;
    const bool isKnown = m_search->state() != Search::Running;
    const QVector<Search::Place> &places = m_search->places();
    const QTextCursor cursor = m_editor->textCursor();
    const int start = cursor.selectionStart();
    const int exact = m_search->indexOf(start, cursor.selectionEnd() - start);
    int found = -1;
    if (m_jump == Previous) {
        if (!isKnown && m_search->knownUpTo() < start)
            return;
        found = exact >= 0 ? exact - 1 : m_search->lastBefore(start);
    } else {
        found = m_jump == Here ? m_search->firstFrom(m_from)
                : exact >= 0   ? exact + 1
                               : m_search->firstFrom(cursor.selectionEnd());
        if (found >= places.size())
            found = -1;
    }
    if (found < 0 && !isKnown)
        return;
    m_backward = m_jump == Previous;
    m_wrapped = found < 0 && !places.isEmpty();
    if (m_wrapped)
        found = m_backward ? places.size() - 1 : 0;
    m_jump = Nowhere;
    if (found < 0)
        return;
    const Search::Place place = places.at(found);
    QTextCursor target = m_editor->textCursor();
    target.setPosition(place.position);
    target.setPosition(place.position + place.length, QTextCursor::KeepAnchor);
    m_editor->setTextCursor(target);
}

void FindBar::showState()
{
    if (isHidden() || isReplacing())
        return;
    if (!m_search) {
        m_state->clear();
        return;
    }
    const int count = m_search->places().size();
    const bool isRunning = m_search->state() == Search::Running;
    if (isRunning && (m_jump != Nowhere || m_wantsAll)) {
        m_state->setText(tr("Searching…"));
        return;
    }
    if (count == 0) {
        m_state->setText(isRunning ? tr("Searching…") : tr("Not found"));
        return;
    }
    const QTextCursor cursor = m_editor->textCursor();
    const int start = cursor.selectionStart();
    const int index = m_search->indexOf(start, cursor.selectionEnd() - start);
    const bool isMore = m_search->state() != Search::Done;
    const QString all = number(count);
    const QString one = number(index + 1);
    if (index < 0)
        m_state->setText(isMore ? tr("More than %1").arg(all) : tr("Matches: %1").arg(all));
    else if (isMore)
        m_state->setText(tr("%1 of more than %2").arg(one, all));
    else if (!m_wrapped)
        m_state->setText(tr("%1 of %2").arg(one, all));
    else if (m_backward)
        m_state->setText(tr("%1 of %2, continued at the end").arg(one, all));
    else
        m_state->setText(tr("%1 of %2, continued at the start").arg(one, all));
}

void FindBar::showMarks()
{
    if (!isHidden())
        m_editor->viewport()->update();
}

void FindBar::tell(const QString &message)
{
    const bool isForReading = !m_isEditable && !m_newRow->isHidden();
    const QString shown = message.isEmpty() && isForReading
                              ? tr("This file is open for reading. Press Ctrl+E to edit it.")
                              : message;
    m_message->setText(shown);
    m_message->setVisible(!shown.isEmpty());
}

void FindBar::replace()
{
    if (!m_isEditable || isReplacing())
        return;
    remember();
    if (!search())
        return;
    m_search->advance(atOnce);
    const QTextCursor cursor = m_editor->textCursor();
    const int start = cursor.selectionStart();
    const int index = m_search->indexOf(start, cursor.selectionEnd() - start);
    if (index < 0) {
        jump(Here);
        return;
    }
    const Replacement replacement(m_newText->text(),
                                  m_isExpression->isChecked() ? m_search->groups() : -1);
    if (!replacement.mistake().isEmpty()) {
        tell(replacement.mistake());
        return;
    }
    const bool wasEmpty = m_search->places().at(index).length == 0;
    const QVector<Search::Edit> edits = m_search->editsFor(index, replacement);
    QTextCursor change(m_editor->document());
    change.beginEditBlock();
    apply(edits);
    change.endEditBlock();
    int behind = start;
    for (const Search::Edit &edit : edits)
        behind += edit.position < start ? -edit.length : edit.text.size();
    jump(Here, behind + (wasEmpty ? 1 : 0));
}

void FindBar::apply(const QVector<Search::Edit> &edits)
{
    QTextCursor cursor(m_editor->document());
    for (const Search::Edit &edit : edits) {
        cursor.setPosition(edit.position);
        cursor.setPosition(edit.position + edit.length, QTextCursor::KeepAnchor);
        cursor.insertText(edit.text);
    }
}

void FindBar::replaceAll()
{
    if (!m_isEditable || isReplacing())
        return;
    remember();
    tell({});
    m_jump = Nowhere;
    if (!search())
        return;
    m_wantsAll = true;
    goOn(atOnce);
}

void FindBar::beginReplacing()
{
    m_wantsAll = false;
    const int count = m_search->places().size();
    if (m_search->state() == Search::TooMany) {
        tell(tr("Nothing was replaced: there are more than %1 matches.").arg(number(count)));
        return;
    }
    if (m_search->state() == Search::TooSlow) {
        tell(tr("Nothing was replaced: at line %1 the expression takes too many steps.")
                 .arg(m_editor->document()->findBlock(m_search->stoppedAt()).blockNumber() + 1));
        return;
    }
    if (count == 0 || !m_isEditable)
        return;
    m_replacement = std::make_unique<Replacement>(
        m_newText->text(), m_isExpression->isChecked() ? m_search->groups() : -1);
    if (!m_replacement->mistake().isEmpty()) {
        tell(m_replacement->mistake());
        return;
    }
    m_replaced = 0;
    m_replacing = count - 1;
    replaceSome(atOnce);
}

// From the end on, so that the places before stay where they are.
void FindBar::replaceSome(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    QTextCursor block(m_editor->document());
    if (m_replaced == 0)
        block.beginEditBlock();
    else
        block.joinPreviousEditBlock();
    do {
        apply(m_search->editsFor(m_replacing--, *m_replacement));
        ++m_replaced;
    } while (m_replacing >= 0 && (milliseconds < 0 || clock.elapsed() < milliseconds));
    block.endEditBlock();
    if (m_replacing >= 0) {
        if (!m_editor->isReadOnly())
            m_editor->setReadOnly(true);
        m_state->setText(tr("Replacing…"));
        m_goOn.start();
        return;
    }
    m_goOn.stop();
    if (m_editor->isReadOnly())
        m_editor->setReadOnly(false);
    m_replacement.reset();
    jump(Nowhere);
    tell(tr("Replaced matches: %1.").arg(number(m_replaced)));
}

void FindBar::finishReplacing()
{
    if (isReplacing())
        replaceSome(-1);
}

void FindBar::forget()
{
    m_goOn.stop();
    m_search.reset();
    m_jump = Nowhere;
    m_wantsAll = false;
}

void FindBar::leave()
{
    remember();
    hide();
    m_newRow->hide();
    m_changed.stop();
    m_seen.clear();
    m_editor->viewport()->update();
    if (!isReplacing())
        forget(); // it holds the text
    m_editor->setFocus();
}

bool FindBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isUp = key->key() == Qt::Key_Up;
        const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (watched == m_newText && isEnter && key->modifiers() == Qt::NoModifier) {
            replace();
            return true;
        }
        if (watched == m_text && (isUp || key->key() == Qt::Key_Down) &&
            key->modifiers() == Qt::NoModifier) {
            recall(isUp ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
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
