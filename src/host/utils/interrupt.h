#pragma once

#include "utils_global.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace Utils
{

// Turns SIGINT and SIGTERM into a Qt signal while it lives; a second one ends the program at once.
// One object at a time.
class TARVO_UTILS_EXPORT Interrupt : public QObject
{
    Q_OBJECT

public:
    explicit Interrupt(QObject *parent = nullptr);
    ~Interrupt() override;

    // From now on the end of this process's parent is a SIGTERM. False if the process with the
    // number `owner`, on whose behalf the parent works, is gone already.
    static bool followParent(qint64 owner);

Q_SIGNALS:
    void received();

private:
    void onWoken();

    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Utils
