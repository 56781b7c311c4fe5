#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <functional>
#include <string>

namespace Cli
{

// The program's exit status.
enum Status {
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
    BadInput = 3,
    TimeLimit = 124,
    Cancelled = 130
};

// All output is UTF-8, whatever the locale says.
void printLine(const QString &line);
void printError(const QString &line);
// From now on `taker` gets what printError() is given; an empty one: it is printed again.
void divertErrors(const std::function<void(const QString &)> &taker);
// As it is, to standard output or standard error.
void printText(FILE *stream, const std::string &text);
// One object, indented, with its keys in alphabetical order.
void printJson(const QJsonObject &object);

// Waits until everything printed has left the process; false (and a message) if it could not be
// written.
bool flushOutput();

} // namespace Cli
