#include "ndxcomtest.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QPair>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <cstdlib>
#include <iterator>
#include <utility>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace NdxComTest {

namespace {
QTemporaryDir *settingsDir()
{
    static QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/ndxcom-test-XXXXXX"));
    return &dir;
}
} // namespace

void prepareEnvironment()
{
    const QString root = settingsRoot();
    for (const char *sub : {"home", "config", "cache", "data", "runtime"})
        QDir().mkpath(root + QLatin1Char('/') + QLatin1String(sub));
    qputenv("HOME", QFile::encodeName(root + QStringLiteral("/home")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(root + QStringLiteral("/config")));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(root + QStringLiteral("/cache")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(root + QStringLiteral("/data")));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(root + QStringLiteral("/runtime")));
    QFile::setPermissions(root + QStringLiteral("/runtime"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
}

#ifdef Q_OS_WIN
namespace {
QString &uniqueOrganization()
{
    static QString name;
    return name;
}

// Removes every key under Software of `root` whose name starts with `prefix`.
void removeKeys(HKEY root, const QString &prefix)
{
    HKEY software = nullptr;
    if (RegOpenKeyExW(root, L"Software", 0, KEY_READ | KEY_WRITE, &software) != ERROR_SUCCESS)
        return;
    QStringList doomed;
    wchar_t name[256];
    for (DWORD i = 0;; ++i) {
        DWORD size = DWORD(std::size(name));
        if (RegEnumKeyExW(software, i, name, &size, nullptr, nullptr, nullptr, nullptr)
            != ERROR_SUCCESS)
            break;
        const QString key = QString::fromWCharArray(name, int(size));
        if (key.startsWith(prefix))
            doomed << key;
    }
    for (const QString &key : std::as_const(doomed))
        RegDeleteTreeW(software, reinterpret_cast<const wchar_t *>(key.utf16()));
    RegCloseKey(software);
}

void removeOwnKeys()
{
    if (uniqueOrganization().isEmpty())
        return;
    removeKeys(HKEY_CURRENT_USER, uniqueOrganization());
    removeKeys(HKEY_LOCAL_MACHINE, uniqueOrganization());
}
} // namespace

QString uniqueOrganizationPrefix()
{
    return uniqueOrganization();
}
#endif

void isolateApplication(const char *organization, const char *application)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
#ifdef Q_OS_WIN
    // The native store is the registry, which QSettings::setPath does not
    // move: the process takes organization names no other run has (the
    // process id and a random number), and removes their keys when it ends.
    uniqueOrganization()
        = QStringLiteral("%1-%2-%3")
              .arg(QString::fromLatin1(organization))
              .arg(QCoreApplication::applicationPid())
              .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
    QCoreApplication::setOrganizationName(uniqueOrganization());
    removeOwnKeys();
    qAddPostRoutine(removeOwnKeys);
    std::atexit(removeOwnKeys);
#else
    QCoreApplication::setOrganizationName(QString::fromLatin1(organization));
#endif
    QCoreApplication::setApplicationName(QString::fromLatin1(application));
    const QString root = settingsRoot();
    QDir().mkpath(root + QStringLiteral("/user"));
    QDir().mkpath(root + QStringLiteral("/system"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       root + QStringLiteral("/user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                       root + QStringLiteral("/system"));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, root + QStringLiteral("/user"));
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope,
                       root + QStringLiteral("/system"));
}

QString settingsRoot()
{
    return settingsDir()->path();
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 3, 0)
namespace {
QtMessageHandler testlibHandler = nullptr;

// The patterns of the living ExpectedWarnings, by id. Warnings may come from
// any thread.
QMutex expectedMutex;
int expectedId = 0;
QList<QPair<int, QRegularExpression>> &expected()
{
    static QList<QPair<int, QRegularExpression>> patterns;
    return patterns;
}

bool isExpected(const QString &message)
{
    const QMutexLocker locker(&expectedMutex);
    for (const auto &pattern : std::as_const(expected())) {
        if (pattern.second.match(message).hasMatch())
            return true;
    }
    return false;
}

// Stands in front of QtTest's handler. QTest::failOnWarning() patterns last
// until the end of the current row, so each warning first becomes a pattern
// of its own; QtTest then lets a message declared with ignoreMessage() pass
// and fails the row on any other. Criticals are given too: the QtTest
// versions that check them against the patterns fail on them as well.
void failOnEveryWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        const QRegularExpression exactly(
            QRegularExpression::anchoredPattern(QRegularExpression::escape(message)));
        if (isExpected(message))
            QTest::ignoreMessage(type, exactly);
        QTest::failOnWarning(exactly);
    }
    testlibHandler(type, context, message);
}
} // namespace

ExpectedWarnings::ExpectedWarnings(const QRegularExpression &pattern)
{
    const QMutexLocker locker(&expectedMutex);
    m_id = ++expectedId;
    expected().append(qMakePair(m_id, pattern));
}

ExpectedWarnings::~ExpectedWarnings()
{
    const QMutexLocker locker(&expectedMutex);
    for (qsizetype i = 0; i < expected().size(); ++i) {
        if (expected().at(i).first == m_id) {
            expected().removeAt(i);
            break;
        }
    }
}
#else
ExpectedWarnings::ExpectedWarnings(const QRegularExpression &)
    : m_id(0)
{ }

ExpectedWarnings::~ExpectedWarnings() = default;
#endif

int exec(QObject *testObject, int argc, char *argv[])
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 3, 0)
    // qExec() in three steps: QtTest installs its handler in qInit() and puts
    // back the one before it in qCleanup().
    QTest::qInit(testObject, argc, argv);
    testlibHandler = qInstallMessageHandler(failOnEveryWarning);
    const int result = QTest::qRun();
    qInstallMessageHandler(testlibHandler);
    QTest::qCleanup();
    return result;
#else
    return QTest::qExec(testObject, argc, argv);
#endif
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(bytes) == bytes.size();
}

} // namespace NdxComTest
