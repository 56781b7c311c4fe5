#include <synthesis/netlist/library.h>
#include <synthesis/netlist/vhdlgenerics.h>
#include <synthesis/netlist/vhdloutputs.h>
#include <testsupport.h>

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <functional>

using namespace Synthesis;

namespace
{

// Calls for each place where the pattern, which sees lines, fits.
void forEach(const char *pattern, const QByteArray &text,
             const std::function<void(const QRegularExpressionMatch &)> &call)
{
    const QRegularExpression expression(QString(QLatin1String(pattern)),
                                        QRegularExpression::MultilineOption |
                                            QRegularExpression::DotMatchesEverythingOption);
    QVERIFY(expression.isValid());
    for (auto it = expression.globalMatch(QString::fromLatin1(text)); it.hasNext();)
        call(it.next());
}

// What a cell looks like from outside, one line for each port and generic, in the order of the
// text: "in WADDR 13:0", "generic RD_WIDTH integer 32".

QString line(const QString &what, const QString &name, const QString &range)
{
    return QStringList{what, name, range.isEmpty() ? QStringLiteral("bit") : range}.join(u' ');
}

QStringList verilogInterface(const QByteArray &module)
{
    QStringList lines;
    // "{64{256'bx}}", "1'b0", "2'h0": all bits are the same.
    forEach(R"(parameter (?:\[(\d+:\d+)\] )?(\w+) = ([^,\n]*?)(?=,|\n\)|\)\s))", module,
            [&](const auto &match) {
                const QString range = match.captured(1);
                const QString value = match.captured(3);
                const QString type = range.isNull()                   ? QStringLiteral("integer")
                                     : range == QStringLiteral("0:0") ? QStringLiteral("bit")
                                                                      : range;
                lines << line(QStringLiteral("generic"), match.captured(2), type) + u' ' +
                             (range.isNull()         ? value
                              : value.contains(u'x') ? QStringLiteral("X")
                                                     : QStringLiteral("0"));
            });
    forEach(R"(\b(input|output) (?:reg )?(?:\[(\d+:\d+)\] )?(\w+)(?=,|\)|\n))",
            module.left(module.indexOf(");\n") + 1), [&](const auto &match) {
                lines << line(match.captured(1).chopped(3), match.captured(3), match.captured(2));
            });
    return lines;
}

QString rangeOf(const QString &type)
{
    static const QRegularExpression range(
        QStringLiteral("std_logic_vector\\((\\d+) downto (\\d+)\\)"));
    const auto match = range.match(type);
    return match.hasMatch() ? match.captured(1) + u':' + match.captured(2) : QString();
}

QStringList vhdlInterface(const QByteArray &component)
{
    QStringList lines;
    forEach(R"(^ +([\w, ]+) : ([^;\n]*?) := ([^;\n]*))", component, [&](const auto &match) {
        const QString type = match.captured(2);
        const QString value = match.captured(3);
        const QStringList names = match.captured(1).split(QStringLiteral(", "));
        for (const QString &name : names)
            lines << line(QStringLiteral("generic"), name,
                          type == QStringLiteral("integer") ? type : rangeOf(type)) +
                         u' ' +
                         (type == QStringLiteral("integer") ? value
                          : value.contains(u'X')            ? QStringLiteral("X")
                                                            : QStringLiteral("0"));
    });
    forEach(R"(^ +([\w, ]+) : (in|out) ([^;\n]*))", component, [&](const auto &match) {
        const QStringList names = match.captured(1).split(QStringLiteral(", "));
        for (const QString &name : names)
            lines << line(match.captured(2), name, rangeOf(match.captured(3)));
    });
    return lines;
}

void addPrimitives()
{
    QTest::addColumn<QByteArray>("primitive");
    const QByteArrayList primitives = Library::primitives();
    QVERIFY(primitives.size() > 20);
    for (const QByteArray &primitive : primitives)
        QTest::newRow(primitive.constData()) << primitive;
}

} // namespace

class tst_Library : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCellIsTheSameInBothLanguages_data() { addPrimitives(); }
    void aCellIsTheSameInBothLanguages();
    void kindsOfGenericsComeFromTheText_data();
    void kindsOfGenericsComeFromTheText();
    void instancesHaveGenericsAsTheLibraryDeclaresThem_data() { addPrimitives(); }
    void instancesHaveGenericsAsTheLibraryDeclaresThem();
};

