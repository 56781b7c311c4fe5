#pragma once

#include "estimate.h"

#include <QWidget>

namespace Workbench
{

// What a meter says of a resource, as texts.
namespace MeterText
{

// "≈ 1671 of 4608 (36 %)"; "=" for a number that is exact.
QString figure(const ResourceReading &reading);
// "about 1671 of 4608, between 1590 and 1752, does not fit": for somebody who hears it.
QString spoken(const ResourceReading &reading);
// "between 1590 and 1752", and where it is so that nobody knows how many the device has; empty for
// an exact number of a known one.
QString range(const ResourceReading &reading);
// "does not fit: 12 too many", "may not fit"; empty if it fits or nobody knows.
QString verdict(const ResourceReading &reading);

} // namespace MeterText

// A resource of the device as a bar with its numbers. The part that a block takes is hatched.
class MeterBar : public QWidget
{
    Q_OBJECT

public:
    explicit MeterBar(const QString &title, QWidget *parent = nullptr);

    void setReading(const ResourceReading &reading);
    const ResourceReading &reading() const { return m_reading; }
    // With the texts below the bar beside it, and of them the share before the range.
    void setCompact(bool isCompact);
    bool isCompact() const { return m_isCompact; }
    int heightIn(bool isCompact) const;
    // What a block takes; no name: none is pointed at.
    void setShare(const QString &block, int value);

    const QString &title() const { return m_title; }
    // "UART0 ≈ 120", or that the block takes nothing; empty without a block.
    QString shareText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void drawBar(QPainter &painter, const QRect &bar) const;
    QString besideText() const;
    int lineHeight() const;
    int gap() const;

    const QString m_title;
    ResourceReading m_reading;
    QString m_block;
    int m_share = 0;
    bool m_isCompact = false;
};

} // namespace Workbench
