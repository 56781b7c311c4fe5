#pragma once

#include "optionmap.h"

#include <QString>

namespace TARVOORIXM1
{

// What the names of a subsystem begin with that stands in one design or program beside others:
// letters, digits and single underscores, the first a letter and the last an underscore, at most
// so many characters.
inline constexpr int longestPrefix = 32;

struct PrefixMistake {
    QString text; // why it cannot be the prefix, a sentence; empty: it can
    QString fix;  // one that can and is near; empty: there is none
};

// Whether names with this prefix are names in Verilog, SystemVerilog, VHDL, C and C++. One that is
// a word of one of these languages but for its underscore is refused too: it reads as the word. An
// empty one is no prefix and no mistake.
PrefixMistake prefixMistake(const QString &prefix);

// The same in words, for messages.
QString prefixDomain();
// As a regular expression without the reserved words, and with the empty text.
QString prefixPattern();

// The prefix of a configuration; empty if it has none, or one that cannot be.
QString prefixOf(const OptionMap &options);
// Why prefixOf() is empty although the configuration has one, as sentences; empty otherwise.
QString refusedPrefix(const OptionMap &options);

} // namespace TARVOORIXM1
