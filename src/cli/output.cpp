#include "output.h"

#include <QJsonDocument>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace Cli
{

namespace
{

void put(FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

} // namespace

void printLine(const QString &line)
{
    put(stdout, line.toUtf8() + '\n');
}

void printError(const QString &line)
{
    put(stderr, QByteArray("orixm1: ") + line.toUtf8() + '\n');
}

void printJson(const QJsonObject &object)
{
    put(stdout, QJsonDocument(object).toJson(QJsonDocument::Indented));
}

bool flushOutput()
{
    if (std::fflush(stdout) == 0 && !std::ferror(stdout))
        return true;
    printError(QLatin1String("The output could not be written: ") +
               QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

} // namespace Cli
