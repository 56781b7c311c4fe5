#include "peripheraldlg.h"

#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "config/pintables.h"
#include "rules/dialogdefaults.h"
#include "rules/pins.h"

#include <QAccessible>
#include <QCheckBox>
#include <QScrollArea>

namespace TARVOORIXM1
{

PeripheralDlg::PeripheralDlg(QLatin1String name, OptionMap *options, QWidget *parent)
    : MicroSysChildIPGenDlg(parent)
    , m_block(block(name))
    , m_options(options)
{
    setWindowTitle(m_block.title);
    uiSetModuleName(m_block.module());
    uiSetLabelText(m_block.title);
    uiSetSummaryText(m_block.summary);
}

void PeripheralDlg::start()
{
    // Qt takes what a form makes within a disabled widget for plain widgets, and keeps to that.
    const QList<QWidget *> fields = m_area->findChildren<QWidget *>();
    for (QWidget *field : fields)
        QAccessible::deleteAccessibleInterface(
            QAccessible::uniqueId(QAccessible::queryAccessibleInterface(field)));
    m_switches = m_area->findChildren<QCheckBox *>();
    Q_ASSERT(m_switches.size() == m_block.switches.size());
    connectOptions();
    connectSwitches();
    for (int i = 0; i < m_switches.size(); ++i) {
        const SwitchRow &row = m_block.switches[i];
        m_switches.at(i)->setChecked(stored(row.key()).toBool());
        // Loading is no click.
        if (row.isInterface)
            m_switches.at(i)->setEnabled(m_switches.first()->isChecked());
    }
    loadOptions();
    refreshFigure();
}

void PeripheralDlg::connectSwitches()
{
    for (int i = 0; i < m_switches.size(); ++i) {
        const QCheckBox *box = m_switches.at(i);
        if (m_block.switches[i].isInterface)
            connect(m_switches.first(), SIGNAL(clicked(bool)), box, SLOT(setEnabled(bool)));
        switch (m_block.redraw) {
        case Redraw::OnToggle:
            connect(box, SIGNAL(toggled(bool)), this, SLOT(refreshFigure()));
            break;
        case Redraw::OnClick:
            connect(box, SIGNAL(clicked()), this, SLOT(refreshFigure()));
            break;
        case Redraw::Never:
            break;
        }
    }
}

bool PeripheralDlg::isSwitchOn(int index) const
{
    return m_switches.at(index)->isChecked();
}

bool PeripheralDlg::clickSwitch(int index, bool on)
{
    if (isSwitchOn(index) != on)
        m_switches.at(index)->click(); // does nothing where it is disabled
    return isSwitchOn(index) == on;
}

void PeripheralDlg::accept()
{
    for (int i = 0; i < m_switches.size(); ++i)
        m_options->insert(m_block.switches[i].key(), m_switches.at(i)->isChecked());
    storeOptions();
    MicroSysChildIPGenDlg::accept();
}

void PeripheralDlg::refreshFigure()
{
    BlockState state;
    for (int i = 0; i < m_switches.size(); ++i) {
        if (m_switches.at(i)->isChecked())
            state.switches |= switchBit(i);
    }
    state.choice = choice();
    state.device = targetDevice();
    uiSetFigurePins(blockPins(m_block, state));
}

QVariant PeripheralDlg::stored(const QString &key) const
{
    return dialogValue(*m_options, key, targetDevice());
}

QString PeripheralDlg::targetDevice() const
{
    return textOf(*m_options, Key::ipDevice);
}

QSize PeripheralDlg::sizeHint() const
{
    // A scroll area asks for a limited height only, however much its contents need.
    const QSize hint = MicroSysChildIPGenDlg::sizeHint();
    const int missing = m_area->widget()->sizeHint().height() - m_area->sizeHint().height();
    return missing > 0 ? hint.expandedTo({0, hint.height() + missing}) : hint;
}

} // namespace TARVOORIXM1
