#pragma once

#include <QLatin1String>
#include <QSet>
#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

struct SystemMap;

// What an export calls things after the subsystem, behind the prefix of the map. The names of ports
// stay as they are.

// Any name that others could have too, with the prefix of the map.
QString ownName(const SystemMap &map, const QString &name);
// The module, and in VHDL the entity, that a design has an instance of.
QString topModuleName(const SystemMap &map);
// "Tarvo_ORIX_M1": what a document calls the subsystem where it has to be one word.
QString systemName(const SystemMap &map);
// "tarvo_orix_m1" and the suffix: ".sdc" of a file, "_tb" of a module or a name in a language.
QString fileName(const SystemMap &map, QLatin1String suffix);
QString symbolName(const SystemMap &map, QLatin1String suffix);
// "TARVO_ORIX_M1" and the suffix: of a macro, or a variable of a build.
QString macroName(const SystemMap &map, QLatin1String suffix);

// Whether programs in C or C++ may know the word as something else than a function or a variable: a
// keyword, a macro or a type of the standard library, or a macro that compilers define. Counts
// upper and lower case.
bool isKnownWord(const QString &word);

// Hands out names of which no two are equal and none is a known word. A name that cannot be had
// gets an underscore behind it, and if that cannot be had either, an underscore and the first
// number from 2 that is free.
class UniqueNames
{
public:
    // Without regard to case, names that differ in nothing but underscores at their end are equal
    // too, since other languages spell names in their own way. No name of `outer` is given, which
    // has to live as long; null for none.
    explicit UniqueNames(Qt::CaseSensitivity sensitivity, const UniqueNames *outer = nullptr);

    // Takes a name out of the supply.
    void reserve(const QString &name);
    QString give(const QString &wanted);
    // In the order of `wanted`; the names that can stay as they are come first to their right.
    QStringList giveAll(const QStringList &wanted);

private:
    QString key(const QString &name) const;
    bool isFree(const QString &name) const;
    bool isGiven(const QString &name) const;

    Qt::CaseSensitivity m_sensitivity;
    const UniqueNames *m_outer;
    QSet<QString> m_given;
};

// The text as one line that no reader of XML and no compiler stumbles over: without characters that
// are not shown, and without the beginning or the end of a comment in C.
QString plainLine(const QString &text);

} // namespace TARVOORIXM1
