#pragma once

#include "rules/optionmeaning.h"
#include "system/facts.h"

#include <QJsonObject>
#include <QString>

namespace TARVOORIXM1
{

// A value as people read it: an empty text is "\"\"".
QString shownValue(const QVariant &value);
// Value and, unless it is stored, where it comes from: "5 (default of the device)".
QString shownMeaning(const OptionMeaning &meaning);

// "file", "device" or "default"
QString originName(OptionMeaning::Origin origin);
// {"value", "from", "dialog"}, the last only where the dialog takes something else.
QJsonObject jsonOf(const OptionMeaning &meaning);
// {"key", "before", "after"}; null for a key that nothing is known of.
QJsonObject jsonOf(const OptionDifference &difference);
// "KEY: BEFORE -> AFTER"
QString shownDifference(const OptionDifference &difference);

// "NAME: DETAIL, DETAIL"
QString shownFact(const Fact &fact);
// {DETAIL: TEXT}
QJsonObject detailsOf(const Fact &fact);
// "+ FACT", "- FACT" or "~ NAME: DETAIL BEFORE -> AFTER, …"
QString shownChange(const FactChange &change);

} // namespace TARVOORIXM1
