// QFileSharing against hostile shared folders: damaged lock files, whatever
// else stands at a lock's name, a lock changed between its read and its
// deletion, a full disk, a read-only folder and names made to mislead. Every
// row counts in the hostile-lock figure the program reports.

#include <QFileSharing>
#include <QNodrixCom>
#include <private/qfilesharing_p.h>
#include <private/qnodrixmessagebox_p.h>

#include "dialogdriver.h"
#include "hangguard.h"
#include "locktestutil.h"
#include "ndxcomtest.h"
#include "sharingtest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <functional>

using namespace NdxComTest;
using namespace LockTest;
using namespace SharingTest;

namespace {

// What the library's removal hook does between its read of a lock and its
// deletion (see NdxComFileSharing::setBeforeLockRemoval).
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

class tst_QFileSharing_Hostile : public QObject, private Fixture
{
    Q_OBJECT

private:
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
        setUpProcess();
    }
    void init()
    {
        setUpFolder();
    }

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
        NdxComFileSharing::setBeforeLockRemoval(runBeforeRemoval);
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
        NdxComFileSharing::setBeforeLockRemoval(nullptr);
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
        NdxComFileSharing::setBeforeLockRemoval(nullptr);
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
        QVERIFY(!QFileInfo::exists(NdxComFileSharing::lockPath(project)));
        int seen = 0;
        driveOne([&] { ok = sharing.saveAs(project); }, Action::click(QStringLiteral("Ok")), &seen);
        QCOMPARE(seen, 1);
        QVERIFY(!ok);
        QVERIFY(!QFileInfo::exists(NdxComFileSharing::lockPath(project)));
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
        QVERIFY(writeFile(NdxComFileSharing::lockPath(foreign), foreignLock));
        QVERIFY(writeFile(NdxComFileSharing::lockPath(left), leftLock));
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
        lost += readFile(NdxComFileSharing::lockPath(foreign)) != foreignLock;
        lost += readFile(NdxComFileSharing::lockPath(left)) != leftLock;
        m_filesLost += lost;
        QCOMPARE(lost, 0);
        QVERIFY(!QFileInfo::exists(NdxComFileSharing::lockPath(free)));
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
        const int limit = NdxComMessages::ArgumentLengthLimit;
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

private:
    int m_hostileLocksTried = 0;
    int m_filesLost = 0;
    QString m_mounted; // a tmpfs of the current row, unmounted in cleanup()
};

NDXCOM_TEST_MAIN(tst_QFileSharing_Hostile)
#include "tst_qfilesharing_hostile.moc"
