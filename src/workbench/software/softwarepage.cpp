#include "softwarepage.h"

#include "paper.h"
#include "project/ipchead.h"
#include "softwarebrowser.h"
#include "softwaredocument.h"
#include "softwaremodel.h"
#include "widgets/fixedfont.h"
#include "widgets/focusforward.h"
#include "widgets/infobar.h"
#include "widgets/scrollingpage.h"
#include "widgets/scrollingtext.h"

#include <utils/boundedfile.h>
#include <utils/filebundle.h>
#include <utils/fileutils.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

enum Part { FilesPart, ProgramRow };

constexpr int previewLimit = 1 << 20; // bytes of a text

QLabel *makeLabel(const QString &name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(1); // a long text must not push the buttons off the window
    return label;
}

} // namespace

SoftwarePage::SoftwarePage(const Source &source, const QString &ipcFile, QWidget *parent)
    : QWidget(parent)
    , m_source(source)
    , m_ipcFile(ipcFile)
    , m_model(new SoftwareModel(this))
    , m_infoBar(new InfoBar)
    , m_parts(new QTabBar)
    , m_stack(new QStackedWidget)
    , m_program(new ProgramPart(source.program, ipcFile))
    , m_heading(makeLabel(QStringLiteral("softwareHeading")))
    , m_about(makeLabel(QStringLiteral("softwareAbout")))
    , m_tree(new QTreeView)
    , m_title(makeLabel(QStringLiteral("formatTitle")))
    , m_purpose(makeLabel(QStringLiteral("formatPurpose")))
    , m_preview(new QStackedWidget)
    , m_text(new QPlainTextEdit)
    , m_document(new SoftwareBrowser)
    , m_message(makeLabel(QStringLiteral("previewMessage")))
    , m_told(makeLabel(QStringLiteral("exportTold")))
    , m_folder(new QLineEdit)
    , m_browse(new QPushButton(tr("&Browse…")))
    , m_check(new QPushButton(tr("Chec&k")))
    , m_pdf(new QPushButton(tr("Save as P&DF…")))
    , m_export(new QPushButton(tr("E&xport")))
{
    setObjectName(QStringLiteral("softwarePage"));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    m_heading->setFont(large);
    // A usual name is whole.
    m_heading->setMinimumWidth(
        qMin(QFontMetrics(large).horizontalAdvance(QFileInfo(ipcFile).fileName()),
             fontMetrics().averageCharWidth() * 30));
    m_heading->setText(tr("Hand-off of %1").arg(QFileInfo(ipcFile).fileName()));

    auto *left = new QWidget;
    buildLeft(left);
    auto *right = new QWidget;
    buildRight(right);
    auto *halves = new QSplitter(Qt::Horizontal);
    halves->setObjectName(QStringLiteral("handOffSplitter"));
    halves->addWidget(left);
    halves->addWidget(right);
    // Sizes are shares until the page has one of its own.
    halves->setSizes({1000, 1300});
    halves->setChildrenCollapsible(false);
    auto *files = new QWidget;
    auto *filesLayout = new QVBoxLayout(files);
    filesLayout->setContentsMargins(0, 0, 0, 0);
    filesLayout->addWidget(halves, 1);
    buildFolderRow(filesLayout);
    m_stack->addWidget(files);
    m_stack->addWidget(m_program);
    m_parts->setObjectName(QStringLiteral("softwareParts"));
    m_parts->setAccessibleName(tr("Parts of the page"));
    m_parts->setDrawBase(false);
    m_parts->addTab(tr("File&s"));
    m_parts->addTab(tr("Pro&gram"));
    m_parts->setTabToolTip(ProgramRow, tr("A program for the memory of the IP"));
    connect(m_parts, &QTabBar::currentChanged, m_stack, &QStackedWidget::setCurrentIndex);
    auto *layout = new QVBoxLayout(ScrollingPage::fill(this));
    auto *head = new QHBoxLayout; // a row of their own would cost small screens the preview
    head->addWidget(m_heading, 1);
    head->addWidget(m_parts);
    layout->addLayout(head);
    layout->addWidget(m_about);
    layout->addWidget(m_infoBar);
    layout->addWidget(m_stack, 1);
    forwardFocus(this, m_tree);

    m_heading->setToolTip(QDir::toNativeSeparators(ipcFile));
    m_folder->setText(QStringLiteral("software"));
    // A file that is replaced is away for a moment: look when it is quiet.
    m_diskTimer.setSingleShot(true);
    m_diskTimer.setInterval(100);
    const auto look = [this] { m_diskTimer.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, look);
    connect(&m_diskTimer, &QTimer::timeout, this, [this] {
        if (isVisible())
            checkDisk();
        watch();
    });
    watch();
}

