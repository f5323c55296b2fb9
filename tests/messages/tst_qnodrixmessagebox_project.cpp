// The project, name and machine-file advisors and the error reports for
// files and data streams, driven through their real modal boxes.

#include <QNodrixMessageBox>

#include "advisorlooks.h"
#include "dialogdriver.h"
#include "markingtranslator.h"
#include "ndxcomtest.h"

#include <QtCore/QDataStream>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <climits>

using namespace NdxComTest;
using namespace AdvisorLooks;

namespace {

enum class Family {
    IllegalName, // (value, sArg, nArg)
    FileName, // (value, sArg, nArg)
    ProjectDoc, // (value, sArg, nArg)
    ModifyData, // (value)
    Modified, // ()
    MachineFile, // (value, sArg1, sArg2, sArg3)
    MachineXml, // (value, sFile, list...)
    FileOpen, // (sFile, sReason)
    FileRead,
    FileWrite,
    DataStreamFile, // (sFile)
    DataStreamRead, // (sClass, uVersion, uLoadedVersion); value = the stream's status
    DataStreamVersion // (sClass, uVersion, uLoadedVersion, sFunction)
};

// Whether the family keeps the pointing hand as override cursor while it runs.
bool setsHandCursor(Family family)
{
    switch (family) {
    case Family::IllegalName:
    case Family::ModifyData:
    case Family::Modified:
    case Family::MachineFile:
        return false;
    default:
        return true;
    }
}

// Calls the family; returns its result as an int (0 for those without one).
int call(Family family, int value, const QStringList &a)
{
    using M = QNodrixMessageBox;
    switch (family) {
    case Family::IllegalName:
        M::execIllegalNameAdvisor(M::enIllegalNameAdvisor(value), a.value(0), a.value(1).toInt());
        return 0;
    case Family::FileName:
        return M::execFileNameAdvisor(M::enFileNameAdvisor(value), a.value(0), a.value(1).toInt());
    case Family::ProjectDoc:
        return M::execProjectDocAdvisor(M::enProjectDocAdvisor(value), a.value(0),
                                        a.value(1).toInt());
    case Family::ModifyData:
        return M::execModifyDataAdvisor(M::enModifyDataAdvisor(value));
    case Family::Modified:
        return M::execModified();
    case Family::MachineFile:
        return M::execMachineFileAdvisor(M::enMachineFileAdvisor(value), a.value(0), a.value(1),
                                         a.value(2));
    case Family::MachineXml: {
        QStringList list = a.mid(1);
        const QStringList before = list;
        const int result
            = M::execMachineXmlAdvisor(M::enMachineXmlAdvisor(value), a.value(0), list);
        if (list != before)
            return -12345; // the list must come back unchanged
        return result;
    }
    case Family::FileOpen:
        M::execFileOpenError(a.value(0), a.value(1));
        return 0;
    case Family::FileRead:
        M::execFileReadError(a.value(0), a.value(1));
        return 0;
    case Family::FileWrite:
        M::execFileWriteError(a.value(0), a.value(1));
        return 0;
    case Family::DataStreamFile:
        M::execDataStreamErrorFile(a.value(0));
        return 0;
    case Family::DataStreamRead: {
        const QByteArray empty;
        QDataStream stream(empty);
        if (value == QDataStream::ReadPastEnd) {
            // The genuine way: read from an empty archive.
            qint32 word = 0;
            stream >> word;
            if (stream.status() != QDataStream::ReadPastEnd)
                return -12345;
        } else {
            stream.setStatus(QDataStream::Status(value));
        }
        M::execDataStreamErrorRead(a.value(0), a.value(1).toUInt(), a.value(2).toUInt(), stream);
        return 0;
    }
    case Family::DataStreamVersion:
        M::execDataStreamErrorVersion(a.value(0), a.value(1).toUInt(), a.value(2).toUInt(),
                                      a.value(3));
        return 0;
    }
    return 0;
}

const int Yes = QMessageBox::Yes;
const int No = QMessageBox::No;

Action click(const QString &text)
{
    return Action::click(text);
}

} // namespace

Q_DECLARE_METATYPE(Family)

class tst_QNodrixMessageBoxProject : public QObject
{
    Q_OBJECT

private slots:
    void advisor_data();
    void advisor();
    void callerCursorKept_data();
    void callerCursorKept();
    void errorReportTitleTranslated();
    void statusNamesUntranslated();
    void errorReportsParentToActiveWindow();
    void machineXmlShortList();

private:
    void addRow(const QByteArray &tag, Family family, int value, const QStringList &args,
                const Action &action, const Look &look, const QString &text, int result);
};

