#include "messagebox.h"

#include <QIcon>
#include <QPixmap>

namespace TARVOORIXM1
{

void showMessageBox(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                    const QString &text, bool isError, const QString &details)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent,
                    Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box.setTextFormat(Qt::PlainText); // texts hold paths, which are never mark-up
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.setWindowIcon(QIcon(QStringLiteral("://image/module.png")));
    if (isError)
        box.setIconPixmap(QPixmap(QStringLiteral("://image/exclamation.png")));
    if (!details.isEmpty())
        box.setDetailedText(details);
    box.exec();
}

void showErrorBox(QWidget *parent, const QString &text)
{
    showMessageBox(parent, QMessageBox::NoIcon, QStringLiteral("Error"), text, true);
}

} // namespace TARVOORIXM1
