#include "scrollingtext.h"

#include <QEvent>
#include <QLabel>
#include <QScrollBar>

namespace Workbench
{

ScrollingText::ScrollingText(QLabel *label, const QString &name)
    : m_label(label)
{
    label->setWordWrap(true);
    label->setMinimumWidth(1); // a long word is cut rather than all of it moved
    setAccessibleName(name);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setWidgetResizable(true);
    setWidget(label);
    label->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    // Keys have something to do here only while there is more than what is seen.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int least, int most) {
        setFocusPolicy(most > least ? Qt::StrongFocus : Qt::NoFocus);
    });
}

QSize ScrollingText::sizeHint() const
{
    return {m_label->sizeHint().width(), m_label->heightForWidth(width())};
}

QSize ScrollingText::minimumSizeHint() const
{
    const int lines = 2 * fontMetrics().lineSpacing() + 4; // and what a label leaves around
    return {fontMetrics().averageCharWidth() * 8, qMin(lines, sizeHint().height())};
}

bool ScrollingText::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) { // another text
        verticalScrollBar()->setValue(0);
        updateGeometry();
    }
    return QScrollArea::event(event);
}

void ScrollingText::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (event->size().width() == event->oldSize().width())
        return;
    verticalScrollBar()->setValue(0);
    updateGeometry();
}

} // namespace Workbench