void tst_QNodrixMessageBoxProject::addRow(const QByteArray &tag, Family family, int value,
                                          const QStringList &args, const Action &action,
                                          const Look &look, const QString &text, int result)
{
    QTest::newRow(tag.constData()) << family << value << args << action << look << text << result;
}

void tst_QNodrixMessageBoxProject::advisor_data()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::addColumn<AdvisorLooks::Look>("look");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");

    const Action close = click(chiudi());

    // execIllegalNameAdvisor: every value ends in a "Chiudi" warning.
    const Family illegal = Family::IllegalName;
    const QStringList ia {QStringLiteral("#"), QStringLiteral("8")};
    addRow("illegalname 0", illegal, 0, ia, close, warningClose(),
           QStringLiteral("Attenzione!\nNon è stato inserito alcun nome !"), 0);
    addRow("illegalname 1, length 8 (blank before the break)", illegal, 1,
           {QStringLiteral("x"), QStringLiteral("8")}, close, warningClose(),
           QStringLiteral("Attenzione: Il nome dei progetti per la macchina \n NON deve essere più "
                          "lungo di 8 caratteri"),
           0);
    addRow("illegalname 1, negative length", illegal, 1, {QString(), QStringLiteral("-3")}, close,
           warningClose(),
           QStringLiteral("Attenzione: Il nome dei progetti per la macchina \n NON deve essere più "
                          "lungo di -3 caratteri"),
           0);
    addRow("illegalname 2", illegal, 2, ia, close, warningClose(),
           QStringLiteral("Attenzione:\nCarattere >#< non ammesso."), 0);
    addRow("illegalname 2, argument that looks like a placeholder", illegal, 2,
           {QStringLiteral("%1"), QStringLiteral("8")}, close, warningClose(),
           QStringLiteral("Attenzione:\nCarattere >%1< non ammesso."), 0);
    addRow("illegalname 3", illegal, 3, {QStringLiteral("\\/:*?\"<>|"), QStringLiteral("8")}, close,
           warningClose(),
           QStringLiteral("Attenzione:\nIl nome dei progetti Nodrix NON può contenere i seguenti "
                          "caratteri:\n\t \\/:*?\"<>|"),
           0);
    addRow("illegalname 4", illegal, 4, ia, close, warningClose(),
           QStringLiteral("Attenzione:\nAmmessi solo caratteri occidentali"), 0);
    addRow("illegalname 5", illegal, 5, ia, Action::escape(), warningClose(),
           QStringLiteral("Attenzione:\nAmmesso nome progetto solo con estensione .ndx minuscolo"),
           0);
    addRow("illegalname 6: empty warning", illegal, 6, ia, close, warningClose(), QString(), 0);
    addRow("illegalname -1: empty warning", illegal, -1, ia, close, warningClose(), QString(), 0);
    addRow("illegalname INT_MIN: empty warning", illegal, INT_MIN, ia, Action::close(),
           warningClose(), QString(), 0);
    addRow("illegalname INT_MAX: empty warning", illegal, INT_MAX, ia, Action::reject(),
           warningClose(), QString(), 0);

    // execFileNameAdvisor: always No, the hand cursor around it.
    const Family fileName = Family::FileName;
    addRow("filename 0 (no blank before the break)", fileName, 0, {QString(), QStringLiteral("32")},
           close, warningClose(),
           QStringLiteral("Attenzione: Il nome dei progetti per la macchina\n NON deve essere più "
                          "lungo di 32 caratteri"),
           No);
    addRow("filename 0, escape", fileName, 0, {QString(), QStringLiteral("250")}, Action::escape(),
           warningClose(),
           QStringLiteral("Attenzione: Il nome dei progetti per la macchina\n NON deve essere più "
                          "lungo di 250 caratteri"),
           No);
    addRow("filename 1", fileName, 1, {QStringLiteral("\\/:*?\"<>|"), QStringLiteral("0")}, close,
           warningClose(),
           QStringLiteral("Attenzione:\nIl nome dei progetti Veskar NON può contenere i seguenti "
                          "caratteri:\n\t \\/:*?\"<>|"),
           No);
    addRow("filename 2: nothing", fileName, 2, {QStringLiteral("x"), QStringLiteral("1")}, close,
           nothing(), QString(), No);
    addRow("filename -1: nothing", fileName, -1, {QStringLiteral("x"), QStringLiteral("1")}, close,
           nothing(), QString(), No);
    addRow("filename INT_MIN: nothing", fileName, INT_MIN, {}, close, nothing(), QString(), No);

    // execProjectDocAdvisor: the arguments are not used; always No.
    const Family doc = Family::ProjectDoc;
    const QStringList unused {QStringLiteral("%1 ignored"), QStringLiteral("77")};
    addRow("projectdoc 0 (critical)", doc, 0, unused, close, criticalClose(),
           QStringLiteral("Attenzione!\nApplicazione macchina non definita"), No);
    addRow("projectdoc 1", doc, 1, unused, close, warningClose(),
           QStringLiteral("Attenzione!\nIl progetto è di una macchina diversa da quella "
                          "dell'applicazione attiva!"),
           No);
    addRow("projectdoc 2", doc, 2, unused, Action::reject(), warningClose(),
           QStringLiteral("Attenzione!\nL'ultimo percorso selezionato NON risulta accessibile "
                          "!!!\nVerrà selezionato il percorso di default !!!"),
           No);
    addRow("projectdoc 3: nothing", doc, 3, unused, close, nothing(), QString(), No);
    addRow("projectdoc -1: nothing", doc, -1, unused, close, nothing(), QString(), No);

    // execModifyDataAdvisor: "Si" gives Yes, any other end No.
    const Family modify = Family::ModifyData;
    const QString modifyTexts[] = {
        QString(),
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
    };
    addRow("modifydata 0: nothing", modify, 0, {}, click(si()), nothing(), QString(), No);
    for (int v = 1; v <= 5; ++v) {
        const QByteArray tag = "modifydata " + QByteArray::number(v);
        addRow(tag + ": Si", modify, v, {}, click(si()), warning(), modifyTexts[v], Yes);
        addRow(tag + ": No", modify, v, {}, click(no()), warning(), modifyTexts[v], No);
        addRow(tag + ": Escape", modify, v, {}, Action::escape(), warning(), modifyTexts[v], No);
        addRow(tag + ": Enter (default No)", modify, v, {}, Action::enter(), warning(),
               modifyTexts[v], No);
        addRow(tag + ": closed", modify, v, {}, Action::close(), warning(), modifyTexts[v], No);
        addRow(tag + ": no click", modify, v, {}, Action::reject(), warning(), modifyTexts[v], No);
    }
    addRow("modifydata 6: nothing", modify, 6, {}, click(si()), nothing(), QString(), No);
    addRow("modifydata -1: nothing", modify, -1, {}, click(si()), nothing(), QString(), No);
    addRow("modified: Si", Family::Modified, 0, {}, click(si()), warning(), modifyTexts[1], Yes);
    addRow("modified: No", Family::Modified, 0, {}, click(no()), warning(), modifyTexts[1], No);
    addRow("modified: closed", Family::Modified, 0, {}, Action::close(), warning(), modifyTexts[1],
           No);

    // execMachineFileAdvisor: always 0.
    const Family machine = Family::MachineFile;
    const QStringList ma {QStringLiteral("/opt/m/Macchina.xml"), QStringLiteral("2.1.0"),
                          QStringLiteral("1.9.4")};
    addRow("machinefile 0", machine, 0,
           {QStringLiteral("/opt/m/Config.ini"), QStringLiteral("Permesso negato"),
            QStringLiteral("unused")},
           close, warningClose(),
           QStringLiteral("Impossibile leggere il file di configurazione macchina "
                          "/opt/m/Config.ini:\nPermesso negato."),
           0);
    addRow("machinefile 1", machine, 1, ma, close, warningClose(),
           QStringLiteral("Impossibile leggere il file macchina : /opt/m/Macchina.xml"), 0);
    addRow("machinefile 2: file, installed, project", machine, 2, ma, close, warningClose(),
           QStringLiteral("File macchina : /opt/m/Macchina.xml\nversione installata : 2.1.0  "
                          "incompatibile \ncon versione progetto : 1.9.4"),
           0);
    addRow("machinefile 2, empty arguments", machine, 2, {}, close, warningClose(),
           QStringLiteral("File macchina : \nversione installata :   incompatibile \ncon versione "
                          "progetto : "),
           0);
    addRow("machinefile 3", machine, 3, ma, close, warningClose(),
           QStringLiteral("File macchina non riconosciuto"), 0);
    addRow("machinefile 4", machine, 4, ma, Action::escape(), warningClose(),
           QStringLiteral("Macchina o costruttore non supportati"), 0);
    addRow("machinefile 5 (critical)", machine, 5, ma, close, criticalClose(),
           QStringLiteral("Impossibile caricare i files macchina !"), 0);
    addRow("machinefile 6 (critical)", machine, 6, ma, Action::close(), criticalClose(),
           QStringLiteral("Files macchina presenti nel progetto\nnon congruenti con quelli "
                          "installati !"),
           0);
    addRow("machinefile 7: nothing", machine, 7, ma, close, nothing(), QString(), 0);
    addRow("machinefile -1: nothing", machine, -1, ma, close, nothing(), QString(), 0);

    // execMachineXmlAdvisor: always No, the hand cursor around it.
    const Family xml = Family::MachineXml;
    addRow("machinexml 0", xml, 0,
           {QStringLiteral("Macchina.xml"), QStringLiteral("tag non chiuso"), QStringLiteral("12"),
            QStringLiteral("7")},
           close, warningClose(),
           QStringLiteral("Errore in file Xml : Macchina.xml --- tag non chiuso\nlinea : 12 --- "
                          "colonna : 7"),
           No);
    addRow("machinexml 0, extra entries ignored", xml, 0,
           {QStringLiteral("M.xml"), QStringLiteral("e"), QStringLiteral("1"), QStringLiteral("2"),
            QStringLiteral("extra")},
           close, warningClose(),
           QStringLiteral("Errore in file Xml : M.xml --- e\nlinea : 1 --- colonna : 2"), No);
    addRow("machinexml 0, empty list", xml, 0, {QStringLiteral("M.xml")}, close, warningClose(),
           QStringLiteral("Errore in file Xml : M.xml --- \nlinea :  --- colonna : "), No);
    addRow("machinexml 1", xml, 1,
           {QStringLiteral("Macchina.xml"), QStringLiteral("40"), QStringLiteral("Cmd"),
            QStringLiteral("id=\"3\""), QStringLiteral("nome=\"x\"")},
           close, warningClose(),
           QStringLiteral("Errore in file Xml : Macchina.xml --- linea 40\ntag : Cmd\nattributi : "
                          "id=\"3\" --- nome=\"x\""),
           No);
    addRow("machinexml 1, two entries", xml, 1,
           {QStringLiteral("M.xml"), QStringLiteral("40"), QStringLiteral("Cmd")}, close,
           warningClose(),
           QStringLiteral("Errore in file Xml : M.xml --- linea 40\ntag : Cmd\nattributi :  --- "),
           No);
    addRow("machinexml 2: nothing", xml, 2, {QStringLiteral("M.xml")}, close, nothing(), QString(),
           No);
    addRow("machinexml -1: nothing", xml, -1, {QStringLiteral("M.xml")}, close, nothing(),
           QString(), No);

    // The error reports: critical, title tr("Nodrix"), Ok.
    const Look report = criticalReport();
    const QStringList fr {QStringLiteral("/tmp/progetto.ndx"), QStringLiteral("Permesso negato")};
    addRow("fileopen", Family::FileOpen, 0, fr, click(okButton()), report,
           QStringLiteral("Impossibile aprire il file /tmp/progetto.ndx:\nPermesso negato"), 0);
    addRow("fileopen, escape", Family::FileOpen, 0, fr, Action::escape(), report,
           QStringLiteral("Impossibile aprire il file /tmp/progetto.ndx:\nPermesso negato"), 0);
    addRow("fileread", Family::FileRead, 0, fr, click(okButton()), report,
           QStringLiteral("Impossibile leggere il file /tmp/progetto.ndx:\nPermesso negato"), 0);
    addRow("filewrite", Family::FileWrite, 0, fr, Action::close(), report,
           QStringLiteral("Impossibile scrivere il file /tmp/progetto.ndx:\nPermesso negato"), 0);
    addRow("filewrite, empty", Family::FileWrite, 0, {}, click(okButton()), report,
           QStringLiteral("Impossibile scrivere il file :\n"), 0);
    addRow("datastreamfile", Family::DataStreamFile, 0, fr, click(okButton()), report,
           QStringLiteral("Impossibile aprire il file /tmp/progetto.ndx:\nArchivio corrotto !!"),
           0);

    const QStringList rd {QStringLiteral("QNdxDoc"), QStringLiteral("7"), QStringLiteral("9")};
    const QString readText = QStringLiteral("Classe : QNdxDoc\nVersione : 7 --- Versione caricata "
                                            ": 9\nStatus : ");
    addRow("datastreamread Ok: empty status", Family::DataStreamRead, QDataStream::Ok, rd,
           click(okButton()), report, readText, 0);
    addRow("datastreamread ReadPastEnd", Family::DataStreamRead, QDataStream::ReadPastEnd, rd,
           click(okButton()), report, readText + QStringLiteral("ReadPastEnd"), 0);
    addRow("datastreamread ReadCorruptData", Family::DataStreamRead, QDataStream::ReadCorruptData,
           rd, click(okButton()), report, readText + QStringLiteral("ReadCorruptData"), 0);
    addRow("datastreamread WriteFailed: empty status", Family::DataStreamRead,
           QDataStream::WriteFailed, rd, click(okButton()), report, readText, 0);
    addRow("datastreamread, versions as unsigned", Family::DataStreamRead, QDataStream::Ok,
           {QStringLiteral("C"), QStringLiteral("4294967295"), QStringLiteral("0")},
           click(okButton()), report,
           QStringLiteral("Classe : C\nVersione : 4294967295 --- Versione caricata : 0\nStatus : "),
           0);
    addRow("datastreamversion", Family::DataStreamVersion, 0,
           {QStringLiteral("QNdxDoc"), QStringLiteral("3"), QStringLiteral("12"),
            QStringLiteral("QNdxDoc::load")},
           click(okButton()), report,
           QStringLiteral("Classe : QNdxDoc\nVersione : 3 --- Versione caricata : 12\nFunzione : "
                          "QNdxDoc::load\nVersione oggetto sconosciuta"),
           0);
}

