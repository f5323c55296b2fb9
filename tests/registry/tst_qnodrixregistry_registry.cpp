// The application store on Windows is the registry: hostile values put there
// by hand (the wrong kind of data, cut or oversized strings, embedded nulls)
// are read by every getter without bringing the process down, the library's
// own writes land and read back, and values the library does not own are
// left exactly as they were.

#include <QNodrixRegistry>

#include "accessors.h"
#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <qt_windows.h>

using namespace StoreTest;

namespace {

// One raw registry value: its type and its bytes, as RegSetValueExW takes them.
struct RawValue
{
    DWORD type = REG_NONE;
    QByteArray data;

    bool operator==(const RawValue &other) const
    {
        return type == other.type && data == other.data;
    }
};

QByteArray utf16z(const QString &text, bool terminated = true)
{
    QByteArray bytes(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    if (terminated)
        bytes.append(2, '\0');
    return bytes;
}

// The key of the application store, as QSettings() opens it.
QString storeKey()
{
    return QStringLiteral("Software\\%1\\%2")
        .arg(QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

std::wstring wide(const QString &text)
{
    return text.toStdWString();
}

bool setRaw(const QString &subKey, const QString &name, const RawValue &value)
{
    HKEY key = nullptr;
    const std::wstring path = wide(storeKey() + QLatin1Char('\\') + subKey);
    if (RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key,
                        nullptr)
        != ERROR_SUCCESS)
        return false;
    const std::wstring valueName = wide(name);
    const LONG rc = RegSetValueExW(key, valueName.c_str(), 0, value.type,
                                   reinterpret_cast<const BYTE *>(value.data.constData()),
                                   DWORD(value.data.size()));
    RegCloseKey(key);
    return rc == ERROR_SUCCESS;
}

// The value as it is in the registry; type REG_NONE and no bytes when missing.
RawValue getRaw(const QString &subKey, const QString &name, bool *exists = nullptr)
{
    RawValue value;
    if (exists)
        *exists = false;
    HKEY key = nullptr;
    const std::wstring path = wide(storeKey() + QLatin1Char('\\') + subKey);
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return value;
    const std::wstring valueName = wide(name);
    DWORD size = 0;
    if (RegQueryValueExW(key, valueName.c_str(), nullptr, &value.type, nullptr, &size)
        == ERROR_SUCCESS) {
        value.data.resize(int(size));
        if (RegQueryValueExW(key, valueName.c_str(), nullptr, &value.type,
                             reinterpret_cast<BYTE *>(value.data.data()), &size)
            == ERROR_SUCCESS) {
            value.data.resize(int(size));
            if (exists)
                *exists = true;
        }
    }
    RegCloseKey(key);
    return value;
}

QByteArray randomBytes(int size, quint32 seed)
{
    QRandomGenerator random(seed);
    QByteArray bytes(size, '\0');
    for (char &c : bytes)
        c = char(random.bounded(256));
    return bytes;
}

QByteArray dword(quint32 v)
{
    return QByteArray(reinterpret_cast<const char *>(&v), sizeof(v));
}

QByteArray qword(quint64 v)
{
    return QByteArray(reinterpret_cast<const char *>(&v), sizeof(v));
}

// The registry folder and value name of an accessor's key, for the nameless
// machine ("Machines//Settings" is stored as "Machines\Settings").
QPair<QString, QString> place(const Accessor &a)
{
    QString stored = a.storedKey(QString());
    const int slash = stored.lastIndexOf(QLatin1Char('/'));
    QString folder = stored.left(slash);
    folder.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return {folder, stored.mid(slash + 1)};
}

// Values of other programs and of future versions, next to the library's.
const QVector<QPair<QPair<QString, QString>, RawValue>> &foreignValues()
{
    static const QVector<QPair<QPair<QString, QString>, RawValue>> values = {
        {{QStringLiteral("Settings"), QStringLiteral("Foreign")},
         {REG_SZ, utf16z(QStringLiteral("kept as it is"))}},
        {{QStringLiteral("Settings"), QStringLiteral("ForeignBinary")},
         {REG_BINARY, randomBytes(300, 99)}},
        {{QStringLiteral("Other"), QStringLiteral("Count")}, {REG_DWORD, dword(0xdeadbeef)}},
        {{QStringLiteral("Other\\Deeper"), QStringLiteral("List")},
         {REG_MULTI_SZ,
          utf16z(QStringLiteral("a")) + utf16z(QStringLiteral("b")) + QByteArray(2, '\0')}},
        {{QStringLiteral("Machines\\Settings"), QStringLiteral("FutureKey")},
         {REG_EXPAND_SZ, utf16z(QStringLiteral("%SystemRoot%\\x"))}},
    };
    return values;
}

// QSettings warns each time it reads a value of a type it does not know (the
// link and the unknown type of the hostile rows): as often as the library
// reads it.
QRegularExpression unknownType(const RawValue &value)
{
    return QRegularExpression(
        QRegularExpression::anchoredPattern(QStringLiteral("QSettings: Unknown data %1 type in "
                                                           "Windows registry")
                                                .arg(value.type)));
}

int &valuesTried()
{
    static int n = 0;
    return n;
}

int &valuesLost()
{
    static int n = 0;
    return n;
}

} // namespace

Q_DECLARE_METATYPE(RawValue)

class tst_QNodrixRegistry_Registry : public QObject
{
    Q_OBJECT

private slots:
    void init() { freshStores(); }

    void cleanupTestCase()
    {
        qInfo("ndxcom-figure: hostile registry values tried: %d, crashes: 0, values lost: %d",
              valuesTried(), valuesLost());
    }

    // The store the library opens is the registry key the tests write.
    void storeIsTheRegistry()
    {
        QNodrixRegistry registry;
        registry.setGridColor(9);
        QSettings().sync();
        const RawValue raw = getRaw(QStringLiteral("Settings"), QStringLiteral("GridColor"));
        QVERIFY(raw.type != REG_NONE);
        QCOMPARE(QSettings().value(QStringLiteral("Settings/GridColor")).toInt(), 9);
        QVERIFY(
            QSettings().fileName().startsWith(QLatin1String("\\HKEY_CURRENT_USER\\Software\\")));
    }

    void hostileValues_data()
    {
        QTest::addColumn<RawValue>("value");
        QTest::newRow("binary, random") << RawValue {REG_BINARY, randomBytes(64, 1)};
        QTest::newRow("binary, empty") << RawValue {REG_BINARY, QByteArray()};
        QTest::newRow("dword") << RawValue {REG_DWORD, dword(0x80000000u)};
        QTest::newRow("dword, cut") << RawValue {REG_DWORD, QByteArray("\x01", 1)};
        QTest::newRow("qword") << RawValue {REG_QWORD, qword(0xffffffffffffffffull)};
        QTest::newRow("none") << RawValue {REG_NONE, QByteArray()};
        QTest::newRow("string, empty") << RawValue {REG_SZ, QByteArray()};
        QTest::newRow("string, odd length") << RawValue {REG_SZ, QByteArray("abc", 3)};
        QTest::newRow("string, unterminated")
            << RawValue {REG_SZ, utf16z(QStringLiteral("no end"), false)};
        QTest::newRow("string, embedded nulls")
            << RawValue {REG_SZ, utf16z(QStringLiteral("a")) + utf16z(QStringLiteral("b"))};
        QTest::newRow("string, lone surrogates")
            << RawValue {REG_SZ, QByteArray("\x00\xd8\x00\xdc\x00\xdc\x00\x00", 8)};
        QTest::newRow("string, 1 MiB")
            << RawValue {REG_SZ, utf16z(QString(512 * 1024, QLatin1Char('x')))};
        QTest::newRow("string, typed-value garbage")
            << RawValue {REG_SZ, utf16z(QStringLiteral("@Variant(\x01\x02\xff"))};
        QTest::newRow("string, not a number") << RawValue {REG_SZ, utf16z(QStringLiteral("12abc"))};
        QTest::newRow("multi string")
            << RawValue {REG_MULTI_SZ, utf16z(QStringLiteral("x")) + QByteArray(2, '\0')};
        QTest::newRow("multi string, unterminated")
            << RawValue {REG_MULTI_SZ, utf16z(QStringLiteral("x"), false)};
        QTest::newRow("expand string")
            << RawValue {REG_EXPAND_SZ, utf16z(QStringLiteral("%PATH%"))};
        QTest::newRow("link") << RawValue {REG_LINK, randomBytes(10, 2)};
        QTest::newRow("unknown type") << RawValue {0x7fff, randomBytes(33, 3)};
    }

    // Every library value is the hostile one: every getter, static reader
    // and list reader answers, every setter writes, and the values of others
    // survive byte for byte.
    void hostileValues()
    {
        QFETCH(RawValue, value);
        const NdxComTest::ExpectedWarnings unknown(unknownType(value));
        for (const auto &f : foreignValues())
            QVERIFY(setRaw(f.first.first, f.first.second, f.second));
        // The last machine stays unset: it names the machine groups, see
        // hostileLastMachine.
        for (const Accessor &a : accessors()) {
            const auto where = place(a);
            if (a.getter != QLatin1String("getLastMachine"))
                QVERIFY(setRaw(where.first, where.second, value));
        }
        for (const QString &list :
             {QStringLiteral("ProjectsPathList"), QStringLiteral("RepositoryPathList"),
              QStringLiteral("ProjectLinkPathList")})
            QVERIFY(setRaw(QStringLiteral("Machines\\Settings"), list, value));
        QVERIFY(setRaw(QStringLiteral("Machines\\Recent File List"),
                       QStringLiteral("recentFileList"), value));
        for (const QString &name : {QStringLiteral("pos"), QStringLiteral("size"),
                                    QStringLiteral("state"), QStringLiteral("maximize")})
            QVERIFY(setRaw(QStringLiteral("MainWindow"), name, value));

        {
            QNodrixRegistry registry;
            for (const Accessor &a : accessors())
                a.get(registry);
            QStringList files;
            registry.loadRecentFileList(&files);
            registry.getProjectsPathList();
            registry.getRepositoryPathList();
            registry.getProjectLinkPathList();
            QPoint pos;
            QSize size;
            QByteArray state;
            registry.loadMainWndPlacement(&pos, &size, &state);
            QNodrixRegistry::lastMachine();
            QNodrixRegistry::machinePath();
            QNodrixRegistry::usbPath();
            QNodrixRegistry::keyLanguage();
            QNodrixRegistry::environmentEnblHelpInfo();
            QNodrixRegistry::environmentStitchZoomLevel();

            // The library's own writes replace the hostile values.
            for (const Accessor &a : accessors()) {
                if (a.getter == QLatin1String("getLastMachine"))
                    continue; // moves the machine groups; checked on its own below
                a.set(registry, a.sample);
            }
            for (const Accessor &a : accessors()) {
                if (a.getter == QLatin1String("getLastMachine"))
                    continue;
                if (a.get(registry) != a.sample) {
                    qWarning("%s: %s", qPrintable(a.getter),
                             qPrintable(a.get(registry).toString()));
                    ++valuesLost();
                }
            }
        }
        QSettings().sync();
        for (const auto &f : foreignValues()) {
            bool exists = false;
            const RawValue now = getRaw(f.first.first, f.first.second, &exists);
            if (!exists || !(now == f.second)) {
                qWarning("%s\\%s changed", qPrintable(f.first.first), qPrintable(f.first.second));
                ++valuesLost();
            }
        }
        // A fresh object reads back what was written.
        QNodrixRegistry again;
        for (const Accessor &a : accessors()) {
            if (a.getter != QLatin1String("getLastMachine") && a.get(again) != a.sample)
                ++valuesLost();
        }
        ++valuesTried();
        QCOMPARE(valuesLost(), 0);
    }

    // A hostile last machine names machine groups of its own: reading and
    // writing there neither crashes nor touches the nameless machine's values.
    void hostileLastMachine_data() { hostileValues_data(); }

    void hostileLastMachine()
    {
        QFETCH(RawValue, value);
        const NdxComTest::ExpectedWarnings unknown(unknownType(value));
        const RawValue name {REG_SZ, utf16z(QStringLiteral("ZR5-VX3K"))};
        QVERIFY(setRaw(QStringLiteral("Machines\\Settings"), QStringLiteral("MachineName"), name));
        QVERIFY(setRaw(QStringLiteral("Settings"), QStringLiteral("LastMachine"), value));
        {
            QNodrixRegistry registry;
            registry.getLastMachine();
            registry.getMachineName();
            // May not land: a registry key name has at most 255 characters.
            registry.setMachinePath(QStringLiteral("D:/Macchine/M1"));
            registry.getMachinePath();
            QNodrixRegistry::machinePath();
        }
        QSettings().sync();
        if (!(getRaw(QStringLiteral("Machines\\Settings"), QStringLiteral("MachineName")) == name))
            ++valuesLost();
        ++valuesTried();
        QCOMPARE(valuesLost(), 0);
    }
};

NDXCOM_TEST_MAIN(tst_QNodrixRegistry_Registry)
#include "tst_qnodrixregistry_registry.moc"
