#pragma once

#include <QMetaObject>
#include <QMutex>
#include <QMutexLocker>
#include <QObject>
#include <QThreadPool>
#include <QWaitCondition>

#include <functional>
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
            link->deliver = [link = link.get(), result, done] {
                Background *owner = link->owner; // only changes in this thread
                if (!owner)
                    return;
                owner->drop();
                done(*result);
            };
            link->ready.wakeAll();
            QMetaObject::invokeMethod(
                link->owner, [link] { deliver(link); }, Qt::QueuedConnection);
        });
    }
    // Waits for what was started and calls its `done` now.
    void finish()
    {
        const std::shared_ptr<Link> link = m_link;
        if (!link)
            return;
        {
            const QMutexLocker locker(&link->mutex);
            while (!link->deliver)
                link->ready.wait(&link->mutex);
        }
        deliver(link);
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
        QWaitCondition ready;
        Background *owner = nullptr;
        std::function<void()> deliver; // there when the work is done; empty again afterwards
    };

    static void deliver(const std::shared_ptr<Link> &link)
    {
        std::function<void()> deed;
        {
            const QMutexLocker locker(&link->mutex);
            deed.swap(link->deliver);
        }
        if (deed)
            deed();
    }

    std::shared_ptr<Link> m_link;
};

} // namespace Workbench