void tst_QNodrixMessageBoxProject::advisor()
{
    QFETCH(Family, family);
    QFETCH(int, value);
    QFETCH(QStringList, args);
    QFETCH(NdxComTest::Action, action);
    QFETCH(AdvisorLooks::Look, look);
    QFETCH(QString, text);
    QFETCH(int, result);

    int got = -1;
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run([&] { got = call(family, value, args); }, {action});

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
    if (setsHandCursor(family)) {
        QVERIFY(r.hasOverrideCursor);
        QCOMPARE(r.overrideCursor, Qt::PointingHandCursor);
    } else {
        QVERIFY(!r.hasOverrideCursor);
    }
}

// A cursor the application set stays in place around every call: the
// advisors with the hand push and pop exactly one cursor, the others leave
// it alone, also for values that show nothing.
void tst_QNodrixMessageBoxProject::callerCursorKept_data()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("shown");

    QTest::newRow("illegalname 0") << Family::IllegalName << 0 << true;
    QTest::newRow("illegalname -1") << Family::IllegalName << -1 << true;
    QTest::newRow("filename 0") << Family::FileName << 0 << true;
    QTest::newRow("filename 5") << Family::FileName << 5 << false;
    QTest::newRow("projectdoc 2") << Family::ProjectDoc << 2 << true;
    QTest::newRow("projectdoc 3") << Family::ProjectDoc << 3 << false;
    QTest::newRow("modifydata 1") << Family::ModifyData << 1 << true;
    QTest::newRow("modifydata 0") << Family::ModifyData << 0 << false;
    QTest::newRow("machinefile 3") << Family::MachineFile << 3 << true;
    QTest::newRow("machinefile 9") << Family::MachineFile << 9 << false;
    QTest::newRow("machinexml 1") << Family::MachineXml << 1 << true;
    QTest::newRow("machinexml 2") << Family::MachineXml << 2 << false;
    QTest::newRow("fileopen") << Family::FileOpen << 0 << true;
    QTest::newRow("fileread") << Family::FileRead << 0 << true;
    QTest::newRow("filewrite") << Family::FileWrite << 0 << true;
    QTest::newRow("datastreamfile") << Family::DataStreamFile << 0 << true;
    QTest::newRow("datastreamread") << Family::DataStreamRead << 0 << true;
    QTest::newRow("datastreamversion") << Family::DataStreamVersion << 0 << true;
}

