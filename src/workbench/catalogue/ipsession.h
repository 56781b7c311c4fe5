#pragma once

#include "language/languages.h"

#include <dev/devicearg.h>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <functional>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QDialog)

namespace Workbench
{

class IpCatalogue;
class KeptConfigurations;

// Runs the dialogs of IPs, one at a time. No configuration is lost in them: what is replaced is
// kept, and so is what was changed in a dialog that is left without OK, if the dialog tells it. One
// that tells its changes is kept while it is open, so that it outlives the program.
class IpSession : public QObject
{
    Q_OBJECT

public:
    // The catalogue must outlive the session.
    explicit IpSession(IpCatalogue &catalogue, QObject *parent = nullptr);

    // Where configurations are kept; null: nowhere. Not owned.
    void setKept(KeptConfigurations *kept) { m_kept = kept; }
    // The configurations that a dialog might replace, besides those where it works.
    void setKnownFiles(const std::function<QStringList()> &files) { m_knownFiles = files; }

    bool isActive() const { return m_active; }
    // Whether the last dialog was closed with OK; false for one that does not tell.
    bool wasAccepted() const { return m_accepted; }

    // Return when the dialog is closed; false and a sentence in `*error` if it could not be opened
    // or failed.
    bool create(int ip, const QString &folder, const DEV::DeviceArg &device, QString *error);
    bool open(const QString &ipcFile, QString *error);
    // Opens a file that stands elsewhere as the configuration of the IP in `folder`.
    bool openAs(const QString &ipcFile, const QString &folder, QString *error);

    // The id that the "type" of an .ipc file names; empty, and a sentence in `*error`, if the file
    // cannot be read or names none.
    static QString typeOf(const QString &ipcFile, QString *error);

Q_SIGNALS:
    // The dialog of an IP that tells its configuration comes up; it is not seen yet.
    void shown(QDialog *dialog, int ip);
    // A dialog was closed. `files`: what stands beside the configuration that it wrote or works
    // on; empty if it wrote none.
    void finished(const QStringList &files);
    // A dialog was closed without OK; what was in it is kept under that id.
    void dropped(const QString &keptId, const QString &ipcFile);
    // Something could not be kept.
    void keepFailed(const QString &message);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    using Contents = QHash<QString, QByteArray>;

    bool begin(int ip, QString *error);
    void end();
    void follow(QDialog *dialog);
    void onDialogFinished(int result);
    // Keeps what the dialog has now, or nothing if OK would change nothing.
    void keepDraft();
    void forgetDraft();
    Contents contentsIn(const QString &folder) const;
    void keepReplaced(const Contents &before);

    IpCatalogue &m_catalogue;
    KeptConfigurations *m_kept = nullptr;
    std::function<QStringList()> m_knownFiles;
    bool m_active = false;
    std::optional<PluginTexts> m_texts; // while it is active
    int m_ip = -1;
    bool m_accepted = false;
    // The dialog that tells its configuration; looked at also while it is taken down.
    QPointer<QObject> m_dialog;
    QVariantMap m_opened; // what it told when it came up
    QTimer m_draftDelay;
    QString m_draftId; // of what is kept of the open dialog
    QString m_draftFile;
    bool m_hasFailedToKeep = false;
    QString m_droppedId;
    QString m_droppedFile;

private Q_SLOTS:
    void onConfigurationChanged() { m_draftDelay.start(); }
};

} // namespace Workbench
