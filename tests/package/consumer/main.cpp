// A suite application in miniature: it sees only the installed package.
#include <NdxCom/QFileSharing>
#include <NdxCom/QNodrixCom>
#include <NdxCom/QNodrixHelp>
#include <NdxCom/QNodrixMessageBox>
#include <NdxCom/QNodrixRegistry>
#include <QFileSharing>
#include <QNodrixCom>
#include <QNodrixHelp>
#include <QNodrixMessageBox>
#include <QNodrixRegistry>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <cstdio>

static int failures = 0;

#define CHECK(expr)                                                                                \
    do {                                                                                           \
        if (!(expr)) {                                                                             \
            std::fprintf(stderr, "consumer: check failed: %s\n", #expr);                           \
            ++failures;                                                                            \
        }                                                                                          \
    } while (false)

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);

    // The package it was built against is the Qt major it runs on.
    CHECK(QT_VERSION_MAJOR == CONSUMER_QT_MAJOR);
#ifndef Q_OS_WIN
    // The package names the folder of the library's catalogues, one per
    // language of the suite. (A Windows consumer cross-built on Linux runs
    // under wine and sees the prefix through drive letters of its own.)
    for (const char *language : {"en", "zh", "szh", "es"}) {
        CHECK(QFileInfo(QStringLiteral(CONSUMER_TRANSLATIONS_DIR "/ndxcom_%1.qm")
                            .arg(QLatin1String(language)))
                  .isFile());
    }
