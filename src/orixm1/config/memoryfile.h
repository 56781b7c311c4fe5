#pragma once

#include <QBitArray>
#include <QByteArray>
#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// A place in a text that holds something else than it should.
struct MemoryMistake {
    int line = 0;   // from 1
    QString reason; // a clause
};

// What a text in $readmemh form gives to a memory of bytes.
struct MemoryText {
    QBitArray given; // which bytes of the memory
    int lines = 1;   // of the text
    QVector<MemoryMistake> mistakes;

    // The lowest byte that the text gives no value; -1 if there is none.
    int firstMissing() const;
};

// Reads such a text for a memory of `size` bytes: white space, both kinds of comments, "@" with a
// hexadecimal address, and hexadecimal bytes, in which "_" may part digits. What a synthesis tool
// would skip, cut or take for "unknown" is a mistake: other characters, the digits x, z and ?, more
// than two digits, addresses and bytes that the memory has no room for. Reads to the end of the
// text or to the first byte too many.
MemoryText readMemoryText(const QByteArray &text, int size);

} // namespace TARVOORIXM1
