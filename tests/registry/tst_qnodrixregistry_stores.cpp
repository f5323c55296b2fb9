// Bad and hostile stores: garbage, values of the wrong kind, files that
// cannot be written, and two processes writing one store at once.
#include <QNodrixRegistry>

#include "accessors.h"
#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QDataStream>
#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

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

// ---------------------------------------------------------------------------
// The reliability figure of these tests: how many hostile files the library
// was run on, and how many values of keys it did not write had to survive its
// writes and did not. A crash ends the program before the figure is printed,
// which scripts/test reports as a failure of its own.
// ---------------------------------------------------------------------------
struct HostileTally
{
    int files = 0;
    int checked = 0;
    int lost = 0;
    int unwritable = 0; // values QSettings itself cannot write back
};

HostileTally &tally()
{
    static HostileTally t;
    return t;
}

// Equal as values; two values QVariant cannot compare (a NaN, a type without
// an equality operator) count as equal when they stream to the same bytes.
bool sameValue(const QVariant &a, const QVariant &b)
{
    if (a == b)
        return true;
    if (a.userType() != b.userType())
        return false;
    QByteArray x, y;
    {
        QDataStream s(&x, QIODevice::WriteOnly);
        s << a;
    }
    {
        QDataStream s(&y, QIODevice::WriteOnly);
        s << b;
    }
    return x == y;
}

// One value that must still be on disk: counted, and reported when lost. A
// text is compared as text, the way the file keeps it.
bool kept(const DiskStore &disk, const QString &key, const QVariant &expected)
{
    ++tally().checked;
    const QVariant now = disk.value(key);
    const bool same = disk.contains(key)
        && (expected.userType() == QMetaType::QString ? now.toString() == expected.toString()
                                                      : sameValue(now, expected));
    if (!same) {
        ++tally().lost;
        QString text;
        QDebug(&text) << key << expected << (disk.contains(key) ? now : QVariant());
        qWarning("value lost: %s", qPrintable(text));
    }
    return same;
}

using StoreValues = QMap<QString, QVariant>;

// Every value a plain QSettings reads from the file. Garbage can give names
// that allKeys() lists but no reader can ask for ("a/", "a//b": QSettings
// tidies the name it is asked for, so it never finds them); they hold no
// value anybody could lose and are left out.
StoreValues valuesOf(const QString &file)
{
    const DiskStore disk(file);
    StoreValues values;
    const QStringList keys = disk.allKeys();
    for (const QString &key : keys) {
        if (disk.contains(key))
            values.insert(key, disk.value(key));
    }
    return values;
}

// The values of a file that survive its being rewritten by a plain QSettings
// (one key of its own added, then synced). Garbage can hold what QSettings
// reads but cannot write back - a lone UTF-16 surrogate, a name or a quoted
// text made of control bytes and broken UTF-8 - and every program that
// writes through QSettings loses those the same way. What the library must
// keep is everything else; *unwritable counts what was left out.
StoreValues valuesToKeep(const QString &file, int *unwritable)
{
    const StoreValues values = valuesOf(file);
    QTemporaryDir dir;
    const QString copy = dir.path() + QStringLiteral("/rewritten.conf");
    QFile::copy(file, copy);
    {
        QSettings plain(copy, QSettings::IniFormat);
        plain.setValue(QStringLiteral("NdxComTestProbe/written"), 1);
        plain.sync();
    }
    const StoreValues rewritten = valuesOf(copy);
    StoreValues keep;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const auto there = rewritten.constFind(it.key());
        if (there != rewritten.cend() && sameValue(there.value(), it.value()))
            keep.insert(it.key(), it.value());
        else
            ++*unwritable;
    }
    return keep;
}

