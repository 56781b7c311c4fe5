#include "logview.h"

#include "widgets/fixedfont.h"

namespace Workbench
{

LogView::LogView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName(QStringLiteral("logView"));
    setAccessibleName(tr("Log of the synthesis tool"));
    setPlaceholderText(tr("The output of the synthesis tool appears here."));
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    setFrameShape(QFrame::NoFrame);
    setMinimumHeight(fontMetrics().height() * 5 / 2); // on a small screen
    setMaximumBlockCount(100000);
    setFont(fixedFont());
}

void LogView::start(const QString &heading)
{
    clear();
    appendPlainText(heading);
}

} // namespace Workbench
