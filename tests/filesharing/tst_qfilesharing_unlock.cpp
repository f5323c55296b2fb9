// QFileSharing's TstFileLocked and unlock: whose lock stands at a project's
// name, the leftovers removed, and another's lock removed on request.

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

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

using namespace NdxComTest;
using namespace LockTest;
using namespace SharingTest;

class tst_QFileSharing_Unlock : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProcess(); }
    void init() { setUpFolder(); }

    // ---- TstFileLocked ---------------------------------------------------

    void tstFileLocked_data()
    {
        QTest::addColumn<int>("kind"); // 0 none, 1 bytes, 2 folder
        QTest::addColumn<QByteArray>("lock");
        QTest::addColumn<int>("result");
        QTest::addColumn<bool>("kept");
        QTest::newRow("no lock") << 0 << QByteArray() << 0 << false;
        QTest::newRow("this process") << 1 << ownRecord(m_pid) << 1 << true;
        QTest::newRow("this process, trailing bytes")
            << 1 << ownRecord(m_pid) + QByteArray(9, 'z') << 1 << true;
        QTest::newRow("same user, other process") << 1 << ownRecord(m_pid + 1) << 0 << false;
        QTest::newRow("same user, pid 0") << 1 << ownRecord(0) << 0 << false;
        QTest::newRow("other computer")
            << 1 << record(m_pid, 1, QStringLiteral("PC2"), m_user) << 2 << true;
        QTest::newRow("other user")
            << 1 << record(m_pid, 1, m_computer, QStringLiteral("anna")) << 2 << true;
        QTest::newRow("computer case differs")
            << 1 << record(m_pid, 1, m_computer.toUpper() + QStringLiteral("X"), m_user) << 2
            << true;
        QTest::newRow("user in upper case")
            << 1 << record(m_pid + 1, 1, m_computer, m_user.toUpper() + QStringLiteral("X")) << 2
            << true;
        QTest::newRow("empty") << 1 << QByteArray() << 2 << true;
        QTest::newRow("own record cut by one byte")
            << 1 << ownRecord(m_pid).chopped(1) << 2 << true;
        QTest::newRow("own record without user")
            << 1 << ownRecord(m_pid).left(20 + m_computer.size()) << 2 << true;
        // A length beyond the end takes what remains: when that is exactly
        // the name, the lock names this user as it stands.
        const QByteArray c = m_computer.toUtf8(), u = m_user.toUtf8();
        QTest::newRow("this process, user length beyond the end")
            << 1 << record(m_pid, 5, qint32(c.size()), c, 0x7fffffff, u) << 1 << true;
        QTest::newRow("other process, user length beyond the end")
            << 1 << record(m_pid + 1, 5, qint32(c.size()), c, qint32(u.size() + 1), u) << 0
            << false;
        QTest::newRow("computer length beyond the end")
            << 1 << record(m_pid, 5, 0x7fffffff, c, qint32(u.size()), u) << 2 << true;
        QTest::newRow("folder") << 2 << QByteArray() << 2 << true;
    }

    void tstFileLocked()
    {
        QFETCH(int, kind);
        QFETCH(QByteArray, lock);
        QFETCH(int, result);
        QFETCH(bool, kept);
        if (kind == 1)
            QVERIFY(writeFile(projectLock(), lock));
        else if (kind == 2)
            QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("Calza.~lock")));
        QFileSharing sharing;
        DialogDriver driver;
        int answer = -1;
        const auto boxes = driver.run([&] { answer = sharing.TstFileLocked(project()); });
        QVERIFY(boxes.isEmpty());
        QCOMPARE(answer, result);
        QCOMPARE(QFileInfo::exists(projectLock()), kept);
        if (kind == 1 && kept)
            QCOMPARE(readFile(projectLock()), lock);
        // TstFileLocked works whatever the switch says.
        QVERIFY(!QFileSharingState::of(sharing).noSharing);
    }

    // A pipe under the lock's name is not read (reading it would wait).
    void tstFileLockedPipe()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows has no named pipes among the files of a folder");
#else
        QCOMPARE(mkfifo(QFile::encodeName(projectLock()).constData(), 0600), 0);
        QFileSharing sharing;
        QCOMPARE(sharing.TstFileLocked(project()), 2);
        DialogDriver driver;
        bool ok = true;
        QVERIFY(driver.run([&] { ok = sharing.unlock(project()); }).isEmpty());
        QVERIFY(!ok);
        QVERIFY(driver.run([&] { ok = sharing.open(project()); }).isEmpty());
        QVERIFY(!ok);
#endif
    }

    // ---- unlock ----------------------------------------------------------

    void unlock_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::addColumn<QString>("computer");
        QTest::addColumn<QString>("user");
        QTest::addColumn<Action>("action");
        QTest::addColumn<bool>("result");
        const QByteArray other = record(9, 9, QStringLiteral("PC-UFFICIO"), QStringLiteral("anna"));
        QTest::newRow("other, Si") << other << "PC-UFFICIO"
                                   << "anna" << Si << true;
        QTest::newRow("other, No") << other << "PC-UFFICIO"
                                   << "anna" << No << false;
        QTest::newRow("other, Escape") << other << "PC-UFFICIO"
                                       << "anna" << Action::escape() << false;
        QTest::newRow("other, closed") << other << "PC-UFFICIO"
                                       << "anna" << Action::close() << false;
        QTest::newRow("this process, Si") << ownRecord(m_pid) << m_computer << m_user << Si << true;
        QTest::newRow("same user, other process, Si")
            << ownRecord(m_pid + 1) << m_computer << m_user << Si << true;
        QTest::newRow("empty lock, Si") << QByteArray() << ""
                                        << "" << Si << true;
        // The length field after the name is read as part of it: four NULs,
        // which show as U+FFFD, as every control character of a name does.
        QTest::newRow("damaged lock, Si")
            << record(1, 2, 0x7fffffff, "PC", 0, {})
            << QStringLiteral("PC") + QString(4, QChar(QChar::ReplacementCharacter)) << "" << Si
            << true;
        QTest::newRow("damaged lock, No") << int64le(1) << ""
                                          << "" << No << false;
        QTest::newRow("percent signs")
            << record(1, 2, QStringLiteral("%2"), QStringLiteral("%1")) << "%2"
            << "%1" << No << false;
    }

    void unlock()
    {
        QFETCH(QByteArray, lock);
        QFETCH(QString, computer);
        QFETCH(QString, user);
        QFETCH(Action, action);
        QFETCH(bool, result);
        QVERIFY(writeFile(projectLock(), lock));
        QFileSharing sharing;
        bool ok = !result;
        int boxes = 0;
        const BoxRecord box = driveOne([&] { ok = sharing.unlock(project()); }, action, &boxes);
        QCOMPARE(boxes, 1);
        checkQuestion(box, UnlockQuestion.arg(computer, user));
        QCOMPARE(ok, result);
        QCOMPARE(QFile::exists(projectLock()), !result);
        if (!result)
            QCOMPARE(readFile(projectLock()), lock);
    }

    void unlockNothing()
    {
        QFileSharing sharing;
        DialogDriver driver;
        bool ok = true;
        QVERIFY(driver.run([&] { ok = sharing.unlock(project()); }).isEmpty());
        QVERIFY(!ok);
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("Calza.~lock")));
        QVERIFY(driver.run([&] { ok = sharing.unlock(project()); }).isEmpty());
        QVERIFY(!ok);
        QVERIFY(QFileInfo(projectLock()).isDir());
    }
};

NDXCOM_TEST_MAIN(tst_QFileSharing_Unlock)
#include "tst_qfilesharing_unlock.moc"
