#include "vectorpicture.h"

#include "tr.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QSvgRenderer>
#include <QTextDocument>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Workbench
{

namespace
{

constexpr int elementLimit = 100000;
constexpr int depthLimit = 64;

// What draws by itself. Left out are pictures and fonts from elsewhere, copies of elements (whose
// copies may be copied in turn), animations and scripts.
bool isHarmless(const QStringRef &element)
{
    static const QSet<QString> elements = {
        QStringLiteral("svg"),      QStringLiteral("g"),
        QStringLiteral("defs"),     QStringLiteral("title"),
        QStringLiteral("desc"),     QStringLiteral("metadata"),
        QStringLiteral("style"),    QStringLiteral("rect"),
        QStringLiteral("circle"),   QStringLiteral("ellipse"),
        QStringLiteral("line"),     QStringLiteral("polyline"),
        QStringLiteral("polygon"),  QStringLiteral("path"),
        QStringLiteral("text"),     QStringLiteral("tspan"),
        QStringLiteral("stop"),     QStringLiteral("linearGradient"),
        QStringLiteral("clipPath"), QStringLiteral("radialGradient"),
        QStringLiteral("a")};
    return elements.contains(element.toString());
}

// What numbers can make of a drawing: lines of a length that no paper has, cut into dashes without
// end.
class Measure
{
public:
    void takeAttribute(const QString &name, const QString &value)
    {
        static const QStringList sizes =
            QStringLiteral("x y x1 y1 x2 y2 cx cy r rx ry fx fy width height d points viewBox "
                           "transform gradientTransform font-size stroke-width "
                           "stroke-dashoffset stroke-miterlimit")
                .split(u' ');
        if (name == QLatin1String("stroke-dasharray"))
            takeDashes(value);
        else if (name == QLatin1String("style"))
            takeStyle(value);
        else if (name == QLatin1String("vector-effect"))
            m_isSound = false; // dashes of another scale than their line
        else if (sizes.contains(name))
            takeSizes(value);
    }

    void takeStyle(QString style)
    {
        static const QRegularExpression colour(QStringLiteral("#[0-9A-Fa-f]+"));
        static const QRegularExpression comment(QStringLiteral("/\\*.*?(\\*/|$)"),
                                                QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression dashes(QStringLiteral("stroke-dasharray\\s*:([^;}]*)"),
                                               QRegularExpression::CaseInsensitiveOption);
        style.remove(comment);
        // An escape would hide a name.
        m_isSound &= !style.contains(QLatin1String("vector-effect"), Qt::CaseInsensitive) &&
                     !style.contains(u'\\');
        for (auto all = dashes.globalMatch(style); all.hasNext();)
            takeDashes(all.next().captured(1));
        takeSizes(style.remove(colour));
    }

    bool isSound() const
    {
        return m_isSound && (m_shortest <= 0 || m_length / m_shortest <= dashLimit);
    }

private:
    static constexpr double sizeLimit = 1e6;
    static constexpr double dashLimit = 1e7; // of all lines together

    static QVector<double> numbersIn(const QString &text)
    {
        static const QRegularExpression number(
            QStringLiteral("[-+]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][-+]?\\d+)?"));
        QVector<double> numbers;
        for (auto all = number.globalMatch(text); all.hasNext();)
            numbers.append(all.next().captured().toDouble());
        return numbers;
    }

    void takeSizes(const QString &text)
    {
        for (const double number : numbersIn(text)) {
            m_isSound &= std::abs(number) <= sizeLimit;
            m_length += std::abs(number);
        }
    }

    void takeDashes(const QString &text)
    {
        double sum = 0;
        for (const double number : numbersIn(text)) {
            m_isSound &= number >= 0 && number <= sizeLimit;
            sum += number;
        }
        if (sum > 0)
            m_shortest = m_shortest > 0 ? std::min(m_shortest, sum) : sum;
    }

    bool m_isSound = true;
    double m_length = 0;   // at most, but for a small factor
    double m_shortest = 0; // pattern; 0: there is none
};

// Why a drawing is not rendered, as a clause; empty if it may be.
QString mistakeOf(const QByteArray &bytes)
{
    QXmlStreamReader xml(bytes);
    Measure measure;
    int elements = 0;
    int depth = 0;
    QString sheet;
    bool isStyle = false;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
        case QXmlStreamReader::ProcessingInstruction:
            return Tr::tr("it has more than elements");
        case QXmlStreamReader::StartElement:
            if (++elements > elementLimit || ++depth > depthLimit)
                return Tr::tr("it is too large");
            if (!isHarmless(xml.name()))
                return Tr::tr("it holds the element \"%1\"").arg(xml.name().toString().left(100));
            isStyle = xml.name() == QLatin1String("style");
            for (const QXmlStreamAttribute &attribute : xml.attributes())
                measure.takeAttribute(attribute.name().toString(), attribute.value().toString());
            break;
        case QXmlStreamReader::Characters: // which may be a part of a text
            if (isStyle)
                sheet += xml.text();
            break;
        case QXmlStreamReader::EndElement:
            measure.takeStyle(std::exchange(sheet, QString()));
            isStyle = false;
            --depth;
            break;
        default:
            break;
        }
    }
    if (xml.hasError())
        return xml.errorString();
    return measure.isSound() ? QString() : Tr::tr("its lines are longer than can be drawn");
}

} // namespace

