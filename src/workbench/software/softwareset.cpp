#include "softwareset.h"

#include "catalogue/answers.h"
#include "tr.h"

#include <QDir>
#include <QSet>
#include <QTextCodec>

#include <algorithm>

namespace Workbench
{

using Answers::isPlain;
using Answers::pathMistake;
using Answers::shown;
using Answers::takeText;

namespace
{

bool isTooLarge(const QByteArray &bytes, qint64 *size)
{
    *size += bytes.size();
    return bytes.size() > SoftwareSet::fileLimit || *size > SoftwareSet::setLimit;
}

Utils::Failure tooLarge(const QString &path)
{
    return {Tr::tr("the file %1 is too large: a file may have %2 MiB, all of them together %3 MiB")
                .arg(shown(path))
                .arg(SoftwareSet::fileLimit >> 20)
                .arg(SoftwareSet::setLimit >> 20)};
}

// A number of bytes.
bool takeCount(const QVariantMap &map, const QString &key, qint64 *count)
{
    const QVariant value = map.value(key);
    const int type = value.userType();
    *count = type == QMetaType::Int || type == QMetaType::LongLong ? value.toLongLong() : -1;
    return *count >= 0;
}

// A failure of its own, a sentence; false if it is none.
bool takeError(const QVariantMap &answer, QString *error)
{
    return takeText(answer, QStringLiteral("error"), error);
}

QString badError()
{
    return Tr::tr("its \"error\" is no text of a line");
}

} // namespace

namespace SoftwareSet
{

Utils::Result<Program> programOf(const QVariantMap &answer)
{
    Program program;
    if (!takeError(answer, &program.error))
        return Utils::Failure{badError()};
    if (!program.error.isEmpty())
        return program;
    const QVariant list = answer.value(QStringLiteral("files"));
    if (list.userType() != QMetaType::QVariantList || list.toList().isEmpty())
        return Utils::Failure{Tr::tr("its \"files\" are no list of files")};
    const QVariantList entries = list.toList();
    if (entries.size() > programFileLimit)
        return Utils::Failure{Tr::tr("it makes more than %1 files").arg(programFileLimit)};
    QSet<QString> names;
    qint64 size = 0;
    for (const QVariant &entry : entries) {
        const QVariantMap map = entry.toMap();
        const QVariant bytes = map.value(QStringLiteral("bytes"));
        const QVariant path = map.value(QStringLiteral("path"));
        if (entry.userType() != QMetaType::QVariantMap || path.userType() != QMetaType::QString ||
            bytes.userType() != QMetaType::QByteArray)
            return Utils::Failure{Tr::tr("one of its files is no map with a path and bytes")};
        const Utils::PlacedFile file{path.toString(), bytes.toByteArray()};
        const QString mistake = file.name.contains(u'/')
                                    ? Tr::tr("it does not name a file of the folder")
                                    : pathMistake(file.name);
        if (!mistake.isEmpty())
            return Utils::Failure{
                Tr::tr("it has a file with the path %1: %2").arg(shown(file.name), mistake)};
        if (names.contains(file.name))
            return Utils::Failure{Tr::tr("it has the file %1 twice").arg(shown(file.name))};
        names.insert(file.name);
        if (isTooLarge(file.bytes, &size))
            return tooLarge(file.name);
        program.files.append(file);
    }
    qint64 free = 0;
    if (!takeCount(answer, QStringLiteral("size"), &program.size) ||
        !takeCount(answer, QStringLiteral("used"), &program.used) ||
        !takeCount(answer, QStringLiteral("free"), &free) || program.used > program.size ||
        free != program.free())
        return Utils::Failure{
            Tr::tr("its \"size\", \"used\" and \"free\" are no numbers that agree")};
    const QVariant warnings = answer.value(QStringLiteral("warnings"));
    program.warnings = warnings.toStringList();
    if ((warnings.isValid() && warnings.userType() != QMetaType::QStringList) ||
        program.warnings.size() > warningLimit ||
        std::any_of(program.warnings.cbegin(), program.warnings.cend(),
                    [](const QString &text) { return text.size() > textLimit || !isPlain(text); }))
        return Utils::Failure{Tr::tr("its \"warnings\" are no texts of a line")};
    return program;
}

Utils::Result<Start> startOf(const QVariantMap &answer)
{
    Start start;
    if (!takeError(answer, &start.error))
        return Utils::Failure{badError()};
    if (!start.error.isEmpty())
        return start;
    if (!takeText(answer, QStringLiteral("folder"), &start.folder) ||
        !QDir::isAbsolutePath(start.folder))
        return Utils::Failure{Tr::tr("its \"folder\" is no full path")};
    start.folder = QDir::cleanPath(start.folder);
    const QVariant changed = answer.value(QStringLiteral("changed"));
    if (changed.userType() != QMetaType::Bool)
        return Utils::Failure{Tr::tr("its \"changed\" is neither true nor false")};
    start.changed = changed.toBool();
    return start;
}

Utils::Result<QVector<SoftwareFormat>> formatsOf(const QVariantList &answer)
{
    if (answer.size() > formatLimit)
        return Utils::Failure{Tr::tr("it offers more than %1 formats").arg(formatLimit)};
    QVector<SoftwareFormat> formats;
    QSet<QString> names;
    for (const QVariant &entry : answer) {
        if (entry.userType() != QMetaType::QVariantMap)
            return Utils::Failure{Tr::tr("one of its formats is no map")};
        const QVariantMap map = entry.toMap();
        SoftwareFormat format;
        const QVector<QPair<QString, QString *>> texts = {
            {QStringLiteral("name"), &format.name},
            {QStringLiteral("title"), &format.title},
            {QStringLiteral("purpose"), &format.purpose},
            {QStringLiteral("standard"), &format.standard},
            {QStringLiteral("files"), &format.files},
            {QStringLiteral("checkedBy"), &format.checkedBy}};
        for (const auto &[key, text] : texts) {
            if (!takeText(map, key, text))
                return Utils::Failure{
                    Tr::tr("\"%1\" of one of its formats is no text of a line").arg(key)};
        }
        if (format.name.isEmpty())
            return Utils::Failure{Tr::tr("one of its formats has no name")};
        if (names.contains(format.name))
            return Utils::Failure{Tr::tr("it offers the format %1 twice").arg(shown(format.name))};
        names.insert(format.name);
        if (format.title.isEmpty())
            format.title = format.name;
        formats.append(format);
    }
    return formats;
}

Utils::Result<Answer> filesOf(const QVariantMap &answer, const QVector<SoftwareFormat> &formats)
{
    Answer result;
    if (!takeError(answer, &result.error))
        return Utils::Failure{badError()};
    if (!result.error.isEmpty())
        return result;
    QString manifest;
    if (!takeText(answer, QStringLiteral("manifest"), &manifest) || manifest.contains(u'/') ||
        (!manifest.isEmpty() && !pathMistake(manifest).isEmpty()))
        return Utils::Failure{Tr::tr("its \"manifest\" is no name of a file")};
    if (!manifest.isEmpty())
        result.manifest = manifest;
    const QVariant list = answer.value(QStringLiteral("files"));
    if (list.userType() != QMetaType::QVariantList)
        return Utils::Failure{Tr::tr("its \"files\" are no list")};
    const QVariantList entries = list.toList();
    if (entries.size() > fileCountLimit)
        return Utils::Failure{Tr::tr("it makes more than %1 files").arg(fileCountLimit)};
    QSet<QString> names;
    for (const SoftwareFormat &format : formats)
        names.insert(format.name);
    QVector<SoftwareFile> &files = result.files;
    QSet<QString> paths{result.manifest};
    QSet<QString> folders;
    qint64 size = 0;
    for (const QVariant &entry : entries) {
        const QVariantMap map = entry.toMap();
        SoftwareFile file;
        const QVariant bytes = map.value(QStringLiteral("bytes"));
        if (entry.userType() != QMetaType::QVariantMap ||
            map.value(QStringLiteral("path")).userType() != QMetaType::QString ||
            bytes.userType() != QMetaType::QByteArray ||
            !takeText(map, QStringLiteral("format"), &file.format))
            return Utils::Failure{
                Tr::tr("one of its files is no map with a path, a format and bytes")};
        file.path = map.value(QStringLiteral("path")).toString();
        file.bytes = bytes.toByteArray();
        const QString path = shown(file.path);
        if (const QString mistake = pathMistake(file.path); !mistake.isEmpty())
            return Utils::Failure{Tr::tr("it has a file with the path %1: %2").arg(path, mistake)};
        if (!names.contains(file.format))
            return Utils::Failure{Tr::tr("the file %1 is of the format %2, which it does not offer")
                                      .arg(path, shown(file.format))};
        if (paths.contains(file.path) || folders.contains(file.path))
            return Utils::Failure{Tr::tr("it has the file %1 twice").arg(path)};
        for (int end = file.path.indexOf(u'/'); end >= 0; end = file.path.indexOf(u'/', end + 1)) {
            const QString folder = file.path.left(end);
            if (paths.contains(folder))
                return Utils::Failure{
                    Tr::tr("%1 is a file and a folder of files").arg(shown(folder))};
            folders.insert(folder);
        }
        paths.insert(file.path);
        if (isTooLarge(file.bytes, &size))
            return tooLarge(file.path);
        files.append(file);
    }
    return result;
}

const SoftwareFile *find(const QVector<SoftwareFile> &files, const QString &path)
{
    const auto found = std::find_if(files.begin(), files.end(), [&path](const SoftwareFile &file) {
        return file.path == path;
    });
    return found == files.end() ? nullptr : found;
}

bool isDocument(const SoftwareFile &file)
{
    return file.path.endsWith(QLatin1String(".html"), Qt::CaseInsensitive) && isText(file.bytes);
}

bool isPicture(const SoftwareFile &file)
{
    return file.path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive) && isText(file.bytes);
}

bool isText(const QByteArray &bytes)
{
    if (std::any_of(bytes.begin(), bytes.end(), [](char c) {
            return uchar(c) < 0x20 && c != '\t' && c != '\n' && c != '\r' && c != '\f';
        }))
        return false;
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace SoftwareSet

} // namespace Workbench