void SoftwarePage::buildLeft(QWidget *left)
{
    m_tree->setObjectName(QStringLiteral("softwareTree"));
    m_tree->setAccessibleName(tr("Formats and their files"));
    m_tree->setModel(m_model);
    m_tree->setUniformRowHeights(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setMinimumHeight(fontMetrics().height() * 3);
    // What stands in the folder is seen in any case, and enough of the names.
    m_tree->setTextElideMode(Qt::ElideMiddle);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionsMovable(false);
    m_tree->setIndentation(qMin(m_tree->indentation(), fontMetrics().height() * 3 / 4));
    m_tree->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    m_tree->header()->setSectionResizeMode(SoftwareModel::NameColumn, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(SoftwareModel::StateColumn,
                                           QHeaderView::ResizeToContents);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &SoftwarePage::showSelected);
    connect(m_model, &SoftwareModel::choiceChanged, this, &SoftwarePage::refreshButtons);
    auto *name = new QLabel(tr("For&mats to export:"));
    name->setBuddy(m_tree);
    auto *layout = new QVBoxLayout(left);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(name);
    layout->addWidget(m_tree, 1);
}

void SoftwarePage::buildRight(QWidget *right)
{
    QFont bold = font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_purpose->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setObjectName(QStringLiteral("softwareText"));
    m_text->setAccessibleName(tr("Contents of the file"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setTabChangesFocus(true);
    m_text->setFont(fixedFont());
    m_text->setTabStopDistance(8 * m_text->fontMetrics().horizontalAdvance(u' '));
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setMargin(fontMetrics().height());
    m_preview->setObjectName(QStringLiteral("softwarePreview"));
    m_preview->addWidget(m_message);
    m_preview->addWidget(m_text);
    m_preview->addWidget(m_document);
    m_preview->setMinimumHeight(fontMetrics().height() * 3);
    m_preview->setFrameShape(QFrame::StyledPanel);
    m_text->setFrameShape(QFrame::NoFrame);
    connect(m_document, &SoftwareBrowser::fileRequested, this, &SoftwarePage::select);
    auto *layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_title);
    layout->addWidget(new ScrollingText(m_purpose, tr("About the format")));
    layout->addWidget(m_preview, 1);
}

void SoftwarePage::buildFolderRow(QVBoxLayout *layout)
{
    m_folder->setObjectName(QStringLiteral("exportFolderEdit"));
    m_browse->setObjectName(QStringLiteral("exportFolderButton"));
    m_browse->setAccessibleName(tr("Choose the folder"));
    m_check->setObjectName(QStringLiteral("checkButton"));
    m_check->setToolTip(tr("Compares the files in the folder with those shown; writes nothing"));
    m_pdf->setObjectName(QStringLiteral("pdfButton"));
    m_pdf->setToolTip(tr("Puts the document of the selected format on pages of A4"));
    m_export->setObjectName(QStringLiteral("exportButton"));
    m_export->setToolTip(tr("Writes the files of the chosen formats into the folder"));
    m_told->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_folder, &QLineEdit::textChanged, this, &SoftwarePage::refreshButtons);
    connect(m_folder, &QLineEdit::editingFinished, this, &SoftwarePage::showStates);
    connect(m_browse, &QPushButton::clicked, this, &SoftwarePage::chooseFolder);
    connect(m_check, &QPushButton::clicked, this, &SoftwarePage::check);
    connect(m_pdf, &QPushButton::clicked, this, &SoftwarePage::choosePdf);
    connect(m_export, &QPushButton::clicked, this, &SoftwarePage::exportFiles);
    auto *name = new QLabel(tr("Folde&r:"));
    name->setBuddy(m_folder);
    auto *place = new QHBoxLayout;
    place->addWidget(name);
    place->addWidget(m_folder, 1);
    place->addWidget(m_browse);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_told, 1);
    buttons->addWidget(m_pdf);
    buttons->addWidget(m_check);
    buttons->addWidget(m_export);
    layout->addLayout(place);
    layout->addLayout(buttons);
}

ProgramPart *SoftwarePage::programPart() const
{
    return m_parts->isHidden() ? nullptr : m_program;
}

void SoftwarePage::showProgram()
{
    if (programPart())
        m_parts->setCurrentIndex(ProgramRow);
}

