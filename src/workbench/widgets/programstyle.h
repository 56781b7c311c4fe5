#pragma once

#include <QProxyStyle>

namespace Workbench
{

// The style of the desktop, with pictures of our own for what the window shows from the beginning:
// the style's are read from files, for which the library loads every reader of pictures that there
// is, and they have no colour for a dark palette.
class ProgramStyle : public QProxyStyle
{
    Q_OBJECT

public:
    // A file dialog of Qt's asks for a size without a look at the screen.
    void polish(QWidget *widget) override;
    using QProxyStyle::polish;
    bool eventFilter(QObject *watched, QEvent *event) override;

    QIcon standardIcon(StandardPixmap picture, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    // Behind the text of a disabled entry of a menu the style would draw a light one, which on a
    // dark ground is what one reads.
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returned = nullptr) const override;
};

} // namespace Workbench
