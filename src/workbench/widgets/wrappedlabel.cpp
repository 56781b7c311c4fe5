#include "wrappedlabel.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOption>

#include <cmath>

namespace Workbench
{

WrappedLabel::WrappedLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void WrappedLabel::showSelectable(const QString &text)
{
    setText(text);
    m_isSelectable = true;
    setFocusPolicy(Qt::ClickFocus);
    // QLabel then has each paragraph begin at a whole pixel.
    if (text.contains(u'\n'))
        beginSelecting();
}

void WrappedLabel::beginSelecting()
{
    if (isSelecting())
        return;
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    QLabel::heightForWidth(width()); // has the text put into what selects in it
}

bool WrappedLabel::event(QEvent *event)
{
    const QEvent::Type type = event->type();
    if (m_isSelectable && (type == QEvent::Enter || type == QEvent::MouseButtonPress ||
                           type == QEvent::TouchBegin || type == QEvent::ContextMenu))
        beginSelecting();
    return QLabel::event(event);
}

bool WrappedLabel::isQLabels() const
{
    return isSelecting() || text().isEmpty() || text().contains(u'\t');
}

WrappedText &WrappedLabel::wrapped() const
{
    ensurePolished();
    m_wrapped.set(text(), font(), layoutDirection());
    return m_wrapped;
}

QSize WrappedLabel::sizeFor(int width) const
{
    const QSize margins(2 * margin() + contentsMargins().left() + contentsMargins().right(),
                        2 * margin() + contentsMargins().top() + contentsMargins().bottom());
    return wrapped().sizeFor(width - margins.width()) + margins;
}

QSize WrappedLabel::sizeHint() const
{
    if (isQLabels())
        return QLabel::sizeHint();
    if (m_isSelectable)
        return documentSize().expandedTo(minimumSize());
    const int most = qMin(fontMetrics().averageCharWidth() * 80, maximumWidth());
    const int spacing = fontMetrics().lineSpacing();
    QSize size = sizeFor(most);
    if (size.height() < 4 * spacing && size.width() > most / 2)
        size = sizeFor(most / 2);
    if (size.height() < 2 * spacing && size.width() > most / 4)
        size = sizeFor(most / 4);
    return size.expandedTo(minimumSize());
}

// As QTextDocument::adjustSize() has it: a page of 5 to 3, or of 2 to 1 if words are long for it.
QSize WrappedLabel::documentSize() const
{
    const int most = fontMetrics().horizontalAdvance(u'x') * 80;
    const auto pageFor = [this](int width) { return sizeFor(width).expandedTo({width, 0}); };
    const auto side = [](qreal area) { return int(std::sqrt(area)); };
    QSize page = pageFor(most);
    int width = side(5.0 * page.height() * page.width() / 3);
    page = pageFor(qMin(width, most));
    if (width * 3 < 5 * page.height()) {
        width = side(2.0 * page.height() * page.width());
        page = pageFor(qMin(width, most));
    }
    return sizeFor(sizeFor(qMin(width, most)).width());
}

QSize WrappedLabel::minimumSizeHint() const
{
    if (isQLabels())
        return QLabel::minimumSizeHint();
    return QSize(sizeFor(0).width(), qMin(sizeFor(QWIDGETSIZE_MAX).height(), sizeHint().height()))
        .expandedTo(minimumSize());
}

int WrappedLabel::heightForWidth(int width) const
{
    if (isQLabels())
        return QLabel::heightForWidth(width);
    return qMax(sizeFor(qMax(width, minimumWidth())).height(), minimumHeight());
}

void WrappedLabel::paintEvent(QPaintEvent *event)
{
    if (isQLabels()) {
        QLabel::paintEvent(event);
        return;
    }
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    painter.setPen(option.palette.color(foregroundRole()));
    const int edge = margin();
    wrapped().draw(&painter, contentsRect().adjusted(edge, edge, -edge, -edge), alignment());
}

} // namespace Workbench
