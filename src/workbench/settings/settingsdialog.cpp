#include "settingsdialog.h"

#include "toolpaths.h"
#include "widgets/assistance.h"

#include <ipcore/screenfit.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QSpinBox>
#include <QStandardPaths>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Workbench
{

SettingsDialog::SettingsDialog(QSettings &settings, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("settingsDialog"));
    setWindowTitle(tr("Settings"));
    auto *tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("settingsPages"));
    QMap<Settings::Page, QFormLayout *> forms;
    for (const Settings::Row &row : Settings::rows()) {
        const QString key = QLatin1String(row.key);
        if (settings.contains(key))
            m_before.insert(key, settings.value(key));
        if (!forms.contains(row.page)) {
            auto *page = new QWidget;
            auto *form = new QFormLayout(page);
            form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
            form->setRowWrapPolicy(QFormLayout::WrapLongRows);
            auto *area = new QScrollArea;
            area->setFrameShape(QFrame::NoFrame);
            area->setWidgetResizable(true);
            area->setWidget(page);
            area->setFocusPolicy(Qt::NoFocus);
            tabs->addTab(area, Settings::titleOf(row.page));
            forms.insert(row.page, form);
        }
        addRow(forms.value(row.page), row);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                         QDialogButtonBox::RestoreDefaults);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QPushButton *defaults = buttons->button(QDialogButtonBox::RestoreDefaults);
    defaults->setObjectName(QStringLiteral("restoreDefaultsButton"));
    defaults->setText(tr("Restore &Defaults"));
    connect(defaults, &QPushButton::clicked, this, &SettingsDialog::restoreDefaults);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabs, 1);
    layout->addWidget(buttons);
    const QFontMetrics metrics = fontMetrics();
    resize(QSize(metrics.averageCharWidth() * 84, metrics.height() * 26)
               .boundedTo(IPCore::roomOnScreen(this)));
}

void SettingsDialog::addRow(QFormLayout *form, const Settings::Row &row)
{
    const QString label = Settings::labelOf(row);
    QWidget *field = nullptr;
    switch (row.kind) {
    case Settings::Kind::Toggle: {
        auto *box = new QCheckBox(label);
        box->setChecked(Settings::valueOf(m_settings, row).toBool());
        connect(box, &QCheckBox::toggled, this, [this, &row](bool isOn) { store(row, isOn); });
        m_setters.append([box](const QVariant &value) { box->setChecked(value.toBool()); });
        box->setObjectName(QLatin1String(row.key));
        form->addRow(box);
        return;
    }
    case Settings::Kind::Number:
        field = makeNumber(row);
        break;
    case Settings::Kind::Font:
        field = makeFont(row);
        break;
    case Settings::Kind::Choice:
        field = makeChoice(row);
        break;
    case Settings::Kind::Command:
    case Settings::Kind::Tool:
        field = makeProgram(row);
        break;
    }
    QWidget *named = field->focusProxy() ? field->focusProxy() : field;
    named->setObjectName(QLatin1String(row.key));
    named->setAccessibleName(spokenLabel(label));
    auto *title = new QLabel(label);
    title->setBuddy(named);
    form->addRow(title, field);
}

QWidget *SettingsDialog::makeNumber(const Settings::Row &row)
{
    auto *field = new QSpinBox;
    field->setRange(row.least, row.most);
    if (qstrcmp(row.key, Settings::editorFontSize) == 0) {
        field->setSpecialValueText(tr("That of the desktop"));
        field->setSuffix(tr(" pt"));
    }
    field->setValue(Settings::valueOf(m_settings, row).toInt());
    field->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(field, qOverload<int>(&QSpinBox::valueChanged), this,
            [this, &row](int value) { store(row, value); });
    m_setters.append([field](const QVariant &value) { field->setValue(value.toInt()); });
    return field;
}

QWidget *SettingsDialog::makeFont(const Settings::Row &row)
{
    auto *field = new QComboBox;
    field->addItem(tr("The fixed font of the desktop"), QString());
    const QFontDatabase fonts;
    const QStringList families = fonts.families();
    for (const QString &family : families) {
        if (fonts.isFixedPitch(family) && !fonts.isPrivateFamily(family))
            field->addItem(family, family);
    }
    const auto set = [field](const QVariant &value) {
        field->setCurrentIndex(qMax(0, field->findData(value)));
    };
    set(Settings::valueOf(m_settings, row));
    connect(field, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this, &row, field](int) { store(row, field->currentData()); });
    m_setters.append(set);
    return field;
}

