// The settings object: stores, groups, keys, defaults, the machine groups
// and the static readers.
#include <QNodrixRegistry>

#include "accessors.h"
#include "ndxcomtest.h"
#include "storetest.h"

#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QScopeGuard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <type_traits>
#include <utility>

using namespace StoreTest;

namespace {
// Whether a getter for the message exists; the class has none.
template<class T, class = void>
struct HasNodrixEnvMsgGetter : std::false_type
{
};
template<class T>
struct HasNodrixEnvMsgGetter<T, std::void_t<decltype(std::declval<T &>().getNodrixEnvMsg())>>
    : std::true_type
{
};
template<class T, class = void>
struct HasStaticNodrixEnvMsg : std::false_type
{
};
template<class T>
struct HasStaticNodrixEnvMsg<T, std::void_t<decltype(T::nodrixEnvMsg())>> : std::true_type
{
};

void addAccessorRows(bool machineValuesOnly = false)
{
    QTest::addColumn<QString>("getter");
    for (const Accessor &a : accessors()) {
        if (!machineValuesOnly || a.isMachineValue())
            QTest::newRow(qPrintable(a.getter)) << a.getter;
    }
}

// Runs the writer helper once: one value into the application store, from
// another process.
bool setFromOtherProcess(const QString &key, const QString &value)
{
    QProcess p;
    p.start(QStringLiteral(NDXCOM_SETTINGS_WRITER),
            {QStringLiteral("--user-dir"), userDir(), QStringLiteral("--system-dir"), systemDir(),
             QStringLiteral("--organization"), QCoreApplication::organizationName(),
             QStringLiteral("--application"), QCoreApplication::applicationName(),
             QStringLiteral("--set"), key, value});
    return p.waitForFinished(60000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}
} // namespace

// Reads the object's own store.
struct RegistryMembers : QNodrixRegistry
{
    using QNodrixRegistry::m_settings;
};

class tst_QNodrixRegistry : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void metaObject();
    void constructorTakesParent();
    void applicationStoreIsTheApplicationsOwn();
    void memberStoreIsTheApplicationStore();

    void freshStoreDefaults_data();
    void freshStoreDefaults();
    void freshStoreEdgeCase();
    void readingWritesNothing();
    void defaultsAreTakenAtCallTime();

    void storedUnderExactKey_data();
    void storedUnderExactKey();
    void eachSetterWritesOneKey();
    void namelessMachine();
    void valuesAreConvertedFromText_data();
    void valuesAreConvertedFromText();
    void textValuesKeptExactly_data();
    void textValuesKeptExactly();
    void nodrixEnvMsgHasNoGetter();

    void switchingMachineEdgeCase();
    void switchingMovesEveryMachineValue_data();
    void switchingMovesEveryMachineValue();
    void machinesKeepTheirOwnValues();

    void staticAndInstanceShareKeys_data();
    void staticAndInstanceShareKeys();
    void staticsNeedNoObject();
    void gettersReadTheStore_data();
    void gettersReadTheStore();
};

void tst_QNodrixRegistry::init()
{
    freshStores();
}

void tst_QNodrixRegistry::metaObject()
{
    const QMetaObject &mo = QNodrixRegistry::staticMetaObject;
    QCOMPARE(QLatin1String(mo.className()), QLatin1String("QNodrixRegistry"));
    QCOMPARE(mo.superClass(), &QObject::staticMetaObject);
    // No signals, slots, properties or registered enumerations of its own:
    // eLanguageType is a plain C++ enumeration, as it always was.
    QCOMPARE(mo.methodCount(), mo.methodOffset());
    QCOMPARE(mo.propertyCount(), mo.propertyOffset());
    QCOMPARE(mo.enumeratorCount(), 0);
    QCOMPARE(mo.enumeratorOffset(), 0);
    QCOMPARE(mo.indexOfEnumerator("eLanguageType"), -1);
    QVERIFY(std::has_virtual_destructor<QNodrixRegistry>::value);
    QCOMPARE(QNodrixRegistry::tr("Nodrix"), QStringLiteral("Nodrix"));
    // Qt 5 still has its own (deprecated) trUtf8; Qt 6 gets the library's.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QCOMPARE(QNodrixRegistry::trUtf8("Nodrix"), QStringLiteral("Nodrix"));
    QT_WARNING_POP

    // The language type holds any int.
    QVERIFY((std::is_same<std::underlying_type<QNodrixRegistry::eLanguageType>::type, int>::value));
}

