#pragma once

#include "fuzz.h"

#include <QGuiApplication>

namespace Fuzz
{

// For targets that draw texts: fonts want an application. What the library tells of each number
// that it cannot read is not shown.
inline void needDisplay()
{
    static const bool isOffscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);
    static const auto before = qInstallMessageHandler([](auto, const auto &, const auto &) {});
    Q_UNUSED(before)
    REQUIRE(isOffscreen);
}

} // namespace Fuzz
