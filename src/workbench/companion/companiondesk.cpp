#include "companiondesk.h"

#include "companion.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QSettings>
#include <QTimer>

namespace Workbench
{

namespace
{

const QString shownKey = QStringLiteral("companion/shown");

} // namespace

CompanionDesk::CompanionDesk(QSettings &settings, const QVector<CompanionPanel> &panels,
                             QWidget *window)
    : QObject(window)
    , m_settings(settings)
    , m_panels(panels)
    , m_action(new QAction(tr("&Companion of IP Dialogs"), window))
{
    m_action->setCheckable(true);
    m_action->setChecked(settings.value(shownKey, true).toBool());
    m_action->setStatusTip(
        tr("Shows beside the dialog of an IP what its configuration takes of the device"));
    connect(m_action, &QAction::triggered, this, &CompanionDesk::setWanted);
}

Companion *CompanionDesk::companion() const
{
    return m_companion;
}

void CompanionDesk::setWanted(bool isWanted)
{
    m_action->setChecked(isWanted);
    if (m_settings.value(shownKey, true).toBool() != isWanted)
        m_settings.setValue(shownKey, isWanted);
    if (!m_companion)
        return;
    if (isWanted)
        m_companion->showBeside();
    else
        m_companion->hide();
}

void CompanionDesk::follow(QDialog *ipDialog, QObject *pluginRoot)
{
    end();
    if (Companion::offered(m_panels, ipDialog, pluginRoot).isEmpty())
        return;
    m_dialog = ipDialog;
    m_root = pluginRoot;
    qApp->installEventFilter(this);
    // It is about to come up, and not in its place yet.
    QTimer::singleShot(0, m_dialog, [this, dialog = m_dialog] {
        if (dialog && dialog == m_dialog)
            open();
    });
}

void CompanionDesk::open()
{
    if (m_companion || !m_dialog->isVisible())
        return;
    m_companion = new Companion(m_dialog, m_root, Companion::offered(m_panels, m_dialog, m_root));
    m_companion->rememberPlace(m_settings);
    connect(m_companion, &Companion::closed, this, [this] {
        if (m_dialog && m_dialog->isVisible())
            setWanted(false);
    });
    if (m_action->isChecked())
        m_companion->showBeside();
}

// The dialog takes its companion along if it goes before.
void CompanionDesk::end()
{
    qApp->removeEventFilter(this);
    if (m_companion) {
        m_companion->disconnect(this);
        m_companion->hide();
        m_companion->deleteLater();
    }
    m_companion = nullptr;
}

bool CompanionDesk::changeFocus(const QWidget *from)
{
    if (from->window() == m_companion) {
        m_dialog->activateWindow();
        return true;
    }
    if (from->window() != m_dialog)
        return false; // a dialog in front of both
    if (!m_companion->isVisible())
        setWanted(true);
    m_companion->takeFocus();
    return true;
}

bool CompanionDesk::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_dialog)
        return QObject::eventFilter(watched, event);
    if (watched == m_dialog && event->type() == QEvent::Hide && !event->spontaneous()) {
        end();
        m_dialog = nullptr;
    } else if (event->type() == QEvent::KeyPress && watched->isWidgetType() && m_companion) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_F6 && key->modifiers() == Qt::NoModifier &&
            changeFocus(static_cast<QWidget *>(watched)))
            return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Workbench
