#pragma once

#include "catalogue/answers.h"

#include <utils/fileplacement.h>
#include <utils/result.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>
#include <QVector>

namespace Workbench
{

// A form in which a plug-in hands on a configured IP.
struct SoftwareFormat {
    QString name; // unique
    QString title;
    QString purpose; // a sentence
    QString standard;
    QString files; // the most important ones
    QString checkedBy;
};

// A file that a plug-in has made of a configuration.
struct SoftwareFile {
    QString path; // below a folder, with "/"
    QString format;
    QByteArray bytes;

    bool operator==(const SoftwareFile &other) const
    {
        return path == other.path && format == other.format && bytes == other.bytes;
    }
};

// What plug-ins answer is taken as it comes from a stranger: only what has the right types, sound
// paths and a bearable size comes through, all of it or nothing. A failure is a clause.
namespace SoftwareSet
{

// Bytes.
constexpr int fileLimit = 16 << 20;
constexpr int setLimit = 64 << 20;
// Counts.
constexpr int formatLimit = 100;
constexpr int fileCountLimit = 2000;
constexpr int textLimit = Answers::textLimit; // characters of any text
constexpr int programFileLimit = 64;
constexpr int warningLimit = 100;

struct Answer {
    QVector<SoftwareFile> files;
    // The name of the file in which an export keeps account of what it has written; there always is
    // one.
    QString manifest = QStringLiteral("software-export.json");
    QString error; // why there are no files, a sentence of the plug-in's; empty if all went well
};

// What becomes of a program: files from which a memory starts with it.
struct Program {
    QString error; // why there is none, a sentence of the plug-in's; empty if all went well
    QVector<Utils::PlacedFile> files;
    qint64 size = 0;      // bytes of the memory
    qint64 used = 0;      // by the program
    QStringList warnings; // sentences

    qint64 free() const { return size - used; }
};
// How a configuration starts from such files.
struct Start {
    QString error;
    QString folder;       // of the files, a full path
    bool changed = false; // the configuration, or it would be
};

Utils::Result<Program> programOf(const QVariantMap &answer);
Utils::Result<Start> startOf(const QVariantMap &answer);
Utils::Result<QVector<SoftwareFormat>> formatsOf(const QVariantList &answer);
// The files are of these formats.
Utils::Result<Answer> filesOf(const QVariantMap &answer, const QVector<SoftwareFormat> &formats);

// The file with this path; null if there is none.
const SoftwareFile *find(const QVector<SoftwareFile> &files, const QString &path);

// Whether a document reader shows the file better than an editor does.
bool isDocument(const SoftwareFile &file);
bool isPicture(const SoftwareFile &file);
// Whether the bytes are UTF-8 without control characters but for tabs and line ends.
bool isText(const QByteArray &bytes);

} // namespace SoftwareSet

} // namespace Workbench