void tst_QNodrixRegistry::constructorTakesParent()
{
    QObject parent;
    QPointer<QNodrixRegistry> child = new QNodrixRegistry(&parent);
    QCOMPARE(child->parent(), &parent);
    QNodrixRegistry orphan;
    QCOMPARE(orphan.parent(), nullptr);
    QNodrixRegistry explicitNull(nullptr);
    QCOMPARE(explicitNull.parent(), nullptr);
}

void tst_QNodrixRegistry::memberStoreIsTheApplicationStore()
{
    RegistryMembers registry;
    QCOMPARE(registry.m_settings.organizationName(), QCoreApplication::organizationName());
    QCOMPARE(registry.m_settings.applicationName(), QCoreApplication::applicationName());
    QCOMPARE(registry.m_settings.scope(), QSettings::UserScope);
    QCOMPARE(registry.m_settings.format(), QSettings::NativeFormat);
    QCOMPARE(registry.m_settings.fileName(), userStoreFile());
    QVERIFY(registry.m_settings.group().isEmpty());
    registry.setLastMachine(QStringLiteral("M1"));
    registry.setProjectsPath(QStringLiteral("/p"));
    // Every access closes the group it opened.
    QVERIFY(registry.m_settings.group().isEmpty());
}

void tst_QNodrixRegistry::applicationStoreIsTheApplicationsOwn()
{
    // The store is the one named by the application, in the user scope and
    // native format: <user dir>/<organization>/<application>.conf (the
    // registry key Software\<organization>\<application> on Windows).
    const QString expected = nativeStore(QSettings::UserScope, QCoreApplication::organizationName(),
                                         QCoreApplication::applicationName());
    QCOMPARE(userStoreFile(), expected);
    {
        QNodrixRegistry registry;
        registry.setGridColor(5);
    }
    QVERIFY(storeExists(expected));
    QCOMPARE(DiskStore(expected).value(QStringLiteral("Settings/GridColor")).toString(),
             QStringLiteral("5"));

    // A second application of the suite has a store of its own.
    const QString previous = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(QStringLiteral("OtherApplication"));
    {
        QNodrixRegistry other;
        QCOMPARE(other.getGridColor(), 3);
        other.setGridColor(8);
    }
    QCoreApplication::setApplicationName(previous);
    QCOMPARE(QNodrixRegistry().getGridColor(), 5);
    QCOMPARE(DiskStore(nativeStore(QSettings::UserScope, QCoreApplication::organizationName(),
                                   QStringLiteral("OtherApplication")))
                 .value(QStringLiteral("Settings/GridColor"))
                 .toString(),
             QStringLiteral("8"));
}

void tst_QNodrixRegistry::freshStoreDefaults_data()
{
    addAccessorRows();
}

void tst_QNodrixRegistry::freshStoreDefaults()
{
    QFETCH(QString, getter);
    const Accessor *a = accessor(getter);
    QVERIFY(a);
    QNodrixRegistry registry;
    const QVariant value = a->get(registry);
    QCOMPARE(value, a->defaultValue());
}

void tst_QNodrixRegistry::freshStoreEdgeCase()
{
    // GridColor 3, Language -1, ShowOverview false, LastBrowserMode 1,
    // MachinePath the current directory, HddPath and UsbPath the home
    // directory, every other string empty.
    QNodrixRegistry r;
    QCOMPARE(r.getGridColor(), 3);
    QCOMPARE(int(r.getLanguage()), -1);
    QCOMPARE(r.getLanguage(), QNodrixRegistry::eLanguageType_Unset);
    QCOMPARE(r.getShowOverview(), false);
    QCOMPARE(r.getLastBrowserMode(), 1);
    QCOMPARE(r.getMachinePath(), QDir::currentPath());
    QCOMPARE(r.getHddPath(), QDir::homePath());
    QCOMPARE(r.getUsbPath(), QDir::homePath());
    for (const QString &s :
         {r.getLastMachine(), r.getMachineName(), r.getProjectsPath(), r.getRepositoryPath(),
          r.getProjectLinkPath(), r.getExportBmpPath(), r.getImportBmpPath(), r.getLastCfg(),
          r.getLastDiametro(), r.getLastGauge(), r.getLastNeedles()})
        QCOMPARE(s, QString());
    QCOMPARE(QNodrixRegistry::lastMachine(), QString());
    QCOMPARE(QNodrixRegistry::machinePath(), QDir::currentPath());
    QCOMPARE(QNodrixRegistry::usbPath(), QDir::homePath());
    QCOMPARE(int(QNodrixRegistry::keyLanguage()), -1);
}