void SoftwarePage::refreshProgram()
{
    const bool isOffered = m_source.program.isOffered();
    m_parts->setVisible(isOffered);
    if (isOffered)
        m_program->refresh();
    else
        m_parts->setCurrentIndex(FilesPart);
}

QString SoftwarePage::folder() const
{
    const QString text = QDir::fromNativeSeparators(m_folder->text().trimmed());
    if (text.isEmpty())
        return {};
    return QDir::cleanPath(QFileInfo(m_ipcFile).absoluteDir().absoluteFilePath(text));
}

void SoftwarePage::setFolder(const QString &folder)
{
    m_folder->setText(QDir::toNativeSeparators(folder));
    showStates();
}

void SoftwarePage::select(const QString &path)
{
    const QModelIndex index = m_model->indexOf(path);
    if (!index.isValid())
        return;
    m_tree->expand(index.parent());
    m_tree->setCurrentIndex(index);
    m_tree->scrollTo(index);
}

bool SoftwarePage::showPlace(const QString &path, const QStringList &headings)
{
    checkDisk();
    m_parts->setCurrentIndex(FilesPart);
    select(path);
    const SoftwareFile *shown = m_model->file(m_tree->currentIndex());
    if (!shown || shown->path != path || m_preview->currentWidget() != m_document) {
        if (!m_model->files().isEmpty())
            tell({tr("There is no document %1 among the files.").arg(path)});
        return false;
    }
    m_document->setFocus();
    if (headings.isEmpty() || m_document->goTo(headings))
        return true;
    tell({tr("The document has no heading \"%1\".").arg(headings.last())});
    return false;
}

// The configuration and, since a file that is replaced is forgotten, its folder.
void SoftwarePage::watch()
{
    const QString folder = QFileInfo(m_ipcFile).absolutePath();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString &path : {m_ipcFile, folder}) {
        if (!watched.contains(path) && QFileInfo::exists(path))
            m_watcher.addPath(path);
    }
}

void SoftwarePage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    checkDisk();
    showStates();
}

void SoftwarePage::checkDisk()
{
    const Utils::Result<QByteArray> bytes = Utils::readConfigurationFile(m_ipcFile);
    if (m_isRead && bytes && *bytes == m_configuration)
        return;
    const bool isFirst = !m_isRead;
    const QString before = m_device;
    const QVector<SoftwareFile> files = m_model->files();
    m_isRead = bool(bytes);
    m_configuration = bytes ? *bytes : QByteArray();
    refreshProgram();
    if (!bytes) {
        fail(bytes.reason());
        return;
    }
    readAnew();
    if (isFirst || m_model->files().isEmpty())
        return;
    if (m_device != before)
        m_infoBar->showMessage(
            tr("The IP is for the device %1 now. The files shown are made anew.").arg(m_device),
            {});
    else if (m_model->files() != files)
        m_infoBar->showMessage(tr("The configuration has changed. The files shown are made anew."),
                               {});
}

void SoftwarePage::readAnew()
{
    m_device = IpcHead::of(m_configuration).deviceWords();
    m_about->setText(m_device.isEmpty() ? QString() : tr("For the device %1.").arg(m_device));
    const Utils::Result<QVector<SoftwareFormat>> formats = m_source.formats();
    if (!formats) {
        fail(formats.reason());
        return;
    }
    const Utils::Result<SoftwareSet::Answer> made = m_source.files(*formats);
    if (!made || !made->error.isEmpty()) {
        fail(made ? made->error : made.reason());
        return;
    }
    m_manifest = made->manifest;
    const QModelIndex current = m_tree->currentIndex();
    const SoftwareFile *shown = m_model->file(current);
    const QString path = shown ? shown->path : QString();
    const int row = current.isValid() && !current.parent().isValid() ? current.row() : 0;
    const bool wasEmpty = m_model->formats().isEmpty();
    QStringList open;
    for (int i = 0; i < m_model->formats().size(); ++i) {
        if (m_tree->isExpanded(m_model->index(i, 0)))
            open.append(m_model->formats().at(i).name);
    }
    m_model->setSet(*formats, made->files);
    if (wasEmpty) {
        const QStringList groups = Utils::bundleGroups(folder(), m_manifest);
        if (!groups.isEmpty())
            m_model->choose(groups);
    }
    for (int i = 0; i < formats->size(); ++i)
        m_tree->setExpanded(m_model->index(i, 0), wasEmpty || open.contains(formats->at(i).name));
    const QModelIndex before = m_model->indexOf(path);
    m_tree->setCurrentIndex(before.isValid() ? before : m_model->index(row, 0));
    showStates();
    showSelected();
}

