#pragma once

#include <dialogs/blockdialogs.h>

#include <vector>

// What the dialogs of the blocks have to show, written for the tests.
namespace Expected
{

using Dialog = IPCore::MicroSysChildIPGenDlg;

template <class T>
Dialog *make(TARVOORIXM1::OptionMap *options, QWidget *parent)
{
    return new T(options, parent);
}

// Pins as words: name, then < for an input, > for an output and = for a bidirectional one.
// An underscore before the mark stands for a blank that belongs to the name.
namespace Pins
{
inline const char gpioInout[] = "GPIO[15:0]=";
inline const char gpioSplit[] = "GPIOIN[15:0]< GPIOOUT[15:0]> GPIOOUTEN[15:0]>";
inline const char can[] = "CAN_RX< CAN_TX>";
inline const char ethernet[] = "MDC> MDIO=";
inline const char rgmii[] = "RGMII_TXC> RGMII_TX_CTL> RGMII_TXD[3:0]> RGMII_RXC< RGMII_RX_CTL< "
                            "RGMII_RXD[3:0]< GTX_CLK<";
inline const char gmii[] = "GMII_RX_CLK< GMII_RX_DV< GMII_RXD[7:0]< GMII_RX_ER< GTX_CLK< "
                           "GMII_GTX_CLK> GMII_TXD[7:0]> GMII_TX_EN> GMII_TX_ER>";
inline const char mii[] = "MII_RX_CLK< MII_RXD[3:0]< MII_RX_DV< MII_RX_ER< MII_TX_CLK< "
                          "MII_TXD[3:0]> MII_TX_EN> MII_TX_ER> MII_COL< MII_CRS<";
inline const char ddr3Stop[] = "DDR_STOP_O>";
inline const char ddr3[] =
    "DDR_CLK_I< DDR_MEM_CLK_I< DDR_LOCK_I< DDR_RSTN_I< DDR_INIT_COMPLETE_O> DDR_ADDR_O[15:0]> "
    "DDR_BA_O[2:0]> DDR_CS_N_O> DDR_RAS_N_O> DDR_CAS_N_O> DDR_WE_N_O> DDR_CLK_O> DDR_CLK_N_O> "
    "DDR_CKE_O> DDR_ODT_O> DDR_RESET_N_O> DDR_DQM_O[1:0]> DDR_DQ_IO[15:0]= DDR_DQS_IO[1:0]= "
    "DDR_DQS_N_IO[1:0]=";
inline const char psram[] =
    "O_psram_ck[1:0]> O_psram_ck_n[1:0]> IO_psram_rwds[1:0]= IO_psram_dq[15:0]= "
    "O_psram_reset_n[1:0]> O_psram_cs_n[1:0]> init_calib> psram_ref_clk< psram_memory_clk<";
inline const char spiFlash[] = "FLASH_SPI_HOLDN= FLASH_SPI_CSN= FLASH_SPI_MISO= FLASH_SPI_MOSI= "
                               "FLASH_SPI_WPN= FLASH_SPI_CLK=";
// %1: the port.
inline const char ahbPort[] =
    "AHB%1HRDATA[31:0]< AHB%1HREADYOUT< AHB%1HRESP[1:0]< AHB%1HTRANS[1:0]> AHB%1HBURST[2:0]> "
    "AHB%1HPROT[3:0]> AHB%1HSIZE[2:0]_> AHB%1HWRITE> AHB%1HREADYMUX> AHB%1HMASTER[3:0]> "
    "AHB%1HMASTLOCK> AHB%1HADDR[31:0]> AHB%1HWDATA[31:0]> AHB%1HSEL> AHB%1HCLK> AHB%1HRESET>";
inline const char apbPort[] =
    "APB%1PADDR[31:0]> APB%1PENABLE> APB%1PWRITE> APB%1PSTRB[3:0]> APB%1PPROT[2:0]> "
    "APB%1PWDATA[31:0]> APB%1PSEL> APB%1PRDATA[31:0]< APB%1PREDADY< APB%1PSLVERR< APB%1PCLK> "
    "APB%1PRESET>";
inline const char uart0[] = "UART0RXD< UART0TXD>";
inline const char uart1[] = "UART1RXD< UART1TXD>";
inline const char timer0[] = "TIMER0EXTIN<";
inline const char timer1[] = "TIMER1EXTIN<";
inline const char rtc[] = "RTCSRCCLK<";
inline const char i2cInout[] = "SCL= SDA=";
inline const char i2cSplit[] = "SCLIN< SCLOUT> SCLOUTEN> SDAIN< SDAOUT> SDAOUTEN>";
inline const char spi[] = "MOSI> MISO< SCLK> NSS>";
inline const char sdCard[] = "SD_CLK> SD_SPICLK< SD_CS> SD_DATAIN< SD_DATAOUT> SD_CARD_INIT> "
                             "SD_CHECKIN< SD_CHECKOUT>";
} // namespace Pins

struct Switch {
    const char *key;
    bool byDefault;
    const char *objectName;
    const char *text;
};

// Of the diagram; the drop line meets the middle of its upper edge.
struct Box {
    const char *label;
    int x;
    int width = 60;
    bool recolours = true;
};

struct Block {
    const char *dialog; // class name
    Dialog *(*make)(TARVOORIXM1::OptionMap *, QWidget *);
    const char *title;
    const char *module;
    const char *form; // class name
    const char *group;
    std::vector<Switch> switches;
    const char *summary;
    const char *slot; // of the diagram
    std::vector<Box> boxes;
    const char *pins = "";                 // where they follow the first switch alone
    const char *redraws = "toggled(bool)"; // the check boxes' signal

