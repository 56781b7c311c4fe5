#include "mapview.h"

#include "widgets/colours.h"
#include "widgets/vectorpicture.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>

namespace Workbench
{

namespace
{

// Nothing but a frame when it has the focus, and a paler one under the mouse.
class DoorButton : public QPushButton
{
public:
    DoorButton(const QString &text, QWidget *parent)
        : QPushButton(parent)
    {
        setAccessibleName(text);
        setToolTip(text);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::ClickFocus);
        setAutoDefault(false);
        setProperty("walkedByArrows", true); // Tab stops at one of them
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const bool isUnderMouse = underMouse();
        if (!hasFocus() && !isUnderMouse)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor colour = Colours::door(palette());
        if (isUnderMouse) {
            colour.setAlpha(50);
            painter.setBrush(colour);
            colour.setAlpha(255);
        }
        const qreal width = hasFocus() ? 3 : 1;
        painter.setPen(QPen(colour, width));
        const qreal half = width / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), 3, 3);
    }
};

} // namespace

MapView::MapView(const MapPicture &picture, QWidget *parent)
    : QScrollArea(parent)
    , m_picture(picture)
    , m_canvas(new QWidget)
{
    setAccessibleName(picture.title);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    m_canvas->setObjectName(QStringLiteral("mapPicture"));
    m_canvas->setAccessibleName(picture.text);
    m_canvas->installEventFilter(this);
    for (const MapDoor &door : m_picture.doors) {
        auto *button = new DoorButton(door.text, m_canvas);
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this, [this, door] { Q_EMIT doorOpened(door); });
        m_doors.append(button);
    }
    setWidget(m_canvas);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    if (m_doors.isEmpty())
        setFocusPolicy(Qt::StrongFocus); // to be scrolled by keys
    else
        setCurrent(0);
    fit();
}

// As large as the letters of the window ask for; narrower where there is less room, as long as it
// can be read.
void MapView::fit()
{
    const QSizeF size = m_picture.light->size();
    const qreal wanted = fontMetrics().height() / 15.0; // of the line that texts of pictures have
    const int room = width() - verticalScrollBar()->sizeHint().width();
    const qreal scale = qBound(0.7 * wanted, room / size.width(), wanted);
    m_canvas->resize((size * scale).toSize());
    for (int i = 0; i < m_doors.size(); ++i) {
        const QRect &box = m_picture.doors.at(i).box;
        m_doors.at(i)->setGeometry(
            QRectF(box.topLeft() * scale, QSizeF(box.size()) * scale).toAlignedRect());
    }
}

void MapView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

void MapView::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fit();
}

void MapView::focusInEvent(QFocusEvent *event)
{
    QScrollArea::focusInEvent(event);
    if (!m_doors.isEmpty())
        m_doors.at(m_current)->setFocus(event->reason());
}

bool MapView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_canvas) {
        if (event->type() == QEvent::Paint)
            paintPicture(m_canvas);
        return QScrollArea::eventFilter(watched, event);
    }
    for (int i = 0; i < m_doors.size(); ++i) {
        if (watched != m_doors.at(i))
            continue;
        if (event->type() == QEvent::FocusIn) {
            setCurrent(i);
            ensureWidgetVisible(m_doors.at(i), 0, m_doors.at(i)->height());
        } else if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                m_doors.at(i)->click();
                return true;
            }
            return move(key);
        }
    }
    return QScrollArea::eventFilter(watched, event);
}

void MapView::paintPicture(QWidget *canvas) const
{
    QPainter painter(canvas);
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    const auto &picture = isDark && m_picture.dark ? m_picture.dark : m_picture.light;
    picture->paint(&painter, canvas->rect());
}

void MapView::setCurrent(int door)
{
    m_doors.at(m_current)->setFocusPolicy(Qt::ClickFocus);
    m_current = door;
    m_doors.at(door)->setFocusPolicy(Qt::StrongFocus);
}

bool MapView::move(int key)
{
    int door = m_current;
    switch (key) {
    case Qt::Key_Down:
    case Qt::Key_Right:
        ++door;
        break;
    case Qt::Key_Up:
    case Qt::Key_Left:
        --door;
        break;
    case Qt::Key_Home:
        door = 0;
        break;
    case Qt::Key_End:
        door = m_doors.size() - 1;
        break;
    default:
        return false;
    }
    m_doors.at(qBound(0, door, m_doors.size() - 1))->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace Workbench
