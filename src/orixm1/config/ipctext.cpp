#include "ipctext.h"

#include "ipcfile.h"
#include "latin1literal.h"

#include <reading/inientries.h>
#include <utils/inifile.h>

namespace TARVOORIXM1
{

Utils::Result<QByteArray> editedIpcText(const QByteArray &before, const QVariantMap &frame,
                                        const OptionMap &options)
{
    Utils::Result<QByteArray> fresh = Utils::iniText(frame, QString(IpcFile::configGroup), options);
    if (!fresh)
        return fresh;
    return Reading::withCommentsOf(before, *fresh);
}

} // namespace TARVOORIXM1
