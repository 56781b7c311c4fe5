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
    // A rectangle on one of the screens, of which there must be one: the screen that has most of
    // it, or the first; it is moved there, and made smaller if it is larger.
    static QRect onScreen(const QRect &wanted, const QVector<QRect> &screens);

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
