#pragma once

#include <array>
#include <cstddef>

namespace TARVOORIXM1
{

// A range over the rows of a constant table.
template <class Row>
class Rows
{
public:
    constexpr Rows() = default;
    template <std::size_t count>
    constexpr Rows(const Row (&rows)[count])
        : m_first(rows)
        , m_count(int(count))
    {
    }
    template <std::size_t count>
    constexpr Rows(const std::array<Row, count> &rows)
        : m_first(rows.data())
        , m_count(int(count))
    {
    }

    constexpr const Row *begin() const { return m_first; }
    constexpr const Row *end() const { return m_first + m_count; }
    constexpr int size() const { return m_count; }
    constexpr const Row &operator[](int index) const { return m_first[index]; }

private:
    const Row *m_first = nullptr;
    int m_count = 0;
};

} // namespace TARVOORIXM1
