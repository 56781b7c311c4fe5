#pragma once

#include <QDialog>

QT_FORWARD_DECLARE_CLASS(QListWidget)

namespace Workbench
{

class IpCatalogue;

// The plug-ins that were found, what each offers or why it is not used, and the folders of the
// user's own that are searched too.
class PluginsDialog : public QDialog
{
    Q_OBJECT

public:
    PluginsDialog(const IpCatalogue &catalogue, const QStringList &folders,
                  QWidget *parent = nullptr);

    QStringList folders() const;

Q_SIGNALS:
    // The dialog is closed then: its lists are of before.
    void tryAgainRequested();

private:
    QListWidget *m_folders;
};

} // namespace Workbench
