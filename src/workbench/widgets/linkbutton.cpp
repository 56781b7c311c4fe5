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

LinkButton::Places LinkButton::places(int width) const
{
    if (m_placesTitle != text() || m_placesDescription != description())
        m_places.clear();
    m_placesTitle = text();
    m_placesDescription = description();
    const auto known = m_places.constFind(width);
    if (known != m_places.constEnd())
        return *known;
    const int left = 2 * gap() + iconSide();
    const QRect room(left, gap(), qMax(1, width - left - gap()), 0x4000);
    Places result;
    result.title = QFontMetrics(titleFont()).boundingRect(room, textFlags, title());
    result.title.setWidth(room.width()); // so that it breaks in the same places when it is drawn
    const int below = result.title.bottom() + 1;
    if (description().isEmpty()) {
        result.description = {left, below, 0, 0};
    } else {
        result.description = fontMetrics().boundingRect(
            room.translated(0, below + gap() / 3 - gap()), textFlags, description());
        result.description.setWidth(room.width());
    }
    if (m_places.size() > 16) // a window that is being resized
        m_places.clear();
    m_places.insert(width, result);
    return result;
}

int LinkButton::heightForWidth(int width) const
{
    const int text = places(width).description.bottom() + 1 + gap();
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
        m_places.clear();
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
    const Places at = places(width());
    painter.drawItemText(at.title, textFlags, option.palette, isEnabled(), title(),
                         QPalette::ButtonText);
    painter.setFont(font());
    painter.drawItemText(at.description, textFlags, option.palette, isEnabled(), description(),
                         QPalette::ButtonText);
}

} // namespace Workbench
