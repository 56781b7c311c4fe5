#pragma once

#include <QCommandLinkButton>
#include <QHash>

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

    // By width, since a layout asks for the same few again and again; of these texts.
    mutable QHash<int, Places> m_places;
    mutable QString m_placesTitle;
    mutable QString m_placesDescription;
};

} // namespace Workbench
