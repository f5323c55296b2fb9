// QFileSharing in one process: the lock path, the identity, the record, every
// step of open, save, saveAs, close, TstFileLocked and unlock with the
// protocol switched on through the test seam, hostile lock files, and the
// production state with the protocol switched off.

#include <QFileSharing>
#include <QNodrixCom>
#include <private/qfilesharing_p.h>
#include <private/qnodrixmessagebox_p.h>

#include "dialogdriver.h"
#include "hangguard.h"
#include "locktestutil.h"
#include "markingtranslator.h"
#include "ndxcomtest.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#endif

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>

using namespace NdxComTest;
using namespace LockTest;
using QFileSharingPrivate::LockRecord;

namespace {

QString latin1(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.constData(), bytes.size());
}

const Action Si = Action::click(QStringLiteral("Si"));
const Action No = Action::click(QStringLiteral("No"));

using Buttons = QList<QPair<QString, QMessageBox::ButtonRole>>;

#ifdef Q_OS_WIN
// Windows has no per-process limit on the size of a file.
#define NDXCOM_FULL_DISK_SKIP()                                                                    \
    QSKIP("Windows has no per-process file size limit to make a write fail as on a full disk")

// Whether the file carries the hidden attribute, as Explorer reads it.
bool isHidden(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    const DWORD attributes = GetFileAttributesW(reinterpret_cast<const wchar_t *>(native.utf16()));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_HIDDEN);
}
#else
#define NDXCOM_FULL_DISK_SKIP()

// While it lives, no file of this process may grow beyond `bytes`: writing a
// lock fails as on a full disk (pipes, and so the test log, are not limited).
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_ok = getrlimit(RLIMIT_FSIZE, &m_saved) == 0;
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limited = m_saved;
        limited.rlim_cur = bytes;
        m_ok = m_ok && setrlimit(RLIMIT_FSIZE, &limited) == 0;
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_saved);
        std::signal(SIGXFSZ, m_handler);
    }
    bool ok() const { return m_ok; }

private:
    rlimit m_saved {};
    void (*m_handler)(int) = nullptr;
    bool m_ok = false;
};
#endif

// Reads the dictionary's protected members, to change them.
class Dictionary : public QNodrixCom
{
public:
    using QNodrixCom::m_sLockFilesExt;
    using QNodrixCom::m_sProjectFilesExt;
};

// What the library's removal hook does between its read of a lock and its
// deletion (see QFileSharingPrivate::setBeforeLockRemoval).
std::function<void(const QString &)> beforeRemoval;
void runBeforeRemoval(const QString &path)
{
    if (beforeRemoval)
        beforeRemoval(path);
}

// The hostile-lock figure of a row that hangs.
class LockHangGuard : public NdxComTest::HangGuard
{
public:
    LockHangGuard(int tried, int lost)
        : NdxComTest::HangGuard(figure(tried, lost))
    { }

private:
    static const char *figure(int tried, int lost)
    {
        static char text[160];
        std::snprintf(text, sizeof(text),
                      "ndxcom-figure: hostile lock files tried: %d, crashes: 0, hangs: 1, files "
                      "lost: %d",
                      tried + 1, lost);
        return text;
    }
};

// Replaces a file at once, as another workstation's rename would.
bool replaceFile(const QString &path, const QByteArray &bytes)
{
    const QString temporary = path + QStringLiteral(".neu");
    if (!LockTest::writeFile(temporary, bytes))
        return false;
#ifdef Q_OS_WIN
    // rename() does not replace an existing file there.
    const QString from = QDir::toNativeSeparators(temporary);
    const QString to = QDir::toNativeSeparators(path);
    return MoveFileExW(reinterpret_cast<const wchar_t *>(from.utf16()),
                       reinterpret_cast<const wchar_t *>(to.utf16()), MOVEFILE_REPLACE_EXISTING);
#else
    return ::rename(QFile::encodeName(temporary).constData(), QFile::encodeName(path).constData())
        == 0;
#endif
}

// What stands at the lock's name, in the hostile rows.
enum Hostile {
    LinkToDocument,
    LinkToProject,
    LinkToOwnLeftover,
    DanglingLink,
    LinkToFolder,
    Fifo,
    Folder,
};

enum Moment { Vanishes, ReplacedByAnother, ReplacedByLink, RewrittenInPlace };
enum Caller { Test, Unlock, Close };

} // namespace

Q_DECLARE_METATYPE(NdxComTest::Action)

