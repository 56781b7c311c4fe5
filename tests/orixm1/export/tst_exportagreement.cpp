// The register description and the device header say the same: what a compiled program finds of the
// header is what the description holds.

#include "agreement.h"

#include <export/header.h>
#include <export/svd.h>

using namespace TARVOORIXM1;

class tst_ExportAgreement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void headerAndDescriptionSayTheSame_data() { SoftwareView::addCases(); }
    void headerAndDescriptionSayTheSame();
    void differencesAreFound();

private:
    QTemporaryDir m_folder;
    QString m_ownData;
};

void tst_ExportAgreement::initTestCase()
{
    QString error;
    m_ownData = SoftwareView::ownDataFolder(m_folder, &error);
    QVERIFY2(error.isEmpty() && !m_ownData.isEmpty(), qPrintable(error));
}

void tst_ExportAgreement::headerAndDescriptionSayTheSame()
{
    QFETCH(int, index);
    const SoftwareView::Case one = SoftwareView::cases().at(index);
    QString error;
    const SystemMap map = SoftwareView::mapOf(
        one, one.hasOwnData ? m_ownData : QStringLiteral(TARVO_IP_DATA_DIR), &error);
    QCOMPARE(error, QString());
    QCOMPARE(Agreement::disagreements(svdFiles(map).first().bytes, headerFiles(map).first().bytes,
                                      !one.hasOwnData),
             QStringList());
}

// A comparison that finds nothing would be no use.
void tst_ExportAgreement::differencesAreFound()
{
    QString error;
    const SystemMap map =
        SoftwareView::mapOf(SoftwareView::cases().at(1), QStringLiteral(TARVO_IP_DATA_DIR), &error);
    const QByteArray description = svdFiles(map).first().bytes;
    const QByteArray header = headerFiles(map).first().bytes;
    for (const char *change :
         {"0x50004000", "<addressOffset>0x0000000C", "<bitRange>[1:1]", "<endian>big",
          "<resetValue>0x00000063", "<name>EXTGATE", "<value>12", "<name>UART1</name>"}) {
        QByteArray changed = description;
        const int at = changed.indexOf(change);
        QVERIFY2(at >= 0, change);
        QByteArray other = change;
        other[other.size() - 1] = other.endsWith('0') ? '4' : other.endsWith(']') ? ' ' : '0';
        changed.replace(at, other.size(), other);
        QVERIFY2(!Agreement::disagreements(changed, header).isEmpty(), change);
    }
}

QTEST_GUILESS_MAIN(tst_ExportAgreement)
#include "tst_exportagreement.moc"
