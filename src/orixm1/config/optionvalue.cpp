#include "optionvalue.h"

#include "optiontable.h"

namespace TARVOORIXM1
{

QVariant valueOf(const OptionMap &options, const QString &key)
{
    const auto stored = options.constFind(key);
    if (stored != options.cend())
        return *stored;
    const Option *option = findOption(key);
    return option ? option->defaultValue : QVariant();
}

bool isOn(const OptionMap &options, const QString &key)
{
    return valueOf(options, key).toBool();
}

int numberOf(const OptionMap &options, const QString &key)
{
    return valueOf(options, key).toInt();
}

QString textOf(const OptionMap &options, const QString &key)
{
    return valueOf(options, key).toString();
}

} // namespace TARVOORIXM1
