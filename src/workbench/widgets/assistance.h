#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QString)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace Workbench
{

// Says what the field is to assistive tools alone: on Linux they take the name of a combo box from
// its label and from nowhere else. The field must have its parent already.
void labelUnseen(QComboBox *field, const QString &text);

// A button in the field that clears it, and has a name.
void addClearButton(QLineEdit *field);

// What a label says: without the mark of its key, wherever a language has it, and without a colon.
QString spokenLabel(const QString &label);

// Has assistive tools take the widget for a window. To Qt one that is neither a dialog nor a main
// window is a part that only fills a place. Call it first in the constructor.
void speakAsWindow(QWidget *window);

} // namespace Workbench