void tst_QNodrixRegistry::readingWritesNothing()
{
    {
        QNodrixRegistry registry;
        for (const Accessor &a : accessors())
            a.get(registry);
        QNodrixRegistry::lastMachine();
        QNodrixRegistry::machinePath();
        QNodrixRegistry::usbPath();
        QNodrixRegistry::keyLanguage();
    }
    flushUserStore();
    QVERIFY(!QFileInfo::exists(userStoreFile()));
}

void tst_QNodrixRegistry::defaultsAreTakenAtCallTime()
{
    QNodrixRegistry registry;
    const QString oldCwd = QDir::currentPath();
    const QString oldHome = QDir::homePath();
    const QByteArray oldHomeVariable = qgetenv("HOME");

    QTemporaryDir otherCwd;
    QTemporaryDir otherHome;
    QVERIFY(QDir::setCurrent(otherCwd.path()));
    // Back whatever fails: a process started later (and the temporary
    // folder's removal, on Windows) must not find the current folder here.
    const auto restore = qScopeGuard([&] {
        QDir::setCurrent(oldCwd);
        qputenv("HOME", oldHomeVariable);
    });
#ifdef Q_OS_WIN
    // Windows takes the home folder from the user's profile, not from the
    // environment: only the current folder can move here.
    const QString expectedHome = oldHome;
#else
    qputenv("HOME", QFile::encodeName(otherHome.path()));
    const QString expectedHome = otherHome.path();
#endif

    const QString cwd = QDir::currentPath();
    const QString home = QDir::homePath();
    QCOMPARE(home, expectedHome);
    QCOMPARE(registry.getMachinePath(), cwd);
    QCOMPARE(QNodrixRegistry::machinePath(), cwd);
    QCOMPARE(registry.getHddPath(), home);
    QCOMPARE(registry.getUsbPath(), home);
    QCOMPARE(QNodrixRegistry::usbPath(), home);

    QVERIFY(QDir::setCurrent(oldCwd));
    qputenv("HOME", oldHomeVariable);
    QCOMPARE(registry.getMachinePath(), oldCwd);
    QCOMPARE(registry.getHddPath(), oldHome);

    // A stored value wins over the directories.
    registry.setMachinePath(QStringLiteral("/m"));
    registry.setUsbPath(QStringLiteral("/u"));
    QVERIFY(QDir::setCurrent(otherCwd.path()));
    QCOMPARE(registry.getMachinePath(), QStringLiteral("/m"));
    QCOMPARE(QNodrixRegistry::usbPath(), QStringLiteral("/u"));
    QVERIFY(QDir::setCurrent(oldCwd));
}

void tst_QNodrixRegistry::storedUnderExactKey_data()
{
    QTest::addColumn<QString>("getter");
    QTest::addColumn<QString>("machine");
    for (const Accessor &a : accessors()) {
        for (const QString &machine :
             {QString(), QStringLiteral("M1"), QStringLiteral("Tessitrice 2 è")}) {
            QTest::addRow("%s machine '%s'", qPrintable(a.getter), qPrintable(machine))
                << a.getter << machine;
        }
    }
}

void tst_QNodrixRegistry::storedUnderExactKey()
{
    QFETCH(QString, getter);
    QFETCH(QString, machine);
    const Accessor *a = accessor(getter);
    QVERIFY(a);
    {
        QNodrixRegistry registry;
        if (!machine.isEmpty())
            registry.setLastMachine(machine);
        a->set(registry, a->sample);
        QCOMPARE(a->get(registry), a->sample);
    }
    const QString lastMachine
        = getter == QLatin1String("getLastMachine") ? a->sample.toString() : machine;
    const DiskStore disk(userStoreFile());
    QVERIFY(disk.exists());
    const QString key = a->storedKey(lastMachine);
    QVERIFY2(disk.contains(key),
             qPrintable(key + QStringLiteral(" not in ") + disk.allKeys().join(QLatin1Char(' '))));
    // INI keeps the text; int and bool values read back as their text.
    QCOMPARE(disk.value(key).toString(), a->sample.toString());
    if (a->isMachineValue() && machine.isEmpty())
        QVERIFY(key.startsWith(QLatin1String("Machines/Settings")));
}

