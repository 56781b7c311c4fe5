#include "scrollingpage.h"

#include <QEvent>
#include <QLayout>
#include <QScrollBar>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

// The least that a page is given before it scrolls.
constexpr int leastLetters = 64;
constexpr int leastLines = 6;

} // namespace

ScrollingPage::ScrollingPage(QWidget *page)
    : QScrollArea(page)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // its parts have it
    auto *content = new QWidget;
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QWidget *ScrollingPage::fill(QWidget *page)
{
    auto *area = new ScrollingPage(page);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    return area->widget();
}

QSize ScrollingPage::minimumSizeHint() const
{
    const QSize most(fontMetrics().averageCharWidth() * leastLetters,
                     fontMetrics().height() * leastLines);
    const QLayout *layout = widget()->layout();
    // A page that is lower than its parts has the bar beside them.
    const QSize bar(verticalScrollBar()->sizeHint().width(), 0);
    return layout ? (layout->totalMinimumSize() + bar).boundedTo(most) : most;
}

// The parts may have been laid out for the first time.
bool ScrollingPage::event(QEvent *event)
{
    const bool isDone = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest)
        fit();
    return isDone;
}

bool ScrollingPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        fit();
    }
    return QScrollArea::eventFilter(watched, event);
}

void ScrollingPage::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

void ScrollingPage::fit()
{
    QLayout *layout = widget()->layout();
    if (!layout)
        return;
    const QSize least = layout->totalMinimumSize();
    const auto leastHeight = [&](int width) {
        return layout->hasHeightForWidth() ? layout->minimumHeightForWidth(width) : least.height();
    };
    QSize room = maximumViewportSize();
    if (least.width() > room.width())
        room.rheight() -= horizontalScrollBar()->sizeHint().height();
    if (leastHeight(qMax(room.width(), least.width())) > room.height())
        room.rwidth() -= verticalScrollBar()->sizeHint().width();
    const int width = qMax(room.width(), least.width());
    widget()->resize(width, qMax(room.height(), leastHeight(width)));
}

} // namespace Workbench
