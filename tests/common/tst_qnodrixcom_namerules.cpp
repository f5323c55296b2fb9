// The rules for project and module names: the characters and the languages a
// name may not hold, the extensions it must end with, and the name without
// its folder.
#include <QNodrixCom>

#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace {

// Reads the options the setter stores.
struct Options : QNodrixCom
{
    using QNodrixCom::m_nFileNameMaxChars;
    using QNodrixCom::m_sFileNameInvalidChars;
};

} // namespace

class tst_QNodrixCom_NameRules : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void setProjectsNameOptions();
    void invalidChars_data();
    void invalidChars();
    void illegalLanguage_data();
    void illegalLanguage();
    void compliantProjectName_data();
    void compliantProjectName();
    void compliantModuleName_data();
    void compliantModuleName();
    void strippedName_data();
    void strippedName();
};

void tst_QNodrixCom_NameRules::init()
{
    QNodrixCom::setProjectsNameOptions(0, QString());
}

void tst_QNodrixCom_NameRules::setProjectsNameOptions()
{
    QCOMPARE(Options::m_nFileNameMaxChars, 0);
    QVERIFY(Options::m_sFileNameInvalidChars.isEmpty());
    QNodrixCom::setProjectsNameOptions(8, QStringLiteral("#&"));
    QCOMPARE(Options::m_nFileNameMaxChars, 8);
    QCOMPARE(Options::m_sFileNameInvalidChars, QStringLiteral("#&"));
    QNodrixCom::setProjectsNameOptions(0, QString());
    QCOMPARE(Options::m_nFileNameMaxChars, 0);
    QVERIFY(Options::m_sFileNameInvalidChars.isEmpty());
}

void tst_QNodrixCom_NameRules::invalidChars_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("expected");

    QTest::newRow("blank") << QStringLiteral("Calza corta") << true;
    QTest::newRow("commercial at") << QStringLiteral("Calza@2") << true;
    QTest::newRow("letters digits underscores") << QStringLiteral("Calza_corta_12") << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("comma") << QStringLiteral("a,b") << true;
    QTest::newRow("semicolon") << QStringLiteral("a;b") << true;
    QTest::newRow("apostrophe") << QStringLiteral("l'ago") << true;
    QTest::newRow("exclamation") << QStringLiteral("ciao!") << true;
    QTest::newRow("question") << QStringLiteral("chi?") << true;
    QTest::newRow("leading blank") << QStringLiteral(" a") << true;
    QTest::newRow("dot, minus, slash") << QStringLiteral("dir/a-b.ndx") << false;
    QTest::newRow("tab is not a blank") << QStringLiteral("a\tb") << false;
    QTest::newRow("no-break space is not a blank") << QStringLiteral("a\u00A0b") << false;
    QTest::newRow("full-width at is another character") << QStringLiteral("a\uFF20b") << false;
    QTest::newRow("accented letters") << QStringLiteral("Calzè") << false;
}

void tst_QNodrixCom_NameRules::invalidChars()
{
    QFETCH(QString, name);
    QFETCH(bool, expected);
    QCOMPARE(QNodrixCom::projectNameContainsInvalidChars(name), expected);
}

void tst_QNodrixCom_NameRules::illegalLanguage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("expected");

    QTest::newRow("accented Latin-1 letters") << QStringLiteral("Calzè più però ñandú") << false;
    QTest::newRow("plain ASCII") << QStringLiteral("Calza_1.ndx") << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("Chinese") << QStringLiteral("袜子") << true;
    QTest::newRow("one Chinese among Latin") << QStringLiteral("Calza袜.ndx") << true;
    QTest::newRow("question mark") << QStringLiteral("chi?.ndx") << true;
    QTest::newRow("question mark alone") << QStringLiteral("?") << true;
    QTest::newRow("U+00FF is the last Latin-1") << QStringLiteral("\u00FF") << false;
    QTest::newRow("U+0100 is the first beyond") << QStringLiteral("\u0100") << true;
    QTest::newRow("euro sign") << QStringLiteral("10\u20AC") << true;
    QTest::newRow("C1 control U+0092") << QStringLiteral("a\u0092b") << false;
    QTest::newRow("outside the BMP") << QStringLiteral("a\U0001F600") << true;
    QTest::newRow("lone surrogate") << QString(QChar(0xD800)) << true;
    QTest::newRow("NUL") << QString(QChar(0)) << false;
}

