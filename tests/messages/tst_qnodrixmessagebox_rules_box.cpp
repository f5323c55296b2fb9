// execModuleRulesAdvisor: the code read from the list, parameters that look
// like placeholders, the worked examples, and the box itself: its buttons,
// what ends it, its title under a translation and the application's cursor.

#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "markingtranslator.h"
#include "ndxcomtest.h"
#include "rulestest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;
using namespace RulesTest;

class tst_QNodrixMessageBoxRulesBox : public QObject
{
    Q_OBJECT

private slots:
    void rule_data();
    void rule();
    void emptyList();
    void onlyButtonsEndTheBox_data();
    void onlyButtonsEndTheBox();
    void titleStaysUntranslated();
    void overrideCursorUntouched();
};

void tst_QNodrixMessageBoxRulesBox::rule_data()
{
    addColumns();

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

void tst_QNodrixMessageBoxRulesBox::rule()
{
    checkRule();
}

void tst_QNodrixMessageBoxRulesBox::emptyList()
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

void tst_QNodrixMessageBoxRulesBox::onlyButtonsEndTheBox_data()
{
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::newRow("Escape") << Action::escape();
    QTest::newRow("window closed") << Action::close();
}

void tst_QNodrixMessageBoxRulesBox::onlyButtonsEndTheBox()
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

void tst_QNodrixMessageBoxRulesBox::titleStaysUntranslated()
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

void tst_QNodrixMessageBoxRulesBox::overrideCursorUntouched()
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

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxRulesBox)
#include "tst_qnodrixmessagebox_rules_box.moc"
