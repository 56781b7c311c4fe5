#include "newprojectdialog.h"

#include "devices/devicepicker.h"
#include "project/project.h"

#include <ipcore/screenfit.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Workbench
{

NewProjectDialog::NewProjectDialog(const QString &location, QWidget *parent)
    : QDialog(parent)
    , m_name(new QLineEdit)
    , m_location(new QLineEdit(QDir::toNativeSeparators(location)))
    , m_picker(new DevicePicker)
    , m_hint(new QLabel)
{
    setWindowTitle(tr("New Project"));
    m_name->setObjectName(QStringLiteral("nameEdit"));
    m_location->setObjectName(QStringLiteral("locationEdit"));
    m_hint->setObjectName(QStringLiteral("hintLabel"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);

    auto *nameLabel = new QLabel(tr("&Name:"));
    nameLabel->setBuddy(m_name);
    auto *locationLabel = new QLabel(tr("C&reate in:"));
    locationLabel->setBuddy(m_location);
    auto *browseButton = new QPushButton(tr("&Browse…"));
    browseButton->setAutoDefault(false);
    connect(browseButton, &QPushButton::clicked, this, &NewProjectDialog::browse);

    auto *deviceGroup = new QGroupBox(tr("Device"));
    deviceGroup->setFlat(true); // small screens have the room for more devices
    auto *deviceLayout = new QVBoxLayout(deviceGroup);
    deviceLayout->setContentsMargins(0, 0, 0, 0);
    deviceLayout->addWidget(m_picker);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("Create Project"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QGridLayout(this);
    layout->addWidget(nameLabel, 0, 0);
    layout->addWidget(m_name, 0, 1, 1, 2);
    layout->addWidget(locationLabel, 1, 0);
    layout->addWidget(m_location, 1, 1);
    layout->addWidget(browseButton, 1, 2);
    layout->addWidget(deviceGroup, 2, 0, 1, 3);
    layout->addWidget(m_hint, 3, 0, 1, 3);
    layout->addWidget(buttons, 4, 0, 1, 3);
    layout->setRowStretch(2, 1);
    const QFontMetrics metrics = fontMetrics();
    resize(QSize(metrics.averageCharWidth() * 108, metrics.height() * 32)
               .expandedTo({sizeHint().width(), 0})
               .boundedTo(IPCore::roomOnScreen(this)));

    connect(m_name, &QLineEdit::textChanged, this, &NewProjectDialog::check);
    connect(m_location, &QLineEdit::textChanged, this, &NewProjectDialog::check);
    connect(m_picker, &DevicePicker::deviceChanged, this, &NewProjectDialog::check);
    connect(m_picker, &DevicePicker::activated, this, [this] {
        if (m_ok->isEnabled())
            accept();
        else
            m_name->setFocus();
    });
    m_name->setFocus();
    check();
}

void NewProjectDialog::propose(const QString &ip, const QString &deviceId,
                               const std::function<QString(const DEV::DeviceArg &)> &mistake)
{
    setWindowTitle(tr("New Subsystem: %1").arg(ip));
    m_ok->setText(tr("Create and Configure"));
    m_mistake = mistake;
    m_picker->setDevice(deviceId);
    const QString base = QStringLiteral("subsystem"); // names a folder
    QString free = base;
    const QDir location(QDir::fromNativeSeparators(m_location->text()));
    for (int n = 2; QFileInfo::exists(location.filePath(free)); ++n)
        free = QStringLiteral("%1_%2").arg(base).arg(n);
    m_name->setText(free);
    m_name->selectAll();
    if (device().isNull())
        m_picker->setFocus();
    check();
}

QString NewProjectDialog::name() const
{
    return m_name->text();
}

QString NewProjectDialog::folder() const
{
    return QDir::cleanPath(QDir::fromNativeSeparators(m_location->text()) + u'/' + m_name->text());
}

DEV::DeviceArg NewProjectDialog::device() const
{
    return m_picker->device();
}

void NewProjectDialog::browse()
{
    const QString chosen =
        QFileDialog::getExistingDirectory(this, tr("Create In"), m_location->text());
    if (!chosen.isEmpty())
        m_location->setText(QDir::toNativeSeparators(chosen));
}

void NewProjectDialog::check()
{
    QString hint = Project::nameMistake(m_name->text());
    if (hint.isEmpty() && m_location->text().trimmed().isEmpty())
        hint = tr("Choose the folder that the project's folder is made in.");
    if (hint.isEmpty() && QFileInfo::exists(folder()) && !QFileInfo(folder()).isDir())
        hint = tr("\"%1\" is a file.").arg(QDir::toNativeSeparators(folder()));
    if (hint.isEmpty() && device().isNull())
        hint = tr("Select a device in the table.");
    if (hint.isEmpty() && m_mistake)
        hint = m_mistake(device());
    m_ok->setEnabled(hint.isEmpty());
    if (hint.isEmpty()) {
        hint = tr("Makes the project in %1").arg(QDir::toNativeSeparators(folder()));
        if (QFileInfo::exists(folder()))
            hint = tr("Makes the project in the existing folder %1; its files stay as they are")
                       .arg(QDir::toNativeSeparators(folder()));
    }
    m_hint->setText(hint);
}

} // namespace Workbench
