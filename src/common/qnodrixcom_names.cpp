#include "qnodrixcom.h"

#include "messages/qnodrixmessagebox.h"
#include "registry/qnodrixregistry.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>
#include <QtCore/QStringBuilder>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMdiArea>
#include <QtWidgets/QMdiSubWindow>

#include <climits>
#include <utility>

namespace {

// "<folder>/<name>". Put together in one allocation, not through arg(): the
// proposals form and test one candidate per taken name, and the file-system
// test is all the time such a candidate should cost. (A '%' in a folder name
// is then plain text, as it must be.)
QString joined(const QString &sFolder, const QString &sName)
{
    return sFolder % QLatin1Char('/') % sName;
}

QString numbered(const QString &sPrefix, int n, const QString &sExt)
{
    return sPrefix % QString::number(n) % sExt;
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

// ---------------------------------------------------------------------------
// Save-as dialog
// ---------------------------------------------------------------------------
namespace {

// The folder the dialog opens in: the projects folder, or its gauge and
// diameter subfolder. A folder that already names the gauge is cut after it,
// so the diameter of another configuration is replaced, not nested.
QString saveAsFolder(const QString &sProjects, int nGauge, int nDiameter)
{
    if (nGauge == 0 || nDiameter == 0)
        return sProjects;
    const QString sGauge = QStringLiteral("/%1-GG").arg(nGauge);
    const QString sDiam = QStringLiteral("/%1-DIAM").arg(nDiameter);
    const int nGaugeAt = sProjects.indexOf(sGauge, 0, Qt::CaseSensitive);
    if (nGaugeAt < 0)
        return sProjects + sGauge + sDiam;
    if (sProjects.contains(sDiam, Qt::CaseSensitive))
        return sProjects;
    return sProjects.left(nGaugeAt) + sGauge + sDiam;
}

// One run of the save dialog; an empty answer when the user cancels.
QString askSaveFileName(QWidget *pParent, const QString &sCaption, const QString &sStart,
                        const QString &sFilter)
{
    QFileDialog dialog(pParent, sCaption, sStart, sFilter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // The platform dialog the applications were written for added the
    // filter's extension to a name typed without one; Qt's does so only when
    // asked.
    dialog.setDefaultSuffix(QStringLiteral("ndx"));
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.selectedFiles().value(0);
}

} // namespace

bool QNodrixCom::getSaveAsFileName(QWidget *pParent, QString sCaption, QString &sFileName,
                                   bool bAllowSameName)
{
    const QString sProjects
        = QNodrixRegistry().getProjectsPath().replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QString sFolder = saveAsFolder(sProjects, m_nFolderUseGauge, m_nFolderUseDiam);

    // The gauge and diameter subfolders are made only under a projects
    // folder the user really keeps: an existing absolute folder. A projects
    // folder that is unset, relative (to whatever the working folder happens
    // to be) or missing gets nothing made, and the dialog starts where it
    // would without the folder options. An uncreatable subfolder is not
    // worth a message either: the user picks a place in the projects folder.
    const QString sName = strippedName(sFileName);
    QString sStart = sProjects + QLatin1Char('/') + sName;
    if (sFolder != sProjects && QDir::isAbsolutePath(sProjects) && QFileInfo(sProjects).isDir()
        && (QFileInfo(sFolder).isDir() || QDir().mkpath(sFolder)))
        sStart = sFolder + QLatin1Char('/') + sName;
    // The file dialog does not resolve a relative start against the working
    // directory as QDir did when it made the folder; joined here, it opens
    // in the folder just made.
    if (QDir::isRelativePath(sStart))
        sStart = QDir::current().absoluteFilePath(sStart);

    const QString sIncoming = sFileName;
    for (;;) {
        sFileName = askSaveFileName(pParent, sCaption, sStart, m_sProjectSaveAs);
        if (sFileName.isEmpty())
            return false;

        const QString sChosen = strippedName(sFileName);
        if (m_nFileNameMaxChars != 0 && sChosen.size() > m_nFileNameMaxChars) {
            QNodrixMessageBox::execFileNameAdvisor(QNodrixMessageBox::eFileName_TooLong, QString(),
                                                   m_nFileNameMaxChars);
            continue;
        }
        // The machine's forbidden characters are only pointed out, once for
        // each one found: the name is kept all the same.
        for (const QChar c : std::as_const(m_sFileNameInvalidChars)) {
            if (sChosen.contains(c, Qt::CaseSensitive))
                QNodrixMessageBox::execFileNameAdvisor(QNodrixMessageBox::eFileName_InvalidChars,
                                                       m_sFileNameInvalidChars, 0);
        }
        if (!bAllowSameName && sFileName == sIncoming)
            continue;
        return true;
    }
}