// After the library's writes, every value read before under a key it did not
// write is still there, unchanged. `written` names the keys it may have
// written: exact keys, and under "Machines/" the last part of a key (the
// machine group depends on whatever "LastMachine" the file held). Answers
// the number of values lost.
int checkOthersKept(const StoreValues &before, const QString &file, const QStringList &written,
                    const QStringList &writtenMachineLeaves)
{
    const DiskStore after(file);
    int lost = 0;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (written.contains(it.key()))
            continue;
        if (it.key().startsWith(QLatin1String("Machines/"))
            && writtenMachineLeaves.contains(it.key().section(QLatin1Char('/'), -1)))
            continue;
        if (!kept(after, it.key(), it.value()))
            ++lost;
    }
    return lost;
}

// ---------------------------------------------------------------------------
// Hostile files made from a workstation's store: the groups the library reads
// and writes, and groups of other programs that share the file. Each kind of
// damage is applied with a seed, so every file can be made again.
// ---------------------------------------------------------------------------
QByteArray everydayStoreText()
{
    return bytes("[General]\nTop=valore\n\n"
                 "[Settings]\nGridColor=9\nLanguage=2\nLastMachine=M1\nNodrixEnvMsg=ciao\n\n"
                 "[SettingsRecent]\nShowOverview=false\n\n"
                 "[Environment]\nEnblHelpInfo=true\nStitchZoomLevel=3\n\n"
                 "[Machines]\nM1\\Settings\\MachineName=VX3K\nM1\\Settings\\MachinePath=/opt/m1\n"
                 "M1\\Settings\\ProjectsPath=/srv/p1\n"
                 "M1\\Settings\\ProjectsPathList=/srv/p1, /srv/p2\n"
                 "M1\\SettingsRecent\\LastGauge=14\nM1\\MainWindow\\pos=@Point(10 20)\n"
                 "M1\\MainWindow\\size=@Size(800 600)\n"
                 "M1\\MainWindow\\state=@ByteArray(\\0\\x1\\xff)\n"
                 "M1\\Recent%20File%20List\\recentFileList=/srv/p1/a.ndx, /srv/p1/b.ndx\n"
                 "M2\\Settings\\MachinePath=/opt/m2\nM2\\SettingsRecent\\LastCfg=a.cfg\n\n"
                 "[Keep]\ntext=Perch\xc3\xa9 s\xc3\xac\nlist=a, b, \"c, d\"\nnumber=42\n"
                 "point=@Point(1 2)\nrect=@Rect(1 2 3 4)\nbytes=@ByteArray(abc)\n"
                 "escaped=\"\\t\\n\\\\ \\\"q\\\"\"\n\n"
                 "[Other%20App]\nkey\\sub=value\nempty=\n");
}

QList<QByteArray> linesOf(const QByteArray &text)
{
    return text.split('\n');
}

QByteArray joined(const QList<QByteArray> &lines)
{
    QByteArray text;
    for (int i = 0; i < lines.size(); ++i) {
        if (i)
            text += '\n';
        text += lines.at(i);
    }
    return text;
}

// What no reader of the store may choke on.
const char *const hostileKinds[] = {
    "flipped bytes",    "truncated",  "garbage lines",      "wrong kinds",
    "duplicate groups", "long lines", "zero and 0xff runs", "line ends",
    "broken escapes",   "encodings",  "shuffled lines",     "nested brackets",
};
constexpr int hostileKindCount = int(sizeof(hostileKinds) / sizeof(hostileKinds[0]));
constexpr int hostileSeedsPerKind = 25;

