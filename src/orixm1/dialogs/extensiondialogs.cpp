#include "extensiondialogs.h"

#include "ui_ahb2extensionconfig.h"
#include "ui_apb2extensionconfig.h"

namespace TARVOORIXM1
{

AHB2ExtensionDlg::AHB2ExtensionDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::AhbMasters, options, parent)
    , ui(makeForm<Ui::AHB2ExtensionConfig>())
{
    start({ui->enableAhbMaster1CheckBox, ui->enableAhbMaster2CheckBox, ui->enableAhbMaster3CheckBox,
           ui->enableAhbMaster4CheckBox, ui->enableAhbMaster5CheckBox,
           ui->enableAhbMaster6CheckBox},
          SIGNAL(clicked(bool)));
}

AHB2ExtensionDlg::~AHB2ExtensionDlg() = default;

APB2ExtensionDlg::APB2ExtensionDlg(OptionMap *options, QWidget *parent)
    : PeripheralDlg(BlockId::ApbMasters, options, parent)
    , ui(makeForm<Ui::APB2ExtensionConfig>())
{
    start({ui->enableAPBMaster1CheckBox, ui->enableAPBMaster2CheckBox, ui->enableAPBMaster3CheckBox,
           ui->enableAPBMaster4CheckBox, ui->enableAPBMaster5CheckBox, ui->enableAPBMaster6CheckBox,
           ui->enableAPBMaster7CheckBox, ui->enableAPBMaster8CheckBox, ui->enableAPBMaster9CheckBox,
           ui->enableAPBMaster10CheckBox, ui->enableAPBMaster11CheckBox,
           ui->enableAPBMaster12CheckBox, ui->enableAPBMaster13CheckBox,
           ui->enableAPBMaster14CheckBox, ui->enableAPBMaster15CheckBox,
           ui->enableAPBMaster16CheckBox},
          SIGNAL(toggled(bool)));
}

APB2ExtensionDlg::~APB2ExtensionDlg() = default;

} // namespace TARVOORIXM1
