// Every text QNodrixMessageBox shows must reach the translators: lupdate,
// run over the library's sources at build time, has to file each of them
// under the context "QNodrixMessageBox", and nothing else there.

#include "ndxcomtest.h"
#include "tsreader.h"

#include <QtTest/QtTest>

using namespace NdxComTest;

namespace {

const QString context = QStringLiteral("QNodrixMessageBox");

// The buttons of the presentations, the diagnostic reports and the
// platform advisor.
QStringList presentationTexts()
{
    return {
        QStringLiteral("Si"),
        QStringLiteral("No"),
        QStringLiteral("Ignora"),
        QStringLiteral("ADATTA\nAcquisizione SCS"),
        QStringLiteral("ANNULLA\nModifica"),
        QStringLiteral("Chiudi"),
        QStringLiteral("Ok"),
        QStringLiteral("Dettagli"),
        QStringLiteral("Salva con nome"),
        QStringLiteral("Errore"),
        QStringLiteral("Attenzione"),
        QStringLiteral("Informazione"),
        QStringLiteral("Classe:\t%1\nVersione:\t%2\nVersione caricata:\t%3\nFunzione:\t%4\n\n"
                       "Messaggio:\t%5\n"),
        QStringLiteral("Classe:\t%1\nFunzione:\t%2\n\nMessaggio:\t%3\n"),
        QStringLiteral("%1\n"),
        QStringLiteral("Attenzione:\nquesto software macchina richiede sia installata \nla "
                       "Piattaforma Nodrix versione %1 o superiore \nNon è possibile continuare "
                       "senza aggiornare la Piattaforma !"),
    };
}

// Project, name and machine-file advisors and the file error reports. The
// text of execDataStreamErrorFile is that of execFileOpenError.
QStringList projectTexts()
{
    return {
        QStringLiteral("Attenzione!\nNon è stato inserito alcun nome !"),
        QStringLiteral("Attenzione: Il nome dei progetti per la macchina \n NON deve essere più "
                       "lungo di %1 caratteri"),
        QStringLiteral("Attenzione:\nCarattere >%1< non ammesso."),
        QStringLiteral("Attenzione:\nIl nome dei progetti Nodrix NON può contenere i seguenti "
                       "caratteri:\n\t %1"),
        QStringLiteral("Attenzione:\nAmmessi solo caratteri occidentali"),
        QStringLiteral("Attenzione:\nAmmesso nome progetto solo con estensione .ndx minuscolo"),
        QStringLiteral("Attenzione: Il nome dei progetti per la macchina\n NON deve essere più "
                       "lungo di %1 caratteri"),
        QStringLiteral("Attenzione:\nIl nome dei progetti Veskar NON può contenere i seguenti "
                       "caratteri:\n\t %1"),
        QStringLiteral("Attenzione!\nApplicazione macchina non definita"),
        QStringLiteral("Attenzione!\nIl progetto è di una macchina diversa da quella "
                       "dell'applicazione attiva!"),
        QStringLiteral("Attenzione!\nL'ultimo percorso selezionato NON risulta accessibile "
                       "!!!\nVerrà selezionato il percorso di default !!!"),
        QStringLiteral("Attenzione:\nLe modifiche fatte NON sono state salvate.\nContinuando "
                       "verranno perse.\nSei sicuro di voler uscire ?"),
        QStringLiteral("Attenzione:\nLe modifiche fatte non sono state confermate.\nContinuando "
                       "verranno perseSei sicuro di voler uscire ?"),
        QStringLiteral("Attenzione:\nLe modifiche fatte e confermate non sono state "
                       "salvate.\nContinuando verranno perseSei sicuro di voler uscire ?"),
        QStringLiteral("Attenzione:\nCon il pulsante 'Ripristina':\n-Saranno eliminate tutte le "
                       "modifiche fatte dall'utente!\n-Saranno ripristinati tutti i default del "
                       "Nodrix!\nSei sicuro di voler continuare ?"),
        QStringLiteral("Attenzione:\nSono presenti comandi non recuperati!\nContinuando verranno "
                       "persi.\nSei sicuro di voler uscire ?"),
        QStringLiteral("Impossibile leggere il file di configurazione macchina %1:\n%2."),
        QStringLiteral("Impossibile leggere il file macchina : %1"),
        QStringLiteral("File macchina : %1\nversione installata : %2  incompatibile \ncon "
                       "versione progetto : %3"),
        QStringLiteral("File macchina non riconosciuto"),
        QStringLiteral("Macchina o costruttore non supportati"),
        QStringLiteral("Impossibile caricare i files macchina !"),
        QStringLiteral("Files macchina presenti nel progetto\nnon congruenti con quelli "
                       "installati !"),
        QStringLiteral("Errore in file Xml : %1 --- %2\nlinea : %3 --- colonna : %4"),
        QStringLiteral("Errore in file Xml : %1 --- linea %2\ntag : %3\nattributi : %4 --- %5"),
        QStringLiteral("Nodrix"),
        QStringLiteral("Impossibile aprire il file %1:\n%2"),
        QStringLiteral("Impossibile leggere il file %1:\n%2"),
        QStringLiteral("Impossibile scrivere il file %1:\n%2"),
        QStringLiteral("Archivio corrotto !!"),
        QStringLiteral("Classe : %1\nVersione : %2 --- Versione caricata : %3\nStatus : %4"),
        QStringLiteral("Classe : %1\nVersione : %2 --- Versione caricata : %3\nFunzione : "
                       "%4\nVersione oggetto sconosciuta"),
    };
}

// Size-control, new-size, project-modification and protected-mode advisors.
// The empty notice of execProtectedModeAdvisor goes through tr() as well, but
// lupdate files no empty text.
QStringList sizeTexts()
{
    return {
        QStringLiteral("Attenzione:\nNessuna zona SCS presente !\nPer continuare è necessario "
                       "inserire almeno una zona o disabilitare l'SCS.\nVuoi inserire una zona "
                       "iniziale ?"),
        QStringLiteral("Attenzione:\nSono presenti Zone SCS !\nDisabilitando l'SCS vuoi eliminare "
                       "anche le zone ?"),
        QStringLiteral("Attenzione:\nSCS è in Controllo Taglia !!!\nInserire/Eliminare Zone "
                       "SCS:\npuò comportare l'eliminazione\ndell'Acquisizione SCS !!"),
        QStringLiteral("Attenzione :\nSCS è in Controllo Taglia !!!\n Alcune modifiche al progetto "
                       "non sono possibili !\nPer sbloccarle è necessario selezionare:\n\"Abilita "
                       "Acquisizione\"\ned eliminare l'Acquisizione SCS\nIl Controllo Taglia "
                       "verrà perso !"),
        QStringLiteral("Attenzione:\nSCS è in Controllo Taglia !!!\nApportando modifiche potrebbe "
                       "essere richiesta l'eliminazione dell'Acquisizione SCS."),
        QStringLiteral("Attenzione:\nSCS è in Controllo Taglia !!!\nAcquisizione SCS verrà "
                       "eliminata !\nVuoi continuare ?"),
        QStringLiteral(
            "Attenzione:\nVuoi salvare anche l'acquisizione SCS presente nel progetto ?"),
        QStringLiteral("Attenzione:\nVuoi Salvare le Modifiche Fatte ?"),
        QStringLiteral("Attenzione:\nSCS è in Controllo Taglia !!!\nPer continuare è necessario "
                       "associare tutti i Vector Active\ndi default ad un guidafilo o eliminare "
                       "l'acquisizione SCS\nVuoi eliminare Acquisizione SCS ?"),
        QStringLiteral("Attenzione:\nSCS è in Controllo Taglia !!!\nEsegui solo le piccole "
                       "modifiche al disegno\nnecessarie dopo un \"Crea Taglia\" "
                       "altrimenti\n\"Acquisizione SCS\" non sarà più idonea\nVuoi Continuare ?"),
        QStringLiteral("Attenzione:\nSCS è in Controllo Taglia !!!\nOperazioni possibili:\n- "
                       "Adattare i dati Acq. SCS al ridimensionamento\n- Annullare la modifica del "
                       "ridimensionamento"),
        QStringLiteral("Attenzione:\nSCS abilitato !\nNon tutte le cadute abilitate al controllo "
                       "nelle zone %1\nhanno un alimentatore BodyScs in lavoro\nQueste cadute "
                       "verranno automaticamente disabilitate al controllo"),
        QStringLiteral("Nuova Taglia Creata con Successo !"),
        QStringLiteral("Progetto ridimensionato con successo !"),
        QStringLiteral("Ridimensionamento matrice pixel fallito !"),
        QStringLiteral("Ridimensionamento piani disegno fallito !"),
        QStringLiteral("Ridimensionamento struttura progetto fallita !"),
        QStringLiteral("Adattamento piani disegno fallito !"),
        QStringLiteral("IL PROGETTO SORGENTE E' IN CONTROLLO TAGLIA,\nI DATI DELL'ACQUISIZIONE "
                       "SCS SARANNO ADATTATI\nAUTOMATICAMENTE AL PROGETTO DESTINAZIONE"),
        QStringLiteral("Attenzione :\nCreazione Nuova Taglia fallita !!\nRipetere l'operazione ed "
                       "eventualmente\ndeselezionare l'opzione \"Adatta i Ranghi\""),
        QStringLiteral("Ridimensionamento fallito !!\nRipetere l'operazione o\ninserire un diverso "
                       "N. ranghi."),
        QStringLiteral("Attenzione :\nPiano SCS: il ridimensionamento richiede\nl'eliminazione di "
                       "una o più Zone SCS !!\nOperazione non possibile !\nInserire un diverso N. "
                       "di ranghi\no modificare queste Zone."),
        QStringLiteral("Attenzione :\nPiano Comandi: il ridimensionamento richiede\nl'eliminazione "
                       "di una o più Zone Maglia !!\nOperazione non possibile !\nInserire un "
                       "diverso N. di ranghi\no modificare queste Zone."),
        QStringLiteral("Attenzione :\nPiano Comandi: il ridimensionamento richiede\nl'eliminazione "
                       "di una o più Zone %1 !!\nOperazione non possibile !\nInserire un diverso "
                       "N. di ranghi\no modificare queste Zone."),
        QStringLiteral("Attenzione :\nPiano Comandi: il ridimensionamento richiede\nl'eliminazione "
                       "di una o più Zone Velocità !!\nOperazione non possibile !\nInserire un "
                       "diverso N. di ranghi\no modificare queste Zone."),
        QStringLiteral("Attenzione :\ndal progetto sono stati rimossi comandi\ninsriti manualmente "
                       "dall'utente.\nE' necessario inserirli di nuovo manualmente :\n%1"),
        QStringLiteral("Attenzione :\nle modifiche fatte comportano :\n%1\n%2\n"),
        QStringLiteral("- rimozione zone comandi utente"),
        QStringLiteral("- inserimento valori default zone comandi"),
        QStringLiteral("VUOI PASSARE IL PROGETTO IN MODALITA' PROTETTA ?\n\nScegliendo Si: \n- il "
                       "progetto verrà automaticamente salvato\n- gli strumenti grafici opereranno "
                       "in modalità speciale\n- sarà possibile uscire da questa modalità in "
                       "qualsiasi momento\n\nScegliendo No: \n- sul progetto si potrà operare "
                       "normalmente"),
    };
}

// Command-plane, scheme, skeleton, elaboration and body-plane advisors, with
// the buttons of the free command plane's own boxes.
QStringList planeTexts()
{
    return {
        QStringLiteral("Continua"),
        QStringLiteral("Annulla"),
        QStringLiteral("OK"),
        QStringLiteral("Salva"),
        QStringLiteral("Esci"),
        QStringLiteral("Attenzione:\nSelezionando 'Continua' si renderà possibile\n"
                       "entrare in modalità 'PIANO COMANDI LIBERO' !\n"
                       "Si avverte che tale modalità è consigliata\nai soli UTENTI ESPERTI !!!"),
        QStringLiteral(
            "Attenzione:\nStai entrando sul 'Piano Comandi Manuale' \n"
            "   ALLINEATO   al 'Piano Comandi Automatico':\n"
            "le modifiche fatte al 'Piano Comandi Manuale'\npotranno essere recuperate."),
        QStringLiteral("Attenzione:\nIl 'PIANO COMANDI LIBERO' è stato modificato!.\n"
                       "Vuoi salvare le modifiche fatte ?"),
        QStringLiteral("Attenzione:\nModalità 'PIANO COMANDI LIBERO'\n   NON CONFERMATA CON OK ! \n"
                       "Sei sicuro di voler uscire ?"),
        QStringLiteral("Attenzione:\nSul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                       "NON sono state applicate ! \n"
                       "Continuando verranno PERSE. Sei sicuro di voler uscire ?"),
        QStringLiteral("Attenzione:\nSul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                       "     NON sono state confermate con Ok! \n"
                       "Continuando verranno Perse. Sei sicuro di voler uscire ?"),
        QStringLiteral("Attenzione:\nPrima di uscire dalla modalità 'PIANO COMANDI LIBERO'\n"
                       "è necessario completare e chiudere la finestra Report !"),
        QStringLiteral("Attenzione:\nSono state rilevate modifiche al Setup del progetto !\n"
                       "L'ingresso in modalità Piano Comandi Libero comporta:\n"
                       "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                       "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                       "Vuoi continuare ?"),
        QStringLiteral("Attenzione:\nNon è possibile agire sui comandi con il Report attivo!\n"),
        QStringLiteral(
            "Attenzione:\nNESSUN comando è stato recuperato.\n"
            "Uscendo non sarà più possibile alcun recupero.\nSei sicuro di voler uscire ?"),
        QStringLiteral("Attenzione:\nPer eliminare un comando spostato\n"
                       "è necessario prima annullare lo spostamento!\n"),
        QStringLiteral("Attenzione:\nSCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                       "L'Acquisizione SCS verrà eliminata !\nVuoi continuare ?"),
        QStringLiteral("Attenzione:\nSono presenti comandi guidafilo con accessori associati!\n"
                       "non compatibili con quelli già in uso nel progetto\n%1\n"
                       "I comandi di questi accessori verranno ignorati !\nVuoi continuare ?"),
        QStringLiteral(
            "Attenzione:\nNel progetto è già presente una asociazione \n"
            "PAT manuale al colore %1 da importare !\nIl colore importato verrà sostituito \n"
            "con il colore selezionato o con il primo libero !\n"),
        QStringLiteral("Attenzione:\nNel progetto è già presente un PAT manuale con nome %1 !\n"
                       "Il PAT importato verrà rinominato e associato come : %2 !\n"),
        QStringLiteral("Attenzione:\nUna zona a 4 cadute deve essere almeno di %1 passi!"),
        QStringLiteral("Attenzione:\nFra 2 zone a 4 cadute ci devono essere almeno %1 passi!"),
        QStringLiteral("Attenzione:\n"
                       "Fra l'ultima zona e la fine disegno ci devono essere almeno %1 passi!"),
        QStringLiteral(
            "Attenzione:\nNon è possibile inserire una zona sovrapposta alle esistenti!"),
        QStringLiteral("Attenzione:\nNon è possibile aggiungere il passo richiesto alla zona!"),
        QStringLiteral("Attenzione:\nNon è possibile togliere il passo richiesto alla zona!"),
        QStringLiteral("Attenzione:\nUn Bordo deve essere almeno di %1 passi !"),
        QStringLiteral("Attenzione:\nFra due bordi ci devono essere almeno %1 passi non bordo !"),
        QStringLiteral("Attenzione:\nNon è possibile aggiungere il passo richiesto al bordo !"),
        QStringLiteral("Attenzione:\nNon è possibile togliere il passo richiesto al bordo !"),
        QStringLiteral("Attenzione:\n"
                       "Fra l'ultimo bordo e la fine disegno ci devono essere almeno %1 passi !"),
        QStringLiteral(
            "Attenzione:\nIl primo bordo deve partire al passo 1 oppure dopo il passo %1!"),
        QStringLiteral("Attenzione:\n"
                       "Il bordo che inizia al passo %1 NON ha il check del guidafilo abilitato!"),
        QStringLiteral("Attenzione:\nLe modifiche precedentemente apportate al\n"
                       "Piano Comandi verranno Eliminate !!\nVuoi continuare ?"),
        QStringLiteral("Attenzione:\nL'articolo deve iniziare con un bordo uncini !"),
        QStringLiteral("Attenzione:\nFili in lavoro non definiti !"),
        QStringLiteral(
            "Attenzione:\n"
            "- Durante lo Scarico Maglia ad 1 filo, su tutte le cadute, non è possibile avere\n"
            "  il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n\n"
            "- Durante lo Scarico Maglia a 2 fili, su tutte le cadute, non è possibile avere\n"
            "  entrambi i guidafili associati ad una pinza !\n\n"
            "- Durante lo Scarico Maglia a 2 fili, solo sulla 5a caduta, non è possibile avere\n"
            "  un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n\n"
            "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
            "il cambio per terminare lo Scarico Maglia."),
        QStringLiteral(
            "Attenzione:\n"
            "Durante lo Scarico Maglia ad 1 filo, sulla caduta %1, non è possibile avere\n"
            "il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n\n"
            "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
            "il cambio per terminare lo Scarico Maglia."),
        QStringLiteral(
            "Attenzione:\n"
            "Durante lo Scarico Maglia a 2 fili, sulla caduta %1, non è possibile avere\n"
            "entrambi i guidafili associati ad una pinza !\n\n"
            "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
            "il cambio per terminare lo Scarico Maglia."),
        QStringLiteral(
            "Attenzione:\n"
            "Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non è possibile avere\n"
            "un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n\n"
            "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
            "il cambio per terminare lo Scarico Maglia."),
        QStringLiteral("Attenzione:\nPunto maglia '%1' non identificato nel Pat :\n%2"),
        QStringLiteral("Attenzione:\nNon è possibile inserire zone maglie sul passo !"),
        QStringLiteral("Attenzione:\nNon ci sono alimentatori %1 attivi nella zona !"),
        QStringLiteral("Attenzione:\nPlatò abbassato con uncini attivi al passo %1 !"),
        QStringLiteral("Attenzione:\nNon è possibile inserire il comando platò sul passo !"),
        QStringLiteral("Attenzione:\nNon è possibile avere la camme rientro parziale uncini\n"
                       " insieme alla camme uscita uncini al passo %1 !"),
        QStringLiteral("Attenzione:\nPasso %1: Platò Motorizzato basso/alto con uncini attivi!"),
        QStringLiteral(
            "Attenzione:\nSul passo Non è possibile inserire il comando 'Platò Motorizzato!'"),
        QStringLiteral("Attenzione:\n"
                       "Sul passo Non è possibile inserire il comando 'Stop Espulsore Articolo!'"),
        QStringLiteral("Attenzione: Piano Body n. %1\nColore %2 non assegnato"),
        QStringLiteral("Attenzione:\nNon sono presenti zone maglia"),
        QStringLiteral("Attenzione:\nNon sono presenti zone alimentatori BodyMap"),
        QStringLiteral("Attenzione:\nNon sono presenti zone alimentatori BodyShape"),
        QStringLiteral("Attenzione:\nNon è presente la zona maglie per il passo %1"),
        QStringLiteral("Attenzione:\nNon è presente la zona alimentatori BodyMap per il passo %1"),
        QStringLiteral(
            "Attenzione:\nNon è presente la zona alimentatori BodyShape per il passo %1"),
        QStringLiteral("Attenzione:\nValore di sbilanciamento inferiore al minimo consentito\n"
                       "Motor=%1 Rango=%2 Ago=%3"),
        QStringLiteral("Attenzione:\nValore di sbilanciamento superiore al massimo consentito\n"
                       "Motore=%1 Rango=%2 Ago=%3"),
        QStringLiteral("Attenzione:\nValore di sbilanciamento inferiore al minimo consentito\n"
                       "Alimentatore=%1 Rango=%2 Ago=%3"),
        QStringLiteral("Attenzione:\nValore di sbilanciamento superiore al massimo consentito\n"
                       "Alimentatore=%1 Rango=%2 Ago=%3"),
    };
}

// The 65 rules of the module rules report. Rule 10 carries U+0092 where an
// apostrophe would be.
QStringList ruleTexts()
{
    return {
        QStringLiteral(
            "Nel pat %1 alla caduta n° %2 non è configurato il numero di fili in lavoro"),
        QStringLiteral("Attenzione:\n"
                       "Alcuni punti maglia utilizzati nel pat %1 e nel pat %2 sulla caduta %3 "
                       "prevedono movimenti di camme.\n"
                       "Tali movimenti sono possibili solo se questi punti maglia non sono sullo "
                       "stesso rango di maglia.\n"
                       "Per procedere è necessario modificare uno dei due pat"),
        QStringLiteral(
            "Attenzione:\nAlcuni punti maglia utilizzati nel pat %1 e nel pat %2\n"
            "sulla caduta %3 prevedono movimenti di camme.\n"
            "Tali movimenti sono possibili solo se questi punti maglia distano almeno %4 passi.\n"
            "Per procedere è necessario modificare uno dei due pat"),
        QStringLiteral(
            "Attenzione:\n"
            "Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.\n"
            "Tali movimenti sono troppo ravvicinati in presenza della selezione di carico uncini\n"
            "E' necessario che fra questi movimenti vi siano almeno %4 passo(i).\n"
            "Per procedere è necessario modificare uno dei due pat"),
        QStringLiteral(
            "Attenzione:\n"
            "Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.\n"
            "Tali movimenti sono troppo ravvicinati in presenza della selezione di scarico uncini\n"
            "E' necessario che fra questi movimenti vi siano almeno %4 passo(i).\n"
            "Per procedere è necessario modificare uno dei due pat"),
        QStringLiteral(
            "Attenzione:\nIl Pat %1 ed il Pat %2  richiedono:\n"
            "- cambi Posizione del Guidafilo %3 gruppo %4\nE' possibile se fra questi cambi\n"
            "ci sono almeno %5 aghi di distanza.\nE' necessario modificare il Disegno !"),
        QStringLiteral("Attenzione:\n"
                       "Fra il pat %1 ed il pat %2  sono necessari dei cambi di guidafili con "
                       "sovrapposizione.\n"
                       "Tali movimenti non sono possibili sullo stesso rango di maglia.\n"
                       "Per procedere è necessario modificare uno dei due pat"),
        QStringLiteral(
            "Attenzione:\n"
            "Fra il pat %1 ed il pat %2  sono necessarie entrate o uscite di guidafili.\n"
            "Tali entrate o uscite non sono possibili sullo stesso rango di maglia.\n"
            " Per procedere è necessario modificare uno dei due pat"),
        QStringLiteral("Attenzione:\nIl pat %1 necessita di entrata e/o uscita di guidafili.\n"
                       "Tali cambi non sono possibili in presenza di camma di trattenuto.\n"
                       "Per procedere è necessario modificare il pat"),
        QStringLiteral("Attenzione:\nNel Disegno sono presenti Punti Maglia:\n"
                       "Flottato + Fuori Lavoro + Trattenuto.\n"
                       "E\u0092 necessario eliminare uno dei tre !"),
        QStringLiteral(
            "Attenzione:\nDal Pat %1 al Pat %2 è previsto : \n"
            "- entrata/uscita/cambio di Guidafilo\n"
            "Questo è possibile solo nel Primo Transfer.\nE' necessario modificare i Pat !"),
        QStringLiteral(
            "Attenzione:\nNel Primo Transfer è previsto : \n"
            "- entrata/uscita/cambio di Guidafilo\nQuesto è possibile solo se c'è il\n"
            "trasferimento di Tutti i Settori.\nE' necessario modificare Disegno o Pat !"),
        QStringLiteral("Attenzione:\nDal Pat %1 al Pat %2 c'è un cambio di guidafili : \n"
                       "- è possibile cambiare il guidafilo 1 con il 2 o il 3\n"
                       "- è possibile cambiare il guidafilo 2 con il 3\n"
                       "- altre sequenze non sono possibili\nE' necessario modificare i Pat !"),
        QStringLiteral("Attenzione:\nGuidafilo N.%1 assegnato al primo Pat applicato :\n"
                       "deve essere mantenuto in Tutti i Pat successivi !\n"
                       "E' necessario modificare Pat successivi !"),
        QStringLiteral("Attenzione:\nNel passo %1 sulla caduta %2  sono presenti :\n"
                       "- entrata-uscita-cambio di guidafili\n"
                       "- fine movimento entrata camme Trattenuto/Scaricato\n"
                       "Tali movimenti non sono possibili sullo stesso Rango di Maglia.\n"
                       "Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti"),
        QStringLiteral("Attenzione:\nNel passo %1 (passo 3 carico uncini) sulla caduta %2\n"
                       "  sono presenti :\n- entrata-uscita-cambio di guidafili\n"
                       "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
                       "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
                       "perchè troppo ravvicinati.\n"
                       "Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti"),
        QStringLiteral("Attenzione:\n"
                       "Nel passo %1 (passo 3 scarico uncini) sulla caduta %2  sono presenti :\n"
                       "- entrata-uscita-cambio di guidafili\n"
                       "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
                       "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
                       "perchè troppo ravvicinati.\n"
                       "Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti"),
        QStringLiteral(
            "Attenzione:\n"
            "L'offset maglie per lo sbilanciamento del(i) colore(i)  %1  è stato azzerato perchè\n"
            "dall'ago di inizio all'ago di fine del(i) colore(i) ci sono meno di %2 aghi di "
            "distanza.\n"
            "In alternativa è necessario modificare il disegno!"),
        QStringLiteral(
            "Attenzione:\nSulla caduta %1 il \"Disegno Nitido\" richiede\n"
            "il guidafilo 6 in tutto il progetto.\nE' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nIl Pat '%1' ed il Pat '%2' richiedono :\n"
                       "- uscita ed entrata guidafili\nE' possibile se fra questi cambi\n"
                       "ci sono almeno %3 aghi di distanza\nE' necessario modificare il Disegno!"),
        QStringLiteral(
            "Attenzione:\nNel primo e ultimo rango della caduta %1\n"
            "in \"Disegno Nitido\" non è possibile aggiungere il colore.\nVedi Pat : %2\n"
            "E' necessario modificare il Disegno!"),
        QStringLiteral(
            "Attenzione:\nSullo stesso rango di maglia:\nnon è possibile associare PAT\n"
            "di \"Disegno Nitido\" con altri PAT.E' necessario modificare Disegno o Pat!"),
        QStringLiteral(
            "Attenzione:\nNei passi %1 del carico uncini sulla caduta %2\n"
            "in \"Disegno Nitido\" non è possibile aggiungere il colore.\nVedi Pat : %3\n"
            "E' necessario modificare il Disegno!"),
        QStringLiteral(
            "Attenzione:\nNel passo %1 del carico uncini sulla caduta %2\n"
            "in \"Disegno Nitido\" non è possibile aggiungere il colore.\nVedi Pat : %3\n"
            "E' necessario modificare il Disegno!"),
        QStringLiteral(
            "Attenzione:\nNei passi 1 e 2 dello scarico uncini sulla caduta %1\n"
            "in \"Disegno Nitido\" non è possibile aggiungere il colore.\nVedi Pat : %2\n"
            "E' necessario modificare il Disegno!"),
        QStringLiteral(
            "Attenzione:\nNel passo 3 dello scarico uncini sulla caduta %1\n"
            "in \"Disegno Nitido\" non è possibile aggiungere il colore.\nVedi Pat : %2\n"
            "E' necessario modificare il Disegno!"),
        QStringLiteral("Attenzione:\nSulla caduta %1 il \"Colore\" richiede\n"
                       "il guidafilo 1-2-3 in tutto il progetto.\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nIl Pat '%1' ed il Pat '%2' richiedono :\n"
                       "- uscita ed entrata guidafili colore\nE' possibile se fra questi cambi\n"
                       "ci sono almeno %3 aghi di distanza\nE' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nNel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "nel primo rango della caduta %3\n"
                       "nell'area colore non è possibile aggiungere il colore.\n"
                       "E' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nNel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "nell'ultimo rango della caduta %3\n"
                       "nell'area colore non è possibile aggiungere il colore.\n"
                       "E' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nNel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di camme\n"
                       "NON è possibile all'interno della stessa modalità 'NITIDO'.\n"
                       "E' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nNel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di camme\n"
                       "Fra modalità 'NITIDO' questo e' possibile solo dopo %4 passi.\n"
                       "E' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nNel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di camme\n"
                       "NON è possibile all'interno della stessa modalità 'COLORE'.\n"
                       "E' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nNel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di camme\n"
                       "Fra modalità 'COLORE' questo e' possibile solo dopo %4 passi.\n"
                       "E' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nNel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di guidafili\n"
                       "NON è possibile all'interno della stessa modalità 'NITIDO'.\n"
                       "E' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nNel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di guidafili\n"
                       "NON è possibile all'interno della stessa modalità 'COLORE'.\n"
                       "E' necessario modificare il disegno!"),
        QStringLiteral("Attenzione:\nSullo stesso rango di maglia non è possibile associare :\n"
                       "PAT 'COLORE' (%1) con altri PAT 'COLORE' di modalità diversa (%2).\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nSullo stesso rango di maglia non è possibile associare :\n"
                       "PAT 'COLORE' (%1) con altri PAT NON 'COLORE' (%2).\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nNei passi %1 del carico uncini sulla caduta %2\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\nVedi Pat : %3\n"
                       "E' necessario modificare il Disegno!"),
        QStringLiteral("Attenzione:\n"
                       "Nel passo %1 del carico uncini per i primi %2 aghi sulla caduta %3\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\nVedi Pat : %4\n"
                       "E' necessario modificare il Disegno!"),
        QStringLiteral(
            "Attenzione:\nNel passo %1 (passo 3 del carico uncini) sulla caduta %2\n"
            "in \"Modo Colore\" non è possibile aggiungere il colore.\nin presenza di :\n"
            "- entrate/uscite/cambi di guidafili\nVedi Pat : %3\n"
            "E' necessario modificare il Disegno!"),
        QStringLiteral("Attenzione:\nNei passi 1 e 2 dello scarico uncini sulla caduta %1\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\nVedi Pat : %2\n"
                       "E' necessario modificare il Disegno!"),
        QStringLiteral("Attenzione:\n"
                       "Nel passo 3 dello scarico uncini per i primi %1 aghi sulla caduta %2\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\nVedi Pat : %3\n"
                       "E' necessario modificare il Disegno!"),
        QStringLiteral("Attenzione:\nSullo stesso rango di maglia %1 non è possibile associare :\n"
                       "PAT 'SPECIALE' (%2) con altri PAT di modalità incompatibile (%3).\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nSullo stesso rango di maglia %1 non è possibile associare :\n"
                       "PAT 'SPECIALE' (%2) con PAT (%3) con guidafili incompatibili.\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nSullo stesso rango di maglia %1 non è possibile associare :\n"
                       "PAT 'SPECIALE' (%2) con PAT (%3) con configurazione camme incompatibili.\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nPassaggio da PAT 'SPECIALE' (%1) rango %2 a PAT (%3)\n"
                       "e' possibile solo dopo almeno un rango completo in modalità 'SPECIALE'.\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nDal PAT %1 al PAT %2 rango %3 è richiesta :\n"
                       "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                       "E' possibile se ci sono almeno %4 aghi di distanza!\n"
                       "E' necessario modificare il Disegno!"),
        QStringLiteral("Attenzione:\nDal PAT %1 al PAT %2 rango %3 è richiesta :\n"
                       "- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.\n"
                       "E' possibile se ci sono almeno %4 aghi di distanza!\n"
                       "E' necessario modificare il Disegno!"),
        QStringLiteral("Attenzione:\nDal PAT %1 allo Scarico Maglia rango %2 è richiesta :\n"
                       "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                       "E' possibile se ci sono almeno %3 aghi di distanza!\n"
                       "E' necessario modificare il Disegno!"),
        QStringLiteral("Attenzione:\nRango %1 : Dal PAT modalità SPECIALE (%2)\n"
                       " al PAT modalità SPECIALE (%3) è richiesto :\n"
                       "- Cambio di guidafili 2 e 3 del GR1.\n"
                       "Non e' possibile sullo stesso rango di maglia!\n"
                       "Per continuare e' necessario modificare Disegno o PAT!"),
        QStringLiteral(
            "Attenzione:\nRango %1 : Dal PAT modalità SPECIALE (%2)\n"
            " al PAT modalità SPECIALE (%3) è richiesto :\n- Cambio di guidafili GR2/GR1.\n"
            "E' possibile solo se nell'ultimo rango di maglia :\n"
            "- Tutti gli aghi sono in modalità SPECIALE\n"
            "Per continuare e' necessario modificare Disegno o PAT!"),
        QStringLiteral("Attenzione:\nNel %1 passo Carico Uncini sulla caduta 5 (rango %2)\n"
                       "con presenza di PAT in modalità SPECIALE (%3) :\n"
                       "- Tutti gli aghi devono essere in modalità SPECIALE\n"
                       "Per continuare e' necessario modificare Disegno o PAT!"),
        QStringLiteral("Attenzione:\nUsata \"Camma Rientro Parziale Uncini\" nel Bordo n. %1.\n"
                       "Passo di movimento incompatibile con la dimensione del bordo.\n"
                       "Anticipare il movimento di %2 passo(i) o ampliare il bordo!"),
        QStringLiteral("Attenzione:\nIl PAT %1 a 4 cadute alla linea %2\n"
                       "non può essere usato in una zona a 8 cadute\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nIl PAT %1 a 8 cadute alla linea %2\n"
                       "non può essere usato in una zona a 4 cadute\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral("Attenzione:\nUna zona a 4 cadute o inizia al primo passo o dopo %1 passi!"),
        QStringLiteral("Attenzione al passo %1:\n"
                       "Negli ultimi 3 passi prima di passare da 8 a 4 cadute:\n"
                       "NON è consentita la presenza di Modalità Colore o Nitido!\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral(
            "Attenzione:\nUna zona a 4 cadute o termina all'ultimo passo o %1 passi prima!"),
        QStringLiteral("Attenzione al passo %1:\n"
                       "Negli ultimi 3 passi prima di passare da 4 a 8 cadute:\n"
                       "NON è consentita la presenza di Modalità Colore o Nitido!\n"
                       "E' necessario modificare Disegno o Pat!"),
        QStringLiteral(
            "Attenzione al passo %1:\nNel passaggio zona 8 cadute a zona 4 cadute\n"
            "Non è consentito l'inizio bordo con uncini:\n"
            "- negli ultimi 3 passi della zona a 8 cadute !\n"
            "- nel primo passo della zona a 4 cadute !\nE' necessario risolvere il conflitto!"),
        QStringLiteral("Attenzione al passo %1:\nNel passaggio zona 8 cadute a zona 4 cadute\n"
                       "Non è consentito la fine bordo con uncini\n"
                       "negli ultimi 3 passi della zona a 8 cadute !\n"
                       "E' necessario risolvere il conflitto!"),
        QStringLiteral("Attenzione al passo %1:\nNel passaggio zona 4 cadute a zona 8 cadute\n"
                       "Non è consentito la fine bordo con uncini\n"
                       "negli ultimi 2 passi della zona a 4 cadute !\n"
                       "E' necessario risolvere il conflitto!"),
        QStringLiteral(
            "Attenzione al passo %1:\nNel passaggio zona 4 cadute a zona 8 cadute\n"
            "Non è consentito l'inizio bordo con uncini:\n"
            "- negli ultimi 2 passi della zona a 4 cadute !\n"
            "- nel primo passo della zona a 8 cadute !\nE' necessario risolvere il conflitto!"),
        QStringLiteral("Attenzione:\nNon è consentito avere la Modalità Fili 0:\n"
                       "- nel 1° passo dopo il carico maglia !\n"
                       "- nell'ultimo passo prima dello scarico maglia !\n"
                       "Per continuare è necessario modificare il Disegno !"),
    };
}

// Every family's texts; a family added to the class adds its list here.
QStringList allTexts()
{
    return presentationTexts() + projectTexts() + sizeTexts() + planeTexts() + ruleTexts();
}

} // namespace

class tst_MessageTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void extracted_data();
    void extracted();
    void nothingElse();

private:
    TsCatalogue m_catalogue;
};

void tst_MessageTexts::initTestCase()
{
    QVERIFY2(m_catalogue.load(QStringLiteral(NDXCOM_EXTRACTED_TS)),
             qPrintable(m_catalogue.errorString()));
    QVERIFY(m_catalogue.contexts().contains(context));
}

void tst_MessageTexts::extracted_data()
{
    QTest::addColumn<QString>("text");
    const QList<QPair<const char *, QStringList>> families = {
        {"presentations", presentationTexts()},
        {"project", projectTexts()},
        {"size", sizeTexts()},
        {"planes", planeTexts()},
        {"rules", ruleTexts()},
    };
    for (const auto &family : families) {
        for (int i = 0; i < family.second.size(); ++i)
            QTest::addRow("%s %d", family.first, i) << family.second.at(i);
    }
}

void tst_MessageTexts::extracted()
{
    QFETCH(QString, text);
    QVERIFY2(m_catalogue.contains(context, text), qPrintable(text));
}

void tst_MessageTexts::nothingElse()
{
    const QStringList expected = allTexts();
    QCOMPARE(m_catalogue.unexpected(context, expected), QStringList());
    QCOMPARE(m_catalogue.missing(context, expected), QStringList());
    // Each text once: lupdate files a text shared by two values (or two
    // functions) once, and so does the list above.
    QCOMPARE(m_catalogue.sources(context).size(), expected.size());
    QStringList unique = expected;
    QCOMPARE(unique.removeDuplicates(), 0);
}

NDXCOM_TEST_MAIN(tst_MessageTexts)
#include "tst_messagetexts.moc"
