#pragma once

#include "designports.h"

#include <QHash>
#include <QPair>

namespace Synthesis
{

// What a generic is made of.
enum class GenericKind { Bit, Vector, Integer, Text };

// The name of the type in a declaration; of vectors without a range.
QByteArray typeNameOf(GenericKind kind);

// `value` as a generic of this kind.
QByteArray genericLiteral(GenericKind kind, const ParameterValue &value);

// The generics that the text of an entity or component declares, by name. One of a type that is no
// kind is left out.
QHash<QByteArray, GenericKind> declaredGenerics(const QByteArray &text);

// The kinds of the generics of a netlist's cells: of a primitive as the library declares them; of a
// black box one that fits the default and the values of all instances.
class VhdlGenerics
{
public:
    VhdlGenerics(const QVector<Design::Cell> &cells, const QVector<BlackBox> &blackBoxes);

    GenericKind kindOf(const QByteArray &cellType, const QByteArray &generic) const;

private:
    QHash<QPair<QByteArray, QByteArray>, GenericKind> m_kinds; // by cell type and generic
};

} // namespace Synthesis
