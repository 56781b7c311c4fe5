#pragma once

#include "interfacetypedlg.h"

namespace TARVOORIXM1
{

namespace Ui
{
class GPIO;
class I2CConfig;
} // namespace Ui

class GPIODlg : public InterfaceTypeDlg
{
    Q_OBJECT

public:
    GPIODlg(OptionMap *options, QWidget *parent = nullptr);
    ~GPIODlg() override;

private:
    std::unique_ptr<Ui::GPIO> ui;
};

class I2CDlg : public InterfaceTypeDlg
{
    Q_OBJECT

public:
    I2CDlg(OptionMap *options, QWidget *parent = nullptr);
    ~I2CDlg() override;

private:
    std::unique_ptr<Ui::I2CConfig> ui;
};

} // namespace TARVOORIXM1
