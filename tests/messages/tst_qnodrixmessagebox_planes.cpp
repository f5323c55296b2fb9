// The advisors of the scheme, the skeleton, the automatic elaboration, the
// command plane and the body planes (the free command plane's are in
// tst_qnodrixmessagebox_freecmd); the values that show nothing, the
// application's cursor and a translation, for every family.

#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "markingtranslator.h"
#include "ndxcomtest.h"
#include "planestest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <climits>

using namespace NdxComTest;
using namespace PlanesTest;

class tst_QNodrixMessageBoxPlanes : public QObject
{
    Q_OBJECT

private slots:
    void advisor_data();
    void advisor();
    void valuesShowingNothing_data();
    void valuesShowingNothing();
    void overrideCursorUntouched();
    void translatedButRemembered();
};

void tst_QNodrixMessageBoxPlanes::advisor_data()
{
    addColumns();
    const int yes = int(QMessageBox::Yes), no = int(QMessageBox::No), none = kNoResult;

    // Scheme (%1 = a number of steps).
    QTest::newRow("scheme 0") << Family::Scheme << 0 << QStringList {QStringLiteral("12")}
                              << click("Chiudi") << Box::WarningClose
                              << QStringLiteral(
                                     "Attenzione:\n"
                                     "Una zona a 4 cadute deve essere almeno di 12 passi!")
                              << none;
    QTest::newRow("scheme 0: Escape")
        << Family::Scheme << 0 << QStringList {QStringLiteral("12")} << Action::escape()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute deve essere almeno di 12 passi!")
        << none;
    QTest::newRow("scheme 0: window closed")
        << Family::Scheme << 0 << QStringList {QStringLiteral("12")} << Action::close()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute deve essere almeno di 12 passi!")
        << none;
    QTest::newRow("scheme 1") << Family::Scheme << 1 << QStringList {QStringLiteral("12")}
                              << click("Chiudi") << Box::WarningClose
                              << QStringLiteral(
                                     "Attenzione:\n"
                                     "Fra 2 zone a 4 cadute ci devono essere almeno 12 passi!")
                              << none;
    QTest::newRow("scheme 2")
        << Family::Scheme << 2 << QStringList {QStringLiteral("12")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fra l'ultima zona e la fine disegno ci devono essere almeno 12 passi!")
        << none;
    QTest::newRow("scheme 3")
        << Family::Scheme << 3 << QStringList {QStringLiteral("12")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile inserire una zona sovrapposta alle esistenti!")
        << none;
    QTest::newRow("scheme 4")
        << Family::Scheme << 4 << QStringList {QStringLiteral("12")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile aggiungere il passo richiesto alla zona!")
        << none;
    QTest::newRow("scheme 5") << Family::Scheme << 5 << QStringList {QStringLiteral("12")}
                              << click("Chiudi") << Box::WarningClose
                              << QStringLiteral(
                                     "Attenzione:\n"
                                     "Non \u00e8 possibile togliere il passo richiesto alla zona!")
                              << none;

    // Skeleton: value 4 is the distance from the end of the drawing, not
    // "aggiungere".
    QTest::newRow("skel 0") << Family::Skel << 0 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Un Bordo deve essere almeno di 7 passi !")
                            << none;
    QTest::newRow("skel 1") << Family::Skel << 1 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Fra due bordi ci devono essere almeno 7 passi non bordo !")
                            << none;
    QTest::newRow("skel 2") << Family::Skel << 2 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Non \u00e8 possibile aggiungere il passo richiesto al bordo !")
                            << none;
    QTest::newRow("skel 3") << Family::Skel << 3 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Non \u00e8 possibile togliere il passo richiesto al bordo !")
                            << none;
    QTest::newRow("skel 4")
        << Family::Skel << 4 << QStringList {QStringLiteral("7")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fra l'ultimo bordo e la fine disegno ci devono essere almeno 7 passi !")
        << none;
    QTest::newRow("skel 4: Escape")
        << Family::Skel << 4 << QStringList {QStringLiteral("7")} << Action::escape()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fra l'ultimo bordo e la fine disegno ci devono essere almeno 7 passi !")
        << none;
    QTest::newRow("skel 4: window closed")
        << Family::Skel << 4 << QStringList {QStringLiteral("7")} << Action::close()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fra l'ultimo bordo e la fine disegno ci devono essere almeno 7 passi !")
        << none;
    QTest::newRow("skel 5") << Family::Skel << 5 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Il primo bordo deve partire al passo 1 oppure dopo il passo 7!")
                            << none;
    QTest::newRow("skel 6")
        << Family::Skel << 6 << QStringList {QStringLiteral("7")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Il bordo che inizia al passo 7 NON ha il check del guidafilo abilitato!")
        << none;

    // Automatic elaboration: only value 1 asks; the warnings report No.
    QTest::newRow("elab 1: Si") << Family::Elab << 1
                                << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                                << click("Si") << Box::WarningYesNo
                                << QStringLiteral("Attenzione:\n"
                                                  "Le modifiche precedentemente apportate al\n"
                                                  "Piano Comandi verranno Eliminate !!\n"
                                                  "Vuoi continuare ?")
                                << yes;
    QTest::newRow("elab 1: No") << Family::Elab << 1
                                << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                                << click("No") << Box::WarningYesNo
                                << QStringLiteral("Attenzione:\n"
                                                  "Le modifiche precedentemente apportate al\n"
                                                  "Piano Comandi verranno Eliminate !!\n"
                                                  "Vuoi continuare ?")
                                << no;
    QTest::newRow("elab 1: Escape")
        << Family::Elab << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningYesNo
        << QStringLiteral("Attenzione:\n"
                          "Le modifiche precedentemente apportate al\n"
                          "Piano Comandi verranno Eliminate !!\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("elab 1: Enter")
        << Family::Elab << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::WarningYesNo
        << QStringLiteral("Attenzione:\n"
                          "Le modifiche precedentemente apportate al\n"
                          "Piano Comandi verranno Eliminate !!\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("elab 1: window closed")
        << Family::Elab << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningYesNo
        << QStringLiteral("Attenzione:\n"
                          "Le modifiche precedentemente apportate al\n"
                          "Piano Comandi verranno Eliminate !!\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("elab 1: no click")
        << Family::Elab << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::WarningYesNo
        << QStringLiteral("Attenzione:\n"
                          "Le modifiche precedentemente apportate al\n"
                          "Piano Comandi verranno Eliminate !!\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("elab 2") << Family::Elab << 2
                            << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "L'articolo deve iniziare con un bordo uncini !")
                            << no;
    QTest::newRow("elab 3") << Family::Elab << 3
                            << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Fili in lavoro non definiti !")
                            << no;
    QTest::newRow("elab 3: Escape")
        << Family::Elab << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fili in lavoro non definiti !")
        << no;
    QTest::newRow("elab 4")
        << Family::Elab << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "- Durante lo Scarico Maglia ad 1 filo, su tutte le cadute, non \u00e8 possibile "
               "avere\n"
               "  il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
               "\n"
               "- Durante lo Scarico Maglia a 2 fili, su tutte le cadute, non \u00e8 possibile "
               "avere\n"
               "  entrambi i guidafili associati ad una pinza !\n"
               "\n"
               "- Durante lo Scarico Maglia a 2 fili, solo sulla 5a caduta, non \u00e8 possibile "
               "avere\n"
               "  un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
               "\n"
               "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
               "il cambio per terminare lo Scarico Maglia.")
        << no;
    QTest::newRow("elab 5")
        << Family::Elab << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Durante lo Scarico Maglia ad 1 filo, sulla caduta ARG1, non \u00e8 possibile "
               "avere\n"
               "il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
               "\n"
               "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
               "il cambio per terminare lo Scarico Maglia.")
        << no;
    QTest::newRow("elab 6")
        << Family::Elab << 6 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Durante lo Scarico Maglia a 2 fili, sulla caduta ARG1, non \u00e8 possibile avere\n"
               "entrambi i guidafili associati ad una pinza !\n"
               "\n"
               "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
               "il cambio per terminare lo Scarico Maglia.")
        << no;
    QTest::newRow("elab 7")
        << Family::Elab << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non \u00e8 possibile avere\n"
               "un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
               "\n"
               "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
               "il cambio per terminare lo Scarico Maglia.")
        << no;
    QTest::newRow("elab 8") << Family::Elab << 8
                            << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Punto maglia 'ARG1' non identificato nel Pat :\n"
                                              "ARG2")
                            << no;

    // Command plane.
    QTest::newRow("cmdplane 1") << Family::CommandPlane << 1 << QStringList {QStringLiteral("9")}
                                << click("Chiudi") << Box::WarningClose
                                << QStringLiteral(
                                       "Attenzione:\n"
                                       "Non \u00e8 possibile inserire zone maglie sul passo !")
                                << none;
    QTest::newRow("cmdplane 2") << Family::CommandPlane << 2 << QStringList {QStringLiteral("9")}
                                << click("Chiudi") << Box::WarningClose
                                << QStringLiteral("Attenzione:\n"
                                                  "Non ci sono alimentatori 9 attivi nella zona !")
                                << none;
    QTest::newRow("cmdplane 2: Escape")
        << Family::CommandPlane << 2 << QStringList {QStringLiteral("9")} << Action::escape()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non ci sono alimentatori 9 attivi nella zona !")
        << none;
    QTest::newRow("cmdplane 2: window closed")
        << Family::CommandPlane << 2 << QStringList {QStringLiteral("9")} << Action::close()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non ci sono alimentatori 9 attivi nella zona !")
        << none;
    QTest::newRow("cmdplane 3") << Family::CommandPlane << 3 << QStringList {QStringLiteral("9")}
                                << click("Chiudi") << Box::WarningClose
                                << QStringLiteral(
                                       "Attenzione:\n"
                                       "Plat\u00f2 abbassato con uncini attivi al passo 9 !")
                                << none;
    QTest::newRow("cmdplane 4")
        << Family::CommandPlane << 4 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile inserire il comando plat\u00f2 sul passo !")
        << none;
    QTest::newRow("cmdplane 5")
        << Family::CommandPlane << 5 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile avere la camme rientro parziale uncini\n"
                          " insieme alla camme uscita uncini al passo 9 !")
        << none;
    QTest::newRow("cmdplane 6")
        << Family::CommandPlane << 6 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Passo 9: Plat\u00f2 Motorizzato basso/alto con uncini attivi!")
        << none;
    QTest::newRow("cmdplane 7")
        << Family::CommandPlane << 7 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Sul passo Non \u00e8 possibile inserire il comando 'Plat\u00f2 Motorizzato!'")
        << none;
    QTest::newRow("cmdplane 8")
        << Family::CommandPlane << 8 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Sul passo Non \u00e8 possibile inserire il comando 'Stop Espulsore Articolo!'")
        << none;

    // Body planes, all with 2, 15 and 300 (value 9 with them is the worked
    // example); the result is always 0.
    QTest::newRow("body 1") << Family::BodyPlane << 1
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione: Piano Body n. 2\n"
                                              "Colore 15 non assegnato")
                            << 0;
    QTest::newRow("body 2") << Family::BodyPlane << 2
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Non sono presenti zone maglia")
                            << 0;
    QTest::newRow("body 3") << Family::BodyPlane << 3
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Non sono presenti zone alimentatori BodyMap")
                            << 0;
    QTest::newRow("body 4") << Family::BodyPlane << 4
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Non sono presenti zone alimentatori BodyShape")
                            << 0;
    QTest::newRow("body 5") << Family::BodyPlane << 5
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Non \u00e8 presente la zona maglie per il passo 2")
                            << 0;
    QTest::newRow("body 6")
        << Family::BodyPlane << 6
        << QStringList {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 presente la zona alimentatori BodyMap per il passo 2")
        << 0;
    QTest::newRow("body 7")
        << Family::BodyPlane << 7
        << QStringList {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 presente la zona alimentatori BodyShape per il passo 2")
        << 0;
    QTest::newRow("body 8") << Family::BodyPlane << 8
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Valore di sbilanciamento inferiore al minimo consentito\n"
                                   "Motor=2 Rango=15 Ago=300")
                            << 0;
    QTest::newRow("body 9") << Family::BodyPlane << 9
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Valore di sbilanciamento superiore al massimo consentito\n"
                                   "Motore=2 Rango=15 Ago=300")
                            << 0;
    QTest::newRow("body 9: Escape")
        << Family::BodyPlane << 9
        << QStringList {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Valore di sbilanciamento superiore al massimo consentito\n"
                          "Motore=2 Rango=15 Ago=300")
        << 0;
    QTest::newRow("body 9: window closed")
        << Family::BodyPlane << 9
        << QStringList {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Valore di sbilanciamento superiore al massimo consentito\n"
                          "Motore=2 Rango=15 Ago=300")
        << 0;
    QTest::newRow("body 10") << Family::BodyPlane << 10
                             << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                             QStringLiteral("300")}
                             << click("Chiudi") << Box::WarningClose
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Valore di sbilanciamento inferiore al minimo consentito\n"
                                    "Alimentatore=2 Rango=15 Ago=300")
                             << 0;
    QTest::newRow("body 11") << Family::BodyPlane << 11
                             << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                             QStringLiteral("300")}
                             << click("Chiudi") << Box::WarningClose
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Valore di sbilanciamento superiore al massimo consentito\n"
                                    "Alimentatore=2 Rango=15 Ago=300")
                             << 0;
    QTest::newRow("body 8: negative and extreme numbers")
        << Family::BodyPlane << 8
        << QStringList {QStringLiteral("-1"), QStringLiteral("-2147483648"),
                        QStringLiteral("2147483647")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\nValore di sbilanciamento inferiore al minimo consentito\n"
                          "Motor=-1 Rango=-2147483648 Ago=2147483647")
        << 0;
    QTest::newRow("body 1: zeros")
        << Family::BodyPlane << 1 << QStringList {QStringLiteral("0"), QStringLiteral("0")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione: Piano Body n. 0\nColore 0 non assegnato") << 0;
}

