#include "cortexm1.h"

#include "config/latin1literal.h"
#include "ui_common.h"
#include "ui_debug.h"
#include "ui_memory.h"

#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "messagebox.h"
#include "rules/devicerules.h"
#include "rules/dialogdefaults.h"
#include "rules/itcmpath.h"
#include "rules/tcmsizes.h"

#include <core/idecore.h>
#include <core/projectmanager.h>
#include <dev/devicedb.h>
#include <ipcore/ipcore.h>

#include <QDir>
#include <QFileDialog>

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String blockName = "Cortex-M1"_l1;

// The blanks at the lines' beginnings belong to the text.
constexpr QLatin1String summary =
    "      Tarvo Cortex-M1 is intended for deeply embedded applications that is integrated into "
    "Tarvo FPGA.\n"
    "       Tarvo Cortex-M1 supports debug and non-debug core, operating system, nested vectored "
    "interrupt controller, ITCM and DTCM, and AHB-Lite interface.\n"
    "       User can configure number of interrupts, size of ITCM and DTCM, OS extension, small or "
    "normal multiplier, big or little endian, full or small debug, debug port, external "
    "interrupts.\n"_l1;

struct InterruptRow {
    QRadioButton *Ui::Common::*button;
    int count;
};

constexpr InterruptRow interruptRows[] = {
    {&Ui::Common::radioButtonNum1, 1},
    {&Ui::Common::radioButtonNum8, 8},
    {&Ui::Common::radioButtonNum16, 16},
    {&Ui::Common::radioButtonNum32, 32},
};
constexpr QRadioButton *Ui::Common::*otherCountButton = &Ui::Common::radioButtonNum8;

struct PortRow {
    QRadioButton *Ui::Debug::*button;
    QLatin1String value;
};

constexpr PortRow portRows[] = {
    {&Ui::Debug::radioButtonJTAG, Value::jtag},
    {&Ui::Debug::radioButtonSW, Value::serialWire},
    {&Ui::Debug::radioButtonJTAGSW, Value::jtagAndSerialWire},
};
constexpr QRadioButton *Ui::Debug::*otherPortButton = &Ui::Debug::radioButtonJTAG;

void setOffer(QComboBox *box, const TcmOffer &offer)
{
    box->clear();
    box->addItems(offer.sizes);
    box->setCurrentIndex(offer.current);
}

} // namespace

CortexM1::CortexM1(OptionMap *options, QWidget *parent)
    : MicroSysChildIPGenDlg(parent)
    , common(std::make_unique<Ui::Common>())
    , debug(std::make_unique<Ui::Debug>())
    , memory(std::make_unique<Ui::Memory>())
    , m_options(options)
{
    setWindowTitle(blockName);
    uiSetModuleName(QStringLiteral("Tarvo Cortex-M1"));
    uiSetLabelText(blockName);
    uiSetSummaryText(summary);

    const auto addPage = [this](const auto &form, const QString &name) {
        auto *page = new QWidget(this);
        form->setupUi(page);
        uiAddTab(page, name);
    };
    addPage(common, QStringLiteral("Common"));
    addPage(debug, QStringLiteral("Debug"));
    addPage(memory, QStringLiteral("Memory"));

    initTcmSizeItems();
    // Loading relies on the connections: the slots follow the widgets as they change.
    connectWidgets();
    loadOptions();

    debug->debugWgt->setEnabled(debug->enableDebugCheckBox->isChecked());
    memory->comboBoxItcmSize->setEnabled(memory->internalInsBtn->isChecked());
    memory->checkBoxInitItcm->setEnabled(memory->internalInsBtn->isChecked());
    memory->itcmInitPathWgt->setEnabled(memory->checkBoxInitItcm->isChecked());
    memory->comboBoxDtcmSize->setEnabled(memory->internalDataBtn->isChecked());
    refreshFigure();
    applyDeviceRules();
}

CortexM1::~CortexM1() = default;

QString CortexM1::targetDevice() const
{
    const QString id = textOf(*m_options, Key::ipDeviceId);
    return Core::IdeCore::deviceDataBase()->findDevice(id).device();
}

QString CortexM1::createInFolder() const
{
    return textOf(*m_options, Key::createInPath);
}

