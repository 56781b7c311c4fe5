#pragma once

#include <QWidget>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QHBoxLayout)
QT_FORWARD_DECLARE_CLASS(QLabel)

namespace Workbench
{

// A line above a page that tells something and offers what to do about it, without stopping the
// work. Hidden until it has something to say.
class InfoBar : public QWidget
{
    Q_OBJECT

public:
    struct Action {
        QString text;
        std::function<void()> run;
    };

    explicit InfoBar(QWidget *parent = nullptr);

    // Replaces what is shown. Every action hides the bar before it runs, and so does the bar's own
    // close button.
    void showMessage(const QString &text, const QList<Action> &actions);
    QString text() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *m_text;
    QHBoxLayout *m_buttons;
};

} // namespace Workbench
