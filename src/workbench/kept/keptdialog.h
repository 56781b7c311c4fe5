#pragma once

#include <QDialog>

QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QTreeWidget)

namespace Workbench
{

class KeptConfigurations;

// All kept configurations: choose one to bring back, or delete some.
class KeptDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KeptDialog(KeptConfigurations *kept, QWidget *parent = nullptr);

    // The chosen one, after the dialog was accepted.
    QString chosen() const;

private:
    void fill();
    void deleteSelected();
    void showState();

    KeptConfigurations *m_kept;
    QTreeWidget *m_list;
    QPushButton *m_bringBack;
    QPushButton *m_delete;
};

} // namespace Workbench
