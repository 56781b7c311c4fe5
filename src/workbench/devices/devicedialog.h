#pragma once

#include <dev/devicearg.h>

#include <QDialog>

namespace Workbench
{

class DevicePicker;

// Chooses another device.
class DeviceDialog : public QDialog
{
    Q_OBJECT

public:
    DeviceDialog(const QString &title, const QString &currentId, QWidget *parent = nullptr);

    DEV::DeviceArg device() const;

private:
    DevicePicker *m_picker;
};

} // namespace Workbench
