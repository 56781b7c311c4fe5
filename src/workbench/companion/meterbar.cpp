#include "meterbar.h"

#include "tr.h"
#include "widgets/colours.h"

#include <synthesis/runreport.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace Workbench
{

namespace
{

// For those who hear it: the numbers are its value, the block's share its description.
class AccessibleBar : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleBar(MeterBar *bar)
        : QAccessibleWidget(bar, QAccessible::ProgressBar, bar->title())
    {
    }

    static QAccessibleInterface *make(const QString &name, QObject *object)
    {
        auto *bar = qobject_cast<MeterBar *>(object);
        return bar && name == QLatin1String(MeterBar::staticMetaObject.className())
                   ? new AccessibleBar(bar)
                   : nullptr;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Value:
            return MeterText::spoken(bar()->reading());
        case QAccessible::Description:
            return bar()->shareText();
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    QVariant currentValue() const override { return bar()->reading().value; }
    void setCurrentValue(const QVariant & /*value*/) override {}
    QVariant maximumValue() const override
    {
        return std::max(bar()->reading().available, bar()->reading().high);
    }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    MeterBar *bar() const { return static_cast<MeterBar *>(object()); }
};

void installAccessibleBars()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(&AccessibleBar::make);
        return true;
    }();
    Q_UNUSED(isInstalled)
}

} // namespace

