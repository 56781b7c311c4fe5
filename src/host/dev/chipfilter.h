#pragma once

#include <QString>

namespace DEV
{

// What a device must match; every comparison is exact and case-sensitive, an empty field matches
// everything.
struct ChipFilter {
    QString id; // a record's id, or a device name
    QString series;
    QString device;
    QString package;
    QString speed;
    QString partNumber;
};

} // namespace DEV
