#pragma once

#include <QCoreApplication>

namespace Workbench
{

// The texts of this library that no class with a context of its own shows.
struct Tr {
    Q_DECLARE_TR_FUNCTIONS(Workbench)
};

} // namespace Workbench
