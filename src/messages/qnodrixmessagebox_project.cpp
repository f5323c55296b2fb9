// Project, name and machine-file advisors, and the error reports for files
// and data streams.

#include "qnodrixmessagebox.h"
#include "qnodrixmessagebox_p.h"

#include <QtCore/QDataStream>
#include <QtWidgets/QApplication>

using namespace NdxComMessages;

namespace {

constexpr auto WarningClose = Presentation::WarningClose;
constexpr auto CriticalClose = Presentation::CriticalClose;

// Values 1 and 3 are the twins of execFileNameAdvisor's texts but not equal
// to them: value 1 keeps a blank before its first line break.
const AdvisorCase illegalNameCases[] = {
    {0, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Attenzione!\nNon è stato inserito alcun nome !"),
     WarningClose},
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione: Il nome dei progetti per la macchina \n NON deve essere più "
                       "lungo di %1 caratteri"),
     WarningClose},
    {2, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Attenzione:\nCarattere >%1< non ammesso."),
     WarningClose},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nIl nome dei progetti Nodrix NON può contenere i seguenti "
                       "caratteri:\n\t %1"),
     WarningClose},
    {4, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Attenzione:\nAmmessi solo caratteri occidentali"),
     WarningClose},
    {5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nAmmesso nome progetto solo con estensione .ndx minuscolo"),
     WarningClose},
};

// Value 1 speaks of the sibling product's project names on purpose.
const AdvisorCase fileNameCases[] = {
    {0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione: Il nome dei progetti per la macchina\n NON deve essere più "
                       "lungo di %1 caratteri"),
     WarningClose},
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nIl nome dei progetti Veskar NON può contenere i seguenti "
                       "caratteri:\n\t %1"),
     WarningClose},
};

const AdvisorCase projectDocCases[] = {
    {0, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Attenzione!\nApplicazione macchina non definita"),
     CriticalClose},
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione!\nIl progetto è di una macchina diversa da quella "
                       "dell'applicazione attiva!"),
     WarningClose},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione!\nL'ultimo percorso selezionato NON risulta accessibile "
                       "!!!\nVerrà selezionato il percorso di default !!!"),
     WarningClose},
};

// "perse" and "Sei" run together in 2 and 3: the translations were made
// against these very texts, so they stay as they are.
const AdvisorCase modifyDataCases[] = {
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nLe modifiche fatte NON sono state salvate.\nContinuando "
                       "verranno perse.\nSei sicuro di voler uscire ?"),
     Presentation::Warning},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nLe modifiche fatte non sono state confermate.\nContinuando "
                       "verranno perseSei sicuro di voler uscire ?"),
     Presentation::Warning},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nLe modifiche fatte e confermate non sono state "
                       "salvate.\nContinuando verranno perseSei sicuro di voler uscire ?"),
     Presentation::Warning},
    {4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nCon il pulsante 'Ripristina':\n-Saranno eliminate tutte le "
                       "modifiche fatte dall'utente!\n-Saranno ripristinati tutti i default del "
                       "Nodrix!\nSei sicuro di voler continuare ?"),
     Presentation::Warning},
    {5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSono presenti comandi non recuperati!\nContinuando verranno "
                       "persi.\nSei sicuro di voler uscire ?"),
     Presentation::Warning},
};

// The placeholders take sArg1, sArg2, sArg3 in this order: file, then reason
// or installed version, then the project's version.
const AdvisorCase machineFileCases[] = {
    {0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Impossibile leggere il file di configurazione macchina %1:\n%2."),
     WarningClose},
    {1, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Impossibile leggere il file macchina : %1"),
     WarningClose},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "File macchina : %1\nversione installata : %2  incompatibile \ncon "
                       "versione progetto : %3"),
     WarningClose},
    {3, QT_TRANSLATE_NOOP("QNodrixMessageBox", "File macchina non riconosciuto"), WarningClose},
    {4, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Macchina o costruttore non supportati"),
     WarningClose},
    {5, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Impossibile caricare i files macchina !"),
     CriticalClose},
    {6,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Files macchina presenti nel progetto\nnon congruenti con quelli "
                       "installati !"),
     CriticalClose},
};

// %1 is the file; the rest come from the caller's list: error text, line and
// column for 0; line, tag and the two parts of the attributes for 1.
const AdvisorCase machineXmlCases[] = {
    {0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Errore in file Xml : %1 --- %2\nlinea : %3 --- colonna : %4"),
     WarningClose},
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Errore in file Xml : %1 --- linea %2\ntag : %3\nattributi : %4 --- %5"),
     WarningClose},
};

// The error reports show a critical box of their own: the title is
// translated (unlike the fixed "Nodrix" of the presentations) and the box is
// parented to the active window.
void showFileError(const char *source, const QStringList &arguments)
{
    OverrideCursor cursor(Qt::PointingHandCursor);
    const QString title = QNodrixMessageBox::tr("Nodrix");
    const QString text = fillText(source, arguments);
    showStandardBox(QMessageBox::Critical, QApplication::activeWindow(), title, text);
}

// The stream's status as the report names it. The two names are identifiers
// the developers look up, not sentences: they are not translated.
QString statusName(const QDataStream &stream)
{
    switch (stream.status()) {
    case QDataStream::ReadPastEnd:
        return QStringLiteral("ReadPastEnd");
    case QDataStream::ReadCorruptData:
        return QStringLiteral("ReadCorruptData");
    default:
        return QString();
    }
}

} // namespace

