// Bad and hostile stores: garbage, values of the wrong kind, files that
// cannot be written, and two processes writing one store at once.
#include <QNodrixRegistry>

#include "accessors.h"
#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <memory>

using namespace StoreTest;

namespace {

QStringList writerArguments()
{
    return {QStringLiteral("--user-dir"),     userDir(),
            QStringLiteral("--system-dir"),   systemDir(),
            QStringLiteral("--organization"), QCoreApplication::organizationName(),
            QStringLiteral("--application"),  QCoreApplication::applicationName()};
}

std::unique_ptr<QProcess> startWriter(const QStringList &mode)
{
    std::unique_ptr<QProcess> p(new QProcess);
    p->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p->start(QStringLiteral(NDXCOM_SETTINGS_WRITER), writerArguments() + mode);
    return p;
}

// waitForFinished() answers false for a process that has already ended, so
// only a running one is waited for.
bool finishedWell(QProcess &p, int msecs = 240000)
{
    if (p.state() != QProcess::NotRunning && !p.waitForFinished(msecs))
        return false;
    if (p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
        qWarning("writer ended with status %d, code %d", int(p.exitStatus()), p.exitCode());
        return false;
    }
    return true;
}

// A literal with its embedded zero bytes, without the terminating one.
template<int N>
QByteArray bytes(const char (&literal)[N])
{
    return QByteArray(literal, N - 1);
}

// Deterministic garbage, so a failure can be reproduced.
QByteArray garbage(int size, quint32 seed, const QByteArray &excluded = QByteArray())
{
    QRandomGenerator random(seed);
    QByteArray bytes;
    bytes.reserve(size);
    while (bytes.size() < size) {
        const char c = char(random.bounded(256));
        if (!excluded.contains(c))
            bytes.append(c);
    }
    return bytes;
}

// Reads every value through every kind of reader; the results themselves
// are checked by the callers.
void readEverything(QNodrixRegistry &registry)
{
    for (const Accessor &a : accessors())
        a.get(registry);
    QPoint p;
    QSize s;
    QByteArray st;
    registry.loadMainWndPlacement(&p, &s, &st);
    QStringList files;
    registry.loadRecentFileList(&files);
    registry.getProjectsPathList();
    registry.getRepositoryPathList();
    registry.getProjectLinkPathList();
    registry.getNodrixEnvVersInst();
    registry.getNodrixEnvVersNeeded();
    QNodrixRegistry::lastMachine();
    QNodrixRegistry::machinePath();
    QNodrixRegistry::usbPath();
    QNodrixRegistry::keyLanguage();
    QNodrixRegistry::environmentEnblHelpInfo();
    QNodrixRegistry::environmentStitchZoomLevel();
}

void verifyDefaults(QNodrixRegistry &registry)
{
    for (const Accessor &a : accessors())
        QCOMPARE(a.get(registry), a.defaultValue());
    QPoint p(1, 2);
    QSize s(3, 4);
    QByteArray st("5");
    QCOMPARE(registry.loadMainWndPlacement(&p, &s, &st), true);
    QCOMPARE(p, QPoint(1, 2));
    QCOMPARE(s, QSize(3, 4));
    QCOMPARE(st, QByteArray("5"));
    QStringList files {QStringLiteral("x")};
    registry.loadRecentFileList(&files);
    QCOMPARE(files, QStringList());
    QCOMPARE(registry.getProjectsPathList(), QStringList());
    QCOMPARE(QNodrixRegistry::lastMachine(), QString());
    QCOMPARE(QNodrixRegistry::machinePath(), QDir::currentPath());
    QCOMPARE(QNodrixRegistry::usbPath(), QDir::homePath());
    QCOMPARE(int(QNodrixRegistry::keyLanguage()), -1);
    QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), false);
    QCOMPARE(QNodrixRegistry::environmentStitchZoomLevel(), 0);
}

