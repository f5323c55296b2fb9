#include <QNodrixCom>

#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

class tst_QNodrixCom_Versions : public QObject
{
    Q_OBJECT

private slots:
    void appVersionBeforeAnySetter();
    void libraryLookup_data();
    void libraryLookup();
    void productTexts();
    void versionMMRNumber_data();
    void versionMMRNumber();
    void compareVersionMMR_data();
    void compareVersionMMR();
    void setNodrixAppVersion_data();
    void setNodrixAppVersion();
    void packingsAgreeOnlyOnFourSmallFields();
};

void tst_QNodrixCom_Versions::appVersionBeforeAnySetter()
{
    QNodrixCom com;
    QCOMPARE(com.getNodrixAppVersion(), 0u);
}

void tst_QNodrixCom_Versions::libraryLookup_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<uint>("version");
    QTest::addColumn<QString>("date");

    const QString date = QStringLiteral("17/1/2022");
    for (const char *key : {"Nodrix", "NdxExt", "NdxDoc", "NdxMac", "NdxAut", "NdxCod", "NdxCom",
                            "NdxImg", "NdxLib", "Tools"})
        QTest::newRow(key) << QString::fromLatin1(key) << 0x01020000u << date;

    // Anything else matches nothing: other case, blanks, empty, prefixes.
    for (const char *key :
         {"ndxcom", "NDXCOM", " NdxCom", "NdxCom ", "", "Ndx", "tools", "NdxComX"})
        QTest::newRow(qPrintable(QStringLiteral("unknown '%1'").arg(QLatin1String(key))))
            << QString::fromLatin1(key) << 0u << QString();
}

void tst_QNodrixCom_Versions::libraryLookup()
{
    QFETCH(QString, key);
    QFETCH(uint, version);
    QFETCH(QString, date);
    QCOMPARE(QNodrixCom::getNdxVersion(key), version);
    const QString found = QNodrixCom::getNdxDate(key);
    QCOMPARE(found, date);
    // An unknown key answers a null string, not merely an empty one.
    QCOMPARE(found.isNull(), date.isNull());
}

void tst_QNodrixCom_Versions::productTexts()
{
    QCOMPARE(QNodrixCom::productSoftwareVersion(), 0x01020000u);
    QCOMPARE(QNodrixCom::productSoftwareBuild(), 87551u);
    QCOMPARE(QNodrixCom::nodrixSoftwareVersion(), 0x01020000u);
    QCOMPARE(QNodrixCom::productSoftwareMMR(), QStringLiteral("1.2.0"));
    QCOMPARE(QNodrixCom::productSoftwareMMRB(), QStringLiteral("1.2.0.87551"));
    QCOMPARE(QNodrixCom::productSoftware(), QStringLiteral("1.2.0.87551"));
    QCOMPARE(QNodrixCom::productDate(), QStringLiteral("17/1/2022"));
    QCOMPARE(QNodrixCom::nodrixDate(), QStringLiteral("17/1/2022"));
}

void tst_QNodrixCom_Versions::versionMMRNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<uint>("word");

    QTest::newRow("empty") << QString() << 0u;
    QTest::newRow("empty but not null") << QStringLiteral("") << 0u;
    QTest::newRow("1.2.0") << QStringLiteral("1.2.0") << 0x00010200u;
    QTest::newRow("1.2.0.5") << QStringLiteral("1.2.0.5") << 0x01020005u;
    QTest::newRow("7") << QStringLiteral("7") << 0x00000007u;
    QTest::newRow("fifth field wraps") << QStringLiteral("1.2.3.4.5") << 0x02030405u;
    QTest::newRow("fifth field ORs") << QStringLiteral("2.0.0.0.1") << 0x00000003u;
    QTest::newRow("1.256") << QStringLiteral("1.256") << 0x00000100u;
    QTest::newRow("300 keeps 44") << QStringLiteral("300") << 44u;
    QTest::newRow("-1 is 255") << QStringLiteral("-1") << 255u;
    QTest::newRow("letter then 3") << QStringLiteral("a.3") << 0x00000003u;
    QTest::newRow("empty fields") << QStringLiteral("1..2") << 0x00010002u;
    QTest::newRow("trailing dot") << QStringLiteral("1.2.") << 0x00010200u;
    QTest::newRow("all 255") << QStringLiteral("255.255.255.255") << 0xFFFFFFFFu;
    QTest::newRow("hex is no number") << QStringLiteral("0x10.1") << 0x00000001u;
    QTest::newRow("nine fields") << QStringLiteral("9.8.7.6.5.4.3.2.1")
                                 << 0x0C07060Du; // 1|5|9, 2|6, 3|7, 4|8
}

