#include "hands.h"

#include <workbench/catalogue/sayings.h>
#include <workbench/language/languages.h>
#include <workbench/language/qttexts.h>
#include <workbench/window/components.h>
#include <workbench/window/startpage.h>

#include <ipcore/ipcore.h>

#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QMetaMethod>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTextBrowser>
#include <QToolButton>
#include <QXmlStreamReader>

#include <clocale>
#include <map>

using namespace Workbench;
using namespace TestSupport;

namespace
{

const QString updating = QStringLiteral(
    "\nBring the files up to date with `cmake --build build/release --target translations`, then "
    "translate in src/workbench/translations what is unfinished there.");

const QString translations = QStringLiteral(TARVO_SOURCE_DIR "/src/workbench/translations/");

struct Text {
    QString context;
    QString source;
    QStringList forms; // one, or those that a number asks for
    bool isFinished = true;
};

QList<Text> textsOf(const QString &path)
{
    QList<Text> texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString context;
    bool hasForms = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            hasForms = xml.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (xml.name() == QLatin1String("source")) {
            texts.append({context, xml.readElementText(), {}, true});
        } else if (xml.name() == QLatin1String("numerusform")) {
            texts.last().forms.append(xml.readElementText());
        } else if (xml.name() == QLatin1String("translation")) {
            texts.last().isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!hasForms)
                texts.last().forms = QStringList(xml.readElementText());
        }
    }
    return texts;
}

QStringList matches(const QString &text, const char *pattern)
{
    QStringList found;
    auto all = QRegularExpression(QString::fromUtf8(pattern)).globalMatch(text);
    while (all.hasNext())
        found.append(all.next().captured());
    found.sort();
    return found;
}

// What a translation has lost of its source, or has too much, in words; empty if nothing.
QString disagreement(const QString &source, const QString &translation)
{
    struct Rule {
        const char *words;
        const char *pattern;
    };
    static constexpr Rule rules[] = {
        {"the places", "%L?(?:\\d|n)"},
        {"mark-up", "</?[a-z][^>]*>"},
        {"names of files", "\\(\\*[^)]*\\)|;;"},
        {"a mark of a key", "&(?=\\S)"},
        {"line ends", "\\n"},
        {"the end …", "…$"},
        {"the end …", "…(?=:?$)"},
        {"blanks at the ends", "^ +| +$"},
    };
    for (const Rule &rule : rules) {
        QStringList ours = matches(source, rule.pattern);
        QStringList theirs = matches(translation, rule.pattern);
        if (qstrcmp(rule.words, "the places") == 0) {
            ours.removeDuplicates();
            theirs.removeDuplicates();
        } else if (qstrcmp(rule.words, "a mark of a key") == 0) {
            ours = QStringList(QString::number(ours.size()));
            theirs = QStringList(QString::number(theirs.size()));
        }
        if (ours != theirs)
            return QString::fromUtf8(rule.words);
    }
    const auto endsWithColon = [](const QString &text) {
        return text.endsWith(u':') || text.endsWith(QChar(0xff1a));
    };
    const auto endsWithPoint = [](const QString &text) {
        return text.endsWith(u'.') || text.endsWith(QChar(0x3002));
    };
    if (endsWithColon(source) != endsWithColon(translation))
        return QStringLiteral("a colon");
    if (endsWithPoint(source) != endsWithPoint(translation))
        return QStringLiteral("a full stop");
    return {};
}

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(60000) && process.exitCode() == 0;
}

// A translation of Qt's standard buttons, as Qt's own file is named.
void writeQtTexts(const QString &folder, const QString &code)
{
    const QString source = folder + QStringLiteral("/qt.ts");
    QByteArray messages;
    for (const char *text : {"OK", "Cancel", "Close", "Yes", "&Yes", "Help"})
        messages += QByteArray("<message><source>") + QByteArray(text).replace("&", "&amp;") +
                    "</source><translation>Qt: " + QByteArray(text).replace("&", "&amp;") +
                    "</translation></message>";
    write(source, "<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS><TS version=\"2.1\" "
                  "language=\"de\"><context><name>QPlatformTheme</name>" +
                      messages + "</context></TS>");
    QVERIFY(run(QStringLiteral(TARVO_LRELEASE),
                {QStringLiteral("-silent"), source, QStringLiteral("-qm"),
                 folder + QStringLiteral("/qtbase_%1.qm").arg(code)}));
}

// All that is to be read in a window, in the order of its widgets.
QStringList textsIn(const QWidget *window)
{
    QStringList texts{window->windowTitle()};
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->window() != window)
            continue; // a window beside it
        texts.append({widget->toolTip(), widget->accessibleName()});
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts.append(button->text());
        else if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts.append(label->text());
        else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            texts.append(group->title());
        else if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
            texts.append({edit->text(), edit->placeholderText()});
        else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                texts.append(tabs->tabText(i));
        } else if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
            for (int i = 0; i < box->count(); ++i)
                texts.append(box->itemText(i));
        } else if (const auto *view = qobject_cast<const QGraphicsView *>(widget)) {
            const auto items = view->scene() ? view->items() : QList<QGraphicsItem *>();
            for (const QGraphicsItem *item : items)
                texts.append(item->toolTip());
        }
    }
    texts.removeAll(QString());
    return texts;
}