namespace MeterText
{

QString figure(const ResourceReading &reading)
{
    const QString sign = reading.isExact() ? QStringLiteral("=") : QString(QChar(0x2248));
    if (reading.available < 0)
        return Tr::tr("%1 %2").arg(sign).arg(reading.value);
    if (reading.available == 0)
        return Tr::tr("%1 %2 of 0").arg(sign).arg(reading.value);
    Synthesis::ResourceUse use; // so that the percentage is that of the results
    use.used = reading.value;
    use.available = reading.available;
    return Tr::tr("%1 %2 of %3 (%4 %)")
        .arg(sign)
        .arg(reading.value)
        .arg(reading.available)
        .arg(use.percent());
}

QString verdict(const ResourceReading &reading)
{
    if (reading.available < 0 || reading.high <= reading.available)
        return {};
    if (reading.value <= reading.available)
        return Tr::tr("may not fit");
    const QString excess = QString::number(reading.value - reading.available);
    return reading.isExact() ? Tr::tr("does not fit: %1 too many").arg(excess)
                             : Tr::tr("does not fit: about %1 too many").arg(excess);
}

QString range(const ResourceReading &reading)
{
    if (reading.available < 0)
        return reading.isExact() ? Tr::tr("of how many is not known")
                                 : Tr::tr("between %1 and %2, of how many is not known")
                                       .arg(reading.low)
                                       .arg(reading.high);
    return reading.isExact() ? QString()
                             : Tr::tr("between %1 and %2").arg(reading.low).arg(reading.high);
}

QString spoken(const ResourceReading &reading)
{
    QString text = QString::number(reading.value);
    if (!reading.isExact())
        text = Tr::tr("about %1").arg(text);
    if (reading.available >= 0)
        text = Tr::tr("%1 of %2").arg(text).arg(reading.available);
    QStringList parts{text, range(reading), verdict(reading)};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

} // namespace MeterText

MeterBar::MeterBar(const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_title(title)
{
    installAccessibleBars();
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(title);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
}

void MeterBar::setReading(const ResourceReading &reading)
{
    const bool isNew = reading.value != m_reading.value ||
                       MeterText::spoken(reading) != MeterText::spoken(m_reading);
    m_reading = reading;
    if (!isNew)
        return;
    setToolTip(m_title + QLatin1String(": ") + MeterText::spoken(m_reading));
    QAccessibleValueChangeEvent event(this, m_reading.value);
    QAccessible::updateAccessibility(&event);
    updateGeometry();
    update();
}

void MeterBar::setShare(const QString &block, int value)
{
    if (block == m_block && value == m_share)
        return;
    m_block = block;
    m_share = value;
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
    updateGeometry();
    update();
}

QString MeterBar::shareText() const
{
    if (m_block.isEmpty())
        return {};
    // A share is always an estimate: no run tells whose a cell is.
    return m_share > 0 ? tr("%1 %2 %3").arg(m_block, QString(QChar(0x2248))).arg(m_share)
                       : tr("%1: none").arg(m_block);
}

int MeterBar::lineHeight() const
{
    return fontMetrics().height();
}

int MeterBar::gap() const
{
    return std::max(2, lineHeight() / 6);
}

QSize MeterBar::sizeHint() const
{
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int space = metrics.averageCharWidth() * 3;
    const auto widthOf = [&](const QString &left, const QString &right) {
        return metrics.horizontalAdvance(left) + metrics.horizontalAdvance(right) + space;
    };
    // No narrower than usual texts are, so that the window need not grow with them.
    const int width = std::max({widthOf(m_title, MeterText::figure(m_reading)),
                                widthOf(MeterText::range(m_reading), shareText()),
                                widthOf(MeterText::verdict(m_reading), QString()),
                                metrics.averageCharWidth() * 52});
    return {width + 2 * gap(), heightIn(m_isCompact)};
}

int MeterBar::heightIn(bool isCompact) const
{
    const int lines = (isCompact ? 2 : 3) + (MeterText::verdict(m_reading).isEmpty() ? 0 : 1);
    return lines * lineHeight() + (isCompact ? 3 : 4) * gap();
}

void MeterBar::setCompact(bool isCompact)
{
    if (isCompact == m_isCompact)
        return;
    m_isCompact = isCompact;
    updateGeometry();
    update();
}

QString MeterBar::besideText() const
{
    const QString share = shareText();
    return share.isEmpty() ? MeterText::range(m_reading) : share;
}

QSize MeterBar::minimumSizeHint() const
{
    return sizeHint();
}

void MeterBar::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QRect inner = rect().adjusted(gap(), gap(), -gap(), -gap());
    const QRect top(inner.left(), inner.top(), inner.width(), lineHeight());
    const QString beside = m_isCompact ? besideText() : QString();
    QRect bar(inner.left(), top.bottom() + 1 + (m_isCompact ? 0 : gap()), inner.width(),
              lineHeight());
    QRect bottom(inner.left(), bar.bottom() + 1 + gap() / 2, inner.width(), lineHeight());
    if (m_isCompact) {
        // The same part of the width for all, so that the bars can be compared.
        bar.setWidth(inner.width() / 2);
        bottom = QRect(bar.right() + 1 + 2 * gap(), bar.top(),
                       inner.right() - bar.right() - 2 * gap(), lineHeight());
    }

    QFont bold = font();
    bold.setBold(true);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(top, Qt::AlignLeft | Qt::AlignVCenter, m_title);
    painter.setFont(bold);
    painter.drawText(top, Qt::AlignRight | Qt::AlignVCenter, MeterText::figure(m_reading));
    painter.setFont(font());
    drawBar(painter, bar);
    painter.setPen(palette().color(QPalette::WindowText));
    if (m_isCompact) {
        painter.drawText(bottom, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(beside, Qt::ElideRight, bottom.width()));
        bottom.setLeft(inner.left());
    } else {
        painter.drawText(bottom, Qt::AlignRight | Qt::AlignVCenter, shareText());
        painter.drawText(bottom, Qt::AlignLeft | Qt::AlignVCenter, MeterText::range(m_reading));
    }
    if (const QString verdict = MeterText::verdict(m_reading); !verdict.isEmpty()) {
        painter.setFont(bold);
        painter.setPen(Colours::alarm(palette()));
        painter.drawText(bottom.translated(0, lineHeight()), Qt::AlignLeft | Qt::AlignVCenter,
                         verdict);
    }

    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

// Up to the value full, up to the end of the range pale; a line where the device ends, if that is
// before the end of the bar.
void MeterBar::drawBar(QPainter &painter, const QRect &bar) const
{
    const QColor frame = Colours::frame(palette());
    painter.fillRect(bar, palette().color(QPalette::Base));
    const int whole = std::max(m_reading.available, m_reading.high);
    const auto part = [&](int from, int to) {
        const auto place = [&](int number) {
            return bar.left() + int(qint64(bar.width()) * number / std::max(1, whole));
        };
        return QRect(QPoint(place(from), bar.top()), QPoint(place(to) - 1, bar.bottom()));
    };
    if (m_reading.available >= 0) {
        const QColor color = Colours::taken(palette());
        QColor pale = color;
        pale.setAlphaF(0.35);
        const int fits = std::min(m_reading.value, m_reading.available);
        const QRect range = part(m_reading.low, m_reading.high);
        painter.fillRect(range, pale);
        painter.setPen(color); // what is pale is hardly seen by itself
        if (range.width() > 1)
            painter.drawRect(range.adjusted(0, 0, -1, -1));
        painter.fillRect(part(0, fits), color);
        if (m_reading.value > fits)
            painter.fillRect(part(fits, m_reading.value), Colours::alarm(palette()));
        if (m_share > 0) {
            const QRect share = part(std::max(0, m_reading.value - m_share), m_reading.value);
            const QRect seen = share.width() >= 3 ? share : share.adjusted(-2, 0, 1, 0);
            painter.fillRect(seen & bar, palette().color(QPalette::Base));
            painter.fillRect(seen & bar, QBrush(palette().color(QPalette::Text), Qt::BDiagPattern));
            painter.setPen(palette().color(QPalette::Text));
            painter.drawRect((seen & bar).adjusted(0, 0, -1, -1));
        }
        if (whole > m_reading.available) {
            const int end = part(0, m_reading.available).right() + 1;
            painter.fillRect(QRect(end - 1, bar.top() - gap() / 2, 2, bar.height() + gap()),
                             palette().color(QPalette::WindowText));
        }
    }
    painter.setPen(frame);
    painter.drawRect(bar.adjusted(0, 0, -1, -1));
}

void MeterBar::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void MeterBar::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace Workbench
