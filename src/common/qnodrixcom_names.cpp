#include "qnodrixcom.h"

#include "registry/qnodrixregistry.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSet>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>

#include <climits>
#include <utility>

namespace {

// "<folder>/<name>" as one substitution, so that a '%' in a folder name is
// never read as a placeholder.
QString joined(const QString &sFolder, const QString &sName)
{
    return QStringLiteral("%1/%2").arg(sFolder, sName);
}

QString numbered(const QString &sPrefix, int n, const QString &sExt)
{
    return sPrefix + QString::number(n) + sExt;
}

bool exists(const QString &sFolder, const QString &sName)
{
    return QFileInfo::exists(joined(sFolder, sName));
}

// The names the open documents go by: the file-name part of each window
// title without the modification marker. A title "[*]" therefore takes the
// empty name.
QSet<QString> openDocumentNames(const QMdiArea *pArea)
{
    QSet<QString> names;
    if (!pArea)
        return names;
    const QList<QMdiSubWindow *> windows = pArea->subWindowList(QMdiArea::CreationOrder);
    names.reserve(windows.size());
    for (const QMdiSubWindow *window : windows) {
        names.insert(QNodrixCom::strippedName(window->windowTitle()).remove(QStringLiteral("[*]")));
    }
    return names;
}

} // namespace

// ---------------------------------------------------------------------------
// Name rules
// ---------------------------------------------------------------------------
bool QNodrixCom::projectNameContainsInvalidChars(QString sName)
{
    for (const QChar c : std::as_const(m_sInvalidChars)) {
        if (sName.contains(c, Qt::CaseSensitive))
            return true;
    }
    return false;
}

bool QNodrixCom::projectNameHasIllegalLanguage(QString sName)
{
    // The conversion writes '?' for every unit it cannot encode, so a real
    // question mark cannot be told from a lost character and is refused too.
    const QByteArray latin1 = sName.toLatin1();
    return latin1.contains('?') || latin1.size() != sName.size();
}

void QNodrixCom::makeCompliantProjectName(QString &sName)
{
    if (!sName.endsWith(m_sProjectFilesExt, Qt::CaseSensitive))
        sName += m_sProjectFilesExt;
}

void QNodrixCom::makeCompliantModuleName(QString &sName)
{
    if (!sName.endsWith(m_sModuleCylFilesExt, Qt::CaseSensitive))
        sName += m_sModuleCylFilesExt;
}

QString QNodrixCom::strippedName(const QString &sFullFileName)
{
    return QFileInfo(sFullFileName).fileName();
}

// ---------------------------------------------------------------------------
// New-name proposals
//
// The applications know these as a recursion: test the candidate against the
// disk, then against every window, and move to the next number on a clash.
// Each candidate gets that full test before the next one is formed, and a
// name that passes it is never changed again, so the answer is simply the
// first free candidate. Walking the candidates in a loop gives the same
// answer without one stack frame, one settings read and one window walk per
// taken name.
// ---------------------------------------------------------------------------
QString QNodrixCom::makeNewProjectName(QString &sName)
{
    sName.clear();
    int nCounter = 1;
    return iterNewProjectName(sName, m_nFolderUseGauge, m_nFolderUseDiam, nCounter);
}

QString QNodrixCom::iterNewProjectName(QString &sName, int nGauge, int nDiameter, int &nCounter)
{
    QString sFolder = QNodrixRegistry().getProjectsPath();
    if (nGauge != 0 && nDiameter != 0) {
        // Appended without a separator: a projects folder configured with a
        // trailing '/' is what makes this the same folder the save-as dialog
        // uses.
        const QString sSubDir = makeGaugeDiamSubDir(nGauge, nDiameter);
        if (!sFolder.contains(sSubDir, Qt::CaseSensitive))
            sFolder += sSubDir;
    }
    const QSet<QString> windowNames = openDocumentNames(m_pMdiArea);

    while (exists(sFolder, sName) || windowNames.contains(sName)) {
        if (nCounter == INT_MAX) {
            sName = numbered(m_sPrefixProjectDoc, nCounter, m_sProjectFilesExt);
            break;
        }
        sName = numbered(m_sPrefixProjectDoc, nCounter++, m_sProjectFilesExt);
    }
    return sName;
}

QString QNodrixCom::makeNewModuleName(QString &sName, QString sFolder)
{
    sName.clear();
    int nCounter = 1;
    return iterNewModuleName(sName, sFolder, nCounter);
}

QString QNodrixCom::iterNewModuleName(QString &sName, QString sFolder, int &nCounter)
{
    while (exists(sFolder, sName)) {
        if (nCounter == INT_MAX) {
            sName = numbered(m_sPrefixModuleDoc, nCounter, m_sModuleCylFilesExt);
            break;
        }
        sName = numbered(m_sPrefixModuleDoc, nCounter++, m_sModuleCylFilesExt);
    }
    return sName;
}