void tst_QNodrixCom_Versions::versionMMRNumber()
{
    QFETCH(QString, text);
    QFETCH(uint, word);
    QCOMPARE(QNodrixCom::versionMMRNumber(text), word);
}

void tst_QNodrixCom_Versions::compareVersionMMR_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("result");

    QTest::newRow("1.2.1 > 1.2.0") << QStringLiteral("1.2.1") << QStringLiteral("1.2.0") << 1;
    QTest::newRow("1.10.0 > 1.9.0") << QStringLiteral("1.10.0") << QStringLiteral("1.9.0") << 1;
    QTest::newRow("1.2 < 1.2.0") << QStringLiteral("1.2") << QStringLiteral("1.2.0") << -1;
    QTest::newRow("1.2 > 0.1.0") << QStringLiteral("1.2") << QStringLiteral("0.1.0") << 1;
    QTest::newRow("equal") << QStringLiteral("1.2.0") << QStringLiteral("1.2.0") << 0;
    QTest::newRow("equal words") << QStringLiteral("1.256") << QStringLiteral("1.0") << 0;
    QTest::newRow("unsigned") << QStringLiteral("200.0.0.0") << QStringLiteral("1.0.0.0") << 1;
    QTest::newRow("smaller") << QStringLiteral("1.2.0") << QStringLiteral("1.2.1") << -1;
    QTest::newRow("both empty") << QString() << QString() << 0;
}

void tst_QNodrixCom_Versions::compareVersionMMR()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(int, result);
    QCOMPARE(QNodrixCom::compareVersionMMR(first, second), result);
}

void tst_QNodrixCom_Versions::setNodrixAppVersion_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<uint>("word");

    QTest::newRow("1.2.0") << QStringLiteral("1.2.0") << 0x01020000u;
    QTest::newRow("2") << QStringLiteral("2") << 0x02000000u;
    QTest::newRow("carry") << QStringLiteral("1.2.0.87551") << 0x010355FFu;
    QTest::newRow("negative") << QStringLiteral("1.-1") << 0x00FF0000u;
    QTest::newRow("empty") << QString() << 0u;
    QTest::newRow("fifth ignored") << QStringLiteral("1.2.3.4.5") << 0x01020304u;
    QTest::newRow("letters are 0") << QStringLiteral("x.2") << 0x00020000u;
    QTest::newRow("wraps") << QStringLiteral("256") << 0x00000000u;
    QTest::newRow("-1 alone") << QStringLiteral("-1") << 0xFF000000u;
}

void tst_QNodrixCom_Versions::setNodrixAppVersion()
{
    QFETCH(QString, text);
    QFETCH(uint, word);
    QNodrixCom com;
    QNodrixCom::setNodrixAppVersion(QStringLiteral("9.9.9.9")); // replaced entirely
    QNodrixCom::setNodrixAppVersion(text);
    QCOMPARE(com.getNodrixAppVersion(), word);
}

void tst_QNodrixCom_Versions::packingsAgreeOnlyOnFourSmallFields()
{
    QNodrixCom com;
    QNodrixCom::setNodrixAppVersion(QStringLiteral("1.2.3.4"));
    QCOMPARE(com.getNodrixAppVersion(), QNodrixCom::versionMMRNumber(QStringLiteral("1.2.3.4")));
    QNodrixCom::setNodrixAppVersion(QStringLiteral("1.2.0"));
    QVERIFY(com.getNodrixAppVersion() != QNodrixCom::versionMMRNumber(QStringLiteral("1.2.0")));
}

NDXCOM_TEST_MAIN(tst_QNodrixCom_Versions)
#include "tst_qnodrixcom_versions.moc"
