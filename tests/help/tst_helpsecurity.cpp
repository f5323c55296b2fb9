// Help with a hostile machine folder: the index's values, the index file
// itself and the machine folder's name are written by whoever can write the
// machine folder. F1 must open documents of the help language folder and
// nothing else, and no index file may hang, abort or exhaust the application.

#include <QNodrixCom>
#include <QNodrixHelp>
#include <QNodrixRegistry>
#include <private/qnodrixhelp_p.h>

#include "dialogdriver.h"
#include "hangguard.h"
#include "ndxcomtest.h"
#include "urlcatcher.h"

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QDesktopServices>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <memory>

#include <cstdio>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

using namespace NdxComTest;

namespace {

struct HelpMembers : QNodrixHelp
{
    using QNodrixHelp::m_hashHelpFile;
};

// The index a help object read. Through a pointer to the base's member: the
// object is a QNodrixHelp, not a HelpMembers.
const QHash<QString, QString> &indexOf(const QNodrixHelp *help)
{
    return help->*(&HelpMembers::m_hashHelpFile);
}

// The hostile-help figure of a row that hangs.
class HelpHangGuard : public NdxComTest::HangGuard
{
public:
    explicit HelpHangGuard(int tried)
        : NdxComTest::HangGuard(figure(tried), 60)
    { }

private:
    static const char *figure(int tried)
    {
        static char text[160];
        std::snprintf(text, sizeof(text),
                      "ndxcom-figure: hostile help inputs tried: %d, programs started: 0, "
                      "crashes: 0, hangs: 1",
                      tried + 1);
        return text;
    }
};

using NdxComTest::writeFile;

} // namespace

class tst_HelpSecurity : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void hostileValue_data();
    void hostileValue();
    void linkOutOfTheFolder();
    void documentValue_data();
    void documentValue();
    void machineFolderName_data();
    void machineFolderName();
    void uncMachineFolder_data();
    void uncMachineFolder();
    void hostileIndexFile_data();
    void hostileIndexFile();
    void oversizedIndex();
    void overlongLine();

private:
    void setMachine(const QString &path);
    QString languageFolder() const { return m_machine + QStringLiteral("/help/en/"); }
    // Builds a help object over the current machine, driving the warning box
    // an unreadable index shows; returns the boxes seen.
    std::unique_ptr<QNodrixHelp> construct(QList<BoxRecord> *boxes = nullptr);
    // Whether an opened address is something other than a document of the
    // language folder or the folder itself: a program the shell would run.
    bool namesAProgram(const QUrl &url) const;

    QTemporaryDir m_root;
    QString m_machine;
    UrlCatcher m_catcher;
    int m_tried = 0;
    int m_started = 0;
};

void tst_HelpSecurity::initTestCase()
{
    QVERIFY(m_root.isValid());
    m_machine = m_root.path() + QStringLiteral("/Macchine/M1");
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_catcher, "open");
}

void tst_HelpSecurity::init()
{
    QSettings().clear();
    m_catcher.urls.clear();
    setMachine(m_machine);
    // Programs a hostile index could name, in and around the help folder.
    // Each would start if the library handed its address to the shell.
    for (const char *program :
         {"/help/en/x.exe", "/help/en/noext.exe", "/help/en/c.cmd", "/help/en/s.lnk", "/m.exe",
          "/m.bat", "/help/en/x.exe.htm.exe", "/help/en/x.hta", "/help/en/x.desktop"})
        QVERIFY(writeFile(m_machine + QLatin1String(program), "MZ marker"));
    QVERIFY(writeFile(languageFolder() + QStringLiteral("pagina.htm"), "<p>help</p>"));
}

void tst_HelpSecurity::cleanup()
{
    QVERIFY(!QApplication::overrideCursor());
}

void tst_HelpSecurity::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    qInfo("ndxcom-figure: hostile help inputs tried: %d, programs started: %d, crashes: 0, "
          "hangs: 0",
          m_tried, m_started);
}

void tst_HelpSecurity::setMachine(const QString &path)
{
    QNodrixRegistry registry(nullptr);
    registry.setLastMachine(QStringLiteral("M1"));
    registry.setMachinePath(path);
    registry.setLanguage(QNodrixRegistry::eLanguageType(1)); // en
}

