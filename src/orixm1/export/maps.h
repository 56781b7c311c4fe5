#pragma once

#include "document.h"
#include "system/systemmap.h"

#include <QRect>
#include <QStringList>

namespace TARVOORIXM1
{

// A place in a picture that leads to where the datasheet tells more.
struct Door {
    QRect box;            // pixels of the picture
    QString text;         // what it is and where it leads, for those who do not see the picture
    QStringList headings; // of datasheetPage(), each below the one before
};

// A picture of the datasheet for the screen: in one column, for light and for dark, with a door for
// everything that it shows of the configuration.
struct DoorPicture {
    QString title; // a few words
    Document::Picture picture;
    QByteArray dark;
    QVector<Door> doors; // do not overlap
};

// The memory map with a door for each region, and the interrupts with a door for each.
QVector<DoorPicture> doorPictures(const SystemMap &map);

} // namespace TARVOORIXM1