class tst_QFileSharing : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_computer;
    QString m_user;
    qint64 m_pid = 0;

    QString path(const QString &name) const { return m_dir->filePath(name); }
    QString project() const { return path(QStringLiteral("Calza.ndx")); }
    QString projectLock() const { return path(QStringLiteral("Calza.~lock")); }
    QByteArray ownRecord(qint64 pid) const { return record(pid, 1234, m_computer, m_user); }

    static void checkQuestion(const BoxRecord &r, const QString &text)
    {
        QCOMPARE(r.className, QStringLiteral("QMessageBox"));
        QCOMPARE(r.title, QStringLiteral("Nodrix"));
        QCOMPARE(r.icon, QMessageBox::Question);
        QCOMPARE(r.text, text);
        QCOMPARE(r.buttonsByRole(),
                 Buttons({{QStringLiteral("Si"), QMessageBox::AcceptRole},
                          {QStringLiteral("No"), QMessageBox::RejectRole}}));
        QCOMPARE(r.defaultButton, QStringLiteral("No"));
        QVERIFY(!r.actionFailed);
    }

    static void checkWarning(const BoxRecord &r)
    {
        QCOMPARE(r.className, QStringLiteral("QMessageBox"));
        QCOMPARE(r.title, QStringLiteral("Nodrix"));
        QCOMPARE(r.icon, QMessageBox::Warning);
        QCOMPARE(r.text, SaveAsWarning);
        QCOMPARE(r.buttonsByRole(), Buttons({{QStringLiteral("Ok"), QMessageBox::AcceptRole}}));
        QVERIFY(!r.actionFailed);
    }

    // A small file system of its own for a row: a tmpfs of 64 KiB (root
    // only). Unmounted again at the end of the row.
    QString smallDisk(QString *whyNot)
    {
#ifdef Q_OS_WIN
        *whyNot = QStringLiteral("Windows has no file system of a given size to mount in a folder");
        return QString();
#else
        const QString where = path(QStringLiteral("disco"));
        if (geteuid() != 0) {
            *whyNot = QStringLiteral("a tmpfs of its own needs root");
            return QString();
        }
        if (!QDir().mkpath(where)
            || ::mount("ndxcom-test", QFile::encodeName(where).constData(), "tmpfs",
                       MS_NOSUID | MS_NODEV, "size=64k,mode=0777")
                != 0) {
            *whyNot = QStringLiteral("cannot mount a tmpfs here: %1")
                          .arg(QString::fromLocal8Bit(std::strerror(errno)));
            return QString();
        }
        m_mounted = where;
        return where;
#endif
    }

    // Opens the project read-write in `sharing` and checks that it holds it.
    void openReadWrite(QFileSharing &sharing, const QString &file)
    {
        DialogDriver driver;
        bool ok = false;
        const auto boxes = driver.run([&] { ok = sharing.open(file); });
        QVERIFY(boxes.isEmpty());
        QVERIFY(ok);
        QVERIFY(!sharing.isOpenRdOnly());
    }

private slots:
    // The figure the test command reports: every hostile lock file went through
    // every call without bringing the process down.
    void cleanupTestCase()
    {
        qInfo("ndxcom-figure: hostile lock files tried: %d, crashes: 0, hangs: 0, files lost: %d",
              m_hostileLocksTried, m_filesLost);
    }

    void initTestCase()
    {
        // Off until someone switches it on.
        QVERIFY(!QFileSharing::sharingControlEnabled());
        ndxcomSetSharingControl(true);
        m_computer = hostShortName();
        m_user = loginName();
        m_pid = QCoreApplication::applicationPid();
        QVERIFY(!m_computer.isEmpty());
        QVERIFY(!m_user.isEmpty());
    }

    void init()
    {
        ndxcomSetSharingControl(true);
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
    }

    // ---- lock path -------------------------------------------------------

    void lockPath_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("lock");
        QTest::newRow("example") << "P:/Progetti/Calza.ndx"
                                 << "P:/Progetti/Calza.~lock";
        QTest::newRow("linux") << "/srv/progetti/Calza.ndx"
                               << "/srv/progetti/Calza.~lock";
        QTest::newRow("every occurrence") << "/a.ndx/b.ndx.ndx"
                                          << "/a.~lock/b.~lock.~lock";
        QTest::newRow("inside a word") << "/p/x.ndxold"
                                       << "/p/x.~lockold";
        QTest::newRow("bare extension") << ".ndx"
                                        << ".~lock";
        QTest::newRow("upper case: no lock") << "P:/Progetti/Calza.NDX"
                                             << "P:/Progetti/Calza.NDX";
        QTest::newRow("mixed case: no lock") << "/p/Calza.Ndx"
                                             << "/p/Calza.Ndx";
        QTest::newRow("other extension: no lock") << "/p/Calza.mdx"
                                                  << "/p/Calza.mdx";
        QTest::newRow("no dot") << "/p/ndx"
                                << "/p/ndx";
        QTest::newRow("empty") << QString() << QString();
    }

    void lockPath()
    {
        QFETCH(QString, project);
        QFETCH(QString, lock);
        QCOMPARE(QFileSharingPrivate::lockPath(project), lock);
        QCOMPARE(QFileSharingPrivate::hasLockFile(project), lock != project);
    }

    // The class's own texts decide, not the dictionary's members.
    void lockPathIgnoresDictionary()
    {
        const QString project = Dictionary::m_sProjectFilesExt;
        const QString lock = Dictionary::m_sLockFilesExt;
        Dictionary::m_sProjectFilesExt = QStringLiteral(".xyz");
        Dictionary::m_sLockFilesExt = QStringLiteral(".lck");
        const QString a = QFileSharingPrivate::lockPath(QStringLiteral("/p/C.ndx"));
        const QString b = QFileSharingPrivate::lockPath(QStringLiteral("/p/C.xyz"));
        QFileSharing sharing;
        openReadWrite(sharing, path(QStringLiteral("D.ndx")));
        Dictionary::m_sProjectFilesExt = project;
        Dictionary::m_sLockFilesExt = lock;
        QCOMPARE(a, QStringLiteral("/p/C.~lock"));
        QCOMPARE(b, QStringLiteral("/p/C.xyz"));
        QVERIFY(QFile::exists(path(QStringLiteral("D.~lock"))));
        QVERIFY(!QFile::exists(path(QStringLiteral("D.lck"))));
        sharing.close();
    }

    // ---- identity --------------------------------------------------------

    void identity()
    {
        QFileSharing sharing;
        const QFileSharingState s = QFileSharingState::of(sharing);
        QCOMPARE(s.computer, m_computer);
        QVERIFY(!s.computer.contains(QLatin1Char('.')));
        QCOMPARE(s.user, m_user);
        QCOMPARE(s.pid, m_pid);
        QCOMPARE(QFileSharingPrivate::localComputerName(), m_computer);
        QCOMPARE(QFileSharingPrivate::localUserName(), m_user);
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
        QCOMPARE(QFileSharingPrivate::shortHostName(host), name);
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
        QCOMPARE(QFileSharingPrivate::fitUserName(login), user);
        QCOMPARE(QFileSharingPrivate::fitUserName(login).isEmpty(), user.isEmpty());
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
        QCOMPARE(QFileSharingPrivate::writeLockRecord(
                     -2, 0x0102030405060708LL, QStringLiteral("PC1"), QStringLiteral("mario")),
                 record(-2, 0x0102030405060708LL, QStringLiteral("PC1"), QStringLiteral("mario")));
        // Lengths count UTF-16 code units, the bytes are UTF-8.
        const QString computer = QStringLiteral("Università"),
                      user = QStringLiteral("Zoë\U0001F600");
        const QByteArray bytes = QFileSharingPrivate::writeLockRecord(7, 8, computer, user);
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
        QCOMPARE(QFileSharingPrivate::writeLockRecord(pid, time, computer, user), reference);
        const LockRecord read = QFileSharingPrivate::readLockRecord(reference);
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

    // The lock is hidden on Windows once written (Explorer does not show it),
    // and keeps its name everywhere: other workstations look for that name.
    // A hidden lock still reads, and goes with close.
    void lockFileHidden()
    {
        QFileSharing sharing;
        openReadWrite(sharing, project());
        QVERIFY(QFileInfo::exists(projectLock()));
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden | QDir::System),
                 QStringList {QStringLiteral("Calza.~lock")});
