#pragma once

#include <QPlainTextEdit>

namespace Workbench
{

// What the synthesis tool prints, as it comes.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LogView(QWidget *parent = nullptr);

    // Empties the log for a new run.
    void start(const QString &heading);
};

} // namespace Workbench
