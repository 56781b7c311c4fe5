#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

namespace Synthesis
{

// The texts that a run hands to the synthesis tool and the models of its primitives.
namespace Library
{

// A file of the library folder; it is part of the program and always there.
QByteArray file(const QString &name);

// In the order of the library.
QByteArrayList primitives();

// The Verilog text of one primitive with its comment; empty for any other name.
QByteArray model(const QByteArray &primitive);

// The VHDL text of what all models need, and of one primitive with its comment; empty for any other
// name.
QByteArray vhdlPackage();
QByteArray vhdlModel(const QByteArray &primitive);
// The declaration of a primitive as a component.
QByteArray vhdlComponent(const QByteArray &primitive);

} // namespace Library

} // namespace Synthesis
