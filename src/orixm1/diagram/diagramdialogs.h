#pragma once

#include "config/optionmap.h"

#include <QLatin1String>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace TARVOORIXM1
{

// Runs the dialog of this class, that of the processor or of a block, on the option map; true if
// it was accepted.
bool runBlockDialog(QLatin1String dialog, OptionMap *options, QWidget *parent);

// Asks for a file and has it written; a failure is told in a message box.
void runSavePictureDialog(QWidget *parent,
                          const std::function<bool(const QString &path, QString *error)> &save);

} // namespace TARVOORIXM1
