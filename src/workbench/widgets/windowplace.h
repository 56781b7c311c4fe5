#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>
#include <QVector>

QT_FORWARD_DECLARE_CLASS(QSettings)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace Workbench
{

// Remembers where a window is and how large, from the first change on that was made while it was
// shown, and brings it back there. It belongs to the window.
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    // The settings must outlive the window.
    WindowPlace(QSettings &settings, const QString &key, QWidget *window);

    // False if nothing is remembered.
    bool restore();
    // Puts a window that is still hidden there, as onScreen() says.
    static void put(QWidget *window, const QRect &wanted);
    // Where a window comes up that was there, with its frame's place and its own size: as it was,
    // if that is on a screen. Otherwise on the screen that has most of it, or the first, with its
    // frame, and smaller where that has no room for it, but not smaller than the least size. There
    // must be a screen.
    static QRect onScreen(const QRect &wanted, const QSize &frame, const QSize &least,
                          const QVector<QRect> &screens);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void save();

    QSettings &m_settings;
    const QString m_key;
    QWidget *m_window;
    QRect m_known; // with the frame's place and the window's own size
    QTimer m_timer;
};

} // namespace Workbench
