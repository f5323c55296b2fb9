// A second process for the settings-store tests: it writes into the same
// application store as the test program, through QSettings as a suite
// application would.
//
//   ndxcom_settingswriter --user-dir D --system-dir S --organization O --application A
//       --set KEY VALUE                   writes one value
//       --many TAG COUNT [--expect-machine-path P]
//                                         writes COUNT keys "Concurrency/TAG/Key<n>" = n,
//                                         each through a store of its own (so each is
//                                         locked, merged and written on its own); with
//                                         --expect-machine-path every round also checks
//                                         that QNodrixRegistry::machinePath() reads P
//
// Exit codes: 0 done, 2 a read gave another value, 3 a write failed, 64 usage.
#include <QNodrixRegistry>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption userDir(QStringLiteral("user-dir"), QString(), QStringLiteral("dir"));
    const QCommandLineOption systemDir(QStringLiteral("system-dir"), QString(),
                                       QStringLiteral("dir"));
    const QCommandLineOption organization(QStringLiteral("organization"), QString(),
                                          QStringLiteral("name"));
    const QCommandLineOption application(QStringLiteral("application"), QString(),
                                         QStringLiteral("name"));
    const QCommandLineOption set(QStringLiteral("set"));
    const QCommandLineOption many(QStringLiteral("many"));
    const QCommandLineOption expectMachinePath(QStringLiteral("expect-machine-path"), QString(),
                                               QStringLiteral("path"));
    parser.addOptions(
        {userDir, systemDir, organization, application, set, many, expectMachinePath});
    parser.addPositionalArgument(QStringLiteral("args"), QString());
    parser.process(app);

    const QStringList args = parser.positionalArguments();
    if (!parser.isSet(userDir) || !parser.isSet(systemDir) || !parser.isSet(organization)
        || !parser.isSet(application) || parser.isSet(set) == parser.isSet(many)
        || args.size() != 2) {
        std::fprintf(stderr, "ndxcom_settingswriter: bad arguments\n");
        return 64;
    }

    for (QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, parser.value(userDir));
        QSettings::setPath(format, QSettings::SystemScope, parser.value(systemDir));
    }
    QCoreApplication::setOrganizationName(parser.value(organization));
    QCoreApplication::setApplicationName(parser.value(application));

    if (parser.isSet(set)) {
        QSettings store;
        store.setValue(args.at(0), args.at(1));
        store.sync();
        return store.status() == QSettings::NoError ? 0 : 3;
    }

    const QString tag = args.at(0);
    bool ok = false;
    const int count = args.at(1).toInt(&ok);
    if (!ok || count < 0)
        return 64;
    for (int n = 0; n < count; ++n) {
        {
            QSettings store;
            store.setValue(QStringLiteral("Concurrency/%1/Key%2").arg(tag).arg(n), n);
            store.sync();
            if (store.status() != QSettings::NoError) {
                std::fprintf(stderr, "ndxcom_settingswriter: write %d failed\n", n);
                return 3;
            }
        }
        if (parser.isSet(expectMachinePath)
            && QNodrixRegistry::machinePath() != parser.value(expectMachinePath)) {
            std::fprintf(stderr, "ndxcom_settingswriter: machinePath() read '%s' in round %d\n",
                         qPrintable(QNodrixRegistry::machinePath()), n);
            return 2;
        }
    }
    return 0;
}
