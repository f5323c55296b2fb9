#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "markingtranslator.h"
#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;

using Role = QMessageBox::ButtonRole;
using Buttons = QList<QPair<QString, QMessageBox::ButtonRole>>;
Q_DECLARE_METATYPE(NdxComTest::Action)

namespace {

enum class Which {
    Question,
    Warning,
    YesNoIgnore,
    ResizeScs,
    WarningClose,
    CriticalClose,
    WarningOk,
    WarningCloseHelp,
    InformationClose,
    InformationYesNoHelp,
    YesNoNewName
};

// Runs one presentation; presentations without a result report NoButton.
QMessageBox::StandardButton present(QNodrixMessageBox &box, Which which)
{
    switch (which) {
    case Which::Question:
        return box.execQuestion();
    case Which::Warning:
        return box.execWarning();
    case Which::YesNoIgnore:
        return box.execYesNoIgnore();
    case Which::ResizeScs:
        return box.execResizeScs();
    case Which::WarningClose:
        box.execWarningClose();
        return QMessageBox::NoButton;
    case Which::CriticalClose:
        box.execCriticalClose();
        return QMessageBox::NoButton;
    case Which::WarningOk:
        box.execWarningOk();
        return QMessageBox::NoButton;
    case Which::WarningCloseHelp:
        return box.execWarningCloseHelp();
    case Which::InformationClose:
        box.execInformationClose();
        return QMessageBox::NoButton;
    case Which::InformationYesNoHelp:
        return box.execInformationYesNoHelp();
    case Which::YesNoNewName:
        return box.execYesNoNewName();
    }
    return QMessageBox::NoButton;
}

struct Layout
{
    QMessageBox::Icon icon;
    Buttons buttons; // in the order of adding
    QString defaultButton;
    int fixedWidth;
};

Layout layoutOf(Which which)
{
    const QString si = QStringLiteral("Si"), no = QStringLiteral("No");
    const QString chiudi = QStringLiteral("Chiudi"), dettagli = QStringLiteral("Dettagli");
    switch (which) {
    case Which::Question:
        return {QMessageBox::Question,
                {{si, QMessageBox::AcceptRole}, {no, QMessageBox::RejectRole}},
                no,
                0};
    case Which::Warning:
        return {QMessageBox::Warning,
                {{si, QMessageBox::AcceptRole}, {no, QMessageBox::RejectRole}},
                no,
                0};
    case Which::YesNoIgnore:
        return {QMessageBox::Warning,
                {{si, QMessageBox::AcceptRole},
                 {no, QMessageBox::RejectRole},
                 {QStringLiteral("Ignora"), QMessageBox::RejectRole}},
                QStringLiteral("Ignora"),
                0};
    case Which::ResizeScs:
        return {QMessageBox::Warning,
                {{QStringLiteral("ADATTA\nAcquisizione SCS"), QMessageBox::NoRole},
                 {QStringLiteral("ANNULLA\nModifica"), QMessageBox::NoRole}},
                QStringLiteral("ANNULLA\nModifica"),
                140};
    case Which::WarningClose:
        return {QMessageBox::Warning, {{chiudi, QMessageBox::AcceptRole}}, QString(), 0};
    case Which::CriticalClose:
        return {QMessageBox::Critical, {{chiudi, QMessageBox::AcceptRole}}, QString(), 0};
    case Which::WarningOk:
        return {
            QMessageBox::Warning, {{QStringLiteral("Ok"), QMessageBox::AcceptRole}}, QString(), 0};
    case Which::WarningCloseHelp:
        return {QMessageBox::Warning,
                {{dettagli, QMessageBox::NoRole}, {chiudi, QMessageBox::NoRole}},
                QString(),
                0};
    case Which::InformationClose:
        return {QMessageBox::Information, {{chiudi, QMessageBox::AcceptRole}}, QString(), 0};
    case Which::InformationYesNoHelp:
        return {
            QMessageBox::Information,
            {{dettagli, QMessageBox::NoRole}, {si, QMessageBox::NoRole}, {no, QMessageBox::NoRole}},
            si,
            0};
    case Which::YesNoNewName:
        return {QMessageBox::Warning,
                {{si, QMessageBox::AcceptRole},
                 {no, QMessageBox::RejectRole},
                 {QStringLiteral("Salva con nome"), QMessageBox::RejectRole}},
                QStringLiteral("Salva con nome"),
                0};
    }
    return {};
}

Buttons sortedByRole(Buttons b)
{
    std::stable_sort(b.begin(), b.end(),
                     [](const auto &x, const auto &y) { return x.second < y.second; });
    return b;
}

} // namespace

Q_DECLARE_METATYPE(Which)

