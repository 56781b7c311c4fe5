#include "ipactions.h"

#include "catalogue/ipcatalogue.h"
#include "catalogue/ipsession.h"
#include "catalogue/movedialog.h"
#include "closingsequence.h"
#include "devices/devicedialog.h"
#include "editor/editortabs.h"
#include "kept/keptconfigurations.h"
#include "kept/keptdialog.h"
#include "messages/messagemodel.h"
#include "project/ipchead.h"
#include "project/project.h"
#include "widgets/errorbox.h"
#include "widgets/infobar.h"

#include <ipcore/ipcore.h>

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace Workbench
{

IpActions::IpActions(const Surroundings &with, QWidget *window)
    : m_with(with)
    , m_window(window)
{
    m_with.session.setKept(&m_with.kept);
    m_with.session.setKnownFiles(
        [this] { return m_project ? m_project->ipFiles() : QStringList(); });
    connect(&m_with.session, &IpSession::keepFailed, this, &IpActions::tellKeepFailed);
    IPCore::setConfigKeeper([this](const QString &path) {
        QString error;
        if (!m_with.kept.keepFile(path, &error))
            tellKeepFailed(error);
    });
    connect(
        &m_with.session, &IpSession::dropped, this, [this](const QString &id, const QString &file) {
            m_with.infoBar.showMessage(
                tr("The dialog of \"%1\" was closed without OK. Its changes are kept as a draft.")
                    .arg(shownName(file)),
                {{tr("&Bring Back…"), [this, id] { bringBack(id); }}});
        });
}

QString IpActions::shownName(const QString &file) const
{
    const QString inside = m_project ? m_project->path() + u'/' : QString();
    const bool isInside = m_project && file.startsWith(inside);
    return QDir::toNativeSeparators(isInside ? file.mid(inside.size()) : file);
}

IpActions::~IpActions()
{
    IPCore::setConfigKeeper(nullptr);
    m_with.session.setKnownFiles({});
}

void IpActions::setProject(const Project *project)
{
    m_project = project;
}

void IpActions::tellKeepFailed(const QString &message)
{
    const QString text = tr("No copy of a configuration was kept. %1").arg(message);
    m_with.messages.append(MessageModel::Warning, text, {});
    m_with.infoBar.showMessage(text, {});
}

bool IpActions::withCopies(const std::function<bool()> &call)
{
    // A plug-in may read what is being saved.
    m_with.tabs.finishSaves();
    QStringList copies;
    m_copiesTold = m_with.tabs.keepChanges(&copies);
    const bool result = call();
    m_copiesTold.clear();
    for (const QString &copy : qAsConst(copies))
        QFile::remove(copy);
    return result;
}

void IpActions::keepUnsaved()
{
    const QStringList told = m_copiesTold.isEmpty() ? m_with.tabs.keepChanges() : m_copiesTold;
    for (const QString &line : told)
        qWarning("%s", qUtf8Printable(line));
}

// Runs the dialog of an IP.
bool IpActions::run(int ip, const std::function<bool(QString *)> &dialog)
{
    Q_EMIT opening(ip);
    QString error;
    const bool done = withCopies([&] { return dialog(&error); });
    if (!done && !m_with.closing.hasBegun())
        showError(m_window, error);
    return done;
}

bool IpActions::open(const QString &ipcFile)
{
    if (!settleUnknownDevice(ipcFile))
        return false;
    QString ignored;
    return run(m_with.catalogue.indexOf(IpSession::typeOf(ipcFile, &ignored)),
               [&](QString *error) { return m_with.session.open(ipcFile, error); });
}

bool IpActions::create(int ip, const QString &folder, const DEV::DeviceArg &device)
{
    return run(ip,
               [&](QString *error) { return m_with.session.create(ip, folder, device, error); });
}

bool IpActions::settleUnknownDevice(const QString &ipcFile)
{
    const IpcHead head = IpcHead::read(ipcFile);
    const int ip = m_with.catalogue.indexOf(head.type);
    if (!head.hasUnknownDevice() || ip < 0)
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Unknown device"),
                    tr("\"%1\" is made for the device \"%2\", which the device database does not "
                       "know.")
                        .arg(QDir::toNativeSeparators(ipcFile), head.deviceName),
                    QMessageBox::Cancel, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        m_with.catalogue.canMove(ip)
            ? tr("Move it to a device that is known, or open it all the same: its dialog has no "
                 "device then, and OK there stores it without one.")
            : tr("Its plug-in cannot move it to another device. Opened all the same, its dialog "
                 "has "
                 "no device, and OK there stores it without one."));
    QPushButton *move = nullptr;
    if (m_with.catalogue.canMove(ip)) {
        move = box.addButton(tr("&Move to Device…"), QMessageBox::AcceptRole);
        box.setDefaultButton(move);
    } else {
        box.setDefaultButton(QMessageBox::Cancel);
    }
    QPushButton *open = box.addButton(tr("&Open All the Same"), QMessageBox::DestructiveRole);
    box.exec();
    if (move && box.clickedButton() == move) {
        chooseDeviceOf(ipcFile);
        return !IpcHead::read(ipcFile).hasUnknownDevice();
    }
    return box.clickedButton() == open;
}