// Makes a file or folder unwritable, also for root: permissions for a normal
// user, the immutable attribute for root (who ignores permissions). Undone
// when the guard goes.
class ReadOnlyGuard
{
public:
    bool makeReadOnly(const QString &path)
    {
        m_path = path;
        if (::geteuid() != 0) {
            m_permissions = QFile::permissions(path);
            m_mode = Permissions;
            return QFile::setPermissions(path,
                                         QFileDevice::ReadOwner | QFileDevice::ExeOwner
                                             | QFileDevice::ReadGroup | QFileDevice::ExeGroup);
        }
        if (!setImmutable(path, true))
            return false;
        m_mode = Immutable;
        return true;
    }
    ~ReadOnlyGuard()
    {
        if (m_mode == Permissions)
            QFile::setPermissions(m_path, m_permissions);
        else if (m_mode == Immutable)
            setImmutable(m_path, false);
    }

private:
    static bool setImmutable(const QString &path, bool on)
    {
        const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK);
        if (fd < 0)
            return false;
        int flags = 0;
        bool ok = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
        if (ok) {
            flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
            ok = ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
        }
        ::close(fd);
        return ok;
    }

    enum Mode { None, Permissions, Immutable };
    Mode m_mode = None;
    QString m_path;
    QFileDevice::Permissions m_permissions;
};

} // namespace

class tst_QNodrixRegistry_Stores : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void garbageStore_data();
    void garbageStore();
    void garbageBetweenGroups();
    void wrongKinds_data();
    void wrongKinds();
    void wrongKindsKeepOtherValues();
    void unwritableStore_data();
    void unwritableStore();
    void garbagePlatformStore();

    void writerWaitsForTheLock();
    void twoProcessesWriteOneStore();
    void libraryAndOtherProcessWriteOneStore();
};

void tst_QNodrixRegistry_Stores::init()
{
    freshStores();
}

void tst_QNodrixRegistry_Stores::garbageStore_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("random 4 KiB") << garbage(4096, 1);
    QTest::newRow("random 256 KiB") << garbage(256 * 1024, 2);
    QTest::newRow("random, no quotes") << garbage(64 * 1024, 3, "\"");
    QTest::newRow("zero bytes") << QByteArray(8192, '\0');
    QTest::newRow("0xFF bytes") << QByteArray(8192, '\xff');
    QTest::newRow("one long line") << QByteArray(1 << 20, 'x');
    QTest::newRow("unterminated section") << QByteArray("[Settings\nGridColor 9\n");
    QTest::newRow("unbalanced quote") << QByteArray("\"[Settings]\nGridColor=9\n");
    QTest::newRow("lone backslashes") << QByteArray("\\\\\\\n\\\r\\");
    QTest::newRow("equals only") << QByteArray("=\n==\n=\"=\n");
    QTest::newRow("utf-8 BOM and garbage") << QByteArray("\xef\xbb\xbf") + garbage(1024, 4);
    QTest::newRow("utf-16 text") << bytes("\xff\xfe[\0S\0e\0t\0]\0\n\0");
    QTest::newRow("broken typed values")
        << bytes("[X]\na=@Point(\nb=@Size(1\nc=@ByteArray(\nd=@Variant(\x01\x02\xff\n"
                 "e=@Variant(\0\0\0\x09\0\xff\xff\xff\xf0)\nf=@Rect(a b c d)\n");
}

void tst_QNodrixRegistry_Stores::garbageStore()
{
    // Nothing crashes, every reader gives its default, and the next writes
    // make a file that holds them.
    QFETCH(QByteArray, content);
    QVERIFY(writeFile(userStoreFile(), content));
    {
        QNodrixRegistry registry;
        readEverything(registry);
        verifyDefaults(registry);
        if (QTest::currentTestFailed())
            return;

        registry.setLastMachine(QStringLiteral("M"));
        for (const Accessor &a : accessors()) {
            if (a.getter != QLatin1String("getLastMachine"))
                a.set(registry, a.sample);
        }
        for (const Accessor &a : accessors()) {
            if (a.getter != QLatin1String("getLastMachine"))
                QCOMPARE(a.get(registry), a.sample);
        }
    }
    const DiskStore disk(userStoreFile());
    for (const Accessor &a : accessors()) {
        if (a.getter == QLatin1String("getLastMachine"))
            continue;
        QCOMPARE(disk.value(a.storedKey(QStringLiteral("M"))).toString(), a.sample.toString());
    }
    QCOMPARE(disk.value(QStringLiteral("Settings/LastMachine")).toString(), QStringLiteral("M"));
}