QByteArray hostileStore(int kind, quint32 seed)
{
    QRandomGenerator random(seed * 7919u + quint32(kind));
    QByteArray text = everydayStoreText();
    QList<QByteArray> lines = linesOf(text);
    const auto anyLine = [&] { return int(random.bounded(lines.size())); };
    switch (kind) {
    case 0: { // a few bytes anywhere changed to anything
        const int n = 1 + int(random.bounded(20));
        for (int i = 0; i < n; ++i)
            text[int(random.bounded(text.size()))] = char(random.bounded(256));
        return text;
    }
    case 1: // cut short anywhere, as by a full disk
        return text.left(int(random.bounded(text.size())));
    case 2: { // lines of noise between the good ones
        const int n = 1 + int(random.bounded(8));
        for (int i = 0; i < n; ++i)
            lines.insert(anyLine(), garbage(1 + int(random.bounded(300)), random.generate(), "\n"));
        return joined(lines);
    }
    case 3: { // the library's keys hold values of another kind
        static const char *const wrong[]
            = {"@Point(1 2)",           "@Size(",      "a, b, c",      "",           "@ByteArray(x",
               "@Variant(\\0\\0\\xff)", "@Rect(1 2 3", "\"unbalanced", "@Invalid()", "1e999",
               "-2147483649",           "\\x110000"};
        for (QByteArray &line : lines) {
            const int eq = line.indexOf('=');
            if (eq > 0 && random.bounded(2))
                line = line.left(eq + 1)
                    + wrong[random.bounded(int(sizeof(wrong) / sizeof(*wrong)))];
        }
        return joined(lines);
    }
    case 4: { // groups repeated with other values, keys repeated in a group
        const int n = 1 + int(random.bounded(4));
        for (int i = 0; i < n; ++i) {
            const int at = anyLine();
            lines.insert(anyLine(), lines.at(at) + QByteArray::number(random.bounded(100)));
            lines.append(QByteArray("[Settings]"));
            lines.append(QByteArray("LastMachine=") + QByteArray::number(random.bounded(3)));
        }
        return joined(lines);
    }
    case 5: { // a line far longer than any real one, key or value
        const QByteArray fill(int(16384 + random.bounded(65536)), char('a' + random.bounded(26)));
        lines.insert(anyLine(), random.bounded(2) ? fill + "=x" : "LongValue=" + fill);
        return joined(lines);
    }
    case 6: { // runs of zero bytes and 0xff
        const int n = 1 + int(random.bounded(5));
        for (int i = 0; i < n; ++i)
            text.insert(int(random.bounded(text.size())),
                        QByteArray(int(1 + random.bounded(64)), random.bounded(2) ? '\0' : '\xff'));
        return text;
    }
    case 7: { // CR only, CR LF, no final line end, blanks around names
        QByteArray out;
        for (const QByteArray &line : lines) {
            static const char *const ends[] = {"\r", "\r\n", "\n", "\n\n", " \t\n"};
            out += (random.bounded(4) == 0 ? " " + line + " " : line);
            out += ends[random.bounded(5)];
        }
        out.chop(int(random.bounded(3)));
        return out;
    }
    case 8: { // escapes cut short or out of range in names and values
        static const char *const broken[]
            = {"%", "%G1", "%2", "\\x", "\\", "\\u", "\\0", "%00", "\\xd800", "%FF%FE"};
        const int n = 1 + int(random.bounded(6));
        for (int i = 0; i < n; ++i) {
            QByteArray &line = lines[anyLine()];
            line.insert(int(random.bounded(line.size() + 1)),
                        broken[random.bounded(int(sizeof(broken) / sizeof(*broken)))]);
        }
        return joined(lines);
    }
    case 9: { // byte order marks, Latin-1 and broken UTF-8
        static const char *const odd[] = {"\xef\xbb\xbf", "\xff\xfe",         "\xe8\xe0", "\xc3",
                                          "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xc0\xaf"};
        const int n = 1 + int(random.bounded(6));
        for (int i = 0; i < n; ++i)
            text.insert(int(random.bounded(text.size())),
                        odd[random.bounded(int(sizeof(odd) / sizeof(*odd)))]);
        return text;
    }
    case 10: { // lines out of their groups
        for (int i = lines.size() - 1; i > 0; --i)
            lines.swapItemsAt(i, int(random.bounded(i + 1)));
        return joined(lines);
    }
    default: { // brackets and separators where names are expected
        static const char *const odd[] = {"[[Settings]]",   "[]",         "[Settings",
                                          "Settings]",      "[/]",        "[\\]",
                                          "=[x]",           "[a=b]\nc=d", "[Machines]\n\\\\\\=1",
                                          "[Keep]\n/=slash"};
        const int n = 1 + int(random.bounded(5));
        for (int i = 0; i < n; ++i)
            lines.insert(anyLine(), odd[random.bounded(int(sizeof(odd) / sizeof(*odd)))]);
        return joined(lines);
    }
    }
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

#ifndef Q_OS_WIN
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
#else
// The store is the registry on Windows, whose tests skip the files' (init()).
class ReadOnlyGuard
{
public:
    bool makeReadOnly(const QString &) { return false; }
};
#endif

} // namespace

