#pragma once

#include <dev/devicearg.h>

#include <QJsonObject>
#include <QList>

namespace TARVOORIXM1
{

// A JSON Schema (2020-12) of {"device": ID, "options": {KEY: VALUE}} for these devices: every
// option with its type and domain, and what each device allows. It accepts what the check finds no
// error in, keys that nobody knows and files on the disk apart. With one device the id may be
// missing.
QJsonObject optionSchema(const QList<DEV::DeviceArg> &devices);

} // namespace TARVOORIXM1
