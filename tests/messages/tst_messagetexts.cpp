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

// Every family's texts; a family added to the class adds its list here.
QStringList allTexts()
{
    return presentationTexts() + projectTexts() + sizeTexts();
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
