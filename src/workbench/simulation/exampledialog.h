#pragma once

#include "simulationoffer.h"

#include <QDialog>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace Workbench
{

// Asks for the folder of a copy of an example; proposes one that does not exist.
class ExampleDialog : public QDialog
{
    Q_OBJECT

public:
    // `location`: the folder that the proposed one is in.
    ExampleDialog(const SimulationExample &example, const QString &location,
                  QWidget *parent = nullptr);

    QString folder() const;

private:
    void browse();
    void check();

    const SimulationExample m_example;
    QLineEdit *m_folder;
    QLabel *m_hint;
    QPushButton *m_ok;
};

} // namespace Workbench
