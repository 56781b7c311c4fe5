#include "codeeditor.h"

#include "textfile.h"
#include "widgets/colours.h"
#include "widgets/fixedfont.h"

#include <QHelpEvent>
#include <QMimeData>
#include <QPainter>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QThreadPool>
#include <QToolTip>

namespace Workbench
{

namespace
{

// A selection as it is shown, with the bytes that no other program would take.
const QString ownFormat = QStringLiteral("application/x-tarvo-shown-text");

// From so many on, deleting a text takes a while.
constexpr int manyLines = 10000;

class LineNumbers : public QWidget
{
public:
    explicit LineNumbers(CodeEditor *editor)
        : QWidget(editor)
        , m_editor(editor)
    {
    }

    QSize sizeHint() const override { return {m_editor->lineNumberWidth(), 0}; }

protected:
    void paintEvent(QPaintEvent *event) override { m_editor->paintLineNumbers(event); }

private:
    CodeEditor *m_editor;
};

} // namespace

CodeEditor::CodeEditor(QWidget *parent)
    : QPlainTextEdit(parent)
    , m_lineNumbers(new LineNumbers(this))
{
    setMinimumHeight(fontMetrics().height() * 2); // on a small screen, with all bars
    setLineWrapMode(NoWrap);
    setFont(fixedFont());
    connect(this, &QPlainTextEdit::blockCountChanged, this, &CodeEditor::layoutLineNumbers);
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect &rect, int dy) {
        if (dy != 0)
            m_lineNumbers->scroll(0, dy);
        else
            m_lineNumbers->update(0, rect.y(), m_lineNumbers->width(), rect.height());
    });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeEditor::markCurrentLine);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeEditor::leaveHalfCharacters);
    connect(this, &QPlainTextEdit::selectionChanged, this, &CodeEditor::leaveHalfCharacters);
    layoutLineNumbers();
    markCurrentLine();
}

// A character of two code units stays whole, wherever the cursor was put.
void CodeEditor::leaveHalfCharacters()
{
    QTextCursor cursor = textCursor();
    const auto whole = [this](int position) {
        const bool inside = position > 0 &&
                            document()->characterAt(position - 1).isHighSurrogate() &&
                            document()->characterAt(position).isLowSurrogate();
        return inside ? position - 1 : position;
    };
    const int anchor = whole(cursor.anchor());
    const int position = whole(cursor.position());
    if (anchor == cursor.anchor() && position == cursor.position())
        return;
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void CodeEditor::goToLine(int line)
{
    const int number = qBound(1, line, blockCount());
    QTextCursor cursor(document()->findBlockByNumber(number - 1));
    setTextCursor(cursor);
    centerCursor();
}

int CodeEditor::currentLine() const
{
    return textCursor().blockNumber() + 1;
}

void CodeEditor::renewDocument()
{
    QTextDocument *old = document();
    auto *fresh = new QTextDocument(this);
    fresh->setDocumentLayout(new QPlainTextDocumentLayout(fresh));
    fresh->setDefaultFont(old->defaultFont());
    fresh->setDefaultTextOption(old->defaultTextOption());
    // So that the editor does not delete it; nothing here may know it from now on.
    old->setParent(nullptr);
    setDocument(fresh);
    markCurrentLine(); // its cursor was one of the old text's
    layoutLineNumbers();
    if (old->blockCount() < manyLines) {
        delete old;
        return;
    }
    old->moveToThread(nullptr);
    QThreadPool::globalInstance()->start([old] { delete old; });
}

void CodeEditor::expectLines(int lines)
{
    m_expectedLines = lines;
    layoutLineNumbers();
}

int CodeEditor::lineNumberWidth() const
{
    if (!m_hasLineNumbers)
        return 0;
    const int digits = qMax(3, QString::number(qMax(blockCount(), m_expectedLines)).size());
    return fontMetrics().horizontalAdvance(u'9') * (digits + 2);
}

void CodeEditor::layoutLineNumbers()
{
    const int width = lineNumberWidth();
    if (viewportMargins().left() != width)
        setViewportMargins(width, 0, 0, 0);
    setTabStopDistance(m_tabWidth * fontMetrics().horizontalAdvance(u' '));
    const QRect inner = contentsRect();
    m_lineNumbers->setGeometry(inner.left(), inner.top(), width, inner.height());
}

void CodeEditor::paintLineNumbers(QPaintEvent *event)
{
    QPainter painter(m_lineNumbers);
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    painter.setFont(font());
    const int right = m_lineNumbers->width() - fontMetrics().horizontalAdvance(u'9');
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= event->rect().bottom()) {
        const qreal height = blockBoundingRect(block).height();
        if (top + height >= event->rect().top()) {
            const bool current = block.blockNumber() == textCursor().blockNumber();
            painter.setPen(current ? palette().color(QPalette::WindowText)
                                   : Colours::quietOnWindow(palette()));
            painter.drawText(QRectF(0, top, right, fontMetrics().height()), Qt::AlignRight,
                             QString::number(block.blockNumber() + 1));
        }
        block = block.next();
        top += height;
    }
}

