#pragma once

#include "peripheraldlg.h"

namespace TARVOORIXM1
{

namespace Ui
{
class TimerConfig;
class UartConfig;
} // namespace Ui

// The dialogs of the blocks that exist twice.

class UartDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    UartDlg(OptionMap *options, QWidget *parent = nullptr);
    ~UartDlg() override;

private:
    std::unique_ptr<Ui::UartConfig> ui;
};

class TimerDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    TimerDlg(OptionMap *options, QWidget *parent = nullptr);
    ~TimerDlg() override;

private:
    std::unique_ptr<Ui::TimerConfig> ui;
};

} // namespace TARVOORIXM1
