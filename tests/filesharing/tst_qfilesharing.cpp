// QFileSharing in one process: the set-up and the switch of the protocol,
// open and save with the protocol switched on through the test seam, the
// production state with the protocol switched off, and the texts translated.

#include <QFileSharing>
#include <private/qfilesharing_p.h>

#include "dialogdriver.h"
#include "locktestutil.h"
#include "markingtranslator.h"
#include "ndxcomtest.h"
#include "sharingtest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;
using namespace LockTest;
using namespace SharingTest;

class tst_QFileSharing : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProcess(); }
    void init() { setUpFolder(); }

    // ---- setupPar --------------------------------------------------------

    void constructorState()
    {
        ndxcomSetSharingControl(false);
        QFileSharing off;
        ndxcomSetSharingControl(true);
        QFileSharing on;
        const QFileSharingState a = QFileSharingState::of(off), b = QFileSharingState::of(on);
        QVERIFY(a.noSharing);
        QVERIFY(!b.noSharing);
        for (const QFileSharingState &s : {a, b}) {
            QVERIFY(s.fileName.isEmpty());
            QVERIFY(s.lockName.isEmpty());
            QVERIFY(!s.rdOnly);
            QCOMPARE(s.lockPid, 0LL);
            QCOMPARE(s.lockTime, 0LL);
            QVERIFY(s.lockComputer.isEmpty());
            QVERIFY(s.lockUser.isEmpty());
            QCOMPARE(s.pid, m_pid);
        }
        QVERIFY(!on.isOpenRdOnly());
        QObject parent;
        auto *child = new QFileSharing(&parent);
        QCOMPARE(child->parent(), &parent);
        QCOMPARE(QLatin1String(QFileSharing::staticMetaObject.className()),
                 QLatin1String("QFileSharing"));
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        QCOMPARE(QFileSharing::trUtf8("x"), QStringLiteral("x"));
#endif
    }

    // open() sets the object up again: the switch follows the seam at every
    // open, whatever it was at construction.
    void openRefreshesSetup()
    {
        ndxcomSetSharingControl(false);
        QFileSharing sharing;
        QVERIFY(QFileSharingState::of(sharing).noSharing);
        ndxcomSetSharingControl(true);
        openReadWrite(sharing, project());
        QVERIFY(!QFileSharingState::of(sharing).noSharing);
        QVERIFY(QFile::exists(projectLock()));

        QFileSharing second;
        ndxcomSetSharingControl(false);
        const QString other = path(QStringLiteral("Altro.ndx"));
        QVERIFY(second.open(other));
        QVERIFY(QFileSharingState::of(second).noSharing);
        QVERIFY(!QFile::exists(path(QStringLiteral("Altro.~lock"))));
        // close() does not set up again: the first object still runs the
        // protocol it was set up for at its open.
        sharing.close();
        QVERIFY(!QFile::exists(projectLock()));
        ndxcomSetSharingControl(true);
    }

    // The public switch and the test seam are one state: an application that
    // switches the protocol on gets lock files, one that switches it off gets
    // none, whichever of the two calls set it.
    void publicSwitch_data()
    {
        QTest::addColumn<bool>("viaPublic");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("public on") << true << true;
        QTest::newRow("public off") << true << false;
        QTest::newRow("seam on") << false << true;
        QTest::newRow("seam off") << false << false;
    }

    void publicSwitch()
    {
        QFETCH(bool, viaPublic);
        QFETCH(bool, enabled);
        // Start from the opposite, so a call that does nothing is seen.
        QFileSharing::setSharingControlEnabled(!enabled);
        QCOMPARE(QFileSharing::sharingControlEnabled(), !enabled);
        if (viaPublic)
            QFileSharing::setSharingControlEnabled(enabled);
        else
            ndxcomSetSharingControl(enabled);
        QCOMPARE(QFileSharing::sharingControlEnabled(), enabled);

        QFileSharing sharing;
        QCOMPARE(QFileSharingState::of(sharing).noSharing, !enabled);
        openReadWrite(sharing, project());
        QCOMPARE(QFile::exists(projectLock()), enabled);
        sharing.close();
        QVERIFY(!QFile::exists(projectLock()));
        ndxcomSetSharingControl(true);
    }

    // No setting decides the switch.
    void switchIgnoresSettings()
    {
        {
            QSettings settings;
            settings.beginGroup(QStringLiteral("Environment"));
            for (const char *key : {"NoSharing", "bNoSharing", "FileSharing", "Sharing"}) {
                settings.setValue(QLatin1String(key), false);
                settings.setValue(QLatin1String(key) + QStringLiteral("Enabled"), true);
            }
            settings.endGroup();
        }
        ndxcomSetSharingControl(false);
        QFileSharing sharing;
        QVERIFY(QFileSharingState::of(sharing).noSharing);
        QVERIFY(sharing.open(project()));
        QVERIFY(!QFile::exists(projectLock()));
        QSettings().remove(QStringLiteral("Environment"));
    }

    // ---- open ------------------------------------------------------------

    void openFree()
    {
        QFileSharing sharing;
        openReadWrite(sharing, project());
        const QFileSharingState s = QFileSharingState::of(sharing);
        QCOMPARE(s.fileName, project());
        QCOMPARE(s.lockName, projectLock());
        QVERIFY(!s.rdOnly);
        QCOMPARE(readFile(projectLock()).left(8), int64le(m_pid));
        QCOMPARE(sharing.TstFileLocked(project()), 1);
    }

    void openLockedByOther_data()
    {
        QTest::addColumn<QString>("computer");
        QTest::addColumn<QString>("user");
        QTest::addColumn<Action>("action");
        QTest::addColumn<bool>("result");
        QTest::newRow("other computer, Si") << "PC-UFFICIO" << m_user << Si << true;
        QTest::newRow("other computer, No") << "PC-UFFICIO" << m_user << No << false;
        QTest::newRow("other user, Si") << m_computer << "giovanna" << Si << true;
        QTest::newRow("other user, No") << m_computer << "giovanna" << No << false;
        QTest::newRow("other user, Escape")
            << m_computer << "giovanna" << Action::escape() << false;
        QTest::newRow("other user, closed") << m_computer << "giovanna" << Action::close() << false;
        QTest::newRow("case differs")
            << m_computer.toUpper() + QStringLiteral("x") << m_user.toUpper() << Si << true;
    }

    void openLockedByOther()
    {
        QFETCH(QString, computer);
        QFETCH(QString, user);
        QFETCH(Action, action);
        QFETCH(bool, result);
        const QByteArray lock = record(4711, 77, computer, user);
        QVERIFY(writeFile(projectLock(), lock));
        QFileSharing sharing;
        bool ok = !result;
        DialogDriver driver;
        const auto boxes = driver.run([&] { ok = sharing.open(project()); }, {action});
        QCOMPARE(boxes.size(), 1);
        checkQuestion(boxes.first(), OpenQuestion.arg(computer, user));
        QCOMPARE(ok, result);
        QCOMPARE(sharing.isOpenRdOnly(), result);
        const QFileSharingState s = QFileSharingState::of(sharing);
        QCOMPARE(s.fileName, project());
        QCOMPARE(s.lockName, projectLock());
        QCOMPARE(s.lockPid, 4711LL);
        QCOMPARE(s.lockTime, 77LL);
        QCOMPARE(readFile(projectLock()), lock); // another's lock is never touched
        // Read-only holds no lock of its own: close leaves the other's lock.
        sharing.close();
        QCOMPARE(readFile(projectLock()), lock);
        QCOMPARE(QFileSharingState::of(sharing).fileName, project());
    }

    // The read-only question also comes for the process's own lock, naming
    // this computer and user.
    void openOwnLock()
    {
        QFileSharing first;
        openReadWrite(first, project());
        const QByteArray lock = readFile(projectLock());
        QFileSharing second;
        bool ok = false;
        BoxRecord box = driveOne([&] { ok = second.open(project()); }, Si);
        checkQuestion(box, OpenQuestion.arg(m_computer, m_user));
        QVERIFY(ok);
        QVERIFY(second.isOpenRdOnly());
        QCOMPARE(readFile(projectLock()), lock);

        // The same object asks too, when it opens its own project again.
        box = driveOne([&] { ok = first.open(project()); }, No);
        checkQuestion(box, OpenQuestion.arg(m_computer, m_user));
        QVERIFY(!ok);
        QVERIFY(!first.isOpenRdOnly());
        first.close();
        QVERIFY(!QFile::exists(projectLock()));
    }

    // A lock of this user from another process is a leftover: step 3 removes
    // it and the project opens read-write without a question.
    void openStaleLock()
    {
        QVERIFY(writeFile(projectLock(), ownRecord(m_pid + 1)));
        QFileSharing sharing;
        openReadWrite(sharing, project());
        QCOMPARE(readFile(projectLock()).left(8), int64le(m_pid));
    }

    // A lock that cannot be created: false, no message, nothing written.
    void openCannotCreate()
    {
        const QString file = path(QStringLiteral("missing/Calza.ndx"));
        QFileSharing sharing;
        DialogDriver driver;
        bool ok = true;
        const auto boxes = driver.run([&] { ok = sharing.open(file); });
        QVERIFY(boxes.isEmpty());
        QVERIFY(!ok);
        QVERIFY(!sharing.isOpenRdOnly());
        QCOMPARE(QFileSharingState::of(sharing).fileName, file);
        QVERIFY(!QDir(path(QStringLiteral("missing"))).exists());
    }

    // A lock that cannot be written (a full disk): false, no message, and the
    // file it created is not left behind half-written.
    void openCannotWrite()
    {
        NDXCOM_FULL_DISK_SKIP();
#ifndef Q_OS_WIN
        QFileSharing sharing;
        DialogDriver driver;
        bool ok = true;
        QList<BoxRecord> boxes;
        {
            FileSizeLimit limit(10);
            QVERIFY(limit.ok());
            boxes = driver.run([&] { ok = sharing.open(project()); });
        }
        QVERIFY(boxes.isEmpty());
        QVERIFY(!ok);
        QVERIFY(!QFileInfo::exists(projectLock()));
        openReadWrite(sharing, project());
        sharing.close();
#endif
    }

    // A lock that exists but cannot be read: false, no message.
    void openUnreadableLock()
    {
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("Calza.~lock")));
        QFileSharing sharing;
        DialogDriver driver;
        bool ok = true;
        const auto boxes = driver.run([&] { ok = sharing.open(project()); });
        QVERIFY(boxes.isEmpty());
        QVERIFY(!ok);
        QVERIFY(QFileInfo(projectLock()).isDir());
    }

    // ---- save ------------------------------------------------------------

    void save_data()
    {
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<bool>("renameBefore");
        QTest::addColumn<Action>("action");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("result");
        QTest::addColumn<bool>("renameAfter");
        QTest::newRow("read-write, rename false") << false << false << Si << false << true << false;
        QTest::newRow("read-write, rename true") << false << true << Si << false << true << true;
        QTest::newRow("read-only, Si") << true << false << Si << true << true << true;
        QTest::newRow("read-only, Si, rename true") << true << true << Si << true << true << true;
        QTest::newRow("read-only, No") << true << false << No << true << false << false;
        QTest::newRow("read-only, No, rename true") << true << true << No << true << false << true;
        QTest::newRow("read-only, Escape")
            << true << false << Action::escape() << true << false << false;
    }

    void save()
    {
        QFETCH(bool, readOnly);
        QFETCH(bool, renameBefore);
        QFETCH(Action, action);
        QFETCH(bool, asked);
        QFETCH(bool, result);
        QFETCH(bool, renameAfter);
        QFileSharing sharing;
        if (readOnly) {
            QVERIFY(writeFile(projectLock(), record(1, 2, QStringLiteral("PC2"), m_user)));
            bool ok = false;
            driveOne([&] { ok = sharing.open(project()); }, Si);
            QVERIFY(ok && sharing.isOpenRdOnly());
        } else {
            openReadWrite(sharing, project());
        }
        bool rename = renameBefore;
        bool ok = !result;
        DialogDriver driver;
        const auto boxes = driver.run([&] { ok = sharing.save(rename); }, {action});
        QCOMPARE(boxes.size(), asked ? 1 : 0);
        if (asked)
            checkQuestion(boxes.first(), SaveQuestion);
        QCOMPARE(ok, result);
        QCOMPARE(rename, renameAfter);
        QCOMPARE(sharing.isOpenRdOnly(), readOnly);
    }

    // ---- production state ------------------------------------------------

    // Sharing control off, as every installation runs: open, save, saveAs
    // succeed without touching the disk and close does nothing, while
    // TstFileLocked and unlock still act on lock files.
    void productionState()
    {
        ndxcomSetSharingControl(false);
        QFileSharing sharing;
        QVERIFY(QFileSharingState::of(sharing).noSharing);
        DialogDriver driver;
        QList<BoxRecord> boxes;
        bool ok = false;

        // A project in use by someone else opens without a question.
        const QByteArray foreign = record(9, 9, QStringLiteral("PC2"), QStringLiteral("anna"));
        QVERIFY(writeFile(projectLock(), foreign));
        boxes = driver.run([&] { ok = sharing.open(project()); });
        QVERIFY(ok);
        QVERIFY(!sharing.isOpenRdOnly());
        QCOMPARE(readFile(projectLock()), foreign);
        QVERIFY(QFileSharingState::of(sharing).fileName.isEmpty());

        // A free project: no lock is written.
        const QString free = path(QStringLiteral("Libero.ndx"));
        boxes += driver.run([&] { ok = sharing.open(free); });
        QVERIFY(ok);
        QVERIFY(!QFile::exists(path(QStringLiteral("Libero.~lock"))));

        bool rename = false;
        boxes += driver.run([&] { ok = sharing.save(rename); });
        QVERIFY(ok);
        QVERIFY(!rename);
        rename = true;
        QVERIFY(sharing.save(rename));
        QVERIFY(rename);

        // saveAs onto another's project, and onto a folder that does not exist.
        boxes += driver.run([&] { ok = sharing.saveAs(project()); });
        QVERIFY(ok);
        boxes += driver.run([&] { ok = sharing.saveAs(path(QStringLiteral("no/Nuovo.ndx"))); });
        QVERIFY(ok);
        QVERIFY(!QDir(path(QStringLiteral("no"))).exists());
        QCOMPARE(readFile(projectLock()), foreign);

        // close leaves even this process's own lock.
        const QByteArray own = ownRecord(m_pid);
        QVERIFY(writeFile(projectLock(), own));
        boxes += driver.run([&] { sharing.close(); });
        QCOMPARE(readFile(projectLock()), own);
        QVERIFY(boxes.isEmpty());
        QVERIFY(QFileSharingState::of(sharing).fileName.isEmpty());
        QVERIFY(QFileSharingState::of(sharing).lockName.isEmpty());

        // TstFileLocked and unlock act on lock files.
        QCOMPARE(sharing.TstFileLocked(project()), 1);
        QVERIFY(writeFile(projectLock(), foreign));
        QCOMPARE(sharing.TstFileLocked(project()), 2);
        QVERIFY(writeFile(projectLock(), ownRecord(m_pid + 1)));
        QCOMPARE(sharing.TstFileLocked(project()), 0);
        QVERIFY(!QFile::exists(projectLock()));
        QCOMPARE(sharing.TstFileLocked(project()), 0);

        QVERIFY(writeFile(projectLock(), foreign));
        BoxRecord box = driveOne([&] { ok = sharing.unlock(project()); }, No);
        checkQuestion(box, UnlockQuestion.arg(QStringLiteral("PC2"), QStringLiteral("anna")));
        QVERIFY(!ok);
        QVERIFY(QFile::exists(projectLock()));
        box = driveOne([&] { ok = sharing.unlock(project()); }, Si);
        checkQuestion(box, UnlockQuestion.arg(QStringLiteral("PC2"), QStringLiteral("anna")));
        QVERIFY(ok);
        QVERIFY(!QFile::exists(projectLock()));

        // The switch stays off at every open.
        QVERIFY(sharing.open(project()));
        QVERIFY(QFileSharingState::of(sharing).noSharing);
        QVERIFY(!QFile::exists(projectLock()));
    }

    // ---- texts -----------------------------------------------------------

    // The four texts are translated in the context QFileSharing, then filled.
    void textsAreTranslated()
    {
        NdxComTest::MarkingTranslator translator("QFileSharing", QStringLiteral("[tr] "),
                                                 QString());
        QCoreApplication::installTranslator(&translator);
        QFileSharing sharing;
        QVERIFY(
            writeFile(projectLock(), record(1, 2, QStringLiteral("PC2"), QStringLiteral("anna"))));
        QStringList texts;
        texts << driveOne([&] { sharing.open(project()); }, Si).text;
        bool rename = false;
        texts << driveOne([&] { sharing.save(rename); }, No).text;
        texts << driveOne([&] { sharing.saveAs(project()); }, Action::click(QStringLiteral("Ok")))
                     .text;
        texts << driveOne([&] { sharing.unlock(project()); }, No).text;
        QCoreApplication::removeTranslator(&translator);

        const QString tag = QStringLiteral("[tr] ");
        QCOMPARE(
            texts,
            QStringList({tag + OpenQuestion.arg(QStringLiteral("PC2"), QStringLiteral("anna")),
                         tag + SaveQuestion, tag + SaveAsWarning,
                         tag + UnlockQuestion.arg(QStringLiteral("PC2"), QStringLiteral("anna"))}));
        QStringList sources;
        for (const auto &a : translator.asked) {
            if (a.first == "QFileSharing")
                sources << QString::fromUtf8(a.second);
        }
        QCOMPARE(sources, QStringList({OpenQuestion, SaveQuestion, SaveAsWarning, UnlockQuestion}));
        QVERIFY(SaveQuestion.contains(QChar(0xe8)));
    }
};

NDXCOM_TEST_MAIN(tst_QFileSharing)
#include "tst_qfilesharing.moc"