void CodeEditor::setLook(const EditorLook &look)
{
    const int zoom = m_zoom;
    m_zoom = 0;
    m_tabWidth = look.tabWidth;
    m_hasLineNumbers = look.hasLineNumbers;
    m_lineNumbers->setVisible(look.hasLineNumbers);
    setLineWrapMode(look.wraps ? WidgetWidth : NoWrap);
    setFont(look.font);
    zoomBy(zoom);
    layoutLineNumbers();
}

void CodeEditor::zoomBy(int steps)
{
    const int wanted = qBound(-6, m_zoom + steps, 30);
    if (wanted == m_zoom)
        return;
    zoomIn(wanted - m_zoom);
    m_zoom = wanted;
    layoutLineNumbers();
}

void CodeEditor::resetZoom()
{
    zoomBy(-m_zoom);
}

void CodeEditor::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    layoutLineNumbers();
}

void CodeEditor::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layoutLineNumbers();
    if (event->type() == QEvent::PaletteChange)
        markCurrentLine();
}

void CodeEditor::keyPressEvent(QKeyEvent *event)
{
    if (isReadOnly()) {
        const bool printable = !event->text().isEmpty() && event->text().at(0).isPrint() &&
                               !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        const bool changes =
            printable || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
            event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete ||
            event->matches(QKeySequence::Paste) || event->matches(QKeySequence::Cut);
        if (changes) {
            Q_EMIT editRefused();
            event->accept();
            return;
        }
    }
    // It would break the line without ending it.
    if (event->matches(QKeySequence::InsertLineSeparator) && !isReadOnly()) {
        insert(QStringLiteral("\n"));
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void CodeEditor::insert(const QString &text)
{
    QTextCursor cursor = textCursor();
    cursor.insertText(text);
    setTextCursor(cursor);
    ensureCursorVisible();
}

QMimeData *CodeEditor::createMimeDataFromSelection() const
{
    const QString selected = textCursor().selectedText();
    auto *copied = new QMimeData;
    copied->setText(TextFormat::fromShown(selected));
    copied->setData(ownFormat, QByteArray(reinterpret_cast<const char *>(selected.constData()),
                                          selected.size() * int(sizeof(QChar))));
    return copied;
}

void CodeEditor::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly() || !source)
        return;
    QString text;
    if (source->hasFormat(ownFormat)) {
        const QByteArray copied = source->data(ownFormat);
        text = QString(reinterpret_cast<const QChar *>(copied.constData()),
                       copied.size() / int(sizeof(QChar)));
    } else {
        text = TextFormat::toShown(source->text());
    }
    if (!text.isEmpty())
        insert(text);
}

bool CodeEditor::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QPlainTextEdit::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QTextCursor cursor = cursorForPosition(help->pos());
    // The cursor is the nearest gap, which may be the one behind the character.
    int position = cursor.positionInBlock();
    if (position > 0 && cursorRect(cursor).left() > help->pos().x())
        --position;
    const QString text = TextFormat::explanation(cursor.block().text(), position);
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), text, viewport());
    return true;
}

void CodeEditor::paintEvent(QPaintEvent *event)
{
    QPlainTextEdit::paintEvent(event);
    QPainter painter(viewport());
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
        if (place.top() > event->rect().bottom())
            break;
        if (!block.isVisible() || place.bottom() < event->rect().top())
            continue;
        paintStandIns(&painter, block, place.topLeft());
        if (m_markedPlaces)
            paintMarks(&painter, block, place.topLeft());
    }
}

