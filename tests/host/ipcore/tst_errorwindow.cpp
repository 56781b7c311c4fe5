#include <nextdialog.h>
#include <testsupport.h>
#include <windowwalk.h>

#include <core/viewmanager.h>
#include <ipcore/ipcore.h>
#include <ipcore/synthesishelper.h>
#include <synthesis/runreport.h>

#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTemporaryDir>

using namespace TestSupport;

class TestErrorWindow : public QObject
{
    Q_OBJECT

private:
    // What the window shows for these arguments.
    struct Shown {
        bool any = false;
        QString title;
        QStringList details;
    };
    static Shown show(const QString &title, const QStringList &details)
    {
        Shown result;
        const NextDialog dialog([&result](QWidget *window) {
            result.any = true;
            result.title = window->findChild<QLabel *>(QStringLiteral("titleLabel"))->text();
            result.details = window->findChild<QPlainTextEdit *>(QStringLiteral("detailsEdit"))
                                 ->toPlainText()
                                 .split(u'\n', Qt::SkipEmptyParts);
        });
        IPCore::showErrorMsgs(title, details);
        return result;
    }

    QString product(const QString &name) const { return m_product.path() + u'/' + name; }

    QTemporaryDir m_product;
    QTemporaryDir m_user;

private Q_SLOTS:
    void initTestCase()
    {
        // Whoever has a descriptor is a product.
        const QString descriptor = product(QStringLiteral("ip.ipspec"));
        write(descriptor, "{\"ipcore\": {\"id\": \"x\"}}");
        QVERIFY(!IPCore::processIPInfoSpec(descriptor).isEmpty());
    }

    void longDetailsWrap()
    {
        const QString path = u'/' + QStringLiteral("averylongname").repeated(40);
        const QString words = QStringLiteral("and words ").repeated(80);
        const NextDialog dialog([&](QWidget *window) {
            auto *edit = window->findChild<QPlainTextEdit *>(QStringLiteral("detailsEdit"));
            QCOMPARE(edit->horizontalScrollBar()->maximum(), 0);
            QCOMPARE(edit->toPlainText(), QString(path + QStringLiteral(": ") + words));
        });
        IPCore::showErrorMsgs(QStringLiteral("Failed"), {path + QStringLiteral(": ") + words});
        QVERIFY(dialog.wasShown());
    }

