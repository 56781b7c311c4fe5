#include "fuzz.h"

#include <reading/jsontext.h>
#include <utils/descriptor.h>

#include <QJsonDocument>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const QString path = Fuzz::file(QStringLiteral("ip.ipspec"), bytes);
    const Utils::Result<QVariantMap> read = Utils::readDescriptor(path);
    const QVariantMap map = read ? *read : QVariantMap();
    const QString error = read.reason();
    REQUIRE(bool(read) == error.isEmpty());
    const Reading::JsonMistake mistake = Reading::findJsonMistake(bytes);
    REQUIRE(mistake.offset >= -1 && mistake.offset <= bytes.size());
    REQUIRE((mistake.offset >= 0) == !mistake.reason.isEmpty());
    if (!error.isEmpty()) {
        REQUIRE(error.startsWith(path + u':'));
        const QStringList place = error.mid(path.size() + 1).split(u':');
        bool hasLine = false;
        const int line = place.first().toInt(&hasLine);
        REQUIRE(!hasLine || (line >= 1 && line <= Fuzz::lineCount(bytes)));
        return 0;
    }
    REQUIRE(QJsonDocument::fromJson(bytes).isObject());
    const QString target = map.value(QStringLiteral("ipcore.target")).toString();
    REQUIRE(!target.contains(u'/') && !target.contains(QChar(0)) && target != QLatin1String(".."));
    return 0;
}
