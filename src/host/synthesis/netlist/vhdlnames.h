#pragma once

#include "design.h"

#include <QByteArrayList>
#include <QSet>

namespace Synthesis
{

// `name` as it stands in a VHDL text: as it is if it is a basic identifier (letters, digits and
// single underscores inside, beginning with a letter, and no reserved word of any edition),
// otherwise as an extended identifier, "\name\".
QByteArray vhdlName(const QByteArray &name);

// Names of one declarative region. Basic identifiers differ in more than letter case.
class VhdlNames
{
public:
    // Takes identifiers out, in the form that they have in the text.
    void reserve(const QByteArrayList &identifiers);
    // A name for `wanted` that nothing else has: its basic identifier if that is free, else an
    // extended one, with a number where that is taken too.
    QByteArray add(const QByteArray &wanted);
    // A name whose basic identifier is `stem` and a number.
    QByteArray addNumbered(const QByteArray &stem);

private:
    bool take(const QByteArray &identifier);

    QSet<QByteArray> m_taken; // basic identifiers in lower case
    int m_number = 0;
};

// What our texts refer to without declaring it.
const QByteArrayList &vhdlPredefined();

// The names of a module's ports: each in its own form, two that only letter case tells apart as
// extended ones.
QByteArrayList vhdlPortNames(const QVector<Port> &ports);

} // namespace Synthesis
