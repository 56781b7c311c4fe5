#pragma once

#include <QCoreApplication>

namespace Reading
{

// The texts of this library.
struct Tr {
    Q_DECLARE_TR_FUNCTIONS(Reading)
};

} // namespace Reading