void tst_QNodrixMessageBoxProject::callerCursorKept()
{
    QFETCH(Family, family);
    QFETCH(int, value);
    QFETCH(bool, shown);

    QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    DialogDriver driver;
    const QList<BoxRecord> records
        = driver.run([&] { call(family, value, {}); }, {Action::reject()});
    const QCursor *after = QApplication::overrideCursor();
    const bool waitAfter = after && after->shape() == Qt::WaitCursor;
    QApplication::restoreOverrideCursor();
    const bool nothingLeft = !QApplication::overrideCursor();

    QVERIFY(driver.cursorRestored());
    QVERIFY(waitAfter);
    QVERIFY(nothingLeft);
    QCOMPARE(records.size(), shown ? 1 : 0);
    if (shown) {
        QVERIFY(records.first().hasOverrideCursor);
        QCOMPARE(records.first().overrideCursor,
                 setsHandCursor(family) ? Qt::PointingHandCursor : Qt::WaitCursor);
    }
}

// Unlike the presentations' fixed title, the error reports' title goes
// through the translation.
void tst_QNodrixMessageBoxProject::errorReportTitleTranslated()
{
    NdxComTest::MarkingTranslator translator("QNodrixMessageBox");
    QCoreApplication::installTranslator(&translator);
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run(
        [] {
            QNodrixMessageBox::execDataStreamErrorFile(QStringLiteral("a.ndx"));
            QNodrixMessageBox::execFileNameAdvisor(QNodrixMessageBox::eFileName_TooLong, QString(),
                                                   32);
        },
        {Action::reject(), Action::reject()});
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(records.size(), 2);
    QCOMPARE(records.at(0).title, QStringLiteral("[Nodrix]"));
    QCOMPARE(records.at(0).text,
             QStringLiteral("[Impossibile aprire il file a.ndx:\n[Archivio corrotto !!]]"));
    QCOMPARE(records.at(1).title, QStringLiteral("Nodrix"));
    QCOMPARE(records.at(1).text,
             QStringLiteral("[Attenzione: Il nome dei progetti per la macchina\n NON deve essere "
                            "più lungo di 32 caratteri]"));
    QCOMPARE(records.at(1).buttonTexts(), QStringList {QStringLiteral("[Chiudi]")});
}

