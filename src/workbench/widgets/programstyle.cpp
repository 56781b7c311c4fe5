#include "programstyle.h"

#include "symbolicon.h"

namespace Workbench
{

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
    case SP_CommandLink:
        return symbolIcon(QStringLiteral("forward"));
    default:
        return QProxyStyle::standardIcon(picture, option, widget);
    }
}

} // namespace Workbench