void tst_QNodrixRegistry_Stores::garbageBetweenGroups()
{
    // Garbage lines inside a file that also holds good values: the good
    // values are read, and survive the next writes.
    const QByteArray noise = garbage(2000, 7, QByteArray("\"\\\n\r=;[", 7));
    const QByteArray content = "[Keep]\nvalue=kept\n" + noise + "\n[Settings]\nGridColor=9\n"
        + noise + "\nLastMachine=M\n[Machines]\nM\\Settings\\MachinePath=/opt/m\n" + noise
        + "\n[Environment]\nEnblHelpInfo=true\n" + noise + "\n";
    QVERIFY(writeFile(userStoreFile(), content));
    {
        QNodrixRegistry registry;
        QCOMPARE(registry.getGridColor(), 9);
        QCOMPARE(registry.getLastMachine(), QStringLiteral("M"));
        QCOMPARE(registry.getMachinePath(), QStringLiteral("/opt/m"));
        QCOMPARE(QNodrixRegistry::machinePath(), QStringLiteral("/opt/m"));
        QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), true);
        registry.setProjectsPath(QStringLiteral("/srv/p"));
        registry.setLastGauge(QStringLiteral("14"));
    }
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(QStringLiteral("Keep/value")).toString(), QStringLiteral("kept"));
    QCOMPARE(disk.value(QStringLiteral("Settings/GridColor")).toString(), QStringLiteral("9"));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/MachinePath")).toString(),
             QStringLiteral("/opt/m"));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/ProjectsPath")).toString(),
             QStringLiteral("/srv/p"));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/SettingsRecent/LastGauge")).toString(),
             QStringLiteral("14"));
    QCOMPARE(disk.value(QStringLiteral("Environment/EnblHelpInfo")).toString(),
             QStringLiteral("true"));
}

void tst_QNodrixRegistry_Stores::wrongKinds_data()
{
    QTest::addColumn<QString>("getter");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QVariant>("expected");
    // What QVariant's conversion makes of them: 0, false or empty - and for
    // a key that is present the default is not used.
    QTest::newRow("GridColor text") << "getGridColor" << QByteArray("abc") << QVariant(0);
    QTest::newRow("GridColor list") << "getGridColor" << QByteArray("1, 2") << QVariant(0);
    QTest::newRow("GridColor point") << "getGridColor" << QByteArray("@Point(1 2)") << QVariant(0);
    QTest::newRow("Language point") << "getLanguage" << QByteArray("@Point(1 2)") << QVariant(0);
    QTest::newRow("Language text") << "getLanguage" << QByteArray("en") << QVariant(0);
    QTest::newRow("ShowOverview point")
        << "getShowOverview" << QByteArray("@Point(1 2)") << QVariant(false);
    QTest::newRow("ShowOverview list")
        << "getShowOverview" << QByteArray("a, b") << QVariant(false);
    QTest::newRow("MachineName size")
        << "getMachineName" << QByteArray("@Size(1 2)") << QVariant(QString());
    QTest::newRow("MachinePath list")
        << "getMachinePath" << QByteArray("/a, /b") << QVariant(QString());
    QTest::newRow("MachinePath bytes") << "getMachinePath" << QByteArray("@ByteArray(/opt/m)")
                                       << QVariant(QStringLiteral("/opt/m"));
    QTest::newRow("HddPath point")
        << "getHddPath" << QByteArray("@Point(0 0)") << QVariant(QString());
    QTest::newRow("UsbPath empty") << "getUsbPath" << QByteArray("") << QVariant(QString());
    QTest::newRow("LastGauge number") << "getLastGauge" << QByteArray("14") << QVariant("14");
    QTest::newRow("LastBrowserMode text")
        << "getLastBrowserMode" << QByteArray("tree") << QVariant(0);
    QTest::newRow("LastBrowserMode rect")
        << "getLastBrowserMode" << QByteArray("@Rect(1 2 3 4)") << QVariant(0);
}

