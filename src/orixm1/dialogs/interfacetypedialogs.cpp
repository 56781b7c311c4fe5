#include "interfacetypedialogs.h"

#include "ui_gpio.h"
#include "ui_i2cconfig.h"

namespace TARVOORIXM1
{

GPIODlg::GPIODlg(OptionMap *options, QWidget *parent)
    : InterfaceTypeDlg(BlockId::Gpio, options, parent)
    , ui(makeForm<Ui::GPIO>())
{
    start({ui->enableGpioCheckBox, ui->enableGpioIOCheckBox}, SIGNAL(toggled(bool)));
}

GPIODlg::~GPIODlg() = default;

I2CDlg::I2CDlg(OptionMap *options, QWidget *parent)
    : InterfaceTypeDlg(BlockId::I2c, options, parent)
    , ui(makeForm<Ui::I2CConfig>())
{
    start({ui->enableI2CCheckBox, ui->enableI2CIOCheckBox}, SIGNAL(toggled(bool)));
}

I2CDlg::~I2CDlg() = default;

} // namespace TARVOORIXM1
