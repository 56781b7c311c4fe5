#pragma once

#include <QLabel>

namespace Workbench
{

// A line of text that gives way where there is no room for it: it ends in an ellipsis then, and the
// tool tip has all of it.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace Workbench
