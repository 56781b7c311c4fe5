#pragma once

#include <QCheckBox>

namespace Workbench
{

// A pin: a lamp with its number and a switch below that drives it from outside, or not. As a check
// box it is checked when it drives the pin high, unchecked when it drives it low, and between them
// when it leaves the pin alone.
class PinSwitch : public QCheckBox
{
    Q_OBJECT

public:
    explicit PinSwitch(int number, QWidget *parent = nullptr);

    int number() const { return m_number; }
    bool isHigh() const { return m_isHigh; }
    bool isDriven() const { return m_isDriven; }
    // What the simulation tells.
    void showPin(bool isHigh, bool isDriven);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    // The next pin in this direction gets the focus.
    void moveRequested(int steps);

protected:
    void nextCheckState() override;
    bool hitButton(const QPoint &position) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void describe();
    void paintLamp(QPainter *painter, const QRectF &place) const;
    void paintSwitch(QPainter *painter, const QRectF &place) const;

    const int m_number;
    bool m_isHigh = false;
    bool m_isDriven = false;
};

} // namespace Workbench
