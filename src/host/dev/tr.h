#pragma once

#include <QCoreApplication>

namespace DEV
{

// The texts of this library.
struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DEV)
};

} // namespace DEV
