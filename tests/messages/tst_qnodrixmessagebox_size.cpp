// The size-control, new-size, project-modification and protected-mode
// advisors, driven through their real modal boxes.

#include <QNodrixMessageBox>

#include "advisorlooks.h"
#include "dialogdriver.h"
#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <climits>

using namespace NdxComTest;
using namespace AdvisorLooks;

namespace {

enum class Family { Scs, CreateSize, ModifyProj, ProtectedMode };

// Calls the family with sArg and the unsigned argument (flags); returns its
// result as an int (0 for execCreateSizeAdvisor, which has none).
int call(Family family, int value, const QString &sArg, uint flags)
{
    using M = QNodrixMessageBox;
    switch (family) {
    case Family::Scs:
        return M::execScsAdvisor(M::enScsAdvisor(value), sArg);
    case Family::CreateSize:
        M::execCreateSizeAdvisor(M::enCreateSizeAdvisor(value), sArg, flags);
        return 0;
    case Family::ModifyProj:
        return M::execModifyProjAdvisor(M::enModifyProjAdvisor(value), sArg, flags);
    case Family::ProtectedMode:
        return M::execProtectedModeAdvisor(M::enProtectedModeAdvisor(value), sArg, flags);
    }
    return 0;
}

const int Yes = QMessageBox::Yes;
const int No = QMessageBox::No;
const int Ok = QMessageBox::Ok;
const int Help = QMessageBox::Help;
const int Apply = QMessageBox::Apply;
const int Abort = QMessageBox::Abort;

Action click(const QString &text)
{
    return Action::click(text);
}

// The texts, written out as the users read them.
const QString scs1 = QStringLiteral(
    "Attenzione:\nNessuna zona SCS presente !\nPer continuare è necessario inserire almeno una "
    "zona o disabilitare l'SCS.\nVuoi inserire una zona iniziale ?");
const QString scs2 = QStringLiteral(
    "Attenzione:\nSono presenti Zone SCS !\nDisabilitando l'SCS vuoi eliminare anche le zone ?");
const QString scs3 = QStringLiteral(
    "Attenzione:\nSCS è in Controllo Taglia !!!\nInserire/Eliminare Zone SCS:\npuò comportare "
    "l'eliminazione\ndell'Acquisizione SCS !!");
const QString scs4 = QStringLiteral(
    "Attenzione :\nSCS è in Controllo Taglia !!!\n Alcune modifiche al progetto non sono "
    "possibili !\nPer sbloccarle è necessario selezionare:\n\"Abilita Acquisizione\"\ned "
    "eliminare l'Acquisizione SCS\nIl Controllo Taglia verrà perso !");
const QString scs5 = QStringLiteral(
    "Attenzione:\nSCS è in Controllo Taglia !!!\nApportando modifiche potrebbe essere richiesta "
    "l'eliminazione dell'Acquisizione SCS.");
const QString scs6 = QStringLiteral(
    "Attenzione:\nSCS è in Controllo Taglia !!!\nAcquisizione SCS verrà eliminata !\nVuoi "
    "continuare ?");
const QString scs7
    = QStringLiteral("Attenzione:\nVuoi salvare anche l'acquisizione SCS presente nel progetto ?");
const QString scs8 = QStringLiteral("Attenzione:\nVuoi Salvare le Modifiche Fatte ?");
const QString scs9 = QStringLiteral(
    "Attenzione:\nSCS è in Controllo Taglia !!!\nPer continuare è necessario associare tutti i "
    "Vector Active\ndi default ad un guidafilo o eliminare l'acquisizione SCS\nVuoi eliminare "
    "Acquisizione SCS ?");
const QString scs10 = QStringLiteral(
    "Attenzione:\nSCS è in Controllo Taglia !!!\nEsegui solo le piccole modifiche al "
    "disegno\nnecessarie dopo un \"Crea Taglia\" altrimenti\n\"Acquisizione SCS\" non sarà più "
    "idonea\nVuoi Continuare ?");
const QString scs11 = QStringLiteral(
    "Attenzione:\nSCS è in Controllo Taglia !!!\nOperazioni possibili:\n- Adattare i dati Acq. "
    "SCS al ridimensionamento\n- Annullare la modifica del ridimensionamento");
QString scs12(const QString &zones)
{
    return QStringLiteral("Attenzione:\nSCS abilitato !\nNon tutte le cadute abilitate al "
                          "controllo nelle zone ")
        + zones
        + QStringLiteral("\nhanno un alimentatore BodyScs in lavoro\nQueste cadute verranno "
                         "automaticamente disabilitate al controllo");
}

QString resizeZones(const QString &zone)
{
    return QStringLiteral("Attenzione :\nPiano Comandi: il ridimensionamento "
                          "richiede\nl'eliminazione di una o più Zone ")
        + zone
        + QStringLiteral(" !!\nOperazione non possibile !\nInserire un diverso N. di ranghi\no "
                         "modificare queste Zone.");
}
const QString resizeFailed = QStringLiteral(
    "Ridimensionamento fallito !!\nRipetere l'operazione o\ninserire un diverso N. ranghi.");

const QString modifyProj1Head = QStringLiteral("Attenzione :\nle modifiche fatte comportano :\n");
const QString removal = QStringLiteral("- rimozione zone comandi utente");
const QString insertion = QStringLiteral("- inserimento valori default zone comandi");

const QString protectedMode = QStringLiteral(
    "VUOI PASSARE IL PROGETTO IN MODALITA' PROTETTA ?\n\nScegliendo Si: \n- il progetto verrà "
    "automaticamente salvato\n- gli strumenti grafici opereranno in modalità speciale\n- sarà "
    "possibile uscire da questa modalità in qualsiasi momento\n\nScegliendo No: \n- sul progetto "
    "si potrà operare normalmente");

} // namespace

