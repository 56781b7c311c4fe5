#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace Workbench
{

// Turns SIGINT and SIGTERM into a Qt signal while it lives; a second one ends the program at once.
// One object at a time.
class Interrupt : public QObject
{
    Q_OBJECT

public:
    explicit Interrupt(QObject *parent = nullptr);
    ~Interrupt() override;

Q_SIGNALS:
    void received();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Workbench
