#include "outputset.h"

#include <utils/filereplacement.h>

#include <memory>
#include <vector>

namespace Synthesis
{

QString placeOutputs(const QVector<Output> &outputs, const ScratchFolder &scratch)
{
    QString error;
    std::vector<std::unique_ptr<Utils::FileReplacement>> files;
    for (const Output &output : outputs) {
        files.push_back(
            std::make_unique<Utils::FileReplacement>(output.path, scratch.absolute(QString())));
        if (!files.back()->prepare(output.bytes, &error))
            return error;
    }
    for (auto file = files.begin(); file != files.end(); ++file) {
        if ((*file)->place(&error))
            continue;
        while (file != files.begin())
            (*--file)->revert();
        return error;
    }
    return {};
}

} // namespace Synthesis
