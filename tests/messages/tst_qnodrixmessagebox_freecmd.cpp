// The free command plane's advisor: every box it shows, ended every way.

#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "ndxcomtest.h"
#include "planestest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;
using namespace PlanesTest;

class tst_QNodrixMessageBoxFreeCmd : public QObject
{
    Q_OBJECT

private slots:
    void advisor_data();
    void advisor();
};

void tst_QNodrixMessageBoxFreeCmd::advisor_data()
{
    addColumns();
    const int yes = int(QMessageBox::Yes), no = int(QMessageBox::No),
              ign = int(QMessageBox::Ignore);

    // Free command plane: every button of every box, Escape, Enter, the
    // window closed and a box ended without any click. Texts without
    // placeholders must stay as they are although both arguments are given.
    QTest::newRow("freecmd 0: Continua")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Continua") << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << yes;
    QTest::newRow("freecmd 0: Annulla")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Annulla") << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 0: Escape")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 0: Enter")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 0: window closed")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 0: no click")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 1: OK")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("OK") << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << no;
    QTest::newRow("freecmd 1: Annulla")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Annulla") << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << ign;
    QTest::newRow("freecmd 1: Escape")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << ign;
    QTest::newRow("freecmd 1: Enter")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << no;
    QTest::newRow("freecmd 1: window closed")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << ign;
    QTest::newRow("freecmd 1: no click")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << ign;
    QTest::newRow("freecmd 2: Salva")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Salva") << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << yes;
    QTest::newRow("freecmd 2: Esci")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Esci") << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << no;
    QTest::newRow("freecmd 2: Annulla")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Annulla") << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << ign;
    QTest::newRow("freecmd 2: Escape")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << ign;
    QTest::newRow("freecmd 2: Enter")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << yes;
    QTest::newRow("freecmd 2: window closed")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << ign;
    QTest::newRow("freecmd 2: no click")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << ign;
    QTest::newRow("freecmd 3: Si")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << yes;
    QTest::newRow("freecmd 3: No")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 3: Escape")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 3: Enter")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 3: window closed")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 3: no click")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: Si")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << yes;
    QTest::newRow("freecmd 4: No")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: Escape")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: Enter")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: window closed")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: no click")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: Si")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << yes;
    QTest::newRow("freecmd 5: No")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: Escape")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: Enter")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: window closed")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: no click")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 6: Chiudi")
        << Family::FreeCmd << 6 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Prima di uscire dalla modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "\u00e8 necessario completare e chiudere la finestra Report !")
        << 0;
    QTest::newRow("freecmd 6: Escape")
        << Family::FreeCmd << 6 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Prima di uscire dalla modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "\u00e8 necessario completare e chiudere la finestra Report !")
        << 0;
    QTest::newRow("freecmd 6: window closed")
        << Family::FreeCmd << 6 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Prima di uscire dalla modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "\u00e8 necessario completare e chiudere la finestra Report !")
        << 0;
    QTest::newRow("freecmd 7: Si")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << yes;
    QTest::newRow("freecmd 7: No")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 7: Escape")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 7: Enter")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 7: window closed")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 7: no click")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 8: Chiudi")
        << Family::FreeCmd << 8 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile agire sui comandi con il Report attivo!\n")
        << 0;
    QTest::newRow("freecmd 8: Escape")
        << Family::FreeCmd << 8 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile agire sui comandi con il Report attivo!\n")
        << 0;
    QTest::newRow("freecmd 8: window closed")
        << Family::FreeCmd << 8 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile agire sui comandi con il Report attivo!\n")
        << 0;
    QTest::newRow("freecmd 9: Si")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << yes;
    QTest::newRow("freecmd 9: No")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 9: Escape")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 9: Enter")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 9: window closed")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 9: no click")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 10: Chiudi")
        << Family::FreeCmd << 10 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Per eliminare un comando spostato\n"
                          "\u00e8 necessario prima annullare lo spostamento!\n")
        << 0;
    QTest::newRow("freecmd 10: Escape")
        << Family::FreeCmd << 10 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Per eliminare un comando spostato\n"
                          "\u00e8 necessario prima annullare lo spostamento!\n")
        << 0;
    QTest::newRow("freecmd 10: window closed")
        << Family::FreeCmd << 10 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Per eliminare un comando spostato\n"
                          "\u00e8 necessario prima annullare lo spostamento!\n")
        << 0;
    QTest::newRow("freecmd 11: Si")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << yes;
    QTest::newRow("freecmd 11: No")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 11: Escape")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 11: Enter")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 11: window closed")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 11: no click")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: Si")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << yes;
    QTest::newRow("freecmd 12: No")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: Escape")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: Enter")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: window closed")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: no click")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 13: Chiudi")
        << Family::FreeCmd << 13 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente una asociazione \n"
                          "PAT manuale al colore ARG1 da importare !\n"
                          "Il colore importato verr\u00e0 sostituito \n"
                          "con il colore selezionato o con il primo libero !\n")
        << 0;
    QTest::newRow("freecmd 13: Escape")
        << Family::FreeCmd << 13 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente una asociazione \n"
                          "PAT manuale al colore ARG1 da importare !\n"
                          "Il colore importato verr\u00e0 sostituito \n"
                          "con il colore selezionato o con il primo libero !\n")
        << 0;
    QTest::newRow("freecmd 13: window closed")
        << Family::FreeCmd << 13 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente una asociazione \n"
                          "PAT manuale al colore ARG1 da importare !\n"
                          "Il colore importato verr\u00e0 sostituito \n"
                          "con il colore selezionato o con il primo libero !\n")
        << 0;
    QTest::newRow("freecmd 14: Chiudi")
        << Family::FreeCmd << 14 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente un PAT manuale con nome ARG1 !\n"
                          "Il PAT importato verr\u00e0 rinominato e associato come : ARG2 !\n")
        << 0;
    QTest::newRow("freecmd 14: Escape")
        << Family::FreeCmd << 14 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente un PAT manuale con nome ARG1 !\n"
                          "Il PAT importato verr\u00e0 rinominato e associato come : ARG2 !\n")
        << 0;
    QTest::newRow("freecmd 14: window closed")
        << Family::FreeCmd << 14 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente un PAT manuale con nome ARG1 !\n"
                          "Il PAT importato verr\u00e0 rinominato e associato come : ARG2 !\n")
        << 0;

    // Values are filled once: a first argument that holds "%2" is shown as
    // it stands, never filled by the second one.
    QTest::newRow("freecmd 14: first argument holding %2")
        << Family::FreeCmd << 14 << QStringList {QStringLiteral("%2"), QStringLiteral("PAT_B")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\nNel progetto \u00e8 gi\u00e0 presente un PAT manuale con "
                          "nome %2 !\nIl PAT importato verr\u00e0 rinominato e associato come "
                          ": PAT_B !\n")
        << 0;
    QTest::newRow("freecmd 12: empty argument")
        << Family::FreeCmd << 12 << QStringList {} << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\nSono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n\n"
                          "I comandi di questi accessori verranno ignorati !\nVuoi continuare ?")
        << yes;
}

void tst_QNodrixMessageBoxFreeCmd::advisor()
{
    checkAdvisor();
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxFreeCmd)
#include "tst_qnodrixmessagebox_freecmd.moc"
