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

} // namespace Library

} // namespace Synthesis
