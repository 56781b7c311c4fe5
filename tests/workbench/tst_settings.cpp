#include "hands.h"

#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/editor/findbar.h>
#include <workbench/language/languages.h>
#include <workbench/settings/externaleditor.h>
#include <workbench/settings/settingsdialog.h>
#include <workbench/settings/settingstable.h>
#include <workbench/settings/toolpaths.h>
#include <workbench/widgets/assistance.h>
#include <workbench/widgets/infobar.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>

using namespace Workbench;
using namespace TestSupport;

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_path = qgetenv("PATH");
        m_dir = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<QSettings>(file("settings.ini"), QSettings::IniFormat);
    }
    void cleanup()
    {
        qputenv("PATH", m_path);
        m_settings.reset();
    }

    void everyRowHasAKeyAndAFieldOfItsOwn()
    {
        SettingsDialog dialog(*m_settings, nullptr);
        QSet<QString> keys;
        for (const Settings::Row &row : Settings::rows()) {
            const QString key = QLatin1String(row.key);
            QVERIFY2(!keys.contains(key), row.key);
            keys.insert(key);
            QWidget *field = dialog.findChild<QWidget *>(key);
            QVERIFY2(field, row.key);
            QVERIFY2(!field->accessibleName().isEmpty() || qobject_cast<QCheckBox *>(field),
                     row.key);
            QCOMPARE(Settings::valueOf(*m_settings, row), Settings::standardOf(row));
        }
    }

    // Some languages have the mark of a key in brackets behind the words.
    void namesAreWordsInEveryLanguage()
    {
        static const QRegularExpression mark(QStringLiteral("[&:\\x{ff1a}]|\\([A-Z]\\)"));
        QCOMPARE(spokenLabel(QStringLiteral("E&xternal editor:")),
                 QStringLiteral("External editor"));
        QCOMPARE(spokenLabel(QStringLiteral("Program (of others)")),
                 QStringLiteral("Program (of others)"));
        for (const Languages::Choice &choice : Languages::available()) {
            const Languages language(choice.code);
            SettingsDialog dialog(*m_settings, nullptr);
            for (const Settings::Row &row : Settings::rows()) {
                const auto *field = dialog.findChild<QWidget *>(QLatin1String(row.key));
                if (qobject_cast<const QCheckBox *>(field))
                    continue; // its text is its name
                const QString name = field->accessibleName();
                QVERIFY2(!name.isEmpty() && !mark.match(name).hasMatch(), qPrintable(name));
            }
        }
    }

    // Whatever stands in the file, a setting is one of its domain.
    void aBrokenValueIsTheDefault_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("a word") << QVariant(QStringLiteral("wrong"));
        QTest::newRow("a list") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")});
        QTest::newRow("a large number") << QVariant(QStringLiteral("99999999999"));
        QTest::newRow("a negative number") << QVariant(-1);
        QTest::newRow("a fraction") << QVariant(1.5);
        QTest::newRow("bytes") << QVariant(QByteArray("\x00\xff\x01", 3));
        QTest::newRow("a size") << QVariant(QSize(3, 4));
        QTest::newRow("nothing") << QVariant(QString());
    }
    void aBrokenValueIsTheDefault()
    {
        QFETCH(QVariant, value);
        for (const Settings::Row &row : Settings::rows())
            m_settings->setValue(QLatin1String(row.key), value);
        reread();
        for (const Settings::Row &row : Settings::rows()) {
            const QVariant read = Settings::valueOf(*m_settings, row);
            const bool isText = read.type() == QVariant::String;
            if (row.kind == Settings::Kind::Number)
                QVERIFY(read.toInt() >= row.least && read.toInt() <= row.most);
            if (row.kind == Settings::Kind::Choice || !isText)
                QCOMPARE(read, Settings::standardOf(row));
        }
        SettingsDialog dialog(*m_settings, nullptr);
        dialog.show();
        ToolPaths(file("tools")).apply(*m_settings);
        Bench bench;
        for (const Settings::Row &row : Settings::rows())
            bench.settings.setValue(QLatin1String(row.key), value);
        bench.reopen(); // the program starts
        QVERIFY(bench.window->isVisible());
    }

    void everyValueReadsBack()
    {
        for (const Settings::Row &row : Settings::rows()) {
            QVariant value = QStringLiteral("a \"text\", with\\ umlauts: \u00E4");
            if (row.kind == Settings::Kind::Toggle)
                value = !Settings::standardOf(row).toBool();
            else if (row.kind == Settings::Kind::Number)
                value = row.most;
            else if (row.kind == Settings::Kind::Choice)
                value = Settings::choicesOf(row).last().first;
            m_settings->setValue(QLatin1String(row.key), value);
            reread();
            QCOMPARE(Settings::valueOf(*m_settings, row), value);
        }
    }

    void whatIsChosenCountsAtOnceAndCancelTakesItBack()
    {
        m_settings->setValue(QLatin1String(Settings::editorTabWidth), 4);
        m_settings->setValue(QStringLiteral("tools/yosys"), QStringLiteral("broken"));
        const QStringList before = m_settings->allKeys();
        SettingsDialog dialog(*m_settings, nullptr);
        int changes = 0;
        connect(&dialog, &SettingsDialog::changed, this, [&changes] { ++changes; });
        dialog.findChild<QSpinBox *>(QLatin1String(Settings::editorTabWidth))->setValue(3);
        QCOMPARE(Settings::numberOf(*m_settings, Settings::editorTabWidth), 3);
        QCOMPARE(changes, 1);
        auto *wrap = dialog.findChild<QCheckBox *>(QLatin1String(Settings::editorWrap));
        wrap->click();
        QVERIFY(Settings::isOn(*m_settings, Settings::editorWrap));
        auto *language = dialog.findChild<QComboBox *>(QLatin1String(Settings::language));
        language->setCurrentIndex(1);
        QCOMPARE(Settings::textOf(*m_settings, Settings::language), QStringLiteral("en"));
        dialog.findChild<QPushButton *>(QStringLiteral("restoreDefaultsButton"))->click();
        for (const Settings::Row &row : Settings::rows())
            QCOMPARE(Settings::valueOf(*m_settings, row), Settings::standardOf(row));
        QVERIFY(!wrap->isChecked());
        QCOMPARE(language->currentIndex(), 0);
        dialog.reject();
        QCOMPARE(m_settings->allKeys(), before);
        QCOMPARE(m_settings->value(QLatin1String(Settings::editorTabWidth)).toInt(), 4);
        QCOMPARE(m_settings->value(QStringLiteral("tools/yosys")).toString(),
                 QStringLiteral("broken"));
        QVERIFY(changes > 3);
    }

    void aPathIsJudgedBesideItsField_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("told");
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("a name") << QStringLiteral("yosys") << QStringLiteral("whole path");
        QTest::newRow("missing") << QStringLiteral("/no/such") << QStringLiteral("no such file");
        QTest::newRow("a folder") << QStringLiteral("/") << QStringLiteral("no file");
        QTest::newRow("no program") << QStringLiteral("plain") << QStringLiteral("executed");
        QTest::newRow("a program") << QStringLiteral("program") << QStringLiteral("is used");
    }
    void aPathIsJudgedBesideItsField()
    {
        QFETCH(QString, path);
        QFETCH(QString, told);
        write(file("plain"), "");
        makeProgram("program");
        if (path == QLatin1String("plain") || path == QLatin1String("program"))
            path = file(qPrintable(path));
        SettingsDialog dialog(*m_settings, nullptr);
        auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("tools/iverilog"));
        edit->setText(path);
        const auto *label = dialog.findChild<QLabel *>(QStringLiteral("tools/iverilog/told"));
        QVERIFY2(label->text().contains(told), qPrintable(label->text()));
        // It is kept, right or wrong: nothing stands in the way.
        QCOMPARE(m_settings->value(QStringLiteral("tools/iverilog")).toString(), path);
        const bool isMistake = !ToolPaths::mistakeOf(path).isEmpty();
        QCOMPARE(label->text().contains(QLatin1String("on PATH is used")), isMistake);
    }

    void aProgramOfTheSettingsTakesThePlaceOfThatOnPath()
    {
        const ToolPaths paths(file("tools"));
        const auto found = [] { return QStandardPaths::findExecutable(QStringLiteral("yosys")); };
        const QString onPath = found();
        paths.apply(*m_settings);
        QCOMPARE(qgetenv("PATH"), m_path); // nothing is set, nothing is done
        QVERIFY(!QFileInfo::exists(file("tools")));

        const QString own = makeProgram("my yosys 0.40");
        m_settings->setValue(QStringLiteral("tools/yosys"), own);
        paths.apply(*m_settings);
        QCOMPARE(QFileInfo(found()).canonicalFilePath(), QFileInfo(own).canonicalFilePath());
        paths.apply(*m_settings);
        QCOMPARE(qgetenv("PATH").count(QFile::encodeName(file("tools"))), 1);

        const QString other = makeProgram("other");
        m_settings->setValue(QStringLiteral("tools/yosys"), other);
        paths.apply(*m_settings);
        QCOMPARE(QFileInfo(found()).canonicalFilePath(), QFileInfo(other).canonicalFilePath());

        QFile::remove(other);
        paths.apply(*m_settings);
        QCOMPARE(found(), onPath);
        m_settings->setValue(QStringLiteral("tools/yosys"), QString());
        paths.apply(*m_settings);
        QCOMPARE(qgetenv("PATH"), m_path);
        QVERIFY(entriesOf(file("tools")).isEmpty());
    }

    void anExternalEditorGetsFileAndLine_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QStringList>("words");
        const QString name = QStringLiteral("/a %l b.v");
        const auto row = [](const char *text, const QString &command, const QStringList &words) {
            QTest::newRow(text) << command << words;
        };
        row("nothing", {}, {});
        row("the file comes last", QStringLiteral("edit -w"),
            {QStringLiteral("edit"), QStringLiteral("-w"), name});
        row("file and line", QStringLiteral("edit -g %f:%l"),
            {QStringLiteral("edit"), QStringLiteral("-g"), name + QStringLiteral(":7")});
        row("quotes", QStringLiteral("\"/a b/edit\" +%l %f %%"),
            {QStringLiteral("/a b/edit"), QStringLiteral("+7"), name, QStringLiteral("%%")});
    }
    void anExternalEditorGetsFileAndLine()
    {
        QFETCH(QString, command);
        QFETCH(QStringList, words);
        QCOMPARE(externalCommand(command, QStringLiteral("/a %l b.v"), 7), words);
    }

    // The menu has one of the settings as well.
    void theMenuAndTheDialogFollowEachOther()
    {
        Bench bench;
        QAction *reopen = bench.action("Reopen the Last Project at Start");
        QVERIFY(reopen->isChecked());
        int seen = 0;
        const ModalWatcher watcher([&](QWidget *modal) {
            auto *dialog = qobject_cast<SettingsDialog *>(modal);
            QVERIFY(dialog);
            auto *box = dialog->findChild<QCheckBox *>(QLatin1String(Settings::restoreSession));
            QCOMPARE(box->isChecked(), reopen->isChecked());
            box->click();
            QCOMPARE(reopen->isChecked(), box->isChecked());
            reopen->trigger();
            QCOMPARE(box->isChecked(), reopen->isChecked());
            box->click();
            ++seen;
            if (seen == 1)
                Bench::ok(dialog)->click();
            else
                dialog->reject();
        });
        bench.action("Settings")->trigger();
        QVERIFY(!reopen->isChecked());
        QVERIFY(!Settings::isOn(bench.settings, Settings::restoreSession));
        reopen->trigger();
        QVERIFY(Settings::isOn(bench.settings, Settings::restoreSession));
        bench.action("Settings")->trigger(); // changes it and takes that back
        QVERIFY(reopen->isChecked());
        QCOMPARE(seen, 2);
    }

    // Whatever stands there, both read it alike.
    void theMenuReadsABrokenValueAsTheDialogDoes()
    {
        Bench bench;
        for (const char *value : {"false", "true", "no", "", "0"}) {
            bench.settings.setValue(QLatin1String(Settings::restoreSession), QLatin1String(value));
            bench.reopen();
            QCOMPARE(bench.action("Reopen the Last Project at Start")->isChecked(),
                     Settings::isOn(bench.settings, Settings::restoreSession));
        }
    }

    void howIsLookedForIsRemembered()
    {
        Bench bench;
        const QString first = bench.folder() + QStringLiteral("/a.v");
        const QString second = bench.folder() + QStringLiteral("/b.v");
        write(first, "module a;\n");
        write(second, "module b;\n");
        const auto box = [&bench](const char *name) {
            return bench.window->tabs()->currentPage()->findBar()->findChild<QCheckBox *>(
                QLatin1String(name));
        };
        bench.window->openPath(second);
        bench.window->openPath(first);
        bench.window->tabs()->currentPage()->findBar()->start();
        for (const char *name : {"matchCaseBox", "wholeWordsBox", "expressionBox"})
            QVERIFY(!box(name)->isChecked());
        box("matchCaseBox")->click();
        box("expressionBox")->click();
        bench.window->openPath(second); // was open before
        QVERIFY(box("matchCaseBox")->isChecked());
        QVERIFY(box("expressionBox")->isChecked());
        bench.reopen();
        bench.window->openPath(first);
        QVERIFY(box("matchCaseBox")->isChecked());
        QVERIFY(!box("wholeWordsBox")->isChecked());
        QVERIFY(box("expressionBox")->isChecked());
    }

    void theWindowFollowsTheSettings()
    {
        Bench bench;
        const QString source = bench.folder() + QStringLiteral("/a.v");
        write(source, "\tmodule a;\n");
        bench.window->openPath(source);
        EditorPage *page = bench.window->tabs()->currentPage();
        const int usual = page->editor()->font().pointSize();
        page->editor()->zoomBy(2);
        QVERIFY(page->editor()->lineNumberWidth() > 0);
        QVERIFY(!bench.action("Open in External Editor")->isEnabled());
        const QString told = bench.folder() + QStringLiteral("/told");
        const QString script = makeProgram("editor", "echo \"$1 $2\" > " + told.toUtf8());
        {
            const ModalWatcher watcher([&](QWidget *modal) {
                auto *dialog = qobject_cast<SettingsDialog *>(modal);
                QVERIFY(dialog);
                const auto field = [dialog](const char *key) {
                    return dialog->findChild<QWidget *>(QLatin1String(key));
                };
                qobject_cast<QSpinBox *>(field(Settings::editorFontSize))->setValue(usual + 5);
                QCOMPARE(page->editor()->font().pointSize(), usual + 7); // zoomed as before
                qobject_cast<QCheckBox *>(field(Settings::editorLineNumbers))->setChecked(false);
                QCOMPARE(page->editor()->lineNumberWidth(), 0);
                qobject_cast<QCheckBox *>(field(Settings::editorWrap))->setChecked(true);
                qobject_cast<QSpinBox *>(field(Settings::editorTabWidth))->setValue(2);
                qobject_cast<QLineEdit *>(field(Settings::editorExternal))
                    ->setText(script + QStringLiteral(" %f %l"));
                Bench::ok(dialog)->click();
            });
            bench.action("Settings")->trigger();
        }
        QCOMPARE(page->editor()->lineWrapMode(), QPlainTextEdit::WidgetWidth);
        QCOMPARE(page->editor()->tabStopDistance(),
                 qreal(2 * page->editor()->fontMetrics().horizontalAdvance(u' ')));
        QVERIFY(bench.action("Open in External Editor")->isEnabled());
        bench.action("Open in External Editor")->trigger();
        QTRY_COMPARE(contentsOf(told), source.toUtf8() + " 1\n");
        // And the next start has it all.
        bench.window->tabs()->closeAll();
        bench.reopen();
        bench.window->openPath(source);
        page = bench.window->tabs()->currentPage();
        QCOMPARE(page->editor()->font().pointSize(), usual + 5);
        QCOMPARE(page->editor()->lineNumberWidth(), 0);
        bench.settings.setValue(QLatin1String(Settings::editorExternal),
                                QStringLiteral("/no/such/editor %f"));
        bench.action("Open in External Editor")->trigger();
        QVERIFY2(page->infoBar()->text().contains(QLatin1String("no such file")),
                 qPrintable(page->infoBar()->text()));
    }

private:
    QString file(const char *name) const
    {
        return QFileInfo(m_dir->path()).canonicalFilePath() + u'/' + QString::fromUtf8(name);
    }
    QString makeProgram(const char *name, const QByteArray &command = "exit 0") const
    {
        write(file(name), "#!/bin/sh\n" + command + "\n");
        QFile::setPermissions(file(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file(name);
    }
    void reread()
    {
        m_settings->sync();
        m_settings = std::make_unique<QSettings>(file("settings.ini"), QSettings::IniFormat);
    }

    QByteArray m_path;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<QSettings> m_settings;
};

TARVO_TEST_MAIN(QApplication, TestSettings)
#include "tst_settings.moc"
