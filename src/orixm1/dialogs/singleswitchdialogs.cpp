#include "singleswitchdialogs.h"

#include "ui_dualtimerconfig.h"
#include "ui_psram.h"
#include "ui_rtcconfig.h"
#include "ui_sdcardconfig.h"
#include "ui_spiconfig.h"
#include "ui_spiflashconfig.h"
#include "ui_trngconfig.h"
#include "ui_watchdogconfig.h"

namespace TARVOORIXM1
{

SPIFlashDlg::SPIFlashDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::SpiFlash, options, parent)
    , ui(makeForm<Ui::SPIFlashConfig>())
{
    start({ui->enableSpiFlashCheckBox}, SIGNAL(toggled(bool)));
}

SPIFlashDlg::~SPIFlashDlg() = default;

SDCardDlg::SDCardDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::SdCard, options, parent)
    , ui(makeForm<Ui::SDCardConfig>())
{
    start({ui->enableSDCardCheckBox}, SIGNAL(toggled(bool)));
}

SDCardDlg::~SDCardDlg() = default;

WatchDogDlg::WatchDogDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::WatchDog, options, parent)
    , ui(makeForm<Ui::WatchDogConfig>())
{
    start({ui->enableWatchDogCheckBox}, SIGNAL(toggled(bool)));
}

WatchDogDlg::~WatchDogDlg() = default;

RTCDlg::RTCDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::Rtc, options, parent)
    , ui(makeForm<Ui::RTCConfig>())
{
    start({ui->enableRtcCheckBox}, SIGNAL(toggled(bool)));
}

RTCDlg::~RTCDlg() = default;

SPIDlg::SPIDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::Spi, options, parent)
    , ui(makeForm<Ui::SPIConfig>())
{
    start({ui->enableSPICheckBox}, SIGNAL(toggled(bool)));
}

SPIDlg::~SPIDlg() = default;

TrngDlg::TrngDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::Trng, options, parent)
    , ui(makeForm<Ui::TrngConfig>())
{
    start({ui->enableTrngCheckBox}, nullptr);
}

TrngDlg::~TrngDlg() = default;

DualTimerDlg::DualTimerDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::DualTimer, options, parent)
    , ui(makeForm<Ui::DualTimerConfig>())
{
    start({ui->enableDualTimerCheckBox}, nullptr);
}

DualTimerDlg::~DualTimerDlg() = default;

PSRAMDlg::PSRAMDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::Psram, options, parent)
    , ui(makeForm<Ui::PSRAM>())
{
    start({ui->enablePsramCheckBox}, SIGNAL(toggled(bool)));
}

PSRAMDlg::~PSRAMDlg() = default;

} // namespace TARVOORIXM1
