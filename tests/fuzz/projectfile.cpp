#include "fuzz.h"

#include <project/projectfile.h>

#include <QSet>

using Workbench::ProjectFile;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const QString path = QStringLiteral("/p/a.tvproj");
    const Utils::Result<ProjectFile> read = ProjectFile::fromText(bytes, path);
    if (!read) {
        REQUIRE(read.reason().contains(path));
        REQUIRE(Fuzz::lineIn(read.reason()) <= Fuzz::lineCount(bytes));
        return 0;
    }
    const ProjectFile &file = *read;
    // What is written is what was read, to the last entry that this program does not know.
    const QByteArray text = file.toText();
    // Qt takes this character for a mark also where a text within the file begins with it.
    const QByteArray mark = "\xef\xbb\xbf";
    if (text.contains(mark) || bytes.indexOf(mark, 1) >= 0)
        return 0;
    const Utils::Result<ProjectFile> reread = ProjectFile::fromText(text, path);
    REQUIRE(reread);
    const ProjectFile &again = *reread;
    REQUIRE(again.toText() == text);
    REQUIRE(again.deviceId == file.deviceId && again.files == file.files &&
            again.topModule == file.topModule && again.others == file.others);
    REQUIRE(QSet<QString>(file.files.begin(), file.files.end()).size() == file.files.size());
    return 0;
}
