#pragma once

#include <QString>
#include <QVector>

namespace Workbench
{

// Something of others that the program is linked with, loads or starts, as
// packaging/components.json has it.
struct Component {
    QString name;
    QString purpose;         // in the language of the window
    QString licence;         // an SPDX expression
    QString package;         // of Debian, with which it is built or called
    QString program;         // that is started; empty: a library
    QString versionArgument; // makes the program tell its version and end
};

QVector<Component> components();

} // namespace Workbench
