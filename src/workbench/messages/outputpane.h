#pragma once

#include <QTabWidget>

namespace Workbench
{

class LogView;
class MessageModel;
class MessagesView;

// Messages and log of the runs, one a tab.
class OutputPane : public QTabWidget
{
    Q_OBJECT

public:
    // The model must outlive the pane.
    explicit OutputPane(MessageModel *model, QWidget *parent = nullptr);

    LogView *log() const { return m_log; }
    MessagesView *messages() const { return m_messages; }
    void showLog();
    void showMessages();

private:
    void showCounts();

    MessageModel *m_model;
    MessagesView *m_messages;
    LogView *m_log;
};

} // namespace Workbench
