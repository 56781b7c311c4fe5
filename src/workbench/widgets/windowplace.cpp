#include "windowplace.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

#include <algorithm>

namespace Workbench
{

namespace
{

constexpr int delay = 500;    // of keeping a change, in milliseconds
constexpr int limit = 100000; // of numbers that make sense, in pixels

bool isSound(const QRect &place)
{
    const auto isNear = [](int number) { return number > -limit && number < limit; };
    return isNear(place.left()) && isNear(place.top()) && isNear(place.right()) &&
           isNear(place.bottom()) && place.isValid();
}

qint64 shared(const QRect &one, const QRect &other)
{
    const QRect both = one & other;
    return both.isValid() ? qint64(both.width()) * both.height() : 0;
}

} // namespace

WindowPlace::WindowPlace(QSettings &settings, const QString &key, QWidget *window)
    : QObject(window)
    , m_settings(settings)
    , m_key(key)
    , m_window(window)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &WindowPlace::save);
    window->installEventFilter(this);
}

QRect WindowPlace::onScreen(const QRect &wanted, const QVector<QRect> &screens)
{
    const QRect screen = *std::max_element(screens.begin(), screens.end(),
                                           [&wanted](const QRect &one, const QRect &other) {
                                               return shared(one, wanted) < shared(other, wanted);
                                           });
    const QSize size = wanted.size().boundedTo(screen.size());
    const auto within = [](int first, int least, int room) {
        return std::clamp(first, least, least + room);
    };
    return {QPoint(within(wanted.left(), screen.left(), screen.width() - size.width()),
                   within(wanted.top(), screen.top(), screen.height() - size.height())),
            size};
}

bool WindowPlace::restore()
{
    const QRect kept = m_settings.value(m_key).toRect();
    const QList<QScreen *> all = QGuiApplication::screens(); // the primary one first
    if (!isSound(kept) || all.isEmpty())
        return false;
    QVector<QRect> screens;
    for (const QScreen *screen : all)
        screens.append(screen->availableGeometry());
    const QRect place = onScreen(kept, screens);
    m_window->resize(place.size());
    m_window->move(place.topLeft());
    return true;
}

void WindowPlace::save()
{
    m_timer.stop();
    const QRect place(m_window->pos(), m_window->size());
    if (place == m_known || m_window->isMaximized() || m_window->isFullScreen())
        return;
    m_known = place;
    m_settings.setValue(m_key, place);
}

bool WindowPlace::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (!event->spontaneous())
            m_known = QRect(m_window->pos(), m_window->size());
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (m_window->isVisible())
            m_timer.start();
        break;
    case QEvent::Hide:
        if (!event->spontaneous() && m_timer.isActive())
            save();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Workbench
