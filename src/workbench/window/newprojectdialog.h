#pragma once

#include <dev/devicearg.h>

#include <QDialog>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace Workbench
{

class DevicePicker;

// Asks for name, folder and device of a new project. The project gets a folder of its name in the
// chosen one.
class NewProjectDialog : public QDialog
{
    Q_OBJECT

public:
    explicit NewProjectDialog(const QString &location, QWidget *parent = nullptr);

    // Asks for the project of a new IP instead: fills in what can be guessed, and lets only devices
    // be chosen of which `mistake`, a sentence, is empty. `deviceId` is a device that is selected
    // at first; it may be empty.
    void propose(const QString &ip, const QString &deviceId,
                 const std::function<QString(const DEV::DeviceArg &)> &mistake);

    QString name() const;
    // The project's own folder.
    QString folder() const;
    DEV::DeviceArg device() const;

private:
    void browse();
    // Says what is missing, and lets OK be pressed when nothing is.
    void check();

    QLineEdit *m_name;
    QLineEdit *m_location;
    DevicePicker *m_picker;
    QLabel *m_hint;
    std::function<QString(const DEV::DeviceArg &)> m_mistake;
    QPushButton *m_ok;
};

} // namespace Workbench
