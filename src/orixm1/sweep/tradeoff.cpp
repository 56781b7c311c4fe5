#include "tradeoff.h"

#include "config/latin1literal.h"
#include "export/drawing.h"

#include <QMap>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr Letters heading{15, true, false, Ink::Text};
constexpr Letters label{12, false, false, Ink::Text};
constexpr Letters pale{11, false, false, Ink::Soft};
constexpr Letters entry{11, false, true, Ink::Text};

constexpr int margin = 16;
constexpr int plotLeft = 96;
constexpr int plotTop = 56;
constexpr int plotWidth = 720;
constexpr int plotHeight = 380;
constexpr int width = plotLeft + plotWidth + 48;
constexpr int lineHeight = 17;
constexpr int half = 5;          // of a mark
constexpr int mostNumbered = 60; // points that have a number and a line in the list
constexpr int mostNumbers = 4;   // at one place
constexpr int mostTicks = 6;

struct Look {
    Ink fill;
    Ink edge;
};

// Devices in turn; after the last one it begins again.
constexpr Look looks[] = {
    {Ink::Bus, Ink::Bus},       {Ink::Lost, Ink::Lost}, {Ink::ExternalMemory, Ink::Text},
    {Ink::Window, Ink::Text},   {Ink::Text, Ink::Text}, {Ink::MemoryDevice, Ink::Text},
    {Ink::Port, Ink::Text},     {Ink::Page, Ink::Bus},  {Ink::Page, Ink::Lost},
    {Ink::BlackBox, Ink::Text},
};

struct Place {
    const SweepResult *result;
    qint64 x;
    qint64 y;
};

// From and to on an axis, in steps that people like.
struct Scale {
    qint64 from = 0;
    qint64 to = 1;
    qint64 step = 1;

    int at(qint64 value, int length) const
    {
        return int((value - from) * length / qMax<qint64>(1, to - from));
    }
};

Scale scaleFor(qint64 least, qint64 most)
{
    Scale scale;
    const qint64 range = qMax<qint64>(1, most - least);
    const auto ticks = [&] { return range / scale.step + 2; };
    for (qint64 power = 1; ticks() > mostTicks; power *= 10) {
        for (const qint64 factor : {1, 2, 5}) {
            scale.step = factor * power;
            if (ticks() <= mostTicks)
                break;
        }
    }
    scale.from = least / scale.step * scale.step;
    scale.to = (most / scale.step + 1) * scale.step;
    return scale;
}

int usedOf(const SweepResult &result, const QString &resource)
{
    for (const ResourceFigure &figure : result.resources) {
        if (figure.resource == resource)
            return figure.used;
    }
    return -1;
}

class Picture
{
public:
    explicit Picture(const SweepTable &table)
        : m_x(table.pictureX)
        , m_y(table.pictureY)
        , m_drawing(title(table))
    {
        if (m_y.isEmpty()) {
            m_x = QStringLiteral("LUT4");
            m_y = QStringLiteral("Flip-flops");
        }
        for (const SweepResult &result : table.results) {
            const int y = usedOf(result, m_y);
            const int x = m_x.isEmpty() ? m_places.size() + 1 : usedOf(result, m_x);
            if (x < 0 || y < 0)
                continue;
            m_places.append({&result, x, y});
            if (!m_devices.contains(result.device))
                m_devices.append(result.device);
        }
    }

    QByteArray draw()
    {
        m_drawing.text(margin, 28, m_x.isEmpty() ? m_y : QString(m_y + " over "_l1 + m_x), heading);
        if (m_places.isEmpty()) {
            m_drawing.text(margin, plotTop, QStringLiteral("No point has figures yet."), label);
            return m_drawing.svg(width, plotTop + margin);
        }
        drawAxes();
        drawPlaces();
        return m_drawing.svg(width, drawLegend(plotTop + plotHeight + 64) + margin);
    }

private:
    static QString title(const SweepTable &table)
    {
        return "Trade-off: "_l1 + countSentence(table);
    }

