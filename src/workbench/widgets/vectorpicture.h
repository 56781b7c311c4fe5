#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QTextObjectInterface>

#include <functional>
#include <map>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QSvgRenderer)

namespace Workbench
{

// A drawing (SVG) that comes from elsewhere: shapes and texts alone, so that rendering it reads no
// file, runs no script and takes no more time than its size allows.
class VectorPicture
{
public:
    // A failure is a clause.
    static Utils::Result<std::shared_ptr<VectorPicture>> read(const QByteArray &bytes);
    ~VectorPicture();

    // In pixels of 1/96 inch, within 1 to 10000.
    QSizeF size() const { return m_size; }
    void paint(QPainter *painter, const QRectF &place) const;

private:
    VectorPicture();

    std::unique_ptr<QSvgRenderer> m_renderer;
    QSizeF m_size;
};

// Draws the pictures of a document as the lines that they are, sharp at any scale and on paper.
// To be registered as the handler of QTextFormat::ImageObject.
class VectorPictures : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    // Gives the bytes of a picture by its name in the document; empty: there is none.
    using Source = std::function<QByteArray(const QString &name)>;

    explicit VectorPictures(const Source &source, QObject *parent = nullptr);

    // Forgets the pictures that were read.
    void clear() { m_pictures.clear(); }
    // Larger pictures are scaled down to this; in the document's own units, empty: to the width of
    // its text.
    void setRoom(const QSizeF &room) { m_room = room; }

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &place, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    const VectorPicture *picture(const QString &name);

    Source m_source;
    std::map<QString, std::shared_ptr<VectorPicture>> m_pictures; // null: cannot be shown
    QSizeF m_room;
};

} // namespace Workbench
