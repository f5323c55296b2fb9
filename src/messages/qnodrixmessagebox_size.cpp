// Size-control (SCS) and new-size advisors, and the notices about automatic
// changes to a project and its protected mode. None of them touches the
// cursor.

#include "qnodrixmessagebox.h"
#include "qnodrixmessagebox_p.h"

using namespace NdxComMessages;

namespace {

constexpr auto Question = Presentation::Question;
constexpr auto Warning = Presentation::Warning;
constexpr auto WarningClose = Presentation::WarningClose;
constexpr auto InformationClose = Presentation::InformationClose;

const AdvisorCase scsCases[] = {
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nNessuna zona SCS presente !\nPer continuare è necessario "
                       "inserire almeno una zona o disabilitare l'SCS.\nVuoi inserire una zona "
                       "iniziale ?"),
     Question},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSono presenti Zone SCS !\nDisabilitando l'SCS vuoi eliminare "
                       "anche le zone ?"),
     Question},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSCS è in Controllo Taglia !!!\nInserire/Eliminare Zone "
                       "SCS:\npuò comportare l'eliminazione\ndell'Acquisizione SCS !!"),
     WarningClose},
    {4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione :\nSCS è in Controllo Taglia !!!\n Alcune modifiche al "
                       "progetto non sono possibili !\nPer sbloccarle è necessario "
                       "selezionare:\n\"Abilita Acquisizione\"\ned eliminare l'Acquisizione "
                       "SCS\nIl Controllo Taglia verrà perso !"),
     WarningClose},
    {5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSCS è in Controllo Taglia !!!\nApportando modifiche potrebbe "
                       "essere richiesta l'eliminazione dell'Acquisizione SCS."),
     WarningClose},
    {6,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSCS è in Controllo Taglia !!!\nAcquisizione SCS verrà "
                       "eliminata !\nVuoi continuare ?"),
     Warning},
    {7,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\nVuoi salvare anche l'acquisizione SCS presente nel progetto ?"),
     Warning},
    {8, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Attenzione:\nVuoi Salvare le Modifiche Fatte ?"),
     Question},
    {9,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSCS è in Controllo Taglia !!!\nPer continuare è necessario "
                       "associare tutti i Vector Active\ndi default ad un guidafilo o eliminare "
                       "l'acquisizione SCS\nVuoi eliminare Acquisizione SCS ?"),
     Question},
    {10,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSCS è in Controllo Taglia !!!\nEsegui solo le piccole "
                       "modifiche al disegno\nnecessarie dopo un \"Crea Taglia\" "
                       "altrimenti\n\"Acquisizione SCS\" non sarà più idonea\nVuoi Continuare ?"),
     Question},
    {11,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSCS è in Controllo Taglia !!!\nOperazioni possibili:\n- "
                       "Adattare i dati Acq. SCS al ridimensionamento\n- Annullare la modifica "
                       "del ridimensionamento"),
     Presentation::ResizeScs},
    {12,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\nSCS abilitato !\nNon tutte le cadute abilitate al controllo "
                       "nelle zone %1\nhanno un alimentatore BodyScs in lavoro\nQueste cadute "
                       "verranno automaticamente disabilitate al controllo"),
     WarningClose},
};

// 8 and 9 say the same on purpose; lupdate files the text once.
const AdvisorCase createSizeCases[] = {
    {0, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Nuova Taglia Creata con Successo !"),
     InformationClose},
    {1, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Progetto ridimensionato con successo !"),
     InformationClose},
    {2, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Ridimensionamento matrice pixel fallito !"),
     WarningClose},
    {3, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Ridimensionamento piani disegno fallito !"),
     WarningClose},
    {4, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Ridimensionamento struttura progetto fallita !"),
     WarningClose},
    {5, QT_TRANSLATE_NOOP("QNodrixMessageBox", "Adattamento piani disegno fallito !"),
     WarningClose},
    {6,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "IL PROGETTO SORGENTE E' IN CONTROLLO TAGLIA,\nI DATI DELL'ACQUISIZIONE "
                       "SCS SARANNO ADATTATI\nAUTOMATICAMENTE AL PROGETTO DESTINAZIONE"),
     InformationClose},
    {7,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione :\nCreazione Nuova Taglia fallita !!\nRipetere l'operazione ed "
                       "eventualmente\ndeselezionare l'opzione \"Adatta i Ranghi\""),
     WarningClose},
    {8,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Ridimensionamento fallito !!\nRipetere l'operazione o\ninserire un "
                       "diverso N. ranghi."),
     WarningClose},
    {9,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Ridimensionamento fallito !!\nRipetere l'operazione o\ninserire un "
                       "diverso N. ranghi."),
     WarningClose},
    {10,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione :\nPiano SCS: il ridimensionamento richiede\nl'eliminazione di "
                       "una o più Zone SCS !!\nOperazione non possibile !\nInserire un diverso N. "
                       "di ranghi\no modificare queste Zone."),
     WarningClose},
    {11,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione :\nPiano Comandi: il ridimensionamento richiede\nl'eliminazione "
                       "di una o più Zone Maglia !!\nOperazione non possibile !\nInserire un "
                       "diverso N. di ranghi\no modificare queste Zone."),
     WarningClose},
    {12,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione :\nPiano Comandi: il ridimensionamento richiede\nl'eliminazione "
                       "di una o più Zone %1 !!\nOperazione non possibile !\nInserire un diverso "
                       "N. di ranghi\no modificare queste Zone."),
     WarningClose},
    {13,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione :\nPiano Comandi: il ridimensionamento richiede\nl'eliminazione "
                       "di una o più Zone Velocità !!\nOperazione non possibile !\nInserire un "
                       "diverso N. di ranghi\no modificare queste Zone."),
     WarningClose},
};

