// QNodrixHelp's index and documents: what the constructor reads, the
// documents display() opens, and the warning of a missing index (the table of
// topics is tried by tst_qnodrixhelp_topics).

#include <QNodrixCom>
#include <QNodrixHelp>
#include <QNodrixRegistry>
#include <private/qnodrixhelp_p.h>

#include "dialogdriver.h"
#include "helptest.h"
#include "ndxcomtest.h"

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QtCore/QTextCodec>
#endif
#include <QtGui/QDesktopServices>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;

// The address of an absolute folder, three slashes in all: "file://" before a
// Linux path (which brings its own), "file:///" before a Windows drive.
static QString fileAddress(const QString &absolutePath)
{
    return (absolutePath.startsWith(QLatin1Char('/')) ? QStringLiteral("file://")
                                                      : QStringLiteral("file:///"))
        + absolutePath;
}

// Reads what the constructor put together.
struct HelpMembers : QNodrixHelp
{
    using QNodrixHelp::m_bHelpInfo;
    using QNodrixHelp::m_hashHelpFile;
    using QNodrixHelp::m_hashHelpNumber;
    using QNodrixHelp::m_sHelpLanguage;
    using QNodrixHelp::m_sHelpPath;
};

class tst_QNodrixHelp : public QObject, private HelpFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void dataModel();
    void indexParsing_data();
    void indexParsing();
    void display_data();
    void display();
    void displayEmptyTopicOpensNothing();
    void indexIsUtf8WhateverTheLocale();
    void languageIsFixedAtConstruction();
    void helpInfoSwitch();
    void missingIndexWarns();
    void missingIndexWarnsWithPercentInPath();
    void missingIndexWarningIsPlainText();
    void windowsStyleMachineFolder();
    void helpAddressSlashes_data();
    void helpAddressSlashes();
    void largeIndex();

private:
    QNodrixHelp *constructQuietly(QList<BoxRecord> *boxes = nullptr);
};

void tst_QNodrixHelp::initTestCase()
{
    setUpProcess();
}

void tst_QNodrixHelp::cleanupTestCase()
{
    tearDownProcess();
}

void tst_QNodrixHelp::init()
{
    setUpMachine();
}

void tst_QNodrixHelp::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
}

QNodrixHelp *tst_QNodrixHelp::constructQuietly(QList<BoxRecord> *boxes)
{
    QNodrixHelp *help = nullptr;
    DialogDriver driver;
    const QList<BoxRecord> seen = driver.run([&] { help = new QNodrixHelp; }, {Action::reject()});
    if (boxes)
        *boxes = seen;
    return help;
}

void tst_QNodrixHelp::dataModel()
{
    setMachine(m_machine.path(), 6);
    writeIndex(QStringLiteral("a=b=c\npagina\n"));
    HelpMembers help;
    QCOMPARE(help.m_sHelpPath, m_machine.path() + QStringLiteral("/help/"));
    QCOMPARE(help.m_sHelpLanguage, QStringLiteral("zh/"));
    QCOMPARE(help.m_bHelpInfo, false);
    QCOMPARE(help.m_hashHelpNumber.size(), 168);
    QCOMPARE(help.m_hashHelpNumber.value(QStringLiteral("QDlgCmdAliU.F.Free")),
             QStringLiteral("7.5.3.0"));
    QCOMPARE(help.m_hashHelpFile.size(), 2);
    QCOMPARE(help.m_hashHelpFile.value(QStringLiteral("a")), QStringLiteral("b=c"));
    QCOMPARE(help.m_hashHelpFile.value(QStringLiteral("pagina")), QStringLiteral("pagina"));
}

void tst_QNodrixHelp::indexParsing_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("entries");

    QTest::newRow("plain") << QStringLiteral("a=b\n") << QStringLiteral("a") << QStringLiteral("b")
                           << 1;
    QTest::newRow("split at the first =")
        << QStringLiteral("a=b=c\n") << QStringLiteral("a") << QStringLiteral("b=c") << 1;
    QTest::newRow("no = : line is key and value")
        << QStringLiteral("pagina\n") << QStringLiteral("pagina") << QStringLiteral("pagina") << 1;
    QTest::newRow("section is an entry")
        << QStringLiteral("[x]\n") << QStringLiteral("[x]") << QStringLiteral("[x]") << 1;
    QTest::newRow("empty line is an entry")
        << QStringLiteral("a=b\n\nc=d\n") << QString() << QString() << 3;
    QTest::newRow("empty value") << QStringLiteral("k=\n") << QStringLiteral("k") << QString() << 1;
    QTest::newRow("empty key") << QStringLiteral("=v\n") << QString() << QStringLiteral("v") << 1;
    QTest::newRow("no trimming") << QStringLiteral(" a = b \n") << QStringLiteral(" a ")
                                 << QStringLiteral(" b ") << 1;
    QTest::newRow("comment is an entry")
        << QStringLiteral(";c=1\n") << QStringLiteral(";c") << QStringLiteral("1") << 1;
    QTest::newRow("later key wins")
        << QStringLiteral("a=1\na=2\n") << QStringLiteral("a") << QStringLiteral("2") << 1;
    QTest::newRow("no final line break")
        << QStringLiteral("a=1\nb=2") << QStringLiteral("b") << QStringLiteral("2") << 2;
}

