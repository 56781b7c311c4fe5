#pragma once

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace Workbench
{

class MessageModel;

// The messages as a list: Enter or a double-click opens the file at the line.
class MessagesView : public QWidget
{
    Q_OBJECT

public:
    // The model must outlive the view.
    explicit MessagesView(MessageModel *model, QWidget *parent = nullptr);

    // Selects the next (1) or previous (-1) message that has a place, round the end, and opens it.
    void step(int direction);

public Q_SLOTS:
    // The selected messages, or all if none is.
    void copy();

Q_SIGNALS:
    void openRequested(const QString &path, int line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showColumns();
    void open(const QModelIndex &index);

    MessageModel *m_model;
    QTreeView *m_list;
};

} // namespace Workbench
