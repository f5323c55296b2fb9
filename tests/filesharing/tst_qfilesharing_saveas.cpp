// QFileSharing's saveAs, close and destructor with the protocol switched on
// through the test seam: which lock is taken, kept and released.

#include <QFileSharing>
#include <private/qfilesharing_p.h>

#include "dialogdriver.h"
#include "locktestutil.h"
#include "ndxcomtest.h"
#include "sharingtest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace NdxComTest;
using namespace LockTest;
using namespace SharingTest;

class tst_QFileSharing_SaveAs : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProcess(); }
    void init() { setUpFolder(); }

    // ---- saveAs ----------------------------------------------------------

    void saveAsFree()
    {
        QFileSharing sharing;
        openReadWrite(sharing, project());
        const QString target = path(QStringLiteral("Nuovo.ndx"));
        const QString targetLock = path(QStringLiteral("Nuovo.~lock"));
        DialogDriver driver;
        bool ok = false;
        const auto boxes = driver.run([&] { ok = sharing.saveAs(target); });
        QVERIFY(boxes.isEmpty());
        QVERIFY(ok);
        const QFileSharingState s = QFileSharingState::of(sharing);
        QCOMPARE(s.fileName, target);
        QCOMPARE(s.lockName, targetLock);
        QCOMPARE(readFile(targetLock).left(8), int64le(m_pid));
        // The previous lock is not released by saveAs.
        QVERIFY(QFile::exists(projectLock()));
        sharing.close();
        QVERIFY(!QFile::exists(targetLock));
        QVERIFY(QFile::exists(projectLock()));
        QVERIFY(QFileSharingState::of(sharing).fileName.isEmpty());
    }

    // saveAs moves a read-only object to the new path, read-write.
    void saveAsClearsReadOnly()
    {
        QVERIFY(writeFile(projectLock(), record(1, 2, QStringLiteral("PC2"), m_user)));
        QFileSharing sharing;
        driveOne([&] { sharing.open(project()); }, Si);
        QVERIFY(sharing.isOpenRdOnly());
        const QString target = path(QStringLiteral("Copia.ndx"));
        QVERIFY(sharing.saveAs(target));
        QVERIFY(!sharing.isOpenRdOnly());
        bool rename = false;
        QVERIFY(sharing.save(rename));
        QVERIFY(!rename);
        sharing.close();
        QVERIFY(!QFile::exists(path(QStringLiteral("Copia.~lock"))));
    }

    // The same user's lock, from another process or this one: true, without
    // taking the lock or changing the object.
    void saveAsSameUser_data()
    {
        QTest::addColumn<qint64>("pidOffset");
        QTest::newRow("other process") << 1LL;
        QTest::newRow("this process") << 0LL;
    }

    void saveAsSameUser()
    {
        QFETCH(qint64, pidOffset);
        const QString target = path(QStringLiteral("Nuovo.ndx"));
        const QString targetLock = path(QStringLiteral("Nuovo.~lock"));
        const QByteArray lock = ownRecord(m_pid + pidOffset);
        QVERIFY(writeFile(targetLock, lock));
        QFileSharing sharing;
        openReadWrite(sharing, project());
        const QFileSharingState before = QFileSharingState::of(sharing);
        DialogDriver driver;
        bool ok = false;
        const auto boxes = driver.run([&] { ok = sharing.saveAs(target); });
        QVERIFY(boxes.isEmpty());
        QVERIFY(ok);
        const QFileSharingState after = QFileSharingState::of(sharing);
        QCOMPARE(after.fileName, before.fileName);
        QCOMPARE(after.lockName, before.lockName);
        QCOMPARE(after.rdOnly, before.rdOnly);
        QCOMPARE(readFile(targetLock), lock);
    }

    void saveAsSameUserKeepsReadOnly()
    {
        QVERIFY(writeFile(projectLock(), record(1, 2, QStringLiteral("PC2"), m_user)));
        QVERIFY(writeFile(path(QStringLiteral("Nuovo.~lock")), ownRecord(m_pid + 3)));
        QFileSharing sharing;
        driveOne([&] { sharing.open(project()); }, Si);
        QVERIFY(sharing.isOpenRdOnly());
        QVERIFY(sharing.saveAs(path(QStringLiteral("Nuovo.ndx"))));
        QVERIFY(sharing.isOpenRdOnly());
        QCOMPARE(QFileSharingState::of(sharing).fileName, project());
    }

    void saveAsInUse_data()
    {
        QTest::addColumn<QByteArray>("lock"); // empty: a folder
        QTest::newRow("other computer") << record(9, 9, QStringLiteral("PC-UFFICIO"), m_user);
        QTest::newRow("other user") << record(9, 9, m_computer, QStringLiteral("giovanna"));
        QTest::newRow("own pid, other computer")
            << record(m_pid, 9, QStringLiteral("PC-UFFICIO"), m_user);
        QTest::newRow("damaged") << ownRecord(m_pid).left(22);
        QTest::newRow("folder") << QByteArray();
    }

    void saveAsInUse()
    {
        QFETCH(QByteArray, lock);
        const QString target = path(QStringLiteral("Nuovo.ndx"));
        const QString targetLock = path(QStringLiteral("Nuovo.~lock"));
        if (lock.isEmpty())
            QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("Nuovo.~lock")));
        else
            QVERIFY(writeFile(targetLock, lock));
        QFileSharing sharing;
        openReadWrite(sharing, project());
        const QFileSharingState before = QFileSharingState::of(sharing);
        bool ok = true;
        int boxes = 0;
        const BoxRecord box = driveOne([&] { ok = sharing.saveAs(target); },
                                       Action::click(QStringLiteral("Ok")), &boxes);
        QCOMPARE(boxes, 1);
        checkWarning(box);
        QVERIFY(!ok);
        const QFileSharingState after = QFileSharingState::of(sharing);
        QCOMPARE(after.fileName, before.fileName);
        QCOMPARE(after.lockName, before.lockName);
        if (!lock.isEmpty())
            QCOMPARE(readFile(targetLock), lock);
        sharing.close();
        QVERIFY(!QFile::exists(projectLock()));
    }

    // A lock that cannot be created at the new path: the warning, and the
    // object keeps its file but takes the new lock path.
    void saveAsCannotCreate()
    {
        QFileSharing sharing;
        openReadWrite(sharing, project());
        const QString target = path(QStringLiteral("missing/Nuovo.ndx"));
        bool ok = true;
        int boxes = 0;
        const BoxRecord box = driveOne([&] { ok = sharing.saveAs(target); },
                                       Action::click(QStringLiteral("Ok")), &boxes);
        QCOMPARE(boxes, 1);
        checkWarning(box);
        QVERIFY(!ok);
        const QFileSharingState s = QFileSharingState::of(sharing);
        QCOMPARE(s.fileName, project());
        QCOMPARE(s.lockName, path(QStringLiteral("missing/Nuovo.~lock")));
        sharing.close();
        QVERIFY(!QFile::exists(projectLock()));
    }

    void saveAsCannotWrite()
    {
        NDXCOM_FULL_DISK_SKIP();
#ifndef Q_OS_WIN
        QFileSharing sharing;
        openReadWrite(sharing, project());
        const QString target = path(QStringLiteral("Nuovo.ndx"));
        bool ok = true;
        int boxes = 0;
        BoxRecord box;
        {
            FileSizeLimit limit(10);
            QVERIFY(limit.ok());
            box = driveOne([&] { ok = sharing.saveAs(target); },
                           Action::click(QStringLiteral("Ok")), &boxes);
        }
        QCOMPARE(boxes, 1);
        checkWarning(box);
        QVERIFY(!ok);
        QVERIFY(!QFileInfo::exists(path(QStringLiteral("Nuovo.~lock"))));
        QCOMPARE(QFileSharingState::of(sharing).fileName, project());
        sharing.close();
        QVERIFY(!QFile::exists(projectLock()));
#endif
    }

    // ---- close -----------------------------------------------------------

    void closeOwn()
    {
        QFileSharing sharing;
        openReadWrite(sharing, project());
        sharing.close();
        QVERIFY(!QFile::exists(projectLock()));
        QVERIFY(QFileSharingState::of(sharing).fileName.isEmpty());
        sharing.close(); // nothing left to do
        QVERIFY(!QFile::exists(projectLock()));
    }

    // close never deletes a lock that is not this process's own.
    void closeForeign_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::newRow("same user, other process") << ownRecord(m_pid + 1);
        QTest::newRow("other computer, own pid") << record(m_pid, 1, QStringLiteral("PC2"), m_user);
        QTest::newRow("other user, own pid")
            << record(m_pid, 1, m_computer, QStringLiteral("giovanna"));
        QTest::newRow("damaged") << ownRecord(m_pid).chopped(1);
        QTest::newRow("empty") << QByteArray();
    }

    void closeForeign()
    {
        QFETCH(QByteArray, lock);
        QFileSharing sharing;
        openReadWrite(sharing, project());
        QVERIFY(writeFile(projectLock(), lock));
        sharing.close();
        QVERIFY(QFile::exists(projectLock()));
        QCOMPARE(readFile(projectLock()), lock);
        QCOMPARE(QFileSharingState::of(sharing).fileName, project());
    }

    void closeLockGone()
    {
        QFileSharing sharing;
        openReadWrite(sharing, project());
        QVERIFY(QFile::remove(projectLock()));
        sharing.close();
        QCOMPARE(QFileSharingState::of(sharing).fileName, project());
        QFileSharing never;
        never.close();
        QVERIFY(QFileSharingState::of(never).fileName.isEmpty());
    }

    // The destructor leaves the lock; the same user's next open takes it as
    // stale.
    void destructorKeepsLock()
    {
        {
            QFileSharing sharing;
            openReadWrite(sharing, project());
        }
        QVERIFY(QFile::exists(projectLock()));
        // A later run of this user (another pid) finds it stale.
        QVERIFY(writeFile(projectLock(), ownRecord(m_pid + 100)));
        QFileSharing next;
        QCOMPARE(next.TstFileLocked(project()), 0);
        QVERIFY(!QFile::exists(projectLock()));
    }
};

NDXCOM_TEST_MAIN(tst_QFileSharing_SaveAs)
#include "tst_qfilesharing_saveas.moc"
