#include "qnodrixregistry.h"
#include "qnodrixregistry_p.h"

#include "common/qnodrixcom.h"

#include <QtCore/QFile>

#include <vector>

using namespace NdxComRegistry;

namespace {

// Lists are cleaned of what no longer exists each time they are written and
// each time they are read, so an entry that disappears in between is gone at
// the next read although the store still holds it until the next write.
// Nothing else changes: order, duplicates and spelling are kept, and there is
// no limit on the length.
//
// The entries are tested from the last to the first; the kept ones are then
// copied once, in their order. Removing them one by one would move the tail
// of the list at each removal, and a list of many thousands of entries with
// some gone would cost time growing with the square of its length.
template<typename Keep>
QStringList keptEntries(const QStringList &list, Keep keep)
{
    const int n = list.size();
    std::vector<bool> kept(size_t(n), false);
    int count = 0;
    for (int i = n - 1; i >= 0; --i) {
        kept[size_t(i)] = keep(list.at(i));
        count += kept[size_t(i)] ? 1 : 0;
    }
    if (count == n)
        return list; // nothing gone: the list itself, shared
    QStringList result;
    result.reserve(count);
    for (int i = 0; i < n; ++i) {
        if (kept[size_t(i)])
            result.append(list.at(i));
    }
    return result;
}

// No file name holds a NUL: such an entry of a damaged store is gone without
// asking the file system, which would only warn about it.
bool exists(const QString &sEntry)
{
    return !sEntry.contains(QChar(0)) && QFile::exists(sEntry);
}

QStringList existingFolders(const QStringList &list)
{
    return keptEntries(list, [](const QString &sEntry) { return exists(sEntry); });
}

// Only project files: the extension is compared case-sensitively, so "D.NDX"
// is not a project of the suite. The cheap test comes first; the file system
// is asked only about project names.
QStringList existingProjects(const QStringList &list)
{
    const QString sExt = QNodrixCom::projectFilesExt();
    return keptEntries(list, [&sExt](const QString &sEntry) {
        return sEntry.endsWith(sExt, Qt::CaseSensitive) && exists(sEntry);
    });
}

QStringList readList(QSettings &store, const QString &sGroup, const QString &sKey)
{
    return readValue(store, sGroup, sKey, QVariant(QStringList())).toStringList();
}

} // namespace

// ---------------------------------------------------------------------------
// Window placement
// ---------------------------------------------------------------------------
void QNodrixRegistry::saveMainWndPlacement(const QPoint &pos, const QSize &size,
                                           const QByteArray &state, bool maximize)
{
    m_settings.beginGroup(groupMachine() + groupMainWindow());
    m_settings.setValue(QStringLiteral("pos"), QVariant(pos));
    m_settings.setValue(QStringLiteral("size"), QVariant(size));
    m_settings.setValue(QStringLiteral("state"), QVariant(state));
    m_settings.setValue(QStringLiteral("maximize"), QVariant(maximize));
    m_settings.endGroup();
}

bool QNodrixRegistry::loadMainWndPlacement(QPoint *pos, QSize *size, QByteArray *state)
{
    m_settings.beginGroup(groupMachine() + groupMainWindow());
    if (pos)
        *pos = m_settings.value(QStringLiteral("pos"), QVariant(*pos)).toPoint();
    if (size)
        *size = m_settings.value(QStringLiteral("size"), QVariant(*size)).toSize();
    if (state)
        *state = m_settings.value(QStringLiteral("state"), QVariant(*state)).toByteArray();
    const bool maximize = m_settings.value(QStringLiteral("maximize"), QVariant(true)).toBool();
    m_settings.endGroup();
    return maximize;
}

// ---------------------------------------------------------------------------
// Recent project files
// ---------------------------------------------------------------------------
void QNodrixRegistry::saveRecentFileList(const QStringList &files)
{
    writeValue(m_settings, groupMachine() + groupRecentFileList(), QStringLiteral("recentFileList"),
               QVariant(existingProjects(files)));
}

void QNodrixRegistry::loadRecentFileList(QStringList *files)
{
    if (!files)
        return;
    *files = existingProjects(readList(m_settings, groupMachine() + groupRecentFileList(),
                                       QStringLiteral("recentFileList")));
}

// ---------------------------------------------------------------------------
// Folder lists
// ---------------------------------------------------------------------------
void QNodrixRegistry::setProjectsPathList(const QStringList &paths)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("ProjectsPathList"),
               QVariant(existingFolders(paths)));
}

QStringList QNodrixRegistry::getProjectsPathList()
{
    return existingFolders(
        readList(m_settings, groupMachineSettings(), QStringLiteral("ProjectsPathList")));
}

void QNodrixRegistry::setRepositoryPathList(const QStringList &paths)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("RepositoryPathList"),
               QVariant(existingFolders(paths)));
}

QStringList QNodrixRegistry::getRepositoryPathList()
{
    return existingFolders(
        readList(m_settings, groupMachineSettings(), QStringLiteral("RepositoryPathList")));
}

void QNodrixRegistry::setProjectLinkPathList(const QStringList &paths)
{
    writeValue(m_settings, groupMachineSettings(), QStringLiteral("ProjectLinkPathList"),
               QVariant(existingFolders(paths)));
}

QStringList QNodrixRegistry::getProjectLinkPathList()
{
    return existingFolders(
        readList(m_settings, groupMachineSettings(), QStringLiteral("ProjectLinkPathList")));
}
