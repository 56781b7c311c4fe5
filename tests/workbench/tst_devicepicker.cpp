#include <testsupport.h>

#include <workbench/devices/devicepicker.h>

#include <core/idecore.h>
#include <dev/devicedb.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QtTest>

using namespace Workbench;

class TestDevicePicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelHoldsTheWholeDatabase()
    {
        const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
        DeviceModel model(devices);
        const QAbstractItemModelTester tester(&model);
        QCOMPARE(model.rowCount(), devices.size());
        const DEV::DeviceArg device = devices.at(7);
        QCOMPARE(model.deviceAt(7), device);
        QCOMPARE(model.rowOf(device.id()), 7);
        QCOMPARE(model.index(7, DeviceModel::Series).data().toString(), device.series());
        QCOMPARE(model.index(7, DeviceModel::PartNumber).data().toString(), device.partNumber());
        QVERIFY(model.deviceAt(-1).isNull());
    }

    void filterTakesEveryWordFromAnyColumn_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("series");
        QTest::addColumn<QString>("package");
        QTest::newRow("nothing") << QString() << QString() << QString();
        QTest::newRow("series in lower case")
            << QStringLiteral("tv2kr-") << QStringLiteral("TV2KR") << QString();
        QTest::newRow("two words in any order")
            << QStringLiteral(" qfn88p  tv2kr-18c") << QStringLiteral("TV2KR") << QString();
        QTest::newRow("package") << QStringLiteral("eLQFP144PF") << QString()
                                 << QStringLiteral("eLQFP144PF");
    }

    void filterTakesEveryWordFromAnyColumn()
    {
        QFETCH(QString, text);
        QFETCH(QString, series);
        QFETCH(QString, package);
        DeviceModel model(DEV::DeviceDb::bundled().devices());
        DeviceFilter filter;
        filter.setSourceModel(&model);
        filter.setText(text);
        QVERIFY(filter.rowCount() > 0);
        // The same question, asked in plain words of the database.
        int expected = 0;
        for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
            bool all = true;
            for (const QString &word : text.simplified().split(u' ', Qt::SkipEmptyParts)) {
                bool any = false;
                for (const QString &value :
                     {device.device(), device.series(), device.package(), device.speed(),
                      device.deviceNVersion(), device.partNumber()})
                    any = any || value.contains(word, Qt::CaseInsensitive);
                all = all && any;
            }
            expected += all;
        }
        QCOMPARE(filter.rowCount(), expected);
        for (int row = 0; row < filter.rowCount(); ++row) {
            if (!series.isEmpty())
                QCOMPARE(filter.index(row, DeviceModel::Series).data().toString(), series);
            if (!package.isEmpty())
                QCOMPARE(filter.index(row, DeviceModel::Package).data().toString(), package);
        }
    }

    void filterTakesExactValuesOfColumns()
    {
        DeviceModel model(DEV::DeviceDb::bundled().devices());
        DeviceFilter filter;
        filter.setSourceModel(&model);
        filter.setValue(DeviceModel::Package, QStringLiteral("QFN88"));
        QVERIFY(filter.rowCount() > 0);
        for (int row = 0; row < filter.rowCount(); ++row)
            QCOMPARE(filter.index(row, DeviceModel::Package).data().toString(),
                     QStringLiteral("QFN88"));
        filter.setValue(DeviceModel::Speed, QStringLiteral("none"));
        QCOMPARE(filter.rowCount(), 0);
        filter.setValue(DeviceModel::Package, {});
        filter.setValue(DeviceModel::Speed, {});
        QCOMPARE(filter.rowCount(), model.rowCount());
    }

    void partNumbersAreWholeInAnyWidth()
    {
        DevicePicker picker;
        const auto *table = picker.findChild<QTableView *>();
        const QAbstractItemView *view = table; // whose hints are public
        picker.resize(picker.sizeHint().width(), 300);
        picker.show();
        QVERIFY(!table->isColumnHidden(DeviceModel::Version));
        QVERIFY(!table->isColumnHidden(DeviceModel::Series));
        for (int width = picker.width() + 200; width > picker.width() / 2; width -= 20) {
            picker.resize(width, 300);
            QCoreApplication::processEvents();
            if (picker.width() > width)
                break; // no narrower
            QCOMPARE(table->horizontalScrollBar()->maximum(), 0);
            QVERIFY(table->columnWidth(DeviceModel::PartNumber) >=
                    view->sizeHintForColumn(DeviceModel::PartNumber));
        }
    }

    void isFilteredWhileTyping()
    {
        DevicePicker picker;
        picker.show();
        auto *table = picker.findChild<QTableView *>();
        auto *edit = picker.findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"));
        const int all = table->model()->rowCount();
        QTest::keyClicks(edit, QStringLiteral("tv2kr-18c qfn88pf"));
        QVERIFY(table->model()->rowCount() > 0);
        QVERIFY(table->model()->rowCount() < all);
        QVERIFY(picker.device().isNull());
        QTest::keyClick(edit, Qt::Key_Down);
        QCOMPARE(picker.device().package(), QStringLiteral("QFN88PF"));
        QSignalSpy activated(&picker, &DevicePicker::activated);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(activated.size(), 1);
    }

    void enterTakesTheOnlyDeviceThatIsLeft()
    {
        DevicePicker picker;
        picker.show();
        auto *edit = picker.findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"));
        edit->setText(QStringLiteral("tv2kr-18c lv18qn88pc8"));
        QSignalSpy activated(&picker, &DevicePicker::activated);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(activated.size(), 1);
        QCOMPARE(picker.device().id(), QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    }

    void copiesThePartNumber()
    {
        DevicePicker picker;
        const DEV::DeviceArg device = DEV::DeviceDb::bundled().devices().last();
        auto *copy = picker.findChild<QPushButton *>(QStringLiteral("copyPartNumberButton"));
        QVERIFY(!copy->isEnabled());
        picker.setDevice(device.id());
        QVERIFY(copy->isEnabled());
        copy->click();
        QCOMPARE(QGuiApplication::clipboard()->text(), device.partNumber());
    }

    void copyKeyCopiesThePartNumberToo()
    {
        DevicePicker picker;
        picker.show();
        QApplication::setActiveWindow(&picker);
        const DEV::DeviceArg device = DEV::DeviceDb::bundled().devices().at(3);
        picker.setDevice(device.id());
        QGuiApplication::clipboard()->clear();
        auto *table = picker.findChild<QTableView *>();
        table->setFocus();
        QVERIFY(QTest::qWaitFor([table] { return table->hasFocus(); }));
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), device.partNumber());
    }

    void forgetsTheDeviceThatTheFilterHides()
    {
        DevicePicker picker;
        picker.setDevice(DEV::DeviceDb::bundled().devices().first().id());
        picker.findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"))
            ->setText(QStringLiteral("no such thing"));
        QVERIFY(picker.device().isNull());
        picker.setDevice(DEV::DeviceDb::bundled().devices().first().id()); // clears the filter
        QVERIFY(!picker.device().isNull());
    }

    void combosNarrowTheTable()
    {
        DevicePicker picker;
        auto *series = picker.findChild<QComboBox *>(QStringLiteral("column1Combo"));
        series->setCurrentText(QStringLiteral("TV5KST"));
        const QAbstractItemModel *rows = picker.findChild<QTableView *>()->model();
        QVERIFY(rows->rowCount() > 0);
        for (int row = 0; row < rows->rowCount(); ++row)
            QCOMPARE(rows->index(row, DeviceModel::Series).data().toString(),
                     QStringLiteral("TV5KST"));
        series->setCurrentIndex(0);
        QCOMPARE(rows->rowCount(), DEV::DeviceDb::bundled().devices().size());
    }
};

TARVO_TEST_MAIN(QApplication, TestDevicePicker)
#include "tst_devicepicker.moc"
