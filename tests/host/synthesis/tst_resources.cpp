#include <synthesis/netlist/library.h>
#include <synthesis/resources.h>
#include <testsupport.h>

#include <QtTest>

using namespace Synthesis;

namespace
{

struct Row {
    const char *primitive;
    const char *resource;
    int each; // what one instance takes
};

constexpr Row expected[] = {
    {"TV_LUT1", "LUT4", 1},
    {"TV_LUT2", "LUT4", 1},
    {"TV_LUT3", "LUT4", 1},
    {"TV_LUT4", "LUT4", 1},
    {"TV_CARRY", "Carry", 1},
    {"TV_DFF", "Flip-flops", 1},
    {"TV_DFFE", "Flip-flops", 1},
    {"TV_DFFR", "Flip-flops", 1},
    {"TV_DFFRE", "Flip-flops", 1},
    {"TV_DFFS", "Flip-flops", 1},
    {"TV_DFFSE", "Flip-flops", 1},
    {"TV_DFFC", "Flip-flops", 1},
    {"TV_DFFCE", "Flip-flops", 1},
    {"TV_DFFP", "Flip-flops", 1},
    {"TV_DFFPE", "Flip-flops", 1},
    {"TV_DFFCP", "Flip-flops", 1},
    {"TV_DFFCPE", "Flip-flops", 1},
    {"TV_DL", "Flip-flops", 1},
    {"TV_TBUF", "Tri-state drivers", 1},
    {"TV_RAMD", "LUT4", 4},
    {"TV_RAMB_SDP", "Block RAM", 1},
    {"TV_RAMB_TDP", "Block RAM", 1},
};

// "3 LUT4" and so on, of what is used.
QStringList usedBy(const QMap<QByteArray, int> &instances)
{
    QStringList result;
    for (const ResourceUse &use : resourceUse(instances, {})) {
        if (use.used != 0)
            result << QString::number(use.used) + u' ' + use.resource;
    }
    return result;
}

} // namespace

class tst_Resources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPrimitiveHasARow();
    void everyPrimitiveIsCounted_data();
    void everyPrimitiveIsCounted();
    void whatIsNoPrimitiveIsNotCounted();
};

// A new primitive needs a row above, and no row is of a primitive that is gone.
void tst_Resources::everyPrimitiveHasARow()
{
    QByteArrayList rows;
    for (const Row &row : expected)
        rows << row.primitive;
    QCOMPARE(rows, Library::primitives());
}

void tst_Resources::everyPrimitiveIsCounted_data()
{
    QTest::addColumn<int>("row");
    for (const Row &row : expected)
        QTest::newRow(row.primitive) << int(&row - expected);
}

void tst_Resources::everyPrimitiveIsCounted()
{
    QFETCH(int, row);
    const Row &shall = expected[row];
    QCOMPARE(usedBy({{shall.primitive, 3}}),
             QStringList(QString::number(3 * shall.each) + u' ' + QLatin1String(shall.resource)));
    // Beside another one.
    const QMap<QByteArray, int> both{{shall.primitive, 1}, {"TV_CARRY", 1}};
    QCOMPARE(usedBy(both).size(), qstrcmp(shall.resource, "Carry") == 0 ? 1 : 2);
}

void tst_Resources::whatIsNoPrimitiveIsNotCounted()
{
    QCOMPARE(usedBy({}), QStringList());
    QCOMPARE(usedBy({{"analog", 7}, {"LUT4", 1}, {"TV_CARRY2", 1}, {"XTV_LUT4", 1}, {"", 1}}),
             QStringList());
    // All resources have their place all the same.
    QStringList names;
    for (const ResourceUse &use : resourceUse({}, {}))
        names << use.resource;
    QCOMPARE(names, QStringList({QStringLiteral("LUT4"), QStringLiteral("Flip-flops"),
                                 QStringLiteral("Carry"), QStringLiteral("Tri-state drivers"),
                                 QStringLiteral("Block RAM")}));
}

TARVO_TEST_MAIN(QCoreApplication, tst_Resources)

#include "tst_resources.moc"