void tst_QNodrixHelp::indexParsing()
{
    QFETCH(QString, content);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(int, entries);
    QString text = content;
    QTextStream stream(&text);
    QHash<QString, QString> index;
    NdxComHelp::readHelpIndex(stream, index);
    QCOMPARE(index.size(), entries);
    QVERIFY(index.contains(key));
    QCOMPARE(index.value(key), value);
}

void tst_QNodrixHelp::display_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("index");
    QTest::addColumn<QString>("topic");
    QTest::addColumn<QString>("document"); // after <machine>/help/

    QTest::newRow("it") << 0 << QStringLiteral("Maglia=maglia.htm\n") << QStringLiteral("Maglia")
                        << QStringLiteral("it/maglia.htm");
    QTest::newRow("es (language 2)") << 2 << QStringLiteral("Maglia=maglia.htm\n")
                                     << QStringLiteral("Maglia") << QStringLiteral("es/maglia.htm");
    QTest::newRow("zh (language 6)") << 6 << QStringLiteral("Maglia=maglia.htm\n")
                                     << QStringLiteral("Maglia") << QStringLiteral("zh/maglia.htm");
    QTest::newRow("szh (language 7)")
        << 7 << QStringLiteral("Maglia=maglia.htm\n") << QStringLiteral("Maglia")
        << QStringLiteral("szh/maglia.htm");
    QTest::newRow("en (language 1)") << 1 << QStringLiteral("Maglia=maglia.htm\n")
                                     << QStringLiteral("Maglia") << QStringLiteral("en/maglia.htm");
    QTest::newRow("en (no language)")
        << -1 << QStringLiteral("Maglia=maglia.htm\n") << QStringLiteral("Maglia")
        << QStringLiteral("en/maglia.htm");
    QTest::newRow("subfolder") << 0 << QStringLiteral("Comandi=cmd/comandi.htm\n")
                               << QStringLiteral("Comandi") << QStringLiteral("it/cmd/comandi.htm");
    QTest::newRow("unknown topic opens the language folder")
        << 0 << QStringLiteral("Maglia=maglia.htm\n") << QStringLiteral("Altro")
        << QStringLiteral("it/");
    QTest::newRow("empty index") << 0 << QString() << QStringLiteral("Maglia")
                                 << QStringLiteral("it/");
}

void tst_QNodrixHelp::display()
{
    QFETCH(int, language);
    QFETCH(QString, index);
    QFETCH(QString, topic);
    QFETCH(QString, document);
    setMachine(m_machine.path(), language);
    writeIndex(index);
    QNodrixHelp help;
    help.display(topic);
    QCOMPARE(m_catcher.urls.size(), 1);
    const QUrl url = m_catcher.urls.first();
    // An absolute machine folder: three slashes, and the address names the file
    // ("file:///C:/..." on Windows, "file:///tmp/..." on Linux).
    const QString expected = fileAddress(m_machine.path()) + QStringLiteral("/help/") + document;
    QCOMPARE(url.toString(), expected);
    QCOMPARE(url.toLocalFile(), m_machine.path() + QStringLiteral("/help/") + document);
    QVERIFY(url.host().isEmpty());
}

void tst_QNodrixHelp::displayEmptyTopicOpensNothing()
{
    QNodrixHelp help;
    help.display(QString());
    QVERIFY(m_catcher.urls.isEmpty());
}

void tst_QNodrixHelp::indexIsUtf8WhateverTheLocale()
{
    // Qt 6 streams read UTF-8 by default; the index must read the same under
    // Qt 5, whose streams would otherwise follow the locale's codec.
    writeIndex(QStringLiteral("Punto=punto \u00E8 \u4E2D.htm\n\u00C0=x.htm\n"));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec *const localeCodec = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
#endif
    QNodrixHelp help;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec::setCodecForLocale(localeCodec);
#endif
    help.display(QStringLiteral("Punto"));
    help.display(QStringLiteral("\u00C0"));
    QCOMPARE(m_catcher.urls.size(), 2);
    const QString folder = fileAddress(m_machine.path()) + QStringLiteral("/help/it/");
    QCOMPARE(m_catcher.urls.at(0).toString(), folder + QStringLiteral("punto \u00E8 \u4E2D.htm"));
    QCOMPARE(m_catcher.urls.at(1).toString(), folder + QStringLiteral("x.htm"));
}

