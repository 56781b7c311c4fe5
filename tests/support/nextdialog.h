#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>

namespace TestSupport
{

// Looks at the modal window that the next call opens, and closes it. Make one before the call and
// ask it afterwards; a call that opens no window leaves it empty.
class NextDialog
{
public:
    using Look = std::function<void(QWidget *)>;

    explicit NextDialog(const Look &look = {})
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, look] {
            QWidget *window = QApplication::activeModalWidget();
            if (!window)
                return;
            m_shown = true;
            m_title = window->windowTitle();
            m_parent = window->parentWidget();
            if (const auto *box = qobject_cast<QMessageBox *>(window)) {
                m_text = box->text();
                m_format = box->textFormat();
            }
            if (look)
                look(window);
            window->close();
        });
        m_timer.setSingleShot(true);
        m_timer.start(0);
    }

    bool wasShown() const { return m_shown; }
    QString title() const { return m_title; }
    QWidget *parent() const { return m_parent; }
    // Of a message box.
    QString text() const { return m_text; }
    Qt::TextFormat format() const { return m_format; }

private:
    QTimer m_timer;
    bool m_shown = false;
    QString m_title;
    QString m_text;
    QWidget *m_parent = nullptr;
    Qt::TextFormat m_format = Qt::AutoText;
};

} // namespace TestSupport