// A frame for each place in the lines that are seen; of a long line only the part that is seen is
// asked for.
void CodeEditor::paintMarks(QPainter *painter, const QTextBlock &block, const QPointF &origin)
{
    constexpr int longLine = 4096; // characters
    struct Part {
        QTextLine line;
        int from; // in the block
        int to;
    };
    QVector<Part> parts;
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        const qreal top = origin.y() + line.y();
        if (top > viewport()->height() || top + line.height() < 0)
            continue;
        const int to = line.xToCursor(viewport()->width() - origin.x()) + 1;
        parts.append(
            {line, line.xToCursor(-origin.x()), qMin(to, line.textStart() + line.textLength())});
    }
    if (parts.isEmpty())
        return;
    const int start = block.position();
    const int length = block.length() - 1;
    const bool isLong = length > longLine;
    const QVector<Place> places = m_markedPlaces(start + (isLong ? parts.first().from : 0),
                                                 start + (isLong ? parts.last().to : length));
    const QTextCursor cursor = textCursor();
    painter->setBrush(Qt::NoBrush);
    for (const Place &place : places) {
        const bool isCurrent = place.position == cursor.selectionStart() &&
                               place.position + place.length == cursor.selectionEnd();
        const int width = isCurrent ? 2 : 1;
        QPen pen(isCurrent ? palette().color(QPalette::Text) : Colours::match(palette()), width);
        pen.setJoinStyle(Qt::MiterJoin);
        painter->setPen(pen);
        for (const Part &part : parts) {
            const int from = qMax(place.position - start, part.from);
            const int to = qMin(place.position + place.length - start, part.to);
            const bool isEmpty = place.length == 0 && from == to;
            if (from >= to && !isEmpty)
                continue;
            const qreal left = part.line.cursorToX(from);
            const QRectF box(origin.x() + left, origin.y() + part.line.y(),
                             part.line.cursorToX(to) - left, part.line.height());
            painter->drawRect(box.adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
        }
    }
}

// Over what the font has for characters of a private range: two rows of small letters in a box.
void CodeEditor::paintStandIns(QPainter *painter, const QTextBlock &block, const QPointF &origin)
{
    const QString text = block.text();
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool noBreak = c == QChar::Nbsp;
        if (!noBreak && !TextFormat::isStandIn(c) && !TextFormat::isMark(c))
            continue;
        const QTextLine line = block.layout()->lineForTextPosition(i);
        if (!line.isValid())
            continue;
        const QRectF box(QPointF(line.cursorToX(i), line.y()),
                         QPointF(line.cursorToX(i + 1), line.y() + line.height()));
        const QRectF place = box.translated(origin);
        if (place.right() < 0 || place.left() > viewport()->width())
            continue;
        const QRectF inner = place.adjusted(0.5, 0.5, -0.5, -0.5);
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette().color(QPalette::Base));
        painter->drawRect(place);
        QColor tint = palette().color(QPalette::Text);
        tint.setAlphaF(0.16);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(tint);
        painter->drawRoundedRect(inner, 1.5, 1.5);
        painter->setRenderHint(QPainter::Antialiasing, false);
        if (noBreak)
            continue; // a blank in a box

        const QString label = TextFormat::label(c);
        const int half = (label.size() + 1) / 2;
        const QString rows[] = {label.left(half), label.mid(half)};
        QFont small = font();
        small.setBold(false);
        const int widest = qMax(rows[0].size(), rows[1].size());
        small.setPixelSize(qMax(5, int(qMin(inner.height() / 2, inner.width() / widest * 1.7))));
        painter->setFont(small);
        painter->setPen(palette().color(QPalette::Text));
        for (int row = 0; row < 2; ++row) {
            const QRectF part(inner.left(), inner.top() + row * inner.height() / 2, inner.width(),
                              inner.height() / 2);
            painter->drawText(part, Qt::AlignCenter | Qt::TextDontClip, rows[row]);
        }
    }
}

void CodeEditor::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        zoomBy(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
        return;
    }
    QPlainTextEdit::wheelEvent(event);
}

void CodeEditor::markCurrentLine()
{
    QTextEdit::ExtraSelection line;
    line.format.setBackground(Colours::cursorLine(palette()));
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.cursor = textCursor();
    line.cursor.clearSelection();
    setExtraSelections({line});
    m_lineNumbers->update();
}

} // namespace Workbench
