// execModuleRulesAdvisor: missing entries read as empty parameters.

#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "ndxcomtest.h"
#include "rulestest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;
using namespace RulesTest;

class tst_QNodrixMessageBoxRulesMissing : public QObject
{
    Q_OBJECT

private slots:
    void rule_data();
    void rule();
};

void tst_QNodrixMessageBoxRulesMissing::rule_data()
{
    addColumns();

    // Every rule that has parameters, with the code alone.
    QTest::newRow("code 1, no parameters")
        << QStringList {QStringLiteral("1")} << click("Chiudi")
        << QStringLiteral(
               "Nel pat  alla caduta n\u00b0  non \u00e8 configurato il numero di fili in lavoro");
    QTest::newRow("code 2, no parameters")
        << QStringList {QStringLiteral("2")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Alcuni punti maglia utilizzati nel pat  e nel pat  sulla caduta  "
                          "prevedono movimenti di camme.\n"
                          "Tali movimenti sono possibili solo se questi punti maglia non sono "
                          "sullo stesso rango di maglia.\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 3, no parameters")
        << QStringList {QStringLiteral("3")} << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Alcuni punti maglia utilizzati nel pat  e nel pat \n"
               "sulla caduta  prevedono movimenti di camme.\n"
               "Tali movimenti sono possibili solo se questi punti maglia distano almeno  passi.\n"
               "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 4, no parameters")
        << QStringList {QStringLiteral("4")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat  ed il pat  sulla caduta  prevedono movimenti di camme.\n"
                          "Tali movimenti sono troppo ravvicinati in presenza della selezione di "
                          "carico uncini\n"
                          "E' necessario che fra questi movimenti vi siano almeno  passo(i).\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 5, no parameters")
        << QStringList {QStringLiteral("5")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat  ed il pat  sulla caduta  prevedono movimenti di camme.\n"
                          "Tali movimenti sono troppo ravvicinati in presenza della selezione di "
                          "scarico uncini\n"
                          "E' necessario che fra questi movimenti vi siano almeno  passo(i).\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 6, no parameters")
        << QStringList {QStringLiteral("6")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il Pat  ed il Pat   richiedono:\n"
                          "- cambi Posizione del Guidafilo  gruppo \n"
                          "E' possibile se fra questi cambi\n"
                          "ci sono almeno  aghi di distanza.\n"
                          "E' necessario modificare il Disegno !");
    QTest::newRow("code 7, no parameters")
        << QStringList {QStringLiteral("7")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Fra il pat  ed il pat   sono necessari dei cambi di guidafili con "
                          "sovrapposizione.\n"
                          "Tali movimenti non sono possibili sullo stesso rango di maglia.\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 8, no parameters")
        << QStringList {QStringLiteral("8")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Fra il pat  ed il pat   sono necessarie entrate o uscite di guidafili.\n"
                          "Tali entrate o uscite non sono possibili sullo stesso rango di maglia.\n"
                          " Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 9, no parameters")
        << QStringList {QStringLiteral("9")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat  necessita di entrata e/o uscita di guidafili.\n"
                          "Tali cambi non sono possibili in presenza di camma di trattenuto.\n"
                          "Per procedere \u00e8 necessario modificare il pat");
    QTest::newRow("code 11, no parameters")
        << QStringList {QStringLiteral("11")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal Pat  al Pat  \u00e8 previsto : \n"
                          "- entrata/uscita/cambio di Guidafilo\n"
                          "Questo \u00e8 possibile solo nel Primo Transfer.\n"
                          "E' necessario modificare i Pat !");
    QTest::newRow("code 13, no parameters")
        << QStringList {QStringLiteral("13")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal Pat  al Pat  c'\u00e8 un cambio di guidafili : \n"
                          "- \u00e8 possibile cambiare il guidafilo 1 con il 2 o il 3\n"
                          "- \u00e8 possibile cambiare il guidafilo 2 con il 3\n"
                          "- altre sequenze non sono possibili\n"
                          "E' necessario modificare i Pat !");
    QTest::newRow("code 14, no parameters")
        << QStringList {QStringLiteral("14")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Guidafilo N. assegnato al primo Pat applicato :\n"
                          "deve essere mantenuto in Tutti i Pat successivi !\n"
                          "E' necessario modificare Pat successivi !");
    QTest::newRow("code 15, no parameters")
        << QStringList {QStringLiteral("15")} << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Nel passo  sulla caduta   sono presenti :\n"
               "- entrata-uscita-cambio di guidafili\n"
               "- fine movimento entrata camme Trattenuto/Scaricato\n"
               "Tali movimenti non sono possibili sullo stesso Rango di Maglia.\n"
               "Per procedere \u00e8 necessario modificare il Disegno o il(i) Pat coinvolti");
    QTest::newRow("code 16, no parameters")
        << QStringList {QStringLiteral("16")} << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Nel passo  (passo 3 carico uncini) sulla caduta \n"
               "  sono presenti :\n"
               "- entrata-uscita-cambio di guidafili\n"
               "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
               "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
               "perch\u00e8 troppo ravvicinati.\n"
               "Per procedere \u00e8 necessario modificare il Disegno o il(i) Pat coinvolti");
    QTest::newRow("code 17, no parameters")
        << QStringList {QStringLiteral("17")} << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Nel passo  (passo 3 scarico uncini) sulla caduta   sono presenti :\n"
               "- entrata-uscita-cambio di guidafili\n"
               "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
               "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
               "perch\u00e8 troppo ravvicinati.\n"
               "Per procedere \u00e8 necessario modificare il Disegno o il(i) Pat coinvolti");
    QTest::newRow("code 18, no parameters")
        << QStringList {QStringLiteral("18")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "L'offset maglie per lo sbilanciamento del(i) colore(i)    \u00e8 stato "
                          "azzerato perch\u00e8\n"
                          "dall'ago di inizio all'ago di fine del(i) colore(i) ci sono meno di  "
                          "aghi di distanza.\n"
                          "In alternativa \u00e8 necessario modificare il disegno!");
    QTest::newRow("code 19, no parameters")
        << QStringList {QStringLiteral("19")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sulla caduta  il \"Disegno Nitido\" richiede\n"
                          "il guidafilo 6 in tutto il progetto.\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 20, no parameters")
        << QStringList {QStringLiteral("20")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il Pat '' ed il Pat '' richiedono :\n"
                          "- uscita ed entrata guidafili\n"
                          "E' possibile se fra questi cambi\n"
                          "ci sono almeno  aghi di distanza\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 21, no parameters")
        << QStringList {QStringLiteral("21")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel primo e ultimo rango della caduta \n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 23, no parameters")
        << QStringList {QStringLiteral("23")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi  del carico uncini sulla caduta \n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 24, no parameters")
        << QStringList {QStringLiteral("24")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo  del carico uncini sulla caduta \n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 25, no parameters")
        << QStringList {QStringLiteral("25")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi 1 e 2 dello scarico uncini sulla caduta \n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 26, no parameters")
        << QStringList {QStringLiteral("26")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo 3 dello scarico uncini sulla caduta \n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 27, no parameters")
        << QStringList {QStringLiteral("27")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sulla caduta  il \"Colore\" richiede\n"
                          "il guidafilo 1-2-3 in tutto il progetto.\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 28, no parameters")
        << QStringList {QStringLiteral("28")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il Pat '' ed il Pat '' richiedono :\n"
                          "- uscita ed entrata guidafili colore\n"
                          "E' possibile se fra questi cambi\n"
                          "ci sono almeno  aghi di distanza\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 29, no parameters")
        << QStringList {QStringLiteral("29")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat '' ed il Pat ''\n"
                          "nel primo rango della caduta \n"
                          "nell'area colore non \u00e8 possibile aggiungere il colore.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 30, no parameters")
        << QStringList {QStringLiteral("30")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat '' ed il Pat ''\n"
                          "nell'ultimo rango della caduta \n"
                          "nell'area colore non \u00e8 possibile aggiungere il colore.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 31, no parameters")
        << QStringList {QStringLiteral("31")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat '' ed il Pat ''\n"
                          "della caduta  \u00e8 richiesto un movimento di camme\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'NITIDO'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 32, no parameters")
        << QStringList {QStringLiteral("32")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat '' ed il Pat ''\n"
                          "della caduta  \u00e8 richiesto un movimento di camme\n"
                          "Fra modalit\u00e0 'NITIDO' questo e' possibile solo dopo  passi.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 33, no parameters")
        << QStringList {QStringLiteral("33")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat '' ed il Pat ''\n"
                          "della caduta  \u00e8 richiesto un movimento di camme\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'COLORE'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 34, no parameters")
        << QStringList {QStringLiteral("34")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat '' ed il Pat ''\n"
                          "della caduta  \u00e8 richiesto un movimento di camme\n"
                          "Fra modalit\u00e0 'COLORE' questo e' possibile solo dopo  passi.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 35, no parameters")
        << QStringList {QStringLiteral("35")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat '' ed il Pat ''\n"
                          "della caduta  \u00e8 richiesto un movimento di guidafili\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'NITIDO'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 36, no parameters")
        << QStringList {QStringLiteral("36")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat '' ed il Pat ''\n"
                          "della caduta  \u00e8 richiesto un movimento di guidafili\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'COLORE'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 37, no parameters")
        << QStringList {QStringLiteral("37")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia non \u00e8 possibile associare :\n"
                          "PAT 'COLORE' () con altri PAT 'COLORE' di modalit\u00e0 diversa ().\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 38, no parameters")
        << QStringList {QStringLiteral("38")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia non \u00e8 possibile associare :\n"
                          "PAT 'COLORE' () con altri PAT NON 'COLORE' ().\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 39, no parameters")
        << QStringList {QStringLiteral("39")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi  del carico uncini sulla caduta \n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 40, no parameters")
        << QStringList {QStringLiteral("40")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo  del carico uncini per i primi  aghi sulla caduta \n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 41, no parameters")
        << QStringList {QStringLiteral("41")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo  (passo 3 del carico uncini) sulla caduta \n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "in presenza di :\n"
                          "- entrate/uscite/cambi di guidafili\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 42, no parameters")
        << QStringList {QStringLiteral("42")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi 1 e 2 dello scarico uncini sulla caduta \n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 43, no parameters")
        << QStringList {QStringLiteral("43")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo 3 dello scarico uncini per i primi  aghi sulla caduta \n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : \n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 44, no parameters")
        << QStringList {QStringLiteral("44")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia  non \u00e8 possibile associare :\n"
                          "PAT 'SPECIALE' () con altri PAT di modalit\u00e0 incompatibile ().\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 45, no parameters")
        << QStringList {QStringLiteral("45")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia  non \u00e8 possibile associare :\n"
                          "PAT 'SPECIALE' () con PAT () con guidafili incompatibili.\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 46, no parameters")
        << QStringList {QStringLiteral("46")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia  non \u00e8 possibile associare :\n"
                          "PAT 'SPECIALE' () con PAT () con configurazione camme incompatibili.\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 47, no parameters")
        << QStringList {QStringLiteral("47")} << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Passaggio da PAT 'SPECIALE' () rango  a PAT ()\n"
               "e' possibile solo dopo almeno un rango completo in modalit\u00e0 'SPECIALE'.\n"
               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 48, no parameters")
        << QStringList {QStringLiteral("48")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal PAT  al PAT  rango  \u00e8 richiesta :\n"
                          "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                          "E' possibile se ci sono almeno  aghi di distanza!\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 49, no parameters")
        << QStringList {QStringLiteral("49")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal PAT  al PAT  rango  \u00e8 richiesta :\n"
                          "- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.\n"
                          "E' possibile se ci sono almeno  aghi di distanza!\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 50, no parameters")
        << QStringList {QStringLiteral("50")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal PAT  allo Scarico Maglia rango  \u00e8 richiesta :\n"
                          "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                          "E' possibile se ci sono almeno  aghi di distanza!\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 51, no parameters")
        << QStringList {QStringLiteral("51")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Rango  : Dal PAT modalit\u00e0 SPECIALE ()\n"
                          " al PAT modalit\u00e0 SPECIALE () \u00e8 richiesto :\n"
                          "- Cambio di guidafili 2 e 3 del GR1.\n"
                          "Non e' possibile sullo stesso rango di maglia!\n"
                          "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 52, no parameters")
        << QStringList {QStringLiteral("52")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Rango  : Dal PAT modalit\u00e0 SPECIALE ()\n"
                          " al PAT modalit\u00e0 SPECIALE () \u00e8 richiesto :\n"
                          "- Cambio di guidafili GR2/GR1.\n"
                          "E' possibile solo se nell'ultimo rango di maglia :\n"
                          "- Tutti gli aghi sono in modalit\u00e0 SPECIALE\n"
                          "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 53, no parameters")
        << QStringList {QStringLiteral("53")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel  passo Carico Uncini sulla caduta 5 (rango )\n"
                          "con presenza di PAT in modalit\u00e0 SPECIALE () :\n"
                          "- Tutti gli aghi devono essere in modalit\u00e0 SPECIALE\n"
                          "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 54, no parameters")
        << QStringList {QStringLiteral("54")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Usata \"Camma Rientro Parziale Uncini\" nel Bordo n. .\n"
                          "Passo di movimento incompatibile con la dimensione del bordo.\n"
                          "Anticipare il movimento di  passo(i) o ampliare il bordo!");
    QTest::newRow("code 55, no parameters")
        << QStringList {QStringLiteral("55")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il PAT  a 4 cadute alla linea \n"
                          "non pu\u00f2 essere usato in una zona a 8 cadute\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 56, no parameters")
        << QStringList {QStringLiteral("56")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il PAT  a 8 cadute alla linea \n"
                          "non pu\u00f2 essere usato in una zona a 4 cadute\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 57, no parameters")
        << QStringList {QStringLiteral("57")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute o inizia al primo passo o dopo  passi!");
    QTest::newRow("code 58, no parameters")
        << QStringList {QStringLiteral("58")} << click("Chiudi")
        << QStringLiteral("Attenzione al passo :\n"
                          "Negli ultimi 3 passi prima di passare da 8 a 4 cadute:\n"
                          "NON \u00e8 consentita la presenza di Modalit\u00e0 Colore o Nitido!\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 59, no parameters")
        << QStringList {QStringLiteral("59")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute o termina all'ultimo passo o  passi prima!");
    QTest::newRow("code 60, no parameters")
        << QStringList {QStringLiteral("60")} << click("Chiudi")
        << QStringLiteral("Attenzione al passo :\n"
                          "Negli ultimi 3 passi prima di passare da 4 a 8 cadute:\n"
                          "NON \u00e8 consentita la presenza di Modalit\u00e0 Colore o Nitido!\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 61, no parameters")
        << QStringList {QStringLiteral("61")} << click("Chiudi")
        << QStringLiteral("Attenzione al passo :\n"
                          "Nel passaggio zona 8 cadute a zona 4 cadute\n"
                          "Non \u00e8 consentito l'inizio bordo con uncini:\n"
                          "- negli ultimi 3 passi della zona a 8 cadute !\n"
                          "- nel primo passo della zona a 4 cadute !\n"
                          "E' necessario risolvere il conflitto!");
    QTest::newRow("code 62, no parameters")
        << QStringList {QStringLiteral("62")} << click("Chiudi")
        << QStringLiteral("Attenzione al passo :\n"
                          "Nel passaggio zona 8 cadute a zona 4 cadute\n"
                          "Non \u00e8 consentito la fine bordo con uncini\n"
                          "negli ultimi 3 passi della zona a 8 cadute !\n"
                          "E' necessario risolvere il conflitto!");
    QTest::newRow("code 63, no parameters")
        << QStringList {QStringLiteral("63")} << click("Chiudi")
        << QStringLiteral("Attenzione al passo :\n"
                          "Nel passaggio zona 4 cadute a zona 8 cadute\n"
                          "Non \u00e8 consentito la fine bordo con uncini\n"
                          "negli ultimi 2 passi della zona a 4 cadute !\n"
                          "E' necessario risolvere il conflitto!");
    QTest::newRow("code 64, no parameters")
        << QStringList {QStringLiteral("64")} << click("Chiudi")
        << QStringLiteral("Attenzione al passo :\n"
                          "Nel passaggio zona 4 cadute a zona 8 cadute\n"
                          "Non \u00e8 consentito l'inizio bordo con uncini:\n"
                          "- negli ultimi 2 passi della zona a 4 cadute !\n"
                          "- nel primo passo della zona a 8 cadute !\n"
                          "E' necessario risolvere il conflitto!");
}

void tst_QNodrixMessageBoxRulesMissing::rule()
{
    checkRule();
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxRulesMissing)
#include "tst_qnodrixmessagebox_rules_missing.moc"
