#include "findings.h"

namespace Cli
{

QString severityName(const TARVOORIXM1::Finding &finding)
{
    return finding.severity == TARVOORIXM1::Finding::Error ? QStringLiteral("error")
                                                           : QStringLiteral("warning");
}

QJsonObject jsonOf(const TARVOORIXM1::Finding &finding)
{
    return {{QStringLiteral("severity"), severityName(finding)},
            {QStringLiteral("key"), finding.key},
            {QStringLiteral("message"), finding.message}};
}

} // namespace Cli
