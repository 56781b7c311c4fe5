#include "filebundle.h"

#include "boundedfile.h"
#include "bundlemanifest.h"
#include "filereplacement.h"
#include "fileutils.h"
#include "folderlock.h"
#include "madefolders.h"
#include "tr.h"

#include <reading/limits.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

namespace Utils
{

namespace
{

QByteArray sumOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

// The folder without links; as it was given where there is none yet.
QString realFolder(const QString &folder)
{
    const QString real = QFileInfo(folder).canonicalFilePath();
    return real.isEmpty() ? QDir::cleanPath(QFileInfo(folder).absoluteFilePath()) : real;
}

// Where a file below the folder really stands, links resolved. A failure is a clause.
Result<QString> placeOf(const QString &folder, const QString &path)
{
    QString place = folder;
    const QStringList names = path.split(u'/');
    for (const QString &name : names) {
        place += u'/' + name;
        const QFileInfo info(place);
        if (!info.isSymLink())
            continue;
        const QString real = info.canonicalFilePath();
        if (real.isEmpty())
            return Failure{Tr::tr("\"%1\" is a link that leads nowhere").arg(native(place))};
        if (!real.startsWith(folder + u'/'))
            return Failure{
                Tr::tr("\"%1\" is a link that leads out of the folder").arg(native(place))};
        place = real;
    }
    return place;
}

// What stands at a place; null if nothing does. A failure is a sentence.
Result<std::optional<QByteArray>> contentsAt(const QString &place)
{
    const QFileInfo info(place);
    if (!info.exists() && !info.isSymLink())
        return std::optional<QByteArray>();
    const Result<QByteArray> read = readBoundedFile(place, Reading::Limits::anyFile);
    if (!read)
        return Failure{read.reason()};
    return std::optional<QByteArray>(*read);
}

// The manifest of a folder as it stands.
struct KnownManifest {
    BundleManifest manifest;
    std::optional<QByteArray> bytes; // null if there is no such file
    QString mistake;                 // a sentence; empty if it is sound or missing
};

// A failure, a sentence, if something stands there that cannot be read.
Result<KnownManifest> readManifest(const QString &path)
{
    KnownManifest known;
    const Result<std::optional<QByteArray>> bytes = contentsAt(path);
    if (!bytes)
        return Failure{bytes.reason()};
    known.bytes = *bytes;
    if (!known.bytes)
        return known;
    const Result<BundleManifest> read = BundleManifest::fromText(*known.bytes, path);
    if (read)
        known.manifest = *read;
    else
        known.mistake = read.reason();
    return known;
}

// A file of the set, or one that is left over, and what stands there.
struct Item {
    const BundleFile *file = nullptr; // null: left over
    BundleEntry entry;
    QString place;
    std::optional<QByteArray> bytes;
    bool isKnown = false; // named by the manifest
};

// The set held against its folder.
struct Comparison {
    QString folder; // real
    KnownManifest known;
    BundleManifest next; // what the manifest is to say
    std::vector<Item> items;
    QStringList messages;
};

Failure refused(const Bundle &bundle, const QString &path, const QString &reason)
{
    return Failure{Tr::tr("Cannot write \"%1\" below \"%2\": %3.")
                       .arg(native(path), native(bundle.folder), reason)};
}

// The paths of the set, before anything is looked at.
Result<void> checkPaths(const Bundle &bundle)
{
    if (bundle.folder.isEmpty())
        return Failure{Tr::tr("Cannot write into a folder without a name.")};
    if (const QString mistake = bundlePathMistake(bundle.manifest); !mistake.isEmpty())
        return refused(bundle, bundle.manifest, mistake);
    QSet<QString> paths{bundle.manifest};
    for (const BundleFile &file : bundle.files) {
        if (const QString mistake = bundlePathMistake(file.path); !mistake.isEmpty())
            return refused(bundle, file.path, mistake);
        if (paths.contains(file.path))
            return refused(bundle, file.path, Tr::tr("the set has two files of that name"));
        paths.insert(file.path);
    }
    for (const BundleFile &file : bundle.files) {
        for (int slash = file.path.indexOf(u'/'); slash >= 0;
             slash = file.path.indexOf(u'/', slash + 1)) {
            if (paths.contains(file.path.left(slash)))
                return refused(
                    bundle, file.path,
                    Tr::tr("the set has a file \"%1\" as well").arg(file.path.left(slash)));
        }
    }
    return {};
}

BundleEntry::State stateOf(const QByteArray *written, const QByteArray *wanted,
                           const std::optional<QByteArray> &bytes)
{
    const bool isAsWritten = written && bytes && sumOf(*bytes) == *written;
    if (!wanted)
        return isAsWritten ? BundleEntry::LeftOver : BundleEntry::LeftOverEdited;
    if (!bytes)
        return BundleEntry::Missing;
    if (*bytes == *wanted)
        return BundleEntry::Fresh;
    return isAsWritten ? BundleEntry::Stale : BundleEntry::Edited;
}

Result<Comparison> compare(const Bundle &bundle)
{
    if (const Result<void> checked = checkPaths(bundle); !checked)
        return Failure{checked.reason()};
    Comparison comparison;
    comparison.folder = realFolder(bundle.folder);
    if (const QFileInfo info(comparison.folder); info.exists() && !info.isDir())
        return Failure{Tr::tr("\"%1\" is no folder.").arg(native(bundle.folder))};
    const Result<QString> manifestPlace = placeOf(comparison.folder, bundle.manifest);
    if (!manifestPlace)
        return refused(bundle, bundle.manifest, manifestPlace.reason());
    const Result<KnownManifest> manifest = readManifest(*manifestPlace);
    if (!manifest)
        return Failure{manifest.reason()};
    comparison.known = *manifest;
    if (!comparison.known.mistake.isEmpty())
        comparison.messages.append(
            Tr::tr("%1 So nothing is known of earlier writes.").arg(comparison.known.mistake));
    QHash<QString, BundleManifest::File> known;
    for (const BundleManifest::File &file : qAsConst(comparison.known.manifest.files))
        known.insert(file.path, file);

    comparison.next.groups = bundle.groups;
    if (bundle.keepsOtherGroups)
        comparison.next.groups += comparison.known.manifest.groups;
    QHash<QString, QString> places{{*manifestPlace, bundle.manifest}};
    for (const BundleFile &file : bundle.files) {
        const Result<QString> place = placeOf(comparison.folder, file.path);
        if (!place)
            return refused(bundle, file.path, place.reason());
        if (places.contains(*place))
            return refused(
                bundle, file.path,
                Tr::tr("a link makes it the same file as \"%1\"").arg(places.value(*place)));
        places.insert(*place, file.path);
        const Result<std::optional<QByteArray>> bytes = contentsAt(*place);
        if (!bytes)
            return Failure{bytes.reason()};
        const auto entry = known.constFind(file.path);
        const QByteArray *written = entry == known.constEnd() ? nullptr : &entry->sha256;
        comparison.items.push_back(
            {&file,
             {file.path, file.group, stateOf(written, &file.bytes, *bytes), {}},
             *place,
             *bytes,
             written != nullptr});
        comparison.next.files.append({file.path, file.group, sumOf(file.bytes)});
    }
    for (const BundleManifest::File &file : qAsConst(comparison.known.manifest.files)) {
        const Result<QString> place = placeOf(comparison.folder, file.path);
        // By a link it may be a file of the set, or none of the folder.
        if (!place || places.contains(*place))
            continue;
        if (bundle.keepsOtherGroups && !bundle.groups.contains(file.group)) {
            comparison.next.files.append(file);
            continue;
        }
        const Result<std::optional<QByteArray>> bytes = contentsAt(*place);
        if (bytes && !*bytes)
            continue;
        if (!bytes && QFileInfo(*place).isFile())
            return Failure{bytes.reason()};
        // No file any more, so nothing that was written.
        const auto there = bytes ? *bytes : std::optional<QByteArray>();
        comparison.items.push_back(
            {nullptr,
             {file.path, file.group, stateOf(&file.sha256, nullptr, there), {}},
             *place,
             there,
             true});
    }
    return comparison;
}

BundleReport reportOf(const Comparison &comparison)
{
    BundleReport report;
    report.messages = comparison.messages;
    for (const Item &item : comparison.items)
        report.entries.append(item.entry);
    return report;
}

// The steps of a write, which are taken back unless it comes to its end.
class Writing
{
public:
    explicit Writing(const Bundle &bundle)
        : m_bundle(bundle)
    {
    }
    ~Writing()
    {
        if (!m_isDone)
            takeBack();
    }
    Q_DISABLE_COPY(Writing)

