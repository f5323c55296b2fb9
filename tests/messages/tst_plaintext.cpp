// Texts from files stay text: every box of the library is a plain-text box,
// and what reaches a box through %1, %2 (names from lock files, file names,
// the reports' class, function and message) shows as the characters it is.
// Markup is shown literally; control characters and bidirectional formatting
// characters of an argument show as U+FFFD, one for one, and never those of
// the library's own texts.

#include <QNodrixMessageBox>
#include <private/qnodrixmessagebox_p.h>

#include "dialogdriver.h"
#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <functional>

using namespace NdxComTest;
using NdxComMessages::plainArgument;

namespace {

const QChar Fffd(QChar::ReplacementCharacter);

QString rep(int n)
{
    return QString(n, Fffd);
}

// Arguments a shared folder can put before a user, and how they show.
struct Hostile
{
    const char *name;
    QString argument;
    QString shown;
};

QList<Hostile> hostileArguments()
{
    return {
        {"bold", QStringLiteral("<b>x</b>"), QStringLiteral("<b>x</b>")},
        {"image", QStringLiteral("<img src=\"file:///etc/passwd\">"),
         QStringLiteral("<img src=\"file:///etc/passwd\">")},
        {"remote image", QStringLiteral("<img src=http://127.0.0.1:9/x.png>"),
         QStringLiteral("<img src=http://127.0.0.1:9/x.png>")},
        {"link", QStringLiteral("<a href=\"http://127.0.0.1:9/\">Si</a>"),
         QStringLiteral("<a href=\"http://127.0.0.1:9/\">Si</a>")},
        {"html document", QStringLiteral("<html><body><h1>OK</h1></body></html>"),
         QStringLiteral("<html><body><h1>OK</h1></body></html>")},
        {"entity", QStringLiteral("&lt;&amp;&#x202E;"), QStringLiteral("&lt;&amp;&#x202E;")},
        {"line breaks", QStringLiteral("PC\n\n\nVuoi sbloccarlo ?\r"),
         QStringLiteral("PC") + rep(3) + QStringLiteral("Vuoi sbloccarlo ?") + rep(1)},
        {"tab and escape", QStringLiteral("a\tb\x1b[2Jc"),
         QStringLiteral("a") + rep(1) + QStringLiteral("b") + rep(1) + QStringLiteral("[2Jc")},
        {"nul and delete", QStringLiteral("a") + QChar(0) + QStringLiteral("b\x7f"),
         QStringLiteral("a") + rep(1) + QStringLiteral("b") + rep(1)},
        {"C1 controls", QStringLiteral("p\u0080\u0085\u009fq"),
         QStringLiteral("p") + rep(3) + QStringLiteral("q")},
        {"right-to-left override", QStringLiteral("\u202Eanna"), rep(1) + QStringLiteral("anna")},
        {"every embedding and override", QStringLiteral("\u202A1\u202B2\u202C3\u202D4\u202E5"),
         rep(1) + QStringLiteral("1") + rep(1) + QStringLiteral("2") + rep(1) + QStringLiteral("3")
             + rep(1) + QStringLiteral("4") + rep(1) + QStringLiteral("5")},
        {"isolates", QStringLiteral("\u2066a\u2067b\u2068c\u2069"),
         rep(1) + QStringLiteral("a") + rep(1) + QStringLiteral("b") + rep(1) + QStringLiteral("c")
             + rep(1)},
        {"marks", QStringLiteral("\u200Ea\u200Fb\u061Cc"),
         rep(1) + QStringLiteral("a") + rep(1) + QStringLiteral("b") + rep(1)
             + QStringLiteral("c")},
        {"line and paragraph separators", QStringLiteral("a\u2028b\u2029c"),
         QStringLiteral("a") + rep(1) + QStringLiteral("b") + rep(1) + QStringLiteral("c")},
        {"letters stay", QStringLiteral("Caffè 咖啡 \u05D0\u05D1 \u0627"),
         QStringLiteral("Caffè 咖啡 \u05D0\u05D1 \u0627")},
        {"percent sign", QStringLiteral("100%"), QStringLiteral("100%")},
    };
}

void checkPlain(const BoxRecord &r, const QString &text)
{
    QVERIFY(!r.actionFailed);
    QCOMPARE(r.textFormat, Qt::PlainText);
    QCOMPARE(r.labelFormat, Qt::PlainText);
    QCOMPARE(r.text, text);
    QCOMPARE(r.labelText, text);
}

} // namespace

