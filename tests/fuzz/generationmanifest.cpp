#include "fuzz.h"

#include <generate/manifest.h>

#include <QSet>

using namespace TARVOORIXM1;

namespace
{

QByteArray textOf(const GenerationManifest &manifest)
{
    return manifest.toLines().join(u'\n').toUtf8() + '\n';
}

// No way out of the output folder, and a sum that can be one.
void checkFiles(const QVector<DigestedFile> &files, bool isOnce)
{
    QSet<QString> names;
    for (const DigestedFile &file : files) {
        const QStringList parts = file.name.split(u'/');
        for (const QString &part : parts)
            REQUIRE(!part.isEmpty() && part != QLatin1String(".") && part != QLatin1String(".."));
        REQUIRE(file.role.isEmpty() && file.sha256.size() == 64);
        names.insert(file.name);
    }
    REQUIRE(!isOnce || names.size() == files.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const QString path = QStringLiteral("/p/manifest.json");
    const auto read = GenerationManifest::fromText(bytes, path);
    if (!read) {
        const QString reason = read.reason();
        REQUIRE(reason.startsWith(path + u':') && reason.endsWith(u'.'));
        const int line = reason.section(u':', 1, 1).toInt();
        REQUIRE(line >= 1 && line <= Fuzz::lineCount(bytes));
        REQUIRE(reason.section(u':', 2, 2).toInt() >= 1);
        return 0;
    }
    checkFiles(read->includeFiles, true);
    checkFiles(read->pendingFiles, false);
    checkFiles(read->copies, true);
    for (const DigestedFile &input : read->origin.inputs)
        REQUIRE(!input.role.isEmpty() && (input.sha256.isEmpty() || input.sha256.size() == 64));
    if (read->synthesis)
        checkFiles(read->synthesis->files, true);
    // Qt takes this character for a mark also where a text within the file begins with it.
    const QByteArray text = textOf(*read);
    const QByteArray mark = "\xef\xbb\xbf";
    if (text.contains(mark) || bytes.indexOf(mark, 1) >= 0)
        return 0;
    const auto again = GenerationManifest::fromText(text, path);
    REQUIRE(again);
    REQUIRE(textOf(*again) == text);
    REQUIRE(again->isFinished == read->isFinished && again->origin == read->origin &&
            again->includeFiles == read->includeFiles &&
            again->pendingFiles == read->pendingFiles && again->copies == read->copies &&
            again->synthesis.has_value() == read->synthesis.has_value());
    if (read->synthesis)
        REQUIRE(again->synthesis->origin == read->synthesis->origin &&
                again->synthesis->tool == read->synthesis->tool &&
                again->synthesis->toolVersion == read->synthesis->toolVersion &&
                again->synthesis->files == read->synthesis->files &&
                again->synthesis->report == read->synthesis->report);
    return 0;
}
