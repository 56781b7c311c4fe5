#pragma once

#include <dev/devicearg.h>

#include <QObject>
#include <QStringList>

namespace Workbench
{

class IpCatalogue;

// Runs the dialogs of IPs, one at a time.
class IpSession : public QObject
{
    Q_OBJECT

public:
    // The catalogue must outlive the session.
    explicit IpSession(IpCatalogue &catalogue, QObject *parent = nullptr);

    bool isActive() const { return m_active; }

    // Return when the dialog is closed; false and a sentence in `*error` if it could not be opened
    // or failed.
    bool create(int ip, const QString &folder, const DEV::DeviceArg &device, QString *error);
    bool open(const QString &ipcFile, QString *error);

    // The id that the "type" of an .ipc file names; empty, and a sentence in `*error`, if the file
    // cannot be read or names none.
    static QString typeOf(const QString &ipcFile, QString *error);

Q_SIGNALS:
    // A dialog was closed. `files`: what stands beside the configuration that it wrote or works
    // on; empty if it wrote none.
    void finished(const QStringList &files);

private:
    bool begin(QString *error);

    IpCatalogue &m_catalogue;
    bool m_active = false;
};

} // namespace Workbench
