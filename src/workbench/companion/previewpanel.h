#pragma once

#include "catalogue/answers.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QDialog)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QTreeWidget)

namespace Workbench
{

class SideBySide;

// What OK in the dialog of an IP would do: the files with their states, one of them before and
// after, and what differs in the subsystem. Follows the dialog while it is seen.
class PreviewPanel : public QWidget
{
    Q_OBJECT

public:
    // ms after the last change in the dialog.
    static constexpr int delay = 300;

    // Whether the two tell what it shows; null: no.
    static bool isOffered(const QDialog *dialog, const QObject *pluginRoot);

    // Neither is owned, and either may end before the panel.
    PreviewPanel(QDialog *ipDialog, QObject *pluginRoot, QWidget *parent);

    // Asks the plug-in anew, at once.
    void refresh();

Q_SIGNALS:
    // What is shown is what the dialog has now, or why it cannot be told.
    void refreshed();

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onConfigurationChanged();

private:
    void showPreview(const Answers::Preview &preview);
    void showFile();
    void shareFileColumns();
    void showProblem(const QString &problem);

    QPointer<QDialog> m_dialog;
    QPointer<QObject> m_root;
    QTimer m_timer;
    bool m_isStale = true;
    bool m_isAsking = false;
    Answers::Preview m_preview;

    QLabel *m_summary;
    QTreeWidget *m_files;
    int m_nameWidth = 0; // of the longest name in it, without folders
    QTreeWidget *m_differences;
    QLabel *m_note; // of the file
    SideBySide *m_texts;
    QPushButton *m_next;
    QPushButton *m_copy;
};

} // namespace Workbench
