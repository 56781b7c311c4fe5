#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QString)

namespace Workbench
{

// Says what the field is to assistive tools alone: on Linux they take the name of a combo box from
// its label and from nowhere else. The field must have its parent already.
void labelUnseen(QComboBox *field, const QString &text);

// A button in the field that clears it, and has a name.
void addClearButton(QLineEdit *field);

// What a label says: without the mark of its key, wherever a language has it, and without a colon.
QString spokenLabel(const QString &label);

// Has assistive tools take our windows that are neither dialogs nor main windows for windows, which
// to Qt are parts that only fill a place. Each of them calls it.
void installAccessibleWindows();

} // namespace Workbench