void tst_QNodrixRegistry::eachSetterWritesOneKey()
{
    // Setting everything for machine "M1" leaves exactly the keys of the
    // table in the file, and nothing else.
    QStringList expected;
    {
        QNodrixRegistry registry;
        for (const Accessor &a : accessors()) {
            if (a.getter == QLatin1String("getLastMachine"))
                continue;
            a.set(registry, a.sample);
            expected << a.storedKey(QString());
        }
        // Now the same under a named machine.
        registry.setLastMachine(QStringLiteral("M1"));
        expected << QStringLiteral("Settings/LastMachine");
        for (const Accessor &a : accessors()) {
            if (!a.isMachineValue())
                continue;
            a.set(registry, a.sample);
            expected << a.storedKey(QStringLiteral("M1"));
        }
        registry.setNodrixEnvMsg(QStringLiteral("Piattaforma non aggiornata"));
        expected << QStringLiteral("Settings/NodrixEnvMsg");
    }
    expected.sort();
    QStringList actual = DiskStore(userStoreFile()).allKeys();
    actual.sort();
    QCOMPARE(actual, expected);
    // The top-level groups of the file.
    QStringList groups = DiskStore(userStoreFile()).childGroups();
    groups.sort();
    QCOMPARE(groups,
             QStringList({QStringLiteral("Machines"), QStringLiteral("Settings"),
                          QStringLiteral("SettingsRecent")}));
    QStringList machines = DiskStore(userStoreFile()).childGroups(QStringLiteral("Machines"));
    machines.sort();
    // The nameless machine's groups sit directly under "Machines".
    QCOMPARE(machines,
             QStringList({QStringLiteral("M1"), QStringLiteral("Settings"),
                          QStringLiteral("SettingsRecent")}));
}

void tst_QNodrixRegistry::namelessMachine()
{
    // No last machine stored: the machine values go to "Machines/" + "" +
    // "/Settings", which the store keeps as "Machines/Settings".
    {
        QNodrixRegistry registry;
        registry.setProjectsPath(QStringLiteral("/srv/p"));
        registry.setLastGauge(QStringLiteral("14"));
        QCOMPARE(registry.getProjectsPath(), QStringLiteral("/srv/p"));
    }
    const DiskStore disk(userStoreFile());
    QVERIFY(!disk.contains(QStringLiteral("Settings/LastMachine")));
    QCOMPARE(disk.value(QStringLiteral("Machines/Settings/ProjectsPath")).toString(),
             QStringLiteral("/srv/p"));
    QCOMPARE(disk.value(QStringLiteral("Machines/SettingsRecent/LastGauge")).toString(),
             QStringLiteral("14"));
    // Reading the group as the library builds it finds the same value.
    QCOMPARE(disk.value(QStringLiteral("Machines//Settings/ProjectsPath")).toString(),
             QStringLiteral("/srv/p"));
#ifndef Q_OS_WIN
    // The raw file has the group "Machines" and the folded key (the registry
    // has no raw text: the keys above are the whole of it there).
    const QByteArray raw = readFile(userStoreFile());
    QVERIFY(raw.contains("[Machines]"));
    QVERIFY(raw.contains("Settings\\ProjectsPath=/srv/p"));
#endif

    // An empty last machine written explicitly is the same machine.
    QNodrixRegistry registry;
    registry.setLastMachine(QString());
    QCOMPARE(registry.getProjectsPath(), QStringLiteral("/srv/p"));
    registry.setLastMachine(QStringLiteral("A"));
    QCOMPARE(registry.getProjectsPath(), QString());
}

