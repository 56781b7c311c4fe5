#include "aboutdialog.h"

#include "widgets/scrollingtext.h"
#include "widgets/symbolicon.h"

#include <ipcore/screenfit.h>
#include <synthesis/toolrun.h>

#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

constexpr int longestAnswer = 5000; // milliseconds

enum Column { Name, Version, Licence, Purpose, Package, ColumnCount };

} // namespace

AboutDialog::AboutDialog(const QString &version, const QStringList &plugins,
                         const QString &settingsFile, QWidget *parent)
    : QDialog(parent)
    , m_components(new QTreeWidget)
    , m_about(new QLabel)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowTitle(tr("About Tarvo Workbench"));
    m_lines = QStringList{tr("Tarvo Workbench %1").arg(version),
                          tr("Configures and generates IPs for FPGA designs."),
                          tr("Qt %1 (built with %2), %3")
                              .arg(QLatin1String(qVersion()), QStringLiteral(QT_VERSION_STR),
                                   QSysInfo::prettyProductName()),
                          tr("Settings: %1").arg(QDir::toNativeSeparators(settingsFile))};
    if (plugins.isEmpty())
        m_lines.append(tr("IPs: none"));
    for (const QString &plugin : plugins)
        m_lines.append(tr("IP: %1").arg(plugin));

    auto *icon = new QLabel;
    icon->setPixmap(applicationIcon().pixmap(64));
    icon->setAlignment(Qt::AlignTop);
    auto *text = new QLabel(m_lines.join(u'\n'));
    text->setObjectName(QStringLiteral("aboutText"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *top = new QHBoxLayout;
    top->addWidget(icon);
    top->addWidget(text, 1);

    m_components->setObjectName(QStringLiteral("componentList"));
    m_components->setAccessibleName(tr("Components"));
    m_components->setHeaderLabels(
        {tr("Component"), tr("Version"), tr("Licence"), tr("For"), tr("Debian package")});
    m_components->setRootIsDecorated(false);
    m_components->setAlternatingRowColors(true);
    const QVector<Component> all = components();
    for (const Component &component : all)
        addComponent(component);
    m_components->resizeColumnToContents(Name);
    m_components->setColumnWidth(Version, fontMetrics().averageCharWidth() * 16);
    // What is longer than a column stands below, of the component that is selected.
    for (const int column : {Purpose, Package})
        m_components->hideColumn(column);
    m_about->setObjectName(QStringLiteral("componentAbout"));
    m_about->setTextFormat(Qt::PlainText);
    m_about->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    connect(m_components, &QTreeWidget::currentItemChanged, this, &AboutDialog::showComponent);
    connect(m_components, &QTreeWidget::itemChanged, this,
            [this] { showComponent(m_components->currentItem()); });
    m_components->setCurrentItem(m_components->topLevelItem(0));

    auto *label = new QLabel(tr("&Components and their licences:"));
    label->setBuddy(m_components);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto *copy = buttons->addButton(tr("Co&py All"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("copyButton"));
    copy->setToolTip(tr("Puts all of this on the clipboard as text, for a report"));
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(report()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(label);
    layout->addWidget(m_components, 1);
    layout->addWidget(new ScrollingText(m_about, tr("About the component")));
    layout->addWidget(buttons);
    const QFontMetrics metrics = fontMetrics();
    resize(QSize(metrics.averageCharWidth() * 130, metrics.height() * 34)
               .boundedTo(IPCore::roomOnScreen(this)));
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::addComponent(const Component &component)
{
    auto *item = new QTreeWidgetItem(m_components);
    item->setText(Name, component.name);
    item->setText(Licence, component.licence);
    item->setText(Purpose, component.purpose);
    item->setText(Package, component.package);
    for (int column = 0; column < ColumnCount; ++column)
        item->setToolTip(column, item->text(column));
    if (!component.program.isEmpty())
        ask(item, component);
    else if (component.name.startsWith(QLatin1String("Qt 5")))
        item->setText(Version, QLatin1String(qVersion()));
}

void AboutDialog::showComponent(const QTreeWidgetItem *item)
{
    QStringList lines;
    for (const int column : {Version, Licence, Purpose, Package}) {
        if (item && !item->text(column).isEmpty())
            lines.append(m_components->headerItem()->text(column) + QLatin1String(": ") +
                         item->text(column));
    }
    m_about->setText(lines.join(u'\n'));
}

void AboutDialog::ask(QTreeWidgetItem *item, const Component &component)
{
    const QString program = QStandardPaths::findExecutable(component.program);
    if (program.isEmpty() || !QDir(m_folder.path()).mkpath(QStringLiteral("tmp"))) {
        item->setText(Version, tr("not found"));
        return;
    }
    item->setText(Version, tr("…"));
    item->setToolTip(Version, program);
    const Synthesis::ToolRun::Call call{component.name, program,
                                        QStringList(component.versionArgument), m_folder.path()};
    m_runs.push_back(std::make_unique<Synthesis::ToolRun>(call));
    Synthesis::ToolRun *run = m_runs.back().get();
    connect(run, &Synthesis::ToolRun::lineReceived, this, [this, item](const QString &line) {
        if (item->text(Version) != tr("…") || line.trimmed().isEmpty())
            return; // the first line has it
        item->setText(Version, line.trimmed());
        item->setToolTip(Version, item->toolTip(Version) + u'\n' + line.trimmed());
    });
    connect(run, &Synthesis::ToolRun::ended, this, [this, item] {
        if (item->text(Version) == tr("…"))
            item->setText(Version, tr("does not tell"));
    });
    QTimer::singleShot(longestAnswer, run, &Synthesis::ToolRun::stop);
    run->start();
}

QString AboutDialog::report() const
{
    QStringList lines = m_lines;
    for (int row = 0; row < m_components->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_components->topLevelItem(row);
        QStringList cells;
        for (const int column : {Name, Version, Licence, Package}) {
            if (!item->text(column).isEmpty())
                cells.append(item->text(column));
        }
        lines.append(cells.join(QLatin1String(", ")));
    }
    return lines.join(u'\n') + u'\n';
}

} // namespace Workbench
