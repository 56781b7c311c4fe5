#include "fuzz.h"

#include <project/projectfile.h>

#include <QSet>

using Workbench::ProjectFile;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const QString path = QStringLiteral("/p/a.tvproj");
    ProjectFile file;
    QString error;
    if (!ProjectFile::fromText(bytes, path, &file, &error)) {
        REQUIRE(error.contains(path));
        REQUIRE(Fuzz::lineIn(error) <= Fuzz::lineCount(bytes));
        return 0;
    }
    // What is written is what was read, to the last entry that this program does not know.
    const QByteArray text = file.toText();
    // Qt takes this character for a mark also where a text within the file begins with it.
    const QByteArray mark = "\xef\xbb\xbf";
    if (text.contains(mark) || bytes.indexOf(mark, 1) >= 0)
        return 0;
    ProjectFile again;
    REQUIRE(ProjectFile::fromText(text, path, &again, &error));
    REQUIRE(again.toText() == text);
    REQUIRE(again.deviceId == file.deviceId && again.files == file.files &&
            again.topModule == file.topModule && again.others == file.others);
    REQUIRE(QSet<QString>(file.files.begin(), file.files.end()).size() == file.files.size());
    return 0;
}
