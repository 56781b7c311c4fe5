#pragma once

#include <QMetaType>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace Workbench
{

class VectorPicture;

// A place in a picture that leads into a document of the hand-off.
struct MapDoor {
    QRect box;            // units of the picture
    QString text;         // what it is and where it leads
    QString document;     // path among the files that are handed on
    QStringList headings; // of it, each below the one before
};

// A picture of what a configuration makes.
struct MapPicture {
    QString title; // a few words
    QString text;  // what it shows, a sentence
    std::shared_ptr<const VectorPicture> light;
    std::shared_ptr<const VectorPicture> dark; // null: there is none for dark windows
    QVector<MapDoor> doors;                    // do not overlap
};

} // namespace Workbench

Q_DECLARE_METATYPE(Workbench::MapDoor)
