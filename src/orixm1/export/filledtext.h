#pragma once

#include <QString>
#include <QVector>

#include <utility>

namespace TARVOORIXM1
{

// A text with each @NAME@ of `values` replaced, in their order.
inline QString filledText(const char *text, const QVector<std::pair<QString, QString>> &values)
{
    QString filled = QString::fromUtf8(text);
    for (const auto &[name, value] : values)
        filled.replace(u'@' + name + u'@', value);
    return filled;
}

} // namespace TARVOORIXM1
