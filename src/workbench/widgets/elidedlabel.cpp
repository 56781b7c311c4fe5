#include "elidedlabel.h"

#include <QPainter>
#include <QStyle>

namespace Workbench
{

QSize ElidedLabel::minimumSizeHint() const
{
    return {qMin(QLabel::minimumSizeHint().width(), fontMetrics().averageCharWidth() * 8),
            QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QRect room = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    const QString whole = shown == text() ? QString() : text();
    if (toolTip() != whole)
        setToolTip(whole);
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          shown, foregroundRole());
}

} // namespace Workbench
