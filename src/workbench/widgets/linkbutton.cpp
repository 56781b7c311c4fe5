#include "linkbutton.h"

#include <QEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace Workbench
{

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

void LinkButton::takeTexts() const
{
    m_title.set(title(), titleFont(), layoutDirection());
    m_description.set(description(), font(), layoutDirection());
}

LinkButton::Places LinkButton::places(int width) const
{
    takeTexts();
    const int left = 2 * gap() + iconSide();
    const int room = qMax(1, width - left - gap());
    Places result;
    result.title = {left, gap(), room, m_title.sizeFor(room).height()};
    const int below = result.title.bottom() + 1;
    if (description().isEmpty())
        result.description = {left, below, 0, 0};
    else
        result.description = {left, below + gap() / 3, room, m_description.sizeFor(room).height()};
    return result;
}

int LinkButton::heightForWidth(int width) const
{
    const int text = places(width).description.bottom() + 1 + gap();
    return qMax(text, iconSide() + 2 * gap());
}

QSize LinkButton::sizeHint() const
{
    takeTexts();
    const int texts = qMax(m_title.naturalWidth(), m_description.naturalWidth());
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
    const Places at = places(width());
    painter.setPen(option.palette.color(QPalette::ButtonText));
    m_title.draw(&painter, at.title);
    m_description.draw(&painter, at.description);
}

} // namespace Workbench