#endif

    CHECK(QNodrixCom::applicationName() == QStringLiteral("Nodrix"));
    CHECK(QNodrixCom::projectFilesExt() == QStringLiteral(".ndx"));
    CHECK(QNodrixCom::caricoFilesFilter() == QStringLiteral(".psc"));
    CHECK(QNodrixCom::scaricoFilesExt() == QStringLiteral("*.psc"));
    CHECK(QNodrixCom::machineFilesExt() == QStringLiteral(".xml"));
    CHECK(QNodrixCom::machineKd5DisCfgName() == QStringLiteral("Ndr.cfg "));
    CHECK(QNodrixCom::xmlParamDelimiter() == QLatin1Char('%'));
    CHECK(QNodrixCom::colorStripSCS() == QColor(128, 0, 128, 255));
    CHECK(QNodrixCom::projDocUId() == 1);
    CHECK(QNodrixCom::projDocUId() == 2);

    CHECK(QNodrixCom::getNdxVersion(QStringLiteral("NdxCom")) == 0x01020000u);
    CHECK(QNodrixCom::getNdxDate(QStringLiteral("Unknown")).isNull());
    CHECK(QNodrixCom::productSoftwareMMRB() == QStringLiteral("1.2.0.87551"));
    CHECK(QNodrixCom::versionMMRNumber(QStringLiteral("1.2.3.4.5")) == 0x02030405u);
    CHECK(QNodrixCom::compareVersionMMR(QStringLiteral("1.2"), QStringLiteral("1.2.0")) == -1);
    QNodrixCom com;
    QNodrixCom::setNodrixAppVersion(QStringLiteral("1.2.0.87551"));
    CHECK(com.getNodrixAppVersion() == 0x010355FFu);

    CHECK(QNodrixCom::needleFromDegree(90, 1680, true) == 420);
    CHECK(QNodrixCom::degreeFromNeedle(3, 7, false) == 155);
    CHECK(QNodrixCom::degree10FromNeedle(1, 7, false) == 515);
    int needle = 250, line = 8;
    QNodrixCom::normaNeedleLine(needle, line, 100, 1, 10);
    CHECK(needle == 99 && line == 9);
    needle = 10;
    line = 3;
    QNodrixCom::normaNeedleLineOfs(needle, line, -15, 100, 1, 0);
    CHECK(needle == 95 && line == 2);
    int degree = -100, step = 0;
    QNodrixCom::normaDegree10Step(degree, step);
    CHECK(degree == 100 && step == 0);
    CHECK(QNodrixCom::normaValueInRangePos(0, -5, 5, 3) == 3);

    CHECK(QLatin1String(QNodrixCom::staticMetaObject.className()) == QLatin1String("QNodrixCom"));
    CHECK(QNodrixCom::tr("x") == QStringLiteral("x"));

    CHECK(QNodrixCom::makeGaugeDiamSubDir(14, 13) == QStringLiteral("14-GG/13-DIAM"));
    CHECK(QNodrixCom::makeConfigGaugeDiamPath(QStringLiteral("C:\\Mac\\Cfg\\12-GG"),
                                              QStringLiteral("Cfg"), 14, 13)
          == QStringLiteral("C:/Mac/Cfg/14-GG/13-DIAM"));
    CHECK(QNodrixCom::machineKd5DisDirStSr() == QStringLiteral("/Dis/"));
    QNodrixCom::initPalettePlaneDefault();
    CHECK(QNodrixCom::palettePlaneDefault().value(128) == 0xFFDEDE80u);

    // The settings, in a private folder: the real home is never touched.
    QTemporaryDir settings;
    CHECK(settings.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       settings.path() + QStringLiteral("/user"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                       settings.path() + QStringLiteral("/system"));
#ifdef Q_OS_WIN
    // The registry is not moved by setPath: a name of this run's own,
    // removed at the end.
    QCoreApplication::setOrganizationName(
        QStringLiteral("NdxComConsumer-%1").arg(QCoreApplication::applicationPid()));
#else
    QCoreApplication::setOrganizationName(QStringLiteral("NdxComConsumer"));
#endif
    QCoreApplication::setApplicationName(QStringLiteral("consumer"));
    {
        QNodrixRegistry registry;
        CHECK(registry.getGridColor() == 3);
        CHECK(registry.getLanguage() == QNodrixRegistry::eLanguageType_Unset);
        registry.setLastMachine(QStringLiteral("M"));
        registry.setProjectsPath(QStringLiteral("/p"));
        registry.setLanguage(QNodrixRegistry::eLanguageType_szh);
    }
    CHECK(QNodrixRegistry::lastMachine() == QStringLiteral("M"));
    CHECK(QNodrixRegistry::environmentEnblCadVar());
    CHECK(!QNodrixRegistry::environmentEnblHelpInfo());
    CHECK(QNodrixCom::language() == QStringLiteral("szh"));
    CHECK(QSettings().value(QStringLiteral("Machines/M/Settings/ProjectsPath")).toString()
          == QStringLiteral("/p"));

    // The other three classes through their installed headers: the sharing
    // protocol is off in an installation, so open and saveAs succeed without
    // touching the disk; the classes carry their meta-objects.
    {
        QFileSharing sharing(nullptr);
        const QString project = QStringLiteral("/nonexistent-folder/Calza.ndx");
        CHECK(sharing.open(project));
        bool rename = false;
        CHECK(sharing.save(rename) && !rename);
        CHECK(sharing.saveAs(project));
        CHECK(!sharing.isOpenRdOnly());
        CHECK(sharing.TstFileLocked(project) == 0);
        sharing.close();
        CHECK(QLatin1String(QFileSharing::staticMetaObject.className())
              == QLatin1String("QFileSharing"));
        CHECK(QLatin1String(QNodrixMessageBox::staticMetaObject.className())
              == QLatin1String("QNodrixMessageBox"));
        CHECK(QLatin1String(QNodrixHelp::staticMetaObject.className())
              == QLatin1String("QNodrixHelp"));
        CHECK(QNodrixMessageBox::tr("Chiudi") == QStringLiteral("Chiudi"));
    }

#ifdef Q_OS_WIN
    QSettings(QStringLiteral("HKEY_CURRENT_USER\\Software"), QSettings::NativeFormat)
        .remove(QCoreApplication::organizationName());
#endif
    if (failures == 0)
        std::printf("consumer: all checks passed\n");
    return failures == 0 ? 0 : 1;
}
