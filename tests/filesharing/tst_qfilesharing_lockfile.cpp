// QFileSharing's lock file: the path it takes beside the project, whatever
// the project's name, and how the file stands on disk (hidden on Windows,
// the permissions of any new document elsewhere).

#include <QFileSharing>
#include <QNodrixCom>
#include <private/qfilesharing_p.h>

#include "dialogdriver.h"
#include "locktestutil.h"
#include "ndxcomtest.h"
#include "sharingtest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace NdxComTest;
using namespace LockTest;
using namespace SharingTest;

namespace {

// Reads the dictionary's protected members, to change them.
class Dictionary : public QNodrixCom
{
public:
    using QNodrixCom::m_sLockFilesExt;
    using QNodrixCom::m_sProjectFilesExt;
};

#ifdef Q_OS_WIN
// Whether the file carries the hidden attribute, as Explorer reads it.
bool isHidden(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    const DWORD attributes = GetFileAttributesW(reinterpret_cast<const wchar_t *>(native.utf16()));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_HIDDEN);
}
#endif

} // namespace

class tst_QFileSharing_LockFile : public QObject, private Fixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProcess(); }
    void init() { setUpFolder(); }

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
        QCOMPARE(NdxComFileSharing::lockPath(project), lock);
        QCOMPARE(NdxComFileSharing::hasLockFile(project), lock != project);
    }

    // The class's own texts decide, not the dictionary's members.
    void lockPathIgnoresDictionary()
    {
        const QString project = Dictionary::m_sProjectFilesExt;
        const QString lock = Dictionary::m_sLockFilesExt;
        Dictionary::m_sProjectFilesExt = QStringLiteral(".xyz");
        Dictionary::m_sLockFilesExt = QStringLiteral(".lck");
        const QString a = NdxComFileSharing::lockPath(QStringLiteral("/p/C.ndx"));
        const QString b = NdxComFileSharing::lockPath(QStringLiteral("/p/C.xyz"));
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
        // QTemporaryDir removes by decoded names, which miss these files.
        const auto removeRaw = qScopeGuard([&] {
            ::unlink(rawLock.constData());
            ::unlink(rawProject.constData());
        });
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

    // ---- the file on disk ------------------------------------------------

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
};

NDXCOM_TEST_MAIN(tst_QFileSharing_LockFile)
#include "tst_qfilesharing_lockfile.moc"
