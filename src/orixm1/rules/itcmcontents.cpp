#include "itcmcontents.h"

#include "config/latin1literal.h"
#include "config/memoryfile.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "dialogdefaults.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QFileInfo>

namespace TARVOORIXM1
{

namespace
{

constexpr int lanes = 4;

// The mistakes of one file.
QVector<ItcmMistake> mistakesOf(const QString &file, int size)
{
    QByteArray bytes;
    QString reason;
    if (!Reading::readPlainFile(file, Reading::Limits::memoryFile, &bytes, &reason))
        return {{file, 0, "cannot be read: "_l1 + reason}};
    const MemoryText text = readMemoryText(bytes, size);
    QVector<ItcmMistake> mistakes;
    for (const MemoryMistake &mistake : text.mistakes) {
        if (mistakes.size() == Reading::Limits::memoryMistakes) {
            mistakes.append({file, mistake.line,
                             "and "_l1 + QString::number(text.mistakes.size() - mistakes.size()) +
                                 " more mistakes from here on"_l1});
            return mistakes;
        }
        mistakes.append({file, mistake.line, mistake.reason});
    }
    if (const int missing = text.firstMissing(); mistakes.isEmpty() && missing >= 0)
        mistakes.append(
            {file, text.lines,
             QStringLiteral("%1 of the %2 bytes of this lane are given; the others, the first at "
                            "address @%3, would be unknown: fill up with 00")
                 .arg(QString::number(text.given.count(true)), QString::number(size),
                      QString::number(missing, 16))});
    return mistakes;
}

} // namespace

QString ItcmMistake::text() const
{
    const QString place = line > 0 ? QString(file + u':' + QString::number(line)) : file;
    return place + ": "_l1 + reason;
}

int itcmLaneSize(int sizeIndex)
{
    constexpr int otherIndex = 5;
    const bool known = sizeIndex >= 0 && sizeIndex <= 9;
    return (1024 / lanes) << (known ? sizeIndex : otherIndex);
}

QStringList itcmFiles(const OptionMap &options, const QString &generationFolder)
{
    if (!isOn(options, Key::internalInstructionMemory) || !isOn(options, Key::initializeItcm))
        return {};
    const QString named = QDir::cleanPath(textOf(options, Key::itcmInitializationAbsolutePath));
    const QString folder =
        QDir::isRelativePath(named) ? QDir(generationFolder).absoluteFilePath(named) : named;
    if (named.isEmpty() || (QDir::isRelativePath(named) && !QFileInfo(folder).isDir()))
        return {};
    QStringList files;
    for (int lane = 0; lane < lanes; ++lane)
        files.append(folder + "/itcm"_l1 + QString::number(lane));
    return files;
}

QVector<ItcmMistake> itcmMistakes(const OptionMap &options, const QString &device,
                                  const QString &generationFolder)
{
    const QStringList files = itcmFiles(options, generationFolder);
    if (files.isEmpty())
        return {};
    const int size = itcmLaneSize(generatedValue(options, Key::itcmSize, device).toInt());
    QVector<ItcmMistake> mistakes;
    for (const QString &file : files)
        mistakes += mistakesOf(file, size);
    return mistakes;
}

} // namespace TARVOORIXM1
