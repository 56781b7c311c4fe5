#include "fileplacement.h"

#include "filereplacement.h"
#include "madefolders.h"

#include <vector>

namespace Utils
{

struct FilePlacement::Private {
    std::vector<std::unique_ptr<FileReplacement>> files;
    MadeFolders folders;
    QStringList paths;
    size_t placed = 0;
};

FilePlacement::FilePlacement()
    : d(std::make_unique<Private>())
{
}

FilePlacement::~FilePlacement() = default;

Result<void> FilePlacement::place(const QString &folder, const QVector<PlacedFile> &files)
{
    QString error;
    const auto fail = [&] {
        revert();
        return Failure{error};
    };
    if (!d->folders.make(folder, &error))
        return fail();
    for (const PlacedFile &file : files) {
        d->paths.append(folder + u'/' + file.name);
        d->files.push_back(std::make_unique<FileReplacement>(d->paths.last()));
        if (!d->files.back()->prepare(file.bytes, &error))
            return fail();
    }
    for (; d->placed < d->files.size(); ++d->placed) {
        if (!d->files[d->placed]->place(&error))
            return fail();
    }
    return {};
}

void FilePlacement::revert()
{
    while (d->placed > 0)
        d->files[--d->placed]->revert();
    d->files.clear();
    d->folders.takeBack();
}

QStringList FilePlacement::paths() const
{
    return d->paths;
}

} // namespace Utils
