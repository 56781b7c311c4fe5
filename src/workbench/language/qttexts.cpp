#include "qttexts.h"

#include <QtGlobal>

#include <algorithm>

namespace Workbench
{

const QVector<QtText> &qtTexts()
{
    static const QVector<QtText> texts{
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "OK")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Save")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Save All")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Open")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Yes to &All")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "&No")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "N&o to All")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Abort")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Retry")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Ignore")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Close")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Discard")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Help")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Apply")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Reset")},
        {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Restore Defaults")},
        {"QMessageBox", QT_TRANSLATE_NOOP("QMessageBox", "Show Details...")},
        {"QMessageBox", QT_TRANSLATE_NOOP("QMessageBox", "Hide Details...")},
        {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Undo")},
        {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Redo")},
        {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Cu&t")},
        {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Copy")},
        {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Paste")},
        {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Delete")},
        {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Select All")},
        {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "&Undo")},
        {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "&Redo")},
        {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "Cu&t")},
        {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "&Copy")},
        {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "Copy &Link Location")},
        {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "&Paste")},
        {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "Delete")},
        {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "Select All")},
        {"QAbstractSpinBox", QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Select All")},
        {"QAbstractSpinBox", QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Step up")},
        {"QAbstractSpinBox", QT_TRANSLATE_NOOP("QAbstractSpinBox", "Step &down")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll here")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Left edge")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Top")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Right edge")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Bottom")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Page left")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Page up")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Page right")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Page down")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll left")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll up")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll right")},
        {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll down")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Ctrl")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Shift")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Alt")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "PgUp")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "PgDown")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Up")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Down")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Left")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Right")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Del")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Space")},
        {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Return")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Look in:")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "File &name:")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Files of type:")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Directory:")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "&Open")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "&Save")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "&Choose")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Back")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Forward")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Parent Directory")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Create New Folder")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "List View")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Detail View")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Folder")},
        {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "%1 File")},
        {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Name")},
        {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Size")},
        {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Type")},
        {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Date Modified")},
    };
    return texts;
}

bool isQtContext(const char *context)
{
    const QVector<QtText> &texts = qtTexts();
    return std::any_of(texts.begin(), texts.end(), [context](const QtText &text) {
        return qstrcmp(text.context, context) == 0;
    });
}

} // namespace Workbench
