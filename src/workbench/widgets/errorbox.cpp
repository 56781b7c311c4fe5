#include "errorbox.h"

#include "tr.h"

#include <QMessageBox>

namespace Workbench
{

void showError(QWidget *parent, const QString &message)
{
    QMessageBox box(QMessageBox::Critical, Tr::tr("Error"), message, QMessageBox::Ok, parent);
    // Messages hold paths of the user, which must never be taken for mark-up.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace Workbench