VectorPicture::VectorPicture() = default;
VectorPicture::~VectorPicture() = default;

Utils::Result<std::shared_ptr<VectorPicture>> VectorPicture::read(const QByteArray &bytes)
{
    if (const QString mistake = mistakeOf(bytes); !mistake.isEmpty())
        return Utils::Failure{mistake};
    std::shared_ptr<VectorPicture> picture(new VectorPicture);
    picture->m_renderer = std::make_unique<QSvgRenderer>(bytes);
    if (!picture->m_renderer->isValid())
        return Utils::Failure{Tr::tr("it is no drawing")};
    picture->m_renderer->setAspectRatioMode(Qt::KeepAspectRatio);
    const QSizeF size = picture->m_renderer->defaultSize();
    picture->m_size = {qBound(1.0, size.width(), 10000.0), qBound(1.0, size.height(), 10000.0)};
    return picture;
}

void VectorPicture::paint(QPainter *painter, const QRectF &place) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    m_renderer->render(painter, place);
    painter->restore();
}

VectorPictures::VectorPictures(const Source &source, QObject *parent)
    : QObject(parent)
    , m_source(source)
{
}

const VectorPicture *VectorPictures::picture(const QString &name)
{
    auto found = m_pictures.find(name);
    if (found == m_pictures.end()) {
        const Utils::Result<std::shared_ptr<VectorPicture>> read =
            VectorPicture::read(m_source(name));
        found = m_pictures.emplace(name, read ? *read : nullptr).first;
    }
    return found->second.get();
}

QSizeF VectorPictures::intrinsicSize(QTextDocument *document, int /*position*/,
                                     const QTextFormat &format)
{
    const QTextImageFormat image = format.toImageFormat();
    const VectorPicture *drawing = picture(image.name());
    const QPaintDevice *device = document->documentLayout()->paintDevice();
    const qreal scale = device ? device->logicalDpiX() / 96.0 : 1.0;
    QSizeF size = drawing ? drawing->size() : QSizeF(200, 30);
    const bool hasWidth = image.hasProperty(QTextFormat::ImageWidth) && image.width() > 0;
    const bool hasHeight = image.hasProperty(QTextFormat::ImageHeight) && image.height() > 0;
    const qreal ratio = size.height() / size.width();
    if (hasWidth)
        size = {image.width(), hasHeight ? image.height() : image.width() * ratio};
    else if (hasHeight)
        size = {image.height() / ratio, image.height()};
    size *= scale;
    const QSizeF room =
        m_room.isEmpty()
            ? QSizeF(document->pageSize().width() - 2 * document->documentMargin(), 1e6)
            : m_room;
    if (room.width() > 1 && (size.width() > room.width() || size.height() > room.height()))
        size.scale(room, Qt::KeepAspectRatio);
    return size.boundedTo(QSizeF(1e6, 1e6)).expandedTo(QSizeF(1, 1));
}

void VectorPictures::drawObject(QPainter *painter, const QRectF &place,
                                QTextDocument * /*document*/, int /*position*/,
                                const QTextFormat &format)
{
    const QString name = format.toImageFormat().name();
    if (const VectorPicture *drawing = picture(name)) {
        drawing->paint(painter, place);
        return;
    }
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(place);
    painter->drawText(place, Qt::AlignCenter, Tr::tr("This picture cannot be shown."));
    painter->restore();
}

} // namespace Workbench
