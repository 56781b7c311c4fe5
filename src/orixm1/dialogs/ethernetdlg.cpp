#include "ethernetdlg.h"

#include "ui_ethernetconfig.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "rules/devicerules.h"

namespace TARVOORIXM1
{

EthernetDlg::EthernetDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg("EthernetDlg"_l1, options, parent)
    , ui(makeForm<Ui::EthernetConfig>())
{
    start();
}

EthernetDlg::~EthernetDlg() = default;

void EthernetDlg::connectOptions()
{
    connect(ui->enableEthernetCheckBox, SIGNAL(toggled(bool)), this,
            SLOT(onEthernetEnableChanged()));
    connect(ui->interfaceComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(onInterfaceChanged()));
    connect(ui->interfaceComboBox, SIGNAL(currentIndexChanged(int)), this, SLOT(refreshFigure()));
}

void EthernetDlg::loadOptions()
{
    const QString interface = stored(Key::ethernetInterface).toString();
    ui->interfaceComboBox->setCurrentIndex(ui->interfaceComboBox->findText(interface));
    // The form's range holds while the delay is set: on every device a larger one is cut off.
    ui->inputDelaySpinBox->setValue(stored(Key::ethernetInputDelay).toInt());
    ui->inputDelaySpinBox->setMaximum(largestRgmiiInputDelay(targetDevice()));
    ui->clockDividerSpinBox->setValue(stored(Key::ethernetClockDivider).toInt());
}

void EthernetDlg::storeOptions()
{
    options().insert(Key::ethernetInterface, ui->interfaceComboBox->currentText());
    options().insert(Key::ethernetInputDelay, ui->inputDelaySpinBox->value());
    options().insert(Key::ethernetClockDivider, ui->clockDividerSpinBox->value());
}

int EthernetDlg::choice() const
{
    return ui->interfaceComboBox->currentIndex();
}

void EthernetDlg::onEthernetEnableChanged()
{
    ui->optionsWgt->setEnabled(ui->enableEthernetCheckBox->isChecked());
}

void EthernetDlg::onInterfaceChanged()
{
    constexpr int rgmiiIndex = 0; // the one interface with a delay
    ui->inputDelaySpinBox->setEnabled(ui->interfaceComboBox->currentIndex() == rgmiiIndex);
}

} // namespace TARVOORIXM1
