#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QString>
#include <QVector>

namespace Reading
{

// Where something stands in a text; both from 1, the column in characters.
struct TextPlace {
    int line = 1;
    int column = 1;
};

// `offset` is in bytes, at most the size of the text.
TextPlace placeIn(const QByteArray &text, int offset);

// A place where a text is not JSON.
struct JsonMistake {
    int offset = -1; // in bytes; -1 when there is none
    QString reason;  // a clause without a full stop
};

// Finds the first mistake of a JSON text (RFC 8259, with or without a byte order mark). Qt's parser
// tells no more than that there is one: its offset is often a token or a line further on.
JsonMistake findJsonMistake(const QByteArray &text);

// A JSON text as values, or the first mistake. What Qt alone refuses (a text that is not UTF-8, a
// number that is too large) has Qt's reason.
struct JsonText {
    QJsonDocument document;
    JsonMistake mistake;
};
JsonText readJson(const QByteArray &text);

// A step into a value: the name of an object's member, or the number of an array's entry.
struct JsonStep {
    JsonStep(const QString &member)
        : name(member)
    {
    }
    JsonStep(QLatin1String member)
        : name(member)
    {
    }
    JsonStep(int entry)
        : number(entry)
    {
    }

    QString name;
    int number = -1;
};
using JsonPath = QVector<JsonStep>;

// The offset in bytes of the value that the steps lead to from the whole value; where it is
// missing, that of the last one on the way. Of members with the same name the last one counts, as
// it does for Qt. The text must have been read by readJson().
int findJsonValue(const QByteArray &text, const JsonPath &path);

} // namespace Reading
