#include "interfacetypedlg.h"

#include <QCheckBox>

namespace TARVOORIXM1
{

void InterfaceTypeDlg::connectOptions()
{
    connect(switchBox(0), SIGNAL(clicked(bool)), switchBox(1), SLOT(setEnabled(bool)));
}

void InterfaceTypeDlg::loadOptions()
{
    // Loading is no click.
    switchBox(1)->setEnabled(switchBox(0)->isChecked());
}

} // namespace TARVOORIXM1
