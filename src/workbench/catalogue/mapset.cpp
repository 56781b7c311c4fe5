#include "mapset.h"

#include "answers.h"
#include "ipcatalogue.h"
#include "ipsession.h"
#include "tr.h"
#include "widgets/vectorpicture.h"

#include <algorithm>

namespace Workbench
{

using Answers::shown;
using Answers::takeText;

namespace
{

bool takeNumber(const QVariantMap &map, const QString &key, int *number)
{
    const QVariant value = map.value(key);
    *number = value.toInt();
    return value.userType() == QMetaType::Int;
}

Utils::Result<MapDoor> doorOf(const QVariant &entry, const MapPicture &picture)
{
    const QVariantMap map = entry.toMap();
    MapDoor door;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    const QVariant headings = map.value(QStringLiteral("headings"));
    door.headings = headings.toStringList();
    if (entry.userType() != QMetaType::QVariantMap ||
        !takeText(map, QStringLiteral("text"), &door.text) || door.text.isEmpty() ||
        !takeText(map, QStringLiteral("document"), &door.document) ||
        !takeNumber(map, QStringLiteral("x"), &x) || !takeNumber(map, QStringLiteral("y"), &y) ||
        !takeNumber(map, QStringLiteral("width"), &width) ||
        !takeNumber(map, QStringLiteral("height"), &height))
        return Utils::Failure{Tr::tr("a door of %1 is no map with a place, a text and a document")
                                  .arg(shown(picture.title))};
    if ((headings.isValid() && headings.userType() != QMetaType::QStringList) ||
        door.headings.size() > MapSet::headingLimit ||
        std::any_of(door.headings.cbegin(), door.headings.cend(), [](const QString &text) {
            return text.size() > Answers::textLimit || !Answers::isPlain(text);
        }))
        return Utils::Failure{
            Tr::tr("the \"headings\" of the door %1 are no texts of a line").arg(shown(door.text))};
    if (const QString mistake = Answers::pathMistake(door.document); !mistake.isEmpty())
        return Utils::Failure{Tr::tr("the door %1 leads to the document %2: %3")
                                  .arg(shown(door.text), shown(door.document), mistake)};
    const QSize size = picture.light->size().toSize();
    if (x < 0 || y < 0 || width < 1 || height < 1 || x > size.width() || y > size.height() ||
        width > size.width() - x || height > size.height() - y)
        return Utils::Failure{Tr::tr("the door %1 is not in its picture").arg(shown(door.text))};
    door.box = QRect(x, y, width, height);
    for (const MapDoor &other : picture.doors) {
        if (other.box.intersects(door.box))
            return Utils::Failure{
                Tr::tr("the doors %1 and %2 overlap").arg(shown(other.text), shown(door.text))};
    }
    return door;
}

Utils::Result<std::shared_ptr<const VectorPicture>> drawingOf(const QVariantMap &map,
                                                              const QString &key)
{
    const QVariant value = map.value(key);
    const QByteArray bytes = value.toByteArray();
    if (value.userType() != QMetaType::QByteArray || bytes.size() > MapSet::svgLimit)
        return Utils::Failure{
            Tr::tr("it is no drawing of up to %1 MiB").arg(MapSet::svgLimit >> 20)};
    const auto read = VectorPicture::read(bytes);
    if (!read)
        return Utils::Failure{read.reason()};
    return std::shared_ptr<const VectorPicture>(*read);
}

Utils::Result<MapPicture> pictureOf(const QVariant &entry)
{
    const QVariantMap map = entry.toMap();
    MapPicture picture;
    const QVariant doors = map.value(QStringLiteral("doors"));
    if (entry.userType() != QMetaType::QVariantMap ||
        !takeText(map, QStringLiteral("title"), &picture.title) || picture.title.isEmpty() ||
        !takeText(map, QStringLiteral("text"), &picture.text) ||
        (doors.isValid() && doors.userType() != QMetaType::QVariantList))
        return Utils::Failure{
            Tr::tr("one of its \"maps\" is no map with a title, a text and doors")};
    for (const bool isDark : {false, true}) {
        const QString key = isDark ? QStringLiteral("darkSvg") : QStringLiteral("svg");
        if (isDark && !map.contains(key))
            continue;
        const auto drawing = drawingOf(map, key);
        if (!drawing)
            return Utils::Failure{Tr::tr("the \"%1\" of %2 cannot be shown: %3")
                                      .arg(key, shown(picture.title), drawing.reason())};
        (isDark ? picture.dark : picture.light) = *drawing;
    }
    if (picture.dark && picture.dark->size() != picture.light->size())
        return Utils::Failure{
            Tr::tr("the drawings of %1 differ in size").arg(shown(picture.title))};
    const QVariantList list = doors.toList();
    if (list.size() > MapSet::doorLimit)
        return Utils::Failure{
            Tr::tr("%1 has more than %2 doors").arg(shown(picture.title)).arg(MapSet::doorLimit)};
    for (const QVariant &door : list) {
        const Utils::Result<MapDoor> taken = doorOf(door, picture);
        if (!taken)
            return Utils::Failure{taken.reason()};
        picture.doors.append(*taken);
    }
    return picture;
}

} // namespace

namespace MapSet
{

Utils::Result<QVector<MapPicture>> picturesOf(const QVariantMap &answer)
{
    QString error;
    if (!takeText(answer, QStringLiteral("error"), &error))
        return Utils::Failure{Tr::tr("its \"error\" is no text of a line")};
    if (!error.isEmpty())
        return Utils::Failure{error};
    const QVariant list = answer.value(QStringLiteral("maps"));
    if (list.userType() != QMetaType::QVariantList || list.toList().size() > pictureLimit)
        return Utils::Failure{Tr::tr("its \"maps\" are no list of up to %1").arg(pictureLimit)};
    QVector<MapPicture> pictures;
    const QVariantList entries = list.toList();
    for (const QVariant &entry : entries) {
        const Utils::Result<MapPicture> picture = pictureOf(entry);
        if (!picture)
            return Utils::Failure{picture.reason()};
        pictures.append(*picture);
    }
    return pictures;
}

Utils::Result<QVector<MapPicture>> ask(const IpCatalogue &catalogue, const QString &ipcFile)
{
    QString error;
    const int ip = catalogue.indexOf(IpSession::typeOf(ipcFile, &error));
    if (ip < 0 || !catalogue.canDrawMaps(ip))
        return QVector<MapPicture>();
    QVariantMap answer;
    if (!catalogue.maps(ip, ipcFile, &answer, &error))
        return Utils::Failure{error};
    const Utils::Result<QVector<MapPicture>> pictures = picturesOf(answer);
    if (!pictures)
        return Utils::Failure{Tr::tr("%1 has no maps that can be shown: %2")
                                  .arg(catalogue.entries().at(ip).name, pictures.reason())};
    return pictures;
}

} // namespace MapSet

} // namespace Workbench
