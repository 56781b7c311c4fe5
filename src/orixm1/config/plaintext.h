#pragma once

#include <QString>

namespace TARVOORIXM1
{

// The first character of a text that cannot stand in a generated line, in words: a quotation mark,
// backslash or backtick, or one that ends the line. Empty if the text can stand there as it is.
QString unsafeCharacter(const QString &text);

} // namespace TARVOORIXM1