#ifdef Q_OS_WIN
        QVERIFY(isHidden(projectLock()));
        QVERIFY(QFileInfo(projectLock()).isHidden());
#else
        QVERIFY(!QFileInfo(projectLock()).isHidden());
#endif
        QFileSharing other;
        QCOMPARE(other.TstFileLocked(project()), 1);
        QCOMPARE(QFileSharingState::of(sharing).lockPid, m_pid);
        sharing.close();
        QVERIFY(!QFileInfo::exists(projectLock()));
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
        const LockRecord r = QFileSharingPrivate::readLockRecord(bytes);
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
            const LockRecord r = QFileSharingPrivate::readLockRecord(bytes.get(), size);
            QVERIFY(r.computer.size() + r.user.size() <= qMax(0, size - 20));
            if (r.complete)
                QCOMPARE(20 + r.computer.size() + 4 + r.user.size() <= size, true);
        }
        const LockRecord none = QFileSharingPrivate::readLockRecord(nullptr, 100);
        QCOMPARE(none.pid, 0LL);
        QVERIFY(!none.complete);
        const LockRecord negative = QFileSharingPrivate::readLockRecord("abc", -5);
        QCOMPARE(negative.pid, 0LL);
        QVERIFY(negative.computer.isEmpty());
    }

    // Only the first MiB of a lock is looked at.
    void recordReadLimit()
    {
        const qsizetype limit = QFileSharingPrivate::LockReadLimit;
        QCOMPARE(limit, qsizetype(1) << 20);
        QByteArray bytes = record(5, 6, 0x7fffffff, {}, 0, {});
        bytes.append(QByteArray(int(limit), 'x'));
        const LockRecord r = QFileSharingPrivate::readLockRecord(bytes);
        QCOMPARE(r.pid, 5LL);
        QCOMPARE(qsizetype(r.computer.size()), limit - 20);
        QVERIFY(r.user.isEmpty());
        QVERIFY(!r.complete);

        // The same through a file: the read is bounded too.
        QVERIFY(writeFile(projectLock(), bytes));
        QFile lock(projectLock());
        LockRecord fromFile;
        QVERIFY(QFileSharingPrivate::readLockFile(lock, &fromFile));
        QCOMPARE(qsizetype(fromFile.computer.size()), limit - 20);
        QCOMPARE(fromFile.pid, 5LL);
    }

    // A holder whose names have letters outside ASCII does not recognise its
    // own lock once it is read back.
    void nonAsciiNamesDoNotMatch()
    {
        const QString computer = QStringLiteral("Pè"), user = QStringLiteral("Università");
        const LockRecord r = QFileSharingPrivate::readLockRecord(
            QFileSharingPrivate::writeLockRecord(m_pid, 0, computer, user));
        QCOMPARE(r.pid, m_pid);
        QVERIFY(r.computer != computer);
        QVERIFY(r.user != user);
        const LockRecord ascii
            = QFileSharingPrivate::readLockRecord(QFileSharingPrivate::writeLockRecord(
                m_pid, 0, QStringLiteral("PC1"), QStringLiteral("mario")));
        QCOMPARE(ascii.computer, QStringLiteral("PC1"));
        QCOMPARE(ascii.user, QStringLiteral("mario"));
    }

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

    // ---- hostile lock files ----------------------------------------------

    void hostileLock_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("one byte") << QByteArray(1, '\0');
        QTest::newRow("pid only") << int64le(m_pid);
        QTest::newRow("cut in the time") << int64le(m_pid) + int64le(5).left(3);
        QTest::newRow("no names") << int64le(m_pid) + int64le(5);
        QTest::newRow("cut in a length") << int64le(m_pid) + int64le(5) + int32le(4).left(1);
        QTest::newRow("negative lengths")
            << record(m_pid, 5, -1, m_computer.toUtf8(), -1, m_user.toUtf8());
        QTest::newRow("most negative length") << record(m_pid, 5, INT_MIN, {}, 0, {});
        QTest::newRow("computer length 0x7fffffff") << record(
            m_pid, 5, 0x7fffffff, m_computer.toUtf8(), qint32(m_user.size()), m_user.toUtf8());
        QTest::newRow("all 0xff") << QByteArray(64, '\xff');
        QTest::newRow("all 0x7f") << QByteArray(64, '\x7f');
        QRandomGenerator random(6);
        for (int i = 0; i < 8; ++i) {
            QByteArray garbage(int(random.bounded(1, 200)), '\0');
            for (char &c : garbage)
                c = char(random.bounded(256));
            QTest::newRow(qPrintable(QStringLiteral("garbage %1").arg(i))) << garbage;
        }
        QByteArray big = record(m_pid, 5, 2, "PC", 0, {});
        big.append(QByteArray(3 << 20, 'x'));
        QTest::newRow("3 MiB") << big;
    }

    // A damaged lock never crashes, counts as another's (2), keeps others
    // from taking it read-write, and can always be removed with unlock.
    void hostileLock()
    {
        QFETCH(QByteArray, lock);
        QVERIFY(writeFile(projectLock(), lock));
        QFileSharing sharing;
        QCOMPARE(sharing.TstFileLocked(project()), 2);
        QVERIFY(QFile::exists(projectLock()));

        bool ok = true;
        int boxes = 0;
        BoxRecord box = driveOne([&] { ok = sharing.open(project()); }, No, &boxes);
        QCOMPARE(boxes, 1);
        QCOMPARE(box.icon, QMessageBox::Question);
        QVERIFY(box.text.startsWith(QStringLiteral("Il progetto risulta in uso da:\nComputer: ")));
        QVERIFY(!ok);

        box = driveOne([&] { ok = sharing.saveAs(project()); }, Action::click(QStringLiteral("Ok")),
                       &boxes);
        QCOMPARE(boxes, 1);
        checkWarning(box);
        QVERIFY(!ok);

        sharing.close();
        QCOMPARE(readFile(projectLock()), lock);

        box = driveOne([&] { ok = sharing.unlock(project()); }, Si, &boxes);
        QCOMPARE(boxes, 1);
        QVERIFY(box.text.startsWith(QStringLiteral("Il progetto è bloccato da:\nComputer: ")));
        QVERIFY(ok);
        QVERIFY(!QFile::exists(projectLock()));
        openReadWrite(sharing, project());
        sharing.close();
        ++m_hostileLocksTried;
    }

    // ---- hostile shared folders ------------------------------------------
    //
    // What stands at a lock's name may be anything another workstation or a
    // broken copy left there. No call may block on it, follow a link to read,
    // write or delete another file, or delete a lock that someone else wrote
    // between the library's read and its deletion. Each row is counted in the
    // hostile-lock figure, with the files it lost (0) and its hangs (0).

    void hostileEntry_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("symbolic link to a document elsewhere") << int(LinkToDocument);
        QTest::newRow("symbolic link to the project itself") << int(LinkToProject);
        QTest::newRow("symbolic link to a leftover lock of this user") << int(LinkToOwnLeftover);
        QTest::newRow("dangling symbolic link") << int(DanglingLink);
        QTest::newRow("symbolic link to a folder") << int(LinkToFolder);
        QTest::newRow("FIFO") << int(Fifo);
        QTest::newRow("folder") << int(Folder);
    }

    // Only a regular file is a lock: anything else at the lock's name makes
    // the project busy (2), is never read, written through or deleted, and
    // no call waits on it.
    void hostileEntry()
    {
        QFETCH(int, kind);
#ifdef Q_OS_WIN
        Q_UNUSED(kind);
        QSKIP("Symbolic links, FIFOs and inode numbers are Unix's (a folder at the lock's name is "
              "tried by tst_ndxcom_lock)");
#else
        LockHangGuard guard(m_hostileLocksTried, m_filesLost);
        const QString elsewhere = path(QStringLiteral("altrove"));
        QVERIFY(QDir().mkpath(elsewhere));
        const QString document = elsewhere + QStringLiteral("/Documento.txt");
        const QByteArray documentBytes("un documento dell'utente\n");
        const QByteArray projectBytes("NDX progetto\n");
        const QByteArray leftover = ownRecord(m_pid + 1);
        QVERIFY(writeFile(document, documentBytes));
        QVERIFY(writeFile(project(), projectBytes));
        const QString leftoverFile = elsewhere + QStringLiteral("/Avanzo.~lock");
        QVERIFY(writeFile(leftoverFile, leftover));
        const QByteArray lockName = QFile::encodeName(projectLock());
        const QString missing = elsewhere + QStringLiteral("/Sparito.txt");
        switch (Hostile(kind)) {
        case LinkToDocument:
            QCOMPARE(::symlink(QFile::encodeName(document).constData(), lockName.constData()), 0);
            break;
        case LinkToProject:
            QCOMPARE(::symlink("Calza.ndx", lockName.constData()), 0);
            break;
        case LinkToOwnLeftover:
            QCOMPARE(::symlink(QFile::encodeName(leftoverFile).constData(), lockName.constData()),
                     0);
            break;
        case DanglingLink:
            QCOMPARE(::symlink(QFile::encodeName(missing).constData(), lockName.constData()), 0);
            break;
        case LinkToFolder:
            QCOMPARE(::symlink(QFile::encodeName(elsewhere).constData(), lockName.constData()), 0);
            break;
        case Fifo:
            QCOMPARE(::mkfifo(lockName.constData(), 0600), 0);
            break;
        case Folder:
            QVERIFY(QDir().mkdir(projectLock()));
            break;
        }
        struct stat before;
        QCOMPARE(::lstat(lockName.constData(), &before), 0);

        QFileSharing sharing;
        DialogDriver driver;
        QList<BoxRecord> boxes;
        bool ok = true;
        QCOMPARE(sharing.TstFileLocked(project()), 2);
        boxes += driver.run([&] { ok = sharing.open(project()); }, {No});
        QVERIFY(!ok);
        boxes += driver.run([&] { ok = sharing.unlock(project()); }, {Si});
        QVERIFY(!ok);
        QVERIFY(boxes.isEmpty()); // nothing was read, so nothing is asked
        int seen = 0;
        const BoxRecord warning = driveOne([&] { ok = sharing.saveAs(project()); },
                                           Action::click(QStringLiteral("Ok")), &seen);
        QCOMPARE(seen, 1);
        checkWarning(warning);
        QVERIFY(!ok);
        sharing.close();
        QCOMPARE(sharing.TstFileLocked(project()), 2);

        // Nothing was written through the link or in its place.
        struct stat after;
        QCOMPARE(::lstat(lockName.constData(), &after), 0);
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE((after.st_mode & S_IFMT), (before.st_mode & S_IFMT));
        int lost = 0;
        lost += readFile(document) != documentBytes;
        lost += readFile(project()) != projectBytes;
        lost += readFile(leftoverFile) != leftover;
        lost += QFileInfo::exists(missing) ? 1 : 0;
        m_filesLost += lost;
        QCOMPARE(lost, 0);
        ++m_hostileLocksTried;
#endif
    }

    void changedBeforeDelete_data()
    {
        QTest::addColumn<int>("caller");
        QTest::addColumn<int>("moment");
        const char *callers[] = {"TstFileLocked on a leftover", "unlock", "close"};
        const char *moments[]
            = {"vanishes", "is replaced by another's lock", "is replaced by a link to a document",
               "is rewritten in place by another"};
        for (int c = Test; c <= Close; ++c) {
            for (int m = Vanishes; m <= RewrittenInPlace; ++m)
                QTest::newRow(
                    qPrintable(QStringLiteral("%1: the lock %2 before the delete")
                                   .arg(QLatin1String(callers[c]), QLatin1String(moments[m]))))
                    << c << m;
        }
    }

    // The lock changes between the library's read and its deletion: only the
    // lock that was read is ever deleted.
    void changedBeforeDelete()
    {
        QFETCH(int, caller);
        QFETCH(int, moment);
#ifdef Q_OS_WIN
        if (moment == ReplacedByLink)
            QSKIP("QFile::link makes a shortcut on Windows, an ordinary file, not a symbolic link");
#endif
        LockHangGuard guard(m_hostileLocksTried, m_filesLost);
        const QString document = path(QStringLiteral("Documento.txt"));
        const QByteArray documentBytes("un documento\n");
        QVERIFY(writeFile(document, documentBytes));
        const QByteArray another
            = record(77, 88, QStringLiteral("PC-ALTRO"), QStringLiteral("anna"));

        QFileSharing sharing;
        if (caller == Close)
            openReadWrite(sharing, project());
        else if (caller == Test)
            QVERIFY(writeFile(projectLock(), ownRecord(m_pid + 1)));
        else
            QVERIFY(writeFile(projectLock(),
                              record(5, 6, QStringLiteral("PC2"), QStringLiteral("bruno"))));

        beforeRemoval = [&](const QString &lock) {
            QCOMPARE(lock, projectLock());
            switch (Moment(moment)) {
            case Vanishes:
                QVERIFY(QFile::remove(lock));
                break;
            case ReplacedByAnother:
                QVERIFY(replaceFile(lock, another));
                break;
            case ReplacedByLink:
                QVERIFY(QFile::remove(lock));
                QVERIFY(QFile::link(document, lock));
                break;
            case RewrittenInPlace:
                QVERIFY(writeFile(lock, another));
                break;
            }
        };
        QFileSharingPrivate::setBeforeLockRemoval(runBeforeRemoval);
        int answer = -1;
        bool ok = true;
        switch (Caller(caller)) {
        case Test:
            answer = sharing.TstFileLocked(project());
            break;
        case Unlock: {
            int seen = 0;
            driveOne([&] { ok = sharing.unlock(project()); }, Si, &seen);
            QCOMPARE(seen, 1);
            break;
        }
        case Close:
            sharing.close();
            break;
        }
        QFileSharingPrivate::setBeforeLockRemoval(nullptr);
        beforeRemoval = nullptr;

        const bool gone = moment == Vanishes;
        if (caller == Test)
            QCOMPARE(answer, gone ? 0 : 2);
        if (caller == Unlock)
            QVERIFY(!ok); // the lock shown was not the one deleted
        if (caller == Close)
            QCOMPARE(QFileSharingState::of(sharing).fileName.isEmpty(), gone);
        int lost = 0;
        lost += readFile(document) != documentBytes;
        if (moment == ReplacedByAnother || moment == RewrittenInPlace)
            lost += readFile(projectLock()) != another;
        if (moment == ReplacedByLink)
            lost += !QFileInfo(projectLock()).isSymLink();
        if (gone)
            QVERIFY(!QFileInfo::exists(projectLock()));
        m_filesLost += lost;
        QCOMPARE(lost, 0);
        ++m_hostileLocksTried;
    }

    void cleanup()
    {
        QFileSharingPrivate::setBeforeLockRemoval(nullptr);
        beforeRemoval = nullptr;
#ifndef Q_OS_WIN
        if (!m_mounted.isEmpty()) {
            ::umount2(QFile::encodeName(m_mounted).constData(), MNT_DETACH);
            m_mounted.clear();
        }
#endif
    }

    // A full disk: the lock cannot be written whole, so none is left, and no
    // other file suffers.
    void fullDisk()
    {
        QString whyNot;
        const QString disk = smallDisk(&whyNot);
        if (disk.isEmpty())
            QSKIP(qPrintable(whyNot));
        LockHangGuard guard(m_hostileLocksTried, m_filesLost);
        const QString project = disk + QStringLiteral("/Calza.ndx");
        const QByteArray projectBytes("NDX progetto\n");
        QVERIFY(writeFile(project, projectBytes));
        // Fill what is left.
        QFile filler(disk + QStringLiteral("/Riempitivo"));
        QVERIFY(filler.open(QIODevice::WriteOnly));
        const QByteArray block(1024, 'x');
        while (filler.write(block) == block.size() && filler.flush()) { }
        filler.close();
        const qint64 fillerSize = QFileInfo(filler.fileName()).size();

        QFileSharing sharing;
        DialogDriver driver;
        bool ok = true;
        QVERIFY(driver.run([&] { ok = sharing.open(project); }).isEmpty());
        QVERIFY(!ok);
        QVERIFY(!QFileInfo::exists(QFileSharingPrivate::lockPath(project)));
        int seen = 0;
        driveOne([&] { ok = sharing.saveAs(project); }, Action::click(QStringLiteral("Ok")), &seen);
        QCOMPARE(seen, 1);
        QVERIFY(!ok);
        QVERIFY(!QFileInfo::exists(QFileSharingPrivate::lockPath(project)));
        QCOMPARE(sharing.TstFileLocked(project), 0);
        int lost = 0;
        lost += readFile(project) != projectBytes;
        lost += QFileInfo(filler.fileName()).size() != fillerSize;
        m_filesLost += lost;
        QCOMPARE(lost, 0);
        ++m_hostileLocksTried;
    }

    // A read-only shared folder: nothing can be taken, removed or written;
    // the calls say so and leave every file as it is.
    void readOnlyFolder()
    {
        QString whyNot;
        const QString disk = smallDisk(&whyNot);
        if (disk.isEmpty())
            QSKIP(qPrintable(whyNot));
        LockHangGuard guard(m_hostileLocksTried, m_filesLost);
        const QString free = disk + QStringLiteral("/Libero.ndx");
        const QString foreign = disk + QStringLiteral("/Altrui.ndx");
        const QString left = disk + QStringLiteral("/Avanzo.ndx");
        const QByteArray foreignLock = record(5, 6, QStringLiteral("PC2"), QStringLiteral("bruno"));
        const QByteArray leftLock = ownRecord(m_pid + 1);
        QVERIFY(writeFile(QFileSharingPrivate::lockPath(foreign), foreignLock));
        QVERIFY(writeFile(QFileSharingPrivate::lockPath(left), leftLock));
#ifndef Q_OS_WIN // smallDisk() gave no folder there
        QCOMPARE(::mount("ndxcom-test", QFile::encodeName(disk).constData(), "tmpfs",
                         MS_REMOUNT | MS_RDONLY | MS_NOSUID | MS_NODEV, nullptr),
                 0);
#endif

        QFileSharing sharing;
        DialogDriver driver;
        bool ok = true;
        QVERIFY(driver.run([&] { ok = sharing.open(free); }).isEmpty());
        QVERIFY(!ok);
        // A leftover that cannot be removed still stands.
        QCOMPARE(sharing.TstFileLocked(left), 2);
        int seen = 0;
        driveOne([&] { ok = sharing.unlock(foreign); }, Si, &seen);
        QCOMPARE(seen, 1);
        QVERIFY(!ok);
        driveOne([&] { ok = sharing.saveAs(free); }, Action::click(QStringLiteral("Ok")), &seen);
        QCOMPARE(seen, 1);
        QVERIFY(!ok);
        int lost = 0;
        lost += readFile(QFileSharingPrivate::lockPath(foreign)) != foreignLock;
        lost += readFile(QFileSharingPrivate::lockPath(left)) != leftLock;
        m_filesLost += lost;
        QCOMPARE(lost, 0);
        QVERIFY(!QFileInfo::exists(QFileSharingPrivate::lockPath(free)));
        ++m_hostileLocksTried;
    }

    // Names a lock file can carry, shown in the questions as the characters
    // they are (read as Latin-1, as the format has it): markup literally,
    // control and bidirectional formatting characters as U+FFFD.
    void hostileNames_data()
    {
        QTest::addColumn<QByteArray>("computer");
        QTest::addColumn<QByteArray>("user");
        QTest::addColumn<QString>("computerShown");
        QTest::addColumn<QString>("userShown");
        const QString r = QString(QChar(QChar::ReplacementCharacter));
        QTest::newRow("bold") << QByteArray("<b>x</b>") << QByteArray("<i>anna</i>")
                              << QStringLiteral("<b>x</b>") << QStringLiteral("<i>anna</i>");
        QTest::newRow("image") << QByteArray("<img src=\"file:///etc/passwd\">")
                               << QByteArray("<img src=http://127.0.0.1:9/a.png>")
                               << QStringLiteral("<img src=\"file:///etc/passwd\">")
                               << QStringLiteral("<img src=http://127.0.0.1:9/a.png>");
        QTest::newRow("link") << QByteArray("<a href=\"http://127.0.0.1:9/\">PC</a>")
                              << QByteArray("<a href=x>Si</a>")
                              << QStringLiteral("<a href=\"http://127.0.0.1:9/\">PC</a>")
                              << QStringLiteral("<a href=x>Si</a>");
        QTest::newRow("line breaks hide the question")
            << QByteArray("PC\n\n\n\n\n\n\n\n") << QByteArray("anna\r\nVuoi aprirlo ? Si")
            << QStringLiteral("PC") + r.repeated(8)
            << QStringLiteral("anna") + r.repeated(2) + QStringLiteral("Vuoi aprirlo ? Si");
        QTest::newRow("tab, escape, NUL")
            << QByteArray("P\tC\x1b[8m", 7) << QByteArray("an\0na", 5)
            << QStringLiteral("P") + r + QStringLiteral("C") + r + QStringLiteral("[8m")
            << QStringLiteral("an") + r + QStringLiteral("na");
        // U+202E RIGHT-TO-LEFT OVERRIDE and U+2066 LEFT-TO-RIGHT ISOLATE in
        // UTF-8, read as Latin-1: their middle byte is a C1 control.
        QTest::newRow("bidirectional override in UTF-8")
            << QByteArray("\xe2\x80\xae"
                          "anna")
            << QByteArray("\xe2\x81\xa6"
                          "bruno")
            << QStringLiteral("\u00e2") + r + QStringLiteral("\u00ae") + QStringLiteral("anna")
            << QStringLiteral("\u00e2") + r + QStringLiteral("\u00a6") + QStringLiteral("bruno");
        // Values are filled once: a marker inside a name is shown as it
        // stands, never filled by the next name.
        QTest::newRow("%1 in the computer")
            << QByteArray("PC-ALICE %1") << QByteArray("bob") << QStringLiteral("PC-ALICE %1")
            << QStringLiteral("bob");
        QTest::newRow("%2 in the computer") << QByteArray("PC %2") << QByteArray("bob")
                                            << QStringLiteral("PC %2") << QStringLiteral("bob");
        QTest::newRow("%1 and %2 in the user")
            << QByteArray("PC") << QByteArray("%2 %1 %%") << QStringLiteral("PC")
            << QStringLiteral("%2 %1 %%");
        QTest::newRow("%L1 and %99") << QByteArray("%L1%99") << QByteArray("%L2")
                                     << QStringLiteral("%L1%99") << QStringLiteral("%L2");
        // Names a box cannot hold are cut in their middle; a name of the
        // limit's length is shown whole.
        const int limit = QNodrixMessageBoxPrivate::ArgumentLengthLimit;
        const QByteArray atLimit = "A" + QByteArray(limit - 2, 'b') + "Z";
        QTest::newRow("name of the limit's length")
            << atLimit << QByteArray("bob") << QString::fromLatin1(atLimit)
            << QStringLiteral("bob");
        // The cut keeps the first (limit - 1) / 2 characters and the last
        // ones around the ellipsis, `limit` characters in all.
        const int head = (limit - 1) / 2;
        const int tail = limit - 1 - head;
        const QByteArray huge = "HEAD" + QByteArray(1000 * 1000, 'x') + "TAIL";
        const QString hugeShown = QStringLiteral("HEAD") + QString(head - 4, QLatin1Char('x'))
            + QChar(0x2026) + QString(tail - 4, QLatin1Char('x')) + QStringLiteral("TAIL");
        QTest::newRow("a computer of a megabyte")
            << huge << QByteArray("bob") << hugeShown << QStringLiteral("bob");
        QTest::newRow("a user of 500 kB with %1")
            << QByteArray("PC") << QByteArray("%1") + QByteArray(500 * 1000, 'u')
            << QStringLiteral("PC")
            << QStringLiteral("%1") + QString(head - 2, QLatin1Char('u')) + QChar(0x2026)
                + QString(tail, QLatin1Char('u'));
    }

    void hostileNames()
    {
        QFETCH(QByteArray, computer);
        QFETCH(QByteArray, user);
        QFETCH(QString, computerShown);
        QFETCH(QString, userShown);
        LockHangGuard guard(m_hostileLocksTried, m_filesLost);
        const QByteArray lock
            = record(9, 9, qint32(computer.size()), computer, qint32(user.size()), user);
        QVERIFY(writeFile(projectLock(), lock));
        QFileSharing sharing;
        QCOMPARE(sharing.TstFileLocked(project()), 2);
        bool ok = true;
        int seen = 0;
        BoxRecord box = driveOne([&] { ok = sharing.open(project()); }, No, &seen);
        QCOMPARE(seen, 1);
        checkQuestion(box, OpenQuestion.arg(computerShown, userShown));
        QCOMPARE(box.textFormat, Qt::PlainText);
        QCOMPARE(box.labelFormat, Qt::PlainText);
        QCOMPARE(box.labelText, box.text);
        // Whatever the names, the box fits the screen with its buttons.
        QVERIFY2(box.height <= box.screenSize.height() && box.width <= box.screenSize.width(),
                 qPrintable(QStringLiteral("%1x%2").arg(box.width).arg(box.height)));
        QVERIFY(!ok);
        box = driveOne([&] { ok = sharing.unlock(project()); }, No, &seen);
        QCOMPARE(seen, 1);
        checkQuestion(box, UnlockQuestion.arg(computerShown, userShown));
        QCOMPARE(box.textFormat, Qt::PlainText);
        QCOMPARE(box.labelText, box.text);
        QVERIFY(!ok);
        const int lost = readFile(projectLock()) != lock;
        m_filesLost += lost;
        QCOMPARE(lost, 0);
        ++m_hostileLocksTried;
    }

    // A project named with bytes that are not valid in the locale reaches the
    // application with U+FFFD in its name: its lock is still found, written
    // and removed under the project's real bytes.
    void undecodableProjectName()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows names are UTF-16: every name decodes");
