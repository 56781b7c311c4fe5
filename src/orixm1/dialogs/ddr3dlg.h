#pragma once

#include "peripheraldlg.h"

namespace TARVOORIXM1
{

namespace Ui
{
class DDR3Config;
} // namespace Ui

class DDR3Dlg : public PeripheralDlg
{
    Q_OBJECT

public:
    DDR3Dlg(OptionMap *options, QWidget *parent = nullptr);
    ~DDR3Dlg() override;

private:
    std::unique_ptr<Ui::DDR3Config> ui;
};

} // namespace TARVOORIXM1
