#include "candlg.h"

#include "ui_canconfig.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"

namespace TARVOORIXM1
{

CANDlg::CANDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg("CANDlg"_l1, options, parent)
    , ui(makeForm<Ui::CANConfig>())
{
    start();
}

CANDlg::~CANDlg() = default;

void CANDlg::connectOptions()
{
    connect(ui->enableCanCheckBox, SIGNAL(clicked()), this, SLOT(onCanEnableChanged()));
}

void CANDlg::loadOptions()
{
    const QString depth = stored(Key::canBufferDepth).toString();
    ui->bufferDepthComboBox->setCurrentIndex(ui->bufferDepthComboBox->findText(depth));
    onCanEnableChanged();
}

void CANDlg::storeOptions()
{
    options().insert(Key::canBufferDepth, ui->bufferDepthComboBox->currentText());
}

void CANDlg::onCanEnableChanged()
{
    ui->bufferDepthWgt->setEnabled(ui->enableCanCheckBox->isChecked());
}

} // namespace TARVOORIXM1
