#pragma once

#include "mappicture.h"

#include <QScrollArea>

QT_FORWARD_DECLARE_CLASS(QAbstractButton)

namespace Workbench
{

// Shows a picture whose places can be gone through with the arrow keys, Home and End, and opened
// with a click, Enter or Space. With Tab the picture is one stop.
class MapView : public QScrollArea
{
    Q_OBJECT

public:
    explicit MapView(const MapPicture &picture, QWidget *parent = nullptr);

    const MapPicture &picture() const { return m_picture; }
    // In the order of the picture's.
    const QVector<QAbstractButton *> &doors() const { return m_doors; }

Q_SIGNALS:
    void doorOpened(const Workbench::MapDoor &door);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit();
    void paintPicture(QWidget *canvas) const;
    // The one that Tab leads to.
    void setCurrent(int door);
    bool move(int key);

    const MapPicture m_picture;
    QWidget *m_canvas;
    QVector<QAbstractButton *> m_doors;
    int m_current = 0;
};

} // namespace Workbench
