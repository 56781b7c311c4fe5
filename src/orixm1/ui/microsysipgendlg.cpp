#include "microsysipgendlg.h"

#include "config/latin1literal.h"
#include "ui_microsysipgendlg.h"

#include "config/choices.h"
#include "config/ipcfile.h"
#include "dialogs/messagebox.h"

#include <core/idecore.h>
#include <dev/devicedb.h>

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace TARVOORIXM1
{

MicroSysIPGenDlg::MicroSysIPGenDlg(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::MicroSysIPGenDlg>())
{
    ui->setupUi(this);

    ui->synToolComboBox->addItems(offeredToolNames());
    ui->synToolComboBox->setCurrentIndex(0);
    ui->language->hide();
    ui->synToolComboBox->hide();
    ui->comboBoxLanguage->addItems(languageNames());
    ui->comboBoxLanguage->setCurrentIndex(0);
    ui->buttonBox->button(QDialogButtonBox::Help)->hide();

    connect(ui->buttonBox->button(QDialogButtonBox::Ok), SIGNAL(clicked()), this, SLOT(accept()));
    connect(ui->buttonBox->button(QDialogButtonBox::Cancel), SIGNAL(clicked()), this,
            SLOT(reject()));
    connect(ui->btnBrowse, SIGNAL(clicked()), this, SLOT(onBtnBrowse()));
    connect(ui->buttonBox->button(QDialogButtonBox::Help), SIGNAL(clicked()), this,
            SLOT(onBtnHelp()));
}

MicroSysIPGenDlg::~MicroSysIPGenDlg() = default;

void MicroSysIPGenDlg::prepareNew(const QString &createInDir, const DEV::DeviceArg &newDevice)
{
    openMode = false;
    ui->editCreateIn->setText(
        QDir::toNativeSeparators(QDir(createInDir).path() + "/tarvo_orix_m1"_l1));
    setDevice(newDevice);
    updateDeviceDependentState();
}

bool MicroSysIPGenDlg::prepareOpen(const QString &createInDir, const QString &ipcFile)
{
    ui->editCreateIn->setReadOnly(true);
    ui->editCreateIn->setEnabled(false);
    ui->btnBrowse->setEnabled(false);
    ui->editCreateIn->setText(QDir::toNativeSeparators(QDir(createInDir).path()));
    openMode = true;
    {
        QSettings settings(ipcFile, QSettings::IniFormat);
        readDeviceFromIPConfig(settings);
    }
    if (!loadIPConfig(ipcFile))
        return false;
    updateDeviceDependentState();
    return true;
}

QString MicroSysIPGenDlg::createInText() const
{
    return ui->editCreateIn->text();
}

QString MicroSysIPGenDlg::createInPath() const
{
    return QDir(createInText()).path();
}

QString MicroSysIPGenDlg::synthesisTool() const
{
    return ui->synToolComboBox->currentText();
}

int MicroSysIPGenDlg::languageIndex() const
{
    return ui->comboBoxLanguage->currentIndex();
}

void MicroSysIPGenDlg::setLanguageIndex(int index)
{
    ui->comboBoxLanguage->setCurrentIndex(index);
}

void MicroSysIPGenDlg::selectSynthesisTool(const QString &tool)
{
    const int index =
        ui->synToolComboBox->findText(tool, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        ui->synToolComboBox->setCurrentIndex(index);
}

void MicroSysIPGenDlg::setContentWidget(QWidget *widget)
{
    auto *layout = new QVBoxLayout(ui->wgtContainer);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);

    // Tab walks as people read: what stands above, the content with what is in it, the buttons,
    // which have their places behind the last field already.
    QList<QWidget *> inner = widget->findChildren<QWidget *>();
    inner.erase(
        std::remove_if(inner.begin(), inner.end(),
                       [](const QWidget *child) { return child->focusPolicy() == Qt::NoFocus; }),
        inner.end());
    QWidget *last = ui->comboBoxLanguage;
    const QList<QWidget *> all = QList<QWidget *>{widget} + inner;
    for (QWidget *next : all) {
        setTabOrder(last, next);
        last = next;
    }
}

void MicroSysIPGenDlg::setVisible(bool visible)
{
    if (visible && !m_sized) {
        m_sized = true;
        // What the title bar takes is not known before it is there. A platform without a display
        // has no desktop either, and keeps the form as it is where its screen is narrower.
        const int titleBar = qMax(40, 2 * fontMetrics().height());
        const QSize screenSize = screen()->availableSize();
        const int room = screenSize.height() - titleBar;
        constexpr int borders = 16;
        const bool isDesktop = QGuiApplication::platformName() != QLatin1String("offscreen");
        if (height() > room && (isDesktop || screenSize.width() >= width()))
            resize(qMin(width(), screenSize.width() - borders), room);
    }
    QDialog::setVisible(visible);
}

QStringList MicroSysIPGenDlg::createInErrors() const
{
    if (createInText().isEmpty())
        return {QStringLiteral("\"Create In\" can not be empty.")};
    return {};
}

bool MicroSysIPGenDlg::confirmOutputFolder()
{
    if (openMode)
        return true;
    const QString text = createInText();
    if (QDir(text).exists()) {
        const QString shown = QDir::toNativeSeparators(QDir::cleanPath(text));
        return QMessageBox::question(
                   this, QStringLiteral("Confirm"),
                   QStringLiteral("Directory \"%1\" already exists, do you want to overwrite?")
                       .arg(shown),
                   QMessageBox::Yes | QMessageBox::Cancel,
                   QMessageBox::Cancel) != QMessageBox::Cancel;
    }
    if (QDir().mkpath(text))
        return true;
    showErrorBox(
        this, QStringLiteral("Failed to create path \"%1\"").arg(QDir::toNativeSeparators(text)));
    return false;
}

void MicroSysIPGenDlg::showErrors(const QStringList &errors)
{
    showMessageBox(
        this, QMessageBox::Critical, QStringLiteral("Error"),
        QStringLiteral(
            "The following errors occurred while customizing IP, plese check and correct."),
        true, errors.join(u'\n'));
}

void MicroSysIPGenDlg::updateDeviceDependentState() {}

void MicroSysIPGenDlg::readDeviceFromIPConfig(QSettings &settings)
{
    const DEV::DeviceArg found = IpcFile::readDevice(settings, *Core::IdeCore::deviceDataBase());
    if (!found.isNull()) {
        setDevice(found);
        return;
    }
    showMessageBox(this, QMessageBox::Warning, QStringLiteral("Warning"),
                   QStringLiteral("IPC file device information is lost."), false);
}

void MicroSysIPGenDlg::setDevice(const DEV::DeviceArg &newDevice)
{
    device = newDevice;
    ui->devLabel->setText(device.deviceN());
    ui->pnLabel->setText(device.partNumber());
    ui->labelDeviceVersion_2->setText(device.deviceNVersion());
    const bool hasVersion = !device.deviceNVersion().isEmpty();
    ui->labelDeviceVersion->setVisible(hasVersion);
    ui->labelDeviceVersion_2->setVisible(hasVersion);
}

void MicroSysIPGenDlg::onBtnBrowse()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Select Directory"), createInText(), QFileDialog::ShowDirsOnly);
    if (folder.isEmpty())
        return;
    // With an empty suffix the field ends in a separator, as intended.
    ui->editCreateIn->setText(QDir::toNativeSeparators(folder + u'/' + browseSuffix));
}

void MicroSysIPGenDlg::onBtnHelp()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(helpFile));
}

} // namespace TARVOORIXM1
