#pragma once

#include <rules/optionmeaning.h>
#include <system/facts.h>

#include <QJsonObject>
#include <QString>

namespace Cli
{

// A value as people read it: an empty text is "\"\"".
QString shownValue(const QVariant &value);
// Value and, unless it is stored, where it comes from: "5 (default of the device)".
QString shownMeaning(const TARVOORIXM1::OptionMeaning &meaning);

// "file", "device" or "default"
QString originName(TARVOORIXM1::OptionMeaning::Origin origin);
// {"value", "from", "dialog"}, the last only where the dialog takes something else.
QJsonObject jsonOf(const TARVOORIXM1::OptionMeaning &meaning);
// {"key", "before", "after"}; null for a key that nothing is known of.
QJsonObject jsonOf(const TARVOORIXM1::OptionDifference &difference);
// "KEY: BEFORE -> AFTER"
QString shownDifference(const TARVOORIXM1::OptionDifference &difference);

// "NAME: DETAIL, DETAIL"
QString shownFact(const TARVOORIXM1::Fact &fact);
// {DETAIL: TEXT}
QJsonObject detailsOf(const TARVOORIXM1::Fact &fact);

} // namespace Cli