void tst_QNodrixMessageBoxPlanes::advisor()
{
    checkAdvisor();
}

void tst_QNodrixMessageBoxPlanes::valuesShowingNothing_data()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("result");

    const int no = int(QMessageBox::No);
    const int values[] = {-1, INT_MIN, INT_MAX, 100};
    for (int v : values) {
        const QByteArray n = QByteArray::number(v);
        QTest::newRow(QByteArray("freecmd " + n).constData()) << Family::FreeCmd << v << -1;
        QTest::newRow(QByteArray("scheme " + n).constData()) << Family::Scheme << v << kNoResult;
        QTest::newRow(QByteArray("skel " + n).constData()) << Family::Skel << v << kNoResult;
        QTest::newRow(QByteArray("elab " + n).constData()) << Family::Elab << v << no;
        QTest::newRow(QByteArray("commandplane " + n).constData())
            << Family::CommandPlane << v << kNoResult;
        QTest::newRow(QByteArray("bodyplane " + n).constData()) << Family::BodyPlane << v << 0;
    }
    // Just past the last value, and the unused 0.
    QTest::newRow("freecmd 15") << Family::FreeCmd << 15 << -1;
    QTest::newRow("scheme 6") << Family::Scheme << 6 << kNoResult;
    QTest::newRow("skel 7") << Family::Skel << 7 << kNoResult;
    QTest::newRow("elab 0") << Family::Elab << 0 << no;
    QTest::newRow("elab 9") << Family::Elab << 9 << no;
    QTest::newRow("commandplane 0") << Family::CommandPlane << 0 << kNoResult;
    QTest::newRow("commandplane 9") << Family::CommandPlane << 9 << kNoResult;
    QTest::newRow("bodyplane 0") << Family::BodyPlane << 0 << 0;
    QTest::newRow("bodyplane 12") << Family::BodyPlane << 12 << 0;
}