std::unique_ptr<QNodrixHelp> tst_HelpSecurity::construct(QList<BoxRecord> *boxes)
{
    QNodrixHelp *help = nullptr;
    DialogDriver driver;
    const QList<BoxRecord> seen
        = driver.run([&] { help = new QNodrixHelp; }, {Action::click(QStringLiteral("OK"))});
    if (boxes)
        *boxes = seen;
    return std::unique_ptr<QNodrixHelp>(help);
}

bool tst_HelpSecurity::namesAProgram(const QUrl &url) const
{
    const QString local = url.toLocalFile();
    if (local == languageFolder())
        return false;
    return !local.startsWith(languageFolder())
        || !NdxComHelp::isDocumentType(QFileInfo(local).fileName());
}

// Values an index may hold that must never reach the shell: each is a topic
// the index does not hold, and the language folder opens.
void tst_HelpSecurity::hostileValue_data()
{
    QTest::addColumn<QString>("value");
    const char *const values[] = {
        "x.exe",
        "X.EXE",
        "../../m.exe",
        "..\\..\\m.bat",
        "../../../../../m.exe",
        "../../../../../../../../../../etc/shadow",
        "noext",
        "c.cmd",
        "s.lnk",
        "x.exe%00.htm",
        "x.exe%2500.htm%00",
        "%2e%2e/%2e%2e/m.exe",
        "%2e%2e%5c%2e%2e%5cm.bat",
        "sub/../../m.exe",
        "x.htm.",
        "x.exe.",
        "x.exe ",
        "x.exe. . .",
        "x.htm:evil.exe",
        "x.exe::$DATA",
        "x.htm::$DATA",
        "CON.htm",
        "nul.txt",
        "COM1.pdf",
        "lpt9.html",
        "/etc/passwd",
        "C:/Windows/System32/calc.exe",
        "C:pagina.htm",
        "\\\\server\\share\\x.htm",
        "//server/share/x.htm",
        "file:///etc/passwd",
        "http://127.0.0.1:9/x.htm",
        "javascript:alert(1)",
        "x.exe.htm.exe",
        "x.hta",
        "x.desktop",
        "x.sh",
        "x.bat",
        "x.com",
        "x.scr",
        "x.pif",
        "x.vbs",
        "x.js",
        "x.wsf",
        "x.ps1",
        "x.msi",
        "x.jar",
        "x.reg",
        "x.cpl",
        "x.url",
        "x.appref-ms",
        "x.settingcontent-ms",
        "x.library-ms",
        "x.htm\x01",
        "x\x1b.htm",
        "x|y.htm",
        "x*.htm",
        "x<y>.htm",
        "x\"y.htm",
        "..",
        ".",
        "/",
        "sub/",
        "pagina",
    };
    for (const char *value : values)
        QTest::newRow(value) << QString::fromLatin1(value);
    QTest::newRow("NUL inside") << QStringLiteral("x.exe") + QChar(0) + QStringLiteral(".htm");
    QTest::newRow("right-to-left override")
        << QStringLiteral("x\u202Emth.exe"); // shows as "xexe.htm"
}

void tst_HelpSecurity::hostileValue()
{
    QFETCH(QString, value);
    QVERIFY(writeFile(m_machine + QStringLiteral("/help/HelpMac.ini"),
                      QStringLiteral("Evil=").toUtf8() + value.toUtf8() + '\n'));
    HelpHangGuard guard(m_tried);
    auto help = construct();
    QVERIFY(help);
    QCOMPARE(indexOf(help.get()).value(QStringLiteral("Evil")), value);
    help->display(QStringLiteral("Evil"));
    ++m_tried;
    QCOMPARE(m_catcher.urls.size(), 1);
    const QUrl url = m_catcher.urls.first();
    m_started += namesAProgram(url);
    QVERIFY2(!namesAProgram(url), qPrintable(url.toString()));
    QCOMPARE(url.toLocalFile(), languageFolder());
    QVERIFY(url.query().isEmpty());
    QVERIFY(url.fragment().isEmpty());
}

