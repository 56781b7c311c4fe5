#include "infobar.h"

#include "scrollingtext.h"
#include "symbolicon.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace Workbench
{

InfoBar::InfoBar(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel)
    , m_buttons(new QHBoxLayout)
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setObjectName(QStringLiteral("infoText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setMinimumWidth(1); // a long path must not push the buttons off the window
    auto *close = new QToolButton;
    close->setIcon(symbolIcon(QStringLiteral("close"), QPalette::ToolTipText));
    close->setAutoRaise(true);
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close the message"));
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 4, 4);
    layout->addWidget(new ScrollingText(m_text, tr("Message")), 1);
    layout->addLayout(m_buttons);
    layout->addWidget(close);
    hide();
}

void InfoBar::showMessage(const QString &text, const QList<Action> &actions)
{
    while (QLayoutItem *item = m_buttons->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater(); // this may run in its click
        delete item;
    }
    m_text->setText(text);
    for (const Action &action : actions) {
        auto *button = new QPushButton(action.text);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, run = action.run] {
            hide();
            run();
        });
        m_buttons->addWidget(button);
    }
    show();
}

QString InfoBar::text() const
{
    return m_text->text();
}

void InfoBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        hide();
    else
        QWidget::keyPressEvent(event);
}

} // namespace Workbench
