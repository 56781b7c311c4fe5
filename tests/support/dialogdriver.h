#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <functional>

// Drives the modal dialogs that a call opens.
namespace TestSupport
{

// What was seen of a message box before it was closed.
struct SeenBox {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QString details;
    bool hasPixmap = false;
    bool hasWindowIcon = false;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    QMessageBox::StandardButton escapeButton = QMessageBox::NoButton;
    Qt::WindowFlags flags;
    QWidget *parent = nullptr;
};

// Runs `handle` on every modal widget that comes up while it lives, once for each.
class ModalWatcher : public QObject
{
public:
    explicit ModalWatcher(const std::function<void(QWidget *)> &handle)
        : m_handle(handle)
    {
        connect(&m_timer, &QTimer::timeout, this, &ModalWatcher::look);
        m_timer.start(0);
    }

    int count() const { return m_count; }

private:
    void look()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal || modal == m_last)
            return;
        m_last = modal;
        ++m_count;
        m_handle(modal);
    }

    std::function<void(QWidget *)> m_handle;
    QTimer m_timer;
    QPointer<QWidget> m_last;
    int m_count = 0;
};

// Calls `call`, records the message boxes that it opens and answers each with `answer`.
inline QList<SeenBox> boxesOf(const std::function<void()> &call,
                              QMessageBox::StandardButton answer = QMessageBox::Ok)
{
    QList<SeenBox> seen;
    const ModalWatcher watcher([&](QWidget *modal) {
        auto *box = qobject_cast<QMessageBox *>(modal);
        if (!box)
            return;
        SeenBox record;
        record.icon = box->icon();
        record.title = box->windowTitle();
        record.text = box->text();
        record.details = box->detailedText();
        record.hasPixmap = !box->iconPixmap().isNull();
        record.hasWindowIcon = !box->windowIcon().isNull();
        record.buttons = box->standardButtons();
        record.defaultButton = box->standardButton(box->defaultButton());
        record.escapeButton = box->standardButton(box->escapeButton());
        record.flags = box->windowFlags();
        record.parent = box->parentWidget();
        seen.append(record);
        if (QAbstractButton *button = box->button(answer))
            button->click();
        else
            box->close();
    });
    call();
    return seen;
}

} // namespace TestSupport