// A document's name inside the folder may be a link to anywhere: what counts
// is where it really leads.
void tst_HelpSecurity::linkOutOfTheFolder()
{
#ifdef Q_OS_WIN
    QSKIP("symbolic links need privileges on Windows; the Linux builds cover them");
#else
    const QString outside = m_root.path() + QStringLiteral("/secret.htm");
    QVERIFY(writeFile(outside, "secret"));
    QVERIFY(QFile::link(outside, languageFolder() + QStringLiteral("link.htm")));
    QVERIFY(QFile::link(m_machine + QStringLiteral("/m.exe"),
                        languageFolder() + QStringLiteral("prog.htm")));
    QVERIFY(QFile::link(QStringLiteral("/nowhere/x.htm"),
                        languageFolder() + QStringLiteral("dangling.htm")));
    QVERIFY(QDir().mkpath(languageFolder() + QStringLiteral("folder.htm")));
    QVERIFY(QFile::link(languageFolder() + QStringLiteral("pagina.htm"),
                        languageFolder() + QStringLiteral("inside.htm")));
    QVERIFY(writeFile(m_machine + QStringLiteral("/help/HelpMac.ini"),
                      "A=link.htm\nB=prog.htm\nC=dangling.htm\nD=folder.htm\nE=inside.htm\n"));
    auto help = construct();
    for (const char *topic : {"A", "B", "C", "D"}) {
        m_catcher.urls.clear();
        help->display(QString::fromLatin1(topic));
        ++m_tried;
        QCOMPARE(m_catcher.urls.size(), 1);
        m_started += m_catcher.urls.first().toLocalFile() != languageFolder();
        QCOMPARE(m_catcher.urls.first().toLocalFile(), languageFolder());
    }
    // A link that stays inside the folder is a document like another.
    m_catcher.urls.clear();
    help->display(QStringLiteral("E"));
    QCOMPARE(m_catcher.urls.size(), 1);
    QCOMPARE(m_catcher.urls.first().toLocalFile(), languageFolder() + QStringLiteral("inside.htm"));
#endif
}

// Ordinary documents keep the address they always had.
void tst_HelpSecurity::documentValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("document"); // after the language folder
    QTest::addColumn<QString>("fragment");
    QTest::newRow("htm") << QStringLiteral("pagina.htm") << QStringLiteral("pagina.htm")
                         << QString();
    QTest::newRow("capitals") << QStringLiteral("PAGINA.HTM") << QStringLiteral("PAGINA.HTM")
                              << QString();
    QTest::newRow("html") << QStringLiteral("a.html") << QStringLiteral("a.html") << QString();
    QTest::newRow("pdf") << QStringLiteral("Manuale.pdf") << QStringLiteral("Manuale.pdf")
                         << QString();
    QTest::newRow("chm") << QStringLiteral("guida.chm") << QStringLiteral("guida.chm") << QString();
    QTest::newRow("txt") << QStringLiteral("note.txt") << QStringLiteral("note.txt") << QString();
    QTest::newRow("subfolder") << QStringLiteral("cmd/comandi.htm")
                               << QStringLiteral("cmd/comandi.htm") << QString();
    QTest::newRow("backslash") << QStringLiteral("cmd\\comandi.htm")
                               << QStringLiteral("cmd/comandi.htm") << QString();
    QTest::newRow("inner ..") << QStringLiteral("cmd/../pagina.htm") << QStringLiteral("pagina.htm")
                              << QString();
    QTest::newRow("percent escape")
        << QStringLiteral("la%20pagina.htm") << QStringLiteral("la pagina.htm") << QString();
    QTest::newRow("blank") << QStringLiteral("la pagina.htm") << QStringLiteral("la pagina.htm")
                           << QString();
    QTest::newRow("fragment") << QStringLiteral("pagina.htm#sez2") << QStringLiteral("pagina.htm")
                              << QStringLiteral("sez2");
    QTest::newRow("accents") << QStringLiteral("punto \u00E8 \u4E2D.htm")
                             << QStringLiteral("punto \u00E8 \u4E2D.htm") << QString();
    // A byte order mark is a character of the name wherever it stands: the
    // same document whether it comes first or after a folder that is left.
    QTest::newRow("byte order mark first")
        << QStringLiteral("\uFEFFpagina.htm") << QStringLiteral("\uFEFFpagina.htm") << QString();
    QTest::newRow("byte order mark after ..") << QStringLiteral("cmd/../\uFEFFpagina.htm")
                                              << QStringLiteral("\uFEFFpagina.htm") << QString();
}

