#include "diagramdialogs.h"

#include "config/latin1literal.h"
#include "config/tr.h"
#include "dialogs/blockdialogs.h"
#include "dialogs/cortexm1.h"
#include "dialogs/messagebox.h"

#include <QFileDialog>

namespace TARVOORIXM1
{

bool runBlockDialog(QLatin1String dialog, OptionMap *options, QWidget *parent)
{
    if (dialog == "CortexM1"_l1)
        return CortexM1(options, parent).exec() == QDialog::Accepted;
    const std::unique_ptr<PeripheralDlg> made = makeBlockDialog(dialog, options, parent);
    return made && made->exec() == QDialog::Accepted;
}

bool switchInBlockDialog(QLatin1String dialog, const QVector<int> &switches, Switching switching,
                         OptionMap *options, QWidget *parent)
{
    OptionMap changed = *options;
    const std::unique_ptr<PeripheralDlg> made = makeBlockDialog(dialog, &changed, parent);
    if (!made)
        return false;
    for (const int index : switches) {
        const bool on =
            switching == Switching::Toggle ? !made->isSwitchOn(index) : switching == Switching::On;
        if (!made->clickSwitch(index, on))
            return false;
    }
    made->accept();
    *options = changed;
    return true;
}

void runSavePictureDialog(QWidget *parent,
                          const std::function<bool(const QString &path, QString *error)> &save)
{
    const QString path =
        QFileDialog::getSaveFileName(parent, Tr::tr("Save Picture"), QString(),
                                     Tr::tr("Drawing (*.svg);;Picture (*.png);;Document (*.pdf)"));
    QString error;
    if (!path.isEmpty() && !save(path, &error))
        showErrorBox(parent, error);
}

} // namespace TARVOORIXM1
