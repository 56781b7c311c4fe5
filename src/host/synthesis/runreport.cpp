#include "runreport.h"

#include <algorithm>

namespace Synthesis
{

QString Message::toString() const
{
    if (file.isEmpty())
        return text;
    const QString place = line > 0 ? QString(file + u':' + QString::number(line)) : file;
    return place + QLatin1String(": ") + text;
}

int ResourceUse::percent() const
{
    if (available < 0)
        return -1;
    if (available == 0)
        return used == 0 ? 0 : 100;
    return int((qint64(used) * 100 + available - 1) / available);
}

int RunReport::count(Message::Severity severity) const
{
    return int(std::count_if(messages.begin(), messages.end(), [severity](const Message &message) {
        return message.severity == severity;
    }));
}

} // namespace Synthesis