    void enterClosesItWhateverHasTheFocus()
    {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            for (const char *name : {"", "detailsEdit"}) {
                const NextDialog dialog([key, name](QWidget *window) {
                    QApplication::setActiveWindow(window);
                    if (*name)
                        window->findChild<QWidget *>(QLatin1String(name))->setFocus();
                    QVERIFY(window->focusWidget());
                    QTest::keyClick(window->focusWidget(), key);
                    QVERIFY(!window->isVisible());
                });
                IPCore::showErrorMsgs(QStringLiteral("Failed"), {QStringLiteral("why")});
                QVERIFY(dialog.wasShown());
            }
        }
    }

    void focusIsSeenAndNoKeyIsMarkedTwice()
    {
        const NextDialog dialog([](QWidget *window) {
            const TabWalk walk(window);
            QCOMPARE(walk.stops.size(), 3); // Close, details, Copy
            QCOMPARE(walk.unseen().join(u';'), QString());
            QStringList texts = mnemonicTexts(window);
            texts.append(QStringLiteral("&Close")); // as some desktops have it
            QCOMPARE(sharedMnemonics(texts).join(u';'), QString());
        });
        IPCore::showErrorMsgs(QStringLiteral("Failed"), {QStringLiteral("why")});
        QVERIFY(dialog.wasShown());
    }

    void isWholeOnASmallScreenWithALargeFont()
    {
        const QFont before = QApplication::font();
        QFont large = before;
        large.setPointSize(16);
        QApplication::setFont(large);
        const QString path = u'/' + QStringLiteral("a_folder_with_a_long_name/").repeated(20);
        const NextDialog dialog(
            [](QWidget *window) { QCOMPARE(cutOff(window, smallScreen()).join(u';'), QString()); });
        IPCore::showErrorMsgs(
            QStringLiteral("Cannot be read: ") + path,
            QVector<QString>(40, QString(path + QStringLiteral(": why"))).toList());
        QVERIFY(dialog.wasShown());
        QApplication::setFont(before);
    }

    void tabReachesEveryButtonInEveryOrder_data()
    {
        QTest::addColumn<int>("order");
        QTest::newRow("Windows") << int(QDialogButtonBox::WinLayout);
        QTest::newRow("macOS") << int(QDialogButtonBox::MacLayout);
        QTest::newRow("KDE") << int(QDialogButtonBox::KdeLayout);
        QTest::newRow("GNOME") << int(QDialogButtonBox::GnomeLayout);
    }

    void tabReachesEveryButtonInEveryOrder()
    {
        QFETCH(int, order);
        class Style : public QProxyStyle
        {
        public:
            explicit Style(int order)
                : m_order(order)
            {
            }
            int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *data) const override
            {
                return hint == SH_DialogButtonLayout
                           ? m_order
                           : QProxyStyle::styleHint(hint, option, widget, data);
            }

        private:
            int m_order;
        };
        QApplication::setStyle(new Style(order));
        const NextDialog error([](QWidget *window) {
            const TabWalk walk(window);
            QCOMPARE(walk.stops.size(), 3);
        });
        IPCore::showErrorMsgs(QStringLiteral("Failed"), {QStringLiteral("why")});
        QVERIFY(error.wasShown());

        QMessageBox box(QMessageBox::Question, QStringLiteral("Changes"), QStringLiteral("Save?"),
                        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        box.show();
        QCOMPARE(TabWalk(&box).stops.size(), 3);
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    }

    void theUsersFilesComeFirst()
    {
        const QString rtl = product(QStringLiteral("data/itcm.v"));
        const QString init = m_user.filePath(QStringLiteral("my init/itcm0"));
        const QString mine = m_user.filePath(QStringLiteral("ip.ipc"));
        const Shown shown =
            show(QStringLiteral("TarvoSynthesis found 4 errors."),
                 {rtl + QStringLiteral(":7: syntax error"), QStringLiteral("out of memory"),
                  rtl + QStringLiteral(":26: Can not open file \"") + init +
                      QStringLiteral("\" for $readmemh."),
                  mine + QStringLiteral(": no such device")});
        QCOMPARE(shown.details.size(), 4);
        // In a message with two files too.
        const QString &first = shown.details.first();
        QVERIFY2(first.indexOf(init) == 0, qPrintable(first));
        QVERIFY2(first.indexOf(rtl + QStringLiteral(":26")) > first.lastIndexOf(init),
                 qPrintable(first));
        QVERIFY(first.contains(QLatin1String("for $readmemh.")));
        QCOMPARE(shown.details.at(1), QString(mine + QStringLiteral(": no such device")));
        QCOMPARE(shown.details.at(2), QStringLiteral("out of memory"));
        QCOMPARE(shown.details.at(3), QString(rtl + QStringLiteral(":7: syntax error")));
    }

    void messagesOfARunComeInTheSameOrder()
    {
        // A tool that complains of the product's file first.
        const QString rtl = product(QStringLiteral("a.v"));
        const QString mine = m_user.filePath(QStringLiteral("b.v"));
        write(rtl, "module top; endmodule\n");
        write(mine, "module b; endmodule\n");
        write(m_user.filePath(QStringLiteral("bin/yosys")),
              "#!/bin/sh\necho \"Executing Verilog-2005 frontend: x\"\necho '" + rtl.toUtf8() +
                  ":3: ERROR: of the product'\necho '" + mine.toUtf8() +
                  ":4: ERROR: of the user'\nexit 1\n");
        QFile::setPermissions(m_user.filePath(QStringLiteral("bin/yosys")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", m_user.filePath(QStringLiteral("bin")).toUtf8() + ':' + path);
        IPCore::SynthesisHelper helper;
        helper.setArgs(job({rtl, mine}));
        QSignalSpy finished(&helper, &IPCore::SynthesisHelper::finished);
        helper.start();
        QTRY_COMPARE(finished.size(), 1);
        qputenv("PATH", path);
        const auto messages = helper.report().messages;
        QCOMPARE(messages.size(), 2);
        QCOMPARE(messages.at(0).text, QStringLiteral("of the user"));
        QCOMPARE(messages.at(1).text, QStringLiteral("of the product"));
    }

    void oneCauseIsOneMessage_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("details");
        QTest::addColumn<QStringList>("expected");
        const QString cause = QStringLiteral("The memory does not fit the device.");
        QTest::newRow("detail is the title") << cause << QStringList{cause} << QStringList();
        QTest::newRow("detail is the title as an error")
            << cause << QStringList{QStringLiteral("ERROR: The memory does not fit the device")}
            << QStringList();
        QTest::newRow("title ends with the detail")
            << QString(QStringLiteral("Cannot write: ") + cause) << QStringList{cause}
            << QStringList();
        QTest::newRow("detail adds the place to the title")
            << cause << QStringList{QStringLiteral("/a.v:3: ") + cause}
            << QStringList{QStringLiteral("/a.v:3")};
        QTest::newRow("equal details")
            << QStringLiteral("Failed")
            << QStringList{QStringLiteral("/a.v:3: bad"), QStringLiteral("/a.v:3: bad"),
                           QStringLiteral("/a.v:3: bad")}
            << QStringList{QStringLiteral("/a.v:3: bad")};
        QTest::newRow("the same with and without its place")
            << QStringLiteral("Failed")
            << QStringList{QStringLiteral("ERROR: bad thing"), QStringLiteral("/a.v:3: bad thing")}
            << QStringList{QStringLiteral("/a.v:3: bad thing")};
        QTest::newRow("two places are two messages")
            << QStringLiteral("Failed")
            << QStringList{QStringLiteral("/a.v:3: bad"), QStringLiteral("/a.v:4: bad")}
            << QStringList{QStringLiteral("/a.v:3: bad"), QStringLiteral("/a.v:4: bad")};
        QTest::newRow("blanks are nothing")
            << QStringLiteral("Failed") << QStringList{QStringLiteral(" "), QString()}
            << QStringList();
        QTest::newRow("a short word of the title is another message")
            << QStringLiteral("The synthesis failed at a wire")
            << QStringList{QStringLiteral("a wire")} << QStringList{QStringLiteral("a wire")};
    }

    void oneCauseIsOneMessage()
    {
        QFETCH(QString, title);
        QFETCH(QStringList, details);
        QFETCH(QStringList, expected);
        const Shown shown = show(title, details);
        QCOMPARE(shown.title, title);
        QCOMPARE(shown.details, expected);
    }

    void cancellingIsNoError()
    {
        write(m_user.filePath(QStringLiteral("sleep/yosys")), "#!/bin/sh\nexec sleep 100000\n");
        QFile::setPermissions(m_user.filePath(QStringLiteral("sleep/yosys")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", m_user.filePath(QStringLiteral("sleep")).toUtf8() + ':' + path);
        const QString source = m_user.filePath(QStringLiteral("top.v"));
        write(source, "module top; endmodule\n");
        IPCore::SynthesisHelper helper;
        helper.setArgs(job({source}));
        QSignalSpy finished(&helper, &IPCore::SynthesisHelper::finished);
        helper.start();
        helper.cancel();
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(finished.first().first().toInt() != 0);
        const QString summary = helper.errorMsg();
        QVERIFY(!show(summary, helper.detailErrorMsgs()).any);
        // Anything else is told, and so is the next run's failure.
        QVERIFY(show(QStringLiteral("The folder is gone."), {}).any);
        qputenv("PATH", "/nowhere");
        helper.start();
        QTRY_COMPARE(finished.size(), 2);
        qputenv("PATH", path);
        QVERIFY(show(helper.errorMsg(), helper.detailErrorMsgs()).any);
    }

private:
    IPCore::SynthesizeArgs job(const QStringList &sources) const
    {
        IPCore::SynthesizeArgs args;
        args.outputDir = m_user.filePath(QStringLiteral("out"));
        QDir().mkpath(args.outputDir);
        args.targetName = QStringLiteral("top");
        args.options = {{QStringLiteral("top_module"), QStringLiteral("top")},
                        {QStringLiteral("source_files"), sources}};
        return args;
    }
};

TARVO_TEST_MAIN(QApplication, TestErrorWindow)
#include "tst_errorwindow.moc"
