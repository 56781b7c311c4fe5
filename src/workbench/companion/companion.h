#pragma once

#include "panels.h"

#include <QPointer>
#include <QRect>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QSettings)
QT_FORWARD_DECLARE_CLASS(QTabWidget)

namespace Workbench
{

class WindowPlace;

// The window beside the dialog of an IP, with a tab for each panel that dialog and plug-in offer
// something for. It belongs to the dialog, so that the two can be used together though the dialog
// is modal; it comes up without taking the focus.
class Companion : public QWidget
{
    Q_OBJECT

public:
    // `panels`: those that apply, at least one. They are made when the window is first shown.
    Companion(QDialog *ipDialog, QObject *pluginRoot, const QVector<CompanionPanel> &panels);

    // Those that apply.
    static QVector<CompanionPanel> offered(const QVector<CompanionPanel> &panels,
                                           const QDialog *ipDialog, const QObject *pluginRoot);
    // Where a window of this size goes: at the right or the left of `dialog` if `screen` has the
    // room, otherwise over the dialog's upper right corner, and then less high.
    static QRect placeBeside(const QRect &dialog, const QSize &size, const QRect &screen);

    // As much of a width as there is room for at one side of `dialog`; nothing of it is hidden
    // then.
    static int widthBeside(const QRect &dialog, int width, const QRect &screen);

    // From now on; before it is shown. The settings must outlive it.
    void rememberPlace(QSettings &settings);
    // Beside the dialog, or where people have put it before. The dialog, which must be visible and
    // keeps the focus.
    void showBeside();
    // Gives it the keyboard.
    void takeFocus();

    QTabWidget *tabs() const { return m_tabs; }

Q_SIGNALS:
    // Somebody has closed the window.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makePanels();
    void goBeside();

    QPointer<QDialog> m_dialog;
    QPointer<QObject> m_root;
    QVector<CompanionPanel> m_panels; // that are not made yet
    QTabWidget *m_tabs;
    WindowPlace *m_place = nullptr; // where it is not remembered
};

} // namespace Workbench
