#pragma once

#include <QJsonObject>

#include <functional>

namespace Cli
{

// From now on `taker` gets what printJson() would print; an empty one: it is printed again.
void divertJson(const std::function<void(const QJsonObject &)> &taker);

} // namespace Cli