class tst_QNodrixMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void presentation_data();
    void presentation();
    void presentationsSetNoCursor();
    void oneObjectSeveralBoxes();
    void titleStaysUntranslated();
    void reports_data();
    void reports();
    void applAdvisor_data();
    void applAdvisor();
};

void tst_QNodrixMessageBox::construction()
{
    QWidget parent;
    QNodrixMessageBox a(&parent);
    QCOMPARE(a.parentWidget(), &parent);
    QNodrixMessageBox b(QStringLiteral("testo"), nullptr);
    QCOMPARE(b.parentWidget(), nullptr);
    QCOMPARE(QLatin1String(QNodrixMessageBox::staticMetaObject.className()),
             QLatin1String("QNodrixMessageBox"));
    QVERIFY(a.inherits("QMessageBox"));
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QCOMPARE(QNodrixMessageBox::trUtf8("Chiudi"), QStringLiteral("Chiudi"));
#endif
    // An empty text shows an empty box with the presentation's buttons.
    const BoxRecord r
        = driveOne([&] { a.execWarningClose(); }, Action::click(QStringLiteral("Chiudi")));
    QCOMPARE(r.text, QString());
    QCOMPARE(r.buttonTexts(), QStringList {QStringLiteral("Chiudi")});
}

void tst_QNodrixMessageBox::presentation_data()
{
    QTest::addColumn<Which>("which");
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::addColumn<int>("outcome");

    const auto yes = int(QMessageBox::Yes), no = int(QMessageBox::No),
               ign = int(QMessageBox::Ignore);
    const auto none = int(QMessageBox::NoButton);
    auto click = [](const char *t) { return Action::click(QString::fromUtf8(t)); };

    QTest::newRow("Question: Si") << Which::Question << click("Si") << yes;
    QTest::newRow("Question: No") << Which::Question << click("No") << no;
    QTest::newRow("Question: Escape") << Which::Question << Action::escape() << no;
    QTest::newRow("Question: Enter (default No)") << Which::Question << Action::enter() << no;
    QTest::newRow("Question: close") << Which::Question << Action::close() << no;
    QTest::newRow("Question: no click") << Which::Question << Action::reject() << no;

    QTest::newRow("Warning: Si") << Which::Warning << click("Si") << yes;
    QTest::newRow("Warning: No") << Which::Warning << click("No") << no;
    QTest::newRow("Warning: Escape") << Which::Warning << Action::escape() << no;
    QTest::newRow("Warning: no click") << Which::Warning << Action::reject() << no;

    QTest::newRow("YesNoIgnore: Si") << Which::YesNoIgnore << click("Si") << yes;
    QTest::newRow("YesNoIgnore: No") << Which::YesNoIgnore << click("No") << no;
    QTest::newRow("YesNoIgnore: Ignora") << Which::YesNoIgnore << click("Ignora") << ign;
    QTest::newRow("YesNoIgnore: Enter") << Which::YesNoIgnore << Action::enter() << ign;
    QTest::newRow("YesNoIgnore: no click") << Which::YesNoIgnore << Action::reject() << ign;

    QTest::newRow("ResizeScs: ADATTA")
        << Which::ResizeScs << click("ADATTA\nAcquisizione SCS") << int(QMessageBox::Apply);
    QTest::newRow("ResizeScs: ANNULLA")
        << Which::ResizeScs << click("ANNULLA\nModifica") << int(QMessageBox::Abort);
    QTest::newRow("ResizeScs: Enter")
        << Which::ResizeScs << Action::enter() << int(QMessageBox::Abort);
    QTest::newRow("ResizeScs: no click")
        << Which::ResizeScs << Action::reject() << int(QMessageBox::Abort);

    QTest::newRow("WarningClose: Chiudi") << Which::WarningClose << click("Chiudi") << none;
    QTest::newRow("WarningClose: Escape") << Which::WarningClose << Action::escape() << none;
    QTest::newRow("CriticalClose: Chiudi") << Which::CriticalClose << click("Chiudi") << none;
    QTest::newRow("CriticalClose: close") << Which::CriticalClose << Action::close() << none;
    QTest::newRow("WarningOk: Ok") << Which::WarningOk << click("Ok") << none;
    QTest::newRow("WarningOk: no click") << Which::WarningOk << Action::reject() << none;

    QTest::newRow("WarningCloseHelp: Dettagli")
        << Which::WarningCloseHelp << click("Dettagli") << int(QMessageBox::Help);
    QTest::newRow("WarningCloseHelp: Chiudi")
        << Which::WarningCloseHelp << click("Chiudi") << int(QMessageBox::Ok);
    QTest::newRow("WarningCloseHelp: no click")
        << Which::WarningCloseHelp << Action::reject() << int(QMessageBox::Ok);

    QTest::newRow("InformationClose: Chiudi") << Which::InformationClose << click("Chiudi") << none;
    QTest::newRow("InformationClose: Escape")
        << Which::InformationClose << Action::escape() << none;

    QTest::newRow("InformationYesNoHelp: Dettagli")
        << Which::InformationYesNoHelp << click("Dettagli") << int(QMessageBox::Help);
    QTest::newRow("InformationYesNoHelp: Si") << Which::InformationYesNoHelp << click("Si") << yes;
    QTest::newRow("InformationYesNoHelp: No") << Which::InformationYesNoHelp << click("No") << no;
    QTest::newRow("InformationYesNoHelp: Enter (default Si)")
        << Which::InformationYesNoHelp << Action::enter() << yes;
    QTest::newRow("InformationYesNoHelp: no click")
        << Which::InformationYesNoHelp << Action::reject() << no;

    QTest::newRow("YesNoNewName: Si") << Which::YesNoNewName << click("Si") << yes;
    QTest::newRow("YesNoNewName: No") << Which::YesNoNewName << click("No") << no;
    QTest::newRow("YesNoNewName: Salva con nome")
        << Which::YesNoNewName << click("Salva con nome") << ign;
    QTest::newRow("YesNoNewName: no click") << Which::YesNoNewName << Action::reject() << ign;
}