#else
        const QByteArray folder = QFile::encodeName(m_dir->path());
        const QByteArray rawProject = folder + "/caf\xe9.ndx";
        const QByteArray rawLock = folder + "/caf\xe9.~lock";
        const QByteArray wrongLock = folder + "/caf\xef\xbf\xbd.~lock";
        const auto writeRaw = [](const QByteArray &name, const QByteArray &bytes) {
            const int fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            const bool ok = fd >= 0
                && ::write(fd, bytes.constData(), size_t(bytes.size())) == ssize_t(bytes.size());
            if (fd >= 0)
                ::close(fd);
            return ok;
        };
        const auto exists
            = [](const QByteArray &name) { return ::access(name.constData(), F_OK) == 0; };
        QVERIFY(writeRaw(rawProject, "NDX"));
        const QString project = QFile::decodeName(rawProject);
        QVERIFY(project.contains(QChar(QChar::ReplacementCharacter)));

        // Another workstation holds it.
        const QByteArray foreign = record(4242, 5, QStringLiteral("PC-B"), QStringLiteral("bruno"));
        QVERIFY(writeRaw(rawLock, foreign));
        QFileSharing sharing;
        QCOMPARE(sharing.TstFileLocked(project), 2);
        int seen = 0;
        bool ok = true;
        const BoxRecord box = driveOne([&] { ok = sharing.open(project); }, No, &seen);
        QCOMPARE(seen, 1);
        checkQuestion(box, OpenQuestion.arg(QStringLiteral("PC-B"), QStringLiteral("bruno")));
        QVERIFY(!ok);

        // Free again: the lock is written and removed by its real name.
        QVERIFY(::unlink(rawLock.constData()) == 0);
        QCOMPARE(sharing.TstFileLocked(project), 0);
        DialogDriver driver;
        QVERIFY(driver.run([&] { ok = sharing.open(project); }).isEmpty());
        QVERIFY(ok);
        QVERIFY(exists(rawLock));
        QVERIFY(!exists(wrongLock));
        QCOMPARE(sharing.TstFileLocked(project), 1);
        sharing.close();
        QVERIFY(!exists(rawLock));
        QVERIFY(exists(rawProject));
