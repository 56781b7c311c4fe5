#include "utf8names.h"

#include "tr.h"

#include <cstdlib>
#include <unistd.h>

namespace Utils
{

namespace
{

bool isUtf8(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

} // namespace

QString nonUtf8Argument(int argc, const char *const *argv)
{
    for (int i = 1; i < argc; ++i) {
        if (!isUtf8(argv[i]))
            return Tr::tr("The argument \"%1\" is not UTF-8; such names cannot be used. Rename the "
                          "file "
                          "or folder.")
                .arg(QString::fromUtf8(argv[i]));
    }
    return {};
}

QString nonUtf8CurrentFolder()
{
    char *folder = ::getcwd(nullptr, 0);
    const QByteArray name(folder);
    std::free(folder);
    if (isUtf8(name))
        return {};
    return Tr::tr(
               "The name of the current folder, \"%1\", is not UTF-8; files in it cannot be used. "
               "Rename it.")
        .arg(QString::fromUtf8(name));
}

bool isDamagedName(const QString &path)
{
    return path.contains(QChar::ReplacementCharacter);
}

} // namespace Utils