// The texts of all dialogs that the call opens.
QStringList textsOfBoxes(const std::function<void()> &call)
{
    QStringList texts;
    const ModalWatcher watcher([&texts](QWidget *modal) {
        texts += textsIn(modal);
        static_cast<QDialog *>(modal)->reject();
    });
    call();
    return texts;
}

// What the menu says that a widget shows at a right click, without the keys. Some widgets wait for
// the menu to be closed, the others leave it open.
QStringList textsOfMenu(QWidget *widget)
{
    QStringList texts;
    const auto closeMenu = [&texts] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        const auto actions = menu->actions();
        for (const QAction *action : actions)
            texts.append(action->text().section(u'\t', 0, 0));
        menu->close();
    };
    QTimer whileItWaits;
    whileItWaits.setSingleShot(true);
    QObject::connect(&whileItWaits, &QTimer::timeout, closeMenu);
    whileItWaits.start(0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2),
                            widget->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(widget, &event);
    closeMenu();
    texts.removeAll(QString());
    return texts;
}

// Context and text of all that Qt's buttons and context menus say.
template <class Add>
void addTextsOfFileDialogs(const Add &add)
{
    for (const auto &[mode, accepting] :
         {std::pair(QFileDialog::ExistingFile, QFileDialog::AcceptOpen),
          std::pair(QFileDialog::AnyFile, QFileDialog::AcceptSave),
          std::pair(QFileDialog::Directory, QFileDialog::AcceptOpen)}) {
        QFileDialog dialog;
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setAcceptMode(accepting);
        dialog.setFileMode(mode);
        QStringList texts;
        for (const char *label : {"lookInLabel", "fileNameLabel", "fileTypeLabel"})
            texts.append(dialog.findChild<QLabel *>(QLatin1String(label))->text());
        for (const char *button : {"backButton", "forwardButton", "toParentButton",
                                   "newFolderButton", "listModeButton", "detailModeButton"})
            texts.append(dialog.findChild<QToolButton *>(QLatin1String(button))->toolTip());
        const auto *buttons = dialog.findChild<QDialogButtonBox *>();
        texts.append(buttons
                         ->button(accepting == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                                       : QDialogButtonBox::Open)
                         ->text());
        add("QFileDialog", texts);
        const auto *model = dialog.findChild<QFileSystemModel *>();
        QStringList titles;
        for (int column = 0; column < model->columnCount(); ++column)
            titles.append(model->headerData(column, Qt::Horizontal).toString());
        add("QFileSystemModel", titles);
    }
    const QFileIconProvider kinds;
    QTemporaryFile file(QDir::tempPath() + QStringLiteral("/XXXXXX.%1"));
    file.open();
    add("QFileDialog", {kinds.type(QFileInfo(QDir::tempPath())), kinds.type(QFileInfo(file))});
}

QList<QPair<QString, QString>> textsOfQt()
{
    QList<QPair<QString, QString>> texts;
    const auto add = [&texts](const char *context, const QStringList &shown) {
        for (const QString &text : shown)
            texts.append({QString::fromLatin1(context), text});
    };
    QDialogButtonBox::StandardButtons all;
    for (int bit = QDialogButtonBox::FirstButton; bit <= QDialogButtonBox::LastButton; bit <<= 1)
        all |= QDialogButtonBox::StandardButton(bit);
    const QDialogButtonBox box(all);
    QStringList buttons;
    for (int bit = QDialogButtonBox::FirstButton; bit <= QDialogButtonBox::LastButton; bit <<= 1) {
        if (const auto *button = box.button(QDialogButtonBox::StandardButton(bit)))
            buttons.append(button->text());
    }
    add("QPlatformTheme", buttons);
    QMessageBox message;
    message.setDetailedText(QStringLiteral("more"));
    QStringList details;
    for (int turn = 0; turn < 2; ++turn) {
        const auto buttonsOfMessage = message.buttons();
        for (QAbstractButton *button : buttonsOfMessage) {
            if (message.buttonRole(button) != QMessageBox::ActionRole)
                continue;
            details.append(button->text());
            QTimer::singleShot(0, &message, &QDialog::reject);
            button->click();
        }
    }
    add("QMessageBox", details);
    QLineEdit line;
    line.show();
    add("QLineEdit", textsOfMenu(&line));
    for (const bool isEditable : {true, false}) {
        QTextBrowser text;
        text.setReadOnly(!isEditable);
        text.show();
        add("QWidgetTextControl", textsOfMenu(text.viewport()));
    }
    QSpinBox number;
    number.show();
    const QStringList ofSpinBox = textsOfMenu(&number);
    add("QAbstractSpinBox", ofSpinBox.mid(ofSpinBox.size() - 3));
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        QScrollBar bar(orientation);
        bar.resize(bar.sizeHint() * 3);
        bar.show();
        add("QScrollBar", textsOfMenu(&bar));
    }
    addTextsOfFileDialogs(add);
    QStringList keys;
    for (const int modifier : {int(Qt::CTRL), int(Qt::SHIFT), int(Qt::ALT)})
        keys.append(QKeySequence(modifier | Qt::Key_F1)
                        .toString(QKeySequence::NativeText)
                        .section(u'+', 0, 0));
    for (const Qt::Key key :
         {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right,
          Qt::Key_Delete, Qt::Key_Space, Qt::Key_Return})
        keys.append(QKeySequence(key).toString(QKeySequence::NativeText));
    add("QShortcut", keys);
    return texts;
}

