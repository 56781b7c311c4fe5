#pragma once

#include "panels.h"

#include <QObject>
#include <QPointer>

QT_FORWARD_DECLARE_CLASS(QAction)

namespace Workbench
{

class Companion;

// Gives the dialogs of IPs their companion, one at a time, while it is wanted. F6 leads from the
// dialog to the companion, which it shows if it is hidden, and back.
class CompanionDesk : public QObject
{
    Q_OBJECT

public:
    // The settings, which remember whether it is wanted, must outlive this. The action belongs to
    // `window`.
    CompanionDesk(QSettings &settings, const QVector<CompanionPanel> &panels, QWidget *window);

    // Whether it is wanted, for a menu.
    QAction *action() const { return m_action; }
    // Of the dialog that is open; null: there is none.
    Companion *companion() const;

    // From now on until it goes. A dialog that no panel applies to is left alone. `pluginRoot` may
    // be null.
    void follow(QDialog *ipDialog, QObject *pluginRoot);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open();
    void end();
    void setWanted(bool isWanted);
    bool changeFocus(const QWidget *from);

    QSettings &m_settings;
    const QVector<CompanionPanel> m_panels;
    QAction *m_action;
    QPointer<QDialog> m_dialog;
    QPointer<QObject> m_root;
    QPointer<Companion> m_companion;
};

} // namespace Workbench
