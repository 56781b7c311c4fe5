#pragma once

#include "config/blocks.h"
#include "config/optionmap.h"

#include <ipcore/microsyschildipgendlg.h>

#include <QList>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QScrollArea)

namespace TARVOORIXM1
{

// What the dialogs of all optional blocks have in common: the header, a page "Options" with the
// block's form, loading from the option map, the pin figure, and writing the map on OK. The map is
// the caller's and must outlive the dialog. Dialogs that have only switches are made by the build
// from their forms (blockdialogs.cmake).
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

    // Of the switch with this place in the block's table: whether it is shown as on, and a click on
    // it as the user's, if it is not as wanted. False: it cannot be switched.
    bool isSwitchOn(int index) const;
    bool clickSwitch(int index, bool on);

public Q_SLOTS:
    void accept() override;

protected Q_SLOTS:
    void refreshFigure();

protected:
    // `name` is that of the class itself, by which it finds its block.
    PeripheralDlg(QLatin1String name, OptionMap *options, QWidget *parent);

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

    // Takes the form's check boxes for the block's switches, in their order.
    void start();

    // Options other than the switches. Connections made here exist while everything is loaded;
    // switches are loaded and stored first.
    virtual void connectOptions() {}
    virtual void loadOptions() {}
    virtual void storeOptions() {}
    // The chosen item of the choice that the pins follow.
    virtual int choice() const { return -1; }

    OptionMap &options() const { return *m_options; }
    // The option's value, or what the dialogs take for an absent one.
    QVariant stored(const QString &key) const;
    QString targetDevice() const;

private:
    void connectSwitches();

    const Block &m_block;
    OptionMap *m_options;
    QScrollArea *m_area = nullptr; // around the whole form
    QList<QCheckBox *> m_switches;
};

} // namespace TARVOORIXM1