// Notes what Qt asks to have translated.
class QtListener : public QTranslator
{
public:
    QtListener() { QCoreApplication::installTranslator(this); }
    ~QtListener() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        static const QRegularExpression ofQt(QStringLiteral("^(Q[A-Z]\\w*|CloseButton)$"));
        const QString name = QString::fromLatin1(context);
        if (ofQt.match(name).hasMatch())
            m_heard.insert({name, QString::fromUtf8(text)});
        return {};
    }
    bool isEmpty() const override { return false; }

    QSet<QPair<QString, QString>> heard() const { return m_heard; }

private:
    mutable QSet<QPair<QString, QString>> m_heard;
};

// Does what makes a file dialog ask or tell something.
void askFileDialogs()
{
    const QTemporaryDir folder;
    write(folder.filePath(QStringLiteral("there.v")), "");
    write(folder.filePath(QStringLiteral("plain")), ""); // of a type of its own
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("full/below")));
    const auto accept = [&folder](QFileDialog::FileMode mode, QFileDialog::AcceptMode accepting,
                                  const QString &name) {
        QFileDialog dialog(nullptr, QString(), folder.path());
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setAcceptMode(accepting);
        dialog.setFileMode(mode);
        dialog.show();
        dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(name);
        const QStringList texts =
            textsOfBoxes([&dialog] { static_cast<QDialog &>(dialog).accept(); });
        QVERIFY2(!texts.isEmpty(), qPrintable(name));
    };
    accept(QFileDialog::AnyFile, QFileDialog::AcceptSave, QStringLiteral("there.v"));
    accept(QFileDialog::ExistingFile, QFileDialog::AcceptOpen, QStringLiteral("missing.v"));
    accept(QFileDialog::Directory, QFileDialog::AcceptOpen, QStringLiteral("missing"));

    QFileDialog dialog(nullptr, QString(), folder.path());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.show();
    auto *files = dialog.findChild<QListView *>(QStringLiteral("listView"));
    const auto indexOf = [&](const char *name) {
        for (int row = 0; row < files->model()->rowCount(files->rootIndex()); ++row) {
            const QModelIndex index = files->model()->index(row, 0, files->rootIndex());
            if (index.data().toString() == QLatin1String(name))
                return index;
        }
        return QModelIndex();
    };
    QTRY_VERIFY(indexOf("there.v").isValid());
    QTRY_VERIFY(indexOf("plain").isValid());
    files->setCurrentIndex(indexOf("there.v"));
    QVERIFY(!textsOfMenu(files->viewport()).isEmpty());
    QVERIFY(!textsOfBoxes([&dialog] {
                 dialog.findChild<QAction *>(QStringLiteral("qt_delete_action"))->trigger();
             }).isEmpty());
    auto *model = dialog.findChild<QFileSystemModel *>();
    QVERIFY(!textsOfBoxes([&] {
                 model->setData(indexOf("there.v"), QStringLiteral("a/b"));
             }).isEmpty());
    auto *above = dialog.findChild<QComboBox *>(QStringLiteral("lookInCombo"));
    above->showPopup();
    above->hidePopup();
    auto *places = dialog.findChild<QListView *>(QStringLiteral("sidebar"));
    places->setCurrentIndex(places->model()->index(0, 0));
    QVERIFY(!textsOfMenu(places->viewport()).isEmpty());
    dialog.findChild<QAction *>(QStringLiteral("qt_new_folder_action"))->trigger();
    for (const char *name : {"/", "/nonexistent"})
        QFileIconProvider().type(QFileInfo(QString::fromLatin1(name)));
}

