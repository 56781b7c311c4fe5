#pragma once

#include <QMetaObject>
#include <QMutex>
#include <QMutexLocker>
#include <QObject>
#include <QThreadPool>

#include <memory>

namespace Workbench
{

// Work that would keep the window waiting, done in another thread; one piece of it at a time.
//
// What was started ends even if nobody wants its result any more, and the program waits for it when
// it ends.
class Background : public QObject
{
public:
    explicit Background(QObject *parent = nullptr)
        : QObject(parent)
    {
    }
    ~Background() override { drop(); }

    // Calls `work` elsewhere, which must take along all that it needs, and then `done` with its
    // result in this object's thread, from the event loop. What was started before is dropped.
    template <typename Work, typename Done>
    void start(Work work, Done done)
    {
        drop();
        auto link = std::make_shared<Link>();
        link->owner = this;
        m_link = link;
        QThreadPool::globalInstance()->start([link, work, done] {
            const auto result = std::make_shared<decltype(work())>(work());
            const QMutexLocker locker(&link->mutex);
            if (!link->owner)
                return;
            const auto deliver = [link, result, done] {
                Background *owner = link->owner; // only changes in this thread
                if (!owner)
                    return;
                owner->drop();
                done(*result);
            };
            QMetaObject::invokeMethod(link->owner, deliver, Qt::QueuedConnection);
        });
    }
    // Nobody waits for the result any more.
    void drop()
    {
        const std::shared_ptr<Link> link = std::move(m_link);
        m_link.reset();
        if (!link)
            return;
        const QMutexLocker locker(&link->mutex);
        link->owner = nullptr;
    }
    bool isBusy() const { return m_link != nullptr; }

private:
    struct Link {
        QMutex mutex;
        Background *owner = nullptr;
    };

    std::shared_ptr<Link> m_link;
};

} // namespace Workbench
