#pragma once

#include "config/blocks.h"
#include "config/optionmap.h"

#include <ipcore/microsyschildipgendlg.h>

#include <QVector>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QScrollArea)

namespace TARVOORIXM1
{

// What the dialogs of all optional blocks have in common: the header, a page "Options" with the
// block's form, loading from the option map, the pin figure, and writing the map on OK. The map is
// the caller's and must outlive the dialog.
//
// A subclass makes its form with makeForm() and calls start() as the last thing that the frame
// does for it; start() runs connectOptions(), connects the switches, loads them, runs loadOptions()
// and shows the pins. Only a constructor of the class itself may call it: in one of a base class
// the virtual functions would not reach the subclass.
class PeripheralDlg : public IPCore::MicroSysChildIPGenDlg
{
    Q_OBJECT

public:
    // High enough for the whole form.
    QSize sizeHint() const override;

public Q_SLOTS:
    void accept() override;

protected Q_SLOTS:
    void refreshFigure();

protected:
    PeripheralDlg(BlockId id, OptionMap *options, QWidget *parent);

    // The form, set up on the page "Options".
    template <class Form>
    std::unique_ptr<Form> makeForm()
    {
        auto form = std::make_unique<Form>();
        auto *page = new QWidget(this);
        form->setupUi(page);
        m_area = form->scrollArea;
        uiAddTab(page, QStringLiteral("Options"));
        return form;
    }

    // The check boxes, in the order of the block's switches, and the signal of theirs that
    // refreshes the figure; none if null.
    void start(const QVector<QCheckBox *> &switches, const char *refreshSignal);

    // Options other than the switches. Connections made here exist while everything is loaded;
    // switches are loaded and stored first.
    virtual void connectOptions() {}
    virtual void loadOptions() {}
    virtual void storeOptions() {}
    // The chosen item of the choice that the pins follow.
    virtual int choice() const { return -1; }

    QCheckBox *switchBox(int index) const { return m_switches.at(index); }
    OptionMap &options() const { return *m_options; }
    // The option's value, or what the dialogs take for an absent one.
    QVariant stored(QLatin1String key) const;
    QString targetDevice() const;

private:
    const Block &m_block;
    OptionMap *m_options;
    QScrollArea *m_area = nullptr; // around the whole form
    QVector<QCheckBox *> m_switches;
};

} // namespace TARVOORIXM1