Q_DECLARE_METATYPE(Family)

class tst_QNodrixMessageBoxSize : public QObject
{
    Q_OBJECT

private slots:
    void advisor_data();
    void advisor();
    void resizeButtonsFixedWidth();
    void createSizeEightAndNineAlike();
    void callerCursorUntouched();

private:
    void addRow(const QByteArray &tag, Family family, int value, const QString &sArg, uint flags,
                const Action &action, const Look &look, const QString &text, int result);
};

void tst_QNodrixMessageBoxSize::addRow(const QByteArray &tag, Family family, int value,
                                       const QString &sArg, uint flags, const Action &action,
                                       const Look &look, const QString &text, int result)
{
    QTest::newRow(tag.constData())
        << family << value << sArg << flags << action << look << text << result;
}

void tst_QNodrixMessageBoxSize::advisor_data()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("sArg");
    QTest::addColumn<uint>("flags");
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::addColumn<AdvisorLooks::Look>("look");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");

    // execScsAdvisor: sArg only reaches value 12.
    const Family scs = Family::Scs;
    const QString z = QStringLiteral("%1 Z1,Z2");
    struct YesNo
    {
        int value;
        QString text;
        Look look;
    };
    const YesNo yesNo[] = {
        {1, scs1, question()}, {2, scs2, question()}, {6, scs6, warning()},    {7, scs7, warning()},
        {8, scs8, question()}, {9, scs9, question()}, {10, scs10, question()},
    };
    for (const YesNo &row : yesNo) {
        const QByteArray tag = "scs " + QByteArray::number(row.value);
        addRow(tag + ": Si", scs, row.value, z, 0, click(si()), row.look, row.text, Yes);
        addRow(tag + ": No", scs, row.value, z, 0, click(no()), row.look, row.text, No);
        addRow(tag + ": Escape", scs, row.value, z, 0, Action::escape(), row.look, row.text, No);
        addRow(tag + ": closed", scs, row.value, z, 0, Action::close(), row.look, row.text, No);
    }
    addRow("scs 3: own value", scs, 3, z, 0, click(chiudi()), warningClose(), scs3, 3);
    addRow("scs 4: own value", scs, 4, z, 0, click(chiudi()), warningClose(), scs4, 4);
    addRow("scs 4, escape: own value", scs, 4, z, 0, Action::escape(), warningClose(), scs4, 4);
    addRow("scs 5: own value", scs, 5, z, 0, click(chiudi()), warningClose(), scs5, 5);
    addRow("scs 11: ADATTA", scs, 11, z, 0, click(adatta()), resizeScs(), scs11, Apply);
    addRow("scs 11: ANNULLA", scs, 11, z, 0, click(annulla()), resizeScs(), scs11, Abort);
    addRow("scs 11: Enter (default ANNULLA)", scs, 11, z, 0, Action::enter(), resizeScs(), scs11,
           Abort);
    addRow("scs 11: no click", scs, 11, z, 0, Action::reject(), resizeScs(), scs11, Abort);
    addRow("scs 12: zones", scs, 12, QStringLiteral("Z1, Z3"), 0, click(chiudi()), warningClose(),
           scs12(QStringLiteral("Z1, Z3")), 12);
    addRow("scs 12: empty zones", scs, 12, QString(), 0, click(chiudi()), warningClose(),
           scs12(QString()), 12);
    addRow("scs 12: placeholder-like zones", scs, 12, z, 0, click(chiudi()), warningClose(),
           scs12(z), 12);
    addRow("scs 0: nothing", scs, 0, z, 0, click(chiudi()), nothing(), QString(), -1);
    addRow("scs 13: nothing", scs, 13, z, 0, click(chiudi()), nothing(), QString(), -1);
    addRow("scs -1: nothing", scs, -1, z, 0, click(chiudi()), nothing(), QString(), -1);
    addRow("scs INT_MIN: nothing", scs, INT_MIN, z, 0, click(chiudi()), nothing(), QString(), -1);

    // execCreateSizeAdvisor: no result; the unsigned argument is not used.
    const Family size = Family::CreateSize;
    const QString k = QStringLiteral("Vanisè");
    struct Notice
    {
        int value;
        QString text;
        Look look;
    };
    const Notice notices[] = {
        {0, QStringLiteral("Nuova Taglia Creata con Successo !"), informationClose()},
        {1, QStringLiteral("Progetto ridimensionato con successo !"), informationClose()},
        {2, QStringLiteral("Ridimensionamento matrice pixel fallito !"), warningClose()},
        {3, QStringLiteral("Ridimensionamento piani disegno fallito !"), warningClose()},
        {4, QStringLiteral("Ridimensionamento struttura progetto fallita !"), warningClose()},
        {5, QStringLiteral("Adattamento piani disegno fallito !"), warningClose()},
        {6,
         QStringLiteral("IL PROGETTO SORGENTE E' IN CONTROLLO TAGLIA,\nI DATI DELL'ACQUISIZIONE "
                        "SCS SARANNO ADATTATI\nAUTOMATICAMENTE AL PROGETTO DESTINAZIONE"),
         informationClose()},
        {7,
         QStringLiteral("Attenzione :\nCreazione Nuova Taglia fallita !!\nRipetere l'operazione ed "
                        "eventualmente\ndeselezionare l'opzione \"Adatta i Ranghi\""),
         warningClose()},
        {8, resizeFailed, warningClose()},
        {9, resizeFailed, warningClose()},
        {10,
         QStringLiteral("Attenzione :\nPiano SCS: il ridimensionamento richiede\nl'eliminazione "
                        "di una o più Zone SCS !!\nOperazione non possibile !\nInserire un diverso "
                        "N. di ranghi\no modificare queste Zone."),
         warningClose()},
        {11, resizeZones(QStringLiteral("Maglia")), warningClose()},
        {12, resizeZones(k), warningClose()},
        {13, resizeZones(QStringLiteral("Velocità")), warningClose()},
    };
    for (const Notice &row : notices) {
        const QByteArray tag = "createsize " + QByteArray::number(row.value);
        addRow(tag, size, row.value, k, 0xffffffffu, click(chiudi()), row.look, row.text, 0);
    }
    addRow("createsize 12: empty kind", size, 12, QString(), 0, Action::escape(), warningClose(),
           resizeZones(QString()), 0);
    addRow("createsize 14: nothing", size, 14, k, 0, click(chiudi()), nothing(), QString(), 0);
    addRow("createsize -1: nothing", size, -1, k, 0, click(chiudi()), nothing(), QString(), 0);

    // execModifyProjAdvisor: Help for "Dettagli", otherwise Ok.
    const Family proj = Family::ModifyProj;
    const QString removed = QStringLiteral("Alza platina, Velocità 3");
    const QString proj0
        = QStringLiteral("Attenzione :\ndal progetto sono stati rimossi comandi\ninsriti "
                         "manualmente dall'utente.\nE' necessario inserirli di nuovo "
                         "manualmente :\n")
        + removed;
    addRow("modifyproj 0: Dettagli", proj, 0, removed, 3, click(dettagli()), warningCloseHelp(),
           proj0, Help);
    addRow("modifyproj 0: Chiudi", proj, 0, removed, 3, click(chiudi()), warningCloseHelp(), proj0,
           Ok);
    addRow("modifyproj 0: no click", proj, 0, removed, 3, Action::reject(), warningCloseHelp(),
           proj0, Ok);
    const QString sep = QStringLiteral("\n");
    const QString flags3 = modifyProj1Head + removal + sep + insertion + sep;
    addRow("modifyproj 1, flags 3: removal first", proj, 1, removed, 3, click(chiudi()),
           warningCloseHelp(), flags3, Ok);
    addRow("modifyproj 1, flags 3: Dettagli", proj, 1, removed, 3, click(dettagli()),
           warningCloseHelp(), flags3, Help);
    addRow("modifyproj 1, flags 1", proj, 1, QString(), 1, click(chiudi()), warningCloseHelp(),
           modifyProj1Head + removal + sep + sep, Ok);
    addRow("modifyproj 1, flags 2: first line empty", proj, 1, QString(), 2, click(chiudi()),
           warningCloseHelp(), modifyProj1Head + sep + insertion + sep, Ok);
    addRow("modifyproj 1, flags 0: two empty lines", proj, 1, QString(), 0, Action::reject(),
           warningCloseHelp(), modifyProj1Head + sep + sep, Ok);
    addRow("modifyproj 1, other bits ignored", proj, 1, QString(), 0xfffffffcu, click(chiudi()),
           warningCloseHelp(), modifyProj1Head + sep + sep, Ok);
    addRow("modifyproj 2: nothing", proj, 2, removed, 3, click(chiudi()), nothing(), QString(), 0);
    addRow("modifyproj -1: nothing", proj, -1, removed, 3, click(chiudi()), nothing(), QString(),
           0);

    // execProtectedModeAdvisor.
    const Family prot = Family::ProtectedMode;
    addRow("protectedmode 0: Dettagli", prot, 0, z, 7, click(dettagli()), informationYesNoHelp(),
           protectedMode, Help);
    addRow("protectedmode 0: Si", prot, 0, z, 7, click(si()), informationYesNoHelp(), protectedMode,
           Yes);
    addRow("protectedmode 0: No", prot, 0, z, 7, click(no()), informationYesNoHelp(), protectedMode,
           No);
    addRow("protectedmode 0: Enter (default Si)", prot, 0, z, 7, Action::enter(),
           informationYesNoHelp(), protectedMode, Yes);
    addRow("protectedmode 0: no click", prot, 0, z, 7, Action::reject(), informationYesNoHelp(),
           protectedMode, No);
    addRow("protectedmode 1: empty warning", prot, 1, z, 7, click(chiudi()), warningClose(),
           QString(), 0);
    addRow("protectedmode 2: nothing", prot, 2, z, 7, click(chiudi()), nothing(), QString(), 0);
    addRow("protectedmode -1: nothing", prot, -1, z, 7, click(chiudi()), nothing(), QString(), 0);
}

