#include "symbolicon.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPair>
#include <QPixmapCache>
#include <QRegularExpression>
#include <QSvgRenderer>

static void initIcons()
{
    Q_INIT_RESOURCE(workbench);
}

namespace Workbench
{

namespace
{

// Reads and draws its picture when it is painted, never before: a window full of icons costs
// nothing until it is shown.
class SymbolEngine : public QIconEngine
{
public:
    explicit SymbolEngine(const QString &path, QPalette::ColorRole ink = QPalette::WindowText)
        : m_path(path)
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
            QStringLiteral("symbol/%1/%2x%3/%4")
                .arg(m_path)
                .arg(size.width())
                .arg(size.height())
                .arg(color.rgba()) +
            (mode == QIcon::Selected ? QLatin1String("/selected") : QLatin1String());
        QPixmap result;
        if (QPixmapCache::find(key, &result))
            return result;
        QFile file(m_path);
        QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        svg.replace("currentColor", color.name().toLatin1());
        // On a selection a colour of its own may be lost: blue on blue, for one.
        if (mode == QIcon::Selected && m_path.startsWith(QLatin1String(":/workbench/icons/"))) {
            static const QRegularExpression ownColor(QStringLiteral("\"#[0-9a-fA-F]{3,6}\""));
            svg = QString::fromUtf8(svg).replace(ownColor, u'"' + color.name() + u'"').toUtf8();
        }
        QSvgRenderer renderer(svg);
        result = QPixmap(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        const int side = qMin(size.width(), size.height());
        renderer.render(&painter, QRectF((size.width() - side) / 2.0, (size.height() - side) / 2.0,
                                         side, side));
        painter.end();
        QPixmapCache::insert(key, result);
        return result;
    }

    QIconEngine *clone() const override { return new SymbolEngine(m_path, m_ink); }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) const override
    {
        return {{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}};
    }

private:
    QColor ink(QIcon::Mode mode) const
    {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Selected)
            return palette.color(QPalette::HighlightedText);
        return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                             m_ink);
    }

    QString m_path;
    QPalette::ColorRole m_ink;
};

} // namespace

QIcon symbolIcon(const QString &name, QPalette::ColorRole ink)
{
    static QHash<QPair<QString, int>, QIcon> icons;
    auto found = icons.find({name, ink});
    if (found == icons.end()) {
        initIcons();
        const QString path = QStringLiteral(":/workbench/icons/%1.svg").arg(name);
        found = icons.insert({name, ink},
                             QFile::exists(path) ? QIcon(new SymbolEngine(path, ink)) : QIcon());
    }
    return *found;
}

QIcon applicationIcon()
{
    initIcons();
    return QIcon(new SymbolEngine(QStringLiteral(":/workbench/tarvo-workbench.svg")));
}

} // namespace Workbench
