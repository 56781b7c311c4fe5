#include "outputpane.h"

#include "logview.h"
#include "messagemodel.h"
#include "messagesview.h"

namespace Workbench
{

OutputPane::OutputPane(MessageModel *model, QWidget *parent)
    : QTabWidget(parent)
    , m_model(model)
    , m_messages(new MessagesView(model))
    , m_log(new LogView)
{
    setObjectName(QStringLiteral("outputTabs"));
    setDocumentMode(true);
    setTabPosition(QTabWidget::South);
    addTab(m_messages, QString());
    addTab(m_log, tr("Log"));
    connect(model, &QAbstractItemModel::modelReset, this, &OutputPane::showCounts);
    connect(model, &QAbstractItemModel::rowsInserted, this, &OutputPane::showCounts);
    showCounts();
}

void OutputPane::showLog()
{
    setCurrentWidget(m_log);
}

void OutputPane::showMessages()
{
    setCurrentWidget(m_messages);
}

void OutputPane::showCounts()
{
    const int errors = m_model->count(MessageModel::Error);
    const int warnings = m_model->count(MessageModel::Warning);
    QString text = tr("Messages");
    if (errors + warnings > 0)
        text = tr("Messages (errors: %1, warnings: %2)").arg(errors).arg(warnings);
    setTabText(0, text);
}

} // namespace Workbench
