#include "codeeditor.h"

#include "widgets/fixedfont.h"

#include <QPainter>
#include <QTextBlock>

namespace Workbench
{

namespace
{

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
    layoutLineNumbers();
    markCurrentLine();
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

int CodeEditor::lineNumberWidth() const
{
    const int digits = qMax(3, QString::number(blockCount()).size());
    return fontMetrics().horizontalAdvance(u'9') * (digits + 2);
}

void CodeEditor::layoutLineNumbers()
{
    const int width = lineNumberWidth();
    setViewportMargins(width, 0, 0, 0);
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
            painter.setPen(palette().color(current ? QPalette::Active : QPalette::Disabled,
                                           QPalette::WindowText));
            painter.drawText(QRectF(0, top, right, fontMetrics().height()), Qt::AlignRight,
                             QString::number(block.blockNumber() + 1));
        }
        block = block.next();
        top += height;
    }
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
    QPlainTextEdit::keyPressEvent(event);
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
    QColor color = palette().color(QPalette::Highlight);
    color.setAlphaF(0.12);
    line.format.setBackground(color);
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.cursor = textCursor();
    line.cursor.clearSelection();
    setExtraSelections({line});
    m_lineNumbers->update();
}

} // namespace Workbench