class tst_QNodrixRegistry_Stores : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase();

    void garbageStore_data();
    void garbageStore();
    void garbageBetweenGroups();
    void wrongKinds_data();
    void wrongKinds();
    void wrongKindsKeepOtherValues();
    void unwritableStore_data();
    void unwritableStore();
    void garbagePlatformStore();
    void hostileStores_data();
    void hostileStores();

    void writerWaitsForTheLock();
    void twoProcessesWriteOneStore();
    void libraryAndOtherProcessWriteOneStore();
};

void tst_QNodrixRegistry_Stores::init()
{
#ifdef Q_OS_WIN
    QSKIP("the Windows store is the registry, not a file: tst_qnodrixregistry_registry tries "
          "hostile registry values instead");
#endif
    freshStores();
}

void tst_QNodrixRegistry_Stores::cleanupTestCase()
{
    // Garbage values that QSettings itself cannot write back are not counted
    // as checked (see valuesToKeep()); the figure says how many there were.
#ifndef Q_OS_WIN
    qInfo("ndxcom-figure: hostile settings files tried: %d, crashes: 0, values lost: %d, "
          "values checked: %d, garbage values QSettings itself cannot write back: %d",
          tally().files, tally().lost, tally().checked, tally().unwritable);
#endif
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
    ++tally().files;
    const StoreValues before = valuesToKeep(userStoreFile(), &tally().unwritable);
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
    QStringList written {QStringLiteral("Settings/LastMachine")};
    for (const Accessor &a : accessors()) {
        if (a.getter == QLatin1String("getLastMachine"))
            continue;
        written << a.storedKey(QStringLiteral("M"));
        QCOMPARE(disk.value(a.storedKey(QStringLiteral("M"))).toString(), a.sample.toString());
    }
    QCOMPARE(disk.value(QStringLiteral("Settings/LastMachine")).toString(), QStringLiteral("M"));
    // Whatever a plain reader made of the garbage is still there.
    QCOMPARE(checkOthersKept(before, userStoreFile(), written, QStringList()), 0);
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
    ++tally().files;
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
    QVERIFY(kept(disk, QStringLiteral("Keep/value"), QStringLiteral("kept")));
    QVERIFY(kept(disk, QStringLiteral("Settings/GridColor"), QStringLiteral("9")));
    QVERIFY(kept(disk, QStringLiteral("Settings/LastMachine"), QStringLiteral("M")));
    QVERIFY(
        kept(disk, QStringLiteral("Machines/M/Settings/MachinePath"), QStringLiteral("/opt/m")));
    QVERIFY(kept(disk, QStringLiteral("Environment/EnblHelpInfo"), QStringLiteral("true")));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/Settings/ProjectsPath")).toString(),
             QStringLiteral("/srv/p"));
    QCOMPARE(disk.value(QStringLiteral("Machines/M/SettingsRecent/LastGauge")).toString(),
             QStringLiteral("14"));
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
    ++tally().files;
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
    ++tally().files;
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
    QVERIFY(kept(disk, QStringLiteral("Settings/GridColor"), QStringLiteral("abc")));
    QVERIFY(kept(disk, QStringLiteral("Settings/Language"), QVariant(QPoint(1, 2))));
    QVERIFY(
        kept(disk, QStringLiteral("Machines/M/Settings/ProjectsPathList"), QVariant(QSize(3, 4))));
    QVERIFY(kept(disk, QStringLiteral("Machines/M/Recent File List/recentFileList"),
                 QVariant(QPoint(1, 2))));
    QVERIFY(kept(disk, QStringLiteral("Machines/M/MainWindow/pos"), QVariant(QSize(5, 6))));
    QVERIFY(kept(disk, QStringLiteral("Environment/EnblHelpInfo"), QVariant(QPoint(1, 2))));
    QVERIFY(kept(disk, QStringLiteral("Environment/StitchZoomLevel"), QVariant(QSize(1, 2))));
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

    ++tally().files;
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
        const DiskStore disk(file);
        QVERIFY(kept(disk, QStringLiteral("Keep/value"), QStringLiteral("kept")));
        QVERIFY(kept(disk, QStringLiteral("Settings/GridColor"), QStringLiteral("9")));
        QVERIFY(kept(disk, QStringLiteral("Settings/LastMachine"), QStringLiteral("M")));
        QVERIFY(kept(disk, QStringLiteral("Machines/M/Settings/MachinePath"),
                     QStringLiteral("/opt/m")));
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
    ++tally().files;
    QNodrixRegistry registry;
    registry.setMachineName(QStringLiteral("VX3K"));
    QCOMPARE(registry.getNodrixEnvVersInst(), QString());
    QCOMPARE(registry.getNodrixEnvVersNeeded(), QString());
    // A folder in place of the platform store.
    freshStores();
    QVERIFY(QDir().mkpath(platformStoreFile()));
    ++tally().files;
    QNodrixRegistry other;
    other.setMachineName(QStringLiteral("VX3K"));
    QCOMPARE(other.getNodrixEnvVersInst(), QString());
    QCOMPARE(other.getNodrixEnvVersNeeded(), QString());
}

