#include "meanings.h"

namespace TARVOORIXM1
{

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

QString shownChange(const FactChange &change)
{
    switch (change.kind) {
    case FactChange::Added:
        return QLatin1String("+ ") + shownFact(change.after);
    case FactChange::Removed:
        return QLatin1String("- ") + shownFact(change.before);
    case FactChange::Changed:
        break;
    }
    const QJsonObject before = detailsOf(change.before);
    const QJsonObject after = detailsOf(change.after);
    QStringList names = before.keys() + after.keys();
    names.sort();
    names.removeDuplicates();
    QStringList details;
    for (const QString &name : qAsConst(names)) {
        if (before[name] == after[name])
            continue;
        const auto text = [&name](const QJsonObject &side) {
            return side.contains(name) ? side[name].toString() : QStringLiteral("none");
        };
        const QString values = text(before) + QLatin1String(" -> ") + text(after);
        details.append(name == QLatin1String("value") ? values : QString(name + u' ' + values));
    }
    return QLatin1String("~ ") + change.after.name + QLatin1String(": ") +
           details.join(QLatin1String(", "));
}

} // namespace TARVOORIXM1
