#pragma once

#include "peripheraldlg.h"

namespace TARVOORIXM1
{

namespace Ui
{
class DualTimerConfig;
class PSRAM;
class RTCConfig;
class SDCardConfig;
class SPIConfig;
class SPIFlashConfig;
class TrngConfig;
class WatchDogConfig;
} // namespace Ui

// The dialogs of the blocks that are only switched on and off.

class SPIFlashDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    SPIFlashDlg(OptionMap *options, QWidget *parent = nullptr);
    ~SPIFlashDlg() override;

private:
    std::unique_ptr<Ui::SPIFlashConfig> ui;
};

class SDCardDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    SDCardDlg(OptionMap *options, QWidget *parent = nullptr);
    ~SDCardDlg() override;

private:
    std::unique_ptr<Ui::SDCardConfig> ui;
};

class WatchDogDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    WatchDogDlg(OptionMap *options, QWidget *parent = nullptr);
    ~WatchDogDlg() override;

private:
    std::unique_ptr<Ui::WatchDogConfig> ui;
};

class RTCDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    RTCDlg(OptionMap *options, QWidget *parent = nullptr);
    ~RTCDlg() override;

private:
    std::unique_ptr<Ui::RTCConfig> ui;
};

class SPIDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    SPIDlg(OptionMap *options, QWidget *parent = nullptr);
    ~SPIDlg() override;

private:
    std::unique_ptr<Ui::SPIConfig> ui;
};

class TrngDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    TrngDlg(OptionMap *options, QWidget *parent = nullptr);
    ~TrngDlg() override;

private:
    std::unique_ptr<Ui::TrngConfig> ui;
};

class DualTimerDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    DualTimerDlg(OptionMap *options, QWidget *parent = nullptr);
    ~DualTimerDlg() override;

private:
    std::unique_ptr<Ui::DualTimerConfig> ui;
};

class PSRAMDlg : public PeripheralDlg
{
    Q_OBJECT

public:
    PSRAMDlg(OptionMap *options, QWidget *parent = nullptr);
    ~PSRAMDlg() override;

private:
    std::unique_ptr<Ui::PSRAM> ui;
};

} // namespace TARVOORIXM1