void tst_QNodrixCom_NameRules::illegalLanguage()
{
    QFETCH(QString, name);
    QFETCH(bool, expected);
    QCOMPARE(QNodrixCom::projectNameHasIllegalLanguage(name), expected);
}

void tst_QNodrixCom_NameRules::compliantProjectName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    QTest::newRow("A.ndx unchanged") << QStringLiteral("A.ndx") << QStringLiteral("A.ndx");
    QTest::newRow("A") << QStringLiteral("A") << QStringLiteral("A.ndx");
    QTest::newRow("A.NDX") << QStringLiteral("A.NDX") << QStringLiteral("A.NDX.ndx");
    QTest::newRow("A.Ndx") << QStringLiteral("A.Ndx") << QStringLiteral("A.Ndx.ndx");
    QTest::newRow("empty") << QString() << QStringLiteral(".ndx");
    QTest::newRow("extension only") << QStringLiteral(".ndx") << QStringLiteral(".ndx");
    QTest::newRow("module name") << QStringLiteral("A.pmc") << QStringLiteral("A.pmc.ndx");
    QTest::newRow("ndx in the middle")
        << QStringLiteral("A.ndx.bak") << QStringLiteral("A.ndx.bak.ndx");
    QTest::newRow("ndx without dot") << QStringLiteral("Andx") << QStringLiteral("Andx.ndx");
    QTest::newRow("path kept") << QStringLiteral("/p/A") << QStringLiteral("/p/A.ndx");
}

void tst_QNodrixCom_NameRules::compliantProjectName()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QNodrixCom::makeCompliantProjectName(name);
    QCOMPARE(name, expected);
}

void tst_QNodrixCom_NameRules::compliantModuleName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");

    QTest::newRow("B") << QStringLiteral("B") << QStringLiteral("B.pmc");
    QTest::newRow("B.pmc unchanged") << QStringLiteral("B.pmc") << QStringLiteral("B.pmc");
    QTest::newRow("knit module gets the cylinder extension")
        << QStringLiteral("B.pmm") << QStringLiteral("B.pmm.pmc");
    QTest::newRow("B.PMC") << QStringLiteral("B.PMC") << QStringLiteral("B.PMC.pmc");
    QTest::newRow("project name") << QStringLiteral("B.ndx") << QStringLiteral("B.ndx.pmc");
    QTest::newRow("empty") << QString() << QStringLiteral(".pmc");
}

void tst_QNodrixCom_NameRules::compliantModuleName()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QNodrixCom::makeCompliantModuleName(name);
    QCOMPARE(name, expected);
}

void tst_QNodrixCom_NameRules::strippedName_data()
{
    QTest::addColumn<QString>("full");
    QTest::addColumn<QString>("expected");

    QTest::newRow("drive path") << QStringLiteral("C:/P/14-GG/Calza.ndx")
                                << QStringLiteral("Calza.ndx");
    QTest::newRow("absolute") << QStringLiteral("/home/u/Calza.ndx") << QStringLiteral("Calza.ndx");
    QTest::newRow("name only") << QStringLiteral("Calza.ndx") << QStringLiteral("Calza.ndx");
    QTest::newRow("trailing separator") << QStringLiteral("C:/P/") << QString();
    QTest::newRow("root") << QStringLiteral("/") << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("marker kept") << QStringLiteral("C:/P/Prg2.ndx[*]")
                                 << QStringLiteral("Prg2.ndx[*]");
    QTest::newRow("relative") << QStringLiteral("a/b/c") << QStringLiteral("c");
    QTest::newRow("double separator") << QStringLiteral("a//b") << QStringLiteral("b");
#ifdef Q_OS_WIN
    QTest::newRow("backslashes") << QStringLiteral("C:\\P\\Calza.ndx")
                                 << QStringLiteral("Calza.ndx");
#else
    // A backslash is an ordinary character of a file name here.
    QTest::newRow("backslashes") << QStringLiteral("C:\\P\\Calza.ndx")
                                 << QStringLiteral("C:\\P\\Calza.ndx");
#endif
}

void tst_QNodrixCom_NameRules::strippedName()
{
    QFETCH(QString, full);
    QFETCH(QString, expected);
    QCOMPARE(QNodrixCom::strippedName(full), expected);
}

NDXCOM_TEST_MAIN(tst_QNodrixCom_NameRules)
#include "tst_qnodrixcom_namerules.moc"