    void drawAxes()
    {
        const auto byX = [](const Place &a, const Place &b) { return a.x < b.x; };
        const auto byY = [](const Place &a, const Place &b) { return a.y < b.y; };
        const auto x = std::minmax_element(m_places.begin(), m_places.end(), byX);
        const auto y = std::minmax_element(m_places.begin(), m_places.end(), byY);
        m_scaleX = scaleFor(x.first->x, x.second->x);
        m_scaleY = scaleFor(y.first->y, y.second->y);
        const int bottom = plotTop + plotHeight;
        m_drawing.box(plotLeft, plotTop, plotWidth, plotHeight, Ink::Page, Ink::Line);
        for (qint64 value = m_scaleX.from; value <= m_scaleX.to; value += m_scaleX.step) {
            const int at = plotLeft + m_scaleX.at(value, plotWidth);
            m_drawing.line(at, bottom, at, bottom + 5);
            m_drawing.text(at, bottom + 20, QString::number(value), pale, Anchor::Middle);
        }
        for (qint64 value = m_scaleY.from; value <= m_scaleY.to; value += m_scaleY.step) {
            const int at = bottom - m_scaleY.at(value, plotHeight);
            m_drawing.line(plotLeft - 5, at, plotLeft, at);
            m_drawing.text(plotLeft - 9, at + 4, QString::number(value), pale, Anchor::End);
        }
        m_drawing.text(plotLeft + plotWidth, bottom + 38,
                       m_x.isEmpty() ? QStringLiteral("Number of the point") : m_x, label,
                       Anchor::End);
        m_drawing.text(plotLeft, plotTop - 8, m_y, label, Anchor::Start);
    }

    const Look &lookOf(const QString &device) const
    {
        return looks[size_t(m_devices.indexOf(device)) % std::size(looks)];
    }

    void mark(int x, int y, const Look &look)
    {
        m_drawing.box(x - half, y - half, 2 * half, 2 * half, look.fill, look.edge);
    }

    void drawPlaces()
    {
        QMap<QPair<int, int>, QStringList> numbers;
        for (int i = 0; i < m_places.size(); ++i) {
            const Place &place = m_places.at(i);
            const int x = plotLeft + m_scaleX.at(place.x, plotWidth);
            const int y = plotTop + plotHeight - m_scaleY.at(place.y, plotHeight);
            mark(x, y, lookOf(place.result->device));
            numbers[{x, y}].append(QString::number(i + 1));
        }
        if (m_places.size() > mostNumbered)
            return;
        for (auto it = numbers.begin(); it != numbers.end(); ++it) {
            QString text = QStringList(it->mid(0, mostNumbers)).join(", "_l1);
            if (it->size() > mostNumbers)
                text += QChar(0x2026);
            m_drawing.text(it.key().first + half + 3, it.key().second - half + 1, text, pale);
        }
    }

    // Returns where it ends.
    int drawLegend(int y)
    {
        for (const QString &device : qAsConst(m_devices)) {
            mark(margin + half, y - 4, lookOf(device));
            m_drawing.text(margin + 3 * half + 2, y, device, label);
            y += lineHeight;
        }
        y += lineHeight / 2;
        if (m_places.size() > mostNumbered) {
            m_drawing.text(margin, y, QString::number(m_places.size()) + " points"_l1, label);
            return y;
        }
        for (int i = 0; i < m_places.size(); ++i) {
            const Place &place = m_places.at(i);
            const QString figures =
                m_x.isEmpty()
                    ? QString::number(place.y)
                    : QString(QString::number(place.x) + ", "_l1 + QString::number(place.y));
            const QString text = QString::number(i + 1).rightJustified(3, QChar(0x2007)) + "  "_l1 +
                                 place.result->name + ": "_l1 + figures;
            const QStringList lines = wrapped(text, entry, width - 2 * margin);
            for (const QString &line : lines) {
                m_drawing.text(margin, y, line, entry);
                y += lineHeight;
            }
        }
        return y - lineHeight;
    }

    QString m_x;
    QString m_y;
    Drawing m_drawing;
    QVector<Place> m_places;
    QStringList m_devices;
    Scale m_scaleX;
    Scale m_scaleY;
};

} // namespace

QByteArray tradeOffPicture(const SweepTable &table)
{
    return Picture(table).draw();
}

} // namespace TARVOORIXM1