void SoftwarePage::fail(const QString &reason)
{
    m_infoBar->hide();
    m_model->setSet({}, {});
    tell({});
    m_title->clear();
    m_purpose->clear();
    showMessage(reason);
    refreshButtons();
}

void SoftwarePage::showMessage(const QString &text)
{
    m_document->forget();
    m_text->clear();
    m_message->setText(text);
    m_preview->setCurrentWidget(m_message);
}

void SoftwarePage::showSelected()
{
    const QModelIndex index = m_tree->currentIndex();
    if (m_model->formats().isEmpty())
        return;
    const SoftwareFormat *format = m_model->format(index);
    const QString title = format ? format->title : QString();
    m_title->setText(title);
    QStringList lines;
    if (format) {
        QStringList facts;
        if (!format->purpose.isEmpty())
            lines.append(format->purpose);
        if (!format->standard.isEmpty())
            facts.append(tr("Standard: %1.").arg(format->standard));
        if (!format->checkedBy.isEmpty())
            facts.append(tr("Checked by: %1.").arg(format->checkedBy));
        if (!facts.isEmpty())
            lines.append(facts.join(u' '));
    }
    m_purpose->setText(lines.join(u'\n'));
    m_purpose->setVisible(!lines.isEmpty());
    const SoftwareFile *file = m_model->file(index);
    if (!file && format && m_model->rowCount(index) > 0)
        file = m_model->file(m_model->index(0, 0, index));
    if (file)
        showFile(*file);
    else if (format)
        showMessage(tr("This configuration gives the format nothing to hand on."));
    else
        showMessage(tr("No format has this file any more."));
    refreshButtons();
}

void SoftwarePage::showFile(const SoftwareFile &file)
{
    QString reason;
    if (SoftwareSet::isDocument(file) || SoftwareSet::isPicture(file)) {
        if (m_document->showFile(m_model->files(), file.path, &reason)) {
            m_text->clear();
            m_preview->setCurrentWidget(m_document);
            return;
        }
    }
    if (!SoftwareSet::isText(file.bytes)) {
        showMessage(tr("%1 is no text: %2 bytes.").arg(file.path).arg(file.bytes.size()));
        return;
    }
    QString text = QString::fromUtf8(file.bytes.left(previewLimit));
    if (file.bytes.size() > previewLimit)
        text += u'\n' + tr("… and %n more bytes", nullptr, file.bytes.size() - previewLimit);
    m_document->forget();
    m_text->setPlainText(text);
    m_preview->setCurrentWidget(m_text);
    if (!reason.isEmpty())
        tell({reason});
}

Utils::Bundle SoftwarePage::bundle() const
{
    Utils::Bundle bundle;
    bundle.folder = folder();
    bundle.manifest = m_manifest;
    bundle.groups = m_model->chosen();
    // An export of all is all that the folder is to hold.
    bundle.keepsOtherGroups = bundle.groups.size() < m_model->formats().size();
    const QVector<SoftwareFile> files = m_model->chosenFiles();
    for (const SoftwareFile &file : files)
        bundle.files.append({file.path, file.bytes, file.format});
    return bundle;
}

// Of all formats, so that the choice can be made by it.
void SoftwarePage::showStates()
{
    if (m_model->formats().isEmpty() || folder().isEmpty()) {
        m_model->setStates({});
        return;
    }
    Utils::Bundle all = bundle();
    all.files.clear();
    all.groups.clear();
    all.keepsOtherGroups = false;
    for (const SoftwareFormat &format : m_model->formats())
        all.groups.append(format.name);
    for (const SoftwareFile &file : m_model->files())
        all.files.append({file.path, file.bytes, file.format});
    const Utils::Result<Utils::BundleReport> report = Utils::checkBundle(all);
    m_model->setStates(report ? report->entries : QVector<Utils::BundleEntry>());
}

void SoftwarePage::refreshButtons()
{
    const bool hasFolder = !folder().isEmpty();
    const bool hasChoice = !m_model->chosen().isEmpty();
    m_folder->setToolTip(hasFolder
                             ? tr("%1. Made when it is needed; other files in it stay as they are")
                                   .arg(QDir::toNativeSeparators(folder()))
                             : tr("A folder, or one beside the configuration"));
    m_check->setEnabled(hasFolder && hasChoice);
    m_export->setEnabled(hasFolder && hasChoice);
    m_pdf->setEnabled(!documentPath().isEmpty());
}

