#include "ddr3dlg.h"

#include "ui_ddr3config.h"

#include "config/latin1literal.h"
#include "rules/devicerules.h"

namespace TARVOORIXM1
{

DDR3Dlg::DDR3Dlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg("DDR3Dlg"_l1, options, parent)
    , ui(makeForm<Ui::DDR3Config>())
{
    start();
    // Refreshes nothing: the pins of a stored configuration stay in sight although the device
    // cannot have them.
    if (isDdr3Locked(targetDevice())) {
        ui->enableDDR3CheckBox->setChecked(false);
        ui->enableDDR3CheckBox->setEnabled(false);
    }
}

DDR3Dlg::~DDR3Dlg() = default;

} // namespace TARVOORIXM1
