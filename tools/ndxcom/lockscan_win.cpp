// The walk on Windows: QDirIterator over one folder at a time (its entries
// come with what FindFirstFile said of them, so nothing is looked at twice);
// links and junctions are listed but never entered. Windows folders hold no
// pipes.

#include "lockscan.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>

namespace LockScan {

namespace {

const QLatin1String ProjectExtension(".ndx");
const QLatin1String LockExtension(".~lock");

struct Folder
{
    QString path;
    QString relative;
    int depth;
};

QString joined(const QString &folder, const QString &name)
{
    if (folder.isEmpty())
        return name;
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

bool isLink(const QFileInfo &info)
{
    return info.isSymLink() || info.isJunction();
}

} // namespace

Result scan(const QString &root, const Options &options)
{
    Result result;
    const QFileInfo rootInfo(root);
    if (!rootInfo.isDir()) {
        result.folderError = rootInfo.exists() ? QStringLiteral("not a folder")
                                               : QStringLiteral("No such file or directory");
        return result;
    }
    const QDir::Filters filters
        = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    std::vector<Folder> pending {Folder {root, QString(), 0}};
    while (!pending.empty()) {
        const Folder folder = pending.back();
        pending.pop_back();
        const bool isRoot = folder.relative.isEmpty();
        if (!QDir(folder.path).isReadable()) {
            if (isRoot)
                result.folderError = QStringLiteral("Permission denied");
            else
                result.unreadableFolders << folder.relative + QStringLiteral(": Permission denied");
            continue;
        }
        if (isRoot)
            result.folderReadable = true;

        QHash<QString, QString> projectOfLock;
        std::vector<QFileInfo> locks;
        QDirIterator it(folder.path, filters);
        while (it.hasNext()) {
            it.next();
            const QFileInfo info = it.fileInfo();
            const QString name = info.fileName();
            if (name.contains(ProjectExtension)) {
                const QString lock = QString(name).replace(ProjectExtension, LockExtension);
                auto found = projectOfLock.find(lock);
                if (found == projectOfLock.end())
                    projectOfLock.insert(lock, name);
                else if (name < found.value())
                    found.value() = name;
            }
            if (name.endsWith(LockExtension))
                locks.push_back(info);
            if (info.isDir() && !isLink(info)
                && (options.depth < 0 || folder.depth < options.depth))
                pending.push_back(Folder {joined(folder.path, name), joined(folder.relative, name),
                                          folder.depth + 1});
        }

        for (const QFileInfo &info : locks) {
            Entry entry;
            const QString name = info.fileName();
            entry.relative = joined(folder.relative, name);
            const QString lockPath = path(root, entry);
            const auto project = projectOfLock.constFind(name);
            entry.projectExists = project != projectOfLock.cend();
            entry.project
                = joined(folder.relative,
                         entry.projectExists
                             ? project.value()
                             : name.left(name.size() - LockExtension.size()) + ProjectExtension);
            if (isLink(info)) {
                entry.kind = EntryKind::Link;
                entry.whyUnreadable = QStringLiteral("a link, which is never followed");
            } else if (info.isDir()) {
                entry.kind = EntryKind::Folder;
                entry.whyUnreadable = QStringLiteral("a folder");
            } else if (!info.isFile()) {
                entry.kind = EntryKind::Other;
                entry.whyUnreadable = QStringLiteral("not a regular file");
            } else {
                QFile lock(lockPath);
                entry.readable = NdxComFileSharing::readLockFile(lock, &entry.record);
                if (!entry.readable) {
                    QFile probe(lockPath);
                    entry.whyUnreadable = probe.open(QIODevice::ReadOnly)
                        ? QStringLiteral("cannot be read")
                        : probe.errorString();
                }
            }
            result.entries.push_back(std::move(entry));
        }
    }
    return result;
}

} // namespace LockScan