    Result<BundleReport> run()
    {
        if (const Result<void> checked = checkPaths(m_bundle); !checked)
            return Failure{checked.reason()};
        QString error;
        if (!m_folders.make(QDir::cleanPath(QFileInfo(m_bundle.folder).absoluteFilePath()), &error))
            return Failure{error};
        m_lock = FolderLock::take(m_bundle.folder, &error);
        if (!m_lock)
            return Failure{error};
        const Result<Comparison> compared = compare(m_bundle);
        if (!compared)
            return Failure{compared.reason()};
        m_comparison = *compared;
        if (!decide(&error) || !prepare(&error) || !place(&error))
            return Failure{error};
        m_isDone = true;
        for (const Removed &removed : m_removed)
            removeEmptyFolders(removed.place);
        return reportOf(m_comparison);
    }

    // What run() would do, which is not called then.
    Result<BundlePlan> plan()
    {
        const Result<Comparison> compared = compare(m_bundle);
        if (!compared)
            return Failure{compared.reason()};
        m_comparison = *compared;
        QString error;
        if (!decide(&error))
            return Failure{error};
        BundlePlan plan{reportOf(m_comparison), {}};
        for (const Decided &decided : m_decided)
            plan.written.append({belowFolder(decided.place), decided.bytes,
                                 decided.item ? decided.item->entry.group : QString()});
        return plan;
    }

private:
    // A file that is to be placed.
    struct Decided {
        QString place;
        QByteArray bytes;
        const Item *item = nullptr;                    // null: what stood there is of no interest
        std::optional<QFile::Permissions> permissions; // to be set
    };
    struct Replaced {
        std::unique_ptr<FileReplacement> replacement;
        const Decided *decided; // of m_decided, which stays as it is
    };
    struct Removed {
        QString place;
        QByteArray bytes;
        QFile::Permissions permissions;
    };