void tst_QNodrixHelp::languageIsFixedAtConstruction()
{
    QNodrixHelp help;
    setMachine(m_machine.path(), 2);
    help.display(QStringLiteral("Maglia"));
    QCOMPARE(m_catcher.urls.size(), 1);
    QVERIFY(m_catcher.urls.first().toString().endsWith(QLatin1String("/help/it/maglia.htm")));
}

void tst_QNodrixHelp::helpInfoSwitch()
{
    {
        QNodrixHelp help;
        QCOMPARE(help.getButHelpNumber(), false);
    }
    QSettings settings;
    settings.setValue(QStringLiteral("Environment/EnblHelpInfo"), true);
    settings.sync();
    QNodrixHelp help;
    QCOMPARE(help.getButHelpNumber(), true);
    settings.setValue(QStringLiteral("Environment/EnblHelpInfo"), false);
    settings.sync();
    QCOMPARE(help.getButHelpNumber(), true); // as it stood at construction
}

void tst_QNodrixHelp::missingIndexWarns()
{
    QFile::remove(m_machine.path() + QStringLiteral("/help/HelpMac.ini"));
    QList<BoxRecord> boxes;
    QNodrixHelp *help = nullptr;
    DialogDriver driver;
    boxes = driver.run([&] { help = new QNodrixHelp; }, {Action::click(QStringLiteral("OK"))});
    QCOMPARE(boxes.size(), 1);
    const BoxRecord &r = boxes.first();
    const QString path = m_machine.path() + QStringLiteral("/help/HelpMac.ini");
    QFile probe(path);
    probe.open(QIODevice::ReadOnly | QIODevice::Text);
    QCOMPARE(r.title, QStringLiteral("ATTENZIONE"));
    QCOMPARE(
        r.text,
        QStringLiteral("Impossibile leggere il file %1:\n%2.").arg(path).arg(probe.errorString()));
    QCOMPARE(r.icon, QMessageBox::Warning);
    QCOMPARE(r.buttons.size(), 1);
    QCOMPARE(r.buttons.first().role, QMessageBox::AcceptRole);
    QVERIFY(!r.hasOverrideCursor);
    QVERIFY2(!r.actionFailed, qPrintable(r.buttonTexts().join(QLatin1Char('|'))));
    QVERIFY(driver.cursorRestored());

    // Still usable: the table answers and display opens the language folder.
    QCOMPARE(help->getButHelpString(QStringLiteral("QDlgReport")), QStringLiteral("3.3.5.0"));
    help->display(QStringLiteral("Maglia"));
    QCOMPARE(m_catcher.urls.size(), 1);
    QVERIFY(m_catcher.urls.first().toString().endsWith(QLatin1String("/help/it/")));
    delete help;
}

void tst_QNodrixHelp::missingIndexWarnsWithPercentInPath()
{
    // The path and the error fill %1 and %2 at once: a "%2" or "%1" in the
    // machine folder's name is part of the path, not a place for the error.
    const QString machine = m_machine.path() + QStringLiteral("/M%2 %1");
    QVERIFY(QDir().mkpath(machine));
    setMachine(machine, 0);
    DialogDriver driver;
    QNodrixHelp *help = nullptr;
    const QList<BoxRecord> boxes
        = driver.run([&] { help = new QNodrixHelp; }, {Action::click(QStringLiteral("OK"))});
    delete help;
    QCOMPARE(boxes.size(), 1);
    const QString path = machine + QStringLiteral("/help/HelpMac.ini");
    QFile probe(path);
    QVERIFY(!probe.open(QIODevice::ReadOnly | QIODevice::Text));
    QCOMPARE(boxes.first().text,
             QStringLiteral("Impossibile leggere il file ") + path + QStringLiteral(":\n")
                 + probe.errorString() + QStringLiteral("."));
}

