#include "stephistory.h"

#include "stepname.h"

namespace TARVOORIXM1
{

namespace
{

// Whether a file holds both alike.
bool isSame(const QVariant &a, const QVariant &b)
{
    return a == b && a.toString() == b.toString();
}

} // namespace

void StepHistory::restart(const OptionMap &start)
{
    m_current = start;
    m_steps.clear();
    m_position = 0;
}

QVector<StepHistory::Change> StepHistory::changesBetween(const OptionMap &before,
                                                         const OptionMap &after)
{
    QVector<Change> changes;
    auto old = before.cbegin();
    auto now = after.cbegin();
    while (old != before.cend() || now != after.cend()) {
        const bool hasOld = old != before.cend();
        const bool hasNow = now != after.cend();
        if (hasOld && (!hasNow || old.key() < now.key())) {
            changes.append({old.key(), *old, std::nullopt});
            ++old;
        } else if (hasNow && (!hasOld || now.key() < old.key())) {
            changes.append({now.key(), std::nullopt, *now});
            ++now;
        } else {
            if (!isSame(*old, *now))
                changes.append({now.key(), *old, *now});
            ++old;
            ++now;
        }
    }
    return changes;
}

bool StepHistory::accept(const OptionMap &now)
{
    const QVector<Change> changes = changesBetween(m_current, now);
    if (changes.isEmpty())
        return false;
    m_steps.resize(m_position);
    m_steps.append({stepName(m_current, now), changes});
    ++m_position;
    m_current = now;
    return true;
}

void StepHistory::set(const QString &key, const std::optional<QVariant> &value)
{
    if (value)
        m_current.insert(key, *value);
    else
        m_current.remove(key);
}

bool StepHistory::goTo(int count)
{
    if (count < 0 || count > m_steps.size())
        return false;
    while (m_position > count) {
        const Step &step = m_steps.at(--m_position);
        for (const Change &change : step.changes)
            set(change.key, change.before);
    }
    while (m_position < count) {
        const Step &step = m_steps.at(m_position++);
        for (const Change &change : step.changes)
            set(change.key, change.after);
    }
    return true;
}

} // namespace TARVOORIXM1
