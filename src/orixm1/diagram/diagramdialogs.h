#pragma once

#include "config/optionmap.h"

#include <QLatin1String>
#include <QVector>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace TARVOORIXM1
{

// Runs the dialog of this class, that of the processor or of a block, on the option map; true if
// it was accepted.
bool runBlockDialog(QLatin1String dialog, OptionMap *options, QWidget *parent);

enum class Switching { Toggle, On, Off };

// Stores what the dialog of this block would if it were opened, these switches (by their place in
// the block's table) were clicked until they are so, and OK pressed; nothing is shown. False, and
// nothing stored, where the dialog does not let one of them be switched.
bool switchInBlockDialog(QLatin1String dialog, const QVector<int> &switches, Switching switching,
                         OptionMap *options, QWidget *parent);

// Asks for a file and has it written; a failure is told in a message box.
void runSavePictureDialog(QWidget *parent,
                          const std::function<bool(const QString &path, QString *error)> &save);

} // namespace TARVOORIXM1
