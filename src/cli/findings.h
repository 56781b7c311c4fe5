#pragma once

#include <rules/check.h>

#include <QJsonObject>
#include <QString>

namespace Cli
{

// "error" or "warning"
QString severityName(const TARVOORIXM1::Finding &finding);

// {"severity", "key", "message"}
QJsonObject jsonOf(const TARVOORIXM1::Finding &finding);

} // namespace Cli
