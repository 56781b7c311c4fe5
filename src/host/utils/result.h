#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace Utils
{

// Why there is no result: a sentence, or a clause for the caller's sentence.
struct Failure {
    QString reason;
};

// A value, or the reason why there is none.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_value(std::move(value))
    {
    }
    Result(Failure failure)
        : m_reason(std::move(failure.reason))
    {
    }

    explicit operator bool() const { return m_value.has_value(); }
    // Only where there is a value.
    T &operator*() { return *m_value; }
    const T &operator*() const { return *m_value; }
    T *operator->() { return &*m_value; }
    const T *operator->() const { return &*m_value; }
    // Empty where there is a value.
    const QString &reason() const { return m_reason; }

private:
    std::optional<T> m_value;
    QString m_reason;
};

// Success without a value, or the reason why not.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Failure failure)
        : m_reason(std::move(failure.reason))
    {
    }

    explicit operator bool() const { return !m_reason; }
    // Empty after a success.
    QString reason() const { return m_reason.value_or(QString()); }

private:
    std::optional<QString> m_reason;
};

} // namespace Utils
