#ifndef SHARINGTEST_H
#define SHARINGTEST_H

// What the single-process QFileSharing programs share: a fresh folder for the
// project of each test function, this process's identity as its locks name
// it, the checks of the questions and of the warning, and a disk that is full
// for the lock.

#include <QFileSharing>
#include <private/qfilesharing_p.h>

#include "dialogdriver.h"
#include "locktestutil.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QMessageBox>

#ifndef Q_OS_WIN
#include <sys/resource.h>

#include <csignal>
#endif

#include <memory>

Q_DECLARE_METATYPE(NdxComTest::Action)

namespace SharingTest {

inline const NdxComTest::Action Si = NdxComTest::Action::click(QStringLiteral("Si"));
inline const NdxComTest::Action No = NdxComTest::Action::click(QStringLiteral("No"));

using Buttons = QList<QPair<QString, QMessageBox::ButtonRole>>;

#ifdef Q_OS_WIN
// Windows has no per-process limit on the size of a file.
#define NDXCOM_FULL_DISK_SKIP()                                                                    \
    QSKIP("Windows has no per-process file size limit to make a write fail as on a full disk")
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

// The state of a test class: its initTestCase() calls setUpProcess(), its
// init() setUpFolder().
class Fixture
{
protected:
    // The protocol, off until someone switches it on, switched on; this
    // process's identity found independently of the library.
    void setUpProcess()
    {
        QVERIFY(!QFileSharing::sharingControlEnabled());
        ndxcomSetSharingControl(true);
        m_computer = LockTest::hostShortName();
        m_user = LockTest::loginName();
        m_pid = QCoreApplication::applicationPid();
        QVERIFY(!m_computer.isEmpty());
        QVERIFY(!m_user.isEmpty());
    }

    // The protocol on again, whatever the last test function left, and a new
    // empty folder.
    void setUpFolder()
    {
        ndxcomSetSharingControl(true);
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
    }

    QString path(const QString &name) const { return m_dir->filePath(name); }
    QString project() const { return path(QStringLiteral("Calza.ndx")); }
    QString projectLock() const { return path(QStringLiteral("Calza.~lock")); }
    QByteArray ownRecord(qint64 pid) const
    {
        return LockTest::record(pid, 1234, m_computer, m_user);
    }

    static void checkQuestion(const NdxComTest::BoxRecord &r, const QString &text)
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

    static void checkWarning(const NdxComTest::BoxRecord &r)
    {
        QCOMPARE(r.className, QStringLiteral("QMessageBox"));
        QCOMPARE(r.title, QStringLiteral("Nodrix"));
        QCOMPARE(r.icon, QMessageBox::Warning);
        QCOMPARE(r.text, LockTest::SaveAsWarning);
        QCOMPARE(r.buttonsByRole(), Buttons({{QStringLiteral("Ok"), QMessageBox::AcceptRole}}));
        QVERIFY(!r.actionFailed);
    }

    // Opens the project read-write in `sharing` and checks that it holds it.
    static void openReadWrite(QFileSharing &sharing, const QString &file)
    {
        NdxComTest::DialogDriver driver;
        bool ok = false;
        const auto boxes = driver.run([&] { ok = sharing.open(file); });
        QVERIFY(boxes.isEmpty());
        QVERIFY(ok);
        QVERIFY(!sharing.isOpenRdOnly());
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_computer;
    QString m_user;
    qint64 m_pid = 0;
};

} // namespace SharingTest

#endif // SHARINGTEST_H