    bool prepare(QString *error)
    {
        for (const Decided &decided : m_decided) {
            Replaced replaced{std::make_unique<FileReplacement>(decided.place), &decided};
            if (!m_folders.make(QFileInfo(decided.place).absolutePath(), error) ||
                !replaced.replacement->prepare(decided.bytes, error))
                return false;
            m_replaced.push_back(std::move(replaced));
        }
        return true;
    }

    // The place beside a file that keeps its contents: one where they stand already, or a new one.
    // `*stands`: which of both.
    QString keepingPlace(const QString &place, const QByteArray &bytes, bool *stands) const
    {
        for (int i = 1;; ++i) {
            const QString kept =
                place + QLatin1String(".edited") + (i == 1 ? QString() : u'-' + QString::number(i));
            if (m_kept.contains(kept) || isOfSet(kept))
                continue;
            const QFileInfo info(kept);
            *stands = false;
            if (!info.exists() && !info.isSymLink())
                return kept;
            if (info.isSymLink() || info.size() != bytes.size())
                continue;
            const Result<std::optional<QByteArray>> there = contentsAt(kept);
            *stands = there && *there && **there == bytes;
            if (*stands)
                return kept;
        }
    }

    bool isOfSet(const QString &place) const
    {
        return std::any_of(m_comparison.items.begin(), m_comparison.items.end(),
                           [&place](const Item &item) { return item.place == place; });
    }

    QString belowFolder(const QString &place) const
    {
        return place.mid(m_comparison.folder.size() + 1);
    }

    // Sees to it that the bytes, which stand at `place`, will stand beside it. Returns where, below
    // the folder.
    QString keep(const QString &place, const QByteArray &bytes)
    {
        bool stands = false;
        const QString kept = keepingPlace(place, bytes, &stands);
        if (!stands)
            m_decided.push_back({kept, bytes, nullptr, QFileInfo(place).permissions()});
        m_kept.insert(kept);
        return belowFolder(kept);
    }

    void keepEdited(Item *item)
    {
        item->entry.keptAs = keep(item->place, *item->bytes);
        const QString text =
            item->isKnown
                ? Tr::tr("\"%1\" was changed since it was written; what stood there is in \"%2\" "
                         "now.")
                : Tr::tr("\"%1\" stood there already, written by something else; it is in \"%2\" "
                         "now.");
        m_comparison.messages.append(
            text.arg(native(item->entry.path), native(item->entry.keptAs)));
    }

    void keepBrokenManifest(const QString &place)
    {
        const KnownManifest &known = m_comparison.known;
        if (!known.bytes || known.mistake.isEmpty())
            return;
        const QString kept = keep(place, *known.bytes);
        m_comparison.messages.append(Tr::tr("What stood in \"%1\" is in \"%2\" now.")
                                         .arg(native(m_bundle.manifest), native(kept)));
    }

    // All that is going to be placed, what is kept first and the manifest last: whatever instant
    // ends the program, nothing is lost, and the next write sees what has happened.
    bool decide(QString *error)
    {
        const QString manifest = *placeOf(m_comparison.folder, m_bundle.manifest);
        const QByteArray text = m_comparison.next.toText();
        // One that the next write could not read (too many files, say) is of no use.
        const Result<BundleManifest> read = BundleManifest::fromText(text, manifest);
        if (!read) {
            *error = Tr::tr("Cannot write the manifest of \"%1\": %2")
                         .arg(native(m_bundle.folder), read.reason());
            return false;
        }
        for (Item &item : m_comparison.items) {
            if (item.entry.state == BundleEntry::LeftOverEdited)
                m_comparison.messages.append(
                    Tr::tr("\"%1\" is not part of the set any more; it was changed since it was "
                           "written, so it stays.")
                        .arg(native(item.entry.path)));
            if (item.entry.state == BundleEntry::Edited)
                keepEdited(&item);
        }
        keepBrokenManifest(manifest);
        for (const Item &item : m_comparison.items) {
            if (item.file && item.entry.state != BundleEntry::Fresh)
                m_decided.push_back({item.place, item.file->bytes, &item, {}});
        }
        m_decided.push_back({manifest, text, nullptr, {}});
        return true;
    }