void tst_QNodrixMessageBoxSize::advisor()
{
    QFETCH(Family, family);
    QFETCH(int, value);
    QFETCH(QString, sArg);
    QFETCH(uint, flags);
    QFETCH(NdxComTest::Action, action);
    QFETCH(AdvisorLooks::Look, look);
    QFETCH(QString, text);
    QFETCH(int, result);

    int got = -12345;
    DialogDriver driver;
    const QList<BoxRecord> records
        = driver.run([&] { got = call(family, value, sArg, flags); }, {action});

    QCOMPARE(got, result);
    QVERIFY(driver.cursorRestored());
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(driver.unexpected(), 0);
    if (!look.shown) {
        QCOMPARE(records.size(), 0);
        return;
    }
    QCOMPARE(records.size(), 1);
    const BoxRecord &r = records.first();
    compareBox(r, look, text);
    if (QTest::currentTestFailed())
        return;
    // None of these advisors sets a cursor.
    QVERIFY(!r.hasOverrideCursor);
}

void tst_QNodrixMessageBoxSize::resizeButtonsFixedWidth()
{
    const BoxRecord r = driveOne(
        [] { QNodrixMessageBox::execScsAdvisor(QNodrixMessageBox::eScs_Resize, QString()); },
        Action::reject());
    QCOMPARE(r.buttons.size(), 2);
    for (const ButtonRecord &b : r.buttons) {
        QCOMPARE(b.minimumWidth, 140);
        QCOMPARE(b.maximumWidth, 140);
    }
}