void tst_QNodrixRegistry_Stores::hostileStores_data()
{
    QTest::addColumn<QByteArray>("content");
    for (int kind = 0; kind < hostileKindCount; ++kind) {
        for (int seed = 1; seed <= hostileSeedsPerKind; ++seed)
            QTest::addRow("%s %d", hostileKinds[kind], seed) << hostileStore(kind, quint32(seed));
    }
}

void tst_QNodrixRegistry_Stores::hostileStores()
{
    // A workstation's store damaged in one way: every reader answers, and
    // after the library's writes every value that a plain QSettings read from
    // the file before is still there, unless the library wrote that key.
    QFETCH(QByteArray, content);
    QVERIFY(writeFile(userStoreFile(), content));
    ++tally().files;
    const StoreValues before = valuesToKeep(userStoreFile(), &tally().unwritable);
    {
        QNodrixRegistry registry;
        readEverything(registry);
        registry.setGridColor(12);
        registry.setShowOverview(true);
        registry.setLastCfg(QStringLiteral("cfg"));
        QNodrixRegistry::updateUsbPath(QStringLiteral("/media/u"));
        registry.saveMainWndPlacement(QPoint(1, 2), QSize(3, 4), QByteArray("s"), false);
        registry.saveRecentFileList(QStringList());
        registry.setProjectsPathList(QStringList());
        QCOMPARE(registry.getGridColor(), 12);
        QCOMPARE(registry.getLastCfg(), QStringLiteral("cfg"));
    }
    const QStringList written {QStringLiteral("Settings/GridColor"),
                               QStringLiteral("SettingsRecent/ShowOverview")};
    const QStringList writtenMachineLeaves {QStringLiteral("LastCfg"),
                                            QStringLiteral("UsbPath"),
                                            QStringLiteral("pos"),
                                            QStringLiteral("size"),
                                            QStringLiteral("state"),
                                            QStringLiteral("maximize"),
                                            QStringLiteral("recentFileList"),
                                            QStringLiteral("ProjectsPathList")};
    QCOMPARE(checkOthersKept(before, userStoreFile(), written, writtenMachineLeaves), 0);
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
