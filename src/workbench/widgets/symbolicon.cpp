#include "symbolicon.h"

#include "symbolshape.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPair>
#include <QPixmapCache>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <algorithm>
#include <iterator>

static void initIcons()
{
    Q_INIT_RESOURCE(workbench);
}

namespace Workbench
{

namespace
{

#include "symbolshapes.h"

const QLatin1String symbolFolder(":/workbench/icons/");

const SymbolShapes *shapesOf(const QString &name)
{
    const auto *found = std::find_if(
        std::begin(symbolShapes), std::end(symbolShapes),
        [&name](const SymbolShapes &shapes) { return name == QLatin1String(shapes.name); });
    return found != std::end(symbolShapes) ? found : nullptr;
}

// As Qt's reader of SVG would.
void drawShapes(QPainter *painter, const SymbolShapes &shapes, const QColor &colour)
{
    QPen pen(colour, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    bool isFilled = false;
    const auto draw = [&](const auto &shape) {
        if (isFilled) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(colour);
            shape();
        }
        painter->setPen(pen);
        painter->setBrush(Qt::NoBrush);
        shape();
    };
    QPainterPath path;
    const auto finish = [&] {
        if (!path.isEmpty())
            draw([&] { painter->drawPath(path); });
        path = {};
    };
    for (int i = 0; i < shapes.count; ++i) {
        const SymbolStep &step = shapes.steps[i];
        switch (step.kind) {
        case 'S':
            finish();
            pen.setWidthF(step.x);
            isFilled = step.y > 0;
            break;
        case 'M':
            path.moveTo(step.x, step.y);
            break;
        case 'L':
            path.lineTo(step.x, step.y);
            break;
        case 'Z':
            path.closeSubpath();
            break;
        case 'R': {
            const SymbolStep &size = shapes.steps[++i];
            draw([&] { painter->drawRect(QRectF(step.x, step.y, size.x, size.y)); });
            break;
        }
        case 'C': {
            const double radius = shapes.steps[++i].x;
            draw([&] { painter->drawEllipse(QPointF(step.x, step.y), radius, radius); });
            break;
        }
        }
    }
    finish();
}

// Reads and draws its picture when it is painted, never before: a window full of icons costs
// nothing until it is shown.
class SymbolEngine : public QIconEngine
{
public:
    explicit SymbolEngine(const QString &path, const SymbolShapes *shapes = nullptr,
                          QPalette::ColorRole ink = QPalette::WindowText)
        : m_path(path)
        , m_shapes(shapes)
        , m_ink(ink)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QColor color = ink(mode);
        const QString key =
            QLatin1String("symbol/") + m_path + u'/' + QString::number(size.width()) + u'x' +
            QString::number(size.height()) + u'/' + QString::number(color.rgba()) +
            (mode == QIcon::Selected ? QLatin1String("/selected") : QLatin1String());
        QPixmap result;
        if (QPixmapCache::find(key, &result))
            return result;
        result = QPixmap(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        const int side = qMin(size.width(), size.height());
        const QRectF place((size.width() - side) / 2.0, (size.height() - side) / 2.0, side, side);
        if (m_shapes) {
            constexpr double edge = 16; // of the drawing
            painter.setRenderHint(QPainter::Antialiasing);
            painter.translate(place.topLeft());
            painter.scale(side / edge, side / edge);
            const QLatin1String own(m_shapes->colour);
            const bool isInk = own == QLatin1String("currentColor") || mode == QIcon::Selected;
            drawShapes(&painter, *m_shapes, isInk ? color : QColor(own));
        } else {
            QSvgRenderer(source(mode, color)).render(&painter, place);
        }
        painter.end();
        QPixmapCache::insert(key, result);
        return result;
    }

    QIconEngine *clone() const override { return new SymbolEngine(m_path, m_shapes, m_ink); }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) const override
    {
        return {{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}};
    }

private:
    QByteArray source(QIcon::Mode mode, const QColor &color) const
    {
        QFile file(m_path);
        QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        svg.replace("currentColor", color.name().toLatin1());
        // On a selection a colour of its own may be lost: blue on blue, for one.
        if (mode == QIcon::Selected && m_path.startsWith(symbolFolder)) {
            static const QRegularExpression ownColor(QStringLiteral("\"#[0-9a-fA-F]{3,6}\""));
            svg = QString::fromUtf8(svg).replace(ownColor, u'"' + color.name() + u'"').toUtf8();
        }
        return svg;
    }

    QColor ink(QIcon::Mode mode) const
    {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Selected)
            return palette.color(QPalette::HighlightedText);
        return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                             m_ink);
    }

    QString m_path;
    const SymbolShapes *m_shapes;
    QPalette::ColorRole m_ink;
};

} // namespace

QIcon symbolIcon(const QString &name, QPalette::ColorRole ink)
{
    static QHash<QPair<QString, int>, QIcon> icons;
    auto found = icons.find({name, ink});
    if (found == icons.end()) {
        initIcons();
        const QString path = symbolFolder + name + QLatin1String(".svg");
        const SymbolShapes *shapes = shapesOf(name);
        const bool isThere = shapes || QFile::exists(path);
        found = icons.insert({name, ink},
                             isThere ? QIcon(new SymbolEngine(path, shapes, ink)) : QIcon());
    }
    return *found;
}

QIcon applicationIcon()
{
    initIcons();
    return QIcon(new SymbolEngine(QStringLiteral(":/workbench/tarvo-workbench.svg")));
}

} // namespace Workbench
