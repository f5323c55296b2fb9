// QFileSharing's record of the holder: this process's identity as a lock
// names it, and the lock record written and read byte for byte.

#include <QFileSharing>
#include <private/qfilesharing_p.h>

#include "locktestutil.h"
#include "ndxcomtest.h"
#include "sharingtest.h"

#include <QtCore/QDateTime>
#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <climits>
#include <memory>

using namespace NdxComTest;
using namespace LockTest;
using namespace SharingTest;
using NdxComFileSharing::LockRecord;

namespace {

QString latin1(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.constData(), bytes.size());
}

} // namespace

class tst_QFileSharing_Record : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProcess(); }
    void init() { setUpFolder(); }

    // ---- identity --------------------------------------------------------

    void identity()
    {
        QFileSharing sharing;
        const QFileSharingState s = QFileSharingState::of(sharing);
        QCOMPARE(s.computer, m_computer);
        QVERIFY(!s.computer.contains(QLatin1Char('.')));
        QCOMPARE(s.user, m_user);
        QCOMPARE(s.pid, m_pid);
        QCOMPARE(NdxComFileSharing::localComputerName(), m_computer);
        QCOMPARE(NdxComFileSharing::localUserName(), m_user);
    }

    // The account, not the environment, names the user.
    void identityIgnoresEnvironment()
    {
        const QByteArray user = qgetenv("USER"), logname = qgetenv("LOGNAME");
        qputenv("USER", "somebodyelse");
        qputenv("LOGNAME", "somebodyelse");
        QFileSharing sharing;
        qputenv("USER", user);
        qputenv("LOGNAME", logname);
        QCOMPARE(QFileSharingState::of(sharing).user, m_user);
    }

    void shortHostName_data()
    {
        QTest::addColumn<QByteArray>("host");
        QTest::addColumn<QString>("name");
        QTest::newRow("short") << QByteArray("vm") << QStringLiteral("vm");
        QTest::newRow("fully qualified")
            << QByteArray("ws01.reparto.example.com") << QStringLiteral("ws01");
        QTest::newRow("trailing dot") << QByteArray("ws01.") << QStringLiteral("ws01");
        QTest::newRow("leading dot") << QByteArray(".ws01") << QString();
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("upper case kept") << QByteArray("WS-01.lan") << QStringLiteral("WS-01");
    }

    void shortHostName()
    {
        QFETCH(QByteArray, host);
        QFETCH(QString, name);
        QCOMPARE(NdxComFileSharing::shortHostName(host), name);
    }

    // A login name that does not fit the 512-character buffer (with its null)
    // gives an empty user name; every shorter one is kept as it is.
    void fitUserName_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addColumn<QString>("user");
        QTest::newRow("plain") << QStringLiteral("mario") << QStringLiteral("mario");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("one longer than the computer name")
            << QStringLiteral("a-very-long-login-name") << QStringLiteral("a-very-long-login-name");
        QTest::newRow("510") << QString(510, QLatin1Char('u')) << QString(510, QLatin1Char('u'));
        QTest::newRow("511 fits") << QString(511, QLatin1Char('u'))
                                  << QString(511, QLatin1Char('u'));
        QTest::newRow("512 does not") << QString(512, QLatin1Char('u')) << QString();
        QTest::newRow("4096") << QString(4096, QLatin1Char('u')) << QString();
    }

    void fitUserName()
    {
        QFETCH(QString, login);
        QFETCH(QString, user);
        QCOMPARE(NdxComFileSharing::fitUserName(login), user);
        QCOMPARE(NdxComFileSharing::fitUserName(login).isEmpty(), user.isEmpty());
    }

    // ---- the record ------------------------------------------------------

    // What open() writes, byte for byte.
    void recordLayout()
    {
        QFileSharing sharing;
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        openReadWrite(sharing, project());
        const qint64 after = QDateTime::currentMSecsSinceEpoch();
        const QByteArray bytes = readFile(projectLock());
        const QByteArray c = m_computer.toUtf8(), u = m_user.toUtf8();
        QCOMPARE(bytes.size(), 8 + 8 + 4 + c.size() + 4 + u.size());
        QCOMPARE(bytes.left(8), int64le(m_pid));
        qint64 time = 0;
        {
            QDataStream s(bytes.mid(8, 8));
            s.setByteOrder(QDataStream::LittleEndian);
            s >> time;
        }
        QVERIFY(time >= before && time <= after);
        QCOMPARE(bytes.mid(16),
                 int32le(qint32(m_computer.size())) + c + int32le(qint32(m_user.size())) + u);
        // The object read its own lock back.
        const QFileSharingState s = QFileSharingState::of(sharing);
        QCOMPARE(s.lockPid, m_pid);
        QCOMPARE(s.lockTime, time);
        QCOMPARE(s.lockComputer, m_computer);
        QCOMPARE(s.lockUser, m_user);
        sharing.close();
    }

    void recordWriter()
    {
        QCOMPARE(NdxComFileSharing::writeLockRecord(-2, 0x0102030405060708LL, QStringLiteral("PC1"),
                                                    QStringLiteral("mario")),
                 record(-2, 0x0102030405060708LL, QStringLiteral("PC1"), QStringLiteral("mario")));
        // Lengths count UTF-16 code units, the bytes are UTF-8.
        const QString computer = QStringLiteral("Università"),
                      user = QStringLiteral("Zoë\U0001F600");
        const QByteArray bytes = NdxComFileSharing::writeLockRecord(7, 8, computer, user);
        QCOMPARE(bytes, record(7, 8, 10, computer.toUtf8(), 5, user.toUtf8()));
        QCOMPARE(computer.toUtf8().size(), 11);
        QCOMPARE(user.toUtf8().size(), 8);
    }

    // Workstations of different systems share one folder: a record written
    // here is byte for byte the committed one, written on Linux for the same
    // process id, time and names, and that one reads back the same here.
    void recordMatchesReference_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<qint64>("pid");
        QTest::addColumn<qint64>("time");
        QTest::addColumn<QString>("computer");
        QTest::addColumn<QString>("user");
        QTest::newRow("ascii") << QStringLiteral("officina-2.~lock") << qint64(4242)
                               << qint64(1700000000123) << QStringLiteral("OFFICINA-2")
                               << QStringLiteral("mario");
        QTest::newRow("non-ascii")
            << QStringLiteral("universita.~lock") << qint64(70000) << qint64(1234567890123)
            << QStringLiteral("Università") << QStringLiteral("Zoë\U0001F600");
    }

    void recordMatchesReference()
    {
        QFETCH(QString, file);
        QFETCH(qint64, pid);
        QFETCH(qint64, time);
        QFETCH(QString, computer);
        QFETCH(QString, user);
        const QByteArray reference = readFile(QStringLiteral(NDXCOM_LOCK_REFERENCE_DIR "/") + file);
        QVERIFY(!reference.isEmpty());
        QCOMPARE(NdxComFileSharing::writeLockRecord(pid, time, computer, user), reference);
        const LockRecord read = NdxComFileSharing::readLockRecord(reference);
        QCOMPARE(read.pid, pid);
        QCOMPARE(read.time, time);
        // ASCII names read back as written, on every system (the others are
        // cut at their UTF-16 length, see nonAsciiNamesDoNotMatch).
        if (computer.toUtf8().size() == computer.size() && user.toUtf8().size() == user.size()) {
            QVERIFY(read.complete);
            QCOMPARE(read.computer, computer);
            QCOMPARE(read.user, user);
        }
    }

    void recordRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<qint64>("pid");
        QTest::addColumn<qint64>("time");
        QTest::addColumn<QString>("computer");
        QTest::addColumn<QString>("user");
        QTest::addColumn<bool>("complete");

        const QByteArray full = record(42, 99, QStringLiteral("PC1"), QStringLiteral("mario"));
        QTest::newRow("full") << full << 42LL << 99LL << "PC1"
                              << "mario" << true;
        QTest::newRow("trailing bytes ignored")
            << full + QByteArray("garbage") << 42LL << 99LL << "PC1"
            << "mario" << true;
        QTest::newRow("empty names") << record(1, 2, 0, {}, 0, {}) << 1LL << 2LL << ""
                                     << "" << true;
        QTest::newRow("negative pid and time")
            << record(-1, LLONG_MIN, 1, "a", 1, "b") << -1LL << LLONG_MIN << "a"
            << "b" << true;
        QTest::newRow("empty file") << QByteArray() << 0LL << 0LL << ""
                                    << "" << false;
        QTest::newRow("pid cut short") << int64le(42).left(5) << 0LL << 0LL << ""
                                       << "" << false;
        QTest::newRow("pid only") << int64le(42) << 42LL << 0LL << ""
                                  << "" << false;
        QTest::newRow("time cut short") << int64le(42) + int64le(99).left(7) << 42LL << 0LL << ""
                                        << "" << false;
        QTest::newRow("no names") << int64le(42) + int64le(99) << 42LL << 99LL << ""
                                  << "" << false;
        QTest::newRow("length cut short")
            << int64le(42) + int64le(99) + int32le(3).left(2) << 42LL << 99LL << ""
            << "" << false;
        QTest::newRow("computer cut short") << full.left(8 + 8 + 4 + 2) << 42LL << 99LL << "PC"
                                            << "" << false;
        QTest::newRow("no user") << full.left(8 + 8 + 4 + 3) << 42LL << 99LL << "PC1"
                                 << "" << false;
        QTest::newRow("user cut short") << full.left(full.size() - 1) << 42LL << 99LL << "PC1"
                                        << "mari" << false;
        QTest::newRow("negative computer length")
            << record(42, 99, -1, {}, 5, "mario") << 42LL << 99LL << ""
            << "mario" << false;
        QTest::newRow("most negative lengths")
            << record(42, 99, INT_MIN, {}, INT_MIN, "xyz") << 42LL << 99LL << ""
            << "" << false;
        // The bytes of a negative length's name are read as the next field.
        QTest::newRow("negative length, bytes follow")
            << record(42, 99, -3, int32le(2) + "ab", 0, {}) << 42LL << 99LL << ""
            << "ab" << false;
        QTest::newRow("huge computer length")
            << record(42, 99, 0x7fffffff, "PC1", 5, "mario") << 42LL << 99LL
            << latin1("PC1" + int32le(5) + "mario") << "" << false;
        QTest::newRow("huge user length")
            << record(42, 99, 3, "PC1", 0x7fffffff, "mario") << 42LL << 99LL << "PC1"
            << "mario" << false;
        // Latin-1, not UTF-8: the lengths count characters, the bytes are
        // UTF-8, so a name with an accent is read short and shifts the rest.
        QTest::newRow("latin-1 decoding") << record(1, 2, 2, "\xc3\xa8", 1, "\xe8") << 1LL << 2LL
                                          << QStringLiteral("Ã¨") << QStringLiteral("è") << true;
        QTest::newRow("non-ascii user")
            << record(1, 2, QStringLiteral("PC1"), QStringLiteral("Zoë")) << 1LL << 2LL << "PC1"
            << QStringLiteral("ZoÃ") << true;
        QTest::newRow("non-ascii computer")
            << record(1, 2, QStringLiteral("Pè"), QStringLiteral("ab")) << 1LL << 2LL
            << QStringLiteral("PÃ")
            // The user length is read from 0xA8 and three bytes of the real
            // length (680), and takes the three bytes that remain.
            << latin1(QByteArray(1, '\0') + "ab") << false;
    }

    void recordRead()
    {
        QFETCH(QByteArray, bytes);
        const LockRecord r = NdxComFileSharing::readLockRecord(bytes);
        QTEST(r.pid, "pid");
        QTEST(r.time, "time");
        QTEST(r.computer, "computer");
        QTEST(r.user, "user");
        QTEST(r.complete, "complete");
    }

    // Names are never longer than the bytes there are, however large the
    // lengths, and nothing past the given bytes is read (ASan watches).
    void recordReadGarbage()
    {
        QRandomGenerator random(20240611);
        for (int i = 0; i < 2000; ++i) {
            const int size = int(random.bounded(64));
            std::unique_ptr<char[]> bytes(new char[size > 0 ? size : 1]);
            for (int k = 0; k < size; ++k)
                bytes[k] = char(random.bounded(256));
            const LockRecord r = NdxComFileSharing::readLockRecord(bytes.get(), size);
            QVERIFY(r.computer.size() + r.user.size() <= qMax(0, size - 20));
            if (r.complete)
                QCOMPARE(20 + r.computer.size() + 4 + r.user.size() <= size, true);
        }
        const LockRecord none = NdxComFileSharing::readLockRecord(nullptr, 100);
        QCOMPARE(none.pid, 0LL);
        QVERIFY(!none.complete);
        const LockRecord negative = NdxComFileSharing::readLockRecord("abc", -5);
        QCOMPARE(negative.pid, 0LL);
        QVERIFY(negative.computer.isEmpty());
    }

    // Only the first MiB of a lock is looked at.
    void recordReadLimit()
    {
        const qsizetype limit = NdxComFileSharing::LockReadLimit;
        QCOMPARE(limit, qsizetype(1) << 20);
        QByteArray bytes = record(5, 6, 0x7fffffff, {}, 0, {});
        bytes.append(QByteArray(int(limit), 'x'));
        const LockRecord r = NdxComFileSharing::readLockRecord(bytes);
        QCOMPARE(r.pid, 5LL);
        QCOMPARE(qsizetype(r.computer.size()), limit - 20);
        QVERIFY(r.user.isEmpty());
        QVERIFY(!r.complete);

        // The same through a file: the read is bounded too.
        QVERIFY(writeFile(projectLock(), bytes));
        QFile lock(projectLock());
        LockRecord fromFile;
        QVERIFY(NdxComFileSharing::readLockFile(lock, &fromFile));
        QCOMPARE(qsizetype(fromFile.computer.size()), limit - 20);
        QCOMPARE(fromFile.pid, 5LL);
    }

    // A holder whose names have letters outside ASCII does not recognise its
    // own lock once it is read back.
    void nonAsciiNamesDoNotMatch()
    {
        const QString computer = QStringLiteral("Pè"), user = QStringLiteral("Università");
        const LockRecord r = NdxComFileSharing::readLockRecord(
            NdxComFileSharing::writeLockRecord(m_pid, 0, computer, user));
        QCOMPARE(r.pid, m_pid);
        QVERIFY(r.computer != computer);
        QVERIFY(r.user != user);
        const LockRecord ascii
            = NdxComFileSharing::readLockRecord(NdxComFileSharing::writeLockRecord(
                m_pid, 0, QStringLiteral("PC1"), QStringLiteral("mario")));
        QCOMPARE(ascii.computer, QStringLiteral("PC1"));
        QCOMPARE(ascii.user, QStringLiteral("mario"));
    }
};

NDXCOM_TEST_MAIN(tst_QFileSharing_Record)
#include "tst_qfilesharing_record.moc"