    // Somebody may have saved a file since it was looked at.
    static bool isUnchanged(const Item &item, QString *error)
    {
        const Result<std::optional<QByteArray>> now = contentsAt(item.place);
        if (now && *now == item.bytes)
            return true;
        *error = now ? Tr::tr("\"%1\" was changed at this moment; nothing was written.")
                           .arg(native(item.place))
                     : now.reason();
        return false;
    }

    bool removeLeftOver(QString *error)
    {
        for (const Item &item : m_comparison.items) {
            if (item.entry.state != BundleEntry::LeftOver)
                continue;
            if (!isUnchanged(item, error))
                return false;
            Removed removed{item.place, *item.bytes, QFileInfo(item.place).permissions()};
            QFile file(item.place);
            // A call that fails once may succeed the next time.
            if (!file.remove() && !file.remove()) {
                *error =
                    Tr::tr("Cannot remove \"%1\": %2.").arg(native(item.place), file.errorString());
                return false;
            }
            m_removed.push_back(removed);
        }
        return true;
    }

    bool place(QString *error)
    {
        for (Replaced &replaced : m_replaced) {
            const bool isManifest = &replaced == &m_replaced.back();
            if ((isManifest && !removeLeftOver(error)) ||
                (replaced.decided->item && !isUnchanged(*replaced.decided->item, error)) ||
                !replaced.replacement->place(error))
                return false;
            ++m_placed;
            if (replaced.decided->permissions)
                QFile::setPermissions(replaced.decided->place, *replaced.decided->permissions);
        }
        return true;
    }

    // What has become empty below the folder.
    void removeEmptyFolders(const QString &place) const
    {
        QString folder = QFileInfo(place).absolutePath();
        while (folder.startsWith(m_comparison.folder + u'/') && QDir().rmdir(folder))
            folder = QFileInfo(folder).absolutePath();
    }

    void takeBack()
    {
        for (const Removed &removed : m_removed) {
            if (FileUtils::writeFile(removed.place, removed.bytes, nullptr))
                QFile::setPermissions(removed.place, removed.permissions);
        }
        while (m_placed > 0)
            m_replaced.at(size_t(--m_placed)).replacement->revert();
        m_replaced.clear();
        m_lock.reset();
        m_folders.takeBack();
    }

    const Bundle &m_bundle;
    std::shared_ptr<FolderLock> m_lock;
    Comparison m_comparison;
    std::vector<Decided> m_decided;   // in the order in which they are placed
    std::vector<Replaced> m_replaced; // likewise
    std::vector<Removed> m_removed;
    QSet<QString> m_kept;
    MadeFolders m_folders;
    int m_placed = 0;
    bool m_isDone = false;
};

} // namespace

QString bundleStateName(BundleEntry::State state)
{
    switch (state) {
    case BundleEntry::Fresh:
        return Tr::tr("fresh");
    case BundleEntry::Missing:
        return Tr::tr("missing");
    case BundleEntry::Stale:
        return Tr::tr("stale");
    case BundleEntry::Edited:
        return Tr::tr("edited");
    case BundleEntry::LeftOver:
        return Tr::tr("left over");
    case BundleEntry::LeftOverEdited:
        break;
    }
    return Tr::tr("left over and edited");
}

QStringList bundleGroups(const QString &folder, const QString &manifest)
{
    const QString real = realFolder(folder);
    const Result<QString> place = placeOf(real, manifest);
    const Result<KnownManifest> known =
        place ? readManifest(*place) : Result<KnownManifest>(KnownManifest());
    return known ? known->manifest.groups : QStringList();
}

Result<BundleReport> checkBundle(const Bundle &bundle)
{
    const Result<Comparison> compared = compare(bundle);
    if (!compared)
        return Failure{compared.reason()};
    return reportOf(*compared);
}

Result<BundlePlan> planBundle(const Bundle &bundle)
{
    return Writing(bundle).plan();
}

Result<BundleReport> writeBundle(const Bundle &bundle)
{
    return Writing(bundle).run();
}

} // namespace Utils