void tst_QNodrixRegistry_Stores::wrongKinds()
{
    QFETCH(QString, getter);
    QFETCH(QByteArray, value);
    QFETCH(QVariant, expected);
    const Accessor *a = accessor(getter);
    QVERIFY(a);
    const QString key = a->storedKey(QStringLiteral("M"));
    const int slash = key.indexOf(QLatin1Char('/'));
    QByteArray rest = key.mid(slash + 1).toUtf8();
    rest.replace('/', '\\');
    QVERIFY(writeFile(userStoreFile(),
                      "[Settings]\nLastMachine=M\n[" + key.left(slash).toUtf8() + "]\n" + rest + "="
                          + value + "\n"));
    QNodrixRegistry registry;
    QCOMPARE(a->get(registry), expected);
    if (getter == QLatin1String("getMachinePath"))
        QCOMPARE(QVariant(QNodrixRegistry::machinePath()), expected);
    if (getter == QLatin1String("getUsbPath"))
        QCOMPARE(QVariant(QNodrixRegistry::usbPath()), expected);
    if (getter == QLatin1String("getLanguage"))
        QCOMPARE(QVariant(int(QNodrixRegistry::keyLanguage())), expected);
}

void tst_QNodrixRegistry_Stores::wrongKindsKeepOtherValues()
{
    const QByteArray content
        = "[Settings]\nGridColor=abc\nLastMachine=M\nLanguage=@Point(1 2)\n"
          "[Machines]\nM\\Settings\\ProjectsPathList=@Size(3 4)\n"
          "M\\Recent%20File%20List\\recentFileList=@Point(1 2)\n"
          "M\\MainWindow\\pos=@Size(5 6)\n"
          "[Environment]\nEnblHelpInfo=@Point(1 2)\nStitchZoomLevel=@Size(1 2)\n";
    QVERIFY(writeFile(userStoreFile(), content));
    {
        QNodrixRegistry registry;
        QCOMPARE(registry.getGridColor(), 0);
        QCOMPARE(registry.getProjectsPathList(), QStringList());
        QStringList files {QStringLiteral("x")};
        registry.loadRecentFileList(&files);
        QCOMPARE(files, QStringList());
        QPoint p(1, 1);
        registry.loadMainWndPlacement(&p, nullptr, nullptr);
        QCOMPARE(p, QPoint());
        QCOMPARE(QNodrixRegistry::environmentEnblHelpInfo(), false);
        QCOMPARE(QNodrixRegistry::environmentStitchZoomLevel(), 0);
        registry.setLastCfg(QStringLiteral("cfg"));
        registry.setShowOverview(true);
    }
    // The writes rewrote the file; the values of the other keys and groups
    // are all still there, with their kinds.
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(QStringLiteral("Settings/GridColor")).toString(), QStringLiteral("abc"));
    QCOMPARE(disk.value(QStringLiteral("Settings/Language")), QVariant(QPoint(1, 2)));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/ProjectsPathList")),
             QVariant(QSize(3, 4)));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Recent File List/recentFileList")),
             QVariant(QPoint(1, 2)));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/MainWindow/pos")), QVariant(QSize(5, 6)));
    QCOMPARE(disk.value(QStringLiteral("Environment/EnblHelpInfo")), QVariant(QPoint(1, 2)));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/SettingsRecent/LastCfg")).toString(),
             QStringLiteral("cfg"));
    QCOMPARE(disk.value(QStringLiteral("SettingsRecent/ShowOverview")).toString(),
             QStringLiteral("true"));
}

void tst_QNodrixRegistry_Stores::unwritableStore_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<bool>("readable");
    QTest::newRow("read-only file") << QStringLiteral("file") << true;
    QTest::newRow("read-only folder") << QStringLiteral("folder") << true;
    QTest::newRow("read-only folder, no file") << QStringLiteral("empty folder") << false;
    QTest::newRow("folder in place of the file") << QStringLiteral("file is folder") << false;
    QTest::newRow("file in place of the folder") << QStringLiteral("folder is file") << false;
}

