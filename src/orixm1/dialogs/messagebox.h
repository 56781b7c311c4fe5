#pragma once

#include <QMessageBox>
#include <QString>

namespace TARVOORIXM1
{

// The look that the message boxes of this IP share: plain text, fixed size, one OK button that is
// also the escape button, the IP's window icon. Modal, returns when closed.
//
// With `isError` the picture is the IP's own exclamation mark, which replaces the standard one of
// `icon`.
void showMessageBox(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                    const QString &text, bool isError, const QString &details = QString());

// An error box without a standard icon, titled "Error".
void showErrorBox(QWidget *parent, const QString &text);

} // namespace TARVOORIXM1
