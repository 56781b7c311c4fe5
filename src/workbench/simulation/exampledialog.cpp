#include "exampledialog.h"

#include "exampleproject.h"
#include "project/project.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Workbench
{

ExampleDialog::ExampleDialog(const SimulationExample &example, const QString &location,
                             QWidget *parent)
    : QDialog(parent)
    , m_example(example)
    , m_folder(
          new QLineEdit(QDir::toNativeSeparators(ExampleProject::freeFolder(example, location))))
    , m_hint(new QLabel)
{
    setWindowTitle(tr("Open the Example"));
    auto *about = new QLabel(
        tr("Makes a project of your own with a copy of the example. %1").arg(example.purpose));
    about->setTextFormat(Qt::PlainText);
    about->setWordWrap(true);
    m_folder->setObjectName(QStringLiteral("exampleFolderEdit"));
    m_hint->setObjectName(QStringLiteral("exampleHint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    auto *name = new QLabel(tr("&Folder:"));
    name->setBuddy(m_folder);
    auto *browseButton = new QPushButton(tr("&Browse…"));
    browseButton->setAutoDefault(false);
    browseButton->setAccessibleName(tr("Choose the folder that the copy is made in"));
    connect(browseButton, &QPushButton::clicked, this, &ExampleDialog::browse);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("&Make the Project"));
    m_ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QGridLayout(this);
    layout->addWidget(about, 0, 0, 1, 3);
    layout->addWidget(name, 1, 0);
    layout->addWidget(m_folder, 1, 1);
    layout->addWidget(browseButton, 1, 2);
    layout->addWidget(m_hint, 2, 0, 1, 3);
    layout->addWidget(buttons, 3, 0, 1, 3);
    layout->setRowStretch(2, 1);
    m_folder->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    connect(m_folder, &QLineEdit::textChanged, this, &ExampleDialog::check);
    m_ok->setFocus();
    check();
}

QString ExampleDialog::folder() const
{
    const QString text = QDir::fromNativeSeparators(m_folder->text().trimmed());
    return text.isEmpty() ? QString() : QDir::cleanPath(text);
}

void ExampleDialog::browse()
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Make the Project In"),
                                                             QFileInfo(folder()).path());
    if (!chosen.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(ExampleProject::freeFolder(m_example, chosen)));
}

void ExampleDialog::check()
{
    const QFileInfo info(folder());
    QString hint;
    if (!QDir::isAbsolutePath(folder()))
        hint = tr("Choose a folder with its full path.");
    else if (info.exists() || info.isSymLink())
        hint = tr("This folder exists already, and nothing in it is replaced. Choose a new one.");
    else
        hint = Project::nameMistake(info.fileName());
    m_ok->setEnabled(hint.isEmpty());
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
}

} // namespace Workbench
