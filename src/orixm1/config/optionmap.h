#pragma once

#include <QVariantMap>

namespace TARVOORIXM1
{

// The configuration of one IP: option key to value. Keys are in config/optionkeys.h, types and
// domains in config/optiontable.h. Any key may be absent; every reader gives its own default.
using OptionMap = QVariantMap;

} // namespace TARVOORIXM1