void tst_QNodrixRegistry::valuesAreConvertedFromText_data()
{
    QTest::addColumn<QString>("getter");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QVariant>("expected");
    // Values as a person or another program may have typed them in the file.
    QTest::newRow("GridColor 7") << "getGridColor" << QByteArray("GridColor=7") << QVariant(7);
    QTest::newRow("GridColor -2") << "getGridColor" << QByteArray("GridColor=-2") << QVariant(-2);
    QTest::newRow("GridColor quoted")
        << "getGridColor" << QByteArray("GridColor=\"9\"") << QVariant(9);
    QTest::newRow("Language 6") << "getLanguage" << QByteArray("Language=6") << QVariant(6);
    QTest::newRow("Language 99") << "getLanguage" << QByteArray("Language=99") << QVariant(99);
    QTest::newRow("ShowOverview true")
        << "getShowOverview" << QByteArray("ShowOverview=true") << QVariant(true);
    QTest::newRow("ShowOverview 1")
        << "getShowOverview" << QByteArray("ShowOverview=1") << QVariant(true);
    QTest::newRow("ShowOverview 0")
        << "getShowOverview" << QByteArray("ShowOverview=0") << QVariant(false);
    QTest::newRow("ShowOverview FALSE")
        << "getShowOverview" << QByteArray("ShowOverview=FALSE") << QVariant(false);
    QTest::newRow("ShowOverview empty")
        << "getShowOverview" << QByteArray("ShowOverview=") << QVariant(false);
}

void tst_QNodrixRegistry::valuesAreConvertedFromText()
{
    QFETCH(QString, getter);
    QFETCH(QByteArray, line);
    QFETCH(QVariant, expected);
    const Accessor *a = accessor(getter);
    QVERIFY(a);
    QVERIFY(writeFile(userStoreFile(),
                      "[" + a->group.toLatin1() + "]\n" + line + "\n[Other]\nkeep=1\n"));
    QNodrixRegistry registry;
    QCOMPARE(a->get(registry), expected);
}

void tst_QNodrixRegistry::textValuesKeptExactly_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("leading zero") << QStringLiteral("013");
    QTest::newRow("decimal comma") << QStringLiteral("13,5");
    QTest::newRow("decimal point") << QStringLiteral("13.5");
    QTest::newRow("blanks") << QStringLiteral("  14 ");
    QTest::newRow("list-like") << QStringLiteral("1, 2, 3");
    QTest::newRow("at sign") << QStringLiteral("@Invalid()");
    QTest::newRow("quotes and backslash") << QStringLiteral("\"C:\\Mac\\Cfg\"");
    QTest::newRow("semicolon") << QStringLiteral("a;b");
    QTest::newRow("accented") << QStringLiteral("finezza è");
    QTest::newRow("empty") << QString();
}

void tst_QNodrixRegistry::textValuesKeptExactly()
{
    // Diameter, gauge and needle count are text and come back as written,
    // also through a file written and read again.
    QFETCH(QString, text);
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M"));
        registry.setLastDiametro(text);
        registry.setLastGauge(text);
        registry.setLastNeedles(text);
        registry.setLastCfg(text);
        registry.setMachineName(text);
    }
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(QStringLiteral("Machines/M/SettingsRecent/LastDiametro")).toString(), text);
    QNodrixRegistry registry;
    QCOMPARE(registry.getLastDiametro(), text);
    QCOMPARE(registry.getLastGauge(), text);
    QCOMPARE(registry.getLastNeedles(), text);
    QCOMPARE(registry.getLastCfg(), text);
    QCOMPARE(registry.getMachineName(), text);
}

void tst_QNodrixRegistry::nodrixEnvMsgHasNoGetter()
{
    QVERIFY(!HasNodrixEnvMsgGetter<QNodrixRegistry>::value);
    QVERIFY(!HasStaticNodrixEnvMsg<QNodrixRegistry>::value);
    {
        QNodrixRegistry registry;
        registry.setLastMachine(QStringLiteral("M1"));
        registry.setNodrixEnvMsg(QStringLiteral("Versione piattaforma 1.2.0 mancante !"));
    }
    // Written under "Settings", not under the machine.
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(QStringLiteral("Settings/NodrixEnvMsg")).toString(),
             QStringLiteral("Versione piattaforma 1.2.0 mancante !"));
    QVERIFY(!disk.contains(QStringLiteral("Machines/M1/Settings/NodrixEnvMsg")));
}

