#include "linkbutton.h"

#include <QEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace Workbench
{

namespace
{

constexpr int textFlags = int(Qt::AlignLeft) | int(Qt::AlignTop) | int(Qt::TextWordWrap);

} // namespace

LinkButton::LinkButton(const QString &text, const QString &description, const QIcon &icon,
                       QWidget *parent)
    : QCommandLinkButton(QString(text).replace(u'&', QLatin1String("&&")), description, parent)
{
    setAccessibleDescription(description);
    setIcon(icon);
    setIconSize({iconSide(), iconSide()});
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QFont LinkButton::titleFont() const
{
    QFont result = font();
    result.setBold(true);
    return result;
}

QString LinkButton::title() const
{
    return text().replace(QLatin1String("&&"), QLatin1String("&"));
}

int LinkButton::iconSide() const
{
    return fontMetrics().height() * 5 / 4;
}

QRect LinkButton::titleRect(int width) const
{
    const int left = 2 * gap() + iconSide();
    const QRect room(left, gap(), qMax(1, width - left - gap()), 0x4000);
    QRect result = QFontMetrics(titleFont()).boundingRect(room, textFlags, title());
    result.setWidth(room.width()); // so that it breaks in the same places when it is drawn
    return result;
}

QRect LinkButton::descriptionRect(int width) const
{
    const QRect above = titleRect(width);
    const int left = 2 * gap() + iconSide();
    const QRect room(left, above.bottom() + 1 + gap() / 3, qMax(1, width - left - gap()), 0x4000);
    if (description().isEmpty())
        return {room.left(), above.bottom() + 1, 0, 0};
    QRect result = fontMetrics().boundingRect(room, textFlags, description());
    result.setWidth(room.width());
    return result;
}

int LinkButton::heightForWidth(int width) const
{
    const int text = descriptionRect(width).bottom() + 1 + gap();
    return qMax(text, iconSide() + 2 * gap());
}

QSize LinkButton::sizeHint() const
{
    const int texts = qMax(QFontMetrics(titleFont()).horizontalAdvance(title()),
                           fontMetrics().horizontalAdvance(description()));
    const int width = qMin(texts + 3 * gap() + iconSide() + 1, 60 * fontMetrics().height());
    return {width, heightForWidth(width)};
}

QSize LinkButton::minimumSizeHint() const
{
    const int width = 14 * fontMetrics().height();
    return {width, iconSide() + 2 * gap()};
}

void LinkButton::changeEvent(QEvent *event)
{
    QCommandLinkButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        setIconSize({iconSide(), iconSide()});
        updateGeometry();
    }
}

void LinkButton::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.features |= QStyleOptionButton::CommandLinkButton;
    option.text.clear();
    option.icon = QIcon();
    painter.drawControl(QStyle::CE_PushButton, option);

    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    icon().paint(&painter, QRect(gap(), gap(), iconSide(), iconSide()), Qt::AlignCenter, mode);
    painter.setFont(titleFont());
    painter.drawItemText(titleRect(width()), textFlags, option.palette, isEnabled(), title(),
                         QPalette::ButtonText);
    painter.setFont(font());
    painter.drawItemText(descriptionRect(width()), textFlags, option.palette, isEnabled(),
                         description(), QPalette::ButtonText);
}

} // namespace Workbench