void tst_QNodrixRegistry_Stores::unwritableStore()
{
    QFETCH(QString, how);
    QFETCH(bool, readable);
    const QString file = userStoreFile();
    const QString folder = QFileInfo(file).absolutePath();
    const QByteArray content = "[Keep]\nvalue=kept\n\n[Settings]\nGridColor=9\nLastMachine=M\n\n"
                               "[Machines]\nM\\Settings\\MachinePath=/opt/m\n";
    ReadOnlyGuard guard;
    if (how == QLatin1String("file") || how == QLatin1String("folder")) {
        QVERIFY(writeFile(file, content));
        if (!guard.makeReadOnly(how == QLatin1String("file") ? file : folder))
            QSKIP("this file system cannot make a file read-only for root");
    } else if (how == QLatin1String("empty folder")) {
        QVERIFY(QDir().mkpath(folder));
        if (!guard.makeReadOnly(folder))
            QSKIP("this file system cannot make a folder read-only for root");
    } else if (how == QLatin1String("file is folder")) {
        QVERIFY(QDir().mkpath(file));
    } else {
        QVERIFY(QDir().mkpath(QFileInfo(folder).absolutePath()));
        QVERIFY(writeFile(folder, "not a folder"));
    }

    {
        QNodrixRegistry registry;
        readEverything(registry);
        if (readable) {
            QCOMPARE(registry.getGridColor(), 9);
            QCOMPARE(registry.getMachinePath(), QStringLiteral("/opt/m"));
            QCOMPARE(QNodrixRegistry::machinePath(), QStringLiteral("/opt/m"));
        } else {
            verifyDefaults(registry);
        }
        // Writing fails quietly; the change lives on in this process's store
        // only.
        registry.setGridColor(4);
        registry.setLastCfg(QStringLiteral("cfg"));
        registry.saveMainWndPlacement(QPoint(1, 2), QSize(3, 4), QByteArray("s"), false);
        QNodrixRegistry::updateUsbPath(QStringLiteral("/media/u"));
        QCOMPARE(registry.getGridColor(), 4);
        QCOMPARE(registry.getLastCfg(), QStringLiteral("cfg"));
        QSettings store;
        store.sync();
        QCOMPARE(store.status(), QSettings::AccessError);
    }
    // Nothing on disk changed, and nothing else was left behind.
    if (how == QLatin1String("file") || how == QLatin1String("folder")) {
        QCOMPARE(readFile(file), content);
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden),
                 QStringList {QFileInfo(file).fileName()});
    } else if (how == QLatin1String("empty folder")) {
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList());
    } else if (how == QLatin1String("file is folder")) {
        QVERIFY(QFileInfo(file).isDir());
    } else {
        QCOMPARE(readFile(folder), QByteArray("not a folder"));
    }
}

void tst_QNodrixRegistry_Stores::garbagePlatformStore()
{
    QVERIFY(writeFile(platformStoreFile(), garbage(16384, 11)));
    QNodrixRegistry registry;
    registry.setMachineName(QStringLiteral("VX3K"));
    QCOMPARE(registry.getNodrixEnvVersInst(), QString());
    QCOMPARE(registry.getNodrixEnvVersNeeded(), QString());
    // A folder in place of the platform store.
    freshStores();
    QVERIFY(QDir().mkpath(platformStoreFile()));
    QNodrixRegistry other;
    other.setMachineName(QStringLiteral("VX3K"));
    QCOMPARE(other.getNodrixEnvVersInst(), QString());
    QCOMPARE(other.getNodrixEnvVersNeeded(), QString());
}

void tst_QNodrixRegistry_Stores::writerWaitsForTheLock()
{
    // QSettings takes "<file>.lock" (a QLockFile) around every write: while
    // another holder has it, a writer waits, and it writes once the lock is
    // free. This is what keeps two processes from losing each other's keys.
    {
        QNodrixRegistry registry;
        registry.setGridColor(5);
    }
    const QString file = userStoreFile();
    QVERIFY(QFileInfo(file).isFile());
    QLockFile lock(file + QStringLiteral(".lock"));
    QVERIFY(lock.tryLock(10000));

    auto writer = startWriter(
        {QStringLiteral("--set"), QStringLiteral("Settings/Probe"), QStringLiteral("written")});
    QVERIFY(writer->waitForStarted(30000));
    QVERIFY(!writer->waitForFinished(1500));
    QCOMPARE(writer->state(), QProcess::Running);
    QVERIFY(!DiskStore(file).contains(QStringLiteral("Settings/Probe")));

    lock.unlock();
    QVERIFY(finishedWell(*writer, 60000));
    const DiskStore disk(file);
    QCOMPARE(disk.value(QStringLiteral("Settings/Probe")).toString(), QStringLiteral("written"));
    QCOMPARE(disk.value(QStringLiteral("Settings/GridColor")).toString(), QStringLiteral("5"));
    QVERIFY(!QFileInfo::exists(file + QStringLiteral(".lock")));
}

