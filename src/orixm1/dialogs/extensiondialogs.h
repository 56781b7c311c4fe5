#pragma once

#include "peripheraldlg.h"

namespace TARVOORIXM1
{

namespace Ui
{
class AHB2ExtensionConfig;
class APB2ExtensionConfig;
} // namespace Ui

// The dialogs of the ports that lead a bus out to logic of the user.

class AHB2ExtensionDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    AHB2ExtensionDlg(OptionMap *options, QWidget *parent = nullptr);
    ~AHB2ExtensionDlg() override;

private:
    std::unique_ptr<Ui::AHB2ExtensionConfig> ui;
};

class APB2ExtensionDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    APB2ExtensionDlg(OptionMap *options, QWidget *parent = nullptr);
    ~APB2ExtensionDlg() override;

private:
    std::unique_ptr<Ui::APB2ExtensionConfig> ui;
};

} // namespace TARVOORIXM1
