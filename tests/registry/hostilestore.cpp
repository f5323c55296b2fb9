#include "hostilestore.h"

#include "accessors.h"

#include <QtCore/QDataStream>
#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QList>
#include <QtCore/QPoint>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSettings>
#include <QtCore/QSize>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

using namespace StoreTest;

namespace HostileStore {

namespace {

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

// A workstation's store: the groups the library reads and writes, and groups
// of other programs that share the file.
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

#ifndef Q_OS_WIN
bool setImmutable(const QString &path, bool on)
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
#endif

} // namespace

HostileTally &tally()
{
    static HostileTally t;
    return t;
}

QByteArray garbage(int size, quint32 seed, const QByteArray &excluded)
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
bool ReadOnlyGuard::makeReadOnly(const QString &path)
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

ReadOnlyGuard::~ReadOnlyGuard()
{
    if (m_mode == Permissions)
        QFile::setPermissions(m_path, m_permissions);
    else if (m_mode == Immutable)
        setImmutable(m_path, false);
}
#else
bool ReadOnlyGuard::makeReadOnly(const QString &)
{
    return false;
}

ReadOnlyGuard::~ReadOnlyGuard() = default;
#endif

} // namespace HostileStore
