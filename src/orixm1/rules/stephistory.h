#pragma once

#include "config/optionmap.h"

#include <QString>
#include <QVector>

#include <optional>

namespace TARVOORIXM1
{

// How a configuration came to what it is: the one that it began with, the steps from one
// to the next, and how many of them count now. Holds of each step only what it changed, some
// hundred bytes, so that it need not forget any.
class StepHistory
{
public:
    // Begins anew with this configuration, without a step.
    void restart(const OptionMap &start);

    // The configuration has become `now`: a step, after those that count; undone ones are
    // forgotten. False, and no step, if nothing has changed: values that a file holds alike, such
    // as true and "true", are the same.
    bool accept(const OptionMap &now);

    // Lets the first `count` steps count, from 0 to stepCount(). False otherwise.
    bool goTo(int count);

    const OptionMap &current() const { return m_current; }
    int stepCount() const { return m_steps.size(); }
    // How many steps count now.
    int currentStep() const { return m_position; }
    // Of a step from 0 to stepCount() - 1: see stepName().
    QString name(int step) const { return m_steps.at(step).name; }

private:
    // Nothing stands for an absent key.
    struct Change {
        QString key;
        std::optional<QVariant> before;
        std::optional<QVariant> after;
    };
    struct Step {
        QString name;
        QVector<Change> changes;
    };

    static QVector<Change> changesBetween(const OptionMap &before, const OptionMap &after);
    void set(const QString &key, const std::optional<QVariant> &value);

    OptionMap m_current;
    QVector<Step> m_steps;
    int m_position = 0;
};

} // namespace TARVOORIXM1
