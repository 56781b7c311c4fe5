#include "programstyle.h"

#include "symbolicon.h"

#include <ipcore/screenfit.h>

#include <QEvent>
#include <QFileDialog>

namespace Workbench
{

void ProgramStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QFileDialog *>(widget))
        widget->installEventFilter(this);
}

bool ProgramStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (auto *dialog = qobject_cast<QFileDialog *>(watched);
        dialog && event->type() == QEvent::Show)
        dialog->resize(dialog->size().boundedTo(IPCore::roomOnScreen(dialog)));
    return QProxyStyle::eventFilter(watched, event);
}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption *option,
                                 const QWidget *widget) const
{
    switch (picture) {
    case SP_ToolBarHorizontalExtensionButton: // what a menu bar has no room for
        return symbolIcon(QStringLiteral("more"));
    case SP_ToolBarVerticalExtensionButton: // or a tool bar
        return symbolIcon(QStringLiteral("more-below"));
    case SP_TitleBarCloseButton:
    case SP_DockWidgetCloseButton:
        return symbolIcon(QStringLiteral("close"));
    case SP_TitleBarNormalButton: // takes a dock out of the window
        return symbolIcon(QStringLiteral("float"));
    case SP_MessageBoxInformation: // the style's are of one size, which a large screen shows
        return symbolIcon(QStringLiteral("info"));
    case SP_MessageBoxQuestion:
        return symbolIcon(QStringLiteral("question"));
    case SP_MessageBoxWarning:
        return symbolIcon(QStringLiteral("warning"));
    case SP_MessageBoxCritical:
        return symbolIcon(QStringLiteral("error"));
    case SP_CommandLink:
        return symbolIcon(QStringLiteral("forward"));
    default:
        return QProxyStyle::standardIcon(picture, option, widget);
    }
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returned) const
{
    return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace Workbench
