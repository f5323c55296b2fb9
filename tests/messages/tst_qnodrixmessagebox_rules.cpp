#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "markingtranslator.h"
#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;

using Buttons = QList<QPair<QString, QMessageBox::ButtonRole>>;
Q_DECLARE_METATYPE(NdxComTest::Action)

namespace {

Action click(const char *text)
{
    return Action::click(QString::fromUtf8(text));
}

const Buttons rulesButtons = {{QStringLiteral("Dettagli"), QMessageBox::NoRole},
                              {QStringLiteral("Chiudi"), QMessageBox::NoRole}};

} // namespace

class tst_QNodrixMessageBoxRules : public QObject
{
    Q_OBJECT

private slots:
    void rule_data();
    void rule();
    void apostropheOfRule10();
    void emptyList();
    void onlyButtonsEndTheBox_data();
    void onlyButtonsEndTheBox();
    void titleStaysUntranslated();
    void overrideCursorUntouched();

private:
    static void addColumns();
};

void tst_QNodrixMessageBoxRules::addColumns()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::addColumn<QString>("text");
}

void tst_QNodrixMessageBoxRules::rule_data()
{
    addColumns();

    // Every rule with the parameters P1..Pk; then with entries beyond k
    // (ignored); then with the code alone (missing entries read as empty).
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
    QTest::newRow("code 1, entries beyond k")
        << QStringList {QStringLiteral("1"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Nel pat P1 alla caduta n\u00b0 P2 non \u00e8 configurato il numero di "
                          "fili in lavoro");
    QTest::newRow("code 2, entries beyond k")
        << QStringList {QStringLiteral("2"),  QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Alcuni punti maglia utilizzati nel pat P1 e nel pat P2 sulla caduta P3 "
                          "prevedono movimenti di camme.\n"
                          "Tali movimenti sono possibili solo se questi punti maglia non sono "
                          "sullo stesso rango di maglia.\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 3, entries beyond k")
        << QStringList {QStringLiteral("3"),  QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Alcuni punti maglia utilizzati nel pat P1 e nel pat P2\n"
                          "sulla caduta P3 prevedono movimenti di camme.\n"
                          "Tali movimenti sono possibili solo se questi punti maglia distano "
                          "almeno P4 passi.\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 4, entries beyond k")
        << QStringList {QStringLiteral("4"),  QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat P1 ed il pat P2 sulla caduta P3 prevedono movimenti di camme.\n"
                          "Tali movimenti sono troppo ravvicinati in presenza della selezione di "
                          "carico uncini\n"
                          "E' necessario che fra questi movimenti vi siano almeno P4 passo(i).\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 5, entries beyond k")
        << QStringList {QStringLiteral("5"),  QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat P1 ed il pat P2 sulla caduta P3 prevedono movimenti di camme.\n"
                          "Tali movimenti sono troppo ravvicinati in presenza della selezione di "
                          "scarico uncini\n"
                          "E' necessario che fra questi movimenti vi siano almeno P4 passo(i).\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 6, entries beyond k")
        << QStringList {QStringLiteral("6"),  QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("P5"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il Pat P1 ed il Pat P2  richiedono:\n"
                          "- cambi Posizione del Guidafilo P3 gruppo P4\n"
                          "E' possibile se fra questi cambi\n"
                          "ci sono almeno P5 aghi di distanza.\n"
                          "E' necessario modificare il Disegno !");
    QTest::newRow("code 7, entries beyond k")
        << QStringList {QStringLiteral("7"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Fra il pat P1 ed il pat P2  sono necessari dei cambi di guidafili con "
                          "sovrapposizione.\n"
                          "Tali movimenti non sono possibili sullo stesso rango di maglia.\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 8, entries beyond k")
        << QStringList {QStringLiteral("8"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Fra il pat P1 ed il pat P2  sono necessarie entrate o uscite di guidafili.\n"
               "Tali entrate o uscite non sono possibili sullo stesso rango di maglia.\n"
               " Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 9, entries beyond k")
        << QStringList {QStringLiteral("9"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat P1 necessita di entrata e/o uscita di guidafili.\n"
                          "Tali cambi non sono possibili in presenza di camma di trattenuto.\n"
                          "Per procedere \u00e8 necessario modificare il pat");
    QTest::newRow("code 10, entries beyond k")
        << QStringList {QStringLiteral("10"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel Disegno sono presenti Punti Maglia:\n"
                          "Flottato + Fuori Lavoro + Trattenuto.\n"
                          "E\u0092 necessario eliminare uno dei tre !");
    QTest::newRow("code 11, entries beyond k")
        << QStringList {QStringLiteral("11"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal Pat P1 al Pat P2 \u00e8 previsto : \n"
                          "- entrata/uscita/cambio di Guidafilo\n"
                          "Questo \u00e8 possibile solo nel Primo Transfer.\n"
                          "E' necessario modificare i Pat !");
    QTest::newRow("code 12, entries beyond k")
        << QStringList {QStringLiteral("12"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel Primo Transfer \u00e8 previsto : \n"
                          "- entrata/uscita/cambio di Guidafilo\n"
                          "Questo \u00e8 possibile solo se c'\u00e8 il\n"
                          "trasferimento di Tutti i Settori.\n"
                          "E' necessario modificare Disegno o Pat !");
    QTest::newRow("code 13, entries beyond k")
        << QStringList {QStringLiteral("13"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal Pat P1 al Pat P2 c'\u00e8 un cambio di guidafili : \n"
                          "- \u00e8 possibile cambiare il guidafilo 1 con il 2 o il 3\n"
                          "- \u00e8 possibile cambiare il guidafilo 2 con il 3\n"
                          "- altre sequenze non sono possibili\n"
                          "E' necessario modificare i Pat !");
    QTest::newRow("code 14, entries beyond k")
        << QStringList {QStringLiteral("14"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Guidafilo N.P1 assegnato al primo Pat applicato :\n"
                          "deve essere mantenuto in Tutti i Pat successivi !\n"
                          "E' necessario modificare Pat successivi !");
    QTest::newRow("code 15, entries beyond k")
        << QStringList {QStringLiteral("15"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Nel passo P1 sulla caduta P2  sono presenti :\n"
               "- entrata-uscita-cambio di guidafili\n"
               "- fine movimento entrata camme Trattenuto/Scaricato\n"
               "Tali movimenti non sono possibili sullo stesso Rango di Maglia.\n"
               "Per procedere \u00e8 necessario modificare il Disegno o il(i) Pat coinvolti");
    QTest::newRow("code 16, entries beyond k")
        << QStringList {QStringLiteral("16"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
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
    QTest::newRow("code 17, entries beyond k")
        << QStringList {QStringLiteral("17"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Nel passo P1 (passo 3 scarico uncini) sulla caduta P2  sono presenti :\n"
               "- entrata-uscita-cambio di guidafili\n"
               "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
               "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
               "perch\u00e8 troppo ravvicinati.\n"
               "Per procedere \u00e8 necessario modificare il Disegno o il(i) Pat coinvolti");
    QTest::newRow("code 18, entries beyond k")
        << QStringList {QStringLiteral("18"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "L'offset maglie per lo sbilanciamento del(i) colore(i)  P1  \u00e8 "
                          "stato azzerato perch\u00e8\n"
                          "dall'ago di inizio all'ago di fine del(i) colore(i) ci sono meno di P2 "
                          "aghi di distanza.\n"
                          "In alternativa \u00e8 necessario modificare il disegno!");
    QTest::newRow("code 19, entries beyond k")
        << QStringList {QStringLiteral("19"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sulla caduta P1 il \"Disegno Nitido\" richiede\n"
                          "il guidafilo 6 in tutto il progetto.\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 20, entries beyond k")
        << QStringList {QStringLiteral("20"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il Pat 'P1' ed il Pat 'P2' richiedono :\n"
                          "- uscita ed entrata guidafili\n"
                          "E' possibile se fra questi cambi\n"
                          "ci sono almeno P3 aghi di distanza\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 21, entries beyond k")
        << QStringList {QStringLiteral("21"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel primo e ultimo rango della caduta P1\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P2\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 22, entries beyond k")
        << QStringList {QStringLiteral("22"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Sullo stesso rango di maglia:\n"
               "non \u00e8 possibile associare PAT\n"
               "di \"Disegno Nitido\" con altri PAT.E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 23, entries beyond k")
        << QStringList {QStringLiteral("23"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi P1 del carico uncini sulla caduta P2\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 24, entries beyond k")
        << QStringList {QStringLiteral("24"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo P1 del carico uncini sulla caduta P2\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 25, entries beyond k")
        << QStringList {QStringLiteral("25"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi 1 e 2 dello scarico uncini sulla caduta P1\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P2\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 26, entries beyond k")
        << QStringList {QStringLiteral("26"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo 3 dello scarico uncini sulla caduta P1\n"
                          "in \"Disegno Nitido\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P2\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 27, entries beyond k")
        << QStringList {QStringLiteral("27"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sulla caduta P1 il \"Colore\" richiede\n"
                          "il guidafilo 1-2-3 in tutto il progetto.\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 28, entries beyond k")
        << QStringList {QStringLiteral("28"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il Pat 'P1' ed il Pat 'P2' richiedono :\n"
                          "- uscita ed entrata guidafili colore\n"
                          "E' possibile se fra questi cambi\n"
                          "ci sono almeno P3 aghi di distanza\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 29, entries beyond k")
        << QStringList {QStringLiteral("29"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "nel primo rango della caduta P3\n"
                          "nell'area colore non \u00e8 possibile aggiungere il colore.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 30, entries beyond k")
        << QStringList {QStringLiteral("30"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "nell'ultimo rango della caduta P3\n"
                          "nell'area colore non \u00e8 possibile aggiungere il colore.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 31, entries beyond k")
        << QStringList {QStringLiteral("31"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di camme\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'NITIDO'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 32, entries beyond k")
        << QStringList {QStringLiteral("32"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di camme\n"
                          "Fra modalit\u00e0 'NITIDO' questo e' possibile solo dopo P4 passi.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 33, entries beyond k")
        << QStringList {QStringLiteral("33"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di camme\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'COLORE'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 34, entries beyond k")
        << QStringList {QStringLiteral("34"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di camme\n"
                          "Fra modalit\u00e0 'COLORE' questo e' possibile solo dopo P4 passi.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 35, entries beyond k")
        << QStringList {QStringLiteral("35"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di guidafili\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'NITIDO'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 36, entries beyond k")
        << QStringList {QStringLiteral("36"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passaggio tra il Pat 'P1' ed il Pat 'P2'\n"
                          "della caduta P3 \u00e8 richiesto un movimento di guidafili\n"
                          "NON \u00e8 possibile all'interno della stessa modalit\u00e0 'COLORE'.\n"
                          "E' necessario modificare il disegno!");
    QTest::newRow("code 37, entries beyond k")
        << QStringList {QStringLiteral("37"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Sullo stesso rango di maglia non \u00e8 possibile associare :\n"
               "PAT 'COLORE' (P1) con altri PAT 'COLORE' di modalit\u00e0 diversa (P2).\n"
               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 38, entries beyond k")
        << QStringList {QStringLiteral("38"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia non \u00e8 possibile associare :\n"
                          "PAT 'COLORE' (P1) con altri PAT NON 'COLORE' (P2).\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 39, entries beyond k")
        << QStringList {QStringLiteral("39"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi P1 del carico uncini sulla caduta P2\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 40, entries beyond k")
        << QStringList {QStringLiteral("40"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo P1 del carico uncini per i primi P2 aghi sulla caduta P3\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P4\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 41, entries beyond k")
        << QStringList {QStringLiteral("41"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo P1 (passo 3 del carico uncini) sulla caduta P2\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "in presenza di :\n"
                          "- entrate/uscite/cambi di guidafili\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 42, entries beyond k")
        << QStringList {QStringLiteral("42"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nei passi 1 e 2 dello scarico uncini sulla caduta P1\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P2\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 43, entries beyond k")
        << QStringList {QStringLiteral("43"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel passo 3 dello scarico uncini per i primi P1 aghi sulla caduta P2\n"
                          "in \"Modo Colore\" non \u00e8 possibile aggiungere il colore.\n"
                          "Vedi Pat : P3\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 44, entries beyond k")
        << QStringList {QStringLiteral("44"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia P1 non \u00e8 possibile associare :\n"
                          "PAT 'SPECIALE' (P2) con altri PAT di modalit\u00e0 incompatibile (P3).\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 45, entries beyond k")
        << QStringList {QStringLiteral("45"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Sullo stesso rango di maglia P1 non \u00e8 possibile associare :\n"
                          "PAT 'SPECIALE' (P2) con PAT (P3) con guidafili incompatibili.\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 46, entries beyond k")
        << QStringList {QStringLiteral("46"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Sullo stesso rango di maglia P1 non \u00e8 possibile associare :\n"
               "PAT 'SPECIALE' (P2) con PAT (P3) con configurazione camme incompatibili.\n"
               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 47, entries beyond k")
        << QStringList {QStringLiteral("47"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Passaggio da PAT 'SPECIALE' (P1) rango P2 a PAT (P3)\n"
               "e' possibile solo dopo almeno un rango completo in modalit\u00e0 'SPECIALE'.\n"
               "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 48, entries beyond k")
        << QStringList {QStringLiteral("48"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal PAT P1 al PAT P2 rango P3 \u00e8 richiesta :\n"
                          "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                          "E' possibile se ci sono almeno P4 aghi di distanza!\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 49, entries beyond k")
        << QStringList {QStringLiteral("49"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("P4"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal PAT P1 al PAT P2 rango P3 \u00e8 richiesta :\n"
                          "- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.\n"
                          "E' possibile se ci sono almeno P4 aghi di distanza!\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 50, entries beyond k")
        << QStringList {QStringLiteral("50"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Dal PAT P1 allo Scarico Maglia rango P2 \u00e8 richiesta :\n"
                          "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                          "E' possibile se ci sono almeno P3 aghi di distanza!\n"
                          "E' necessario modificare il Disegno!");
    QTest::newRow("code 51, entries beyond k")
        << QStringList {QStringLiteral("51"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Rango P1 : Dal PAT modalit\u00e0 SPECIALE (P2)\n"
                          " al PAT modalit\u00e0 SPECIALE (P3) \u00e8 richiesto :\n"
                          "- Cambio di guidafili 2 e 3 del GR1.\n"
                          "Non e' possibile sullo stesso rango di maglia!\n"
                          "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 52, entries beyond k")
        << QStringList {QStringLiteral("52"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Rango P1 : Dal PAT modalit\u00e0 SPECIALE (P2)\n"
                          " al PAT modalit\u00e0 SPECIALE (P3) \u00e8 richiesto :\n"
                          "- Cambio di guidafili GR2/GR1.\n"
                          "E' possibile solo se nell'ultimo rango di maglia :\n"
                          "- Tutti gli aghi sono in modalit\u00e0 SPECIALE\n"
                          "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 53, entries beyond k")
        << QStringList {QStringLiteral("53"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("P3"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel P1 passo Carico Uncini sulla caduta 5 (rango P2)\n"
                          "con presenza di PAT in modalit\u00e0 SPECIALE (P3) :\n"
                          "- Tutti gli aghi devono essere in modalit\u00e0 SPECIALE\n"
                          "Per continuare e' necessario modificare Disegno o PAT!");
    QTest::newRow("code 54, entries beyond k")
        << QStringList {QStringLiteral("54"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Usata \"Camma Rientro Parziale Uncini\" nel Bordo n. P1.\n"
                          "Passo di movimento incompatibile con la dimensione del bordo.\n"
                          "Anticipare il movimento di P2 passo(i) o ampliare il bordo!");
    QTest::newRow("code 55, entries beyond k")
        << QStringList {QStringLiteral("55"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il PAT P1 a 4 cadute alla linea P2\n"
                          "non pu\u00f2 essere usato in una zona a 8 cadute\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 56, entries beyond k")
        << QStringList {QStringLiteral("56"), QStringLiteral("P1"), QStringLiteral("P2"),
                        QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il PAT P1 a 8 cadute alla linea P2\n"
                          "non pu\u00f2 essere usato in una zona a 4 cadute\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 57, entries beyond k")
        << QStringList {QStringLiteral("57"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute o inizia al primo passo o dopo P1 passi!");
    QTest::newRow("code 58, entries beyond k")
        << QStringList {QStringLiteral("58"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione al passo P1:\n"
                          "Negli ultimi 3 passi prima di passare da 8 a 4 cadute:\n"
                          "NON \u00e8 consentita la presenza di Modalit\u00e0 Colore o Nitido!\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 59, entries beyond k")
        << QStringList {QStringLiteral("59"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute o termina all'ultimo passo o P1 passi prima!");
    QTest::newRow("code 60, entries beyond k")
        << QStringList {QStringLiteral("60"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione al passo P1:\n"
                          "Negli ultimi 3 passi prima di passare da 4 a 8 cadute:\n"
                          "NON \u00e8 consentita la presenza di Modalit\u00e0 Colore o Nitido!\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 61, entries beyond k")
        << QStringList {QStringLiteral("61"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione al passo P1:\n"
                          "Nel passaggio zona 8 cadute a zona 4 cadute\n"
                          "Non \u00e8 consentito l'inizio bordo con uncini:\n"
                          "- negli ultimi 3 passi della zona a 8 cadute !\n"
                          "- nel primo passo della zona a 4 cadute !\n"
                          "E' necessario risolvere il conflitto!");
    QTest::newRow("code 62, entries beyond k")
        << QStringList {QStringLiteral("62"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione al passo P1:\n"
                          "Nel passaggio zona 8 cadute a zona 4 cadute\n"
                          "Non \u00e8 consentito la fine bordo con uncini\n"
                          "negli ultimi 3 passi della zona a 8 cadute !\n"
                          "E' necessario risolvere il conflitto!");
    QTest::newRow("code 63, entries beyond k")
        << QStringList {QStringLiteral("63"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione al passo P1:\n"
                          "Nel passaggio zona 4 cadute a zona 8 cadute\n"
                          "Non \u00e8 consentito la fine bordo con uncini\n"
                          "negli ultimi 2 passi della zona a 4 cadute !\n"
                          "E' necessario risolvere il conflitto!");
    QTest::newRow("code 64, entries beyond k")
        << QStringList {QStringLiteral("64"), QStringLiteral("P1"), QStringLiteral("X1"),
                        QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione al passo P1:\n"
                          "Nel passaggio zona 4 cadute a zona 8 cadute\n"
                          "Non \u00e8 consentito l'inizio bordo con uncini:\n"
                          "- negli ultimi 2 passi della zona a 4 cadute !\n"
                          "- nel primo passo della zona a 8 cadute !\n"
                          "E' necessario risolvere il conflitto!");
    QTest::newRow("code 65, entries beyond k")
        << QStringList {QStringLiteral("65"), QStringLiteral("X1"), QStringLiteral("X2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 consentito avere la Modalit\u00e0 Fili 0:\n"
                          "- nel 1\u00b0 passo dopo il carico maglia !\n"
                          "- nell'ultimo passo prima dello scarico maglia !\n"
                          "Per continuare \u00e8 necessario modificare il Disegno !");
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

    // Worked examples and edge cases.
    QTest::newRow("only the entry 10")
        << QStringList {QStringLiteral("10")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel Disegno sono presenti Punti Maglia:\n"
                          "Flottato + Fuori Lavoro + Trattenuto.\n"
                          "E\u0092 necessario eliminare uno dei tre !");
    QTest::newRow("1, P3, 4") << QStringList {QStringLiteral("1"), QStringLiteral("P3"),
                                              QStringLiteral("4")}
                              << click("Chiudi")
                              << QStringLiteral("Nel pat P3 alla caduta n\u00b0 4 non \u00e8 "
                                                "configurato il numero di fili in lavoro");
    QTest::newRow("code 3, two of four parameters")
        << QStringList {QStringLiteral("3"), QStringLiteral("A"), QStringLiteral("B")}
        << click("Chiudi")
        << QStringLiteral(
               "Attenzione:\n"
               "Alcuni punti maglia utilizzati nel pat A e nel pat B\n"
               "sulla caduta  prevedono movimenti di camme.\n"
               "Tali movimenti sono possibili solo se questi punti maglia distano almeno  passi.\n"
               "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 66") << QStringList {QStringLiteral("66")} << click("Chiudi") << QString();
    QTest::newRow("code 0") << QStringList {QStringLiteral("0")} << click("Chiudi") << QString();
    QTest::newRow("code -1") << QStringList {QStringLiteral("-1")} << click("Chiudi") << QString();
    QTest::newRow("code is a word") << QStringList {QStringLiteral("parola"), QStringLiteral("P1")}
                                    << click("Chiudi") << QString();
    QTest::newRow("code is empty")
        << QStringList {QStringLiteral("")} << click("Chiudi") << QString();
    QTest::newRow("code beyond int")
        << QStringList {QStringLiteral("2147483648"), QStringLiteral("P1")} << click("Chiudi")
        << QString();
    QTest::newRow("code 0x0C (base 10 only)")
        << QStringList {QStringLiteral("0x0C")} << click("Chiudi") << QString();
    QTest::newRow("code 12abc") << QStringList {QStringLiteral("12abc")} << click("Chiudi")
                                << QString();
    QTest::newRow("code 12.0") << QStringList {QStringLiteral("12.0")} << click("Chiudi")
                               << QString();
    QTest::newRow("code 012 (base 10)")
        << QStringList {QStringLiteral("012")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Nel Primo Transfer \u00e8 previsto : \n"
                          "- entrata/uscita/cambio di Guidafilo\n"
                          "Questo \u00e8 possibile solo se c'\u00e8 il\n"
                          "trasferimento di Tutti i Settori.\n"
                          "E' necessario modificare Disegno o Pat !");
    QTest::newRow("code +5")
        << QStringList {QStringLiteral("+5"), QStringLiteral("a"), QStringLiteral("b"),
                        QStringLiteral("c"), QStringLiteral("d")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il pat a ed il pat b sulla caduta c prevedono movimenti di camme.\n"
                          "Tali movimenti sono troppo ravvicinati in presenza della selezione di "
                          "scarico uncini\n"
                          "E' necessario che fra questi movimenti vi siano almeno d passo(i).\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("code 57, parameter holding %1")
        << QStringList {QStringLiteral("57"), QStringLiteral("%1")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute o inizia al primo passo o dopo %1 passi!");
    QTest::newRow("code 55, parameters holding %L1 and %%")
        << QStringList {QStringLiteral("55"), QStringLiteral("%L1"), QStringLiteral("%%2")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il PAT %L1 a 4 cadute alla linea %%2\n"
                          "non pu\u00f2 essere usato in una zona a 8 cadute\n"
                          "E' necessario modificare Disegno o Pat!");
    // Filled once: the "%2" of a parameter stays as it stands.
    QTest::newRow("code 55, first parameter holding %2")
        << QStringList {QStringLiteral("55"), QStringLiteral("%2"), QStringLiteral("L9")}
        << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Il PAT %2 a 4 cadute alla linea L9\n"
                          "non pu\u00f2 essere usato in una zona a 8 cadute\n"
                          "E' necessario modificare Disegno o Pat!");
    QTest::newRow("code 65 degree sign")
        << QStringList {QStringLiteral("65")} << click("Chiudi")
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 consentito avere la Modalit\u00e0 Fili 0:\n"
                          "- nel 1\u00b0 passo dopo il carico maglia !\n"
                          "- nell'ultimo passo prima dello scarico maglia !\n"
                          "Per continuare \u00e8 necessario modificare il Disegno !");
    QTest::newRow("Dettagli closes like Chiudi")
        << QStringList {QStringLiteral("2"), QStringLiteral("A"), QStringLiteral("B"),
                        QStringLiteral("C")}
        << click("Dettagli")
        << QStringLiteral("Attenzione:\n"
                          "Alcuni punti maglia utilizzati nel pat A e nel pat B sulla caduta C "
                          "prevedono movimenti di camme.\n"
                          "Tali movimenti sono possibili solo se questi punti maglia non sono "
                          "sullo stesso rango di maglia.\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("Enter") << QStringList {QStringLiteral("2"), QStringLiteral("A"),
                                           QStringLiteral("B"), QStringLiteral("C")}
                           << Action::enter()
                           << QStringLiteral(
                                  "Attenzione:\n"
                                  "Alcuni punti maglia utilizzati nel pat A e nel pat B sulla "
                                  "caduta C prevedono movimenti di camme.\n"
                                  "Tali movimenti sono possibili solo se questi punti maglia non "
                                  "sono sullo stesso rango di maglia.\n"
                                  "Per procedere \u00e8 necessario modificare uno dei due pat");
    QTest::newRow("ended without a click")
        << QStringList {QStringLiteral("2"), QStringLiteral("A"), QStringLiteral("B"),
                        QStringLiteral("C")}
        << Action::reject()
        << QStringLiteral("Attenzione:\n"
                          "Alcuni punti maglia utilizzati nel pat A e nel pat B sulla caduta C "
                          "prevedono movimenti di camme.\n"
                          "Tali movimenti sono possibili solo se questi punti maglia non sono "
                          "sullo stesso rango di maglia.\n"
                          "Per procedere \u00e8 necessario modificare uno dei due pat");
}

void tst_QNodrixMessageBoxRules::rule()
{
    QFETCH(QStringList, entries);
    QFETCH(NdxComTest::Action, action);
    QFETCH(QString, text);

    QStringList record = entries;
    DialogDriver driver;
    const QList<BoxRecord> records
        = driver.run([&] { QNodrixMessageBox::execModuleRulesAdvisor(record); }, {action});

    QCOMPARE(records.size(), 1);
    QCOMPARE(driver.unexpected(), 0);
    const BoxRecord &r = records.first();
    QVERIFY(!r.actionFailed);
    QCOMPARE(r.text, text);
    QCOMPARE(record, entries); // the list is not changed

    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.icon, QMessageBox::Information);
    QCOMPARE(r.buttonsByRole(), rulesButtons);
    QCOMPARE(r.defaultButton, QString());
    QVERIFY(r.width >= 500);
    QVERIFY(r.minimumWidth >= 500);
    QVERIFY(!r.hasParent);
    QVERIFY(r.flags & Qt::Dialog);
    QVERIFY(r.flags & Qt::MSWindowsFixedSizeDialogHint);
    QVERIFY(!r.hasOverrideCursor);
    QVERIFY(driver.cursorRestored());
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

void tst_QNodrixMessageBoxRules::emptyList()
{
    // No entry 0 at all reads as code 0: the empty box, no crash.
    QStringList record;
    int seen = 0;
    const BoxRecord r = driveOne([&] { QNodrixMessageBox::execModuleRulesAdvisor(record); },
                                 click("Dettagli"), &seen);
    QCOMPARE(seen, 1);
    QVERIFY(!r.actionFailed);
    QCOMPARE(r.text, QString());
    QCOMPARE(r.icon, QMessageBox::Information);
    QCOMPARE(r.buttonsByRole(), rulesButtons);
    QVERIFY(r.width >= 500);
    QVERIFY(record.isEmpty());
}

void tst_QNodrixMessageBoxRules::onlyButtonsEndTheBox_data()
{
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::newRow("Escape") << Action::escape();
    QTest::newRow("window closed") << Action::close();
}

void tst_QNodrixMessageBoxRules::onlyButtonsEndTheBox()
{
    // With two buttons of no role the box has no escape button, and
    // QMessageBox then ignores both Escape and a close request from the title
    // bar: only "Dettagli", "Chiudi" (or Enter) end it. The driver ends the
    // box by force afterwards and marks the action as failed.
    QFETCH(NdxComTest::Action, action);
    QStringList record {QStringLiteral("57"), QStringLiteral("4")};
    const BoxRecord r
        = driveOne([&] { QNodrixMessageBox::execModuleRulesAdvisor(record); }, action);
    QCOMPARE(r.escapeButton, QString());
    QVERIFY(r.actionFailed);
    QCOMPARE(r.text,
             QStringLiteral("Attenzione:\nUna zona a 4 cadute o inizia al primo passo o "
                            "dopo 4 passi!"));
}

void tst_QNodrixMessageBoxRules::titleStaysUntranslated()
{
    NdxComTest::MarkingTranslator translator("QNodrixMessageBox");
    QCoreApplication::installTranslator(&translator);
    QStringList record {QStringLiteral("14"), QStringLiteral("3")};
    const BoxRecord r
        = driveOne([&] { QNodrixMessageBox::execModuleRulesAdvisor(record); }, click("[Chiudi]"));
    QCoreApplication::removeTranslator(&translator);

    QVERIFY(!r.actionFailed);
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.buttonsByRole(),
             (Buttons {{QStringLiteral("[Dettagli]"), QMessageBox::NoRole},
                       {QStringLiteral("[Chiudi]"), QMessageBox::NoRole}}));
    QCOMPARE(r.text,
             QStringLiteral("[Attenzione:\nGuidafilo N.3 assegnato al primo Pat applicato :\n"
                            "deve essere mantenuto in Tutti i Pat successivi !\n"
                            "E' necessario modificare Pat successivi !]"));
}

void tst_QNodrixMessageBoxRules::overrideCursorUntouched()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QStringList record {QStringLiteral("22")};
    DialogDriver driver;
    const QList<BoxRecord> records
        = driver.run([&] { QNodrixMessageBox::execModuleRulesAdvisor(record); }, {click("Chiudi")});
    QCOMPARE(records.size(), 1);
    QVERIFY(records.first().hasOverrideCursor);
    QCOMPARE(records.first().overrideCursor, Qt::WaitCursor);
    QVERIFY(driver.cursorRestored());
    QApplication::restoreOverrideCursor();
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxRules)
#include "tst_qnodrixmessagebox_rules.moc"
