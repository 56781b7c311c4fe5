#include "runstatistics.h"

#include "config/latin1literal.h"

#include <QList>

#include <limits>

namespace TARVOORIXM1
{

namespace
{

struct ExceptionRow {
    int number;
    QLatin1String name;
};

constexpr ExceptionRow exceptionRows[] = {
    {nonMaskableException, "NMI"_l1},
    {3, "HardFault"_l1},
    {11, "SVCall"_l1},
    {14, "PendSV"_l1},
    {15, "SysTick"_l1},
};

// The words of a line, from the first to the last.
class Words
{
public:
    explicit Words(const QByteArray &line)
        : m_words(line.split(' '))
    {
    }

    QByteArray text() { return m_at < m_words.size() ? m_words.at(m_at++) : fail(); }
    quint64 count() { return number(text(), 10, std::numeric_limits<quint64>::max()); }
    int smallCount() { return int(number(text(), 10, 1 << 16)); }
    quint32 address()
    {
        const QByteArray word = text();
        return word.startsWith("0x")
                   ? quint32(number(word.mid(2), 16, std::numeric_limits<quint32>::max()))
                   : quint32(fail().size());
    }
    bool flag(const char *off, const char *on)
    {
        const QByteArray word = text();
        if (word != off && word != on)
            fail();
        return word == on;
    }
    // Whether it was a line as it should be, and all of it has been taken.
    bool isWhole() const { return m_isRight && m_at == m_words.size(); }

private:
    QByteArray fail()
    {
        m_isRight = false;
        return {};
    }
    quint64 number(const QByteArray &digits, int base, quint64 most)
    {
        bool isNumber = false;
        const quint64 value = digits.toULongLong(&isNumber, base);
        m_isRight = m_isRight && isNumber && value <= most;
        return isNumber ? value : 0;
    }

    const QList<QByteArray> m_words;
    int m_at = 0;
    bool m_isRight = true;
};

using Statistics = RunStatistics;

template <quint64 Statistics::*member>
void takeCount(Words &words, Statistics &run)
{
    run.*member = words.count();
}

void takeWord(Words &words, Statistics &run)
{
    Statistics::Counts &counts = run.words[words.address()];
    for (int size = 0; size < 3; ++size)
        counts.reads += words.count();
    for (int size = 0; size < 3; ++size)
        counts.writes += words.count();
}

void takeCounts(Words &words, Statistics::Counts &counts)
{
    counts.reads = words.count();
    counts.writes = words.count();
}

void takePage(Words &words, Statistics &run)
{
    takeCounts(words, run.pages[words.address()]);
}

void takeElsewhere(Words &words, Statistics &run)
{
    takeCounts(words, run.elsewhere);
}

void takeException(Words &words, Statistics &run)
{
    const int number = words.smallCount();
    run.exceptions[number] = words.count();
}

void takeError(Words &words, Statistics &run)
{
    Statistics::BusError error;
    error.address = words.address();
    error.bytes = words.smallCount();
    error.isWrite = words.flag("read", "write");
    error.programCounter = words.address();
    run.errors.append(error);
}

void takeFault(Words &words, Statistics &run)
{
    Statistics::Fault fault;
    fault.cause = QString::fromLatin1(words.text());
    fault.programCounter = words.address();
    run.faults.append(fault);
}

void takeUnknown(Words &words, Statistics &run)
{
    Statistics::UnknownRead read;
    read.address = words.address();
    read.bits = words.address();
    read.programCounter = words.address();
    run.unknownReads.append(read);
}

void takeLockUp(Words &words, Statistics &run)
{
    run.lockUps.append(words.address());
}

void takeEnd(Words &words, Statistics &run)
{
    run.end = words.address();
}

struct LineRow {
    const char *name;
    void (*take)(Words &words, Statistics &run);
};

constexpr LineRow lineRows[] = {
    {"cycles", takeCount<&Statistics::cycles>},
    {"asleep", takeCount<&Statistics::asleep>},
    {"instructions", takeCount<&Statistics::instructions>},
    {"starts", takeCount<&Statistics::starts>},
    {"word", takeWord},
    {"page", takePage},
    {"elsewhere", takeElsewhere},
    {"exception", takeException},
    {"error", takeError},
    {"errors", takeCount<&Statistics::errorCount>},
    {"fault", takeFault},
    {"faults", takeCount<&Statistics::faultCount>},
    {"unknown", takeUnknown},
    {"unknowns", takeCount<&Statistics::unknownCount>},
    {"lockup", takeLockUp},
    {"lockups", takeCount<&Statistics::lockUpCount>},
    {"end", takeEnd},
};

const LineRow *rowNamed(const QByteArray &name)
{
    for (const LineRow &row : lineRows) {
        if (name == row.name)
            return &row;
    }
    return nullptr;
}

} // namespace

Utils::Result<RunStatistics> readRunStatistics(const QByteArray &bytes)
{
    QList<QByteArray> lines = bytes.split('\n');
    if (lines.first() != "statistics 1")
        return Utils::Failure{QStringLiteral("line 1 is not \"statistics 1\"")};
    lines.removeFirst();
    RunStatistics run;
    QByteArray name;
    int number = 1;
    for (const QByteArray &line : qAsConst(lines)) {
        ++number;
        if (name == "end" && line.isEmpty())
            return run;
        Words words(line);
        name = words.text();
        const LineRow *row = rowNamed(name);
        if (row)
            row->take(words, run);
        if (!row || !words.isWhole())
            return Utils::Failure{QStringLiteral("line %1 is none that is known").arg(number)};
    }
    return Utils::Failure{QStringLiteral("it is not complete")};
}

QString exceptionName(int number)
{
    for (const ExceptionRow &row : exceptionRows) {
        if (row.number == number)
            return row.name;
    }
    return {};
}

int exceptionNamed(const QString &name)
{
    for (const ExceptionRow &row : exceptionRows) {
        if (name == row.name)
            return row.number;
    }
    return 0;
}

} // namespace TARVOORIXM1
