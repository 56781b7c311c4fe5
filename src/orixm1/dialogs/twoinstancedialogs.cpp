#include "twoinstancedialogs.h"

#include "ui_timerconfig.h"
#include "ui_uartconfig.h"

namespace TARVOORIXM1
{

UartDlg::UartDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::Uart, options, parent)
    , ui(makeForm<Ui::UartConfig>())
{
    start({ui->enableUart0CheckBox, ui->enableUart1CheckBox}, SIGNAL(toggled(bool)));
}

UartDlg::~UartDlg() = default;

TimerDlg::TimerDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::Timer, options, parent)
    , ui(makeForm<Ui::TimerConfig>())
{
    start({ui->enableTimer0CheckBox, ui->enableTimer1CheckBox}, SIGNAL(toggled(bool)));
}

TimerDlg::~TimerDlg() = default;

} // namespace TARVOORIXM1
