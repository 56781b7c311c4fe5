#pragma once

#include <QScrollArea>

namespace Workbench
{

// Lays out what a page consists of in the room that there is, as long as that is what the parts
// need at least; where it is less, the page scrolls instead of being cut or pushing others off the
// window.
class ScrollingPage : public QScrollArea
{
    Q_OBJECT

public:
    // Fills `page`, which must have no layout yet. Returns what the parts are laid out on.
    static QWidget *fill(QWidget *page);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    explicit ScrollingPage(QWidget *page);
    void fit();
};

} // namespace Workbench
