#include "fixedfont.h"

#include <QFontDatabase>
#include <QFontInfo>

namespace Workbench
{

QFont fixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (QFontInfo(font).fixedPitch())
        return font;
    font.setFamily(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace);
    return font;
}

} // namespace Workbench
