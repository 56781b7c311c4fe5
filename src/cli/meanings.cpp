#include "meanings.h"

namespace Cli
{

using namespace TARVOORIXM1;

QString shownValue(const QVariant &value)
{
    const QString text = valueText(value);
    return text.isEmpty() ? QStringLiteral("\"\"") : text;
}

QString shownMeaning(const OptionMeaning &meaning)
{
    QString origin;
    switch (meaning.origin) {
    case OptionMeaning::Stored:
        return shownValue(meaning.value);
    case OptionMeaning::Unknown:
        return QStringLiteral("nothing");
    case OptionMeaning::DeviceDefault:
        origin = QStringLiteral("default of the device");
        break;
    case OptionMeaning::Default:
        origin = QStringLiteral("default");
        break;
    }
    if (meaning.dialog != meaning.value)
        origin += QLatin1String("; its dialog takes ") + shownValue(meaning.dialog);
    return shownValue(meaning.value) + QLatin1String(" (") + origin + u')';
}

QString originName(OptionMeaning::Origin origin)
{
    switch (origin) {
    case OptionMeaning::Stored:
        return QStringLiteral("file");
    case OptionMeaning::DeviceDefault:
        return QStringLiteral("device");
    case OptionMeaning::Default:
    case OptionMeaning::Unknown:
        break;
    }
    return QStringLiteral("default");
}

QJsonObject jsonOf(const OptionMeaning &meaning)
{
    QJsonObject object{{QStringLiteral("value"), QJsonValue::fromVariant(meaning.value)},
                       {QStringLiteral("from"), originName(meaning.origin)}};
    if (meaning.dialog != meaning.value)
        object.insert(QStringLiteral("dialog"), QJsonValue::fromVariant(meaning.dialog));
    return object;
}

QJsonObject jsonOf(const OptionDifference &difference)
{
    const auto side = [](const OptionMeaning &meaning) {
        return meaning.origin == OptionMeaning::Unknown ? QJsonValue() : jsonOf(meaning);
    };
    return {{QStringLiteral("key"), difference.before.key},
            {QStringLiteral("before"), side(difference.before)},
            {QStringLiteral("after"), side(difference.after)}};
}

QString shownDifference(const OptionDifference &difference)
{
    return difference.before.key + QLatin1String(": ") + shownMeaning(difference.before) +
           QLatin1String(" -> ") + shownMeaning(difference.after);
}

QString shownFact(const Fact &fact)
{
    QStringList details;
    for (const auto &detail : fact.details) {
        const bool speaksForItself =
            detail.first == QLatin1String("value") || detail.first == QLatin1String("text");
        details.append(speaksForItself ? detail.second
                                       : QString(detail.first + u' ' + detail.second));
    }
    return fact.name + QLatin1String(": ") + details.join(QLatin1String(", "));
}

QJsonObject detailsOf(const Fact &fact)
{
    QJsonObject object;
    for (const auto &detail : fact.details)
        object.insert(detail.first, detail.second);
    return object;
}

} // namespace Cli
