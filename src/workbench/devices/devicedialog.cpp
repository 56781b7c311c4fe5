#include "devicedialog.h"

#include "devicepicker.h"

#include <ipcore/screenfit.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace Workbench
{

DeviceDialog::DeviceDialog(const QString &title, const QString &currentId, QWidget *parent)
    : QDialog(parent)
    , m_picker(new DevicePicker)
{
    setWindowTitle(title);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_picker, &DevicePicker::activated, this, &QDialog::accept);
    connect(m_picker, &DevicePicker::deviceChanged, ok,
            [this, ok] { ok->setEnabled(!device().isNull()); });
    m_picker->setDevice(currentId);
    ok->setEnabled(!device().isNull());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_picker, 1);
    layout->addWidget(buttons);
    const QFontMetrics metrics = fontMetrics();
    resize(QSize(metrics.averageCharWidth() * 108, metrics.height() * 28)
               .expandedTo({sizeHint().width(), 0})
               .boundedTo(IPCore::roomOnScreen(this)));
}

DEV::DeviceArg DeviceDialog::device() const
{
    return m_picker->device();
}

} // namespace Workbench