// Does what a screen reader asks of widgets.
void askWidgets()
{
    QMainWindow window;
    auto *dock = new QDockWidget(QStringLiteral("dock"), &window);
    dock->setWidget(new QLabel(QStringLiteral("label")));
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto *tabs = new QTabWidget;
    tabs->setTabsClosable(true);
    tabs->addTab(new QPushButton(QStringLiteral("push")), QStringLiteral("one"));
    tabs->addTab(new QComboBox, QStringLiteral("two"));
    window.setCentralWidget(tabs);
    window.show();
    const auto parts = window.findChildren<QWidget *>();
    for (QWidget *part : parts) {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(part);
        if (!interface)
            continue;
        for (const QAccessible::Text text : {QAccessible::Name, QAccessible::Description,
                                             QAccessible::Help, QAccessible::Accelerator})
            interface->text(text);
        if (QAccessibleActionInterface *actions = interface->actionInterface()) {
            using Actions = QAccessibleActionInterface;
            for (const QString &name :
                 {Actions::pressAction(), Actions::increaseAction(), Actions::decreaseAction(),
                  Actions::showMenuAction(), Actions::setFocusAction(), Actions::toggleAction(),
                  Actions::scrollLeftAction(), Actions::scrollRightAction(),
                  Actions::scrollUpAction(), Actions::scrollDownAction(),
                  Actions::previousPageAction(), Actions::nextPageAction()}) {
                actions->localizedActionName(name);
                actions->localizedActionDescription(name);
            }
        }
    }
}

// The contents of all files below a folder, without its own path.
std::map<QString, QByteArray> filesBelow(const QString &folder)
{
    std::map<QString, QByteArray> files;
    QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        files[path.mid(folder.size())] =
            contentsOf(path).replace(folder.toUtf8(), QByteArray("FOLDER"));
    }
    return files;
}

QString differences(const std::map<QString, QByteArray> &left,
                    const std::map<QString, QByteArray> &right)
{
    QStringList names;
    for (const auto &[name, bytes] : left) {
        if (right.find(name) == right.end() || right.at(name) != bytes)
            names.append(name);
    }
    for (const auto &[name, bytes] : right) {
        if (left.find(name) == left.end())
            names.append(name);
    }
    return names.join(u'\n');
}

