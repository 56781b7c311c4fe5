#pragma once

#include "peripheraldlg.h"

namespace TARVOORIXM1
{

namespace Ui
{
class CANConfig;
} // namespace Ui

class CANDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    CANDlg(OptionMap *options, QWidget *parent = nullptr);
    ~CANDlg() override;

private Q_SLOTS:
    void onCanEnableChanged();

private:
    void connectOptions() override;
    void loadOptions() override;
    void storeOptions() override;

    std::unique_ptr<Ui::CANConfig> ui;
};

} // namespace TARVOORIXM1
