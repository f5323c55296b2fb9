// The walk on Linux and other Unix systems: one readdir() per folder, the
// entry's type from the folder itself (d_type) and an lstat only where the
// file system does not give it, and an open-and-read of the lock entries
// alone, relative to the folder already open.

#include "lockscan.h"

#include <QtCore/QFile>

#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace LockScan {

namespace {

const char ProjectExtension[] = ".ndx";
const char LockExtension[] = ".~lock";
constexpr size_t LockExtensionSize = sizeof(LockExtension) - 1;

bool endsWithLock(const char *name, size_t size)
{
    return size >= LockExtensionSize
        && std::memcmp(name + size - LockExtensionSize, LockExtension, LockExtensionSize) == 0;
}

// The folder's own type letter for what an lstat says.
unsigned char typeOf(mode_t mode)
{
    if (S_ISREG(mode))
        return DT_REG;
    if (S_ISDIR(mode))
        return DT_DIR;
    if (S_ISLNK(mode))
        return DT_LNK;
    if (S_ISFIFO(mode))
        return DT_FIFO;
    return DT_CHR; // a device or a socket: neither is read
}

EntryKind kindOf(unsigned char type)
{
    switch (type) {
    case DT_REG:
        return EntryKind::File;
    case DT_DIR:
        return EntryKind::Folder;
    case DT_LNK:
        return EntryKind::Link;
    case DT_FIFO:
        return EntryKind::Pipe;
    default:
        return EntryKind::Other;
    }
}

QString whyNotAFile(EntryKind kind)
{
    switch (kind) {
    case EntryKind::Folder:
        return QStringLiteral("a folder");
    case EntryKind::Link:
        return QStringLiteral("a symbolic link, which is never followed");
    case EntryKind::Pipe:
        return QStringLiteral("a named pipe");
    case EntryKind::Other:
    case EntryKind::File:
        break;
    }
    return QStringLiteral("not a regular file (a device or a socket)");
}

// Reads the lock `name` of the open folder `folder`, which the folder listed
// as a regular file, as the library reads a lock: never through a link and
// at most LockReadLimit bytes. The folder's word for the type saves an
// fstat() per lock; should a pipe or a folder take the file's place in
// between, it is opened and read without waiting (a pipe gives what it holds
// at that instant, as a record or as not a regular file) and a folder
// refuses the read.
void readLock(int folder, const char *name, Entry *entry)
{
    int fd;
    do {
        fd = ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) {
        const int error = errno;
        entry->kind = error == ELOOP ? EntryKind::Link
            : error == ENXIO         ? EntryKind::Other // a socket
                                     : entry->kind;
        entry->whyUnreadable
            = entry->kind != EntryKind::File ? whyNotAFile(entry->kind) : qt_error_string(error);
        return;
    }
    const auto readSome = [fd](char *into, qsizetype want) {
        ssize_t got;
        do {
            got = ::read(fd, into, size_t(want));
        } while (got < 0 && errno == EINTR);
        return got;
    };
    char buffer[4096];
    qsizetype size = 0;
    bool ended = false;
    int error = 0;
    while (!ended && size < qsizetype(sizeof(buffer))) {
        const qsizetype want = qsizetype(sizeof(buffer)) - size;
        const ssize_t got = readSome(buffer + size, want);
        if (got < 0) {
            error = errno;
            break;
        }
        size += got;
        ended = got < want;
    }
    QByteArray bytes;
    if (!ended && error == 0) {
        // Longer than any record of the library's: read on, to the limit.
        constexpr qsizetype limit = NdxComFileSharing::LockReadLimit;
        bytes = QByteArray(buffer, int(size));
        while (bytes.size() < limit) {
            const ssize_t got
                = readSome(buffer, qMin<qsizetype>(sizeof(buffer), limit - bytes.size()));
            if (got < 0)
                error = errno;
            if (got <= 0)
                break;
            bytes.append(buffer, int(got));
        }
    }
    ::close(fd);
    if (error == EISDIR || error == EAGAIN) {
        entry->kind = error == EISDIR ? EntryKind::Folder : EntryKind::Pipe;
        entry->whyUnreadable = whyNotAFile(entry->kind);
        return;
    }
    if (error != 0) {
        entry->whyUnreadable = qt_error_string(error);
        return;
    }
    entry->record = bytes.isEmpty() ? NdxComFileSharing::readLockRecord(buffer, size)
                                    : NdxComFileSharing::readLockRecord(bytes);
    entry->readable = true;
}

struct Folder
{
    QByteArray path; // as open() takes it
    QByteArray relative; // below the root; empty for the root
    int depth;
};

QByteArray joined(const QByteArray &folder, const char *name, size_t size)
{
    if (folder.isEmpty())
        return QByteArray(name, int(size));
    QByteArray path;
    path.reserve(folder.size() + 1 + int(size));
    path += folder;
    if (!folder.endsWith('/'))
        path += '/';
    path.append(name, int(size));
    return path;
}

// The lock name of a project name: every ".ndx" read as ".~lock", as
// lockPath() does, into `into`.
void lockNameOf(std::string_view project, std::string *into)
{
    constexpr std::string_view from(ProjectExtension, sizeof(ProjectExtension) - 1);
    into->clear();
    size_t at = 0;
    for (size_t found; (found = project.find(from, at)) != std::string_view::npos;
         at = found + from.size()) {
        into->append(project.data() + at, found - at);
        into->append(LockExtension, LockExtensionSize);
    }
    into->append(project.data() + at, project.size() - at);
}

} // namespace

