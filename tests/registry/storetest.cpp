#include "storetest.h"

#include "ndxcomtest.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace StoreTest {

namespace {
QString &currentCase()
{
    static QString dir;
    return dir;
}
} // namespace

QString freshStores()
{
    static int counter = 0;
    const QString dir = NdxComTest::settingsRoot() + QStringLiteral("/case-%1").arg(++counter);
    QDir().mkpath(dir + QStringLiteral("/user"));
    QDir().mkpath(dir + QStringLiteral("/system"));
    for (QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, dir + QStringLiteral("/user"));
        QSettings::setPath(format, QSettings::SystemScope, dir + QStringLiteral("/system"));
    }
    currentCase() = dir;
    return dir;
}

QString userDir()
{
    return currentCase() + QStringLiteral("/user");
}

QString systemDir()
{
    return currentCase() + QStringLiteral("/system");
}

QString userStoreFile()
{
    return QSettings().fileName();
}

QString platformStoreFile()
{
    return QSettings(QSettings::SystemScope, QStringLiteral("Corvala S.p.A."),
                     QStringLiteral("NodrixEnv"))
        .fileName();
}

void flushUserStore()
{
    QSettings().sync();
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return file.write(bytes) == bytes.size();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

DiskStore::DiskStore(const QString &file)
{
    m_exists = QFileInfo(file).isFile();
    const QString copy = m_dir.path() + QStringLiteral("/copy.conf");
    if (m_exists)
        QFile::copy(file, copy);
    m_settings.reset(new QSettings(copy, QSettings::IniFormat));
}

DiskStore::~DiskStore() = default;

QVariant DiskStore::value(const QString &key) const
{
    return m_settings->value(key);
}

bool DiskStore::contains(const QString &key) const
{
    return m_settings->contains(key);
}

QStringList DiskStore::allKeys() const
{
    return m_settings->allKeys();
}

QStringList DiskStore::childGroups(const QString &group) const
{
    m_settings->beginGroup(group);
    const QStringList groups = m_settings->childGroups();
    m_settings->endGroup();
    return groups;
}

} // namespace StoreTest