void CortexM1::connectWidgets()
{
    // The box follows the last of the two that changes: on the way from 16 to 32 it is disabled
    // and enabled again.
    for (const QRadioButton *button : {common->radioButtonNum16, common->radioButtonNum32})
        connect(button, SIGNAL(toggled(bool)), common->checkBoxExternalInterrupts,
                SLOT(setEnabled(bool)));

    const QAbstractButton *const figureButtons[] = {
        debug->enableDebugCheckBox, common->radioButtonNum1,  common->radioButtonNum8,
        common->radioButtonNum16,   common->radioButtonNum32, common->checkBoxExternalInterrupts,
        debug->radioButtonJTAG,     debug->radioButtonJTAGSW, memory->externalDataBtn,
        memory->externalInsBtn,
    };
    for (const QAbstractButton *button : figureButtons)
        connect(button, SIGNAL(toggled(bool)), this, SLOT(refreshFigure()));
    connect(debug->btnGroup, SIGNAL(buttonClicked(int)), this, SLOT(refreshFigure()));

    connect(memory->internalInsBtn, SIGNAL(toggled(bool)), this,
            SLOT(onInternalInsBtnChanged(bool)));
    connect(memory->internalDataBtn, SIGNAL(toggled(bool)), this,
            SLOT(onInternalDataBtnChanged(bool)));
    // Only the user's clicks move the path widget, not loading.
    connect(memory->checkBoxInitItcm, SIGNAL(clicked(bool)), this, SLOT(onItcmInitialize(bool)));
    connect(memory->toolButtonItcmInitPath, SIGNAL(clicked()), this, SLOT(onPathBtn()));
    connect(debug->enableDebugCheckBox, SIGNAL(toggled(bool)), this, SLOT(onEnableDebug()));

    connectSizes(true);
    connect(memory->internalInsBtn, SIGNAL(toggled(bool)), this, SLOT(updateTcmSizeItem()));
    connect(memory->internalDataBtn, SIGNAL(toggled(bool)), this, SLOT(updateTcmSizeItem()));
    connect(memory->externalInsBtn, SIGNAL(toggled(bool)), this, SLOT(onExtBtn()));
}

void CortexM1::connectSizes(bool connected)
{
    for (const QComboBox *box : {memory->comboBoxDtcmSize, memory->comboBoxItcmSize}) {
        if (connected)
            connect(box, SIGNAL(currentIndexChanged(int)), this, SLOT(updateTcmSizeItem()));
        else
            disconnect(box, SIGNAL(currentIndexChanged(int)), this, SLOT(updateTcmSizeItem()));
    }
}

void CortexM1::applyDeviceRules()
{
    const QString device = targetDevice();
    if (isDebugUnavailable(device)) {
        debug->enableDebugCheckBox->setChecked(false);
        debug->enableDebugCheckBox->setEnabled(false);
    }
    if (isInstructionMemoryExternalOnly(device)) {
        memory->externalInsBtn->setChecked(true);
        memory->internalInsBtn->setEnabled(false);
    }
}

void CortexM1::loadOptions()
{
    const QString device = targetDevice();
    const bool small = isSmallDevice(device);
    const auto stored = [this, &device](QLatin1String key) {
        return dialogValue(*m_options, key, device);
    };
    const auto isOn = [&stored](QLatin1String key) { return stored(key).toBool(); };

    const int interrupts = stored(Key::numberOfInterrupts).toInt();
    QRadioButton *Ui::Common::*interruptButton = otherCountButton;
    for (const InterruptRow &row : interruptRows) {
        if (row.count == interrupts)
            interruptButton = row.button;
    }
    (common.get()->*interruptButton)->setChecked(true);
    common->checkBoxOsExtension->setChecked(isOn(Key::osExtension));
    common->checkBoxSmallMultiplier->setChecked(isOn(Key::smallMultiplier));
    common->checkBoxBigEndian->setChecked(isOn(Key::bigEndian));
    common->checkBoxExternalInterrupts->setChecked(isOn(Key::externalInterrupts));

    // Stays in the map even if the page is cancelled.
    if (small)
        (*m_options)[Key::enableDebug] = false;
    debug->enableDebugCheckBox->setChecked(isOn(Key::enableDebug));
    const QString port = stored(Key::debugPortSelect).toString();
    QRadioButton *Ui::Debug::*portButton = otherPortButton;
    for (const PortRow &row : portRows) {
        if (row.value == port)
            portButton = row.button;
    }
    (debug.get()->*portButton)->setChecked(true);
    debug->checkBoxSmallDebug->setChecked(isOn(Key::smallDebug));

    // On a small device internal memory cannot be chosen, unless a stored configuration had it.
    if (small)
        memory->internalInsBtn->setEnabled(isOn(Key::internalInstructionMemory));
    else
        memory->internalInsBtn->setChecked(isOn(Key::internalInstructionMemory));
    memory->externalInsBtn->setChecked(isOn(Key::externalInstructionMemory));

    memory->comboBoxItcmSize->setCurrentIndex(stored(Key::itcmSize).toInt());
    memory->comboBoxDtcmSize->setCurrentIndex(stored(Key::dtcmSize).toInt());
    memory->checkBoxInitItcm->setChecked(isOn(Key::initializeItcm));
    memory->internalDataBtn->setChecked(isOn(Key::internalDataMemory));
    memory->externalDataBtn->setChecked(isOn(Key::externalDataMemory));

    const QString path = textOf(*m_options, Key::itcmInitializationPath);
    if (!path.isEmpty())
        memory->lineEditItcmInitPath->setText(
            QDir::toNativeSeparators(absoluteItcmPath(path, createInFolder())));
}

