// The library's diagnostics: with QT_LOGGING_RULES="ndxcom.*=true" each
// failure says, in one line of its category, what failed, where and why; by
// default nothing at all is printed.

#include <QFileSharing>
#include <QNodrixCom>
#include <QNodrixHelp>
#include <QNodrixMessageBox>
#include <QNodrixRegistry>
#include <private/qnodrixhelp_p.h>

#include "ndxcomtest.h"
#include "urlcatcher.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QProcess>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtGui/QDesktopServices>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <functional>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#include <unistd.h>
#endif

// A failure to provoke, in a folder of its own.
using Failure = std::function<void(const QString &)>;
Q_DECLARE_METATYPE(Failure)

namespace {

// Every warning of an "ndxcom." category while it is installed, and nothing
// passed on: the test decides what is expected. (Debug lines, such as the
// size of an index read, tell what went well and are not counted.)
class Capture
{
public:
    explicit Capture(bool diagnostics)
    {
        QLoggingCategory::setFilterRules(diagnostics ? QStringLiteral("ndxcom.*=true") : QString());
        s_lines.clear();
        m_previous = qInstallMessageHandler(&Capture::handler);
    }
    ~Capture()
    {
        qInstallMessageHandler(m_previous);
        QLoggingCategory::setFilterRules(QString());
    }
    static QStringList lines() { return s_lines; }

private:
    static void handler(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        const QString category = QString::fromLatin1(context.category ? context.category : "");
        if (type != QtDebugMsg && category.startsWith(QLatin1String("ndxcom.")))
            s_lines << category + QLatin1String(": ") + message;
    }
    static QStringList s_lines;
    QtMessageHandler m_previous;
};
QStringList Capture::s_lines;

using NdxComTest::writeFile;

} // namespace

class tst_Diagnostics : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void failure_data();
    void failure();
    void lockInReadOnlyFolder_data();
    void lockInReadOnlyFolder();

private:
    QTemporaryDir m_root;
    UrlCatcher m_catcher;
};

void tst_Diagnostics::initTestCase()
{
    QVERIFY(m_root.isValid());
    QFileSharing::setSharingControlEnabled(true);
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_catcher, "open");
}

void tst_Diagnostics::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QFileSharing::setSharingControlEnabled(false);
}

// Each row: a failure, and what its one line must say.
void tst_Diagnostics::failure_data()
{
    QTest::addColumn<Failure>("fail");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QStringList>("says");

    QTest::newRow("lock in a folder that does not exist")
        << Failure([](const QString &root) {
               QFileSharing sharing(nullptr);
               QVERIFY(!sharing.open(root + QStringLiteral("/nowhere/Calza.ndx")));
           })
        << QStringLiteral("ndxcom.filesharing")
        << QStringList {QStringLiteral("lock not created:"),
                        QStringLiteral("/nowhere/Calza.~lock")};

#ifndef Q_OS_WIN
    QTest::newRow("lock that is a FIFO") << Failure([](const QString &root) {
        const QString project = root + QStringLiteral("/fifo/Calza.ndx");
        QVERIFY(QDir().mkpath(root + QStringLiteral("/fifo")));
        const QByteArray fifo = QFile::encodeName(root + QStringLiteral("/fifo/Calza.~lock"));
        QVERIFY(::mkfifo(fifo.constData(), 0600) == 0);
        QFileSharing sharing(nullptr);
        QCOMPARE(sharing.TstFileLocked(project), 2);
    }) << QStringLiteral("ndxcom.filesharing")
                                         << QStringList {QStringLiteral("lock not read:"),
                                                         QStringLiteral("/fifo/Calza.~lock"),
                                                         QStringLiteral("not a regular file")};

    QTest::newRow("settings store that is a folder")
        << Failure([](const QString &) {
               const QString file = QSettings().fileName();
               QFile::remove(file);
               QVERIFY(QDir().mkpath(file));
               {
                   QNodrixRegistry registry(nullptr);
                   registry.setGridColor(5);
               }
               QVERIFY(QDir(file).removeRecursively());
           })
        << QStringLiteral("ndxcom.registry")
        << QStringList {QStringLiteral("settings store not written:"), QSettings().fileName(),
                        QStringLiteral("not a regular file")};
#endif

    QTest::newRow("help document outside its folder")
        << Failure([](const QString &root) {
               const QString machine = root + QStringLiteral("/Macchine/M1");
               {
                   QNodrixRegistry registry(nullptr);
                   registry.setLastMachine(QStringLiteral("M1"));
                   registry.setMachinePath(machine);
                   registry.setLanguage(QNodrixRegistry::eLanguageType(1)); // en
               }
               QVERIFY(writeFile(machine + QNodrixCom::machineHelpFolder()
                                     + QNodrixCom::machineHelpFile(),
                                 "Topic=../../m.exe\n"));
               QNodrixHelp help;
               help.display(QStringLiteral("Topic"));
           })
        << QStringLiteral("ndxcom.help")
        << QStringList {QStringLiteral("help document refused for topic"),
                        QStringLiteral("\"../../m.exe\"")};

    QTest::newRow("help index line beyond the limit")
        << Failure([](const QString &) {
               QHash<QString, QString> index;
               NdxComHelp::readHelpIndex(
                   "a=b.htm\n" + QByteArray(NdxComHelp::IndexLineLimit + 1, 'x') + '\n', index,
                   false);
               QCOMPARE(index.size(), 1);
           })
        << QStringLiteral("ndxcom.help")
        << QStringList {QStringLiteral("a line longer than"), QStringLiteral("after 1 topics")};

    QTest::newRow("advisory value without a text")
        << Failure([](const QString &) {
               QNodrixMessageBox::execProjectSchemeAdvisor(QNodrixMessageBox::enSchemeAdvisor(9999),
                                                           QStringLiteral("x"));
           })
        << QStringLiteral("ndxcom.messages")
        << QStringList {QStringLiteral("advisory value 9999 has no text")};
}