QWidget *SettingsDialog::makeChoice(const Settings::Row &row)
{
    auto *field = new QComboBox;
    for (const auto &[value, name] : Settings::choicesOf(row))
        field->addItem(name, value);
    const auto set = [field](const QVariant &value) {
        field->setCurrentIndex(qMax(0, field->findData(value)));
    };
    set(Settings::valueOf(m_settings, row));
    connect(field, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this, &row, field](int) { store(row, field->currentData()); });
    m_setters.append(set);
    return field;
}

// A path or command, with a line below that says what is wrong with it, or what counts without it.
QWidget *SettingsDialog::makeProgram(const Settings::Row &row)
{
    auto *field = new QWidget;
    auto *edit = new QLineEdit;
    auto *browse = new QPushButton(tr("Browse…"));
    auto *told = new QLabel;
    told->setObjectName(QLatin1String(row.key) + QLatin1String("/told"));
    told->setTextFormat(Qt::PlainText);
    told->setWordWrap(true);
    const bool isCommand = row.kind == Settings::Kind::Command;
    const QString tool = QLatin1String(row.tool);
    const auto look = [told, isCommand, tool](const QString &text) {
        const QString mistake =
            isCommand ? ToolPaths::mistakeOfCommand(text) : ToolPaths::mistakeOf(text);
        if (!mistake.isEmpty()) {
            told->setText(isCommand ? mistake : tr("%1 The program on PATH is used.").arg(mistake));
        } else if (isCommand) {
            told->setText(tr("%f stands for the file, %l for the line"));
        } else if (text.isEmpty()) {
            const QString found = QStandardPaths::findExecutable(tool);
            told->setText(found.isEmpty() ? tr("No program \"%1\" is on PATH").arg(tool)
                                          : tr("From PATH: %1").arg(found));
        } else {
            told->setText(tr("This program is used"));
        }
    };
    edit->setText(Settings::valueOf(m_settings, row).toString());
    look(edit->text());
    connect(edit, &QLineEdit::textChanged, this, [this, &row, look](const QString &text) {
        store(row, text.trimmed());
        look(text.trimmed());
    });
    connect(browse, &QPushButton::clicked, this, [this, edit, isCommand] {
        const QString file = QFileDialog::getOpenFileName(this, tr("Program"), edit->text());
        if (!file.isEmpty())
            edit->setText(isCommand && file.contains(u' ') ? u'"' + file + u'"' : file);
    });
    browse->setAccessibleName(tr("Browse for %1").arg(spokenLabel(Settings::labelOf(row))));
    m_setters.append([edit](const QVariant &value) { edit->setText(value.toString()); });
    auto *line = new QHBoxLayout;
    line->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing)); // not the column's
    line->addWidget(edit, 1);
    line->addWidget(browse);
    auto *layout = new QVBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    layout->addLayout(line);
    layout->addWidget(told);
    field->setFocusProxy(edit);
    return field;
}

void SettingsDialog::store(const Settings::Row &row, const QVariant &value)
{
    const QString key = QLatin1String(row.key);
    if (Settings::valueOf(m_settings, row) == value)
        return;
    m_settings.setValue(key, value);
    Q_EMIT changed();
}

void SettingsDialog::restoreDefaults()
{
    const QVector<Settings::Row> &rows = Settings::rows();
    for (int i = 0; i < rows.size(); ++i) {
        m_setters.at(i)(Settings::standardOf(rows.at(i)));
        store(rows.at(i), Settings::standardOf(rows.at(i)));
    }
}

void SettingsDialog::showSettings()
{
    const QVector<Settings::Row> &rows = Settings::rows();
    for (int i = 0; i < rows.size(); ++i)
        m_setters.at(i)(Settings::valueOf(m_settings, rows.at(i)));
}

void SettingsDialog::reject()
{
    for (const Settings::Row &row : Settings::rows()) {
        const QString key = QLatin1String(row.key);
        if (m_before.contains(key))
            m_settings.setValue(key, m_before.value(key));
        else
            m_settings.remove(key);
    }
    Q_EMIT changed();
    QDialog::reject();
}

} // namespace Workbench
