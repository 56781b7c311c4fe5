#pragma once

#include <QString>

#include <cstddef>

namespace TARVOORIXM1
{

// "text"_l1: a Latin-1 literal whose length is known at compile time, for tables; the constructor
// from a plain literal is no constant expression for every compiler.
constexpr QLatin1String operator""_l1(const char *text, std::size_t size) noexcept
{
    return QLatin1String(text, static_cast<int>(size));
}

} // namespace TARVOORIXM1