// Those that have a trap: another case of i, a comma in numbers, other digits in texts.
const QStringList locales{QStringLiteral("de_DE"), QStringLiteral("zh_CN"),
                          QStringLiteral("tr_TR")};

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The locales themselves, where the system can make them; the programs hear their names in
        // any case.
        const QString localedef = QStandardPaths::findExecutable(QStringLiteral("localedef"));
        for (const QString &name : locales) {
            if (!localedef.isEmpty() &&
                QFileInfo::exists(QStringLiteral("/usr/share/i18n/locales/") + name))
                run(localedef, {QStringLiteral("--no-archive"), QStringLiteral("-i"), name,
                                QStringLiteral("-f"), QStringLiteral("UTF-8"),
                                m_locales.filePath(name + QStringLiteral(".UTF-8"))});
        }
        qputenv("LOCPATH", m_locales.path().toUtf8());
    }

    // Texts

    void theFilesHaveTheTextsOfTheSources_data() { addFiles(); }
    void theFilesHaveTheTextsOfTheSources()
    {
        QFETCH(QString, file);
        const QTemporaryDir scratch;
        const QString copy = scratch.filePath(file);
        QVERIFY(QFile::copy(translations + file, copy));
        QStringList arguments{QStringLiteral("-silent"),
                              QStringLiteral("-locations"),
                              QStringLiteral("none"),
                              QStringLiteral("-no-obsolete"),
                              QStringLiteral("-source-language"),
                              QStringLiteral("en")};
        if (file.contains(QLatin1String("_en")))
            arguments.append(QStringLiteral("-pluralonly"));
        arguments +=
            {QStringLiteral(TARVO_SOURCE_DIR "/src/workbench"), QStringLiteral("-extensions"),
             QStringLiteral("cpp,h"), QStringLiteral("-ts"), copy};
        QVERIFY(run(QStringLiteral(TARVO_LUPDATE), arguments));
        const auto keys = [](const QString &path) {
            QStringList result;
            const QList<Text> texts = textsOf(path);
            for (const Text &text : texts)
                result.append(text.context + QStringLiteral(": ") + text.source);
            result.sort();
            return result;
        };
        const QStringList ours = keys(translations + file);
        const QStringList wanted = keys(copy);
        QVERIFY(wanted.size() >= 10);
        for (const QString &key : wanted)
            QVERIFY2(ours.contains(key), qPrintable(file + QStringLiteral(" lacks \"") + key +
                                                    QStringLiteral("\".") + updating));
        for (const QString &key : ours)
            QVERIFY2(wanted.contains(key),
                     qPrintable(QStringLiteral("Nothing shows \"") + key +
                                QStringLiteral("\" of ") + file + u'.' + updating));
    }

    void everyTextIsTranslated_data() { addFiles(); }
    void everyTextIsTranslated()
    {
        QFETCH(QString, file);
        const QList<Text> texts = textsOf(translations + file);
        QVERIFY(!texts.isEmpty());
        for (const Text &text : texts) {
            const bool isWhole =
                text.isFinished && !text.forms.isEmpty() && !text.forms.contains(QString());
            QVERIFY2(isWhole,
                     qPrintable(file + QStringLiteral(": \"") + text.source +
                                QStringLiteral("\" has no finished translation.") + updating));
        }
    }

    void translationsAgreeWithTheirSources_data() { addFiles(); }
    void translationsAgreeWithTheirSources()
    {
        QFETCH(QString, file);
        const QList<Text> texts = textsOf(translations + file);
        int compared = 0;
        for (const Text &text : texts) {
            for (const QString &form : text.forms) {
                const QString wrong = disagreement(text.source, form);
                QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("%1: %2 differ:\n%3\n%4")
                                                         .arg(file, wrong, text.source, form)));
                ++compared;
            }
        }
        QVERIFY(compared >= 10);
    }

    void noticesWhatATranslationLoses_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("translation");
        QTest::addColumn<bool>("agrees");
        const auto row = [](const char *name, const char *source, const char *translation,
                            bool agrees = false) {
            QTest::newRow(name) << QString::fromUtf8(source) << QString::fromUtf8(translation)
                                << agrees;
        };
        row("another order", "%1 of %2.", "%2的%1。", true);
        row("a place twice", "%1", "%1 (%1)", true);
        row("a key elsewhere", "&Open…", "Ö&ffnen…", true);
        row("a place that is lost", "%1 of %2", "%1");
        row("a place that there is not", "one", "%1");
        row("a lost number", "%n files", "Dateien");
        row("a lost key", "&Open…", "Öffnen…");
        row("a lost ellipsis", "&Open…", "Ö&ffnen");
        row("a lost colon", "&Name:", "&Name");
        row("a lost full stop", "It is.", "Es ist");
        row("a lost line end", "a\nb", "a b");
        row("lost mark-up", "<b>a</b>", "<b>a");
        row("a lost blank", " s", "s");
        row("another pattern", "All (*.v *.vh)", "Alle (*.v)");
    }
    void noticesWhatATranslationLoses()
    {
        QFETCH(QString, source);
        QFETCH(QString, translation);
        QFETCH(bool, agrees);
        QCOMPARE(disagreement(source, translation).isEmpty(), agrees);
    }

    // Choice

    void theLanguageIsTheWishOrTheSystems_data()
    {
        QTest::addColumn<QString>("wish");
        QTest::addColumn<QString>("system"); // separated by blanks
        QTest::addColumn<QString>("chosen");
        const auto row = [](const char *name, const char *wish, const char *system,
                            const char *chosen) {
            QTest::newRow(name) << QString::fromLatin1(wish) << QString::fromLatin1(system)
                                << QString::fromLatin1(chosen);
        };
        row("the wish", "de", "en-US", "de");
        row("English though the system is not", "en", "de-DE de", "en");
        row("the system's", "", "de-DE de", "de");
        row("the system's in another country", "", "de-AT de", "de");
        row("the system's second", "", "fr-FR fr de", "de");
        row("the system's first of ours", "", "en-GB en de", "en");
        row("simplified script", "", "zh-Hans-CN zh", "zh_CN");
        row("simplified script elsewhere", "", "zh-Hans-SG", "zh_CN");
        row("traditional script", "", "zh-Hant-TW", "en");
        row("none of ours", "", "fr-FR fr", "en");
        row("no system", "", "C", "en");
        row("an unknown wish", "tlh", "de", "de");
    }
    void theLanguageIsTheWishOrTheSystems()
    {
        QFETCH(QString, wish);
        QFETCH(QString, system);
        QFETCH(QString, chosen);
        QCOMPARE(Languages::chosen(wish, system.split(u' ')), chosen);
    }

    void everyLanguageShowsItsTexts()
    {
        const QVector<Languages::Choice> choices = Languages::available();
        QVERIFY(choices.size() >= 3);
        QCOMPARE(choices.first().code, QStringLiteral("en"));
        QSet<QString> seen;
        for (const Languages::Choice &choice : choices) {
            QVERIFY(!choice.name.isEmpty());
            const Languages language(choice.code);
            QCOMPARE(language.code(), choice.code);
            seen.insert(StartPage::tr("Recent projects"));
            // In English too, a number chooses its form.
            QVERIFY(MessageModel::tr("%1 (%n times)", nullptr, 1) != QLatin1String("%1 (1 times)"));
        }
        QCOMPARE(seen.size(), choices.size());
        QCOMPARE(StartPage::tr("Recent projects"), QStringLiteral("Recent projects"));
    }

    // Qt's translations are a package of their own, which may be absent.
    void buttonsAndMenusOfQtSpeakTheLanguageWithoutItsPackage()
    {
        const QTemporaryDir nothing;
        const auto english = textsOfQt();
        QVERIFY(english.size() > 40);
        for (const Languages::Choice &choice : Languages::available()) {
            if (choice.code == QLatin1String("en"))
                continue;
            QHash<QPair<QString, QString>, QString> translated;
            const QList<Text> ours =
                textsOf(translations + QStringLiteral("workbench_%1.ts").arg(choice.code));
            for (const Text &text : ours)
                translated.insert({text.context, text.source}, text.forms.value(0));
            const Languages language(choice.code, nothing.path());
            const auto shown = textsOfQt();
            QCOMPARE(shown.size(), english.size());
            for (int i = 0; i < shown.size(); ++i)
                QCOMPARE(shown.at(i).second, translated.value(english.at(i)));
            const PluginTexts plugin;
            QCOMPARE(textsOfQt(), english);
        }
    }

    void allThatQtSaysIsAmongOurTexts()
    {
        const QtListener listener;
        const auto shown = textsOfQt();
        askFileDialogs();
        askWidgets();
        const QSet<QPair<QString, QString>> heard = listener.heard();
        QSet<QPair<QString, QString>> ours;
        for (const QtText &text : qtTexts())
            ours.insert({QString::fromLatin1(text.context), QString::fromUtf8(text.text)});
        QCOMPARE(ours.size(), qtTexts().size());
        QStringList missing;
        for (const auto &[context, text] : heard) {
            // All keys there are, which Qt compares with those of a text; keys of a text; and what
            // is no text.
            if (context != QLatin1String("QShortcut") && !text.startsWith(QLatin1String("Alt+")) &&
                text != QLatin1String("QT_LAYOUT_DIRECTION") && !ours.contains({context, text}))
                missing.append(context + u' ' + text);
        }
        QCOMPARE(missing.join(u';'), QString());
        QStringList unheard;
        for (const auto &[context, text] : qAsConst(ours)) {
            // What only a desktop of that name asks, and what a deletion that is refused does.
            if (context != QLatin1String("QGnomeTheme") &&
                !text.contains(QLatin1String("delete")) && !heard.contains({context, text}))
                unheard.append(context + u' ' + text);
        }
        unheard.sort();
        QCOMPARE(unheard.join(QStringLiteral(";")), QString());
    }

    void purposesOfComponentsAreTranslated()
    {
        const QVector<Component> english = components();
        QVERIFY(english.size() > 15);
        for (const Languages::Choice &choice : Languages::available()) {
            if (choice.code == QLatin1String("en"))
                continue;
            const Languages language(choice.code);
            const QVector<Component> shown = components();
            for (int i = 0; i < english.size(); ++i) {
                QVERIFY2(shown.at(i).purpose != english.at(i).purpose,
                         qPrintable(shown.at(i).purpose));
                QCOMPARE(shown.at(i).licence, english.at(i).licence);
            }
        }
    }

    void whatIsSaidOfAPluginIsTranslatedAndGoesInEnglish()
    {
        const QStringList parts{QStringLiteral("%2 (a) It."),
                                Sayings::told(Sayings::WhenAskedForIps)};
        for (int i = 0; i < Sayings::Count; ++i) {
            const QString english = Sayings::told(Sayings::Saying(i), parts);
            QCOMPARE(Sayings::shown(english), english);
            const Languages german(QStringLiteral("de"));
            QCOMPARE(Sayings::told(Sayings::Saying(i), parts), english);
            const QString shown = Sayings::shown(english);
            QVERIFY2(shown != english, qPrintable(shown));
            QCOMPARE(shown.contains(parts.at(0)), english.contains(parts.at(0)));
            QVERIFY2(!shown.contains(parts.at(1)), qPrintable(shown));
        }
        const QString two =
            Sayings::told(Sayings::IpIsNone) + u' ' + Sayings::told(Sayings::IpTwice);
        QCOMPARE(Sayings::shown(two), two);
        const Languages german(QStringLiteral("de"));
        QCOMPARE(Sayings::shown(two), Sayings::shown(Sayings::told(Sayings::IpIsNone)) + u' ' +
                                          Sayings::shown(Sayings::told(Sayings::IpTwice)));
        QCOMPARE(Sayings::shown(QStringLiteral("It is something else.")),
                 QStringLiteral("It is something else."));
    }

    void whatTheProbeFindsIsShownTranslatedAndKeptInEnglish_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("english");
        const auto row = [](const char *kind, const char *english) {
            QTest::newRow(kind) << QString::fromLatin1(kind) << QString::fromLatin1(english);
        };
        row("printing-listing", "It did not stop printing when it was asked for its IPs.");
        row("crashing-starting", "It crashed while it was started (signal ");
        row("null", "One of its IPs is no object.");
    }
    void whatTheProbeFindsIsShownTranslatedAndKeptInEnglish()
    {
        QFETCH(QString, kind);
        QFETCH(QString, english);
        const QTemporaryDir dir;
        const QString kept = dir.filePath(QStringLiteral("probes.json"));
        const auto reason = [&] {
            IpCatalogue catalogue;
            catalogue.setProbeCache(kept);
            catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/") + kind, true);
            return catalogue.failures().isEmpty() ? QString() : catalogue.failures().first().reason;
        };
        {
            const Languages german(QStringLiteral("de"));
            const QString shown = reason();
            QVERIFY2(shown.startsWith(QLatin1String("E")) && !shown.startsWith(english),
                     qPrintable(shown)); // "Es …", "Eine …"
            QVERIFY2(!shown.contains(QLatin1String(" was ")), qPrintable(shown));
        }
        QVERIFY2(reason().startsWith(english), qPrintable(reason()));
    }

    void shownNumbersFollowTheChosenLanguage()
    {
        const QLocale before;
        QCOMPARE(Languages::locale().toString(1234567), QStringLiteral("1,234,567"));
        {
            const Languages german(QStringLiteral("de"));
            QCOMPARE(Languages::locale().toString(1234567), QStringLiteral("1.234.567"));
            QCOMPARE(QLocale().toString(1.5, 'f', 1), QStringLiteral("1,5"));
        }
        QCOMPARE(QLocale(), before);
        // The country stays the system's where the language is the same.
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Switzerland));
        {
            const Languages german(QStringLiteral("de"));
            QCOMPARE(QLocale().country(), QLocale::Switzerland);
        }
        QLocale::setDefault(before);
    }

    // What does not change

    void aPluginsDialogsAreTheSameInEveryLanguage()
    {
        const QTemporaryDir qtTexts;
        QStringList english;
        for (const Languages::Choice &choice : Languages::available()) {
            writeQtTexts(qtTexts.path(), choice.code);
            const Languages language(choice.code, qtTexts.path());
            Bench bench;
            bench.window->openProject(bench.makeProject());
            QStringList texts;
            int dialogs = 0;
            auto watcher = std::make_unique<ModalWatcher>([&](QWidget *modal) {
                ++dialogs;
                texts += textsIn(modal).replaceInStrings(bench.folder(), QStringLiteral("FOLDER"));
                auto *diagram = modal->findChild<QGraphicsView *>();
                if (!diagram || diagram->metaObject()->indexOfSlot("onCortexM1()") < 0)
                    static_cast<QDialog *>(modal)->reject();
                else if (!diagram->property("used").toBool())
                    QTimer::singleShot(0, diagram, [diagram] { useDiagram(diagram); });
            });
            bench.window->createSelectedIp(0);
            watcher.reset();
            QVERIFY2(dialogs > 10, qPrintable(QString::number(dialogs)));
            QVERIFY(texts.contains(QStringLiteral("OK")) || texts.contains(QStringLiteral("&OK")));
            if (english.isEmpty())
                english = texts;
            QCOMPARE(texts, english);
            // The workbench's own, and what the host shows without a plug-in's dialog.
            QCOMPARE(
                QDialogButtonBox(QDialogButtonBox::Cancel).button(QDialogButtonBox::Cancel)->text(),
                QStringLiteral("Qt: Cancel"));
            const auto boxes = textsOfBoxes([] {
                IPCore::makeDirs(QStringLiteral("/proc/none/ip"), QStringLiteral("ip"));
                IPCore::showErrorMsgs(QStringLiteral("title"), {QStringLiteral("line")});
            });
            QVERIFY2(boxes.contains(QLatin1String("OK")), qPrintable(boxes.join(u';')));
            QVERIFY2(!boxes.join(u';').contains(QLatin1String("Qt: ")),
                     qPrintable(boxes.join(u';')));
        }
    }

    void filesAreTheSameInEveryLanguage()
    {
        const FakeTool tool("erring");
        std::map<QString, QByteArray> first;
        const QLocale before;
        for (const char *pair : {"C en", "de_DE de", "zh_CN zh_CN", "tr_TR en", "tr_TR de"}) {
            const QStringList words = QString::fromLatin1(pair).split(u' ');
            const QByteArray name = words.at(0).toLatin1();
            std::setlocale(LC_ALL, name == "C" ? "C" : QByteArray(name + ".UTF-8").constData());
            QLocale::setDefault(QLocale(words.at(0)));
            std::map<QString, QByteArray> files;
            {
                const Languages language(words.at(1));
                files = filesOfWork();
            }
            std::setlocale(LC_ALL, "C");
            QLocale::setDefault(before);
            QVERIFY(files.size() > 5);
            if (first.empty())
                first = files;
            const QString changed = differences(first, files);
            QVERIFY2(changed.isEmpty(),
                     qPrintable(QString::fromLatin1(pair) + QStringLiteral(": ") + changed));
        }
    }

    void whatIsPrintedAndWrittenIsTheSameInEveryLocale()
    {
        std::map<QString, QByteArray> first;
        for (const QString &name : QStringList{QStringLiteral("C")} + locales) {
            const QTemporaryDir dir;
            const QString folder = QFileInfo(dir.path()).canonicalFilePath();
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("LC_ALL"),
                               name == QLatin1String("C") ? name : name + QStringLiteral(".UTF-8"));
            environment.insert(QStringLiteral("LANGUAGE"), name);
            environment.insert(QStringLiteral("HOME"), folder);
            environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder);
            int count = 0;
            const auto keep = [&](const char *program, const QStringList &arguments) {
                QProcess process;
                process.setProcessEnvironment(environment);
                process.setWorkingDirectory(folder);
                process.setProcessChannelMode(QProcess::MergedChannels);
                process.start(QLatin1String(program), arguments);
                QVERIFY(process.waitForFinished(60000));
                write(folder + QStringLiteral("/printed%1").arg(++count),
                      process.readAll() + QByteArray::number(process.exitCode()));
            };
            const auto words = [](const char *text) {
                return QString::fromLatin1(text).split(u' ');
            };
            keep(TARVO_COMMAND, {QStringLiteral("new"), QStringLiteral("--device"),
                                 QStringLiteral("TV5K-138B-PBGA484-C2/I1"),
                                 QStringLiteral("--language"), QStringLiteral("VHDL"),
                                 QStringLiteral("--set"), QStringLiteral("Enable GPIO=true"),
                                 QStringLiteral("--out"), QStringLiteral("ip")});
            for (const char *command :
                 {"generate --no-synth ip/tarvo_orix_m1.ipc", "export ip/tarvo_orix_m1.ipc --out e",
                  "check --json ip/tarvo_orix_m1.ipc", "show ip/tarvo_orix_m1.ipc",
                  "estimate --json ip/tarvo_orix_m1.ipc", "pins --json ip/tarvo_orix_m1.ipc",
                  "check --json ip/none.ipc", "--help-all"})
                keep(TARVO_COMMAND, words(command));
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
            for (const char *command :
                 {"--help", "--language", "--language xx", "--settings s.ini no.v",
                  "--settings s.ini --new-ip nothing", "--settings . --language de"})
                keep(TARVO_WORKBENCH, words(command));
            const std::map<QString, QByteArray> files = filesBelow(folder);
            QVERIFY(files.size() > 30);
            for (const auto &[path, bytes] : files) {
                if (path.startsWith(QLatin1String("/printed")))
                    QVERIFY2(bytes.size() > 20, qPrintable(path));
            }
            if (first.empty())
                first = files;
            const QString changed = differences(first, files);
            QVERIFY2(changed.isEmpty(), qPrintable(name + QStringLiteral(": ") + changed));
        }
    }

