#pragma once

#include <QCoreApplication>

namespace Utils
{

// The texts of this library.
struct Tr {
    Q_DECLARE_TR_FUNCTIONS(Utils)
};

} // namespace Utils
