#pragma once

#include "wrappedtext.h"

#include <QCommandLinkButton>

namespace Workbench
{

// A command link in the user's font: Qt's own writes in a fixed size, whatever the desktop says.
// Long texts wrap.
class LinkButton : public QCommandLinkButton
{
    Q_OBJECT

public:
    // `text` is taken as it is; an "&" marks no key.
    LinkButton(const QString &text, const QString &description, const QIcon &icon,
               QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QFont titleFont() const;
    QString title() const;
    int iconSide() const;
    int gap() const { return fontMetrics().height() / 2; }
    // Where the texts stand, in a button of this width.
    struct Places {
        QRect title;
        QRect description;
    };
    Places places(int width) const;

    // Both are as the button's texts and font are.
    void takeTexts() const;

    mutable WrappedText m_title;
    mutable WrappedText m_description;
};

} // namespace Workbench