private:
    static void addFiles()
    {
        QTest::addColumn<QString>("file");
        for (const Languages::Choice &choice : Languages::available())
            QTest::newRow(qPrintable(choice.code))
                << QStringLiteral("workbench_%1.ts").arg(choice.code);
    }

    // Opens the dialogs of all blocks, which somebody else closes, and closes that of the IP.
    static void useDiagram(QGraphicsView *diagram)
    {
        diagram->setProperty("used", true);
        const QMetaObject *meta = diagram->metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() == QMetaMethod::Slot && method.parameterCount() == 0 &&
                method.name().startsWith("on"))
                method.invoke(diagram);
        }
        static_cast<QDialog *>(diagram->window())->reject();
    }

    // A project with an IP whose synthesis fails, and what stands in it then; of the settings, the
    // keys.
    static std::map<QString, QByteArray> filesOfWork()
    {
        Bench bench;
        bench.window->openProject(bench.makeProject());
        bool accepted = false;
        const ModalWatcher watcher([&accepted](QWidget *modal) {
            if (modal->findChild<QGraphicsView *>() && !accepted) {
                accepted = true;
                QTimer::singleShot(0, modal, [modal] {
                    Bench::ok(modal)->click();
                    static_cast<QDialog *>(modal)->reject();
                });
            } else if (auto *dialog = qobject_cast<QDialog *>(modal);
                       dialog && !modal->findChild<QGraphicsView *>()) {
                dialog->reject();
            }
        });
        bench.window->createSelectedIp(0);
        bench.window->close();
        std::map<QString, QByteArray> files = filesBelow(bench.folder() + QStringLiteral("/board"));
        for (auto &[name, bytes] : files)
            bytes.replace(bench.folder().toUtf8(), "FOLDER");
        bench.settings.sync();
        files[QStringLiteral("settings")] = bench.settings.allKeys().join(u'\n').toUtf8();
        return files;
    }

    QTemporaryDir m_locales;
};

TARVO_TEST_MAIN(QApplication, TestLanguages)
#include "tst_languages.moc"
