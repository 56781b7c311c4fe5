#pragma once

#include <QString>

namespace Cli
{

// As a shell reads it back.
inline QString shellWord(QString text)
{
    return u'\'' + text.replace(QLatin1String("'"), QLatin1String("'\\''")) + u'\'';
}

} // namespace Cli
