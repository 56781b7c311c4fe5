#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

namespace Synthesis
{

// The outline of a Verilog text: which modules it holds and what they instantiate.
struct VerilogOutline {
    struct Module {
        QByteArray name;
        QMap<QByteArray, int> instances; // number by module name
    };

    QVector<Module> modules;
    // The text ends where a module ended, with nothing left open.
    bool complete = false;

    bool defines(const QByteArray &module) const;
    // Over all modules.
    QMap<QByteArray, int> instances() const;
    // The instances of modules that the text does not define, or leaves empty, in the whole
    // hierarchy below `top`. Nothing, and a clause on the reason in `*mistake`, for a hierarchy
    // that contains itself or has more than 100 million of them. Takes time for the text, not for
    // the hierarchy.
    QMap<QByteArray, int> leavesOf(const QByteArray &top, QString *mistake) const;
};

// Reads netlists and models, not everything that the language allows: macros are not expanded.
// Names are without the backslash and the blank of their escaped form.
VerilogOutline scanVerilog(const QByteArray &text);

// `name` as it stands in a Verilog text, escaped where it must be.
QByteArray verilogName(const QByteArray &name);

} // namespace Synthesis