void QNodrixMessageBox::execIllegalNameAdvisor(enIllegalNameAdvisor eType, QString sArg, int nArg)
{
    const AdvisorCase *advisorCase = findCase(illegalNameCases, eType);
    if (!advisorCase) {
        // Unknown values still warn, with an empty text: the applications
        // relied on a box appearing whatever they passed.
        showAdvisor(Presentation::WarningClose, QString());
        return;
    }
    QStringList arguments;
    if (eType == eIllegalName_TooLong)
        arguments << QString::number(nArg);
    else if (eType == eIllegalName_CharNotAllowed || eType == eIllegalName_InvalidChars)
        arguments << sArg;
    showCase(*advisorCase, arguments);
}

QMessageBox::StandardButton QNodrixMessageBox::execFileNameAdvisor(enFileNameAdvisor eType,
                                                                   QString sArg, int nArg)
{
    OverrideCursor cursor(Qt::PointingHandCursor);
    if (const AdvisorCase *advisorCase = findCase(fileNameCases, eType)) {
        showCase(*advisorCase, {eType == eFileName_TooLong ? QString::number(nArg) : sArg});
    }
    // The answer is fixed: the caller only learns that the name was refused.
    return No;
}

QMessageBox::StandardButton QNodrixMessageBox::execProjectDocAdvisor(enProjectDocAdvisor eType,
                                                                     QString sArg, int nArg)
{
    Q_UNUSED(sArg)
    Q_UNUSED(nArg)
    OverrideCursor cursor(Qt::PointingHandCursor);
    if (const AdvisorCase *advisorCase = findCase(projectDocCases, eType))
        showCase(*advisorCase, {});
    return No;
}

QMessageBox::StandardButton QNodrixMessageBox::execModifyDataAdvisor(enModifyDataAdvisor eType)
{
    if (const AdvisorCase *advisorCase = findCase(modifyDataCases, eType))
        return showCase(*advisorCase, {});
    return No;
}

QMessageBox::StandardButton QNodrixMessageBox::execModified()
{
    return execModifyDataAdvisor(eModifyData_NotSaved);
}

int QNodrixMessageBox::execMachineFileAdvisor(enMachineFileAdvisor eType, QString sArg1,
                                              QString sArg2, QString sArg3)
{
    const AdvisorCase *advisorCase = findCase(machineFileCases, eType);
    if (!advisorCase)
        return 0;
    QStringList arguments;
    switch (eType) {
    case eMachineFile_ConfigUnreadable:
        arguments = QStringList {sArg1, sArg2};
        break;
    case eMachineFile_Unreadable:
        arguments = QStringList {sArg1};
        break;
    case eMachineFile_VersionMismatch:
        arguments = QStringList {sArg1, sArg2, sArg3};
        break;
    default:
        break;
    }
    showCase(*advisorCase, arguments);
    return 0;
}

QMessageBox::StandardButton QNodrixMessageBox::execMachineXmlAdvisor(enMachineXmlAdvisor eType,
                                                                     QString sFile,
                                                                     QStringList &slArgs)
{
    OverrideCursor cursor(Qt::PointingHandCursor);
    if (const AdvisorCase *advisorCase = findCase(machineXmlCases, eType)) {
        // A short list is the caller's mistake; its missing entries read as
        // empty strings instead of running off its end.
        const int entries = eType == eMachineXml_ParseError ? 3 : 4;
        QStringList arguments {sFile};
        for (int i = 0; i < entries; ++i)
            arguments << slArgs.value(i);
        showCase(*advisorCase, arguments);
    }
    return No;
}

void QNodrixMessageBox::execFileOpenError(QString sFile, QString sReason)
{
    showFileError(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Impossibile aprire il file %1:\n%2"),
                  {sFile, sReason});
}

void QNodrixMessageBox::execFileReadError(QString sFile, QString sReason)
{
    showFileError(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Impossibile leggere il file %1:\n%2"),
                  {sFile, sReason});
}

void QNodrixMessageBox::execFileWriteError(QString sFile, QString sReason)
{
    showFileError(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Impossibile scrivere il file %1:\n%2"),
                  {sFile, sReason});
}

void QNodrixMessageBox::execDataStreamErrorFile(QString sFile)
{
    showFileError(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Impossibile aprire il file %1:\n%2"),
                  {sFile, tr("Archivio corrotto !!")});
}

void QNodrixMessageBox::execDataStreamErrorRead(QString sClass, unsigned int uVersion,
                                                unsigned int uLoadedVersion, QDataStream &stream)
{
    const QString status = statusName(stream);
    showFileError(QT_TRANSLATE_NOOP("QNodrixMessageBox",
                                    "Classe : %1\nVersione : %2 --- Versione caricata : "
                                    "%3\nStatus : %4"),
                  {sClass, QString::number(uVersion), QString::number(uLoadedVersion), status});
}

void QNodrixMessageBox::execDataStreamErrorVersion(QString sClass, unsigned int uVersion,
                                                   unsigned int uLoadedVersion, QString sFunction)
{
    showFileError(QT_TRANSLATE_NOOP("QNodrixMessageBox",
                                    "Classe : %1\nVersione : %2 --- Versione caricata : "
                                    "%3\nFunzione : %4\nVersione oggetto sconosciuta"),
                  {sClass, QString::number(uVersion), QString::number(uLoadedVersion), sFunction});
}
