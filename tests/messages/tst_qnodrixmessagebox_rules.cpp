// execModuleRulesAdvisor: the text of every rule, filled with its
// parameters.

#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "ndxcomtest.h"
#include "rulestest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;
using namespace RulesTest;

class tst_QNodrixMessageBoxRules : public QObject
{
    Q_OBJECT

private slots:
    void rule_data();
    void rule();
    void apostropheOfRule10();
};

void tst_QNodrixMessageBoxRules::rule_data()
{
    addColumns();

    // Every rule with the parameters P1..Pk (entries beyond k are tried by
    // tst_qnodrixmessagebox_rules_extra, missing ones by
    // tst_qnodrixmessagebox_rules_missing).
    QTest::newRow("code 1") << QStringList {QStringLiteral("1"), QStringLiteral("P1"),
                                            QStringLiteral("P2")}
                            << click("Chiudi")
                            << QStringLiteral("Nel pat P1 alla caduta n\u00b0 P2 non \u00e8 "
                                              "configurato il numero di fili in lavoro");
    QTest::newRow("code 2") << QStringList {QStringLiteral("2"), QStringLiteral("P1"),
                                            QStringLiteral("P2"), QStringLiteral("P3")}
                            << click("Chiudi")
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Alcuni punti maglia utilizzati nel pat P1 e nel pat P2 sulla "
                                   "caduta P3 prevedono movimenti di camme.\n"
                                   "Tali movimenti sono possibili solo se questi punti maglia non "
                                   "sono sullo stesso rango di maglia.\n"
                                   "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 3") << QStringList {QStringLiteral("3"), QStringLiteral("P1"),
                                            QStringLiteral("P2"), QStringLiteral("P3"),
                                            QStringLiteral("P4")}
                            << click("Chiudi")
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Alcuni punti maglia utilizzati nel pat P1 e nel pat P2\n"
                                   "sulla caduta P3 prevedono movimenti di camme.\n"
                                   "Tali movimenti sono possibili solo se questi punti maglia "
                                   "distano almeno P4 passi.\n"
                                   "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 4")
        << QStringList {QStringLiteral("4"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat P1 ed il pat P2 sulla caduta P3 prevedono movimenti di camme.\n"
                          "Tali movimenti sono troppo ravvicinati in presenza della selezione di "
                          "carico uncini\n"
                          "E' necessario che fra questi movimenti vi siano almeno P4 passo(i).\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 5")
        << QStringList {QStringLiteral("5"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat P1 ed il pat P2 sulla caduta P3 prevedono movimenti di camme.\n"
                          "Tali movimenti sono troppo ravvicinati in presenza della selezione di "
                          "scarico uncini\n"
                          "E' necessario che fra questi movimenti vi siano almeno P4 passo(i).\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 6") << QStringList {QStringLiteral("6"),  QStringLiteral("P1"),
                                            QStringLiteral("P2"), QStringLiteral("P3"),
                                            QStringLiteral("P4"), QStringLiteral("P5")}
                            << click("Chiudi")
                            << QStringLiteral("Attenzione:\n"
                                              "Il Pat P1 ed il Pat P2  richiedono:\n"
                                              "- cambi Posizione del Guidafilo P3 gruppo P4\n"
                                              "E' possibile se fra questi cambi\n"
                                              "ci sono almeno P5 aghi di distanza.\n"
                                              "E' necessario modificare il Disegno !");
    QTest::newRow("code 7")
        << QStringList {QStringLiteral("7"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Fra il pat P1 ed il pat P2  sono necessari dei cambi di guidafili con "
                          "sovrapposizione.\n"
                          "Tali movimenti non sono possibili sullo stesso rango di maglia.\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 8")
        << QStringList {QStringLiteral("8"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Fra il pat P1 ed il pat P2  sono necessarie entrate o uscite di guidafili.\n"
               "Tali entrate o uscite non sono possibili sullo stesso rango di maglia.\n"
               " Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 9")
        << QStringList {QStringLiteral("9"), QStringLiteral("P1")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat P1 necessita di entrata e/o uscita di guidafili.\n"
                          "Tali cambi non sono possibili in presenza di camma di trattenuto.\n"
                          "Per procedere \u00e8 necessario modificare il pat");
    QTest::newRow("code 10") << QStringList {QStringLiteral("10")} << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Nel Disegno sono presenti Punti Maglia:\n"
                                               "Flottato + Fuori Lavoro + Trattenuto.\n"
                                               "E\u0092 necessario eliminare uno dei tre !");
    QTest::newRow("code 11") << QStringList {QStringLiteral("11"), QStringLiteral("P1"),
                                             QStringLiteral("P2")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Dal Pat P1 al Pat P2 \u00e8 previsto : \n"
                                               "- entrata/uscita/cambio di Guidafilo\n"
                                               "Questo \u00e8 possibile solo nel Primo Transfer.\n"
                                               "E' necessario modificare i Pat !");
    QTest::newRow("code 12") << QStringList {QStringLiteral("12")} << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Nel Primo Transfer \u00e8 previsto : \n"
                                               "- entrata/uscita/cambio di Guidafilo\n"
                                               "Questo \u00e8 possibile solo se c'\u00e8 il\n"
                                               "trasferimento di Tutti i Settori.\n"
                                               "E' necessario modificare Disegno o Pat !");
    QTest::newRow("code 13") << QStringList {QStringLiteral("13"), QStringLiteral("P1"),
                                             QStringLiteral("P2")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Dal Pat P1 al Pat P2 c'\u00e8 un cambio di guidafili : \n"
                                    "- \u00e8 possibile cambiare il guidafilo 1 con il 2 o il 3\n"
                                    "- \u00e8 possibile cambiare il guidafilo 2 con il 3\n"
                                    "- altre sequenze non sono possibili\n"
                                    "E' necessario modificare i Pat !");
    QTest::newRow("code 14") << QStringList {QStringLiteral("14"), QStringLiteral("P1")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Guidafilo N.P1 assegnato al primo Pat applicato :\n"
                                               "deve essere mantenuto in Tutti i Pat successivi !\n"
                                               "E' necessario modificare Pat successivi !");
    QTest::newRow("code 15")
        << QStringList {QStringLiteral("15"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Nel passo P1 sulla caduta P2  sono presenti :\n"
               "- entrata-uscita-cambio di guidafili\n"
               "- fine movimento entrata camme Trattenuto/Scaricato\n"
               "Tali movimenti non sono possibili sullo stesso Rango di Maglia.\n"
               "Per procedere \u00e8 necessario modificare il Disegno o il(i) Pat coinvolti");
    QTest::newRow("code 16")
        << QStringList {QStringLiteral("16"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Nel passo P1 (passo 3 carico uncini) sulla caduta P2\n"
               "  sono presenti :\n"
               "- entrata-uscita-cambio di guidafili\n"
               "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
               "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
               "perch\u00e8 troppo ravvicinati.\n"
               "Per procedere \u00e8 necessario modificare il Disegno o il(i) Pat coinvolti");
    QTest::newRow("code 17")
        << QStringList {QStringLiteral("17"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Nel passo P1 (passo 3 scarico uncini) sulla caduta P2  sono presenti :\n"
               "- entrata-uscita-cambio di guidafili\n"
               "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
               "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
               "perch\u00e8 troppo ravvicinati.\n"
               "Per procedere \u00e8 necessario modificare il Disegno o il(i) Pat coinvolti");
    QTest::newRow("code 18") << QStringList {QStringLiteral("18"), QStringLiteral("P1"),
                                             QStringLiteral("P2")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "L'offset maglie per lo sbilanciamento del(i) colore(i)  P1  "
                                    "\u00e8 stato azzerato perch\u00e8\n"
                                    "dall'ago di inizio all'ago di fine del(i) colore(i) ci sono "
                                    "meno di P2 aghi di distanza.\n"
                                    "In alternativa \u00e8 necessario modificare il disegno!");
    QTest::newRow("code 19") << QStringList {QStringLiteral("19"), QStringLiteral("P1")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Sulla caduta P1 il \"Disegno Nitido\" richiede\n"
                                               "il guidafilo 6 in tutto il progetto.\n"
                                               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 20") << QStringList {QStringLiteral("20"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Il Pat 'P1' ed il Pat 'P2' richiedono :\n"
                                               "- uscita ed entrata guidafili\n"
                                               "E' possibile se fra questi cambi\n"
                                               "ci sono almeno P3 aghi di distanza\n"
                                               "E' necessario modificare il Disegno!");
    QTest::newRow("code 21")
        << QStringList {QStringLiteral("21"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel primo e ultimo rango della caduta P1\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P2\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 22")
        << QStringList {QStringLiteral("22")} << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Sullo stesso rango di maglia:\n"
               "non \u00e8 possibile associare PAT\n"
               "di \"Disegno Nitido\" con altri PAT.E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 23")
        << QStringList {QStringLiteral("23"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi P1 del carico uncini sulla caduta P2\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 24")
        << QStringList {QStringLiteral("24"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo P1 del carico uncini sulla caduta P2\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 25")
        << QStringList {QStringLiteral("25"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi 1 e 2 dello scarico uncini sulla caduta P1\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P2\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 26")
        << QStringList {QStringLiteral("26"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo 3 dello scarico uncini sulla caduta P1\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P2\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 27") << QStringList {QStringLiteral("27"), QStringLiteral("P1")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Sulla caduta P1 il \"Colore\" richiede\n"
                                               "il guidafilo 1-2-3 in tutto il progetto.\n"
                                               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 28") << QStringList {QStringLiteral("28"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Il Pat 'P1' ed il Pat 'P2' richiedono :\n"
                                               "- uscita ed entrata guidafili colore\n"
                                               "E' possibile se fra questi cambi\n"
                                               "ci sono almeno P3 aghi di distanza\n"
                                               "E' necessario modificare il disegno!");
    QTest::newRow("code 29") << QStringList {QStringLiteral("29"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                                    "nel primo rango della caduta P3\n"
                                    "nell'area colore non \u00e8 possibile aggiungere il colore.\n"
                                    "E' necessario modificare il disegno!");
    QTest::newRow("code 30") << QStringList {QStringLiteral("30"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                                    "nell'ultimo rango della caduta P3\n"
                                    "nell'area colore non \u00e8 possibile aggiungere il colore.\n"
                                    "E' necessario modificare il disegno!");
    QTest::newRow("code 31")
        << QStringList {QStringLiteral("31"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di camme\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'NITIDO'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 32")
        << QStringList {QStringLiteral("32"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di camme\n"
                          "Fra modalit\u00e0 'NITIDO' questo e' possibile solo dopo P4 passi.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 33")
        << QStringList {QStringLiteral("33"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di camme\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'COLORE'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 34")
        << QStringList {QStringLiteral("34"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di camme\n"
                          "Fra modalit\u00e0 'COLORE' questo e' possibile solo dopo P4 passi.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 35")
        << QStringList {QStringLiteral("35"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di guidafili\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'NITIDO'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 36")
        << QStringList {QStringLiteral("36"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di guidafili\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'COLORE'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 37")
        << QStringList {QStringLiteral("37"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Sullo stesso rango di maglia non \u00e8 possibile associare :\n"
               "PAT 'COLORE' (P1) con altri PAT 'COLORE' di modalit\u00e0 diversa (P2).\n"
               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 38")
        << QStringList {QStringLiteral("38"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia non \u00e8 possibile associare :\n"
                          "PAT 'COLORE' (P1) con altri PAT NON 'COLORE' (P2).\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 39")
        << QStringList {QStringLiteral("39"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi P1 del carico uncini sulla caduta P2\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 40")
        << QStringList {QStringLiteral("40"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo P1 del carico uncini per i primi P2 aghi sulla caduta P3\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P4\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 41")
        << QStringList {QStringLiteral("41"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo P1 (passo 3 del carico uncini) sulla caduta P2\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "in presenza di :\n"
                          "- entrate/uscite/cambi di guidafili\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 42")
        << QStringList {QStringLiteral("42"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi 1 e 2 dello scarico uncini sulla caduta P1\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P2\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 43")
        << QStringList {QStringLiteral("43"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo 3 dello scarico uncini per i primi P1 aghi sulla caduta P2\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 44")
        << QStringList {QStringLiteral("44"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia P1 non \u00e8 possibile associare :\n"
                          "PAT 'SPECIALE' (P2) con altri PAT di modalit\u00e0 incompatibile (P3).\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 45")
        << QStringList {QStringLiteral("45"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia P1 non \u00e8 possibile associare :\n"
                          "PAT 'SPECIALE' (P2) con PAT (P3) con guidafili incompatibili.\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 46")
        << QStringList {QStringLiteral("46"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Sullo stesso rango di maglia P1 non \u00e8 possibile associare :\n"
               "PAT 'SPECIALE' (P2) con PAT (P3) con configurazione camme incompatibili.\n"
               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 47")
        << QStringList {QStringLiteral("47"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Passaggio da PAT 'SPECIALE' (P1) rango P2 a PAT (P3)\n"
               "e' possibile solo dopo almeno un rango completo in modalit\u00e0 'SPECIALE'.\n"
               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 48") << QStringList {QStringLiteral("48"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3"),
                                             QStringLiteral("P4")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Dal PAT P1 al PAT P2 rango P3 \u00e8 richiesta :\n"
                                    "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                                    "E' possibile se ci sono almeno P4 aghi di distanza!\n"
                                    "E' necessario modificare il Disegno!");
    QTest::newRow("code 49") << QStringList {QStringLiteral("49"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3"),
                                             QStringLiteral("P4")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Dal PAT P1 al PAT P2 rango P3 \u00e8 richiesta :\n"
                                    "- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.\n"
                                    "E' possibile se ci sono almeno P4 aghi di distanza!\n"
                                    "E' necessario modificare il Disegno!");
    QTest::newRow("code 50") << QStringList {QStringLiteral("50"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Dal PAT P1 allo Scarico Maglia rango P2 \u00e8 richiesta :\n"
                                    "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                                    "E' possibile se ci sono almeno P3 aghi di distanza!\n"
                                    "E' necessario modificare il Disegno!");
    QTest::newRow("code 51") << QStringList {QStringLiteral("51"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Rango P1 : Dal PAT modalit\u00e0 SPECIALE (P2)\n"
                                    " al PAT modalit\u00e0 SPECIALE (P3) \u00e8 richiesto :\n"
                                    "- Cambio di guidafili 2 e 3 del GR1.\n"
                                    "Non e' possibile sullo stesso rango di maglia!\n"
                                    "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 52") << QStringList {QStringLiteral("52"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Rango P1 : Dal PAT modalit\u00e0 SPECIALE (P2)\n"
                                    " al PAT modalit\u00e0 SPECIALE (P3) \u00e8 richiesto :\n"
                                    "- Cambio di guidafili GR2/GR1.\n"
                                    "E' possibile solo se nell'ultimo rango di maglia :\n"
                                    "- Tutti gli aghi sono in modalit\u00e0 SPECIALE\n"
                                    "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 53") << QStringList {QStringLiteral("53"), QStringLiteral("P1"),
                                             QStringLiteral("P2"), QStringLiteral("P3")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Nel P1 passo Carico Uncini sulla caduta 5 (rango P2)\n"
                                    "con presenza di PAT in modalit\u00e0 SPECIALE (P3) :\n"
                                    "- Tutti gli aghi devono essere in modalit\u00e0 SPECIALE\n"
                                    "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 54")
        << QStringList {QStringLiteral("54"), QStringLiteral("P1"), QStringLiteral("P2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Usata \"Camma Rientro Parziale Uncini\" nel Bordo n. P1.\n"
                          "Passo di movimento incompatibile con la dimensione del bordo.\n"
                          "Anticipare il movimento di P2 passo(i) o ampliare il bordo!");
    QTest::newRow("code 55") << QStringList {QStringLiteral("55"), QStringLiteral("P1"),
                                             QStringLiteral("P2")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Il PAT P1 a 4 cadute alla linea P2\n"
                                               "non pu\u00f2 essere usato in una zona a 8 cadute\n"
                                               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 56") << QStringList {QStringLiteral("56"), QStringLiteral("P1"),
                                             QStringLiteral("P2")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione:\n"
                                               "Il PAT P1 a 8 cadute alla linea P2\n"
                                               "non pu\u00f2 essere usato in una zona a 4 cadute\n"
                                               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 57") << QStringList {QStringLiteral("57"), QStringLiteral("P1")}
                             << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Una zona a 4 cadute o inizia al primo passo o dopo P1 passi!");
    QTest::newRow("code 58")
        << QStringList {QStringLiteral("58"), QStringLiteral("P1")} << click("Chiudi")
        << QStringLiteral("Attenzione al passo P1:\n"
                          "Negli ultimi 3 passi prima di passare da 8 a 4 cadute:\n"
                          "NON \u00e8 consentita la presenza di Modalit\u00e0 Colore o Nitido!\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 59")
        << QStringList {QStringLiteral("59"), QStringLiteral("P1")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute o termina all'ultimo passo o P1 passi prima!");
    QTest::newRow("code 60")
        << QStringList {QStringLiteral("60"), QStringLiteral("P1")} << click("Chiudi")
        << QStringLiteral("Attenzione al passo P1:\n"
                          "Negli ultimi 3 passi prima di passare da 4 a 8 cadute:\n"
                          "NON \u00e8 consentita la presenza di Modalit\u00e0 Colore o Nitido!\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 61") << QStringList {QStringLiteral("61"), QStringLiteral("P1")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione al passo P1:\n"
                                               "Nel passaggio zona 8 cadute a zona 4 cadute\n"
                                               "Non \u00e8 consentito l'inizio bordo con uncini:\n"
                                               "- negli ultimi 3 passi della zona a 8 cadute !\n"
                                               "- nel primo passo della zona a 4 cadute !\n"
                                               "E' necessario risolvere il conflitto!");
    QTest::newRow("code 62") << QStringList {QStringLiteral("62"), QStringLiteral("P1")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione al passo P1:\n"
                                               "Nel passaggio zona 8 cadute a zona 4 cadute\n"
                                               "Non \u00e8 consentito la fine bordo con uncini\n"
                                               "negli ultimi 3 passi della zona a 8 cadute !\n"
                                               "E' necessario risolvere il conflitto!");
    QTest::newRow("code 63") << QStringList {QStringLiteral("63"), QStringLiteral("P1")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione al passo P1:\n"
                                               "Nel passaggio zona 4 cadute a zona 8 cadute\n"
                                               "Non \u00e8 consentito la fine bordo con uncini\n"
                                               "negli ultimi 2 passi della zona a 4 cadute !\n"
                                               "E' necessario risolvere il conflitto!");
    QTest::newRow("code 64") << QStringList {QStringLiteral("64"), QStringLiteral("P1")}
                             << click("Chiudi")
                             << QStringLiteral("Attenzione al passo P1:\n"
                                               "Nel passaggio zona 4 cadute a zona 8 cadute\n"
                                               "Non \u00e8 consentito l'inizio bordo con uncini:\n"
                                               "- negli ultimi 2 passi della zona a 4 cadute !\n"
                                               "- nel primo passo della zona a 8 cadute !\n"
                                               "E' necessario risolvere il conflitto!");
    QTest::newRow("code 65") << QStringList {QStringLiteral("65")} << click("Chiudi")
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Non \u00e8 consentito avere la Modalit\u00e0 Fili 0:\n"
                                    "- nel 1\u00b0 passo dopo il carico maglia !\n"
                                    "- nell'ultimo passo prima dello scarico maglia !\n"
                                    "Per continuare \u00e8 necessario modificare il Disegno !");
}

void tst_QNodrixMessageBoxRules::rule()
{
    checkRule();
}

void tst_QNodrixMessageBoxRules::apostropheOfRule10()
{
    // Code 10 keeps the character U+0092 after the "E" of its last line, where
    // the other rules have an apostrophe; nothing else of the text is unusual.
    QStringList record {QStringLiteral("10")};
    const BoxRecord r
        = driveOne([&] { QNodrixMessageBox::execModuleRulesAdvisor(record); }, click("Chiudi"));
    const QString last = r.text.section(QLatin1Char('\n'), -1);
    QCOMPARE(last.left(2), QString(QLatin1Char('E')) + QChar(0x92));
    QCOMPARE(r.text.count(QChar(0x92)), 1);
    QVERIFY(!r.text.contains(QLatin1Char('\'')));
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxRules)
#include "tst_qnodrixmessagebox_rules.moc"
