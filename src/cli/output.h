#pragma once

#include <QElapsedTimer>
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
// What went wrong, or is wrong with what the user gave.
struct Problem {
    QString text;      // a sentence
    QString key = {};  // the option, entry or command that it is about; empty: none
    QString file = {}; // likewise
    int line = 0;      // of the file, from 1; 0: not known
    QString fix = {};  // a sentence that says how to put it right, if that is known
};

// Text and fix, as printed.
QString sentenceOf(const Problem &problem);
// "Did you mean "x"?"; empty for an empty text.
QString didYouMean(const QString &nearest);
// To standard error, and into "errors" of the object that printJson() prints. Of what is wrong
// every entry is told this way; printError() is for warnings and notes.
void printProblem(const Problem &problem);
// Only into "errors", for what is told in a form of its own.
void recordProblem(const Problem &problem);
// From now on `taker` gets what printError() is given; an empty one: it is printed again.
void divertErrors(const std::function<void(const QString &)> &taker);
// As it is, to standard output or standard error.
void printText(FILE *stream, const std::string &text);
// What a long job is at, on standard error with the time that has passed, for somebody who sits at
// a terminal; a pipe or a file gets nothing.
class Progress
{
public:
    Progress() { m_timer.start(); }
    void tell(const QString &stage) const;

private:
    QElapsedTimer m_timer;
};

// One object, indented, with its keys in alphabetical order; "errors", a list of objects, has the
// problems so far.
void printJson(QJsonObject object);
// The same with nothing but the problems, unless an object was printed already.
void printJsonOfProblems();

// Waits until everything printed has left the process; false (and a message) if it could not be
// written.
bool flushOutput();

} // namespace Cli