bool IpActions::move(const QString &ipcFile, const DEV::DeviceArg &device)
{
    const IpcHead head = IpcHead::read(ipcFile);
    const int ip = m_with.catalogue.indexOf(head.type);
    const QString name = QFileInfo(ipcFile).fileName();
    const QString shown = QDir::toNativeSeparators(ipcFile);
    const auto fail = [this](const QString &reason) {
        showError(m_window, reason);
        return false;
    };
    if (ip < 0)
        return fail(tr("No plug-in offers the IP of \"%1\".").arg(shown));
    QString error;
    IpCatalogue::Move losses;
    const auto moveIt = [&](bool write) {
        return withCopies([&] {
            return m_with.catalogue.moveToDevice(ip, ipcFile, device.id(), write, &losses, &error);
        });
    };
    if (!m_with.catalogue.isSupported(ip, device, &error) || !moveIt(false))
        return fail(error);
    MoveDialog dialog(name, head.deviceWords(), IpcHead::words(device), losses.losses, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (!m_with.kept.keepFile(ipcFile, &error))
        return fail(
            tr("\"%1\" is not moved, because no copy of it can be kept. %2").arg(name, error));
    if (!moveIt(true))
        return fail(error);
    Q_EMIT changed();
    if (IpcHead::read(ipcFile).device.id() != device.id())
        return fail(tr("The plug-in has not moved \"%1\" to the device %2.")
                        .arg(shown, IpcHead::words(device)));
    offerOpening(tr("\"%1\" is for the device %2 now. What was generated is still for the "
                    "one before.")
                     .arg(name, IpcHead::words(device)),
                 ipcFile);
    return true;
}

void IpActions::offerOpening(const QString &text, const QString &ipcFile)
{
    m_with.infoBar.showMessage(
        text, {{tr("Open It to Generate It Ane&w…"), [this, ipcFile] { open(ipcFile); }}});
}

void IpActions::chooseDeviceOf(const QString &ipcFile)
{
    const IpcHead head = IpcHead::read(ipcFile);
    const QString current =
        m_project && !m_project->device().isNull() ? m_project->deviceId() : head.device.id();
    DeviceDialog dialog(tr("Move \"%1\" to Device").arg(QFileInfo(ipcFile).fileName()), current,
                        m_window);
    if (dialog.exec() == QDialog::Accepted && !dialog.device().isNull())
        move(ipcFile, dialog.device());
}

bool IpActions::bringBack(const QString &keptId)
{
    const KeptConfigurations::Item item = m_with.kept.item(keptId);
    if (item.id.isEmpty()) {
        showError(m_window, tr("This copy is gone."));
        Q_EMIT changed();
        return false;
    }
    return item.kind == KeptConfigurations::Dropped ? reopenDropped(keptId) : restore(keptId);
}

bool IpActions::reopenDropped(const QString &keptId)
{
    const KeptConfigurations::Item item = m_with.kept.item(keptId);
    QString folder = QFileInfo(item.origin).absolutePath();
    // Another IP was made there meanwhile.
    if (item.isNew && QFileInfo::exists(item.origin)) {
        const QString taken = folder;
        for (int n = 2; QFileInfo::exists(folder); ++n)
            folder = taken + u'-' + QString::number(n);
    }
    return run(-1, [&](QString *error) {
        const bool opened = m_with.session.openAs(item.copy, folder, error);
        if (m_with.session.wasAccepted())
            m_with.kept.forget(keptId);
        return opened;
    });
}

bool IpActions::restore(const QString &keptId)
{
    const KeptConfigurations::Item item = m_with.kept.item(keptId);
    const QString shown = QDir::toNativeSeparators(item.origin);
    const bool replaces = QFileInfo::exists(item.origin);
    QMessageBox box(QMessageBox::Question, tr("Bring back"),
                    replaces ? tr("Replace \"%1\" by what it was before?").arg(shown)
                             : tr("Write \"%1\" again as it was?").arg(shown),
                    QMessageBox::Yes | QMessageBox::Cancel, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(replaces
                               ? tr("%1.\nA copy of the present configuration is kept as well.")
                                     .arg(item.description())
                               : tr("%1.").arg(item.description()));
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() != QMessageBox::Yes)
        return false;
    QString error;
    if (!m_with.kept.restore(keptId, &error)) {
        showError(m_window, error);
        return false;
    }
    Q_EMIT changed();
    offerOpening(tr("\"%1\" is as it was. What was generated is not.").arg(shown), item.origin);
    return true;
}

void IpActions::tellOfOtherDevices(const QStringList &files)
{
    if (files.isEmpty())
        return;
    const QString first = files.first();
    const InfoBar::Action show{tr("&Show"), [this, first] { Q_EMIT showRequested(first); }};
    if (files.size() > 1) {
        m_with.infoBar.showMessage(
            tr("%n IPs of this project are made for other devices.", nullptr, files.size()),
            {show});
        return;
    }
    const IpcHead head = IpcHead::read(first);
    const int ip = m_with.catalogue.indexOf(head.type);
    const bool canMove = ip >= 0 && m_with.catalogue.canMove(ip);
    const InfoBar::Action moveIt{tr("&Move It to the Project's Device…"),
                                 [this, first] { move(first, m_project->device()); }};
    m_with.infoBar.showMessage(tr("\"%1\" is still made for the device %2.")
                                   .arg(QFileInfo(first).fileName(), head.deviceWords()),
                               {canMove ? moveIt : show});
}

void IpActions::showKept()
{
    KeptDialog dialog(&m_with.kept, m_window);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    Q_EMIT changed();
    if (chosen && !dialog.chosen().isEmpty())
        bringBack(dialog.chosen());
}

} // namespace Workbench