// "insriti" is the word the translations were made against; it stays.
const AdvisorCase modifyProjCases[] = {
    {0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione :\ndal progetto sono stati rimossi comandi\ninsriti manualmente "
                       "dall'utente.\nE' necessario inserirli di nuovo manualmente :\n%1"),
     Presentation::WarningCloseHelp},
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione :\nle modifiche fatte comportano :\n%1\n%2\n"),
     Presentation::WarningCloseHelp},
};

// Value 1 is an empty notice; the applications show it as a plain "Chiudi"
// warning and it stays that way.
const AdvisorCase protectedModeCases[] = {
    {0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "VUOI PASSARE IL PROGETTO IN MODALITA' PROTETTA ?\n\nScegliendo Si: \n- il "
                       "progetto verrà automaticamente salvato\n- gli strumenti grafici opereranno "
                       "in modalità speciale\n- sarà possibile uscire da questa modalità in "
                       "qualsiasi momento\n\nScegliendo No: \n- sul progetto si potrà operare "
                       "normalmente"),
     Presentation::InformationYesNoHelp},
    {1, QT_TRANSLATE_NOOP("QNodrixMessageBox", ""), WarningClose},
};

} // namespace

int QNodrixMessageBox::execScsAdvisor(enScsAdvisor eType, QString sArg)
{
    const AdvisorCase *advisorCase = findCase(scsCases, eType);
    if (!advisorCase)
        return -1;
    const StandardButton answer
        = showCase(*advisorCase, eType == eScs_FeedsDisabled ? QStringList {sArg} : QStringList());
    // The notices without an answer report which notice was shown.
    return answer == NoButton ? int(eType) : int(answer);
}

void QNodrixMessageBox::execCreateSizeAdvisor(enCreateSizeAdvisor eType, QString sArg,
                                              unsigned int uArg)
{
    Q_UNUSED(uArg)
    if (const AdvisorCase *advisorCase = findCase(createSizeCases, eType))
        showCase(*advisorCase, eType == eCreateSize_Zones ? QStringList {sArg} : QStringList());
}

int QNodrixMessageBox::execModifyProjAdvisor(enModifyProjAdvisor eType, QString sArg,
                                             unsigned int uFlags)
{
    const AdvisorCase *advisorCase = findCase(modifyProjCases, eType);
    if (!advisorCase)
        return 0;
    QStringList arguments;
    if (eType == eModifyProj_CommandsRemoved) {
        arguments << sArg;
    } else {
        // One line per change; a change that did not happen leaves its line
        // empty, and with none the box still shows, with two empty lines.
        arguments << (uFlags & eModifyProjFlag_UserZonesRemoved
                          ? tr("- rimozione zone comandi utente")
                          : QString());
        arguments << (uFlags & eModifyProjFlag_DefaultsInserted
                          ? tr("- inserimento valori default zone comandi")
                          : QString());
    }
    return showCase(*advisorCase, arguments);
}

int QNodrixMessageBox::execProtectedModeAdvisor(enProtectedModeAdvisor eType, QString sArg,
                                                unsigned int uArg)
{
    Q_UNUSED(sArg)
    Q_UNUSED(uArg)
    if (const AdvisorCase *advisorCase = findCase(protectedModeCases, eType))
        return showCase(*advisorCase, {}); // the empty notice has no answer: 0
    return 0;
}
