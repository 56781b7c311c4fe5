#pragma once

#include <QVector>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)

namespace Workbench
{

class PinSwitch;

// Pins, each a lamp with a switch: what level it has and who drives it. Tab reaches the pins as one
// thing, the arrows go from pin to pin.
class PinPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PinPanel(QWidget *parent = nullptr);

    void setCount(int count);
    // Puts each eight into a row of its own where they have no room beside one another; in pixels.
    void arrange(int room);
    const QVector<PinSwitch *> &pins() const { return m_pins; }
    // A bit each; `driven` by the subsystem.
    void showPins(quint32 levels, quint32 driven);
    // Which pins are driven from outside, and how.
    quint32 mask() const;
    quint32 levels() const;

Q_SIGNALS:
    void switched();

private:
    QBoxLayout *m_eights;
    QVector<PinSwitch *> m_pins;
};

} // namespace Workbench
