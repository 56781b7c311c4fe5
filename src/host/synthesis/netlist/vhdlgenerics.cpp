#include "vhdlgenerics.h"

#include "library.h"
#include "vhdltext.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <optional>

namespace Synthesis
{

namespace
{

constexpr GenericKind allKinds[] = {GenericKind::Bit, GenericKind::Vector, GenericKind::Integer,
                                    GenericKind::Text};

std::optional<qint64> integerOf(const QByteArray &bits)
{
    if (bits.isEmpty() || bits.size() > 32 ||
        !std::all_of(bits.begin(), bits.end(), [](char c) { return c == '0' || c == '1'; }))
        return {};
    qint64 value = 0;
    for (const char bit : bits)
        value = 2 * value + (bit == '1');
    if (bits.size() == 32 && bits.at(0) == '1')
        value -= qint64(1) << 32;
    // The least integer of all has no place in the range that the language guarantees.
    return value == -(qint64(1) << 31) ? std::optional<qint64>() : value;
}

QByteArray bitsOfText(const QByteArray &text)
{
    QByteArray bits;
    for (const char c : text)
        bits += QByteArray::number(int(uchar(c)), 2).rightJustified(8, '0');
    return bits;
}

// What all values of a generic have in common.
struct Values {
    bool areTexts = true;
    bool areIntegers = true;

    void add(const ParameterValue &value)
    {
        areTexts = areTexts && value.bits.isEmpty();
        areIntegers = areIntegers && value.bits.size() == 32 && integerOf(value.bits);
    }
    GenericKind kind() const
    {
        return areTexts      ? GenericKind::Text
               : areIntegers ? GenericKind::Integer
                             : GenericKind::Vector;
    }
};

} // namespace

QByteArray typeNameOf(GenericKind kind)
{
    switch (kind) {
    case GenericKind::Bit:
        return "std_logic";
    case GenericKind::Vector:
        return "std_logic_vector";
    case GenericKind::Integer:
        return "integer";
    case GenericKind::Text:
        return "string";
    }
    Q_UNREACHABLE();
}

QByteArray genericLiteral(GenericKind kind, const ParameterValue &value)
{
    const QByteArray bits = value.bits.isEmpty() ? bitsOfText(value.text) : value.bits;
    switch (kind) {
    case GenericKind::Bit:
        return VhdlText::literal(bits.isEmpty() ? 'x' : bits.back());
    case GenericKind::Vector:
        return VhdlText::vectorLiteral(bits);
    case GenericKind::Integer:
        return QByteArray::number(integerOf(bits).value_or(0));
    case GenericKind::Text:
        return VhdlText::textLiteral(value.text);
    }
    Q_UNREACHABLE();
}

QHash<QByteArray, GenericKind> declaredGenerics(const QByteArray &text)
{
    static const QRegularExpression clause(QStringLiteral("\\bgeneric \\(\\n(.*?)\\n    \\);"),
                                           QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression line(QStringLiteral("^ *(\\w+(?:, \\w+)*) : (\\w+)"),
                                         QRegularExpression::MultilineOption);
    QHash<QByteArray, GenericKind> kinds;
    auto match = line.globalMatch(clause.match(QString::fromLatin1(text)).captured(1));
    while (match.hasNext()) {
        const auto declaration = match.next();
        const QByteArray type = declaration.captured(2).toLatin1();
        const auto kind =
            std::find_if(std::begin(allKinds), std::end(allKinds),
                         [&](GenericKind candidate) { return typeNameOf(candidate) == type; });
        if (kind == std::end(allKinds))
            continue;
        const QStringList names = declaration.captured(1).split(QLatin1String(", "));
        for (const QString &name : names)
            kinds.insert(name.toLatin1(), *kind);
    }
    return kinds;
}

VhdlGenerics::VhdlGenerics(const QVector<Design::Cell> &cells, const QVector<BlackBox> &blackBoxes)
{
    QHash<QPair<QByteArray, QByteArray>, Values> values;
    QSet<QByteArray> known;
    for (const BlackBox &box : blackBoxes) {
        known.insert(box.name);
        for (const BlackBox::Parameter &parameter : box.parameters) {
            Values &all = values[{box.name, parameter.name}];
            if (parameter.isDeclared)
                all.add(parameter.value);
        }
    }
    const QSet<QByteArray> boxes = known;
    for (const Design::Cell &cell : cells) {
        if (boxes.contains(cell.type)) {
            for (const Design::Parameter &parameter : cell.parameters)
                values[{cell.type, parameter.name}].add(parameter.value);
        } else if (!known.contains(cell.type)) {
            known.insert(cell.type);
            const QHash<QByteArray, GenericKind> declared =
                declaredGenerics(Library::vhdlModel(cell.type));
            for (auto it = declared.begin(); it != declared.end(); ++it)
                m_kinds.insert({cell.type, it.key()}, it.value());
        }
    }
    for (auto it = values.begin(); it != values.end(); ++it)
        m_kinds.insert(it.key(), it.value().kind());
}

GenericKind VhdlGenerics::kindOf(const QByteArray &cellType, const QByteArray &generic) const
{
    return m_kinds.value({cellType, generic}, GenericKind::Vector);
}

} // namespace Synthesis