// A report may be long; what the window has no room for is in the tool tip.
void SoftwarePage::tell(const QStringList &sentences)
{
    constexpr int room = 3;
    QStringList shown = sentences.mid(0, room);
    if (sentences.size() > room)
        shown.last() += u' ' + tr("%n more in the tool tip.", nullptr, sentences.size() - room);
    m_told->setText(shown.join(u'\n'));
    m_told->setToolTip(sentences.size() > room
                           ? QLatin1String("<p>") + sentences.join(u'\n').toHtmlEscaped().replace(
                                                        u'\n', QLatin1String("<br>"))
                           : QString());
}

void SoftwarePage::check()
{
    checkDisk();
    showStates();
    if (!m_check->isEnabled())
        return;
    const Utils::Result<Utils::BundleReport> report = Utils::checkBundle(bundle());
    if (!report) {
        tell({report.reason()});
        return;
    }
    QStringList sentences;
    if (report->isFresh()) {
        sentences.append(tr("All files are there as they are made now."));
    } else {
        QStringList counts;
        using State = Utils::BundleEntry;
        const QVector<QPair<State::State, QString>> words = {
            {State::Missing, tr("missing")},
            {State::Stale, tr("stale")},
            {State::Edited, tr("edited")},
            {State::LeftOver, tr("left over")},
            {State::LeftOverEdited, tr("left over and edited")}};
        for (const auto &[state, word] : words) {
            if (const int count = report->count(state); count > 0)
                counts.append(QStringLiteral("%1 %2").arg(count).arg(word));
        }
        sentences.append(tr("Of %1 files: %2.")
                             .arg(report->entries.size())
                             .arg(counts.join(QLatin1String(", "))));
    }
    sentences.append(report->messages);
    tell(sentences);
}

bool SoftwarePage::exportFiles()
{
    checkDisk();
    if (!m_export->isEnabled())
        return false;
    const Utils::Result<Utils::BundleReport> report = Utils::writeBundle(bundle());
    showStates();
    if (!report) {
        tell({report.reason()});
        return false;
    }
    using State = Utils::BundleEntry;
    const int removed = report->count(State::LeftOver);
    const int written =
        report->count(State::Missing) + report->count(State::Stale) + report->count(State::Edited);
    QStringList sentences;
    sentences.append(written == 0
                         ? tr("All files were there already; nothing is written.")
                         : tr("%n files are written, %1 were there already.", nullptr, written)
                               .arg(report->count(State::Fresh)));
    if (removed > 0)
        sentences.append(tr("%n files of earlier exports are removed.", nullptr, removed));
    sentences.append(report->messages);
    tell(sentences);
    return true;
}

void SoftwarePage::chooseFolder()
{
    QString start = folder();
    while (!start.isEmpty() && !QFileInfo(start).isDir() && start != QFileInfo(start).path())
        start = QFileInfo(start).path();
    const QString chosen =
        QFileDialog::getExistingDirectory(this, tr("Folder for the files"), start);
    if (!chosen.isEmpty())
        setFolder(chosen);
}

QString SoftwarePage::documentPath() const
{
    const QModelIndex index = m_tree->currentIndex();
    if (const SoftwareFile *file = m_model->file(index); file && SoftwareSet::isDocument(*file))
        return file->path;
    const SoftwareFormat *format = m_model->format(index);
    if (!format)
        return {};
    for (const SoftwareFile &file : m_model->files()) {
        if (file.format == format->name && SoftwareSet::isDocument(file))
            return file.path;
    }
    return {};
}

void SoftwarePage::choosePdf()
{
    const QString path = documentPath();
    const QString proposal = QFileInfo(m_ipcFile).absolutePath() + u'/' +
                             QFileInfo(path).completeBaseName() + QStringLiteral(".pdf");
    const QString chosen = QFileDialog::getSaveFileName(this, tr("Save as PDF"), proposal,
                                                        tr("PDF documents (*.pdf)"));
    if (chosen.isEmpty())
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor); // a long document takes a second
    savePdf(chosen);
    QApplication::restoreOverrideCursor();
}

bool SoftwarePage::savePdf(const QString &path)
{
    const QString document = documentPath();
    if (document.isEmpty())
        return false;
    SoftwareDocument paper(m_model->files(), document);
    paper.setDefaultFont(font());
    const Utils::Result<QByteArray> pdf = pdfOf(&paper);
    QString error = pdf.reason();
    if (!pdf || !Utils::FileUtils::writeFile(path, *pdf, &error)) {
        tell({error});
        return false;
    }
    tell({tr("The document is in \"%1\".").arg(QDir::toNativeSeparators(path))});
    return true;
}

} // namespace Workbench
