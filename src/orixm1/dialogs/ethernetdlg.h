#pragma once

#include "peripheraldlg.h"

namespace TARVOORIXM1
{

namespace Ui
{
class EthernetConfig;
} // namespace Ui

class EthernetDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    EthernetDlg(OptionMap *options, QWidget *parent = nullptr);
    ~EthernetDlg() override;

private Q_SLOTS:
    void onEthernetEnableChanged();
    void onInterfaceChanged();

private:
    void connectOptions() override;
    void loadOptions() override;
    void storeOptions() override;
    int choice() const override;

    std::unique_ptr<Ui::EthernetConfig> ui;
};

} // namespace TARVOORIXM1
