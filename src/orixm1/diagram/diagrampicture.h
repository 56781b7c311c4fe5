#pragma once

#include <QString>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QRectF)
QT_FORWARD_DECLARE_CLASS(QSize)

namespace TARVOORIXM1
{

// Writes a drawing of this size as a file whose format follows from its ending: .svg, .png (in
// twice the size, for print) or .pdf (one page as large as the drawing). The file appears whole or
// not at all, and holds no time. False, and a sentence in `*error`, on failure.
bool writePicture(const QString &path, const QSize &size,
                  const std::function<void(QPainter *, const QRectF &target)> &draw,
                  QString *error);

} // namespace TARVOORIXM1