void tst_HelpSecurity::documentValue()
{
    QFETCH(QString, value);
    QFETCH(QString, document);
    QFETCH(QString, fragment);
    QVERIFY(writeFile(m_machine + QStringLiteral("/help/HelpMac.ini"),
                      QStringLiteral("T=").toUtf8() + value.toUtf8() + '\n'));
    auto help = construct();
    help->display(QStringLiteral("T"));
    QCOMPARE(m_catcher.urls.size(), 1);
    const QUrl url = m_catcher.urls.first();
    QCOMPARE(url.toLocalFile(), languageFolder() + document);
    QCOMPARE(url.fragment(), fragment);
    QVERIFY(url.host().isEmpty());
}

// '#', '?', '%' and blanks in the machine folder's name are part of the path:
// the address opens that folder's document, not another file.
void tst_HelpSecurity::machineFolderName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("#") << QStringLiteral("M#1");
    QTest::newRow("%41") << QStringLiteral("M%41");
    QTest::newRow("%") << QStringLiteral("M%");
    QTest::newRow("blank") << QStringLiteral("Macchina 1");
    QTest::newRow("semicolon") << QStringLiteral("M;1");
#ifndef Q_OS_WIN
    QTest::newRow("?") << QStringLiteral("M?x=1");
    QTest::newRow("backslash") << QStringLiteral("M\\1");
#endif
}

void tst_HelpSecurity::machineFolderName()
{
    QFETCH(QString, name);
    const QString machine = m_root.path() + QLatin1Char('/') + name;
    QVERIFY(writeFile(machine + QStringLiteral("/help/HelpMac.ini"), "T=pagina.htm\n"));
    setMachine(machine);
    auto help = construct();
    help->display(QStringLiteral("T"));
    ++m_tried;
    QCOMPARE(m_catcher.urls.size(), 1);
    const QUrl url = m_catcher.urls.first();
    QVERIFY(url.isValid());
    QCOMPARE(url.toLocalFile(), machine + QStringLiteral("/help/en/pagina.htm"));
    QVERIFY(url.fragment().isEmpty());
    QVERIFY(url.query().isEmpty());
}

// The address of a help folder on a server. On Windows the server is the
// address's host, as the shell opens it (never C:\server\share on the local
// drive); on Linux "//server" is the root folder "/server".
void tst_HelpSecurity::uncMachineFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("address");
#ifdef Q_OS_WIN
    QTest::newRow("forward slashes")
        << QStringLiteral("//server/share/M1/help/it/x.htm") << QStringLiteral("server")
        << QStringLiteral("file://server/share/M1/help/it/x.htm");
    QTest::newRow("backslashes") << QStringLiteral("\\\\server\\share\\M1\\help\\it\\x.htm")
                                 << QStringLiteral("server")
                                 << QStringLiteral("file://server/share/M1/help/it/x.htm");
    QTest::newRow("drive") << QStringLiteral("D:/Macchine/M1/help/it/pagina.htm") << QString()
                           << QStringLiteral("file:///D:/Macchine/M1/help/it/pagina.htm");
#else
    QTest::newRow("two slashes") << QStringLiteral("//server/share/M1/help/it/x.htm") << QString()
                                 << QStringLiteral("file:///server/share/M1/help/it/x.htm");
    QTest::newRow("drive-like") << QStringLiteral("D:/Macchine/M1/help/it/pagina.htm") << QString()
                                << QStringLiteral("file:///D:/Macchine/M1/help/it/pagina.htm");
#endif
    QTest::newRow("absolute") << QStringLiteral("/opt/m/help/it/x.htm") << QString()
                              << QStringLiteral("file:///opt/m/help/it/x.htm");
    QTest::newRow("hash") << QStringLiteral("/opt/M#1/help/it/x.htm") << QString()
                          << QStringLiteral("file:///opt/M%231/help/it/x.htm");
}

void tst_HelpSecurity::uncMachineFolder()
{
    QFETCH(QString, path);
    QFETCH(QString, host);
    QFETCH(QString, address);
    const QUrl url = NdxComHelp::localAddress(path);
    QCOMPARE(url.host(), host);
    QCOMPARE(url.toString(), address);
}

