#include "windowplace.h"

#include <ipcore/screenfit.h>

#include <QEvent>
#include <QGuiApplication>
#include <QLayout>
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

QRect WindowPlace::onScreen(const QRect &wanted, const QSize &frame, const QSize &least,
                            const QVector<QRect> &screens)
{
    const QRect screen = *std::max_element(screens.begin(), screens.end(),
                                           [&wanted](const QRect &one, const QRect &other) {
                                               return shared(one, wanted) < shared(other, wanted);
                                           });
    const QRect grown(wanted.topLeft(), wanted.size().expandedTo(least));
    if (screen.contains(grown))
        return grown;
    const QSize size = wanted.size().boundedTo(screen.size() - frame).expandedTo(least);
    const QSize room = (screen.size() - frame - size).expandedTo(QSize(0, 0));
    return {QPoint(std::clamp(wanted.left(), screen.left(), screen.left() + room.width()),
                   std::clamp(wanted.top(), screen.top(), screen.top() + room.height())),
            size};
}

void WindowPlace::put(QWidget *window, const QRect &wanted)
{
    QVector<QRect> screens;
    const QList<QScreen *> all = QGuiApplication::screens(); // the primary one first
    for (const QScreen *screen : all)
        screens.append(screen->availableGeometry());
    if (screens.isEmpty())
        return;
    // A layout says only now, or when the window is shown, what it needs.
    window->ensurePolished();
    if (window->layout())
        window->layout()->activate();
    const QSize frame = window->screen()->availableSize() - IPCore::roomOnScreen(window);
    const QRect place = onScreen(wanted, frame, window->minimumSize(), screens);
    window->resize(place.size());
    window->move(place.topLeft());
}

bool WindowPlace::restore()
{
    const QRect kept = m_settings.value(m_key).toRect();
    if (!isSound(kept))
        return false;
    put(m_window, kept);
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