void tst_QNodrixMessageBoxPlanes::valuesShowingNothing()
{
    QFETCH(Family, family);
    QFETCH(int, value);
    QFETCH(int, result);

    DialogDriver driver;
    int got = 0;
    const QList<BoxRecord> records = driver.run(
        [&] {
            got = call(family, value,
                       {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
        },
        {});
    QCOMPARE(records.size(), 0);
    if (result != kNoResult)
        QCOMPARE(got, result);
    QVERIFY(driver.cursorRestored());
}

void tst_QNodrixMessageBoxPlanes::overrideCursorUntouched()
{
    // The application's cursor stays while an advisor of the planes is open.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run(
        [&] {
            QCOMPARE(QNodrixMessageBox::execFreeCmdModeAdvisor(
                         QNodrixMessageBox::eFreeCmdMode_SaveChanges, QString(), QString()),
                     int(QMessageBox::No));
            QNodrixMessageBox::execProjectSkelAdvisor(QNodrixMessageBox::eSkel_BorderTooShort,
                                                      QStringLiteral("3"));
        },
        {click("Esci"), click("Chiudi")});
    QCOMPARE(records.size(), 2);
    for (const BoxRecord &r : records) {
        QVERIFY(r.hasOverrideCursor);
        QCOMPARE(r.overrideCursor, Qt::WaitCursor);
    }
    QVERIFY(driver.cursorRestored());
    QApplication::restoreOverrideCursor();
}

void tst_QNodrixMessageBoxPlanes::translatedButRemembered()
{
    // A catalogue that translates everything of the class: texts and buttons
    // follow it, the title does not, and the answers still come from the
    // buttons themselves.
    NdxComTest::MarkingTranslator translator("QNodrixMessageBox");
    QCoreApplication::installTranslator(&translator);

    DialogDriver driver;
    int freeCmd = 0, elab = 0;
    const QList<BoxRecord> records = driver.run(
        [&] {
            freeCmd = QNodrixMessageBox::execFreeCmdModeAdvisor(
                QNodrixMessageBox::eFreeCmdMode_SaveChanges, QString(), QString());
            QNodrixMessageBox::execCommandPlaneAdvisor(
                QNodrixMessageBox::eCommandPlane_NoActiveFeeders, QStringLiteral("BodyMap"));
            elab = QNodrixMessageBox::execProjectElabAdvisor(
                QNodrixMessageBox::eProjElab_DiscardManualChanges, QString(), QString());
        },
        {click("[Esci]"), click("[Chiudi]"), click("[Si]")});
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(records.size(), 3);
    QCOMPARE(freeCmd, int(QMessageBox::No));
    QCOMPARE(elab, int(QMessageBox::Yes));
    for (const BoxRecord &r : records) {
        QCOMPARE(r.title, QStringLiteral("Nodrix"));
        QVERIFY(!r.actionFailed);
    }
    QCOMPARE(records.at(0).buttonsByRole(),
             sortedByRole({{QStringLiteral("[Salva]"), QMessageBox::AcceptRole},
                           {QStringLiteral("[Esci]"), QMessageBox::NoRole},
                           {QStringLiteral("[Annulla]"), QMessageBox::RejectRole}}));
    QCOMPARE(records.at(0).defaultButton, QStringLiteral("[Salva]"));
    QVERIFY(records.at(0).text.startsWith(QStringLiteral("[Attenzione:\nIl 'PIANO")));
    QCOMPARE(records.at(1).text,
             QStringLiteral("[Attenzione:\nNon ci sono alimentatori BodyMap attivi nella zona !]"));
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxPlanes)
#include "tst_qnodrixmessagebox_planes.moc"