void tst_QNodrixRegistry_Stores::twoProcessesWriteOneStore()
{
    constexpr int keys = 500;
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        registry.setMachinePath(QStringLiteral("/opt/m"));
    }
    auto a = startWriter({QStringLiteral("--many"), QStringLiteral("A"), QString::number(keys),
                          QStringLiteral("--expect-machine-path"), QStringLiteral("/opt/m")});
    auto b = startWriter({QStringLiteral("--many"), QStringLiteral("B"), QString::number(keys),
                          QStringLiteral("--expect-machine-path"), QStringLiteral("/opt/m")});
    QVERIFY(a->waitForStarted(30000));
    QVERIFY(b->waitForStarted(30000));

    // Meanwhile this process reads: it never sees a half-written file.
    QNodrixRegistry reader;
    int reads = 0;
    while (a->state() != QProcess::NotRunning || b->state() != QProcess::NotRunning) {
        QCOMPARE(reader.getMachinePath(), QStringLiteral("/opt/m"));
        QCOMPARE(QNodrixRegistry::lastMachine(), QStringLiteral("M"));
        ++reads;
        a->waitForFinished(5);
        b->waitForFinished(5);
    }
    QVERIFY(finishedWell(*a));
    QVERIFY(finishedWell(*b));
    QVERIFY(reads > 0);

    const DiskStore disk(userStoreFile());
    int missing = 0;
    for (const char *tag : {"A", "B"}) {
        for (int n = 0; n < keys; ++n) {
            const QString key
                = QStringLiteral("Concurrency/%1/Key%2").arg(QLatin1String(tag)).arg(n);
            if (disk.value(key).toString() != QString::number(n))
                ++missing;
        }
    }
    QCOMPARE(missing, 0);
    QCOMPARE(disk.childGroups(QStringLiteral("Concurrency")).size(), 2);
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/MachinePath")).toString(),
             QStringLiteral("/opt/m"));
}

void tst_QNodrixRegistry_Stores::libraryAndOtherProcessWriteOneStore()
{
    // The library's own writes (flushed one by one) and another process's
    // writes of other keys, at the same time: nobody's keys are lost.
    constexpr int keys = 300;
    constexpr int rounds = 150;
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("M"));
    flushUserStore();
    auto other
        = startWriter({QStringLiteral("--many"), QStringLiteral("Other"), QString::number(keys)});
    QVERIFY(other->waitForStarted(30000));
    for (int i = 0; i < rounds; ++i) {
        registry.setLastCfg(QStringLiteral("cfg-%1").arg(i));
        QNodrixRegistry::updateUsbPath(QStringLiteral("/media/%1").arg(i));
        flushUserStore();
    }
    QVERIFY(finishedWell(*other));
    const DiskStore disk(userStoreFile());
    for (int n = 0; n < keys; ++n)
        QCOMPARE(disk.value(QStringLiteral("Concurrency/Other/Key%1").arg(n)).toString(),
                 QString::number(n));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/SettingsRecent/LastCfg")).toString(),
             QStringLiteral("cfg-%1").arg(rounds - 1));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/UsbPath")).toString(),
             QStringLiteral("/media/%1").arg(rounds - 1));
    QCOMPARE(registry.getLastCfg(), QStringLiteral("cfg-%1").arg(rounds - 1));
}

NDXCOM_TEST_MAIN(tst_QNodrixRegistry_Stores)
#include "tst_qnodrixregistry_stores.moc"
