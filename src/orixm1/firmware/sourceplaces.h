#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// What an address of a program belongs to.
struct SourcePlace {
    QString function; // empty: in none that has a name
    QString file;     // a full path, unless the compiler knew none; empty: not known
    int line = 0;     // counts with `file`

    bool isKnown() const { return !function.isEmpty() || !file.isEmpty(); }
};

// A function of a program.
struct FunctionSymbol {
    quint32 address = 0;
    quint32 bytes = 0; // 0: not known
    QString name;
};

// Where the instructions of a program come from: the functions of its symbol table, the lines of
// its debug information (DWARF).
class SourcePlaces
{
public:
    // Nothing is known.
    SourcePlaces() = default;
    // Of an ELF image that readImage() takes; of anything else nothing is known.
    explicit SourcePlaces(const QByteArray &elf);

    SourcePlace at(quint32 address) const;

    // By address.
    const QVector<FunctionSymbol> &functions() const { return m_functions; }

    // Why no line is known, a sentence; empty if lines are.
    QString problem() const { return m_problem; }

private:
    struct Line {
        quint32 address = 0;
        int file = -1; // of m_files; -1: no code from here on
        int line = 0;
    };

    class Reader;

    QVector<FunctionSymbol> m_functions;
    QVector<Line> m_lines; // by address
    QVector<QString> m_files;
    QString m_problem;
};

} // namespace TARVOORIXM1