void tst_QNodrixHelp::missingIndexWarningIsPlainText()
{
    // A machine folder's name is shown as the characters it is: its markup
    // literally, its line break as U+FFFD, in a plain-text box.
#ifdef Q_OS_WIN
    // Windows allows neither '<', '>' nor a line break in a name: entities
    // are markup a rich-text box would turn into characters.
    const QString name = QStringLiteral("&lt;b&gt;M&lt;/b&gt; &amp; c&#105;");
#else
    const QString name = QStringLiteral("<b>M</b><img src=x>\n<a href=y>z</a>");
#endif
    const QString machine = m_machine.path() + QLatin1Char('/') + name;
    QVERIFY(QDir().mkpath(machine));
    setMachine(machine, 0);
    DialogDriver driver;
    QNodrixHelp *help = nullptr;
    const QList<BoxRecord> boxes
        = driver.run([&] { help = new QNodrixHelp; }, {Action::click(QStringLiteral("OK"))});
    delete help;
    QCOMPARE(boxes.size(), 1);
    const QString path = machine + QStringLiteral("/help/HelpMac.ini");
    QFile probe(path);
    QVERIFY(!probe.open(QIODevice::ReadOnly | QIODevice::Text));
    QString shown = path;
    shown.replace(QLatin1Char('\n'), QChar(QChar::ReplacementCharacter));
    const QString text = QStringLiteral("Impossibile leggere il file ") + shown
        + QStringLiteral(":\n") + probe.errorString() + QStringLiteral(".");
    QCOMPARE(boxes.first().text, text);
    QCOMPARE(boxes.first().labelText, text);
    QCOMPARE(boxes.first().textFormat, Qt::PlainText);
    QCOMPARE(boxes.first().labelFormat, Qt::PlainText);
    QCOMPARE(boxes.first().defaultButton, QStringLiteral("OK"));
}

void tst_QNodrixHelp::windowsStyleMachineFolder()
{
    // The address rule is textual: a drive-letter folder gets "file:///" in
    // front, as on the suite's original platform.
    QCOMPARE(
        NdxComHelp::localAddress(QStringLiteral("D:/Macchine/M1/help/it/pagina.htm")).toString(),
        QStringLiteral("file:///D:/Macchine/M1/help/it/pagina.htm"));
    QCOMPARE(NdxComHelp::localAddress(QStringLiteral("/opt/m/help/it/x.htm")).toString(),
             QStringLiteral("file:///opt/m/help/it/x.htm"));

    setMachine(QStringLiteral("D:/Macchine/M1"), 0);
    QList<BoxRecord> boxes;
    std::unique_ptr<QNodrixHelp> help(constructQuietly(&boxes));
    QCOMPARE(boxes.size(), 1); // no index there
    help->display(QStringLiteral("Maglia"));
    QCOMPARE(m_catcher.urls.size(), 1);
    QCOMPARE(m_catcher.urls.first().toString(QUrl::None),
             QStringLiteral("file:///D:/Macchine/M1/help/it/"));
}

// Whatever the number of leading slashes of the machine folder, the address
// has exactly three after "file:" (but for a Windows server's folder, whose
// two slashes name the server).
void tst_QNodrixHelp::helpAddressSlashes_data()
{
    QTest::addColumn<QString>("helpPath");
    QTest::addColumn<QString>("address");
    QTest::newRow("one") << QStringLiteral("/opt/m/help/")
                         << QStringLiteral("file:///opt/m/help/it/x.htm");
#ifndef Q_OS_WIN
    QTest::newRow("two") << QStringLiteral("//opt/m/help/")
                         << QStringLiteral("file:///opt/m/help/it/x.htm");
#endif
    QTest::newRow("three") << QStringLiteral("///opt/m/help/")
                           << QStringLiteral("file:///opt/m/help/it/x.htm");
    QTest::newRow("drive") << QStringLiteral("D:/M1/help/")
                           << QStringLiteral("file:///D:/M1/help/it/x.htm");
    QTest::newRow("relative") << QStringLiteral("help/") << QStringLiteral("file:///help/it/x.htm");
    QTest::newRow("empty") << QString() << QStringLiteral("file:///it/x.htm");
#ifndef Q_OS_WIN
    QTest::newRow("only slashes") << QStringLiteral("//") << QStringLiteral("file:///it/x.htm");
#endif
}

void tst_QNodrixHelp::helpAddressSlashes()
{
    QFETCH(QString, helpPath);
    QFETCH(QString, address);
    QCOMPARE(NdxComHelp::localAddress(helpPath + QStringLiteral("it/x.htm")).toString(), address);
}

void tst_QNodrixHelp::largeIndex()
{
    QString content;
    content.reserve(100000 * 24);
    for (int i = 0; i < 100000; ++i)
        content += QStringLiteral("Topic%1=doc/page%1.htm\n").arg(i);
    writeIndex(content);
    QNodrixHelp help;
    help.display(QStringLiteral("Topic99999"));
    help.display(QStringLiteral("Topic0"));
    QCOMPARE(m_catcher.urls.size(), 2);
    QVERIFY(m_catcher.urls.at(0).toString().endsWith(QLatin1String("/help/it/doc/page99999.htm")));
    QVERIFY(m_catcher.urls.at(1).toString().endsWith(QLatin1String("/help/it/doc/page0.htm")));
}

NDXCOM_TEST_MAIN(tst_QNodrixHelp)
#include "tst_qnodrixhelp.moc"
