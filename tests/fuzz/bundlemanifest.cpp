#include "fuzz.h"

#include <utils/bundlemanifest.h>

#include <QSet>

using Utils::BundleManifest;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const QString path = QStringLiteral("/p/set.json");
    const Utils::Result<BundleManifest> read = BundleManifest::fromText(bytes, path);
    if (!read) {
        REQUIRE(read.reason().contains(path));
        REQUIRE(Fuzz::lineIn(read.reason()) <= Fuzz::lineCount(bytes));
        return 0;
    }
    QSet<QString> paths;
    for (const BundleManifest::File &file : read->files) {
        REQUIRE(Utils::bundlePathMistake(file.path).isEmpty());
        REQUIRE(!file.path.contains(QLatin1String("..")) ||
                !file.path.split(u'/').contains(QStringLiteral("..")));
        REQUIRE(!file.group.isEmpty() && file.sha256.size() == 64);
        paths.insert(file.path);
    }
    REQUIRE(paths.size() == read->files.size());
    const QByteArray text = read->toText();
    const Utils::Result<BundleManifest> again = BundleManifest::fromText(text, path);
    REQUIRE(again);
    REQUIRE(again->files == read->files && again->toText() == text);
    return 0;
}
