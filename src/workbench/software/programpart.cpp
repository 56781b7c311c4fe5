#include "programpart.h"

#include <reading/limits.h>
#include <utils/boundedfile.h>
#include <utils/fileplacement.h>

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace Workbench
{

ProgramPart::ProgramPart(const Source &source, const QString &ipcFile, QWidget *parent)
    : QWidget(parent)
    , m_source(source)
    , m_ipcFile(ipcFile)
    , m_image(new QLineEdit)
    , m_browseImage(new QPushButton(tr("&Browse…")))
    , m_folder(new QLineEdit)
    , m_browseFolder(new QPushButton(tr("Bro&wse…")))
    , m_initialize(new QCheckBox(tr("Let the config&uration start from them")))
    , m_write(new QPushButton(tr("Make the F&iles")))
    , m_told(new QPlainTextEdit)
{
    setObjectName(QStringLiteral("programPart"));
    m_image->setObjectName(QStringLiteral("programEdit"));
    m_image->setPlaceholderText(tr("the linked program, as the compiler leaves it"));
    m_browseImage->setObjectName(QStringLiteral("programButton"));
    m_browseImage->setAccessibleName(tr("Choose the program"));
    m_folder->setObjectName(QStringLiteral("programFolderEdit"));
    m_browseFolder->setObjectName(QStringLiteral("programFolderButton"));
    m_browseFolder->setAccessibleName(tr("Choose the folder of the program's files"));
    m_initialize->setObjectName(QStringLiteral("programInitializeBox"));
    m_initialize->setToolTip(
        tr("Sets the options of the configuration for it; a copy of the old one is kept"));
    m_initialize->setChecked(true);
    m_write->setObjectName(QStringLiteral("programWriteButton"));
    m_write->setToolTip(tr("Checks that the program fits, and writes the files of the memory"));
    m_told->setObjectName(QStringLiteral("programTold"));
    m_told->setAccessibleName(tr("What became of the program"));
    m_told->setReadOnly(true);
    m_told->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_told->setTabChangesFocus(true);
    m_told->setMinimumHeight(fontMetrics().height() * 3);

    auto *about = new QLabel(tr("Makes the files from which the memory of the IP starts with a "
                                "program, and checks that the program fits."));
    about->setObjectName(QStringLiteral("programAbout"));
    about->setWordWrap(true);
    about->setMinimumWidth(1);
    auto *grid = new QGridLayout;
    buildRow(grid, 0, tr("Progra&m:"), m_image, m_browseImage);
    buildRow(grid, 1, tr("Folde&r:"), m_folder, m_browseFolder);
    grid->addWidget(m_initialize, 2, 0, 1, 2); // a long text, in a narrow page as well
    grid->addWidget(m_write, 2, 2);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(about);
    layout->addLayout(grid);
    layout->addWidget(m_told, 1);

    connect(m_image, &QLineEdit::textChanged, this, &ProgramPart::refreshButtons);
    connect(m_folder, &QLineEdit::textChanged, this, &ProgramPart::refreshButtons);
    connect(m_folder, &QLineEdit::textEdited, this, [this] { m_isOwnFolder = true; });
    connect(m_browseImage, &QPushButton::clicked, this, &ProgramPart::chooseImage);
    connect(m_browseFolder, &QPushButton::clicked, this, &ProgramPart::chooseFolder);
    connect(m_write, &QPushButton::clicked, this, &ProgramPart::writeFiles);
    refreshButtons();
}

void ProgramPart::buildRow(QGridLayout *grid, int row, const QString &name, QLineEdit *edit,
                           QPushButton *browse)
{
    auto *label = new QLabel(name);
    label->setBuddy(edit);
    grid->addWidget(label, row, 0);
    grid->addWidget(edit, row, 1);
    grid->addWidget(browse, row, 2);
}

// What is not a full path is beside the configuration.
QString ProgramPart::fullPath(const QLineEdit *edit) const
{
    const QString text = QDir::fromNativeSeparators(edit->text().trimmed());
    if (text.isEmpty())
        return {};
    return QDir::cleanPath(QFileInfo(m_ipcFile).absoluteDir().absoluteFilePath(text));
}

QString ProgramPart::shownPath(const QString &path) const
{
    const QString folder = QFileInfo(m_ipcFile).absolutePath() + u'/';
    return QDir::toNativeSeparators(path.startsWith(folder) ? path.mid(folder.size()) : path);
}

QString ProgramPart::image() const
{
    return fullPath(m_image);
}

void ProgramPart::setImage(const QString &path)
{
    m_image->setText(QDir::toNativeSeparators(path));
}

QString ProgramPart::folder() const
{
    return fullPath(m_folder);
}

void ProgramPart::setFolder(const QString &folder)
{
    m_isOwnFolder = true;
    m_folder->setText(QDir::toNativeSeparators(folder));
}

QString ProgramPart::told() const
{
    return m_told->toPlainText();
}

void ProgramPart::refresh()
{
    if (m_isOwnFolder)
        return;
    // A failure comes up again, and is told, when the files are made.
    const Utils::Result<SoftwareSet::Start> start = startFrom({}, false);
    if (start)
        m_folder->setText(shownPath(start->folder));
}

void ProgramPart::refreshButtons()
{
    const auto describe = [this](QLineEdit *edit, const QString &what) {
        const QString path = fullPath(edit);
        edit->setToolTip(path.isEmpty() ? what : QDir::toNativeSeparators(path));
    };
    describe(m_image, tr("A file, or one beside the configuration"));
    describe(m_folder, tr("A folder, or one beside the configuration"));
    m_write->setEnabled(!image().isEmpty() && !folder().isEmpty());
}

Utils::Result<SoftwareSet::Start> ProgramPart::startFrom(const QString &folder, bool write) const
{
    Utils::Result<SoftwareSet::Start> start = m_source.start(folder, write);
    if (start && !start->error.isEmpty())
        return Utils::Failure{start->error};
    return start;
}

// The sentences that tell of success, or why nothing has changed.
Utils::Result<QStringList> ProgramPart::run()
{
    const Utils::Result<QByteArray> bytes =
        Utils::readBoundedFile(image(), Reading::Limits::firmwareImage);
    if (!bytes)
        return Utils::Failure{bytes.reason()};
    const Utils::Result<SoftwareSet::Program> program = m_source.files(*bytes);
    if (!program || !program->error.isEmpty())
        return Utils::Failure{program ? program->error : program.reason()};
    const bool isTicked = m_initialize->isChecked();
    const Utils::Result<SoftwareSet::Start> start = startFrom(folder(), false);
    if (!start && isTicked)
        return Utils::Failure{start.reason()};
    const bool changes = isTicked && start->changed;
    if (QString error; changes && !m_source.keep(&error))
        return Utils::Failure{
            tr("Nothing is written, because no copy of the configuration can be kept. %1")
                .arg(error)};
    Utils::FilePlacement placement;
    if (const Utils::Result<void> placed = placement.place(folder(), program->files); !placed)
        return Utils::Failure{placed.reason()};
    if (changes) {
        if (const auto written = startFrom(folder(), true); !written) {
            placement.revert();
            return Utils::Failure{written.reason()};
        }
    }
    QStringList sentences;
    sentences.append(tr("%1 of %2 bytes are used, %3 are free.")
                         .arg(program->used)
                         .arg(program->size)
                         .arg(program->free()));
    for (const QString &warning : program->warnings)
        sentences.append(tr("Warning: %1").arg(warning));
    QStringList names;
    for (const Utils::PlacedFile &file : program->files)
        names.append(file.name);
    sentences.append(tr("The files %1 are in \"%2\".")
                         .arg(names.join(QLatin1String(", ")))
                         .arg(QDir::toNativeSeparators(folder())));
    if (changes)
        sentences.append(tr("The configuration starts from them now; generate it anew."));
    else if (start && !start->changed)
        sentences.append(tr("The configuration starts from them already; generate it anew."));
    else
        sentences.append(tr("The configuration does not start from them."));
    return sentences;
}

bool ProgramPart::writeFiles()
{
    if (!m_write->isEnabled())
        return false;
    const Utils::Result<QStringList> sentences = run();
    m_told->setPlainText(sentences ? sentences->join(u'\n') : sentences.reason());
    return bool(sentences);
}

void ProgramPart::chooseImage()
{
    const QString before = image();
    const QString chosen = QFileDialog::getOpenFileName(
        this, tr("Program"), before.isEmpty() ? QFileInfo(m_ipcFile).absolutePath() : before,
        tr("Programs (*.elf *.axf *.out *.hex *.ihex *.bin);;All files (*)"));
    if (!chosen.isEmpty())
        setImage(chosen);
}

void ProgramPart::chooseFolder()
{
    QString start = folder();
    while (!start.isEmpty() && !QFileInfo(start).isDir() && start != QFileInfo(start).path())
        start = QFileInfo(start).path();
    const QString chosen =
        QFileDialog::getExistingDirectory(this, tr("Folder for the program's files"), start);
    if (!chosen.isEmpty())
        setFolder(chosen);
}

} // namespace Workbench
