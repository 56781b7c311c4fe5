#include "diagramdialogs.h"

#include "config/tr.h"
#include "dialogs/candlg.h"
#include "dialogs/cortexm1.h"
#include "dialogs/ddr3dlg.h"
#include "dialogs/ethernetdlg.h"
#include "dialogs/extensiondialogs.h"
#include "dialogs/interfacetypedialogs.h"
#include "dialogs/messagebox.h"
#include "dialogs/singleswitchdialogs.h"
#include "dialogs/twoinstancedialogs.h"

#include <QFileDialog>

namespace TARVOORIXM1
{

namespace
{

template <class Dialog>
bool run(OptionMap *options, QWidget *parent)
{
    Dialog dialog(options, parent);
    return dialog.exec() == QDialog::Accepted;
}

struct DialogRow {
    BlockDialog block;
    bool (*run)(OptionMap *options, QWidget *parent);
};

constexpr DialogRow dialogRows[] = {
    {BlockDialog::CortexM1, run<CortexM1>},
    {BlockDialog::Gpio, run<GPIODlg>},
    {BlockDialog::Can, run<CANDlg>},
    {BlockDialog::Ethernet, run<EthernetDlg>},
    {BlockDialog::Ddr3, run<DDR3Dlg>},
    {BlockDialog::Psram, run<PSRAMDlg>},
    {BlockDialog::SpiFlash, run<SPIFlashDlg>},
    {BlockDialog::SdCard, run<SDCardDlg>},
    {BlockDialog::Ahb2Extension, run<AHB2ExtensionDlg>},
    {BlockDialog::Uart, run<UartDlg>},
    {BlockDialog::Timer, run<TimerDlg>},
    {BlockDialog::WatchDog, run<WatchDogDlg>},
    {BlockDialog::Rtc, run<RTCDlg>},
    {BlockDialog::I2c, run<I2CDlg>},
    {BlockDialog::Spi, run<SPIDlg>},
    {BlockDialog::Trng, run<TrngDlg>},
    {BlockDialog::DualTimer, run<DualTimerDlg>},
    {BlockDialog::Apb2Extension, run<APB2ExtensionDlg>},
};

} // namespace

bool runBlockDialog(BlockDialog block, OptionMap *options, QWidget *parent)
{
    for (const DialogRow &row : dialogRows) {
        if (row.block == block)
            return row.run(options, parent);
    }
    return false;
}

void runSavePictureDialog(QWidget *parent,
                          const std::function<bool(const QString &path, QString *error)> &save)
{
    const QString path =
        QFileDialog::getSaveFileName(parent, Tr::tr("Save Picture"), QString(),
                                     Tr::tr("Drawing (*.svg);;Picture (*.png);;Document (*.pdf)"));
    QString error;
    if (!path.isEmpty() && !save(path, &error))
        showErrorBox(parent, error);
}

} // namespace TARVOORIXM1
