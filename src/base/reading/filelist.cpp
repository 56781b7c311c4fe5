#include "filelist.h"

#include <QDir>

#include <algorithm>

namespace Reading
{

QStringList filesEndingIn(const QDir &folder, std::initializer_list<QLatin1String> endings)
{
    QStringList names = folder.entryList(QDir::Files, QDir::Name);
    const auto isOther = [&endings](const QString &name) {
        return std::none_of(endings.begin(), endings.end(), [&name](QLatin1String ending) {
            return name.endsWith(ending, Qt::CaseInsensitive);
        });
    };
    names.erase(std::remove_if(names.begin(), names.end(), isOther), names.end());
    return names;
}

} // namespace Reading