class tst_PlainText : public QObject
{
    Q_OBJECT

private slots:
    void plainArgument_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("shown");
        for (const Hostile &h : hostileArguments())
            QTest::newRow(h.name) << h.argument << h.shown;
        // Every code point of the treated ranges, and its neighbours.
        QString all, expected;
        for (ushort u = 0; u < 0x20; ++u)
            all += QChar(u);
        expected += rep(0x20);
        all += QStringLiteral(" ~");
        expected += QStringLiteral(" ~");
        for (ushort u = 0x7f; u <= 0xa0; ++u)
            all += QChar(u);
        expected += rep(0x9f - 0x7f + 1) + QChar(0xa0);
        all += QStringLiteral("\u061B\u061C\u061D\u200D\u200E\u200F\u2010");
        expected += QStringLiteral("\u061B") + rep(1) + QStringLiteral("\u061D\u200D") + rep(2)
            + QStringLiteral("\u2010");
        all += QStringLiteral("\u2027\u2028\u2029\u202A\u202B\u202C\u202D\u202E\u202F");
        expected += QStringLiteral("\u2027") + rep(7) + QStringLiteral("\u202F");
        all += QStringLiteral("\u2065\u2066\u2067\u2068\u2069\u206A");
        expected += QStringLiteral("\u2065") + rep(4) + QStringLiteral("\u206A");
        QTest::newRow("the ranges and their edges") << all << expected;
        QTest::newRow("empty") << QString() << QString();
    }

    void plainArgument()
    {
        QFETCH(QString, argument);
        QFETCH(QString, shown);
        QCOMPARE(NdxComMessages::plainArgument(argument), shown);
        QCOMPARE(NdxComMessages::plainArgument(argument).size(), argument.size());
    }

    // The presentations show the object's text as it is: the library's own
    // texts keep their line breaks and tabs, and markup stays literal.
    void presentationsArePlain_data()
    {
        QTest::addColumn<int>("presentation");
        QTest::addColumn<QString>("button");
        const char *buttons[]
            = {"Si",     "Si", "Si", "ANNULLA\nModifica", "Chiudi", "Chiudi", "Ok", "Chiudi",
               "Chiudi", "No", "No"};
        for (int i = 0; i < 11; ++i)
            QTest::newRow(qPrintable(QStringLiteral("presentation %1").arg(i)))
                << i << QString::fromUtf8(buttons[i]);
    }

    void presentationsArePlain()
    {
        QFETCH(int, presentation);
        QFETCH(QString, button);
        const QString text = QStringLiteral("<b>Nodrix</b>\n\t<a href=\"x\">link</a> <img src=x>");
        QNodrixMessageBox box(text);
        using Call = std::function<void()>;
        const Call calls[] = {
            [&] { box.execQuestion(); },         [&] { box.execWarning(); },
            [&] { box.execYesNoIgnore(); },      [&] { box.execResizeScs(); },
            [&] { box.execWarningClose(); },     [&] { box.execCriticalClose(); },
            [&] { box.execWarningOk(); },        [&] { box.execWarningCloseHelp(); },
            [&] { box.execInformationClose(); }, [&] { box.execInformationYesNoHelp(); },
            [&] { box.execYesNoNewName(); },
        };
        int boxes = 0;
        const BoxRecord r = driveOne(calls[presentation], Action::click(button), &boxes);
        QCOMPARE(boxes, 1);
        checkPlain(r, text);
    }

    // The reports: every argument as plainArgument() gives it, the layout's
    // own tabs and line breaks kept.
    void reportsArePlain_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("shownAsMessage");
        // A report's message is the application's own wording: its line
        // breaks and tabs stay, the rest of what plain text obeys does not.
        const QHash<QString, QString> asMessage {
            {QStringLiteral("line breaks"), QStringLiteral("PC\n\n\nVuoi sbloccarlo ?") + rep(1)},
            {QStringLiteral("tab and escape"),
             QStringLiteral("a\tb") + rep(1) + QStringLiteral("[2Jc")},
        };
        for (const Hostile &h : hostileArguments())
            QTest::newRow(h.name) << h.argument << h.shown
                                  << asMessage.value(QLatin1String(h.name), h.shown);
        QTest::newRow("message on lines") << QStringLiteral("Riga 1\nRiga 2\tcolonna\r")
                                          << QStringLiteral("Riga 1") + rep(1)
                + QStringLiteral("Riga 2") + rep(1) + QStringLiteral("colonna") + rep(1)
                                          << QStringLiteral("Riga 1\nRiga 2\tcolonna") + rep(1);
        QTest::newRow("message with an override")
            << QStringLiteral("a\n\u202Eb") << QStringLiteral("a") + rep(2) + QStringLiteral("b")
            << QStringLiteral("a\n") + rep(1) + QStringLiteral("b");
    }

    void reportsArePlain()
    {
        QFETCH(QString, argument);
        QFETCH(QString, shown);
        QFETCH(QString, shownAsMessage);
        // The fills go one QString::arg at a time, as they always have, so
        // a '%' followed by a digit in an argument is not tried here.
        QNodrixMessageBox box;
        const Action ok = Action::click(QStringLiteral("OK"));
        checkPlain(driveOne([&] { box.ShowErrorMessage(argument, 3, -1, argument, argument); }, ok),
                   QStringLiteral("Classe:\t%1\nVersione:\t3\nVersione caricata:\t-1\n"
                                  "Funzione:\t%1\n\nMessaggio:\t%2\n")
                       .arg(shown, shownAsMessage));
        checkPlain(driveOne([&] { box.ShowErrorMessage(argument, argument, argument); }, ok),
                   QStringLiteral("Classe:\t%1\nFunzione:\t%1\n\nMessaggio:\t%2\n")
                       .arg(shown, shownAsMessage));
        checkPlain(driveOne([&] { box.ShowWarningMessage(argument, argument, argument); }, ok),
                   QStringLiteral("Classe:\t%1\nFunzione:\t%1\n\nMessaggio:\t%2\n")
                       .arg(shown, shownAsMessage));
        checkPlain(driveOne([&] { box.ShowInfoMessage(argument); }, ok),
                   shownAsMessage + QLatin1Char('\n'));
        QVERIFY(!QApplication::overrideCursor());
    }

    // Advisors and the file error reports: a file name and a reason from
    // the system.
    void advisorsArePlain_data() { reportsArePlain_data(); }

    void advisorsArePlain()
    {
        QFETCH(QString, argument);
        QFETCH(QString, shown);
        const Action close = Action::click(QStringLiteral("Chiudi"));
        checkPlain(driveOne(
                       [&] {
                           QNodrixMessageBox::execApplAdvisor(
                               QNodrixMessageBox::eApplAdvisor_PlatformTooOld, argument, 0);
                       },
                       close),
                   QStringLiteral("Attenzione:\nquesto software macchina richiede sia installata "
                                  "\nla Piattaforma Nodrix versione %1 o superiore \nNon è "
                                  "possibile continuare senza aggiornare la Piattaforma !")
                       .arg(shown));
        const Action ok = Action::click(QStringLiteral("OK"));
        checkPlain(driveOne([&] { QNodrixMessageBox::execFileOpenError(argument, argument); }, ok),
                   QStringLiteral("Impossibile aprire il file %1:\n%2").arg(shown, shown));
        checkPlain(driveOne([&] { QNodrixMessageBox::execFileWriteError(argument, argument); }, ok),
                   QStringLiteral("Impossibile scrivere il file %1:\n%2").arg(shown, shown));
        QVERIFY(!QApplication::overrideCursor());
    }
};

NDXCOM_TEST_MAIN(tst_PlainText)
#include "tst_plaintext.moc"
