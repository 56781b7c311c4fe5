#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What the fuzz targets share. A target is one function, LLVMFuzzerTestOneInput(): either libFuzzer
// or driver.cpp calls it.

// What must hold for every input. Ends the program, so that the input is kept.
#define REQUIRE(condition)                                                                         \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);    \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace Fuzz
{

inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), int(size));
}

// A folder of this process for readers that want files; in memory where there is such a place.
inline QString folder()
{
    static const QTemporaryDir dir((QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                                        ? QStringLiteral("/dev/shm")
                                        : QDir::tempPath()) +
                                   QStringLiteral("/fuzz-XXXXXX"));
    static const bool isSet = qputenv("TMPDIR", QFile::encodeName(dir.path()));
    REQUIRE(isSet && dir.isValid());
    return dir.path();
}

// Writes the bytes to a file of the folder and returns its path.
inline QString file(const QString &name, const QByteArray &bytes)
{
    const QString path = folder() + u'/' + name;
    QFile out(path);
    REQUIRE(out.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
            out.write(bytes) == bytes.size());
    return path;
}

// The number behind "line " in a message, or -1.
inline int lineIn(const QString &message)
{
    const int at = message.indexOf(QLatin1String("line "));
    if (at < 0)
        return -1;
    int end = at + 5;
    while (end < message.size() && message.at(end).isDigit())
        ++end;
    bool isNumber = false;
    const int line = message.midRef(at + 5, end - at - 5).toInt(&isNumber);
    return isNumber ? line : -1;
}

inline int lineCount(const QByteArray &text)
{
    return text.count('\n') + 1;
}

} // namespace Fuzz
