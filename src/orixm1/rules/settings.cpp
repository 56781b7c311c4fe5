#include "settings.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "itcmpath.h"

namespace TARVOORIXM1
{

Utils::Result<Setting> settingFromText(const QString &text)
{
    const int equals = text.indexOf(u'=');
    if (equals < 1)
        return Utils::Failure{u'"' + text + "\" is not of the form KEY=VALUE."_l1};
    const QString key = text.left(equals);
    const QString value = text.mid(equals + 1);
    const Option *option = findOption(key);
    if (!option)
        return Utils::Failure{unknownKeyText(key)};
    const QVariant typed = optionValueFromText(*option, value);
    if (!typed.isValid() || !isInDomain(*option, typed)) {
        return Utils::Failure{u'"' + value + "\" is no value of \""_l1 + key + "\": "_l1 +
                              domainText(*option) + u'.'};
    }
    return Setting{key, typed};
}

QString unknownKeyText(const QString &key)
{
    const QString nearest = nearestOptionKey(key);
    return "Unknown key \""_l1 + key + u'"' +
           (nearest.isEmpty() ? QString()
                              : QString("; the nearest known one is \""_l1 + nearest + u'"')) +
           u'.';
}

void applySetting(const Setting &setting, const QString &createIn, OptionMap *options)
{
    options->insert(setting.key, setting.value);
    if (setting.key == Key::itcmInitializationPath) {
        const QString path = setting.value.toString();
        options->insert(Key::itcmInitializationAbsolutePath,
                        path.isEmpty() ? path : absoluteItcmPath(path, createIn));
    }
}

} // namespace TARVOORIXM1
