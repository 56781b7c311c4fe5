#pragma once

#include <QCoreApplication>

namespace TE
{
namespace TE_IPCore_Def
{

// The texts of this library.
struct Tr {
    Q_DECLARE_TR_FUNCTIONS(TE::TE_IPCore_Def)
};

} // namespace TE_IPCore_Def
} // namespace TE
