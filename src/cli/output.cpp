#include "output.h"

#include "diversion.h"

#include <QJsonDocument>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace Cli
{

namespace
{

int firstWriteError = 0;
std::function<void(const QString &)> errorTaker;
std::function<void(const QJsonObject &)> jsonTaker;
QJsonArray problems;
bool hasPrintedJson = false;

void put(FILE *stream, const QByteArray &bytes)
{
    const size_t size = size_t(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stream) != size && stream == stdout &&
        firstWriteError == 0)
        firstWriteError = errno;
}

} // namespace

void printLine(const QString &line)
{
    put(stdout, line.toUtf8() + '\n');
}

void printText(FILE *stream, const std::string &text)
{
    put(stream, QByteArray::fromStdString(text));
}

void divertErrors(const std::function<void(const QString &)> &taker)
{
    errorTaker = taker;
}

void printError(const QString &line)
{
    if (errorTaker) {
        errorTaker(line);
        return;
    }
    // Where both go to one file, neither breaks into a line of the other.
    if (std::fflush(stdout) != 0 && firstWriteError == 0)
        firstWriteError = errno;
    put(stderr, QByteArray("orixm1: ") + line.toUtf8() + '\n');
}

QString sentenceOf(const Problem &problem)
{
    return problem.fix.isEmpty() ? problem.text : problem.text + u' ' + problem.fix;
}

void Progress::tell(const QString &stage) const
{
    if (::isatty(STDERR_FILENO))
        printError(QStringLiteral("[%1 s] %2")
                       .arg(double(m_timer.elapsed()) / 1000.0, 6, 'f', 1)
                       .arg(stage));
}

QString didYouMean(const QString &nearest)
{
    return nearest.isEmpty()
               ? QString()
               : QString(QLatin1String("Did you mean \"") + nearest + QLatin1String("\"?"));
}

void printProblem(const Problem &problem)
{
    printError(sentenceOf(problem));
    recordProblem(problem);
}

void recordProblem(const Problem &problem)
{
    problems.append(QJsonObject{
        {QStringLiteral("key"), problem.key},
        {QStringLiteral("file"), problem.file},
        {QStringLiteral("line"), problem.line > 0 ? QJsonValue(problem.line) : QJsonValue()},
        {QStringLiteral("text"), problem.text},
        {QStringLiteral("fix"), problem.fix}});
}

void printJson(QJsonObject object)
{
    object.insert(QStringLiteral("errors"), problems);
    if (jsonTaker) {
        jsonTaker(object);
        return;
    }
    put(stdout, QJsonDocument(object).toJson(QJsonDocument::Indented));
    hasPrintedJson = true;
}

void divertJson(const std::function<void(const QJsonObject &)> &taker)
{
    jsonTaker = taker;
}

void printJsonOfProblems()
{
    if (!hasPrintedJson)
        printJson({});
}

bool flushOutput()
{
    // Without anything to flush there is nothing that could fail, even if standard output is
    // closed.
    errno = 0;
    if (std::fflush(stdout) == 0 && !std::ferror(stdout))
        return true;
    const int reason = firstWriteError != 0 ? firstWriteError : errno;
    static bool isTold = false;
    if (std::exchange(isTold, true))
        return false;
    printError(QLatin1String("The output could not be written") +
               (reason == 0 ? QString()
                            : QString(QLatin1String(": ") +
                                      QString::fromLocal8Bit(std::strerror(reason)))) +
               u'.');
    return false;
}

} // namespace Cli