void tst_QNodrixMessageBox::presentation()
{
    QFETCH(Which, which);
    QFETCH(NdxComTest::Action, action);
    QFETCH(int, outcome);

    QNodrixMessageBox box(QStringLiteral("Testo è\ndi prova"), nullptr);
    QMessageBox::StandardButton result = QMessageBox::NoButton;
    int seen = 0;
    const BoxRecord r = driveOne([&] { result = present(box, which); }, action, &seen);

    QCOMPARE(seen, 1);
    QVERIFY(!r.actionFailed);
    QCOMPARE(int(result), outcome);

    const Layout expected = layoutOf(which);
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.text, QStringLiteral("Testo \u00e8\ndi prova"));
    QCOMPARE(r.icon, expected.icon);
    QCOMPARE(r.buttonsByRole(), sortedByRole(expected.buttons));
    QCOMPARE(r.defaultButton, expected.defaultButton);
    QVERIFY(!r.hasParent);
    QVERIFY(r.flags & Qt::Dialog);
    QVERIFY(r.flags & Qt::MSWindowsFixedSizeDialogHint);
    for (const ButtonRecord &b : r.buttons) {
        if (expected.fixedWidth) {
            QCOMPARE(b.width, expected.fixedWidth);
            QCOMPARE(b.minimumWidth, expected.fixedWidth);
            QCOMPARE(b.maximumWidth, expected.fixedWidth);
        } else {
            QVERIFY(b.maximumWidth > b.minimumWidth);
        }
    }
    // No presentation touches the cursor.
    QVERIFY(!r.hasOverrideCursor);
}

void tst_QNodrixMessageBox::presentationsSetNoCursor()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QNodrixMessageBox box(QStringLiteral("x"));
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run([&] { box.execQuestion(); }, {Action::reject()});
    QCOMPARE(records.size(), 1);
    QVERIFY(records.first().hasOverrideCursor);
    QCOMPARE(records.first().overrideCursor, Qt::WaitCursor);
    QVERIFY(driver.cursorRestored());
    QApplication::restoreOverrideCursor();
}

void tst_QNodrixMessageBox::oneObjectSeveralBoxes()
{
    QNodrixMessageBox box(QStringLiteral("primo"));
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run(
        [&] {
            QCOMPARE(box.execQuestion(), QMessageBox::Yes);
            box.setMsg(QStringLiteral("secondo"));
            QCOMPARE(box.execWarningCloseHelp(), QMessageBox::Help);
            box.execWarningOk();
        },
        {Action::click(QStringLiteral("Si")), Action::click(QStringLiteral("Dettagli")),
         Action::click(QStringLiteral("Ok"))});
    QCOMPARE(records.size(), 3);
    QCOMPARE(records.at(0).text, QStringLiteral("primo"));
    QCOMPARE(records.at(1).text, QStringLiteral("secondo"));
    QCOMPARE(records.at(2).text, QStringLiteral("secondo"));
    QCOMPARE(driver.unexpected(), 0);
}

