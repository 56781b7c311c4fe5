#include "scrollingtext.h"

#include <QEvent>
#include <QLabel>
#include <QResizeEvent>
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
    const QFontMetrics metrics = m_label->fontMetrics();
    const int lines = metrics.lineSpacing() + metrics.height();
    return {fontMetrics().averageCharWidth() * 8, qMin(lines, sizeHint().height())};
}

bool ScrollingText::event(QEvent *event)
{
    // Another text is told by a request, unless it was set before this was shown.
    if (event->type() == QEvent::Show) {
        QEvent request(QEvent::LayoutRequest);
        ScrollingText::event(&request);
    }
    const bool isResized = event->type() == QEvent::Resize;
    if (isResized || event->type() == QEvent::LayoutRequest) {
        // QScrollArea would keep a bar because the text is longer beside it.
        const bool isSeen = m_label->heightForWidth(width()) <= height();
        setVerticalScrollBarPolicy(isSeen ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
        if (!isResized || width() != static_cast<QResizeEvent *>(event)->oldSize().width()) {
            verticalScrollBar()->setValue(0);
            updateGeometry();
        }
    }
    return QScrollArea::event(event);
}

} // namespace Workbench
