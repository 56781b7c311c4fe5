#pragma once

#include "ipcore_global.h"

#include <QPointer>
#include <QWidget>

namespace IPCore
{

// A frame around the widget that has the keyboard's focus, where that does not show it by itself:
// lists, tables, read-only texts and figures, or only while they have a current item, and push
// buttons. Areas scroll to the widget that Tab leads to.
//
// Once installed it serves every window of the program. Styles show the focus in a window from the
// beginning then, not only after the first Tab, and Tab reaches every button of a button box: the
// box stands in for the one that is shown first, and Tab would go round without those that were
// made before it.
class TARVO_IPCORE_EXPORT FocusRing : public QWidget
{
    Q_OBJECT

public:
    // Needs a QApplication; a second call does nothing.
    static void install();
    // Whether a ring is what shows that `widget` has the focus.
    static bool isNeeded(const QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    explicit FocusRing(QWidget *view);

    QPointer<QWidget> m_view;
};

} // namespace IPCore
