#include "diagrampicture.h"

#include "config/latin1literal.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace TARVOORIXM1
{

namespace
{

using Draw = std::function<void(QPainter *, const QRectF &)>;

bool writeSvg(QIODevice *device, const QSize &size, const Draw &draw)
{
    QSvgGenerator generator;
    generator.setOutputDevice(device);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    draw(&painter, QRectF(QPointF(0, 0), size));
    return painter.end();
}

bool writePng(QIODevice *device, const QSize &size, const Draw &draw)
{
    constexpr int scale = 2;
    QImage image(size * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw(&painter, QRectF(QPointF(0, 0), size * scale));
    painter.end();
    return image.save(device, "PNG");
}

bool writePdf(QIODevice *device, const QSize &size, const Draw &draw)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    constexpr int unitsPerInch = 72;
    constexpr int dotsPerUnit = 10;
    writer.setResolution(unitsPerInch * dotsPerUnit);
    writer.setPageSize(QPageSize(QSizeF(size), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    painter.scale(dotsPerUnit, dotsPerUnit);
    draw(&painter, QRectF(QPointF(0, 0), size));
    if (!painter.end())
        return false;

    // The same drawing makes the same file. Digits stay digits, so that no offset changes.
    const QByteArray dateKey("/CreationDate (D:");
    const int from = bytes.indexOf(dateKey);
    for (int i = from + dateKey.size(); from >= 0 && i < bytes.size() && bytes.at(i) != ')'; ++i) {
        if (bytes.at(i) >= '0' && bytes.at(i) <= '9')
            bytes[i] = '0';
    }
    return device->write(bytes) == bytes.size();
}

// The reason of a failure, or empty. A short write leaves none; what is left over of it then does.
QString save(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 step = file.write(bytes.constData() + written, bytes.size() - written);
        if (step <= 0)
            return file.errorString();
        written += step;
    }
    // Its end takes a disk that does not keep the bytes for a success.
    if (::fsync(file.handle()) != 0)
        return QString::fromLocal8Bit(std::strerror(errno));
    return file.commit() ? QString() : file.errorString();
}

struct FormatRow {
    QLatin1String ending;
    bool (*write)(QIODevice *, const QSize &, const Draw &);
};

constexpr FormatRow formats[] = {
    {"svg"_l1, writeSvg},
    {"png"_l1, writePng},
    {"pdf"_l1, writePdf},
};

} // namespace

bool writePicture(const QString &path, const QSize &size, const Draw &draw, QString *error)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    for (const FormatRow &format : formats) {
        if (ending != format.ending)
            continue;
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QString reason = QStringLiteral("it cannot be drawn");
        if (format.write(&buffer, size, draw)) {
            reason = save(path, bytes);
            if (reason.isEmpty())
                return true;
        }
        *error = QStringLiteral("The picture \"") + QDir::toNativeSeparators(path) +
                 QStringLiteral("\" cannot be written: ") + reason;
        return false;
    }
    *error = QStringLiteral("The picture \"") + QDir::toNativeSeparators(path) +
             QStringLiteral("\" cannot be written: its name has to end in .svg, .png or .pdf");
    return false;
}

} // namespace TARVOORIXM1