    // What the box of this index shows: a port of many, or the switch of the same index.
    const Switch &shownBy(size_t box) const
    {
        return switches.at(hasPorts() ? switches.size() - 1 : box);
    }
    bool hasPorts() const { return switches.size() > 2; }
};

// In the order in which the diagram shows them.
inline const std::vector<Block> &blocks()
{
    using namespace TARVOORIXM1;
    static const std::vector<Block> list = {
        {"GPIODlg",
         make<GPIODlg>,
         "GPIO",
         "Tarvo AHB Bus",
         "GPIO",
         "Configuration",
         {{"Enable GPIO", false, "enableGpioCheckBox", "Enable GPIO"},
          {"Enabel GPIO IO", true, "enableGpioIOCheckBox", "Enable GPIO I/O"}},
         "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with GPIO block through AHB bus. The GPIO "
         "block interconnects With FPGA Fabric where user implements general purpose I/O "
         "functions. This AHB GPIO is a general purpose I/O interface unit and provides a 16-bit "
         "I/O interface. Users can select inout or in/out/en signals as GPIO's ports.",
         SLOT(onGpio()),
         {{"GPIO", 170}}},
        {"CANDlg",
         make<CANDlg>,
         "CAN",
         "Tarvo AHB Bus",
         "CANConfig",
         "Configurations",
         {{"Enable CAN", false, "enableCanCheckBox", "Enable CAN"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with CAN block through AHB bus.The CAN "
         "Block is a fully verified block, which can implement CAN bus communication.The CAN block "
         "implements CAN2.0 and CAN FD protocol.",
         SLOT(onCan()),
         {{"CAN", 250}},
         Pins::can,
         "clicked(bool)"},
        {"EthernetDlg",
         make<EthernetDlg>,
         "Ethernet",
         "Tarvo AHB Bus",
         "EthernetConfig",
         "Configuration",
         {{"Enable Ethernet", false, "enableEthernetCheckBox", "Enable Ethernet"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with Ethernet block through AHB bus.The "
         "Ethernet block is a fully verified block, which can implement Ethernet MAC layer "
         "function and provide RGMII/GMII/MII interface to connect to PHY IC. The block implements "
         "MAC layer protocol.",
         SLOT(onEhternet()),
         {{"Ethernet", 340}}},
        {"DDR3Dlg",
         make<DDR3Dlg>,
         "DDR3",
         "Tarvo AHB Bus",
         "DDR3Config",
         "Configuration",
         {{"Enable DDR3", false, "enableDDR3CheckBox", "Enable DDR3"}},
         " The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with DDR3 block through AHB bus. The DDR3 "
         "block provides a complete solution for customers to use DDR3 memory. This block located "
         "between the DDR3 memory and the user logic include with Tarvo Memory Controller and "
         "Physical interface, reduces the user's effort to deal with the DDR3 memory command "
         "interface by providing a simple generic system interface to the user.",
         SLOT(onDDR3()),
         {{"DDR3", 420}},
         "",
         "clicked(bool)"},
        {"PSRAMDlg",
         make<PSRAMDlg>,
         "PSRAM",
         "Tarvo AHB Bus",
         "PSRAM",
         "Configuration",
         {{"Enable PSRAM", false, "enablePsramCheckBox", "Enable PSRAM"}},
         "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with PSRAM block through AHB bus.\nThe "
         "PSRAM Memory Interface block provides a complete solution for customers to use PSRAM "
         "Memory in Tarvo_ORIX_M1.This block is located between the PSRAM Memory Physical "
         "interface and MCU core with the AHB system bus, reduces the effort of user to deal with "
         "PSRAM Memory command interface by providing a simple generic system interface",
         SLOT(onPsram()),
         {{"PSRAM", 530, 60, false}},
         Pins::psram},
        {"SPIFlashDlg",
         make<SPIFlashDlg>,
         "SPI-Flash",
         "Tarvo AHB Bus",
         "SPIFlashConfig",
         "Configuration",
         {{"Enable SPI-Flash", false, "enableSpiFlashCheckBox", "Enable SPI-Flash"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SPI-Flash block through AHB bus.The "
         "SPI-Flash block is a fully verified block which the Cortex-M1 can use for off-chip SPI "
         "Flash downloading and start-up.The SPI-Flash block is SPI interface.",
         SLOT(onSpiFlash()),
         {{"SPI-Flash", 610, 80}},
         Pins::spiFlash},
        {"AHB2ExtensionDlg",
         make<AHB2ExtensionDlg>,
         "AHB Master [1-6]",
         "Tarvo AHB Bus",
         "AHB2ExtensionConfig",
         "Configuration",
         {{"Enable_AHB_Master1", false, "enableAhbMaster1CheckBox", "Enable AHB Master [1]"},
          {"Enable_AHB_Master2", false, "enableAhbMaster2CheckBox", "Enable AHB Master [2]"},
          {"Enable_AHB_Master3", false, "enableAhbMaster3CheckBox", "Enable AHB Master [3]"},
          {"Enable_AHB_Master4", false, "enableAhbMaster4CheckBox", "Enable AHB Master [4]"},
          {"Enable_AHB_Master5", false, "enableAhbMaster5CheckBox", "Enable AHB Master [5]"},
          {"Enable_AHB_Master6", false, "enableAhbMaster6CheckBox", "Enable AHB Master [6]"}},
         "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with AHB Master [1-6] block through AHB "
         "bus. There are six AHB interfaces to extend AHB peripherals for users. The AHB Master "
         "[1-6] block is a fully verified block which can extend AHB bus to user to design more "
         "AHB peripherals.",
         SLOT(onAHB2Extension()),
         {{"AHB Master [1-6]", 700, 80}},
         "",
         "clicked(bool)"},
        {"UartDlg",
         make<UartDlg>,
         "UART",
         "Tarvo APB Bus",
         "UartConfig",
         "Configuration",
         {{"Enable UART0", false, "enableUart0CheckBox", "Enable UART0"},
          {"Enable UART1", false, "enableUart1CheckBox", "Enable UART1"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with UART0/1 block through APB bus.The "
         "UART0/1 block is a fully verified block which can implement UART communication.The "
         "UART0/1 block contains two universal asynchronous receive/transceiver, which support "
         "maximum BAUD rate at 921.6Kbit/s.",
         SLOT(onUart()),
         {{"UART0", 30}, {"UART1", 110}}},
        {"TimerDlg",
         make<TimerDlg>,
         "Timer",
         "Tarvo APB Bus",
         "TimerConfig",
         "Configuration",
         {{"Enable Timer0", false, "enableTimer0CheckBox", "Enable Timer0"},
          {"Enable Timer1", false, "enableTimer1CheckBox", "Enable Timer1"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with Timer0/1 block through APB bus. The "
         "Timer0/1 block is a fully verified block which can implement counter function.The "
         "Timer0/1 block contains two Timers, which support 24-bit counter.",
         SLOT(onTimer()),
         {{"Timer0", 190}, {"Timer1", 270}}},
        {"WatchDogDlg",
         make<WatchDogDlg>,
         "WatchDog",
         "Tarvo APB Bus",
         "WatchDogConfig",
         "Configuration",
         {{"Enable WatchDog", false, "enableWatchDogCheckBox", "Enable WatchDog"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with WatchDog block through APB bus.The "
         "WatchDog block is a fully verified block which can implement system reset when system is "
         "running over.",
         SLOT(onWatchDog()),
         {{"Watch Dog", 350}}},
        {"RTCDlg",
         make<RTCDlg>,
         "RTC",
         "Tarvo APB Bus",
         "RTCConfig",
         "Configuration",
         {{"Enable RTC", false, "enableRtcCheckBox", "Enable RTC"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with RTC block through APB bus.The RTC "
         "block is a fully verified block which can implement real time clock.",
         SLOT(onRtc()),
         {{"RTC", 430}},
         Pins::rtc},
        {"TrngDlg",
         make<TrngDlg>,
         "TRNG",
         "Tarvo APB Bus",
         "TrngConfig",
         "Configuration",
         {{"Enable TRNG", false, "enableTrngCheckBox", "Enable TRNG"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with TRNG block through APB bus.The TRNG "
         "Block is a fully verified block which can implement true random number generator.",
         SLOT(onTRNG()),
         {{"TRNG", 510}},
         "",
         ""},
        {"DualTimerDlg",
         make<DualTimerDlg>,
         "DualTimer",
         "Tarvo APB Bus",
         "DualTimerConfig",
         "Configuration",
         {{"Enable DUALTIMER", false, "enableDualTimerCheckBox", "Enable DualTimer"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with DualTimer block through APB bus. The "
         "DualTimer Block is a fully verified block which can implement dual counter.",
         SLOT(onDualTimer()),
         {{"Dual Timer", 590}},
         "",
         ""},
        {"I2CDlg",
         make<I2CDlg>,
         "I2C",
         "Tarvo APB Bus",
         "I2CConfig",
         "Configuration",
         {{"Enable I2C", false, "enableI2CCheckBox", "Enable I2C"},
          {"Enable I2C IO", true, "enableI2CIOCheckBox", "Enable I2C I/O"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with I2C block through APB bus. The I2C "
         "block is a fully verified block which can implement I2C communication. The I2C block "
         "implements I2C protocol. Users can select inout or in/out/en signals as I2C's ports.",
         SLOT(onI2C()),
         {{"I2C", 670}}},
        {"SPIDlg",
         make<SPIDlg>,
         "SPI",
         "Tarvo APB Bus",
         "SPIConfig",
         "Configuration",
         {{"Enable SPI", false, "enableSPICheckBox", "Enable SPI"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SPI block through APB bus.The SPI "
         "block is a fully verified block which can implement SPI communication.The SPI block "
         "implements SPI protocol.",
         SLOT(onSPI()),
         {{"SPI", 750}},
         Pins::spi},
        {"SDCardDlg",
         make<SDCardDlg>,
         "SD-Card",
         "Tarvo APB Bus",
         "SDCardConfig",
         "Configuration",
         {{"Enable SDCARD", false, "enableSDCardCheckBox", "Enable SD-Card"}},
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SD-Card block through APB bus. The "
         "SD-Card block is a fully verified block which can implement SD-Card memory to save "
         "data.",
         SLOT(onSDCard()),
         {{"SD-Card", 830}},
         Pins::sdCard},
        {"APB2ExtensionDlg",
         make<APB2ExtensionDlg>,
         "APB Master [1-16]",
         "Tarvo APB Bus",
         "APB2ExtensionConfig",
         "Configuration",
         {{"Enable_APB_Master1", false, "enableAPBMaster1CheckBox", "Enable APB Master [1]"},
          {"Enable_APB_Master2", false, "enableAPBMaster2CheckBox", "Enable APB Master [2]"},
          {"Enable_APB_Master3", false, "enableAPBMaster3CheckBox", "Enable APB Master [3]"},
          {"Enable_APB_Master4", false, "enableAPBMaster4CheckBox", "Enable APB Master [4]"},
          {"Enable_APB_Master5", false, "enableAPBMaster5CheckBox", "Enable APB Master [5]"},
          {"Enable_APB_Master6", false, "enableAPBMaster6CheckBox", "Enable APB Master [6]"},
          {"Enable_APB_Master7", false, "enableAPBMaster7CheckBox", "Enable APB Master [7]"},
          {"Enable_APB_Master8", false, "enableAPBMaster8CheckBox", "Enable APB Master [8]"},
          {"Enable_APB_Master9", false, "enableAPBMaster9CheckBox", "Enable APB Master [9]"},
          {"Enable_APB_Master10", false, "enableAPBMaster10CheckBox", "Enable APB Master [10]"},
          {"Enable_APB_Master11", false, "enableAPBMaster11CheckBox", "Enable APB Master [11]"},
          {"Enable_APB_Master12", false, "enableAPBMaster12CheckBox", "Enable APB Master [12]"},
          {"Enable_APB_Master13", false, "enableAPBMaster13CheckBox", "Enable APB Master [13]"},
          {"Enable_APB_Master14", false, "enableAPBMaster14CheckBox", "Enable APB Master [14]"},
          {"Enable_APB_Master15", false, "enableAPBMaster15CheckBox", "Enable APB Master [15]"},
          {"Enable_APB_Master16", false, "enableAPBMaster16CheckBox", "Enable APB Master [16]"}},
         "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with APB Master [1-16] block through APB "
         "bus. There are sixteen APB interfaces to extend APB peripherals for users. The APB "
         "Master [1-16] block is a fully verified block which can extend APB bus to user to design "
         "more APB peripherals.",
         SLOT(onAPB2Extension()),
         {{"APB Master [1-16]", 905, 70}}},
    };
    return list;
}

inline const Block &block(const char *dialog)
{
    for (const Block &row : blocks()) {
        if (qstrcmp(row.dialog, dialog) == 0)
            return row;
    }
    qFatal("there is no %s", dialog);
}

inline QStringList pins(const char *words, int port = 0)
{
    QString text = QString::fromLatin1(words);
    if (port > 0)
        text.replace(QLatin1String("%1"), QString::number(port));
    QStringList list = text.split(u' ');
    for (QString &pin : list) {
        if (pin.at(pin.size() - 2) == u'_')
            pin[pin.size() - 2] = u' ';
    }
    return list;
}

// A figure in the same notation. A pin whose bus flag or side does not fit stands out.
inline QStringList words(const QList<Utils::PinFigure> &figure)
{
    QStringList list;
    for (const Utils::PinFigure &pin : figure) {
        const QString mark = QStringLiteral("<>=").mid(pin.direction(), 1);
        const bool fits =
            pin.isBus() == pin.name().contains(u'[') &&
            pin.side() == (mark == QLatin1String("<") ? Qt::AlignLeft : Qt::AlignRight);
        list.append(pin.name() + mark + (fits ? QString() : QStringLiteral("!")));
    }
    return list;
}

} // namespace Expected
