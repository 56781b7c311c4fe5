#pragma once

#include <QCoreApplication>

namespace TARVOORIXM1
{

// The texts that no class with a context of its own shows, in all libraries of this folder.
struct Tr {
    Q_DECLARE_TR_FUNCTIONS(TARVOORIXM1)
};

} // namespace TARVOORIXM1