void tst_QNodrixRegistry::switchingMachineEdgeCase()
{
    QTemporaryDir folder;
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("A"));
    registry.setProjectsPath(folder.path());
    QCOMPARE(registry.getProjectsPath(), folder.path());
    registry.setLastMachine(QStringLiteral("B"));
    QCOMPARE(registry.getProjectsPath(), QString());
    registry.setLastMachine(QStringLiteral("A"));
    QCOMPARE(registry.getProjectsPath(), folder.path());
}

void tst_QNodrixRegistry::switchingMovesEveryMachineValue_data()
{
    addAccessorRows(true);
}

void tst_QNodrixRegistry::switchingMovesEveryMachineValue()
{
    // An object that already exists follows a change of the last machine
    // made elsewhere: by another object, or by another process.
    QFETCH(QString, getter);
    const Accessor *a = accessor(getter);
    QVERIFY(a);
    QNodrixRegistry existing;
    {
        QNodrixRegistry other;
        other.setLastMachine(QStringLiteral("A"));
    }
    a->set(existing, a->sample);
    QCOMPARE(a->get(existing), a->sample);

    QNodrixRegistry().setLastMachine(QStringLiteral("B"));
    QCOMPARE(a->get(existing), a->defaultValue());

    QNodrixRegistry().setLastMachine(QStringLiteral("A"));
    QCOMPARE(a->get(existing), a->sample);

    // The same from another process.
    flushUserStore();
    QVERIFY(setFromOtherProcess(QStringLiteral("Settings/LastMachine"), QStringLiteral("Bb")));
    QCOMPARE(a->get(existing), a->defaultValue());
    QCOMPARE(existing.getLastMachine(), QStringLiteral("Bb"));
    QVERIFY(setFromOtherProcess(QStringLiteral("Settings/LastMachine"), QStringLiteral("A")));
    QCOMPARE(a->get(existing), a->sample);

    // The object's own writes follow too.
    existing.setLastMachine(QStringLiteral("C"));
    a->set(existing, a->sample);
    const QVariant inC = a->get(existing);
    QCOMPARE(inC, a->sample);
    QNodrixRegistry().setLastMachine(QStringLiteral("D"));
    QCOMPARE(a->get(existing), a->defaultValue());
}

void tst_QNodrixRegistry::machinesKeepTheirOwnValues()
{
    {
        QNodrixRegistry registry;
        int n = 0;
        for (const QString &machine : {QStringLiteral("A"), QStringLiteral("B"), QString()}) {
            registry.setLastMachine(machine);
            registry.setMachinePath(QStringLiteral("/m/%1").arg(machine));
            registry.setLastBrowserMode(++n);
        }
    }
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(QStringLiteral("Machines/A/Settings/MachinePath")).toString(),
             QStringLiteral("/m/A"));
    QCOMPARE(disk.value(QStringLiteral("Machines/B/Settings/MachinePath")).toString(),
             QStringLiteral("/m/B"));
    QCOMPARE(disk.value(QStringLiteral("Machines/Settings/MachinePath")).toString(),
             QStringLiteral("/m/"));
    QCOMPARE(disk.value(QStringLiteral("Machines/A/SettingsRecent/LastBrowserMode")).toString(),
             QStringLiteral("1"));
    QCOMPARE(disk.value(QStringLiteral("Machines/B/SettingsRecent/LastBrowserMode")).toString(),
             QStringLiteral("2"));
    QCOMPARE(disk.value(QStringLiteral("Machines/SettingsRecent/LastBrowserMode")).toString(),
             QStringLiteral("3"));
    // The global values are one for all machines.
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("A"));
    registry.setGridColor(6);
    registry.setLastMachine(QStringLiteral("B"));
    QCOMPARE(registry.getGridColor(), 6);
}

void tst_QNodrixRegistry::staticAndInstanceShareKeys_data()
{
    QTest::addColumn<QString>("machine");
    QTest::addColumn<bool>("flushed");
    QTest::newRow("nameless machine") << QString() << false;
    QTest::newRow("named machine") << QStringLiteral("M1") << false;
    QTest::newRow("named machine, written to disk") << QStringLiteral("M1") << true;
    QTest::newRow("machine with a slash") << QStringLiteral("Linea/2") << false;
}