Result scan(const QString &root, const Options &options)
{
    Result result;
    const QByteArray rootPath = QFile::encodeName(root);
    std::vector<Folder> pending {Folder {rootPath, QByteArray(), 0}};
    // Reused from folder to folder: the names of one folder, one after the
    // other, and where each starts.
    std::string names;
    struct Named
    {
        size_t offset;
        size_t size;
        unsigned char type;
        bool project; // holds ".ndx"
    };
    std::vector<Named> listed;
    std::string lockName;
    while (!pending.empty()) {
        const Folder folder = pending.back();
        pending.pop_back();
        const bool isRoot = folder.relative.isEmpty();
        // The root may be a link the user named; below it nothing is
        // followed, even a folder that became a link since it was listed.
        int fd;
        do {
            fd = ::open(folder.path.constData(),
                        O_RDONLY | O_DIRECTORY | O_CLOEXEC | (isRoot ? 0 : O_NOFOLLOW));
        } while (fd < 0 && errno == EINTR);
        DIR *dir = fd < 0 ? nullptr : ::fdopendir(fd);
        if (!dir) {
            const QString why
                = errno == ENOTDIR ? QStringLiteral("not a folder") : qt_error_string(errno);
            if (fd >= 0)
                ::close(fd);
            if (isRoot)
                result.folderError = why;
            else
                result.unreadableFolders
                    << QFile::decodeName(folder.relative) + QStringLiteral(": ") + why;
            continue;
        }
        if (isRoot)
            result.folderReadable = true;

        // One pass over the folder: the subfolders to enter, and the names
        // that matter here, projects and locks.
        names.clear();
        listed.clear();
        std::vector<size_t> locks;
        for (;;) {
            errno = 0;
            const dirent *e = ::readdir(dir);
            if (!e) {
                if (errno != 0)
                    result.unreadableFolders
                        << (isRoot ? QStringLiteral(".") : QFile::decodeName(folder.relative))
                            + QStringLiteral(": ") + qt_error_string(errno);
                break;
            }
            const char *name = e->d_name;
            if (name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0)))
                continue;
            const size_t size = std::strlen(name);
            unsigned char type = e->d_type;
            const bool isLock = endsWithLock(name, size);
            const bool enter = options.depth < 0 || folder.depth < options.depth;
            if (type == DT_UNKNOWN && (isLock || enter)) {
                struct stat info;
                type = ::fstatat(::dirfd(dir), name, &info, AT_SYMLINK_NOFOLLOW) == 0
                    ? typeOf(info.st_mode)
                    : static_cast<unsigned char>(DT_CHR);
            }
            if (type == DT_DIR && enter)
                pending.push_back(Folder {joined(folder.path, name, size),
                                          joined(folder.relative, name, size), folder.depth + 1});
            const bool isProject
                = ::memmem(name, size, ProjectExtension, sizeof(ProjectExtension) - 1);
            if (!isLock && !isProject)
                continue;
            if (isLock)
                locks.push_back(listed.size());
            listed.push_back(Named {names.size(), size, type, isProject});
            names.append(name, size + 1); // with its terminating null
        }

        if (locks.empty()) {
            ::closedir(dir);
            continue;
        }
        // Each lock's project: the entry whose lock name it is (the first in
        // name order when two share one, as "a.ndx.ndx" and "a.~lock.ndx").
        const auto nameOf
            = [&](const Named &n) { return std::string_view(names.data() + n.offset, n.size); };
        std::unordered_map<std::string_view, std::string_view> projectOfLock;
        for (size_t i : locks)
            projectOfLock.emplace(nameOf(listed[i]), std::string_view());
        for (const Named &n : listed) {
            if (!n.project)
                continue;
            const std::string_view project = nameOf(n);
            lockNameOf(project, &lockName);
            const auto it = projectOfLock.find(lockName);
            if (it != projectOfLock.end() && (it->second.empty() || project < it->second))
                it->second = project;
        }

        // Paths are put together in one scratch array and decoded once.
        QByteArray scratch = folder.relative;
        if (!isRoot)
            scratch += '/';
        const int prefix = scratch.size();
        for (size_t i : locks) {
            const Named &lock = listed[i];
            const std::string_view name = nameOf(lock);
            Entry entry;
            scratch.truncate(prefix);
            scratch.append(name.data(), int(name.size()));
            entry.relative = QFile::decodeName(scratch);
            const std::string_view project = projectOfLock[name];
            entry.projectExists = !project.empty();
            scratch.truncate(prefix);
            if (entry.projectExists) {
                scratch.append(project.data(), int(project.size()));
            } else {
                // The project the lock would be of: its name with ".ndx".
                scratch.append(name.data(), int(name.size() - LockExtensionSize));
                scratch.append(ProjectExtension);
            }
            entry.project = QFile::decodeName(scratch);
            entry.kind = kindOf(lock.type);
            if (entry.kind == EntryKind::File)
                readLock(::dirfd(dir), name.data(), &entry); // null-terminated in `names`
            else
                entry.whyUnreadable = whyNotAFile(entry.kind);
            result.entries.push_back(std::move(entry));
        }
        ::closedir(dir);
    }
    return result;
}

} // namespace LockScan