void tst_QNodrixMessageBox::titleStaysUntranslated()
{
    // A catalogue that would translate everything, "Nodrix" included.
    NdxComTest::MarkingTranslator translator("QNodrixMessageBox");
    QCoreApplication::installTranslator(&translator);
    QNodrixMessageBox box(QStringLiteral("x"));
    const BoxRecord r
        = driveOne([&] { box.execQuestion(); }, Action::click(QStringLiteral("[Si]")));
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.buttonsByRole(),
             (Buttons {{QStringLiteral("[Si]"), QMessageBox::AcceptRole},
                       {QStringLiteral("[No]"), QMessageBox::RejectRole}}));
    QVERIFY(!r.actionFailed);
}

enum class Report { Error5, Error3, Warning, Info };
Q_DECLARE_METATYPE(Report)

void tst_QNodrixMessageBox::reports_data()
{
    QTest::addColumn<Report>("report");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("text");

    QTest::newRow("ShowErrorMessage with versions")
        << Report::Error5 << QStringLiteral("Errore") << int(QMessageBox::Critical)
        << QStringLiteral("Classe:\tQDoc\nVersione:\t3\nVersione caricata:\t-1\nFunzione:\tload\n\n"
                          "Messaggio:\tfile corrotto\n");
    QTest::newRow("ShowErrorMessage")
        << Report::Error3 << QStringLiteral("Errore") << int(QMessageBox::Critical)
        << QStringLiteral("Classe:\tQDoc\nFunzione:\tload\n\nMessaggio:\tfile corrotto\n");
    QTest::newRow("ShowWarningMessage")
        << Report::Warning << QStringLiteral("Attenzione") << int(QMessageBox::Warning)
        << QStringLiteral("Classe:\tQDoc\nFunzione:\tload\n\nMessaggio:\tfile corrotto\n");
    QTest::newRow("ShowInfoMessage")
        << Report::Info << QStringLiteral("Informazione") << int(QMessageBox::Information)
        << QStringLiteral("file corrotto\n");
}

void tst_QNodrixMessageBox::reports()
{
    QFETCH(Report, report);
    QFETCH(QString, title);
    QFETCH(int, icon);
    QFETCH(QString, text);

    const QString cls = QStringLiteral("QDoc"), fn = QStringLiteral("load");
    const QString msg = QStringLiteral("file corrotto");
    QNodrixMessageBox box;
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run(
        [&] {
            switch (report) {
            case Report::Error5:
                box.ShowErrorMessage(cls, 3, -1, fn, msg);
                break;
            case Report::Error3:
                box.ShowErrorMessage(cls, fn, msg);
                break;
            case Report::Warning:
                box.ShowWarningMessage(cls, fn, msg);
                break;
            case Report::Info:
                box.ShowInfoMessage(msg);
                break;
            }
        },
        {Action::click(QStringLiteral("OK"))});
    QCOMPARE(records.size(), 1);
    const BoxRecord &r = records.first();
    QVERIFY(!r.actionFailed);
    QCOMPARE(r.title, title);
    QCOMPARE(int(r.icon), icon);
    QCOMPARE(r.text, text);
    QCOMPARE(r.buttons.size(), 1);
    QCOMPARE(r.buttons.first().role, QMessageBox::AcceptRole);
    QVERIFY(r.hasOverrideCursor);
    QCOMPARE(r.overrideCursor, Qt::ArrowCursor);
    QVERIFY(driver.cursorRestored());
    QVERIFY(!QApplication::overrideCursor());
}

void tst_QNodrixMessageBox::applAdvisor_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("shown");
    QTest::newRow("0") << 0 << true;
    QTest::newRow("1") << 1 << false;
    QTest::newRow("-1") << -1 << false;
    QTest::newRow("INT_MAX") << INT_MAX << false;
}

void tst_QNodrixMessageBox::applAdvisor()
{
    QFETCH(int, value);
    QFETCH(bool, shown);
    int seen = 0;
    const BoxRecord r = driveOne(
        [&] {
            QNodrixMessageBox::execApplAdvisor(QNodrixMessageBox::enApplAdvisor(value),
                                               QStringLiteral("2.1.0"), 77u);
        },
        Action::click(QStringLiteral("Chiudi")), &seen);
    QCOMPARE(seen, shown ? 1 : 0);
    if (!shown)
        return;
    QCOMPARE(r.text,
             QStringLiteral("Attenzione:\nquesto software macchina richiede sia installata \n"
                            "la Piattaforma Nodrix versione 2.1.0 o superiore \n"
                            "Non \u00e8 possibile continuare senza aggiornare la Piattaforma !"));
    QCOMPARE(r.icon, QMessageBox::Warning);
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.buttonTexts(), QStringList {QStringLiteral("Chiudi")});
    QVERIFY(!r.hasOverrideCursor);
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBox)
#include "tst_qnodrixmessagebox.moc"