void tst_Library::aCellIsTheSameInBothLanguages()
{
    QFETCH(QByteArray, primitive);
    const QByteArray text = Library::model(primitive);
    const QStringList verilog = verilogInterface(text.mid(text.indexOf("\nmodule ")));
    const QStringList vhdl = vhdlInterface(Library::vhdlComponent(primitive));
    QVERIFY(vhdl.size() >= 2);
    // Lists of generics and ports may be parted otherwise, but not be in another order.
    const auto generics = [](const QStringList &lines) {
        return lines.filter(QRegularExpression(QStringLiteral("^generic ")));
    };
    const auto ports = [](const QStringList &lines) {
        return lines.filter(QRegularExpression(QStringLiteral("^(in|out) ")));
    };
    QCOMPARE(generics(vhdl), generics(verilog));
    QCOMPARE(ports(vhdl), ports(verilog));
    QCOMPARE(generics(vhdl).size() + ports(vhdl).size(), vhdl.size());
}

void tst_Library::kindsOfGenericsComeFromTheText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("generic");
    QTest::addColumn<int>("kind"); // -1: none
    const auto row = [](const char *name, const QByteArray &text, const char *generic, int kind) {
        QTest::newRow(name) << text << QByteArray(generic) << kind;
    };
    const QByteArray ram = Library::vhdlModel("TV_RAMB_SDP");
    const auto changed = [&](const char *before, const char *after) {
        QByteArray text = ram;
        return text.contains(before) ? text.replace(before, after) : QByteArray();
    };
    const int bit = int(GenericKind::Bit);
    const int vector = int(GenericKind::Vector);
    const int integer = int(GenericKind::Integer);
    row("bit", ram, "RD_NEG", bit);
    row("vector", ram, "INIT", vector);
    row("integer", ram, "RD_WIDTH", integer);
    row("last of the list", ram, "WR_NEG", bit);
    row("bit that became an integer", changed("RD_NEG : std_logic := '0'", "RD_NEG : integer := 0"),
        "RD_NEG", integer);
    row("integer that became a vector",
        changed("RD_WIDTH : integer := 32",
                "RD_WIDTH : std_logic_vector(5 downto 0) := \"100000\""),
        "RD_WIDTH", vector);
    row("vector that became a text",
        changed("INIT : std_logic_vector(16383 downto 0)", "INIT : string"), "INIT",
        int(GenericKind::Text));
    row("of several in a line", Library::vhdlModel("TV_RAMB_TDP"), "B_WIDTH", integer);
    row("another type", changed("RD_NEG : std_logic := '0'", "RD_NEG : boolean := false"), "RD_NEG",
        -1);
    row("port", ram, "RADDR", -1);
    row("cell without generics", Library::vhdlModel("TV_TBUF"), "O", -1);
    row("component", Library::vhdlComponent("TV_RAMD"), "NEG", bit);
    row("no text", {}, "NEG", -1);
}

void tst_Library::kindsOfGenericsComeFromTheText()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, generic);
    QFETCH(int, kind);
    const QHash<QByteArray, GenericKind> kinds = declaredGenerics(text);
    QCOMPARE(kinds.contains(generic) ? int(kinds.value(generic)) : -1, kind);
}

void tst_Library::instancesHaveGenericsAsTheLibraryDeclaresThem()
{
    QFETCH(QByteArray, primitive);
    QByteArrayList parameters;
    QByteArrayList expected;
    const QStringList lines = vhdlInterface(Library::vhdlComponent(primitive));
    for (const QString &declared : lines) {
        const QStringList words = declared.split(u' ');
        if (words.at(0) != QStringLiteral("generic"))
            continue;
        const QByteArray name = words.at(1).toLatin1();
        parameters << '"' + name + "\": \"00000001\"";
        expected << name + " => " +
                        (words.at(2) == QStringLiteral("integer") ? "1"
                         : words.at(2) == QStringLiteral("bit")   ? "'1'"
                                                                  : "X\"01\"");
    }
    std::sort(expected.begin(), expected.end());
    const QByteArray design = R"({"modules": {"top": {"cells": {"u": {"type": ")" + primitive +
                              R"(", "parameters": {)" + parameters.join(", ") + "}}}}}}";
    VhdlNetlist netlist;
    QCOMPARE(vhdlNetlist("t", design, "top", {}, {}, &netlist), QString());
    const QByteArray text = netlist.netlist;
    const QByteArray instance = text.mid(text.indexOf("    u : " + primitive + '\n'));
    QByteArrayList written;
    forEach(R"(^ +(\w+ => [^,\n]*))", instance,
            [&](const auto &match) { written << match.captured(1).toLatin1(); });
    QCOMPARE(written, expected);
}

TARVO_TEST_MAIN(QCoreApplication, tst_Library)

#include "tst_library.moc"
