#include "sidebyside.h"

#include "widgets/fixedfont.h"

#include <reading/linediff.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStackedLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

using Reading::DiffLine;

QStringList linesOf(const QString &text)
{
    if (text.isEmpty())
        return {};
    QStringList lines = text.split(u'\n');
    if (lines.constLast().isEmpty())
        lines.removeLast();
    else
        lines.last() += SideBySide::tr(" (no line end)");
    return lines;
}

// What would not be seen, or end the line.
QString visible(const QString &line)
{
    QString text;
    text.reserve(line.size());
    for (const QChar c : line)
        text +=
            c.isPrint() || c.isSurrogate() || c == u'\t' ? c : QChar(QChar::ReplacementCharacter);
    return text;
}

void setUp(QPlainTextEdit *pane, const QString &name)
{
    pane->setReadOnly(true);
    pane->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    pane->setLineWrapMode(QPlainTextEdit::NoWrap);
    pane->setTabChangesFocus(true);
    pane->setUndoRedoEnabled(false);
    pane->setFont(fixedFont());
    pane->setAccessibleName(name);
}

void color(QPlainTextEdit *pane, int row, const QColor &back, const QColor &text)
{
    QTextCursor cursor(pane->document()->findBlockByNumber(row));
    QTextBlockFormat block;
    block.setBackground(back);
    cursor.setBlockFormat(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat characters;
    characters.setForeground(text);
    cursor.setCharFormat(characters);
}

} // namespace

QVector<SideRow> sideRows(const QString &before, const QString &after)
{
    const QVector<DiffLine> lines = Reading::lineDiff(linesOf(before), linesOf(after));
    QVector<SideRow> rows;
    int left = 0;
    int right = 0;
    int open = 0; // the first row of the stretch that has no added line yet
    for (const DiffLine &line : lines) {
        switch (line.kind) {
        case DiffLine::Same:
            rows.append({SideRow::Same, ++left, ++right, line.text, line.text});
            open = rows.size();
            break;
        case DiffLine::Removed:
            rows.append({SideRow::Changed, ++left, 0, line.text, QString()});
            break;
        case DiffLine::Added:
            if (open == rows.size())
                rows.append({SideRow::Changed, 0, 0, QString(), QString()});
            rows[open].after = ++right;
            rows[open].right = line.text;
            ++open;
            break;
        }
    }
    return rows;
}

SideBySide::SideBySide(QWidget *parent)
    : QWidget(parent)
    , m_pages(new QStackedLayout(this))
    , m_message(new QLabel)
    , m_before(new QPlainTextEdit)
    , m_after(new QPlainTextEdit)
{
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setTextFormat(Qt::PlainText);
    setUp(m_before, tr("Before"));
    setUp(m_after, tr("After"));
    auto *texts = new QWidget;
    auto *columns = new QHBoxLayout(texts);
    columns->setContentsMargins(0, 0, 0, 0);
    for (QPlainTextEdit *pane : {m_before, m_after}) {
        auto *column = new QVBoxLayout;
        auto *title = new QLabel(pane->accessibleName());
        title->setBuddy(pane);
        column->addWidget(title);
        column->addWidget(pane);
        columns->addLayout(column);
    }
    m_pages->addWidget(m_message);
    m_pages->addWidget(texts);
    const auto follow = [](QPlainTextEdit *one, QPlainTextEdit *other) {
        connect(one->verticalScrollBar(), &QScrollBar::valueChanged, other->verticalScrollBar(),
                &QScrollBar::setValue);
        connect(one->horizontalScrollBar(), &QScrollBar::valueChanged, other->horizontalScrollBar(),
                &QScrollBar::setValue);
    };
    follow(m_before, m_after);
    follow(m_after, m_before);
}

void SideBySide::setTexts(const std::optional<QString> &before, const std::optional<QString> &after)
{
    const bool isSame =
        m_pages->currentIndex() == 1 && before == m_beforeText && after == m_afterText;
    if (isSame)
        return;
    const auto isLong = [](const std::optional<QString> &text) {
        return text && (text->size() > longestText || text->count(u'\n') > mostLines);
    };
    if (isLong(before) || isLong(after)) {
        setMessage(tr("The text is too long to be shown side by side."));
        return;
    }
    m_beforeText = before;
    m_afterText = after;
    m_rows = sideRows(before.value_or(QString()), after.value_or(QString()));
    fill();
    m_pages->setCurrentIndex(1);
    for (QPlainTextEdit *pane : {m_before, m_after})
        pane->moveCursor(QTextCursor::Start);
    if (!m_rows.isEmpty() && m_rows.constFirst().kind == SideRow::Same)
        showNextChange();
}

void SideBySide::setMessage(const QString &message)
{
    m_beforeText.reset();
    m_afterText.reset();
    m_rows.clear();
    m_before->clear();
    m_after->clear();
    m_message->setText(message);
    m_pages->setCurrentIndex(0);
}

void SideBySide::fill()
{
    const SideColors colors = sideColors(palette());
    const int digits = QString::number(m_rows.size()).size();
    const auto numbered = [digits](QChar mark, int number, const QString &line) {
        return number == 0
                   ? QString()
                   : QString(mark + QStringLiteral(" %1  ").arg(number, digits) + visible(line));
    };
    QStringList left;
    QStringList right;
    for (const SideRow &row : qAsConst(m_rows)) {
        const bool isSame = row.kind == SideRow::Same;
        left.append(numbered(isSame ? u' ' : u'-', row.before, row.left));
        right.append(numbered(isSame ? u' ' : u'+', row.after, row.right));
    }
    m_before->setPlainText(left.join(u'\n'));
    m_after->setPlainText(right.join(u'\n'));
    for (QPlainTextEdit *pane : {m_before, m_after}) {
        QTextCursor cursor(pane->document());
        cursor.beginEditBlock();
        for (int i = 0; i < m_rows.size(); ++i) {
            const SideRow &row = m_rows.at(i);
            if (row.kind == SideRow::Same)
                continue;
            const bool isBefore = pane == m_before;
            const bool isMissing = (isBefore ? row.before : row.after) == 0;
            color(pane, i,
                  isMissing  ? colors.missing
                  : isBefore ? colors.removed
                             : colors.added,
                  colors.text);
        }
        cursor.endEditBlock();
    }
}

void SideBySide::showNextChange()
{
    const int count = m_rows.size();
    const int from = m_after->textCursor().blockNumber();
    const auto begins = [this](int row) {
        return m_rows.at(row).kind != SideRow::Same &&
               (row == 0 || m_rows.at(row - 1).kind == SideRow::Same);
    };
    for (int step = 1; step <= count; ++step) {
        const int row = (from + step) % count;
        if (!begins(row))
            continue;
        for (QPlainTextEdit *pane : {m_before, m_after}) {
            pane->setTextCursor(QTextCursor(pane->document()->findBlockByNumber(row)));
            pane->centerCursor();
        }
        return;
    }
}

void SideBySide::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_rows.isEmpty())
        fill();
}

} // namespace Workbench