void tst_QNodrixMessageBoxProject::statusNamesUntranslated()
{
    NdxComTest::MarkingTranslator translator("QNodrixMessageBox");
    QCoreApplication::installTranslator(&translator);
    const BoxRecord r = driveOne(
        [] {
            const QByteArray empty;
            QDataStream stream(empty);
            stream.setStatus(QDataStream::ReadCorruptData);
            QNodrixMessageBox::execDataStreamErrorRead(QStringLiteral("C"), 1, 2, stream);
        },
        Action::reject());
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(r.text,
             QStringLiteral("[Classe : C\nVersione : 1 --- Versione caricata : 2\nStatus : "
                            "ReadCorruptData]"));
}

void tst_QNodrixMessageBoxProject::errorReportsParentToActiveWindow()
{
    // Without an active window the box has no parent.
    QVERIFY(!QApplication::activeWindow());
    BoxRecord r = driveOne([] { QNodrixMessageBox::execFileReadError(QString(), QString()); },
                           Action::reject());
    QVERIFY(!r.className.isEmpty());
    QVERIFY(!r.hasParent);

    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    r = driveOne([] { QNodrixMessageBox::execFileReadError(QString(), QString()); },
                 Action::reject());
    QVERIFY(r.hasParent);
    // The advisors' own boxes never have one.
    r = driveOne(
        [] {
            QNodrixMessageBox::execProjectDocAdvisor(QNodrixMessageBox::eProjectDoc_OtherMachine,
                                                     QString(), 0);
        },
        Action::reject());
    QVERIFY(!r.className.isEmpty());
    QVERIFY(!r.hasParent);
}

// The list is read by position and never beyond its end; nothing is added to
// it.
void tst_QNodrixMessageBoxProject::machineXmlShortList()
{
    for (int size = 0; size <= 5; ++size) {
        for (int value = 0; value <= 1; ++value) {
            QStringList list;
            for (int i = 0; i < size; ++i)
                list << QString::number(i + 10);
            const QStringList before = list;
            int seen = 0;
            QMessageBox::StandardButton result = QMessageBox::NoButton;
            driveOne(
                [&] {
                    result = QNodrixMessageBox::execMachineXmlAdvisor(
                        QNodrixMessageBox::enMachineXmlAdvisor(value), QStringLiteral("f"), list);
                },
                Action::reject(), &seen);
            QCOMPARE(seen, 1);
            QCOMPARE(result, QMessageBox::No);
            QCOMPARE(list, before);
        }
    }
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxProject)
#include "tst_qnodrixmessagebox_project.moc"
