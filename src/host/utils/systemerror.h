#pragma once

#include <QString>

#include <cerrno>
#include <cstring>

namespace Utils
{

// What the system says of an error number, as a phrase without a full stop.
inline QString systemError(int number = errno)
{
    return QString::fromLocal8Bit(std::strerror(number));
}

// Calls again what a signal has interrupted.
template <typename Call>
auto uninterrupted(Call call)
{
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR)
            return result;
    }
}

} // namespace Utils
