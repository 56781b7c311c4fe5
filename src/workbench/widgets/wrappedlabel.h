#pragma once

#include "wrappedtext.h"

#include <QLabel>

namespace Workbench
{

// A label with plain text that wraps, at the left. It looks as QLabel would, but is as
// cheap as its text is.
class WrappedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit WrappedLabel(const QString &text = {}, QWidget *parent = nullptr);

    // The text can be selected with the mouse; its size is that of QLabel then, too.
    void showSelectable(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    // What shows a selection, of QLabel, is made when the mouse comes.
    void beginSelecting();
    bool isSelecting() const { return textInteractionFlags() & Qt::TextSelectableByMouse; }
    // What there is nothing to gain for.
    bool isQLabels() const;
    WrappedText &wrapped() const;
    QSize sizeFor(int width) const;
    QSize documentSize() const;

    mutable WrappedText m_wrapped;
    bool m_isSelectable = false;
};

} // namespace Workbench