void tst_QNodrixMessageBoxSize::createSizeEightAndNineAlike()
{
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run(
        [] {
            QNodrixMessageBox::execCreateSizeAdvisor(QNodrixMessageBox::eCreateSize_ResizeFailed,
                                                     QString(), 0);
            QNodrixMessageBox::execCreateSizeAdvisor(
                QNodrixMessageBox::eCreateSize_ResizeFailedRanks, QString(), 0);
        },
        {Action::reject(), Action::reject()});
    QCOMPARE(records.size(), 2);
    QCOMPARE(records.at(0).text, resizeFailed);
    QCOMPARE(records.at(1).text, records.at(0).text);
    QCOMPARE(records.at(1).icon, records.at(0).icon);
}

// The application's own cursor stays as it is while these boxes are open.
void tst_QNodrixMessageBoxSize::callerCursorUntouched()
{
    QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run(
        [] {
            QNodrixMessageBox::execScsAdvisor(QNodrixMessageBox::eScs_NoZone, QString());
            QNodrixMessageBox::execScsAdvisor(QNodrixMessageBox::eScs_None, QString());
            QNodrixMessageBox::execCreateSizeAdvisor(QNodrixMessageBox::eCreateSize_Created,
                                                     QString(), 0);
            QNodrixMessageBox::execModifyProjAdvisor(QNodrixMessageBox::eModifyProj_Changes,
                                                     QString(), 3);
            QNodrixMessageBox::execProtectedModeAdvisor(QNodrixMessageBox::eProtectedMode_Ask,
                                                        QString(), 0);
        },
        {Action::reject(), Action::reject(), Action::reject(), Action::reject()});
    const QCursor *after = QApplication::overrideCursor();
    const bool waitAfter = after && after->shape() == Qt::WaitCursor;
    QApplication::restoreOverrideCursor();

    QVERIFY(waitAfter);
    QVERIFY(driver.cursorRestored());
    QCOMPARE(records.size(), 4);
    for (const BoxRecord &r : records) {
        QVERIFY(r.hasOverrideCursor);
        QCOMPARE(r.overrideCursor, Qt::WaitCursor);
    }
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxSize)
#include "tst_qnodrixmessagebox_size.moc"