#endif
    }

    // Lock files get the permissions of any new document of the user: 0666
    // less the umask.
    void lockPermissions_data()
    {
        QTest::addColumn<int>("mask");
        QTest::newRow("022") << 022;
        QTest::newRow("002") << 002;
        QTest::newRow("077") << 077;
        QTest::newRow("000") << 0;
    }

    void lockPermissions()
    {
        QFETCH(int, mask);
#ifdef Q_OS_WIN
        Q_UNUSED(mask);
        QSKIP("Windows files have no Unix permissions and no umask");
#else
        const mode_t saved = ::umask(mode_t(mask));
        QFileSharing sharing;
        DialogDriver driver;
        bool ok = false;
        const auto boxes = driver.run([&] { ok = sharing.open(project()); });
        ::umask(saved);
        QVERIFY(boxes.isEmpty());
        QVERIFY(ok);
        struct stat info;
        QCOMPARE(::stat(QFile::encodeName(projectLock()).constData(), &info), 0);
        QCOMPARE(int(info.st_mode & 07777), 0666 & ~mask);
        sharing.close();
        QVERIFY(!QFileInfo::exists(projectLock()));
#endif
    }

    // ---- a project path without ".ndx" -----------------------------------

    // Its lock path is the project itself: the project is never read as a
    // lock, overwritten or deleted. The file holds this process's own record,
    // which would be recognised (and deleted by close) if it were read.
    void projectWithoutNdx_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("upper case") << "Calza.NDX";
        QTest::newRow("mixed case") << "Calza.nDx";
        QTest::newRow("no extension") << "Calza";
    }

    void projectWithoutNdx()
    {
        QFETCH(QString, name);
        const QString file = path(name);
        const QByteArray bytes = ownRecord(m_pid);
        const QByteArray stale = ownRecord(m_pid + 1);
        QVERIFY(writeFile(file, bytes));
        QFileSharing sharing;
        DialogDriver driver;
        QList<BoxRecord> boxes;
        int answer = -1;
        bool ok = false;

        boxes = driver.run([&] { answer = sharing.TstFileLocked(file); });
        QCOMPARE(answer, 0);
        boxes += driver.run([&] { ok = sharing.open(file); });
        QVERIFY(ok);
        QVERIFY(!sharing.isOpenRdOnly());
        QCOMPARE(QFileSharingState::of(sharing).fileName, file);
        boxes += driver.run([&] { ok = sharing.unlock(file); }, {Si});
        QVERIFY(!ok);
        boxes += driver.run([&] { sharing.close(); });
        QCOMPARE(QFileSharingState::of(sharing).fileName, file);
        boxes += driver.run([&] { ok = sharing.saveAs(file); });
        QVERIFY(ok);
        QCOMPARE(QFileSharingState::of(sharing).fileName, file);
        QVERIFY(boxes.isEmpty());
        QCOMPARE(readFile(file), bytes);

        // The same with a record the protocol would take as stale.
        QVERIFY(writeFile(file, stale));
        QFileSharing other;
        QCOMPARE(other.TstFileLocked(file), 0);
        QVERIFY(other.open(file));
        other.close();
        QVERIFY(!other.unlock(file));
        QCOMPARE(readFile(file), stale);

        // saveAs from a project with a lock onto such a path: no lock there,
        // and the object moves to it.
        QFileSharing moving;
        openReadWrite(moving, project());
        QVERIFY(driver.run([&] { ok = moving.saveAs(file); }).isEmpty());
        QVERIFY(ok);
        QCOMPARE(QFileSharingState::of(moving).fileName, file);
        QVERIFY(QFileSharingState::of(moving).lockName.isEmpty());
        moving.close();
        QCOMPARE(readFile(file), stale);
        QVERIFY(QFile::exists(projectLock())); // saveAs does not release it
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

private:
    int m_hostileLocksTried = 0;
    int m_filesLost = 0;
    QString m_mounted; // a tmpfs of the current row, unmounted in cleanup()
};

NDXCOM_TEST_MAIN(tst_QFileSharing)
#include "tst_qfilesharing.moc"