void tst_QNodrixRegistry::staticAndInstanceShareKeys()
{
    QFETCH(QString, machine);
    QFETCH(bool, flushed);
    QNodrixRegistry registry;
    registry.setLastMachine(machine);
    if (flushed)
        flushUserStore();
    QCOMPARE(QNodrixRegistry::lastMachine(), machine);

    // updateUsbPath(p), then getUsbPath() on an object, yields p.
    QNodrixRegistry::updateUsbPath(QStringLiteral("/media/static"));
    QCOMPARE(registry.getUsbPath(), QStringLiteral("/media/static"));
    // setUsbPath(p), then usbPath(), yields p.
    registry.setUsbPath(QStringLiteral("/media/instance"));
    if (flushed)
        flushUserStore();
    QCOMPARE(QNodrixRegistry::usbPath(), QStringLiteral("/media/instance"));

    registry.setMachinePath(QStringLiteral("/opt/m"));
    QCOMPARE(QNodrixRegistry::machinePath(), QStringLiteral("/opt/m"));
    registry.setLanguage(QNodrixRegistry::eLanguageType_zh);
    QCOMPARE(QNodrixRegistry::keyLanguage(), QNodrixRegistry::eLanguageType_zh);

    // Both kinds address the same key in the file.
    flushUserStore();
    const QString group = machine.isEmpty() ? QStringLiteral("Machines/Settings/")
                                            : QStringLiteral("Machines/%1/Settings/").arg(machine);
    const DiskStore disk(userStoreFile());
    QCOMPARE(disk.value(group + QStringLiteral("UsbPath")).toString(),
             QStringLiteral("/media/instance"));
    QCOMPARE(disk.value(group + QStringLiteral("MachinePath")).toString(),
             QStringLiteral("/opt/m"));
    QCOMPARE(disk.value(QStringLiteral("Settings/Language")).toString(), QStringLiteral("6"));
}

void tst_QNodrixRegistry::staticsNeedNoObject()
{
    // A store written before any object exists, as a workstation has it.
    QVERIFY(writeFile(userStoreFile(),
                      "[Settings]\nLastMachine=VX3K\nLanguage=2\n"
                      "[Machines]\nVX3K\\Settings\\MachinePath=/opt/vx3k\n"
                      "VX3K\\Settings\\UsbPath=/media/vx3k\n"
                      "Settings\\MachinePath=/opt/nameless\n"));
    QCOMPARE(QNodrixRegistry::lastMachine(), QStringLiteral("VX3K"));
    QCOMPARE(QNodrixRegistry::machinePath(), QStringLiteral("/opt/vx3k"));
    QCOMPARE(QNodrixRegistry::usbPath(), QStringLiteral("/media/vx3k"));
    QCOMPARE(QNodrixRegistry::keyLanguage(), QNodrixRegistry::eLanguageType_es);
    QNodrixRegistry::updateUsbPath(QStringLiteral("/media/new"));
    flushUserStore();
    QCOMPARE(DiskStore(userStoreFile())
                 .value(QStringLiteral("Machines/VX3K/Settings/UsbPath"))
                 .toString(),
             QStringLiteral("/media/new"));
    // Nothing else changed.
    QCOMPARE(DiskStore(userStoreFile())
                 .value(QStringLiteral("Machines/Settings/MachinePath"))
                 .toString(),
             QStringLiteral("/opt/nameless"));
}

void tst_QNodrixRegistry::gettersReadTheStore_data()
{
    addAccessorRows();
}

void tst_QNodrixRegistry::gettersReadTheStore()
{
    // A value written by another process after the object was made (and
    // after the object has read the key once) is what the next call answers.
    QFETCH(QString, getter);
    const Accessor *a = accessor(getter);
    QVERIFY(a);
    QNodrixRegistry registry;
    registry.setLastMachine(QStringLiteral("M"));
    QCOMPARE(a->get(registry),
             getter == QLatin1String("getLastMachine") ? QVariant(QStringLiteral("M"))
                                                       : a->defaultValue());
    flushUserStore();
    const QString key = a->storedKey(QStringLiteral("M"));
    const QString text = a->kind == Accessor::Bool ? QStringLiteral("true") : a->sample.toString();
    QVERIFY(setFromOtherProcess(key, text));
    QCOMPARE(a->get(registry), a->sample);
}

NDXCOM_TEST_MAIN(tst_QNodrixRegistry)
#include "tst_qnodrixregistry.moc"
