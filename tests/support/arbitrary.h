#pragma once

#include <rapidcheck.h>

#include <config/optionmap.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>

// Random configurations and devices for property tests.
namespace Arbitrary
{

inline rc::Gen<DEV::DeviceArg> device()
{
    return rc::gen::map(rc::gen::inRange(0, DEV::DeviceDb::bundled().devices().size()),
                        [](int index) { return DEV::DeviceDb::bundled().devices().at(index); });
}

inline QString text()
{
    const std::string bytes = *rc::gen::string<std::string>();
    return QString::fromUtf8(bytes.data(), int(bytes.size())).remove(QChar(0));
}

// Within the option's domain, or anything of the right type.
inline QVariant value(const TARVOORIXM1::Option &option, bool withinDomain)
{
    using TARVOORIXM1::OptionType;
    if (option.type == OptionType::Bool)
        return *rc::gen::arbitrary<bool>();
    if (withinDomain && !option.choices.isEmpty())
        return TARVOORIXM1::optionValueFromText(
            option, option.choices.at(*rc::gen::inRange(0, option.choices.size())));
    if (withinDomain && option.type == OptionType::Int)
        return *rc::gen::inRange(option.minimum, option.maximum + 1);
    if (option.type == OptionType::Int)
        return *rc::gen::oneOf(rc::gen::inRange(-3, 300), rc::gen::arbitrary<int>());
    return text();
}

// Each key is present with even odds; nine of ten values lie within their domains.
inline TARVOORIXM1::OptionMap options()
{
    TARVOORIXM1::OptionMap map;
    for (const TARVOORIXM1::Option &option : TARVOORIXM1::optionTable()) {
        if (option.isOption && *rc::gen::arbitrary<bool>())
            map.insert(option.key, value(option, *rc::gen::inRange(0, 10) != 0));
    }
    return map;
}

} // namespace Arbitrary
