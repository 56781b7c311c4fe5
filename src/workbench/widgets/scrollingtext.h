#pragma once

#include <QScrollArea>

QT_FORWARD_DECLARE_CLASS(QLabel)

namespace Workbench
{

// A text that breaks its lines and takes the height that it needs; where there is less, two lines
// at least, it scrolls.
class ScrollingText : public QScrollArea
{
    Q_OBJECT

public:
    // Takes the label. Assistive tools are told `name` where keys scroll it.
    ScrollingText(QLabel *label, const QString &name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    QLabel *m_label;
};

} // namespace Workbench
