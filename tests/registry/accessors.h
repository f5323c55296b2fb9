#ifndef ACCESSORS_H
#define ACCESSORS_H

#include <QNodrixRegistry>

#include <QtCore/QDir>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <functional>

// Every simple value of the settings object, with the group and key it must
// land under, written out literally: the tests compare the files against
// these strings, not against anything the library computes.
struct Accessor
{
    enum Kind { Int, Bool, String };

    QString getter;
    // "%1" stands for the last machine.
    QString group;
    QString key;
    Kind kind;
    std::function<QVariant(QNodrixRegistry &)> get;
    std::function<void(QNodrixRegistry &, const QVariant &)> set;
    // Evaluated when asked: some defaults depend on the current directory
    // and the home directory at the time of the call.
    std::function<QVariant()> defaultValue;
    // A value different from the default, for writing.
    QVariant sample;

    bool isMachineValue() const { return group.startsWith(QLatin1String("Machines/")); }

    // The key as it stands in the file: the nameless machine's
    // "Machines//Settings" is folded by QSettings into "Machines/Settings".
    QString storedKey(const QString &lastMachine) const
    {
        QString g = isMachineValue() ? group.arg(lastMachine) : group;
        g.replace(QLatin1String("Machines//"), QLatin1String("Machines/"));
        return g + QLatin1Char('/') + key;
    }
};

inline const QVector<Accessor> &accessors()
{
    using R = QNodrixRegistry;
    auto empty = [] { return QVariant(QString()); };
    auto home = [] { return QVariant(QDir::homePath()); };
    auto cwd = [] { return QVariant(QDir::currentPath()); };

#define STRING_VALUE(name, grp, k, def, sample)                                                    \
    Accessor                                                                                       \
    {                                                                                              \
        QStringLiteral("get" #name), QStringLiteral(grp), QStringLiteral(k), Accessor::String,     \
            [](R &r) { return QVariant(r.get##name()); },                                          \
            [](R &r, const QVariant &v) { r.set##name(v.toString()); }, def, QVariant(sample)      \
    }

    static const QVector<Accessor> table = {
        Accessor {QStringLiteral("getGridColor"), QStringLiteral("Settings"),
                  QStringLiteral("GridColor"), Accessor::Int,
                  [](R &r) { return QVariant(r.getGridColor()); },
                  [](R &r, const QVariant &v) { r.setGridColor(v.toInt()); },
                  [] { return QVariant(3); }, QVariant(12)},
        Accessor {QStringLiteral("getLanguage"), QStringLiteral("Settings"),
                  QStringLiteral("Language"), Accessor::Int,
                  [](R &r) { return QVariant(int(r.getLanguage())); },
                  [](R &r, const QVariant &v) { r.setLanguage(R::eLanguageType(v.toInt())); },
                  [] { return QVariant(-1); }, QVariant(7)},
        STRING_VALUE(LastMachine, "Settings", "LastMachine", empty, QStringLiteral("Vx3K-42")),
        Accessor {QStringLiteral("getShowOverview"), QStringLiteral("SettingsRecent"),
                  QStringLiteral("ShowOverview"), Accessor::Bool,
                  [](R &r) { return QVariant(r.getShowOverview()); },
                  [](R &r, const QVariant &v) { r.setShowOverview(v.toBool()); },
                  [] { return QVariant(false); }, QVariant(true)},
        STRING_VALUE(MachineName, "Machines/%1/Settings", "MachineName", empty,
                     QStringLiteral("ZR5-VX3K")),
        STRING_VALUE(MachinePath, "Machines/%1/Settings", "MachinePath", cwd,
                     QStringLiteral("/opt/macchine/m1")),
        STRING_VALUE(ProjectsPath, "Machines/%1/Settings", "ProjectsPath", empty,
                     QStringLiteral("/srv/progetti")),
        STRING_VALUE(RepositoryPath, "Machines/%1/Settings", "RepositoryPath", empty,
                     QStringLiteral("/srv/archivio")),
        STRING_VALUE(ProjectLinkPath, "Machines/%1/Settings", "ProjectLinkPath", empty,
                     QStringLiteral("/srv/link")),
        STRING_VALUE(HddPath, "Machines/%1/Settings", "HddPath", home, QStringLiteral("/mnt/hdd")),
        STRING_VALUE(UsbPath, "Machines/%1/Settings", "UsbPath", home,
                     QStringLiteral("/media/usb0")),
        STRING_VALUE(ExportBmpPath, "Machines/%1/Settings", "ExportBmpPath", empty,
                     QStringLiteral("/srv/export")),
        STRING_VALUE(ImportBmpPath, "Machines/%1/Settings", "ImportBmpPath", empty,
                     QStringLiteral("/srv/import")),
        STRING_VALUE(LastCfg, "Machines/%1/SettingsRecent", "LastCfg", empty,
                     QStringLiteral("Ndr.cfg ")),
        STRING_VALUE(LastDiametro, "Machines/%1/SettingsRecent", "LastDiametro", empty,
                     QStringLiteral("13,5")),
        STRING_VALUE(LastGauge, "Machines/%1/SettingsRecent", "LastGauge", empty,
                     QStringLiteral("014")),
        STRING_VALUE(LastNeedles, "Machines/%1/SettingsRecent", "LastNeedles", empty,
                     QStringLiteral(" 1680")),
        Accessor {QStringLiteral("getLastBrowserMode"),
                  QStringLiteral("Machines/%1/SettingsRecent"), QStringLiteral("LastBrowserMode"),
                  Accessor::Int, [](R &r) { return QVariant(r.getLastBrowserMode()); },
                  [](R &r, const QVariant &v) { r.setLastBrowserMode(v.toInt()); },
                  [] { return QVariant(1); }, QVariant(4)},
    };
#undef STRING_VALUE
    return table;
}

inline const Accessor *accessor(const QString &getter)
{
    for (const Accessor &a : accessors()) {
        if (a.getter == getter)
            return &a;
    }
    return nullptr;
}

#endif // ACCESSORS_H
