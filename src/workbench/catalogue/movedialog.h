#pragma once

#include <QDialog>

namespace Workbench
{

// Asks whether an IP is moved to another device, and lists what it loses there.
class MoveDialog : public QDialog
{
    Q_OBJECT

public:
    // `from` and `to` are devices in words; `losses` sentences.
    MoveDialog(const QString &file, const QString &from, const QString &to,
               const QStringList &losses, QWidget *parent = nullptr);
};

} // namespace Workbench
