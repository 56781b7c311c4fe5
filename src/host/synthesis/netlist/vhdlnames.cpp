#include "vhdlnames.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <string_view>

namespace Synthesis
{

namespace
{

using namespace std::string_view_literals;

// Of the editions up to 2008.
constexpr std::array reserved{
    "abs"sv,
    "access"sv,
    "after"sv,
    "alias"sv,
    "all"sv,
    "and"sv,
    "architecture"sv,
    "array"sv,
    "assert"sv,
    "assume"sv,
    "assume_guarantee"sv,
    "attribute"sv,
    "begin"sv,
    "block"sv,
    "body"sv,
    "buffer"sv,
    "bus"sv,
    "case"sv,
    "component"sv,
    "configuration"sv,
    "constant"sv,
    "context"sv,
    "cover"sv,
    "default"sv,
    "disconnect"sv,
    "downto"sv,
    "else"sv,
    "elsif"sv,
    "end"sv,
    "entity"sv,
    "exit"sv,
    "fairness"sv,
    "file"sv,
    "for"sv,
    "force"sv,
    "function"sv,
    "generate"sv,
    "generic"sv,
    "group"sv,
    "guarded"sv,
    "if"sv,
    "impure"sv,
    "in"sv,
    "inertial"sv,
    "inout"sv,
    "is"sv,
    "label"sv,
    "library"sv,
    "linkage"sv,
    "literal"sv,
    "loop"sv,
    "map"sv,
    "mod"sv,
    "nand"sv,
    "new"sv,
    "next"sv,
    "nor"sv,
    "not"sv,
    "null"sv,
    "of"sv,
    "on"sv,
    "open"sv,
    "or"sv,
    "others"sv,
    "out"sv,
    "package"sv,
    "parameter"sv,
    "port"sv,
    "postponed"sv,
    "procedure"sv,
    "process"sv,
    "property"sv,
    "protected"sv,
    "pure"sv,
    "range"sv,
    "record"sv,
    "register"sv,
    "reject"sv,
    "release"sv,
    "rem"sv,
    "report"sv,
    "restrict"sv,
    "restrict_guarantee"sv,
    "return"sv,
    "rol"sv,
    "ror"sv,
    "select"sv,
    "sequence"sv,
    "severity"sv,
    "shared"sv,
    "signal"sv,
    "sla"sv,
    "sll"sv,
    "sra"sv,
    "srl"sv,
    "strong"sv,
    "subtype"sv,
    "then"sv,
    "to"sv,
    "transport"sv,
    "type"sv,
    "unaffected"sv,
    "units"sv,
    "until"sv,
    "use"sv,
    "variable"sv,
    "vmode"sv,
    "vprop"sv,
    "vunit"sv,
    "wait"sv,
    "when"sv,
    "while"sv,
    "with"sv,
    "xnor"sv,
    "xor"sv,
};

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isBasic(const QByteArray &name)
{
    if (name.isEmpty() || !isLetter(name.at(0)) || name.endsWith('_') || name.contains("__"))
        return false;
    const bool plain = std::all_of(name.begin(), name.end(), [](char c) {
        return isLetter(c) || (c >= '0' && c <= '9') || c == '_';
    });
    const QByteArray lower = name.toLower();
    return plain && std::find(reserved.begin(), reserved.end(),
                              std::string_view(lower.constData(), std::size_t(lower.size()))) ==
                        reserved.end();
}

// Only graphic characters of ASCII stand in the text, so that it has no encoding.
QByteArray extended(QByteArray name)
{
    for (char &c : name) {
        if (c < ' ' || c > '~')
            c = '_';
    }
    return '\\' + name.replace('\\', "\\\\") + '\\';
}

} // namespace

QByteArray vhdlName(const QByteArray &name)
{
    return isBasic(name) ? name : extended(name);
}

void VhdlNames::reserve(const QByteArrayList &identifiers)
{
    for (const QByteArray &identifier : identifiers)
        take(identifier);
}

bool VhdlNames::take(const QByteArray &identifier)
{
    const QByteArray key = identifier.startsWith('\\') ? identifier : identifier.toLower();
    if (m_taken.contains(key))
        return false;
    m_taken.insert(key);
    return true;
}

QByteArray VhdlNames::add(const QByteArray &wanted)
{
    QByteArray name = vhdlName(wanted);
    if (take(name))
        return name;
    if (QByteArray other = extended(wanted); take(other))
        return other;
    for (int i = 2;; ++i) {
        QByteArray other = extended(wanted + '_' + QByteArray::number(i));
        if (take(other))
            return other;
    }
}

QByteArray VhdlNames::addNumbered(const QByteArray &stem)
{
    for (;;) {
        QByteArray name = stem + QByteArray::number(++m_number);
        if (take(name))
            return name;
    }
}

const QByteArrayList &vhdlPredefined()
{
    static const QByteArrayList names{
        "ieee",    "std",    "work",      "std_logic_1164", "std_logic",      "std_logic_vector",
        "integer", "string", "character", "netlist",        crossingAttribute};
    return names;
}

QByteArrayList vhdlPortNames(const QVector<Port> &ports)
{
    QHash<QByteArray, int> alike;
    for (const Port &port : ports)
        ++alike[port.name.toLower()];
    QByteArrayList names;
    VhdlNames region;
    region.reserve(vhdlPredefined());
    for (const Port &port : ports) {
        if (alike.value(port.name.toLower()) > 1)
            region.reserve({port.name});
        names << region.add(port.name);
    }
    return names;
}

} // namespace Synthesis