// Index files that are not files: the warning, an empty index, no wait.
void tst_HelpSecurity::hostileIndexFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("folder") << QStringLiteral("folder");
#ifndef Q_OS_WIN
    QTest::newRow("FIFO") << QStringLiteral("fifo");
    QTest::newRow("link to /dev/zero") << QStringLiteral("zero");
    QTest::newRow("link to /dev/null") << QStringLiteral("null");
    QTest::newRow("dangling link") << QStringLiteral("dangling");
#endif
}

void tst_HelpSecurity::hostileIndexFile()
{
    QFETCH(QString, kind);
    const QString index = m_machine + QStringLiteral("/help/HelpMac.ini");
    QFile::remove(index);
    if (kind == QLatin1String("folder")) {
        QVERIFY(QDir().mkpath(index));
    } else {
#ifndef Q_OS_WIN
        if (kind == QLatin1String("fifo"))
            QCOMPARE(::mkfifo(QFile::encodeName(index).constData(), 0600), 0);
        else if (kind == QLatin1String("zero"))
            QVERIFY(QFile::link(QStringLiteral("/dev/zero"), index));
        else if (kind == QLatin1String("null"))
            QVERIFY(QFile::link(QStringLiteral("/dev/null"), index));
        else
            QVERIFY(QFile::link(m_root.path() + QStringLiteral("/nowhere"), index));
#endif
    }
    HelpHangGuard guard(m_tried);
    QList<BoxRecord> boxes;
    auto help = construct(&boxes);
    ++m_tried;
    QVERIFY(help);
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().title, QStringLiteral("ATTENZIONE"));
    QVERIFY(boxes.first().text.startsWith(QStringLiteral("Impossibile leggere il file ") + index
                                          + QStringLiteral(":\n")));
    QVERIFY(indexOf(help.get()).isEmpty());
    help->display(QStringLiteral("T"));
    QCOMPARE(m_catcher.urls.size(), 1);
    QCOMPARE(m_catcher.urls.first().toLocalFile(), languageFolder());
    QDir(index).removeRecursively();
    QFile::remove(index);
}

// An index beyond the size limit: what comes before the limit is read, the
// line the limit cuts and everything after it are not.
void tst_HelpSecurity::oversizedIndex()
{
    const QString index = m_machine + QStringLiteral("/help/HelpMac.ini");
    QByteArray bytes = "First=pagina.htm\n";
    const QByteArray filler = QByteArray(1000, 'x') + "=y.htm\n";
    while (bytes.size() < NdxComHelp::IndexSizeLimit)
        bytes += filler;
    bytes += "Last=pagina.htm\n";
    QVERIFY(writeFile(index, bytes));
    bytes.clear();
    HelpHangGuard guard(m_tried);
    QList<BoxRecord> boxes;
    auto help = construct(&boxes);
    ++m_tried;
    QVERIFY(boxes.isEmpty());
    const auto &read = indexOf(help.get());
    QCOMPARE(read.value(QStringLiteral("First")), QStringLiteral("pagina.htm"));
    QVERIFY(!read.contains(QStringLiteral("Last")));
    QCOMPARE(read.size(), 2); // "First" and the filler's one key
}

// A line longer than the line limit ends the reading; the lines before it
// stay.
void tst_HelpSecurity::overlongLine()
{
    const QString index = m_machine + QStringLiteral("/help/HelpMac.ini");
    const QByteArray longest = "L=" + QByteArray(NdxComHelp::IndexLineLimit - 2, 'a');
    QVERIFY(writeFile(index,
                      "A=pagina.htm\n" + longest + "\nB=x"
                          + QByteArray(NdxComHelp::IndexLineLimit, 'b') + "\nC=pagina.htm\n"));
    HelpHangGuard guard(m_tried);
    auto help = construct();
    ++m_tried;
    const auto &read = indexOf(help.get());
    QCOMPARE(read.value(QStringLiteral("A")), QStringLiteral("pagina.htm"));
    QCOMPARE(read.value(QStringLiteral("L")).size(), NdxComHelp::IndexLineLimit - 2);
    QVERIFY(!read.contains(QStringLiteral("B")));
    QVERIFY(!read.contains(QStringLiteral("C")));
}

NDXCOM_TEST_MAIN(tst_HelpSecurity)
#include "tst_helpsecurity.moc"