void tst_Diagnostics::failure()
{
    QFETCH(Failure, fail);
    QFETCH(QString, category);
    QFETCH(QStringList, says);

    // Off, as every application has it: nothing.
    QTemporaryDir quiet(m_root.path() + QStringLiteral("/quiet-XXXXXX"));
    {
        Capture capture(false);
        fail(quiet.path());
        QCOMPARE(Capture::lines(), QStringList());
    }

    // On: one line of its category, saying what, where and why.
    QTemporaryDir loud(m_root.path() + QStringLiteral("/loud-XXXXXX"));
    Capture capture(true);
    fail(loud.path());
    const QStringList lines = Capture::lines();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().startsWith(category + QLatin1String(": ")), qPrintable(lines.first()));
    for (const QString &part : says)
        QVERIFY2(lines.first().contains(part), qPrintable(lines.first()));
}

// Another process, as a workstation runs it: a project in a folder this user
// cannot write. Its standard error holds the one line, with the folder and
// the system's error, only when the rules ask for it.
void tst_Diagnostics::lockInReadOnlyFolder_data()
{
    QTest::addColumn<bool>("diagnostics");
    QTest::newRow("off") << false;
    QTest::newRow("ndxcom.*=true") << true;
}

void tst_Diagnostics::lockInReadOnlyFolder()
{
#ifdef Q_OS_WIN
    QSKIP("a Windows folder's read-only attribute does not keep files out of it; the row "
          "'lock in a folder that does not exist' covers Windows");
#else
    QFETCH(bool, diagnostics);
    // root writes into any folder: the workstation then runs without the
    // capabilities that let it, and the folder's permissions hold for it too.
    QStringList command {QStringLiteral(NDXCOM_LOCKHOLDER)};
    if (::geteuid() == 0) {
        const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
        if (setpriv.isEmpty())
            QSKIP("running as root without setpriv (util-linux) to take the capability of "
                  "writing anywhere away from the workstation");
        command.prepend(QStringLiteral("--bounding-set=-dac_override,-dac_read_search"));
        command.prepend(setpriv);
    }
    // A folder everyone can enter and read, and nobody write.
    const QString folder
        = QStringLiteral("/tmp/ndxcom-readonly-%1").arg(QCoreApplication::applicationPid());
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(::chmod(QFile::encodeName(folder).constData(), 0555) == 0);
    const auto removeFolder = qScopeGuard([&] { QDir(folder).removeRecursively(); });

    QProcess holder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (diagnostics)
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("ndxcom.*=true"));
    else
        environment.remove(QStringLiteral("QT_LOGGING_RULES"));
    holder.setProcessEnvironment(environment);
    holder.setWorkingDirectory(QStringLiteral("/"));
    holder.start(command.takeFirst(), command);
    QVERIFY2(holder.waitForStarted(30000), qPrintable(holder.errorString()));
    QVERIFY(holder.waitForReadyRead(30000));
    QVERIFY2(holder.readLine().startsWith("ready"), "the workstation did not start");
    holder.write("open " + QFile::encodeName(folder) + "/Calza.ndx\n");
    QVERIFY(holder.waitForReadyRead(30000));
    QCOMPARE(holder.readLine().trimmed(), QByteArray("open no 0"));
    holder.write("quit\n");
    QVERIFY(holder.waitForFinished(30000));

    const QStringList lines = QString::fromLocal8Bit(holder.readAllStandardError())
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                                  .filter(QStringLiteral("ndxcom"));
    if (!diagnostics) {
        QCOMPARE(lines, QStringList());
        return;
    }
    QCOMPARE(lines.size(), 1);
    const QString line = lines.first();
    QVERIFY2(line.contains(QLatin1String("lock not created:")), qPrintable(line));
    QVERIFY2(line.contains(folder + QLatin1String("/Calza.~lock")), qPrintable(line));
    QVERIFY2(line.contains(qt_error_string(EACCES)), qPrintable(line));
#endif
}

NDXCOM_TEST_MAIN(tst_Diagnostics)
#include "tst_diagnostics.moc"
