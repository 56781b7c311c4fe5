#pragma once

#include <QByteArray>
#include <QString>

namespace Reading
{

// A place where a text is not JSON.
struct JsonMistake {
    int offset = -1; // in bytes; -1 when there is none
    QString reason;  // a clause without a full stop
};

// Finds the first mistake of a JSON text (RFC 8259, with or without a byte order mark). Qt's parser
// tells no more than that there is one: its offset is often a token or a line further on.
JsonMistake findJsonMistake(const QByteArray &text);

} // namespace Reading