void CortexM1::storeOptions()
{
    OptionMap &options = *m_options;
    for (const InterruptRow &row : interruptRows) {
        if ((common.get()->*row.button)->isChecked())
            options[Key::numberOfInterrupts] = row.count;
    }
    options[Key::osExtension] = common->checkBoxOsExtension->isChecked();
    options[Key::smallMultiplier] = common->checkBoxSmallMultiplier->isChecked();
    options[Key::bigEndian] = common->checkBoxBigEndian->isChecked();
    options[Key::externalInterrupts] = shownSwitches().externalInterrupts;

    options[Key::enableDebug] = debug->enableDebugCheckBox->isChecked();
    for (const PortRow &row : portRows) {
        if ((debug.get()->*row.button)->isChecked())
            options[Key::debugPortSelect] = QString(row.value);
    }
    options[Key::smallDebug] = debug->checkBoxSmallDebug->isChecked();

    options[Key::internalInstructionMemory] = memory->internalInsBtn->isChecked();
    options[Key::externalInstructionMemory] = memory->externalInsBtn->isChecked();
    options[Key::itcmSize] = memory->comboBoxItcmSize->currentIndex();
    options[Key::initializeItcm] = memory->checkBoxInitItcm->isChecked();
    options[Key::internalDataMemory] = memory->internalDataBtn->isChecked();
    options[Key::externalDataMemory] = memory->externalDataBtn->isChecked();
    options[Key::dtcmSize] = memory->comboBoxDtcmSize->currentIndex();

    // Relative to the output folder where possible, so that the file can move with its folder; the
    // absolute form is for generation.
    const QString createIn = createInFolder();
    const QDir base(createIn);
    QString path = memory->lineEditItcmInitPath->text();
    const QString home = Core::ProjectManager::currentProject() ? QDir::currentPath() : createIn;
    if (IPCore::isSubDirFile(home, path))
        path = base.relativeFilePath(path);
    options[Key::itcmInitializationPath] = path;
    options[Key::itcmInitializationAbsolutePath] =
        QDir::isAbsolutePath(path) ? path : base.absoluteFilePath(path);
}

bool CortexM1::checkItcmInitPath()
{
    if (!memory->checkBoxInitItcm->isChecked() || !memory->internalInsBtn->isChecked())
        return true;
    const QString error = itcmPathError(memory->lineEditItcmInitPath->text(), createInFolder());
    if (error.isEmpty())
        return true;
    showErrorBox(this, error);
    return false;
}

void CortexM1::accept()
{
    if (!checkItcmInitPath())
        return;
    storeOptions();
    MicroSysChildIPGenDlg::accept();
}

CoreSwitches CortexM1::shownSwitches() const
{
    CoreSwitches switches;
    switches.debug = debug->enableDebugCheckBox->isChecked();
    switches.jtag = debug->radioButtonJTAG->isChecked() || debug->radioButtonJTAGSW->isChecked();
    switches.externalInterrupts = common->checkBoxExternalInterrupts->isEnabled() &&
                                  common->checkBoxExternalInterrupts->isChecked();
    switches.externalInstructionMemory = memory->externalInsBtn->isChecked();
    switches.externalDataMemory = memory->externalDataBtn->isChecked();
    return switches;
}

void CortexM1::refreshFigure()
{
    uiSetFigurePins(corePins(shownSwitches()));
}

void CortexM1::initTcmSizeItems()
{
    const TcmSizes sizes = tcmSizes(targetDevice());
    const TcmOffer offer = {sizes.full, sizes.full.indexOf(sizes.defaultSize)};
    setOffer(memory->comboBoxItcmSize, offer);
    setOffer(memory->comboBoxDtcmSize, offer);
}

void CortexM1::updateTcmSizeItem()
{
    connectSizes(false);
    const bool bothInternal =
        memory->internalInsBtn->isChecked() && memory->internalDataBtn->isChecked();
    const TcmOffers offers =
        balancedTcmSizes(targetDevice(), memory->comboBoxItcmSize->currentText(),
                         memory->comboBoxDtcmSize->currentText(), bothInternal);
    setOffer(memory->comboBoxDtcmSize, offers.dtcm);
    setOffer(memory->comboBoxItcmSize, offers.itcm);
    connectSizes(true);
}

void CortexM1::onItcmInitialize(bool on)
{
    memory->itcmInitPathWgt->setEnabled(on);
}

void CortexM1::onPathBtn()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, blockName, QString(), QFileDialog::ShowDirsOnly);
    if (!folder.isEmpty())
        memory->lineEditItcmInitPath->setText(folder);
}

void CortexM1::onEnableDebug()
{
    debug->debugWgt->setEnabled(debug->enableDebugCheckBox->isChecked());
}

void CortexM1::onInternalInsBtnChanged(bool on)
{
    memory->comboBoxItcmSize->setEnabled(on);
    memory->checkBoxInitItcm->setEnabled(on);
    memory->itcmInitPathWgt->setEnabled(memory->checkBoxInitItcm->isChecked());
}

void CortexM1::onInternalDataBtnChanged(bool on)
{
    memory->comboBoxDtcmSize->setEnabled(on);
}

void CortexM1::onExtBtn()
{
    // Follows onInternalInsBtnChanged(), which has enabled the path widget again.
    if (memory->externalInsBtn->isChecked() && memory->checkBoxInitItcm->isChecked())
        memory->itcmInitPathWgt->setEnabled(false);
}

} // namespace TARVOORIXM1
